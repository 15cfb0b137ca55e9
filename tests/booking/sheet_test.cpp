#include <gtest/gtest.h>

#include "booking/onsheet.h"
#include "booking/sheet.h"
#include "records/angles.h"
#include "show/forecast.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

constexpr const char* kClosed = "Not Available In This TV Time Slot";
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
  struct Case {
    const char* Slot;
    int Open, Matches, Segments;
    std::string Facts;
  };
  const Case kCases[] = {{"P", 11, 4, 8, "Harbor 9, Prime Time, 11 rows"},
                         {"E", 8, 3, 7, "Harbor 9, Early Evening, 8 rows"},
                         {"L", 6, 3, 6, "Harbor 9, Late Night, 6 rows"},
                         {"G", 5, 2, 5, "Harbor 9, Graveyard, 5 rows"}};
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.Slot);
    OnSheet play(Sunday(c.Slot));
    EXPECT_EQ(play.Desk.Title(), "Television Booking Sheet For Tidal Force");
    EXPECT_EQ(play.Desk.Text("lblfacts"), c.Facts);
    EXPECT_EQ(play.Desk.Text("lblwarn"), "Warning : You must have a minimum of " +
                                             std::to_string(c.Matches) +
                                             " matches, and a minimum of " +
                                             std::to_string(c.Segments) + " segments overall.");
    EXPECT_EQ(play.Desk.Text("lblcount"), "0 of " + std::to_string(c.Matches) + " matches, 0 of " +
                                              std::to_string(c.Segments) + " segments booked.");
    ASSERT_EQ(play.Desk.Rows("lstrows").size(), 12u);
    EXPECT_EQ(play.Row(0), (Names{"-", "Opening Credits"}));
    for (int record = 1; record <= 11; ++record) {
      const bool open = record <= c.Open;
      EXPECT_EQ(play.Row(record)[0], open ? std::to_string(record) : "-");
      EXPECT_EQ(play.Row(record)[1], open ? "<Nothing Booked>" : kClosed);
      EXPECT_EQ(play.Desk.Text(play.Button(record)), "Book");
      EXPECT_EQ(play.Desk.Enabled(play.Button(record)), open);
    }
    EXPECT_FALSE(play.Desk.Enabled("cmddoshow"));
  }
}

