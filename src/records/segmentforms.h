#pragma once

#include <array>
#include <string>
#include <vector>

#include "records/angles.h"
#include "records/segmentwords.h"
#include "records/world.h"

// How a Segment is put together: what the wizard asks for it, and where everybody stands in the
// record.

namespace grapplemont {

/// A match style: its workers stand side by side, each side's members next to one another.
struct MatchStyleRow {
  int Code;
  std::string_view Says;
  int Sides;
  int PerSide;
  // The wizard's screens; empty where the style has no such step.
  std::string_view People;
  std::string_view Finish = {};
  std::string_view Aftermath = {};
  std::string_view Purpose = {};
  int RunIns = 0;  // how many may run in at the finish, and as many after it
};
inline constexpr MatchStyleRow kMatchStyles[] = {
    {kSingles, "1 vs 1", 2, 1, "frmBook1vs1", "frmBook1vs1Finish", "frmBookAfter", "frmBookPurpose",
     1},
    {kTag, "2 vs 2", 2, 2, "frmBook2vs2", "frmBook2vs2Finish", "frmBook2vs2After",
     "frmBook2vs2Purpose", 2},
    {kThreeWay, "1 vs 1 vs 1", 3, 1, "frmBook3x1"},
    {kThreeTeams, "2 vs 2 vs 2", 3, 2, "frmBook3x2"},
    {kFourWay, "1 vs 1 vs 1 vs 1", 4, 1, "frmBook4x1"},
    {kFourTeams, "2 vs 2 vs 2 vs 2", 4, 2, "frmBook4x2"},
    {kThreeOnThree, "3 vs 3", 2, 3, "frmBook3vs3", "frmBook3vs3Finish"},
    {kFourOnFour, "4 vs 4", 2, 4, "frmBook4vs4", "frmBook4vs4Finish"},
    {kSpecial, "Special", 30, 1, "frmBookSpecial"},  // 30, 20 or 10 by type
};

/// What a result step asks: the winner, and who loses in which order.
struct ResultForm {
  int Style;
  int Type;  // 0: every other type of the style
  std::string_view Screen;
  bool Teams = false;           // its boxes show sides, by their first members
  int Losers = 0;               // boxes for losers: Loser, then Place3 and up
  std::string_view Same = {};   // what it says to one person in two boxes
  std::string_view Mates = {};  // and to a winner and a loser of one side; empty where that may be
  bool MayBeNone = false;       // a loser's box may stay empty
};
/// Of the match's style and type; the first of the table where there is none.
const ResultForm& ResultFormOf(const Segment& match);

/// An interview style: its speakers' seats, then its targets'.
struct InterviewStyleRow {
  int Code;
  std::string_view Says;
  std::string_view SpeakersScreen, TargetsScreen;  // of the wizard
  std::array<Role, 5> Seats;
  int Speakers;  // the first seats; the manager is one of them
  int Targets;
};
extern const std::array<InterviewStyleRow, 4> kInterviewStyles;

// The tables' rows; nullptr for unknown codes.
const MatchStyleRow* FindMatchStyle(int style);
const InterviewStyleRow* FindInterviewStyle(int style);

/// Who stands at a place of Segment.Worker, from 1: a uid, 0 for nobody.
int UidAt(const Segment& segment, int place);
/// The seats of an interview or an angle; none for a match.
std::vector<Role> SeatsOf(const Segment& segment);
/// The uids at those of the seats that are cast so, 0 for an empty one.
std::vector<int> SeatedAs(const Segment& segment, Casting from);
/// Whether somebody or something is put into the seat.
bool IsCast(const Segment& segment, const Role& seat);

}  // namespace grapplemont
