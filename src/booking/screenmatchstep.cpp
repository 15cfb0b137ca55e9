#include "booking/screenmatchstep.h"

#include "booking/refusals.h"

namespace grapplemont {

namespace {

std::string WhyNot(const Segment& draft, Step step) {
  switch (step) {
    case kPeopleStep:
      return WhyNotPeople(draft);
    case kResultStep:
      return WhyNotResult(draft);
    case kFinishStep:
      return WhyNotFinish(draft);
    case kAftermathStep:
      return WhyNotAftermath(draft);
    default:
      return {};
  }
}

}  // namespace

bool MatchStepScreen::Accept(const Segment& draft, Step step) {
  if (const std::string why = WhyNot(draft, step); !why.empty()) return Fail(why);
  for (const Refusal& refusal : RefusalsAt(world(), draft, step))
    if (!IsOverruled(refusal)) return false;
  buffer() = draft;
  return true;
}

bool MatchStepScreen::IsOverruled(const Refusal& refusal) {
  desk().Say("Refusal!", refusal.Words);
  if (refusal.IsFinal) return false;
  if (refusal.Veto.empty()) return desk().Ask("Continue?", "Contine Anyway?", ui::Default::No);
  desk().Say("Creative Control", refusal.Veto);
  return false;
}

void MatchStepScreen::ShowObjections(const Segment& draft, Step step) {
  using Style = ui::Report::Style;
  std::vector<ui::Report::Paragraph> lines;
  if (WhyNot(draft, step).empty())
    for (const Refusal& refusal : RefusalsAt(world(), draft, step)) {
      lines.push_back({Style::Body, refusal.Words});
      if (!refusal.Veto.empty()) lines.push_back({Style::Muted, refusal.Veto});
    }
  if (lines.empty()) lines.push_back({Style::Muted, "Nobody objects."});
  txtsay.Write(std::move(lines));
}

}  // namespace grapplemont
