#include "business/development.h"

#include <algorithm>
#include <array>

#include "business/beside.h"
#include "business/past.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "roster/postings.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

constexpr std::array<int, kBestCamp> kCampPrices = {25000, 100000, 400000, 1000000};
constexpr int kTerritoryPrice = 250000;

struct SiteRow {
  const char* What;
  int Letters;  // of its name
  std::string (*Name)(const Promotion&);
  void (*SetName)(Promotion&, std::string_view name);
  Word Promotion::*RunBy;
  bool (*IsThere)(const Worker&);
  HistoryKind Kind;
};
constexpr SiteRow kSites[] = {{"training camp", decltype(Promotion::CampName)::kWidth,
                               [](const Promotion& p) { return p.CampName.Str(); },
                               [](Promotion& p, std::string_view name) { p.CampName = name; },
                               &Promotion::HeadTrainer, IsInCamp, kPastCamp},
                              {"development territory", decltype(Promotion::DevName)::kWidth,
                               [](const Promotion& p) { return p.DevName.Str(); },
                               [](Promotion& p, std::string_view name) { p.DevName = name; },
                               &Promotion::DevBooker, IsInDevelopment, kPastTerritory}};

const SiteRow& Row(Site site) {
  return kSites[static_cast<std::size_t>(site)];
}

/// The past tells who has built this month: whatever was paid for stands in it.
std::string WhyNotBuild(const World& world, Site site, int level) {
  if (LastShowOf(world, world.PlayerUid(), MonthsBefore(world.Today(), 0), Row(site).Kind))
    return "The builders have been here in " + std::string(MonthName(MonthOf(world.Today()))) +
           " already. They come once a month at most.";
  if (world.Player().Money < SitePrice(site, level))
    return "You cannot afford this! It costs " + Dollars(SitePrice(site, level)) +
           ", and you have " + Dollars(world.Player().Money) + ".";
  return {};
}

void Build(World& world, Site site, std::string_view name, int level) {
  MoveBeside(world, world.Player(), -SitePrice(site, level), std::string("The ") + Row(site).What);
  HistoryEntry entry = EntryOf(world, world.Player(), Row(site).Kind);
  entry.Name = name;
  entry.Costs = SitePrice(site, level);
  Remember(world, entry);
}

std::string WhyNoLevel(int level) {
  return level >= 1 && level <= kBestCamp ? "" : "Choose the facilities first.";
}

std::string ThereIsNo(Site site) {
  return std::string("There is no ") + Row(site).What + ".";
}

}  // namespace

int SitePrice(Site site, int level) {
  if (site == Site::Territory) return kTerritoryPrice;
  return level >= 1 && level <= kBestCamp ? kCampPrices[static_cast<std::size_t>(level - 1)] : 0;
}

bool HasSite(const Promotion& promotion, Site site) {
  return SiteName(promotion, site) != "None";
}

std::string SiteName(const Promotion& promotion, Site site) {
  return Row(site).Name(promotion);
}

std::vector<const Worker*> PeopleAt(const World& world, Site site) {
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers())
    if (WorksForPlayer(world, worker) && Row(site).IsThere(worker)) people.push_back(&worker);
  return people;
}

std::string WhyNotOpen(const World& world, Site site, std::string_view name, int level) {
  if (HasSite(world.Player(), site))
    return std::string("You have a ") + Row(site).What + " already.";
  if (std::string why = WhyNoName(name, Row(site).Letters); !why.empty()) return why;
  if (std::string why = site == Site::Camp ? WhyNoLevel(level) : ""; !why.empty()) return why;
  return WhyNotBuild(world, site, level);
}

void OpenSite(World& world, Site site, std::string_view name, int level) {
  Build(world, site, TrimmedName(name), level);
  RenameSite(world, site, name);
  if (site == Site::Camp) world.Player().CampFacilities = level;
}

std::string WhyNotRaiseCamp(const World& world, int level) {
  if (!HasSite(world.Player(), Site::Camp)) return ThereIsNo(Site::Camp);
  if (world.Player().CampFacilities >= kBestCamp)
    return "No camp in the world has better facilities.";
  if (std::string why = WhyNoLevel(level); !why.empty()) return why;
  if (level <= world.Player().CampFacilities) return "The facilities are as good as that already.";
  return WhyNotBuild(world, Site::Camp, level);
}

void RaiseCamp(World& world, int level) {
  Build(world, Site::Camp, world.Player().CampName, level);
  world.Player().CampFacilities = level;
}

std::string WhyNotRename(const World& world, Site site, std::string_view name) {
  return HasSite(world.Player(), site) ? WhyNoName(name, Row(site).Letters) : ThereIsNo(site);
}

void RenameSite(World& world, Site site, std::string_view name) {
  Row(site).SetName(world.Player(), TrimmedName(name));
}

void CloseSite(World& world, Site site) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && Row(site).IsThere(worker)) EndPosting(worker);
  Row(site).SetName(world.Player(), "None");
  world.Player().*Row(site).RunBy = 0;
  if (site == Site::Camp) world.Player().CampFacilities = 0;
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
  if (staff.Position == kOwner || office == Office::Commissioner) return false;
  return office == Office::HeadTrainer ? staff.Position == kTrainer : bool(staff.Booker);
}

std::string NameOf(const World& world, Office office, int uid) {
  return office == Office::Commissioner ? WorkerName(world, uid) : StaffName(world, uid);
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
  return uid == 0 ? "None" : NameOf(world, office, uid);
}

std::vector<OfficeSeeker> CandidatesFor(const World& world, Office office) {
  std::vector<OfficeSeeker> people;
  for (const Worker& worker : world.Workers())
    if (office == Office::Commissioner && worker.Employer == world.PlayerUid() &&
        worker.Position == kNonWrestler)
      people.push_back({worker.Uid, worker.Name.Str(), worker.Charisma,
                        worker.Status == "Nor" ? std::string() : StatusLine(worker)});
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == world.PlayerUid() && Fits(staff, office))
      people.push_back({staff.Uid, staff.Name.Str(), staff.Talent,
                        std::string(Says(kStaffPositions, staff.Position))});
  return people;
}

std::string WhyNotAppoint(const World& world, Office office, int uid) {
  for (const auto& [needs, site] :
       {std::pair(Office::HeadTrainer, Site::Camp), {Office::DevBooker, Site::Territory}})
    if (office == needs && !HasSite(world.Player(), site)) return ThereIsNo(site);
  if (uid == 0) return {};
  const std::vector<OfficeSeeker> people = CandidatesFor(world, office);
  if (std::ranges::any_of(people, [&](const OfficeSeeker& c) { return c.Uid == uid; })) return {};
  const std::string name = NameOf(world, office, uid);
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
  return static_cast<int>(std::ranges::count_if(world.Workers(), [&](const Worker& worker) {
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
  // Somebody may have brought this name along from where they worked before.
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
