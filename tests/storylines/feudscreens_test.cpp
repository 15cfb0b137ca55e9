#include <gtest/gtest.h>

#include "storylines/feuds.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"
#include "ui/acts.h"

namespace grapplemont::test {
namespace {

constexpr const char* kEmptySlot = "<<<Empty Feud Slot>>>";

SmallWorld Roster() {
  SmallWorld small;
  small.Promotion("CWA")
      .Worker("Bram Okafor", kMainEvent, 80)
      .Worker("Ilya Marsh", kMidcard, 64, [](Worker& w) { w.Disposition = "H"; })
      .Worker("Cal Drift", kMidcard, 62)
      .Worker("Mouth", kManager, 60)
      .Worker("Low Down", kJobber, 20)
      .Worker("Hurt", kMainEvent, 99, [](Worker& w) { w.Status = "Sus", w.StatusMonths = 1; })
      .Worker("Trainee", kTrainingCamp, 98)
      .Team("Law and Order", "Bram Okafor", "Ilya Marsh")
      .Promotion("NEW")
      .Worker("Rival", kMainEvent, 97)
      .Game("CWA");
  return small;
}

void Fill(Feud& feud) {
  feud.Started = std::chrono::year{2026} / 2 / 19;
  feud.Heat = 57;
  int count = 0;
  for (Natural* field : {&feud.Clean1, &feud.Dirty1, &feud.Interference1, &feud.Sneak1,
                         &feud.Clean2, &feud.Dirty2, &feud.Interference2, &feud.Sneak2})
    *field = ++count;
}

TEST(frmFeuds, ShowsAllEightSlotsAndTheirNumbers) {
  GameOnWorld play(Roster()
                       .Feud("Bram Okafor", "Cal Drift", Fill)
                       .TagFeud("Ilya Marsh", "Bram Okafor", "Cal Drift", "Mouth"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmFeuds");
  const auto rows = desk.Rows("lstfeuds");
  ASSERT_EQ(rows.size(), 8u);
  EXPECT_EQ(rows[0], (Names{"Bram Okafor vs Cal Drift", "57", "10", "10 : 26"}));
  EXPECT_EQ(rows[1], (Names{"Law and Order vs Cal Drift \\ Mouth", "50", "0", "0 : 0"}));
  EXPECT_EQ(rows[7], (Names{kEmptySlot, "", "", ""}));
  EXPECT_EQ(desk.Text("lblfacts"), "2 of 8 feuds running.");
  EXPECT_EQ(desk.FirstColumn("lstscore"),
            (Names{"Clean wins", "Dirty wins", "Verbal attacks", "Sneak attacks", "Won"}));
  EXPECT_EQ(desk.Rows("lstscore")[2], (Names{"Verbal attacks", "3", "7"}));
  EXPECT_EQ(desk.FirstColumn("lstpeople"), (Names{"Bram Okafor", "Cal Drift"}));
  desk.Pick("lstfeuds", 3);
  EXPECT_EQ(desk.Text("cmdask"), "Start Feud");
  EXPECT_EQ(desk.Tip("cmdend"), "There is no feud in this slot.");
  EXPECT_TRUE(desk.Rows("lstscore").empty());
  EXPECT_EQ(desk.FirstColumn("lstpeople"), Names{"Low Down"}) << "the only one without a feud";
  desk.OpenRow("lstfeuds", 1);
  EXPECT_EQ(desk.Title(), "Bram Okafor vs Cal Drift");
  const std::pair<const char*, const char*> kShown[] = {
      {"txtclean1", "1"}, {"txtwon1", "10"},  {"txtdirty2", "6"},
      {"txtwon2", "26"},  {"txtheat", "57%"}, {"txtstarted", "19 February 2026"}};
  for (const auto& [control, text] : kShown) EXPECT_EQ(desk.Text(control), text) << control;
}

TEST(frmFeuds, EndsAFeudOffCamera) {
  GameOnWorld play(Roster().Feud("Ilya Marsh", "Low Down").Feud("Bram Okafor", "Cal Drift", Fill));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmMainScreen");
  desk.Click("cmdfeud");
  desk.Pick("lstfeuds", 2);
  desk.Click("cmdstat");
  ScriptDraws(play.World(), {{4, 1}, {4, 2}});
  desk.ExpectAsk("End Feud?", "End this feud off-camera?", true, ui::Default::No);
  desk.Click("cmdend");
  EXPECT_EQ(desk.TopName(), "frmFeuds");
  EXPECT_EQ(desk.FirstColumn("lstfeuds")[1], kEmptySlot);
  desk.Click("cmdback");
  EXPECT_EQ(desk.Text("imgmail"), "1 mail in all") << "the hub is up to date";
  EXPECT_EQ(Named(play.World().Workers(), "Bram Okafor").Over, 78);
  EXPECT_EQ(Named(play.World().Workers(), "Cal Drift").Over, 62);
}

TEST(frmFeudStart, KnowsWhoMayAndWhoBelongsTogether) {
  GameOnWorld play(Roster());
  ScriptDesk& desk = play.Desk;
  desk.Open("frmFeuds");
  desk.Pick("lstfeuds", 5);
  desk.Click("cmdask");
  EXPECT_EQ(desk.FirstColumn("lstwres1"),
            (Names{"Bram Okafor", "Ilya Marsh", "Cal Drift", "Mouth", "Low Down"}))
      << "who is fit and seen on the shows";
  desk.Pick("lstwres1", "Cal Drift");
  desk.Pick("lstwres2", "Ilya Marsh");
  EXPECT_EQ(desk.Text("lblheat"), "Starting heat 73%: mean Over 63, a Face against a Heel +10.");
  desk.Check("chksingles", false);
  desk.Pick("lstwres1", "Ilya Marsh");
  EXPECT_EQ(desk.Selected("lstwres2"), std::vector{1}) << "Bram Okafor, their partner";
  EXPECT_EQ(desk.Text("lblheat"), "Choose two teams of two.");
  desk.Pick("lstwres3", "Cal Drift");
  desk.Pick("lstwres4", "Mouth");
  for (const bool answer : {false, true}) {
    desk.ExpectAsk("Start?",
                   "Are you sure you wish to start a feud between Law and Order and Cal Drift \\ "
                   "Mouth?",
                   answer);
    desk.Click("cmdstart");
  }
  EXPECT_EQ(desk.Selected("lstfeuds"), std::vector{1}) << "the feud just started";
  EXPECT_EQ(desk.FirstColumn("lstfeuds")[0], "Law and Order vs Cal Drift \\ Mouth");
}

TEST(frmFeudStart, BeginsWithThoseWhoWereChosenBefore) {
  GameOnWorld play(Roster());
  ScriptDesk& desk = play.Desk;
  const auto start = [&desk](std::vector<int> rows) {
    desk.CloseAll();
    desk.Open("frmFeuds");
    EXPECT_EQ(ui::PickRows(desk, *desk.Top(), "lstpeople", std::move(rows)), "");
    desk.Click("cmdask");
  };
  start({2});
  EXPECT_EQ(desk.Selected("lstwres1"), std::vector{2});
  EXPECT_EQ(desk.Selected("lstwres2"), std::vector<int>());
  EXPECT_FALSE(desk.Enabled("cmdstart"));
  start({2, 3});
  EXPECT_EQ(desk.Text("lblheat"), "Starting heat 73%: mean Over 63, a Face against a Heel +10.");
  start({1, 2, 3, 4});
  desk.ExpectAsk("Start?",
                 "Are you sure you wish to start a feud between Law and Order and Cal Drift \\ "
                 "Mouth?",
                 true);
  desk.Click("cmdstart");
  EXPECT_EQ(desk.FirstColumn("lstfeuds")[0], "Law and Order vs Cal Drift \\ Mouth");
}

TEST(frmFeudStart, HearsOutWhatStandsAgainstIt) {
  GameOnWorld play(Roster());
  ScriptDesk& desk = play.Desk;
  Worker& bram = Named(play.World().Workers(), "Bram Okafor");
  desk.Open("frmFeudStart");
  desk.Pick("lstwres1", "Low Down");
  desk.Pick("lstwres2", "Low Down");
  EXPECT_EQ(desk.Text("lblwarning"), "Wrestlers cannot feud with themselves!");
  desk.ExpectSay("Error!", "Wrestlers cannot feud with themselves!");
  desk.Click("cmdstart");
  desk.Pick("lstwres2", "Bram Okafor");
  EXPECT_FALSE(desk.Visible("lblwarning"));
  const auto refuses = [&] {
    desk.ExpectSay(
        "Rejection!",
        "Bram Okafor: 'I am not willing to do this feud, Low Down is not in my league.'");
  };
  refuses();
  desk.ExpectAsk("Continue?", "Continue anyway?", false);
  desk.Click("cmdstart");
  bram.CreativeControl = true;
  refuses();
  desk.ExpectSay("Creative Control", "Bram Okafor has creative control, and refuses.");
  desk.Click("cmdstart");
  EXPECT_EQ(FreeFeudSlot(play.World()), 1);
  bram.CreativeControl = false;
  refuses();
  desk.ExpectAsk("Continue?", "Continue anyway?", true);
  desk.ExpectAsk("Start?", kAnyText, true);
  desk.Click("cmdstart");
  EXPECT_EQ(FreeFeudSlot(play.World()), 2);
}

}  // namespace
}  // namespace grapplemont::test
