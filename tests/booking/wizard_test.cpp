#include "booking/wizard/wizard.h"

#include <gtest/gtest.h>

#include <map>

#include "booking/ring.h"
#include "booking/wizard/matchrules.h"
#include "booking/wizard/objections.h"

namespace grapplemont::test {
namespace {

using Lines = std::vector<std::string>;

/// A step on the record itself: what a screen would store.
using Stores = std::function<void(Segment&)>;

/// Does the steps one by one, then takes them back one by one: each time the record must be what it
/// was before.
void ExpectTakenBack(const std::vector<Stores>& steps) {
  Wizard wizard = BeginBooking(1, false);
  std::vector<Segment> before;
  for (const Stores& store : steps) {
    EXPECT_FALSE(wizard.SegmentComplete);
    before.push_back(wizard.Buffer);
    store(wizard.Buffer);
    StepDone(wizard);
  }
  EXPECT_TRUE(wizard.SegmentComplete);
  EXPECT_EQ(StepsOf(wizard.Buffer), static_cast<int>(steps.size()));
  for (int step = static_cast<int>(steps.size()) - 1; step >= 0; --step) {
    SCOPED_TRACE("step " + std::to_string(step));
    StepBack(wizard);
    EXPECT_EQ(wizard.Step, step);
    EXPECT_FALSE(wizard.SegmentComplete);
    ExpectSegment(wizard.Buffer, before[static_cast<std::size_t>(step)]);
  }
  StepBack(wizard);
  EXPECT_EQ(wizard.Step, 0);
}

std::vector<Stores> MatchUntilResult(int style, int type, int winner, std::vector<int> losers) {
  return {[](Segment& s) { s.Kind = kMatch; },
          [=](Segment& s) { s.Style = style; },
          [=](Segment& s) { s.MatchType = type; },
          [](Segment& s) {
            for (int i = 0; i < EntrantsOf(s); ++i) s.Worker[static_cast<std::size_t>(i)] = i + 1;
          },
          [](Segment& s) { s.TitleName = "Crown"; },
          [=](Segment& s) { StoreResult(s, winner, losers); }};
}

/// Finish and aftermath, each with its run-ins.
void AddEnding(std::vector<Stores>& steps, int finish, std::vector<int> finishRunIns, int aftermath,
               std::vector<int> runIns) {
  steps.push_back([=](Segment& s) {
    s.Finish = finish;
    if (!finishRunIns.empty()) s.Other1 = finishRunIns[0];
    if (finishRunIns.size() > 1) s.Other2 = finishRunIns[1];
  });
  steps.push_back([=](Segment& s) {
    s.Aftermath = aftermath;
    std::size_t at = 0;
    for (Word* runIn : AftermathRunIns(s)) *runIn = runIns[at++];
  });
  steps.push_back([](Segment& s) { s.Purpose = 1; });
}

TEST(StepBack, UndoesMatchesWhereverTheirRunInsStand) {
  for (const auto& [finish, finishRunIns, aftermath, runIns] :
       {std::tuple(kClean, std::vector<int>(), after1::kNothing, std::vector<int>()),
        std::tuple(kInterference, std::vector{9}, after1::kSave, std::vector{10}),
        std::tuple(kClean, std::vector<int>(), after1::kRunInOnBoth, std::vector{9})}) {
    auto steps = MatchUntilResult(kSingles, kPlainSingles, 2, {});
    AddEnding(steps, finish, finishRunIns, aftermath, runIns);
    ExpectTakenBack(steps);
  }
  auto tag = MatchUntilResult(kTag, kPlainTag, 1, {3});
  AddEnding(tag, kInterference, {5, 6}, after2::kSave, {7, 8});
  ExpectTakenBack(tag);
  ExpectTakenBack(MatchUntilResult(kFourTeams, 1, 1, {3, 5, 7}));
  ExpectTakenBack(MatchUntilResult(kSpecial, kRoyalRumble, 1, {30}));
  auto survivor = MatchUntilResult(kFourOnFour, kSurvivor, 1, {5, 2, 6, 3, 7, 4, 8});
  survivor.push_back([](Segment& s) { s.Finish = kCheapVictory; });
  ExpectTakenBack(survivor);
}

TEST(StepBack, UndoesInterviewsAndAngles) {
  ExpectTakenBack({[](Segment& s) { s.Kind = kInterview; },
                   [](Segment& s) { s.Style = kManagedTeamTalk; },
                   [](Segment& s) { s.Worker[0] = s.Worker[1] = s.Worker[2] = 1; },
                   [](Segment& s) { s.Worker[3] = s.Worker[4] = 4; },
                   [](Segment& s) { s.Purpose = kVerbalAttack; }});
  ExpectTakenBack(
      {[](Segment& s) { s.Kind = kAngle; }, [](Segment& s) { s.Style = 71; },
       [](Segment& s) { s.Worker[0] = 3, s.TitleName = "Crown", s.Text = "The Dock Rats"; }});
}

TEST(TextOfStep, TellsInterviewsAndAngles) {
  const World world = BookingRoster().Team("Odd Men", "Man 2", "Man 3").Game("CWA");
  struct Row {
    int Kind, Style, People, Step;
    const char* Says;
  };
  for (const Row& row :
       {Row{kInterview, kManagedTalk, 2, 1, "Interview Style = Single Worker With Manager"},
        Row{kInterview, kSingleTalk, 2, 3, "Targets = Man 2"},
        Row{kInterview, kSingleTalk, 1, 3, "Targets = None"},
        Row{kInterview, kManagedTalk, 2, 2, "Participants = Man 1 With Man 2"},
        Row{kInterview, kManagedTeamTalk, 5, 2, "Participants = Odd Men With Man 1"},
        Row{kInterview, kManagedTeamTalk, 5, 3, "Targets = Man 4 \\ Man 5"},
        Row{kInterview, kTeamTalk, 2, 4, "Purpose = Hype Upcoming Match"},
        Row{kAngle, 2, 2, 1, "Angle = Face To Face"}, Row{kAngle, 9, 2, 1, "Angle = Sit In"},
        Row{kAngle, 2, 2, 2, "Participants = Man 1, Man 2"}}) {
    Wizard wizard = BeginBooking(1, false);
    wizard.Buffer.Kind = row.Kind;
    wizard.Buffer.Style = row.Style;
    wizard.Buffer.Purpose = kHypeMatch;
    for (int i = 0; i < row.People; ++i) wizard.Buffer.Worker[static_cast<std::size_t>(i)] = i + 1;
    wizard.Step = 5;
    EXPECT_EQ(TextOfStep(world, wizard, row.Step).Summary, row.Says);
  }
}

TEST(frmBookSheet, OpensOnlyWhatIsDue) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Desk.Open(MakefrmBookSheet(play.Play, 2, false));
  const auto enabled = [&](const char* name) {
    Lines rows;
    for (int row = 0; row < 10; ++row)
      if (play.Desk.Enabled(std::string(name) + "(" + std::to_string(row) + ")"))
        rows.push_back(std::to_string(row));
    return rows;
  };
  EXPECT_EQ(enabled("cmdbook"), Lines{"0"});
  EXPECT_EQ(enabled("cmdback"), Lines());
  play.Desk.Click("cmdbook(0)");
  EXPECT_EQ(play.Desk.FirstColumn("lststyle"), (Lines{"Match", "Interview", "Angle"}));
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.Desk.TopName(), "frmBookSheet");
  EXPECT_EQ(enabled("cmdbook"), Lines{"1"});
  EXPECT_EQ(enabled("cmdback"), Lines{"0"});
  play.Desk.Click("cmdback(0)");
  EXPECT_EQ(play.Desk.Text("txtdesc(0)"), "");
  play.Desk.Click("cmdbook(0)");
  play.ChooseMatch("1 vs 1 vs 1", "Triangle");
  play.ChoosePeople({"Man 1", "Man 2", "Man 3"});
  play.Next();
  EXPECT_FALSE(
      static_cast<const ui::Button*>(play.Desk.Screens().front()->Find("cmdcomplete"))->Enabled);
  play.Desk.Click("cmddone");
  EXPECT_EQ(enabled("cmdbook"), Lines{"5"}) << "the last row stays open for going back";
  EXPECT_EQ(enabled("cmdback"), Lines{"5"});
  EXPECT_TRUE(play.Desk.Enabled("cmdcomplete"));
  for (const char* row : {"(6)", "(7)", "(8)", "(9)"}) {
    EXPECT_EQ(play.Desk.Text(std::string("txtstep") + row), "???");
    EXPECT_TRUE(play.Desk.Visible(std::string("txtstep") + row));
  }
  play.Desk.Click("cmdbook(5)");
  play.Desk.Pick("cmbwinner", "Man 2");
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.Desk.Text("txtdesc(5)"), "Result = Man 2 Wins");
  play.Desk.Click("cmdexit");
  EXPECT_EQ(play.Slot(2).Kind, kEmptySegment);
}

