#include "show/matchscore.h"

#include "show/ratings.h"
#include "show/showfeuds.h"
#include "showrig.h"

namespace grapplemont::test {
namespace {

TEST(ScoreMatch, ChangesQualityAndCrowdByTheMatchType) {
  struct Case {
    int Type, Brawl;
    std::vector<ScriptedDraw> Draws;
    int Quality, Crowd, Strain;
  };
  const Case kCases[] = {
      {kPlainSingles, 50, {}, 55, 47, 1},
      {kCage, 50, {{10, 7}, {5, 2}}, 48, 49, 2},
      {kTables, 68, {{10, 10}, {5, 1}}, 59, 48, 2},  // from 69
      {kTables, 70, {{5, 1}}, 70, 48, 2},            // tables cost no match of 70
  };
  for (const Case& c : kCases) {
    Rig rig(Cast(2, [&](Worker& w) { w.Brawl = c.Brawl; }).Game("CWA"), MatchOf(kSingles, c.Type));
    ScriptDraws(rig.TheWorld, c.Draws);
    ScoreMatch(rig.Run);
    EXPECT_EQ((std::array{int(rig.Run.Quality), int(rig.Run.Crowd), rig.Run.Strain}),
              (std::array{c.Quality, c.Crowd, c.Strain}))
        << c.Type;
  }
}

TEST(ScoreMatch, FloorsTheMeanOfEverybodyAndTellsIt) {
  Rig rig(Cast(3).Game("CWA"), MatchOf(kThreeWay));
  rig.Booked.Worker[2] = 999;
  rig.Who(2).Brawl = 80;  // works for 78
  rig.Who(1).Over = 90;   // draws for 81
  rig.Script({});
  ScoreMatch(rig.Run);
  EXPECT_EQ(StepsText(rig.Run.Quality), "mean work of Ash 55, Bea 78, nobody 0 +44");
  EXPECT_EQ(StepsText(rig.Run.Crowd), "mean drawing power of Ash 81, Bea 47, nobody 0 +42");
}

TEST(ScoreMatch, CoolsTheCrowdForTwoOfAKindInASinglesMatchAlone) {
  struct Case {
    int Style;
    const char *One, *Other;
    int Draw;  // 0 for none
    const char* Step;
  };
  constexpr Case kCases[] = {{kSingles, "H", "H", 0, ", two Heels -20"},
                             {kSingles, "F", "F", 9, ", two Faces -9"},
                             {kSingles, "T", "T", 10, ", two Tweeners -10"},
                             {kSingles, "F", "H", 0, ""},
                             {kThreeWay, "H", "H", 0, ""}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(c.Style));
    rig.Who(1).Disposition = c.One;
    rig.Who(2).Disposition = c.Other;
    ScriptDraws(rig.TheWorld, c.Draw ? std::vector{c.Draw} : std::vector<int>());
    ScoreMatch(rig.Run);
    EXPECT_TRUE(StepsText(rig.Run.Crowd).ends_with(std::string(" +47") + c.Step)) << c.One;
  }
}

TEST(ScoreMatch, IsLiftedByTheFirstFeudThatFitsWhoseHeatFollows) {
  struct Case {
    const char* Why;
    World Is;
    Segment Match;
    int Draw;  // of 5; 0 for none
    int Crowd;
    std::vector<int> Heat, Touched;
  };
  const auto tag = [](const std::vector<int>& order) {
    return SegmentOf(kMatch, kTag, kPlainTag, order);
  };
  Case cases[] = {
      {"a lift",
       Cast().Feud("Cal", "Dot").Feud("Bea", "Ash", Hot(80)).Game("CWA"),
       MatchOf(kSingles),
       5,
       57,
       {50, 71},
       {2}},
      {"no further than the heat",
       Cast().Feud("Bea", "Ash", Hot(52)).Game("CWA"),
       MatchOf(kSingles),
       5,
       52,
       {53},
       {1}},
      {"a heat that is no higher",
       Cast().Feud("Bea", "Ash", Hot(47)).Game("CWA"),
       MatchOf(kSingles),
       0,
       47,
       {48},
       {1}},
      {"the first of two alone",
       Cast().TagFeud("Ash", "Cal", "Dot", "Bea", Hot(30)).Feud("Ash", "Bea", Hot(90)).Game("CWA"),
       MatchOf(kSingles),
       0,
       47,
       {39, 90},
       {1}},
      {"teams, whose heat stays",
       Cast().TagFeud("Ash", "Bea", "Cal", "Dot", Hot(80)).Game("CWA"),
       tag({4, 3, 1, 2}),
       2,
       54,
       {80},
       {1}},
      {"a stranger behind",
       Cast().TagFeud("Ash", "Bea", "Cal", "Dot", Hot(80)).Game("CWA"),
       tag({1, 2, 3, 5}),
       0,
       47,
       {80},
       {}},
      {"a stranger in front",
       Cast().TagFeud("Ash", "Bea", "Cal", "Dot", Hot(80)).Game("CWA"),
       tag({5, 1, 3, 4}),
       0,
       47,
       {80},
       {}},
      {"partners who are enemies",
       Cast().Feud("Ash", "Bea", Hot(80)).Game("CWA"),
       MatchOf(kTag),
       0,
       47,
       {65},
       {1}},
      {"enemies of two teams",
       Cast().Feud("Ash", "Cal", Hot(80)).Game("CWA"),
       MatchOf(kTag),
       0,
       47,
       {80},
       {}},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.Why);
    Rig rig(std::move(c.Is), c.Match);
    ScriptDraws(rig.TheWorld, c.Draw ? std::vector{c.Draw} : std::vector<int>());
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, c.Crowd);
    EXPECT_EQ(rig.Touched(), c.Touched);
    for (std::size_t i = 0; i < c.Heat.size(); ++i)
      EXPECT_EQ(rig.TheWorld.Feuds()[static_cast<int>(i) + 1].Heat, c.Heat[i]);
  }
}

