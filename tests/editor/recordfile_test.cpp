#include <gtest/gtest.h>

#include "editor/datafolder.h"
#include "editor/merge.h"
#include "editor/recordfile.h"
#include "newrecords.h"
#include "support/cutdisk.h"
#include "support/defaultworld.h"
#include "support/randomworld.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

void Put(Disk& disk, const std::string& path, std::size_t size) {
  WriteFile(disk, path, Bytes(size, std::byte{7}));
}

TEST(RecordFile, TellsWhatItCannotRead) {
  struct Case {
    const char* What;
    std::function<void(CutDisk&)> Lay;
    bool Exists;
    std::size_t Records;
    const char* Remark;
  };
  const Case kCases[] = {
      {"nothing", [](CutDisk&) {}, false, 0, ""},
      {"empty", [](CutDisk& d) { Put(d, "data/newtv.dat", 0); }, true, 0, "newtv.dat is empty."},
      {"whole", [](CutDisk& d) { Put(d, "data/newtv.dat", 100); }, true, 2, ""},
      {"cut short", [](CutDisk& d) { Put(d, "data/newtv.dat", 149); }, true, 2,
       "newtv.dat ends in 49 bytes that are no whole record; they are left aside."},
      {"less than one", [](CutDisk& d) { Put(d, "data/newtv.dat", 1); }, true, 0,
       "newtv.dat ends in 1 bytes that are no whole record; they are left aside."},
      {"full", [](CutDisk& d) { Put(d, "data/newtv.dat", 50000); }, true, 1000, ""},
      {"too long", [](CutDisk& d) { Put(d, "data/newtv.dat", 50050); }, true, 0,
       "newtv.dat has room for 1001 records and is left aside. Maximum 1,000 shows per file!"},
      {"a folder", [](CutDisk& d) { d.MakeFolder("data/newtv.dat"); }, true, 0,
       "newtv.dat is no plain file and is left aside."}};
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.What);
    CutDisk disk;
    disk.MakeFolder("data");
    c.Lay(disk);
    const auto file = ReadRecordFile<Show>(disk, "data", "newtv.dat");
    EXPECT_EQ(file.Exists, c.Exists);
    EXPECT_EQ(file.Records.size(), c.Records);
    EXPECT_EQ(file.Remark, c.Remark);
  }
}

TEST(RecordFile, ABrokenDiskIsARemark) {
  CutDisk disk;
  disk.MakeFolder("data");
  Put(disk, "data/newtv.dat", 100);
  disk.FailCall(1, Fault::Broken, true);
  const auto file = ReadRecordFile<Show>(disk, "data", "newtv.dat");
  EXPECT_TRUE(file.Records.empty());
  EXPECT_NE(file.Remark.find("data/newtv.dat"), std::string::npos) << file.Remark;
}

TEST(NewRecords, AreReadFromTheirSixFilesAndToldOneByOne) {
  CutDisk disk;
  disk.MakeFolder("data");
  const World world = SmallWorld().Promotion("CWA").Crew(2).Build();
  const auto lay = [&](const char* name, const Table& table) {
    WriteFile(disk, "data/" + std::string(name), table.Contents());
  };
  EXPECT_TRUE(ReadNewRecords(disk, "data").Empty());
  lay("newwrestler.dat", world.Workers());
  lay("newpromos.dat", world.Promotions());
  Put(disk, "data/newstaff.dat", 60);
  const NewRecords coming = ReadNewRecords(disk, "data");
  EXPECT_FALSE(coming.Empty());
  EXPECT_EQ(coming.Workers.Records[1].Name, "CWA Hand 2");
  EXPECT_EQ(coming.Promotions.Records[0].Initials, "CWA");
  std::vector<std::string> lines;
  for (const auto& line : coming.Files())
    lines.push_back(line.Name + " " + line.Brings + " " + line.Remark);
  EXPECT_EQ(lines,
            (std::vector<std::string>{
                "newnetwork.dat not there ", "newpromos.dat 1 ", "newwrestler.dat 2 ",
                "newstaff.dat 1 newstaff.dat ends in 2 bytes that are no whole record; they are "
                "left aside.",
                "newteams.dat not there ", "newtv.dat not there "}));
}

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

