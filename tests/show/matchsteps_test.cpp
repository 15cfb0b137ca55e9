#include "show/matchscore.h"

#include "showrig.h"

namespace grapplemont::test {
namespace {

constexpr const char* kNoSold = " basically no-sold everything, which ruined the match. ";
constexpr const char* kSoldLittle = " didn't really sell very much, which hurt the match rating. ";

TEST(RemarkOnShape, TellsTheWorstOfEachWorkerInTheirOrder) {
  struct Case {
    int Morale, Condition;
    bool Man;
    const char* Remark;
  };
  constexpr Case kCases[] = {
      {29, 39, true,
       " looked unmotivated and in bad shape. He blew numerous spots throughout the match. "},
      {0, 0, false,
       " looked unmotivated and in bad shape. She blew numerous spots throughout the match. "},
      {30, 29, true,
       " is a physical wreck at the moment, and could barely do anything. He needs time off to "
       "heal! "},
      {80, 0, false,
       " is a physical wreck at the moment, and could barely do anything. She needs time off to "
       "heal! "},
      {29, 40, false, " was sluggish and didn't put much effort in. "},
      {30, 30, true, nullptr},
      {80, 39, true, nullptr}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(kThreeWay));
    for (const int uid : {1, 3, 5}) {
      rig.Who(uid).Morale = c.Morale;
      rig.Who(uid).Condition = c.Condition;
      rig.Who(uid).Gender = c.Man;
    }
    RemarkOnShape(rig.Run);
    EXPECT_EQ(rig.Run.Notes, c.Remark ? std::string("Ash") + c.Remark + "Cal" + c.Remark : "");
    EXPECT_EQ(rig.Run.Quality, 0);
  }
}

TEST(Selling, CostsAMatchThatWasToPutSomebodyOver) {
  struct Case {
    int Style, Purpose, Winner;
    std::vector<int> Sells;  // of Ash, Bea, Cal and Dot
    int Quality;             // 50 before
    std::string Notes;
  };
  const Case kCases[] = {
      {1, 3, 1, {0, 29}, 35, std::string("Bea") + kNoSold},
      {1, 3, 1, {0, 30}, 40, std::string("Bea") + kSoldLittle},
      {1, 3, 1, {0, 49}, 40, std::string("Bea") + kSoldLittle},
      {1, 3, 1, {0, 50}, 50, ""},
      {1, 3, 2, {10, 0}, 35, std::string("Ash") + kNoSold},
      {1, 2, 1, {0, 0}, 50, ""},
      {1, 8, 1, {0, 0}, 50, ""},
      {2, 3, 3, {20, 40, 0, 0}, 28, std::string("Ash") + kNoSold + "Bea" + kSoldLittle},
      {2, 2, 1, {0, 0, 49, 29}, 28, std::string("Cal") + kSoldLittle + "Dot" + kNoSold},
      {2, 4, 1, {0, 0, 0, 0}, 50, ""},
      {3, 3, 1, {0, 0, 0}, 50, ""},
  };
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(c.Style));
    rig.Booked.Purpose = c.Purpose;
    rig.Booked.Winner = c.Winner;
    for (std::size_t i = 0; i < c.Sells.size(); ++i)
      rig.Who(static_cast<int>(i) + 1).Sell = c.Sells[i];
    rig.Run.Quality.Add(50, "start");
    AddSelling(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Quality) << "style " << c.Style << " purpose " << c.Purpose;
    EXPECT_EQ(rig.Run.Notes, c.Notes);
  }
}

TEST(Selling, LiftsBothNumbersToZeroInItsOwnMatchesAlone) {
  for (const int purpose : {int(purpose1::kPutWinnerOver), int(purpose1::kGoodMatch)}) {
    Rig rig(Cast().Game("CWA"), MatchOf(kSingles));
    rig.Booked.Winner = 1;
    rig.Booked.Purpose = purpose;
    rig.Run.Quality.Add(-5, "start");
    rig.Run.Crowd.Add(-4, "start");
    AddSelling(rig.Run);
    const bool isOwn = purpose == purpose1::kPutWinnerOver;
    EXPECT_EQ(rig.Run.Quality, isOwn ? 0 : -5);
    EXPECT_EQ(rig.Run.Crowd, isOwn ? 0 : -4);
  }
}

TEST(SoftWorkers, CostSinglesAndTagMatchesATenthEach) {
  struct Case {
    int Style;
    std::vector<int> Stiff;
    int Quality;  // 55 before
  };
  const Case kCases[] = {{1, {24, 25}, 49},         {1, {24, 0}, 44},   {1, {82, 25}, 55},
                         {2, {24, 24, 24, 24}, 35}, {3, {0, 0, 0}, 55}, {7, {0, 0, 0}, 55}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(c.Style));
    for (std::size_t i = 0; i < c.Stiff.size(); ++i)
      rig.Who(static_cast<int>(i) + 1).Stiff = c.Stiff[i];
    rig.Run.Quality.Add(55, "start");
    rig.Script({});
    AddStiffness(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Quality) << "style " << c.Style;
  }
}

