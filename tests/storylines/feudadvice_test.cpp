#include <gtest/gtest.h>

#include "storylines/feuds.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

const std::string kNoHeat =
    "You need to build this rivalry up more. Use matches, interviews and angles to heat things up.";
const std::string kBegun = "You need to build this rivalry up more, it has barely begun.";
const std::string kCheap =
    "I'd give one of the teams a few cheap wins - clean-cut faces vs cheating heels always draws.";
const std::string kEven =
    "A nice even feud - i'd let one team get slightly ahead, then have the other team win the "
    "feud-ending bout to even the score.";
const std::string kBuilt =
    "This feud has been built up well, i think we should end it with a big gimmick bout, then "
    "move both teams onto new feuds.";

std::string Poised(const std::string& side) {
  return "This feud is poised perfectly for " + side +
         " to get a climatic clean victory to end the feud.";
}
std::string Loses(const std::string& side) {
  return side + " would lose popularity if they lost the feud at this stage.";
}

/// Clean wins, dirty wins, verbal attacks, sneak attacks.
using Counters = std::array<int, 4>;

struct Case {
  Counters One, Two;
  std::string Singles;
  std::string Teams = {};  // as the singles where empty, but for the names
};

void Count(Feud& feud, const Case& c) {
  feud.Clean1 = c.One[0];
  feud.Dirty1 = c.One[1];
  feud.Interference1 = c.One[2];
  feud.Sneak1 = c.One[3];
  feud.Clean2 = c.Two[0];
  feud.Dirty2 = c.Two[1];
  feud.Interference2 = c.Two[2];
  feud.Sneak2 = c.Two[3];
}

const Case kCases[] = {
    // Barely begun below four, whatever else is true.
    {{0, 0, 0, 0}, {0, 0, 0, 0}, kNoHeat, kBegun},
    {{1, 0, 1, 0}, {0, 1, 0, 0}, kNoHeat, kBegun},
    {{1, 0, 1, 0}, {0, 0, 0, 1}, kNoHeat, kBegun},
    // No cheap win on either side; attacks are none.
    {{4, 0, 0, 0}, {0, 0, 0, 0}, kCheap},
    {{2, 0, 9, 9}, {2, 0, 9, 9}, kCheap},
    {{0, 0, 0, 0}, {9, 0, 0, 0}, kCheap},
    // One side has nothing, the other six or more, four of them dirty.
    {{0, 0, 0, 0}, {0, 4, 1, 1}, Poised("Ash"), Poised("The Kindling")},
    {{0, 4, 1, 1}, {0, 0, 0, 0}, Poised("Bea"), Poised("Cal \\ Dot")},
    {{0, 0, 0, 0}, {0, 14, 0, 0}, Poised("Ash"), Poised("The Kindling")},
    {{0, 0, 0, 0}, {2, 3, 1, 0}, Loses("Bea"), Loses("Cal \\ Dot")},
    {{0, 0, 0, 0}, {1, 4, 0, 0}, Loses("Bea"), Loses("Cal \\ Dot")},
    {{0, 0, 1, 0}, {0, 7, 0, 0}, Loses("Bea"), Loses("Cal \\ Dot")},
    // Even up to thirteen, built up well beyond.
    {{1, 1, 0, 0}, {1, 0, 0, 1}, kEven},
    {{3, 3, 0, 0}, {3, 3, 0, 0}, kEven},
    {{4, 3, 0, 0}, {4, 3, 0, 0}, kBuilt},
    {{4, 3, 0, 0}, {4, 2, 0, 0}, Loses("Ash"), Loses("The Kindling")},
    {{10, 3, 0, 0}, {1, 0, 0, 0}, kBuilt},
    // Who is less than five behind is told about first; only then the other side.
    {{2, 1, 0, 0}, {1, 0, 0, 0}, Loses("Ash"), Loses("The Kindling")},
    {{1, 0, 0, 0}, {3, 2, 0, 0}, Loses("Ash"), Loses("The Kindling")},
    {{1, 0, 0, 0}, {3, 3, 0, 0}, Loses("Bea"), Loses("Cal \\ Dot")},
    {{1, 0, 0, 0}, {3, 4, 0, 0}, Loses("Bea"), Loses("Cal \\ Dot")},
    {{3, 4, 0, 0}, {1, 0, 0, 0}, Loses("Ash"), Loses("The Kindling")},
    {{0, 1, 0, 0}, {6, 6, 0, 0}, Loses("Bea"), Loses("Cal \\ Dot")},
};

TEST(AssessFeud, SaysTheFirstSentenceThatApplies) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker("Ash")
                    .Worker("Bea")
                    .Worker("Cal")
                    .Worker("Dot")
                    .Team("The Kindling", "Ash", "Bea")
                    .Game("CWA")
                    .Feud("Ash", "Bea")
                    .TagFeud("Bea", "Ash", "Cal", "Dot");
  for (const Case& c : kCases) {
    std::string about;
    for (const int count : c.One) about += std::to_string(count) + " ";
    for (const int count : c.Two) about += std::to_string(count) + " ";
    Feud& singles = world.Feuds()[1];
    Count(singles, c);
    EXPECT_EQ(AssessFeud(world, singles), c.Singles) << about;
    Feud& teams = world.Feuds()[2];
    Count(teams, c);
    EXPECT_EQ(AssessFeud(world, teams), c.Teams.empty() ? c.Singles : c.Teams) << about;
  }
}

}  // namespace
}  // namespace grapplemont::test
