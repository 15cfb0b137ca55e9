#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "booking/auto/autobooker.h"
#include "booking/wizard/roster.h"
#include "records/world.h"
#include "show/forecast.h"
#include "show/holdshow.h"

// The sheet of a show day: how many rows it has, what it asks for before the show may start.

namespace grapplemont {

/// The record of an Event's sheet that is booked like the others and counts for nothing.
inline constexpr int kDarkMatch = 1;

/// Of a television show by its time slot, an unknown one counting as the Graveyard. Without a show
/// of today nothing is open.
SheetTerms TermsOf(const World& world, bool isEvent);

/// Of a television show in this time slot, whenever it is.
SheetTerms TermsOfSlot(std::string_view slot);

/// What is booked of what counts.
struct SheetCount {
  int Matches = 0;
  int Segments = 0;
};
SheetCount CountSheet(const World& world, bool isEvent);
/// "2 of 4 matches, 9 segments (at least 8) booked."
std::string CountText(const SheetCount& count, const SheetTerms& terms);
/// What of the sheet goes against the rules of the house; empty when nothing does.
std::string WhyNotInThisHouse(const World& world);
bool MayStart(const World& world, bool isEvent);

/// Writes match.dat with every record empty.
void EmptySheet(World& world, bool isEvent);
/// Puts a card into match.dat.
void TakeCard(World& world, const AutoCard& card);
/// How many Segments of a card are new to match.dat.
int NewSegments(const World& world, const AutoCard& card);

/// "Television Booking Sheet For Tidal Force".
std::string SheetHeading(const World& world, bool isEvent);
/// What the sheet warns of, with its minimum.
std::string SheetWarning(const SheetTerms& terms, bool isEvent);
/// "CWA Crown Title Match!"; empty where none is at stake.
std::string TitleTip(const Segment& segment);

/// Why the player cannot let it book; empty when they can.
std::string WhyNoAutoBooker(const World& world);

// What a sheet tells of a booked row beside its one line.

/// "Singles", "Interview", "Angle"; empty for an empty row.
std::string KindOfRow(const Segment& segment);
/// The feud that the Segment is about, the hottest of those whose enemies meet in it: "Feud 71".
/// Empty for none.
std::string FeudOfRow(const World& world, const Segment& segment);
/// "58 - 66%", "58%" where there is no doubt; empty for a row that is not there or not booked.
std::string ForecastOfRow(const ShowForecast& forecast, int record);
std::string RangeText(const Forecast& forecast);
/// The lines of the wizard's summary, as they stood when the Segment was completed.
std::vector<std::string> SummaryOfRow(const World& world, const Segment& segment, bool isEvent);
/// What these lines leave out, so that nothing of the row stays untold: who has entered a battle
/// royal, who beats whom in a team, in which order people leave, who plays which part in an angle.
std::vector<std::string> DetailsOfRow(const World& world, const Segment& segment);
/// What the Segment would leave changed, a sentence each: a new champion, who turns, who is seen
/// for the first time, a feud that it ends and how that stands.
std::vector<std::string> ChangesBy(const World& world, const Segment& segment);
/// The same of the rows that a card adds: "Row 3: Bram Okafor wins the CWA Crown."
std::vector<std::string> ChangesBy(const World& world, const AutoCard& card);
/// Who may be booked and is not on the card yet, the most popular first.
std::vector<const Worker*> NotOnTheCard(const World& world, bool isEvent);

/// The uids of those on the card who can be booked as things stand.
std::vector<int> AtHand(const World& world, bool isEvent);
/// Empties the rows of those who were at hand and are not any more; gives a line for each.
std::vector<std::string> EmptyRowsOfGone(World& world, bool isEvent,
                                         const std::vector<int>& wereAtHand);

}  // namespace grapplemont
