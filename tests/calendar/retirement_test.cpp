#include <gtest/gtest.h>

#include <set>

#include "calendar/advanceday.h"
#include "calendar/mentions.h"
#include "records/checks/checkworld.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "roster/market.h"
#include "roster/names.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "words/names.h"

namespace grapplemont::test {
namespace {

using Script = std::vector<ScriptedDraw>;

Script Then(Script first, const Script& next) {
  first.insert(first.end(), next.begin(), next.end());
  return first;
}

constexpr int kFebruary = 2;  // the month whose birthdays 1 March keeps

/// "Sol Varga", whose birthday it is, at the player's CWA, at its rival NEW or on the market.
World With(std::string_view employer, const Change<Worker>& change = {},
           const Change<GameInfo>& options = {}) {
  SmallWorld small;
  small.Promotion("NEW", kBackyard).Promotion("CWA");
  if (employer == "NEW") small = SmallWorld(), small.Promotion("CWA").Promotion("NEW", kBackyard);
  if (employer.empty()) small.OnTheMarket();
  return small
      .Worker("Sol Varga",
              [&](Worker& worker) {
                worker.BirthMonth = kFebruary;
                if (change) change(worker);
              })
      .Game("CWA", kGameStart, options);
}

Worker& Sol(World& world) {
  return Named(world.Workers(), "Sol Varga");
}

const ScriptedDraw kSkillsStay{5, 3};

TEST(Birthdays, ComeInTheMonthAfter) {
  const struct {
    Day Today;
    int BirthMonth;
  } rows[] = {{std::chrono::year{2026} / 1 / 1, 12},
              {std::chrono::year{2026} / 2 / 1, 1},
              {std::chrono::year{2026} / 12 / 1, 11}};
  for (const auto& row : rows)
    for (const int off : {0, 1, 11}) {
      World world = With("CWA");
      world.Game().Today = row.Today;
      Sol(world).BirthMonth = (row.BirthMonth - 1 + off) % 12 + 1;
      ScriptDraws(world, off == 0 ? Script{kSkillsStay} : Script{});
      AgeAndRetire(world);
      EXPECT_EQ(Sol(world).Age, off == 0 ? 29 : 28);
    }
}

TEST(Birthdays, MoveTheSkillsUnlessAThreeIsDrawn) {
  World world = With("CWA", [](Worker& worker) {
    worker.Brawl = 98;
    worker.Technical = 2;
    worker.Speed = 60;
  });
  ScriptDraws(world, {{5, 4}, {5, 5}, {5, 1}, {5, 1}, {5, 5}, {5, 3}, {5, 2}});
  AgeAndRetire(world);
  EXPECT_EQ(Sol(world).Brawl, 100);
  EXPECT_EQ(Sol(world).Technical, 0);
  EXPECT_EQ(Sol(world).Speed, 61);
}

TEST(Retirement, IsDrawnByAge) {
  struct Case {
    int AgeBefore;
    Script Draws;  // after the skills
    bool Announces;
  };
  const Case kCases[] = {{33, {}, false},       {34, {{40, 1}}, true}, {34, {{40, 2}}, false},
                         {43, {{40, 1}}, true}, {44, {{15, 1}}, true}, {49, {{15, 1}}, true},
                         {50, {{3, 1}}, true},  {50, {{3, 3}}, false}, {64, {{3, 2}}, false},
                         {65, {}, true},        {90, {}, true}};
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.AgeBefore);
    World world = With("CWA", [&](Worker& worker) {
      worker.Age = c.AgeBefore;
      worker.Position = kNonWrestler;
    });
    ScriptDraws(world, Then({kSkillsStay}, c.Draws));
    AgeAndRetire(world);
    EXPECT_EQ(Sol(world).RetiringSoon, c.Announces);
    EXPECT_EQ(NewsOf(world),
              c.Announces
                  ? "Retirement!: Sol Varga has announced he will retire from CWA in one month.\n"
                  : "");
  }
}

TEST(Retirement, IsNothingForTobiasFenn) {
  World world = With("CWA");
  Worker& tobias = Sol(world);
  tobias.Name = "Tobias Fenn";
  tobias.Age = 80;
  ScriptDraws(world, {kSkillsStay});
  AgeAndRetire(world);
  EXPECT_FALSE(tobias.RetiringSoon);
  EXPECT_EQ(tobias.Position, kNonWrestler) << "though he leaves the ring";
}

