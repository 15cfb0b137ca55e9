#include <gtest/gtest.h>

#include <algorithm>

#include "calendar/advanceday.h"
#include "records/store/playedslot.h"
#include "session/home.h"
#include "session/slots.h"
#include "storylines/screens/screenpeople.h"
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
  const std::string day = BriefDate(play.World().Today());
  SetPrice(play, 42);
  play.Desk.Open("frmMornings");
  play.Desk.ExpectPrompt("Name This Moment", kAnyText, "before the Event");
  play.Desk.Click("cmdname");
  PassDays(play, 4);
  const Bytes end = BytesIn(play);
  play.Desk.Open("frmMornings");
  EXPECT_EQ(play.Desk.Selected("lstmornings"), std::vector{1}) << "the latest, for Enter";
  EXPECT_FALSE(play.Desk.Enabled("cmdforget")) << "it has no name";
  const auto rows = play.Desk.Rows("lstmornings");
  ASSERT_EQ(rows.size(), 8u);
  EXPECT_TRUE(rows[0][1].starts_with("No show since")) << rows[0][1];
  const auto chosen = std::ranges::find_if(
      rows, [&](const auto& row) { return row[0] == day && row[3] == "Morning"; });
  ASSERT_NE(chosen, rows.end());
  EXPECT_EQ((chosen - 1)->at(4), "before the Event");
  play.Desk.Pick("lstmornings", static_cast<int>(chosen - rows.begin()) + 1);
  play.Desk.ExpectAsk("Go Back", kAnyText, true);
  play.Desk.Click("cmdgo");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_EQ(BytesIn(play), morning);
  PassDays(play, 1);
  play.Desk.Open("frmMornings");
  const auto after = play.Desk.Rows("lstmornings");
  const auto left =
      std::ranges::find_if(after, [](const auto& row) { return row[3] == "A road left"; });
  ASSERT_NE(left, after.end());
  EXPECT_EQ((left + 1)->at(5), "Another road");
  EXPECT_TRUE(left->at(1).starts_with("Left 3 days ahead of today")) << left->at(1);
  play.Desk.Pick("lstmornings", static_cast<int>(left - after.begin()) + 1);
  play.Desk.Click("cmdgo");
  EXPECT_EQ(BytesIn(play), end);
}

/// The moment of this kind and day, the latest of them.
PastMoment MomentOf(GameOnWorld& play, MomentKind kind, Day day) {
  for (const PastMoment& past : PastMoments(play.Play))
    if (past.Of.Is == kind && past.Of.On == day) return past;
  ADD_FAILURE() << "no moment of " << LongDate(day);
  return {};
}

/// The days of mornings on this road or on others, the latest first.
std::vector<Day> MorningsOn(GameOnWorld& play, bool other) {
  std::vector<Day> days;
  for (const PastMoment& past : PastMoments(play.Play))
    if (past.Of.Is == MomentKind::Morning && past.OnOtherRoad == other) days.push_back(past.Of.On);
  return days;
}

TEST(BackInTime, RoadsAreToldApartAndAFallOfSizeIsTold) {
  GameOnWorld play(AWorld());
  play.Desk.IsEasy = true;
  play.Desk.Open("frmMainScreen");
  const Day first = play.World().Today();
  const auto day = [&](int days) { return first + std::chrono::days{days}; };
  const auto goBack = [&](const PastMoment& to) {
    play.Desk.Event([&] { GoBackTo(play.Play, to.Number); });
  };
  PassDays(play, 4);
  goBack(MomentOf(play, MomentKind::Morning, day(1)));
  PassDays(play, 2);  // to the third day, along another road
  EXPECT_EQ(MorningsOn(play, false), (std::vector{day(2), day(1), day(0)}));
  EXPECT_EQ(MorningsOn(play, true), (std::vector{day(3), day(2)}));
  const PastMoment road = MomentOf(play, MomentKind::Left, day(4));
  EXPECT_TRUE(road.OnOtherRoad);
  EXPECT_EQ(SinceText(play.Play, road).find("since"), std::string::npos);
  goBack(road);
  EXPECT_EQ(MorningsOn(play, false), (std::vector{day(3), day(2), day(1), day(0)}));
  EXPECT_EQ(MorningsOn(play, true), (std::vector{day(2)}));
  EXPECT_TRUE(MomentOf(play, MomentKind::Left, day(3)).OnOtherRoad);
  play.Desk.Event([&] { play.World().Player().Size = kSmall; });
  const std::string since = SinceText(play.Play, MomentOf(play, MomentKind::Morning, day(0)));
  EXPECT_EQ(since.find("Cult then, Small now. "), 0u) << since;
}

