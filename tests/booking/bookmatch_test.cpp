#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/segmentcheck.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;
using Picks = std::vector<std::pair<std::string, std::string>>;

/// One booking, from the style to the record.
struct Booking {
  const char* Style;
  const char* Type;
  int People;
  Picks Result;
  std::vector<Picks> Later;  // finish, aftermath, purpose
  Change<Segment> Expect;
};

Names Men(int count) {
  Names names;
  for (int i = 1; i <= count; ++i) names.push_back("Man " + std::to_string(i));
  return names;
}

void PickAll(ScriptDesk& desk, const Picks& picks) {
  for (const auto& [list, row] : picks) desk.Pick(list, row);
}

/// Men have the uids of their numbers.
const Booking kBookings[] = {
    {"1 vs 1",
     "Singles",
     2,
     {{"cmbwinner", "Man 2"}},
     {{{"lstfinish", "Man 2 by interference"}, {"lstrun1", "Man 9"}},
      {{"lstafter", "Run in for the save"}, {"lstrun1", "Man 10"}},
      {{"lstpurpose", "Put Man 10 over"}}},
     [](Segment& s) {
       s.Winner = 2;
       s.Loser = 1;
       s.Finish = 3;
       s.Other1 = 9;
       s.Aftermath = 26;
       s.Other2 = 10;
       s.Purpose = 32;
     }},
    {"1 vs 1",
     "Singles",
     2,
     {{"cmbwinner", "Draw"}},
     {{{"lstfinish", "Double count out"}},
      {{"lstafter", "Run in attack on both competitors"}, {"lstrun1", "Woman 1"}},
      {{"lstpurpose", "Put both workers over"}}},
     [](Segment& s) {
       s.Loser = 1;
       s.Finish = 7;
       s.Aftermath = 6;
       s.Other1 = 13;
       s.Purpose = 9;
     }},
    {"2 vs 2",
     "Tag",
     4,
     {{"cmbwinner", "Man 3"}, {"cmbloser", "Man 2"}},
     {{{"lstfinish", "Man 3 \\ Man 4 by interference"}, {"lstrun1", "Man 5"}, {"lstrun2", "Man 6"}},
      {{"lstafter", "Run in for failed save attempt"}, {"lstrun1", "Man 7"}, {"lstrun2", "Man 8"}},
      {{"lstpurpose", "Put Man 7 \\ Man 8 over"}}},
     [](Segment& s) {
       s.Winner = 3;
       s.Loser = 2;
       s.Finish = 3;
       s.Other1 = 5;
       s.Other2 = 6;
       s.Aftermath = 19;
       s.Other3 = 7;
       s.Other4 = 8;
       s.Purpose = 38;
     }},
    {"1 vs 1 vs 1",
     "Elimination",
     3,
     {{"cmbwinner", "Man 3"}, {"cmbloser1", "Man 2"}, {"cmbloser2", "Man 1"}},
     {},
     [](Segment& s) {
       s.Winner = 3;
       s.Loser = 2;
       s.Place3 = 1;
     }},
    {"1 vs 1 vs 1",
     "Triangle",
     3,
     {{"cmbwinner", "Man 2"}, {"cmbloser", "Man 3"}},
     {},
     [](Segment& s) {
       s.Winner = 2;
       s.Loser = 3;
     }},
    {"2 vs 2 vs 2",
     "Elimination",
     6,
     {{"cmbwinner", "Man 5 \\ Man 6"},
      {"cmbloser1", "Man 3 \\ Man 4"},
      {"cmbloser2", "Man 1 \\ Man 2"}},
     {},
     [](Segment& s) {
       s.Winner = 5;
       s.Loser = 3;
       s.Place3 = 1;
     }},
    {"2 vs 2 vs 2",
     "Triangle",
     6,
     {{"cmbwinner", "Man 4"}, {"cmbloser", "Man 6"}},
     {},
     [](Segment& s) {
       s.Winner = 4;
       s.Loser = 6;
     }},
    {"2 vs 2 vs 2",
     "TLC",
     6,
     {{"cmbwinner", "Man 3 \\ Man 4"}},
     {},
     [](Segment& s) {
       s.Winner = 3;
       s.Loser = 1;
     }},
    {"1 vs 1 vs 1 vs 1",
     "Elimination",
     4,
     {{"cmbwinner", "Man 1"},
      {"cmbloser1", "Man 4"},
      {"cmbloser2", "Man 3"},
      {"cmbloser3", "Man 2"}},
     {},
     [](Segment& s) {
       s.Winner = 1;
       s.Loser = 4;
       s.Place3 = 3;
       s.Place4 = 2;
     }},
    {"1 vs 1 vs 1 vs 1",
     "4 Corners",
     4,
     {{"cmbwinner", "Man 4"}, {"cmbloser", "Man 2"}},
     {},
     [](Segment& s) {
       s.Winner = 4;
       s.Loser = 2;
     }},
    {"2 vs 2 vs 2 vs 2",
     "Elimination",
     8,
     {{"cmbwinner", "Man 7 \\ Man 8"},
      {"cmbloser1", "Man 1 \\ Man 2"},
      {"cmbloser2", "Man 5 \\ Man 6"},
      {"cmbloser3", "Man 3 \\ Man 4"}},
     {},
     [](Segment& s) {
       s.Winner = 7;
       s.Loser = 1;
       s.Place3 = 5;
       s.Place4 = 3;
     }},
    {"2 vs 2 vs 2 vs 2",
     "TLC",
     8,
     {{"cmbwinner", "Man 5 \\ Man 6"}},
     {},
     [](Segment& s) {
       s.Winner = 5;
       s.Loser = 1;
     }},
    {"3 vs 3",
     "Tag",
     6,
     {{"cmbwinner", "Man 5"}, {"cmbloser", "Man 1"}},
     {{{"lstfinish", "Man 5 cheap victory"}}},
     [](Segment& s) {
       s.Winner = 5;
       s.Loser = 1;
       s.Finish = 2;
     }},
    {"4 vs 4",
     "Tag",
     8,
     {{"cmbwinner", "Draw"}},
     {{{"lstfinish", "Sports entertainment finish (tm)"}}},
     [](Segment& s) {
       s.Loser = 1;
       s.Finish = 13;
     }},
    {"4 vs 4",
     "Survivor",
     8,
     {{"cmbwinner", "Man 2"},
      {"cmbloser1", "Man 1"},
      {"cmbloser2", "Man 8"},
      {"cmbloser3", "Man 7"},
      {"cmbloser4", "None"},
      {"cmbloser5", "Man 6"},
      {"cmbloser6", "Man 5"}},
     {{{"lstfinish", "Man 2 cleanly"}}},
     [](Segment& s) {
       s.Winner = 2;
       s.Loser = 1;
       s.Place3 = 8;
       s.Place4 = 7;
       s.Place6 = 6;
       s.Place7 = 5;
       s.Finish = 1;
     }},
};