TEST(Retirement, MakesTheOldNonWrestlersFirst) {
  struct Case {
    int AgeBefore, Position;
    Script Draws;  // after the skills: the end, then the ring
    bool Leaves;
  };
  const Case kCases[] = {{39, kMidcard, {{40, 2}}, false},
                         {40, kMidcard, {{40, 2}, {25, 5}}, true},
                         {40, kMidcard, {{40, 2}, {25, 4}}, false},
                         {48, kMidcard, {{15, 2}, {25, 5}}, true},
                         {49, kMidcard, {{15, 2}}, true},
                         {50, kMidcard, {{3, 2}}, true},
                         {50, kManager, {{3, 2}}, true},
                         {50, 83, {{3, 2}}, true},
                         {50, kNonWrestler, {{3, 2}}, false}};
  for (const Case& c : kCases)
    for (const char* employer : {"CWA", "NEW", ""}) {
      SCOPED_TRACE(std::to_string(c.AgeBefore) + " at " + employer);
      World world = With(employer, [&](Worker& worker) {
        worker.Age = c.AgeBefore;
        worker.Position = c.Position;
      });
      ScriptDraws(world, Then({kSkillsStay}, c.Draws));
      AgeAndRetire(world);
      EXPECT_EQ(Sol(world).Position, c.Leaves ? int(kNonWrestler) : c.Position);
      EXPECT_EQ(Sol(world).Morale, 80);
      const bool told = c.Leaves && std::string_view(employer) == "CWA";
      EXPECT_EQ(NewsOf(world),
                told ? "News Desk: Sol Varga has decided to become a 'non wrestler'!\n" : "");
    }
}

TEST(Retirement, WaitsForTheMonthAfterABirthdayEvenIfAnnouncedBefore) {
  for (const int drawn : {1, 2}) {
    World world = With("CWA", [](Worker& worker) {
      worker.Age = 36;
      worker.RetiringSoon = true;
    });
    const int uid = Sol(world).Uid;
    ScriptDraws(world, Then({kSkillsStay}, {{40, drawn}}));
    AgeAndRetire(world);
    EXPECT_EQ(Sol(world).Uid, uid) << "not gone in his own month";
    EXPECT_TRUE(Sol(world).RetiringSoon);
    EXPECT_EQ(world.News().Count(), drawn == 1 ? 1 : 0);
  }
}

TEST(Retirement, IsToldByTheOptionTheShortlistAndOnesOwn) {
  struct Case {
    const char* Employer;
    int Option;  // NEW is smaller than CWA
    bool Shortlisted;
    const char* News;
  };
  const char* const kFree = "Retiring!: Sol Varga has announced she will retire in one month.\n";
  const char* const kRival =
      "Retirement!: Sol Varga has announced she will retire from NEW in one month.\n";
  const char* const kOwn =
      "Retirement!: Sol Varga has announced she will retire from CWA in one month.\n";
  const Case kCases[] = {{"", 0, false, kFree},  {"", 1, false, ""},        {"", 2, false, ""},
                         {"", 2, true, kFree},   {"NEW", 0, false, kRival}, {"NEW", 1, false, ""},
                         {"NEW", 2, false, ""},  {"NEW", 2, true, kRival},  {"CWA", 2, false, kOwn},
                         {"CWA", 1, false, kOwn}};
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.Employer) + std::to_string(c.Option));
    World world = With(
        c.Employer,
        [](Worker& worker) {
          worker.Age = 70;
          worker.Gender = false;
        },
        [&](GameInfo& game) { game.MailRetirement = c.Option; });
    world.Session.StartSize = world.Player().Size;
    if (c.Shortlisted) AddToShortlist(world, Sol(world).Uid);
    ScriptDraws(world, {kSkillsStay});
    AgeAndRetire(world);
    EXPECT_EQ(NewsOf(world), c.News);
  }
}

