#include "records/slot.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "records/journalchain.h"
#include "support/scratchfolder.h"
#include "support/storeworld.h"

namespace grapplemont::test {
namespace {

/// A slot on the machine's own disk, with a few worlds to commit to it.
class ASlot : public testing::Test {
 protected:
  void SetUp() override { Slot::Create(*disk_, folder_, NewFiles(worlds_[0]), kStoreId); }

  std::unique_ptr<Slot> Open(Damage damage = Damage::Refuse) {
    return std::make_unique<Slot>(*disk_, folder_, StoreFiles(), damage);
  }
  /// Commits worlds first to last, without a clean exit. Tells where each record begins.
  std::vector<std::int64_t> Commit(std::size_t first, std::size_t last) {
    std::vector<std::int64_t> places;
    const auto slot = Open();
    for (std::size_t world = first; world <= last; ++world) {
      const auto journal = ReadFile(*disk_, At("journal"));
      places.push_back(ReadChain(journal, kStoreId, StoreFiles()).End);
      slot->Commit(ChangesBetween(worlds_[world - 1], worlds_[world]));
    }
    return places;
  }
  std::string At(const std::string& name) const { return folder_ + "/" + name; }
  void Spoil(const std::string& name, std::int64_t at) {
    const OpenedFile file(*disk_, At(name), false);
    Bytes byte(1);
    disk_->ReadAt(file, at, byte);
    byte[0] ^= std::byte{0x10};
    disk_->WriteAt(file, at, byte);
  }
  /// Every file of a folder.
  Files All(const std::string& folder) {
    Files all;
    for (const std::string& name : disk_->List(folder))
      all[name] = ReadFile(*disk_, folder + "/" + name);
    return all;
  }
  /// Puts the record files of a world where they are, as if later ones had never reached them.
  void PutFiles(const Files& world) {
    for (const KnownFile& known : StoreFiles()) RemoveTree(*disk_, At(known.Name));
    for (const auto& [name, contents] : world) WriteFile(*disk_, At(name), contents);
  }
  bool Remarked(const Slot& slot, const std::string& part) {
    for (const std::string& remark : slot.Remarks())
      if (remark.find(part) != remark.npos) return true;
    return false;
  }

