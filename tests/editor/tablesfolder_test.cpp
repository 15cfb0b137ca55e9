#include "editor/recordfile.h"

#include <gtest/gtest.h>

#include "newrecords.h"
#include "support/cutdisk.h"
#include "support/defaultworld.h"
#include "support/randomworld.h"

namespace grapplemont::test {
namespace {

World Loaded(const std::map<std::string, Bytes>& files) {
  World world;
  world.Load(files);
  return world;
}

TEST(TablesFolder, OutAndInGiveTheSameBytes) {
  for (int which = 0; which < 4; ++which) {
    SCOPED_TRACE(which);
    const World world = which == 0 ? Loaded(BytesOf(DefaultWorld()))
                                   : RandomData(static_cast<std::uint64_t>(which));
    CutDisk disk;
    ExportTables(disk, "tables", world);
    World other = SmallWorld().Promotion("CWA").Crew(2);
    const TablesPreview preview = LookAtTables(disk, "tables", other);
    ASSERT_EQ(preview.WhyNot, "");
    TakeOver(other, *preview.Made);
    ExpectSame(other, world);
  }
}

TEST(TablesFolder, CountsWhatIsAndWhatWouldBe) {
  CutDisk disk;
  const World there = Complete(SmallWorld().Promotion("CWA").Crew(4).Promotion("NEW").Event(3));
  ExportTables(disk, "tables", there);
  const World here = SmallWorld().Promotion("CWA").Crew(2).Build();
  const TablesPreview preview = LookAtTables(disk, "tables", here);
  std::map<std::string, std::pair<int, int>> counts;
  for (const RecordCount& row : preview.Counts)
    counts[row.Table] = {row.Now, row.Then.value_or(-1)};
  EXPECT_EQ(counts.size(), 10u);
  EXPECT_EQ(counts["workers.csv"], std::pair(2, 4));
  EXPECT_EQ(counts["promotions.csv"], std::pair(1, 2));
  EXPECT_EQ(counts["events.csv"], std::pair(0, 1));
}

TEST(TablesFolder, TakesOverTheTenFilesAndNothingElse) {
  World data = SmallWorld().Promotion("CWA").Crew(2);
  data.Notes().Set("mine");
  CutDisk disk;
  ExportTables(disk, "tables", Complete(SmallWorld().Promotion("NEW")));
  TakeOver(data, *LookAtTables(disk, "tables", data).Made);
  EXPECT_EQ(data.Notes().Text(), "mine");
  EXPECT_EQ(data.Workers().Count(), 0);
  for (const std::string_view file : kDataSet)
    for (const Table* table : data.Tables())
      EXPECT_TRUE(table->Exists() || table->File() != file) << file;
}

TEST(TablesFolder, TellsEveryMistakeInTheWordsOfTheTool) {
  CutDisk disk;
  const World world = Complete(SmallWorld().Promotion("CWA").Crew(2));
  Tables tables = ExportWorld(world);
  std::string& workers = tables["workers.csv"];
  for (std::size_t at; (at = workers.find(",CWA,")) != std::string::npos;)
    workers.replace(at, 5, ",CWX,");
  WriteTables(disk, "tables", tables);
  const TablesPreview preview = LookAtTables(disk, "tables", world);
  EXPECT_EQ(preview.Mistakes,
            (Texts{"workers.csv, line 2, column Employer: no promotion has the initials CWX; did "
                   "you mean CWA?",
                   "workers.csv, line 3, column Employer: no promotion has the initials CWX; did "
                   "you mean CWA?"}));
  EXPECT_EQ(preview.WhyNot, "2 mistakes; nothing was built.");
  EXPECT_FALSE(preview.Made);
}

TEST(TablesFolder, RefusesWhatIsNoWorldForTheData) {
  CutDisk disk;
  const World data = SmallWorld().Promotion("CWA").Build();
  EXPECT_EQ(LookAtTables(disk, "none", data).WhyNot, "none is no folder.");
  disk.MakeFolder("empty");
  EXPECT_EQ(LookAtTables(disk, "empty", data).WhyNot, "empty holds no tables.");
  ExportTables(disk, "saved", SmallWorld().Promotion("CWA").Game("CWA").Build());
  EXPECT_EQ(LookAtTables(disk, "saved", data).WhyNot,
            "These tables are a saved game's; the data are a world in which no game has begun.");
}

TEST(TablesFolder, GoesWhereNothingElseLies) {
  CutDisk disk;
  EXPECT_EQ(LookForExport(disk, "home/tables").WhyNot, "There is no folder home to put it in.");
  disk.MakeFolder("home");
  EXPECT_EQ(LookForExport(disk, "home/tables").WhyNot, "");
  disk.MakeFolder("home/tables");
  EXPECT_EQ(LookForExport(disk, "home/tables").Present, Texts{});
  ExportTables(disk, "home/tables", Complete(SmallWorld().Promotion("CWA")));
  EXPECT_EQ(LookForExport(disk, "home/tables").WhyNot, "");
  EXPECT_EQ(LookForExport(disk, "home/tables").Present.size(), 10u);
  // Without a game's tables beside them, notes are somebody's own.
  WriteFile(disk, "home/tables/notes.txt", {});
  EXPECT_EQ(LookForExport(disk, "home/tables").WhyNot,
            "home/tables holds other things, such as notes.txt. Name a new folder.");
  WriteFile(disk, "home/tables/game.csv", {});
  EXPECT_EQ(LookForExport(disk, "home/tables").WhyNot, "");
  ExportTables(disk, "home/tables", Complete(SmallWorld().Promotion("CWA")));
  EXPECT_EQ(LookForExport(disk, "home/tables").Present.size(), 10u);
  WriteFile(disk, "home/tables/diary.txt", {});
  EXPECT_EQ(LookForExport(disk, "home/tables").WhyNot,
            "home/tables holds other things, such as diary.txt. Name a new folder.");
  EXPECT_EQ(LookForExport(disk, "home/tables/diary.txt").WhyNot,
            "home/tables/diary.txt is no folder.");
}

TEST(TablesFolder, AFolderThatCannotBeFilledIsGoneAgain) {
  const World world = SmallWorld().Promotion("CWA").Build();
  CutDisk counting;
  ExportTables(counting, "tables", world);
  for (int call = 2; call < counting.Calls(); call += 7) {
    CutDisk disk;
    disk.FailCall(call, Fault::NoSpace, true);
    bool failed = false;
    try {
      ExportTables(disk, "tables", world);
    } catch (const DiskError&) {
      failed = true;
    }
    disk.Heal();
    EXPECT_EQ(disk.Look("tables") == Disk::Kind::Nothing, failed) << call;
  }
}

TEST(TablesFolder, APathIsMeantFromTheHome) {
  EXPECT_EQ(PathInHome("home", " my world/ "), "home/my world");
  EXPECT_EQ(PathInHome("home", "/elsewhere//"), "/elsewhere");
  EXPECT_EQ(PathInHome("home", "caf\xE9"), "home/caf\xC3\xA9");
}

}  // namespace
}  // namespace grapplemont::test