TEST(ScoreMatch, LetsHeatSeeTheCrowdBeforeTwoHeelsLoseIt) {
  Rig rig(Cast(2, [](Worker& w) { w.Disposition = "H"; }).Feud("Ash", "Bea", Hot(80)).Game("CWA"),
          MatchOf(kSingles));
  rig.Script({{5, 3}});
  ScoreMatch(rig.Run);
  EXPECT_EQ(StepsText(rig.Run.Crowd),
            "mean drawing power of Ash 47, Bea 47 +47, "
            "feud of Ash and Bea, up to its heat 80 +8, two Heels -20");
  EXPECT_EQ(rig.TheWorld.Feuds()[1].Heat, 65);  // towards 55, not 41
}

TEST(ScoreMatch, MarksTheFeudsOfRunInsAndOfBiggerMatches) {
  struct Case {
    int Style;
    std::vector<int> Others, Touched;
  };
  // Slots: 1 Ash-Gus, 2 Bea-Hal, 3 Ash-Hand 9, 4 Ash-Cal.
  const Case kCases[] = {{kSingles, {7, 8, 9}, {1, 2}},
                         {kTag, {0, 8, 9, 7}, {1, 2, 3}},
                         {kThreeWay, {7}, {4}},
                         {kFourTeams, {}, {1, 2, 4}},
                         {kSpecial, {}, {}}};
  for (const Case& c : kCases) {
    Rig rig(Cast(30)
                .Feud("Ash", "Gus")
                .TagFeud("Hal", "Hand 19", "Bea", "Hand 20")
                .Feud("Hand 9", "Ash")
                .Feud("Ash", "Cal")
                .Game("CWA"),
            MatchOf(c.Style));
    Word* others[] = {&rig.Booked.Other1, &rig.Booked.Other2, &rig.Booked.Other3,
                      &rig.Booked.Other4};
    for (std::size_t i = 0; i < c.Others.size(); ++i) *others[i] = c.Others[i];
    const World before = CopyOf(rig.TheWorld);
    rig.Script({});
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Touched(), c.Touched) << "style " << c.Style;
    ExpectSame(rig.TheWorld, before);
  }
}

Change<Team> With(int experience) {
  return [=](Team& team) { team.Experience = experience; };
}

