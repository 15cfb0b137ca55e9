#include <gtest/gtest.h>

#include "records/store/slotfolder.h"
#include "support/storeworld.h"
#include "support/thrown.h"

// Files of an open slot that another program has cut short or lengthened.

namespace grapplemont::test {
namespace {

/// An open slot of which everything is known as of its last commit.
class OpenSlot {
 public:
  OpenSlot(CutDisk& disk, const std::vector<Files>& worlds) : worlds_(worlds) {
    SlotOptions options = SmallJournal();
    options.JournalBytes = 1 << 20;  // so that it is emptied at the end alone
    Slot::Create(disk, kStore, NewFiles(worlds[0]), kStoreId, options);
    options.Contents = [this](const std::string& file) { return worlds_[at_].at(file); };
    slot_ = std::make_unique<Slot>(disk, kStore, StoreFiles(), Damage::Refuse, options);
  }
  void CommitUntil(std::size_t world) {
    for (; at_ < world; ++at_) slot_->Commit(ChangesBetween(worlds_[at_], worlds_[at_ + 1]));
  }
  void Leave() { slot_->Checkpoint(); }

 private:
  const std::vector<Files>& worlds_;
  std::size_t at_ = 0;
  std::unique_ptr<Slot> slot_;
};

std::string PathIn(const std::string& name) {
  return kStore + ("/" + name);
}

TEST(AFileCutShort, IsWrittenWholeByTheNextStepOrOnLeaving) {
  const auto worlds = RandomWorlds(6, 91);
  int cut = 0;
  for (const auto& [name, contents] : worlds[4])
    for (const std::size_t last : {4U, 5U}) {
      if (contents.empty()) continue;
      SCOPED_TRACE(name + ", left in world " + std::to_string(last));
      CutDisk disk;
      {
        OpenSlot slot(disk, worlds);
        slot.CommitUntil(4);
        disk.Resize(OpenedFile(disk, PathIn(name), false), std::ssize(contents) / 2);
        slot.CommitUntil(last);
        slot.Leave();
      }
      CutDisk later = disk.Restarted();
      const Slot slot(later, kStore, StoreFiles());
      EXPECT_TRUE(Same(slot.Files(), worlds[last]));
      EXPECT_TRUE(slot.Remarks().empty());
      ++cut;
    }
  EXPECT_GT(cut, 8);
}

TEST(AFileCutShort, LeavesTheJournalAsItIsWhereNobodyKnowsTheRest) {
  const auto worlds = RandomWorlds(9, 91);
  const std::string name = ChangesBetween(worlds[0], worlds[1]).front().Name;
  CutDisk disk;
  Slot::Create(disk, kStore, NewFiles(worlds[0]), kStoreId, SmallJournal());
  {
    Slot slot(disk, kStore, StoreFiles(), Damage::Refuse, SmallJournal());
    const auto changes = ChangesBetween(worlds[0], worlds[1]);
    slot.Commit(changes);
    ASSERT_TRUE(changes.front().ExistsAfter);
    const OpenedFile file(disk, PathIn(name), false);
    disk.Resize(file, disk.Size(file) + 5);
    for (std::size_t world = 2; world < worlds.size(); ++world) {
      auto further = ChangesBetween(worlds[world - 1], worlds[world]);
      std::erase_if(further, [&](const FileChange& change) {
        return change.Name == name;  // which would mend it
      });
      slot.Commit(further);
    }
    const std::string why = ThrownBy<DiskError>([&] { slot.Checkpoint(); });
    EXPECT_NE(why.find(name), why.npos) << why;
    EXPECT_NE(why.find("another program changed it"), why.npos) << why;
  }
  CutDisk later = disk.Restarted();
  const Slot slot(later, kStore, StoreFiles(), Damage::Refuse, SmallJournal());
  Files expected = worlds.back();
  expected[name] = worlds[1].at(name);
  EXPECT_TRUE(Same(slot.Files(), expected)) << "the journal still has all steps";
}

TEST(AFileOfUnknownLength, IsNotTakenForAnEmptyOne) {
  CutDisk disk;
  disk.MakeFolder("s1");
  WriteFile(disk, "s1/tv.dat", BytesOf("a long file"));
  SlotFiles files(disk, "s1");
  disk.FailCall(2, DiskFault::Broken, false);  // behind the opening
  EXPECT_THROW(files.Reserve("tv.dat", 20), DiskError);
  disk.Heal();
  const Bytes fresh = BytesOf("short");
  files.Apply({"tv.dat", true, std::ssize(fresh), {{0, fresh}}});
  EXPECT_EQ(ReadFile(disk, "s1/tv.dat"), fresh);
}

}  // namespace
}  // namespace grapplemont::test
