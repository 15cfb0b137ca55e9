#include "show/runsegment.h"
#include "show/titlechange.h"
#include "showrig.h"

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
  constexpr struct {
    int Style, Finish;
    bool Changes;
  } kCases[] = {
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
  for (const auto& c : kCases) {
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
