#include "booking/wizard/objections.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "booking/wizard/matchrules.h"
#include "roster/moods.h"

namespace grapplemont {

namespace {

constexpr int kCleanLossGap = 30;
constexpr int kRunInGap = 20;
// Attitude below which losers mind how it happens, and the sum of two.
constexpr int kMindsAlone = 40, kMindTogether = 100;

using Levels = std::map<int, int>;

constexpr int kWomanLevel = 5;
constexpr int kWomanDrawLevel = 4;
constexpr int kFinishLevel = 1;
constexpr int kEndFeudLevel = 4;

/// The highest that applies counts.
void Raise(Levels& levels, const Standing& who, int level) {
  for (const Worker* worker : who.People) {
    int& held = levels[worker->Uid];
    held = std::max(held, level);
  }
}

void RaiseByGaps(Levels& levels, const Standing& who, const Standing& other, Gaps gaps) {
  for (const Gap& gap : gaps)
    if (IsAbove(who, other, gap)) Raise(levels, who, gap.Level);
}

void DrawLevels(Levels& levels, const Standing& first, const Standing& second, int womanRule,
                Gaps gaps) {
  for (const auto& [who, other] : {std::pair(&first, &second), std::pair(&second, &first)}) {
    if (IsManAgainstWoman(*who, *other) && who->Attitude < womanRule)
      Raise(levels, *who, kWomanDrawLevel);
    RaiseByGaps(levels, *who, *other, gaps);
  }
}

/// Losing the last bout of a feud costs more patience when the worker named first wins.
constexpr Gap kEndFeudFirstWins[] = {{25, kAnyAttitude, kEndFeudLevel}, {10, 75, 2}};
constexpr Gap kEndFeudSecondWins[] = {{20, kAnyAttitude, kEndFeudLevel}, {10, 75, 2}};

void EndFeudLevels(Levels& levels, const Segment& match, const Standing& loser,
                   const Standing& winner) {
  if (match.Purpose != purpose1::kEndFeud) return;
  RaiseByGaps(levels, loser, winner,
              match.Winner == match.Worker[0] ? Gaps(kEndFeudFirstWins) : Gaps(kEndFeudSecondWins));
}

/// Faces who are made to act like Heels. The place of who refuses the hand does not matter here.
void CharacterLevels(Levels& levels, int aftermath, const Standing& loser, const Standing& winner) {
  constexpr int kLevel = 2;
  const auto isFace = [](const Standing& who, bool mayTurn) {
    return !who.People.empty() && who.People[0]->Disposition == "F" &&
           !(mayTurn && who.People[0]->TurnPending);
  };
  using namespace after1;
  const bool heelish = aftermath == kCheapShot || aftermath == kSecondRefusesHand;
  if ((aftermath == kLoserRuns && isFace(loser, false)) || (heelish && isFace(loser, true)))
    Raise(levels, loser, kLevel);
  if (aftermath == kFirstRefusesHand && isFace(winner, true)) Raise(levels, winner, kLevel);
}

void SinglesLevels(Levels& levels, const World& world, const Segment& match) {
  if (IsDraw(match))
    return DrawLevels(levels, StandingOf(world, {match.Worker[0]}),
                      StandingOf(world, {match.Worker[1]}), kWomanRule, kSinglesGaps);
  const Standing loser = StandingOf(world, {match.Loser});
  const Standing winner = StandingOf(world, {match.Winner});
  if (IsManAgainstWoman(loser, winner) && loser.Attitude < kWomanRule)
    Raise(levels, loser, kWomanLevel);
  RaiseByGaps(levels, loser, winner, kSinglesGaps);
  if (MindFinish(world, match, loser, winner) ||
      (loser.Attitude < kVengeful && !GivesHeatBack(match.Aftermath)))
    Raise(levels, loser, kFinishLevel);
  EndFeudLevels(levels, match, loser, winner);
  CharacterLevels(levels, match.Aftermath, loser, winner);
}

void TagLevels(Levels& levels, const World& world, const Segment& match) {
  const auto sides = SidesOf(match);
  if (IsDraw(match))
    return DrawLevels(levels, StandingOf(world, sides[0]), StandingOf(world, sides[1]),
                      kTagWomanRule, kTagDrawGaps);
  const Standing winners = StandingOf(world, WinnersOf(match));
  const Standing losers = StandingOf(world, LosersOf(match));
  if (IsManAgainstWoman(losers, winners) && losers.Attitude < kTagWomanRule)
    Raise(levels, losers, kWomanLevel);
  RaiseByGaps(levels, losers, winners, TagGaps(match));
  if (MindFinish(world, match, losers, winners)) Raise(levels, losers, kFinishLevel);
}

void OtherLevels(Levels& levels, const World& world, const Segment& match) {
  const Standing winner = StandingOf(world, {match.Winner});
  if (winner.People.empty()) return;
  // Nobody is patient about a woman who stands high on the card.
  const bool isHigh = winner.People[0]->Position < kOpener;
  for (const int uid : Objectors(match)) {
    const Standing loser = StandingOf(world, {uid});
    if (IsManAgainstWoman(loser, winner) && (isHigh || loser.Attitude < kWomanRule))
      Raise(levels, loser, kWomanLevel);
    RaiseByGaps(levels, loser, winner, kLoserGaps);
  }
}

/// What a level takes from Morale.
int MoralePrice(int level) {
  constexpr int kPrices[] = {0, 5, 10, 15, 25, 50};
  return kPrices[static_cast<std::size_t>(std::clamp(level, 0, 5))];
}

std::string InWords(int number) {
  constexpr const char* kWords[] = {"nobody", "one",   "two",  "three", "four",   "five",  "six",
                                    "seven",  "eight", "nine", "ten",   "eleven", "twelve"};
  const auto at = static_cast<std::size_t>(number);
  return at < std::size(kWords) ? kWords[at] : std::to_string(number);
}

}  // namespace

Standing StandingOf(const World& world, const std::vector<int>& uids) {
  Standing standing;
  for (const int uid : uids) {
    const Worker* worker = world.FindWorker(uid);
    if (!worker) continue;
    standing.People.push_back(worker);
    standing.Over += worker->Over;
    standing.Attitude += worker->Attitude;
  }
  return standing;
}

bool GivesHeatBack(int aftermath) {
  constexpr int kGives[] = {after1::kAttacksReferee, after1::kTantrum,     after1::kRevengeAttack,
                            after1::kGetsRevenge,    after1::kTwoOnWinner, after1::kTwoOnRunIn};
  return std::find(std::begin(kGives), std::end(kGives), aftermath) != std::end(kGives);
}

bool MindFinish(const World& world, const Segment& match, const Standing& losers,
                const Standing& winners) {
  const bool alone = match.Style == kSingles;
  if (losers.Attitude >= (alone ? kMindsAlone : kMindTogether)) return false;
  if (match.Finish == kClean) return winners.Over - kCleanLossGap < losers.Over;
  return alone && match.Finish == kInterference &&
         StandingOf(world, {match.Other1}).Over - kRunInGap < losers.Over;
}

bool IsAbove(const Standing& who, const Standing& other, const Gap& gap) {
  return who.Over - gap.By > other.Over && who.Attitude < gap.AttitudeUnder;
}

bool IsManAgainstWoman(const Standing& who, const Standing& other) {
  const auto isMan = [](const Worker* worker) { return bool(worker->Gender); };
  return !who.People.empty() && std::ranges::all_of(who.People, isMan) &&
         !std::ranges::all_of(other.People, isMan);
}

Gaps TagGaps(const Segment& match) {
  return SideOf(match, match.Winner) == 2 ? Gaps(kTagGapsSecondWins) : Gaps(kTagGapsFirstWins);
}

std::vector<int> Objectors(const Segment& match) {
  std::vector<int> all;
  if (match.Winner == 0) return all;
  if (match.Style == kSpecial) {
    all = PeopleOf(match);
    std::erase(all, int(match.Winner));
  } else if (match.Style == kFourOnFour && match.MatchType == kSurvivor) {
    const auto sides = SidesOf(match);
    if (const int won = SideOf(match, match.Winner)) all = sides[won == 1 ? 1 : 0];
  } else {
    all = LosersInOrder(match);
  }
  return all;
}

std::map<int, int> GrievancesOf(const World& world, const Segment& match) {
  Levels levels;
  if (match.Kind != kMatch || !HasResult(match)) return levels;
  if (match.Style == kSingles)
    SinglesLevels(levels, world, match);
  else if (match.Style == kTag)
    TagLevels(levels, world, match);
  else
    OtherLevels(levels, world, match);
  return levels;
}

std::string HeldAgainstText(const PriceOfBooking& price) {
  std::map<int, int, std::greater<>> people;  // how many, by what it takes from each
  for (const auto& [uid, morale] : price) ++people[morale];
  std::string text;
  for (const auto& [each, count] : people) {
    const std::string start = text.empty() ? " will hold it against you, " : " more ";
    text += (text.empty() ? "" : ", ") + InWords(count) + start + std::to_string(each) +
            (text.empty() ? " morale" : "") + (count == 1 ? "" : " each");
  }
  return text;
}

PriceOfBooking PriceOf(const World& world, const Segment& segment, const Segment& paid) {
  PriceOfBooking price;
  const Levels before = GrievancesOf(world, paid);
  for (const auto& [uid, level] : GrievancesOf(world, segment)) {
    const auto held = before.find(uid);
    const int taken = held == before.end() ? 0 : MoralePrice(held->second);
    if (MoralePrice(level) > taken) price[uid] = MoralePrice(level) - taken;
  }
  return price;
}

void ApplyBookingGrievances(World& world, const Segment& segment, const Segment& paid) {
  for (const auto& [uid, morale] : PriceOf(world, segment, paid))
    if (Worker* worker = world.FindWorker(uid)) MoveMorale(world, *worker, -morale, kMoodBooked);
}

}  // namespace grapplemont
