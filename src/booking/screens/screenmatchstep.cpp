#include "booking/screens/screenmatchstep.h"

#include <algorithm>

#include "booking/refusals.h"

namespace grapplemont {

namespace {

/// A battle royal may have many objections; these are read out beforehand.
constexpr std::size_t kShown = 4;

std::string WhyNot(const Segment& draft, MatchStep step) {
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

bool MatchStepScreen::Accept(const Segment& draft, MatchStep step) {
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

void MatchStepScreen::ShowObjections(const Segment& draft, MatchStep step) {
  std::vector<Refusal> refusals;
  if (WhyNot(draft, step).empty()) refusals = RefusalsAt(world(), draft, step);
  std::string text;
  for (std::size_t i = 0; i < std::min(refusals.size(), kShown); ++i)
    text += (i == 0 ? "" : "\n") + refusals[i].Words;
  if (refusals.size() > kShown)
    text += "\nand " + std::to_string(refusals.size() - kShown) + " more.";
  txtsay.Text = refusals.empty() ? "Nobody objects." : text;
  txtsay.Colour = refusals.empty() ? ui::Tone::Muted : ui::Tone::Amber;
}

}  // namespace grapplemont
