#include <gtest/gtest.h>

#include "storylines/feuds.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

constexpr const char* kEmptySlot = "<<<Empty Feud Slot>>>";

SmallWorld Roster() {
  SmallWorld small;
  small.Promotion("CWA")
      .Worker("Bram Okafor", kMainEvent, 80)
      .Worker("Ilya Marsh", kMidcard, 64, [](Worker& w) { w.Disposition = "H"; })
      .Worker("Cal Drift", kMidcard, 62)
      .Worker("Dot Hale", kMidcard, 60)
      .Worker("Low Down", kJobber, 20)
      .Team("Law and Order", "Bram Okafor", "Ilya Marsh")
      .Game("CWA");
  return small;
}

Change<Feud> Begun(Day day) {
  return [day](Feud& feud) {
    feud.Started = day;
    feud.Heat = 57;
    feud.Clean1 = 1;
    feud.Dirty1 = 2;
    feud.Interference1 = 3;
    feud.Sneak1 = 4;
    feud.Clean2 = 5;
    feud.Dirty2 = 6;
    feud.Interference2 = 7;
    feud.Sneak2 = 8;
  };
}

/// The hub below shows that a management screen returns to it.
GameOnWorld& OnFeuds(GameOnWorld& play) {
  play.Desk.Open("frmMainScreen");
  play.Desk.Click("cmdfeud");
  EXPECT_EQ(play.Desk.TopName(), "frmFeuds");
  return play;
}

void PickSingles(ScriptDesk& desk, const char* one, const char* two) {
  desk.Check("chksingles", true);
  desk.Pick("lstwres1", one);
  desk.Pick("lstwres2", two);
}

TEST(frmFeuds, ShowsAllEightSlots) {
  GameOnWorld play(Roster()
                       .Feud("Bram Okafor", "Cal Drift", Begun(std::chrono::year{2026} / 2 / 19))
                       .TagFeud("Ilya Marsh", "Bram Okafor", "Cal Drift", "Dot Hale"));
  OnFeuds(play);
  const auto rows = play.Desk.Rows("lstfeuds");
  ASSERT_EQ(rows.size(), 8u);
  EXPECT_EQ(rows[0], (Names{"Bram Okafor vs Cal Drift", "57", "10", "10", "26"}));
  EXPECT_EQ(rows[1], (Names{"Law and Order vs Cal Drift \\ Dot Hale", "50", "0", "0", "0"}));
  for (std::size_t slot = 2; slot < 8; ++slot)
    EXPECT_EQ(rows[slot], (Names{kEmptySlot, "", "", "", ""}));
  EXPECT_EQ(play.Desk.Text("lblfacts"), "2 of 8 feuds running.");
  EXPECT_EQ(play.Desk.FirstColumn("lstscore"),
            (Names{"Clean wins", "Dirty wins", "Verbal attacks", "Sneak attacks", "Won"}));
  EXPECT_EQ(play.Desk.Rows("lstscore")[2], (Names{"Verbal attacks", "3", "7"}));
}

TEST(frmFeuds, OffersWhatTheSelectedSlotAllows) {
  GameOnWorld play(Roster().Feud("Bram Okafor", "Cal Drift"));
  OnFeuds(play);
  EXPECT_EQ(play.Desk.Text("cmdask"), "Ask Maeve");
  EXPECT_TRUE(play.Desk.Enabled("cmdend"));
  play.Desk.Click("cmdask");
  EXPECT_EQ(play.Desk.Text("txtmaeve"),
            "You need to build this rivalry up more. Use matches, interviews and angles to heat "
            "things up.");
  play.Desk.Pick("lstfeuds", 2);
  EXPECT_EQ(play.Desk.Text("cmdask"), "Start Feud");
  EXPECT_EQ(play.Desk.Text("txtmaeve"), "");
  EXPECT_FALSE(play.Desk.Enabled("cmdend"));
  EXPECT_FALSE(play.Desk.Enabled("cmdstat"));
  EXPECT_TRUE(play.Desk.Rows("lstscore").empty());
  play.Desk.OpenRow("lstfeuds", 3);
  EXPECT_EQ(play.Desk.TopName(), "frmFeudStart");
  play.Desk.Click("cmdback");
  play.Desk.OpenRow("lstfeuds", 1);
  EXPECT_EQ(play.Desk.TopName(), "frmFeudStat");
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
}

