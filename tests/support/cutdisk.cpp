#include "support/cutdisk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <utility>

namespace grapplemont::test {

namespace {

struct Place {
  std::string Folder, Name;
};

Place PlaceOf(const std::string& path) {
  const auto slash = path.rfind('/');
  return slash == std::string::npos ? Place{"", path}
                                    : Place{path.substr(0, slash), path.substr(slash + 1)};
}

const char* ReasonOf(DiskFault fault) {
  return fault == DiskFault::NoSpace ? "No space left on device" : "Input/output error";
}

/// Adds to what the test that runs has come to. Nothing where none does.
void Count(const char* what, int more) {
  static std::map<std::string, int> sums;
  static const testing::TestInfo* counted = nullptr;
  const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
  if (!test) return;
  if (std::exchange(counted, test) != test) sums.clear();
  testing::Test::RecordProperty(what, sums[what] += more);
}

}  // namespace

int Often(int usual) {
  const char* const times = std::getenv("POWER_CUTS");
  return usual * (times ? std::max(1, std::atoi(times)) : 1);
}

void NoteVariant(const std::string& wrong, int bad, int cuts) {
  std::string key = "without " + wrong;
  std::ranges::replace(key, ' ', '_');
  testing::Test::RecordProperty(key, std::to_string(bad) + " of " + std::to_string(cuts));
}

void CutDisk::Record() {
  recording_ = true;
  calls_ = 0;
  start_ = state_;
  moments_.clear();
}

void CutDisk::FailCall(int n, DiskFault fault, bool forGood) {
  failAt_ = calls_ + n;
  fault_ = fault;
  failForGood_ = forGood;
  failedAt_ = -1;
}

bool CutDisk::Counts(Need need) {
  ++calls_;
  if (failAt_ == 0 || calls_ < failAt_ || (calls_ > failAt_ && !failForGood_)) return false;
  if (fault_ == DiskFault::NoSpace && need == Need::Nothing) return false;
  if (failedAt_ < 0) {
    failedAt_ = static_cast<int>(moments_.size());
    Count("failing_calls", 1);
  }
  return true;
}

void CutDisk::Begin(const std::string& path, const char* action, Need need) {
  if (Counts(need)) throw DiskError(path, action, ReasonOf(fault_));
}

void CutDisk::Do(std::string call, Change change) {
  change(state_);
  if (recording_) moments_.push_back({std::move(call), std::move(change), least_, most_});
}

std::optional<DiskState::Node> CutDisk::Find(const std::string& path) const {
  DiskState::Node node = DiskState::kRoot;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t end = std::min(path.find('/', at), path.size());
    const std::string name = path.substr(at, end - at);
    at = end + 1;
    if (name.empty() || name == ".") continue;
    if (!state_.IsFolder(node)) return std::nullopt;
    const auto next = state_.Find(node, name);
    if (!next) return std::nullopt;
    node = *next;
  }
  return node;
}

DiskState::Node CutDisk::Require(const std::string& path, const char* action) const {
  const auto node = Find(path);
  if (!node) throw DiskError(path, action, "No such file or directory");
  return *node;
}

const CutDisk::OpenHandle& CutDisk::Of(Handle file) const {
  const auto found = open_.find(file);
  if (found == open_.end()) throw std::logic_error("A closed file was used.");
  return found->second;
}

Disk::Kind CutDisk::Look(const std::string& path) {
  Begin(path, "look at", Need::Nothing);
  const auto node = Find(path);
  if (!node) return Kind::Nothing;
  return state_.IsFolder(*node) ? Kind::Folder : Kind::File;
}

std::vector<std::string> CutDisk::List(const std::string& folder) {
  Begin(folder, "read the folder", Need::Nothing);
  std::vector<std::string> names;
  for (const auto& [name, node] : state_.Names(Require(folder, "read the folder")))
    names.push_back(name);
  return names;
}

Disk::Handle CutDisk::Open(const std::string& path, bool create) {
  auto node = Find(path);
  const bool makes = create && !node;
  Begin(path, makes ? "create" : "open", makes ? Need::Room : Need::Nothing);
  if (makes) {
    const auto [folder, name] = PlaceOf(path);
    const DiskState::Node parent = Require(folder, "create");
    Do("create " + path,
       [parent, name = name](DiskState& state) { state.Make(parent, name, false); });
    node = Find(path);
  }
  if (!node || state_.IsFolder(*node)) throw DiskError(path, "open", "No such file");
  open_[nextHandle_] = {*node, path};
  return nextHandle_++;
}

