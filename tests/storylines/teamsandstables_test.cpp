#include <gtest/gtest.h>

#include <tuple>

#include "records/angles.h"
#include "records/segments.h"
#include "storylines/partners.h"
#include "support/gameonworld.h"
#include "ui/acts.h"

namespace grapplemont::test {
namespace {

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

/// What is typed for a name, and what a box says against it.
using BadNames = std::vector<std::pair<std::string, std::string>>;
void ExpectRefused(ScriptDesk& desk, const BadNames& names, const char* button) {
  for (const auto& [typed, says] : names) {
    desk.Type("txtname", typed);
    desk.ExpectSay("Error!", says);
    desk.Click(button);
  }
}

TEST(frmStables, ShowsTakesInAndTakesOut) {
  GameOnWorld play(Roster());
  ScriptDesk& desk = play.Desk;
  World& world = play.World();
  world.FindWorker(1)->Status = "Sus";
  world.FindWorker(1)->StatusMonths = 1;
  Named(world.Workers(), "Cal").Stable = "";  // as good as none
  desk.Open("frmStables");
  EXPECT_EQ(desk.Rows("lststables"),
            (std::vector<Names>{{"The Firm", "2", "Bea"}, {"The Rest", "0", ""}}));
  EXPECT_EQ(desk.FirstColumn("lstmembers"), (Names{"Ash", "Bea"}));
  EXPECT_EQ(desk.Rows("lstmembers")[1][3], "Leader") << "the most popular who is fit";
  EXPECT_EQ(desk.FirstColumn("lstwres"), (Names{"Cal", "Dot", "Eve"}));
  desk.OpenRow("lstwres", "Cal");
  desk.Pick("lstmembers", "Ash");
  desk.Click("cmdremove");
  EXPECT_EQ(desk.FirstColumn("lstmembers"), (Names{"Bea", "Cal"}));
  desk.Pick("lststables", "The Rest");
  EXPECT_EQ(desk.Rows("lstwres")[1], (Names{"Bea", "60", "Face", "The Firm"}));
  desk.ExpectSay("Error!", "Bea belongs to The Firm. Take him out of it first.");
  desk.OpenRow("lstwres", "Bea");
  ExpectSound(world);
}

TEST(frmStables, FoundsRenamesOrRefuses) {
  GameOnWorld play(Roster());
  ScriptDesk& desk = play.Desk;
  desk.Open("frmStables");
  const BadNames names = {
      {"   ", "Type a name first."},
      {"Vacant", "\"Vacant\" has a meaning of its own and cannot be a name."},
      {"Twenty-six letters, really", "A name has at most 25 letters. This one has 26."},
      {" The Foes ", "There is a stable called The Foes already."}};
  for (const char* button : {"cmdcreate", "cmdrename"}) ExpectRefused(desk, names, button);
  EXPECT_EQ(play.World().Stables().Count(), 3);
  desk.Type("txtname", "  Twenty-five letters long ");
  desk.Click("cmdcreate");
  EXPECT_EQ(desk.Selected("lststables"), std::vector{3});
  const Stable& made = Named(play.World().Stables(), "Twenty-five letters long");
  EXPECT_EQ(made.Owner, play.World().PlayerUid());
  play.World().Stables().Rewrite(std::vector<Stable>(10000));
  play.World().Teams().Rewrite(std::vector<Team>(10000));
  EXPECT_EQ(WhyNotFound(play.World(), "The New"), "No more stables can be kept.");
  EXPECT_EQ(WhyNotTeam(play.World(), 1, 2), "No more teams can be kept.");
}

TEST(frmStables, RenameAndDissolveWhatIsBookedForThem) {
  GameOnWorld play(Roster());
  ScriptDesk& desk = play.Desk;
  World& world = play.World();
  const struct {
    int Kind, Style;
    const char* Text;
    int Rating;
    bool Goes;
  } kRows[] = {
      {kAngle, kStableAttack, "The Firm", 0, true},   {kAngle, kStableVideo, "The Firm", 0, true},
      {kAngle, kStableAttack, "The Rest", 0, false},  {kAngle, kWalking, "The Firm", 0, false},
      {kAngle, kStableAttack, "The Firm", 70, false}, {kInterview, kSingleTalk, "None", 0, false}};
  for (const auto& row : kRows) {
    Segment segment = EmptySegment();
    segment.Kind = row.Kind;
    segment.Style = row.Style;
    segment.Worker[0] = 3;
    segment.Text = row.Text;
    segment.Rating = row.Rating;
    world.Segments().Append(segment);
  }
  desk.Open("frmStables");
  desk.Type("txtname", "Ash and Co");
  desk.Click("cmdrename");
  EXPECT_EQ(desk.FirstColumn("lststables"), (Names{"Ash and Co", "The Rest"}));
  EXPECT_EQ(Named(world.Workers(), "Bea").Stable, "Ash and Co");
  int record = 0;
  for (const auto& row : kRows)
    EXPECT_EQ(world.Segments()[++record].Text, row.Goes ? "Ash and Co" : row.Text) << record;
  for (const bool answer : {false, true}) {
    desk.ExpectAsk("Dissolve?",
                   "Are you sure you wish to dissolve Ash and Co? The 2 segments that are booked "
                   "for it will be removed from the sheet.",
                   answer, ui::Default::No);
    desk.Click("cmddissolve");
    record = 0;
    for (const auto& row : kRows)
      EXPECT_EQ(world.Segments()[++record].Kind,
                row.Goes && answer ? int(kEmptySegment) : row.Kind);
  }
  desk.ExpectAsk("Dissolve?",
                 "Are you sure you wish to dissolve The Rest? The segment that is booked for it "
                 "will be removed from the sheet.",
                 true);
  desk.Click("cmddissolve");
  EXPECT_EQ(Named(world.Workers(), "Ash").Stable, "None");
  EXPECT_EQ(Named(world.Workers(), "Zed").Stable, "The Foes");
  EXPECT_EQ(world.Stables().Count(), 1);
}

TEST(frmStables, TakeInNobodyWithoutAStableAndNoEleventh) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Crew(12).Game("CWA"));
  World& world = play.World();
  play.Desk.Open("frmStables");
  play.Desk.OpenRow("lstwres", "CWA Hand 1");
  EXPECT_EQ(play.Desk.Tip("cmdadd"), "Choose a stable first.");
  EXPECT_EQ(WhyNotJoin(world, "", world.Workers()[1]), "Choose a stable first.");
  play.Desk.Type("txtname", "The Few");
  play.Desk.Click("cmdcreate");
  for (const auto& [list, act, members] :
       {std::tuple("lstwres", "cmdadd", 2U), {"lstmembers", "cmdremove", 0U}}) {
    EXPECT_EQ(ui::PickRows(play.Desk, *play.Desk.Top(), list, {1, 2}), "");
    play.Desk.Click(act);
    EXPECT_EQ(play.Desk.Rows("lstmembers").size(), members) << "all who are chosen";
  }
  for (int uid = 1; uid <= 10; ++uid) {
    EXPECT_EQ(WhyNotJoin(world, "The Crowd", *world.FindWorker(uid)), "");
    world.FindWorker(uid)->Stable = "The Crowd";
  }
  EXPECT_EQ(WhyNotJoin(world, "The Crowd", *world.FindWorker(11)),
            "The Crowd has ten members, and that is as many as a stable can have.");
  EXPECT_EQ(WhyNotJoin(world, "The Crowd", *world.FindWorker(1)),
            "CWA Hand 1 is in The Crowd already.");
}

