#pragma once

#include <string_view>
#include <vector>

#include "records/fields/chronicle.h"
#include "report/pasttold.h"
#include "report/recalled.h"

// How the records are read for what a match brings along.

namespace grapplemont {

struct Segment;
class World;

/// In no order.
std::vector<PastFact> LookBack(Teller& teller);

/// What a result makes of a career, whatever came before.
struct PastMark {
  PastOutcome Tells;
  PastFact Of;
};
std::vector<PastMark> MarksOf(Teller& teller, const std::vector<int>& winners, bool changed);
/// Whether the booked result takes a Title from who held it at the bell, or fills a vacant one.
bool ChangesHands(Teller& teller);

/// What two sides have had with each other on the player's shows, draws included.
struct Meetings {
  int Met = 0, One = 0, Two = 0;  // matches, and those that each side has won
  int LastYear = 0;
  int LastDaysAgo = -1, LastWinner = 0;  // 0 for a draw
  int BestRating = 0, BestDaysAgo = -1;  // of the present year
};
Meetings MeetingsOf(const World& world, int style, const std::vector<int>& one,
                    const std::vector<int>& two);
/// Whether any match on the player's shows, of any kind, had both of these sides in it.
bool HaveSharedARing(const World& world, const std::vector<int>& one, const std::vector<int>& two);
/// Whether any of these has had a match for the Title on the player's shows since that day.
bool HaveFoughtFor(const World& world, std::string_view title, const std::vector<int>& any,
                   Day since);
/// From here on wins or losses in a row are worth a word.
inline constexpr int kARun = 5;
/// The worker's matches won in a row up to now, the last `without` of them left out; below 0 those
/// lost; a draw ends either.
int RunOf(const World& world, int uid, int without = 0);
/// The last match that counts for it; nullptr for none.
const HeldMatch* LastInTheRun(const World& world, int uid);
/// The matches that these two sides had alone on the player's shows, one against one or two
/// against two, behind that row of that day's card, the latest first; against anybody where the
/// second is nobody.
std::vector<const HeldMatch*> MatchesBetween(const World& world, const std::vector<int>& one,
                                             const std::vector<int>& two, Day since, int row);
/// Whether that side has won it.
bool HasWon(const HeldMatch& bout, const std::vector<int>& side);
/// Those on the other side of it, without who has gone.
std::vector<int> OpponentsIn(const HeldMatch& bout, const std::vector<int>& side);
/// Whether they were on a card of the last five weeks, whatever they did there.
bool WasOnACard(const World& world, int uid);

/// Who lays hands on whom.
struct Blow {
  std::vector<int> By, On;
};
/// In what the show sees of an angle, or of a match's finish and aftermath.
std::vector<Blow> BlowsOf(const Segment& segment);
/// The attacks, threats, challenges and signed contracts of the last five weeks' cards and of the
/// rows before this one, the latest first; those with anybody where `two` is nobody.
std::vector<PastFact> CallbacksOf(Teller& teller, const std::vector<int>& one,
                                  const std::vector<int>& two);
/// Those of a side who are among the others.
std::vector<int> Shared(const std::vector<int>& side, const std::vector<int>& others);
/// The player's best match of the present year between two or four; nullptr for none.
const HeldMatch* BestOfTheYear(const World& world);
/// Whether a match rated so is one of the ten best of those, and great enough to be called one.
bool IsOnTheYearsList(const World& world, int rating);
/// Whether any of these is among the others.
bool AnyOf(const std::vector<int>& some, const std::vector<int>& others);

}  // namespace grapplemont