TEST(Chemistry, IsThatOfEveryTeamThatIsASideAndComesLastOfAll) {
  const World world = Cast()
                          .Team("A", "Ash", "Bea", With(96))
                          .Team("B", "Dot", "Cal", With(76))
                          .Team("C", "Eli", "Fay", With(51))
                          .Team("D", "Gus", "Hal", With(26))
                          .Team("Across", "Bea", "Cal", With(100))
                          .Game("CWA");
  const auto level = [&](int style) { return ChemistryOf(world, MatchOf(style)).Level; };
  EXPECT_EQ(level(kTag), 4 + 3);
  EXPECT_EQ(level(kFourTeams), 4 + 3 + 2 + 1);
  EXPECT_EQ(ChemistryOf(world, MatchOf(kThreeTeams)).Teams,
            (std::vector<std::string>{"A", "B", "C"}));
  for (const int style : {kSingles, kThreeWay, kThreeOnThree, kFourOnFour})
    EXPECT_EQ(level(style), 0) << style;

  Rig rig(Cast()
              .Team("Rats", "Ash", "Bea", With(96))
              .Team("Dogs", "Cal", "Dot", With(26))
              .TagFeud("Ash", "Bea", "Cal", "Dot", Hot(60))
              .Game("CWA"),
          MatchOf(kTag, kTagLadder));
  rig.Script({{10, 2}, {10, 1}, {5, 5}, {8, 8}, {8, 7}});
  ScoreMatch(rig.Run);
  EXPECT_EQ(rig.Run.Quality, 55 + 2 + 8);
  EXPECT_TRUE(StepsText(rig.Run.Crowd).ends_with("chemistry of Rats, Dogs +7"));
  GainTeamExperience(rig.Run);
  EXPECT_EQ(rig.TheWorld.Teams()[2].Experience, 27);
}

TEST(BestSkill, IsTheOneStrictlyAboveBothOthersElseBrawl) {
  constexpr int kCases[][4] = {{50, 80, 60, 80}, {50, 60, 80, 80}, {10, 80, 80, 10},
                               {80, 80, 50, 80}, {60, 60, 80, 80}, {60, 80, 60, 80}};
  for (const auto& [brawl, technical, speed, best] : kCases) {
    Worker worker{};
    worker.Brawl = brawl;
    worker.Technical = technical;
    worker.Speed = speed;
    EXPECT_EQ(BestSkill(worker), best) << brawl << " " << technical << " " << speed;
  }
}

TEST(RemarkOnShape, TellsTheWorstOfEachWorkerInTheirOrder) {
  struct Case {
    int Morale, Condition;
    bool Man;
    std::string Remark;
  };
  const Case kCases[] = {
      {29, 39, true,
       " looked unmotivated and in bad shape. He blew numerous spots throughout the match. "},
      {80, 29, false,
       " is a physical wreck at the moment, and could barely do anything. She needs time off to "
       "heal! "},
      {29, 40, false, " was sluggish and didn't put much effort in. "},
      {30, 30, true, ""}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(kThreeWay));
    for (const int uid : {1, 3, 5}) {
      rig.Who(uid).Morale = c.Morale;
      rig.Who(uid).Condition = c.Condition;
      rig.Who(uid).Gender = c.Man;
    }
    RemarkOnShape(rig.Run);
    EXPECT_EQ(rig.Run.Notes, c.Remark.empty() ? "" : "Ash" + c.Remark + "Cal" + c.Remark);
  }
}

TEST(Selling, CostsAMatchThatWasToPutSomebodyOver) {
  const std::string no = " basically no-sold everything, which ruined the match. ";
  const std::string little = " didn't really sell very much, which hurt the match rating. ";
  struct Case {
    int Style, Purpose, Winner;
    std::vector<int> Sells;  // of Ash, Bea, Cal and Dot
    int Before, Quality;
    std::string Notes;
  };
  const Case kCases[] = {
      {kSingles, purpose1::kPutWinnerOver, 1, {0, 29}, 50, 35, "Bea" + no},
      {kSingles, purpose1::kPutWinnerOver, 1, {0, 49}, 50, 40, "Bea" + little},
      {kSingles, purpose1::kPutWinnerOver, 2, {30, 0}, 50, 40, "Ash" + little},
      {kSingles, purpose1::kPutWinnerOver, 1, {0, 50}, 50, 50, ""},
      {kSingles, purpose1::kPutWinnerOver, 1, {0, 50}, -5, 0, ""},
      {kSingles, purpose1::kGoodMatch, 1, {0, 0}, -5, -5, ""},
      {kTag, purpose2::kPutSecondTeamOver, 3, {20, 40, 0, 0}, 50, 28, "Ash" + no + "Bea" + little},
      {kTag, purpose2::kPutFirstTeamOver, 1, {0, 0, 50, 29}, 50, 35, "Dot" + no},
      {kThreeWay, 3, 3, {0, 0, 0}, 50, 50, ""},
  };
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(c.Style));
    rig.Booked.Purpose = c.Purpose;
    rig.Booked.Winner = c.Winner;
    for (std::size_t i = 0; i < c.Sells.size(); ++i)
      rig.Who(static_cast<int>(i) + 1).Sell = c.Sells[i];
    rig.Run.Quality.Add(c.Before, "start");
    AddSelling(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Quality) << "style " << c.Style << " purpose " << c.Purpose;
    EXPECT_EQ(rig.Run.Notes, c.Notes);
  }
}

