#include "show/matchscore.h"

#include "show/ratings.h"
#include "showrig.h"

namespace grapplemont::test {
namespace {

TEST(ScoreMatch, ChangesQualityAndCrowdByTheMatchType) {
  const struct {
    int Type, Brawl;
    std::vector<ScriptedDraw> Draws;
    int Quality, Crowd, Strain;
  } kCases[] = {
      {kPlainSingles, 50, {}, 55, 47, 1},
      {kCage, 50, {{10, 7}, {5, 2}}, 48, 49, 2},
      {kTables, 68, {{10, 10}, {5, 1}}, 59, 48, 2},  // from 69
      {kTables, 70, {{5, 1}}, 70, 48, 2},            // tables cost no match of 70
  };
  for (const auto& c : kCases) {
    Rig rig(Cast(2, [&](Worker& w) { w.Brawl = c.Brawl; }).Game("CWA"), MatchOf(kSingles, c.Type));
    ScriptDraws(rig.W, c.Draws);
    ScoreMatch(rig.Run);
    EXPECT_EQ((std::array{int(rig.Run.Quality), int(rig.Run.Crowd), rig.Run.Strain}),
              (std::array{c.Quality, c.Crowd, c.Strain}))
        << c.Type;
  }
}

TEST(ScoreMatch, CoolsTheCrowdForTwoOfAKindInASinglesMatchAlone) {
  for (const auto& [style, kind, draws, step] :
       {std::tuple(kSingles, "H", std::vector<int>(), "two Heels -20"),
        {kSingles, "T", {9}, "two Tweeners -9"},
        {kThreeWay, "H", {}, "Cal 47 +47"}}) {
    Rig rig(Cast(3, [&, k = kind](Worker& w) { w.Disposition = k; }).Game("CWA"), MatchOf(style));
    ScriptDraws(rig.W, draws);
    ScoreMatch(rig.Run);
    EXPECT_TRUE(StepsText(rig.Run.Crowd).ends_with(step)) << StepsText(rig.Run.Crowd);
  }
}

TEST(ScoreMatch, IsLiftedByTheFirstFeudThatFitsWhoseHeatFollows) {
  struct Case {
    const char* Why;
    World Is;
    Segment Match;
    std::array<int, 4> Comes;  // draw of 5 or 0 for none, crowd, slot touched or 0, its heat
  };
  const auto tag = [](const std::vector<int>& order) {
    return SegmentOf(kMatch, kTag, kPlainTag, order);
  };
  Case cases[] = {
      {"a lift",
       Cast().Feud("Cal", "Dot").Feud("Bea", "Ash", Hot(80)).Game("CWA"),
       MatchOf(kSingles),
       {5, 57, 2, 71}},
      {"no further than the heat",
       Cast().Feud("Bea", "Ash", Hot(52)).Game("CWA"),
       MatchOf(kSingles),
       {5, 52, 1, 53}},
      {"the first of two alone",
       Cast().TagFeud("Ash", "Cal", "Dot", "Bea", Hot(30)).Feud("Ash", "Bea", Hot(90)).Game("CWA"),
       MatchOf(kSingles),
       {0, 47, 1, 39}},
      {"teams, whose heat stays",
       Cast().TagFeud("Ash", "Bea", "Cal", "Dot", Hot(80)).Game("CWA"),
       tag({4, 3, 1, 2}),
       {2, 54, 1, 80}},
      {"a stranger behind",
       Cast().TagFeud("Ash", "Bea", "Cal", "Dot", Hot(80)).Game("CWA"),
       tag({1, 2, 3, 5}),
       {0, 47, 0, 80}},
      {"partners who are enemies",
       Cast().Feud("Ash", "Bea", Hot(80)).Game("CWA"),
       MatchOf(kTag),
       {0, 47, 1, 65}},
      {"enemies of two teams",
       Cast().Feud("Ash", "Cal", Hot(80)).Game("CWA"),
       MatchOf(kTag),
       {0, 47, 0, 80}},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.Why);
    const auto [draw, crowd, slot, heat] = c.Comes;
    Rig rig(std::move(c.Is), c.Match);
    ScriptDraws(rig.W, draw ? std::vector{draw} : std::vector<int>());
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, crowd);
    EXPECT_EQ(rig.Touched(), slot ? std::vector{slot} : std::vector<int>());
    EXPECT_EQ(rig.W.Feuds()[std::max(slot, 1)].Heat, heat);
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
  EXPECT_EQ(rig.W.Teams()[2].Experience, 27);
}

TEST(RemarkOnShape, TellsTheWorstOfEachWorkerInTheirOrder) {
  const struct {
    int Morale, Condition;
    bool Man;
    std::string Remark;
  } kCases[] = {
      {29, 39, true,
       " looked unmotivated and in bad shape. He blew numerous spots throughout the match. "},
      {80, 29, false,
       " is a physical wreck at the moment, and could barely do anything. She needs time off to "
       "heal! "},
      {29, 40, false, " was sluggish and didn't put much effort in. "},
      {30, 30, true, ""}};
  for (const auto& c : kCases) {
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
  const struct {
    int Style, Purpose, Winner;
    std::vector<int> Sells;  // of Ash, Bea, Cal and Dot
    int Before, Quality;
    std::string Notes;
  } kCases[] = {
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
  for (const auto& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(c.Style));
    rig.S.Purpose = c.Purpose;
    rig.S.Winner = c.Winner;
    for (std::size_t i = 0; i < c.Sells.size(); ++i)
      rig.Who(static_cast<int>(i) + 1).Sell = c.Sells[i];
    rig.Run.Quality.Add(c.Before, "start");
    AddSelling(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Quality) << "style " << c.Style << " purpose " << c.Purpose;
    EXPECT_EQ(rig.Run.Notes, c.Notes);
  }
}

TEST(Stiffness, CostsSinglesAndTagMatchesAlone) {
  constexpr struct {
    int Style, Stiff, Quality;     // 55 before
    std::array<int, 4> Condition;  // of Ash, Bea, Cal and Dot; Bea is the stiff or the soft one
  } kCases[] = {
      {kSingles, 24, 49, {100, 100, 100, 100}}, {kTag, 25, 55, {100, 100, 100, 100}},
      {kSingles, 82, 55, {100, 100, 100, 100}}, {kSingles, 83, 55, {95, 100, 100, 100}},
      {kTag, 83, 55, {100, 100, 95, 95}},       {kThreeWay, 100, 55, {100, 100, 100, 100}},
      {kThreeWay, 0, 55, {100, 100, 100, 100}}};
  for (const auto& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(c.Style));
    rig.Who(2).Stiff = c.Stiff;
    rig.Run.Quality.Add(55, "start");
    rig.W.SetChance(std::make_unique<SteadyDraws>(5));
    AddStiffness(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Quality) << "style " << c.Style << ", stiff " << c.Stiff;
    for (int uid = 1; uid <= 4; ++uid)
      EXPECT_EQ(rig.Who(uid).Condition, c.Condition[static_cast<std::size_t>(uid - 1)])
          << "style " << c.Style << ", stiff " << c.Stiff << ", worker " << uid;
  }
}

TEST(BurnOut, SpoilsTheMatchBehindAGreatOne) {
  constexpr int kCases[][3] = {{81, 62, 49}, {81, 63, 63}, {80, 10, 10}};
  for (const auto& [before, crowd, then] : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(kSingles));
    rig.Show.PreviousCrowd = before;
    rig.Run.Crowd.Add(crowd, "start");
    AddBurnOut(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, then) << crowd << " after " << before;
    EXPECT_EQ(rig.Show.PreviousCrowd, then);
    EXPECT_EQ(rig.Run.Notes.find("still pumped up from the last one") != std::string::npos,
              then != crowd);
  }
}

}  // namespace
}  // namespace grapplemont::test