TEST(BookMatch, WritesEveryFormOfMatchAsChosen) {
  for (const Booking& booking : kBookings) {
    SCOPED_TRACE(std::string(booking.Style) + ", " + booking.Type);
    BookingPlay play(BookingRoster().Game("CWA"));
    play.Book(4);
    play.ChooseMatch(booking.Style, booking.Type);
    play.ChoosePeople(Men(booking.People));
    play.Next();
    PickAll(play.Desk, booking.Result);
    play.Next();
    for (const Picks& picks : booking.Later) {
      PickAll(play.Desk, picks);
      play.Next();
    }
    ASSERT_EQ(play.Desk.TopName(), "frmBookSheet");
    EXPECT_EQ(play.Slot(4).Kind, kEmptySegment) << "nothing is written before the end";
    play.Complete();
    EXPECT_TRUE(play.Desk.Empty());
    play.Reopen();

    const Segment& held = play.Slot(4);
    Segment expected = MatchOf(play.World(), held.Style, held.MatchType, Men(booking.People));
    booking.Expect(expected);
    ExpectSegment(held, expected);
    EXPECT_EQ(MatchTypeText(held.Style, held.MatchType), booking.Type);
    EXPECT_EQ(FindMatchStyle(held.Style)->Says, booking.Style);
    EXPECT_EQ(WhyNotBookable(play.World(), held, {}), Names());
  }
}