TEST(Sheet, LetsAShowStartOnceItsMinimumIsBooked) {
  struct Case {
    const char* About;
    const char* Slot;    // nullptr: an Event
    std::string Booked;  // M, I, A or a dot, from record 1
    bool Starts;
  };
  const Case kCases[] = {
      {"two of five are matches", "G", "MMIIA", true},
      {"four matches are four segments", "G", "MMMM", false},
      {"one match too few", "G", "MIIIA", false},
      {"every row of Late Night", "L", "MMMIIA", true},
      {"one row of Late Night short", "L", "MMMII", false},
      {"Early Evening with a row left", "E", "MMMIIII", true},
      {"Prime Time", "P", "MMMMIIII", true},
      {"Prime Time without its fourth match", "P", "MMMIIIII", false},
      {"rows anywhere", "P", "..MMMMIIIA.", true},
      {"the dark match alone", nullptr, "M", false},
      {"the dark match is no fourth", nullptr, "MMMMIII", false},
      {"five on the Event itself", nullptr, ".MMMMA", false},
      {"six on the Event itself", nullptr, ".MMMMAI", true},
  };
  for (const Case& c : kCases) {
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
  EXPECT_TRUE(textOf(4).ends_with("\nTo book something else in this row, remove it first."))
      << textOf(4);
  EXPECT_NE(textOf(1).find("Nothing is booked here."), std::string::npos);
}

Segment Booked(const World& world, int kind, int style, int type, int people) {
  Segment segment = EmptySegment();
  segment.Kind = kind;
  segment.Style = style;
  segment.MatchType = type;
  for (int i = 1; i <= people; ++i)
    segment.Worker[static_cast<std::size_t>(i - 1)] =
        Named(world.Workers(), "CWA Hand " + std::to_string(i)).Uid;
  return segment;
}

TEST(DetailsOfRow, TellsWhatTheSummaryLeavesOut) {
  const World world = Sunday();
  const auto uid = [&](int hand) { return int(world.Workers()[hand].Uid); };
  struct Row {
    int Style, Type, People;
    std::vector<int> Result;  // Winner, Loser, Place3 and up, by their hands
    Names Told;
  };
  const Row kRows[] = {
      {kSingles, 1, 2, {1, 2}, {}},
      {kTag, 1, 4, {2, 4}, {"Fall: CWA Hand 2 over CWA Hand 4"}},
      {kTag, 1, 4, {}, {}},
      {kThreeWay, kTriangle, 3, {3, 1}, {"Fall: CWA Hand 3 over CWA Hand 1"}},
      {kThreeWay, kElimination, 3, {2, 3, 1}, {"Order of elimination: CWA Hand 3, CWA Hand 1"}},
      {kThreeTeams, kTriangle, 6, {6, 2}, {"Fall: CWA Hand 6 over CWA Hand 2"}},
      {kThreeTeams, kThreeTeamsTlc, 6, {1}, {}},
      {kThreeTeams,
       kElimination,
       6,
       {1, 5, 3},
       {"Order of elimination: CWA Hand 5 \\ CWA Hand 6, The Dock Rats"}},
      {kFourWay,
       kElimination,
       4,
       {1, 4, 2, 3},
       {"Order of elimination: CWA Hand 4, CWA Hand 2, CWA Hand 3"}},
      {kFourTeams,
       kElimination,
       8,
       {1, 7, 3, 5},
       {"Order of elimination: CWA Hand 7 \\ CWA Hand 8, The Dock Rats, CWA Hand 5 \\ CWA Hand "
        "6"}},
      {kThreeOnThree, 1, 6, {4, 2}, {"Fall: CWA Hand 4 over CWA Hand 2"}},
      {kFourOnFour, 1, 8, {1, 8}, {"Fall: CWA Hand 1 over CWA Hand 8"}},
      {kFourOnFour,
       kSurvivor,
       8,
       {1, 5, 2, 6, 0, 7, 8},
       {"Order of elimination: CWA Hand 5, CWA Hand 2, CWA Hand 6, CWA Hand 7, CWA Hand 8"}},
      {kSpecial,
       kTenMan,
       10,
       {9, 4},
       {"Entrants: CWA Hand 1, CWA Hand 2, CWA Hand 3, CWA Hand 4, CWA Hand 5, CWA Hand 6, CWA "
        "Hand 7, CWA Hand 8, CWA Hand 9, CWA Hand 10",
        "Runner-up: CWA Hand 4"}},
  };
  for (const Row& row : kRows) {
    Segment match = Booked(world, kMatch, row.Style, row.Type, row.People);
    match.Loser = kNoLoser;
    Word* const places[] = {&match.Winner, &match.Loser,  &match.Place3, &match.Place4,
                            &match.Place5, &match.Place6, &match.Place7};
    for (std::size_t i = 0; i < row.Result.size(); ++i)
      *places[i] = row.Result[i] == 0 ? 0 : uid(row.Result[i]);
    EXPECT_EQ(DetailsOfRow(world, match), row.Told) << row.Style << ", " << row.Type;
  }
}

TEST(DetailsOfRow, TellsWhoPlaysWhat) {
  const World world = Sunday();
  Segment ambush = Booked(world, kAngle, kAmbush, 0, 4);
  ambush.Worker[2] = 0;
  EXPECT_EQ(DetailsOfRow(world, ambush),
            (Names{"Ambushee: CWA Hand 1", "Ambusher #1: CWA Hand 2", "Saver: CWA Hand 4"}));
  Segment attack = Booked(world, kAngle, kStableAttack, 0, 1);
  attack.Text = "The Tide";
  EXPECT_EQ(DetailsOfRow(world, attack), (Names{"Victim: CWA Hand 1", "Stable: The Tide"}));
  Segment award = Booked(world, kAngle, kAwardSingles, 0, 2);
  award.TitleName = "CWA Crown";
  EXPECT_EQ(DetailsOfRow(world, award),
            (Names{"Commissioner: CWA Hand 1", "Title: CWA Crown", "Worker: CWA Hand 2"}));
  EXPECT_EQ(DetailsOfRow(world, Talk(world, "CWA Hand 1")), Names());
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
  EXPECT_EQ(play.Desk.Text("lblforecast"), "Expected rating " + RangeText(forecast.Rating) + ".");
  const Names free = play.Desk.FirstColumn("lstfree");
  EXPECT_EQ(free.size(), 27u);
  for (const char* booked : {"CWA Hand 1", "CWA Hand 2", "CWA Hand 7"})
    EXPECT_EQ(std::count(free.begin(), free.end(), booked), 0) << booked;
  play.Desk.OpenRow("lstfree", "CWA Hand 3");
  EXPECT_EQ(play.Desk.TopName(), "frmQuickStat");
  EXPECT_TRUE(play.Desk.Text("txtworker").starts_with("CWA Hand 3\n"));
}

TEST(Forecast, IsARangeOrOneNumber) {
  EXPECT_EQ(RangeText({58, 66}), "58 - 66%");
  EXPECT_EQ(RangeText({58, 58}), "58%");
}

TEST(Sheet, StartsEmptyHoweverItWasLeft) {
  World world = Sunday("G");
  world.Segments().Rewrite({3, Singles(world, "CWA Hand 1", "CWA Hand 2")});
  OnSheet play(std::move(world));
  ASSERT_EQ(play.World().Segments().Count(), 11);
  EXPECT_EQ(play.World().Segments()[2].Kind, kEmptySegment);
  play.Book(2, Singles(play.World(), "CWA Hand 1", "CWA Hand 2"));
  play.Desk.ExpectAsk("Confirm", kBackText, false, ui::Default::No);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Row(2)[1], "CWA Hand 1 over CWA Hand 2");
  play.Desk.ExpectAsk("Confirm", kBackText, true, ui::Default::No);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_EQ(play.World().Segments()[2].Kind, kEmptySegment) << "it is erased at once";
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.Row(2)[1], "<Nothing Booked>");
}

