#include <gtest/gtest.h>

#include "booking/keptcards.h"
#include "booking/onsheet.h"
#include "booking/sheet.h"
#include "booking/wizard/segmentcheck.h"
#include "records/angles.h"
#include "show/forecast.h"
#include "support/scripteddraws.h"
#include "ui/acts.h"

namespace grapplemont::test {
namespace {

constexpr const char* kBackText =
    "Are you sure you wish to go back? It will erase any booking you have done so far.";

/// The day the game starts on is a Sunday.
SmallWorld OnAir(const char* slot = "P") {
  SmallWorld small;
  small.Network("Harbor 9")
      .Promotion("CWA", kCult)
      .Staff("Milo Grant", kAnnouncer)
      .Staff("Pia Root", kAnnouncer)
      .Crew(30)
      .Team("The Dock Rats", "CWA Hand 3", "CWA Hand 4")
      .Title("CWA Crown", "CWA Hand 1")
      .Show("Tidal Force", "Sunday", "Harbor 9", [slot](Show& show) {
        show.Slot = slot;
        show.Announcer = 1;
        show.Colour = 2;
      });
  return small;
}

World Sunday(const char* slot = "P") {
  return OnAir(slot).Game("CWA").Feud("CWA Hand 1", "CWA Hand 2",
                                      [](Feud& feud) { feud.Heat = 71; });
}

TEST(TelevisionSheet, OpensAsManyRowsAsItsTimeSlotHas) {
  const struct {
    const char* Slot;
    int Open, Matches, Segments;
    std::string Facts;
  } kCases[] = {{"P", 11, 4, 8, "Harbor 9, Prime Time, 11 rows"},
                {"E", 8, 3, 7, "Harbor 9, Early Evening, 8 rows"},
                {"L", 6, 3, 6, "Harbor 9, Late Night, 6 rows"},
                {"G", 5, 2, 5, "Harbor 9, Graveyard, 5 rows"}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.Slot);
    OnSheet play(OnAir(c.Slot)
                     .Show("Late Tide", "Sunday", "Harbor 9",
                           [&](Show& show) { show.Slot = *c.Slot == 'P' ? "L" : "P"; })
                     .Game("CWA"));
    const std::string matches = std::to_string(c.Matches), segments = std::to_string(c.Segments);
    EXPECT_EQ(play.Desk.Title(), "Television Booking Sheet For Tidal Force") << "the first today";
    EXPECT_EQ(play.Desk.Text("lblfacts"), c.Facts);
    EXPECT_EQ(play.Desk.Text("lblwarn"), "Warning : You must have a minimum of " + matches +
                                             " matches, and a minimum of " + segments +
                                             " segments overall.");
    EXPECT_EQ(play.Desk.Text("lblcount"),
              "0 of " + matches + " matches, 0 of " + segments + " segments booked.");
    EXPECT_EQ(play.Row(0), (Names{"-", "Opening Credits"}));
    for (int record = 1; record <= 11; ++record) {
      const bool open = record <= c.Open;
      EXPECT_EQ(play.Row(record)[0], open ? std::to_string(record) : "-");
      EXPECT_EQ(play.Row(record)[1],
                open ? "<Nothing Booked>" : "Not Available In This TV Time Slot");
      EXPECT_EQ(play.Desk.Enabled(play.Button(record)), open);
    }
  }
}

TEST(Sheet, LetsAShowStartOnceItsMinimumIsBooked) {
  const struct {
    const char* About;
    const char* Slot;    // nullptr: an Event
    std::string Booked;  // M, I, A or a dot, from record 1
    bool Starts;
  } kCases[] = {
      {"two of five are matches", "G", "MMIIA", true},
      {"four matches are four segments", "G", "MMMM", false},
      {"one match too few", "G", "MIIIA", false},
      {"rows anywhere", "P", "..MMMMIIIA.", true},
      {"the dark match is no fourth", nullptr, "MMMMIII", false},
      {"five on the Event itself", nullptr, ".MMMMA", false},
      {"six on the Event itself", nullptr, ".MMMMAI", true},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.About);
    SmallWorld small = OnAir(c.Slot ? c.Slot : "P");
    if (!c.Slot)
      small.Event(3).Game("CWA", std::chrono::year{2026} / 3 / 29);
    else
      small.Game("CWA");
    OnSheet play(small.Build());
    int record = 0;
    for (const char kind : c.Booked) {
      if (++record; kind == '.') continue;
      play.World().Segments()[record] =
          kind == 'M'   ? Singles(play.World(), "CWA Hand 1", "CWA Hand 2")
          : kind == 'I' ? Talk(play.World(), "CWA Hand 1")
                        : FaceToFace(play.World(), "CWA Hand 1", "CWA Hand 2");
    }
    play.Look();
    EXPECT_EQ(play.Desk.Enabled("cmddoshow"), c.Starts) << play.Desk.Text("lblcount");
    EXPECT_EQ(play.Desk.Tip("cmddoshow"),
              c.Starts ? "" : "Not enough yet: " + play.Desk.Text("lblcount"));
  }
}

