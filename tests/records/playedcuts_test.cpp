#include <gtest/gtest.h>

#include <algorithm>

#include "playing.h"

// What a game can go back to is in step with its world, whenever the power is cut and whatever
// fails.

namespace grapplemont::test {
namespace {

/// A run of clicks, days, steps taken back and roads left, all in a small journal.
Story TellPlayed(int commits, std::uint64_t seed, PlayedQuirks quirks = {},
                 const std::function<void(CutDisk&)>& prepare = {}) {
  const auto worlds = RandomWorlds(commits + 1, seed);
  Day day = kStart;
  Story story{CutDisk(), {OnDay(worlds[0], day)}, SmallJournal()};
  CutDisk& disk = story.Recorded;
  Playing play(disk, story.Worlds[0], story.Options, quirks);
  if (prepare) prepare(disk);
  Chance chance(seed);
  const auto begin = [&](const Files& world) {
    story.Worlds.push_back(world);
    disk.Begins(static_cast<int>(std::ssize(story.Worlds)) - 1);
  };
  const auto go = [&](const Files& next, const PlayedStep& step) {
    const Files before = play.World;
    begin(next);
    try {
      play.Go(next, step);
    } catch (const DiskError&) {
      disk.Heal();
      play.World = play.Slot->Committed() ? next : before;
      if (!play.Slot->Committed()) begin(before);
    }
    disk.Shows(static_cast<int>(std::ssize(story.Worlds)) - 1);
  };
  for (std::size_t i = 1; i < worlds.size(); ++i) {
    const std::size_t count = play.Slot->Moments().Count();
    const auto what = Pick(chance, 8);
    if (what == 0 && count > 1) {
      if (const auto old = Restored(*play.Slot, play.World, Pick(chance, count)))
        go(*old, {PlayedStep::Left, "road"});
    } else if (what <= 2 && play.Slot->ClickToUndo()) {
      if (const auto old = Restored(*play.Slot, play.World, *play.Slot->ClickToUndo()))
        go(*old, {PlayedStep::Undo, "undo"});
    } else if (what == 3) {
      std::size_t named = 0;
      while (named < count && play.Slot->Moments()[named].Is != MomentKind::Named) ++named;
      try {
        if (named < count && i % 2 == 0)
          play.Slot->ForgetName(named);
        else
          play.Slot->Name("name " + std::to_string(i));
      } catch (const DiskError&) {
        disk.Heal();
      }
    } else {
      day = play.Slot->Today() + std::chrono::days{what > 5 ? 1 : 0};
      go(OnDay(worlds[i], day), {PlayedStep::Click, "click " + std::to_string(i)});
    }
  }
  return story;
}

/// Empty where the slot holds a world from `least` to `most` and moments that are in step with it.
std::string WhyNotInStep(CutDisk& disk, const Story& story, int least, int most, bool whole) try {
  const PlayedSlot slot(disk, kStore, PlayedFiles(), Damage::Refuse, story.Options);
  if (!slot.Remarks().empty()) return slot.Remarks().front();
  Files now = slot.Files();
  now.erase(kMorningsName);
  int found = most;
  while (found >= least && !Same(now, story.Worlds[static_cast<std::size_t>(found)])) --found;
  if (found < least)
    return "no world from " + std::to_string(least) + " to " + std::to_string(most);
  const std::size_t count = slot.Moments().Count();
  for (std::size_t i = whole ? 0 : count - std::min<std::size_t>(count, 1); i < count; ++i) {
    const auto restored = Restored(slot, now, i);
    const auto is = [&](const Files& world) { return restored && Same(*restored, world); };
    if (std::ranges::none_of(story.Worlds, is)) return "moment " + std::to_string(i) + " is lost";
  }
  return {};
} catch (const std::exception& fault) {
  return fault.what();
}

BadCuts BadPlayedCuts(const Story& story, int each, std::uint64_t seed) {
  BadCuts all;
  int turn = 0;
  all.Cuts = ForEveryCut(story.Recorded, each, seed, [&](CutDisk& after, const Cut& cut) {
    const std::string why = WhyNotInStep(after, story, cut.Least, cut.Most, ++turn % 6 == 0);
    if (!why.empty() && all.Bad++ == 0) all.First = cut.Where + ": " + why;
  });
  return all;
}

TEST(PowerCuts, LeaveMomentsInStepWithTheirWorld) {
  BadCuts all;
  for (const std::uint64_t seed : Seeds(201, 8))
    all.Add(BadPlayedCuts(TellPlayed(20, seed), 10, seed), "seed " + std::to_string(seed) + ", ");
  EXPECT_EQ(0, all.Bad) << "of " << all.Cuts << ": " << all.First;
  EXPECT_GE(all.Cuts, 20000);
}

TEST(PowerCuts, FindMomentsThatAreKeptByACommitOfTheirOwn) {
  BadCuts all;
  for (const std::uint64_t seed : Seeds(211, 2))
    all.Add(BadPlayedCuts(TellPlayed(14, seed, {.Apart = true}), 2, seed));
  EXPECT_GT(all.Bad, 0) << "of " << all.Cuts;
  NoteVariant("moments kept in one commit with their world", all.Bad, all.Cuts);
}

/// Every other call fails in turn, once or until the commit has been refused.
int FaultsOutOfStep(std::uint64_t seed, bool forGood, std::string* first) {
  int bad = 0;
  for (int call = 1; call <= 420; call += 2) {
    Story story = TellPlayed(
        9, seed, {}, [&](CutDisk& disk) { disk.FailCall(call, DiskFault::Broken, forGood); });
    CutDisk after = story.Recorded.Restarted();
    // A last click that failed may be found, whole, or not at all.
    const int last = static_cast<int>(std::ssize(story.Worlds)) - 1;
    const std::string why = WhyNotInStep(after, story, std::max(0, last - 2), last, true);
    if (why.empty()) continue;
    if (bad++ == 0 && first)
      *first = "seed " + std::to_string(seed) + ", call " + std::to_string(call) + ": " + why;
  }
  return bad;
}

TEST(Faults, LeaveMomentsInStepWithTheirWorld) {
  std::string first;
  for (const std::uint64_t seed : Seeds(221, 1))
    for (const bool forGood : {false, true})
      EXPECT_EQ(0, FaultsOutOfStep(seed, forGood, &first)) << first;
}

}  // namespace
}  // namespace grapplemont::test
