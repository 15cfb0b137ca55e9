#include <gtest/gtest.h>

#include <set>

#include "playing.h"

// What a game can go back to: kept for as long as it ought to be, exact, and by its name.

namespace grapplemont::test {
namespace {

TEST(Mornings, OfAWeekAndAYearAreKeptAndExact) {
  CutDisk disk;
  Playing play(disk, OnDay(RandomWorlds(1, 51)[0], kStart));
  const auto worlds = RandomWorlds(40, 52);
  std::map<Day, Files> mornings;
  Day day = kStart;
  for (int turn = 0; turn < 500; ++turn) {
    mornings[day] = play.World;
    const Files click = OnDay(worlds[static_cast<std::size_t>(turn) % 40], day);
    if (turn % 3 != 0) play.Go(click, {PlayedStep::Click, "a click"});
    if (turn == 100) play.Slot->Name("before the Event");
    day += std::chrono::days{1};
    play.Go(OnDay(worlds[static_cast<std::size_t>(turn + 7) % 40], day));
  }
  int days = 0, firsts = 0, named = 0;
  for (std::size_t i = 0; i < play.Slot->Moments().Count(); ++i) {
    const Moment& moment = play.Slot->Moments()[i];
    const auto found = Restored(*play.Slot, play.World, i);
    ASSERT_TRUE(found) << i;
    if (moment.Is == MomentKind::Named) {
      ++named;
      EXPECT_EQ("before the Event", moment.Name);
      EXPECT_EQ(kStart + std::chrono::days{100}, moment.On);
      continue;
    }
    ASSERT_EQ(MomentKind::Morning, moment.Is);
    EXPECT_TRUE(Same(*found, mornings[moment.On])) << i;
    const bool isFirst = std::chrono::year_month_day(moment.On).day() == std::chrono::day{1};
    ++(isFirst ? firsts : days);
    EXPECT_GE(moment.On, isFirst ? day - std::chrono::days{460} : day - std::chrono::days{16});
  }
  EXPECT_GE(days, 7);
  EXPECT_LE(days, 14);
  EXPECT_GE(firsts, 12);
  EXPECT_LE(firsts, 14);
  EXPECT_EQ(1, named);
}

TEST(Mornings, StayWithinTheirBoundAndExact) {
  CutDisk disk;
  Chance chance(61);
  Files world = OnDay({}, kStart);
  world["large.dat"] = RandomBytes(chance, 500000);
  Playing play(disk, world);
  Day day = kStart;
  std::size_t most = 0;
  for (int turn = 0; turn < 60; ++turn) {
    Files next = OnDay(play.World, day += std::chrono::days{1});
    next["large.dat"] = RandomBytes(chance, 400000 + Pick(chance, 300000));
    play.Go(next);
    const Bytes file = ReadFile(disk, std::string(kStore) + "/" + kMorningsName);
    ASSERT_LE(std::ssize(file), kMostMornings);
    most = std::max(most, file.size());
    ASSERT_GE(play.Slot->Moments().Count(),
              std::min<std::size_t>(3, static_cast<std::size_t>(turn)));
    ASSERT_TRUE(Restored(*play.Slot, play.World, 0)) << turn;
  }
  EXPECT_GT(most, std::size_t{3} << 20);
  EXPECT_LT(play.Slot->Moments().Count(), 8u);
  play.Slot.reset();
  const PlayedSlot again(disk, kStore, PlayedFiles(), Damage::Refuse, SlotOptions{});
  EXPECT_TRUE(again.Remarks().empty());
}

TEST(Mornings, OfAGameThatNeverGoesBackAreNone) {
  CutDisk disk;
  const auto worlds = RandomWorlds(3, 71);
  Playing play(disk, OnDay(worlds[0], kStart), {}, {}, Mornings::NoWayBack());
  EXPECT_FALSE(play.Slot->Moments().Keeps());
  play.Go(OnDay(worlds[1], kStart), {PlayedStep::Click, "Sign"});
  play.Go(OnDay(worlds[2], kStart + std::chrono::days{1}));
  play.Slot->Name("here");
  EXPECT_EQ(0u, play.Slot->Moments().Count());
  EXPECT_EQ("", play.Slot->WhatToUndo());
  EXPECT_EQ(Mornings::NoWayBack(), ReadFile(disk, std::string(kStore) + "/" + kMorningsName));
}

TEST(Clicks, AreTakenBackAndDoneAgainByTheirNames) {
  CutDisk disk;
  const auto worlds = RandomWorlds(6, 81);
  std::vector<Files> at;
  for (const Files& world : worlds) at.push_back(OnDay(world, kStart));
  Playing play(disk, at[0]);
  play.Go(at[1], {PlayedStep::Click, "Sign"});
  play.Go(at[2], {PlayedStep::Click, "Notes", true});
  play.Go(at[3], {PlayedStep::Click, "Notes", true});  // a letter more
  EXPECT_EQ("Notes", play.Slot->WhatToUndo());
  EXPECT_EQ("", play.Slot->WhatToRedo());
  play.GoBackTo(play.Last(), PlayedStep::Undo);
  EXPECT_TRUE(Same(at[1], play.World));
  EXPECT_EQ("Sign", play.Slot->WhatToUndo());
  EXPECT_EQ("Notes", play.Slot->WhatToRedo());
  play.GoBackTo(play.Last(), PlayedStep::Undo);
  EXPECT_TRUE(Same(at[0], play.World));
  EXPECT_EQ("", play.Slot->WhatToUndo());
  for (const char* name : {"Sign", "Notes"}) {
    ASSERT_EQ(name, play.Slot->WhatToRedo());
    Files files = play.World;
    ASSERT_TRUE(play.Slot->Restore(play.Slot->WayToRedo(), play.Slot->DigestToRedo(), files));
    play.Go(files, {PlayedStep::Redo, name});
  }
  EXPECT_TRUE(Same(at[3], play.World));
  EXPECT_EQ("Notes", play.Slot->WhatToUndo());
  // Another click, and what was undone is past.
  play.GoBackTo(play.Last(), PlayedStep::Undo);
  play.Go(at[4], {PlayedStep::Click, "Release"});
  EXPECT_EQ("", play.Slot->WhatToRedo());
  // What was undone can be after the slot was opened again, too; the day's end ends it.
  play.Slot.reset();
  play.Slot.emplace(disk, kStore, PlayedFiles(), Damage::Refuse, SlotOptions{});
  EXPECT_EQ("Release", play.Slot->WhatToUndo());
  play.Go(OnDay(at[5], kStart + std::chrono::days{1}), {PlayedStep::Click, "Next Day"});
  EXPECT_EQ("", play.Slot->WhatToUndo());
}

TEST(Roads, ThatWereLeftCanBeReturnedTo) {
  CutDisk disk;
  const auto worlds = RandomWorlds(12, 91);
  std::vector<Files> at;
  for (std::size_t i = 0; i < worlds.size(); ++i)
    at.push_back(OnDay(worlds[i], kStart + std::chrono::days{static_cast<int>(i)}));
  Playing play(disk, at[0]);
  for (std::size_t i = 1; i < 6; ++i) play.Go(at[i]);
  play.GoBackTo(2, PlayedStep::Left);
  EXPECT_TRUE(Same(at[2], play.World));
  const Moment& left = play.Slot->Moments()[play.Last()];
  EXPECT_EQ(MomentKind::Left, left.Is);
  EXPECT_EQ(kStart + std::chrono::days{5}, left.On);
  EXPECT_EQ(kStart + std::chrono::days{2}, left.Target);
  EXPECT_EQ(kStart + std::chrono::days{2}, play.Slot->Today());
  // Another road from there, and back to the first.
  const std::size_t road = play.Last();
  play.Go(OnDay(worlds[8], kStart + std::chrono::days{2}), {PlayedStep::Click, "Otherwise"});
  play.Go(OnDay(worlds[9], kStart + std::chrono::days{3}));
  const Files other = play.World;
  play.GoBackTo(road, PlayedStep::Left);
  EXPECT_TRUE(Same(at[5], play.World));
  // And to the second again.
  EXPECT_TRUE(Same(other, Restored(*play.Slot, play.World, play.Last()).value()));
}

TEST(Roads, HaveMorningsOfTheirOwn) {
  CutDisk disk;
  const auto worlds = RandomWorlds(40, 93);
  Playing play(disk, OnDay(worlds[0], kStart));
  std::size_t turn = 0;
  const auto pass = [&](int days) {
    for (int i = 0; i < days; ++i) {
      const Day day = play.Slot->Today();
      play.Slot->Name("dawn");  // is not the morning of its day
      play.Go(OnDay(worlds[++turn % 40], day), {PlayedStep::Click, "a click"});
      play.Go(OnDay(worlds[++turn % 40], day + std::chrono::days{1}));
    }
  };
  pass(5);
  const Mornings& moments = play.Slot->Moments();
  std::size_t second = 0;
  while (moments[second].Is != MomentKind::Morning ||
         moments[second].On != kStart + std::chrono::days{1})
    ASSERT_LT(++second, moments.Count());
  const std::uint64_t goal = moments[second].Digest;
  play.Go(Restored(*play.Slot, play.World, second).value(),
          {.Is = PlayedStep::Left, .Target = goal});
  EXPECT_EQ(goal, moments[play.Last()].TargetDigest);
  pass(9);
  std::set<Day> kept;
  for (std::size_t i = moments.Count(); i-- > 0 && moments[i].Is != MomentKind::Left;)
    if (moments[i].Is == MomentKind::Morning) kept.insert(moments[i].On);
  for (int back = 1; back <= Mornings::kDays; ++back)
    EXPECT_TRUE(kept.contains(play.Slot->Today() - std::chrono::days{back})) << back;
  // Where a road came from is kept in the file.
  play.Slot.reset();
  play.Slot.emplace(disk, kStore, PlayedFiles(), Damage::Refuse, SlotOptions{});
  std::size_t left = 0;
  while (play.Slot->Moments()[left].Is != MomentKind::Left) ++left;
  EXPECT_EQ(goal, play.Slot->Moments()[left].TargetDigest);
}

TEST(Roads, AndNamesAreSaidToGoBeforeTheyDoAndTheFirstRoadStays) {
  CutDisk disk;
  const auto worlds = RandomWorlds(40, 94);
  Playing play(disk, OnDay(worlds[0], kStart));
  play.Go(OnDay(worlds[1], kStart + std::chrono::days{1}));
  const Mornings& moments = play.Slot->Moments();
  const auto digests = [&](MomentKind kind) {
    std::vector<std::uint64_t> found;
    for (std::size_t i = 0; i < moments.Count(); ++i)
      if (moments[i].Is == kind) found.push_back(moments[i].Digest);
    return found;
  };
  std::uint64_t first = 0;
  for (int road = 1; road <= Mornings::kLeft + 3; ++road) {
    const auto goes = moments.WouldGo(MomentKind::Left);
    ASSERT_EQ(road > Mornings::kLeft, goes.has_value()) << road;
    auto expected = digests(MomentKind::Left);
    if (goes) std::erase(expected, moments[*goes].Digest);
    play.GoBackTo(0, PlayedStep::Left);
    if (road == 1) first = moments[play.Last()].Digest;
    expected.push_back(moments[play.Last()].Digest);
    EXPECT_EQ(expected, digests(MomentKind::Left)) << road;
    EXPECT_EQ(first, digests(MomentKind::Left).front());
    play.Go(OnDay(worlds[static_cast<std::size_t>(road) + 1], kStart + std::chrono::days{1}));
  }
  for (int name = 0; name <= Mornings::kNamed; ++name) {
    const auto goes = moments.WouldGo(MomentKind::Named);
    ASSERT_EQ(name == Mornings::kNamed, goes.has_value());
    EXPECT_TRUE(!goes || moments[*goes].Name == "n0");
    play.Slot->Name("n" + std::to_string(name));
  }
  EXPECT_EQ(Mornings::kNamed, std::ssize(digests(MomentKind::Named)));
}

TEST(Clicks, AreTakenBackPastWhatWasNamedSince) {
  CutDisk disk;
  const auto worlds = RandomWorlds(6, 96);
  std::vector<Files> at;
  for (const Files& world : worlds) at.push_back(OnDay(world, kStart));
  Playing play(disk, at[0]);
  const Mornings& moments = play.Slot->Moments();
  const auto named = [&] {
    std::size_t found = 0;
    while (moments[found].Is != MomentKind::Named) ++found;
    return Restored(*play.Slot, play.World, found).value();
  };
  play.Go(at[1], {PlayedStep::Click, "Sign"});
  play.Go(at[2], {PlayedStep::Click, "Price"});
  play.Slot->Name("before the Event");
  play.Go(at[3]);  // no click of the player's
  ASSERT_EQ("Price", play.Slot->WhatToUndo());
  play.GoBackTo(*play.Slot->ClickToUndo(), PlayedStep::Undo);
  EXPECT_TRUE(Same(at[1], play.World));
  EXPECT_TRUE(Same(at[2], named()));
  Files redone = play.World;
  ASSERT_TRUE(play.Slot->Restore(play.Slot->WayToRedo(), play.Slot->DigestToRedo(), redone));
  play.Go(redone, {PlayedStep::Redo, "Price"});
  EXPECT_TRUE(Same(at[3], play.World));
  EXPECT_TRUE(Same(at[2], named()));
  // What it comes to need not be quite what it was: a game has another name since.
  ASSERT_EQ("Price", play.Slot->WhatToUndo());
  play.Go(at[4], {PlayedStep::Undo, "Price"});
  EXPECT_TRUE(Same(at[2], named()));
  ASSERT_EQ("Sign", play.Slot->WhatToUndo());
  play.GoBackTo(*play.Slot->ClickToUndo(), PlayedStep::Undo);
  EXPECT_TRUE(Same(at[0], play.World));
  EXPECT_TRUE(Same(at[2], named()));
  // What is no click is part of the one before.
  play.Go(at[1], {PlayedStep::Click, "Sign"});
  play.Go(at[5]);
  play.GoBackTo(*play.Slot->ClickToUndo(), PlayedStep::Undo);
  EXPECT_TRUE(Same(at[0], play.World));
  // A name that is forgotten takes nothing along.
  play.Go(at[3], {PlayedStep::Click, "Sign"});
  play.Slot->Name("by mistake");
  const std::size_t count = moments.Count();
  play.Slot->ForgetName(play.Last());
  EXPECT_EQ(count - 1, moments.Count());
  EXPECT_TRUE(Same(at[2], named()));
  ASSERT_EQ("Sign", play.Slot->WhatToUndo());
  play.GoBackTo(*play.Slot->ClickToUndo(), PlayedStep::Undo);
  EXPECT_TRUE(Same(at[0], play.World));
}

TEST(Moments, OfFilesThatWereChangedFromOutsideAreNotBelieved) {
  CutDisk disk;
  const auto worlds = RandomWorlds(3, 95);
  Playing play(disk, OnDay(worlds[0], kStart));
  play.Go(OnDay(worlds[1], kStart), {PlayedStep::Click, "Sign"});
  play.Slot.reset();
  {  // past the moments
    const Files now = play.World;
    play.World = OnDay(worlds[2], kStart);
    auto known = PlayedFiles();
    known.push_back({kMorningsName, kMostMornings});
    Slot slot(disk, kStore, known);
    slot.Commit(AllChanges(now, play.World));
  }
  play.Slot.emplace(disk, kStore, PlayedFiles(), Damage::Refuse, SlotOptions{});
  ASSERT_EQ(1u, play.Slot->Moments().Count());
  EXPECT_FALSE(Restored(*play.Slot, play.World, 0));
}

}  // namespace
}  // namespace grapplemont::test
