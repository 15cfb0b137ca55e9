#include "futures/futures.h"

#include <algorithm>

#include "business/past.h"
#include "futures/habits.h"
#include "records/fields/fields.h"
#include "records/houserules.h"
#include "records/modWresCheck.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

constexpr int kWeekly = 190;     // days of a plan that is looked at each week
constexpr int kLatelyDays = 31;  // a show's rating counts as long
constexpr int kStreams = 3;      // of chance, in a world

Glimpse GlimpseOf(const World& world, int promotionUid) {
  const Promotion* promotion = world.FindPromotion(promotionUid);
  Glimpse glimpse;
  glimpse.Stands = promotion && !(promotion->Name == kToBeDeleted);
  if (!glimpse.Stands) return glimpse;
  glimpse.Size = promotion->Size;
  glimpse.Image = promotion->Image;
  glimpse.Money = promotion->Money;
  const HistoryEntry* show =
      LastShowOf(world, promotionUid, world.Today() - std::chrono::days{kLatelyDays});
  if (show && !show->CalledOff) glimpse.Rating = show->Rating;
  int workers = 0, morale = 0;
  for (const Worker& worker : world.Workers()) {
    if (worker.Employer != promotionUid) continue;
    ++workers;
    morale += worker.Morale;
  }
  if (workers > 0) glimpse.Morale = (morale + workers / 2) / workers;
  return glimpse;
}

/// A number that is the same whenever this game's morning is looked at.
std::uint64_t SeedOf(const World& world) {
  constexpr int kMost = 1 << 30;
  SeededDraws fate =
      world.Fate("futures", {static_cast<int>(world.Today().time_since_epoch().count())});
  const auto high = static_cast<std::uint64_t>(fate.Draw(kMost));
  return high << 30 | static_cast<std::uint64_t>(fate.Draw(kMost));
}

void GiveChance(World& world, std::uint64_t seed) {
  world.SetChance(std::make_unique<SeededDraws>(seed));
  world.ExchangeProse(std::make_unique<SeededDraws>(seed + 1));
  world.SetLife(std::make_unique<SeededDraws>(seed + 2));
}

}  // namespace

FirstMorning::FirstMorning(const World& world)
    : On(world.Today()), Promotion(world.PlayerUid()), Now(GlimpseOf(world, Promotion)) {
  for (const grapplemont::Promotion& each : world.Promotions())
    if (!(each.Name == kToBeDeleted))
      Promotions.push_back({each.Uid, each.Name.Str(), each.Initials.Str(), each.Size});
  for (const Title& title : world.Titles())
    if (title.Owner > 0 && world.FindPromotion(title.Owner))
      Titles.push_back({title.Name.Str(), title.Owner, title.Image, ChampionText(world, title)});
}

std::string WhyNoFutures(const World& world) {
  if (!world.HasGame() || !world.FindPromotion(world.PlayerUid())) return "No game is played here.";
  return HasEnded(world.Game()) ? "Your career is over." : "";
}

std::string HabitsText(const World& world, const std::string& also) {
  const bool isByHand = Holds(world, HouseRule::NoAutoBooker);
  return "Assumed: " + (also.empty() ? "" : also + "; ") + "the auto booker books every show" +
         (isByHand ? " (in your game a rule of the house forbids it, but nobody books by hand here)"
                   : "") +
         ", the office runs by habit (sponsors, contracts, television, spending), rivals live as "
         "they always do, and you take another job if you are dismissed. Nothing here changes "
         "your game.";
}

std::vector<Day> DaysLookedAt(Day from, int days) {
  std::vector<Day> looked{from};
  const Day last = from + std::chrono::days{days};
  for (Day day = from + std::chrono::days{1}; day < last; day += std::chrono::days{1})
    if (days <= kWeekly ? (day - from).count() % 7 == 0 : IsFirstOfMonth(day))
      looked.push_back(day);
  looked.push_back(last);
  return looked;
}

