#include <gtest/gtest.h>

#include "records/checks/checkworld.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "soundworld.h"
#include "support/randomworld.h"

// Files from elsewhere may hold anything: any bytes give a world that can be looked at and mended,
// or a message that names the file.

namespace grapplemont {
namespace {

using test::BytesOf;
using test::Dice;

using Files = std::map<std::string, Bytes>;

const World& Sample() {
  static const World world = test::SoundGame();
  return world;
}

Bytes RandomBytes(Dice& dice, std::size_t length) {
  Bytes bytes(length);
  // Mostly noise, often few different bytes, so that uids and codes meet.
  const int kinds = dice.OneIn(2) ? 256 : dice.From(1, 4);
  for (std::byte& byte : bytes) byte = static_cast<std::byte>(dice.From(0, kinds - 1));
  return bytes;
}

/// Noise in some files or in nearly all of them, and nothing in the others.
Files Noise(Dice& dice) {
  Files files;
  const int sixths = dice.From(1, 5);
  for (const Table* table : Sample().Tables()) {
    if (dice.From(1, 6) > sixths) continue;
    const int record = table->Layout() ? table->Layout()->Size : 7;
    const int most = dice.OneIn(20) ? 40 * record : 6 * record;
    files[std::string(table->File())] =
        RandomBytes(dice, static_cast<std::size_t>(dice.From(0, most)));
  }
  // Most games have one record of it; more than one is no game at all.
  if (!dice.OneIn(5)) files["gameinfo.dat"] = RandomBytes(dice, sizeof(GameInfo));
  return files;
}

void Spoil(Dice& dice, Bytes& bytes) {
  const auto somewhere = [&] {
    return bytes.begin() + dice.From(0, static_cast<int>(bytes.size()) - 1);
  };
  if (bytes.empty()) return;
  switch (dice.From(1, 6)) {
    case 1:
      bytes.erase(somewhere(), bytes.end());
      break;
    case 2:
      bytes.insert(somewhere(), dice.Byte());
      break;
    case 3: {
      const Bytes whole = bytes;
      bytes.insert(bytes.end(), whole.begin(), whole.end());
      break;
    }
    case 4:
      bytes.clear();
      break;
    default:
      for (int i = dice.From(1, 30); i > 0; --i) *somewhere() = dice.Byte();
  }
}

/// A good game with some of its files spoiled.
Files Spoiled(Dice& dice) {
  Files files = BytesOf(Sample());
  for (int i = dice.From(1, 3); i > 0; --i) {
    auto file = std::next(files.begin(), dice.From(0, static_cast<int>(files.size()) - 1));
    if (dice.OneIn(8) && files.size() > 1)
      files.erase(file);
    else
      Spoil(dice, file->second);
  }
  return files;
}

/// Everything that reads a world without a rule of the game; the sum of lengths, so that nothing is
/// left out.
std::size_t LookAtEverything(World& world) {
  std::size_t length = 0;
  for (const Fault& fault : CheckWorld(world)) length += fault.Line().size();
  for (const Worker& worker : world.Workers())
    length += ContractLine(worker).size() + StatusLine(worker).size() +
              PairName(world, worker.Uid, worker.Manager).size();
  world.ForEachFile([&]<class T>(const Records<T>& records) {
    for (const T& record : records)
      for (const Field& field : LayoutOf<T>().Fields)
        length +=
            FieldShown(field, reinterpret_cast<const std::byte*>(&record), field.Count - 1).size();
  });
  return length;
}

void ChangeALittle(World& world) {
  if (world.Workers().Count() > 0) SeverWorker(world, world.Workers()[1]);
  if (world.AllStaff().Count() > 0) SeverStaff(world, world.AllStaff()[1]);
  if (world.Promotions().Count() > 0) world.Promotions()[1].Name = kToBeDeleted;
  SweepDeadPromotions(world);
  SweepDeadShows(world);
  if (world.HasGame()) AddNews(world, "Maeve", "Well, well.");
}

bool NamesAFile(const std::string& message) {
  for (const Table* table : Sample().Tables())
    if (message.find(table->File()) != std::string::npos) return true;
  return false;
}

/// How many of the cases gave a world.
int LoadAndLive(int cases, std::uint64_t seed, Files (*make)(Dice&)) {
  int worlds = 0;
  World world;
  for (int i = 0; i < cases; ++i) {
    Dice dice(seed + static_cast<std::uint64_t>(i));
    const Files files = make(dice);
    SCOPED_TRACE("seed " + std::to_string(seed + static_cast<std::uint64_t>(i)));
    try {
      world.Load(files);
    } catch (const WorldFault& fault) {
      EXPECT_TRUE(NamesAFile(fault.what())) << fault.what();
      continue;
    }
    ++worlds;
    EXPECT_EQ(files, BytesOf(world));
    EXPECT_GT(LookAtEverything(world), 0u);
    try {
      ChangeALittle(world);
    } catch (const FieldOverflow& fault) {
      EXPECT_TRUE(NamesAFile(world.Explain(fault))) << world.Explain(fault);
    }
    world.Rollback();
    EXPECT_EQ(files, BytesOf(world));

    world.GameInfos().Remove();
    MendWorld(world);
    std::string left;
    for (const Fault& fault : CheckWorld(world)) left += fault.Line() + "\n";
    EXPECT_EQ("", left);
    EXPECT_TRUE(MendWorld(world).empty());
    if (testing::Test::HasFailure()) break;
  }
  return worlds;
}

TEST(RandomBytes, OfNoiseGiveAWorldOrAMessage) {
  const int worlds = LoadAndLive(3000, 1000, Noise);
  EXPECT_GT(worlds, 200);
  EXPECT_LT(worlds, 3000);
}

TEST(RandomBytes, InAGoodGameGiveAWorldOrAMessage) {
  const int worlds = LoadAndLive(1000, 9000, Spoiled);
  EXPECT_GT(worlds, 600);
}

TEST(RandomFields, OfAllKindsAreMendedForGood) {
  for (std::uint64_t seed = 1; seed <= 100; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Dice dice(seed);
    World world = test::RandomData(seed);
    world.ForEachFile([&]<class T>(Records<T>& records) {
      for (T& record : records.Any())
        for (const Field& field : LayoutOf<T>().Fields)
          if (dice.OneIn(40))
            test::Scramble(dice, field, dice.From(0, field.Count - 1),
                           reinterpret_cast<std::byte*>(&record));
    });
    MendWorld(world);
    ASSERT_TRUE(CheckWorld(world).empty()) << CheckWorld(world)[0].Line();
    ASSERT_TRUE(MendWorld(world).empty());
  }
}

TEST(RandomData, IsTheSameForItsSeedAndFullOfThings) {
  World world = test::RandomData(7);
  test::ExpectSame(test::RandomData(7), world);
  EXPECT_GT(world.Workers().Count() + world.Shows().Count() + world.Titles().Count(), 10);
}

}  // namespace
}  // namespace grapplemont
