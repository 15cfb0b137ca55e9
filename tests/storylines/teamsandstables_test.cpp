#include <gtest/gtest.h>

#include "records/angles.h"
#include "records/checks/checkworld.h"
#include "records/segments.h"
#include "storylines/partners.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

SmallWorld Roster() {
  SmallWorld small;
  small.Promotion("CWA")
      .Worker("Ash", kMainEvent, 80)
      .Worker("Bea", kMidcard, 60)
      .Worker("Cal", kMidcard, 50)
      .Worker("Dot", kManager, 40)
      .Worker("Eve", kManager, 30)
      .Worker("Far", kTrainingCamp, 20)
      .Team("The Kindling", "Ash", "Bea")
      .Stable("The Firm", {"Ash", "Bea"})
      .Stable("The Rest")
      .Promotion("NEW")
      .Worker("Zed", kMainEvent, 99)
      .Worker("Yan", kMainEvent, 98)
      .Team("The Others", "Zed", "Yan")
      .Stable("The Foes", {"Zed"})
      .Game("CWA");
  return small;
}

/// What a box of a message must say for each text that is no name.
struct BadName {
  std::string Typed;
  std::string Says;
};
std::vector<BadName> BadNames(const std::string& taken, const std::string& saysTaken) {
  return {{"", "Type a name first."},
          {"   ", "Type a name first."},
          {"None", "\"None\" stands for nothing at all and cannot be a name."},
          {"Vacant", "\"Vacant\" has a meaning of its own and cannot be a name."},
          {"Twenty-six letters, really", "A name has at most 25 letters. This one has 26."},
          {" " + taken + " ", saysTaken}};
}

void ExpectFaultless(const World& world) {
  for (const auto& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
}

TEST(frmStables, ShowsMembersAndLeaderOfThePlayersStables) {
  GameOnWorld play(Roster());
  play.World().FindWorker(1)->Status = "Sus";
  play.World().FindWorker(1)->StatusMonths = 1;
  play.Desk.Open("frmStables");
  EXPECT_EQ(play.Desk.Rows("lststables"),
            (std::vector<Names>{{"The Firm", "2", "Bea"}, {"The Rest", "0", ""}}));
  EXPECT_EQ(play.Desk.FirstColumn("lstmembers"), (Names{"Ash", "Bea"}));
  EXPECT_EQ(play.Desk.Rows("lstmembers")[1][3], "Leader");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), (Names{"Cal", "Dot", "Eve"}));
  play.Desk.Pick("lststables", "The Rest");
  EXPECT_TRUE(play.Desk.Rows("lstmembers").empty());
  EXPECT_EQ(play.Desk.Rows("lstwres")[0], (Names{"Ash", "Face", "80", "The Firm"}));
}

TEST(frmStables, RefusesBadNames) {
  const auto cases = BadNames("The Foes", "There is a stable called The Foes already.");
  for (const char* button : {"cmdcreate", "cmdrename"}) {
    GameOnWorld play(Roster());
    const World before = CopyOf(play.World());
    play.Desk.Open("frmStables");
    for (const BadName& c : cases) {
      play.Desk.Type("txtname", c.Typed);
      play.Desk.ExpectSay("Error!", c.Says);
      play.Desk.Click(button);
    }
    ExpectSame(play.World(), before);
  }
}

