#include <gtest/gtest.h>

#include <algorithm>

#include "records/store/slot.h"
#include "support/storeworld.h"

// The power is cut at every moment of what a slot does, many thousand times over; what is then
// found must be a committed world, and never one older than the last that was shown.

namespace grapplemont::test {
namespace {

TEST(PowerCuts, LeaveACommittedWorldAtEveryMoment) {
  int cuts = 0;
  for (const std::uint64_t seed : Seeds(1, 10)) {
    const Story story = TellStory(16, seed);
    cuts += ForEveryCut(story.Recorded, 24, seed, [&](CutDisk& after, const Cut& cut) {
      std::string why;
      const int found = FoundWorld(after, story.Worlds, cut.Least, cut.Most, story.Options, &why);
      ASSERT_GE(found, 0) << "seed " << seed << ", call " << cut.Index << ", " << cut.Where << ": "
                          << why;
      if (cut.Index % 16 == 0) {
        EXPECT_TRUE(GoesOn(after, story.Worlds[static_cast<std::size_t>(found)], story.Options));
      }
    });
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_GE(cuts, 20000);
}

/// Opens the slot on a disk that is recorded meanwhile, and cuts that short too.
/// Where `mayBeNone`, no slot at all will do as long as none was shown.
int CutTheRecovery(CutDisk& disk, const Story& story, const Cut& outer, int count,
                   bool mayBeNone = false) {
  disk.Begins(outer.Most);
  disk.Shows(outer.Least);
  disk.Record();
  std::string why;
  const int found = FoundWorld(disk, story.Worlds, outer.Least, outer.Most, story.Options, &why);
  EXPECT_GE(found, 0) << outer.Where << ": " << why;
  if (found < 0) return 0;
  disk.Begins(found);
  disk.Shows(found);
  return ForSomeCuts(
      disk, count, static_cast<std::uint64_t>(outer.Index), [&](CutDisk& after, const Cut& cut) {
        if (mayBeNone && cut.Least == 0 && after.Look(kStore) == Disk::Kind::Nothing) return;
        const int again = FoundWorld(after, story.Worlds, cut.Least, cut.Most, story.Options, &why);
        EXPECT_GE(again, 0) << "first " << outer.Index << " " << outer.Where << ", then "
                            << cut.Index << " " << cut.Where << ": " << why;
      });
}

TEST(PowerCuts, WithinARecoveryDoNoHarm) {
  int afterCuts = 0, afterDeaths = 0;
  for (const std::uint64_t seed : Seeds(21, 2)) {
    const Story story = TellStory(16, seed);
    ForEveryCut(story.Recorded, 1, seed, [&](CutDisk& after, const Cut& cut) {
      afterCuts += CutTheRecovery(after, story, cut, 20);
    });
    ForEveryDeath(story.Recorded, [&](CutDisk& after, const Cut& cut) {
      afterDeaths += CutTheRecovery(after, story, cut, 20);
    });
  }
  EXPECT_GE(std::min(afterCuts, afterDeaths), 5000);
}

/// A new game over an old one (or over none), world 1 over world 0; with a swap in one step or
/// without.
void CutACreation(bool overAnOldOne, bool inOneStep, std::uint64_t seed) {
  const auto old = RandomWorlds(3, seed);
  Story story{CutDisk(), {old[2], RandomWorlds(1, seed + 1000)[0]}, SmallJournal()};
  CutDisk& disk = story.Recorded;
  if (!inOneStep) disk.KnowNoExchange();
  if (overAnOldOne) {
    Slot::Create(disk, kStore, NewFiles(old[0]), 1, story.Options);
    // Not closed cleanly: what is swapped out has a journal in use.
    Slot slot(disk, kStore, StoreFiles(), Damage::Refuse, story.Options);
    for (std::size_t i = 1; i < old.size(); ++i) slot.Commit(ChangesBetween(old[i - 1], old[i]));
    WriteFile(disk, std::string(kStore) + "/diary.txt", BytesOf("mine"));
    disk.MakeFolder(std::string(kStore) + "/pictures");
    disk.SyncFolder(kStore);
  }
  disk.Record();
  disk.Begins(1);
  Slot::Create(disk, kStore, NewFiles(story.Worlds[1]), 2, story.Options);
  disk.Shows(1);
  int inner = 0;  // cuts within each recovery
  const auto check = [&](CutDisk& after, const Cut& cut) {
    if (!inOneStep) after.KnowNoExchange();
    // No slot yet is the old state where there was none.
    if (!overAnOldOne && cut.Least == 0 && after.Look(kStore) == Disk::Kind::Nothing) {
      EXPECT_FALSE(Slot::Peek(after, kStore, StoreFiles(), "news.dat"));
    } else {
      const auto peeked = Slot::Peek(after, kStore, StoreFiles(), "staff.dat");
      CutTheRecovery(after, story, cut, inner, !overAnOldOne);
      const bool isNew = FoundWorld(after, story.Worlds, 0, 1, story.Options) == 1;
      const Files& found = story.Worlds[isNew ? 1 : 0];
      const auto wanted = found.find("staff.dat");
      ASSERT_EQ(wanted != found.end(), peeked.has_value());
      if (peeked) {
        EXPECT_EQ(wanted->second, *peeked);
      }
    }
    // Whatever stands there, the next new game finds its way.
    Slot::Create(after, kStore, NewFiles(story.Worlds[1]), 3, story.Options);
    EXPECT_EQ(1, FoundWorld(after, story.Worlds, 1, 1, story.Options));
    for (const std::string& name : after.List(".")) EXPECT_TRUE(name == kStore) << name;
    if (!overAnOldOne) return;
    EXPECT_EQ(BytesOf("mine"), ReadFile(after, std::string(kStore) + "/diary.txt"));
    EXPECT_TRUE(IsFolder(after, std::string(kStore) + "/pictures"));
  };
  inner = 2;
  EXPECT_GE(ForEveryCut(disk, 20, seed, check), 500);
  inner = 60;
  ForEveryDeath(disk, check);
}

TEST(Creations, LeaveTheOldSlotOrTheNewOne) {
  for (const std::uint64_t seed : Seeds(41, 1)) {
    CutACreation(false, true, seed);
    CutACreation(true, true, seed);
    CutACreation(true, false, seed);
  }
}

// The protocol with one step left out must be found by the very cuts that it passes whole. A
// variant that is not found would mean that the cuts prove nothing.

struct Variant {
  const char* Name;
  JournalQuirks Quirks;
  const char* IgnoredSyncs = "";  // of paths that end so
  bool BareRanges = false;
};

/// The stories the variants are told in: many short ones over a small journal.
BadCuts BadCutsOf(const Variant& variant) {
  BadCuts all;
  for (const std::uint64_t seed : Seeds(101, 4)) {
    const Story story = TellStory(
        14, seed, variant.Quirks, [&](CutDisk& disk) { disk.IgnoreSyncs(variant.IgnoredSyncs); },
        variant.BareRanges);
    all.Add(CountBadCuts(story, 6, seed));
  }
  return all;
}

/// The right protocol leaves nothing behind that it may not, the wrong one does.
void ExpectBad(const BadCuts& right, const BadCuts& wrong, const std::string& what) {
  EXPECT_EQ(0, right.Bad) << "of " << right.Cuts << ": " << right.First;
  EXPECT_GT(wrong.Bad, 0) << what << ": of " << wrong.Cuts;
  NoteVariant(what, wrong.Bad, wrong.Cuts);
}

TEST(Commits, WithoutAStepAreFound) {
  const Variant kVariants[] = {
      {"a sync of the journal", {}, "journal"},
      {"a sync of the record files", {}, ".dat"},
      {"files synced before the journal is emptied", {.EmptyBeforeFiles = true}},
      {"ranges rounded to blocks", {}, "", true},
      {"a checksum", {.NoChecksum = true}},
      {"a check of the sequence", {.NoSequence = true}},
      {"a sync of the folder", {}, kStore}};
  const BadCuts right = BadCutsOf({"whole", {}});
  EXPECT_GT(right.Cuts, 1000);
  for (const Variant& variant : kVariants) ExpectBad(right, BadCutsOf(variant), variant.Name);
}

/// A call fails in the midst of a story, once at every place; cuts before it are those of any
/// story.
BadCuts BadCutsAfterFailedSyncs(JournalQuirks quirks) {
  BadCuts all;
  for (const std::uint64_t seed : Seeds(131, 1))
    for (int call = 1; call <= 240; ++call) {
      const Story story = TellStory(
          8, seed, quirks, [&](CutDisk& disk) { disk.FailCall(call, DiskFault::Broken, false); });
      all.Add(CountBadCuts(story, 1, seed, story.Recorded.FailedAt()),
              "call " + std::to_string(call) + " failed; ");
    }
  return all;
}

TEST(AFailedSync, IsNeverRetried) {
  const BadCuts right = BadCutsAfterFailedSyncs({});
  EXPECT_GT(right.Cuts, 3000);
  ExpectBad(right, BadCutsAfterFailedSyncs({.RetrySync = true}), "giving up a failed sync");
}

/// Power cuts in the recovery of a process that was killed, for journals that a recovery believes
/// as it reads them.
BadCuts BadCutsInRecoveries(JournalQuirks quirks) {
  BadCuts all;
  for (const std::uint64_t seed : Seeds(141, 1)) {
    const Story story = TellStory(14, seed);
    ForEveryDeath(story.Recorded, [&](CutDisk& disk, const Cut& death) {
      disk.Record();
      Story second{disk, story.Worlds, SmallJournal(quirks)};
      second.Recorded.Begins(death.Most);
      second.Recorded.Shows(death.Least);
      FoundWorld(second.Recorded, story.Worlds, death.Least, death.Most, second.Options);
      all.Add(CountBadCuts(second, 1, static_cast<std::uint64_t>(death.Index)));
    });
  }
  return all;
}

TEST(ARecovery, MakesSureOfTheJournalBeforeItsEffects) {
  ExpectBad(BadCutsInRecoveries({}), BadCutsInRecoveries({.TrustWhatIsRead = true}),
            "a journal secured before its effects");
}

/// A new game over an old one.
BadCuts BadCutsInACreation(JournalQuirks quirks) {
  Story story{CutDisk(), {RandomWorlds(1, 151)[0], RandomWorlds(1, 152)[0]}, SmallJournal(quirks)};
  Slot::Create(story.Recorded, kStore, NewFiles(story.Worlds[0]), 1, story.Options);
  story.Recorded.Record();
  story.Recorded.Begins(1);
  Slot::Create(story.Recorded, kStore, NewFiles(story.Worlds[1]), 2, story.Options);
  story.Recorded.Shows(1);
  return CountBadCuts(story, Often(20), 151);
}

TEST(ACreation, SyncsTheSwapBeforeItClearsTheOldSlot) {
  ExpectBad(BadCutsInACreation({}), BadCutsInACreation({.RemoveBeforeSwap = true}),
            "a swap secured before the old slot is cleared");
}

}  // namespace
}  // namespace grapplemont::test
