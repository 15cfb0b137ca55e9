#include "roster/postings.h"

#include <algorithm>
#include <array>

#include "records/arithmetic.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "roster/moods.h"

namespace grapplemont {

namespace {

constexpr int kOldestTrainee = 24;
constexpr int kWideMove = 2;  // places from which on a move is felt
constexpr int kMoraleOfDrop = -10, kMoraleOfRise = 5;
constexpr std::array<int, 8> kMoves = {kMainEvent, kUpperMidcard, kMidcard,     kLowerMidcard,
                                       kOpener,    kJobber,       kNonWrestler, kManager};

std::string WhyNotOurs(const World& world, const Worker& worker) {
  return WorksForPlayer(world, worker) ? "" : worker.Name + " does not work for you.";
}

std::string WhyTitleHolds(const World& world, const Worker& worker) {
  for (const Title& title : world.Titles())
    if (title.Holder == worker.Uid || title.Partner == worker.Uid)
      return worker.Name + " holds the " + title.Name.Str() + " and has to lose it first.";
  return {};
}

/// Whatever keeps somebody on the shows.
std::string WhyNotAway(const World& world, const Worker& worker) {
  if (std::string why = WhyNotOurs(world, worker); !why.empty()) return why;
  if (IsInDevelopment(worker)) return worker.Name + " is in the development territory already.";
  if (IsInCamp(worker)) return worker.Name + " is in the training camp already.";
  if (!IsOnRoster(worker)) return "Only wrestlers can be sent there.";
  if (worker.Status == "Hom") return worker.Name + " sits out the contract and goes nowhere.";
  if (std::string why = WhyTitleHolds(world, worker); !why.empty()) return why;
  return IsInFeud(world, worker.Uid) ? worker.Name + " is in a feud, which has to end first." : "";
}

bool IsCommissioner(const World& world, const Worker& worker) {
  return world.Player().Commissioner == worker.Uid;
}

}  // namespace

int BestSkillOf(const Worker& worker) {
  return std::max({int(worker.Brawl), int(worker.Technical), int(worker.Speed)});
}

int SkillTier(const Worker& worker) {
  const int best = BestSkillOf(worker);
  return best >= 76 ? 2 : best >= 61 ? 1 : 0;
}

bool IsInCamp(const Worker& worker) {
  return worker.Position == kTrainingCamp;
}

bool IsInFeud(const World& world, int workerUid) {
  return std::ranges::any_of(world.Feuds(), [=](const Feud& feud) {
    return feud.Worker1 == workerUid || feud.Worker2 == workerUid || feud.Worker3 == workerUid ||
           feud.Worker4 == workerUid;
  });
}

std::string PlaceText(const Worker& worker) {
  if (worker.Position <= kSentToDevelopment) return std::string(PositionText(worker.Position));
  return std::string(PositionText(worker.Position - kSentToDevelopment)) + ", in development";
}

std::string WhyNotToDevelopment(const World& world, const Worker& worker) {
  if (std::string why = WhyNotAway(world, worker); !why.empty()) return why;
  return world.Player().DevName == "None" ? "You do not have a development territory set up!" : "";
}

void SendToDevelopment(Worker& worker) {
  worker.Position += kSentToDevelopment;
}

std::string WhyNotToCamp(const World& world, const Worker& worker) {
  if (std::string why = WhyNotAway(world, worker); !why.empty()) return why;
  if (world.Player().CampName == "None") return "You do not have a training camp set up!";
  if (worker.Age > kOldestTrainee) return worker.Name + " is over 24 and too old for a trainee.";
  return SkillTier(worker) > 0 ? worker.Name + " has learned all that a camp can teach." : "";
}

void SendToCamp(Worker& worker) {
  worker.Position = kTrainingCamp;
}

std::string WhyNotRecall(const World& world, const Worker& worker) {
  if (std::string why = WhyNotOurs(world, worker); !why.empty()) return why;
  return IsInDevelopment(worker) || IsInCamp(worker) ? ""
                                                     : worker.Name + " has not been sent away.";
}

std::span<const int> PositionsToMoveTo() {
  return kMoves;
}

std::string WhyNotMove(const World& world, const Worker& worker, int position) {
  if (std::string why = WhyNotOurs(world, worker); !why.empty()) return why;
  if (IsInDevelopment(worker) || IsInCamp(worker))
    return worker.Name + " is away and has to be recalled first.";
  if (std::find(kMoves.begin(), kMoves.end(), position) == kMoves.end())
    return "There is no such position.";
  if (worker.Position == position) return worker.Name + " has this position already.";
  return IsRosterPosition(position) ? "" : WhyTitleHolds(world, worker);
}

int MoraleOfMove(int from, int to) {
  if (!IsRosterPosition(from) || !IsRosterPosition(to)) return 0;
  if (to - from >= kWideMove) return kMoraleOfDrop;
  return from - to >= kWideMove ? kMoraleOfRise : 0;
}

std::string EndedByMove(const World& world, const Worker& worker, int position) {
  std::string ended;
  const auto isClient = [&](const Worker& other) { return other.Manager == worker.Uid; };
  if (position != kManager && std::ranges::any_of(world.Workers(), isClient))
    ended += " The clients lose their manager.";
  if (position != kNonWrestler && IsCommissioner(world, worker))
    ended += " You lose your Commissioner.";
  if (!IsRosterPosition(position) && worker.Manager != 0)
    ended += " " + worker.Name + " will have no manager.";
  return ended.empty() ? ended : ended.substr(1);
}

void MovePosition(World& world, Worker& worker, int position) {
  const int change = MoraleOfMove(worker.Position, position);
  MoveMorale(world, worker, change, change > 0 ? kMoodMovedUp : kMoodMovedDown);
  worker.Position = position;
  if (position != kManager) LoseClients(world, {worker.Uid});
  if (position != kNonWrestler && IsCommissioner(world, worker)) world.Player().Commissioner = 0;
  if (!IsRosterPosition(position)) worker.Manager = 0;
}

std::string WhyNotSplit(const World& world, const Worker& worker, std::string_view split) {
  if (std::string why = WhyNotOurs(world, worker); !why.empty()) return why;
  if (worker.Split == split)
    return split == "None" ? worker.Name + " is in no split."
                           : worker.Name + " is in this split already.";
  const auto& splits = world.Player().Split;
  const bool known =
      split == "None" || std::ranges::any_of(splits, [&](auto& held) { return held == split; });
  return known ? "" : "Your promotion has no such split.";
}

void AssignSplit(Worker& worker, std::string_view split) {
  worker.Split = split;
}

namespace {

/// The Over above which the positions from 5 up to 1 are reached.
struct Ladder {
  int Start;
  std::array<int, 5> Above;  // 5 Opener, 4 Lower Midcard, 3 Midcard, 2 Upper Midcard, 1 Main Event
};
constexpr int kStart = -1;
// By size, Global to Backyard. Rungs at and below the start are passed by anybody.
constexpr std::array<Ladder, 6> kLadders = {{
    {kJobber, {20, 40, 60, 80, 90}},
    {kJobber, {20, 40, 55, 70, 80}},
    {kJobber, {10, 20, 40, 50, 65}},
    {kJobber, {10, 20, 35, 45, 55}},
    {kOpener, {kStart, 5, 10, 20, 35}},
    {kMidcard, {kStart, kStart, kStart, 10, 25}},
}};

}  // namespace

int FittingPosition(int size, int over) {
  const Ladder& ladder = BySize(kLadders, size);
  int position = ladder.Start;
  for (int rung = kOpener; rung >= kMainEvent; --rung)
    if (rung < position && over > ladder.Above[static_cast<std::size_t>(kOpener - rung)])
      position = rung;
  return position;
}

int PlacementPosition(const Worker& worker, int size) {
  if (worker.Position == kNonWrestler || worker.Position == kManager) return worker.Position;
  return FittingPosition(size, worker.Over);
}

int ContractMonthsAt(int size) {
  return size > kRegional ? 6 : size >= kCult ? 12 : 24;
}

}  // namespace grapplemont