TEST(TelevisionSheet, TellsWhatIsBookedInARow) {
  OnSheet play(Sunday());
  Segment match = Singles(play.World(), "CWA Hand 1", "CWA Hand 2");
  match.TitleName = "CWA Crown";
  play.Book(2, match);
  Segment award = FaceToFace(play.World(), "CWA Hand 5", "CWA Hand 6");
  award.TitleName = "CWA Crown";
  play.Book(3, award);
  play.Book(4, Talk(play.World(), "CWA Hand 1", "CWA Hand 2"));

  EXPECT_EQ(play.Row(1), (Names{"1", "<Nothing Booked>", "", "", "", ""}));
  const Names told = play.Row(2);
  EXPECT_EQ(Names(told.begin(), told.begin() + 5),
            (Names{"2", "CWA Hand 1 over CWA Hand 2", "Singles", "Title", "Feud 71"}));
  EXPECT_EQ(play.Row(3)[1], "Confrontation involving CWA Hand 5, CWA Hand 6");
  EXPECT_EQ(play.Row(3)[2], "Angle");
  EXPECT_EQ(play.Row(4)[1], "Interview with CWA Hand 1");
  EXPECT_EQ(play.Row(4)[4], "Feud 71");
  EXPECT_EQ(play.Desk.Tip("cmdbook(2)"), "CWA Crown Title Match!");
  EXPECT_EQ(play.Desk.Tip("cmdbook(3)"), "CWA Crown Title Segment!");
  EXPECT_EQ(play.Desk.Tip("cmdbook(4)"), "");
  EXPECT_EQ(play.Desk.Text("cmdbook(2)"), "Remove");
  EXPECT_EQ(play.Desk.Text("lblcount"), "1 of 4 matches, 3 of 8 segments booked.");

  const auto textOf = [&](int record) {
    play.Desk.Pick("lstrows", record + 1);
    return play.Desk.Text("txtrow");
  };
  EXPECT_TRUE(textOf(2).starts_with("CWA Hand 1 over CWA Hand 2\n")) << textOf(2);
  EXPECT_NE(textOf(2).find("CWA Crown Title Match!"), std::string::npos);
  EXPECT_NE(textOf(3).find("\nWorker #1: CWA Hand 5\nWorker #2: CWA Hand 6\n"), std::string::npos)
      << textOf(3);
  EXPECT_TRUE(textOf(4).ends_with("\nEdit changes a step of it, Remove empties the row."))
      << textOf(4);
  EXPECT_NE(textOf(1).find("Nothing is booked here."), std::string::npos);

  match.Purpose = purpose1::kEndFeud;
  play.Book(2, match);
  EXPECT_NE(textOf(2).find("The feud between CWA Hand 1 and CWA Hand 2 ends: heat 71, the hottest "
                           "you have, 0 days, 0 : 0."),
            std::string::npos)
      << textOf(2);
}