TEST(BackInTime, ASheetComesUpAgainAsItWas) {
  constexpr Day kEventDay{std::chrono::year{2026} / 3 / 29};
  GameOnWorld play(SmallWorld()
                       .Promotion("CWA", kCult)
                       .Owner("Ruth Vane")
                       .Staff("Milo Grant", kAnnouncer)
                       .Staff("Ref Bell", kReferee)
                       .Crew(24)
                       .Event(3, 2, "Marchmania")
                       .Game("CWA", kEventDay));
  ScriptDesk& desk = play.Desk;
  desk.IsEasy = true;
  desk.Open("frmMainScreen");
  desk.Click("cmdnext");
  ASSERT_EQ(desk.TopName(), "frmPPVBooking");
  desk.Click("cmdfill");
  desk.Click("cmdsheet");
  ASSERT_EQ(desk.TopName(), "frmPPVBooking");
  const auto card = desk.Rows("lstrows");
  desk.Pick("cmbspecial", 2);
  const std::string extra = desk.Text("cmbspecial"), cost = desk.Text("lblcost");
  const auto isSeated = [&] {
    return desk.Text("cmbannouncer") == "Milo Grant" && desk.Text("cmbspecial") == extra &&
           desk.Text("lblcost") == cost;
  };
  ASSERT_TRUE(isSeated());
  const Bytes booked = BytesIn(play);
  desk.Pick("lstrows", 3);
  desk.Click("cmddown");
  const Bytes moved = BytesIn(play);
  ASSERT_NE(booked, moved);
  EXPECT_NE(desk.Take(desk.Undo).find("Move Down"), std::string::npos);
  EXPECT_EQ(desk.TopName(), "frmPPVBooking");
  EXPECT_EQ(BytesIn(play), booked);
  EXPECT_EQ(desk.Rows("lstrows"), card);
  EXPECT_TRUE(isSeated());
  EXPECT_FALSE(desk.Enabled("cmdundo")) << "nothing was done on the sheet since it came up";
  EXPECT_NE(desk.Take(desk.Redo).find("Move Down"), std::string::npos);
  EXPECT_EQ(BytesIn(play), moved);
  desk.Click("cmdnotepad");
  desk.Take(desk.Undo);
  EXPECT_EQ(BytesIn(play), booked);
  // A show that was started, too.
  ASSERT_TRUE(desk.Enabled("cmddoshow")) << desk.Tip("cmddoshow");
  desk.Click("cmddoshow");
  ASSERT_EQ(desk.TopName(), "frmMatchOutput");
  EXPECT_NE(desk.Take(desk.Undo).find("Start The Show"), std::string::npos);
  EXPECT_EQ(desk.TopName(), "frmPPVBooking");
  EXPECT_EQ(BytesIn(play), booked);
  EXPECT_TRUE(isSeated());
  // Where the sheet had not been opened it does not lie on the desk.
  EXPECT_NE(desk.Take(desk.Undo).find("Send To The Sheet"), std::string::npos);
  EXPECT_EQ(desk.TopName(), "frmPPVBooking");
  EXPECT_NE(desk.Take(desk.Undo).find("Next Day"), std::string::npos);
  EXPECT_EQ(desk.TopName(), "frmMainScreen");
}