// The rookie's draws: name, attributes, market, moods. A brawler of the middle tier, Over 20.
Script Rookie(bool isWoman, int diva = 5) {
  const int moves =
      static_cast<int>(std::count_if(FinisherMoves.begin(), FinisherMoves.end(),
                                     [](const FinisherMove& move) { return move.Kind == 'B'; }));
  Script script{{300, 1}, {303, isWoman ? 252 : 1}, {4, 2}, {60, 10}, {60, 20}, {95, 30}, {45, 5},
                {45, 6}};
  if (isWoman) script.push_back({10, 1});
  script = Then(
      script,
      {{10, 1}, {6, 2}, {25, 10}, {moves, 1}, {moves, 2}, {30, 30}, {20, 3}, {20, 4}, {15, 5}});
  if (isWoman) script.push_back({20, diva});
  return Then(script, {{12, 7},
                       {2, 2},
                       {35, 1},
                       {20, 2},
                       {70, 1},
                       {70, 2},
                       {14, 1},
                       {14, 14},
                       {30, 3},
                       {30, 29},
                       {30, 30}});
}

TEST(Retirement, TakesPlaceInAMonthThatIsNotTheBirthdays) {
  World world = With("CWA", [](Worker& worker) { worker.Age = 70; });
  const int uid = Sol(world).Uid;
  ScriptDraws(world, {kSkillsStay});
  AgeAndRetire(world);
  EXPECT_TRUE(Sol(world).RetiringSoon) << "not gone in the month of the announcement";
  world.Game().Today = std::chrono::year{2026} / 4 / 1;
  world.News().Remove();
  ScriptDraws(world, Rookie(false));
  AgeAndRetire(world);
  EXPECT_EQ(NewsOf(world), "Retirement!: Sol Varga has retired from CWA!\n");
  ASSERT_EQ(world.Workers().Count(), 1);
  const Worker& rookie = world.Workers()[1];
  EXPECT_EQ(rookie.Uid, uid + 1);
  EXPECT_EQ(rookie.Name.Str(), std::string(WorkerFirstNames[0]) + " " + std::string(Surnames[0]));
  EXPECT_EQ(rookie.ShortName.View(), Surnames[0]);
  EXPECT_TRUE(rookie.Gender);
  EXPECT_EQ(rookie.Age, 20);
  EXPECT_EQ(rookie.BirthMonth, 7);
  EXPECT_EQ(rookie.Employer, 0);
  EXPECT_EQ(rookie.ContractType.View(), "Non");
  EXPECT_EQ(rookie.ContractMonths, 0);
  EXPECT_EQ(rookie.Status.View(), "Nor");
  EXPECT_EQ(rookie.Position, kLowerMidcard);
  EXPECT_EQ(rookie.Over, 20);
  EXPECT_EQ(rookie.Potential, 49);
  EXPECT_EQ(rookie.OverFloor, 0);
  EXPECT_EQ(rookie.Condition, 76);
  EXPECT_EQ(rookie.Morale, 89);
  EXPECT_EQ(rookie.Loyalty, 73);
  EXPECT_EQ(rookie.Disposition.View(), "H");
  EXPECT_TRUE(rookie.Speaks && rookie.Trainer && rookie.Booker && rookie.Debuted);
  EXPECT_FALSE(rookie.SuperstarLook || rookie.Announcer || rookie.RetiringSoon ||
               rookie.CreativeControl || rookie.Diva || rookie.Unsackable);
  EXPECT_EQ(rookie.Stable.View(), "None");
  EXPECT_EQ(rookie.Split.View(), "None");
}

TEST(Retirement, GivesARookieAtLeastThirtyPotentialAndNoFloorBelowNothing) {
  struct Case {
    int Potential, Floor;  // drawn, for an Over of 20
    int PotentialAfter, FloorAfter;
  };
  constexpr Case kCases[] = {{1, 1, 30, 19}, {10, 19, 30, 1}, {11, 20, 31, 0}, {30, 30, 50, 0}};
  for (const Case& c : kCases) {
    World world = With("", [](Worker& worker) {
      worker.BirthMonth = 6;
      worker.RetiringSoon = true;
    });
    Script draws = Rookie(false);
    draws.end()[-2] = {30, c.Potential};
    draws.end()[-1] = {30, c.Floor};
    ScriptDraws(world, draws);
    AgeAndRetire(world);
    EXPECT_EQ(world.Workers()[1].Potential, c.PotentialAfter);
    EXPECT_EQ(world.Workers()[1].OverFloor, c.FloorAfter);
  }
}

