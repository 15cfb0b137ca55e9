#include "business/development.h"

#include <algorithm>
#include <array>

#include "business/past.h"
#include "records/dates.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
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

namespace {

struct OfficeRow {
  const char* Name;
  const char* Wanted;  // what whoever left or never fitted is not
  Word Promotion::*Holder;
};
constexpr std::array<OfficeRow, 3> kOffices = {{
    {"Commissioner", "one of your non-wrestlers", &Promotion::Commissioner},
    {"Head trainer", "one of your trainers", &Promotion::HeadTrainer},
    {"Territory booker", "one of your staff who can book", &Promotion::DevBooker},
}};

const OfficeRow& Row(Office office) {
  return kOffices[static_cast<std::size_t>(office)];
}

bool Fits(const Staff& staff, Office office) {
  if (staff.Position == kOwner) return false;
  return office == Office::HeadTrainer ? staff.Position == kTrainer : bool(staff.Booker);
}

std::vector<OfficeSeeker> NonWrestlers(const World& world) {
  std::vector<OfficeSeeker> people;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && worker.Position == kNonWrestler)
      people.push_back({worker.Uid, worker.Name.Str(), worker.Charisma,
                        worker.Status == "Nor" ? std::string() : StatusLine(worker)});
  return people;
}

std::vector<OfficeSeeker> StaffFor(const World& world, Office office) {
  std::vector<OfficeSeeker> people;
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == world.PlayerUid() && Fits(staff, office))
      people.push_back({staff.Uid, staff.Name.Str(), staff.Talent,
                        std::string(Says(kStaffPositions, staff.Position))});
  return people;
}

}  // namespace

const char* OfficeName(Office office) {
  return Row(office).Name;
}

int HolderOf(const World& world, Office office) {
  const int uid = world.Player().*Row(office).Holder;
  const bool isThere = office == Office::Commissioner ? world.FindWorker(uid) != nullptr
                                                      : world.FindStaff(uid) != nullptr;
  return isThere ? uid : 0;
}

std::string HolderName(const World& world, Office office) {
  const int uid = HolderOf(world, office);
  if (uid == 0) return "None";
  return office == Office::Commissioner ? WorkerName(world, uid) : StaffName(world, uid);
}

std::vector<OfficeSeeker> CandidatesFor(const World& world, Office office) {
  return office == Office::Commissioner ? NonWrestlers(world) : StaffFor(world, office);
}

std::string WhyNotAppoint(const World& world, Office office, int uid) {
  if (office == Office::HeadTrainer && !HasCamp(world.Player()))
    return "There is no training camp.";
  if (office == Office::DevBooker && !HasTerritory(world.Player()))
    return "There is no development territory.";
  if (uid == 0) return {};
  const std::vector<OfficeSeeker> people = CandidatesFor(world, office);
  const bool isCandidate = std::any_of(people.begin(), people.end(),
                                       [&](const OfficeSeeker& c) { return c.Uid == uid; });
  if (isCandidate) return {};
  const std::string name =
      office == Office::Commissioner ? WorkerName(world, uid) : StaffName(world, uid);
  return (name.empty() ? "Whoever that was" : name) + " is not " + Row(office).Wanted + ".";
}

void Appoint(World& world, Office office, int uid) {
  world.Player().*Row(office).Holder = uid;
}

namespace {

constexpr std::string_view kEverybody = "All";  // what a sheet calls the undivided roster

Text<10>& SplitAt(Promotion& promotion, int place) {
  return promotion.Split.at(static_cast<std::size_t>(place - 1));
}

void MovePeople(World& world, std::string_view from, std::string_view to) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && worker.Split == from) worker.Split = to;
}

}  // namespace

std::string SplitName(const Promotion& promotion, int place) {
  if (place < 1 || place > kSplits) return {};
  const auto& name = promotion.Split[static_cast<std::size_t>(place - 1)];
  return name == "None" ? std::string() : name.Str();
}

int PeopleInSplit(const World& world, std::string_view split) {
  return static_cast<int>(
      std::count_if(world.Workers().begin(), world.Workers().end(), [&](const Worker& worker) {
        return worker.Employer == world.PlayerUid() && worker.Split == split;
      }));
}

std::string WhyNotSplitName(const World& world, int place, std::string_view name) {
  if (place < 1 || place > kSplits) return "Choose a split first.";
  if (std::string why = WhyNoName(name, Text<10>::kWidth); !why.empty()) return why;
  name = TrimmedName(name);
  if (name == kEverybody) return "\"All\" stands for the whole roster and cannot be a split.";
  for (int other = 1; other <= kSplits; ++other)
    if (other != place && SplitName(world.Player(), other) == name)
      return "There is a split called " + std::string(name) + " already.";
  return {};
}

void NameSplit(World& world, int place, std::string_view name) {
  const std::string before = SplitName(world.Player(), place);
  const std::string after(TrimmedName(name));
  // Somebody may have brought this name along from where he worked before.
  if (before != after) MovePeople(world, after, "None");
  if (!before.empty()) MovePeople(world, before, after);
  SplitAt(world.Player(), place) = after;
}

void DissolveSplit(World& world, int place) {
  const std::string name = SplitName(world.Player(), place);
  if (name.empty()) return;
  MovePeople(world, name, "None");
  SplitAt(world.Player(), place) = "None";
}

}  // namespace grapplemont