TEST(TelevisionSheet, SaysWhatTheShowMayComeToAndWhoIsFree) {
  OnSheet play(Sunday());
  EXPECT_EQ(play.Desk.Text("lblforecast"), "Nothing is booked yet.");
  EXPECT_EQ(play.Desk.Rows("lstfree").size(), 30u);
  Segment match = Singles(play.World(), "CWA Hand 1", "CWA Hand 2");
  match.Other1 = Named(play.World().Workers(), "CWA Hand 7").Uid;
  play.Book(1, match);
  const ShowForecast forecast = ForecastShow(play.World(), false, TvTeam(play.World()));
  EXPECT_EQ(play.Row(1)[5], RangeText(forecast.Rows[0]));
  EXPECT_EQ(play.Row(2)[5], "");
  EXPECT_EQ(play.Desk.Text("lblforecast"), "Forecast " + RangeText(forecast.Rating) + ".");
  EXPECT_EQ(RangeText({58, 66}), "58 \x96 66%");
  EXPECT_EQ(RangeText({58, 58}), "58%");
  const Names free = play.Desk.FirstColumn("lstfree");
  EXPECT_EQ(free.size(), 27u);
  for (const char* booked : {"CWA Hand 1", "CWA Hand 2", "CWA Hand 7"})
    EXPECT_EQ(std::count(free.begin(), free.end(), booked), 0) << booked;
  play.Desk.OpenRow("lstfree", "CWA Hand 3");
  EXPECT_EQ(play.Desk.TopName(), "frmQuickStat");
  EXPECT_TRUE(play.Desk.Text("txtworker").starts_with("CWA Hand 3\n"));
}

TEST(TelevisionSheet, BooksRemovesAndForgetsAfterAsking) {
  World world = Sunday("G");
  world.Segments().Rewrite({3, Singles(world, "CWA Hand 1", "CWA Hand 2")});
  OnSheet play(std::move(world));
  ASSERT_EQ(play.World().Segments().Count(), 11);
  EXPECT_EQ(play.World().Segments()[2].Kind, kEmptySegment) << "however it was left";
  play.Desk.Click("cmdbook(5)");
  EXPECT_EQ(play.Desk.TopName(), "frmBookStyle") << "over the wizard";
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmBooking") << "nothing was chosen";
  EXPECT_EQ(play.Desk.Selected("lstrows"), std::vector{6});
  play.Book(1, Singles(play.World(), "CWA Hand 1", "CWA Hand 2"));
  play.Book(2, Talk(play.World(), "CWA Hand 3"));
  for (const int row : {1, 7}) {  // the credits, a closed row
    play.Desk.OpenRow("lstrows", row);
    EXPECT_EQ(play.Desk.TopName(), "frmBooking") << row;
  }
  for (const bool sure : {false, true}) {
    play.Desk.ExpectAsk("Remove?", "Are you sure you wish to remove this booking?", sure);
    play.Desk.Click("cmdbook(1)");
    EXPECT_EQ(play.World().Segments()[1].Kind, sure ? kEmptySegment : kMatch);
    EXPECT_EQ(play.Desk.Text("cmdbook(1)"), sure ? "Book" : "Remove");
  }
  EXPECT_EQ(play.Desk.Text("lblcount"), "0 of 2 matches, 1 of 5 segments booked.");
  for (const bool sure : {false, true}) {
    play.Desk.ExpectAsk("Confirm", kBackText, sure, ui::Default::No);
    play.Desk.Click("cmdback");
    EXPECT_EQ(play.World().Segments()[2].Kind, sure ? kEmptySegment : kInterview);
  }
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  play.Desk.Click("cmdnext");
  play.Desk.OpenRow("lstrows", 3);
  EXPECT_TRUE(play.Lies("frmBookSheet"));
}