TEST(frmBookSheet, GoesBackToAStepAndKeepsWhatStillHolds) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.World().FindWorker(2)->Over = 95;
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  play.ChoosePeople({"Man 1", "Man 3"});
  play.Next();
  play.Desk.Pick("cmbwinner", "Man 1");
  for (int step = kResultStep; step < kPurposeStep; ++step) play.Next();
  EXPECT_EQ(play.Desk.Text("cmdnext"), "Complete Booking This Segment");
  play.Next();
  EXPECT_TRUE(play.Desk.Empty()) << "the last step leads to the sheet";
  ASSERT_EQ(DescribeSegment(play.World(), play.Slot()), "Man 1 over Man 3");

  play.Desk.Open(MakeEditSheet(play.Play, {1, false}));
  EXPECT_TRUE(play.Desk.Enabled("cmdcomplete")) << "every step is done";
  play.Desk.Click("cmdjump(3)");
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1");
  EXPECT_TRUE(play.Desk.Enabled("cmddone")) << "both are still chosen";
  EXPECT_EQ(play.Desk.Text("lblsofar(6)"), "Result = Man 1 Wins");
  play.Desk.Pick("lstwres2", "Man 4");
  play.Next();
  EXPECT_EQ(play.Desk.TopName(), "frmBookSheet");
  EXPECT_EQ(play.Desk.Text("txtdesc(5)"), "Result = Man 1 Wins");
  EXPECT_TRUE(play.Desk.Enabled("cmdcomplete"));

  // Who would object is asked, however much of the rest holds.
  play.Desk.Click("cmdjump(3)");
  play.Desk.Pick("lstwres2", "Man 2");
  play.Next();
  ASSERT_EQ(play.Desk.TopName(), "frmBook1vs1Winner");
  EXPECT_EQ(play.Desk.Text("cmbwinner"), "Man 1");
  EXPECT_EQ(play.Desk.Text("lblprice"), "Man 2 will hold it against you: morale -15, 80 to 65.");
  play.Desk.Pick("cmbwinner", "Man 2");
  play.Next();
  EXPECT_EQ(play.Desk.TopName(), "frmBookSheet");
  EXPECT_EQ(play.Slot().Worker[1], 3) << "nothing is written before the end";
  play.Complete();
  EXPECT_EQ(DescribeSegment(play.World(), play.Slot()), "Man 2 over Man 1");
}

