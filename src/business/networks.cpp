#include "business/networks.h"

#include <algorithm>
#include <array>

#include "business/economyfactor.h"

namespace grapplemont {

namespace {

constexpr int kSpots = 28;  // seven days of four slots

// By size from Global to Regional: image 81 up, 61 to 80, 41 to 60, 21 to 40, below.
constexpr std::array<std::array<int, 5>, 4> kPotential = {{{800, 760, 720, 680, 640},
                                                           {600, 560, 520, 480, 440},
                                                           {400, 360, 320, 280, 240},
                                                           {200, 160, 120, 80, 40}}};

constexpr EconomyFactor kEconomy[] = {
    {91, kAnyHigh, 120}, {81, 90, 110}, {10, 19, 90}, {kAnyLow, 9, 80}};

struct SlotWords {
  std::string_view Slot, Name, Hours;
};
constexpr SlotWords kSlots[] = {{"E", "Early Evening", "6:00pm - 8:00pm"},
                                {"P", "Prime Time", "8:00pm - 10:00pm"},
                                {"L", "Late Evening", "10:00pm - 12:00am"},
                                {"G", "Graveyard", "12:00am - 2:00am"}};

const SlotWords& WordsOf(std::string_view slot) {
  const auto* found = std::find_if(std::begin(kSlots), std::end(kSlots),
                                   [&](const SlotWords& words) { return words.Slot == slot; });
  return found == std::end(kSlots) ? kSlots[std::size(kSlots) - 1] : *found;
}

}  // namespace

std::string NetworkName(const World& world, int networkUid) {
  const Network* network = world.FindNetwork(networkUid);
  return network ? network->Name.Str() : "None";
}

std::string_view SlotName(std::string_view slot) {
  return WordsOf(slot).Name;
}

std::string_view SlotHours(std::string_view slot) {
  return WordsOf(slot).Hours;
}

int SlotAudience(const Network& network, std::string_view slot) {
  if (slot == "E") return network.EarlyAudience;
  if (slot == "P") return network.PrimeAudience;
  return slot == "L" ? network.LateAudience : network.GraveAudience;
}

int SlotRisk(const Network& network, std::string_view slot) {
  if (slot == "E") return network.EarlyRisk;
  if (slot == "P") return network.PrimeRisk;
  return slot == "L" ? network.LateRisk : network.GraveRisk;
}

int AudiencePotential(const Promotion& promotion, int economy) {
  if (promotion.Size > kRegional) return 0;
  const auto& row = kPotential[static_cast<std::size_t>(std::max<int>(promotion.Size, 1) - 1)];
  const int band = promotion.Image > 80   ? 0
                   : promotion.Image > 60 ? 1
                   : promotion.Image > 40 ? 2
                   : promotion.Image > 20 ? 3
                                          : 4;
  return ByEconomy(row[static_cast<std::size_t>(band)], kEconomy, economy);
}

int ShowsOn(const World& world, const Network& network) {
  const auto& shows = world.Shows();
  return static_cast<int>(std::count_if(
      shows.begin(), shows.end(), [&](const Show& show) { return show.Network == network.Uid; }));
}

bool IsFull(const World& world, const Network& network) {
  return ShowsOn(world, network) == kSpots;
}

}  // namespace grapplemont