TEST(frmStables, FoundsRenamesAndDissolves) {
  GameOnWorld play(Roster());
  play.Desk.Open("frmStables");
  play.Desk.Type("txtname", "  Twenty-five letters long ");
  play.Desk.Click("cmdcreate");
  EXPECT_EQ(play.Desk.FirstColumn("lststables"),
            (Names{"The Firm", "The Rest", "Twenty-five letters long"}));
  EXPECT_EQ(play.Desk.Selected("lststables"), std::vector{3});
  EXPECT_EQ(Named(play.World().Stables(), "Twenty-five letters long").Owner,
            play.World().PlayerUid());

  Segment booked;
  booked.Kind = kAngle;
  booked.Style = kStableAttack;
  booked.Text = "The Firm";
  play.World().Segments().Append(booked);
  booked.Rating = 70;
  play.World().Segments().Append(booked);
  play.Desk.Pick("lststables", "The Firm");
  EXPECT_EQ(play.Desk.Text("txtname"), "The Firm");
  play.Desk.Click("cmdrename");  // its own name: nothing to do
  play.Desk.Type("txtname", "Ash and Co");
  play.Desk.Click("cmdrename");
  EXPECT_EQ(play.Desk.FirstColumn("lstmembers"), (Names{"Ash", "Bea"}));
  EXPECT_EQ(Named(play.World().Workers(), "Bea").Stable, "Ash and Co");
  EXPECT_EQ(play.World().Segments()[1].Text, "Ash and Co");
  EXPECT_EQ(play.World().Segments()[2].Text, "The Firm") << "a show that was held stays";

  play.Desk.ExpectAsk("Dissolve?",
                      "Are you sure you wish to dissolve Ash and Co? The segment that is booked "
                      "for it will be removed from the sheet.",
                      false, ui::Default::No);
  play.Desk.Click("cmddissolve");
  EXPECT_EQ(play.World().Stables().Count(), 4);
  play.Desk.ExpectAsk("Dissolve?", kAnyText, true);
  play.Desk.Click("cmddissolve");
  EXPECT_EQ(play.Desk.FirstColumn("lststables"), (Names{"The Rest", "Twenty-five letters long"}));
  EXPECT_EQ(Named(play.World().Workers(), "Ash").Stable, "None");
  EXPECT_EQ(Named(play.World().Workers(), "Zed").Stable, "The Foes");
  play.World().Segments().Remove();
  ExpectFaultless(play.World());
}

TEST(frmStables, TakesWhatIsBookedForItOffTheSheet) {
  GameOnWorld play(Roster());
  struct Row {
    int Kind, Style;
    const char* Text;
    int Rating;
    bool Goes;
  };
  const Row kRows[] = {
      {kAngle, kStableAttack, "The Firm", 0, true},   {kAngle, kStableVideo, "The Firm", 0, true},
      {kAngle, kStableAttack, "The Rest", 0, false},  {kAngle, kWalking, "The Firm", 0, false},
      {kAngle, kStableAttack, "The Firm", 70, false}, {kInterview, kSingleTalk, "None", 0, false}};
  for (const Row& row : kRows) {
    Segment segment = EmptySegment();
    segment.Kind = row.Kind;
    segment.Style = row.Style;
    segment.Worker[0] = 3;
    segment.Text = row.Text;
    segment.Rating = row.Rating;
    play.World().Segments().Append(segment);
  }
  play.Desk.Open("frmStables");
  const auto dissolve = [&](const char* stable, const std::string& price, bool yes) {
    play.Desk.Pick("lststables", stable);
    play.Desk.ExpectAsk("Dissolve?",
                        "Are you sure you wish to dissolve " + std::string(stable) + "?" + price,
                        yes, ui::Default::No);
    play.Desk.Click("cmddissolve");
  };
  const char* two = " The 2 segments that are booked for it will be removed from the sheet.";
  dissolve("The Firm", two, false);
  EXPECT_EQ(play.World().Segments()[1].Kind, kAngle);
  dissolve("The Firm", two, true);
  int record = 0;
  for (const Row& row : kRows) {
    EXPECT_EQ(play.World().Segments()[++record].Kind, row.Goes ? int(kEmptySegment) : row.Kind);
    EXPECT_EQ(play.World().Segments()[record].Text, row.Goes ? "None" : row.Text) << record;
  }
  dissolve("The Rest", " The segment that is booked for it will be removed from the sheet.", true);
  EXPECT_EQ(play.World().Segments()[3].Kind, kEmptySegment);
}

TEST(frmStables, TakesInAndOut) {
  GameOnWorld play(Roster());
  play.Desk.Open("frmStables");
  EXPECT_FALSE(play.Desk.Enabled("cmdadd"));
  EXPECT_EQ(play.Desk.Tip("cmdadd"), "Choose somebody of this list first.");
  play.Desk.Pick("lstwres", "Dot");
  play.Desk.Click("cmdadd");
  EXPECT_EQ(play.Desk.FirstColumn("lstmembers"), (Names{"Ash", "Bea", "Dot"}));
  play.Desk.Pick("lstmembers", "Ash");
  play.Desk.Click("cmdremove");
  EXPECT_EQ(play.Desk.FirstColumn("lstmembers"), (Names{"Bea", "Dot"}));
  play.Desk.Pick("lststables", "The Rest");
  play.Desk.ExpectSay("Error!", "Bea belongs to The Firm. Take him out of it first.");
  play.Desk.OpenRow("lstwres", "Bea");
  ExpectFaultless(play.World());
}

