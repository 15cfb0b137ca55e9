#include "show/holdshow.h"

#include <gtest/gtest.h>

#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

SmallWorld Promoter(int size = kRegional, int production = 100) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", size, [&](Promotion& p) { p.Production = production; });
  return small;
}

Segment Match(const World& world, const char* one, const char* two) {
  Segment match = EmptySegment();
  match.Kind = kMatch;
  match.Style = kSingles;
  match.MatchType = kPlainSingles;
  match.Worker[0] = Named(world.Workers(), one).Uid;
  match.Worker[1] = Named(world.Workers(), two).Uid;
  match.Winner = match.Worker[0];
  match.Loser = match.Worker[1];
  match.Finish = kClean;
  return match;
}

Segment Angle(const World& world, int number, const char* one, const char* text = "None") {
  Segment angle = EmptySegment();
  angle.Kind = kAngle;
  angle.Style = number;
  angle.Worker[0] = Named(world.Workers(), one).Uid;
  angle.Text = text;
  return angle;
}

/// A show under way with this sum of ratings behind it.
ShowRun& Under(World& world, bool isEvent, int sum, int segments, int lastOverall) {
  ShowRun run;
  run.Stage = kShowRuns;
  run.IsEvent = isEvent;
  run.ShowSum = sum;
  run.ShowSegments = segments;
  run.LastOverall = lastOverall;
  world.ShowRuns().Rewrite({run});
  return world.ShowRuns()[1];
}

TEST(Commentary, ChargesEveryLimitThatIsPassed) {
  const struct {
    int Size, Talent, Announcer, Colour;
  } rows[] = {
      {kGlobal, 75, 0, 0},      {kGlobal, 74, -20, -5},   {kGlobal, 70, -20, -5},
      {kGlobal, 69, -40, -15},  {kGlobal, 60, -40, -15},  {kGlobal, 59, -60, -30},
      {kGlobal, 50, -60, -30},  {kGlobal, 49, -100, -60}, {kNational, 55, 0, 0},
      {kNational, 54, -20, -5}, {kCult, 45, 0, 0},        {kCult, 44, -20, -5},
      {kRegional, 35, 0, 0},    {kRegional, 34, -20, -5}, {kSmall, 15, 0, 0},
      {kSmall, 14, -20, -5},    {kSmall, 0, -40, -15},    {kBackyard, 0, 0, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << "size " << row.Size << " talent " << row.Talent);
    World world = Promoter(row.Size)
                      .Staff("Gil", kAnnouncer, row.Talent)
                      .Worker("Ann", [&](Worker& w) { w.Charisma = row.Talent; })
                      .Worker("Mum",
                              [&](Worker& w) {
                                w.Charisma = row.Talent;
                                w.Speaks = false;
                              })
                      .Game("CWA");
    const int gil = Named(world.AllStaff(), "Gil").Uid;
    EXPECT_EQ(7 + row.Announcer, WithAnnouncer(world, gil, 7));
    EXPECT_EQ(7 + row.Colour, WithColour(world, gil, false, 7));
    EXPECT_EQ(7 + row.Colour, WithColour(world, Named(world.Workers(), "Ann").Uid, true, 7));
    EXPECT_EQ(7 + row.Colour - 100, WithColour(world, Named(world.Workers(), "Mum").Uid, true, 7));
  }
}

TEST(Commentary, AnEmptyChairSetsTheSum) {
  const World world = Promoter().Game("CWA");
  EXPECT_EQ(0, WithAnnouncer(world, 0, 57));
  EXPECT_EQ(-1, WithAnnouncer(world, 0, 100));
  EXPECT_EQ(0, WithAnnouncer(world, 4711, -20));
  EXPECT_EQ(0, WithColour(world, 0, false, -60));
  EXPECT_EQ(-1, WithColour(world, 0, true, 40));
}

TEST(Production, IsChargedByWhatTheSizeAsksFor) {
  const struct {
    int Size, Production, Charge;
  } rows[] = {{kGlobal, 80, 0},     {kGlobal, 79, -10}, {kGlobal, 75, -10}, {kGlobal, 74, -20},
              {kGlobal, 65, -20},   {kGlobal, 64, -30}, {kGlobal, 55, -30}, {kGlobal, 54, -40},
              {kNational, 59, -10}, {kCult, 55, 0},     {kCult, 54, -10},   {kRegional, 35, 0},
              {kRegional, 34, -10}, {kSmall, 5, 0},     {kSmall, 4, -10},   {kBackyard, 0, 0}};
  for (const auto& row : rows) {
    const World world = Promoter(row.Size, row.Production).Game("CWA");
    EXPECT_EQ(row.Charge, ProductionCharge(world.Player())) << row.Size << " " << row.Production;
  }
}

