#include "booking/wizard/foresight.h"

#include <algorithm>
#include <utility>

#include "booking/wizard/casting.h"
#include "booking/wizard/interviews.h"
#include "booking/wizard/matchrules.h"
#include "booking/wizard/objections.h"
#include "booking/wizard/offers.h"
#include "booking/wizard/refusals.h"
#include "booking/wizard/roster.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

/// So many are named with what it costs them; beyond it they are counted.
constexpr std::size_t kNamed = 3;
/// Under this condition people are hurt twice as easily.
constexpr int kFragile = 40;

std::string Number(std::ptrdiff_t number) {
  return std::to_string(number);
}

int FirstOr(const std::vector<int>& offered, int code) {
  return offered.empty() ? code : offered.front();
}
int LastOr(const std::vector<int>& offered, int code) {
  return offered.empty() ? code : offered.back();
}

std::optional<Segment> ForeseenMatch(const World& world, Segment match) {
  const std::vector<int> people = PeopleOf(match);
  if (people.empty() || std::ssize(people) != EntrantsOf(match)) return {};
  if (!WhyNotLeft(match, kPeopleStep).empty()) return {};
  if (!HasResult(match)) {
    const int winner = ResultCandidates(match).front();
    StoreResult(match, winner, SuggestedLosers(match, winner));
  }
  if (!WhyNotLeft(match, kResultStep).empty()) return {};
  if (match.Finish == 0 && !FinishesOf(match.Style).empty())
    match.Finish = FirstOr(OfferedFinishes(world, match), 0);
  if (match.Aftermath == 0 && !AftermathsOf(match.Style).empty())
    match.Aftermath = LastOr(OfferedAftermaths(world, match), 0);
  if (match.Purpose == 0 && !PurposesOf(match.Style).empty())
    match.Purpose = LastOr(OfferedPurposes(world, match), 0);
  const bool holds =
      WhyNotLeft(match, kFinishStep).empty() && WhyNotLeft(match, kAftermathStep).empty();
  return holds ? std::optional(match) : std::nullopt;
}

std::optional<Segment> ForeseenTalk(const World& world, Segment talk) {
  if (talk.Style == 0 || !WhyNotSpeakers(world, talk).empty()) return {};
  if (!WhyNotTargets(talk).empty()) return {};
  if (talk.Purpose == 0) talk.Purpose = kTalkNone;
  return talk;
}

std::string StandsAt(const World& world, const std::vector<int>& side) {
  std::string text = SideText(world, side) + ": Over ";
  std::string condition;
  bool first = true;
  for (const int uid : side) {
    const Worker* worker = world.FindWorker(uid);
    if (!worker) continue;
    text += (first ? "" : " and ") + Number(worker->Over);
    condition += (first ? "" : " and ") + Number(worker->Condition);
    first = false;
  }
  return text + ", condition " + condition;
}

std::vector<std::string> SidesSoFar(const World& world, const Segment& match) {
  if (match.Style == kSpecial) return {Number(std::ssize(PeopleOf(match))) + " entered"};
  std::vector<std::string> lines;
  for (std::vector<int> side : SidesOf(match)) {
    std::erase(side, 0);
    if (!side.empty()) lines.push_back(StandsAt(world, side));
  }
  return lines;
}

std::string FallOf(const World& world, int uid, int by) {
  const Worker* worker = world.FindWorker(uid);
  if (!worker) return {};
  const int morale = worker->Morale;
  return worker->Name + " will hold it against you: morale -" + Number(by) + ", " + Number(morale) +
         " to " + Number(std::max(0, morale - by)) + ".";
}

void TellWhoIsFragile(const World& world, const Segment& match, std::string& text) {
  if (match.Kind != kMatch) return;
  for (const int uid : PeopleOf(match))
    if (const Worker* worker = world.FindWorker(uid); worker && worker->Condition < kFragile)
      text += "\n" + worker->Name + " may be hurt, at condition " + Number(worker->Condition) + ".";
}

}  // namespace

std::optional<Segment> Foreseen(const World& world, const Segment& segment,
                                const BookingView& view) {
  if (segment.Kind == kMatch) return ForeseenMatch(world, segment);
  if (segment.Kind == kInterview) return ForeseenTalk(world, segment);
  const bool cast = segment.Kind == kAngle && !PeopleOf(segment).empty() &&
                    WhyNotCast(world, segment, view).empty();
  return cast ? std::optional(segment) : std::nullopt;
}

std::optional<Segment> ForeseenWithOthers(const World& world, Segment match,
                                          const BookingView& view) {
  const std::vector<int> chosen = PeopleOf(match);
  if (match.Kind != kMatch || chosen.empty()) return {};
  std::vector<const Worker*> others = EligibleRoster(world, view);
  std::erase_if(others, [&](const Worker* worker) {
    return std::ranges::count(chosen, int(worker->Uid)) > 0;
  });
  SortByOver(others);
  auto next = others.begin();
  for (std::size_t place = 0; std::cmp_less(place, EntrantsOf(match)); ++place) {
    if (match.Worker[place] != 0) continue;
    if (next == others.end()) return {};
    match.Worker[place] = (*next++)->Uid;
  }
  return Foreseen(world, match, view);
}

PriceTold TellPrice(const World& world, const Segment& segment, const Segment& paid) {
  if (segment.Kind == kMatch && !HasResult(segment)) return {"The result decides it.", true};
  const std::vector<Refusal> refusals = RefusalsOf(world, segment);
  for (const Refusal& refusal : refusals)
    if (refusal.IsFinal || !refusal.Veto.empty())
      return {"It cannot be booked like this.\n" + refusal.Words +
                  (refusal.Veto.empty() ? "" : "\n" + refusal.Veto),
              false};
  const PriceOfBooking price = PriceOf(world, segment, paid);
  PriceTold told{price.empty() ? "Nobody holds this booking against you." : "", price.empty()};
  if (!price.empty() && refusals.empty()) told.Text = "Nobody objects aloud.\n";
  if (price.size() > kNamed) {
    told.Text += HeldAgainstText(price) + ".";
  } else {
    std::string lines;
    for (const auto& [uid, by] : price)
      lines += (lines.empty() ? "" : "\n") + FallOf(world, uid, by);
    told.Text += lines;
  }
  TellWhoIsFragile(world, segment, told.Text);
  return told;
}

std::vector<std::string> SoFar(const World& world, const Segment& segment) {
  if (segment.Kind == kMatch) return SidesSoFar(world, segment);
  std::vector<std::string> lines;
  for (const int uid : PeopleOf(segment)) lines.push_back(StandsAt(world, {uid}));
  return lines;
}

}  // namespace grapplemont
