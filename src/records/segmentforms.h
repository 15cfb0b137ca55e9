#pragma once

#include <array>
#include <string>
#include <vector>

#include "records/angles.h"
#include "records/segmentwords.h"
#include "records/world.h"
#include "words/segments.h"

// How a Segment is put together: what the wizard asks for it, and where everybody stands in the
// record.

namespace grapplemont {

/// What the wizard asks for a match of a style: its screens, empty where there is no such step.
struct MatchForm {
  int Style;
  std::string_view People;
  std::string_view Finish = {};
  std::string_view Aftermath = {};
  std::string_view Purpose = {};
  int RunIns = 0;  // how many may run in at the finish, and as many after it
};
inline constexpr MatchForm kMatchForms[] = {
    {kSingles, "frmBook1vs1", "frmBook1vs1Finish", "frmBookAfter", "frmBookPurpose", 1},
    {kTag, "frmBook2vs2", "frmBook2vs2Finish", "frmBook2vs2After", "frmBook2vs2Purpose", 2},
    {kThreeWay, "frmBook3x1"},
    {kThreeTeams, "frmBook3x2"},
    {kFourWay, "frmBook4x1"},
    {kFourTeams, "frmBook4x2"},
    {kThreeOnThree, "frmBook3vs3", "frmBook3vs3Finish"},
    {kFourOnFour, "frmBook4vs4", "frmBook4vs4Finish"},
    {kSpecial, "frmBookSpecial"},
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

/// What the wizard asks for an interview of a style, and its seats: the speakers' before the
/// targets'.
struct InterviewForm {
  int Style;
  std::string_view SpeakersScreen, TargetsScreen;  // of the wizard
  std::array<Role, 5> Seats;                       // the manager is one of the speakers
};

// The tables' rows; nullptr for unknown codes.
const MatchStyleRow* FindMatchStyle(int style);
const InterviewStyleRow* FindInterviewStyle(int style);
const MatchForm* FindMatchForm(int style);
const InterviewForm* FindInterviewForm(int style);

/// Who stands at a place of Segment.Worker, from 1: a uid, 0 for nobody.
int UidAt(const Segment& segment, int place);
/// The seats of an interview or an angle; none for a match.
std::vector<Role> SeatsOf(const Segment& segment);
/// The uids at those of the seats that are cast so, 0 for an empty one.
std::vector<int> SeatedAs(const Segment& segment, Casting from);
/// Whether somebody or something is put into the seat.
bool IsCast(const Segment& segment, const Role& seat);

}  // namespace grapplemont