TEST(BookMatch, FillsABattleRoyalInTheOrderOfEntry) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  play.ChooseMatch("Special", "10 Man Battle Royal");
  EXPECT_EQ(play.Desk.Text("lblroster"), "Roster : 16");
  EXPECT_FALSE(play.Desk.Enabled("cmddone"));
  EXPECT_FALSE(play.Desk.Enabled("cmdadd"));
  for (int i = 10; i >= 2; --i) {
    play.Desk.Pick("lstroster", "Man " + std::to_string(i));
    play.Desk.Click("cmdadd");
  }
  play.Desk.OpenRow("lstroster", "Man 12");
  EXPECT_EQ(play.Desk.Text("lblenter"), "Entered : 10");
  play.Desk.Pick("lstroster", "Man 11");
  play.Desk.Click("cmdadd");
  EXPECT_EQ(play.Desk.Tip("cmddone"), "10 workers must be entered; so far it is 11.");
  play.Desk.Pick("lstenter", "Man 5");
  play.Desk.Click("cmdrem");
  EXPECT_EQ(play.Desk.Text("lblroster"), "Roster : 6");
  play.Next();
  play.Next();
  play.Desk.Pick("cmbwinner", "Man 7");
  play.Desk.Pick("cmbloser", "Man 7");
  play.Desk.ExpectSay("Error!", "The same person cannot win and be runner up!");
  play.Next();
  play.Desk.Pick("cmbloser", "Man 11");
  play.Next();
  EXPECT_EQ(play.Desk.Text("txtdesc(3)"), "10 Workers Entered");
  EXPECT_EQ(play.Desk.Text("txtdesc(5)"), "Result = Man 7 Wins");
  play.Complete();
  Segment expected = MatchOf(play.World(), kSpecial, kTenMan,
                             {"Man 10", "Man 9", "Man 8", "Man 7", "Man 6", "Man 4", "Man 3",
                              "Man 2", "Man 12", "Man 11"});
  expected.Winner = UidOf(play.World(), "Man 7");
  expected.Loser = UidOf(play.World(), "Man 11");
  ExpectSegment(play.Slot(), expected);
}

TEST(BookMatch, TellsWhatAWinnerCostsBeforeIt) {
  World world = BookingRoster().Game("CWA");
  Named(world.Workers(), "Man 2").Over = 81;
  Named(world.Workers(), "Man 2").Attitude = 91;
  Named(world.Workers(), "Man 3").Over = 71;
  Named(world.Workers(), "Man 3").Attitude = 45;
  BookingPlay play(std::move(world));
  play.Book();
  play.ChooseMatch("Special", "10 Man Battle Royal");
  for (int row = 1; row <= 9; ++row) play.Desk.Pick("lstroster", row);
  play.Desk.Pick("lstroster", "Woman 1");
  play.Desk.Click("cmdadd");
  play.Next();
  play.Next();
  const std::string words = "I'm not being in a match where the winner is so much lower than me.";
  const std::pair<const char*, std::string> kRows[] = {
      {"Man 2", "Nobody objects."},
      {"Man 3", "Nobody objects."},
      {"Man 1",
       "Man 2: " + words + "\nIf you insist, one will hold it against you, 10 morale, one more 5."},
      {"Woman 1",
       "Man 2: " + words + "\nIf you insist, nine will hold it against you, 50 morale each."}};
  for (const auto& [winner, says] : kRows) {
    play.Desk.Pick("cmbwinner", winner);
    EXPECT_EQ(play.Desk.Text("txtsay"), says) << winner;
  }
  Named(play.World().Workers(), "Man 2").Attitude = 92;
  play.Desk.Pick("cmbwinner", "Man 1");
  play.Desk.Pick("cmbwinner", "Woman 1");
  EXPECT_EQ(play.Desk.Text("txtsay"),
            "Nobody objects aloud; nine will hold it against you, 50 morale each.");
}

TEST(BookMatch, FillsTheBiggestFields) {
  BookingPlay play(BookingRoster().Crew(20).Game("CWA"));
  int slot = 0;
  for (const auto& [type, entrants] :
       {std::pair("Royal Rumble", 30), std::pair("20 Man Battle Royal", 20)}) {
    play.Book(++slot);
    play.ChooseMatch("Special", type);
    for (int row = 1; row < entrants; ++row) play.Desk.Pick("lstroster", row);
    play.Desk.Click("cmdadd");
    EXPECT_FALSE(play.Desk.Enabled("cmdnext"));
    play.Desk.Pick("lstroster", 1);
    play.Desk.Click("cmdadd");
    play.Next();
    play.Next();
    play.Desk.Pick("cmbwinner", "CWA Hand 1");
    play.Next();
    EXPECT_EQ(play.Desk.Text("txtdesc(3)"), std::to_string(entrants) + " Workers Entered");
    play.Complete();
    for (int i = 0; i < 30; ++i)
      EXPECT_EQ(play.Slot(slot).Worker[static_cast<std::size_t>(i)], i < entrants ? i + 1 : 0);
    EXPECT_EQ(play.Slot(slot).Winner, 17);
    EXPECT_EQ(play.Slot(slot).Loser, 1);
  }
}