void CutDisk::Close(Handle file) {
  open_.erase(file);
}

std::int64_t CutDisk::Size(Handle file) {
  Begin(Of(file).Path, "measure", Need::Nothing);
  return state_.Contents(Of(file).File).Size();
}

std::optional<FolderState> CutDisk::StateOf(const std::string& folder) {
  const auto found = Find(folder);
  if (!found || !state_.IsFolder(*found)) return std::nullopt;
  FolderState state{0, static_cast<std::uint64_t>(*found)};
  for (const auto& [name, node] : state_.Names(*found)) {
    const std::size_t entry = std::hash<std::string>()(name) + static_cast<std::size_t>(node);
    state.Seconds =
        static_cast<std::int64_t>(static_cast<std::uint64_t>(state.Seconds) * 31 + entry);
  }
  return state;
}

bool CutDisk::IsAt(Handle file, const std::string& path) {
  Begin(path, "look at", Need::Nothing);
  return Find(path) == Of(file).File;
}

void CutDisk::ReadAt(Handle file, std::int64_t offset, std::span<std::byte> buffer) {
  const OpenHandle& of = Of(file);
  Begin(of.Path, "read", Need::Nothing);
  const PagedBytes& contents = state_.Contents(of.File);
  if (offset + std::ssize(buffer) > contents.Size())
    throw DiskError(of.Path, "read", "it is shorter than expected");
  longestRead_ = std::max(longestRead_, buffer.size());
  contents.Read(offset, buffer);
}

void CutDisk::WriteAt(Handle file, std::int64_t offset, ByteSpan bytes) {
  const OpenHandle& of = Of(file);
  const bool fails = Counts(Need::Room);
  // A write that fails has often begun.
  if (fails) bytes = bytes.first(bytes.size() / 2);
  if (!recording_)
    state_.Write(of.File, offset, bytes);
  else
    Do("write " + of.Path + " at " + std::to_string(offset) + ", " + std::to_string(bytes.size()),
       [node = of.File, offset, copy = Bytes(bytes.begin(), bytes.end())](DiskState& state) {
         state.Write(node, offset, copy);
       });
  if (fails) throw DiskError(of.Path, "write", ReasonOf(fault_));
}

void CutDisk::Sync(Handle file) {
  const OpenHandle& of = Of(file);
  if (Counts(Need::Room)) {
    Do("sync in vain " + of.Path, [node = of.File, seed = calls_](DiskState& state) {
      Chance chance(static_cast<std::uint64_t>(seed));
      state.FailSync(node, chance);
    });
    throw DiskError(of.Path, "secure", ReasonOf(fault_));
  }
  if (!ignoredSyncs_.empty() && of.Path.ends_with(ignoredSyncs_)) return;
  Do("sync " + of.Path, [node = of.File](DiskState& state) { state.Sync(node); });
}

void CutDisk::SyncFolder(const std::string& folder) {
  Begin(folder, "secure the folder", Need::Room);
  if (!ignoredSyncs_.empty() && folder.ends_with(ignoredSyncs_)) return;
  Do("sync folder " + folder,
     [node = Require(folder, "secure")](DiskState& state) { state.SyncFolder(node); });
}

void CutDisk::Allocate(Handle file, std::int64_t size) {
  const OpenHandle& of = Of(file);
  Begin(of.Path, "reserve room for", Need::Room);
  if (room_ && size > std::max(*room_, state_.Contents(of.File).Size()))
    throw DiskError(of.Path, "reserve room for", ReasonOf(DiskFault::NoSpace));
}

void CutDisk::Resize(Handle file, std::int64_t size) {
  const OpenHandle& of = Of(file);
  Begin(of.Path, "resize", Need::Room);
  Do("resize " + of.Path + " to " + std::to_string(size),
     [node = of.File, size](DiskState& state) { state.Resize(node, size); });
}

void CutDisk::Rename(const std::string& from, const std::string& to) {
  Begin(from, "rename", Need::Room);
  const DiskState::Node moved = Require(from, "rename");
  const auto [fromFolder, fromName] = PlaceOf(from);
  const auto [toFolder, toName] = PlaceOf(to);
  if (const auto there = Find(to); there && (state_.IsFolder(*there) || state_.IsFolder(moved)))
    throw DiskError(to, "rename to", "File exists");
  Do("rename " + from + " to " + to,
     [folder = Require(fromFolder, "rename"), target = Require(toFolder, "rename to"), moved,
      a = fromName, b = toName](DiskState& state) {
       if (folder == target)
         state.Rename(folder, {{a, std::nullopt}, {b, moved}});
       else
         state.Move(folder, a, target, b);
     });
}

