#pragma once

#include <string>
#include <vector>

#include "booking/autobooker.h"
#include "records/world.h"
#include "show/holdshow.h"

// The sheet of a show day: how many rows it has, what it asks for before the show may start.

namespace grapplemont {

/// The record of an Event's sheet that is booked like the others and counts for nothing.
inline constexpr int kDarkMatch = 1;

/// What a sheet offers and asks for. Without a show of today nothing is open.
struct SheetTerms {
  int OpenRows = 0;  // records 1 to this can be booked
  int MinMatches = 0;
  int MinSegments = 0;
};
/// Of a television show by its time slot, an unknown one counting as the Graveyard.
SheetTerms TermsOf(const World& world, bool isEvent);

/// What is booked of what counts.
struct SheetCount {
  int Matches = 0;
  int Segments = 0;
};
SheetCount CountSheet(const World& world, bool isEvent);
bool MayStart(const World& world, bool isEvent);

/// Writes match.dat with every record empty.
void EmptySheet(World& world, bool isEvent);
/// Empties a record of match.dat.
void RemoveBooking(World& world, int record);
/// Puts a card into match.dat.
void TakeCard(World& world, const AutoCard& card);
/// How many Segments of a card are new to match.dat.
int NewSegments(const World& world, const AutoCard& card);

/// "Television Booking Sheet For Tidal Force".
std::string SheetHeading(const World& world, bool isEvent);
/// What the sheet warns of, with its minimum.
std::string SheetWarning(const World& world, bool isEvent);
/// What the dark match of today's Event is called.
std::string DarkMatchHeading(const World& world);
/// "CWA Crown Title Match!"; empty where none is at stake.
std::string TitleTip(const Segment& segment);

/// Somebody above the jobbers is fit, so that there is something to book.
bool HasAutoBooker(const World& world);

}  // namespace grapplemont
