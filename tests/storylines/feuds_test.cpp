#include "storylines/feuds.h"

#include <gtest/gtest.h>

#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// Uids 1 to 6; Ash and Bea are a Tag Team.
SmallWorld SixPeople() {
  SmallWorld small;
  small.Promotion("CWA");
  for (const char* name : {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay"}) small.Worker(name);
  small.Team("The Kindling", "Ash", "Bea").Game("CWA");
  return small;
}

/// "Ash" or "Ash+Bea".
FeudSide SideOf(World& world, std::string_view names) {
  const auto uid = [&](std::string_view name) { return int(Named(world.Workers(), name).Uid); };
  const auto plus = names.find('+');
  if (plus == std::string_view::npos) return {uid(names), 0};
  return {uid(names.substr(0, plus)), uid(names.substr(plus + 1))};
}

/// Ash against Bea, or with four numbers Ash and Bea against Cal and Dot, whose Overs these are.
FeudSides SidesWith(World& world, const std::vector<int>& overs) {
  for (std::size_t i = 0; i < overs.size(); ++i)
    world.Workers()[static_cast<int>(i) + 1].Over = overs[i];
  if (overs.size() == 4) return {SideOf(world, "Ash+Bea"), SideOf(world, "Cal+Dot")};
  return {SideOf(world, "Ash"), SideOf(world, "Bea")};
}

TEST(WhyNoFeud, NamesTheFirstReason) {
  const std::string themselves = "Wrestlers cannot feud with themselves!";
  const std::string twice = "You have selected the same worker twice!";
  const std::string already = "They are already in a feud with each other!";
  World world = SixPeople().Feud("Ash", "Bea").TagFeud("Cal", "Dot", "Eli", "Fay");
  const auto why = [&](const char* one, const char* two) {
    return WhyNoFeud(world, {SideOf(world, one), SideOf(world, two)});
  };
  EXPECT_EQ(why("Ash", "Ash"), themselves);
  EXPECT_EQ(why("Ash+Bea", "Cal+Ash"), themselves);
  EXPECT_EQ(why("Ash+Ash", "Cal+Dot"), twice);
  EXPECT_EQ(why("Ash+Bea", "Dot+Dot"), twice);
  // Sides and partners in any order.
  EXPECT_EQ(why("Bea", "Ash"), already);
  for (const char* one : {"Cal+Dot", "Dot+Cal"})
    for (const char* two : {"Eli+Fay", "Fay+Eli"}) {
      EXPECT_EQ(why(one, two), already);
      EXPECT_EQ(why(two, one), already);
    }
  for (const auto& [one, two] : {std::pair("Ash", "Cal"),
                                 {"Cal", "Dot"},
                                 {"Cal", "Eli"},
                                 {"Ash+Bea", "Cal+Dot"},
                                 {"Cal+Eli", "Dot+Fay"}})
    EXPECT_EQ(why(one, two), "") << one;
  world.Feuds()[3].Singles = true;  // as a feud is left behind whose workers have gone
  EXPECT_FALSE(FeudExists(world, 0, 0)) << "an empty slot is nobody's feud";
  for (Feud& feud : world.Feuds())
    if (IsFreeSlot(feud)) feud = world.Feuds()[1];
  EXPECT_EQ(why("Ash", "Cal"), "All eight feud slots are taken. End a feud first.");
}

TEST(StartingHeat, IsPopularityAndContrastWithinItsLimits) {
  const struct {
    std::vector<int> Overs;
    const char* Are;  // the disposition of each
    int Popularity, Contrast, Heat;
  } kCases[] = {
      {{60, 51}, "FH", 55, 10, 65},          {{60, 50}, "HF", 55, 10, 65},
      {{60, 50}, "FF", 55, -10, 45},         {{60, 50}, "TT", 55, -10, 45},
      {{60, 50}, "TH", 55, 0, 55},           {{81, 81}, "FH", 81, 10, 90},
      {{19, 19}, "FF", 19, -10, 10},         {{61, 60, 50, 52}, "FFHH", 55, 10, 65},
      {{60, 60, 50, 50}, "FHHH", 55, 0, 55}, {{60, 60, 50, 50}, "FHFH", 55, 0, 55},
  };
  for (const auto& c : kCases) {
    World world = SixPeople();
    for (std::size_t i = 0; i < c.Overs.size(); ++i)
      world.Workers()[static_cast<int>(i) + 1].Disposition = std::string_view(c.Are + i, 1);
    const StartingHeat start = StartingHeatOf(world, SidesWith(world, c.Overs));
    EXPECT_EQ(start.Popularity, c.Popularity) << c.Are;
    EXPECT_EQ(start.Contrast, c.Contrast) << c.Are;
    EXPECT_EQ(start.Heat, c.Heat) << c.Are;
  }
}

TEST(FeudRefusal, ComesFromTheSideThatStandsFarAbove) {
  const std::string teams =
      ": 'We are not willing to do this feud, our opponents are not in our league.'";
  const struct {
    std::vector<int> Overs;
    std::string Words;  // empty: both are willing
    std::string Veto;   // with Bea's creative control
  } kCases[] = {
      {{70, 50}, "", ""},
      {{71, 50}, "Ash: 'I am not willing to do this feud, Bea is not in my league.'", ""},
      {{50, 71},
       "Bea: 'I am not willing to do this feud, Ash is not in my league.'",
       "Bea has creative control, and refuses."},
      {{80, 60, 50, 50}, "", ""},
      {{80, 61, 50, 50}, "The Kindling" + teams, "They have creative control, and refuse."},
      {{50, 50, 60, 80}, "", ""},
      {{50, 50, 61, 80}, "Cal \\ Dot" + teams, ""},
  };
  for (const auto& c : kCases)
    for (const bool control : {false, true}) {
      World world = SixPeople();
      world.Workers()[2].CreativeControl = control;
      const auto refusal = RefusalOf(world, SidesWith(world, c.Overs));
      EXPECT_EQ(refusal ? refusal->Words : "", c.Words);
      EXPECT_EQ(refusal ? refusal->Veto : "", control ? c.Veto : "");
    }
}

TEST(StartFeud, TakesTheFirstEmptySlot) {
  World world = SixPeople().Feud("Ash", "Bea").Feud("Bea", "Cal").Feud("Cal", "Dot");
  world.Feuds()[2] = Feud{};
  world.Feuds()[2].Clean1 = 7;  // what a former feud may have left behind
  EXPECT_EQ(StartFeud(world, {SideOf(world, "Ash+Bea"), SideOf(world, "Cal+Dot")}), 2);
  const auto& annals = world.Annals();
  ASSERT_GT(annals.Count(), 0);
  EXPECT_EQ(annals[annals.Count()].Kind, kAnnalFeud);
  World expected = SixPeople()
                       .Feud("Ash", "Bea")
                       .TagFeud("Ash", "Bea", "Cal", "Dot", [](Feud& feud) { feud.Heat = 40; })
                       .Feud("Cal", "Dot");
  expected.Annals() = annals;
  ExpectSame(world, expected);
  world.Feuds().Rewrite({});  // a file that is too short
  EXPECT_EQ(StartFeud(world, {SideOf(world, "Eli"), SideOf(world, "Fay")}), 1);
  EXPECT_TRUE(world.Feuds()[1].Singles);
  EXPECT_EQ(world.Feuds()[1].Worker2, Named(world.Workers(), "Fay").Uid);
  EXPECT_EQ(world.Feuds()[1].Worker3, 0);
}

TEST(EndFeudOffCamera, HurtsWhomTheDrawHits) {
  const std::string stupid =
      ": Ending my last feud off-camera was a stupid move, it has hurt my popularity.\n";
  const std::string bad =
      ": Ending my last feud off-camera was a bad move, i think it has hurt my popularity.\n";
  const struct {
    int Wins;
    std::vector<int> Overs, Moods;  // of Ash, Bea, Cal and Dot: Over and Attitude
    std::vector<int> Draws, After;
    std::string Mails;
  } kEndings[] = {
      {3, {50, 50, 50, 50}, {60, 60, 60, 60}, {}, {50, 50, 50, 50}, ""},
      {4,
       {50, 40, 30, 20},
       {60, 61, 0, 100},
       {1, 1, 2, 1},
       {48, 38, 30, 18},
       "Ash" + stupid + "Bea" + bad + "Dot" + bad},
      {9,
       {1, 0, 2, 50},
       {60, 60, 60, 60},
       {1, 1, 1, 4},
       {0, 0, 0, 50},
       "Ash" + stupid + "Cal" + stupid},
  };
  for (const auto& e : kEndings) {
    World world = SixPeople().TagFeud("Ash", "Bea", "Cal", "Dot", [&](Feud& feud) {
      feud.Clean1 = e.Wins - 3;
      feud.Sneak1 = feud.Interference2 = feud.Dirty2 = 1;
    });
    SidesWith(world, e.Overs);
    for (int number = 1; number <= 4; ++number)
      world.Workers()[number].Attitude = e.Moods[static_cast<std::size_t>(number - 1)];
    ScriptDraws(world, e.Draws);
    EndFeudOffCamera(world, 1);
    EXPECT_EQ(NewsOf(world), e.Mails);
    EXPECT_TRUE(IsFreeSlot(world.Feuds()[1]));
    for (int number = 1; number <= 4; ++number)
      EXPECT_EQ(world.Workers()[number].Over, e.After[static_cast<std::size_t>(number - 1)]);
  }
  World world = SixPeople().Feud("Ash", "Bea", [](Feud& feud) { feud.Sneak2 = 4; });
  world.Workers()[1].Uid = 99;
  ScriptDraws(world, std::vector{2});  // only who is there is asked
  EndFeudOffCamera(world, 1);
}

/// Clean wins, dirty wins, verbal attacks, sneak attacks.
using Counters = std::array<int, 4>;

TEST(AssessFeud, SaysTheFirstSentenceThatApplies) {
  const std::string noHeat = "You need to build this rivalry up more. Use matches";
  const std::string cheap = "I'd give one of the teams a few cheap wins";
  const std::string even = "A nice even feud";
  const std::string built = "This feud has been built up well";
  const auto poised = [](const std::string& side) {
    return "This feud is poised perfectly for " + side + " to get a climatic clean victory";
  };
  const auto loses = [](const std::string& side) {
    return side + " would lose popularity if they lost the feud";
  };
  const struct {
    Counters One, Two;
    std::string Says;
  } kCases[] = {
      {{1, 0, 1, 0}, {0, 1, 0, 0}, noHeat},  // below four, whatever else is true
      {{4, 0, 0, 0}, {0, 0, 0, 0}, cheap},
      {{2, 0, 9, 9}, {2, 0, 9, 9}, cheap},          // attacks are not wins
      {{0, 0, 0, 0}, {0, 4, 1, 1}, poised("Ash")},  // nothing against six, four of them dirty
      {{0, 14, 0, 0}, {0, 0, 0, 0}, poised("Bea")},
      {{0, 0, 0, 0}, {2, 3, 1, 0}, loses("Bea")},
      {{0, 0, 1, 0}, {0, 7, 0, 0}, loses("Bea")},
      {{1, 1, 0, 0}, {1, 0, 0, 1}, even},
      {{3, 3, 0, 0}, {3, 3, 0, 0}, even},
      {{4, 3, 0, 0}, {4, 3, 0, 0}, built},  // beyond thirteen
      {{4, 3, 0, 0}, {4, 2, 0, 0}, loses("Ash")},
      {{10, 3, 0, 0}, {1, 0, 0, 0}, built},
      {{1, 0, 0, 0}, {3, 2, 0, 0}, loses("Ash")},  // less than five behind
      {{1, 0, 0, 0}, {3, 3, 0, 0}, loses("Bea")},
      {{3, 4, 0, 0}, {1, 0, 0, 0}, loses("Ash")},
  };
  const auto count = [](const std::array<Natural*, 4>& fields, const Counters& numbers) {
    for (std::size_t kind = 0; kind < fields.size(); ++kind) *fields[kind] = numbers[kind];
  };
  World world = SixPeople().Feud("Ash", "Bea").TagFeud("Bea", "Ash", "Cal", "Dot");
  for (const auto& c : kCases) {
    Feud& feud = world.Feuds()[1];
    count({&feud.Clean1, &feud.Dirty1, &feud.Interference1, &feud.Sneak1}, c.One);
    count({&feud.Clean2, &feud.Dirty2, &feud.Interference2, &feud.Sneak2}, c.Two);
    const std::string says = AssessFeud(world, feud);
    EXPECT_TRUE(says.starts_with(c.Says)) << c.Says << " / " << says;
    EXPECT_EQ(IsRipe(feud), c.Says == built || c.Says.starts_with("This feud is poised"));
  }
  Feud& teams = world.Feuds()[2];
  EXPECT_EQ(AssessFeud(world, teams),
            "You need to build this rivalry up more, it has barely begun.");
  teams.Dirty2 = 6;
  EXPECT_TRUE(AssessFeud(world, teams).starts_with(poised("The Kindling")));
  teams.Clean1 = 1;
  EXPECT_TRUE(AssessFeud(world, teams).starts_with(loses("Cal \\ Dot")));
}

}  // namespace
}  // namespace grapplemont::test
