#include "business/appointments.h"

#include <algorithm>
#include <array>

#include "business/development.h"
#include "records/modWresCheck.h"

namespace grapplemont {

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

}  // namespace grapplemont
