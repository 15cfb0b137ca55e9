#include "report/drama.h"

#include <algorithm>
#include <iterator>

namespace grapplemont {

namespace {

constexpr int kDeep = 4;    // moves taken without an answer
constexpr int kWorked = 2;  // moves on one limb

}  // namespace

bool Drama::Before(char step) {
  // Whoever suffers is about to turn it.
  const Person* defender = teller_.cast.First('d');
  if (step == '#') troubleBefore_ = defender ? defender->Trouble : 0;
  // Somebody has to count it, however short the match is told.
  if (isRefereeDown_ && (step == '2' || step == 'N')) {
    isRefereeDown_ = false;
    return teller_.Say(Family::Beat, kRefereeBack);
  }
  return step == 'N' && falls_ > 0 && !teller_.Pace.SaysLittle() &&
         teller_.Say(Family::Beat, kFallLead);
}

bool Drama::After(char step) {
  if (step == 'R') isRefereeDown_ = true;
  if (teller_.Pace.SaysLittle()) return false;
  if (step == 'N' && ++falls_ > 1)
    return teller_.Say(Family::Beat, falls_ == 2 ? kFallReaction : kFallDoubt);
  if (step == '#' && troubleBefore_ >= kDeep && !hasComeBack_) {
    hasComeBack_ = true;
    return teller_.Say(Family::Beat, kComeback);
  }
  const Person* defender = teller_.cast.First('d');
  const bool isMove = step >= 'A' && step <= 'E';
  if (isMove && defender && defender->Trouble == kDeep && !hasBeenInTrouble_) {
    hasBeenInTrouble_ = true;
    return teller_.Say(Family::Beat, kInTrouble);
  }
  return false;
}

void TellLimb(Teller& teller) {
  const Person* loser = teller.cast.First('l');
  if (!loser || teller.cast.First('d') != loser) return;
  const auto most = std::max_element(std::begin(loser->Limbs), std::end(loser->Limbs));
  if (*most >= kWorked)
    teller.Say(Family::Beat, kLegGoes + static_cast<int>(most - std::begin(loser->Limbs)));
}

}  // namespace grapplemont
