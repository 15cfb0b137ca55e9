#pragma once

#include <array>

#include "report/family.h"
#include "report/line.h"

namespace grapplemont {

class Teller;

/// How much a match matters here and tonight, 0 to 100: its row, a Title, an Event, heat, who is in
/// it, what a career has once, and how well it went by what this crowd is used to.
int ImportanceOf(Teller& teller);

/// The room that a match gets. One that matters has sentences of its own between the steps of its
/// row, up to three a step and nine more a row, so that a short one has room too; any other is as
/// short as its row.
class Pace {
 public:
  /// Before the bell: sees what the match matters, and says what is in the air.
  void Open(Teller& teller);
  /// A row of so many steps begins; a squash for a Title has words of its own, and few of these.
  void Begin(int steps, bool isSquash = false);
  /// Before and behind a step of it, with its {a} and {d}. `isSaid` where a sentence stands there
  /// already.
  void Before(Teller& teller, char step, bool isSaid);
  void After(Teller& teller, char step, bool isSaid);
  /// The row is through, its end not told.
  void HoldBreath(Teller& teller);
  /// Behind the result.
  void AfterBell(Teller& teller);
  /// The match is worth less than usual: nothing is said beside its row.
  bool SaysLittle() const;
  /// Short lines for such a match, long ones for one that matters a good deal.
  LineWish Wish() const;

 private:
  /// The match has sentences of its own between its steps.
  bool Matters() const { return units_ > 0; }
  void Say(Teller& teller, int beat);
  int CrowdBeat(Teller& teller) const;
  /// A warm crowd has seen something, and has not been told to wake.
  bool IsToWake(const Teller& teller) const;
  int Choose(Teller& teller, char step, bool isSaid) const;

  bool isOpen_ = false;  // Open has been called
  int importance_ = 0;
  int units_ = 0;           // steps and sentences that the whole match is to have
  int steps_ = 0, at_ = 0;  // of the row, and how many are through
  double rate_ = 0, due_ = 0;
  int last_ = -1;
  int falls_ = 0;                              // near falls of the row so far
  std::array<int, kAfterBell + 1> told_ = {};  // how often each kind has been said
  int crowds_ = 0;                             // sentences about the hall still to come
};

}  // namespace grapplemont
