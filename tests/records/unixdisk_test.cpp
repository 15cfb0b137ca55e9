#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

#include "records/store/disk.h"
#include "support/scratchfolder.h"
#include "support/storeworld.h"
#include "support/thrown.h"

// What only the disk of Linux and its relatives has, and tests can make there.

namespace grapplemont::test {
namespace {

/// What another process comes to.
int StatusOf(const std::function<bool()>& work) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(work() ? 0 : 1);  // as a killed process: nothing is unlocked
  int status = 1;
  EXPECT_EQ(child, ::waitpid(child, &status, 0));
  return status;
}

TEST(TheMachinesDisk, LocksOutAnotherProgramUntilItIsGone) {
  const ScratchFolder scratch;
  const std::string path = scratch / "s1.lock";
  EXPECT_EQ(0, StatusOf([&] {
              Disk* other = RealDisk().release();
              return other->Lock(path) && StatusOf([&] { return !RealDisk()->Lock(path); }) == 0;
            }));
  EXPECT_TRUE(RealDisk()->Lock(path));
}

TEST(TheMachinesDisk, FollowsNoLinksAndOpensPlainFilesOnly) {
  const ScratchFolder scratch;
  const auto disk = RealDisk();
  WriteFile(*disk, scratch / "file", BytesOf("x"));
  disk->MakeFolder(scratch / "folder");
  std::filesystem::create_symlink(scratch / "file", scratch / "link");
  ASSERT_EQ(0, ::mkfifo((scratch / "pipe").c_str(), 0600));
  for (const char* name : {"link", "pipe"}) {
    EXPECT_EQ(Disk::Kind::Other, disk->Look(scratch / name)) << name;
    EXPECT_THROW(disk->Open(scratch / name, true), DiskError) << name;
    EXPECT_THROW(disk->Open(scratch / name, false), DiskError) << name;
  }
  EXPECT_THROW(disk->Open(scratch / "folder", false), DiskError);
  EXPECT_THROW(disk->MakeFolder(scratch / "file"), DiskError);
  // A tree that is removed takes its links along, not what they lead to.
  std::filesystem::create_symlink(scratch / "file", (scratch / "folder") + "/link");
  RemoveTree(*disk, scratch / "folder");
  EXPECT_EQ(Disk::Kind::File, disk->Look(scratch / "file"));
}

TEST(TheMachinesDisk, ReadsWhatMayOnlyBeRead) {
  const ScratchFolder scratch;
  const std::string path = scratch / "file";
  WriteFile(*RealDisk(), path, BytesOf("text"));
  ASSERT_EQ(0, ::chmod(path.c_str(), 0444));
  ASSERT_EQ(0, ::chmod(ParentOf(path).c_str(), 0755));
  EXPECT_EQ(0, StatusOf([&] {
              // Root may write anything, so this is for somebody else.
              const bool plain = ::geteuid() != 0 || ::setuid(65534) == 0;
              const auto disk = RealDisk();
              const std::string refused = ThrownBy<DiskError>(
                  [&] { disk->WriteAt(disk->Open(path, false), 0, BytesOf("x")); });
              return plain && refused != "nothing" && ReadFile(*disk, path) == BytesOf("text");
            }));
}

}  // namespace
}  // namespace grapplemont::test
