#include "halls/ledger.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>

#include "halls/hall.h"
#include "halls/recordbook.h"
#include "halls/trees.h"
#include "halls/yearbook.h"
#include "pastworld.h"
#include "records/fields/fields.h"
#include "records/severing.h"
#include "storylines/lineages.h"
#include "storylines/titles.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::days;

TEST(Ledger, CountsWhatHappenedOnceHoweverOftenItIsKept) {
  World world = House();
  UpdateReigns(world);
  AddCard(world, 1, {"Nat Other", "Ned Third"}, 1, 91, "NEW Crown");
  AddCard(world, 2, {"Ned Third", "Nat Other"}, 1, 60);
  AddCard(world, 3, {"Nat Other", "Ned Third"}, 0, 60);
  Wait(world, 31);  // 1 April
  CountThePast(world);
  CountThePast(world);
  const Ledger past = PastOf(world);
  const std::vector<Life> lives = LivesOf(past);
  const Life& nat = LifeIn(lives, "Nat Other");
  EXPECT_EQ(nat.Won, 1);
  EXPECT_EQ(nat.Lost, 1);
  EXPECT_EQ(nat.Drawn, 1);
  EXPECT_EQ(nat.ForTitles, 1);
  EXPECT_EQ(nat.Defences, 1);
  EXPECT_EQ(nat.MainEvents, 3);
  EXPECT_EQ(nat.Rough, 3);
  EXPECT_EQ(nat.Best, 91);
  EXPECT_EQ(nat.Ratings, 211);
  EXPECT_EQ(nat.Wage, 40);
  EXPECT_EQ(nat.Of->Great, 1);
  EXPECT_EQ(nat.Of->Streak, 0) << "a draw ends it";
  EXPECT_EQ(nat.Of->MostWins, 1);
  EXPECT_EQ(nat.Of->MostLosses, 1);
  EXPECT_EQ(nat.Days, 31) << "of a reign that began before the game";
  EXPECT_EQ(nat.Reigns, 0);
  EXPECT_EQ(nat.Of->Renown, 31 * 50);
  EXPECT_EQ(nat.Of->Top, 2) << "each month that is counted";
  EXPECT_EQ(LifeIn(lives, "Cal Drift").Of->Hurt, 2);
  EXPECT_EQ(LifeIn(LivesOf(past, past.HouseOf(world.PlayerUid())), "Nat Other").Matches(), 0)
      << "nothing of another promotion's";
  EXPECT_EQ(past.Feats.size(), 3u);
}

TEST(Ledger, AddsWhatHasHappenedSinceToWhatIsKept) {
  World world = House();
  UpdateReigns(world);
  AddCard(world, 1, {"Nat Other", "Ned Third"}, 1, 60);
  Wait(world, 31);
  CountThePast(world);
  AddCard(world, 31, {"Nat Other", "Ned Third"}, 1, 70);
  EXPECT_EQ(LifeIn(LivesOf(PastOf(world)), "Nat Other").Won, 1) << "today is not over";
  Wait(world, 1);
  EXPECT_EQ(LifeIn(LivesOf(PastOf(world)), "Nat Other").Won, 2);
  EXPECT_EQ(LifeIn(LivesOf(Ledger(world)), "Nat Other").Won, 1) << "the files stay as they are";
}

