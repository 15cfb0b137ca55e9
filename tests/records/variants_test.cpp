#include <gtest/gtest.h>

#include <ostream>

#include "records/store/slot.h"
#include "support/storeworld.h"

// The protocol with one step left out must be found by the very cuts that it passes whole. A
// variant that is not found would mean that the cuts prove nothing.

namespace grapplemont::test {
namespace {

struct Variant {
  const char* Name;
  JournalQuirks Quirks;
  const char* IgnoredSyncs = "";  // of paths that end so
};

void PrintTo(const Variant& variant, std::ostream* out) {
  *out << variant.Name;
}

std::string NameOf(const testing::TestParamInfo<Variant>& info) {
  return info.param.Name;
}

/// The stories the variants are told in: many short ones over a small journal.
BadCuts BadCutsOf(const Variant& variant, int stories) {
  BadCuts all;
  for (int seed = 101; seed < 101 + stories; ++seed) {
    const Story story = TellStory(14, static_cast<std::uint64_t>(seed), variant.Quirks,
                                  [&](CutDisk& disk) { disk.IgnoreSyncs(variant.IgnoredSyncs); });
    const BadCuts found = CountBadCuts(story, 12, static_cast<std::uint64_t>(seed));
    all.Cuts += found.Cuts;
    all.Bad += found.Bad;
    if (all.First.empty()) all.First = found.First;
  }
  return all;
}

class CommitVariants : public testing::TestWithParam<Variant> {};

TEST_P(CommitVariants, AreFound) {
  const BadCuts found = BadCutsOf(GetParam(), 4);
  RecordProperty("bad", found.Bad);
  RecordProperty("of", found.Cuts);
  EXPECT_GT(found.Bad, 0) << "of " << found.Cuts;
}

INSTANTIATE_TEST_SUITE_P(WithoutAStep, CommitVariants,
                         testing::Values(Variant{"NoSyncOfTheJournal", {}, "journal"},
                                         Variant{"NoSyncOfTheRecordFiles", {}, ".dat"},
                                         Variant{"JournalEmptiedBeforeTheFilesAreSynced",
                                                 {.EmptyBeforeFiles = true}},
                                         Variant{"RangesNotRoundedToBlocks", {.BareRanges = true}},
                                         Variant{"NoChecksum", {.NoChecksum = true}},
                                         Variant{"NoSequenceCheck", {.NoSequence = true}},
                                         Variant{"NoSyncOfTheFolder", {}, kStore}),
                         NameOf);

TEST(TheProtocolItself, PassesTheSameCuts) {
  const BadCuts found = BadCutsOf({"Whole", {}}, 4);
  EXPECT_EQ(0, found.Bad) << "of " << found.Cuts << ": " << found.First;
  EXPECT_GT(found.Cuts, 2000);
}

/// A sync of the journal fails in the midst of a story, once at every place.
BadCuts BadCutsAfterFailedSyncs(JournalQuirks quirks) {
  BadCuts all;
  for (int call = 1; call <= 240; ++call) {
    const Story story = TellStory(
        8, 131, quirks, [&](CutDisk& disk) { disk.FailCall(call, Fault::Broken, false); });
    const BadCuts found = CountBadCuts(story, 1, 131);
    all.Cuts += found.Cuts;
    all.Bad += found.Bad;
    if (all.First.empty() && found.Bad > 0)
      all.First = "call " + std::to_string(call) + " failed; " + found.First;
  }
  return all;
}

TEST(AFailedSync, IsNeverRetried) {
  const BadCuts right = BadCutsAfterFailedSyncs({});
  EXPECT_EQ(0, right.Bad) << "of " << right.Cuts << ": " << right.First;
  EXPECT_GT(right.Cuts, 10000);
  const BadCuts wrong = BadCutsAfterFailedSyncs({.RetrySync = true});
  RecordProperty("bad", wrong.Bad);
  RecordProperty("of", wrong.Cuts);
  EXPECT_GT(wrong.Bad, 0) << "of " << wrong.Cuts;
}

/// Power cuts in the recovery of a process that was killed, for journals that a recovery believes
/// as it reads them.
BadCuts BadCutsInRecoveries(JournalQuirks quirks) {
  BadCuts all;
  const Story story = TellStory(14, 141);
  ForEveryDeath(story.Recorded, [&](CutDisk& disk, const Cut& death) {
    disk.Record();
    Story second{disk, story.Worlds, SmallJournal(quirks)};
    second.Recorded.Begins(death.Most);
    second.Recorded.Shows(death.Least);
    FoundWorld(second.Recorded, story.Worlds, death.Least, death.Most, second.Options);
    const BadCuts found = CountBadCuts(second, 2, static_cast<std::uint64_t>(death.Index));
    all.Cuts += found.Cuts;
    all.Bad += found.Bad;
    if (all.First.empty()) all.First = found.First;
  });
  return all;
}

TEST(ARecovery, MakesSureOfTheJournalBeforeItsEffects) {
  const BadCuts right = BadCutsInRecoveries({});
  EXPECT_EQ(0, right.Bad) << "of " << right.Cuts << ": " << right.First;
  const BadCuts wrong = BadCutsInRecoveries({.TrustWhatIsRead = true});
  RecordProperty("bad", wrong.Bad);
  RecordProperty("of", wrong.Cuts);
  EXPECT_GT(wrong.Bad, 0) << "of " << wrong.Cuts;
}

/// A new game over an old one.
BadCuts BadCutsInACreation(JournalQuirks quirks) {
  Story story{CutDisk(), {RandomWorlds(1, 151)[0], RandomWorlds(1, 152)[0]}, SmallJournal(quirks)};
  Slot::Create(story.Recorded, kStore, NewFiles(story.Worlds[0]), 1, story.Options);
  story.Recorded.Record();
  story.Recorded.Begins(1);
  Slot::Create(story.Recorded, kStore, NewFiles(story.Worlds[1]), 2, story.Options);
  story.Recorded.Shows(1);
  return CountBadCuts(story, 20, 151);
}

TEST(ACreation, SyncsTheSwapBeforeItClearsTheOldSlot) {
  EXPECT_EQ(0, BadCutsInACreation({}).Bad);
  const BadCuts wrong = BadCutsInACreation({.RemoveBeforeSwap = true});
  RecordProperty("bad", wrong.Bad);
  RecordProperty("of", wrong.Cuts);
  EXPECT_GT(wrong.Bad, 0) << "of " << wrong.Cuts;
}

}  // namespace
}  // namespace grapplemont::test
