#include "session/chairs.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>

#include "business/finance.h"
#include "calendar/image.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/leaving.h"

namespace grapplemont {

namespace {

constexpr std::size_t kBest = 10;
constexpr int kWeakerBy = 4;
constexpr int kLowImage = 20;
constexpr int kOld = 40;  // years
constexpr std::array<std::string_view, 5> kChairs = {"Easy", "Fair", "Demanding", "Hard",
                                                     "Desperate"};

bool Wrestles(const Worker& worker) {
  return worker.Position != kManager && worker.Position != kNonWrestler &&
         worker.Position != kTrainingCamp && !IsSentAway(worker);
}

/// The people of each promotion who wrestle, the best first.
std::map<int, std::vector<const Worker*>> RostersOf(const World& world) {
  std::map<int, std::vector<const Worker*>> rosters;
  for (const Worker& worker : world.Workers())
    if (worker.Employer != 0 && Wrestles(worker)) rosters[worker.Employer].push_back(&worker);
  for (auto& [uid, roster] : rosters)
    std::ranges::stable_sort(roster, [](auto* a, auto* b) { return a->Over > b->Over; });
  return rosters;
}

int StrengthOf(const std::vector<const Worker*>& roster) {
  const std::size_t count = std::min(roster.size(), kBest);
  if (count == 0) return 0;
  const int sum = std::accumulate(roster.begin(), roster.begin() + static_cast<int>(count), 0,
                                  [](int total, auto* worker) { return total + worker->Over; });
  return sum / static_cast<int>(count);
}

/// Who draws the crowd, and whether they will for long.
std::string StarOf(const World& world, const Promotion& promotion,
                   const std::vector<const Worker*>& roster) {
  if (roster.empty()) return "Nobody wrestles for it: it begins with the telephone. ";
  const Worker& star = *roster.front();
  std::string words = star.Name.Str();
  if (star.Age >= kOld) words += ", at " + std::to_string(int(star.Age)) + ",";
  for (const Title& title : world.Titles())
    if (title.Owner == promotion.Uid && title.Holder == star.Uid) {
      words += " holds the " + title.Name.Str() + " and";
      break;
    }
  return words + " draws the crowd. ";
}

/// What the promotions of one size have on the average.
struct Peers {
  long long Money = 0, Strength = 0, Count = 0;
};

/// The worst comes first.
void CountBurdens(const World& world, const Peers& peers, Chair& chair) {
  const Promotion& own = *chair.Of;
  const bool onAir =
      std::ranges::any_of(world.Shows(), [&](const Show& show) { return show.Owner == own.Uid; });
  const struct {
    bool Holds;
    const char *Word, *Else, *AtStake;
  } burdens[] = {
      {own.Money * peers.Count * 2 < peers.Money, "little money", "money",
       "A few empty halls, and the money is gone."},
      {(chair.Strength + kWeakerBy) * peers.Count <= peers.Strength, "a weak roster", "people",
       "The others have the names: it has to make its own."},
      {own.Image < kLowImage, "a low image", "a name",
       "Hardly anybody has heard of it: every show has to win them."},
      {!onAir, "no television", "television", "No network carries it: the road is all it has."}};
  std::vector<std::string> words, has;
  for (const auto& [holds, word, otherwise, atStake] : burdens) {
    if (holds && words.empty()) chair.Story = atStake;
    (holds ? words : has).emplace_back(holds ? word : otherwise);
  }
  chair.Burdens = static_cast<int>(words.size());
  chair.Why = words.empty() ? "good for a first game" : Joined(words);
  if (!has.empty()) chair.Why += "; it has " + Joined(has);
  if (!words.empty()) return;
  chair.Story = peers.Count > 1 && chair.Strength * peers.Count > peers.Strength
                    ? "It has the better people of its size, and everybody is after them."
                    : "It lacks for nothing but a way to the top.";
}

}  // namespace

std::vector<Chair> ChairsOf(const World& world) {
  const auto rosters = RostersOf(world);
  const std::vector<const Worker*> nobody;
  std::vector<Chair> chairs;
  std::map<int, Peers> peers;  // by size
  for (const Promotion& promotion : world.Promotions()) {
    if (promotion.Name == kToBeDeleted) continue;
    const auto found = rosters.find(promotion.Uid);
    const auto& roster = found == rosters.end() ? nobody : found->second;
    chairs.push_back({&promotion, StrengthOf(roster), 0, {}, {}});
    Peers& alike = peers[promotion.Size];
    alike.Money += promotion.Money;
    alike.Strength += chairs.back().Strength;
    ++alike.Count;
  }
  for (Chair& chair : chairs) {
    CountBurdens(world, peers[chair.Of->Size], chair);
    const auto found = rosters.find(chair.Of->Uid);
    // What differs most comes first: a card shows two lines of it.
    chair.Story =
        StarOf(world, *chair.Of, found == rosters.end() ? nobody : found->second) + chair.Story;
  }
  return chairs;
}

std::string_view ChairText(int burdens) {
  return kChairs[static_cast<std::size_t>(
      std::clamp(burdens, 0, static_cast<int>(kChairs.size()) - 1))];
}

namespace {

/// "one point up", "2 points down".
std::string Step(int step) {
  if (step == 0) return "no change";
  return std::to_string(std::abs(step)) + (std::abs(step) == 1 ? " point " : " points ") +
         (step > 0 ? "up" : "down");
}

}  // namespace

std::vector<std::string> WhatDifficultyChanges(int difficulty) {
  constexpr int kHundred = 100, kYear = 12;
  GameInfo game{};
  game.Difficulty = difficulty;
  game.Reputation = kHundred;
  Promotion debtor{};
  debtor.LoanAmount = kHundred;
  const long long interest = PayOffCost(debtor, difficulty) - kHundred;
  const long long wages = BuyOutCost(difficulty, 1, kYear) / 1000;
  std::vector<std::string> lines = {
      "Image before each Event: " + Step(GoodwillBefore(game, HeldShow::Event)[0]) + ".",
      "Image before each television show: " + Step(GoodwillBefore(game, HeldShow::Television)[0]) +
          ".",
      "Interest on a loan: " + std::to_string(interest) + "%.",
      "To buy out a contract of a year: " + std::to_string(wages) +
          (wages == 1 ? " monthly wage." : " monthly wages.")};
  if (difficulty == kEasy) lines.emplace_back("Reports say by how many points Over moves.");
  return lines;
}

}  // namespace grapplemont
