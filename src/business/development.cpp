#include "business/development.h"

#include <array>

#include "business/past.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "roster/postings.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

constexpr std::array<int, kBestCamp> kCampPrices = {25000, 100000, 400000, 1000000};

constexpr int kCampLetters = decltype(Promotion::CampName)::kWidth;
constexpr int kTerritoryLetters = decltype(Promotion::DevName)::kWidth;

template <class Test>
std::vector<const Worker*> People(const World& world, Test isThere) {
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers())
    if (worker.Employer != 0 && worker.Employer == world.PlayerUid() && isThere(worker))
      people.push_back(&worker);
  return people;
}

template <class Test>
void BringBack(World& world, Test isThere) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && isThere(worker)) EndPosting(worker);
}

/// The past tells: whatever was paid for stands in it.
bool HasBuiltThisMonth(const World& world, HistoryKind kind) {
  const Day today = world.Today();
  const Day first = today - std::chrono::days{DayOfMonth(today) - 1};
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (Day(entry.On) < first) return false;
    if (entry.Kind == kind && entry.Promotion == world.PlayerUid()) return true;
  }
  return false;
}

std::string WhyNotBuild(const World& world, HistoryKind kind, int dollars) {
  if (HasBuiltThisMonth(world, kind))
    return "The builders have been here in " + std::string(MonthName(MonthOf(world.Today()))) +
           " already. They come once a month at most.";
  if (world.Player().Money < dollars)
    return "You cannot afford this! It costs " + Dollars(dollars) + ", and you have " +
           Dollars(world.Player().Money) + ".";
  return {};
}

void Build(World& world, HistoryKind kind, std::string_view name, int dollars) {
  world.Player().Money -= dollars;
  HistoryEntry entry = EntryOf(world, world.Player(), kind);
  entry.Name = name;
  entry.Costs = dollars;
  Remember(world, entry);
}

std::string WhyNoLevel(int level) {
  return level >= 1 && level <= kBestCamp ? "" : "Choose the facilities first.";
}

constexpr const char* kNoCamp = "There is no training camp.";
constexpr const char* kNoTerritory = "There is no development territory.";

}  // namespace

int CampPrice(int level) {
  return level >= 1 && level <= kBestCamp ? kCampPrices[static_cast<std::size_t>(level - 1)] : 0;
}

bool HasCamp(const Promotion& promotion) {
  return !(promotion.CampName == "None");
}

bool HasTerritory(const Promotion& promotion) {
  return !(promotion.DevName == "None");
}

std::vector<const Worker*> PeopleInCamp(const World& world) {
  return People(world, IsInCamp);
}

std::vector<const Worker*> PeopleInTerritory(const World& world) {
  return People(world, IsInDevelopment);
}

std::string WhyNotOpenCamp(const World& world, std::string_view name, int level) {
  if (HasCamp(world.Player())) return "You have a training camp already.";
  if (std::string why = WhyNoName(name, kCampLetters); !why.empty()) return why;
  if (std::string why = WhyNoLevel(level); !why.empty()) return why;
  return WhyNotBuild(world, kPastCamp, CampPrice(level));
}

void OpenCamp(World& world, std::string_view name, int level) {
  Build(world, kPastCamp, TrimmedName(name), CampPrice(level));
  world.Player().CampName = TrimmedName(name);
  world.Player().CampFacilities = level;
}

std::string WhyNotRaiseCamp(const World& world, int level) {
  if (!HasCamp(world.Player())) return kNoCamp;
  if (world.Player().CampFacilities >= kBestCamp)
    return "No camp in the world has better facilities.";
  if (std::string why = WhyNoLevel(level); !why.empty()) return why;
  if (level <= world.Player().CampFacilities) return "The facilities are as good as that already.";
  return WhyNotBuild(world, kPastCamp, CampPrice(level));
}

void RaiseCamp(World& world, int level) {
  Build(world, kPastCamp, world.Player().CampName, CampPrice(level));
  world.Player().CampFacilities = level;
}

std::string WhyNotOpenTerritory(const World& world, std::string_view name) {
  if (HasTerritory(world.Player())) return "You have a development territory already.";
  if (std::string why = WhyNoName(name, kTerritoryLetters); !why.empty()) return why;
  return WhyNotBuild(world, kPastTerritory, kTerritoryPrice);
}

void OpenTerritory(World& world, std::string_view name) {
  Build(world, kPastTerritory, TrimmedName(name), kTerritoryPrice);
  world.Player().DevName = TrimmedName(name);
}

std::string WhyNotRenameCamp(const World& world, std::string_view name) {
  return HasCamp(world.Player()) ? WhyNoName(name, kCampLetters) : kNoCamp;
}

void RenameCamp(World& world, std::string_view name) {
  world.Player().CampName = TrimmedName(name);
}

std::string WhyNotRenameTerritory(const World& world, std::string_view name) {
  return HasTerritory(world.Player()) ? WhyNoName(name, kTerritoryLetters) : kNoTerritory;
}

void RenameTerritory(World& world, std::string_view name) {
  world.Player().DevName = TrimmedName(name);
}

void CloseCamp(World& world) {
  BringBack(world, IsInCamp);
  world.Player().CampName = "None";
  world.Player().CampFacilities = 0;
  world.Player().HeadTrainer = 0;
}

void CloseTerritory(World& world) {
  BringBack(world, IsInDevelopment);
  world.Player().DevName = "None";
  world.Player().DevBooker = 0;
}

}  // namespace grapplemont