TEST(TelevisionSheet, RemovesABookingAfterAsking) {
  OnSheet play(Sunday());
  play.Book(1, Singles(play.World(), "CWA Hand 1", "CWA Hand 2"));
  play.Book(2, Talk(play.World(), "CWA Hand 3"));
  const char* text = "Are you sure you wish to remove this booking?";
  play.Desk.ExpectAsk("Remove?", text, false);
  play.Desk.Click("cmdbook(1)");
  EXPECT_EQ(play.World().Segments()[1].Kind, kMatch);
  play.Desk.ExpectAsk("Remove?", text, true);
  play.Desk.Click("cmdbook(1)");
  EXPECT_EQ(play.World().Segments()[1].Kind, kEmptySegment);
  EXPECT_EQ(play.Row(1)[1], "<Nothing Booked>");
  EXPECT_EQ(play.Row(2)[1], "Interview with CWA Hand 3");
  EXPECT_EQ(play.Desk.Text("cmdbook(1)"), "Book");
  EXPECT_EQ(play.Desk.Text("lblcount"), "0 of 4 matches, 1 of 8 segments booked.");
}

TEST(TelevisionSheet, OpensTheWizardOnEmptyOpenRowsOnly) {
  OnSheet play(Sunday("G"));
  play.Desk.Click("cmdbook(5)");
  EXPECT_EQ(play.Desk.TopName(), "frmBookSheet");
  play.Desk.Click("cmdexit");
  EXPECT_EQ(play.Desk.TopName(), "frmBooking");
  EXPECT_EQ(play.Desk.Selected("lstrows"), std::vector{6});
  play.Book(1, Talk(play.World(), "CWA Hand 3"));
  for (const int row : {1, 2, 7}) {  // the credits, a booked row, a closed one
    play.Desk.OpenRow("lstrows", row);
    EXPECT_EQ(play.Desk.TopName(), "frmBooking") << row;
  }
  play.Desk.OpenRow("lstrows", 3);
  EXPECT_TRUE(play.Lies("frmBookSheet"));
}

TEST(TelevisionSheet, BooksTheFirstOfSeveralShowsOfADay) {
  OnSheet play(OnAir("G")
                   .Show("Late Tide", "Sunday", "Harbor 9", [](Show& show) { show.Slot = "P"; })
                   .Game("CWA"));
  EXPECT_EQ(play.Desk.Title(), "Television Booking Sheet For Tidal Force");
  EXPECT_FALSE(play.Desk.Enabled("cmdbook(6)"));
}

TEST(TelevisionSheet, HandsOverToTheShowWithTheCommentatorsOfItsRecord) {
  OnSheet play(Sunday("G"));
  for (int record = 1; record <= 5; ++record)
    play.World().Segments()[record] = Singles(play.World(), "CWA Hand 1", "CWA Hand 2");
  play.Look();
  const char* text = "Are you sure you wish to start this show?";
  play.Desk.ExpectAsk("Sure?", text, false);
  play.Desk.Click("cmddoshow");
  EXPECT_FALSE(play.World().ShowRuns().Count() > 0);
  play.Desk.ExpectAsk("Sure?", text, true);
  play.Desk.Click("cmddoshow");
  EXPECT_FALSE(play.Lies("frmBooking"));
  EXPECT_EQ(play.Desk.Screens().size(), 2u);
  ASSERT_EQ(play.World().ShowRuns().Count(), 1);
  const ShowRun& run = play.World().ShowRuns()[1];
  EXPECT_EQ(run.Stage, kShowRuns);
  EXPECT_FALSE(run.IsEvent);
  EXPECT_EQ(run.Announcer, 1);
  EXPECT_EQ(run.Colour, 2);
  EXPECT_EQ(play.World().Segments()[5].Kind, kMatch);
}

TEST(TelevisionSheet, CancelsTheShowAfterAsking) {
  OnSheet play(Sunday());
  const char* text = "Are You Sure You Wish To Cancel The Show?";
  play.Desk.ExpectAsk("Cancel?", text, false, ui::Default::No);
  play.Desk.Click("cmdcancel");
  EXPECT_EQ(play.Desk.TopName(), "frmBooking");
  play.Desk.ExpectAsk("Cancel?", text, true, ui::Default::No);
  play.Desk.Click("cmdcancel");
  EXPECT_FALSE(play.Lies("frmBooking"));
  EXPECT_EQ(play.World().Today(), kGameStart + std::chrono::days{1});
}

