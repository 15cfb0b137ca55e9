#include "booking/screens/screenmatchstep.h"

#include <algorithm>

#include "booking/grievances.h"
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
  std::string price;
  if (WhyNot(draft, step).empty()) {
    refusals = RefusalsAt(world(), draft, step);
    // Where a purpose follows, its step tells the price.
    if (step == kResultStep && PurposesOf(draft.Style).empty())
      price = HeldAgainstText(world(), draft);
  }
  std::string text;
  for (std::size_t i = 0; i < std::min(refusals.size(), kShown); ++i)
    text += refusals[i].Words + "\n";
  if (refusals.size() > kShown)
    text += "and " + std::to_string(refusals.size() - kShown) + " more.\n";
  if (refusals.empty()) text = price.empty() ? "Nobody objects." : "Nobody objects aloud; ";
  if (!refusals.empty() && !price.empty()) text += "If you insist, ";
  if (!price.empty()) text += price + ".";
  if (text.back() == '\n') text.pop_back();
  txtsay.Text = text;
  txtsay.Colour = refusals.empty() && price.empty() ? ui::Tone::Muted : ui::Tone::Amber;
}

}  // namespace grapplemont