TEST(Retirement, LeavesNoLinkBehind) {
  World world =
      SmallWorld()
          .Network("Nine")
          .Promotion("NEW")
          .Show("Monday Mire", "Monday", "Nine")
          .Promotion("CWA")
          .Crew(4)
          .Worker("Sol Varga", kMainEvent, 80, [](Worker& worker) { worker.RetiringSoon = true; })
          .Worker("Client", [](Worker& worker) { worker.Position = kJobber; })
          .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
          .Team("Sol and One", "Sol Varga", "CWA Hand 1")
          .Team("Two and Sol", "CWA Hand 2", "Sol Varga")
          .Stable("The Firm", {"Sol Varga", "CWA Hand 3"})
          .Title("CWA Crown", "Sol Varga")
          .Title("CWA Pair", "CWA Hand 1", "Sol Varga")
          .Title("CWA Cup", "CWA Hand 3")
          .Show("Friday Fire", "Friday", "Nine")
          .Game("CWA")
          .Feud("CWA Hand 1", "Sol Varga")
          .Feud("CWA Hand 2", "CWA Hand 3");
  const int uid = Sol(world).Uid;
  const int record = world.Workers().NumberOf(Sol(world));
  for (Title& title : world.Titles()) title.Image = 50;
  for (Show& show : world.Shows()) {
    show.Colour = uid;
    show.ColourIsWorker = true;
    show.Announcer = 0;
  }
  world.Player().Commissioner = uid;
  world.Player().HeadTrainer = uid;  // a member of staff who has the same number
  Named(world.Workers(), "Client").Manager = uid;
  AddToShortlist(world, uid);
  for (const int type : {4, 6}) {
    Incident incident;
    incident.Type = type;
    incident.Uid = uid;
    world.Incidents().Append(incident);
  }
  struct Booked {
    int Style, Place, RunIn;  // where he stands; -1: nowhere
    bool Stays;
  };
  constexpr Booked kBooked[] = {{kSingles, 1, 0, false},  {kSingles, -1, 0, true},
                                {kTag, 3, 0, false},      {kThreeTeams, 5, 0, false},
                                {kSingles, -1, 1, false}, {kSingles, 9, 0, true}};
  for (const Booked& row : kBooked) {
    Segment segment = EmptySegment();
    segment.Kind = kMatch;
    segment.Style = row.Style;
    for (std::size_t place = 0; place < 6; ++place) segment.Worker[place] = 1;
    if (row.Place >= 0) segment.Worker[static_cast<std::size_t>(row.Place)] = uid;
    if (row.RunIn) segment.Other2 = uid;
    world.Segments().Append(segment);
  }
  ScriptDraws(world, Rookie(false));
  AgeAndRetire(world);
  EXPECT_EQ(Mentions(world, Refers::Worker, uid), "");
  EXPECT_EQ(Mentions(world, Refers::Commentator, uid), "");
  EXPECT_EQ(world.Player().HeadTrainer, uid);
  ASSERT_EQ(world.Teams().Count(), 1);
  EXPECT_EQ(world.Teams()[1].Name.View(), "The Hands");
  EXPECT_EQ(world.Titles()[1].Image, 45);
  EXPECT_EQ(world.Titles()[1].Reigns[0].Holder.View(), "Vacant");
  EXPECT_EQ(world.Titles()[1].Reigns[1].Holder.View(), "Sol Varga");
  EXPECT_EQ(Day(world.Titles()[1].Reigns[1].Lost), kGameStart);
  EXPECT_EQ(world.Titles()[2].Holder, 0);
  EXPECT_EQ(world.Titles()[3].Image, 50);
  EXPECT_EQ(world.Feuds()[1].Worker1, 0);
  EXPECT_NE(world.Feuds()[2].Worker1, 0);
  EXPECT_EQ(world.Incidents()[1].Type, 0);
  EXPECT_EQ(world.Incidents()[2].Type, 6) << "a job offer names a promotion";
  int number = 0;
  for (const Booked& row : kBooked)
    EXPECT_EQ(world.Segments()[++number].Kind, row.Stays ? kMatch : kEmptySegment) << number;
  EXPECT_EQ(world.Workers()[record].Name.Str(),
            std::string(WorkerFirstNames[0]) + " " + std::string(Surnames[0]));
}

}  // namespace
}  // namespace grapplemont::test
