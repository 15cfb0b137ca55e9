#include "show/attendance.h"
#include "show/ratings.h"

#include <gtest/gtest.h>

#include <map>

#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// What a table says of one type and size: ten tenths of the image, or one figure for all.
struct Row {
  int Type, Size;
  std::vector<int> Base;
  std::vector<int> Draw;
};

int At(const std::vector<int>& figures, std::size_t tenth) {
  return figures.size() == 1 ? figures[0] : figures.at(tenth);
}

/// Both edges of every tenth.
template <class Crowd>
void ExpectRow(const Row& row, Crowd crowd) {
  for (int image = 0; image <= 100; ++image) {
    const auto tenth = static_cast<std::size_t>(image == 100 ? 9 : image / 10);
    const BaseAndDraw found = crowd(row.Size, image);
    EXPECT_EQ(found.Base, At(row.Base, tenth)) << row.Type << " " << row.Size << " at " << image;
    EXPECT_EQ(found.Draw, At(row.Draw, tenth)) << row.Type << " " << row.Size << " at " << image;
  }
}

TEST(EventCrowd, IsTheWholeTable) {
  const Row kRows[] = {
      {1, 1, {10000, 11000, 12000, 13000, 14000, 15000, 16000, 17000, 18000, 20000}, {1000}},
      {1, 2, {4500, 5000, 5500, 6000, 6500, 7000, 7500, 8000, 8500, 9000}, {200}},
      {1, 3, {3200, 3400, 3500, 3600, 3700, 3800, 3900, 4000, 4100, 4200}, {100}},
      {1, 4, {1200, 1400, 1600, 1800, 2000, 2200, 2400, 2600, 2800, 3000}, {100}},
      {1, 5, {0}, {0}},
      {1, 6, {0}, {0}},
      {2, 1, {5000}, {500}},
      {2, 2, {3200, 3400, 3500, 3600, 3700, 3800, 3900, 4000, 4100, 4200}, {100}},
      {2, 3, {1200, 1400, 1600, 1800, 2000, 2200, 2400, 2600, 2800, 3000}, {100}},
      {2,
       4,
       {500, 550, 600, 650, 700, 800, 900, 1000, 1100, 1200},
       {50, 50, 50, 50, 100, 100, 100, 100, 100, 100}},
      {2,
       5,
       {75, 100, 150, 200, 250, 300, 350, 400, 450, 500},
       {10, 10, 20, 20, 20, 50, 50, 50, 50, 50}},
      {2, 6, {50}, {100}},
      {3, 1, {2000}, {500}},
      {3, 2, {1500}, {250}},
      {3, 3, {400, 450, 500, 600, 700, 800, 900, 1000, 1100, 1200}, {50}},
      {3, 4, {250, 275, 300, 325, 350, 375, 400, 425, 450, 500}, {20}},
      {3, 5, {90, 100, 110, 130, 150, 170, 200, 225, 250, 300}, {10}},
      {3, 6, {10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, {10}},
      {4, 1, {1000}, {200}},
      {4, 2, {1000}, {100}},
      {4, 3, {750}, {250}},
      {4, 4, {500}, {200}},
      {4, 5, {10, 20, 30, 40, 60, 80, 110, 140, 170, 200}, {10}},
      {4, 6, {1, 10, 15, 20, 25, 30, 35, 40, 45, 50}, {5}},
  };
  for (const Row& row : kRows)
    ExpectRow(row, [&](int size, int image) { return EventCrowd(row.Type, size, image); });
  for (const int type : {0, 5, -1}) EXPECT_EQ(EventCrowd(type, 1, 50).Base, 0);
}

TEST(TvCrowd, IsTheWholeTable) {
  const std::vector<int> kFiveFirst = {5, 10, 10, 10, 10, 10, 10, 10, 10, 10};
  const Row kRows[] = {
      {0, 1, {4500, 4000, 5000, 6000, 6500, 7000, 7500, 8000, 9000, 10000}, {50}},
      {0,
       2,
       {600, 800, 1000, 1250, 1500, 1750, 2000, 2500, 3000, 3500},
       {20, 10, 10, 10, 10, 10, 10, 10, 10, 10}},
      {0, 3, {300, 320, 340, 360, 380, 400, 420, 440, 460, 500}, {20}},
      {0, 4, {120, 130, 140, 150, 160, 170, 180, 190, 200, 210}, kFiveFirst},
      {0, 5, {10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, kFiveFirst},
      {0, 6, {1}, {9}},
  };
  for (const Row& row : kRows) ExpectRow(row, TvCrowd);
}

TEST(Gates, FollowTheEconomy) {
  // Economy, then what comes of 995 people at an Event and at a television show.
  constexpr int kCases[][3] = {
      {100, 1094, 1194}, {91, 1094, 1194}, {90, 1094, 1094}, {86, 1094, 1094}, {85, 995, 1094},
      {81, 995, 1094},   {80, 995, 995},   {30, 995, 995},   {29, 895, 995},   {20, 895, 995},
      {19, 796, 796},    {10, 796, 796},   {9, 696, 696},    {0, 696, 696},    {-5, 696, 696}};
  for (const auto& [economy, event, tv] : kCases) {
    EXPECT_EQ(EventGate(995, {kCult, 30, economy}), event) << economy;
    EXPECT_EQ(TvGate(995, {kCult, 30, economy}), tv) << economy;
  }
}

TEST(Gates, FollowThePriceStepByStep) {
  // Dollars from the fair price, then what comes of 997 people.
  constexpr int kCases[][2] = {{-20, 1370}, {-11, 1370}, {-10, 1096}, {-6, 1096}, {-5, 997},
                               {0, 997},    {5, 997},    {6, 897},    {10, 897},  {11, 717},
                               {15, 717},   {16, 501},   {20, 501},   {21, 300},  {25, 300},
                               {26, 150},   {30, 150},   {31, 60},    {90, 60}};
  for (const auto& [off, people] : kCases) {
    EXPECT_EQ(EventGate(997, {kNational, 40 + off, 60}), people) << off;
    EXPECT_EQ(TvGate(997, {kGlobal, 60 + off, 60}), people) << off;
  }
}

TEST(Gates, StayEmptyAtAPriceThatNobodyPays) {
  constexpr int kLimits[][2] = {{kCult, 71}, {kRegional, 51}, {kSmall, 26}, {kBackyard, 16}};
  for (const auto& [size, limit] : kLimits) {
    EXPECT_EQ(EventGate(10000, {size, limit, 60}), 0) << size;
    EXPECT_EQ(TvGate(10000, {size, limit, 60}), 0) << size;
    EXPECT_GT(EventGate(10000, {size, limit - 1, 60}), 0) << size;
  }
  for (const int size : {kGlobal, kNational})
    EXPECT_GT(EventGate(10000, {size, 1000, 60}), 0) << size;
}

TEST(Gates, TellHowTheirCrowdCameAbout) {
  const Score gate = EventGate(1000, {kRegional, 52, 95});
  std::string told;
  for (const ScoreStep& step : gate.Steps())
    told += step.Why + " " + std::to_string(step.Change) + "\n";
  EXPECT_EQ(told,
            "size and image 1000\neconomy 95 100\ntickets $32 above the fair price -1034\n"
            "nobody pays $52 -66\n");
  EXPECT_EQ(EventGate(1000, {kRegional, 20, 60}).Steps().size(), 1u)
      << "what does nothing is silent";
}

TEST(Attendance, DrawsOnceOnTopOfTheBase) {
  World world = SmallWorld().Promotion("CWA", kCult).Game("CWA");
  Promotion& promotion = world.Player();
  promotion.Image = 47;
  promotion.TicketPrice = 30;
  world.Game().Economy = 25;
  ScriptDraws(world, {{100, 60}, {50, 7}, {20, 20}});
  EXPECT_EQ(EventAttendance(world, promotion, 2), (2000 + 60) * 9 / 10);
  EXPECT_EQ(EventAttendance(world, promotion, 3), (700 + 7) * 9 / 10);
  EXPECT_EQ(TvAttendance(world, promotion), 400);
  promotion.Size = kSmall;
  EXPECT_EQ(EventAttendance(world, promotion, 1), 0) << "and nothing was drawn";
}

TEST(Events, CostByTheirType) {
  constexpr int kCosts[] = {0, 1'500'000, 200'000, 25'000, 1'000, 0};
  for (int type = 0; type <= 5; ++type) EXPECT_EQ(EventProductionCost(type), kCosts[type]);
}

TEST(BaseAndDraw, HasItsMeanRoundedDown) {
  EXPECT_EQ(Mean({1000, 200}), 1100);
  EXPECT_EQ(Mean({75, 9}), 80);
  EXPECT_EQ(Mean({50, 0}), 50);
}

}  // namespace
}  // namespace grapplemont::test
