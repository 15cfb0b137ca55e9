#include "booking/wizard/earlier.h"

#include <algorithm>

#include "booking/wizard/matchrules.h"
#include "booking/wizard/refusals.h"
#include "booking/wizard/segmentcheck.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

/// Whether the steps from this one on ask the same things of both.
bool AsksAlike(const Segment& a, const Segment& b, int step) {
  return a.Kind == b.Kind && (step <= kStyleStep || a.Style == b.Style);
}

/// What the player has insisted on once need not be asked again.
bool IsAskedAnew(const World& world, const Segment& match, const Segment& earlier, int step) {
  const auto at = static_cast<MatchStep>(step);
  if (step == kTitleStep) {
    const Title* title = FindTitle(world, match.TitleName);
    return title && IsChampionMissing(match, *title) && !IsChampionMissing(earlier, *title);
  }
  const std::vector<Refusal> heard = RefusalsAt(world, earlier, at);
  return std::ranges::any_of(RefusalsAt(world, match, at), [&](const Refusal& refusal) {
    return refusal.IsFinal || !refusal.Veto.empty() ||
           std::ranges::count(heard, refusal.Words, &Refusal::Words) == 0;
  });
}

/// Does the next step as it was done earlier; false, with nothing changed, where it does not hold.
bool Holds(const World& world, Wizard& wizard) {
  if (!AsksAlike(wizard.Buffer, wizard.Earlier, wizard.Step)) return false;
  Segment draft = wizard.Buffer;
  TakeStep(draft, wizard.Earlier, wizard.Step);
  if (!WhyNotAtStep(world, draft, wizard.Step, wizard.View).empty()) return false;
  if (draft.Kind == kMatch && IsAskedAnew(world, draft, wizard.Earlier, wizard.Step)) return false;
  wizard.Buffer = draft;
  return true;
}

}  // namespace

Wizard EditBooking(const Segment& booked, int slot, bool isEvent) {
  Wizard wizard = BeginBooking(slot, isEvent);
  wizard.Buffer = wizard.Paid = booked;
  wizard.Step = StepsOf(booked);
  wizard.SegmentComplete = true;
  return wizard;
}

void JumpTo(Wizard& wizard, int step) {
  if (step < 0 || step >= wizard.Step) return;
  Segment held = wizard.Buffer;
  const bool goesOn = AsksAlike(held, wizard.Earlier, wizard.Step);
  const int steps = goesOn ? std::max(wizard.Step, wizard.EarlierSteps) : wizard.Step;
  for (int later = wizard.Step; later < steps; ++later) TakeStep(held, wizard.Earlier, later);
  while (wizard.Step > step) StepBack(wizard);
  wizard.Earlier = held;
  wizard.EarlierSteps = steps;
}

void KeepWhatHolds(const World& world, Wizard& wizard) {
  while (!wizard.SegmentComplete && wizard.Step < wizard.EarlierSteps && Holds(world, wizard))
    StepDone(wizard);
}

}  // namespace grapplemont
