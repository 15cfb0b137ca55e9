#include "editor/datafolder.h"

#include <algorithm>

#include "records/store/slotfolder.h"
#include "records/tables/worldreport.h"

namespace grapplemont {

namespace {

constexpr const char* kChangeTakenBack = "Your change was taken back.";
constexpr const char* kUnknown =
    "Your change was taken back here; whether the disk kept it will show when the editor is opened "
    "again. Nothing can be kept until the disk answers.";
constexpr const char* kKept = "Your change is kept.";
constexpr const char* kNoUndo =
    "The backup has been restored, but what the data were before could not be kept.";

}  // namespace

DataBusy::DataBusy()
    : std::runtime_error(
          "The default data are being edited in another program. Close the editor there first; "
          "nothing was changed.") {}

DataFolder::DataFolder(Disk& disk, std::string folder, std::string below)
    : disk_(disk), folder_(std::move(folder)), below_(std::move(below)) {
  Disk::Kind kind = disk_.Look(folder_);
  if (kind == Disk::Kind::Nothing && !below_.empty()) {
    disk_.MakeFolder(folder_);
    kind = Disk::Kind::Folder;
  }
  if (kind == Disk::Kind::Nothing || kind == Disk::Kind::File)
    throw WorldFault("There is no folder \"" + folder_ + "\". Put the game's data there.");
  if (!disk_.Lock(Lock())) throw DataBusy();
  try {
    FinishStep(disk_, folder_);
    FinishSwap(disk_, BackupFolder());
    Read();
  } catch (...) {
    disk_.Unlock(Lock());
    throw;
  }
}

DataFolder::~DataFolder() {
  disk_.Unlock(Lock());
}

void DataFolder::Read() {
  std::map<std::string, Bytes> files;
  for (const std::string_view file : kDataSet) {
    const std::string name(file);
    std::string path = folder_ + "/" + name;
    Disk::Kind kind = disk_.Look(path);
    if (kind == Disk::Kind::Nothing && !below_.empty()) {
      path = below_ + "/" + name;
      kind = disk_.Look(path);
      if (kind != Disk::Kind::Nothing) fromBelow_.insert(name);
    }
    if (kind == Disk::Kind::Nothing) continue;
    if (kind != Disk::Kind::File) {
      unreadable_.push_back({name, name + " is not a plain file."});
    } else if (auto bytes = ReadWithin(disk_, path, MostBytesOf(name))) {
      files.emplace(name, *std::move(bytes));
    } else {
      unreadable_.push_back({name, name + " is longer than its most of " +
                                       std::to_string(MostBytesOf(name)) + " bytes."});
    }
  }
  world_.Load(files);
}

bool DataFolder::IsReadable(std::string_view file) const {
  return std::none_of(unreadable_.begin(), unreadable_.end(),
                      [&](const UnreadableFile& one) { return one.File == file; });
}

std::map<std::string, Bytes> DataFolder::FilesNow() const {
  std::map<std::string, Bytes> files;
  for (const Table* table : world_.Tables())
    if (table->CommittedExists()) files.emplace(table->File(), table->Committed());
  return files;
}

bool DataFolder::HasBackup() const {
  return !StandingFolder(disk_, BackupFolder()).empty();
}

void DataFolder::KeepBackup(const std::map<std::string, Bytes>& files) {
  FinishSwap(disk_, BackupFolder());
  std::vector<NewFile> all;
  for (const auto& [name, contents] : files) all.push_back({name, contents});
  ReplaceFolder(disk_, BackupFolder(), all);
  backedUp_ = true;
}

/// What a failed step has left, before the next one.
void DataFolder::FinishBusiness() {
  if (unfinished_ == Unfinished::Drop) DropStep(disk_, folder_);
  if (unfinished_ == Unfinished::Apply) FinishStep(disk_, folder_);
  unfinished_ = Unfinished::Nothing;
}

void DataFolder::Take(const DataStep& step, const std::function<void()>& made) {
  FinishBusiness();
  if (!StepFits(disk_, folder_, step))
    throw WorldFault(
        "The default data were changed by another program meanwhile. Your change was taken back; "
        "leave the editor and open it again.");
  try {
    unfinished_ = Unfinished::Drop;
    WriteStep(disk_, folder_, step);
  } catch (const DiskError& fault) {
    try {
      FinishBusiness();
    } catch (const DiskError&) {
      throw DiskError(fault, kUnknown);
    }
    throw DiskError(fault, kChangeTakenBack);
  }
  unfinished_ = Unfinished::Apply;
  made();
  try {
    ApplyStep(disk_, folder_, step);
    DropStep(disk_, folder_);
    unfinished_ = Unfinished::Nothing;
  } catch (const DiskError& fault) {
    throw DiskError(fault, kKept);
  }
}

void DataFolder::Commit() {
  const auto changes = world_.Changes();
  if (changes.empty()) return;
  const auto before = FilesNow();
  if (!backedUp_) KeepBackup(before);
  auto after = before;
  for (const FileChange& change : changes) {
    if (change.ExistsAfter)
      after[change.Name].assign(change.After.begin(), change.After.end());
    else
      after.erase(change.Name);
  }
  Take(WithAllOwn(StepBetween(before, after)), [&] {
    world_.MarkCommitted(changes);
    fromBelow_.clear();
  });
}

DataStep DataFolder::WithAllOwn(DataStep step) const {
  std::set<std::string> missing = fromBelow_;
  for (StepFile& file : step)
    if (missing.erase(file.Name)) file.Before.reset();
  for (const Table* table : world_.Tables())
    if (const std::string name(table->File()); missing.contains(name))
      step.push_back({name, {}, table->Committed()});
  return step;
}

void DataFolder::RefuseUnreadable() const {
  if (!unreadable_.empty())
    throw WorldFault(unreadable_.front().Why + " Move it away first; nothing was restored.");
}

bool DataFolder::Covers() const {
  return !below_.empty() && std::ranges::any_of(kDataSet, [this](std::string_view file) {
    return disk_.Look(folder_ + "/" + std::string(file)) != Disk::Kind::Nothing;
  });
}

void DataFolder::Uncover() {
  RefuseUnreadable();
  const auto own = FilesNow();
  const auto below = ReadWorldFiles(disk_, below_);
  std::map<std::string, Bytes> going;
  for (const auto& [name, bytes] : own)
    if (!fromBelow_.contains(name)) going.emplace(name, bytes);
  // First, other than with Restore: nothing else keeps what is about to go.
  KeepBackup(own);
  Take(StepBetween(going, {}), [&] {
    world_.Load(below);
    for (const auto& [name, bytes] : below) fromBelow_.insert(name);
  });
}

bool DataFolder::Restore() {
  RefuseUnreadable();
  FinishSwap(disk_, BackupFolder());
  std::map<std::string, Bytes> files;
  for (auto& [name, bytes] : ReadWorldFiles(disk_, BackupFolder()))
    if (std::ranges::find(kDataSet, name) != kDataSet.end()) files.emplace(name, std::move(bytes));
  // What the backup lacks would come from below once the data are read again.
  if (!below_.empty())
    for (auto& [name, bytes] : ReadWorldFiles(disk_, below_))
      if (std::ranges::find(kDataSet, name) != kDataSet.end())
        files.try_emplace(name, std::move(bytes));
  const auto before = FilesNow();
  const DataStep step = StepBetween(before, files);
  if (step.empty()) return false;
  Take(WithAllOwn(step), [&] {
    world_.Load(files);
    fromBelow_.clear();
  });
  // Only now: were it to go first, a fault between the two would cost the backup itself.
  try {
    KeepBackup(before);
  } catch (const DiskError& fault) {
    throw DiskError(fault, kNoUndo);
  }
  return true;
}

World TrialCopyOf(const World& world) {
  std::map<std::string, Bytes> files;
  for (NewFile& file : FilesOf(world)) files.emplace(file.Name, std::move(file.Contents));
  World copy;
  copy.Load(files);
  return copy;
}

namespace {

bool Names(const std::vector<Fault>& faults, std::string_view file) {
  return std::any_of(faults.begin(), faults.end(),
                     [&](const Fault& fault) { return fault.File == file; });
}

/// The faults of the world; a file that cannot be read is not missing.
FaultList FaultsBeside(const World& world, const std::vector<Fault>& unreadable) {
  FaultList faults;
  for (const Fault& fault : unreadable) faults.Take(Fault(fault));
  TellFaults(world, [&](Fault&& fault) {
    if (!Names(unreadable, fault.File)) faults.Take(std::move(fault));
  });
  return faults;
}

}  // namespace

FaultList Maintain(World& world, const std::vector<Fault>& unreadable) {
  FaultList doings;
  for (Table* table : world.Tables()) {
    const bool ofData =
        std::find(kDataSet.begin(), kDataSet.end(), table->File()) != kDataSet.end();
    if (!ofData || table->Exists() || Names(unreadable, table->File())) continue;
    table->Load({});
    doings.Take({std::string(table->File()), 0, {}, {}, "is missing; made without a record"});
  }
  doings.Take(MendWorld(world));
  return doings;
}

Maintenance PlanMaintenance(const World& world, const std::vector<Fault>& unreadable) {
  Maintenance plan;
  plan.Faults = FaultsBeside(world, unreadable);
  World trial = TrialCopyOf(world);
  plan.Doings = Maintain(trial, unreadable);
  plan.Left = FaultsBeside(trial, unreadable);
  return plan;
}

}  // namespace grapplemont
