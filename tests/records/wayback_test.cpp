#include "records/store/wayback.h"

#include <gtest/gtest.h>

#include <cstring>

#include "support/storeworld.h"

// Older worlds told by newer ones: exact, in few bytes, and harmless when they are spoiled.

namespace grapplemont::test {
namespace {

std::int64_t AnyLength(const std::string&) {
  return 1 << 24;
}

ReadBefore Reads(const Bytes& before) {
  return [&before](std::int64_t offset, std::span<std::byte> buffer) {
    std::memcpy(buffer.data(), before.data() + offset, buffer.size());
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

TEST(WaysBack, OfAnyBytesDoNoHarm) {
  const auto worlds = RandomWorlds(2, 3);
  const WayBack way = WayBetween(worlds[0], ChangesBetween(worlds[0], worlds[1]));
  Bytes sound;
  PackInto(sound, way);
  Chance chance(5);
  int refused = 0;
  for (int turn = 0; turn < 3000; ++turn) {
    Bytes spoiled = sound;
    for (std::uint64_t changes = 1 + Pick(chance, 4); changes > 0; --changes)
      spoiled[Pick(chance, std::min<std::size_t>(spoiled.size(), 200))] =
          static_cast<std::byte>(Pick(chance, 256));
    if (turn % 3 == 0) spoiled.resize(Pick(chance, spoiled.size()));
    const auto read = UnpackWay(spoiled);
    Files files = worlds[1];
    const bool led = read && GoBack(*read, files, AnyLength);
    if (read) Joined(way, *read);
    refused += led ? 0 : 1;
  }
  EXPECT_GT(refused, 1000);
}

}  // namespace
}  // namespace grapplemont::test
