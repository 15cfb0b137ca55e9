#include <gtest/gtest.h>

#include "booking/onsheet.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

World Sunday(int crew = 30) {
  return SmallWorld()
      .Network("Harbor 9")
      .Promotion("CWA", kCult)
      .Crew(crew)
      .Show("Tidal Force", "Sunday", "Harbor 9", [](Show& show) { show.Slot = "G"; })
      .Game("CWA");
}

std::string SheetOf(const World& world) {
  return std::string(reinterpret_cast<const char*>(world.Segments().Contents().data()),
                     world.Segments().Contents().size());
}

/// What the auto booker's screen lists, as the sheet would say it.
Names Card(OnSheet& play) {
  Names card;
  for (const Names& row : play.Desk.Rows("lstcard")) card.push_back(row[0] + " " + row[1]);
  return card;
}

TEST(AutoBookScreen, ProposesACardAndLeavesTheSheetAlone) {
  OnSheet play(Sunday());
  play.Book(2, Singles(play.World(), "CWA Hand 29", "CWA Hand 30"));
  const std::string sheet = SheetOf(play.World());
  play.Desk.Click("cmdauto");
  ASSERT_EQ(play.Desk.TopName(), "frmAutoBook");
  EXPECT_EQ(Card(play).size(), 5u);
  EXPECT_EQ(Card(play)[1], "2 CWA Hand 29 over CWA Hand 30");
  for (const Names& row : play.Desk.Rows("lstcard")) {
    EXPECT_TRUE(row[row.size() - 2].ends_with("%")) << row[1];
    EXPECT_FALSE(row.back().empty()) << "every row has its reason";
    EXPECT_EQ(row.back() == "Already there.", row[0] == "2");
  }
  EXPECT_TRUE(play.Desk.Text("lblrating").starts_with("Forecast "));
  play.Desk.Click("cmdagain");
  EXPECT_EQ(Card(play).size(), 5u);
  EXPECT_EQ(SheetOf(play.World()), sheet);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmBooking");
  EXPECT_EQ(SheetOf(play.World()), sheet);
}

TEST(AutoBookScreen, LeavesOutWhatThePlayerDoesNotWant) {
  OnSheet play(Sunday());
  play.Book(2, Singles(play.World(), "CWA Hand 29", "CWA Hand 30"));
  play.Desk.Click("cmdauto");
  const Names proposed = Card(play);
  play.Desk.Pick("lstcard", 2);
  EXPECT_EQ(play.Desk.Tip("cmdleave"), "It stands on the sheet: remove it there.");
  play.Desk.Pick("lstcard", 1);
  play.Desk.Click("cmdleave");
  EXPECT_EQ(Card(play), Names(proposed.begin() + 1, proposed.end()));
  EXPECT_EQ(play.Desk.Selected("lstcard"), std::vector{1}) << "the next one";
  EXPECT_TRUE(play.Desk.Enabled("cmdagain")) << "its row may be filled otherwise";
  play.Desk.Click("cmdsheet");
  EXPECT_EQ(play.Row(1)[1], "<Nothing Booked>");
  EXPECT_EQ(play.Row(3)[0] + " " + play.Row(3)[1], proposed[2]);
}

TEST(AutoBookScreen, RunsTheShowAndMovesOnToTheNextDay) {
  OnSheet play(Sunday());
  play.Desk.Click("cmdauto");
  ASSERT_TRUE(play.Desk.Enabled("cmdbook"));
  play.Desk.ExpectAsk("Sure?", "Are you sure you wish to start this show?", false);
  play.Desk.Click("cmdbook");
  ASSERT_EQ(play.Desk.TopName(), "frmAutoBook");
  play.Desk.ExpectAsk("Sure?", "Are you sure you wish to start this show?", true);
  play.Desk.ExpectSay("Show Rating", kAnyText);
  play.Desk.Click("cmdbook");
  const std::string text = play.Desk.Boxes().back().Text;
  EXPECT_TRUE(text.starts_with("Tidal Force has been held. Its rating is ")) << text;
  EXPECT_FALSE(play.Lies("frmAutoBook"));
  EXPECT_FALSE(play.Lies("frmBooking"));
  EXPECT_EQ(play.World().Today(), kGameStart + std::chrono::days{1});
  EXPECT_EQ(play.World().ShowRuns().Count(), 0);
}

TEST(AutoBookScreen, RunsNoCardThatIsTooShort) {
  OnSheet play(Sunday(3));
  play.Desk.Click("cmdauto");
  EXPECT_FALSE(play.Desk.Enabled("cmdbook"));
  EXPECT_EQ(play.Desk.Tip("cmdbook"), "The card is too short for the show to be held.");
  EXPECT_NE(play.Desk.Text("lblmissing"), "");
}

}  // namespace
}  // namespace grapplemont::test
