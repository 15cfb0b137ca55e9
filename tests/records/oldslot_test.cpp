#include <gtest/gtest.h>

#include <algorithm>

#include "records/store/journalfile.h"
#include "records/store/slotfolder.h"
#include "support/storeworld.h"
#include "support/thrown.h"

// Slots as earlier versions left them, whose digests are those of whole files: they open, go on in
// the present form, and lose nothing whenever the power is cut on the way.

namespace grapplemont::test {
namespace {

constexpr DigestForm kOld = DigestForm::Whole;

std::string In(const std::string& name) {
  return std::string(kStore) + "/" + name;
}

/// The files are of worlds[0], the journal leads on to the last, and the seal is of worlds[sealed].
CutDisk OldSlot(const std::vector<Files>& worlds, std::size_t sealed) {
  CutDisk disk;
  const SlotOptions options = SmallJournal();
  Slot::Create(disk, kStore, NewFiles(worlds[0]), kStoreId, options);
  Bytes records;
  for (std::size_t world = 1; world < worlds.size(); ++world) {
    const auto changes = ChangesBetween(worlds[world - 1], worlds[world]);
    JournalRecord record{kStoreId, world, DigestOf(worlds[world], kOld).Value(), {}, kOld};
    for (const FileChange& change : changes)
      record.Files.push_back(
          {change.Name, change.ExistsAfter, std::ssize(change.After), change.Ranges});
    const Bytes packed = PackRecord(record);
    records.insert(records.end(), packed.begin(), packed.end());
  }
  WriteFile(disk, In(kSealName), PackSeal(kStoreId, sealed, DigestOf(worlds[sealed], kOld)));
  WriteJournal(disk, In(kJournalName), {kStoreId, 0, DigestOf(worlds[0], kOld).Value(), 0, kOld},
               records, options.JournalBytes, options.JournalBytes);
  return disk;
}

TEST(OldSlots, OpenAndGoOnWheneverThePowerIsCut) {
  int cuts = 0;
  for (const std::size_t commits : {0, 1, 3}) {
    const auto worlds = RandomWorlds(static_cast<int>(commits) + 1, 301 + commits);
    const int last = static_cast<int>(commits);
    Story story{OldSlot(worlds, commits), worlds, SmallJournal()};
    CutDisk again = story.Recorded.Restarted();
    EXPECT_TRUE(GoesOn(again, worlds.back(), story.Options));
    EXPECT_EQ(DigestForm::Blocks, UnpackSeal(ReadFile(again, In(kSealName))).value().Files.Form());
    story.Recorded.Record();
    story.Recorded.Begins(last);
    story.Recorded.Shows(last);
    std::string why;
    ASSERT_EQ(last, FoundWorld(story.Recorded, worlds, last, last, story.Options, &why)) << why;
    const BadCuts bad = CountBadCuts(story, 40, 301);
    EXPECT_EQ(0, bad.Bad) << bad.First;
    cuts += bad.Cuts;
  }
  EXPECT_GT(cuts, 1000);
}

TEST(OldSlots, TellWhichFileWasChangedFromOutside) {
  const auto worlds = RandomWorlds(1, 311);
  for (const auto& [name, contents] : worlds[0]) {
    CutDisk disk = OldSlot(worlds, 0);
    Bytes changed = contents;
    changed.push_back(std::byte{1});
    WriteFile(disk, In(name), changed);
    std::string why;
    EXPECT_EQ(-1, FoundWorld(disk, worlds, 0, 0, SmallJournal(), &why));
    EXPECT_NE(why.find("Not as the game last kept them: " + name + ";"), why.npos) << why;
  }
}

TEST(NewerSlots, AreRefusedInASentenceAndLeftAsTheyAre) {
  const auto worlds = RandomWorlds(1, 317);
  for (const std::int64_t block : {0, 1}) {
    CutDisk disk = OldSlot(worlds, 0);
    Bytes journal = ReadFile(disk, In(kJournalName));
    const Bytes marker = PackMarker({kStoreId, 7, 0, 0, static_cast<DigestForm>(3)});
    std::ranges::copy(marker, journal.begin() + block * kJournalBlock);
    WriteFile(disk, In(kJournalName), journal);
    for (const Damage damage : {Damage::Refuse, Damage::Drop}) {
      const std::string why =
          ThrownBy<DiskError>([&] { Slot(disk, kStore, StoreFiles(), damage, SmallJournal()); });
      EXPECT_NE(why.find("newer version of the game. Update the game"), why.npos) << why;
    }
    EXPECT_EQ(ReadFile(disk, In(kJournalName)), journal);
  }
}

}  // namespace
}  // namespace grapplemont::test