TEST(BookMatch, SpeaksWhereNobodyCanBeBooked) {
  BookingPlay play(SmallWorld().Promotion("CWA").Game("CWA"));
  for (const auto& [style, list] :
       {std::pair("1 vs 1", "lstwres1"), std::pair("Special", "lstroster")}) {
    play.Book();
    play.Next();
    play.Desk.Pick("lsttype", style);
    play.Next();
    play.Next();
    EXPECT_TRUE(play.Desk.Rows(list).empty());
    EXPECT_FALSE(play.Desk.Enabled("cmddone"));
    EXPECT_NE(play.Desk.Tip("cmddone"), "");
    play.Desk.Click("cmdback");
    play.Desk.Click("cmdexit");
  }
}

TEST(BookMatch, TakesTheWinnerFromTheRingAndItsOpponentAsLoser) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  play.ChooseMatch("2 vs 2", "Tag");
  play.ChoosePeople(Men(4));
  play.Next();
  EXPECT_EQ(play.Desk.Text("cmbloser"), "Man 3");
  play.Desk.Pick("lstring", "Man 4");
  EXPECT_EQ(play.Desk.Text("cmbwinner"), "Man 4");
  EXPECT_EQ(play.Desk.Text("cmbloser"), "Man 1");
  play.Desk.Pick("cmbwinner", "Draw");
  EXPECT_FALSE(play.Desk.Enabled("cmbloser"));
  play.Desk.Pick("cmbwinner", "Man 3");
  play.Desk.Pick("cmbloser", "Man 2");
  play.Desk.Pick("cmbwinner", "Man 4");
  EXPECT_EQ(play.Desk.Text("cmbloser"), "Man 2") << "the player's own choice stays";
}

TEST(BookMatch, BooksAPlainSinglesMatchInNinePressesAndTwoPicks) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  int presses = 0;
  const auto press = [&](std::string_view button) {
    play.Desk.Click(button);
    ++presses;
  };
  for (int step = 0; step < 3; ++step) press("cmdnext");
  play.Desk.Pick("lstwres1", "Man 3");
  play.Desk.OpenRow("lstwres2", "Man 4");
  for (int step = 4; step < 9; ++step) press("cmdnext");
  press("cmdcomplete");
  EXPECT_TRUE(play.Desk.Empty());
  EXPECT_LE(presses, 9);
  Segment expected = MatchOf(play.World(), kSingles, kPlainSingles, {"Man 3", "Man 4"});
  expected.Winner = expected.Worker[0];
  expected.Loser = expected.Worker[1];
  expected.Finish = kClean;
  expected.Aftermath = after1::kNothing;
  expected.Purpose = purpose1::kNone;
  ExpectSegment(play.Slot(), expected);
}

TEST(BookMatch, GoesOnByADoubleClickOnceEveryListHasAPick) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  for (const char* list : {"lststyle", "lsttype", "lststyle"}) play.Desk.OpenRow(list, 1);
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1");
  EXPECT_FALSE(play.Desk.Enabled("cmddone"));
  play.Desk.OpenRow("lstwres1", "Man 1");
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1");
  play.Desk.OpenRow("lstwres2", "Man 2");
  EXPECT_EQ(play.Desk.TopName(), "frmBookBelt");
}

TEST(BookMatch, StandsTheTagPartnerBesideHisPartner) {
  BookingPlay play(BookingRoster().Team("The Dozen", "Man 12", "Man 7").Game("CWA"));
  play.Book();
  play.ChooseMatch("2 vs 2", "Tag");
  play.Desk.Pick("lstwres1", "Man 7");
  play.Desk.Pick("lstwres3", "Man 1");
  EXPECT_FALSE(play.Desk.Enabled("cmddone"));
  play.Desk.OpenRow("lstwres4", "Man 2");
  play.Next();
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.Desk.Text("txtdesc(3)"), "The Dozen vs Man 1 \\ Man 2");
  EXPECT_EQ(play.Desk.Text("txtdesc(5)"), "Result = The Dozen Win");
}