TEST(AShow, BeginsWithItsTableAndADrawForTheNight) {
  World world = Promoter(kCult).Staff("Gil", kAnnouncer, 44).Game("CWA");
  const int gil = Named(world.AllStaff(), "Gil").Uid;
  for (const int draw : {1, 2}) {
    ScriptDraws(world, {{8, draw}});
    StartShow(world, true, {gil, gil, false});
    const ShowRun& run = *ShowUnderWay(world);
    EXPECT_EQ(draw == 1, bool(run.FlatNight));
    EXPECT_EQ(-20, run.AnnouncerCharge);
    EXPECT_EQ(-5, run.ColourCharge);
    EXPECT_EQ(-25, run.ShowSum);
    AddExtraBonus(world, 12);
    EXPECT_EQ(-13, run.ShowSum);
  }
  ScriptDraws(world, {{8, 3}});
  StartShow(world, false, {gil, 0, false});
  EXPECT_EQ(0, ShowUnderWay(world)->ShowSum) << "the empty chair takes the announcer's charge away";
  EXPECT_EQ(20, ShowUnderWay(world)->ColourCharge);
}

TEST(AShow, GoesOnWithTheNextBookedRowOfItsSheet) {
  World world = Promoter()
                    .Crew(4)
                    .Stable("The Firm", {"CWA Hand 1"})
                    .Promotion("NEW")
                    .Stable("Them")
                    .Game("CWA");
  for (int row = 0; row < 11; ++row) world.Segments().Append(EmptySegment());
  EXPECT_EQ(0, NextSegment(world)) << "no show";
  ShowRun& run = Under(world, false, 0, 0, 0);
  EXPECT_EQ(0, NextSegment(world));
  world.Segments()[2] = Match(world, "CWA Hand 1", "CWA Hand 2");
  world.Segments()[4] = Angle(world, 52, "CWA Hand 3", "Them");
  world.Segments()[5] = Angle(world, 52, "CWA Hand 3", "The Firm");
  world.Segments()[11] = Angle(world, 36, "CWA Hand 1");
  const auto from = [&](int current) {
    run.Current = current;
    return NextSegment(world);
  };
  EXPECT_EQ(2, from(0));
  EXPECT_EQ(5, from(2)) << "an angle of somebody else's stable is passed over";
  EXPECT_EQ(11, from(5));
  run.IsEvent = true;
  EXPECT_EQ(0, from(5)) << "an Event has nine rows";
}

TEST(TheClose, TakesTheMeanWithTheLastSegmentTwice) {
  const struct {
    const char* What;
    int Production, Sum, Segments, Last, Rating;
  } rows[] = {{"nine of 50 and a last of 100", 100, 550, 10, 100, 59},
              {"rounded down", 100, 99, 2, 50, 49},
              {"production charges the sum", 34, 120, 2, 60, 56},
              {"never below 0", 100, -300, 3, 20, 0},
              {"never above 100", 100, 700, 5, 100, 100},
              {"nothing shown", 100, 0, 0, 0, 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.What);
    World world = Promoter(kRegional, row.Production).Game("CWA");
    Under(world, false, row.Sum, row.Segments, row.Last);
    EXPECT_EQ(row.Rating, CloseShow(world));
    EXPECT_TRUE(ShowIsClosed(world));
    EXPECT_EQ(row.Rating, world.Session.ShowRating);
    EXPECT_EQ(row.Segments + 1, world.Session.ShowFlag);
  }
}

TEST(TheClose, LeavesTheRatingToTheDayAndNoRecord) {
  World world = Promoter().Game("CWA");
  Under(world, false, 140, 2, 70);
  CloseShow(world);
  world.Session = {};
  LeaveShow(world);
  EXPECT_EQ(70, world.Session.ShowRating);
  EXPECT_EQ(nullptr, ShowUnderWay(world));
  EXPECT_FALSE(world.ShowRuns().Exists());
}

/// A sheet on which "CWA Hand 1" stands `rows` times.
World Seen(int rows, int position, int condition, bool isInterview = false) {
  World world = Promoter()
                    .Worker("Star",
                            [&](Worker& w) {
                              w.Position = position;
                              w.Condition = condition;
                              w.Over = 50;
                              w.Morale = 50;
                              w.Debuted = false;
                            })
                    .Worker("Foe",
                            [](Worker& w) {
                              w.Employer = 0;
                              w.ContractMonths = 0;
                              w.ContractType = "Non";
                            })
                    .Game("CWA");
  for (int row = 0; row < 11; ++row) world.Segments().Append(EmptySegment());
  for (int row = 1; row <= rows; ++row) {
    world.Segments()[row] = Match(world, "Foe", "Foe");
    world.Segments()[row].Other4 = Named(world.Workers(), "Star").Uid;
    if (isInterview) {
      world.Segments()[row] = Angle(world, 1, "Star");
      world.Segments()[row].Kind = kInterview;
    }
  }
  return world;
}

