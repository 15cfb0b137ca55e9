#pragma once

#include "records/world.h"
#include "show/runsegment.h"

// A show from its start to its close.

namespace grapplemont {

/// Who sits at the table.
struct CommentaryTeam {
  int Announcer = 0;  // Staff uid; 0 nobody
  int Colour = 0;     // Staff uid, or a Worker's; 0 nobody
  bool ColourIsWorker = false;
};

/// The player's television show of today, the first in the file; nullptr for none.
const Show* ShowOfToday(const World& world);
/// The player's Event of this month; nullptr for none.
const Event* EventOfToday(const World& world);
/// What the show is called; empty when there is none.
std::string ShowName(const World& world, bool isEvent);
/// How many records of match.dat a sheet has.
inline constexpr int kTvRows = 11, kEventRows = 9;
constexpr int RowsOf(bool isEvent) {
  return isEvent ? kEventRows : kTvRows;
}
/// The last record of match.dat that belongs to the sheet.
int LastRow(const World& world, bool isEvent);
/// The commentators of the player's television show of today.
CommentaryTeam TvTeam(const World& world);
/// "Bram Okafor" and so on; "None" for nobody.
std::string AnnouncerName(const World& world, const CommentaryTeam& team);
std::string ColourName(const World& world, const CommentaryTeam& team);

/// One night in so many is flat: nothing quite comes off, and each match loses a tenth.
inline constexpr int kFlatNightOdds = 8;
/// Begins the show that match.dat holds: whether the night is flat is drawn, the commentators'
/// charges begin the sum. Draws once.
void StartShow(World& world, bool isEvent, const CommentaryTeam& team);
/// Adds an Event's extra to the sum.
void AddExtraBonus(World& world, int bonus);
/// The show under way or just closed; nullptr for none.
const ShowRun* ShowUnderWay(const World& world);
bool ShowIsClosed(const World& world);

/// A talk segment of a stable that is no longer the promotion's: the show passes it over.
bool IsPassedOver(const World& world, const Segment& segment);
/// The record of match.dat that comes next; 0 when the show is over.
int NextSegment(const World& world);
/// Runs it and keeps what it came to, and its words where it was told. Requires one. `memory` as in
/// RunSegment.
ToldSegment RunNextSegment(World& world, LineMemory* memory);

/// Closes the show to its rating, with what it does to feuds, workers and Titles, and gives the
/// rating.
int CloseShow(World& world);
/// Runs what is left of a show under way and closes it; the rating.
int FinishShow(World& world, LineMemory* memory);
/// From start to close without a screen; the rating.
int HoldShow(World& world, bool isEvent, const CommentaryTeam& team, int extraBonus,
             LineMemory* memory);
/// The show's rating goes to the day that follows, and its record is gone.
void LeaveShow(World& world);

// What a show's sum of ratings loses by poor commentary and poor production, by the promotion's
// size.

/// The sum with the primary announcer's charge taken off. With nobody at the table it becomes -1 if
/// it stood at exactly 100, else 0.
int WithAnnouncer(const World& world, int announcer, int sum);
/// The same for the colour commentator, by a worker's charisma or a staff member's talent; with
/// nobody it becomes -1 if it stood at exactly 40, else 0. A worker who cannot speak costs 100
/// more.
int WithColour(const World& world, int colour, bool isWorker, int sum);
/// What poor production takes off at the close: 0 or below.
int ProductionCharge(const Promotion& promotion);

}  // namespace grapplemont