TEST(frmStables, TakesNobodyInWhileNoneIsChosen) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Crew(2).Game("CWA"));
  const World before = CopyOf(play.World());
  play.Desk.Open("frmStables");
  play.Desk.OpenRow("lstwres", "CWA Hand 1");
  EXPECT_EQ(play.Desk.Tip("cmdadd"), "Choose a stable first.");
  ExpectSame(play.World(), before);
  EXPECT_EQ(WhyNotJoin(play.World(), "", play.World().Workers()[1]), "Choose a stable first.");
}

TEST(frmStables, TakesABlankForNoStable) {
  GameOnWorld play(Roster());
  Worker& cal = Named(play.World().Workers(), "Cal");
  cal.Stable = "";
  play.Desk.Open("frmStables");
  play.Desk.OpenRow("lstwres", "Cal");
  EXPECT_EQ(cal.Stable, "The Firm");
}

TEST(StoryFiles, TakeNothingMoreOnceTheyAreFull) {
  World world = Roster();
  world.Stables().Rewrite(std::vector<Stable>(10000));
  world.Teams().Rewrite(std::vector<Team>(10000));
  EXPECT_EQ(WhyNotFound(world, "The New"), "No more stables can be kept.");
  EXPECT_EQ(WhyNotTeam(world, 1, 2), "No more teams can be kept.");
  EXPECT_EQ(WhyNotStableName(world, "The New"), "");
  EXPECT_EQ(WhyNotTeamName(world, "The New"), "");
}

TEST(frmStables, TakesInNoEleventhMember) {
  SmallWorld small;
  small.Promotion("CWA").Crew(12).Stable("The Crowd").Game("CWA");
  GameOnWorld play(small.Build());
  for (int uid = 1; uid <= 9; ++uid) play.World().FindWorker(uid)->Stable = "The Crowd";
  play.Desk.Open("frmStables");
  play.Desk.OpenRow("lstwres", "CWA Hand 10");
  EXPECT_EQ(play.Desk.Rows("lstmembers").size(), 10u);
  play.Desk.Pick("lstwres", "CWA Hand 11");
  play.Desk.ExpectSay("Error!",
                      "The Crowd has ten members, and that is as many as a stable can have.");
  play.Desk.Click("cmdadd");
  EXPECT_EQ(play.Desk.Rows("lstmembers").size(), 10u);
}

TEST(frmTagTeams, ShowsTheTeamsThatWorkForThePlayer) {
  SmallWorld small = Roster();
  GameOnWorld play(small.Team("Half Gone", "Ash", "Zed").Build());
  play.World().Teams()[1].Experience = 17;
  play.Desk.Open("frmTagTeams");
  EXPECT_EQ(play.Desk.Rows("lstteams").size(), 1u);
  EXPECT_EQ(play.Desk.Rows("lstteams")[0][0], "The Kindling");
  EXPECT_EQ(play.Desk.Rows("lstteams")[0][4], "17");
  EXPECT_EQ(play.Desk.Text("lblpair"), "Ash and Bea");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres2"), (Names{"Ash", "Bea", "Cal", "Dot", "Eve"}));
}

TEST(frmTagTeams, FormsATeam) {
  GameOnWorld play(Roster());
  play.Desk.Open("frmTagTeams");
  play.Desk.Pick("lstwres1", "Cal");
  play.Desk.Pick("lstwres2", "Ash");
  play.Desk.Type("txtname", "Cash");
  play.Desk.Type("txtfinisher", " Payday ");
  play.Desk.Click("cmdcreate");
  EXPECT_EQ(play.Desk.Rows("lstteams")[1], (Names{"Cash", "Cal", "Ash", "Payday", "0"}));
  const Team& team = Named(play.World().Teams(), "Cash");
  EXPECT_EQ(team.Worker1, Named(play.World().Workers(), "Cal").Uid);
  EXPECT_EQ(team.Experience, 0);
  ExpectFaultless(play.World());
}

