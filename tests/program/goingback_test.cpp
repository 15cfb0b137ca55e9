#include <gtest/gtest.h>

#include <algorithm>

#include "calendar/advanceday.h"
#include "records/store/playedslot.h"
#include "session/home.h"
#include "session/slots.h"
#include "support/gameonworld.h"
#include "support/smallworld.h"
#include "ui/goingback.h"

// Back in time on the desk: by the page of mornings, by search, by the last click.

namespace grapplemont::test {
namespace {

World AWorld() {
  return SmallWorld().Promotion("CWA", kCult).Owner("Ruth Vane").Crew(6).Game("CWA");
}

Bytes BytesIn(GameOnWorld& play) {
  Bytes all;
  for (const NewFile& file : FilesOf(play.World()))
    all.insert(all.end(), file.Contents.begin(), file.Contents.end());
  return all;
}

/// A ticket price, by mouse.
void SetPrice(GameOnWorld& play, int price) {
  play.Desk.Open("frmTicket");
  play.Desk.Slide("hsticket", price);
  play.Desk.Click("cmddoit");
}

void PassDays(GameOnWorld& play, int days) {
  for (int day = 0; day < days; ++day) play.Desk.Event([&] { AdvanceDay(play.World(), false); });
}

TEST(BackInTime, TheLastClickIsTakenBackAndDoneAgainByItsName) {
  GameOnWorld play(AWorld());
  play.Desk.IsEasy = true;
  play.Desk.Open("frmMainScreen");
  const Bytes before = BytesIn(play);
  SetPrice(play, 42);
  const Bytes after = BytesIn(play);
  ASSERT_NE(before, after);
  const std::string name = play.Desk.Undo.What();
  EXPECT_NE(name.find("Ticket"), std::string::npos) << name;
  EXPECT_EQ(play.Desk.Take(play.Desk.Undo), name);
  EXPECT_EQ(BytesIn(play), before);
  EXPECT_EQ(play.Desk.Undo.What(), "");
  EXPECT_EQ(play.Desk.Take(play.Desk.Redo), name);
  EXPECT_EQ(BytesIn(play), after);
  // It is on disk, too, and so is the way back.
  play.Desk.CloseAll();
  play.Reopen();
  EXPECT_EQ(BytesIn(play), after);
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Take(play.Desk.Undo), name);
  EXPECT_EQ(BytesIn(play), before);
  PassDays(play, 1);
  EXPECT_EQ(play.Desk.Take(play.Desk.Undo), "");
}

TEST(BackInTime, AMorningIsGoneBackToAndTheRoadLeftReturnedTo) {
  GameOnWorld play(AWorld());
  play.Desk.IsEasy = true;
  play.Desk.Open("frmMainScreen");
  PassDays(play, 3);
  const Bytes morning = BytesIn(play);
  const std::string day = LongDate(play.World().Today());
  SetPrice(play, 42);
  play.Desk.Open("frmMornings");
  play.Desk.ExpectPrompt("Name This Moment", kAnyText, "before the Event");
  play.Desk.Click("cmdname");
  PassDays(play, 4);
  const Bytes end = BytesIn(play);
  play.Desk.Open("frmMornings");
  EXPECT_FALSE(play.Desk.Enabled("cmdgo"));
  const auto rows = play.Desk.Rows("lstmornings");
  ASSERT_EQ(rows.size(), 8u);
  EXPECT_NE(rows[0].back().find("no show since"), std::string::npos) << rows[0].back();
  const auto chosen = std::ranges::find_if(
      rows, [&](const auto& row) { return row[0] == day && row[1] == "Morning"; });
  ASSERT_NE(chosen, rows.end());
  EXPECT_EQ((chosen - 1)->at(2), "before the Event");
  play.Desk.Pick("lstmornings", static_cast<int>(chosen - rows.begin()) + 1);
  play.Desk.ExpectAsk("Go Back", kAnyText, true);
  play.Desk.Click("cmdgo");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_EQ(BytesIn(play), morning);
  PassDays(play, 1);
  play.Desk.Open("frmMornings");
  const auto after = play.Desk.Rows("lstmornings");
  const auto left =
      std::ranges::find_if(after, [](const auto& row) { return row[1] == "A road left"; });
  ASSERT_NE(left, after.end());
  EXPECT_EQ((left + 1)->at(3), "another");
  play.Desk.Pick("lstmornings", static_cast<int>(left - after.begin()) + 1);
  play.Desk.Click("cmdgo");
  EXPECT_EQ(BytesIn(play), end);
}

TEST(BackInTime, MorningsAreFoundBySearch) {
  GameOnWorld play(AWorld());
  play.Desk.IsEasy = true;
  play.Desk.Open("frmMainScreen");
  const Day first = play.World().Today();
  PassDays(play, 2);
  const auto found = play.Desk.NewSearch()("go back to the morning", 5);
  const auto wanted = std::ranges::find_if(found, [&](const ui::Finding& finding) {
    return finding.Words == "Go back to the morning of " + LongDate(first);
  });
  ASSERT_NE(wanted, found.end());
  play.Desk.Visit(ui::Finding(*wanted));
  EXPECT_EQ(play.World().Today(), first);
}

TEST(BackInTime, AGameWithoutAWayBackHasNone) {
  World world = AWorld();
  GameOnWorld play(AWorld());
  play.Desk.IsEasy = true;
  play.Play.CloseSlot();
  Slot::Create(play.Play.Disk(), play.Play.SlotFolder(1), BeginningFiles(world, false, false), 9);
  EXPECT_EQ(ReadSlotSummary(play.Play.Disk(), play.Play.SlotFolder(1)).House, "no way back");
  play.Play.OpenSlot(1);
  play.Desk.Open("frmMainScreen");
  SetPrice(play, 42);
  PassDays(play, 2);
  EXPECT_EQ(play.Desk.Take(play.Desk.Undo), "");
  play.Desk.Open("frmMornings");
  EXPECT_TRUE(play.Desk.Rows("lstmornings").empty());
  EXPECT_FALSE(play.Desk.Enabled("cmdname"));
  EXPECT_NE(play.Desk.Text("lblfacts").find("never goes back"), std::string::npos);
}

}  // namespace
}  // namespace grapplemont::test
