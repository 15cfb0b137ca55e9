#include <gtest/gtest.h>

#include "roster/leaving.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

// Going: the answer to an offered release, and ending a contract before its time.

namespace grapplemont::test {
namespace {

constexpr const char* kPoor =
    "Bram Okafor: 'I do not feel it is wise for me to leave when the market is in such a poor "
    "state!'";
constexpr const char* kNowhere =
    "Bram Okafor: 'I do not want to leave, there are few other promotions big enough for me to "
    "work for!'";
constexpr const char* kNoMove =
    "Bram Okafor: 'I don't think leaving is a good career move for me at the moment.'";
constexpr const char* kFormally = "Bram Okafor formally rejects your offer of a release.";

World Employed(int size, int rivalSize) {
  return SmallWorld()
      .Promotion("CWA", size)
      .Worker("Bram Okafor", kMidcard, 50)
      .Promotion("NEW", rivalSize)
      .Game("CWA");
}
Worker& Bram(World& world) {
  return Named(world.Workers(), "Bram Okafor");
}

TEST(AnswerToRelease, CountsPromotionsBigEnoughForHisOver) {
  const std::pair<int, int> kCases[] = {{100, 2}, {86, 2}, {85, 3}, {66, 3},
                                        {65, 4},  {41, 4}, {40, 5}, {20, 5}};
  for (const auto& [over, smallest] : kCases) {
    World world = Employed(kBackyard, smallest);
    Bram(world).Over = over;
    world.Game().Economy = 60;
    EXPECT_NE(AnswerToRelease(world, Bram(world)).Remarks[0].Text, kNowhere) << over;
    Named(world.Promotions(), "NEW").Size = smallest + 1;
    EXPECT_EQ(AnswerToRelease(world, Bram(world)).Remarks[0].Text, kNowhere) << over;
    world.Player().Size = smallest;
    EXPECT_NE(AnswerToRelease(world, Bram(world)).Remarks[0].Text, kNowhere) << "one's own counts";
  }
}

TEST(AnswerToRelease, RefusesInAPoorMarketAndWithNowhereToGo) {
  World world = Employed(kBackyard, kBackyard);
  world.Player().Money = -1;  // would be reason enough
  Bram(world).Over = 10;
  const struct {
    int Economy, Over;
    std::vector<std::string> Words;
  } kCases[] = {{39, 10, {kPoor, kFormally}},
                {39, 50, {kPoor, kNowhere, kFormally}},
                {40, 50, {kNowhere, kFormally}},
                {40, 10, {}}};
  for (const auto& c : kCases) {
    world.Game().Economy = c.Economy;
    Bram(world).Over = c.Over;
    const ReleaseAnswer answer = AnswerToRelease(world, Bram(world));
    EXPECT_EQ(answer.Accepted, c.Words.empty());
    if (answer.Accepted) continue;
    ASSERT_EQ(answer.Remarks.size(), c.Words.size());
    for (std::size_t i = 0; i < c.Words.size(); ++i)
      EXPECT_EQ(answer.Remarks[i], (Remark{"Rejected", c.Words[i]}));
  }
}

TEST(AnswerToRelease, TakesTheFirstReasonToGo) {
  constexpr const char* kMoney =
      ": 'With the financial situation of the company the way it is, i accept!'";
  constexpr const char* kUnhappy = ": 'I am unhappy here, so i accept!'";
  constexpr const char* kBackyards = ": 'I accept, i'd like to try my luck in a bigger promotion.'";
  constexpr const char* kSmalls =
      ": 'I was thinking of moving to another promotion anyway, so i accept!'";
  constexpr const char* kRegionals =
      ": 'Thanks boss, i was hoping to try my luck elsewhere. I accept.'";
  constexpr const char* kBigs = ": 'Thanks, i will accept so that i can try my luck elsewhere.'";
  constexpr struct {
    int Size, Over, Morale, Money;
    const char* Words;  // behind the name; nullptr when they stay
  } kCases[] = {
      {1, 50, 40, 0, nullptr},    {1, 50, 40, -1, kMoney},  {6, 90, 10, -1, kMoney},
      {1, 50, 39, 0, kUnhappy},   {6, 90, 39, 0, kUnhappy}, {6, 21, 40, 0, kBackyards},
      {6, 20, 40, 0, nullptr},    {5, 41, 40, 0, kSmalls},  {5, 40, 40, 0, nullptr},
      {4, 56, 40, 0, kRegionals}, {4, 55, 40, 0, nullptr},  {3, 71, 40, 0, kBigs},
      {3, 70, 40, 0, nullptr},    {2, 83, 40, 0, kBigs},    {2, 82, 40, 0, nullptr},
      {1, 100, 40, 0, nullptr},   {6, 10, 80, -1, kMoney},
  };
  World world = Employed(kGlobal, kGlobal);
  for (const auto& c : kCases) {
    world.Player().Size = c.Size;
    world.Player().Money = c.Money;
    Bram(world).Over = c.Over;
    Bram(world).Morale = c.Morale;
    const ReleaseAnswer answer = AnswerToRelease(world, Bram(world));
    EXPECT_EQ(answer.Accepted, c.Words != nullptr);
    const std::vector<Remark> expected =
        c.Words ? std::vector<Remark>{{"Accepted", "Bram Okafor" + std::string(c.Words)}}
                : std::vector<Remark>{{"Rejected", kNoMove}, {"Rejected", kFormally}};
    EXPECT_EQ(answer.Remarks, expected) << c.Size << " " << c.Over << " " << c.Morale;
  }
}

TEST(BuyOutCost, GrowsWithTheDifficulty) {
  constexpr struct {
    int Difficulty, Wage, Months;
    long long Cost;
  } kCases[] = {
      {kEasy, 20, 15, 20000},         {kMedium, 20, 15, 140000},   {kMedium, 20, 1, 0},
      {kMedium, 20, 2, 20000},        {kHard, 20, 15, 300000},     {kRockHard, 20, 15, 600000},
      {kRockHard, 300, 60, 36000000}, {kHard, 0, 15, 0},           {kEasy, 20, kNoEnd, 20000},
      {kMedium, 20, kNoEnd, 120000},  {kHard, 20, kNoEnd, 120000}, {kRockHard, 20, kNoEnd, 120000}};
  for (const auto& c : kCases)
    EXPECT_EQ(BuyOutCost(c.Difficulty, c.Wage, c.Months), c.Cost)
        << c.Difficulty << " " << c.Wage << " " << c.Months;
}

TEST(PartingOf, HasThreeCasesInOrder) {
  constexpr struct {
    const char *Status, *Type;
    int Morale;
    Parting Expected;
  } kCases[] = {{"Nor", "Wri", 20, Parting::BuyOut}, {"Nor", "Wri", 19, Parting::Gladly},
                {"Hom", "Wri", 80, Parting::Gladly}, {"Nor", "Non", 20, Parting::Verbal},
                {"Nor", "Non", 19, Parting::Gladly}, {"Hom", "Non", 80, Parting::Gladly},
                {"Inj", "Wri", 80, Parting::BuyOut}};
  for (const auto& c : kCases) {
    Worker worker;
    worker.Status = c.Status;
    worker.ContractType = c.Type;
    worker.Morale = c.Morale;
    EXPECT_EQ(PartingOf(worker), c.Expected) << c.Status << c.Type << c.Morale;
  }
}

TEST(Terminate, BuysOutWhateverIsInTheBank) {
  World world = Employed(kGlobal, kGlobal);
  world.Game().Difficulty = kHard;
  world.Player().Money = 50000;
  const MonthBooks books = world.Player().ThisMonth;
  EXPECT_EQ(TerminationQuestion(world, Bram(world)),
            "Terminating this contract will cost $120000. Proceed?");
  Bram(world).Loyalty = 29;
  ScriptDraws(world, {{3, 2}});
  Terminate(world, Bram(world));
  EXPECT_EQ(world.Player().Money, -70000);
  EXPECT_EQ(world.Player().ThisMonth.WrestlerWages, books.WrestlerWages);
  EXPECT_EQ(Bram(world).Loyalty, 0);
  EXPECT_EQ(Bram(world).Employer, 0);
}

TEST(Terminate, BreaksAVerbalContractForFreeButNotForNothing) {
  constexpr struct {
    int Morale, Behaviour, Age;
    bool Betrayed;
  } kCases[] = {{69, 81, 36, true}, {70, 81, 36, false}, {69, 80, 36, false}, {69, 81, 35, false}};
  for (const auto& c : kCases) {
    World world = Employed(kGlobal, kGlobal);
    Worker& bram = Bram(world);
    const int money = world.Player().Money;
    world.Game().Reputation = 80;
    bram.ContractType = "Non";
    bram.Morale = c.Morale;
    bram.Behaviour = c.Behaviour;
    bram.Age = c.Age;
    EXPECT_EQ(TerminationQuestion(world, bram),
              "This worker is only under a verbal contract, and so can be released for free. "
              "Proceed?");
    ScriptDraws(world, {{3, 3}});
    Terminate(world, bram);
    EXPECT_EQ(world.Player().Money, money);
    EXPECT_EQ(world.Game().Reputation, c.Betrayed ? 65 : 80);
    EXPECT_EQ(bram.Loyalty, c.Betrayed ? 0 : 60);
    EXPECT_EQ(NewsOf(world),
              c.Betrayed ? "Bram Okafor: I can't believe you broke my verbal contract! I'll never "
                           "work for you again!\n"
                         : "");
    EXPECT_EQ(bram.Employer, 0);
  }
}

TEST(Terminate, LetsTheUnhappyGoWithoutAPrice) {
  World world = Employed(kGlobal, kGlobal);
  Worker& bram = Bram(world);
  const int money = world.Player().Money;
  bram.Status = "Hom";
  EXPECT_EQ(TerminationQuestion(world, bram), "This wrestler is happy to leave. Proceed?");
  ScriptDraws(world, {{3, 3}});
  Terminate(world, bram);
  EXPECT_EQ(world.Player().Money, money);
  EXPECT_EQ(bram.Loyalty, 80);
  EXPECT_EQ(bram.Status.View(), "Nor");
}

}  // namespace
}  // namespace grapplemont::test
