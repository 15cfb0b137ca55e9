#pragma once

#include "booking/auto/autoplan.h"

// Who makes a good match with whom.

namespace grapplemont {

/// What the auto booker would like of a match; what the workers refuse gives way.
struct Wish {
  int Favoured = 0;       // uid of who should win; 0: whoever it helps
  bool Firm = false;      // nobody else may
  bool Changes = false;   // the finish must let a Title change hands
  bool Feud = false;      // bad blood: cheap finishes, brawls
  bool EndsFeud = false;  // clean, and settled
  bool MayDraw = false;   // better a draw than no match
};

/// Team mates and those of one stable; a manager and their client.
bool InOneCorner(const World& world, const Worker& a, const Worker& b);
/// Face against Heel draws, two Heels do not.
int ContrastOf(const Worker& a, const Worker& b);
/// How good a match the two would make; far below 0 for what nobody wants to see. Draws once.
int PairScore(AutoPlan& plan, const Worker& a, const Worker& b);
/// Luck of one worker or pair: 1 to this.
inline constexpr int kVariety = 14;
/// A score below this is not a match.
inline constexpr int kNoPair = -50;

/// The best opponents for `lead` among `from`, best first, four at most. Draws for each.
std::vector<const Worker*> OpponentsFor(AutoPlan& plan, const Worker& lead,
                                        const std::vector<const Worker*>& from);

/// The type of a match of styles 1 and 2: plain unless the occasion calls for more and the
/// promotion's risk and size allow it. `heat` is the feud's, 0 for none.
int TypeFor(AutoPlan& plan, int style, const std::vector<int>& people, int heat, bool endsFeud);

/// Decides and plans a match; with a plain type when nobody agrees to the one given.
bool BookMatch(AutoPlan& plan, Segment match, const Wish& wish);

/// Shows of this length have room for more of everything.
inline constexpr std::size_t kBigShowRows = 8;

/// A plain match of two teams; and whether they are in a feud.
Segment TeamMatch(const Team& a, const Team& b);
bool TeamsFeud(const AutoPlan& plan, const Team& a, const Team& b);
/// The teams both of whose members may wrestle, the most popular first.
std::vector<const Team*> ReadyTeams(const AutoPlan& plan);
/// How good a match two teams would make; kNoPair and below for none. Draws once.
int TeamScore(AutoPlan& plan, const Team& a, const Team& b);

// Who wins, how, and to what end.

/// A match of these people, first side first, of which nothing else is decided.
Segment NewMatch(int style, int type, const std::vector<int>& people);

/// Chooses the result, the finish, the aftermath and the purpose of a match whose people, type and
/// Title are set. False when nothing is found that all accept. Draws.
bool Decide(AutoPlan& plan, Segment& match, const Wish& wish);

}  // namespace grapplemont