TEST(BackInTime, WhatIsReadNamedOrRenamedDoesNotStandBeforeAClick) {
  GameOnWorld play(SmallWorld()
                       .Promotion("CWA", kCult)
                       .Owner("Ruth Vane")
                       .Crew(6)
                       .Mail("Ruth Vane", "Hello.")
                       .Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.IsEasy = true;
  desk.Open("frmMainScreen");
  const Bytes before = BytesIn(play);
  const auto name = play.World().Game().SaveName;
  SetPrice(play, 42);
  const std::string price = desk.Undo.What();
  desk.CloseAll();
  desk.Open("frmMainScreen");
  desk.Click("cmdnews");  // marks the mail read
  ASSERT_GT(play.World().ReadMails().Count(), 0);
  EXPECT_EQ(desk.Undo.What(), price);
  desk.Open("frmMornings");
  desk.ExpectPrompt("Name This Moment", kAnyText, std::string(41, 'x'));
  desk.Click("cmdname");
  EXPECT_NE(desk.Boxes().back().Text.find("40 letters"), std::string::npos);
  for (int number = 1; number <= Mornings::kNamed; ++number) {
    desk.ExpectPrompt("Name This Moment", kAnyText, "n" + std::to_string(number));
    desk.Click("cmdname");
  }
  desk.ExpectPrompt("Name This Moment", kAnyText, "n13");
  desk.Click("cmdname");
  EXPECT_NE(desk.Boxes().back().Text.find("\"n1 ("), std::string::npos) << desk.Boxes().back().Text;
  EXPECT_EQ(desk.Rows("lstmornings").size(), 13u) << "it was not agreed to";
  desk.CloseAll();
  play.Play.CloseSlot();
  RenameSlot(play.Play.Disk(), play.Play.SlotFolder(1), "Other Name");
  play.Play.OpenSlot(1);
  desk.Open("frmMainScreen");
  EXPECT_EQ(desk.Take(desk.Undo), price);
  EXPECT_EQ(play.World().Game().SaveName.View(), "Other Name");
  EXPECT_EQ(play.World().ReadMails().Count(), 0);
  play.World().Game().SaveName = name;
  EXPECT_EQ(BytesIn(play), before) << "but for the name";
  play.World().Rollback();
  desk.Open("frmMornings");
  EXPECT_EQ(desk.Rows("lstmornings").size(), 12u) << "what was named is kept";
  EXPECT_EQ(desk.Selected("lstmornings"), std::vector{1}) << "one that was named";
  desk.ExpectAsk("Forget The Name", kAnyText, true, ui::Default::No);
  desk.Click("cmdforget");
  EXPECT_EQ(desk.Rows("lstmornings").size(), 11u);
}

TEST(BackInTime, TheEndOfACareerIsGoneBackFrom) {
  GameOnWorld play(AWorld());
  ScriptDesk& desk = play.Desk;
  desk.IsEasy = true;
  desk.Open("frmMainScreen");
  const Day first = play.World().Today();
  PassDays(play, 2);
  desk.Event([&] { play.World().Game().EndCode = kEndBoard; });
  desk.CloseAll();
  desk.Open("frmMainScreen");
  ASSERT_EQ(desk.TopName(), "frmTheEnd");
  desk.Click("cmdmornings");
  EXPECT_EQ(desk.TopName(), "frmMornings");
  // From the card of the slot.
  desk.CloseAll();
  play.Play.CloseSlot();
  desk.Open("frmLoadGame");
  desk.Click("cmdmornings1");
  EXPECT_EQ(desk.TopName(), "frmMornings");
  EXPECT_FALSE(desk.Rows("lstmornings").empty());
  // By search, with the news of the end on the desk.
  desk.CloseAll();
  desk.Open("frmMainScreen");
  ASSERT_EQ(desk.TopName(), "frmTheEnd");
  const std::string wanted = "Go back to the morning of " + LongDate(first);
  for (const ui::Finding& finding : desk.NewSearch()("go back to the morning", 5))
    if (finding.Words == wanted) {
      desk.Visit(ui::Finding(finding));
      break;
    }
  EXPECT_EQ(play.World().Today(), first);
  EXPECT_EQ(desk.TopName(), "frmMainScreen");
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
  play.Desk.Open("frmLoadGame");
  EXPECT_FALSE(play.Desk.Enabled("cmdmornings1"));
  play.Desk.CloseAll();
  play.Play.OpenSlot(1);
  play.Desk.Open("frmMainScreen");
  SetPrice(play, 42);
  PassDays(play, 2);
  EXPECT_EQ(play.Desk.Take(play.Desk.Undo), "");
  play.Desk.Open("frmMornings");
  EXPECT_TRUE(play.Desk.Rows("lstmornings").empty());
  EXPECT_FALSE(play.Desk.Enabled("cmdname"));
  EXPECT_NE(play.Desk.Text("lblfacts").find("never goes back"), std::string::npos);
  EXPECT_FALSE(play.Desk.Visible("lblkept")) << "nothing is kept in such a game";
}

}  // namespace
}  // namespace grapplemont::test
