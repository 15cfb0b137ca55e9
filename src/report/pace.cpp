#include "report/pace.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "records/segments.h"
#include "report/pasttold.h"
#include "report/ring.h"
#include "report/stages.h"

namespace grapplemont {

namespace {

constexpr int kMiddle = 50;
constexpr int kForLast = 6, kForTitle = 4, kForEvent = 3, kForCareer = 10;
constexpr int kPerHeat = 14, kPerOver = 8;
constexpr double kPerSpread = 27, kMostSpreads = 2, kLeastSpread = 4;
/// Where fewer have been rated, so many are made up, around what the roster's mean lets expect of
/// those who are booked.
constexpr int kBoutsToJudgeBy = 60, kFewBouts = 12, kMadeUp = 6, kMadeUpSpread = 8;
constexpr int kBookedAbove = 15;

/// What a match has to matter for more than its row, and how its room grows from there.
constexpr int kMattersFrom = 51, kRoomFrom = 42, kSaysLittle = 50, kSaysMuch = 57;
constexpr double kRoomPerPoint = 2.1;
constexpr double kMostPerStep = 3, kLeastPerStep = 0.05;
constexpr int kShort = 9;     // steps more that a row of few may have
constexpr int kLongRow = 18;  // a step beyond it counts twice: a tag match is long by itself
constexpr int kBig = 72, kHuge = 86;

constexpr double kEarly = 0.3, kLate = 0.7;
constexpr int kMostAtOnce = 4, kMostOfAKind = 3;
/// Moves that make a momentum if no answer came, and moves that use somebody up.
constexpr int kMomentum = 2, kSpent = 4;
constexpr int kMostCrowds = 1;  // sentences about the hall in a match; one or two more in big ones
constexpr int kAlike = 8;       // of Over

/// Of the player's roster; 0 for an empty one.
int MeanOver(const World& world) {
  int all = 0, sum = 0;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid()) {
      ++all;
      sum += worker.Over;
    }
  return all == 0 ? 0 : sum / all;
}

/// How the player's last matches were rated.
struct Usual {
  double Mean = kMiddle, Spread = 10;
};
Usual UsualRating(const World& world) {
  const auto& bouts = world.Bouts();
  const int first = std::max(1, bouts.Count() - kBoutsToJudgeBy + 1);
  const int held = bouts.Count() - first + 1, madeUp = held < kFewBouts ? kMadeUp : 0;
  const int over = madeUp == 0 ? 0 : MeanOver(world);
  const double middle = over == 0 ? kMiddle : over + kBookedAbove, count = held + madeUp;
  double sum = madeUp * middle;
  double squares = madeUp * (middle * middle + kMadeUpSpread * kMadeUpSpread);
  for (int number = first; number <= bouts.Count(); ++number) {
    const double rating = bouts[number].Rating;
    sum += rating;
    squares += rating * rating;
  }
  const double mean = sum / count;
  return {mean, std::max(kLeastSpread, std::sqrt(std::max(0.0, squares / count - mean * mean)))};
}

/// How far the people of a match stand above the roster's mean.
int AboveTheRest(const World& world, const std::vector<int>& people) {
  int here = 0, over = 0;
  for (const int uid : people)
    if (const Worker* worker = world.FindWorker(uid)) {
      ++here;
      over += worker->Over;
    }
  const int mean = MeanOver(world);
  return mean == 0 || here == 0 ? 0 : over / here - mean;
}

/// As popular as each other, and not one cheered and one booed.
bool AreLikedAlike(const Worker& one, const Worker& two) {
  const bool areApart =
      one.Disposition != two.Disposition && one.Disposition != "T" && two.Disposition != "T";
  return !areApart && std::abs(one.Over - two.Over) <= kAlike;
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
  if (teller.IsOurs()) points += AboveTheRest(teller.world, PeopleOf(segment)) / kPerOver;
  if (std::any_of(teller.Told.begin(), teller.Told.end(),
                  [](const PastFact& fact) { return fact.Weight >= kOnceInACareer; }))
    points += kForCareer;
  if (scene.Overall != kUnrated) {
    const Usual usual = teller.IsOurs() ? UsualRating(teller.world) : Usual{};
    const double above = (scene.Overall - usual.Mean) / usual.Spread;
    points += static_cast<int>(std::clamp(above, -kMostSpreads, kMostSpreads) * kPerSpread);
  }
  return std::clamp(points, 0, 100);
}

void Pace::Open(Teller& teller) {
  importance_ = ImportanceOf(teller);
  isOpen_ = true;
  if (importance_ < kMattersFrom) return;
  crowds_ = kMostCrowds + (importance_ >= kBig) + (importance_ >= kHuge);
  units_ = static_cast<int>((importance_ - kRoomFrom) * kRoomPerPoint);
  teller.Paragraph();
  Say(teller, kWalkIn);
  if (!teller.cast.Thing(Item::Title).empty() && !teller.cast.Of('c').Empty())
    Say(teller, kTitleAir);
  for (const int more : {kBig, kHuge})
    if (importance_ >= more) Say(teller, kWalkIn);
}

void Pace::Begin(int steps, bool isSquash) {
  steps_ = std::max(1, steps);
  at_ = falls_ = 0;
  due_ = 0;
  if (!Matters()) return;
  // What is over at once has no time for looks around.
  const double most = isSquash ? 1 : kMostPerStep + static_cast<double>(kShort) / steps_;
  const int room = units_ - steps_ - std::max(0, steps_ - kLongRow);
  rate_ = std::clamp(static_cast<double>(room) / steps_, kLeastPerStep, most);
  units_ = std::max(1, units_ - static_cast<int>(steps_ * (1 + rate_)));
}

void Pace::Say(Teller& teller, int beat) {
  teller.Say(Family::Interlude, beat);
  last_ = beat;
  ++told_[static_cast<std::size_t>(beat)];
  crowds_ -= beat >= kLoud && beat <= kQuiet;
}

void Pace::Before(Teller& teller, char step, bool isSaid) {
  if (!Matters() || step != 'N' || at_ == 0) return;
  due_ -= 1;
  if (!isSaid) Say(teller, kLead);
}

void Pace::After(Teller& teller, char step, bool isSaid) {
  ++at_;
  if (!Matters()) return;
  due_ += rate_;
  if (isSaid || step == 'N') due_ -= 1;
  if (step == 'N') {
    ++falls_;
    if (!isSaid) Say(teller, kGasp);
    return;
  }
  for (int said = isSaid ? 1 : 0; due_ >= 1 && said < kMostAtOnce; ++said) {
    const int beat = Choose(teller, step, isSaid);
    if (beat < 0) return;
    due_ -= 1;
    Say(teller, beat);
  }
}

/// What the hall does, by its figure; it takes sides where it likes both alike.
int Pace::CrowdBeat(Teller& teller) const {
  const int crowd = teller.scene.Crowd;
  if (crowd == kUnrated) return -1;
  if (crowd <= kColdUpTo) return kQuiet;
  const Person *a = teller.cast.First('a'), *d = teller.cast.First('d');
  const Worker* one = a ? teller.world.FindWorker(a->Uid) : nullptr;
  const Worker* two = d ? teller.world.FindWorker(d->Uid) : nullptr;
  if (teller.IsOurs() && one && two && AreLikedAlike(*one, *two) && crowds_ == kMostCrowds)
    return kDivided;
  return crowd > kWarmUpTo ? kLoud : kSplit;
}

bool Pace::IsToWake(const Teller& teller) const {
  const int crowd = teller.scene.Crowd;
  const bool hasSeen = falls_ > 0 || told_[kHope] > 0;
  return hasSeen && crowd > kColdUpTo && crowd <= kWarmUpTo && told_[kWakes] == 0;
}

/// One that is true of how the match stands, and not of the same kind as the one before.
int Pace::Choose(Teller& teller, char step, bool isSaid) const {
  constexpr std::string_view kHard = "CDXLWKS", kNothingToSay = "TRP";
  if (kNothingToSay.find(step) != std::string_view::npos) return -1;
  const double part = static_cast<double>(at_) / steps_;
  const Person *a = teller.cast.First('a'), *d = teller.cast.First('d');
  const bool isHard = kHard.find(step) != std::string_view::npos, isTurned = step == '#';
  const bool isFree = teller.Under != Footing::Held, isLate = part > kLate;
  // Nothing but a look at who is covered next comes between, and a hold is not let go of.
  const bool hasRoom = isFree && !teller.IsCoverNext;
  Beats fits;
  if (IsToWake(teller))
    fits.push_back(kWakes);
  else if (const int beat = CrowdBeat(teller); beat >= 0 && crowds_ > 0 && told_[kWakes] == 0)
    fits.push_back(beat);
  // Nobody feels out who is or was being beaten, or who has just been covered.
  const bool isEven = d && std::max(d->Trouble, a ? a->Trouble : 0) < kMomentum && step != '2';
  if (part < kEarly && !isHard && hasRoom && isEven && told_[kHope] == 0) fits.push_back(kFeeling);
  // Who leads or has come back is not said twice.
  if (isTurned && a && a->Trouble >= kMomentum && !isLate && isFree && !isSaid)
    fits.push_back(kHope);
  if (!isTurned && d && d->Trouble >= kMomentum && hasRoom && !isSaid) fits.push_back(kInControl);
  if (isHard && isFree && d && d->Taken >= kMomentum) fits.push_back(kHurting);
  if (isLate && a && (falls_ > 0 || a->Taken >= kSpent) && hasRoom) fits.push_back(kDesperate);
  if (isLate && !isTurned && hasRoom && a && d && std::min(a->Taken, d->Taken) >= kMomentum)
    fits.push_back(kDoubt);
  std::erase(fits, last_);
  // What the match has said least of comes first, and nothing over and over.
  int least = kMostOfAKind;
  const auto told = [&](int beat) { return told_[static_cast<std::size_t>(beat)]; };
  for (const int beat : fits) least = std::min(least, told(beat));
  std::erase_if(fits, [&](int beat) { return told(beat) > least || told(beat) >= kMostOfAKind; });
  return fits.empty() ? -1 : teller.OneOf(fits);
}

bool Pace::SaysLittle() const {
  return importance_ < kSaysLittle;
}

LineWish Pace::Wish() const {
  if (!isOpen_) return LineWish::Any;
  if (SaysLittle()) return LineWish::Short;
  return importance_ >= kSaysMuch && steps_ <= kLongRow ? LineWish::Long : LineWish::Any;
}

void Pace::HoldBreath(Teller& teller) {
  if (Matters()) Say(teller, kHeldBreath);
}

void Pace::AfterBell(Teller& teller) {
  // Nobody looks back on what was over at once.
  const bool isBrief = steps_ > 0 && steps_ <= static_cast<int>(kSquashSteps);
  if (!Matters() || isBrief || teller.cast.Of('w').Empty()) return;
  teller.Paragraph();
  Say(teller, kAfterBell);
  if (importance_ >= kBig) Say(teller, kAfterBell);
}

}  // namespace grapplemont