  ScratchFolder scratch_;
  std::string folder_ = scratch_ / "s1";
  std::unique_ptr<Disk> disk_ = RealDisk();
  std::vector<Files> worlds_ = RandomWorlds(9, 91);
};

TEST_F(ASlot, GivesBackEveryCommitAfterACleanExitAndWithoutOne) {
  EXPECT_EQ(worlds_[0], Open()->Files());
  Commit(1, 5);
  EXPECT_EQ(worlds_[5], Open()->Files());
  {
    const auto slot = Open();
    slot->Commit(ChangesBetween(worlds_[5], worlds_[6]));
    EXPECT_TRUE(slot->Committed());
    slot->Checkpoint();
    slot->Checkpoint();
  }
  const auto slot = Open();
  EXPECT_EQ(worlds_[6], slot->Files());
  EXPECT_TRUE(slot->Remarks().empty());
  slot->Forget();
  EXPECT_TRUE(slot->Files().empty());
}

TEST_F(ASlot, HoldsEveryCommitInItsRecordFilesAtOnce) {
  const auto slot = Open();
  for (std::size_t world = 1; world < worlds_.size(); ++world) {
    slot->Commit(ChangesBetween(worlds_[world - 1], worlds_[world]));
    Files now = All(folder_);
    now.erase("journal");
    now.erase("world.id");
    ASSERT_EQ(worlds_[world], now) << world;
  }
}

TEST_F(ASlot, KeepsCommitsWithoutSyncsThroughAKilledProcess) {
  disk_ = RealDisk(Syncs::None);
  Commit(1, 5);
  EXPECT_EQ(worlds_[5], Open()->Files());
}

TEST_F(ASlot, IsBusyForASecondProgramWhichChangesNothing) {
  auto first = Open();
  first->Commit(ChangesBetween(worlds_[0], worlds_[1]));
  const Files before = All(folder_);
  const auto other = RealDisk();
  const std::vector<NewFile> files = NewFiles(worlds_[2]);
  for (Disk* disk : {other.get(), disk_.get()}) {
    EXPECT_THROW(Slot(*disk, folder_, StoreFiles()), SlotBusy);
    EXPECT_THROW(Slot(*disk, folder_, StoreFiles(), Damage::Drop), SlotBusy);
    EXPECT_THROW(Slot::Create(*disk, folder_, files, 2), SlotBusy);
  }
  EXPECT_EQ(before, All(folder_));
  EXPECT_EQ((std::vector<std::string>{"s1", "s1.lock"}), disk_->List(ParentOf(folder_)));
  first->Commit(ChangesBetween(worlds_[1], worlds_[2]));
  first.reset();
  EXPECT_EQ(worlds_[2], Slot(*other, folder_, StoreFiles()).Files());
}

TEST_F(ASlot, OutlivesTheProcessThatHadIt) {
  const pid_t child = ::fork();
  if (child == 0) {
    const auto disk = RealDisk();
    Slot slot(*disk, folder_, StoreFiles());
    for (std::size_t world = 1; world <= 4; ++world)
      slot.Commit(ChangesBetween(worlds_[world - 1], worlds_[world]));
    ::_exit(0);  // nothing is closed, nothing unlocked
  }
  int status = 1;
  ASSERT_EQ(child, ::waitpid(child, &status, 0));
  ASSERT_EQ(0, status);
  EXPECT_EQ(worlds_[4], Open()->Files());
}

TEST_F(ASlot, IsReplacedByANewOneBesideSomebodysOwnFiles) {
  Commit(1, 4);
  WriteFile(*disk_, At("stray.txt"), BytesOf("x"));
  disk_->MakeFolder(At("pictures"));
  WriteFile(*disk_, At("pictures/one"), BytesOf("1"));
  std::filesystem::create_symlink("/nowhere", At("link"));
  Slot::Create(*disk_, folder_, NewFiles(worlds_[7]), 2);
  EXPECT_EQ(worlds_[7], Open()->Files());
  EXPECT_EQ((std::vector<std::string>{"s1", "s1.lock"}), disk_->List(ParentOf(folder_)));
  EXPECT_EQ(BytesOf("x"), ReadFile(*disk_, At("stray.txt")));
  EXPECT_EQ(BytesOf("1"), ReadFile(*disk_, At("pictures/one")));
  EXPECT_EQ(Disk::Kind::Other, disk_->Look(At("link")));
}

TEST_F(ASlot, IsNotMadeWhereSomethingElseStands) {
  disk_->MakeFolder(At("match.dat.tmp"));
  EXPECT_THROW(Slot::Create(*disk_, folder_, {}, 2), DiskError) << "a folder by a slot's name";
  EXPECT_EQ(worlds_[0], Open()->Files());
  WriteFile(*disk_, scratch_ / "s2", BytesOf("a file"));
  EXPECT_THROW(Slot::Create(*disk_, scratch_ / "s2", {}, 2), DiskError);
  EXPECT_EQ(BytesOf("a file"), ReadFile(*disk_, scratch_ / "s2"));
  EXPECT_THROW(Slot(*disk_, scratch_ / "s2", StoreFiles()), DiskError);
  EXPECT_THROW(Slot(*disk_, scratch_ / "s3", StoreFiles()), DiskError);
  EXPECT_EQ(Disk::Kind::Nothing, disk_->Look(scratch_ / "s3.lock"));
}

TEST_F(ASlot, RefusesAFileThatIsNoneOfItsOwnBeforeItPromisesAnything) {
  const auto slot = Open();
  const Bytes huge(30000), little(1);
  EXPECT_THROW(slot->Commit({{"passwd", false, true, {}, little}}), std::invalid_argument);
  EXPECT_THROW(slot->Commit({{"tv.dat", false, true, {}, huge}}), std::invalid_argument);
  EXPECT_FALSE(slot->Committed());
  slot->Commit({});
  EXPECT_TRUE(slot->Committed());
  slot->Commit(ChangesBetween(worlds_[0], worlds_[1]));
}

TEST_F(ASlot, ShowsAFileAsItWouldBeWithoutTouchingAnything) {
  Commit(1, 5);
  PutFiles(worlds_[2]);  // as after a power cut: the files are behind the journal
  const Files before = All(folder_);
  for (const KnownFile& known : StoreFiles()) {
    const auto file = Slot::Peek(*disk_, folder_, StoreFiles(), known.Name);
    ASSERT_EQ(worlds_[5].contains(known.Name), file.has_value()) << known.Name;
    if (file) {
      EXPECT_EQ(worlds_[5].at(known.Name), *file) << known.Name;
    }
  }
  EXPECT_EQ(before, All(folder_));
  EXPECT_FALSE(Slot::Peek(*disk_, scratch_ / "s2", StoreFiles(), "tv.dat"));
}

// Damage.

class ADamagedSlot : public ASlot {
 protected:
  /// Expects a refusal that changes nothing, then takes what is good.
  std::unique_ptr<Slot> RefusedThenRescued() {
    const Files before = All(folder_);
    std::string copy;
    try {
      Open();
      ADD_FAILURE() << "was not refused";
    } catch (const SlotDamaged& damage) {
      copy = damage.CopyFolder();
      EXPECT_NE(std::string(damage.what()).find(copy), std::string::npos);
    }
    EXPECT_EQ(before, All(folder_));
    EXPECT_EQ(Disk::Kind::Nothing, disk_->Look(copy));
    auto slot = Open(Damage::Drop);
    EXPECT_EQ(before, All(copy));
    EXPECT_TRUE(Remarked(*slot, copy));
    return slot;
  }
  void ExpectToGoOn(std::unique_ptr<Slot> slot) {
    const Files before = slot->Files();
    Files after = before;
    after["news.dat"] = BytesOf("On we go.");
    slot->Commit(ChangesBetween(before, after));
    slot.reset();
    slot = Open();
    EXPECT_EQ(after, slot->Files());
    EXPECT_TRUE(slot->Remarks().empty());
  }
};

TEST_F(ADamagedSlot, LosesNothingWhereItsFilesHoldEveryStep) {
  const auto places = Commit(1, 5);
  Spoil("journal", places[2] + 300);
  auto slot = RefusedThenRescued();
  EXPECT_EQ(worlds_[5], slot->Files());
  EXPECT_TRUE(Remarked(*slot, "every step could be found"));
  ExpectToGoOn(std::move(slot));
}

TEST_F(ADamagedSlot, GoesBackBeforeTheDamageWhereLaterStepsHadNotReachedTheFiles) {
  const auto places = Commit(1, 5);
  PutFiles(worlds_[0]);
  Spoil("journal", places[2] + 300);
  auto slot = RefusedThenRescued();
  EXPECT_EQ(worlds_[2], slot->Files());
  EXPECT_TRUE(Remarked(*slot, "goes on from before the damage."));
  ExpectToGoOn(std::move(slot));
}

TEST_F(ADamagedSlot, SaysSoWhereNoWholeWorldCanBeProven) {
  const auto places = Commit(1, 5);
  Files mixed = worlds_[1];
  mixed["promos.dat"] = BytesOf("parts of a later step");
  PutFiles(mixed);
  Spoil("journal", places[0] + 300);
  auto slot = RefusedThenRescued();
  EXPECT_TRUE(Remarked(*slot, "may hold parts of later steps"));
  ExpectToGoOn(std::move(slot));
}

TEST_F(ADamagedSlot, IsOneWhoseIdIsSpoiledToo) {
  Commit(1, 3);
  Spoil("world.id", 3);
  auto slot = RefusedThenRescued();
  EXPECT_EQ(worlds_[3], slot->Files());
  ExpectToGoOn(std::move(slot));
}

TEST_F(ADamagedSlot, KeepsACopyForEachTime) {
  for (const char* copy : {"s1.damaged", "s1.damaged-2"}) {
    const auto places = Commit(1, 3);
    Spoil("journal", places[0] + 300);
    EXPECT_EQ(worlds_[3], RefusedThenRescued()->Files());
    EXPECT_EQ(Disk::Kind::Folder, disk_->Look(scratch_ / copy));
    Slot::Create(*disk_, folder_, NewFiles(worlds_[0]), kStoreId);
  }
}

TEST_F(ADamagedSlot, IsNoneWhoseLastRecordWasNeverFinished) {
  const auto places = Commit(1, 5);
  Spoil("journal", places[4] + 300);
  PutFiles(worlds_[4]);
  const auto slot = Open();
  EXPECT_EQ(worlds_[4], slot->Files());
  EXPECT_TRUE(slot->Remarks().empty());
}

// Folders from elsewhere.

class AForeignFolder : public ASlot {};

TEST_F(AForeignFolder, OfRecordFilesAloneBecomesASlot) {
  disk_->Remove(At("journal"));
  disk_->Remove(At("world.id"));
  EXPECT_TRUE(Remarked(*Open(), "had no journal"));
  Commit(1, 3);
  const auto slot = Open();
  EXPECT_EQ(worlds_[3], slot->Files());
  EXPECT_TRUE(slot->Remarks().empty());
}

TEST_F(AForeignFolder, WithAnotherWorldsJournalIgnoresIt) {
  Commit(1, 4);
  const Bytes other = ReadFile(*disk_, At("journal"));
  Slot::Create(*disk_, folder_, NewFiles(worlds_[6]), kStoreId + 1);
  WriteFile(*disk_, At("journal"), other);
  const auto slot = Open();
  EXPECT_EQ(worlds_[6], slot->Files());
  EXPECT_TRUE(Remarked(*slot, "journal of another world"));
  EXPECT_EQ(other, ReadFile(*disk_, At("journal.other")));
}

TEST_F(AForeignFolder, WithAJournalAndNoIdIgnoresTheJournal) {
  Commit(1, 4);
  disk_->Remove(At("world.id"));
  PutFiles(worlds_[2]);
  const auto slot = Open();
  EXPECT_EQ(worlds_[2], slot->Files());
  EXPECT_TRUE(Remarked(*slot, "left aside"));
}

TEST_F(AForeignFolder, WithNoJournalOrWithRubbishForOneGetsANewOne) {
  disk_->Remove(At("journal"));
  EXPECT_TRUE(Remarked(*Open(), "had no journal"));
  WriteFile(*disk_, At("journal"), Bytes(100000, std::byte{'x'}));
  EXPECT_TRUE(Remarked(*Open(), "is none"));
  WriteFile(*disk_, At("journal"), {});
  EXPECT_TRUE(Remarked(*Open(), "had no journal"));
  Commit(1, 4);
  EXPECT_EQ(worlds_[4], Open()->Files());
}

TEST_F(AForeignFolder, LeavesUnknownFilesAloneAndSaysSo) {
  WriteFile(*disk_, At("diary.txt"), BytesOf("mine"));
  disk_->MakeFolder(At("pictures"));
  std::filesystem::create_symlink("/nowhere", At("link"));
  {
    const auto slot = Open();
    for (const char* name : {"diary.txt", "pictures", "link"}) EXPECT_TRUE(Remarked(*slot, name));
  }
  EXPECT_EQ(BytesOf("mine"), ReadFile(*disk_, At("diary.txt")));
  for (int i = 0; i < 40; ++i) disk_->MakeFolder(At("x" + std::to_string(i)));
  EXPECT_EQ(21u, Open()->Remarks().size());
}

TEST_F(AForeignFolder, SaysWhenItsFilesWereChangedFromOutside) {
  Commit(1, 2);
  WriteFile(*disk_, At("tv.dat"), BytesOf("another program's"));
  Open()->Checkpoint();
  WriteFile(*disk_, At("tv.dat"), BytesOf("another program's again"));
  const auto slot = Open();
  EXPECT_EQ(BytesOf("another program's again"), slot->Files().at("tv.dat"));
  EXPECT_TRUE(Remarked(*slot, "changed from outside"));
}

TEST_F(AForeignFolder, IsRefusedForLinksFoldersAndFilesThatAreTooLong) {
  const auto refusal = [&] {
    try {
      Open();
    } catch (const DiskError& fault) {
      return std::string(fault.what());
    }
    return std::string("none");
  };
  for (const char* name : {"tv.dat", "journal", "world.id"}) {
    const std::string aside = scratch_ / "aside";
    if (disk_->Look(At(name)) == Disk::Kind::Nothing) WriteFile(*disk_, At(name), {});
    disk_->Rename(At(name), aside);
    std::filesystem::create_symlink(aside, At(name));
    EXPECT_EQ("Could not open " + At(name) + ": it is no plain file.", refusal());
    disk_->Remove(At(name));
    disk_->MakeFolder(At(name));
    EXPECT_EQ("Could not open " + At(name) + ": it is no plain file.", refusal());
    disk_->Remove(At(name));
    disk_->Rename(aside, At(name));
  }
  WriteFile(*disk_, At("tv.dat"), Bytes(24001));
  EXPECT_EQ(
      "Could not open " + At("tv.dat") + ": it is 24001 bytes long, more than its most of 24000.",
      refusal());
}

// Sizes.

/// The largest world changes as a whole: more than the journal holds.
TEST(AHugeCommit, IsAllOrNothingToo) {
  const std::vector<KnownFile> known{{"wrestler.dat", 6000000}, {"staff.dat", 600000}};
  Chance chance(95);
  const Bytes one = RandomBytes(chance, 5925000), two = RandomBytes(chance, 5800000),
              staff = RandomBytes(chance, 580000);
  const std::vector<Files> worlds{{{"wrestler.dat", one}},
                                  {{"wrestler.dat", two}, {"staff.dat", staff}},
                                  {{"wrestler.dat", one}, {"staff.dat", staff}}};
  CutDisk disk;
  Slot::Create(disk, kStore, NewFiles(worlds[0]), kStoreId);
  disk.Record();
  {
    Slot slot(disk, kStore, known);
    disk.Begins(1);
    slot.Commit({{"wrestler.dat", true, true, one, two}, {"staff.dat", false, true, {}, staff}});
    disk.Shows(1);
    disk.Begins(2);
    slot.Commit({{"wrestler.dat", true, true, two, one}});
    disk.Shows(2);
  }
  ForEveryCut(disk, 4, 96, [&](CutDisk& after, const Cut& cut) {
    const Slot slot(after, kStore, known);
    bool found = false;
    for (int world = cut.Least; world <= cut.Most; ++world)
      found |= slot.Files() == worlds[static_cast<std::size_t>(world)];
    EXPECT_TRUE(found) << cut.Where;
  });
}

}  // namespace
}  // namespace grapplemont::test
