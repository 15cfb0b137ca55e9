#include <gtest/gtest.h>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/nameindex.h"
#include "records/severing.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::Named;
using test::Names;
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

TEST(LookUps, KnowTeamsStablesAndTitlesByName) {
  const World world = Peopled();
  EXPECT_EQ("Mud and Iron", TeamNameOf(world, 1, 2));
  EXPECT_EQ("Mud and Iron", PairName(world, 2, 1));
  EXPECT_EQ("None", TeamNameOf(world, 1, 30000));
  EXPECT_EQ("Bram Okafor \\ Cal Drift", PairName(world, 1, 30000));
  EXPECT_EQ(1, FindStable(world, "The Bench")->Owner);
  EXPECT_EQ(nullptr, FindStable(world, "the bench"));
  EXPECT_EQ(1, FindTitle(world, "CWA Crown ")->Owner);
  EXPECT_EQ(nullptr, FindTitle(world, "None"));
  EXPECT_FALSE(WorkerNameFree(world, " Bram Okafor  "));
  EXPECT_TRUE(WorkerNameFree(world, "bram okafor"));
  EXPECT_TRUE(WorkerNameFree(world, "Ruth Vane"));
  EXPECT_FALSE(StaffNameFree(world, "Ruth Vane"));
}

TEST(Uids, CountOnFromTheHighest) {
  World world = Peopled();
  EXPECT_EQ(30001, NextWorkerUid(world));
  EXPECT_EQ(3, NextStaffUid(world));
  EXPECT_EQ(3, NextPromotionUid(world));
  world.Workers()[3].Uid = 32767;
  EXPECT_EQ(3, NextWorkerUid(world)) << "the lowest that is free, with none behind the highest";
  EXPECT_EQ(1, NextWorkerUid(World()));
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

TEST(TextConversions, TellContractAndStatus) {
  const struct {
    bool Unsackable;
    const char* Type;
    int Months, Wage;
    const char* Line;
  } contracts[] = {
      {false, "Wri", 12, 40, "Written contract for 12 months, at $40,000 per month"},
      {false, "Non", 1, 0, "Verbal agreement for 1 month, at $0 per month"},
      {true, "Wri", -1, 55, "Unsackable, agreement for $55,000 per month"},
  };
  for (const auto& row : contracts) {
    Worker worker;
    worker.Unsackable = row.Unsackable;
    worker.ContractType = row.Type;
    worker.ContractMonths = row.Months;
    worker.Wage = row.Wage;
    EXPECT_EQ(row.Line, ContractLine(worker));
  }
  const struct {
    const char* Status;
    int Months;
    const char* Line;
  } statuses[] = {{"Nor", 0, "Available"},
                  {"Inj", 3, "Broken Leg, out for 3 months"},
                  {"Sus", 1, "Suspended for 1 month"},
                  {"Reh", 4, "Currently in rehab"},
                  {"Hom", 0, "Sitting out contract"},
                  {"???", 2, "Available"}};
  for (const auto& row : statuses) {
    Worker worker;
    worker.Status = row.Status;
    worker.StatusMonths = row.Months;
    worker.InjuryName = "Broken Leg";
    EXPECT_EQ(row.Line, StatusLine(worker));
  }
}

TEST(TextConversions, KeepAFinisherInItsSlot) {
  const std::string_view texts[] = {"Impact", "Submission", "Top Rope", "Ground"};
  for (int first = 0; first < 4; ++first)
    for (int second = 0; second < 4; ++second) {
      Worker worker;
      FinisherFlags(worker, 1, FinisherType::Ground);
      FinisherFlags(worker, 1, FinisherType(first));
      FinisherFlags(worker, 2, FinisherType(second));
      EXPECT_EQ(texts[first], FinisherText(FinisherTypeOf(worker, 1)));
      EXPECT_EQ(texts[second], FinisherText(FinisherTypeOf(worker, 2)));
      EXPECT_EQ(first == 1, worker.Finisher1Submission);
      EXPECT_EQ(second == 2, worker.Finisher2TopRope);
      EXPECT_EQ(second == 3, worker.Finisher2Ground);
    }
}

TEST(TextConversions, TellRatingsWithTheirBlankAndDollars) {
  const struct {
    int Value;
    const char* Text;
  } ratings[] = {{0, "0.00"}, {9, "0. 09"}, {10, "0.10"}, {105, "1. 05"}, {250, "2.50"}};
  for (const auto& row : ratings) EXPECT_EQ(row.Text, RatingText(row.Value));
  const struct {
    long long Amount;
    const char* Text;
  } amounts[] = {
      {0, "$0"}, {999, "$999"}, {1284500, "$1,284,500"}, {-2147483648LL, "-$2,147,483,648"}};
  for (const auto& row : amounts) EXPECT_EQ(row.Text, Dollars(row.Amount));
}

TEST(News, IsDatedTodayAndDropsTheOldestOfAFullMailbox) {
  using std::chrono::year;
  World world = SmallWorld().Promotion("CWA").Game("CWA", year{2026} / 11 / 9);
  EXPECT_FALSE(HasNews(world));
  AddNews(world, "A sender of more than thirty letters", "x");
  EXPECT_TRUE(HasNews(world));
  EXPECT_EQ("A sender of more than thirty l", world.News()[1].From.View());
  EXPECT_EQ("09/11/26", world.News()[1].Date.View());
  std::vector<Mail> mails(20000);
  for (std::size_t i = 0; i < mails.size(); ++i) mails[i].From = std::to_string(i);
  world.News().Rewrite(mails);
  AddNews(world, "Last", "And no more.");
  ASSERT_EQ(19001, world.News().Count());
  EXPECT_EQ("1000", world.News()[1].From.View());
  EXPECT_EQ("19999", world.News()[19000].From.View());
  EXPECT_EQ("Last", world.News()[19001].From.View());
  world.GameInfos().Remove();
  EXPECT_THROW(AddNews(world, "Maeve", "Hello."), WorldFault);
}

// Which names are seen in a text, and where.

World NamedWorld() {
  return SmallWorld()
      .Promotion("CWA", kCult)
      .Worker("Bram Okafor")
      .Worker("Bram Okafor Jr.")
      .Worker("Okafor")
      .Worker("O'Neil Ray")
      .Worker("Dani Okonkwo-Pratt")
      .Worker("Pratt")
      .Worker("Ren\xE9 Bl\xE4tt")
      .Promotion("NEW", kSmall)
      .Worker("The")
      .Game("CWA");
}

Names Found(NameIndex& index, const World& world, std::string_view text) {
  Names names;
  for (const NameSpan& span : index.Find(world, text))
    names.emplace_back(text.substr(span.From, span.Length));
  return names;
}

TEST(NameIndex, FindsWholeNamesTheLongestFirst) {
  const struct {
    const char* Text;
    Names Expected;
  } kRows[] = {
      {"", {}},
      {"Nobody of note.", {}},
      {"Bram Okafor!", {"Bram Okafor"}},
      {"Bram Okafor's belt", {"Bram Okafor"}},
      {"'Bram Okafor'", {"Bram Okafor"}},
      {"Bram Okafor vs Bram Okafor", {"Bram Okafor", "Bram Okafor"}},
      // Names that contain each other.
      {"It is Bram Okafor Jr. again", {"Bram Okafor Jr."}},
      {"It is Bram Okafor Jr again", {"Bram Okafor"}},
      {"Dani Okonkwo-Pratt, Pratt", {"Dani Okonkwo-Pratt", "Pratt"}},
      // A piece of a word is not a name.
      {"XBram Okafor", {"Okafor"}},
      {"Pratt-Smith", {}},
      {"Ren\xE9 Bl\xE4tter", {}},
      {"Bl\xE4tt by Ren\xE9 Bl\xE4tt.", {"Ren\xE9 Bl\xE4tt"}},
      // As it is written.
      {"bram okafor", {}},
      {"the O'Neil Ray", {"O'Neil Ray"}},
      {"The O'Neil Rays", {"The"}},
      // Promotions, by name and initials.
      {"CWA Wrestling sues NEW.", {"CWA Wrestling", "NEW"}},
      {"CWAX, Cwa", {}},
  };
  World world = NamedWorld();
  NameIndex index;
  for (const auto& row : kRows) EXPECT_EQ(Found(index, world, row.Text), row.Expected) << row.Text;
}

TEST(NameIndex, FollowsRenamesNewcomersAndTheEndOfPromotions) {
  World world = NamedWorld();
  NameIndex index;
  const int rival = Named(world.Promotions(), "NEW").Uid;
  EXPECT_EQ(index.Find(world, "In NEW Wrestling"),
            (std::vector<NameSpan>{{3, 13, NameSpan::Kind::Promotion, rival}}));
  const std::string text = "Bram Okafor, Big Bram, Cal Drift, NEW";
  EXPECT_EQ(Found(index, world, text), Names({"Bram Okafor", "NEW"}));

  Worker& bram = Named(world.Workers(), "Bram Okafor");
  bram.Name = "Big Bram";
  EXPECT_EQ(Found(index, world, text), Names({"Okafor", "Big Bram", "NEW"}));

  Worker newcomer = bram;
  newcomer.Uid = 500;
  newcomer.Name = "Cal Drift";
  world.Workers().Append(newcomer);
  EXPECT_EQ(Found(index, world, text), Names({"Okafor", "Big Bram", "Cal Drift", "NEW"}));

  // The same name can be another's, as in the place of somebody retired.
  world.Workers()[world.Workers().Count()].Uid = 501;
  EXPECT_EQ(index.Find(world, "Cal Drift").at(0).Uid, 501);

  Named(world.Promotions(), "NEW").Name = kToBeDeleted;
  EXPECT_EQ(Found(index, world, text), Names({"Okafor", "Big Bram", "Cal Drift"}));
  EXPECT_EQ(Found(index, world, "To Be Deleted"), Names());
}

}  // namespace
}  // namespace grapplemont
