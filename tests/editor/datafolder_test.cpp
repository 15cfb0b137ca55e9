#include <gtest/gtest.h>

#include "editor/datafolder.h"
#include "editorhome.h"
#include "program/screens.h"
#include "session/layers.h"
#include "support/cutdisk.h"
#include "support/smallworld.h"

// The default data while they are edited: whatever fails, dies or loses its power, the old set of
// files or the new one is found, and what the player is told is what they find.

namespace grapplemont::test {
namespace {

using Files = std::map<std::string, Bytes>;
constexpr const char* kData = "data";
constexpr const char* kBackup = "data.backup";
constexpr const char* kBelow = "came";

World SmallData() {
  return SmallWorld().Promotion("CWA").Owner("Ruth Vane").Crew(6).Title("CWA Crown");
}

/// The files of a world, in a folder.
void Put(Disk& disk, const std::string& folder, const World& world) {
  for (const auto& [name, bytes] : FilesOf(world)) WriteFile(disk, folder + "/" + name, bytes);
}

/// A disk with a folder of data: the player's, or what came with the program and no other.
CutDisk DiskWith(const World& world, const char* folder = kData) {
  CutDisk disk;
  disk.MakeFolder(folder);
  Put(disk, folder, world);
  disk.SyncFolder(".");
  return disk;
}

/// A change that touches several files, one of which did not exist.
void Edit(World& world) {
  Named(world.Workers(), "CWA Hand 1").Over = 99;
  world.Promotions()[1].Risk = 77;
  Team team;
  team.Name = "The Hands";
  team.Worker1 = 1;
  team.Worker2 = 2;
  world.Teams().Append(team);
}

Files Edited(const World& world) {
  World copy = CopyOf(world);
  Edit(copy);
  return BytesOf(copy);
}

/// What a new game would find.
Files Found(CutDisk& disk, const char* folder = kData) {
  return ReadWorldFiles(disk, folder);
}

TEST(TheDataFolder, KeepsEachCommitAndABackupFromBeforeTheFirst) {
  const World before = SmallData();
  CutDisk disk = DiskWith(before);
  DataFolder data(disk, kData);
  data.World().Workers()[1].Over = 1;
  data.Rollback();
  data.Commit();
  EXPECT_FALSE(data.HasBackup()) << "nothing has changed";
  Edit(data.World());
  data.Commit();
  EXPECT_EQ(Edited(before), Found(disk));
  EXPECT_EQ(BytesOf(before), Found(disk, kBackup));
  data.World().Teams().Erase(1);
  data.Commit();
  EXPECT_EQ(BytesOf(data.World()), Found(disk));
  EXPECT_EQ(BytesOf(before), Found(disk, kBackup)) << "one backup a session";
  EXPECT_EQ((std::vector<std::string>{kData, kBackup}), disk.List("."));
}

TEST(TheDataFolder, ExchangesDataAndBackup) {
  const World before = SmallData();
  CutDisk disk = DiskWith(before);
  {
    DataFolder data(disk, kData);
    Edit(data.World());
    data.Commit();
    EXPECT_TRUE(data.Restore());
    EXPECT_EQ(BytesOf(before), BytesOf(data.World()));
    EXPECT_EQ(BytesOf(before), Found(disk));
    EXPECT_EQ(Edited(before), Found(disk, kBackup));
  }
  DataFolder again(disk, kData);
  EXPECT_TRUE(again.Restore());
  EXPECT_EQ(Edited(before), Found(disk));
  again.World().Workers()[2].Over = 3;
  again.Commit();
  EXPECT_EQ(BytesOf(before), Found(disk, kBackup)) << "from before this session's first change";
}

TEST(TheDataFolder, LeavesWhatCameWithTheProgramAloneAndOwnsAllOnceOneFileIsChanged) {
  const World before = SmallData();
  CutDisk disk = DiskWith(before, kBelow);
  DataFolder data(disk, kData, kBelow);
  EXPECT_EQ(BytesOf(before), BytesOf(data.World()));
  EXPECT_FALSE(data.Covers());
  data.World().Workers()[1].Over = 1;
  const Files mine = BytesOf(data.World());
  data.Commit();
  EXPECT_TRUE(data.Covers());
  EXPECT_EQ(mine, Found(disk)) << "all files, not the changed one alone";
  EXPECT_EQ(BytesOf(before), Found(disk, kBelow));
  EXPECT_EQ(BytesOf(before), Found(disk, kBackup));

  World update = CopyOf(before);
  update.Promotions()[1].Risk = 12;
  Put(disk, kBelow, update);
  EXPECT_EQ(mine, ReadDefaultData(disk, {kData, kBelow})) << "an update leaves it alone";
  data.Uncover();
  EXPECT_FALSE(data.Covers());
  EXPECT_EQ(BytesOf(update), BytesOf(data.World()));
  EXPECT_EQ(BytesOf(update), ReadDefaultData(disk, {kData, kBelow}));
  EXPECT_TRUE(data.Restore()) << "and back";
  EXPECT_EQ(mine, Found(disk));
  EXPECT_EQ(BytesOf(update), Found(disk, kBackup));
}

TEST(TheDataFolder, RestoresFromBelowWhatTheBackupLacks) {
  const World before = SmallData();
  CutDisk disk = DiskWith(before, kBelow);
  DataFolder data(disk, kData, kBelow);
  Edit(data.World());
  data.Commit();
  disk.Remove(std::string(kBackup) + "/belt.dat");
  EXPECT_TRUE(data.Restore());
  EXPECT_EQ(BytesOf(before), BytesOf(data.World())) << "as whoever opens it again would see it";
  EXPECT_EQ(BytesOf(before), Found(disk));
}

TEST(PowerCutsInTheEditor, LeaveTheWorldThatCameWithTheProgramOrTheOwnOne) {
  const World before = SmallData();
  const Files old = BytesOf(before), fresh = Edited(before);
  CutDisk disk = DiskWith(before, kBelow);
  {
    DataFolder data(disk, kData, kBelow);
    disk.Record();
    disk.Begins(1);
    Edit(data.World());
    data.Commit();
    disk.Shows(1);
    disk.Begins(2);
    data.Uncover();
    disk.Shows(2);
  }
  const auto check = [&](CutDisk& after, const Cut& cut) {
    const Files seen = ReadDefaultData(after, {kData, kBelow});
    DataFolder data(after, kData, kBelow);
    const Files files = BytesOf(data.World());
    EXPECT_EQ(seen, files) << cut.Where;
    const bool isOld = cut.Least == 0 || cut.Most == 2, isFresh = cut.Least <= 1 && cut.Most >= 1;
    EXPECT_TRUE((isOld && files == old) || (isFresh && files == fresh)) << cut.Where;
  };
  EXPECT_GT(ForEveryCut(disk, Often(4), 9, check), 200);
  EXPECT_GT(ForEveryDeath(disk, check), 30);
}

TEST(TheDataFolder, IsLetGoOf) {
  CutDisk disk = DiskWith(SmallData());
  { const DataFolder first(disk, kData); }
  EXPECT_NO_THROW(DataFolder(disk, kData));
  EXPECT_THROW(DataFolder(disk, "elsewhere"), WorldFault);
  EXPECT_EQ(Disk::Kind::Nothing, disk.Look("elsewhere.lock"));
}

TEST(TheDataFolder, DoesNotWriteOverWhatAnotherProgramChanged) {
  CutDisk disk = DiskWith(SmallData());
  DataFolder data(disk, kData);
  WriteFile(disk, "data/wrestler.dat", {});
  Edit(data.World());
  EXPECT_THROW(data.Commit(), WorldFault);
  EXPECT_TRUE(Found(disk)["wrestler.dat"].empty());
  EXPECT_FALSE(Found(disk).contains("teams.dat"));
}

TEST(TheDataFolder, OpensAroundAFileThatIsNone) {
  const World before = SmallData();
  CutDisk disk = DiskWith(before);
  const Bytes huge(36 * sizeof(Promotion));
  WriteFile(disk, "data/promos.dat", huge);
  disk.MakeFolder("data/tv.dat");
  DataFolder data(disk, kData);
  EXPECT_FALSE(data.IsReadable("promos.dat"));
  EXPECT_FALSE(data.IsReadable("tv.dat"));
  EXPECT_EQ(6, data.World().Workers().Count());
  data.World().Workers()[1].Over = 5;
  data.Commit();
  EXPECT_EQ(huge, ReadFile(disk, "data/promos.dat"));
  EXPECT_THROW(data.Restore(), WorldFault) << "both stand in the way";
}

TEST(TheDataFolder, ReadsNoFileBeyondTheMostThatItMayBe) {
  CutDisk disk = DiskWith(SmallData());
  for (const char* name : {"data/wrestler.dat", "data/tv.dat", "data.step"}) {
    const OpenedFile file(disk, name, true);
    disk.Resize(file, std::int64_t{3} << 30);
  }
  disk.MakeFolder("s1");
  for (const char* name : {"s1/gameinfo.dat", "s1/world.id"}) {
    const OpenedFile file(disk, name, true);
    disk.Resize(file, std::int64_t{3} << 30);
  }
  EXPECT_THROW(ReadWorldFiles(disk, kData), WorldFault);
  EXPECT_EQ(sizeof(GameInfo), Slot::Peek(disk, "s1", KnownFiles(), "gameinfo.dat")->size());
  EXPECT_THROW(Slot(disk, "s1", KnownFiles()), SlotDamaged);
  DataFolder data(disk, kData);
  EXPECT_EQ(data.Unreadable().size(), 2u);
  data.World().Promotions()[1].Risk = 7;
  data.Commit();
  EXPECT_LT(disk.LongestRead(), std::size_t{32} << 20);
}

/// What the disk has become after a commit, by what was said about it.
void ExpectAsTold(const std::string& told, const Files& before, const Files& after,
                  const Files& found, const std::string& where) {
  const bool isOld = found == before, isNew = found == after;
  EXPECT_TRUE(isOld || isNew) << where;
  if (told.empty() || told.ends_with("Your change is kept.")) {
    EXPECT_TRUE(isNew) << where << ": " << told;
  } else if (told.find("whether") == std::string::npos) {
    EXPECT_TRUE(isOld) << where << ": " << told;
  }
}

/// More than it makes, its backup included.
constexpr int kCallsOfACommit = 250;

class Failing : public testing::TestWithParam<std::tuple<DiskFault, bool>> {};

TEST_P(Failing, DisksLeaveWhatThePlayerIsTold) {
  const auto [fault, forGood] = GetParam();
  const World before = SmallData();
  const Files after = Edited(before);
  int failures = 0;
  for (int call = 1; call <= kCallsOfACommit; ++call) {
    CutDisk disk = DiskWith(before);
    std::string told;
    {
      DataFolder data(disk, kData);
      disk.FailCall(call, fault, forGood);
      Edit(data.World());
      try {
        data.Commit();
      } catch (const DiskError& error) {
        told = error.what();
        data.Rollback();
        EXPECT_FALSE(told.find("taken back") != std::string::npos &&
                     BytesOf(data.World()) != BytesOf(before));
      }
      failures += disk.HasFailed();
      disk.Heal();
      // The session goes on as soon as the disk does.
      if (!told.empty() && call % 3 == 0) {
        data.World().Workers()[3].Over = 1;
        EXPECT_NO_THROW(data.Commit()) << call;
        EXPECT_EQ(BytesOf(data.World()), Found(disk));
        continue;
      }
    }
    CutDisk next = disk.Restarted();
    DataFolder data(next, kData);
    ExpectAsTold(told, BytesOf(before), after, BytesOf(data.World()), std::to_string(call));
  }
  EXPECT_GE(failures, fault == DiskFault::NoSpace ? 20 : 60);
  EXPECT_LT(failures, kCallsOfACommit) << "longer than every commit";
}

INSTANTIATE_TEST_SUITE_P(OnceOrForGood, Failing,
                         testing::Combine(testing::Values(DiskFault::NoSpace, DiskFault::Broken),
                                          testing::Bool()));

/// Cuts the opening short too; then the old set or the new one is there, and is taken on from.
void OpenAtEveryCut(CutDisk& disk, const Files& before, const Files& after, const Cut& outer) {
  const auto check = [&](CutDisk& found, const Cut& cut) {
    const Files seen = Found(found);
    DataFolder data(found, kData);
    const Files files = BytesOf(data.World());
    EXPECT_EQ(seen, files) << "a new game sees what the editor sees";
    EXPECT_TRUE((outer.Least == 0 && files == before) || (outer.Most == 1 && files == after))
        << outer.Where << ", then " << cut.Where;
    EXPECT_EQ(Disk::Kind::Nothing, found.Look("data.step"));
  };
  CutDisk whole = disk;
  check(whole, outer);
  disk.Record();
  { DataFolder data(disk, kData); }
  ForSomeCuts(disk, 6, static_cast<std::uint64_t>(outer.Index), check);
}

/// A commit on a recording disk; a sync of `unsynced` is a lie.
CutDisk RecordedCommit(const char* unsynced = nullptr) {
  CutDisk disk = DiskWith(SmallData());
  if (unsynced) disk.IgnoreSyncs(unsynced);
  {
    DataFolder data(disk, kData);
    disk.Record();
    disk.Begins(1);
    Edit(data.World());
    data.Commit();
    disk.Shows(1);
  }
  return disk;
}

TEST(PowerCutsInTheEditor, LeaveTheOldDataOrTheNewAndNoticeAStepThatIsNotOnDisk) {
  const Files old = BytesOf(SmallData()), fresh = Edited(SmallData());
  CutDisk disk = RecordedCommit();
  const auto check = [&](CutDisk& after, const Cut& cut) {
    OpenAtEveryCut(after, old, fresh, cut);
  };
  EXPECT_GT(ForEveryCut(disk, Often(8), 5, check), 200);
  EXPECT_GT(ForEveryDeath(disk, check), 30);
  for (const char* unsynced : {"data.step", "wrestler.dat.tmp"}) {
    CutDisk liar = RecordedCommit(unsynced);
    int bad = 0;
    const int cuts = ForEveryCut(liar, Often(8), 5, [&](CutDisk& after, const Cut& cut) {
      const Files found = Found(after);
      bad += !((cut.Least == 0 && found == old) || (cut.Most == 1 && found == fresh));
    });
    EXPECT_GT(bad, 0) << unsynced;
    NoteVariant(std::string("a sync of ") + unsynced, bad, cuts);
  }
}

TEST(PowerCutsInTheEditor, LeaveTheBackupWhereTheDataAreNotYetRestored) {
  const World before = SmallData();
  const Files old = BytesOf(before), fresh = Edited(before);
  for (const bool inOneStep : {true, false}) {
    CutDisk disk = DiskWith(before);
    if (!inOneStep) disk.KnowNoExchange();
    {
      DataFolder data(disk, kData);
      Edit(data.World());
      data.Commit();
      disk.Record();
      disk.Begins(1);
      ASSERT_TRUE(data.Restore());
      disk.Shows(1);
    }
    const auto check = [&](CutDisk& after, const Cut& cut) {
      if (!inOneStep) after.KnowNoExchange();
      DataFolder data(after, kData);
      const Files found = BytesOf(data.World());
      ASSERT_TRUE((cut.Least == 0 && found == fresh) || (cut.Most == 1 && found == old))
          << cut.Where;
      ASSERT_TRUE(data.HasBackup()) << cut.Where;
      if (found == fresh) {
        EXPECT_TRUE(data.Restore()) << cut.Where;
        EXPECT_EQ(old, BytesOf(data.World())) << cut.Where;
      }
    };
    EXPECT_GT(ForEveryCut(disk, Often(8), 6, check), 200);
    ForEveryDeath(disk, check);
  }
}

// The editor's screens on a disk that fails: what was typed is not lost with it.

TEST(AFailedSave, IsToldTakenBackAndCanBeTriedAgain) {
  const World before = EditorData();
  for (const int call : {3, 12, 25, 40, 60}) {
    SCOPED_TRACE(call);
    CutDisk disk;
    disk.MakeFolder("home");
    disk.MakeFolder("home/data");
    Put(disk, "home/data", before);
    ScriptDesk desk;
    Game game(desk, disk, {"home", [] { return kGameStart; }, 1});
    RegisterScreens(game);
    desk.Open("frmEditWres");
    desk.Click("cmdnew");
    desk.Type("txtname", "Bram Okafor");
    disk.FailCall(call, DiskFault::Broken, false);
    desk.ExpectSay("Error!", kAnyText);
    desk.Click("cmdsave");
    EXPECT_TRUE(disk.HasFailed());
    disk.Heal();
    const bool kept = desk.Boxes().back().Text.ends_with("Your change is kept.");
    EXPECT_EQ("Bram Okafor", desk.Text("txtname"));
    EXPECT_NE(kept, desk.Enabled("cmdsave"));
    if (!kept) {
      EXPECT_EQ(BytesOf(before), ReadWorldFiles(disk, "home/data"));
      desk.Click("cmdsave");
    }
    World found;
    found.Load(ReadWorldFiles(disk, "home/data"));
    EXPECT_EQ(before.Workers().Count() + 1, found.Workers().Count());
    EXPECT_EQ("Bram Okafor", found.Workers()[found.Workers().Count()].Name.Str());
  }
}

TEST(TheEditor, DoesNotOpenWhileAnotherProgramEdits) {
  EditorHome first;
  auto disk = RealDisk(Syncs::None);
  ScriptDesk desk;
  Game second(desk, *disk, {first.Play.Home(), [] { return kGameStart; }, 1});
  RegisterScreens(second);
  desk.ExpectSay("Error!",
                 "The default data are being edited in another program. Close the editor there "
                 "first; nothing was changed.");
  desk.Event([&] { desk.Open("frmEditor"); });
  EXPECT_EQ("", desk.TopName());
}

}  // namespace
}  // namespace grapplemont::test
