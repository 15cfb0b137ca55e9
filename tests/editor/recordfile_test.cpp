#include <gtest/gtest.h>

#include "editor/datafolder.h"
#include "editor/merge.h"
#include "editor/recordfile.h"
#include "newrecords.h"
#include "session/slots.h"
#include "support/cutdisk.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

void Put(Disk& disk, const std::string& path, std::size_t size) {
  WriteFile(disk, path, Bytes(size, std::byte{7}));
}

TEST(RecordFile, HasRoomForSoManyRecordsAndNoMore) {
  const struct {
    std::size_t Bytes, Records;
    const char* Remark;
  } rows[] = {
      {100, 2, ""},
      {1, 0, "newtv.dat ends in 1 bytes that are not a whole record; they are left aside."},
      {50000, 1000, ""},
      {50050, 0,
       "newtv.dat has room for 1,001 records and is left aside. Maximum 1,000 shows per file!"}};
  for (const auto& row : rows) {
    CutDisk disk;
    disk.MakeFolder("data");
    Put(disk, "data/newtv.dat", row.Bytes);
    const auto file = ReadRecordFile<Show>(disk, "data", "newtv.dat");
    EXPECT_EQ(file.Records.size(), row.Records);
    EXPECT_EQ(file.Remark, row.Remark);
  }
}

TEST(RecordFile, ABrokenDiskIsARemark) {
  CutDisk disk;
  disk.MakeFolder("data");
  Put(disk, "data/newtv.dat", 100);
  disk.FailCall(1, DiskFault::Broken, true);
  const auto file = ReadRecordFile<Show>(disk, "data", "newtv.dat");
  EXPECT_TRUE(file.Records.empty());
  EXPECT_NE(file.Remark.find("data/newtv.dat"), std::string::npos) << file.Remark;
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

TEST(TablesFolder, RefusesWhatIsNoWorldForTheData) {
  CutDisk disk;
  const World data = SmallWorld().Promotion("CWA").Build();
  EXPECT_EQ(LookAtTables(disk, "none", data).WhyNot, "none is not a folder.");
  disk.MakeFolder("empty");
  EXPECT_EQ(LookAtTables(disk, "empty", data).WhyNot, "empty holds no tables.");
  ExportTables(disk, "saved", SmallWorld().Promotion("CWA").Game("CWA").Build());
  EXPECT_EQ(LookAtTables(disk, "saved", data).WhyNot,
            "These tables are a saved game's; the data are a world in which no game has begun.");
}

TEST(TablesFolder, AFolderThatCannotBeFilledIsGoneAgain) {
  const World world = SmallWorld().Promotion("CWA").Build();
  CutDisk counting;
  ExportTables(counting, "tables", world);
  for (int call = 2; call < counting.Calls(); call += 7) {
    CutDisk disk;
    disk.FailCall(call, DiskFault::NoSpace, true);
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
