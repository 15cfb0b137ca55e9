#include <gtest/gtest.h>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::Named;
using test::SmallWorld;

World Peopled() {
  return SmallWorld()
      .Promotion("CWA", kCult, [](Promotion& p) { p.DevName = "Anvil Valley"; })
      .Worker("Bram Okafor")
      .Worker("Ilya Marsh", [](Worker& w) { w.ShortName = "The Mire"; })
      .Worker("Cal Drift", [](Worker& w) { w.Uid = 30000; })
      .Owner("Ruth Vane")
      .Staff("Vic Tolliver", kAnnouncer)
      .Team("Mud and Iron", "Ilya Marsh", "Bram Okafor")
      .Stable("The Bench")
      .Title("CWA Crown")
      .Promotion("NEW", kSmall);
}

TEST(LookUps, GiveNamesAndTheirAnswersForNobody) {
  const World world = Peopled();
  EXPECT_EQ("CWA Wrestling", PromotionName(world, 1));
  EXPECT_EQ("CWA", PromotionInitials(world, 1));
  EXPECT_EQ("Anvil Valley", DevTerritoryName(world, 1));
  EXPECT_EQ("None", DevTerritoryName(world, 2));
  EXPECT_EQ("Ilya Marsh", WorkerName(world, 2));
  EXPECT_EQ("The Mire", WorkerShortName(world, 2));
  EXPECT_EQ("Vic Tolliver", StaffName(world, 2));
  EXPECT_EQ("Ruth Vane", OwnerOf(world, 1)->Name.View());
  EXPECT_EQ(nullptr, OwnerOf(world, 2));
  const World empty;
  for (const World* nobody : {&world, &empty}) {
    for (const int uid : {0, 99, -1, 32767}) {
      EXPECT_EQ("None", PromotionName(*nobody, uid));
      EXPECT_EQ("None", PromotionInitials(*nobody, uid));
      EXPECT_EQ("None", DevTerritoryName(*nobody, uid));
      EXPECT_EQ("", WorkerName(*nobody, uid));
      EXPECT_EQ("", WorkerShortName(*nobody, uid));
      EXPECT_EQ("", StaffName(*nobody, uid));
    }
  }
}

TEST(LookUps, KnowTeamsInEitherOrder) {
  const World world = Peopled();
  EXPECT_EQ("Mud and Iron", TeamNameOf(world, 1, 2));
  EXPECT_EQ("Mud and Iron", TeamNameOf(world, 2, 1));
  EXPECT_EQ("None", TeamNameOf(world, 1, 30000));
  EXPECT_EQ("None", TeamNameOf(World(), 1, 2));
  EXPECT_EQ("Mud and Iron", PairName(world, 1, 2));
  EXPECT_EQ("Bram Okafor \\ Cal Drift", PairName(world, 1, 30000));
}

TEST(LookUps, FindStablesAndTitlesByName) {
  const World world = Peopled();
  EXPECT_EQ(1, FindStable(world, "The Bench")->Owner);
  EXPECT_EQ(nullptr, FindStable(world, "the bench"));
  EXPECT_EQ(1, FindTitle(world, "CWA Crown ")->Owner);
  EXPECT_EQ(nullptr, FindTitle(world, "None"));
}

TEST(LookUps, CountUidsOnFromTheHighest) {
  World world = Peopled();
  EXPECT_EQ(30001, NextWorkerUid(world));
  EXPECT_EQ(3, NextStaffUid(world));
  EXPECT_EQ(3, NextPromotionUid(world));
  world.Workers()[3].Uid = 32767;
  EXPECT_EQ(3, NextWorkerUid(world)) << "the lowest that is free, with none behind the highest";
  world.Workers().Erase(3);
  EXPECT_EQ(3, NextWorkerUid(world));
  EXPECT_EQ(1, NextWorkerUid(World()));
  EXPECT_EQ(1, NextStaffUid(World()));
  EXPECT_EQ(1, NextPromotionUid(World()));
}

TEST(Uids, AreNotTakenWhileARecordStillNamesThem) {
  World world =
      SmallWorld().Network("Nine").Promotion("CWA").Crew(2).Show("Fire", "Friday", "Nine");
  world.Workers()[2].Uid = 32767;
  world.AllStaff().Append({}).Uid = 32767;
  EXPECT_EQ(2, NextWorkerUid(world));
  Team team;
  team.Worker2 = 2;
  world.Teams().Append(team);
  world.Workers()[1].Manager = 3;
  world.Segments().Append({}).Worker[29] = 4;
  world.Shows()[1].Colour = 5;
  world.Shows()[1].Announcer = 6;
  EXPECT_EQ(6, NextWorkerUid(world));
  EXPECT_EQ(1, NextStaffUid(world));
  world.Promotions()[1].HeadTrainer = 1;
  EXPECT_EQ(2, NextStaffUid(world));
}