TEST(Stiffness, CostsSinglesAndTagMatchesAlone) {
  struct Case {
    int Style, Stiff, Quality;     // 55 before
    std::array<int, 4> Condition;  // of Ash, Bea, Cal and Dot; Bea is the stiff or the soft one
  };
  constexpr Case kCases[] = {
      {kSingles, 24, 49, {100, 100, 100, 100}}, {kTag, 25, 55, {100, 100, 100, 100}},
      {kSingles, 82, 55, {100, 100, 100, 100}}, {kSingles, 83, 55, {95, 100, 100, 100}},
      {kTag, 83, 55, {100, 100, 95, 95}},       {kThreeWay, 100, 55, {100, 100, 100, 100}},
      {kThreeWay, 0, 55, {100, 100, 100, 100}}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(c.Style));
    rig.Who(2).Stiff = c.Stiff;
    rig.Run.Quality.Add(55, "start");
    rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(5));
    AddStiffness(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Quality) << "style " << c.Style << ", stiff " << c.Stiff;
    for (int uid = 1; uid <= 4; ++uid)
      EXPECT_EQ(rig.Who(uid).Condition, c.Condition[static_cast<std::size_t>(uid - 1)])
          << "style " << c.Style << ", stiff " << c.Stiff << ", worker " << uid;
  }
}

TEST(CheckChampion, HalvesTheCrowdOfATitleMatchWithoutItsChampion) {
  struct Case {
    int Style, Holder, Partner;  // partner 0 for a singles Title
    bool Passes;
  };
  constexpr Case kCases[] = {
      {kSingles, 2, 0, true},    {kSingles, 3, 0, false},  {kSingles, 0, 0, true},
      {kFourTeams, 5, 0, false},  // the fifth is not looked at
      {kSpecial, 30, 0, true},   {kSpecial, 31, 0, false}, {kTag, 4, 3, true},
      {kTag, 2, 3, false},       {kFourTeams, 7, 8, true}, {kFourTeams, 6, 7, false},
      {kTag, 0, 8, true},
  };
  for (const Case& c : kCases) {
    Rig rig(Cast(31).Game("CWA"), MatchOf(c.Style));
    Title title{};
    title.Singles = c.Partner == 0;
    title.Holder = c.Holder;
    title.Partner = c.Partner;
    rig.Run.Crowd.Add(61, "start");
    CheckChampion(rig.Run, &title);
    const std::string who = c.Partner == 0 ? "champion wasn't" : "champions weren't";
    EXPECT_EQ(rig.Run.Crowd, c.Passes ? 61 : 30) << c.Holder << " in style " << c.Style;
    EXPECT_EQ(rig.Run.Notes,
              c.Passes ? ""
                       : "The crowd were confused as to why this was a title match, when the " +
                             who + " involved. This affected their response to the entire match. ");
  }
}

TEST(WeighMatch, TellsItsWeightsAndTheFlatNight) {
  for (const auto& [quality, isFlat, told] :
       {std::tuple(55, true, "70% of Crowd 62 and 30% of Quality 55 +59, flat night -6"),
        {63, false, "50% of Crowd 62 and 50% of Quality 63 +62"}}) {
    Rig rig(Cast().Game("CWA"), MatchOf(kSingles));
    rig.Run.Quality.Add(quality, "start");
    rig.Run.Crowd.Add(62, "start");
    rig.Show.FlatNight = isFlat;
    WeighMatch(rig.Run);
    EXPECT_EQ(StepsText(rig.Run.Overall), told);
  }
}

}  // namespace
}  // namespace grapplemont::test