TEST(frmBookSheet, KeepsThePicksOfAStepThatWasLeft) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  const std::string nobody = play.Desk.Text("lblwho");
  play.Desk.Pick("lstwres1", "Man 3");
  play.Desk.Pick("lstwres2", "Man 4");
  const std::string picked = play.Desk.Text("lblwho");
  ASSERT_NE(picked, nobody);
  play.Desk.Click("cmdback");
  ASSERT_EQ(play.Desk.TopName(), "frmBookSheet");
  play.Desk.Click("cmdbook(3)");
  EXPECT_EQ(play.Desk.Text("lblwho"), picked);
}

TEST(frmBookSheet, TakesMoraleOnceForARowThatIsEdited) {
  World world = BookingRoster().Game("CWA");
  Segment match = MatchOf(world, kSingles, kPlainSingles, {"Man 1", "Man 2"});
  StoreResult(match, 1, {});
  world.FindWorker(2)->Over = 85;
  world.FindWorker(2)->Attitude = 60;
  ApplyBookingGrievances(world, match);
  EXPECT_EQ(world.FindWorker(2)->Morale, 70);
  ApplyBookingGrievances(world, match, match);
  EXPECT_EQ(world.FindWorker(2)->Morale, 70);
  world.FindWorker(2)->Over = 100;
  Segment paid = match;
  StoreResult(paid, 2, {});
  ApplyBookingGrievances(world, match, paid);
  EXPECT_EQ(world.FindWorker(2)->Morale, 55) << "the row before cost them nothing";
}