TEST(LookUps, TellFreeNamesTrimmedAndByCase) {
  const World world = Peopled();
  EXPECT_FALSE(WorkerNameFree(world, "Bram Okafor"));
  EXPECT_FALSE(WorkerNameFree(world, " Bram Okafor  "));
  EXPECT_TRUE(WorkerNameFree(world, "bram okafor"));
  EXPECT_TRUE(WorkerNameFree(world, "Ruth Vane"));
  EXPECT_FALSE(StaffNameFree(world, "Ruth Vane"));
  EXPECT_TRUE(StaffNameFree(world, "Ruth"));
  EXPECT_TRUE(WorkerNameFree(World(), ""));
}

TEST(TextConversions, PositionsGoBothWays) {
  const struct {
    int Code;
    const char* Text;
  } rows[] = {{1, "Main Event"},       {2, "Upper Midcard"}, {3, "Midcard"},
              {4, "Lower Midcard"},    {5, "Opener"},        {6, "Jobber"},
              {7, "Development Deal"}, {25, "Non-wrestler"}, {50, "Manager"},
              {75, "Training Camp"}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.Text, PositionText(row.Code));
    EXPECT_EQ(row.Code, PositionCode(row.Text));
  }
  for (const int code : {0, 8, 24, 26, 80, 81, 83, 86, 87, -1, 32767})
    EXPECT_EQ("Unknown", PositionText(code)) << code;
  EXPECT_EQ(0, PositionCode("Unknown"));
  EXPECT_EQ(0, PositionCode("main event"));
}

TEST(TextConversions, DispositionsAndContractsGoBothWays) {
  const struct {
    const char* Code;
    const char* Text;
  } dispositions[] = {{"F", "Face"}, {"H", "Heel"}, {"T", "Tweener"}},
    contracts[] = {{"Wri", "Written"}, {"Non", "None"}};
  for (const auto& row : dispositions) {
    EXPECT_EQ(row.Text, DispositionText(row.Code));
    EXPECT_EQ(row.Code, DispositionCode(row.Text));
  }
  for (const auto& row : contracts) {
    EXPECT_EQ(row.Text, ContractText(row.Code));
    EXPECT_EQ(row.Code, ContractCode(row.Text));
  }
  for (const char* odd : {"", "X", "f", "Wr"}) {
    EXPECT_EQ("Unknown", DispositionText(odd));
    EXPECT_EQ("Unknown", ContractText(odd));
    EXPECT_EQ("", DispositionCode(odd));
    EXPECT_EQ("", ContractCode(odd));
  }
}

TEST(TextConversions, ContractLines) {
  const struct {
    bool Unsackable;
    const char* Type;
    int Months;
    int Wage;
    const char* Line;
  } rows[] = {
      {false, "Wri", 12, 40, "Written contract for 12 months, at $40,000 per month"},
      {false, "Non", 6, 300, "Verbal agreement for 6 months, at $300,000 per month"},
      {false, "Wri", 1, 0, "Written contract for 1 month, at $0 per month"},
      {false, "Non", 0, 0, "Verbal agreement for 0 months, at $0 per month"},
      {true, "Wri", -1, 55, "Unsackable, agreement for $55,000 per month"},
      {true, "Non", -1, 0, "Unsackable, agreement for $0 per month"},
  };
  for (const auto& row : rows) {
    Worker worker;
    worker.Unsackable = row.Unsackable;
    worker.ContractType = row.Type;
    worker.ContractMonths = row.Months;
    worker.Wage = row.Wage;
    EXPECT_EQ(row.Line, ContractLine(worker));
  }
}

TEST(TextConversions, StatusLines) {
  const struct {
    const char* Status;
    int Months;
    const char* Line;
  } rows[] = {{"Nor", 0, "Available"},
              {"Inj", 3, "Broken Leg, out for 3 months"},
              {"Inj", 1, "Broken Leg, out for 1 month"},
              {"Inj", 0, "Broken Leg, out for 0 months"},
              {"Sus", 12, "Suspended for 12 months"},
              {"Sus", 1, "Suspended for 1 month"},
              {"Reh", 4, "Currently in rehab"},
              {"Hom", 0, "Sitting out contract"},
              {"???", 2, "Available"}};
  for (const auto& row : rows) {
    Worker worker;
    worker.Status = row.Status;
    worker.StatusMonths = row.Months;
    worker.InjuryName = "Broken Leg";
    EXPECT_EQ(row.Line, StatusLine(worker));
  }
}

TEST(TextConversions, FinishersBySlot) {
  const struct {
    FinisherType Type;
    const char* Text;
    bool Submission, TopRope, Ground;
  } rows[] = {{FinisherType::Impact, "Impact", false, false, false},
              {FinisherType::Submission, "Submission", true, false, false},
              {FinisherType::TopRope, "Top Rope", false, true, false},
              {FinisherType::Ground, "Ground", false, false, true}};
  for (const auto& row : rows) {
    Worker worker;
    FinisherFlags(worker, 1, FinisherType::Ground);
    FinisherFlags(worker, 1, row.Type);
    FinisherFlags(worker, 2, row.Type);
    EXPECT_EQ(row.Text, FinisherText(row.Type));
    EXPECT_EQ(row.Type, FinisherTypeOf(worker, 1));
    EXPECT_EQ(row.Type, FinisherTypeOf(worker, 2));
    EXPECT_EQ(row.Submission, worker.Finisher1Submission);
    EXPECT_EQ(row.TopRope, worker.Finisher1TopRope);
    EXPECT_EQ(row.Ground, worker.Finisher1Ground);
    EXPECT_EQ(row.Submission, worker.Finisher2Submission);
    EXPECT_EQ(row.TopRope, worker.Finisher2TopRope);
    EXPECT_EQ(row.Ground, worker.Finisher2Ground);
    FinisherFlags(worker, 1, FinisherType::Impact);
    EXPECT_EQ(row.Type, FinisherTypeOf(worker, 2)) << "the slots are apart";
  }
}