World InOrder() {
  return Complete(SmallWorld()
                      .Network("Nine")
                      .Promotion("CWA", kCult)
                      .Owner("Ruth Vane")
                      .Crew(3)
                      .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
                      .Title("CWA Crown", "CWA Hand 1")
                      .Show("Friday Fire", "Friday", "Nine"));
}

TEST(Maintenance, ReportsThenMendsAndFindsNothingTheSecondTime) {
  World world = InOrder();
  world.Workers()[2].BirthMonth = 999;
  world.Workers()[3].Employer = 77;
  world.Teams()[1].Worker2 = 88;
  world.Titles()[1].Reigns[0].Won.SetRaw(-1e200);
  Bytes cut(world.Workers().Contents().begin(), world.Workers().Contents().end());
  cut.resize(cut.size() + 20);
  world.Workers().Load(cut);
  world.Events().Remove();
  const World damaged = CopyOf(world);

  const Maintenance plan = PlanMaintenance(world);
  ExpectSame(world, damaged);
  EXPECT_EQ(
      Lines(plan.Faults),
      (Texts{"event.dat: is missing", "wrestler.dat: ends in 20 bytes that are no whole record",
             "belt.dat, record 1 (CWA Crown), Won1: is no date of the calendar",
             "wrestler.dat, record 2 (CWA Hand 2), BirthMonth: is 999, outside 0 to 12",
             "teams.dat, record 1 (The Hands), Worker2: is 88, but there is no such worker",
             "wrestler.dat, record 3 (CWA Hand 3), Employer: is 77, but there is no such "
             "promotion"}));
  EXPECT_EQ(Lines(plan.Doings).front(), "event.dat: is missing; made without a record");
  EXPECT_EQ(Lines(plan.Left), Texts{});

  EXPECT_EQ(Lines(Maintain(world)), Lines(plan.Doings));
  EXPECT_EQ(world.Teams().Count(), 0);  // a team of one is none
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
  const Maintenance again = PlanMaintenance(world);
  EXPECT_TRUE(again.Faults.empty() && again.Doings.empty() && again.Left.empty());
}

TEST(Maintenance, LeavesDataInOrderAsTheyAre) {
  World world = InOrder();
  EXPECT_EQ(Lines(Maintain(world)), Texts{});
  ExpectSame(world, InOrder());
}

TEST(Maintenance, LeavesAFileThatCannotBeReadToThePlayer) {
  World world = InOrder();
  world.Events().Remove();
  const std::vector<grapplemont::Fault> unreadable = {{"event.dat", 0, {}, {}, "is no plain file"}};
  const Maintenance plan = PlanMaintenance(world, unreadable);
  EXPECT_EQ(Lines(plan.Faults), Texts{"event.dat: is no plain file"});
  EXPECT_EQ(Lines(plan.Doings), Texts{});
  EXPECT_EQ(Lines(plan.Left), Texts{"event.dat: is no plain file"});
}

TEST(Maintenance, MakesAWorldOfAnyBytes) {
  for (std::uint64_t seed = 1; seed <= 8; ++seed) {
    SCOPED_TRACE(seed);
    Dice dice(seed);
    World world;
    for (Table* table : world.Tables()) {
      const RecordLayout* layout = table->Layout();
      if (!layout || std::ranges::find(kDataSet, layout->File) == kDataSet.end()) continue;
      Bytes bytes(static_cast<std::size_t>(layout->Size * dice.From(0, 30) +
                                           dice.From(0, layout->Size - 1)));
      for (std::byte& byte : bytes) byte = dice.Byte();
      table->Load(bytes);
    }
    const Maintenance plan = PlanMaintenance(world);
    EXPECT_FALSE(plan.Faults.empty());
    EXPECT_EQ(Lines(plan.Left), Texts{});
  }
}

}  // namespace
}  // namespace grapplemont::test
