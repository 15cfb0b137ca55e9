#include "records/store/disk.h"

#include <gtest/gtest.h>

#include "support/cutdisk.h"
#include "support/scratchfolder.h"
#include "support/storeworld.h"
#include "support/thrown.h"

namespace grapplemont::test {
namespace {

/// The machine's disk and the double keep the same contract.
class EveryDisk : public testing::TestWithParam<const char*> {
 protected:
  EveryDisk() {
    const std::string which = GetParam();
    if (which == "Double") {
      disk_ = std::make_unique<CutDisk>();
      disk_->MakeFolder("home");
      home_ = "home";
    } else {
      disk_ = RealDisk(which == "Real" ? Syncs::Real : Syncs::None);
      home_ = scratch_ / "home";
      disk_->MakeFolder(home_);
    }
  }
  std::string At(const std::string& name) const { return home_ + "/" + name; }
  void Put(const std::string& name, std::string_view text) {
    WriteFile(*disk_, At(name), BytesOf(text));
  }
  std::string Get(const std::string& name) {
    const Bytes bytes = ReadFile(*disk_, At(name));
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
  }

  ScratchFolder scratch_;
  std::unique_ptr<Disk> disk_;
  std::string home_;
};

INSTANTIATE_TEST_SUITE_P(, EveryDisk, testing::Values("Real", "Unsynced", "Double"),
                         [](const auto& disk) { return std::string(disk.param); });

TEST_P(EveryDisk, KeepsWhatIsWrittenWhereItIsWritten) {
  const OpenedFile file(*disk_, At("a"), true);
  disk_->WriteAt(file, 5000, BytesOf("behind"));
  disk_->WriteAt(file, 0, BytesOf("first"));
  EXPECT_EQ(5006, disk_->Size(file));
  Bytes bytes(5006);
  disk_->ReadAt(file, 0, bytes);
  EXPECT_EQ(std::byte{'f'}, bytes[0]);
  EXPECT_EQ(std::byte{0}, bytes[4999]);
  EXPECT_EQ(std::byte{'b'}, bytes[5000]);
  disk_->Resize(file, 5002);
  disk_->Resize(file, 5006);
  disk_->Allocate(file, 100000);
  disk_->Sync(file);
  disk_->SyncFolder(home_);
  disk_->ReadAt(file, 5000, std::span(bytes).first(6));
  EXPECT_EQ(BytesOf(std::string_view("be\0\0\0\0", 6)), Bytes(bytes.begin(), bytes.begin() + 6));
  EXPECT_EQ(5006, disk_->Size(file));
  EXPECT_THROW(disk_->ReadAt(file, 5000, std::span(bytes).first(7)), DiskError);
}

TEST_P(EveryDisk, TellsWhatStandsThere) {
  Put("file", "x");
  disk_->MakeFolder(At("folder"));
  disk_->MakeFolder(At("folder"));
  EXPECT_EQ(Disk::Kind::File, disk_->Look(At("file")));
  EXPECT_EQ(Disk::Kind::Folder, disk_->Look(At("folder")));
  EXPECT_EQ(Disk::Kind::Nothing, disk_->Look(At("nobody")));
  EXPECT_EQ(Disk::Kind::Nothing, disk_->Look(At("file/below")));
  EXPECT_EQ((std::vector<std::string>{"file", "folder"}), disk_->List(home_));
}

TEST_P(EveryDisk, RenamesSwapsAndRemoves) {
  Put("a", "a long text to begin with");
  Put("a.tmp", "what an earlier try left");
  Put("a", "1");
  Put("b", "2");
  disk_->Rename(At("a"), At("b"));
  EXPECT_EQ("1", Get("b"));
  EXPECT_EQ(Disk::Kind::Nothing, disk_->Look(At("a")));
  for (const char* folder : {"old", "new"}) {
    disk_->MakeFolder(At(folder));
    Put(std::string(folder) + "/name", folder);
  }
  if (disk_->Exchange(At("old"), At("new"))) {
    EXPECT_EQ("new", Get("old/name"));
    EXPECT_EQ("old", Get("new/name"));
  }
  EXPECT_THROW(disk_->Rename(At("new"), At("old")), DiskError);
  EXPECT_THROW(disk_->Remove(At("old")), DiskError);
  RemoveTree(*disk_, At("old"));
  RemoveTree(*disk_, At("nobody"));
  disk_->Remove(At("b"));
  EXPECT_EQ(std::vector<std::string>{"new"}, disk_->List(home_));
}

TEST_P(EveryDisk, SaysWhatItCouldNotDo) {
  const std::string missing = At("nobody");
  EXPECT_TRUE(ThrownBy<DiskError>([&] {
                disk_->Open(missing, false);
              }).starts_with("Could not open " + missing + ": No such file"));
  for (const std::string& text :
       {ThrownBy<DiskError>([&] { disk_->List(missing); }),
        ThrownBy<DiskError>([&] { disk_->Remove(missing); }),
        ThrownBy<DiskError>([&] { disk_->Rename(missing, At("b")); }),
        ThrownBy<DiskError>([&] { disk_->Open(missing + "/below", true); }),
        ThrownBy<DiskError>([&] { disk_->MakeFolder(missing + "/below"); })})
    EXPECT_TRUE(text.find("nobody") != text.npos && text.ends_with("directory.")) << text;
}

TEST_P(EveryDisk, GivesALockToOneAtATime) {
  EXPECT_TRUE(disk_->Lock(At("s1.lock")));
  EXPECT_FALSE(disk_->Lock(At("s1.lock")));
  EXPECT_TRUE(disk_->Lock(At("s2.lock")));
  disk_->Unlock(At("s1.lock"));
  disk_->Unlock(At("never taken"));
  EXPECT_TRUE(disk_->Lock(At("s1.lock")));
}

TEST(ADiskError, NamesAPathInTheProgramsOwnLetters) {
  EXPECT_EQ("a/b", ParentOf("a/b/c"));
  EXPECT_EQ(".", ParentOf("a"));
  EXPECT_EQ("/", ParentOf("/a"));
  EXPECT_STREQ("Could not open home/jos\xe9/s1: gone.",
               DiskError("home/jos\xc3\xa9/s1", "open", "gone").what());
  EXPECT_STREQ("Could not open a\xff: gone.", DiskError("a\xff", "open", "gone").what());
  const DiskError fault("a", "write", "gone");
  EXPECT_STREQ("Could not write a: gone. Sorry.", DiskError(fault, "Sorry.").what());
  EXPECT_EQ("a", DiskError(fault, "Sorry.").Path());
}

// The double; that it cuts away enough is proven by the faulty protocols of cut_test.cpp.

TEST(ThePowerCutDouble, KnowsItsMomentsAndTheirWorlds) {
  CutDisk disk;
  const OpenedFile file(disk, "a", true);
  disk.SyncFolder(".");
  disk.Record();
  disk.Begins(1);
  disk.WriteAt(file, 0, BytesOf("1"));
  disk.Sync(file);
  disk.Shows(1);
  std::vector<std::string> moments;
  const int cuts = ForEveryCut(disk, 30, 83, [&](CutDisk& after, const Cut& cut) {
    const std::size_t size = ReadFile(after, "a").size();
    EXPECT_GE(size, static_cast<std::size_t>(cut.Least)) << cut.Where;
    const std::string moment =
        cut.Where + " " + std::to_string(cut.Least) + ".." + std::to_string(cut.Most);
    if (moments.empty() || moments.back() != moment) moments.push_back(moment);
  });
  EXPECT_EQ((std::vector<std::string>{"before the first call 0..1", "write a at 0, 1 0..1",
                                      "sync a 0..1", "sync a 1..1"}),
            moments);
  EXPECT_EQ(120, cuts);
}

}  // namespace
}  // namespace grapplemont::test
