#include "business/networks.h"

#include <algorithm>
#include <array>

#include "business/finance.h"
#include "business/tvshows.h"
#include "records/arithmetic.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

constexpr int kSpots = 28;  // seven days of four slots

// By size, Global to Backyard; by image up to 20, 21 to 40, 41 to 60, 61 to 80, above.
constexpr std::array<std::array<int, 5>, 6> kPotential = {{{640, 680, 720, 760, 800},
                                                           {440, 480, 520, 560, 600},
                                                           {240, 280, 320, 360, 400},
                                                           {40, 80, 120, 160, 200}}};

constexpr EconomyFactor kEconomy[] = {
    {91, kAnyHigh, 120}, {81, 90, 110}, {10, 19, 90}, {kAnyLow, 9, 80}};

struct SlotRow {
  std::string_view Slot, Name, Hours;
  Hundredths Network::*Audience;
  Percent Network::*Risk;
};
constexpr SlotRow kSlots[] = {
    {"E", "Early Evening", "6:00pm - 8:00pm", &Network::EarlyAudience, &Network::EarlyRisk},
    {"P", "Prime Time", "8:00pm - 10:00pm", &Network::PrimeAudience, &Network::PrimeRisk},
    {"L", "Late Evening", "10:00pm - 12:00am", &Network::LateAudience, &Network::LateRisk},
    {"G", "Graveyard", "12:00am - 2:00am", &Network::GraveAudience, &Network::GraveRisk}};

const SlotRow& Row(std::string_view slot) {
  const auto* found = std::ranges::find(kSlots, slot, &SlotRow::Slot);
  return found == std::end(kSlots) ? found[-1] : *found;
}

/// A rival's deal is talked about when these many weeks are left.
constexpr int kRenewalWeeks = 2;
constexpr int kLongRenewal = 25;
constexpr int kShortRenewal = 18;
/// Networks drop a show that stands at this number of strikes, and at no other.
constexpr int kDroppedAt = 3;

/// The weeks that a network adds to a rival's deal; 0 for none.
int RenewalOf(const Promotion& owner, const Show& show, const Network& network) {
  if (owner.Risk > SlotRisk(network, show.Slot)) return 0;
  const int audience = SlotAudience(network, show.Slot);
  if (show.Rating3 < PercentOf(audience, 70)) return 0;
  return show.Rating3 > PercentOf(audience, 80) ? kLongRenewal : kShortRenewal;
}

void Renew(World& world, const Promotion& owner, Show& show) {
  const Network* network = world.FindNetwork(show.Network);
  const int weeks = network ? RenewalOf(owner, show, *network) : 0;
  if (weeks == 0) return;
  show.ContractWeeks += weeks;
  NoteDeed(world, kDeedRenewed, &owner, show.Name, network->Name, weeks);
  TellOfDeal(world, owner,
             owner.Initials + "'s " + show.Name.Str() + " has been renewed for a further " +
                 std::to_string(weeks) + " weeks!");
}

void TakeOff(World& world, const Promotion& owner, Show& show, const char* what) {
  TellOfDeal(world, owner, show.Name + what + NetworkName(world, show.Network) + "!");
  NoteDeed(world, kDeedOffAir, &owner, show.Name, NetworkName(world, show.Network));
  show.Name = kToBeDeleted;
}

void Review(World& world, const Promotion& owner, Show& show) {
  show.ContractWeeks -= 1;
  if (show.ContractWeeks == kRenewalWeeks && owner.Uid != world.PlayerUid())
    Renew(world, owner, show);
  if (show.ContractWeeks == 0) TakeOff(world, owner, show, " has not been renewed by ");
  if (show.Rating4 == kDroppedAt && show.Name != kToBeDeleted)
    TakeOff(world, owner, show, " has been dropped by ");
}

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
    if (std::ranges::find(free, drawn) != free.end()) day = drawn;
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

std::string NetworkName(const World& world, int networkUid) {
  const Network* network = world.FindNetwork(networkUid);
  return network ? network->Name.Str() : "None";
}

std::string_view SlotName(std::string_view slot) {
  return Row(slot).Name;
}

std::string_view SlotHours(std::string_view slot) {
  return Row(slot).Hours;
}

int SlotAudience(const Network& network, std::string_view slot) {
  return network.*Row(slot).Audience;
}

int SlotRisk(const Network& network, std::string_view slot) {
  return network.*Row(slot).Risk;
}

int AudiencePotential(const Promotion& promotion, int economy) {
  const int amount = ByImage(BySize(kPotential, promotion.Size), promotion.Image - 1, 20);
  return ByEconomy(amount, kEconomy, economy);
}

int ShowsOn(const World& world, const Network& network) {
  return static_cast<int>(std::ranges::count_if(
      world.Shows(), [&](const Show& show) { return show.Network == network.Uid; }));
}

bool IsFull(const World& world, const Network& network) {
  return ShowsOn(world, network) == kSpots;
}

void TvContractReview(World& world) {
  for (Show& show : world.Shows())
    if (const Promotion* owner = world.FindPromotion(show.Owner)) Review(world, *owner, show);
}

void RivalNewTvShows(World& world) {
  for (const Promotion& rival : world.Promotions()) {
    const bool looks = rival.Size >= kGlobal && rival.Size <= kSmallestOnTv;
    if (rival.Uid == world.PlayerUid() || !looks || rival.Name == kToBeDeleted) continue;
    SeekShow(world, rival);
  }
}

}  // namespace grapplemont