TEST(frmBook1vs1, MarksWhatTheChoiceIsMadeOn) {
  World world = BookingRoster()
                    .Title("Crown", "Man 1")
                    .Team("Odd Men", "Man 2", "Man 3")
                    .Game("CWA")
                    .Feud("Man 1", "Man 2", [](Feud& feud) { feud.Heat = 64; });
  Named(world.Workers(), "Man 3").Condition = 24;
  Named(world.Workers(), "Man 4").Debuted = false;
  for (int bout = 0; bout < 3; ++bout) {
    HeldMatch held{};
    held.Promotion = world.PlayerUid();
    held.Winners = 1;
    held.Worker[0] = UidOf(world, "Man 7");
    held.Worker[1] = UidOf(world, "Man 8");
    world.Bouts().Append(held);
  }
  BookingPlay play(std::move(world));
  play.Desk.Event([&] {
    play.World().Segments()[2] = MatchOf(play.World(), kSingles, kPlainSingles, {"Man 5", "Man 6"});
  });
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  std::map<std::string, std::string> marks;
  for (const Lines& row : play.Desk.Rows("lstwres1")) marks[row.front()] = row[1];
  EXPECT_EQ(marks["Man 1"], "Champion, Feud 64");
  EXPECT_EQ(marks["Man 2"], "Feud 64, Team");
  EXPECT_EQ(marks["Man 3"], "Team, Tired");
  EXPECT_EQ(marks["Man 4"], "Debut");
  EXPECT_EQ(marks["Man 5"], "Row 2");
  EXPECT_EQ(marks["Man 7"], "Hot");
  EXPECT_EQ(marks["Man 8"], "");
  play.Desk.Pick("lstwres1", "Man 3");
  EXPECT_TRUE(play.Desk.Text("lblforecast")
                  .ends_with("%, with the most popular of the others in the free places"));
  EXPECT_EQ(play.Desk.Text("lblwho"), "Man 3: Over 60, condition 24, Team with Man 2, Tired");
  play.Desk.Click("cmdwhy");
  EXPECT_EQ(play.Desk.TopName(), "frmForecast");
  EXPECT_TRUE(play.Desk.Text("txtwhy").ends_with(" Overall Rating"));
  play.Desk.Click("cmdback");
  play.Desk.Pick("lstwres2", "Man 3");
  EXPECT_FALSE(play.Desk.Enabled("cmdnext")) << "the same on both sides";
  EXPECT_TRUE(play.Desk.Enabled("cmddone")) << "which says so in a box";
}

/// What Enter presses on the top screen.
std::string EnterPresses(const ScriptDesk& desk) {
  const ui::Page page = desk.Top()->Layout();
  const bool main = page.Main->Visible || !page.Then;
  return (main ? page.Main : page.Then)->Name();
}

TEST(frmBookSheet, IsLedToTheEndByItsMainButtonAlone) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Desk.Open(MakefrmBookSheet(play.Play, 1, false));
  EXPECT_FALSE(play.Desk.Enabled("cmdcomplete"));
  for (int step = 0; step < 9; ++step) {
    ASSERT_EQ(EnterPresses(play.Desk), "cmdstep");
    play.Desk.Click("cmdstep");
    if (step == kPeopleStep) {
      play.Desk.Pick("lstwres1", "Man 1");
      play.Desk.Pick("lstwres2", "Man 2");
    }
    play.Desk.Click("cmddone");
    ASSERT_EQ(play.Desk.TopName(), "frmBookSheet") << step;
  }
  EXPECT_FALSE(play.Desk.Visible("cmdstep"));
  EXPECT_EQ(EnterPresses(play.Desk), "cmdcomplete");
  play.Desk.Click("cmdback(8)");
  EXPECT_EQ(EnterPresses(play.Desk), "cmdstep") << "it is unfinished again";
  play.Desk.Click("cmdstep");
  play.Desk.Click("cmddone");
  play.Complete();
  EXPECT_EQ(DescribeSegment(play.World(), play.Slot()), "Man 1 over Man 2");
}

TEST(frmBookSheet, LimitsCompetitorsToASplit) {
  BookingPlay play(BookingRoster()
                       .Worker("Manager", kManager, 30)
                       .Worker("Cook", kNonWrestler, 30)
                       .Worker("Hurt",
                               [](Worker& w) {
                                 w.Status = "Inj";
                                 w.InjuryName = "Broken Leg";
                                 w.StatusMonths = 2;
                               })
                       .Game("CWA"));
  play.Desk.Event([&] {
    play.World().Player().Split[1] = "Red";
    Named(play.World().Workers(), "Man 4").Split = "Red";
    Named(play.World().Workers(), "Man 7").Split = "Red";
  });
  play.Desk.Open(MakefrmBookSheet(play.Play, 1, false));
  EXPECT_EQ(play.Desk.FirstColumn("cmbsplit"), (Lines{"All", "Red"}));
  play.Desk.Click("cmdbook(0)");
  play.ChooseMatch("1 vs 1", "Singles");
  Lines all = play.Desk.FirstColumn("lstwres1");
  EXPECT_EQ(all.size(), 17u);
  EXPECT_EQ(all.back(), "Manager") << "neither the injured nor the cook";
  play.Desk.Click("cmdback");
  play.Desk.Pick("cmbsplit", "Red");
  play.Desk.Click("cmdbook(3)");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres1"), (Lines{"Man 4", "Man 7"}));
  EXPECT_EQ(play.Desk.Rows("lstwres1")[0][3], "60") << "Over";
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdexit");
  OpenWizardAtOnce(play.Play, 1, true);
  play.ChooseMatch("1 vs 1", "Singles");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres2").back(), "Cook") << "at an Event";
}

}  // namespace
}  // namespace grapplemont::test