TEST(Overexposure, WearsOffPopularityAndRestSoursTheStars) {
  const struct {
    const char* What;
    int Rows, Position, Condition;
    std::vector<int> Draws;
    int Over, Morale;
    bool Debuted;
  } rows[] = {{"a star left at home", 0, kUpperMidcard, 86, {8}, 50, 42, false},
              {"a tired star", 0, kUpperMidcard, 85, {}, 50, 50, false},
              {"a midcarder", 0, kMidcard, 100, {}, 50, 50, false},
              {"once", 1, kMainEvent, 100, {}, 50, 50, true},
              {"twice", 2, kMainEvent, 100, {}, 50, 50, true},
              {"three times", 3, kMainEvent, 100, {2}, 48, 50, true},
              {"four times", 4, kMainEvent, 100, {3}, 45, 50, true},
              {"five times", 5, kMainEvent, 100, {}, 44, 50, true},
              {"eleven times", 11, kMainEvent, 100, {}, 44, 50, true}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.What);
    World world = Seen(row.Rows, row.Position, row.Condition);
    ScriptDraws(world, row.Draws);
    AfterShow(world, 11);
    const Worker& star = Named(world.Workers(), "Star");
    EXPECT_EQ(row.Over, star.Over);
    EXPECT_EQ(row.Morale, star.Morale);
    EXPECT_EQ(row.Debuted, bool(star.Debuted));
  }
}

TEST(Overexposure, LooksAwayFromInterviewsVideosAndThoseInDevelopment) {
  World talked = Seen(5, kMidcard, 100, true);
  AfterShow(talked, 11);
  EXPECT_EQ(50, Named(talked.Workers(), "Star").Over);
  EXPECT_FALSE(Named(talked.Workers(), "Star").Debuted);

  World filmed = Seen(0, kMidcard, 100);
  for (int row = 1; row <= 5; ++row) filmed.Segments()[row] = Angle(filmed, 65, "Star");
  AfterShow(filmed, 11);
  EXPECT_FALSE(Named(filmed.Workers(), "Star").Debuted);
  for (int row = 1; row <= 5; ++row) filmed.Segments()[row] = Angle(filmed, 60, "Star");
  AfterShow(filmed, 11);
  EXPECT_EQ(44, Named(filmed.Workers(), "Star").Over);

  for (const int position : {int(kDevelopmentDeal), 81}) {
    World away = Seen(5, position, 100);
    AfterShow(away, 11);
    EXPECT_EQ(50, Named(away.Workers(), "Star").Over) << position;
  }
}

TEST(AnEvent, CoolsTheFeudsThatItDidNotUse) {
  World world = Promoter()
                    .Crew(4)
                    .Game("CWA")
                    .Feud("CWA Hand 1", "CWA Hand 2", [](Feud& f) { f.Heat = 57; })
                    .Feud("CWA Hand 3", "CWA Hand 4", [](Feud& f) { f.Heat = 57; });
  ShowRun& run = Under(world, true, 50, 1, 50);
  run.FeudTouched[1] = true;
  // Each slot but the second draws, the empty ones too.
  ScriptDraws(world, {{3, 2}, 1, 2, 2, 2, 2, 2});
  CoolUnusedFeuds(world, run);
  EXPECT_EQ(52, world.Feuds()[1].Heat);
  EXPECT_EQ(57, world.Feuds()[2].Heat);
}

TEST(AnEvent, FadesTheTitlesThatWereNotAtStake) {
  World world = Promoter()
                    .Crew(2)
                    .Title("Defended", "CWA Hand 1")
                    .Title("Lucky", "CWA Hand 1")
                    .Title("Shelved", "CWA Hand 1", {}, [](Title& t) { t.Suspended = true; })
                    .Title("Idle", "CWA Hand 1", {}, [](Title& t) { t.Image = 55; })
                    .Promotion("NEW")
                    .Title("Theirs")
                    .Game("CWA");
  world.Segments().Append(Match(world, "CWA Hand 1", "CWA Hand 2")).TitleName = "Defended";
  ScriptDraws(world, {{3, 2}, {3, 1}});
  FadeUnusedTitles(world);
  EXPECT_EQ(50, Named(world.Titles(), "Defended").Image);
  EXPECT_EQ(50, Named(world.Titles(), "Lucky").Image);
  EXPECT_EQ(50, Named(world.Titles(), "Shelved").Image);
  EXPECT_EQ(49, Named(world.Titles(), "Idle").Image);
  EXPECT_EQ(50, Named(world.Titles(), "Theirs").Image);
}

TEST(TheShowOfToday, IsTheFirstOfItsDayInTheFile) {
  // The game starts on a Sunday.
  const World world = SmallWorld()
                          .Network("Nine", [](Network& n) { n.Generic = true; })
                          .Promotion("CWA")
                          .Show("Monday Mayhem", "Monday", "Nine")
                          .Show("First", "Sunday", "Nine")
                          .Show("Second", "Sunday", "Nine")
                          .Event(3, 2, "Big One")
                          .Event(4, 2, "Next One")
                          .Game("CWA");
  EXPECT_EQ("First", ShowName(world, false));
  EXPECT_EQ("Big One", ShowName(world, true));
}

}  // namespace
}  // namespace grapplemont::test