TEST(BookMatch, RefusesPicksThatCannotBe) {
  struct Row {
    const char* Style;
    const char* Type;
    int People;
    Picks Result;
    const char* Message;
  };
  const Row kRows[] = {
      {"2 vs 2",
       "Tag",
       4,
       {{"cmbwinner", "Man 1"}, {"cmbloser", "Man 1"}},
       "A worker cannot both win and lose a match"},
      {"2 vs 2",
       "Tag",
       4,
       {{"cmbwinner", "Man 3"}, {"cmbloser", "Man 4"}},
       "Team mates cannot both win and lose the same match."},
      {"1 vs 1 vs 1",
       "Triangle",
       3,
       {{"cmbwinner", "Man 2"}, {"cmbloser", "Man 2"}},
       "The same worker cannot win and lose the same bout!"},
      {"2 vs 2 vs 2",
       "Triangle",
       6,
       {{"cmbwinner", "Man 5"}, {"cmbloser", "Man 6"}},
       "The winner and loser cannot be team-mates!"},
      {"1 vs 1 vs 1",
       "Elimination",
       3,
       {{"cmbloser1", "Man 3"}, {"cmbloser2", "Man 3"}},
       "Please select a different worker for each box!"},
      {"2 vs 2 vs 2",
       "Elimination",
       6,
       {{"cmbloser1", "Man 1 \\ Man 2"}},
       "Please select a different team for each box!"},
      {"4 vs 4",
       "Survivor",
       8,
       {{"cmbloser1", "None"}},
       "Sorry, the first elimination box MUST be filled in."},
      {"4 vs 4",
       "Survivor",
       8,
       {{"cmbloser7", "Man 1"}},
       "You have selected the same worker twice!"},
      {"4 vs 4", "Survivor", 8, {{"cmbloser3", "Man 3"}}, "One team must be totally eliminated!"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(std::string(row.Style) + ", " + row.Message);
    BookingPlay play(BookingRoster().Game("CWA"));
    play.Book();
    play.ChooseMatch(row.Style, row.Type);
    play.ChoosePeople(Men(row.People));
    play.Next();
    const std::string screen = play.Desk.TopName();
    PickAll(play.Desk, row.Result);
    play.Desk.ExpectSay("Error!", row.Message);
    play.Desk.Click("cmddone");
    EXPECT_EQ(play.Desk.TopName(), screen);
    play.Desk.Click("cmdback");
    EXPECT_EQ(play.Desk.Text("txtstep(5)"), "Select Result");
    EXPECT_EQ(play.Desk.Text("txtdesc(5)"), "");
  }
}

TEST(BookMatch, RefusesTheSameWorkerTwice) {
  for (const auto& [style, type, count, message] :
       {std::tuple("1 vs 1", "Singles", 2, "Workers cannot fight themselves!"),
        std::tuple("4 vs 4", "Survivor", 8, "You have selected the same worker twice!"),
        std::tuple("1 vs 1 vs 1", "Triangle", 3, "You have selected the same worker twice!")}) {
    BookingPlay play(BookingRoster().Game("CWA"));
    play.Book();
    play.ChooseMatch(style, type);
    Names names = Men(count);
    names.back() = "Man 1";
    play.Desk.ExpectSay("Error!", message);
    play.ChoosePeople(names);
    names.back() = "Man 12";
    play.ChoosePeople(names);
    EXPECT_EQ(play.Desk.TopName(), "frmBookBelt");
  }
}

TEST(BookMatch, AsksForRunInsWhereTheyAreNeeded) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  play.ChoosePeople({"Man 1", "Man 2"});
  play.Next();
  play.Next();
  EXPECT_FALSE(play.Desk.Enabled("lstrun1"));
  const Names runIns = play.Desk.FirstColumn("lstrun1");
  EXPECT_EQ(runIns.front(), "None");
  EXPECT_EQ(runIns.size(), 15u) << "None, and all but the two in the match";
  play.Desk.Pick("lstfinish", "Man 1 by botched interference");
  play.Desk.ExpectSay("Error!", "You must select someone to run in if you want interference");
  play.Next();
  play.Desk.Pick("lstfinish", "Man 1 cleanly");
  play.Next();
  play.Desk.Pick("lstafter", "Run in attack on Man 2");
  play.Desk.ExpectSay("Error!", "You must select someone to run in for this aftermath");
  play.Next();
  play.Desk.Pick("lstrun1", "Man 3");
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.Desk.Text("txtdesc(7)"), "Aftermath = Run in attack on Man 2\nFrom Man 3");
}

