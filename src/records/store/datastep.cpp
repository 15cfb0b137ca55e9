#include "records/store/datastep.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "records/store/knownfiles.h"
#include "records/store/packing.h"

namespace grapplemont {

namespace {

constexpr std::string_view kStepMark = "GMFRSTEP";
constexpr std::uint64_t kWasThere = 1, kIsThere = 2;

std::string StepPath(const std::string& folder) {
  return folder + ".step";
}

Bytes Pack(const DataStep& step) {
  Packer body;
  body.Put(std::uint64_t{step.size()});
  for (const StepFile& file : step) {
    body.Put(std::uint64_t{file.Name.size()});
    body.Put(file.Name);
    body.Put((file.Before ? kWasThere : 0) | (file.After ? kIsThere : 0));
    body.Put(file.Before.value_or(0));
    body.Put(std::uint64_t{file.After ? file.After->size() : 0});
    if (file.After) body.Put(ByteSpan(*file.After));
  }
  Packer packed;
  packed.Put(kStepMark);
  packed.Put(Checksum(body.Packed()));
  packed.Put(ByteSpan(body.Packed()));
  return std::move(packed).Packed();
}

std::optional<StepFile> UnpackStep(Unpacker& in) {
  StepFile file;
  file.Name = in.GetText<std::uint64_t>();
  const auto flags = in.Get<std::uint64_t>(), before = in.Get<std::uint64_t>();
  const ByteSpan after = in.Take(in.Get<std::uint64_t>());
  if (flags & kWasThere) file.Before = before;
  if (flags & kIsThere) file.After.emplace(after.begin(), after.end());
  const std::int64_t most = MostBytesOf(file.Name);
  if (!in.Whole() || most == 0 || std::ssize(after) > most) return std::nullopt;
  return file;
}

/// Nothing for bytes that are not a whole step.
std::optional<DataStep> Unpack(ByteSpan bytes) {
  Unpacker in(bytes);
  const ByteSpan mark = in.Take(kStepMark.size());
  const auto sum = in.Get<std::uint64_t>();
  if (!in.Whole() || std::memcmp(mark.data(), kStepMark.data(), kStepMark.size()) != 0 ||
      sum != Checksum(in.Left()))
    return std::nullopt;
  DataStep step;
  for (auto left = in.Get<std::uint64_t>(); left > 0; --left) {
    auto file = UnpackStep(in);
    if (!file) return std::nullopt;
    step.push_back(*std::move(file));
  }
  return step;
}

/// More than the step that changes every file.
std::int64_t MostBytesOfStep() {
  constexpr std::int64_t kAround = 1024;  // names, sizes, checksums
  std::int64_t bytes = kAround;
  for (const std::string_view file : kDataSet) bytes += MostBytesOf(file) + kAround;
  return bytes;
}

/// Whether the file is as it was before the step, or as it is after it where that will do too.
bool IsAsBefore(Disk& disk, const std::string& folder, const StepFile& file, bool orAfter) {
  const std::string path = folder + "/" + file.Name;
  const Disk::Kind kind = disk.Look(path);
  std::optional<std::uint64_t> sum;
  if (kind == Disk::Kind::File) {
    const auto bytes = ReadWithin(disk, path, MostBytesOf(file.Name));
    if (!bytes) return false;
    sum = Checksum(*bytes);
  } else if (kind != Disk::Kind::Nothing) {
    return false;
  }
  if (sum == file.Before) return true;
  return orAfter && sum == (file.After ? std::optional(Checksum(*file.After)) : std::nullopt);
}

}  // namespace

DataStep StepBetween(const std::map<std::string, Bytes>& before,
                     const std::map<std::string, Bytes>& after) {
  DataStep step;
  for (const auto& [name, contents] : before)
    if (!after.contains(name)) step.push_back({name, Checksum(contents), std::nullopt});
  for (const auto& [name, contents] : after) {
    const auto old = before.find(name);
    if (old == before.end())
      step.push_back({name, std::nullopt, contents});
    else if (old->second != contents)
      step.push_back({name, Checksum(old->second), contents});
  }
  return step;
}

bool StepFits(Disk& disk, const std::string& folder, const DataStep& step) {
  return std::all_of(step.begin(), step.end(),
                     [&](const StepFile& file) { return IsAsBefore(disk, folder, file, false); });
}

void WriteStep(Disk& disk, const std::string& folder, const DataStep& step) {
  WriteNewFile(disk, StepPath(folder), Pack(step));
  disk.SyncFolder(ParentOf(folder));
}

void ApplyStep(Disk& disk, const std::string& folder, const DataStep& step) {
  for (const StepFile& file : step) {
    const std::string path = folder + "/" + file.Name;
    if (file.After)
      WriteFile(disk, path, *file.After);
    else if (disk.Look(path) != Disk::Kind::Nothing)
      disk.Remove(path);
  }
  disk.SyncFolder(folder);
}

void DropStep(Disk& disk, const std::string& folder) {
  RemoveTree(disk, StepPath(folder));
  disk.SyncFolder(ParentOf(folder));
}

std::optional<DataStep> StandingStep(Disk& disk, const std::string& folder) {
  const std::string path = StepPath(folder);
  if (disk.Look(path) != Disk::Kind::File) return std::nullopt;
  const auto packed = ReadWithin(disk, path, MostBytesOfStep());
  auto step = packed ? Unpack(*packed) : std::nullopt;
  const auto fits = [&](const StepFile& file) { return IsAsBefore(disk, folder, file, true); };
  if (!step || !std::all_of(step->begin(), step->end(), fits)) return std::nullopt;
  return step;
}

void FinishStep(Disk& disk, const std::string& folder) {
  if (const auto step = StandingStep(disk, folder)) {
    // It may have been read out of the system's memory only: a process that was killed before its
    // sync leaves that. It must be on disk before the first file follows it.
    WriteFile(disk, StepPath(folder), Pack(*step));
    ApplyStep(disk, folder, *step);
  }
  for (const KnownFile& known : KnownFiles()) RemoveTree(disk, folder + "/" + known.Name + ".tmp");
  RemoveTree(disk, StepPath(folder) + ".tmp");
  if (disk.Look(StepPath(folder)) != Disk::Kind::Nothing) DropStep(disk, folder);
}

void ApplyTo(std::map<std::string, Bytes>& files, const DataStep& step) {
  for (const StepFile& file : step) {
    if (file.After)
      files[file.Name] = *file.After;
    else
      files.erase(file.Name);
  }
}

}  // namespace grapplemont
