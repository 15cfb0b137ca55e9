#include <algorithm>
#include <array>

#include "business/networks.h"
#include "business/tvshows.h"
#include "records/arithmetic.h"

namespace grapplemont {

namespace {

/// Promotions of this size and above look for television.
constexpr int kSmallestOnTv = kCult;
// By size, Global to Cult.
constexpr std::array<int, 3> kWeeks = {52, 24, 12};

constexpr int kInterestOdds = 6;
constexpr int kInterestDraw = 2;
constexpr int kNetworkChance = 100;
constexpr int kDayTries = 3;

bool IsInterested(World& world, const Promotion& rival, const Network& network) {
  if (rival.Risk > network.GraveRisk) return false;
  if (IsFull(world, network) && !network.Generic) return false;
  if (world.RandomDraw(kInterestOdds) != kInterestDraw) return false;
  return AudiencePotential(rival, world.Game().Economy) >= PercentOf(network.GraveAudience, 80);
}

/// The biggest of those that are interested, with some chance in it; nullptr for none.
const Network* ChooseNetwork(World& world, const Promotion& rival) {
  const Network* best = nullptr;
  int bestScore = 0;
  for (const Network& network : world.Networks()) {
    if (!IsInterested(world, rival, network)) continue;
    const int score = network.GraveAudience + world.RandomDraw(kNetworkChance);
    if (best && score <= bestScore) continue;
    best = &network;
    bestScore = score;
  }
  return best;
}

/// The three promotions that the world began with have their places; all others broadcast at night.
std::string_view SlotOfRival(const Promotion& rival) {
  constexpr std::array<std::string_view, 3> kFirstThree = {"P", "L", "E"};
  if (rival.Uid < 1 || rival.Uid > 3) return "G";
  return kFirstThree[static_cast<std::size_t>(rival.Uid - 1)];
}

/// The last free day unless a draw hits another; the last hit counts.
int ChooseDay(World& world, const std::vector<int>& free) {
  int day = free.back();
  for (int attempt = 0; attempt < kDayTries; ++attempt) {
    const int drawn = world.RandomDraw(7);
    if (std::find(free.begin(), free.end(), drawn) != free.end()) day = drawn;
  }
  return day;
}

/// "CWA Friday", or with the first free number from 2 behind it.
std::string FreshName(const World& world, const std::string& plain) {
  std::string name = plain;
  for (int number = 2; ShowNameTaken(world, name); ++number)
    name = plain + " " + std::to_string(number);
  return name;
}

void Sign(World& world, const Promotion& rival, const Network& network) {
  const std::string_view slot = SlotOfRival(rival);
  const std::vector<int> free = FreeDays(world, rival.Uid, network, slot);
  if (free.empty()) return;
  const int day = ChooseDay(world, free);
  const std::string dayName(Says(kWeekDays, day));
  const int weeks = kWeeks[static_cast<std::size_t>(rival.Size - 1)];
  AddShow(world, FreshName(world, rival.Initials.Str() + " " + dayName),
          {rival.Uid, network.Uid, slot, day, weeks});
  TellOfDeal(world, rival, rival.Initials + " have a new TV show on " + dayName + "s!");
}

void SeekShow(World& world, const Promotion& rival) {
  const Network* network = ChooseNetwork(world, rival);
  if (!network || world.Shows().Full()) return;
  if (ShowsOf(world, rival.Uid).size() < kMostShows) Sign(world, rival, *network);
}

}  // namespace

void RivalNewTvShows(World& world) {
  for (const Promotion& rival : world.Promotions()) {
    const bool looks = rival.Size >= kGlobal && rival.Size <= kSmallestOnTv;
    if (rival.Uid == world.PlayerUid() || !looks || rival.Name == kToBeDeleted) continue;
    SeekShow(world, rival);
  }
}

}  // namespace grapplemont
