#include <algorithm>

#include "records/segments.h"
#include "report/told.h"

namespace grapplemont {

namespace {

bool HasTurnPending(const Teller& teller) {
  const auto& turners = teller.scene.Turners;
  return std::any_of(turners.begin(), turners.end(), [&](int uid) {
    const Worker* worker = teller.world.FindWorker(uid);
    return worker && worker->TurnPending;
  });
}

}  // namespace

void TellInterview(Teller& teller) {
  const Segment& segment = teller.segment;
  if (!FindInterviewStyle(segment.Style)) return;
  const int purpose = segment.Purpose >= kVerbalAttack && segment.Purpose <= kTalkNone
                          ? int(segment.Purpose)
                          : int(kTalkNone);
  teller.Say(Family::TalkOpening, segment.Style);
  teller.Say(Family::Speech, TalkBand(segment.Style, purpose));
  if (purpose == kTalkTurn) {
    teller.cast.Set('t', teller.world, teller.scene.Turners);
    TellTurn(teller);
  }
  teller.Say(Family::TalkClosing, purpose);
}

void TellAngle(Teller& teller) {
  if (HasTurnPending(teller)) teller.cast.Set(Item::Turn, "turn");
  teller.Say(Family::AngleText, teller.segment.Style);
}

}  // namespace grapplemont
