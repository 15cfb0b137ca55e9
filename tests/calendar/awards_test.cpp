#include "calendar/awards.h"

#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "records/fields/fields.h"
#include "storylines/lineages.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "words/segments.h"

namespace grapplemont::test {
namespace {

using std::chrono::days;

constexpr Day kNewYearsEve{std::chrono::year{2026} / 12 / 31};

/// Three men and two women of CWA, a rival's man, and one without a job; the year ends.
World House(const Change<Worker>& change = {}) {
  SmallWorld small;
  const auto worker = [&](const char* name, int over, bool man = true) {
    small.Worker(name, kMidcard, over, [&](Worker& w) {
      w.Gender = man;
      if (change) change(w);
    });
  };
  small.Promotion("NEW");
  worker("Nat Other", 70);
  small.Promotion("CWA");
  worker("Bram Okafor", 80);
  worker("Cal Drift", 60);
  worker("Dan Dale", 60);
  worker("Ilya Marsh", 50, false);
  worker("Joy Park", 50, false);
  small.Team("The Drifters", "Cal Drift", "Dan Dale")
      .Team("The Roses", "Ilya Marsh", "Joy Park")
      .Title("CWA Crown")
      .OnTheMarket();
  worker("Zed Free", 99);
  return small.Game("CWA", kNewYearsEve);
}

Worker& Who(World& world, std::string_view name) {
  return Named(world.Workers(), name);
}

std::string GivenFor(const World& world, int kind) {
  for (const YearAward& award : AwardsOfTheYear(world))
    if (award.Kind == kind) return award.Winner.Str() + " | " + award.For.Str();
  return "nobody";
}

HeldMatch& AddMatch(World& world, int daysBack, int rating, int winner = 2, int loser = 3) {
  HeldMatch match;
  match.On = kNewYearsEve - days{daysBack};
  match.Promotion = world.PlayerUid();
  match.Row = 1;
  match.Style = kSingles;
  match.MatchType = 1;
  match.Rating = rating;
  match.Winners = 1;
  match.Title = "None";
  match.Worker[0] = winner;
  match.Worker[1] = loser;
  match.Won = world.FindWorker(winner)->Name;
  match.Lost = world.FindWorker(loser)->Name;
  return world.Bouts().Append(match);
}

void AddFeudMatch(World& world, int daysBack, int rating, int one, int two) {
  HeldMatch& match = AddMatch(world, daysBack, rating, one, two);
  match.Feud[0] = std::min(one, two);
  match.Feud[1] = std::max(one, two);
}

HistoryEntry& AddPast(World& world, int kind, int daysBack, std::string_view name, int rating = 0,
                      int people = 0) {
  HistoryEntry entry;
  entry.On = kNewYearsEve - days{daysBack};
  entry.Kind = kind;
  entry.Promotion = world.PlayerUid();
  entry.Name = name;
  entry.Rating = rating;
  entry.Attendance = people;
  entry.Size = int(kRegional);
  return world.History().Append(entry);
}

TEST(TheWrestlerOfTheYear, IsWorthHisOverHisRiseAndHisTitles) {
  const struct {
    const char* What;
    std::function<void(World&)> Change;
    const char* Man;
  } rows[] = {
      {"Over alone", [](World&) {}, "Bram Okafor | Over 80"},
      {"a rise of 15 does not make up for 20", [](World& w) { Who(w, "Cal Drift").Over = 75; },
       "Cal Drift | Over 75, 15 more than a year ago"},
      {"a rise counts 20 at most",
       [](World& w) {
         w.YearEnds().Change(3).Over = 1;
         Who(w, "Bram Okafor").Over = 81;
       },
       "Bram Okafor | Over 81, 1 more than a year ago"},
      {"alike: the more popular", [](World& w) { w.YearEnds().Change(3).Over = 20; },
       "Bram Okafor | Over 80"},
      {"who works for nobody has no year", [](World& w) { Who(w, "Bram Okafor").Employer = 0; },
       "Nat Other | Over 70"},
      {"half a year with a Title of full renown",
       [](World& w) {
         Who(w, "Bram Okafor").Over = 69;
         Title& crown = Named(w.Titles(), "CWA Crown");
         crown.Holder = Who(w, "Cal Drift").Uid;
         crown.Image = 100;
         Who(w, "Cal Drift").Over = 62;
         crown.Reigns[0].Won = kNewYearsEve - days{182};
         crown.Reigns[0].Holder = "Cal Drift";
         UpdateReigns(w);
       },
       "Cal Drift | Over 62, 2 more than a year ago, 183 days with a Title"},
  };
  for (const auto& row : rows) {
    World world = House();
    NoteYearEnd(world);
    row.Change(world);
    EXPECT_EQ(GivenFor(world, kWrestlerOfTheYear), row.Man) << row.What;
  }
}

TEST(TheTagTeamOfTheYear, IsTwoOfOneHouseAndTheirTimeAsChampionsCounts) {
  World world = House();
  Named(world.Teams(), "The Drifters").Experience = 0;
  Named(world.Teams(), "The Roses").Experience = 50;
  EXPECT_EQ(GivenFor(world, kTeamOfTheYear), "The Drifters | Over 60 between them, experience 0")
      << "alike at 60: the more popular";
  TitleReign reign;
  reign.From = kNewYearsEve - days{500};
  reign.Until = kNewYearsEve - days{315};
  reign.Worker = Who(world, "Joy Park").Uid;
  reign.Partner = Who(world, "Ilya Marsh").Uid;
  reign.Holder = "The Roses";
  reign.End = kReignLost;
  world.Reigns().Append(reign);
  world.Reigns().Append(reign);
  world.Game().StartDate = reign.From;
  EXPECT_EQ(GivenFor(world, kTeamOfTheYear),
            "The Roses | Over 50 between them, experience 50, 49 days as champions")
      << "however many Titles they held at once";
  world.Game().StartDate = kNewYearsEve - days{335};
  EXPECT_EQ(GivenFor(world, kTeamOfTheYear),
            "The Roses | Over 50 between them, experience 50, 20 days as champions")
      << "as the hall counts them, from the day the game began";
  Who(world, "Joy Park").Employer = Named(world.Promotions(), "NEW").Uid;
  EXPECT_EQ(GivenFor(world, kTeamOfTheYear), "The Drifters | Over 60 between them, experience 0");
}

TEST(TheMatchOfTheYear, IsTheBestFromNewYearsDayToNewYearsEve) {
  World world = House();
  AddMatch(world, 365, 99);
  AddMatch(world, -1, 99);
  EXPECT_EQ(GivenFor(world, kMatchOfTheYear), "nobody") << "last year's and next year's";
  AddMatch(world, 0, 70);
  EXPECT_EQ(GivenFor(world, kMatchOfTheYear),
            "Bram Okafor beat Cal Drift | Rated 70% on 31 December 2026");
  AddMatch(world, 364, 70, 3, 2).IsEvent = true;
  EXPECT_EQ(GivenFor(world, kMatchOfTheYear),
            "Cal Drift beat Bram Okafor | Rated 70% on 01 January 2026");
  AddMatch(world, 150, 70, 4, 2).Title = "CWA Crown";
  HeldMatch& best = AddMatch(world, 100, 70, 5, 6);
  best.IsEvent = true;
  best.Title = "CWA Crown";
  AddPast(world, kPastEvent, 100, "Spring Bash", 60);
  EXPECT_EQ(GivenFor(world, kMatchOfTheYear),
            "Ilya Marsh beat Joy Park | Rated 70% at Spring Bash, 22 September 2026");
  AddMatch(world, 90, 71).Winners = 0;
  EXPECT_EQ(GivenFor(world, kMatchOfTheYear).substr(0, 27), "Bram Okafor drew with Cal D");
}

TEST(TheShowOfTheYear, IsTheBestThatWasHeld) {
  World world = House();
  AddPast(world, kPastEvent, 20, "Called Off", 90).CalledOff = true;
  AddPast(world, kPastMonth, 30, "CWA", 95);
  EXPECT_EQ(GivenFor(world, kShowOfTheYear), "nobody");
  AddPast(world, kPastTv, 60, "Friday Fire", 64, 900);
  AddPast(world, kPastTv, 53, "Friday Fire", 64, 1200);
  AddPast(world, kPastTv, 46, "Friday Fire", 64, 1200);
  EXPECT_EQ(GivenFor(world, kShowOfTheYear),
            "Friday Fire | Rated 64% on 08 November 2026, seen by 1,200 people");
}

TEST(TheFeudOfTheYear, IsTheBestByItsThreeBestMatches) {
  World world = House();
  AddFeudMatch(world, 50, 90, 2, 3);
  AddFeudMatch(world, 40, 90, 3, 2);
  AddFeudMatch(world, 366, 90, 2, 3);
  EXPECT_EQ(GivenFor(world, kFeudOfTheYear), "nobody") << "two matches make no year";
  for (const int rating : {50, 60, 70, 40}) AddFeudMatch(world, 30, rating, 5, 6);
  EXPECT_EQ(GivenFor(world, kFeudOfTheYear),
            "Ilya Marsh vs Joy Park | 4 matches, the best rated 70%");
  AddFeudMatch(world, 10, 30, 2, 3);
  EXPECT_EQ(GivenFor(world, kFeudOfTheYear),
            "Bram Okafor vs Cal Drift | 3 matches, the best rated 90%");
}

TEST(TheFeudOfTheYear, IsStillBetweenPairsWhenOneOfThemHasLeftTheWorld) {
  World world = House();
  for (const int rating : {50, 60, 70}) {
    AddFeudMatch(world, 30, rating, 2, 3);
    world.Bouts().Change(world.Bouts().Count()).Feud = {Word(2), Word(3), Word(0), Word(6)};
  }
  const std::string pair = GivenFor(world, kFeudOfTheYear);
  EXPECT_NE(pair.find(" vs Joy Park | 3 matches, the best rated 70%"), pair.npos) << pair;
  for (HeldMatch& bout : world.Bouts().Any()) bout.Feud = {Word(0), Word(3), Word(0), Word(6)};
  EXPECT_EQ(GivenFor(world, kFeudOfTheYear),
            "Cal Drift vs Joy Park | 3 matches, the best rated 70%");
  for (HeldMatch& bout : world.Bouts().Any()) bout.Feud = {Word(0), Word(3), Word(0), Word(0)};
  EXPECT_EQ(GivenFor(world, kFeudOfTheYear), "nobody") << "one side is not a feud";
}

TEST(ThePromotionOfTheYear, HasRisenTheMost) {
  World world = House();
  const auto month = [&](const char* initials, int daysBack, int image) {
    HistoryEntry& entry = AddPast(world, kPastMonth, daysBack, initials);
    const Promotion& promotion = Named(world.Promotions(), initials);
    entry.Promotion = promotion.Uid;
    entry.Size = int(promotion.Size);
    entry.Image = image;
  };
  Named(world.Promotions(), "CWA").Image = 50;
  Named(world.Promotions(), "NEW").Image = 40;
  month("CWA", 400, 1);
  EXPECT_EQ(GivenFor(world, kPromotionOfTheYear), "nobody") << "no month of this year";
  month("CWA", 300, 50);
  EXPECT_EQ(GivenFor(world, kPromotionOfTheYear), "nobody") << "nobody has risen";
  month("NEW", 300, 38);
  month("NEW", 30, 60);
  EXPECT_EQ(GivenFor(world, kPromotionOfTheYear).substr(0, 4),
            Named(world.Promotions(), "NEW").Name.Str().substr(0, 4));
  Named(world.Promotions(), "CWA").Image = 53;
  EXPECT_EQ(GivenFor(world, kPromotionOfTheYear).substr(0, 4),
            Named(world.Promotions(), "CWA").Name.Str().substr(0, 4));
}

TEST(NewFaces, AreKnownByTheLastYearsEnd) {
  World world = House();
  EXPECT_EQ(GivenFor(world, kRookieOfTheYear), "nobody") << "nobody knows who was there";
  NoteYearEnd(world);
  EXPECT_EQ(GivenFor(world, kRookieOfTheYear), "nobody");
  world.YearEnds().Keep([&](const YearEnd& row) {
    return row.Worker != Who(world, "Cal Drift").Uid && row.Worker != Who(world, "Joy Park").Uid &&
           row.Worker != Who(world, "Zed Free").Uid;
  });
  EXPECT_EQ(GivenFor(world, kRookieOfTheYear), "Cal Drift | Over 60");
  EXPECT_EQ(GivenFor(world, kMostImproved), "nobody") << "they were not there a year ago";
  Who(world, "Ilya Marsh").Over = 54;
  EXPECT_EQ(GivenFor(world, kMostImproved), "nobody") << "4 points are not much";
  Who(world, "Ilya Marsh").Over = 55;
  Who(world, "Dan Dale").Over = 65;
  EXPECT_EQ(GivenFor(world, kMostImproved), "Dan Dale | Over 65, 5 more than a year ago")
      << "alike: the more popular";
}

TEST(NewYearsEve, GivesTheAwardsOnceBehindItsShowAndNotesHowAllStand) {
  World world = House();
  world.SetChance(std::make_unique<SeededDraws>(3));
  NoteYearEnd(world);
  Who(world, "Cal Drift").Over = 70;
  AddMatch(world, 0, 77);
  AdvanceDay(world, false);
  ASSERT_EQ(world.Today(), kNewYearsEve + days{1});
  const int given = world.Awards().Count();
  EXPECT_EQ(given, 5) << "man, woman, team, match, most improved";
  const std::string news = NewsOf(world);
  EXPECT_NE(news.find("Year's Awards: Wrestler of the Year: "), std::string::npos) << news;
  EXPECT_NE(news.find("Match of the Year: Bram Okafor beat Cal Drift. Rated 77% on 31 December "
                      "2026."),
            std::string::npos)
      << news;
  EXPECT_EQ(world.YearEnds()[3].Over, 70);
  // A game of an earlier version has its awards by the morning of the last day.
  world.Game().Today = kNewYearsEve;
  GiveAwards(world);
  EXPECT_EQ(world.Awards().Count(), given);
  world.Game().Today = kNewYearsEve + days{1};
  for (int day = 0; day < 5; ++day) AdvanceDay(world, false);
  EXPECT_EQ(world.Awards().Count(), given);
  ExpectSound(world);
}

TEST(NewYearsEve, OutlivesAnythingThatTheFilesMayHold) {
  World world = House();
  HeldMatch match;
  match.On = kNewYearsEve - days{3};
  match.Winners = -5;
  match.Rating.Set(80);
  match.Feud = {Word(31000), Word(-9), Word(0), Word(4)};
  match.Worker[0] = -1;
  for (int i = 0; i < 4; ++i) world.Bouts().Append(match);
  TitleReign reign;
  reign.From.SetRaw(-1e300);
  reign.Until.SetRaw(1e300);
  reign.Worker = 2;
  reign.Partner = 3;
  world.Reigns().Append(reign);
  reign.End = 55;
  world.Reigns().Append(reign);
  YearEnd row;
  row.Worker = -3;
  world.YearEnds().Append(row);
  GiveAwards(world);
  EXPECT_GT(world.Awards().Count(), 0);
}

}  // namespace
}  // namespace grapplemont::test