TEST(TelevisionSheet, MovesEditsAndTakesBackItsRows) {
  OnSheet play(Sunday("G"));
  const auto sheet = [&] {
    Names rows;
    for (int record = 1; record <= 5; ++record)
      if (play.World().Segments()[record].Kind != kEmptySegment)
        rows.push_back(std::to_string(record) + " " + play.Row(record)[1]);
    return rows;
  };
  for (const char* name : {"cmdedit", "cmddown", "cmdundo", "cmdredo"})
    EXPECT_FALSE(play.Desk.Enabled(name)) << name;
  Segment upset = Singles(play.World(), "CWA Hand 5", "CWA Hand 1");
  upset.TitleName = "CWA Crown";
  ASSERT_EQ(WhyNotBookable(play.World(), upset, {false, "All"}), Names());
  play.Book(1, upset);
  EXPECT_EQ(play.Row(1)[3], "New champion");
  play.Desk.Pick("lstrows", 2);
  EXPECT_NE(play.Desk.Text("txtrow").find("CWA Hand 5 wins the CWA Crown."), std::string::npos);
  EXPECT_FALSE(play.Desk.Enabled("cmdup"));
  play.Desk.Click("cmddown");
  EXPECT_EQ(sheet(), Names{"2 CWA Hand 5 over CWA Hand 1"});
  EXPECT_EQ(play.Desk.Selected("lstrows"), std::vector{3}) << "the selection goes along";
  EXPECT_EQ(ui::MoveRow(play.Desk, *play.Desk.Top(), "lstrows", 3, 6), "");
  EXPECT_EQ(sheet(), Names{"5 CWA Hand 5 over CWA Hand 1"});
  EXPECT_FALSE(play.Desk.Enabled("cmddown"));
  EXPECT_EQ(ui::MoveRow(play.Desk, *play.Desk.Top(), "lstrows", 6, 7), "");
  EXPECT_EQ(sheet(), Names{"5 CWA Hand 5 over CWA Hand 1"}) << "a closed row takes nothing";

  play.Desk.OpenRow("lstrows", 6);
  EXPECT_EQ(play.Desk.TopName(), "frmBookSheet");
  play.Desk.Click("cmdexit");
  play.Desk.ExpectAsk("Remove?", kAnyText, true);
  play.Desk.Click("cmdbook(5)");
  EXPECT_EQ(sheet(), Names());
  const std::string upsets = "CWA Hand 5 over CWA Hand 1";
  const struct {
    std::string Undone;
    int Row;
  } kSteps[] = {{"removed from row 5", 5},
                {"moved from row 2 to row 5", 2},
                {"moved from row 1 to row 2", 1}};
  for (const auto& step : kSteps) {
    EXPECT_EQ(play.Desk.Tip("cmdundo"), "Takes back: " + upsets + ", " + step.Undone + ".");
    play.Desk.Click("cmdundo");
    EXPECT_EQ(sheet(), Names{std::to_string(step.Row) + " " + upsets});
    EXPECT_EQ(play.Desk.Selected("lstrows"), std::vector{step.Row + 1}) << "it goes back as well";
    EXPECT_TRUE(play.Desk.Text("txtrow").starts_with("Taken back: " + upsets + ", " + step.Undone));
  }
  play.Desk.Click("cmdredo");
  EXPECT_EQ(sheet(), Names{"2 " + upsets});
  EXPECT_EQ(play.Desk.Selected("lstrows"), std::vector{3});
  EXPECT_TRUE(play.Desk.Text("txtrow").starts_with("Done again: " + upsets + ", moved from"));

  // What does not hold any more is named and left out.
  play.Desk.Event([&] {
    Worker& hurt = Named(play.World().Workers(), "CWA Hand 5");
    hurt.Status = "Inj";
    hurt.StatusMonths = 2;
    hurt.InjuryName = "Broken Leg";
  });
  play.Desk.ExpectSay("Undo",
                      "Not everything holds any more:\nRow 1, CWA Hand 5 over CWA Hand 1: "
                      "CWA Hand 5 cannot be booked for a match (Broken Leg, out for 2 months).");
  play.Desk.Click("cmdundo");
  EXPECT_EQ(sheet(), Names());
}

