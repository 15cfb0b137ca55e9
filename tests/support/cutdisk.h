#pragma once

#include <functional>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "support/diskstate.h"

// A disk in memory that records every call, cuts the power after any of them, and fails.
//
// Power cuts: do the work once while the disk records, telling it which worlds may and must be
// found from then on; then look at every moment of it.
//
//   CutDisk disk;
//   Slot::Create(disk, "s1", ...);            // not part of the test: before Record
//   disk.Record();
//   for (int world = 1; world < 9; ++world) {
//     disk.Begins(world);                     // from here on world `world` may be found
//     slot.Commit(...);
//     disk.Shows(world);                      // from here on nothing older may be found
//   }
//   ForEveryCut(disk, 20, seed, [&](CutDisk& after, const Cut& cut) {
//     Slot slot(after, "s1", known);          // the real code; must not throw
//     EXPECT_TRUE(slot.Files() is one of worlds cut.Least .. cut.Most) << cut.Where;
//   });
//
// `after` records too once told to, so cuts within a recovery are a ForEveryCut in the callback.
// ForEveryDeath does the same with processes that are killed: what they wrote is seen, not synced.
//
// Each test's cuts, deaths and failing calls are counted, and stand in the report that
// --gtest_output writes. POWER_CUTS=N makes N times as many where a test asks Often; scripts/cuts
// makes very many.
//
// Faults: FailCall(n, ...) before the work; the n-th call from then on throws DiskError. Count the
// calls of a run without faults first: `Calls()`.

namespace grapplemont::test {

/// N times the usual, as POWER_CUTS says: of stories and of cuts at a moment.
int Often(int usual);
/// What `wrong` is, one step of a protocol left out, and in how many of its cuts that was found.
void NoteVariant(const std::string& wrong, int bad, int cuts);

enum class DiskFault { NoSpace, Broken };

class CutDisk : public Disk {
 public:
  CutDisk() = default;
  explicit CutDisk(DiskState state) : state_(std::move(state)) {}

  // What a test does to it.
  /// Forgets the calls so far and records from here on.
  void Record();
  void Begins(int world) { most_ = world; }
  void Shows(int world) { least_ = world; }
  int Calls() const { return calls_; }
  /// The most bytes that one call has read.
  std::size_t LongestRead() const { return longestRead_; }
  /// Lets the n-th call from now on (from 1) fail, once or from then on for good. A full disk fails
  /// only calls that may need room, a broken one all that can fail.
  void FailCall(int n, DiskFault fault, bool forGood);
  /// Whether a call has failed since FailCall.
  bool HasFailed() const { return failedAt_ >= 0; }
  /// After how many recorded calls that was.
  int FailedAt() const { return failedAt_; }
  /// The disk answers again.
  void Heal() { failAt_ = 0; }
  /// Nearly full: no file can be made longer than this, or there is room for all.
  void HaveRoomFor(std::optional<std::int64_t> bytes) { room_ = bytes; }
  /// The same disk under a new process: nothing open, nothing locked.
  CutDisk Restarted() const { return CutDisk(state_); }
  /// The same disk after a power cut.
  CutDisk AfterPowerCut(Chance& chance) const { return CutDisk(state_.AfterPowerCut(chance)); }
  /// Lies: a sync of a path that ends so does nothing.
  void IgnoreSyncs(std::string pathEnd) { ignoredSyncs_ = std::move(pathEnd); }
  /// As a file system without a swap in one step.
  void KnowNoExchange() { exchanges_ = false; }

  Kind Look(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder) override;
  Handle Open(const std::string& path, bool create) override;
  void Close(Handle file) override;
  std::int64_t Size(Handle file) override;
  bool IsAt(Handle file, const std::string& path) override;
  /// Knows every change of names at once.
  std::optional<FolderState> StateOf(const std::string& folder) override;
  void ReadAt(Handle file, std::int64_t offset, std::span<std::byte> buffer) override;
  void WriteAt(Handle file, std::int64_t offset, ByteSpan bytes) override;
  void Sync(Handle file) override;
  void SyncFolder(const std::string& folder) override;
  void Allocate(Handle file, std::int64_t size) override;
  void Resize(Handle file, std::int64_t size) override;
  void Rename(const std::string& from, const std::string& to) override;
  bool Exchange(const std::string& a, const std::string& b) override;
  void Remove(const std::string& path) override;
  void MakeFolder(const std::string& path) override;
  bool Lock(const std::string& path) override;
  void Unlock(const std::string& path) override;

 private:
  friend void ForEveryMoment(const CutDisk& disk,
                             const std::function<void(const DiskState&, const struct Cut&)>& look);
  using Change = std::function<void(DiskState&)>;
  struct Moment {
    std::string Call;
    Change Apply;
    int Least, Most;
  };
  struct OpenHandle {
    DiskState::Node File;
    std::string Path;
  };
  enum class Need { Room, Nothing };

  /// Counts the call; true when it is to fail.
  bool Counts(Need need);
  void Begin(const std::string& path, const char* action, Need need);
  void Do(std::string call, Change change);
  std::optional<DiskState::Node> Find(const std::string& path) const;
  DiskState::Node Require(const std::string& path, const char* action) const;
  const OpenHandle& Of(Handle file) const;

  DiskState state_;
  std::map<Handle, OpenHandle> open_;
  std::set<std::string> locks_;
  Handle nextHandle_ = 1;
  bool exchanges_ = true;
  std::string ignoredSyncs_;
  int calls_ = 0, failAt_ = 0;
  DiskFault fault_ = DiskFault::Broken;
  std::optional<std::int64_t> room_;
  bool failForGood_ = false;
  int failedAt_ = -1;
  std::size_t longestRead_ = 0;
  bool recording_ = false;
  DiskState start_;
  std::vector<Moment> moments_;
  int least_ = 0, most_ = 0;
};

/// A file of any length, for what a test has written itself.
inline Bytes ReadFile(Disk& disk, const std::string& path) {
  return ReadStart(disk, path, std::numeric_limits<std::int64_t>::max());
}

/// A moment of a recorded run.
struct Cut {
  int Index = 0;
  std::string Where;        // the last call before it
  int Least = 0, Most = 0;  // the worlds that may be found: Shows and Begins so far
};

using Check = std::function<void(CutDisk& after, const Cut& cut)>;

/// Cuts the power `each` times after every recorded call (and before the first), or after those
/// from one on. Returns how many cuts that were.
int ForEveryCut(const CutDisk& disk, int each, std::uint64_t seed, const Check& check,
                int from = 0);
/// `count` power cuts, each at a moment that is drawn.
int ForSomeCuts(const CutDisk& disk, int count, std::uint64_t seed, const Check& check);
/// Kills the process after every recorded call.
int ForEveryDeath(const CutDisk& disk, const Check& check);

}  // namespace grapplemont::test
