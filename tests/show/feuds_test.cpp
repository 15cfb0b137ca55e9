#include "show/showfeuds.h"
#include "showrig.h"
#include "support/newsof.h"

namespace grapplemont::test {
namespace {

/// "1 0 0 2 : 0 0 1 0", clean, cheap, verbal and attacks of both sides.
std::string Record(const Feud& feud) {
  std::string text;
  for (const int count :
       {int(feud.Clean1), int(feud.Dirty1), int(feud.Interference1), int(feud.Sneak1)})
    text += std::to_string(count) + " ";
  text += ":";
  for (const int count :
       {int(feud.Clean2), int(feud.Dirty2), int(feud.Interference2), int(feud.Sneak2)})
    text += " " + std::to_string(count);
  return text;
}

TEST(TallyResult, CountsByStyleAndFinish) {
  constexpr std::string_view kCleanWin = "0 0 0 0 : 1 0 0 0", kCheapWin = "0 0 0 0 : 0 1 0 0",
                             kNothing = "0 0 0 0 : 0 0 0 0";
  constexpr struct {
    int Style, Type, Finish;
    std::string_view Record;
  } kCases[] = {
      {kSingles, 1, kCountOut, kCleanWin},
      {kTag, 1, kPartnerTurns, kCheapWin},
      {kThreeOnThree, 1, kCheapVictory, kCheapWin},
      {kFourOnFour, kPlainEightMan, kClean, kCleanWin},
      {kFourOnFour, kSurvivor, kClean, kNothing},
  };
  for (const auto& c : kCases) {
    Stage stage(Eight().Feud("Gus", "Hal").Feud("Ash", "Hal"));
    // Hal stands in the second side of every style.
    if (c.Style == kSingles)
      stage.Match(c.Style, {"Ash", "Hal"}, c.Type);
    else if (c.Style == kFourOnFour)
      stage.Match(c.Style, {"Ash", "Bea", "Cal", "Dot", "Hal", "Eli", "Fay", "Gus"}, c.Type);
    else
      stage.Match(c.Style, {"Ash", "Bea", "Cal", "Hal", "Eli", "Fay", "Gus", "Dot"}, c.Type);
    stage.Result("Hal", "Ash", c.Finish);  // Ash has the uid that stands for no loser
    TallyResult(stage.Run);
    EXPECT_EQ(Record(stage.W.Feuds()[2]), c.Record) << c.Style << "/" << c.Type << "/" << c.Finish;
    EXPECT_EQ(Record(stage.W.Feuds()[1]), kNothing);
    EXPECT_EQ(stage.Show.FeudTouched[1], c.Record != kNothing);
    stage.Draw(kDoubleDq);
    TallyResult(stage.Run);
    EXPECT_EQ(Record(stage.W.Feuds()[2]), c.Record) << "a draw counts nothing";
  }
}

TEST(Tallies, GoToTheFirstFeudAgainstWhoTakesTheFallAndToTheirSide) {
  Stage stage(Eight().TagFeud("Bea", "Ash", "Eli", "Dot").Feud("Ash", "Cal").Feud("Dot", "Ash"));
  stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
  stage.Result("Ash", "Dot");
  TallyResult(stage.Run);
  TallyVerbal(stage.Run, stage.Uid("Dot"), stage.Uid("Bea"));
  TallyVerbal(stage.Run, stage.Uid("Ash"), stage.Uid("Bea"));  // partners
  TallyVerbal(stage.Run, 0, stage.Uid("Bea"));
  EXPECT_EQ(Record(stage.W.Feuds()[1]), "1 0 0 0 : 0 0 1 0");
  EXPECT_EQ(Record(stage.W.Feuds()[2]), "0 0 0 0 : 0 0 0 0");
  EXPECT_EQ(Record(stage.W.Feuds()[3]), "0 0 0 0 : 0 0 0 0");
}

TEST(Tallies, CoolAFeudThatOneSideRunsAwayWith) {
  constexpr struct {
    int CleanA, CheapA, CleanB, CheapB;  // before a word of A's
    int Heat, After;
  } kCases[] = {
      {8, 0, 3, 0, 50, 50}, {9, 0, 4, 0, 50, 48}, {4, 0, 9, 0, 50, 48}, {3, 3, 1, 0, 50, 50},
      {3, 4, 1, 0, 50, 45}, {3, 4, 0, 1, 50, 50}, {1, 0, 3, 4, 50, 45}, {9, 0, 1, 0, 6, 0},
  };
  for (const auto& c : kCases) {
    Stage stage(Eight().Feud("Ash", "Bea", [&](Feud& feud) {
      feud.Clean1 = c.CleanA;
      feud.Dirty1 = c.CheapA;
      feud.Clean2 = c.CleanB;
      feud.Dirty2 = c.CheapB;
      feud.Heat = c.Heat;
    }));
    TallyVerbal(stage.Run, stage.Uid("Ash"), stage.Uid("Bea"));
    EXPECT_EQ(stage.W.Feuds()[1].Heat, c.After)
        << c.CleanA << "+" << c.CheapA << " : " << c.CleanB << "+" << c.CheapB;
    EXPECT_FALSE(stage.Show.FeudTouched[0]);
  }
}

/// A feud of everybody with everybody of the list would need more slots than there are, so each
/// pair gets a world of its own. "Eli>Ash" for each that was counted.
std::string Attacks(int style, int finish, int aftermath, bool isDraw,
                    std::vector<const char*> people) {
  std::string text;
  for (const char* by : people)
    for (const char* on : people) {
      if (by == on) continue;
      Stage stage(Eight().Feud(by, on));
      if (style == kSingles)
        stage.Match(kSingles, {"Ash", "Bea"});
      else
        stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
      if (isDraw)
        stage.Draw(finish);
      else
        stage.Result(style == kSingles ? "Bea" : "Cal", "Ash", finish);
      stage.S.Aftermath = aftermath;
      stage.S.Other1 = stage.Uid("Eli");
      stage.S.Other2 = stage.Uid("Fay");
      if (style == kTag) stage.S.Other3 = stage.Uid("Gus");
      if (style == kTag) stage.S.Other4 = stage.Uid("Hal");
      TallyAttacks(stage.Run);
      const Feud& feud = stage.W.Feuds()[1];
      EXPECT_EQ(feud.Heat, 50) << "attacks never cool";
      EXPECT_LE(feud.Sneak1, 1);
      if (feud.Sneak1 == 1) text += (text.empty() ? "" : " ") + std::string(by) + ">" + on;
    }
  return text;
}

TEST(TallyAttacks, OfSinglesComeFromRunInsAndAftermath) {
  constexpr struct {
    int Finish, Aftermath;
    bool IsDraw;
    std::string_view Attacks;  // Bea wins over Ash; Eli and Fay run in
  } kCases[] = {
      {kClean, 1, false, ""},
      {kInterference, 1, false, "Eli>Ash"},
      {kBotchedInterference, 1, false, "Bea>Eli"},
      {kNoContest, 1, true, "Eli>Ash Eli>Bea"},
      {kDqThroughInterference, 1, false, "Eli>Bea"},
      {kClean, 4, false, "Eli>Bea"},  // the winner, whoever was attacked
      {kClean, 6, false, "Eli>Ash Eli>Bea"},
      {kDoubleDq, 4, true, "Eli>Ash"},
      {kInterference, 26, false, "Eli>Ash Fay>Bea Fay>Eli"},
      {kBotchedInterference, 26, false, "Bea>Eli Fay>Ash Fay>Eli"},
      {kDqThroughInterference, 27, false, "Ash>Fay Eli>Bea Eli>Fay"},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(Attacks(kSingles, c.Finish, c.Aftermath, c.IsDraw, {"Ash", "Bea", "Eli", "Fay"}),
              c.Attacks)
        << "finish " << c.Finish << ", aftermath " << c.Aftermath;
}

TEST(TallyAttacks, OfTeamsGoPairByPair) {
  constexpr struct {
    int Finish, Aftermath;
    bool IsDraw;
    std::string_view Attacks;  // Cal and Dot beat Ash and Bea; Eli and Fay, Gus and Hal run in
  } kCases[] = {
      {kClean, 1, false, ""},
      {kInterference, 1, false, "Eli>Ash Fay>Bea"},
      {kBotchedInterference, 1, false, "Cal>Eli Dot>Fay"},
      {kNoContest, 1, true, "Eli>Ash Eli>Cal Fay>Bea Fay>Dot"},
      {kDoubleDq, 9, true, "Ash>Cal Bea>Dot"},
      {kInterference, 12, false, "Cal>Ash Dot>Bea Eli>Ash Eli>Bea Fay>Bea"},
      {kBotchedInterference, 13, false, "Ash>Eli Bea>Eli Cal>Eli Dot>Fay"},
      {kInterference, 18, false, "Eli>Ash Fay>Bea Gus>Cal Gus>Eli Hal>Dot Hal>Fay"},
      {kDqThroughInterference, 19, false, "Ash>Gus Bea>Hal Eli>Cal Eli>Gus Fay>Dot Fay>Hal"},
      {kClean, 21, false, "Gus>Ash Hal>Ash"},
      {kClean, 25, false, "Gus>Ash Hal>Bea"},
      {kClean, 27, false, "Gus>Ash Gus>Cal Hal>Bea Hal>Dot"},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(Attacks(kTag, c.Finish, c.Aftermath, c.IsDraw,
                      {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"}),
              c.Attacks)
        << "finish " << c.Finish << ", aftermath " << c.Aftermath;
}

using Counts = std::array<int, 4>;  // clean, cheap, verbal, attacks

Change<Feud> Kept(const Counts& a, const Counts& b) {
  return [=](Feud& feud) {
    feud.Clean1 = a[0];
    feud.Dirty1 = a[1];
    feud.Interference1 = a[2];
    feud.Sneak1 = a[3];
    feud.Clean2 = b[0];
    feud.Dirty2 = b[1];
    feud.Interference2 = b[2];
    feud.Sneak2 = b[3];
  };
}

struct Case {
  std::string_view Why;
  Counts A, B;  // the blow-off included
  bool FirstWins;
  int ChangeA, ChangeB;
  std::string_view MailA, MailB;  // after the winner's comes the loser's
};

constexpr std::string_view kTeamGreat = "Great feud, thanks for booking it.";
constexpr std::string_view kTeamBoth =
    "Great feud, that helped both us and our opponents get over.";
constexpr std::string_view kTeamLong = "That last feud was well booked, thank you.";
constexpr std::string_view kTeamRout = "That last feud sucked, we were much better off before.";
constexpr std::string_view kHelped = "That feud was excellent, it has really helped me.";
constexpr std::string_view kGreat = "The last feud was great, thanks.";
constexpr std::string_view kExcellent = "My last feud was excellent, it has helped me a lot.";
constexpr std::string_view kHated =
    "I hated the last feud, it has done a lot of damage to my image.";

void Expect(const Case& c, bool isTeams) {
  SmallWorld small = Eight();
  small.Team("The Kindling", "Ash", "Bea").Feud("Ash", "Hal");
  if (isTeams)
    small.TagFeud("Ash", "Bea", "Cal", "Dot", Kept(c.A, c.B));
  else
    small.Feud("Ash", "Cal", Kept(c.A, c.B));
  Stage stage(small.Build());
  for (Worker& worker : stage.W.Workers()) worker.Attitude = 61;
  if (isTeams)
    stage.Match(kTag, {"Dot", "Cal", "Ash", "Bea"});
  else
    stage.Match(kSingles, {"Cal", "Ash"});
  stage.Result(c.FirstWins ? "Ash" : "Cal", c.FirstWins ? "Cal" : "Ash");
  stage.S.Purpose = isTeams ? int{purpose2::kEndFeud} : int{purpose1::kEndFeud};
  EndFeudByMatch(stage.Run);

  const int a = 50 + c.ChangeA, b = 50 + c.ChangeB;
  EXPECT_EQ(stage.Overs(4),
            (isTeams ? std::vector<int>{a, a, b, b} : std::vector<int>{a, 50, b, 50}))
      << c.Why;
  const auto line = [](std::string_view name, std::string_view mail) {
    return mail.empty() ? "" : std::string(name) + ": " + std::string(mail) + "\n";
  };
  const std::string mailA = line(isTeams ? "The Kindling" : "Ash", c.MailA);
  const std::string mailB = line(isTeams ? "Cal \\ Dot" : "Cal", c.MailB);
  EXPECT_EQ(NewsOf(stage.W), c.FirstWins ? mailA + mailB : mailB + mailA) << c.Why;
  EXPECT_EQ(stage.W.Feuds()[2].Worker1, 0);
  EXPECT_EQ(stage.W.Feuds()[2].Worker4, 0);
  EXPECT_NE(stage.W.Feuds()[1].Worker1, 0);
  EXPECT_TRUE(stage.Show.FeudTouched[1]);
  EXPECT_FALSE(stage.Show.FeudTouched[0]);
  EXPECT_FALSE(stage.Run.FeudEnding);
}

TEST(EndFeud, OfTeamsPaysByTheFirstRuleThatFits) {
  const Case kCases[] = {
      {"barely begun", {1, 1, 0, 0}, {0, 1, 0, 0}, true, 0, 0, "", ""},
      {"no cheap win", {2, 0, 1, 0}, {0, 0, 0, 1}, true, -1, -5, "", ""},
      {"comeback", {1, 0, 0, 0}, {0, 4, 3, 0}, true, 9, 5, kTeamGreat, kTeamBoth},
      {"the one point is no clean win", {0, 1, 0, 0}, {0, 4, 3, 0}, true, 5, 1, "", ""},
      {"long", {3, 1, 2, 2}, {3, 1, 1, 1}, true, 9, 2, kTeamLong, ""},
      {"long before even", {3, 1, 2, 1}, {3, 1, 2, 1}, true, 9, 2, kTeamLong, ""},
      {"even", {2, 1, 0, 0}, {2, 0, 0, 1}, true, 5, 1, "", ""},
      {"rout", {4, 3, 0, 0}, {1, 0, 0, 0}, true, 6, -9, "", kTeamRout},
      {"the weak win", {0, 2, 0, 0}, {4, 0, 2, 2}, true, 5, 1, "", ""},
  };
  for (const Case& c : kCases) Expect(c, true);
}

TEST(EndFeud, OfSinglesPaysABitSooner) {
  const Case kCases[] = {
      {"comeback", {1, 0, 0, 0}, {0, 4, 3, 0}, true, 9, 5, kHelped, kGreat},
      {"no long feud yet", {3, 1, 2, 1}, {3, 1, 1, 0}, true, 2, -2, "", ""},
      {"long", {3, 1, 2, 1}, {3, 1, 1, 1}, false, 2, 9, "", kExcellent},
      {"even", {2, 1, 0, 0}, {2, 0, 0, 1}, true, 6, 2, "", ""},
      {"rout", {4, 3, 0, 0}, {1, 0, 0, 0}, true, 6, -9, "", kHated},
  };
  for (const Case& c : kCases) Expect(c, false);
}

TEST(EndFeud, NeedsItsPurposeAndTheRightPeople) {
  const struct {
    int Style, Purpose;
    std::initializer_list<const char*> People;
    bool Ends;
  } kRings[] = {
      {kSingles, purpose1::kEndFeud, {"Bea", "Dot"}, true},
      {kSingles, purpose1::kEndFeud, {"Ash", "Bea"}, false},
      {kSingles, purpose1::kContinueFeud, {"Bea", "Dot"}, false},
      {kTag, purpose2::kEndFeud, {"Cal", "Dot", "Bea", "Ash"}, true},
      {kTag, purpose2::kEndFeud, {"Cal", "Ash", "Bea", "Dot"}, false},
      {kTag, purpose1::kEndFeud, {"Cal", "Dot", "Bea", "Ash"}, false},
      {kTag, purpose2::kEndFeud, {"Eli", "Fay", "Gus", "Hal"}, false},  // of two, not of teams
  };
  for (const auto& ring : kRings) {
    Stage stage(Eight()
                    .TagFeud("Ash", "Bea", "Cal", "Dot", Kept({4, 3, 0, 0}, {1, 0, 0, 0}))
                    .Feud("Eli", "Gus"));
    stage.Match(ring.Style, ring.People);
    stage.Draw(kDoubleCountOut);
    stage.S.Purpose = ring.Purpose;
    EndFeudByMatch(stage.Run);
    EXPECT_EQ(stage.Overs(4), (std::vector<int>{50, 50, 50, 50})) << "without a winner";
    EXPECT_EQ(stage.W.Feuds()[1].Worker1 == 0, ring.Ends) << *ring.People.begin();
    EXPECT_NE(stage.W.Feuds()[2].Worker1, 0);
  }
}

TEST(EndFeud, IsWrittenAboutByTemper) {
  for (const auto& [name, begins] :
       {std::pair("Ash", "That last feud rocked, it has helped my career a lot!"),
        {"Maul Gantry", "That last feud rocked, brother, Maulamania is"}}) {
    Stage stage(Eight().Feud("Ash", "Cal", Kept({1, 0, 0, 0}, {0, 4, 3, 0})));
    stage["Ash"].Attitude = 60;
    stage.Match(kSingles, {"Ash", "Cal"});
    stage.Result("Ash", "Cal");
    stage["Ash"].Name = name;
    stage.S.Purpose = purpose1::kEndFeud;
    EndFeudByMatch(stage.Run);
    EXPECT_TRUE(stage.W.News()[1].Body.Str().starts_with(begins)) << name;
  }
}

}  // namespace
}  // namespace grapplemont::test
