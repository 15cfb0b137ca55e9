#pragma once

#include "report/teller.h"

namespace grapplemont {

/// What a match has come to, said between its steps: near falls that follow each other, trouble and
/// the way out of it. Names whoever the step names.
class Drama {
 public:
  explicit Drama(Teller& teller) : teller_(teller) {}
  /// Before a step is told, with its {a} and {d} set. True when something was said.
  bool Before(char step);
  /// Once it has been told.
  bool After(char step);

 private:
  Teller& teller_;
  int falls_ = 0;          // near falls so far
  int troubleBefore_ = 0;  // of whoever turns it
  bool hasBeenInTrouble_ = false, hasComeBack_ = false, isRefereeDown_ = false;
};

/// The limb of {l} that was worked on gives way, where one was.
void TellLimb(Teller& teller);

}  // namespace grapplemont