TEST(TextConversions, RatingsKeepTheirBlank) {
  const struct {
    int Value;
    const char* Text;
  } rows[] = {{0, "0.00"},    {1, "0. 01"},  {9, "0. 09"},    {10, "0.10"},
              {99, "0.99"},   {100, "1.00"}, {105, "1. 05"},  {200, "2.00"},
              {205, "2. 05"}, {250, "2.50"}, {1234, "12.34"}, {32767, "327.67"}};
  for (const auto& row : rows) EXPECT_EQ(row.Text, RatingText(row.Value));
}

TEST(TextConversions, DollarsAndSizes) {
  const struct {
    long long Amount;
    const char* Text;
  } rows[] = {{0, "$0"},
              {1284500, "$1,284,500"},
              {-1, "-$1"},
              {-2147483648LL, "-$2,147,483,648"},
              {2147483647, "$2,147,483,647"}};
  for (const auto& row : rows) EXPECT_EQ(row.Text, Dollars(row.Amount));
  const char* sizes[] = {"", "Global", "National", "Cult", "Regional", "Small", "Backyard", ""};
  for (int size = 0; size <= 7; ++size) EXPECT_EQ(sizes[size], SizeText(size));
  Promotion promotion;
  promotion.Size = kCult;
  promotion.Image = 64;
  EXPECT_EQ(364, StandingScore(promotion));
}

TEST(News, IsCutToItsFieldsAndDatedToday) {
  using std::chrono::year;
  World world = SmallWorld().Promotion("CWA").Game("CWA", year{2026} / 11 / 9);
  EXPECT_FALSE(HasNews(world));
  AddNews(world, "A sender of more than thirty letters", std::string(249, 'x') + "yz");
  EXPECT_TRUE(HasNews(world));
  const Mail& mail = world.News()[1];
  EXPECT_EQ("A sender of more than thirty l", mail.From.View());
  EXPECT_EQ("09/11/26", mail.Date.View());
  EXPECT_EQ(std::string(249, 'x') + "y", mail.Body.View());
}

TEST(News, AFullMailboxDropsItsOldest) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  Mail mail;
  while (!world.News().Full()) {
    mail.From = std::to_string(world.News().Count());
    world.News().Append(mail);
  }
  AddNews(world, "Last", "And no more.");
  const int dropped = std::stoi(world.News()[1].From.Str());
  EXPECT_GE(dropped, 1);
  EXPECT_EQ(20000 - dropped + 1, world.News().Count());
  EXPECT_EQ("19999", world.News()[world.News().Count() - 1].From.View());
  EXPECT_EQ("Last", world.News()[world.News().Count()].From.View());
  for (int number = 1; number < world.News().Count(); ++number)
    ASSERT_EQ(std::to_string(dropped + number - 1), world.News()[number].From.View());
}

TEST(News, NeedsAGame) {
  World world = SmallWorld().Promotion("CWA");
  EXPECT_THROW(AddNews(world, "Maeve", "Hello."), WorldFault);
}

TEST(News, IsToldByOptionAndSize) {
  World world = SmallWorld().Promotion("CWA", kCult).Game("CWA");
  ASSERT_EQ(kCult, world.Session.StartSize);
  for (int size = kGlobal; size <= kBackyard; ++size) {
    EXPECT_TRUE(ShouldTell(world, 0, size));
    EXPECT_EQ(size <= kCult, ShouldTell(world, 1, size)) << size;
    EXPECT_FALSE(ShouldTell(world, 2, size));
  }
  world.Session.StartSize = kGlobal;
  EXPECT_FALSE(ShouldTell(world, 1, kNational));
}

TEST(Positions, OnTheRosterAndSentAway) {
  for (int position = 0; position <= 100; ++position) {
    Worker worker;
    worker.Position = position;
    EXPECT_EQ(position >= 1 && position <= 6, IsOnRoster(worker)) << position;
    EXPECT_EQ(position >= 81 && position <= 86, IsSentAway(worker)) << position;
  }
}

TEST(Positions, EarnedByOver) {
  const struct {
    int From, To, Position;
  } rows[] = {{0, 29, 6}, {30, 50, 5}, {51, 70, 4}, {71, 80, 3}, {81, 100, 2}};
  for (const auto& row : rows)
    for (int over = row.From; over <= row.To; ++over)
      EXPECT_EQ(row.Position, PositionFromOver(over)) << over;
  EXPECT_EQ(6, PositionFromOver(-5));
  EXPECT_EQ(2, PositionFromOver(140));
}

}  // namespace
}  // namespace grapplemont
