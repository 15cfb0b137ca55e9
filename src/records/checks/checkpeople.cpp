#include <algorithm>
#include <unordered_map>

#include "records/checks/checkrules.h"

// Workers and staff, and the promotions they work for.

namespace grapplemont {

namespace {

/// Notes every worker for whom `wrong` holds; without `mend` it stays.
template <class Wrong>
void ForWorkers(Inspection& inspection, std::string_view field, std::string_view what,
                std::string_view how, Wrong wrong, void (*mend)(Worker&)) {
  Records<Worker>& workers = inspection.Of().Workers();
  for (Worker& worker : workers)
    if (wrong(worker))
      inspection.Note(
          workers, worker, field, std::string(what),
          mend ? Remedy{std::string(how), [&worker, mend] { mend(worker); }} : Remedy{});
}

bool IsNone(std::string_view name) {
  return name.empty() || name == "None";
}

}  // namespace

void UnsackableHasEmployerAndNoEnd(Inspection& inspection) {
  ForWorkers(
      inspection, "Unsackable", "is set for a worker without an employer", "cleared",
      [](const Worker& worker) { return worker.Unsackable && worker.Employer == 0; },
      [](Worker& worker) { worker.Unsackable = false; });
  ForWorkers(
      inspection, "ContractMonths", "runs out for an unsackable worker", "made -1",
      [](const Worker& worker) {
        return worker.Unsackable && worker.Employer != 0 && worker.ContractMonths != kNoEnd;
      },
      [](Worker& worker) { worker.ContractMonths = kNoEnd; });
}

void UnemployedAreFree(Inspection& inspection) {
  ForWorkers(
      inspection, "ContractMonths", "is not 0 for a worker without an employer", "made 0",
      [](const Worker& worker) { return worker.Employer == 0 && worker.ContractMonths != 0; },
      [](Worker& worker) { worker.ContractMonths = 0; });
  ForWorkers(
      inspection, "ContractType", "is not \"Non\" for a worker without an employer", "made \"Non\"",
      [](const Worker& worker) { return worker.Employer == 0 && !(worker.ContractType == "Non"); },
      [](Worker& worker) { worker.ContractType = "Non"; });
  ForWorkers(
      inspection, "Stable", "is not \"None\" for a worker without an employer", "made \"None\"",
      [](const Worker& worker) { return worker.Employer == 0 && !IsNone(worker.Stable); },
      [](Worker& worker) { worker.Stable = "None"; });
}

void StablesOfTheEmployer(Inspection& inspection) {
  World& world = inspection.Of();
  std::unordered_multimap<std::string, int> owners;
  for (const Stable& stable : world.Stables()) owners.emplace(stable.Name.Str(), stable.Owner);
  for (Worker& worker : world.Workers()) {
    if (worker.Employer == 0 || IsNone(worker.Stable)) continue;
    const auto [begin, end] = owners.equal_range(worker.Stable.Str());
    if (std::any_of(begin, end, [&](auto& owned) { return owned.second == worker.Employer; }))
      continue;
    inspection.Note(world.Workers(), worker, "Stable",
                    "is " + QuotedText(worker.Stable) + ", not a stable of their promotion",
                    {"made \"None\"", [&worker] { worker.Stable = "None"; }});
  }
}

void SplitsOfTheEmployer(Inspection& inspection) {
  World& world = inspection.Of();
  for (Worker& worker : world.Workers()) {
    if (IsNone(worker.Split)) continue;
    const Promotion* employer = world.FindPromotion(worker.Employer);
    if (employer && std::any_of(employer->Split.begin(), employer->Split.end(),
                                [&](const auto& split) { return split == worker.Split; }))
      continue;
    inspection.Note(world.Workers(), worker, "Split",
                    "is " + QuotedText(worker.Split) + ", not a part of their promotion's roster",
                    {"made \"None\"", [&worker] { worker.Split = "None"; }});
  }
}

void ManagersOfTheEmployer(Inspection& inspection) {
  // The first of each uid; the world's own search takes longest for who is not there.
  std::unordered_map<int, const Worker*> byUid;
  for (const Worker& worker : inspection.Of().Workers())
    if (worker.Uid > 0) byUid.try_emplace(worker.Uid, &worker);
  // An angle may make a manager of anybody.
  const auto manages = [byTrade = inspection.AsData()](const Worker& manager) {
    return !byTrade || manager.Position == kManager;
  };
  ForWorkers(
      inspection, "Manager", "is not a manager of the same promotion", "made 0",
      [&](const Worker& worker) {
        const auto found = byUid.find(worker.Manager);
        const Worker* manager = found == byUid.end() ? nullptr : found->second;
        return manager && (worker.Employer == 0 || manager->Employer != worker.Employer ||
                           !manages(*manager) || manager->Uid == worker.Uid);
      },
      [](Worker& worker) { worker.Manager = 0; });
}

void DivasAreWomen(Inspection& inspection) {
  ForWorkers(
      inspection, "Diva", "is set for a man", "cleared",
      [](const Worker& worker) { return worker.Diva && worker.Gender; },
      [](Worker& worker) { worker.Diva = false; });
}

void FloorNotAboveOver(Inspection& inspection) {
  ForWorkers(
      inspection, "OverFloor", "is above the worker's Over", "made the same",
      [](const Worker& worker) { return worker.OverFloor > worker.Over; },
      [](Worker& worker) { worker.OverFloor = worker.Over; });
}

void PotentialOfThirtyAndABirthday(Inspection& inspection) {
  ForWorkers(
      inspection, "Potential", "is under 30", "made 30",
      [](const Worker& worker) { return worker.Potential < 30; },
      [](Worker& worker) { worker.Potential = 30; });
  ForWorkers(
      inspection, "BirthMonth", "is 0, which a game draws again when it begins", "",
      [](const Worker& worker) { return worker.BirthMonth == 0; }, nullptr);
}

void OneOwnerEach(Inspection& inspection) {
  Records<Staff>& all = inspection.Of().AllStaff();
  std::unordered_map<int, std::string> owners;
  for (Staff& staff : all) {
    if (staff.Position != kOwner || staff.Employer == 0) continue;
    const auto [owner, isFirst] = owners.try_emplace(staff.Employer, staff.Name.Str());
    if (isFirst) continue;
    inspection.Note(all, staff, "Employer", "has an Owner already, " + owner->second,
                    {"made 0", [&staff] { staff.Employer = 0; }});
  }
}

void OfficesAreHeldByTheOwn(Inspection& inspection) {
  World& world = inspection.Of();
  for (Promotion& promotion : world.Promotions()) {
    const auto note = [&](std::string_view field, std::string_view what, Word& office) {
      inspection.Note(world.Promotions(), promotion, field, std::string(what),
                      {"made 0", [&office] { office = 0; }});
    };
    const Worker* head = world.FindWorker(promotion.Commissioner);
    if (head && (head->Employer != promotion.Uid || head->Position != kNonWrestler))
      note("Commissioner", "is not a non-wrestler of the promotion", promotion.Commissioner);
    const auto isForeign = [&](int uid) {
      const Staff* staff = world.FindStaff(uid);
      return staff && staff->Employer != promotion.Uid;
    };
    if (isForeign(promotion.HeadTrainer))
      note("HeadTrainer", "works elsewhere", promotion.HeadTrainer);
    if (isForeign(promotion.DevBooker)) note("DevBooker", "works elsewhere", promotion.DevBooker);
  }
}

}  // namespace grapplemont
