#include "show/feudend.h"

#include <gtest/gtest.h>

#include "stage.h"

namespace grapplemont::test {
namespace {

using Record = std::array<int, 4>;  // clean, cheap, verbal, attacks

Change<Feud> Kept(const Record& a, const Record& b) {
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
  Record A, B;  // the blow-off included
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
  EXPECT_EQ(stage.Mails(), c.FirstWins ? mailA + mailB : mailB + mailA) << c.Why;
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
      {"only the last match counts", {2, 1, 0, 0}, {0, 1, 0, 0}, true, 2, -2, "", ""},
      {"no cheap win", {2, 0, 1, 0}, {0, 0, 0, 1}, true, -1, -5, "", ""},
      {"comeback", {1, 0, 0, 0}, {0, 4, 3, 0}, true, 9, 5, kTeamGreat, kTeamBoth},
      {"comeback of the others", {0, 4, 0, 3}, {1, 0, 0, 0}, false, 5, 9, kTeamBoth, kTeamGreat},
      {"too near for a comeback", {1, 0, 0, 0}, {0, 4, 2, 0}, true, 2, -2, "", ""},
      {"the one point is no clean win", {0, 1, 0, 0}, {0, 4, 3, 0}, true, 5, 1, "", ""},
      {"two points are no comeback", {2, 0, 0, 0}, {0, 4, 4, 0}, true, 5, 1, "", ""},
      {"three cheap wins are too few", {1, 0, 0, 0}, {1, 3, 3, 0}, true, 5, 1, "", ""},
      {"no long feud yet", {3, 1, 2, 1}, {3, 1, 1, 1}, true, 2, -2, "", ""},
      {"long", {3, 1, 2, 2}, {3, 1, 1, 1}, true, 9, 2, kTeamLong, ""},
      {"long, by the others", {3, 1, 2, 2}, {3, 1, 1, 1}, false, 2, 9, "", kTeamLong},
      {"long before even", {3, 1, 2, 1}, {3, 1, 2, 1}, true, 9, 2, kTeamLong, ""},
      {"even", {2, 1, 0, 0}, {2, 0, 0, 1}, true, 5, 1, "", ""},
      {"even, no cheap win", {2, 0, 0, 0}, {2, 0, 0, 0}, false, -2, 2, "", ""},
      {"rout", {4, 3, 0, 0}, {1, 0, 0, 0}, true, 6, -9, "", kTeamRout},
      {"nearly a rout", {4, 2, 0, 0}, {1, 0, 0, 0}, true, 2, -2, "", ""},
      {"the weak win", {0, 2, 0, 0}, {4, 0, 2, 2}, true, 5, 1, "", ""},
  };
  for (const Case& c : kCases) Expect(c, true);
}

TEST(EndFeud, OfSinglesPaysABitSooner) {
  const Case kCases[] = {
      {"barely begun", {1, 1, 0, 0}, {0, 1, 0, 0}, true, 0, 0, "", ""},
      {"comeback", {1, 0, 0, 0}, {0, 4, 3, 0}, true, 9, 5, kHelped, kGreat},
      {"no long feud yet", {3, 1, 2, 1}, {3, 1, 1, 0}, true, 2, -2, "", ""},
      {"long", {3, 1, 2, 1}, {3, 1, 1, 1}, false, 2, 9, "", kExcellent},
      {"even", {2, 1, 0, 0}, {2, 0, 0, 1}, true, 6, 2, "", ""},
      {"rout", {4, 3, 0, 0}, {1, 0, 0, 0}, true, 6, -9, "", kHated},
      {"the weak win", {0, 2, 0, 0}, {4, 0, 2, 2}, true, 5, 1, "", ""},
  };
  for (const Case& c : kCases) Expect(c, false);
}

TEST(EndFeud, IsToldWithinTheLimits) {
  Stage stage(Eight().Feud("Ash", "Cal", Kept({4, 3, 0, 0}, {1, 0, 0, 0})));
  stage.W.Game().Difficulty = kEasy;
  stage["Ash"].Over = 98;
  stage["Cal"].Over = 5;
  stage.Match(kSingles, {"Ash", "Cal"});
  stage.Result("Ash", "Cal");
  stage.S.Purpose = purpose1::kEndFeud;
  EndFeudByMatch(stage.Run);
  EXPECT_EQ(stage.Run.Notes,
            "Ash gained 2 points of overness from this feud ending. "
            "Cal lost 5 points of overness from this feud ending. ");
}

TEST(EndFeud, WithoutAWinnerPaysNobody) {
  Stage stage(Eight().Feud("Ash", "Cal", Kept({4, 3, 0, 0}, {1, 0, 0, 0})));
  stage.Match(kSingles, {"Ash", "Cal"});
  stage.Draw(kDoubleCountOut);
  stage.S.Purpose = purpose1::kEndFeud;
  EndFeudByMatch(stage.Run);
  EXPECT_EQ(stage.Overs(3), (std::vector<int>{50, 50, 50}));
  EXPECT_EQ(stage.Mails(), "");
  EXPECT_EQ(stage.W.Feuds()[1].Worker1, 0);
  EXPECT_TRUE(stage.Show.FeudTouched[0]);
}

TEST(EndFeud, NeedsItsPurposeAndTheRightPeople) {
  struct Ring {
    int Style, Purpose;
    std::initializer_list<const char*> People;
    bool Ends;
  };
  const Ring kRings[] = {
      {kSingles, purpose1::kEndFeud, {"Bea", "Dot"}, true},
      {kSingles, purpose1::kEndFeud, {"Ash", "Bea"}, false},
      {kSingles, purpose1::kEndFeud, {"Ash", "Eli"}, false},
      {kSingles, purpose1::kContinueFeud, {"Bea", "Dot"}, false},
      {kTag, purpose2::kEndFeud, {"Cal", "Dot", "Bea", "Ash"}, true},
      {kTag, purpose2::kEndFeud, {"Cal", "Ash", "Bea", "Dot"}, false},
      {kTag, purpose2::kEndFeud, {"Cal", "Dot", "Bea", "Eli"}, false},
      {kTag, purpose1::kEndFeud, {"Cal", "Dot", "Bea", "Ash"}, false},
      {kThreeWay, 4, {"Ash", "Cal", "Eli"}, false},
  };
  for (const Ring& ring : kRings) {
    Stage stage(Eight().TagFeud("Ash", "Bea", "Cal", "Dot"));
    stage.Match(ring.Style, ring.People);
    stage.Result(*ring.People.begin(), *std::prev(ring.People.end()));
    stage.S.Purpose = ring.Purpose;
    EndFeudByMatch(stage.Run);
    EXPECT_EQ(stage.W.Feuds()[1].Worker1 == 0, ring.Ends) << *ring.People.begin();
  }
  Stage stage(Eight().Feud("Ash", "Cal"));
  stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
  stage.Result("Ash", "Cal");
  stage.S.Purpose = purpose2::kEndFeud;
  EndFeudByMatch(stage.Run);
  EXPECT_NE(stage.W.Feuds()[1].Worker1, 0) << "a match of teams ends no feud of two men";
}

TEST(EndFeud, IsWrittenAboutByTemper) {
  const auto mails = [](bool isTeams, const Record& a, const Record& b, std::string_view name) {
    SmallWorld small = Eight();
    if (isTeams)
      small.TagFeud("Ash", "Bea", "Cal", "Dot", Kept(a, b));
    else
      small.Feud("Ash", "Cal", Kept(a, b));
    Stage stage(small.Build());
    for (Worker& worker : stage.W.Workers()) worker.Attitude = 60;
    stage["Ash"].Name = name;
    if (isTeams)
      stage.Match(kTag, {name == "Ash" ? "Ash" : "Maul Gantry", "Bea", "Cal", "Dot"});
    else
      stage.Match(kSingles, {name == "Ash" ? "Ash" : "Maul Gantry", "Cal"});
    stage.Result(name, "Cal");
    stage.S.Purpose = isTeams ? int{purpose2::kEndFeud} : int{purpose1::kEndFeud};
    EndFeudByMatch(stage.Run);
    return stage.W.News()[1].Body.Str();
  };
  const Record one = {1, 0, 0, 0}, many = {0, 4, 3, 0}, some = {4, 4, 0, 0};
  EXPECT_EQ(mails(true, one, many, "Ash"),
            "That last feud ruled, we hope the next one is just as good!");
  EXPECT_EQ(mails(true, some, many, "Ash"), "The previous feud was excellent.");
  EXPECT_EQ(mails(false, one, many, "Ash"),
            "That last feud rocked, it has helped my career a lot!");
  EXPECT_EQ(mails(false, one, many, "Maul Gantry"),
            "That last feud rocked, brother, Maulamania is running wilder than ever!");
  EXPECT_NE(mails(false, some, many, "Maul Gantry").find("the Maulster"), std::string::npos);
}

}  // namespace
}  // namespace grapplemont::test
