#include <gtest/gtest.h>

#include "booking/debuts.h"
#include "booking/onsheet.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

Change<Worker> Unseen() {
  return [](Worker& worker) { worker.Debuted = false; };
}

/// What a way to a debut says, by what the wizard calls it; "-" for a way that there is not.
std::string WhyNot(const World& world, const char* worker, std::string_view how,
                   bool isEvent = false) {
  for (const DebutWay& way : WaysToDebut(world, Named(world.Workers(), worker), isEvent))
    if (way.How == how) return way.WhyNot;
  return "-";
}

TEST(frmDebut, ShowsWhoHasNotBeenSeen) {
  GameOnWorld play(SmallWorld()
                       .Promotion("CWA")
                       .Worker("Seen", kMainEvent, 90)
                       .Worker("Fresh", kMidcard, 40, Unseen())
                       .Worker("Fresher", kManager, 60, Unseen())
                       .Worker("In Camp", kTrainingCamp, 10, Unseen())
                       .Promotion("NEW")
                       .Worker("Theirs", kMidcard, 40, Unseen())
                       .Game("CWA"));
  play.Desk.Open("frmDebut");
  EXPECT_EQ(play.Desk.Rows("lstwres"),
            (std::vector<Names>{{"Fresher", "Face", "60", "Manager", ""},
                                {"Fresh", "Face", "40", "Midcard", ""}}));
  EXPECT_EQ(play.Desk.Text("lblfacts"), "2 workers wait for a debut.");
  const auto rows = play.Desk.Rows("lstways");
  ASSERT_FALSE(rows.empty());
  EXPECT_EQ(rows.front()[0], "Match");
  EXPECT_EQ(rows.front()[2], "Today");
  play.Desk.OpenRow("lstwres", "Fresh");
  EXPECT_EQ(play.Desk.TopName(), "frmQuickStat");
}

TEST(WaysToDebut, FitThePersonAndTheDay) {
  World world = SmallWorld()
                    .Promotion("CWA", kRegional, [](Promotion& p) { p.Risk = 50; })
                    .Staff("Ida Quill", kWriter)
                    .Worker("Fresh", kMidcard, 40, Unseen())
                    .Worker("Suit", kNonWrestler, 40, Unseen())
                    .Worker("Mouth", kManager, 40, Unseen())
                    .Worker("Hurt", kMidcard, 40,
                            [](Worker& worker) {
                              worker.Debuted = false;
                              worker.Status = "Inj";
                              worker.StatusMonths = 3;
                              worker.InjuryName = "Broken Leg";
                            })
                    .Game("CWA");
  constexpr const char* kTwo = "1 vs 1, with the purpose \"Debut\" as one of the two";
  struct Case {
    const char* Who;
    const char* How;
    const char* WhyNot;
  };
  const Case kCases[] = {
      {"Fresh", kTwo, ""},
      {"Mouth", kTwo, ""},
      {"Suit", kTwo, "-"},
      {"Suit", "Debut Call Out", ""},
      {"Fresh", "Managerial Debut", "-"},
      {"Mouth", "Managerial Debut", ""},
      {"Fresh", "Debut With Power", "There is no Commissioner."},
      {"Fresh", "Challenge", "-"},
      {"Hurt", "Debut Attack", "Hurt: Broken Leg, out for 3 months."},
  };
  for (const Case& c : kCases) EXPECT_EQ(WhyNot(world, c.Who, c.How), c.WhyNot) << c.Who << c.How;
}

TEST(WaysToDebut, InAnAngleNeedWriters) {
  constexpr const char* kTooFew = "There are not enough writers for angles.";
  struct Case {
    int Writers, Shows;
    const char *OnShow, *AtEvent;
  };
  for (const Case& c : {Case{0, 0, kTooFew, kTooFew}, Case{1, 0, "", ""}, Case{1, 1, kTooFew, ""},
                        Case{2, 1, "", ""}}) {
    SmallWorld small;
    small.Network("Harbor 9").Promotion("CWA").Worker("Fresh", kMidcard, 40, Unseen());
    for (int i = 1; i <= c.Writers; ++i) small.Staff("Quill " + std::to_string(i), kWriter);
    if (c.Shows > 0) small.Show("Tidal Force", "Sunday", "Harbor 9");
    const World world = small.Game("CWA");
    EXPECT_EQ(WhyNot(world, "Fresh", "Debut Attack"), c.OnShow) << c.Writers << c.Shows;
    EXPECT_EQ(WhyNot(world, "Fresh", "Debut Attack", true), c.AtEvent) << c.Writers << c.Shows;
  }
}

TEST(frmDebut, KnowsWhichSheetItStandsBeside) {
  for (const bool isEvent : {false, true}) {
    SmallWorld small;
    small.Network("Harbor 9")
        .Promotion("CWA")
        .Staff("Ida Quill", kWriter)
        .Worker("Fresh", kMidcard, 40, Unseen())
        .Show("Tidal Force", "Sunday", "Harbor 9")
        .Event(3);
    OnSheet play(small.Game("CWA", isEvent ? Day(std::chrono::year{2026} / 3 / 29) : kGameStart));
    play.Desk.Click("cmddebut");
    std::string told;
    for (const Names& way : play.Desk.Rows("lstways"))
      if (way[1] == "Debut Attack") told = way[2];
    EXPECT_EQ(told, isEvent ? "Today" : "There are not enough writers for angles.");
  }
}