TEST(frmTagTeams, ArmsRenamesAndDissolves) {
  SmallWorld small = Roster();
  GameOnWorld play(small.Team("Half Gone", "Ash", "Zed").Build());
  ScriptDesk& desk = play.Desk;
  desk.Open("frmTagTeams");
  EXPECT_EQ(desk.Rows("lstteams"),
            (std::vector<Names>{{"The Kindling", "Ash", "Bea", "Double Suplex", "50"}}));
  desk.Type("txtname", "Bonfire");
  desk.Click("cmdrename");
  desk.Type("txtfinisher", "");
  desk.Click("cmdfinisher");
  EXPECT_EQ(Named(play.World().Teams(), "Bonfire").Finisher, "None");
  desk.ExpectAsk("Dissolve?", "Are you sure you wish to dissolve Bonfire?", true, ui::Default::No);
  desk.Click("cmddissolve");
  EXPECT_TRUE(desk.Rows("lstteams").empty());
}

TEST(frmTagTeams, RefusesWhatIsNoTeam) {
  GameOnWorld play(Roster());
  ScriptDesk& desk = play.Desk;
  desk.Open("frmTagTeams");
  ExpectRefused(desk, {{"New Team", "These two are a team already: The Kindling."}}, "cmdcreate");
  desk.Pick("lstwres1", "Bea");
  ExpectRefused(desk, {{"New Team", "You have selected the same worker twice!"}}, "cmdcreate");
  desk.Pick("lstwres1", "Cal");
  const BadNames names = {{"", "Type a name first."},
                          {" The Others ", "There is a team called The Others already."}};
  for (const char* button : {"cmdcreate", "cmdrename"}) ExpectRefused(desk, names, button);
  desk.Type("txtfinisher", "Twenty-six letters, really");
  const std::string letters = "A name has at most 25 letters. This one has 26.";
  ExpectRefused(desk, {{"New Team", letters}}, "cmdcreate");
  ExpectRefused(desk, {{"New Team", letters}}, "cmdfinisher");
  EXPECT_EQ(play.World().Teams().Count(), 2);
  EXPECT_EQ(WhyNotTeam(play.World(), 1, 0), "Choose two workers.");
}