TEST(frmFeuds, EndsAFeudOffCamera) {
  GameOnWorld play(Roster().Feud("Bram Okafor", "Cal Drift", Begun(kGameStart)));
  OnFeuds(play);
  play.Desk.ExpectAsk("End Feud?", "End this feud off-camera?", false, ui::Default::No);
  play.Desk.Click("cmdend");
  EXPECT_FALSE(IsFreeSlot(play.World().Feuds()[1]));

  ScriptDraws(play.World(), {{4, 1}, {4, 2}});
  play.Desk.ExpectAsk("End Feud?", "End this feud off-camera?", true);
  play.Desk.Click("cmdend");
  EXPECT_EQ(play.Desk.Rows("lstfeuds")[0][0], kEmptySlot);
  EXPECT_EQ(play.Desk.Text("cmdask"), "Start Feud");
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.Text("imgmail"), "1 mail");
  play.Reopen();
  EXPECT_TRUE(IsFreeSlot(play.World().Feuds()[1]));
  EXPECT_EQ(Named(play.World().Workers(), "Bram Okafor").Over, 78);
  EXPECT_EQ(Named(play.World().Workers(), "Cal Drift").Over, 62);
}

TEST(frmFeudStat, ShowsTheFieldsOfItsSlot) {
  GameOnWorld play(
      Roster().Feud("Dot Hale", "Low Down").Feud("Bram Okafor", "Cal Drift", Begun(kGameStart)));
  OnFeuds(play);
  play.Desk.Pick("lstfeuds", 2);
  play.Desk.Click("cmdstat");
  const std::pair<const char*, const char*> kShown[] = {{"lblfacts", "Bram Okafor vs Cal Drift"},
                                                        {"txtside1", "Bram Okafor"},
                                                        {"txtside2", "Cal Drift"},
                                                        {"txtclean1", "1"},
                                                        {"txtdirty1", "2"},
                                                        {"txtinter1", "3"},
                                                        {"txtsneak1", "4"},
                                                        {"txtwon1", "10"},
                                                        {"txtclean2", "5"},
                                                        {"txtdirty2", "6"},
                                                        {"txtinter2", "7"},
                                                        {"txtsneak2", "8"},
                                                        {"txtwon2", "26"},
                                                        {"txtheat", "57%"},
                                                        {"txtstarted", "01 March 2026"}};
  for (const auto& [control, text] : kShown) EXPECT_EQ(play.Desk.Text(control), text) << control;

  play.Desk.ExpectAsk("End Feud?", "End this feud off-camera?", false);
  play.Desk.Click("cmdend");
  EXPECT_EQ(play.Desk.TopName(), "frmFeudStat");
  ScriptDraws(play.World(), {2, 2});
  play.Desk.ExpectAsk("End Feud?", "End this feud off-camera?", true);
  play.Desk.Click("cmdend");
  EXPECT_EQ(play.Desk.TopName(), "frmFeuds");
  EXPECT_EQ(play.Desk.FirstColumn("lstfeuds")[1], kEmptySlot);
  EXPECT_EQ(play.Desk.FirstColumn("lstfeuds")[0], "Dot Hale vs Low Down");
}

TEST(frmFeudStart, StartsASinglesFeud) {
  GameOnWorld play(Roster());
  OnFeuds(play);
  play.Desk.Pick("lstfeuds", 5);
  play.Desk.Click("cmdask");
  EXPECT_TRUE(play.Desk.Checked("chksingles"));
  EXPECT_FALSE(play.Desk.Visible("lstwres3"));
  EXPECT_FALSE(play.Desk.Enabled("cmdstart"));
  EXPECT_EQ(play.Desk.FirstColumn("lstwres1"),
            (Names{"Bram Okafor", "Ilya Marsh", "Cal Drift", "Dot Hale", "Low Down"}));
  PickSingles(play.Desk, "Ilya Marsh", "Cal Drift");
  EXPECT_EQ(play.Desk.Text("lblheat"),
            "Starting heat 73%: mean popularity 63, a Face against a Heel +10.");
  const std::string question =
      "Are you sure you wish to start a feud between Ilya Marsh and Cal Drift?";
  play.Desk.ExpectAsk("Start?", question, false);
  play.Desk.Click("cmdstart");
  EXPECT_EQ(play.Desk.TopName(), "frmFeudStart");
  EXPECT_EQ(FreeFeudSlot(play.World()), 1);

  play.Desk.ExpectAsk("Start?", question, true);
  play.Desk.Click("cmdstart");
  EXPECT_EQ(play.Desk.TopName(), "frmFeuds");
  EXPECT_EQ(play.Desk.Selected("lstfeuds"), std::vector{1}) << "the feud just started";
  EXPECT_EQ(play.Desk.Rows("lstfeuds")[0], (Names{"Ilya Marsh vs Cal Drift", "73", "0", "0", "0"}));
  play.Reopen();
  EXPECT_EQ(play.World().Feuds()[1].Heat, 73);
  EXPECT_EQ(FreeFeudSlot(play.World()), 2);
}