SmallWorld Booked() {
  SmallWorld small;
  small.Network("Harbor 9")
      .Promotion("CWA", kCult)
      .Worker("Ash", kMainEvent, 80,
              [](Worker& worker) {
                worker.Condition = 91;
                worker.Morale = 77;
                worker.Brawl = 64;
                worker.Finisher1 = "Ashes";
                worker.Finisher1Submission = true;
                worker.Finisher2 = "None";
              })
      .Worker("Bea", kMidcard, 60)
      .Worker("Cal", kManager, 50)
      .Team("The Kindling", "Ash", "Bea")
      .Team("Cash", "Cal", "Ash")
      .Stable("The Firm", {"Ash"})
      .Title("CWA Crown", "Ash")
      .Title("CWA Pair", "Ash", "Bea")
      .Title("CWA Cup", {}, {}, [](Title& title) { title.Suspended = true; })
      .Show("Tidal Force", "Sunday", "Harbor 9")
      .Promotion("NEW")
      .Worker("Zed", kMainEvent, 99)
      .Title("NEW Crown", "Zed")
      .Game("CWA");
  return small;
}

TEST(frmAltRoster, ShowsEverybodyWithWhatIsBooked) {
  OnSheet play(Booked().Build());
  Named(play.World().Workers(), "Ash").Manager = Named(play.World().Workers(), "Cal").Uid;
  play.Book(1, Singles(play.World(), "Ash", "Bea"));
  play.Desk.Click("cmdroster");
  const auto rows = play.Desk.Rows("lstwres");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0], (Names{"Ash", "Main Event", "Face", "80", "91", "77", "The Firm",
                            "The Kindling, Cash", "Cal", "", "Booked"}));
  EXPECT_EQ(rows[2][10], "");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "3 workers, 2 of them on the card");
  play.Desk.Pick("lstwres", "Bea");
  play.Desk.Click("cmdstats");
  EXPECT_TRUE(play.Desk.Text("txtworker").starts_with("Bea\n"));
}

TEST(frmQuickStat, TellsAnybodysNumbers) {
  GameOnWorld play(Booked().Build());
  play.Desk.Open("frmQuickStat");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), (Names{"Ash", "Bea", "Cal"}));
  const auto numbers = play.Desk.Rows("lststats");
  EXPECT_EQ(numbers[0], (Names{"Over", "80"}));
  EXPECT_EQ(numbers[1], (Names{"Brawl", "64"}));
  EXPECT_EQ(numbers[9], (Names{"Condition", "91"}));
  const std::string text = play.Desk.Text("txtworker");
  for (const char* words : {"Finishers: Ashes (Submission)", "Stable: The Firm",
                            "Titles: CWA Crown, CWA Pair", "Main Event, CWA"})
    EXPECT_NE(text.find(words), std::string::npos) << words << " in\n" << text;
  play.Desk.Check("chkall", true);
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), (Names{"Zed", "Ash", "Bea", "Cal"}));
  play.Desk.Pick("lstwres", "Zed");
  EXPECT_NE(play.Desk.Text("txtworker").find("Titles: NEW Crown"), std::string::npos);
  play.Desk.Check("chkall", false);
  EXPECT_TRUE(play.Desk.Selected("lstwres").empty());
  EXPECT_TRUE(play.Desk.Rows("lststats").empty());
}

TEST(frmAltBelts, ShowsThePlayersTitlesAndTheirReigns) {
  GameOnWorld play(Booked().Build());
  Title& crown = Named(play.World().Titles(), "CWA Crown");
  BeginReign(crown, kGameStart - std::chrono::days{20}, "Bea");
  BeginReign(crown, kGameStart - std::chrono::days{10}, "Ash");
  crown.Image = 66;
  play.Desk.Open("frmAltBelts");
  const auto rows = play.Desk.Rows("lsttitles");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0], (Names{"CWA Crown", "Singles", "Ash", "19 February 2026", "66", ""}));
  EXPECT_EQ(rows[1][1], "Tag");
  EXPECT_EQ(rows[1][2], "The Kindling");
  EXPECT_EQ(rows[2][2], "Vacant");
  EXPECT_EQ(rows[2][3], "");
  EXPECT_EQ(rows[2][5], "Suspended");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "3 Titles, 1 vacant");
  const auto history = play.Desk.Rows("lsthistory");
  ASSERT_GE(history.size(), 2u);
  EXPECT_EQ(history[0], (Names{"Ash", "19 February 2026", ""}));
  EXPECT_EQ(history[1], (Names{"Bea", "09 February 2026", "19 February 2026"}));
}

}  // namespace
}  // namespace grapplemont::test
