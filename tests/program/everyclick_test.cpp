#include <gtest/gtest.h>

#include "program/running.h"
#include "records/store/slot.h"
#include "session/layers.h"
#include "ui/actlines.h"

// Clicks of every kind that keep something, in a slot, in several or in the default data: the power
// is cut at every moment of them, the process killed, every disk call fails. What is found is what
// was before the click or what is after it, in all places at once.

namespace grapplemont::test {
namespace {

using Acts = std::vector<const char*>;
using Seen = std::map<std::string, Bytes>;

/// What the acts of a story begin from.
enum class From { TheGame, TheLoadScreen, FaultyData };

/// What is known of a story whose disk fails on the way, once the click was made again.
enum class Again {
  ComesToTheSame,
  IsDrawnAnew  // what chance decides
};

struct ClickStory {
  const char* Name;
  From Begins;
  Acts Before, Clicks;
  Again Then = Again::ComesToTheSame;
};

World AGame() {
  World world =
      SmallWorld().Network("Nine").Promotion("CWA", kCult).Owner("Ruth Vane").Crew(8).Game("CWA");
  world.Game().SaveName = "First";
  return world;
}

World SomeData(bool faulty) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", kCult).Owner("Ruth Vane").Crew(4);
  if (!faulty) return small.Build();
  small.Worker("Max Agent", [](Worker& worker) { worker.BirthMonth = 300; });
  return small.BuildUnchecked();
}

/// A game in the first slot, nothing in the others.
CutDisk DiskOf(const ClickStory& story) {
  CutDisk disk = HomeWith(SomeData(story.Begins == From::FaultyData));
  Slot::Create(disk, kSlot, FilesOf(AGame()), 4711);
  return disk;
}

/// All that the player has, read by the real code.
Seen SeenOn(CutDisk& disk) {
  Seen all;
  for (const char* slot : {"h/s1", "h/s2"})
    for (auto& [name, bytes] : Found(disk, slot)) all[slot + ("/" + name)] = std::move(bytes);
  for (auto& [name, bytes] : ReadDefaultData(disk, {"h/data"})) all[name] = std::move(bytes);
  return all;
}

/// The files in which the two are not the same.
std::string Differing(const Seen& one, const Seen& other) {
  std::string names;
  const auto look = [&](const Seen& from, const Seen& in) {
    for (const auto& [name, bytes] : from)
      if (const auto found = in.find(name); found == in.end() || found->second != bytes)
        names += name + " ";
  };
  look(one, other);
  look(other, one);
  return names;
}

/// A sitting that has come to where the clicks of a story begin.
struct Sitting : Running {
  Sitting(CutDisk& disk, const ClickStory& story) : Running(disk) {
    Desk.Typed = {{"Import", "First.grapplemont"}, {"Rename", "Second"}, {"Duplicate", "Second"}};
    if (story.Begins == From::TheGame) {
      Load();
    } else {
      Desk.Open(story.Begins == From::TheLoadScreen ? "frmLoadGame" : "frmGameMenu");
      if (story.Begins != From::TheLoadScreen) Desk.Click("cmdeditor");
    }
    for (const char* act : story.Before) Do(act);
    EXPECT_EQ("", Join());
  }
  void Do(const char* act) { EXPECT_EQ("", ui::DoAct(Desk, act)) << Desk.Top()->Name(); }
  /// The disk failed for so long that the page could not be made either.
  bool ShowsAnOldPage() {
    const ui::Control* look = Desk.Top()->Find("cmdlook");
    return look && look->Visible;
  }
  std::string Join() const {
    std::string all;
    for (const std::string& error : Desk.Errors) all += error + "\n";
    return all;
  }
};

class EveryClick : public testing::TestWithParam<ClickStory> {};

/// The clicks over a disk that records them, and what is seen before the first and after each.
struct Recorded {
  CutDisk Disk;
  std::vector<Seen> Worlds;
};

Recorded Played(const ClickStory& story) {
  Recorded played{DiskOf(story), {}};
  Sitting run(played.Disk, story);
  const auto look = [&] {
    CutDisk now = played.Disk.Restarted();
    played.Worlds.push_back(SeenOn(now));
  };
  look();
  played.Disk.Record();
  played.Disk.Shows(0);
  for (const char* act : story.Clicks) {
    played.Disk.Begins(static_cast<int>(std::ssize(played.Worlds)));
    run.Do(act);
    look();
    played.Disk.Shows(static_cast<int>(std::ssize(played.Worlds)) - 1);
  }
  EXPECT_EQ("", run.Join());
  return played;
}

TEST_P(EveryClick, LeavesWhatWasBeforeItOrWhatIsAfterIt) {
  const Recorded played = Played(GetParam());
  int changes = 0;
  for (std::size_t i = 1; i < played.Worlds.size(); ++i)
    changes += played.Worlds[i] != played.Worlds[i - 1];
  EXPECT_GT(changes, 0);
  const auto look = [&](CutDisk& after, const Cut& cut) {
    const Seen seen = SeenOn(after);
    for (int world = cut.Least; world <= cut.Most; ++world)
      if (seen == played.Worlds[static_cast<std::size_t>(world)]) return;
    ADD_FAILURE() << "none from " << cut.Least << " to " << cut.Most << " after " << cut.Where;
  };
  EXPECT_GT(ForEveryCut(played.Disk, Often(2), 81, look), 10);
  EXPECT_GT(ForEveryDeath(played.Disk, look), 5);
}

/// One run whose n-th call fails. False once there is no such call.
bool ExpectToGoOn(const ClickStory& story, const std::vector<Seen>& worlds, int call,
                  DiskFault fault, bool forGood) {
  CutDisk disk = DiskOf(story);
  Sitting run(disk, story);
  const int from = disk.Calls();
  disk.FailCall(call, fault, forGood);
  for (std::size_t i = 0; i < story.Clicks.size(); ++i) {
    const bool failedBefore = disk.HasFailed();
    run.Do(story.Clicks[i]);
    if (failedBefore || !disk.HasFailed()) continue;
    disk.Heal();
    if (run.ShowsAnOldPage()) run.Do("click cmdlook");
    CutDisk now = disk.Restarted();
    const Seen seen = SeenOn(now);
    EXPECT_TRUE(seen == worlds[i] || seen == worlds[i + 1])
        << "call " << call << ", before: " << Differing(seen, worlds[i])
        << ", after: " << Differing(seen, worlds[i + 1]);
    if (seen == worlds[i + 1]) continue;
    EXPECT_FALSE(run.Desk.Errors.empty()) << "call " << call << ": lost without a word";
    run.Desk.Errors.clear();
    run.Do(story.Clicks[i]);
    EXPECT_EQ("", run.Join()) << "call " << call << ": it cannot be done again";
  }
  CutDisk atLast = disk.Restarted();
  if (story.Then == Again::ComesToTheSame) {
    EXPECT_EQ(Differing(SeenOn(atLast), worlds.back()), "") << "call " << call;
  }
  return call <= disk.Calls() - from;
}

TEST_P(EveryClick, IsTakenBackWholeOrKeptWholeWhateverCallFails) {
  const std::vector<Seen> worlds = Played(GetParam()).Worlds;
  const int step = std::max(1, 12 / Often(1));  // each of them where time is no matter
  for (const DiskFault fault : {DiskFault::NoSpace, DiskFault::Broken})
    for (const bool forGood : {false, true})
      for (int call = forGood ? 1 : 1 + step / 2;; call += step) {
        if (!ExpectToGoOn(GetParam(), worlds, call, fault, forGood)) break;
        if (HasFailure()) return;
      }
}

const ClickStory kStories[] = {
    {"Day", From::TheGame, {}, {"click cmdnext"}, Again::IsDrawnAnew},
    {"GoingBack",
     From::TheGame,
     {"click cmdnext", "click cmdnext", "click cmdmornings", "pick lstmornings 2"},
     {"click cmdgo"}},
    {"Import", From::TheLoadScreen, {"click cmdexport1"}, {"click cmdimport"}},
    {"Rename", From::TheLoadScreen, {}, {"click cmdrename1"}},
    {"Copy", From::TheLoadScreen, {}, {"click cmdcopy1"}},
    {"Deletion", From::TheLoadScreen, {}, {"click cmddelete1", "click cmdrestore"}},
    {"CleanUp", From::FaultyData, {"click cmdmaintain"}, {"click cmdclean"}},
};
INSTANTIATE_TEST_SUITE_P(Of, EveryClick, testing::ValuesIn(kStories),
                         [](const auto& of) { return std::string(of.param.Name); });

}  // namespace
}  // namespace grapplemont::test
