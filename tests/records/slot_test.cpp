#include "records/store/slot.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "records/store/journalfile.h"
#include "records/store/slotfolder.h"
#include "support/scratchfolder.h"
#include "support/storeworld.h"
#include "support/thrown.h"

namespace grapplemont::test {
namespace {

/// A slot on the machine's own disk, with a few worlds to commit to it.
class ASlot : public testing::Test {
 protected:
  void SetUp() override { Slot::Create(*disk_, folder_, NewFiles(worlds_[0]), kStoreId); }

  std::unique_ptr<Slot> Open(Damage damage = Damage::Refuse) {
    return std::make_unique<Slot>(*disk_, folder_, StoreFiles(), damage);
  }
  /// Commits worlds first to last, without a clean exit.
  void Commit(std::size_t first, std::size_t last) {
    const auto slot = Open();
    for (std::size_t world = first; world <= last; ++world)
      slot->Commit(ChangesBetween(worlds_[world - 1], worlds_[world]));
  }
  std::string At(const std::string& name) const { return folder_ + "/" + name; }
  void Spoil(const std::string& name, std::int64_t at) {
    const OpenedFile file(*disk_, At(name), false);
    Bytes byte(1);
    disk_->ReadAt(file, at, byte);
    byte[0] ^= std::byte{0x10};
    disk_->WriteAt(file, at, byte);
  }
  Files All(const std::string& folder) { return FilesIn(*disk_, folder); }
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

TEST_F(ASlot, ReadsItsJournalAsFarAsItCounts) {
  const SlotOptions usual;
  const auto read = [&] {
    JournalFile journal(*disk_, folder_, usual.JournalBytes, usual.Quirks);
    return std::ssize(journal.Read(usual.JournalBytes));
  };
  EXPECT_EQ(read(), kJournalStart);
  Commit(1, 5);
  EXPECT_GT(read(), kJournalStart);
  EXPECT_LT(read(), usual.JournalBytes);
  Open()->Checkpoint();
  EXPECT_EQ(read(), kJournalStart) << "the marker is past all records";
}

TEST_F(ASlot, GivesBackEveryCommitAfterACleanExitAndWithoutOne) {
  EXPECT_EQ(worlds_[0], Open()->Files());
  Commit(1, 5);
  EXPECT_EQ(worlds_[5], Open()->Files());
  {
    const auto slot = Open();
    for (std::size_t world = 6; world < worlds_.size(); ++world) {
      slot->Commit(ChangesBetween(worlds_[world - 1], worlds_[world]));
      EXPECT_TRUE(slot->Committed());
      Files now = All(folder_);
      for (const char* own : {"journal", "world.id", "world.seal"}) now.erase(own);
      ASSERT_EQ(worlds_[world], now) << "the record files hold it at once";
    }
    slot->Checkpoint();
    slot->Checkpoint();
  }
  const auto slot = Open();
  EXPECT_EQ(worlds_.back(), slot->Files());
  EXPECT_TRUE(slot->Remarks().empty());
  slot->Forget();
  EXPECT_TRUE(slot->Files().empty());
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
  EXPECT_THROW(slot->Commit({*ChangeBetween("passwd", nullptr, &little)}), std::invalid_argument);
  EXPECT_THROW(slot->Commit({*ChangeBetween("tv.dat", nullptr, &huge)}), std::invalid_argument);
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

// Damage; damage_test.cpp has the journals.

class ADamagedSlot : public ASlot {
 protected:
  /// Opens a slot whose damage costs nothing, and expects a copy of what it was.
  std::unique_ptr<Slot> Mended(const std::string& what, const std::string& copy = "s1.damaged") {
    const Files before = All(folder_);
    auto slot = Open();
    EXPECT_TRUE(Remarked(*slot, what)) << what;
    EXPECT_TRUE(Remarked(*slot, scratch_ / copy));
    EXPECT_EQ(before, All(scratch_ / copy));
    return slot;
  }
};

TEST_F(ADamagedSlot, KeepsACopyForEachTime) {
  for (const char* copy : {"s1.damaged", "s1.damaged-2"}) {
    Commit(1, 3);
    Spoil("world.id", 3);
    const auto slot =
        Mended("world.id is missing or spoiled. Every step could be found again.", copy);
    EXPECT_EQ(worlds_[3], slot->Files());
    slot->Commit(ChangesBetween(worlds_[3], worlds_[0]));
  }
  EXPECT_TRUE(Open()->Remarks().empty());
}

TEST_F(ADamagedSlot, IsOneWithAnotherWorldsJournalWithNoneOrWithRubbish) {
  Commit(1, 4);
  const Bytes other = ReadFile(*disk_, At("journal"));
  Slot::Create(*disk_, folder_, NewFiles(worlds_[6]), kStoreId + 1);
  WriteFile(*disk_, At("journal"), other);
  EXPECT_EQ(worlds_[6], Mended("journal in it is another world's")->Files());
  WriteFile(*disk_, At("journal"), Bytes(100000, std::byte{'x'}));
  EXPECT_EQ(worlds_[6], Mended("another kind of file", "s1.damaged-2")->Files());
  disk_->Remove(At("journal"));
  EXPECT_EQ(worlds_[6], Mended("has no journal", "s1.damaged-3")->Files());
}

TEST_F(ADamagedSlot, NamesTheFilesThatWereChangedFromOutside) {
  Commit(1, 2);
  Open()->Checkpoint();
  WriteFile(*disk_, At("tv.dat"), BytesOf("another program's"));
  const std::string asked = ThrownBy<SlotDamaged>([&] { Open(); });
  EXPECT_NE(asked.npos, asked.find("Not as the game last kept them: tv.dat;")) << asked;
  EXPECT_EQ(BytesOf("another program's"), Open(Damage::Drop)->Files().at("tv.dat"));
}

TEST_F(ADamagedSlot, GoesOnWithoutTheSurplusOfAFileThatIsTooLong) {
  Files full = worlds_[0];
  full["tv.dat"] = Bytes(24000, std::byte{1});
  {
    const auto slot = Open();
    slot->Commit(ChangesBetween(worlds_[0], full));
    slot->Checkpoint();
  }
  WriteFile(*disk_, At("tv.dat"), Bytes(24001, std::byte{1}));
  const Files before = All(folder_);
  const std::string asked = ThrownBy<SlotDamaged>([&] { Open(); });
  for (const std::string& part :
       {std::string("tv.dat is 24001 bytes long, more than its most of 24000;"),
        scratch_ / "s1.damaged"})
    EXPECT_NE(asked.npos, asked.find(part)) << asked;
  EXPECT_EQ(asked.npos, asked.find("is lost")) << "no step is";
  EXPECT_EQ(before, All(folder_));
  EXPECT_EQ(24000u, Open(Damage::Drop)->Files().at("tv.dat").size());
  EXPECT_EQ(before, All(scratch_ / "s1.damaged"));
  EXPECT_EQ(24000u, All(folder_).at("tv.dat").size());
  EXPECT_TRUE(Open()->Remarks().empty());
}

/// A copy takes no more room than what it is of, and leaves nothing where it fails.
TEST(ACopyBeside, IsWholeOrNotThere) {
  CutDisk disk;
  disk.MakeFolder("s1");
  WriteFile(disk, "s1/tv.dat", BytesOf("short"));
  Bytes holes(3 << 20);
  holes[2 << 20] = std::byte{1};
  WriteFile(disk, "s1/wrestler.dat", holes);
  CopyBeside(disk, "s1", "s1.damaged");
  EXPECT_EQ(ReadFile(disk, "s1.damaged/tv.dat"), BytesOf("short"));
  EXPECT_EQ(ReadFile(disk, "s1.damaged/wrestler.dat"), holes);
  int failures = 0;
  for (int call = 1; call < 60; ++call) {
    disk.FailCall(call, DiskFault::Broken, false);
    try {
      CopyBeside(disk, "s1", "s1.again");
    } catch (const DiskError&) {
      ++failures;
    }
    disk.Heal();
    EXPECT_EQ(disk.Look("s1.again.new"), Disk::Kind::Nothing) << call;
    RemoveTree(disk, "s1.again");
  }
  EXPECT_GT(failures, 3);
}

// Slots that are taken away from under the program.

TEST_F(ASlot, RefusesEveryStepWhileItsFilesAreNotItsOwn) {
  const auto slot = Open();
  slot->Commit(ChangesBetween(worlds_[0], worlds_[1]));
  const auto expectRefusal = [&] {
    for (int attempt = 0; attempt < 2; ++attempt) {
      const std::string said =
          ThrownBy<DiskError>([&] { slot->Commit(ChangesBetween(worlds_[1], worlds_[2])); });
      EXPECT_TRUE(
          said.ends_with("it was removed or replaced while the slot was open. Your last "
                         "step was taken back."))
          << said;
    }
    EXPECT_THROW(slot->Checkpoint(), DiskError);
  };
  disk_->Rename(folder_, scratch_ / "away");
  expectRefusal();
  EXPECT_EQ(Disk::Kind::Nothing, disk_->Look(folder_));
  Slot::Create(*disk_, scratch_ / "s2", NewFiles(worlds_[7]), 2);
  disk_->Rename(scratch_ / "s2", folder_);
  const Files other = All(folder_);
  expectRefusal();
  EXPECT_EQ(other, All(folder_));
  RemoveTree(*disk_, folder_);
  disk_->Rename(scratch_ / "away", folder_);
  slot->Commit(ChangesBetween(worlds_[1], worlds_[2]));
  WriteFile(*disk_, At("tv.dat"), {});
  worlds_[1] = worlds_[2];
  worlds_[2] = worlds_[3];
  expectRefusal();
}

// Folders from elsewhere.

class AForeignFolder : public ASlot {};

TEST_F(AForeignFolder, OfRecordFilesAloneBecomesASlotBesideSomebodysOwnFiles) {
  disk_->Remove(At("journal"));
  disk_->Remove(At("world.id"));
  WriteFile(*disk_, At("diary.txt"), BytesOf("mine"));
  disk_->MakeFolder(At("pictures"));
  std::filesystem::create_symlink("/nowhere", At("link"));
  EXPECT_TRUE(Remarked(*Open(), "had no journal"));
  Commit(1, 3);
  const auto slot = Open();
  EXPECT_EQ(worlds_[3], slot->Files());
  EXPECT_TRUE(slot->Remarks().empty());
  EXPECT_EQ(BytesOf("mine"), ReadFile(*disk_, At("diary.txt")));
}

TEST_F(AForeignFolder, WithAJournalAndNoIdIgnoresTheJournal) {
  Commit(1, 4);
  disk_->Remove(At("world.id"));
  disk_->Remove(At("world.seal"));
  WriteFile(*disk_, At("journal.other"), BytesOf("of an earlier time"));
  PutFiles(worlds_[2]);
  const auto slot = Open();
  EXPECT_EQ(worlds_[2], slot->Files());
  EXPECT_TRUE(Remarked(*slot, "left aside"));
  EXPECT_EQ(BytesOf("of an earlier time"), ReadFile(*disk_, At("journal.other")));
  EXPECT_EQ(Disk::Kind::File, disk_->Look(At("journal.other-2")));
}

TEST_F(ADamagedSlot, KnowsItsIdAgainFromSealAndJournal) {
  Commit(1, 4);
  disk_->Remove(At("world.id"));
  PutFiles(worlds_[2]);
  EXPECT_EQ(worlds_[4], Mended("world.id is missing or spoiled")->Files());
  EXPECT_TRUE(Open()->Remarks().empty());
}

TEST_F(AForeignFolder, IsRefusedForLinksAndFolders) {
  for (const char* name : {"tv.dat", "journal", "world.id"}) {
    const std::string aside = scratch_ / "aside";
    const std::string refusal = "Could not open " + At(name) + ": it is not a plain file.";
    if (disk_->Look(At(name)) == Disk::Kind::Nothing) WriteFile(*disk_, At(name), {});
    disk_->Rename(At(name), aside);
    std::filesystem::create_symlink(aside, At(name));
    EXPECT_EQ(refusal, ThrownBy<DiskError>([&] { Open(); }));
    disk_->Remove(At(name));
    disk_->MakeFolder(At(name));
    EXPECT_EQ(refusal, ThrownBy<DiskError>([&] { Open(); }));
    disk_->Remove(At(name));
    disk_->Rename(aside, At(name));
  }
}

/// More changes than the journal holds.
TEST(AHugeCommit, IsAllOrNothingToo) {
  const std::vector<KnownFile> known{{"wrestler.dat", 600000}, {"staff.dat", 60000}};
  const SlotOptions options = SmallJournal();
  Chance chance(95);
  const Bytes one = RandomBytes(chance, 592500), two = RandomBytes(chance, 580000),
              staff = RandomBytes(chance, 58000);
  ASSERT_GT(std::ssize(two), 4 * options.JournalBytes);
  const std::vector<Files> worlds{{{"wrestler.dat", one}},
                                  {{"wrestler.dat", two}, {"staff.dat", staff}},
                                  {{"wrestler.dat", one}, {"staff.dat", staff}}};
  CutDisk disk;
  Slot::Create(disk, kStore, NewFiles(worlds[0]), kStoreId, options);
  disk.Record();
  {
    Slot slot(disk, kStore, known, Damage::Refuse, options);
    disk.Begins(1);
    slot.Commit(ChangesBetween(worlds[0], worlds[1]));
    disk.Shows(1);
    disk.Begins(2);
    slot.Commit(ChangesBetween(worlds[1], worlds[2]));
    disk.Shows(2);
  }
  ForEveryCut(disk, Often(4), 96, [&](CutDisk& after, const Cut& cut) {
    const Slot slot(after, kStore, known, Damage::Refuse, options);
    bool found = false;
    for (int world = cut.Least; world <= cut.Most; ++world)
      found |= Same(slot.Files(), worlds[static_cast<std::size_t>(world)]);
    EXPECT_TRUE(found) << cut.Where;
  });
}

}  // namespace
}  // namespace grapplemont::test
