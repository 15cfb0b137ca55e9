#include <gtest/gtest.h>

#include "records/store/journalfile.h"
#include "records/store/slot.h"
#include "support/storeworld.h"

// Every call fails, once and for good, with a full disk and with a broken one. Each time somebody
// reads why, the world on disk is a committed one, the same as the one in memory, and the next step
// works once the disk does.

namespace grapplemont::test {
namespace {

struct Trouble {
  DiskFault Kind;
  bool ForGood;
};

/// A player at a slot: the world in memory, and what the last exception left open.
class Player {
 public:
  Player(CutDisk& disk, std::vector<Files> worlds, bool forGood)
      : disk_(disk), worlds_(std::move(worlds)), world_(worlds_[0]), forGood_(forGood) {}

  /// Whether what a refused step had reserved is given back at once; a disk that is broken for good
  /// keeps it until the next opening.
  void ExpectNoLeavings() {
    for (const std::string& name : disk_.List(kStore))
      EXPECT_FALSE(name.ends_with(".room")) << name;
  }

  /// Opens the slot, again if it must.
  void Open() {
    try {
      Load();
    } catch (const DiskError& fault) {
      ExpectMessage(fault, "");
      ExpectOnDisk({world_});
      disk_.Heal();
      Load();
    }
    ASSERT_EQ(world_, slot_->Files());
  }

  void Step(std::size_t number) {
    const Files before = world_;
    if (Try(worlds_[number])) return;
    // A second try while the disk is still at fault changes nothing for the worse.
    if (world_ == before) Try(worlds_[number]);
    disk_.Heal();
    const bool done = world_ != before || Try(worlds_[number]);
    EXPECT_TRUE(done);
    ExpectOnDisk({world_});
  }

  void Leave() {
    try {
      slot_->Checkpoint();
    } catch (const DiskError& fault) {
      ExpectMessage(fault, "");
    }
    slot_.reset();
    disk_.Heal();
    ExpectOnDisk({world_});
  }

  /// What may be on disk: the world in memory, and what was tried since if that is still open.
  const std::vector<Files>& Possible() const { return possible_; }
  const SlotOptions& Options() const { return options_; }

  bool Try(const Files& next) {
    const Files before = world_;
    possible_ = {before, next};
    try {
      slot_->Commit(ChangesBetween(before, next));
      world_ = next;
      possible_ = {world_};
      return true;
    } catch (const DiskError& fault) {
      const std::string text = fault.what();
      if (slot_->Committed()) world_ = next;
      ExpectMessage(fault, slot_->Committed() ? "Your last step is kept" : "was taken back");
      // Only where recovery failed too may the step come up again.
      const bool open = !slot_->Committed() && text.find("until the disk answers") != text.npos;
      possible_ = open ? std::vector{before, next} : std::vector{world_};
      ExpectOnDisk(possible_);
      if (!forGood_) ExpectNoLeavings();
      return false;
    }
  }

 private:
  void Load() {
    slot_.reset();
    slot_ = std::make_unique<Slot>(disk_, kStore, StoreFiles(), Damage::Refuse, options_);
  }

  static void ExpectMessage(const DiskError& fault, const std::string& part) {
    const std::string text = fault.what();
    EXPECT_TRUE(text.starts_with("Could not ") && text.find(part) != text.npos) << text;
  }

  /// Whatever comes next, a new process or a power cut.
  void ExpectOnDisk(const std::vector<Files>& worlds) {
    const int last = static_cast<int>(std::ssize(worlds)) - 1;
    std::string why;
    CutDisk restarted = disk_.Restarted();
    EXPECT_GE(FoundWorld(restarted, worlds, 0, last, options_, &why), 0) << why;
    Chance chance(static_cast<std::uint64_t>(disk_.Calls()));
    for (int i = 0; i < 3; ++i) {
      CutDisk after = disk_.AfterPowerCut(chance);
      EXPECT_GE(FoundWorld(after, worlds, 0, last, options_, &why), 0) << why;
    }
  }

  CutDisk& disk_;
  std::vector<Files> worlds_;
  Files world_;
  bool forGood_;
  std::vector<Files> possible_;
  SlotOptions options_ = SmallJournal();
  std::unique_ptr<Slot> slot_;
};

constexpr int kSteps = 9;

CutDisk DiskWithSlot(const Files& world) {
  CutDisk disk;
  Slot::Create(disk, kStore, NewFiles(world), kStoreId, SmallJournal());
  disk.Record();
  return disk;
}

class FaultyDisks : public testing::TestWithParam<Trouble> {};

/// The calls that failed, one in each run of the same steps.
int PlayOnFaultyDisks(const Trouble& trouble, std::uint64_t seed) {
  const auto worlds = RandomWorlds(kSteps + 1, seed);
  const CutDisk start = DiskWithSlot(worlds[0]);
  int failed = 0;
  for (int call = 1;; ++call) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", call " + std::to_string(call));
    CutDisk disk = start;
    disk.FailCall(call, trouble.Kind, trouble.ForGood);
    Player player(disk, worlds, trouble.ForGood);
    player.Open();
    for (std::size_t step = 1; step <= kSteps; ++step) player.Step(step);
    player.Leave();
    player.Open();
    player.ExpectNoLeavings();
    failed += disk.HasFailed();
    if (disk.Calls() < call || testing::Test::HasFailure()) return failed;
  }
}

TEST_P(FaultyDisks, CostNoWorldOnOpeningCommitsAndCheckpoints) {
  for (const std::uint64_t seed : Seeds(61, 1)) EXPECT_GT(PlayOnFaultyDisks(GetParam(), seed), 60);
}