TEST(KeptCards, StayForFiveWeeksAndTheLatestIsTheLast) {
  OnSheet play(Sunday("G"));
  World& world = play.World();
  const CardOwner held{"Tidal Force", false, false}, draft{"Tidal Force", false, true};
  Card card(2, EmptySegment());
  for (int week = 0; week < 8; ++week) {
    card[0] = Singles(world, "CWA Hand 5", week == 7 ? "CWA Hand 8" : "CWA Hand 6");
    for (const CardOwner& owner : {held, draft})
      KeepCard(world, owner, card, kGameStart + std::chrono::days{7 * week});
  }
  int cards = 0, drafts = 0;
  for (const KeptRow& row : world.KeptRows()) ++(row.IsDraft ? drafts : cards);
  EXPECT_EQ(cards, 6) << "tonight's, and those of the five weeks before";
  EXPECT_EQ(drafts, 8) << "one for each day to come";
  KeepCard(world, draft, Card(2, EmptySegment()), kGameStart + std::chrono::days{7});
  EXPECT_TRUE(FindCard(world, draft, kGameStart + std::chrono::days{7}).Rows.empty());
  EXPECT_EQ(FindCard(world, draft, kGameStart + std::chrono::days{14}).Rows.size(), 11U);
  EXPECT_EQ(FindCard(world, held).On, kGameStart + std::chrono::days{49});
  EXPECT_EQ(FindCard(world, held).Rows[0].Worker[1], card[0].Worker[1]);
}

TEST(TelevisionSheet, LaysTheLastCardAndTheDraftOfItsDay) {
  OnSheet play(Sunday("G"));
  EXPECT_FALSE(play.Desk.Enabled("cmdlast"));
  play.Desk.Event([&] {
    World& world = play.World();
    world.Segments()[2] = Singles(world, "CWA Hand 5", "CWA Hand 6");
    world.Segments()[2].Rating = 40;
    HistoryEntry held{};
    held.On = kGameStart;
    held.Kind = kPastTv;
    held.Promotion = world.PlayerUid();
    held.Name = "Tidal Force";
    world.History().Append(held);
    KeepLastCard(world);
  });
  play.Look();
  play.Desk.ExpectAsk("Remove?", kAnyText, true);
  play.Desk.Click("cmdbook(2)");
  play.Desk.ExpectAsk("Last Card", "Lay the card of 01 March 2026 on the sheet?", true);
  play.Desk.Click("cmdlast");
  EXPECT_EQ(play.Row(2)[1], "CWA Hand 5 over CWA Hand 6");
  EXPECT_EQ(play.World().Segments()[2].Rating, 0);

  // A week before its day: nobody's morale moves, and what is kept waits for the day.
  play.Desk.CloseAll();
  play.Desk.Open("frmDrafts");
  play.Desk.Click("cmddraft");
  EXPECT_EQ(play.Desk.Title(), "Draft For Tidal Force");
  EXPECT_TRUE(play.Desk.Enabled("cmdlast"));
  EXPECT_EQ(play.Desk.Text("lblfacts"), "Sunday, 08 March 2026, 5 rows");
  play.Book(1, Singles(play.World(), "CWA Hand 7", "CWA Hand 8"));
  play.Book(3, Singles(play.World(), "CWA Hand 9", "CWA Hand 10"));
  EXPECT_TRUE(play.Desk.Text("lblforecast").ends_with("%, as things stand today."));
  play.Desk.Click("cmddoshow");
  EXPECT_EQ(play.Desk.Rows("lstshows")[0].back(), "2 of 5 rows");
  EXPECT_EQ(play.Desk.Rows("lstshows")[1].back(), "0 of 5 rows") << "a week later";
  play.Desk.Click("cmddraft");
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmDrafts") << "nothing that was changed would be lost";
  play.Desk.Click("cmddraft");
  play.Book(2, Talk(play.World(), "CWA Hand 1"));
  for (const bool sure : {false, true}) {
    play.Desk.ExpectAsk("Confirm", "Leave without keeping what has been changed in this draft?",
                        sure, ui::Default::No);
    play.Desk.Click("cmdback");
    EXPECT_EQ(play.Lies("frmDraft"), !sure);
  }
  EXPECT_EQ(play.Desk.Rows("lstshows")[0].back(), "2 of 5 rows") << "as it was kept";
  play.Desk.Event([&] {
    play.World().Game().Today = kGameStart + std::chrono::days{7};
    Worker& gone = Named(play.World().Workers(), "CWA Hand 10");
    gone.Status = "Inj";
    gone.StatusMonths = 2;
    gone.InjuryName = "Broken Leg";
  });
  play.Desk.CloseAll();
  play.Desk.ExpectAsk("Draft", kAnyText, true);
  play.Desk.ExpectSay(
      "Draft",
      "Not everything holds any more:\nRow 3, CWA Hand 9 over CWA Hand "
      "10: CWA Hand 10 cannot be booked for a match (Broken Leg, out for 2 months).");
  play.Desk.Open("frmBooking");
  EXPECT_EQ(play.Row(1)[1], "CWA Hand 7 over CWA Hand 8");
  EXPECT_EQ(play.Row(3)[1], "<Nothing Booked>");
}