TEST(StiffWorkers, HurtTheOthersOfSinglesAndTagMatchesAlone) {
  struct Case {
    int Style, Stiff;
    std::array<int, 4> Condition;  // of Ash, Bea, Cal and Dot; Bea is the stiff one
  };
  constexpr Case kCases[] = {{1, 82, {100, 100, 100, 100}},
                             {1, 83, {95, 100, 100, 100}},
                             {2, 83, {100, 100, 95, 95}},
                             {3, 100, {100, 100, 100, 100}}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(c.Style));
    rig.Who(2).Stiff = c.Stiff;
    rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(5));
    AddStiffness(rig.Run);
    for (int uid = 1; uid <= 4; ++uid)
      EXPECT_EQ(rig.Who(uid).Condition, c.Condition[static_cast<std::size_t>(uid - 1)])
          << "style " << c.Style << ", stiff " << c.Stiff << ", worker " << uid;
  }
}

TEST(CheckChampion, HalvesTheCrowdOfATitleMatchWithoutItsChampion) {
  struct Case {
    int Style;
    std::vector<int> Workers;
    int Holder, Partner;  // partner 0 for a singles Title
    bool Passes;
  };
  const Case kCases[] = {
      {1, {1, 2}, 1, 0, true},
      {1, {1, 2}, 2, 0, true},
      {1, {1, 2}, 3, 0, false},
      {1, {1, 2}, 0, 0, true},
      {2, {1, 2, 3, 4}, 4, 0, true},
      {4, {1, 2, 3, 4, 5, 6}, 5, 0, false},  // the fifth is not looked at
      {9, UidsUpTo(30), 30, 0, true},
      {9, UidsUpTo(30), 31, 0, false},
      {2, {1, 2, 3, 4}, 1, 2, true},
      {2, {1, 2, 3, 4}, 4, 3, true},
      {2, {1, 2, 3, 4}, 2, 3, false},
      {2, {1, 2, 3, 4}, 1, 5, false},
      {6, UidsUpTo(8), 6, 5, true},
      {6, UidsUpTo(8), 7, 8, true},
      {6, UidsUpTo(8), 6, 7, false},
      {1, {1, 2}, 1, 2, true},
      {2, {1, 2, 3, 4}, 0, 8, true},
  };
  for (const Case& c : kCases) {
    Rig rig(Cast(31).Game("CWA"), SegmentOf(kMatch, c.Style, 1, c.Workers));
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

TEST(BurnOut, SpoilsTheMatchBehindAGreatOne) {
  struct Case {
    int Before, Crowd, Then;
  };
  constexpr Case kCases[] = {{81, 62, 49},  {81, 63, 63},  {80, 62, 62}, {80, 10, 10},
                             {100, 81, 64}, {100, 82, 82}, {0, 30, 30},  {81, 0, 0}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(kSingles));
    rig.Show.PreviousCrowd = c.Before;
    rig.Run.Crowd.Add(c.Crowd, "start");
    AddBurnOut(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, c.Then) << c.Crowd << " after " << c.Before;
    EXPECT_EQ(rig.Show.PreviousCrowd, c.Then);
    const bool isSpoiled = c.Before >= 81 && c.Crowd < c.Before - 18;
    EXPECT_EQ(rig.Run.Notes, isSpoiled ? "This match suffered because the crowd were still pumped "
                                         "up from the last one, and so this bout was seen as "
                                         "something of a let-down to them. "
                                       : "");
  }
}

TEST(WeighMatch, TellsItsWeightsAndTheFlatNight) {
  Rig rig(Cast().Game("CWA"), MatchOf(kSingles));
  rig.Run.Quality.Add(55, "start");
  rig.Run.Crowd.Add(62, "start");
  rig.Show.FlatNight = true;
  WeighMatch(rig.Run);
  EXPECT_EQ(StepsText(rig.Run.Overall), "70% of Crowd 62 and 30% of Quality 55 +59, flat night -6");
  Rig calm(Cast().Game("CWA"), MatchOf(kSingles));
  calm.Run.Quality.Add(63, "start");
  calm.Run.Crowd.Add(62, "start");
  WeighMatch(calm.Run);
  EXPECT_EQ(StepsText(calm.Run.Overall), "50% of Crowd 62 and 50% of Quality 63 +62");
}

}  // namespace
}  // namespace grapplemont::test
