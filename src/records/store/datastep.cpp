#include "records/store/datastep.h"

#include <xxhash.h>

#include <algorithm>
#include <cstring>
#include <string_view>

#include "records/store/knownfiles.h"

namespace grapplemont {

namespace {

constexpr std::string_view kMark = "GMFRSTEP";
constexpr std::uint64_t kWasThere = 1, kIsThere = 2;

std::string StepPath(const std::string& folder) {
  return folder + ".step";
}

std::uint64_t SumOf(ByteSpan bytes) {
  return XXH3_64bits(bytes.data(), bytes.size());
}

void Put(Bytes& to, ByteSpan bytes) {
  to.insert(to.end(), bytes.begin(), bytes.end());
}
void Put(Bytes& to, std::string_view text) {
  Put(to, std::as_bytes(std::span(text)));
}
void Put(Bytes& to, std::uint64_t number) {
  for (int i = 0; i < 8; ++i) to.push_back(static_cast<std::byte>(number >> (8 * i)));
}

/// Takes pieces off the front; whatever would reach beyond the end is empty and ends the reading.
class Pieces {
 public:
  explicit Pieces(ByteSpan bytes) : left_(bytes) {}
  ByteSpan Take(std::uint64_t count) {
    if (count > left_.size()) {
      broken_ = true;
      count = 0;
    }
    const ByteSpan piece = left_.first(static_cast<std::size_t>(count));
    left_ = left_.subspan(piece.size());
    return piece;
  }
  std::uint64_t Number() {
    std::uint64_t number = 0;
    int shift = 0;
    for (const std::byte byte : Take(8)) {
      number |= std::to_integer<std::uint64_t>(byte) << shift;
      shift += 8;
    }
    return number;
  }
  std::string Text() {
    const ByteSpan piece = Take(Number());
    return {reinterpret_cast<const char*>(piece.data()), piece.size()};
  }
  ByteSpan Left() const { return left_; }
  bool Broken() const { return broken_; }

 private:
  ByteSpan left_;
  bool broken_ = false;
};

Bytes Pack(const DataStep& step) {
  Bytes body;
  Put(body, step.size());
  for (const StepFile& file : step) {
    Put(body, file.Name.size());
    Put(body, file.Name);
    Put(body, (file.Before ? kWasThere : 0) | (file.After ? kIsThere : 0));
    Put(body, file.Before.value_or(0));
    Put(body, file.After ? file.After->size() : 0);
    if (file.After) Put(body, ByteSpan(*file.After));
  }
  Bytes packed;
  Put(packed, kMark);
  Put(packed, SumOf(body));
  Put(packed, ByteSpan(body));
  return packed;
}

std::optional<StepFile> UnpackFile(Pieces& pieces) {
  StepFile file;
  file.Name = pieces.Text();
  const std::uint64_t flags = pieces.Number(), before = pieces.Number();
  const ByteSpan after = pieces.Take(pieces.Number());
  if (flags & kWasThere) file.Before = before;
  if (flags & kIsThere) file.After.emplace(after.begin(), after.end());
  const std::int64_t most = MostBytesOf(file.Name);
  const bool isKnown = most > 0 && std::ssize(after) <= most;
  if (pieces.Broken() || !isKnown) return std::nullopt;
  return file;
}

/// Nothing for bytes that are no whole step.
std::optional<DataStep> Unpack(ByteSpan bytes) {
  Pieces pieces(bytes);
  const ByteSpan mark = pieces.Take(kMark.size());
  const std::uint64_t sum = pieces.Number();
  if (pieces.Broken() || std::memcmp(mark.data(), kMark.data(), kMark.size()) != 0 ||
      sum != SumOf(pieces.Left()))
    return std::nullopt;
  DataStep step;
  for (std::uint64_t left = pieces.Number(); left > 0; --left) {
    auto file = UnpackFile(pieces);
    if (!file) return std::nullopt;
    step.push_back(*std::move(file));
  }
  return step;
}

/// More than the step that changes every file.
std::int64_t MostBytesOfStep() {
  constexpr std::int64_t kAround = 1024;  // names, sizes, checksums
  std::int64_t bytes = kAround;
  for (const KnownFile& known : KnownFiles()) bytes += known.MaxBytes + kAround;
  return bytes;
}

/// A checksum of the file; nothing where there is none. `isFile` is false for what no file of the
/// data can be.
std::optional<std::uint64_t> SumAt(Disk& disk, const std::string& folder, const std::string& name,
                                   bool& isFile) {
  const std::string path = folder + "/" + name;
  const Disk::Kind kind = disk.Look(path);
  isFile = kind == Disk::Kind::Nothing;
  if (kind != Disk::Kind::File) return std::nullopt;
  const auto bytes = ReadWithin(disk, path, MostBytesOf(name));
  isFile = bytes.has_value();
  return bytes ? std::optional(SumOf(*bytes)) : std::nullopt;
}

bool IsBefore(Disk& disk, const std::string& folder, const StepFile& file) {
  bool isFile = false;
  return SumAt(disk, folder, file.Name, isFile) == file.Before && isFile;
}

bool IsBeforeOrAfter(Disk& disk, const std::string& folder, const StepFile& file) {
  bool isFile = false;
  const auto sum = SumAt(disk, folder, file.Name, isFile);
  const auto after = file.After ? std::optional(SumOf(*file.After)) : std::nullopt;
  return isFile && (sum == file.Before || sum == after);
}

}  // namespace

DataStep StepOf(const std::vector<FileChange>& changes) {
  DataStep step;
  for (const FileChange& change : changes) {
    StepFile file{change.Name, {}, {}};
    if (change.ExistsBefore) file.Before = SumOf(change.Before);
    if (change.ExistsAfter) file.After.emplace(change.After.begin(), change.After.end());
    step.push_back(std::move(file));
  }
  return step;
}

bool StepFits(Disk& disk, const std::string& folder, const DataStep& step) {
  return std::all_of(step.begin(), step.end(),
                     [&](const StepFile& file) { return IsBefore(disk, folder, file); });
}

void WriteStep(Disk& disk, const std::string& folder, const DataStep& step) {
  {
    const OpenedFile file(disk, StepPath(folder), true);
    disk.Resize(file, 0);
    disk.WriteAt(file, 0, Pack(step));
    disk.Sync(file);
  }
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
  const auto fits = [&](const StepFile& file) { return IsBeforeOrAfter(disk, folder, file); };
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
