#include <gtest/gtest.h>
#include <cstring>

#include "records/checks/checkworld.h"
#include "records/fields/fields.h"
#include "session/newgame.h"
#include "support/defaultworld.h"
#include "support/randomworld.h"
#include "support/smallworld.h"
#include "tools/balance.h"
#include "tools/officework.h"

namespace grapplemont::test {
namespace {

TEST(Balance, LetsNobodyStartInRuinNorGetRichWithoutWork) {
  for (const auto& balance : tools::BalanceOf(DefaultWorld())) {
    SCOPED_TRACE(balance.Of->Initials.Str());
    EXPECT_EQ(balance.AsPlayers.HouseShows, 0);
    EXPECT_LE(balance.AsPlayers.CostsPerHundred(), 150);
    if (balance.Of->Size < kBackyard) {
      EXPECT_GE(balance.AsPlayers.CostsPerHundred(), 60);
      // A year of waiting must not win more than one and a half times what there was.
      const auto won = balance.AsPlayers.Income() - balance.AsPlayers.Costs();
      EXPECT_LE(2 * 12 * won, 3LL * balance.Of->Money);
    }
    // Nobody is left to sponsor the last Small one; it lives on what it has and closes in the end.
    if (balance.Of->Initials == "GSG") continue;
    EXPECT_LE(balance.AsRival.CostsPerHundred(), 150);
    // What is lost in a year must be there, or may be owed.
    constexpr int kRuin[] = {20'000'000, 15'000'000, 5'000'000, 2'500'000, 1'000'000, 500'000};
    const auto lost = balance.AsRival.Costs() - balance.AsRival.Income();
    EXPECT_LT(12 * lost, balance.Of->Money + kRuin[balance.Of->Size - 1]);
  }
}

// Numbers at the ends of their ranges: what the check lets pass stops no day.

using tools::PlayDay;
using tools::Shows;

constexpr std::uint64_t kSeed = 17;

/// A game of the default world with a spring behind it, so that feuds, the past and the news hold
/// something.
World Played() {
  World world = CopyOf(DefaultWorld());
  world.SetChance(std::make_unique<SeededDraws>(kSeed));
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = 1;
  choice.Difficulty = kRockHard;
  choice.Start = std::chrono::year{2026} / 3 / 1;
  choice.SaveName = "First";
  NewGame(world, choice);
  for (int day = 0; day < 60; ++day) PlayDay(world, Shows::Auto);
  return world;
}

/// A number with a range and nothing more: no code, no uid.
bool IsPlainNumber(const Field& field) {
  const bool isNumber = field.Kind == FieldKind::Word || field.Kind == FieldKind::Percent ||
                        field.Kind == FieldKind::Long;
  return isNumber && field.Words.empty() && field.To == Refers::Nothing && !field.IsKey;
}

Bytes BytesOf(const Table& table) {
  return Bytes(table.Contents().begin(), table.Contents().end());
}

/// Whether a number goes to the upper end of its range.
using ToTheTop = bool (*)(Dice&);

/// How many numbers have been set to an end of their range.
int PushToTheEnds(World& world, ToTheTop toTheTop) {
  Dice dice(kSeed);
  int pushed = 0;
  for (Table* table : world.Tables()) {
    if (!table->Layout()) continue;
    Bytes bytes = BytesOf(*table);
    const auto size = static_cast<std::size_t>(table->Layout()->Size);
    for (std::size_t at = 0; at < bytes.size(); at += size)
      for (const Field& field : table->Layout()->Fields)
        for (int index = 0; IsPlainNumber(field) && index < field.Count; ++index, ++pushed)
          SetFieldNumber(field, bytes.data() + at, index, toTheTop(dice) ? field.Max : field.Min);
    table->Load(bytes);
  }
  return pushed;
}

/// Gives back its old bytes to what the check finds fault with, in the one record or in all.
void TakeBack(World& world, const World& before, const Fault& fault, bool inAll) {
  for (std::size_t i = 0; i < world.Tables().size(); ++i) {
    Table& table = *world.Tables()[i];
    if (table.File() != fault.File || fault.Record == 0) continue;
    const Bytes old = BytesOf(*before.Tables()[i]);
    Bytes bytes = BytesOf(table);
    const auto size = static_cast<std::size_t>(table.Layout()->Size);
    const std::size_t only = static_cast<std::size_t>(fault.Record - 1) * size;
    for (std::size_t record = inAll ? 0 : only; record < (inAll ? bytes.size() : only + size);
         record += size)
      for (const Field& field : table.Layout()->Fields)
        for (int index = 0; index < field.Count; ++index)
          if (fault.Field.empty() || FieldName(field, index) == fault.Field)
            std::memcpy(bytes.data() + record + field.Offset + index * field.Stride,
                        old.data() + record + field.Offset + index * field.Stride,
                        static_cast<std::size_t>(field.Width));
    table.Load(bytes);
  }
}

/// What one gives back may clash with what another has; then all of them do.
void TakeBackFaults(World& world, const World& before) {
  for (const bool inAll : {false, false, true, true})
    for (const Fault& fault : CheckWorld(world)) TakeBack(world, before, fault, inAll);
}

TEST(NumbersAtTheEndsOfTheirRanges, StopNoDayOfAYear) {
  const World before = Played();
  const struct {
    const char* What;
    ToTheTop Top;
  } ends[] = {{"least", [](Dice&) { return false; }},
              {"most", [](Dice&) { return true; }},
              {"either", [](Dice& dice) { return dice.OneIn(2); }},
              {"mostly least", [](Dice& dice) { return dice.OneIn(8); }},
              {"mostly most", [](Dice& dice) { return !dice.OneIn(8); }}};
  for (const auto& end : ends) {
    SCOPED_TRACE(end.What);
    World world = CopyOf(before);
    world.SetChance(std::make_unique<SeededDraws>(kSeed));
    EXPECT_GT(PushToTheEnds(world, end.Top), 10000);
    TakeBackFaults(world, before);
    ASSERT_EQ(CheckWorld(world).size(), 0u) << CheckWorld(world)[0].Line();
    for (int day = 0; day < 366; ++day) {
      try {
        PlayDay(world, Shows::Auto);
      } catch (const FieldOverflow& fault) {
        FAIL() << IsoDate(world.Today()) << ": " << world.Explain(fault);
      }
      world.Game().EndCode = 0;  // whoever has no chair left plays on
      if (!IsFirstOfMonth(world.Today())) continue;
      const auto faults = CheckWorld(world);
      ASSERT_TRUE(faults.empty()) << IsoDate(world.Today()) << ": " << faults[0].Line();
    }
  }
}

}  // namespace
}  // namespace grapplemont::test