TEST(frmTagTeams, RefusesWhatIsNoTeam) {
  GameOnWorld play(Roster());
  play.Desk.Open("frmTagTeams");
  const World before = CopyOf(play.World());
  const auto tries = [&](const char* one, const char* other, const char* says) {
    play.Desk.Pick("lstwres1", one);
    play.Desk.Pick("lstwres2", other);
    play.Desk.Type("txtname", "New Team");
    play.Desk.ExpectSay("Error!", says);
    play.Desk.Click("cmdcreate");
  };
  tries("Cal", "Cal", "You have selected the same worker twice!");
  tries("Bea", "Ash", "These two are a team already: The Kindling.");
  play.Desk.Pick("lstwres1", "Cal");
  for (const BadName& c : BadNames("The Others", "There is a team called The Others already.")) {
    play.Desk.Type("txtname", c.Typed);
    play.Desk.ExpectSay("Error!", c.Says);
    play.Desk.Click("cmdcreate");
    play.Desk.ExpectSay("Error!", c.Says);
    play.Desk.Click("cmdrename");
  }
  play.Desk.Type("txtname", "New Team");
  play.Desk.Type("txtfinisher", "Twenty-six letters, really");
  for (const char* button : {"cmdcreate", "cmdfinisher"}) {
    play.Desk.ExpectSay("Error!", "A name has at most 25 letters. This one has 26.");
    play.Desk.Click(button);
  }
  ExpectSame(play.World(), before);
}

TEST(frmTagTeams, AsksForTwoWorkers) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Crew(2).Game("CWA"));
  play.Desk.Open("frmTagTeams");
  play.Desk.Type("txtname", "The Hands");
  play.Desk.Pick("lstwres1", "CWA Hand 1");
  play.Desk.ExpectSay("Error!", "Choose two workers.");
  play.Desk.Click("cmdcreate");
  for (const char* button : {"cmdrename", "cmdfinisher", "cmddissolve"})
    EXPECT_EQ(play.Desk.Tip(button), "Choose a team first.");
}

TEST(frmTagTeams, RenamesArmsAndDissolves) {
  GameOnWorld play(Roster());
  play.Desk.Open("frmTagTeams");
  play.Desk.Type("txtname", "Bonfire");
  play.Desk.Click("cmdrename");
  play.Desk.Type("txtfinisher", "Backdraft");
  play.Desk.Click("cmdfinisher");
  EXPECT_EQ(play.World().Teams()[1].Name, "Bonfire");
  EXPECT_EQ(play.World().Teams()[1].Finisher, "Backdraft");
  play.Desk.Type("txtfinisher", "");
  play.Desk.Click("cmdfinisher");
  EXPECT_EQ(play.World().Teams()[1].Finisher, "None");
  play.Desk.ExpectAsk("Dissolve?", "Are you sure you wish to dissolve Bonfire?", false,
                      ui::Default::No);
  play.Desk.Click("cmddissolve");
  play.Desk.ExpectAsk("Dissolve?", kAnyText, true);
  play.Desk.Click("cmddissolve");
  EXPECT_TRUE(play.Desk.Rows("lstteams").empty());
  ASSERT_EQ(play.World().Teams().Count(), 1);
  EXPECT_EQ(play.World().Teams()[1].Name, "The Others");
}