TEST(Ledger, CountsReignsOfBothAndTheAgesTheyBeganAt) {
  World world = House();
  UpdateReigns(world);
  Worker& ned = *world.FindWorker(UidIn(world, "Ned Third"));
  ned.Age = 19;
  ned.BirthMonth = 12;  // three months ago, and kept on the first of January
  Wait(world, 9);
  Crown(world, world.Titles()[1], ned.Uid, 0);
  UpdateReigns(world);
  Wait(world, 20);
  const Ledger past = PastOf(world);
  const std::vector<Life> lives = LivesOf(past);
  EXPECT_EQ(LifeIn(lives, "Ned Third").Reigns, 1);
  EXPECT_EQ(LifeIn(lives, "Ned Third").Days, 20);
  EXPECT_EQ(LifeIn(lives, "Nat Other").Days, 9);
  ASSERT_EQ(past.Feats.size(), 2u) << "youngest and oldest";
  EXPECT_EQ(past.Feats[0].Number, 19 * 12 + 2);
  TitleReign second = world.Reigns()[world.Reigns().Count()];
  second.Title = "NEW Belt";
  second.From = Day(second.From) + days{5};
  world.Reigns().Append(second);
  EXPECT_EQ(LifeIn(LivesOf(PastOf(world)), "Ned Third").Days, 20) << "a day with two is one day";
}

TEST(Ledger, KeepsPairsAndTheirTrees) {
  World world = House();
  AddCard(world, 1, {"Dan Dale", "Cal Drift", "Bram Okafor", "Ilya Marsh"}, 2, 60);
  AddCard(world, 2, {"Bram Okafor", "Dan Dale", "Ilya Marsh", "Cal Drift"}, 2, 60);
  Wait(world, 31);
  CountThePast(world);
  const Ledger past = PastOf(world);
  ASSERT_EQ(past.Pairs.size(), 4u);
  EXPECT_EQ(past.Pairs[0].Team, "The Drifters");
  EXPECT_EQ(past.Pairs[0].Won, 1);
  EXPECT_EQ(past.Pairs[1].Lost, 1);
  EXPECT_EQ(PartnersIn(past).front()->Name, "Bram Okafor");
  const int dan =
      past.Careers[static_cast<std::size_t>(past.PlaceOfUid(UidIn(world, "Dan Dale")))].Number;
  std::vector<std::pair<int, int>> tree;  // depth and day
  for (const TreePair& pair : TeamTreeOf(past, dan))
    tree.emplace_back(pair.Depth, DayOfMonth(pair.Pair->First));
  EXPECT_EQ(tree, (std::vector<std::pair<int, int>>{{0, 2}, {1, 3}, {0, 3}, {1, 2}}))
      << "each partner, and behind them their others";
}

TEST(Ledger, KeepsWhoHasGoneApartFromWhoTakesTheirUid) {
  World world = House();
  AddCard(world, 1, {"Nat Other", "Ned Third"}, 1, 60);
  Wait(world, 31);
  CountThePast(world);
  Worker& ned = *world.FindWorker(UidIn(world, "Ned Third"));
  SeverWorker(world, ned);
  ForgetWorker(world, ned);
  ned.Name = "Rex New";
  ned.Employer = world.PlayerUid();
  Wait(world, 30);
  CountThePast(world);
  const Ledger past = PastOf(world);
  const std::vector<Life> lives = LivesOf(past);
  const Life &gone = LifeIn(lives, "Ned Third"), &fresh = LifeIn(lives, "Rex New");
  EXPECT_EQ(gone.Of->Worker, 0);
  EXPECT_EQ(Day(gone.Of->Last), kGameStart + days{31});
  EXPECT_EQ(gone.Lost, 1);
  EXPECT_EQ(fresh.Matches(), 0);
  EXPECT_NE(fresh.Of->Number, gone.Of->Number);
}

TEST(Ledger, KeepsTheBestFeatsOfEachPromotion) {
  World world = House();
  for (int i = 0; i < 20; ++i) AddCard(world, i, {"Nat Other", "Ned Third"}, 1, 40 + i);
  Wait(world, 31);
  const Ledger past = PastOf(world);
  ASSERT_EQ(past.Feats.size(), 15u);
  int least = 100;
  for (const Feat& feat : past.Feats) least = std::min<int>(least, feat.Number);
  EXPECT_EQ(least, 45);
  std::vector<int> ofYear;
  for (const YearLine& line : past.Lines) ofYear.push_back(line.Number);
  std::ranges::sort(ofYear);
  EXPECT_EQ(ofYear, (std::vector<int>{55, 56, 57, 58, 59}));
}

