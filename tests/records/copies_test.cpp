#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

World Played() {
  World world = SmallWorld().Promotion("CWA").Crew(12).Game("CWA");
  for (int number = 1; number <= 3; ++number) {
    Mail mail;
    mail.From = "Maeve " + std::to_string(number);
    world.News().Append(mail);
  }
  world.Notes().Set("Remember Bram.");
  world.Session.ShowRating = 61;
  world.MarkCommitted();
  return world;
}

std::map<std::string, Bytes> FilesIn(const World& world) {
  std::map<std::string, Bytes> files;
  for (NewFile& file : FilesOf(world)) files.emplace(file.Name, std::move(file.Contents));
  return files;
}

TEST(WorldCopies, HaveTheSameBytesAndWereNeverCommitted) {
  const World world = Played();
  World copy;
  copy.CopyFrom(world);
  EXPECT_EQ(FilesIn(copy), FilesIn(world));
  EXPECT_EQ(copy.Session.ShowRating, 61);
  EXPECT_EQ(copy.Changes().size(), FilesOf(world).size());
  copy.MarkCommitted();
  EXPECT_TRUE(copy.Changes().empty());
  copy.News().Change(1).From = "Somebody";
  copy.Rollback();
  EXPECT_EQ(FilesIn(copy), FilesIn(world));
}

TEST(WorldCopies, ForgetWhatTheWorldWasBeforeInTheSameMemory) {
  const World world = Played();
  World copy;
  copy.CopyFrom(world);
  ASSERT_NE(copy.FindWorker(world.Workers()[3].Uid), nullptr);
  // Another order of the uids, more records, a file that the first had not, and one less.
  World other = Played();
  std::swap(other.Workers()[1], other.Workers()[3]);
  const int uid = other.Workers()[1].Uid;
  other.Awards().Append(YearAward());
  other.Notes().Remove();
  other.News().DropFirst(2);
  copy.News().Change(2).From = "Changed since";
  const Worker* first = &copy.Workers()[1];
  copy.CopyFrom(other);
  EXPECT_EQ(FilesIn(copy), FilesIn(other));
  EXPECT_EQ(&copy.Workers()[1], first) << "memory is used again";
  EXPECT_EQ(copy.FindWorker(uid), &copy.Workers()[1]);
  Worker& kept = copy.Workers()[2];
  while (copy.Workers().Count() < 400) copy.Workers().Append(Worker());
  EXPECT_EQ(&kept, &copy.Workers()[2]) << "appending moves nobody";
}

}  // namespace
}  // namespace grapplemont::test
