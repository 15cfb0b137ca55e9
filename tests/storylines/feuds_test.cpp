#include "storylines/feuds.h"

#include <gtest/gtest.h>

#include "records/checks/checkworld.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

Change<Worker> With(int over, std::string_view disposition, bool creativeControl = false) {
  return [=](Worker& w) {
    w.Over = over;
    w.Disposition = disposition;
    w.CreativeControl = creativeControl;
  };
}

/// Uids 1 to 6; Ash and Bea are a Tag Team.
SmallWorld SixPeople() {
  SmallWorld small;
  small.Promotion("CWA");
  for (const char* name : {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay"}) small.Worker(name);
  small.Team("The Kindling", "Ash", "Bea").Game("CWA");
  return small;
}

int Uid(World& world, std::string_view name) {
  return Named(world.Workers(), name).Uid;
}

/// "Ash" or "Ash+Bea".
FeudSide SideOf(World& world, std::string_view names) {
  const auto plus = names.find('+');
  if (plus == std::string_view::npos) return {Uid(world, names), 0};
  return {Uid(world, names.substr(0, plus)), Uid(world, names.substr(plus + 1))};
}

TEST(FeudExists, TakesSidesAndPartnersInAnyOrder) {
  World world = SixPeople().Feud("Ash", "Bea").TagFeud("Ash", "Cal", "Dot", "Eli");
  struct Case {
    const char* One;
    const char* Two;
    bool Exists;
  };
  constexpr Case kCases[] = {
      {"Ash", "Bea", true},          {"Bea", "Ash", true},          {"Ash", "Cal", false},
      {"Ash", "Dot", false},         {"Dot", "Eli", false},         {"Ash+Cal", "Dot+Eli", true},
      {"Cal+Ash", "Dot+Eli", true},  {"Ash+Cal", "Eli+Dot", true},  {"Cal+Ash", "Eli+Dot", true},
      {"Dot+Eli", "Ash+Cal", true},  {"Eli+Dot", "Cal+Ash", true},  {"Ash+Dot", "Cal+Eli", false},
      {"Ash+Cal", "Dot+Fay", false}, {"Ash+Ash", "Dot+Dot", false},
  };
  for (const Case& c : kCases)
    EXPECT_EQ(FeudExists(world, {SideOf(world, c.One), SideOf(world, c.Two)}), c.Exists)
        << c.One << " and " << c.Two;
  EXPECT_TRUE(FeudExists(world, Uid(world, "Bea"), Uid(world, "Ash")));
  world.Feuds()[3].Singles = true;  // as a feud is left behind whose workers have gone
  EXPECT_FALSE(FeudExists(world, 0, 0)) << "an empty slot is nobody's feud";
}

TEST(Feuds, TellTheirSidesByName) {
  World world = SixPeople().Feud("Ash", "Dot").TagFeud("Bea", "Ash", "Cal", "Dot");
  const FeudSides singles = SidesOf(world.Feuds()[1]);
  EXPECT_EQ(SideName(world, singles.One), "Ash");
  EXPECT_EQ(SideName(world, singles.Two), "Dot");
  const FeudSides tag = SidesOf(world.Feuds()[2]);
  EXPECT_EQ(SideName(world, tag.One), "The Kindling");
  EXPECT_EQ(SideName(world, tag.Two), "Cal \\ Dot");
}

TEST(FeudRoster, IsWhoeverIsFitAndSeenOnTheShows) {
  const auto injured = [](Worker& w) {
    w.Status = "Inj";
    w.StatusMonths = 2;
    w.InjuryName = "Broken Leg";
  };
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker("Opener", kOpener, 30)
                    .Worker("Star", kMainEvent, 90)
                    .Worker("Face Of The Firm", kNonWrestler, 60)
                    .Worker("Mouth", kManager, 70)
                    .Worker("Trainee", kTrainingCamp, 5)
                    .Worker("Prospect", kDevelopmentDeal, 20)
                    .Worker("Sent Away", kSentToDevelopment + kMidcard, 50)
                    .Worker("Hurt", injured)
                    .Promotion("NEW")
                    .Worker("Rival")
                    .OnTheMarket()
                    .Worker("Free")
                    .Game("CWA");
  std::vector<std::string> names;
  for (const Worker* worker : FeudRoster(world)) names.push_back(worker->Name.Str());
  EXPECT_EQ(names, (std::vector<std::string>{"Star", "Mouth", "Face Of The Firm", "Opener"}));
}

TEST(StartingHeat, IsPopularityAndContrastWithinItsLimits) {
  struct Case {
    std::vector<std::pair<int, const char*>> People;  // two, or the teams' four
    int Popularity, Contrast, Heat;
  };
  const Case kCases[] = {
      {{{60, "F"}, {51, "H"}}, 55, 10, 65},
      {{{60, "H"}, {50, "F"}}, 55, 10, 65},
      {{{60, "F"}, {50, "F"}}, 55, -10, 45},
      {{{60, "H"}, {50, "H"}}, 55, -10, 45},
      {{{60, "T"}, {50, "T"}}, 55, -10, 45},
      {{{60, "T"}, {50, "H"}}, 55, 0, 55},
      {{{60, "F"}, {50, "T"}}, 55, 0, 55},
      {{{80, "F"}, {80, "H"}}, 80, 10, 90},
      {{{81, "F"}, {81, "H"}}, 81, 10, 90},
      {{{100, "T"}, {100, "F"}}, 100, 0, 90},
      {{{20, "F"}, {20, "F"}}, 20, -10, 10},
      {{{19, "F"}, {19, "F"}}, 19, -10, 10},
      {{{0, "T"}, {0, "F"}}, 0, 0, 10},
      {{{61, "F"}, {60, "F"}, {50, "H"}, {52, "H"}}, 55, 10, 65},
      {{{60, "F"}, {60, "F"}, {50, "F"}, {50, "F"}}, 55, -10, 45},
      {{{60, "F"}, {60, "H"}, {50, "H"}, {50, "H"}}, 55, 0, 55},
      {{{60, "F"}, {60, "H"}, {50, "F"}, {50, "H"}}, 55, 0, 55},
  };
  for (const Case& c : kCases) {
    SmallWorld small;
    small.Promotion("CWA");
    std::string about;
    for (std::size_t i = 0; i < c.People.size(); ++i) {
      const auto& [over, disposition] = c.People[i];
      small.Worker("P" + std::to_string(i), With(over, disposition));
      about += disposition + std::to_string(over) + " ";
    }
    World world = small.Game("CWA");
    const bool team = c.People.size() == 4;
    const FeudSides sides{SideOf(world, team ? "P0+P1" : "P0"),
                          SideOf(world, team ? "P2+P3" : "P1")};
    const StartingHeat start = StartingHeatOf(world, sides);
    EXPECT_EQ(start.Popularity, c.Popularity) << about;
    EXPECT_EQ(start.Contrast, c.Contrast) << about;
    EXPECT_EQ(start.Heat, c.Heat) << about;
  }
}

constexpr const char* kTeamWords =
    ": 'We are not willing to do this feud, our opponents are not in our league.'";

TEST(FeudRefusal, ComesFromTheSideThatStandsFarAbove) {
  struct Case {
    std::vector<int> Overs;  // two, or the teams' four
    std::string Words;       // empty: both are willing
  };
  const Case kCases[] = {
      {{70, 50}, ""},
      {{71, 50}, "Ash: 'I am not willing to do this feud, Bea is not in my league.'"},
      {{50, 70}, ""},
      {{50, 71}, "Bea: 'I am not willing to do this feud, Ash is not in my league.'"},
      {{80, 60, 50, 50}, ""},
      {{80, 61, 50, 50}, std::string("The Kindling") + kTeamWords},
      {{50, 50, 60, 80}, ""},
      {{50, 50, 61, 80}, std::string("Cal \\ Dot") + kTeamWords},
      {{90, 30, 40, 41}, ""},
  };
  for (const Case& c : kCases) {
    World world = SixPeople();
    for (std::size_t i = 0; i < c.Overs.size(); ++i)
      world.Workers()[static_cast<int>(i) + 1].Over = c.Overs[i];
    const bool team = c.Overs.size() == 4;
    const FeudSides sides{SideOf(world, team ? "Ash+Bea" : "Ash"),
                          SideOf(world, team ? "Cal+Dot" : "Bea")};
    const auto refusal = RefusalOf(world, sides);
    EXPECT_EQ(refusal ? refusal->Words : "", c.Words);
    EXPECT_EQ(refusal ? refusal->Veto : "", "");
  }
}

TEST(FeudRefusal, IsFinalWhenASpeakerHasCreativeControl) {
  struct Case {
    std::vector<int> Controls;  // record numbers; Ash 1 and Bea 2 stand far above Cal 3 and Dot 4
    bool Team;
    std::string Veto;
  };
  const Case kCases[] = {
      {{1}, false, "Ash has creative control, and refuses."},
      {{3}, false, ""},
      {{1}, true, "They have creative control, and refuse."},
      {{2}, true, "They have creative control, and refuse."},
      {{3, 4}, true, ""},
  };
  for (const Case& c : kCases) {
    World world = SixPeople();
    for (const int number : {1, 2}) world.Workers()[number].Over = 90;
    for (const int number : {3, 4}) world.Workers()[number].Over = 40;
    for (const int number : c.Controls) world.Workers()[number].CreativeControl = true;
    // The side that refuses may be named second.
    const FeudSides sides{SideOf(world, c.Team ? "Cal+Dot" : "Cal"),
                          SideOf(world, c.Team ? "Ash+Bea" : "Ash")};
    const auto refusal = RefusalOf(world, sides);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->Veto, c.Veto);
  }
}

TEST(WhyNoFeud, NamesTheFirstReason) {
  struct Case {
    const char* One;
    const char* Two;
    std::string Why;
  };
  const std::string themselves = "Wrestlers cannot feud with themselves!";
  const std::string twice = "You have selected the same worker twice!";
  const std::string already = "They are already in a feud with each other!";
  const Case kCases[] = {
      {"Ash", "Cal", ""},
      {"Ash", "Ash", themselves},
      {"Bea", "Ash", already},
      {"Ash+Bea", "Cal+Dot", ""},
      {"Ash+Bea", "Bea+Cal", themselves},
      {"Ash+Bea", "Cal+Ash", themselves},
      {"Ash+Ash", "Ash+Cal", themselves},
      {"Ash+Ash", "Cal+Dot", twice},
      {"Ash+Bea", "Dot+Dot", twice},
      {"Fay+Eli", "Cal+Dot", already},
  };
  World world = SixPeople().Feud("Ash", "Bea").TagFeud("Cal", "Dot", "Eli", "Fay");
  for (const Case& c : kCases)
    EXPECT_EQ(WhyNoFeud(world, {SideOf(world, c.One), SideOf(world, c.Two)}), c.Why)
        << c.One << " and " << c.Two;
  for (Feud& feud : world.Feuds())
    if (IsFreeSlot(feud)) feud = world.Feuds()[1];
  EXPECT_EQ(WhyNoFeud(world, {SideOf(world, "Ash"), SideOf(world, "Cal")}),
            "All eight feud slots are taken. End a feud first.");
}

TEST(StartFeud, TakesTheFirstEmptySlot) {
  World world = SixPeople().Feud("Ash", "Bea").Feud("Bea", "Cal").Feud("Cal", "Dot");
  world.Feuds()[2] = Feud{};
  world.Feuds()[2].Clean1 = 7;  // what a former feud may have left behind
  EXPECT_EQ(StartFeud(world, {SideOf(world, "Ash+Bea"), SideOf(world, "Cal+Dot")}), 2);
  World expected =
      SixPeople()
          .Feud("Ash", "Bea")
          .TagFeud("Ash", "Bea", "Cal", "Dot",
                   [&](Feud& feud) { feud.Heat = StartingHeatOf(world, SidesOf(feud)).Heat; })
          .Feud("Cal", "Dot");
  ExpectSame(world, expected);
  EXPECT_EQ(StartFeud(world, {SideOf(world, "Eli"), SideOf(world, "Fay")}), 4);
  EXPECT_TRUE(world.Feuds()[4].Singles);
  EXPECT_EQ(world.Feuds()[4].Worker2, Uid(world, "Fay"));
  EXPECT_EQ(world.Feuds()[4].Worker3, 0);
  EXPECT_EQ(Day(world.Feuds()[4].Started), world.Today());
  EXPECT_TRUE(CheckWorld(world).empty());
}

TEST(StartFeud, MendsAFileThatIsTooShort) {
  World world = SixPeople();
  world.Feuds().Rewrite({});
  EXPECT_EQ(FreeFeudSlot(world), 1);
  EXPECT_EQ(StartFeud(world, {SideOf(world, "Ash"), SideOf(world, "Bea")}), 1);
  EXPECT_EQ(world.Feuds().Count(), 1);
}

struct Ending {
  int Wins;                       // of side one, all clean
  std::vector<int> Overs, Moods;  // of Ash, Bea, Cal and Dot: Over and Attitude
  std::vector<int> Draws;
  std::vector<int> After;
  std::vector<std::string> Mails;
};

TEST(EndFeudOffCamera, HurtsWhomTheDrawHits) {
  const std::string stupid =
      ": Ending my last feud off-camera was a stupid move, it has hurt my popularity.";
  const std::string bad =
      ": Ending my last feud off-camera was a bad move, i think it has hurt my popularity.";
  const Ending kEndings[] = {
      {3, {50, 50, 50, 50}, {60, 60, 60, 60}, {}, {50, 50, 50, 50}, {}},
      {4, {50, 50, 50, 50}, {60, 60, 60, 60}, {2, 3, 4, 2}, {50, 50, 50, 50}, {}},
      {4,
       {50, 40, 30, 20},
       {60, 61, 0, 100},
       {1, 1, 2, 1},
       {48, 38, 30, 18},
       {"Ash" + stupid, "Bea" + bad, "Dot" + bad}},
      {9,
       {1, 0, 2, 50},
       {60, 60, 60, 60},
       {1, 1, 1, 4},
       {0, 0, 0, 50},
       {"Ash" + stupid, "Cal" + stupid}},
  };
  for (const Ending& e : kEndings) {
    World world =
        SixPeople().Feud("Eli", "Fay").TagFeud("Ash", "Bea", "Cal", "Dot", [&](Feud& feud) {
          feud.Clean1 = e.Wins;
        });
    for (int number = 1; number <= 4; ++number) {
      const auto at = static_cast<std::size_t>(number - 1);
      world.Workers()[number].Over = e.Overs[at];
      world.Workers()[number].Attitude = e.Moods[at];
    }
    World expected = CopyOf(world);
    ScriptDraws(world, e.Draws);
    EndFeudOffCamera(world, 2);
    std::vector<std::string> mails;
    for (const Mail& mail : world.News()) mails.push_back(mail.From + ": " + mail.Body.Str());
    EXPECT_EQ(mails, e.Mails);
    world.News().Remove();
    expected.Feuds()[2] = Feud{};
    for (int number = 1; number <= 4; ++number)
      expected.Workers()[number].Over = e.After[static_cast<std::size_t>(number - 1)];
    ExpectSame(world, expected);
  }
}

TEST(EndFeudOffCamera, CountsEveryKindOfWinAndAsksOnlyWhoIsThere) {
  World world = SixPeople().Feud("Ash", "Bea", [](Feud& feud) {
    feud.Sneak1 = 1;
    feud.Interference2 = 2;
    feud.Dirty2 = 1;
  });
  Named(world.Workers(), "Ash").Uid = 99;
  ScriptDraws(world, {2});
  EndFeudOffCamera(world, 1);
  EXPECT_TRUE(IsFreeSlot(world.Feuds()[1]));
}

}  // namespace
}  // namespace grapplemont::test
