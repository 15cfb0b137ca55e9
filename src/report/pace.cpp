#include "report/pace.h"

#include <algorithm>
#include <array>
#include <vector>

#include "records/segments.h"
#include "report/past.h"
#include "report/stages.h"

namespace grapplemont {

namespace {

constexpr int kMiddle = 50;
constexpr int kForLast = 14, kForTitle = 10, kForEvent = 5, kForCareer = 15;
constexpr int kPerHeat = 10, kPerOver = 4, kMostSwing = 40;
constexpr int kBoutsToJudgeBy = 60;

/// What a match has to matter for more than its row, and how its room grows from there.
constexpr int kMattersFrom = 55, kRoomFrom = 44;
constexpr double kRoomPerPoint = 1.35;
constexpr double kMostPerStep = 2, kLeastPerStep = 0.12;
constexpr int kShort = 4;  // steps more that a row of few may have
constexpr int kBig = 72, kHuge = 86;

constexpr int kLoudCrowd = 65, kSplitCrowd = 40;
constexpr double kEarly = 0.3, kLate = 0.7;

/// The mean rating of the player's last matches; the middle while there are few.
int UsualRating(const World& world) {
  const auto& bouts = world.Bouts();
  const int first = std::max(1, bouts.Count() - kBoutsToJudgeBy + 1);
  if (bouts.Count() - first < 5) return kMiddle;
  int sum = 0;
  for (int number = first; number <= bouts.Count(); ++number) sum += bouts[number].Rating;
  return sum / (bouts.Count() - first + 1);
}

/// How far the people of a match stand above the roster's mean.
int AboveTheRest(const World& world, const std::vector<int>& people) {
  int all = 0, sum = 0, here = 0, over = 0;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid()) {
      ++all;
      sum += worker.Over;
    }
  for (const int uid : people)
    if (const Worker* worker = world.FindWorker(uid)) {
      ++here;
      over += worker->Over;
    }
  return all == 0 || here == 0 ? 0 : over / here - sum / all;
}

using Beats = std::vector<int>;

}  // namespace

int ImportanceOf(Teller& teller) {
  const Segment& segment = teller.segment;
  const Scene& scene = teller.scene;
  int points = kMiddle;
  if (scene.IsLast) points += kForLast;
  if (!teller.cast.Thing(Item::Title).empty()) points += kForTitle;
  if (scene.IsEvent) points += kForEvent;
  if (const FeudOfSides feud = FeudTold(teller); feud.Between)
    points += feud.Between->Heat / kPerHeat;
  points += AboveTheRest(teller.world, PeopleOf(segment)) / kPerOver;
  if (std::any_of(teller.Told.begin(), teller.Told.end(),
                  [](const PastFact& fact) { return fact.Weight >= kOnceInACareer; }))
    points += kForCareer;
  if (scene.Overall != kUnrated)
    points += std::clamp((scene.Overall - UsualRating(teller.world)) * 2, -kMostSwing, kMostSwing);
  return std::clamp(points, 0, 100);
}

void Pace::Open(Teller& teller) {
  importance_ = ImportanceOf(teller);
  if (importance_ < kMattersFrom) return;
  units_ = static_cast<int>((importance_ - kRoomFrom) * kRoomPerPoint);
  teller.Paragraph();
  Say(teller, kWalkIn);
  if (!teller.cast.Thing(Item::Title).empty() && !teller.cast.Of('c').Empty())
    Say(teller, kTitleAir);
  for (const int more : {kBig, kHuge})
    if (importance_ >= more) Say(teller, kWalkIn);
}

void Pace::Begin(int steps) {
  steps_ = std::max(1, steps);
  at_ = 0;
  due_ = 0;
  if (!Matters()) return;
  const double most = kMostPerStep + static_cast<double>(kShort) / steps_;
  rate_ = std::clamp(static_cast<double>(units_ - steps_) / steps_, kLeastPerStep, most);
  units_ = std::max(1, units_ - static_cast<int>(steps_ * (1 + rate_)));
}

void Pace::Say(Teller& teller, int beat) {
  teller.Say(Family::Interlude, beat);
  last_ = beat;
}

void Pace::Before(Teller& teller, char step) {
  if (!Matters() || step != 'N' || at_ == 0) return;
  due_ -= 1;
  Say(teller, kLead);
}

void Pace::After(Teller& teller, char step) {
  ++at_;
  if (!Matters()) return;
  due_ += rate_;
  if (step == 'N') {
    due_ -= 1;
    return Say(teller, kGasp);
  }
  for (; due_ >= 1; due_ -= 1)
    if (const int beat = Choose(teller, step); beat >= 0) Say(teller, beat);
}

/// One that fits what has just been told, and is not of the same kind as the one before.
int Pace::Choose(Teller& teller, char step) const {
  constexpr std::string_view kHard = "CDXLWKS", kSoft = "ABE", kNothingToSay = "TRP";
  const double part = static_cast<double>(at_) / steps_;
  Beats fits;
  if (kNothingToSay.find(step) != std::string_view::npos) return -1;
  if (const int crowd = teller.scene.Crowd; crowd != kUnrated)
    fits.push_back(crowd >= kLoudCrowd ? kLoud : crowd >= kSplitCrowd ? kSplit : kQuiet);
  const bool hard = kHard.find(step) != std::string_view::npos;
  if (step == '#') fits.push_back(part > kLate ? kDesperate : kHope);
  if (part < kEarly && !hard) fits.push_back(kFeeling);
  if (part >= kEarly && kSoft.find(step) != std::string_view::npos) fits.push_back(kInControl);
  if (hard) fits.insert(fits.end(), {kHurting, kInControl});
  if (part > kLate && step != '#') fits.insert(fits.end(), {kDoubt, kDesperate});
  std::erase(fits, last_);
  return fits.empty() ? -1 : teller.OneOf(fits);
}

void Pace::HoldBreath(Teller& teller) {
  if (Matters()) Say(teller, kHeldBreath);
}

void Pace::AfterBell(Teller& teller) {
  if (!Matters() || teller.cast.Of('w').Empty()) return;
  teller.Paragraph();
  Say(teller, kAfterBell);
  if (importance_ >= kHuge) Say(teller, kAfterBell);
}

}  // namespace grapplemont
