#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// The player's CWA is Regional with image 50: a standing of 250, and $2000000.
World Reviewed(const std::array<int, 4>& ranks, const std::array<int, 4>& money, bool owned) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("NEW").Owner("Lou Hart");
  World world = small.Game("CWA");
  if (owned) {
    world.AllStaff()[1].Employer = world.PlayerUid();
  }
  for (std::size_t i = 0; i < 4; ++i) {
    world.Player().Rank[i] = ranks[i];
    world.Player().MoneyBefore[i] = money[i];
  }
  MonthlyReview(world);
  return world;
}

constexpr std::array<int, 4> kNone = {-1, -1, -1, -1};

TEST(MonthlyReview, MovesTheHistoriesOfEverybody) {
  World world = Reviewed({240, 230, 220, 210}, {40, 30, 20, 10}, false);
  constexpr int kRanks[] = {250, 240, 230, 220, 210}, kMoney[] = {2000000, 40, 30, 20, 10};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(world.Player().Rank[i], kRanks[i]);
    EXPECT_EQ(world.Player().MoneyBefore[i], kMoney[i]);
  }
  EXPECT_EQ(Named(world.Promotions(), "NEW").Rank[0], 250);
  EXPECT_EQ(Named(world.Promotions(), "NEW").Rank[1], 250);
  EXPECT_EQ(Named(world.Promotions(), "NEW").MoneyBefore[0], 2000000);
}

struct TrendCase {
  std::array<int, 4> Before;  // the last month ends, the latest first
  const char* Says;
};

TEST(MonthlyReview, TellsTheTrendOfTheImage) {
  const TrendCase kCases[] = {
      {kNone, ""},
      {{250, -1, -1, -1}, ""},
      {{240, -1, -1, -1}, ""},
      {{250, 240, 230, 220}, ""},  // the same as last month: no trend
      {{240, 241, -1, -1}, ""},
      {{240, 240, 230, -1}, ""},
      {{240, 230, -1, -1}, "Good work, our public image is rising nicely."},
      {{240, 230, 230, 220}, "Good work, our public image is rising nicely."},
      {{240, 230, 231, 100}, "Good work, our public image is rising nicely."},
      {{240, 230, 220, -1},
       "Great work, this is the fourth consecutive month that our public image has risen."},
      {{240, 230, 220, 220},
       "Great work, this is the fourth consecutive month that our public image has risen."},
      {{240, 230, 220, 210}, "Superb work, our public image is improving every month."},
      {{260, 270, -1, -1},
       "Our public image seems to be falling...what are you going to do about it?"},
      {{260, 270, 280, -1},
       "This is the fourth month running that our public image has dropped. I hope you have a plan "
       "to turn things around!"},
      {{251, 252, 253, 254}, "What are you doing? Our public image is dropping at a rapid rate!"},
  };
  for (const TrendCase& c : kCases)
    for (const bool owned : {false, true}) {
      const std::string says = c.Says;
      const std::string expected =
          says.empty() ? "" : (owned ? "Lou Hart: " : "The Board: ") + says + "\n";
      EXPECT_EQ(NewsOf(Reviewed(c.Before, kNone, owned)), expected) << c.Before[0];
    }
}

TEST(MonthlyReview, TellsTheTrendOfTheMoney) {
  constexpr int kNow = 2000000;
  const TrendCase kCases[] = {
      {{kNow - 1, -1, -1, -1}, ""},
      {{kNow, kNow - 1, kNow - 2, kNow - 3}, ""},
      {{kNow - 1, kNow - 2, -1, -1}, "Good work chief, our money is increasing nicely."},
      {{kNow - 1, kNow - 2, kNow - 3, -1},
       "Great work boss, we've been making money for four months running."},
      {{kNow - 1, kNow - 2, kNow - 3, kNow - 4}, "We're making money every month, this is great!"},
      {{kNow + 1, kNow + 2, kNow + 1, -1},
       "We've lost money for three months running now...maybe you should cut some costs?"},
      {{kNow + 1, kNow + 2, kNow + 3, kNow + 3},
       "Our money is going down, and has been for four months in a row. Uh-oh."},
      {{kNow + 1, kNow + 2, kNow + 3, kNow + 4},
       "We're losing money too fast, we need to find a way to cut costs ASAP!!!"},
  };
  for (const TrendCase& c : kCases) {
    const std::string says = c.Says;
    EXPECT_EQ(NewsOf(Reviewed(kNone, c.Before, true)),
              says.empty() ? "" : "Finance Dept.: " + says + "\n")
        << c.Before[0] - kNow;
  }
}

TEST(PoorFormMorale, TakesTheHeartOutOfALosingPromotion) {
  struct Case {
    std::array<int, 4> Ranks;
    bool Suffers;
  };
  constexpr Case kCases[] = {{{250, -1, -1, -1}, false},    {{240, 250, -1, -1}, false},
                             {{240, 250, 250, 260}, false}, {{240, 250, 260, -1}, true},
                             {{240, 250, 260, 270}, true},  {{250, 250, 260, 270}, false},
                             {{240, 250, 260, 200}, true},  {{260, 250, 260, 270}, false}};
  for (const Case& c : kCases)
    for (const bool isPlayers : {true, false}) {
      World world = SmallWorld()
                        .Promotion("CWA")
                        .Worker("Bram Okafor")
                        .Worker("Already Low", [](Worker& worker) { worker.Morale = 4; })
                        .Promotion("NEW")
                        .Worker("Ilya Marsh")
                        .Game(isPlayers ? "CWA" : "NEW");
      for (std::size_t i = 0; i < 4; ++i) Named(world.Promotions(), "CWA").Rank[i] = c.Ranks[i];
      PoorFormMorale(world);
      EXPECT_EQ(Named(world.Workers(), "Bram Okafor").Morale, c.Suffers ? 70 : 80) << c.Ranks[1];
      EXPECT_EQ(Named(world.Workers(), "Already Low").Morale, c.Suffers ? 0 : 4);
      EXPECT_EQ(Named(world.Workers(), "Ilya Marsh").Morale, 80);
      EXPECT_EQ(NewsOf(world),
                c.Suffers && isPlayers
                    ? "Maeve: Our poor performance is affecting the worker's morale.\n"
                    : "");
    }
}

}  // namespace
}  // namespace grapplemont::test