TEST(TelevisionSheet, HandsOverToTheShowWithTheCommentatorsOfItsRecord) {
  OnSheet play(Sunday("G"));
  for (int record = 1; record <= 5; ++record)
    play.World().Segments()[record] = Singles(play.World(), "CWA Hand 1", "CWA Hand 2");
  play.Look();
  for (const bool sure : {false, true}) {
    play.Desk.ExpectAsk("Sure?", "Are you sure you wish to start this show?", sure);
    play.Desk.Click("cmddoshow");
    ASSERT_EQ(play.World().ShowRuns().Count(), sure);
    EXPECT_EQ(play.Lies("frmBooking"), !sure);
  }
  const ShowRun& run = play.World().ShowRuns()[1];
  EXPECT_EQ(run.Stage, kShowRuns);
  EXPECT_FALSE(run.IsEvent);
  EXPECT_EQ(run.Announcer, 1);
  EXPECT_EQ(run.Colour, 2);
}

TEST(TelevisionSheet, CancelsTheShowAfterAsking) {
  OnSheet play(Sunday());
  for (const bool sure : {false, true}) {
    play.Desk.ExpectAsk("Cancel?", "Are You Sure You Wish To Cancel The Show?", sure,
                        ui::Default::No);
    play.Desk.Click("cmdcancel");
    EXPECT_EQ(play.Lies("frmBooking"), !sure);
  }
  EXPECT_EQ(play.World().Today(), kGameStart + std::chrono::days{1});
}

TEST(TelevisionSheet, OffersTheAutoBookerWhileSomebodyAboveTheJobbersIsFit) {
  const struct {
    int Position;
    const char* Status;
    bool Offered;
  } kCases[] = {{kOpener, "Nor", true},
                {kJobber, "Nor", false},
                {kManager, "Nor", false},
                {kMainEvent, "Inj", false}};
  for (const auto& c : kCases) {
    OnSheet play(SmallWorld()
                     .Network("Harbor 9")
                     .Promotion("CWA")
                     .Worker("Only One", c.Position, 60,
                             [&](Worker& worker) {
                               worker.Speaks = false;
                               worker.Status = c.Status;
                               worker.StatusMonths = worker.Status == "Nor" ? 0 : 2;
                               if (worker.StatusMonths > 0) worker.InjuryName = "Broken Leg";
                             })
                     .Show("Tidal Force", "Sunday", "Harbor 9")
                     .Promotion("NEW")
                     .Worker("Theirs", kMainEvent, 90)
                     .Game("CWA"));
    EXPECT_EQ(play.Desk.Enabled("cmdauto"), c.Offered) << c.Position << c.Status;
    EXPECT_EQ(play.Desk.Tip("cmdauto").empty(), c.Offered);
    play.Desk.ExpectSay("Fill The Rest", kAnyText);
    play.Desk.Click("cmdfill");
    EXPECT_TRUE(
        play.Desk.Boxes().back().Text.starts_with("The roster has nothing to fill a row with.\n"));
  }
}

}  // namespace
}  // namespace grapplemont::test