TEST(frmFeudStart, StartsATagFeudAndKnowsPartners) {
  GameOnWorld play(Roster());
  play.Desk.Open("frmFeudStart");
  play.Desk.Check("chksingles", false);
  EXPECT_TRUE(play.Desk.Visible("lstwres4"));
  play.Desk.Pick("lstwres1", "Ilya Marsh");
  EXPECT_EQ(play.Desk.Selected("lstwres2"), std::vector{1}) << "Bram Okafor, his partner";
  EXPECT_EQ(play.Desk.Text("lblheat"), "Choose two teams of two.");
  play.Desk.Pick("lstwres3", "Cal Drift");
  EXPECT_FALSE(play.Desk.Enabled("cmdstart"));
  play.Desk.Pick("lstwres4", "Dot Hale");
  play.Desk.ExpectAsk("Start?",
                      "Are you sure you wish to start a feud between Law and Order and Cal Drift "
                      "\\ Dot Hale?",
                      true);
  play.Desk.Click("cmdstart");
  EXPECT_TRUE(play.Desk.Empty());
  const Feud& feud = play.World().Feuds()[1];
  EXPECT_FALSE(feud.Singles);
  EXPECT_EQ(feud.Worker1, Named(play.World().Workers(), "Ilya Marsh").Uid);
  EXPECT_EQ(feud.Worker2, Named(play.World().Workers(), "Bram Okafor").Uid);
  EXPECT_EQ(feud.Worker4, Named(play.World().Workers(), "Dot Hale").Uid);
}

TEST(frmFeudStart, RefusesWhatCannotBe) {
  GameOnWorld play(Roster().Feud("Bram Okafor", "Cal Drift"));
  play.Desk.Open("frmFeudStart");
  PickSingles(play.Desk, "Dot Hale", "Dot Hale");
  EXPECT_EQ(play.Desk.Text("lblwarning"), "Wrestlers cannot feud with themselves!");
  play.Desk.ExpectSay("Error!", "Wrestlers cannot feud with themselves!");
  play.Desk.Click("cmdstart");
  PickSingles(play.Desk, "Cal Drift", "Bram Okafor");
  play.Desk.ExpectSay("Error!", "They are already in a feud with each other!");
  play.Desk.Click("cmdstart");
  PickSingles(play.Desk, "Cal Drift", "Dot Hale");
  EXPECT_FALSE(play.Desk.Visible("lblwarning"));
  EXPECT_EQ(FreeFeudSlot(play.World()), 2);
}

TEST(frmFeudStart, HearsOutWhoFindsTheOpponentTooLow) {
  GameOnWorld play(Roster());
  const std::string words =
      "Bram Okafor: 'I am not willing to do this feud, Low Down is not in my league.'";
  play.Desk.Open("frmFeudStart");
  PickSingles(play.Desk, "Low Down", "Bram Okafor");
  play.Desk.ExpectSay("Rejection!", words);
  play.Desk.ExpectAsk("Continue?", "Continue anyway?", false);
  play.Desk.Click("cmdstart");
  EXPECT_EQ(FreeFeudSlot(play.World()), 1);

  Named(play.World().Workers(), "Bram Okafor").CreativeControl = true;
  play.Desk.ExpectSay("Rejection!", words);
  play.Desk.ExpectSay("Creative Control", "Bram Okafor has creative control, and refuses.");
  play.Desk.Click("cmdstart");
  EXPECT_EQ(FreeFeudSlot(play.World()), 1);

  Named(play.World().Workers(), "Bram Okafor").CreativeControl = false;
  play.Desk.ExpectSay("Rejection!", words);
  play.Desk.ExpectAsk("Continue?", "Continue anyway?", true);
  play.Desk.ExpectAsk(
      "Start?", "Are you sure you wish to start a feud between Low Down and Bram Okafor?", true);
  play.Desk.Click("cmdstart");
  EXPECT_EQ(FreeFeudSlot(play.World()), 2);
}

TEST(frmFeudStart, SaysWhatIsMissingWithoutARoster) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Game("CWA"));
  play.Desk.Open("frmFeudStart");
  EXPECT_TRUE(play.Desk.Rows("lstwres1").empty());
  EXPECT_FALSE(play.Desk.Enabled("cmdstart"));
  EXPECT_EQ(play.Desk.Text("lblheat"), "Choose the two who are to feud.");
}

}  // namespace
}  // namespace grapplemont::test