int CreateOnFaultyDisks(const Trouble& trouble, std::uint64_t seed) {
  const std::vector<Files> worlds{RandomWorlds(1, seed)[0], RandomWorlds(1, seed + 1000)[0]};
  const CutDisk start = DiskWithSlot(worlds[0]);
  int failed = 0;
  for (int call = 1;; ++call) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", call " + std::to_string(call));
    CutDisk disk = start;
    disk.FailCall(call, trouble.Kind, trouble.ForGood);
    bool told = false;
    try {
      Slot::Create(disk, kStore, NewFiles(worlds[1]), 2, SmallJournal());
    } catch (const DiskError& fault) {
      told = true;
      EXPECT_TRUE(std::string(fault.what()).starts_with("Could not ")) << fault.what();
    }
    failed += disk.HasFailed();
    disk.Heal();
    CutDisk restarted = disk.Restarted();
    EXPECT_GE(FoundWorld(restarted, worlds, told ? 0 : 1, 1, SmallJournal()), 0);
    Slot::Create(disk, kStore, NewFiles(worlds[1]), 3, SmallJournal());
    EXPECT_EQ(1, FoundWorld(disk, worlds, 1, 1, SmallJournal()));
    EXPECT_EQ(std::vector<std::string>{kStore}, disk.List("."));
    if (disk.Calls() < call || testing::Test::HasFailure()) return failed;
  }
}

TEST_P(FaultyDisks, CostNoSlotOnACreation) {
  for (const std::uint64_t seed : Seeds(62, 1))
    EXPECT_GT(CreateOnFaultyDisks(GetParam(), seed), 25);
}

INSTANTIATE_TEST_SUITE_P(EveryCall, FaultyDisks,
                         testing::Values(Trouble{DiskFault::NoSpace, false},
                                         Trouble{DiskFault::NoSpace, true},
                                         Trouble{DiskFault::Broken, false},
                                         Trouble{DiskFault::Broken, true}));

/// A sync fails, and the process dies before it can recover: the system shows pages that are not on
/// disk and never will be. A new process builds on them, and then the power goes.
int CutsOnceASyncHasFailed(std::uint64_t seed) {
  const auto worlds = RandomWorlds(kSteps + 1, seed);
  const CutDisk start = DiskWithSlot(worlds[0]);
  int cuts = 0;
  for (int call = 1;; ++call) {
    CutDisk disk = start;
    disk.FailCall(call, DiskFault::Broken, true);
    std::vector<Files> possible{worlds[0]};
    try {
      Player player(disk, worlds, true);
      player.Open();
      for (std::size_t step = 1; step <= kSteps && !disk.HasFailed(); ++step) {
        player.Try(worlds[step]);
        possible = player.Possible();
      }
    } catch (const DiskError&) {
    }
    if (!disk.HasFailed()) return cuts;
    const int last = static_cast<int>(std::ssize(possible)) - 1;
    CutDisk second = disk.Restarted();
    second.Begins(last);
    second.Record();
    std::string why;
    const int found = FoundWorld(second, possible, 0, last, SmallJournal(), &why);
    EXPECT_GE(found, 0) << "call " << call << ": " << why;
    if (found < 0) return cuts;
    second.Begins(found);
    second.Shows(found);
    cuts += ForEveryCut(
        second, 1, static_cast<std::uint64_t>(call), [&](CutDisk& after, const Cut& cut) {
          EXPECT_GE(FoundWorld(after, possible, cut.Least, cut.Most, SmallJournal(), &why), 0)
              << "call " << call << " failed, then cut after " << cut.Where << ": " << why;
        });
  }
}

TEST(AFailedSyncThatNobodyRecoveredFrom, IsNotBuiltUpon) {
  for (const std::uint64_t seed : Seeds(65, 1))
    EXPECT_GT(CutsOnceASyncHasFailed(seed), 2000) << seed;
}

/// After a kill on a full disk: room for what the chain holds and no more.
TEST(AFullDisk, OpensASlotAsSoonAsItsChainFits) {
  const std::vector<Files> worlds = RandomWorlds(5, 97);
  CutDisk disk;
  Slot::Create(disk, kStore, NewFiles(worlds[0]), kStoreId);
  {
    Slot slot(disk, kStore, StoreFiles());
    for (std::size_t i = 1; i < 4; ++i) slot.Commit(ChangesBetween(worlds[i - 1], worlds[i]));
  }
  const Bytes journal = ReadFile(disk, "s1/journal");
  const std::int64_t end = ReadChain(journal, kStoreId, StoreFiles()).End;
  ASSERT_LT(end, 200000);
  disk.HaveRoomFor(end - 1);
  EXPECT_THROW(Slot(disk, kStore, StoreFiles()), DiskError);
  disk.HaveRoomFor(end);
  {
    Slot slot(disk, kStore, StoreFiles());
    EXPECT_EQ(worlds[3], slot.Files());
    EXPECT_EQ(end, std::ssize(ReadFile(disk, "s1/journal")));
    slot.Commit(ChangesBetween(worlds[3], worlds[4]));
  }
  disk.HaveRoomFor(std::nullopt);
  const Slot slot(disk, kStore, StoreFiles());
  EXPECT_EQ(worlds[4], slot.Files());
  EXPECT_TRUE(slot.Remarks().empty());
  EXPECT_EQ(4 << 20, std::ssize(ReadFile(disk, "s1/journal")));
}

}  // namespace
}  // namespace grapplemont::test