Futures::Futures(const World& now, std::vector<Answer> answers, const FuturePlan& plan, int threads)
    : plan_(plan),
      answers_(answers.empty() ? std::vector<Answer>(1) : std::move(answers)),
      morning_(now),
      days_(DaysLookedAt(now.Today(), plan.Days)),
      seed_(SeedOf(now)),
      lives_(static_cast<std::size_t>(plan.Worlds)) {
  now_.CopyFrom(now);
  jobs_ = std::make_unique<Jobs>(plan_.Worlds, threads, [this]() -> Jobs::Work {
    // A thread's one world takes the place of the last in the same memory.
    return [this, copy = std::make_shared<World>()](int number, const std::stop_token& stop) {
      Play(*copy, number, stop);
    };
  });
}

namespace {

/// The fault of a world under any answer; empty for none.
std::string FaultOf(const std::vector<WorldLife>& world) {
  const auto found =
      std::ranges::find_if(world, [](const WorldLife& life) { return !life.Fault.empty(); });
  return found == world.end() ? std::string() : found->Fault;
}

}  // namespace

std::vector<std::vector<WorldLife>> Futures::Lives() const {
  std::vector<std::vector<WorldLife>> lives(answers_.size());
  const std::lock_guard hold(lock_);
  for (const auto& world : lives_) {
    if (!world || !FaultOf(*world).empty()) continue;
    for (std::size_t answer = 0; answer < lives.size(); ++answer)
      lives[answer].push_back((*world)[answer]);
  }
  return lives;
}

std::vector<std::string> Futures::Faults() const {
  std::vector<std::string> faults;
  const std::lock_guard hold(lock_);
  for (const auto& world : lives_)
    if (world && !FaultOf(*world).empty()) faults.push_back(FaultOf(*world));
  return faults;
}

void Futures::Play(World& copy, int number, const std::stop_token& stop) {
  const std::uint64_t seed = seed_ + static_cast<std::uint64_t>(kStreams * number);
  std::vector<WorldLife> lives;
  for (const Answer& answer : answers_) {
    copy.CopyFrom(now_);
    copy.Session.CountsNoPast = true;
    GiveChance(copy, seed);
    lives.push_back(Live(copy, answer, stop));
  }
  if (stop.stop_requested()) return;
  const std::lock_guard hold(lock_);
  lives_[static_cast<std::size_t>(number - 1)] = std::move(lives);
}

WorldLife Futures::Live(World& copy, const Answer& answer, const std::stop_token& stop) {
  constexpr Habits kHabits{Shows::Auto, AfterTheEnd::AnotherJob, Prose::Skipped};
  WorldLife life;
  const auto keep = [&] {
    if (answer.Keep && copy.PlayerUid() == morning_.Promotion) answer.Keep(copy);
  };
  const auto dayPassed = [&](int) {
    keep();
    if (copy.Today() == days_[life.Seen.size()])
      life.Seen.push_back(GlimpseOf(copy, morning_.Promotion));
    return !stop.stop_requested();
  };
  try {
    if (answer.Give) answer.Give(copy);
    keep();
    life.Seen.push_back(GlimpseOf(copy, morning_.Promotion));
    const CareerEnd end = LiveOn(copy, plan_.Days, kHabits, dayPassed);
    if (!end.Reasons.empty()) life.EndCode = end.Reasons.front().first;
  } catch (const FieldOverflow& fault) {
    life.Fault = copy.Explain(fault);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& fault) {
    life.Fault = fault.what();
  }
  return LastOf(copy, std::move(life));
}

WorldLife Futures::LastOf(const World& copy, WorldLife life) const {
  // Whoever finds no other job leaves the world where it is.
  life.Seen.resize(days_.size(), life.Seen.empty() ? Glimpse() : life.Seen.back());
  for (const grapplemont::Promotion& promotion : copy.Promotions())
    if (!(promotion.Name == kToBeDeleted)) life.Sizes[promotion.Uid] = promotion.Size;
  for (const FirstTitle& first : morning_.Titles) {
    const auto title = std::ranges::find_if(copy.Titles(), [&](const Title& each) {
      return each.Owner == first.Owner && each.Name == first.Name;
    });
    const bool isHeld = title != copy.Titles().end() && title->Holder != 0;
    life.Champions.push_back(isHeld ? ChampionText(copy, *title) : std::string());
  }
  return life;
}

}  // namespace grapplemont
