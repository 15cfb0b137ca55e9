#include "records/store/wayback.h"

#include <gtest/gtest.h>

#include "support/storeworld.h"

// Older worlds told by newer ones: exact, in few bytes, and harmless when they are spoiled.

namespace grapplemont::test {
namespace {

std::int64_t AnyLength(const std::string&) {
  return 1 << 24;
}

ReadBefore Reads(const Bytes& before) {
  return [&before](std::int64_t offset, std::int64_t count) {
    return ByteSpan(before).subspan(static_cast<std::size_t>(offset),
                                    static_cast<std::size_t>(count));
  };
}

WayBack WayBetween(const Files& before, const std::vector<FileChange>& changes) {
  static const Bytes kNone;
  WayBack way;
  for (const FileChange& change : changes) {
    const auto was = before.find(change.Name);
    way.push_back(BackFrom(change, 1, Reads(was == before.end() ? kNone : was->second)));
  }
  return way;
}

WayBack Repacked(const WayBack& way) {
  Bytes packed;
  PackInto(packed, way);
  return UnpackWay(packed).value();
}

TEST(WaysBack, LeadToEveryWorldBeforeAndJoin) {
  for (std::uint64_t seed = 1; seed <= 30; ++seed) {
    const auto worlds = RandomWorlds(12, seed);
    WayBack whole;
    for (std::size_t at = worlds.size() - 1; at > 0; --at) {
      const WayBack step =
          Repacked(WayBetween(worlds[at - 1], ChangesBetween(worlds[at - 1], worlds[at])));
      Files files = worlds[at];
      ASSERT_TRUE(GoBack(step, files, AnyLength));
      EXPECT_TRUE(Same(files, worlds[at - 1]));
      whole = Repacked(Joined(whole, step).value());
      files = worlds.back();
      ASSERT_TRUE(GoBack(whole, files, AnyLength));
      EXPECT_TRUE(Same(files, worlds[at - 1]))
          << "seed " << seed << ", from the last to " << at - 1;
    }
  }
}

TEST(WaysBack, TellMovedAndChangedRecordsInFewBytes) {
  Chance chance(7);
  constexpr std::int64_t kRecord = 40;
  const Bytes before = RandomBytes(chance, 5000 * kRecord);
  struct Case {
    const char* What;
    std::function<void(Bytes&)> Do;
    std::size_t Most;
  };
  const Case kCases[] = {
      {"longer", [&](Bytes& file) { file.resize(file.size() + 300 * kRecord); }, 0},
      {"five far apart",
       [](Bytes& file) {
         for (std::size_t at = 10; at < file.size(); at += file.size() / 5)
           file[at] ^= std::byte{1};
       },
       8},
      {"the first hundred gone, three more",
       [&](Bytes& file) {
         file.erase(file.begin(), file.begin() + 100 * kRecord);
         file.resize(file.size() + 3 * kRecord);
       },
       100 * kRecord},
      {"one in the midst gone",
       [&](Bytes& file) {
         file.erase(file.begin() + 2000 * kRecord, file.begin() + 2001 * kRecord);
       },
       kRecord},
      {"shorter", [](Bytes& file) { file.resize(file.size() - 10 * kRecord); }, 10 * kRecord}};
  for (const Case& one : kCases) {
    Bytes after = before;
    one.Do(after);
    const auto change = ChangeBetween("news.dat", &before, &after);
    const FileBack back = BackFrom(*change, kRecord, Reads(before));
    EXPECT_LE(back.Contents.OwnBytes(), one.Most) << one.What;
    Files files{{"news.dat", after}};
    ASSERT_TRUE(GoBack({back}, files, AnyLength)) << one.What;
    EXPECT_TRUE(Same(files, {{"news.dat", before}})) << one.What;
  }
}

/// A few kilobytes could tell of more than there is memory, or for hours.
TEST(WaysBack, ThatTellMoreThanAnyWorldHoldsLeadNowhere) {
  BytesBack nearer, farther;
  for (std::uint64_t i = 0; i < 50000; ++i) {
    nearer.Take(2 * i, 1);
    nearer.Put(Bytes(1));
    farther.Take(0, 2 * i);
    farther.Put(Bytes(1));
  }
  EXPECT_FALSE(farther.Behind(nearer));
  EXPECT_TRUE(nearer.Behind(nearer));
  Bytes packed;
  PackInto(packed, WayBack(200, {"news.dat", false, {}}));
  EXPECT_FALSE(UnpackWay(packed)) << "more files than a world has";
  packed = {std::byte{1}, std::byte{1}, std::byte{'a'}, std::byte{1}, std::byte{1},
            std::byte{0}, std::byte{0}, std::byte{0},   std::byte{0}};
  EXPECT_FALSE(UnpackWay(packed)) << "a piece of nothing";
}

}  // namespace
}  // namespace grapplemont::test