TEST(frmManagers, GivesAndTakes) {
  GameOnWorld play(Roster());
  Worker& ash = Named(play.World().Workers(), "Ash");
  const int dot = Named(play.World().Workers(), "Dot").Uid;
  const int eve = Named(play.World().Workers(), "Eve").Uid;
  play.Desk.Open("frmManagers");
  EXPECT_EQ(play.Desk.FirstColumn("lstclients"), (Names{"Ash", "Bea", "Cal"}));
  EXPECT_EQ(play.Desk.FirstColumn("lstmanagers"), (Names{"Dot", "Eve"}));
  EXPECT_EQ(play.Desk.Tip("cmdgive"), "Choose a wrestler and a manager first.");
  EXPECT_EQ(play.Desk.Tip("cmdtake"), "Choose a wrestler first.");
  play.Desk.Pick("lstclients", "Ash");
  EXPECT_EQ(play.Desk.Tip("cmdtake"), "Ash has no manager.");
  play.Desk.Pick("lstmanagers", "Dot");
  play.Desk.Click("cmdgive");
  EXPECT_EQ(ash.Manager, dot);
  EXPECT_EQ(play.Desk.Rows("lstclients")[0][3], "Dot");
  EXPECT_EQ(play.Desk.FirstColumn("lsthis"), Names{"Ash"});
  EXPECT_EQ(play.Desk.Tip("cmdgive"), "Dot manages Ash already.");
  play.Desk.Pick("lstmanagers", "Eve");
  const char* text = "Dot manages Ash. Shall Eve take over?";
  play.Desk.ExpectAsk("Managers", text, false);
  play.Desk.Click("cmdgive");
  EXPECT_EQ(ash.Manager, dot);
  play.Desk.ExpectAsk("Managers", text, true);
  play.Desk.Click("cmdgive");
  EXPECT_EQ(ash.Manager, eve);
  EXPECT_EQ(play.Desk.Text("lblfacts"), "1 of 3 wrestlers has a manager.");
  play.Desk.Click("cmdtake");
  EXPECT_EQ(ash.Manager, 0);
  EXPECT_EQ(play.Desk.Text("lblfacts"), "0 of 3 wrestlers have a manager.");
}

TEST(frmManagers, TakesNoOneForAManagerWhoHasLeft) {
  GameOnWorld play(Roster());
  Worker& ash = Named(play.World().Workers(), "Ash");
  ash.Manager = Named(play.World().Workers(), "Zed").Uid;
  play.Desk.Open("frmManagers");
  EXPECT_EQ(play.Desk.Rows("lstclients")[0][3], "");
  play.Desk.Pick("lstclients", "Ash");
  play.Desk.Click("cmdtake");
  EXPECT_EQ(ash.Manager, 0);
}

TEST(frmTurn, PreparesAndCallsOff) {
  GameOnWorld play(Roster());
  Worker& ash = Named(play.World().Workers(), "Ash");
  ash.LastTurn = kGameStart - std::chrono::days{40};
  play.Desk.Open("frmTurn");
  EXPECT_EQ(play.Desk.Rows("lstwres")[0], (Names{"Ash", "Face", "80", "20 January 2026", ""}));
  EXPECT_EQ(play.Desk.Rows("lstwres")[1][3], "Never");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "No turn is being prepared.");
  EXPECT_EQ(play.Desk.Text("cmdturn"), "Prepare A Turn");
  play.Desk.Click("cmdturn");
  EXPECT_TRUE(ash.TurnPending);
  EXPECT_EQ(play.Desk.Rows("lstwres")[0][4], "Turn pending");
  EXPECT_EQ(play.Desk.Text("cmdturn"), "Call The Turn Off");
  EXPECT_NE(play.Desk.Text("txtturn").find("Face, turned 40 days ago."), std::string::npos);
  play.Desk.OpenRow("lstwres", "Bea");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "2 turns are being prepared.");
  play.Desk.Pick("lstwres", "Ash");
  play.Desk.Click("cmdturn");
  EXPECT_FALSE(ash.TurnPending);
}

TEST(TurnAdvice, KnowsHowLongTheFansRemember) {
  const std::pair<int, const char*> kCases[] = {
      {0, "not care"},    {90, "not care"},   {91, "most likely"}, {180, "most likely"},
      {181, "Some fans"}, {365, "Some fans"}, {366, "ready"}};
  World world = Roster();
  Worker& ash = Named(world.Workers(), "Ash");
  EXPECT_NE(TurnAdvice(world, ash).find("ready"), std::string::npos);
  for (const auto& [days, words] : kCases) {
    ash.LastTurn = world.Today() - std::chrono::days{days};
    EXPECT_NE(TurnAdvice(world, ash).find(words), std::string::npos) << days;
  }
}

}  // namespace
}  // namespace grapplemont::test