bool CutDisk::Exchange(const std::string& a, const std::string& b) {
  Begin(a, "swap in", Need::Room);
  if (!exchanges_) return false;
  const DiskState::Node nodeA = Require(a, "swap in"), nodeB = Require(b, "swap in");
  const auto [folderA, nameA] = PlaceOf(a);
  const auto [folderB, nameB] = PlaceOf(b);
  if (folderA != folderB) throw std::logic_error("A swap between folders.");
  Do("exchange " + a + " and " + nameB, [folder = Require(folderA, "swap"), nodeA, nodeB,
                                         first = nameA, second = nameB](DiskState& state) {
    state.Rename(folder, {{first, nodeB}, {second, nodeA}});
  });
  return true;
}

void CutDisk::Remove(const std::string& path) {
  Begin(path, "remove", Need::Nothing);
  const DiskState::Node node = Require(path, "remove");
  if (state_.IsFolder(node) && !state_.Names(node).empty())
    throw DiskError(path, "remove", "Directory not empty");
  const auto [folder, name] = PlaceOf(path);
  Do("remove " + path, [parent = Require(folder, "remove"), name = name](DiskState& state) {
    state.Rename(parent, {{name, std::nullopt}});
  });
}

void CutDisk::MakeFolder(const std::string& path) {
  Begin(path, "make the folder", Need::Room);
  if (Find(path)) return;
  const auto [folder, name] = PlaceOf(path);
  Do("make folder " + path, [parent = Require(folder, "make"), name = name](DiskState& state) {
    state.Make(parent, name, true);
  });
}

bool CutDisk::Lock(const std::string& path) {
  Begin(path, "lock", Need::Nothing);
  return locks_.insert(path).second;
}

void CutDisk::Unlock(const std::string& path) {
  locks_.erase(path);
}

void ForEveryMoment(const CutDisk& disk,
                    const std::function<void(const DiskState&, const Cut&)>& look) {
  DiskState state = disk.start_;
  Cut cut{0, "before the first call", 0, 0};
  if (!disk.moments_.empty()) cut.Least = disk.moments_[0].Least, cut.Most = disk.moments_[0].Most;
  look(state, cut);
  for (std::size_t i = 0; i < disk.moments_.size(); ++i) {
    const auto& moment = disk.moments_[i];
    moment.Apply(state);
    cut = {static_cast<int>(i) + 1, moment.Call, moment.Least, moment.Most};
    look(state, cut);
    // The moment behind a commit that has returned is one of its own.
    const bool last = i + 1 == disk.moments_.size();
    const int least = last ? disk.least_ : disk.moments_[i + 1].Least;
    const int most = last ? disk.most_ : disk.moments_[i + 1].Most;
    if (least == moment.Least) continue;
    cut.Least = least, cut.Most = most;
    look(state, cut);
  }
}

int ForEveryCut(const CutDisk& disk, int each, std::uint64_t seed, const Check& check, int from) {
  Chance chance(seed);
  int cuts = 0;
  ForEveryMoment(disk, [&](const DiskState& state, const Cut& cut) {
    if (cut.Index < from) return;
    for (int i = 0; i < each; ++i, ++cuts) {
      CutDisk after(state.AfterPowerCut(chance));
      check(after, cut);
    }
  });
  Count("cuts", cuts);
  return cuts;
}

int ForSomeCuts(const CutDisk& disk, int count, std::uint64_t seed, const Check& check) {
  Chance chance(seed);
  int moments = 0;
  ForEveryMoment(disk, [&](const DiskState&, const Cut&) { ++moments; });
  std::vector<int> cutsAt(static_cast<std::size_t>(moments));
  for (int i = 0; i < count; ++i) ++cutsAt[Pick(chance, static_cast<std::uint64_t>(moments))];
  std::size_t at = 0;
  ForEveryMoment(disk, [&](const DiskState& state, const Cut& cut) {
    for (int i = cutsAt[at++]; i > 0; --i) {
      CutDisk after(state.AfterPowerCut(chance));
      check(after, cut);
    }
  });
  Count("cuts", count);
  return count;
}

int ForEveryDeath(const CutDisk& disk, const Check& check) {
  int deaths = 0;
  ForEveryMoment(disk, [&](const DiskState& state, const Cut& cut) {
    CutDisk after(state);
    check(after, cut);
    ++deaths;
  });
  Count("deaths", deaths);
  return deaths;
}

}  // namespace grapplemont::test
