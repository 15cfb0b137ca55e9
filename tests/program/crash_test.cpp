#include <gtest/gtest.h>

#include "program/running.h"
#include "records/segments.h"
#include "records/store/slot.h"
#include "show/holdshow.h"

// The whole program over a disk that loses its power, dies or fails at any call: a new game, next
// days, a mail deleted, a clean exit.

namespace grapplemont::test {
namespace {

/// A disk with default data of two promotions and no slot.
CutDisk FreshHome() {
  return HomeWith(SmallWorld()
                      .Network("Nine")
                      .Promotion("CWA", kCult)
                      .Owner("Ruth Vane")
                      .Crew(8)
                      .Promotion("NEW", kSmall)
                      .Crew(4)
                      .Build());
}

/// A run that was recorded, and the world after each of its clicks; world 0 is not a slot at all.
struct Story {
  CutDisk Disk = FreshHome();
  std::vector<std::map<std::string, Bytes>> Worlds{{}};
};

Story PlayOnce() {
  Story story;
  Running run(story.Disk);
  const auto click = [&](const std::function<void()>& what) {
    story.Disk.Begins(static_cast<int>(story.Worlds.size()));
    what();
    story.Worlds.push_back(run.Files());
    story.Disk.Shows(static_cast<int>(story.Worlds.size()) - 1);
  };
  story.Disk.Record();
  click([&] { run.NewGame(); });
  click([&] { run.Desk.Click("cmdnext"); });
  click([&] { run.ReadAMail(); });
  for (const char* way : {"cmdnews", "cmddelete", "cmdback"}) click([&] { run.Desk.Click(way); });
  click([&] { run.Desk.Click("cmdnext"); });
  run.Play.CloseSlot();
  EXPECT_TRUE(run.Desk.Errors.empty());
  return story;
}

void ExpectACommittedWorld(const Story& story, CutDisk& after, const Cut& cut) {
  const auto found = Found(after);
  for (int world = cut.Least; world <= cut.Most; ++world)
    if (found == story.Worlds[static_cast<std::size_t>(world)]) return;
  ADD_FAILURE() << "no world from " << cut.Least << " to " << cut.Most << " after " << cut.Where;
}

TEST(Crashes, LeaveAWorldThatWasShownOrTheNextOne) {
  const Story story = PlayOnce();
  const int cuts = ForEveryCut(story.Disk, Often(5), 77, [&](CutDisk& after, const Cut& cut) {
    ExpectACommittedWorld(story, after, cut);
  });
  EXPECT_GE(cuts, 200);
  ForEveryDeath(story.Disk,
                [&](CutDisk& after, const Cut& cut) { ExpectACommittedWorld(story, after, cut); });
}

/// A disk with a game that is one day old, and a mail that was read.
CutDisk GameOnDisk(std::uint64_t seed = 5) {
  CutDisk disk = FreshHome();
  Running run(disk, seed);
  run.NewGame();
  run.ReadAMail();
  run.Play.CloseSlot();
  return disk;
}

struct FaultCase {
  DiskFault Kind;
  bool ForGood;
};

constexpr FaultCase kFaults[] = {{DiskFault::NoSpace, false},
                                 {DiskFault::NoSpace, true},
                                 {DiskFault::Broken, false},
                                 {DiskFault::Broken, true}};

/// The click fails at each of its disk calls in turn: there is a message, the world in memory and
/// the one on disk are committed ones, and once the disk answers again the game goes on.
void ExpectToSurvive(const FaultCase& fault, const CutDisk& home, void (*click)(Running&)) {
  CutDisk counted = home.Restarted();
  Running smooth(counted);
  smooth.Load();
  const auto before = smooth.Files();
  const int from = counted.Calls();
  click(smooth);
  const int calls = counted.Calls() - from;
  const auto after = smooth.Files();
  ASSERT_GT(calls, 0);
  for (int call = 1; call <= calls; ++call) {
    SCOPED_TRACE((fault.ForGood ? "for good, call " : "once, call ") + std::to_string(call));
    CutDisk disk = home.Restarted();
    Running run(disk);
    run.Load();
    disk.FailCall(call, fault.Kind, fault.ForGood);
    click(run);
    EXPECT_EQ(run.Desk.Errors.empty(), !disk.HasFailed()) << "the player is told";
    ASSERT_TRUE(run.Play.HasWorld());
    const auto held = run.Files();
    EXPECT_TRUE(held == before || held == after) << "in memory";
    disk.Heal();
    CutDisk later = disk.Restarted();
    const auto found = Found(later);
    EXPECT_TRUE(found == before || found == after) << "on disk";
    while (run.Desk.Top()->Name() != "frmMainScreen") run.Desk.Click("cmdback");
    run.Desk.Errors.clear();
    const Day today = run.Play.World().Today();
    run.Desk.Click("cmdnext");
    EXPECT_TRUE(run.Desk.Errors.empty()) << run.Desk.Errors.front();
    EXPECT_EQ(run.Play.World().Today(), today + std::chrono::days{1}) << "the game goes on";
    CutDisk atLast = disk.Restarted();
    EXPECT_TRUE(Found(atLast) == run.Files()) << "and is on disk";
    if (testing::Test::HasFailure()) return;
  }
}

TEST(Faults, OfANextDayAndOfAMailDeletedAreSurvived) {
  for (int game = 0; game < Often(1); ++game) {
    const CutDisk home = GameOnDisk(5 + static_cast<std::uint64_t>(game));
    for (const FaultCase& fault : kFaults) {
      ExpectToSurvive(fault, home, [](Running& run) { run.Desk.Click("cmdnext"); });
      ExpectToSurvive(fault, home, [](Running& run) { run.DeleteAMail(); });
    }
  }
}

void ExpectTheOldGameOrTheNew(const FaultCase& fault) {
  CutDisk home = GameOnDisk();
  const auto before = Found(home);
  CutDisk counted = home.Restarted();
  {
    Running smooth(counted);
    smooth.NewGame();
  }
  for (int call = 1; call <= counted.Calls(); ++call) {
    SCOPED_TRACE("call " + std::to_string(call));
    CutDisk disk = home.Restarted();
    Running run(disk);
    disk.FailCall(call, fault.Kind, fault.ForGood);
    run.NewGame();
    disk.Heal();
    const bool opened = run.Play.HasWorld();
    const auto held = opened ? run.Files() : before;
    run.Play.CloseSlot();
    CutDisk later = disk.Restarted();
    const auto found = Found(later);
    const bool isNew = found != before && !found.empty() && found.contains("gameinfo.dat");
    EXPECT_TRUE(found == before || isNew) << "whole, the old one or the new";
    EXPECT_TRUE(!opened || found == held);
    if (testing::Test::HasFailure()) return;
  }
}

TEST(Faults, OfANewGameLeaveTheOldOne) {
  for (const FaultCase& fault : kFaults) ExpectTheOldGameOrTheNew(fault);
}

constexpr int kMatchesOfShow = 4;

/// A disk with a game in the middle of a show: one of its matches has been told.
CutDisk DiskInAShow() {
  World world = SmallWorld().Network("Nine").Promotion("CWA").Crew(8).Game("CWA");
  std::vector<Segment> sheet(static_cast<std::size_t>(kTvRows), EmptySegment());
  for (int row = 0; row < kMatchesOfShow; ++row) {
    Segment& match = sheet[static_cast<std::size_t>(row)];
    match.Kind = kMatch;
    match.Style = kSingles;
    match.MatchType = kPlainSingles;
    match.Worker[0] = match.Winner = 1 + 2 * row;
    match.Worker[1] = match.Loser = 2 + 2 * row;
    match.Finish = match.Aftermath = match.Purpose = 1;
  }
  world.Segments().Rewrite(sheet);
  StartShow(world, false, {});
  RunNextSegment(world, nullptr);
  CutDisk disk = FreshHome();
  Slot::Create(disk, kSlot, FilesOf(world), 4711);
  return disk;
}

TEST(Crashes, InTheMiddleOfAShowLeaveEachSegmentToldOnceOrNotAtAll) {
  CutDisk disk = DiskInAShow();
  Story story{std::move(disk), {}};
  Running run(story.Disk);
  run.Load();
  story.Worlds.push_back(run.Files());
  story.Disk.Record();
  story.Disk.Shows(0);
  story.Disk.Begins(1);
  run.Desk.Click("cmdnext");
  story.Worlds.push_back(run.Files());
  story.Disk.Shows(1);
  ASSERT_NE(story.Worlds[0], story.Worlds[1]);
  const auto look = [&](CutDisk& after, const Cut& cut) {
    ExpectACommittedWorld(story, after, cut);
    Running later(after);
    later.Load();
    while (later.Desk.Top()->Name() == "frmMatchOutput") later.Desk.Click("cmdnext");
    EXPECT_EQ(later.Desk.Top()->Name(), "frmPostShow");
    EXPECT_TRUE(later.Desk.Errors.empty());
    EXPECT_EQ(later.Play.World().ShowRuns()[1].ShowSegments, kMatchesOfShow + 1)
        << "the last one counts twice";
    EXPECT_EQ(later.Play.World().Bouts().Count(), kMatchesOfShow) << "each is written down once";
  };
  EXPECT_GE(ForEveryCut(story.Disk, Often(3), 78, look), 3);
  EXPECT_GE(ForEveryDeath(story.Disk, look), 1);
}

}  // namespace
}  // namespace grapplemont::test