TEST(BookMatch, AsksForRunInsOfTeams) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  play.ChooseMatch("2 vs 2", "Tag");
  play.ChoosePeople(Men(4));
  play.Next();
  play.Next();
  play.Desk.Pick("lstfinish", "Man 1 \\ Man 2 by interference");
  play.Desk.Pick("lstrun2", "Man 5");
  play.Desk.ExpectSay("Error!",
                      "If you want interference, someone must be picked in the first inteference "
                      "box");
  play.Next();
  play.Desk.Pick("lstrun1", "Man 5");
  play.Desk.ExpectSay("Error!", "You cannot select the same interfering person twice");
  play.Next();
  play.Desk.Pick("lstrun1", "Man 6");
  play.Next();
  play.Desk.Pick("lstafter", "Run in for the save");
  const Names savers = play.Desk.FirstColumn("lstrun1");
  EXPECT_EQ(std::count(savers.begin(), savers.end(), "Man 6"), 0) << "is in the ring already";
  play.Desk.Pick("lstrun1", "Man 8");
  play.Desk.Pick("lstrun2", "Man 8");
  play.Desk.ExpectSay("Error!", "You can't select the same person to run in twice!");
  play.Next();
  play.Desk.Pick("lstrun2", "Man 7");
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.Desk.Tip("txtdesc(6)"), "From Man 6 \\ Man 5");
  EXPECT_EQ(play.Desk.Text("txtdesc(7)"), "Aftermath = Run in for the save\nFrom Man 8 \\ Man 7");
}

TEST(BookMatch, AsksWhetherAChampionMayBeMissing) {
  BookingPlay play(BookingRoster()
                       .Title("Crown", "Man 1")
                       .Title("Vacant Crown")
                       .Title("Tag Straps", "Man 1", "Man 2")
                       .Game("CWA"));
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  play.ChoosePeople({"Man 2", "Man 3"});
  EXPECT_EQ(play.Desk.FirstColumn("lsttitle"), (Names{"Crown", "Vacant Crown", "None"}));
  EXPECT_EQ(play.Desk.Selected("lsttitle"), std::vector{3});
  play.Desk.Pick("lsttitle", "Crown");
  play.Desk.ExpectAsk("Continue?", "The champion is not present in this match! Continue?", false);
  play.Next();
  EXPECT_EQ(play.Desk.TopName(), "frmBookBelt");
  play.Desk.ExpectAsk("Continue?", "The champion is not present in this match! Continue?", true);
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.Desk.Text("txtdesc(4)"), "Title = Crown");
  play.Desk.Click("cmdback(4)");
  play.Desk.Click("cmdbook(4)");
  play.Desk.Pick("lsttitle", "Vacant Crown");
  play.Next();
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1Winner") << "nobody holds it";
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdexit");

  play.Book();
  play.ChooseMatch("2 vs 2", "Tag");
  play.ChoosePeople({"Man 1", "Man 3", "Man 2", "Man 4"});
  EXPECT_EQ(play.Desk.FirstColumn("lsttitle"), (Names{"Tag Straps", "None"}));
  play.Desk.Pick("lsttitle", "Tag Straps");
  play.Desk.ExpectAsk("Continue?",
                      "The tag team champions are not present in this match! Continue?", false);
  play.Next();
}

TEST(BookMatch, AsksForTheTagChampionsOfManyTeams) {
  for (const auto& [style, teams] :
       {std::pair("2 vs 2 vs 2", 3), std::pair("2 vs 2 vs 2 vs 2", 4)}) {
    BookingPlay play(BookingRoster().Title("Tag Straps", "Man 11", "Man 12").Game("CWA"));
    play.Book();
    play.ChooseMatch(style, "Elimination");
    play.ChoosePeople(Men(2 * teams));
    play.Desk.Pick("lsttitle", "Tag Straps");
    play.Desk.ExpectAsk("Continue?",
                        "The tag team champions are not present in this match! Continue?", false);
    play.Next();
    EXPECT_EQ(play.Desk.TopName(), "frmBookBelt") << style;
  }
}

/// Another promotion's Title of the same name stands first in the file.
TEST(BookMatch, AsksForTheChampionOfThePlayersOwnTitle) {
  BookingPlay play(SmallWorld()
                       .Promotion("NEW")
                       .Worker("Theirs")
                       .Title("Crown", "Theirs")
                       .Promotion("CWA")
                       .Worker("Ours")
                       .Worker("Rival")
                       .Title("Crown", "Ours")
                       .Game("CWA"));
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  play.ChoosePeople({"Ours", "Rival"});
  play.Desk.Pick("lsttitle", "Crown");
  play.Next();
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1Winner") << "the champion is here";
}

}  // namespace
}  // namespace grapplemont::test