TEST(Records, StandInTablesThatAreFullAndNamedOnce) {
  World world = House();
  UpdateReigns(world);
  AddCard(world, 1, {"Nat Other", "Ned Third"}, 1, 91, "NEW Crown");
  Wait(world, 31);
  CountThePast(world);
  const Ledger past = PastOf(world);
  const RecordBook book(past, {}), own(past, past.HouseOf(world.PlayerUid()));
  EXPECT_GE(RecordTables().size(), 25u);
  std::set<std::string> names;
  int filled = 0;
  for (const RecordTable& table : RecordTables()) {
    EXPECT_TRUE(names.insert(table.Name).second) << table.Name;
    const std::vector<RecordLine> lines = table.Lines(book);
    filled += !lines.empty();
    EXPECT_TRUE(std::ranges::is_sorted(lines, std::greater{}, &RecordLine::Figure)) << table.Name;
    if (std::string_view(table.Name) != "Most wins") continue;
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].Who, "Nat Other");
    EXPECT_EQ(lines[0].More, "1 won, 0 lost, 0 drawn");
    EXPECT_TRUE(table.Lines(own).empty()) << "nobody has won for CWA";
  }
  EXPECT_GT(filled, 10);
  EXPECT_EQ(HousesOf(past).size(), 2u);
}

// The hall.

TEST(Hall, ElectsTheBestWhoAreOldEnoughAndNobodyInThinYears) {
  World world = House();
  for (Worker& worker : world.Workers()) worker.Age = kHallAge;
  world.FindWorker(UidIn(world, "Dan Dale"))->Age = kHallAge - 1;
  const int enough = (kHallBar - kHallYears + 3) / 4;
  Ledger ledger(world);
  MakeCareer(ledger, world, "Bram Okafor", enough);
  MakeCareer(ledger, world, "Cal Drift", enough - 1);
  MakeCareer(ledger, world, "Dan Dale", enough + 9);
  MakeCareer(ledger, world, "Ilya Marsh", enough + 1);
  MakeCareer(ledger, world, "Nat Other", enough + 2);
  ledger.Keep(world);
  const auto elected = [&] {
    Ledger past(world);
    VoteHall(world, past);
    past.Keep(world);
    std::string names;
    for (const HallMember* member : HallOf(world)) names += member->Name + ", ";
    return names;
  };
  EXPECT_EQ(elected(), "Ilya Marsh, Nat Other, ") << "two a year, the latest first";
  EXPECT_EQ(elected(), "Bram Okafor, Ilya Marsh, Nat Other, ");
  EXPECT_EQ(elected(), "Bram Okafor, Ilya Marsh, Nat Other, ") << "a thin year";
  const Ledger past(world);
  const std::vector<Nominee> next = NomineesOf(past, 2);
  ASSERT_EQ(next.size(), 2u);
  EXPECT_EQ(next[0].WhyNot, "Still wrestles, and is 39.");
  EXPECT_EQ(next[1].Of.Of->Name, "Cal Drift");
  EXPECT_EQ(next[1].WhyNot.substr(0, 6), "Lacks ");
  const HallMember& nat = world.Of<HallMember>()[1];
  EXPECT_EQ(PointsOf(nat), kHallYears + 4 * (enough + 2));
  EXPECT_EQ(MeritLines(nat).front(), "Other awards: " + std::to_string(enough + 2) + " (" +
                                         std::to_string(4 * (enough + 2)) + " points)");
  EXPECT_EQ(world.News().Count(), 3);
}

