#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <utility>

#include "calendar/advanceday.h"
#include "halls/recordbook.h"
#include "halls/yearbook.h"
#include "pastworld.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "records/store/table.h"
#include "storylines/lineages.h"
#include "storylines/titles.h"
#include "support/gameonworld.h"
#include "support/thrown.h"

// What a month, a year, a promotion or a version leaves to the next one is counted once, and for
// whom it was.

namespace grapplemont::test {
namespace {

using std::chrono::days;
using std::chrono::year;
using Names = std::vector<std::string>;

Names PlacesIn(const Ledger& past, std::string_view table, const HouseKey& house = {}) {
  Names names;
  const RecordBook book(past, house);
  for (const RecordTable& one : RecordTables())
    if (one.Name == table)
      for (const RecordLine& line : one.Lines(book)) names.push_back(line.Who + ": " + line.Shown);
  return names;
}

TEST(Ledger, CountsAReignFromTheLastDayOfItsMonth) {
  World world = House();
  UpdateReigns(world);
  Wait(world, 30);  // 31 March
  Crown(world, world.Titles()[1], UidIn(world, "Ned Third"), 0);
  AdvanceDay(world, false);
  Wait(world, 4);
  const Ledger past = PastOf(world);
  const std::vector<Life> lives = LivesOf(past);
  EXPECT_EQ(LifeIn(lives, "Ned Third").Reigns, 1);
  EXPECT_EQ(LifeIn(lives, "Ned Third").Days, 5);
  EXPECT_EQ(LifeIn(lives, "Nat Other").Days, 30);
}

TEST(Ledger, KeepsAPromotionApartFromOneThatTakesItsUid) {
  World world = House();
  for (int day = 0; day < 20; ++day) AddCard(world, day, {"Nat Other", "Ned Third"}, 1, 90);
  Wait(world, 31);
  CountThePast(world);
  Promotion fresh = Named(world.Promotions(), "NEW");
  const HouseKey closed{fresh.Uid, "NEW"}, heir{fresh.Uid, "FRESH"};
  Named(world.Promotions(), "NEW").Name = kToBeDeleted;
  SweepDeadPromotions(world);
  fresh.Name = "Fresh Air";
  fresh.Initials = heir.Initials;
  world.Promotions().Append(fresh);
  for (const char* name : {"Nat Other", "Ned Third"})
    world.FindWorker(UidIn(world, name))->Employer = heir.Uid;
  AddCard(world, 31, {"Ned Third", "Nat Other"}, 1, 40);
  Wait(world, 30);
  CountThePast(world);
  Ledger past = PastOf(world);
  EXPECT_EQ(PlacesIn(past, "Best matches", heir), Names{"Ned Third vs Nat Other: 40%"});
  EXPECT_EQ(PlacesIn(past, "Most wins", closed), Names{"Nat Other: 20"});
  EXPECT_EQ(PlacesIn(past, "Most wins", heir), Names{"Ned Third: 1"});
  std::string houses;
  for (const HouseOfRecords& house : HousesOf(past))
    houses += house.Key.Initials + (house.Stands ? ", " : " closed, ");
  EXPECT_EQ(houses, "CWA, FRESH, NEW closed, ");
  past.Prune();
  EXPECT_EQ(std::ranges::count(past.Feats, std::string_view("NEW"),
                               [](const Feat& feat) { return feat.Initials.View(); }),
            3);
}

TEST(Ledger, CountsTheShowsOfAPromotionThatThePlayerHasTakenOver) {
  World world = House();
  const Promotion& rival = Named(world.Promotions(), "NEW");
  NoteShow(world, kDeedEventHeld, rival, "NEW Rumpus", 60, 12, 4321);
  world.Game().PlayerPromotion = rival.Uid;
  Wait(world, 31);
  EXPECT_EQ(PlacesIn(PastOf(world), "Biggest gates"), Names{"NEW Rumpus: 4,321"});
}

/// A game of two years that nobody has counted.
World OldSlot() {
  World world = House();
  UpdateReigns(world);
  Wait(world, 9);
  Crown(world, world.Titles()[1], UidIn(world, "Ned Third"), 0);
  UpdateReigns(world);
  world.Game().Today = Day{year{2028} / 5 / 1};
  Worker& ned = *world.FindWorker(UidIn(world, "Ned Third"));
  ned.Age = 21;
  ned.BirthMonth = 12;
  return world;
}

TEST(AnOldSlot, InventsNoAgesAndNoFirstDays) {
  World world = OldSlot();
  CountThePast(world);
  const Ledger past = PastOf(world);
  EXPECT_EQ(Day(past.State.Since), world.Today());
  EXPECT_EQ(past.KnownFrom(), kGameStart) << "who was champion then";
  const std::vector<Life> lives = LivesOf(past);
  EXPECT_EQ(Day(LifeIn(lives, "Ned Third").Of->First), kGameStart + days{9});
  EXPECT_EQ(Day(LifeIn(lives, "Cal Drift").Of->First), world.Today());
  EXPECT_EQ(PlacesIn(past, "Youngest champions"), Names{"Ned Third: 19 years, 2 months"});
  GameOnWorld play(CopyOf(world));
  play.Desk.Open("frmRecords");
  EXPECT_TRUE(
      play.Desk.Text("lblfacts")
          .starts_with("Counted since 01 May 2028; of before that, what was still known then. "));
}

TEST(AnOldSlot, HasFiveBestMatchesInEachYear) {
  World world = OldSlot();
  for (int i = 0; i < 6; ++i) AddCard(world, 400 + i, {"Nat Other", "Ned Third"}, 1, 70 + i);
  for (const int on : {20, 401, 402, 403, 404, 405, 406, 30}) {
    HeldMatch match{};
    match.On = kGameStart + days{on};
    match.Promotion = world.PlayerUid();
    match.Title = "None";
    match.Rating = on > 400 ? on - 330 : 50;
    world.Bouts().Append(match);
  }
  CountThePast(world);
  std::map<int, Names> years;
  for (const YearLine& line : world.Of<YearLine>())
    if (line.Kind == kYearMatch) years[line.Year].push_back(std::to_string(line.Number));
  for (auto& [on, ratings] : years) std::ranges::sort(ratings);
  EXPECT_EQ(years,
            (std::map<int, Names>{{2026, {"50", "50"}}, {2027, {"74", "74", "75", "75", "76"}}}));
}

TEST(Ledger, BeginsAgainWhereItsStateIsLostAndRefusesANewerOne) {
  World world = House();
  UpdateReigns(world);
  AddCard(world, 1, {"Nat Other", "Ned Third"}, 1, 60);
  Wait(world, 31);
  CountThePast(world);
  HallMember& member = world.Of<HallMember>().Append({});
  member.On = world.Today();
  member.Career = 7;
  member.Name = "Nat Other";
  world.Of<TotalsState>().Rewrite({});
  Wait(world, 30);
  CountThePast(world);
  const Ledger past = PastOf(world);
  EXPECT_EQ(PlacesIn(past, "Most wins"), Names{"Nat Other: 1"});
  EXPECT_EQ(PlacesIn(past, "Most days as champion"), (Names{"Nat Other: 61", "Bram Okafor: 61"}));
  EXPECT_EQ(past.Careers.front().Number, 8) << "a number is never given twice";
  for (const Nominee& nominee : NomineesOf(past, 20))
    EXPECT_NE(nominee.Of.Of->Name, "Nat Other") << "is in the hall";

  GameOnWorld play(std::move(world));
  play.World().Of<TotalsState>()[1].Version = kTotalsVersion + 1;
  play.Play.Commit();
  EXPECT_NE(ThrownBy<WorldFault>([&] { play.Play.OpenSlot(1); }).find("newer version of the game"),
            std::string::npos);
}

TEST(Ledger, KnowsATitleAndAFeudByTheirNewNames) {
  World world = House();
  UpdateReigns(world);
  Title& crown = world.Titles()[2];
  HeldMatch match{};
  match.On = kGameStart + days{2};
  match.Promotion = world.PlayerUid();
  match.Title = crown.Name;
  match.Winners = 1;
  match.Worker[0] = UidIn(world, "Bram Okafor");
  match.Worker[1] = UidIn(world, "Dan Dale");
  world.Bouts().Append(match);
  Grudge grudge{};
  grudge.Since = kGameStart;
  grudge.Promotion = int(world.Titles()[1].Owner);
  grudge.One = UidIn(world, "Nat Other");
  grudge.Two = UidIn(world, "Ned Third");
  world.Grudges().Append(grudge);
  Wait(world, 20);
  RenameTitle(world, 2, "CWA Sceptre");
  Wait(world, 11);
  CountThePast(world);
  world.FindWorker(grudge.Two)->Name = "Kid Third";
  Wait(world, 30);
  CountThePast(world);
  const Ledger past = PastOf(world);
  EXPECT_EQ(PlacesIn(past, "Most defences"), Names{"Bram Okafor: 1"});
  EXPECT_EQ(PlacesIn(past, "Longest feuds"), Names{"Nat Other vs Kid Third: 61"});
}

TEST(Records, OfAPromotionRankWholeCareersOfWhoWasThere) {
  World world = House();
  Ledger ledger(world);
  MakeCareer(ledger, world, "Cal Drift", 1);
  MakeCareer(ledger, world, "Nat Other", 2);
  ledger.Tenures.back().Initials = "NEW";
  ledger.Tenures.push_back(ledger.Tenures[0]);
  ledger.Tenures.back().Promotion = int(world.Titles()[1].Owner);
  ledger.Tenures.back().Initials = "NEW";
  ledger.Keep(world);
  const Ledger past(world);
  EXPECT_EQ(PlacesIn(past, "All-time ranking", past.HouseOf(world.PlayerUid())),
            Names{"Cal Drift: 14"})
      << "ten years, five of them elsewhere, and an award";
}

TEST(Records, KnowChampionsFromBeforeTheCounting) {
  World world = House();
  UpdateReigns(world);
  for (int i = 0; i < kFewestMatches; ++i) AddCard(world, i, {"Nat Other", "Ned Third"}, 1, 60);
  Wait(world, 31);
  CountThePast(world);
  EXPECT_EQ(PlacesIn(PastOf(world), "Best never to hold a Title"), Names{"Ned Third: 50%"});
  TitleReign before = std::as_const(world.Reigns())[1];
  before.Worker = UidIn(world, "Ned Third");
  before.End = kReignLost;
  world.Reigns().Append(before);
  EXPECT_EQ(PlacesIn(PastOf(world), "Best never to hold a Title"), Names{});
}

TEST(Yearbook, KeepsItsChampionsWhenTheirReignsHaveGone) {
  World world = House();
  UpdateReigns(world);
  Wait(world, 305);  // 31 December
  Crown(world, world.Titles()[1], UidIn(world, "Ned Third"), 0);
  CloseTheYear(world);  // behind the night that crowned them
  world.Reigns().Rewrite({});
  world.Game().Today = Day{year{2027} / 6 / 1};
  const auto page = PageOfYear(PastOf(world), 2026);
  const auto champions = std::ranges::find(page, "Champions at the end", &YearSection::Title);
  ASSERT_NE(champions, page.end());
  const auto row = std::ranges::find(champions->Rows, "Ned Third", &YearRow::Who);
  ASSERT_NE(row, champions->Rows.end());
  EXPECT_EQ(row->Figure, "1 day");
  EXPECT_EQ(row->What, "NEW Crown (NEW)");
  EXPECT_EQ(row->Uid, UidIn(world, "Ned Third"));
}

TEST(Ledger, MakesRoomBeforeAFileIsFull) {
  World world = House();
  CountThePast(world);
  Ledger past(world);
  const auto limit = [](const auto& file) {
    return static_cast<std::size_t>(file.Layout()->Limit);
  };
  past.Lines.clear();
  for (std::size_t i = 0; i <= limit(world.Of<YearLine>()); ++i)
    past.Lines.push_back(past.NewLine(kYearRisen, 1900 + static_cast<int>(i / 400), 1, 1, "Some"));
  past.Tenures.resize(limit(world.Of<Tenure>()) + 1, past.Tenures.front());
  past.Pairs.resize(limit(world.Of<Partnership>()) + 1);
  const int latest = past.Lines.back().Year;
  past.Keep(world);
  EXPECT_LT(world.Of<YearLine>().Count(), world.Of<YearLine>().Layout()->Limit);
  EXPECT_EQ(world.Of<YearLine>()[world.Of<YearLine>().Count()].Year, latest);
  EXPECT_LT(world.Of<Tenure>().Count(), world.Of<Tenure>().Layout()->Limit);
  EXPECT_LT(world.Of<Partnership>().Count(), world.Of<Partnership>().Layout()->Limit);
}

TEST(Ledger, TouchesWhatHasChangedAndNothingElse) {
  World world = House();
  UpdateReigns(world);
  AddCard(world, 1, {"Dan Dale", "Cal Drift", "Bram Okafor", "Ilya Marsh"}, 2, 60);
  Wait(world, 31);
  CountThePast(world);
  const auto moves = [&] {
    return std::vector<unsigned>{world.Of<Career>().Moves(), world.Of<Tenure>().Moves(),
                                 world.Of<Partnership>().Moves(), world.Of<Feat>().Moves(),
                                 world.Of<YearLine>().Moves()};
  };
  const std::vector<unsigned> before = moves();
  world.MarkCommitted();
  AddCard(world, 32, {"Nat Other", "Ned Third"}, 1, 61);
  Wait(world, 30);
  CountThePast(world);
  EXPECT_EQ(moves(), before);
  EXPECT_FALSE(world.Of<Partnership>().Changed());
  EXPECT_EQ(LifeIn(LivesOf(PastOf(world)), "Nat Other").Won, 1);
}

}  // namespace
}  // namespace grapplemont::test