TEST(TelevisionSheet, OffersTheAutoBookerWhileSomebodyAboveTheJobbersIsFit) {
  struct Case {
    int Position;
    const char* Status;
    bool Offered;
  };
  const Case kCases[] = {{kOpener, "Nor", true},
                         {kJobber, "Nor", false},
                         {kManager, "Nor", false},
                         {kMainEvent, "Inj", false}};
  for (const Case& c : kCases) {
    OnSheet play(SmallWorld()
                     .Network("Harbor 9")
                     .Promotion("CWA")
                     .Worker("Only One", c.Position, 60,
                             [&](Worker& worker) {
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
  }
}

TEST(TelevisionSheet, LooksForSomebodyToBookWhenItOpensAlone) {
  OnSheet play(SmallWorld()
                   .Network("Harbor 9")
                   .Promotion("CWA")
                   .Worker("Only One", kOpener, 60)
                   .Show("Tidal Force", "Sunday", "Harbor 9")
                   .Game("CWA"));
  Named(play.World().Workers(), "Only One").Position = kJobber;
  play.Look();
  EXPECT_TRUE(play.Desk.Enabled("cmdauto"));
  play.Desk.ExpectAsk("Confirm", kBackText, true);
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdnext");
  EXPECT_FALSE(play.Desk.Enabled("cmdauto"));
}

TEST(Sheet, OpensEachScreenAtHandAndComesBack) {
  const std::pair<const char*, const char*> kAtHand[] = {
      {"cmddebut", "frmDebut"},      {"cmdfeuds", "frmFeuds"},     {"cmdmanagers", "frmManagers"},
      {"cmdroster", "frmAltRoster"}, {"cmdstables", "frmStables"}, {"cmdstats", "frmQuickStat"},
      {"cmdteams", "frmTagTeams"},   {"cmdtitles", "frmAltBelts"}, {"cmdturns", "frmTurn"},
      {"cmdnotepad", "frmNotepad"},  {"cmdauto", "frmAutoBook"}};
  OnSheet play(Sunday());
  play.Book(1, Talk(play.World(), "CWA Hand 3"));
  for (const auto& [button, screen] : kAtHand) {
    play.Desk.Click(button);
    ASSERT_EQ(play.Desk.TopName(), screen);
    play.Desk.Click(play.Desk.Top()->Layout().Cancel->Name());
    ASSERT_EQ(play.Desk.TopName(), "frmBooking") << screen;
    EXPECT_EQ(play.Row(1)[1], "Interview with CWA Hand 3") << screen;
  }
}

TEST(Sheet, FillsTheRestAfterAsking) {
  OnSheet play(Sunday("G"));
  play.Book(2, Singles(play.World(), "CWA Hand 29", "CWA Hand 30"));
  play.Desk.ExpectAsk("Fill The Rest", kAnyText, false);
  play.Desk.Click("cmdfill");
  EXPECT_EQ(play.Desk.Text("lblcount"), "1 of 2 matches, 1 of 5 segments booked.");
  play.Desk.ExpectAsk("Fill The Rest", kAnyText, true);
  play.Desk.Click("cmdfill");
  EXPECT_TRUE(play.Desk.Boxes().back().Text.starts_with(
      "Book 4 segments in the rows that are still empty? What you have booked stays."));
  EXPECT_EQ(play.Row(2)[1], "CWA Hand 29 over CWA Hand 30");
  for (int record = 1; record <= 5; ++record)
    EXPECT_NE(play.Row(record)[1], "<Nothing Booked>") << record;
  for (int record = 6; record <= 11; ++record)
    EXPECT_EQ(play.World().Segments()[record].Kind, kEmptySegment) << record;
  EXPECT_FALSE(play.Desk.Enabled("cmdfill"));
  EXPECT_TRUE(play.Desk.Enabled("cmddoshow"));
}

TEST(Sheet, SaysWhatIsMissingWhenTheRosterHasNothingLeft) {
  OnSheet play(SmallWorld()
                   .Network("Harbor 9")
                   .Promotion("CWA")
                   .Worker("Only One", kMainEvent, 60, [](Worker& w) { w.Speaks = false; })
                   .Show("Tidal Force", "Sunday", "Harbor 9")
                   .Game("CWA"));
  play.Desk.ExpectSay("Fill The Rest", kAnyText);
  play.Desk.Click("cmdfill");
  const std::string text = play.Desk.Boxes().back().Text;
  EXPECT_TRUE(text.starts_with("The roster has nothing to fill a row with.\n")) << text;
}

}  // namespace
}  // namespace grapplemont::test
