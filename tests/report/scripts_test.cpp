#include "report/ring.h"

#include <gtest/gtest.h>

#include "report/teller.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::ScriptedDraws;
using test::SmallWorld;

/// The twelve rows as they were laid down, in words.
constexpr const char* kRows[] = {
    "B C Two # A B Two D Near B # C Two D Near B A # B D",
    "A A B B # B C Two # C Two D Near # A # B",
    "A # A Ref D NoRef # B C Two D Near # C Near #",
    "A B Two # B A B # C",
    "A A A Two B Two # A Two C # D",
    "C D D Near B Two # B C # C",
    "A B Two # B Two C Two # C Near # Ref D NoRef C Near #",
    "B Two C Two # B C Near # C Two # D",
    "A C Two # A B C Near C # C C #",
    "A # C D",
    "A B C D",
    "C",
};

std::string InWords(Script row) {
  std::string words;
  for (const char step : row) {
    if (!words.empty()) words += ' ';
    switch (step) {
      case '2':
        words += "Two";
        break;
      case 'N':
        words += "Near";
        break;
      case 'R':
        words += "Ref";
        break;
      case 'P':
        words += "NoRef";
        break;
      default:
        words += step;
    }
  }
  return words;
}

TEST(SinglesScripts, AreTheTwelve) {
  ASSERT_EQ(SinglesScripts().size(), 12U);
  for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(InWords(SinglesScripts()[i]), kRows[i]) << i;
}

TEST(TagScripts, DifferInTheirLastStepsOnly) {
  const BoutRow* tag = FindBout(kTag, kPlainTag);
  ASSERT_NE(tag, nullptr);
  ASSERT_EQ(tag->Rows.size(), 2U);
  const std::string same = "ABTATATXC2TBCTDN#TBC2TX2DN#BTC#TX";
  EXPECT_EQ(tag->Rows[0], same + "2#C");
  EXPECT_EQ(tag->Rows[1], same + "D");
}

TEST(Bouts, AreToldForEveryMatchTypeBySomeRow) {
  for (const MatchTypeRow& type : kMatchTypes) {
    const BoutRow* bout = FindBout(type.Style, type.Code);
    ASSERT_NE(bout, nullptr) << type.Says;
    EXPECT_FALSE(bout->Rows.empty()) << type.Says;
  }
  EXPECT_EQ(FindBout(kSingles, 20), nullptr);
}

struct BandCase {
  int Brawl, Technical, Speed;
  std::vector<int> Draws;
  int Band;
};

TEST(OffenceBand, IsTheStrongestSideBeforeTheTieAndTheSkillBehindIt) {
  const std::vector<BandCase> cases = {
      {90, 5, 5, {1, 10, 10}, kBrawlHigh},  // whatever the draws
      {39, 5, 5, {1, 1, 1}, kBrawlLow},       {40, 5, 5, {1, 1, 1}, kBrawlMid},
      {64, 5, 5, {10, 1, 1}, kBrawlMid},      {65, 5, 5, {1, 1, 1}, kBrawlHigh},
      {5, 39, 5, {1, 10, 1}, kTechnicalLow},  {5, 40, 5, {1, 1, 1}, kTechnicalMid},
      {5, 65, 5, {1, 1, 1}, kTechnicalHigh},  {5, 5, 39, {1, 1, 10}, kSpeedLow},
      {5, 5, 64, {1, 1, 10}, kSpeedMid},      {5, 5, 65, {1, 1, 1}, kSpeedHigh},
      {50, 50, 50, {3, 3, 3}, kBrawlMid},      // ties: Brawl first
      {10, 50, 50, {1, 3, 3}, kTechnicalMid},  // then Technical
      {45, 41, 39, {1, 5, 7}, kBrawlMid},      // 46, 46, 46
      {60, 66, 10, {10, 1, 1}, kBrawlMid},     // the plain skill counts, not the sum
      {38, 30, 39, {1, 1, 1}, kSpeedLow},
  };
  for (const BandCase& each : cases) {
    World world = SmallWorld().Promotion("CWA").Worker("Bram Okafor").Game("CWA");
    Worker& bram = world.Workers()[1];
    bram.Brawl = each.Brawl;
    bram.Technical = each.Technical;
    bram.Speed = each.Speed;
    World scripted(std::make_unique<SeededDraws>(1), std::make_unique<ScriptedDraws>(each.Draws));
    EXPECT_EQ(OffenceBandOf(scripted, bram), each.Band)
        << each.Brawl << " " << each.Technical << " " << each.Speed;
  }
}

TEST(LineMemory, GivesNoLineAgainBeforeTheOthersOfItsBand) {
  LineMemory memory;
  const int band = 0, other = 0;
  ScriptedDraws draws{{3, 2}, {3, 2}, {2, 2}, {3, 2}, {1, 1}, {3, 2}, {3, 2}};
  EXPECT_EQ(memory.Pick(draws, &band, 3), 1);
  EXPECT_EQ(memory.Pick(draws, &band, 3), 2);  // used: the second of the two others
  EXPECT_EQ(memory.Pick(draws, &band, 3), 0);  // used: the only one left
  EXPECT_EQ(memory.Pick(draws, &band, 3), 1);  // all were used: anew
  EXPECT_EQ(memory.Pick(draws, &other, 3), 1);
}

}  // namespace
}  // namespace grapplemont