TEST(Yearbook, TellsOfTheYearWhenItIsOver) {
  World world = House();
  UpdateReigns(world);
  for (const Worker& worker : world.Workers()) {
    YearEnd& row = world.YearEnds().Append({});
    row.Worker = worker.Uid;
    row.Over = int(worker.Over);
  }
  AddCard(world, 1, {"Nat Other", "Ned Third"}, 1, 91, "NEW Crown");
  Wait(world, 31);
  CountThePast(world);
  world.FindWorker(UidIn(world, "Ned Third"))->Over = 70;
  world.FindWorker(UidIn(world, "Ilya Marsh"))->Over = 30;
  SeverWorker(world, *world.FindWorker(UidIn(world, "Dan Dale")));
  Wait(world, 274);  // 31 December
  const auto told = [&] {
    std::string text;
    for (const YearSection& section : PageOfYear(PastOf(world), 2026)) {
      text += section.Title + ":";
      for (const YearRow& row : section.Rows)
        text += " " + row.Who + "/" + row.Figure + "/" + row.What;
      text += "\n";
    }
    return text;
  };
  std::string before = told();
  const std::string now = "Champions now:";
  ASSERT_NE(before.find(now), std::string::npos);
  before.replace(before.find(now), now.size(), "Champions at the end:");
  CloseTheYear(world);
  EXPECT_EQ(told(), before) << "the running year is told as it will be written";
  EXPECT_EQ(before,
            "Your promotion: CWA Wrestling/Regional/Image 50%, $2,000,000\n"
            "Champions at the end: Nat Other/From before the game/NEW Crown (NEW) "
            "Bram Okafor/From before the game/CWA Crown (CWA)\n"
            "Best matches: Nat Other beat Ned Third/91%/NEW, 02 March 2026, for the NEW Crown\n"
            "Biggest rises: Ned Third/+20%/Over 70, NEW\n"
            "Biggest falls: Ilya Marsh/-25%/Over 30, CWA\n"
            "Who went: Dan Dale/Over 60/\n"
            "How the others stand: NEW Wrestling/Regional/Image 50%, $2,000,000\n");
  EXPECT_EQ(YearsOfBook(PastOf(world)), std::vector<int>{2026});
  for (const auto& [isOver, words] : {std::pair(true, "CWA Wrestling was Regional when it ended. "),
                                      {false, "CWA Wrestling is Regional. "}}) {
    const std::string story = StoryOfYear(PageOfYear(PastOf(world), 2026), 2026, isOver);
    EXPECT_TRUE(story.starts_with(words)) << story;
    EXPECT_NE(story.find("rated 91%: Nat Other"), std::string::npos);
  }
}

TEST(TreeOfATitle, NumbersReignsAndSaysWhoTheyWereTakenFrom) {
  World world = House();
  UpdateReigns(world);
  Title& crown = world.Titles()[1];
  const auto crowned = [&](const char* name) {
    Wait(world, 5);
    Crown(world, crown, UidIn(world, name), 0);
    UpdateReigns(world);
  };
  crowned("Ned Third");
  crowned("Nat Other");
  Wait(world, 1);
  VacateTitle(world, crown);
  UpdateReigns(world);
  crowned("Ned Third");
  std::string told;
  for (const TreeReign& tree : TreeOf(world, {"NEW Crown", crown.Owner, "NEW", true}))
    told += std::to_string(tree.Number) + " " + tree.Reign->Holder.Str() + " " +
            std::to_string(tree.OfTheirs) + " <" + tree.TakenFrom + ">; ";
  EXPECT_EQ(told,
            "1 Nat Other 1 <>; 2 Ned Third 1 <Nat Other>; 3 Nat Other 2 <Ned Third>; "
            "0 Vacant 0 <Nat Other>; 4 Ned Third 2 <>; ");
  world.Reigns().Erase(4);  // one that the full file has dropped
  EXPECT_EQ(TreeOf(world, {"NEW Crown", crown.Owner, "NEW", true})[2].TakenFrom, "")
      << "nobody knows";
}

}  // namespace
}  // namespace grapplemont::test
