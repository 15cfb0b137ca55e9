#include "editor/recordfile.h"

#include <gtest/gtest.h>

#include "editor/merge.h"
#include "support/cutdisk.h"
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

}  // namespace
}  // namespace grapplemont::test