TEST(frmManagers, GivesAndTakes) {
  GameOnWorld play(Roster());
  ScriptDesk& desk = play.Desk;
  Worker& ash = Named(play.World().Workers(), "Ash");
  const int dot = Named(play.World().Workers(), "Dot").Uid;
  ash.Manager = Named(play.World().Workers(), "Zed").Uid;
  desk.Open("frmManagers");
  EXPECT_EQ(desk.Rows("lstclients")[0][3], "") << "that manager has left";
  EXPECT_EQ(desk.Tip("cmdtake"), "Choose a wrestler first.");
  desk.Pick("lstclients", "Ash");
  desk.Click("cmdtake");
  EXPECT_EQ(desk.Tip("cmdtake"), "Ash has no manager.");
  desk.Pick("lstmanagers", "Dot");
  desk.Click("cmdgive");
  EXPECT_EQ(desk.FirstColumn("lsthis"), Names{"Ash"});
  EXPECT_EQ(desk.Tip("cmdgive"), "Dot manages Ash already.");
  EXPECT_EQ(desk.Text("lblfacts"), "1 of 3 wrestlers has a manager.");
  desk.Pick("lstmanagers", "Eve");
  for (const bool answer : {false, true}) {
    EXPECT_EQ(ash.Manager, dot);
    desk.ExpectAsk("Managers", "Dot manages Ash. Shall Eve take over?", answer);
    desk.Click("cmdgive");
  }
  EXPECT_EQ(ash.Manager, dot + 1);
}

TEST(TurnAdvice, KnowsHowLongTheFansRemember) {
  World world = Roster();
  Worker& ash = world.Workers()[1];
  const std::string ready = TurnAdvice(world, ash);
  std::vector<int> changes;
  for (int days = 0; days <= 400; ++days) {
    const auto after = [&](int since) {
      ash.LastTurn = world.Today() - std::chrono::days{since};
      return TurnAdvice(world, ash);
    };
    if (after(days) != after(days + 1)) changes.push_back(days);
  }
  EXPECT_EQ(changes, (std::vector{90, 180, 365}));
  EXPECT_EQ(TurnAdvice(world, ash), ready) << "after long enough as if never";
}

}  // namespace
}  // namespace grapplemont::test
