#include "rivals/careers.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "records/arithmetic.h"
#include "records/fields/fields.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "roster/postings.h"
#include "show/aftermatch.h"

namespace grapplemont {

namespace {

constexpr std::array<Percent Worker::*, 3> kSkills = {&Worker::Brawl, &Worker::Technical,
                                                      &Worker::Speed};
/// The age at which each of them lets a body down.
constexpr std::array<int, 3> kFadeAges = {tuning::kBrawlersFade, tuning::kTechniciansFade,
                                          tuning::kFlyersFade};

/// The place of the strongest in kSkills.
std::size_t StyleOf(const Worker& worker) {
  const auto strongest = std::ranges::max_element(
      kSkills, [&](auto one, auto other) { return worker.*one < worker.*other; });
  return static_cast<std::size_t>(strongest - kSkills.begin());
}

bool IsOneIn(World& world, int n) {
  return world.Life().Draw(n) == 1;
}

/// The most a quarter adds to the strongest skill.
int PaceOf(const Worker& worker, const Gift& gift) {
  if (worker.Age < gift.BloomsAt) return 1;
  const int pace = gift.Ceiling >= tuning::kGreatGift ? 3 : 2;
  return gift.BloomsAt > 0 ? pace + 1 : pace;
}

void Learn(World& world, Worker& worker, const Gift& gift) {
  if (worker.Employer == 0 && IsOneIn(world, tuning::kFreeMissIn)) return;
  const std::size_t style = StyleOf(worker);
  const int pace = PaceOf(worker, gift);
  for (std::size_t i = 0; i < kSkills.size(); ++i) {
    Percent& skill = worker.*kSkills[i];
    const int ceiling = i == style ? gift.Ceiling : gift.Ceiling * tuning::kSideSkill / 100;
    if (skill < ceiling) skill = std::min(skill + world.Life().Draw(pace + 1) - 1, ceiling);
  }
  if (worker.Charisma < gift.Ceiling && IsOneIn(world, tuning::kTalkLearnedIn))
    worker.Charisma += 1;
}

void Fade(World& world, Worker& worker, int years) {
  for (const auto skill : kSkills) {
    int loss = world.Life().Draw(2) - 1;
    if (years > tuning::kHardYears) loss += world.Life().Draw(2) - 1;
    worker.*skill -= loss;
  }
}

}  // namespace

Gift GiftOf(const World& world, const Worker& worker) {
  SeededDraws fate = world.Fate("gift", {worker.Uid});
  Gift gift;
  gift.Ceiling = tuning::kLeastCeiling;
  for (int i = 0; i < 2; ++i) gift.Ceiling += fate.Draw(tuning::kCeilingDraw);
  gift.LearnsUntil = 27 + fate.Draw(5);
  gift.FadesLate = fate.Draw(5) - 3;
  gift.Star = fate.Draw(2 * tuning::kStar + 1) - tuning::kStar - 1;
  const int story = fate.Draw(tuning::kStoriesIn);
  if (story == 1) {  // a late bloomer
    gift.BloomsAt = 27;
    gift.LearnsUntil += 6;
    gift.Star = std::abs(gift.Star);
  } else if (story == 2) {  // lost promise
    gift.LearnsUntil = 23;
    gift.Star = -std::abs(gift.Star);
  }
  return gift;
}

int FadesFrom(const Worker& worker, const Gift& gift) {
  return kFadeAges[StyleOf(worker)] + gift.FadesLate;
}

namespace {

int YearsPast(const Worker& worker, const Gift& gift) {
  return std::max(0, worker.Age - FadesFrom(worker, gift));
}

}  // namespace

void Practise(World& world, Worker& worker, const Gift& gift) {
  if (worker.Age <= gift.LearnsUntil) {
    if (IsOnRoster(worker)) Learn(world, worker, gift);
  } else if (const int years = YearsPast(worker, gift); years > 0) {
    Fade(world, worker, years);
  }
}

namespace {

/// In fifths: a wrestler lives by the ring and the voice, who only talks by the voice.
int TalentOf(const Worker& worker) {
  if (!IsOnRoster(worker)) return worker.Charisma * tuning::kVoiceAlone;
  return BestSkillOf(worker) * 3 + worker.Charisma * 2;
}

int PlaceBonus(const Worker& worker) {
  return tuning::kPlaceBonus[static_cast<std::size_t>(worker.Position - kMainEvent)];
}

}  // namespace

int DeservedOver(const World& world, const Worker& worker, const Gift& gift) {
  const Promotion* employer = world.FindPromotion(worker.Employer);
  const tuning::Fame& fame =
      employer ? BySize(tuning::kFame, employer->Size) : tuning::kFameOfTheFree;
  int over = TalentOf(worker) * tuning::kTalentCounts / 500 + fame.Bonus + gift.Star;
  if (worker.SuperstarLook) over += tuning::kLookBonus;
  if (IsOnRoster(worker)) {
    over -= tuning::kPastIt * YearsPast(worker, gift);
    if (employer) over += PlaceBonus(worker);
  }
  if (worker.Status != "Nor") over -= tuning::kOutOfSight;
  return std::clamp(over, 0, fame.Most);
}

void DriftOver(World& world, Worker& worker, int deserved) {
  const int gap = deserved - worker.Over;
  const int months = gap > 0 ? tuning::kMonthsToRise : tuning::kMonthsToFade;
  int step = gap / months;
  if (world.Life().Draw(months) <= std::abs(gap % months)) step += gap > 0 ? 1 : -1;
  const int mood = world.Life().Draw(tuning::kFancyIn);
  step += mood == 1 ? 1 : mood == 2 ? -1 : 0;
  const int least = std::min<int>(worker.OverFloor, worker.Over);
  worker.Over = std::max(worker.Over + step, least);
}

void RiskInjury(World& world, Worker& worker) {
  if (!IsOneIn(world, tuning::kHurtIn)) return;
  Draws& life = world.Life();
  const int kind = life.Draw(kInjuryKinds);
  const int months = life.Draw(tuning::kLongestInjury);
  Injure(world, worker, kind, months);
  if (months < tuning::kLongInjury) return;
  for (const auto skill : kSkills) worker.*skill -= life.Draw(tuning::kInjuryMark) - 1;
}

void ComeBack(World& world, Worker& worker) {
  Draws& life = world.Life();
  const int how = life.Draw(3);
  if (how == 1) {
    worker.Over += life.Draw(tuning::kComebackGain);
    worker.Morale += tuning::kComebackMorale;
  } else if (how == 2) {
    worker.*kSkills[StyleOf(worker)] -= life.Draw(tuning::kInjuryMark) - 1;
  }
}

void ChangeSides(World& world, Worker& worker) {
  if (!IsOneIn(world, tuning::kSidesChangedIn)) return;
  const bool isTweener = worker.Disposition == "T";
  if (!isTweener && IsOneIn(world, tuning::kTweenerIn))
    worker.Disposition = "T";
  else if (isTweener)
    worker.Disposition = IsOneIn(world, 2) ? "F" : "H";
  else
    worker.Disposition = worker.Disposition == "F" ? "H" : "F";
  worker.LastTurn = world.Today();
}

namespace {

/// Everybody's quarter begins in a month of their own.
bool IsQuarterOf(const World& world, const Worker& worker) {
  return (worker.Uid + MonthOf(world.Today())) % 3 == 0;
}

void LiveAMonth(World& world, Worker& worker) {
  const bool isEmployed = world.FindPromotion(worker.Employer) != nullptr;
  const bool isQuarter = IsQuarterOf(world, worker);
  // Who works for nobody is seen by few: a look a quarter will do.
  if (!isEmployed && !isQuarter) return;
  const Gift gift = GiftOf(world, worker);
  if (isQuarter) Practise(world, worker, gift);
  DriftOver(world, worker, DeservedOver(world, worker, gift));
  if (!isEmployed) return;
  if (worker.Status == "Inj" && worker.StatusMonths == 1) ComeBack(world, worker);
  if (worker.Status != "Nor" || !IsOnRoster(worker)) return;
  RiskInjury(world, worker);
  ChangeSides(world, worker);
}

}  // namespace

void WorkersCareers(World& world) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == 0 || worker.Employer != world.PlayerUid()) LiveAMonth(world, worker);
}

}  // namespace grapplemont
