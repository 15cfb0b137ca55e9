#include <gtest/gtest.h>

#include "show/runsegment.h"
#include "show/titlechange.h"
#include "stage.h"

namespace grapplemont::test {
namespace {

World WithTitles() {
  return Eight()
      .Title("CWA Crown", "Ash")
      .Title("CWA Pair", "Ash", "Bea")
      .Team("The Kindling", "Dot", "Cal")
      .Promotion("NEW")
      .Title("CWA Crown");
}

Title& Crown(Stage& stage) {
  return stage.W.Titles()[1];
}
Title& Pair(Stage& stage) {
  return stage.W.Titles()[2];
}

TEST(ChangeTitle, DependsOnStyleAndFinish) {
  struct Case {
    int Style, Finish;
    bool Changes;
  };
  constexpr Case kCases[] = {
      {kSingles, kClean, true},
      {kSingles, kCountOut, false},
      {kSingles, kCheating, true},
      {kTag, kPartnerTurns, true},
      {kTag, kDqThroughInterference, false},
      {kThreeWay, 0, true},
      {kFourTeams, 0, true},
      {kSpecial, 0, true},
      {kThreeOnThree, kClean, false},
      {kFourOnFour, kClean, false},
  };
  for (const Case& c : kCases) {
    Stage stage(WithTitles());
    stage.Match(c.Style, {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"});
    stage.Result(c.Style == kSingles ? "Bea" : "Cal", "Ash", c.Finish);
    const bool isTeams = c.Style == kTag || c.Style == kFourTeams;
    stage.S.TitleName = isTeams ? "CWA Pair" : "CWA Crown";
    ChangeTitle(stage.Run);
    const Title& title = isTeams ? Pair(stage) : Crown(stage);
    EXPECT_EQ(title.Holder == stage.S.Winner, c.Changes) << c.Style << ", finish " << c.Finish;
    EXPECT_EQ(title.Partner, !isTeams ? 0 : c.Changes ? stage.Uid("Dot") : stage.Uid("Bea"));
  }
}

TEST(ChangeTitle, ClosesOneReignAndBeginsTheNext) {
  Stage stage(WithTitles());
  stage.Match(kSingles, {"Ash", "Cal"});
  stage.Result("Cal", "Ash");
  stage.S.TitleName = "CWA Crown";
  ChangeTitle(stage.Run);
  const auto& reigns = Crown(stage).Reigns;
  EXPECT_EQ(reigns[0].Holder, "Cal");
  EXPECT_EQ(Day(reigns[0].Won), kGameStart);
  EXPECT_EQ(Day(reigns[0].Lost), kNoTitleDate);
  EXPECT_EQ(reigns[1].Holder, "Ash");
  EXPECT_EQ(Day(reigns[1].Lost), kGameStart);
  EXPECT_EQ(stage.W.Titles()[3].Holder, 0) << "somebody else's Title of that name";

  stage["Ash"].ShortName = "Ashy";
  stage.S.TitleName = "CWA Pair";
  stage.Match(kTag, {"Cal", "Dot", "Ash", "Bea"});
  stage.Result("Dot", "Ash");
  ChangeTitle(stage.Run);
  EXPECT_EQ(Pair(stage).Reigns[0].Holder, "The Kindling");
  stage.Result("Bea", "Dot");
  ChangeTitle(stage.Run);
  EXPECT_EQ(Pair(stage).Reigns[0].Holder, "Ashy \\ Bea");
  EXPECT_EQ(stage.Run.Notes,
            "Cal won the CWA Crown. The Kindling won the CWA Pair Titles. "
            "Ash \\ Bea won the CWA Pair Titles. ");
}

TEST(ChangeTitle, LeavesChampionsWhoWinOrDraw) {
  Stage stage(WithTitles());
  const World before = CopyOf(stage.W);
  stage.S.TitleName = "CWA Pair";
  stage.Match(kTag, {"Bea", "Ash", "Cal", "Dot"});
  stage.Result("Bea", "Cal");
  ChangeTitle(stage.Run);
  stage.Draw(kDoubleDq);
  ChangeTitle(stage.Run);
  stage.S.TitleName = "CWA Crown";
  stage.Match(kSingles, {"Ash", "Cal"});
  stage.Result("Ash", "Cal");
  ChangeTitle(stage.Run);
  stage.S.TitleName = "None";
  stage.Result("Cal", "Ash");
  ChangeTitle(stage.Run);
  ExpectSame(stage.W, before);
}

TEST(TitleImage, FollowsTheRatingAndItsChampions) {
  struct Case {
    std::string_view Title;
    int Overall, Over1, Over2, Image, ImageAfter, After1, After2;
    std::string_view Notes;
  };
  constexpr std::string_view kUp = "The CWA Crown title has gained in image.";
  constexpr std::string_view kDown = "The CWA Crown title has lost image.";
  constexpr Case kCases[] = {
      {"CWA Crown", 51, 50, 50, 50, 50, 50, 50, ""},
      {"CWA Crown", 52, 50, 50, 50, 52, 50, 50, kUp},
      {"CWA Crown", 72, 50, 50, 50, 54, 50, 50, kUp},
      {"CWA Crown", 50, 50, 50, 57, 57, 50, 50, ""},
      {"CWA Crown", 50, 50, 50, 58, 56, 50, 50, kDown},
      {"CWA Crown", 30, 50, 50, 53, 51, 50, 50, kDown},
      {"CWA Crown", 39, 61, 50, 50, 50, 60, 50, "Ash lost overness from this match. "},
      {"CWA Crown", 59, 41, 50, 50, 50, 41, 50, ""},
      {"CWA Crown", 100, 99, 50, 98, 100, 99, 50, kUp},
      {"CWA Pair", 50, 50, 52, 50, 50, 50, 52, ""},  // 152 / 3 = 50
      {"CWA Pair", 50, 50, 53, 50, 52, 50, 53, "The CWA Pair titles have gained in image."},
      {"CWA Pair", 30, 39, 40, 50, 48, 40, 40,
       "Ash gained overness from this match. The CWA Pair title has lost image."},
  };
  for (const Case& c : kCases) {
    Stage stage(WithTitles());
    stage.S.Kind = kMatch;
    stage.S.TitleName = c.Title;
    stage.Rate(0, 0, c.Overall);
    stage["Ash"].Over = c.Over1;
    stage["Bea"].Over = c.Over2;
    Title& title = Named(stage.W.Titles(), c.Title);
    title.Image = c.Image;
    MoveTitleImage(stage.Run);
    EXPECT_EQ(title.Image, c.ImageAfter) << c.Overall << "/" << c.Over1 << "/" << c.Image;
    EXPECT_EQ(stage.Overs(2), (std::vector<int>{c.After1, c.After2})) << c.Overall;
    EXPECT_EQ(stage.Run.Notes, c.Notes) << c.Overall << "/" << c.Over1 << "/" << c.Image;
  }
}

TEST(TitleImage, OfAVacantTitleLosesAQuarter) {
  Stage stage(WithTitles());
  Crown(stage).Holder = 0;
  Crown(stage).Image = 51;
  stage.S.TitleName = "CWA Crown";
  stage.Rate(0, 0, 100);
  MoveTitleImage(stage.Run);
  EXPECT_EQ(Crown(stage).Image, 38);
  EXPECT_EQ(stage.Run.Notes, "The CWA Crown title has lost image.");
}

/// Nobody's place on the card is looked at.
void SetAside(Stage& stage) {
  for (Worker& worker : stage.W.Workers()) worker.Position = kManager;
}

TEST(MatchConsequences, ComeInTheirOrder) {
  // The draws tell the order: wear of both, joy of the winner, Over by result, injuries. Win and
  // attack make the record a feud that pays.
  Stage stage(Eight().TagFeud("Ash", "Cal", "Bea", "Dot", [](Feud& feud) { feud.Clean2 = 2; }));
  SetAside(stage);
  stage.Match(kSingles, {"Ash", "Bea"}, kLadder);
  stage.Result("Ash", "Bea", kInterference);
  stage.S.Other1 = stage.Uid("Cal");
  stage.S.Purpose = purpose1::kEndFeud;
  stage["Bea"].Over = 61;
  stage.Run.Strain = 3;
  stage.Rate(40, 40);
  ScriptDraws(stage.W,
              {{7, 1}, {7, 7}, {3, 3}, {5, 2}, {5, 2}, {400, 2}, {400, 1}, {12, 2}, {6, 2}});
  MatchConsequences(stage.Run);
  EXPECT_EQ(stage["Ash"].Condition, 91);
  EXPECT_EQ(stage["Bea"].Condition, 85);
  EXPECT_EQ(stage["Ash"].Morale, 86) << "80, 3 for the match, 3 for the win";
  EXPECT_EQ(stage.Overs(4), (std::vector<int>{56, 61, 55, 51})) << "1 by luck, 2 and 3 by the feud";
  EXPECT_EQ(stage.W.Feuds()[1].Dirty1, 1);
  EXPECT_EQ(stage.W.Feuds()[1].Sneak1, 1);
  EXPECT_EQ(stage.W.Feuds()[1].Worker1, 0);
  EXPECT_EQ(
      stage.Run.Notes,
      "Bea lost overness from this match. Ash gained overness from this match. "
      "Ash gained overness from this feud ending. Cal gained overness from this feud ending. "
      "Bea gained overness from this feud ending. Dot gained overness from this feud ending. "
      "Bea has sustained an injury as a result of a bad bump! Broken Leg, out for 2 months. ");
}

TEST(MatchConsequences, OfADrawAreWearAndWhatAGreatMatchLifts) {
  Stage stage;
  SetAside(stage);
  stage.Match(kSingles, {"Bea", "Cal"});
  stage.Draw(kDoubleDq);
  stage["Cal"].Over = 90;
  stage.Rate(100, 100);
  ScriptDraws(stage.W, {{2, 1}, {2, 2}});
  MatchConsequences(stage.Run);
  EXPECT_EQ(stage["Ash"].Condition, 100) << "the number that stands for no loser is nobody";
  EXPECT_EQ(stage["Bea"].Condition, 96);
  EXPECT_EQ(stage["Cal"].Condition, 95);
  EXPECT_EQ(stage.Run.Notes, "Bea gained overness from this match. ");
}

TEST(MatchConsequences, ReachEveryMemberOfTheWinningSide) {
  struct Case {
    int Style, Draws;  // for wear
    std::vector<int> Morale;
  };
  const Case kCases[] = {{kThreeWay, 3, {50, 51, 50, 50, 50, 50, 50, 50}},
                         {kThreeTeams, 6, {51, 51, 50, 50, 50, 50, 50, 50}},
                         {kFourOnFour, 8, {51, 51, 51, 51, 50, 50, 50, 50}}};
  for (const Case& c : kCases) {
    Stage stage;
    SetAside(stage);
    for (Worker& worker : stage.W.Workers()) {
      worker.Morale = 50;
      worker.Attitude = 0;
    }
    stage.Match(c.Style, {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"}, 2);
    stage.S.Winner = stage.Uid("Bea");
    stage.Rate(40, 40);
    const int winners = 8 - static_cast<int>(std::count(c.Morale.begin(), c.Morale.end(), 50));
    ScriptDraws(stage.W, std::vector<int>(static_cast<std::size_t>(c.Draws + winners), 1));
    MatchConsequences(stage.Run);
    std::vector<int> morale;
    for (const Worker& worker : stage.W.Workers()) morale.push_back(worker.Morale);
    EXPECT_EQ(morale, c.Morale) << "style " << c.Style;
  }
}

TEST(MatchConsequences, OfABattleRoyalAreNone) {
  Stage stage(Eight().Feud("Ash", "Bea"));
  stage.Match(kSpecial, {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"}, kTenMan);
  stage.Result("Ash", "Bea");
  stage.Rate(95, 95);
  const World before = CopyOf(stage.W);
  ScriptDraws(stage.W, std::vector<int>{});
  MatchConsequences(stage.Run);
  ExpectSame(stage.W, before);
}

}  // namespace
}  // namespace grapplemont::test
