#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/segmentcheck.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;
/// One booking, from the style to the record.
struct Booking {
  const char* Style;
  const char* Type;
  int People;
  std::vector<Picks> Steps;  // result, finish, aftermath, purpose
  std::vector<std::pair<Word Segment::*, int>> Expect;
};

Names Men(int count) {
  Names names;
  for (int i = 1; i <= count; ++i) names.push_back("Man " + std::to_string(i));
  return names;
}

using S = Segment;
// Men have the uids of their numbers.
const Booking kBookings[] = {
    Booking("1 vs 1", "Singles", 2,
            {{"cmbwinner: Man 2"},
             {"lstfinish: Man 2 by interference", "lstrun1: Man 9"},
             {"lstafter: Run in for the save", "lstrun1: Man 10"},
             {"lstpurpose: Put Man 10 over"}},
            {{&S::Winner, 2},
             {&S::Loser, 1},
             {&S::Finish, 3},
             {&S::Other1, 9},
             {&S::Aftermath, 26},
             {&S::Other2, 10},
             {&S::Purpose, 32}}),
    Booking(
        "1 vs 1", "Singles", 2,
        {{"cmbwinner: Draw"},
         {"lstfinish: Double count out"},
         {"lstafter: Run in attack on both competitors", "lstrun1: Woman 1"},
         {"lstpurpose: Put both workers over"}},
        {{&S::Loser, 1}, {&S::Finish, 7}, {&S::Aftermath, 6}, {&S::Other1, 13}, {&S::Purpose, 9}}),
    Booking("2 vs 2", "Tag", 4,
            {{"cmbwinner: Man 3", "cmbloser: Man 2"},
             {"lstfinish: Man 3 \\ Man 4 by interference", "lstrun1: Man 5", "lstrun2: Man 6"},
             {"lstafter: Run in for failed save attempt", "lstrun1: Man 7", "lstrun2: Man 8"},
             {"lstpurpose: Put Man 7 \\ Man 8 over"}},
            {{&S::Winner, 3},
             {&S::Loser, 2},
             {&S::Finish, 3},
             {&S::Other1, 5},
             {&S::Other2, 6},
             {&S::Aftermath, 19},
             {&S::Other3, 7},
             {&S::Other4, 8},
             {&S::Purpose, 38}}),
    Booking(
        "2 vs 2 vs 2", "Elimination", 6,
        {{"cmbwinner: Man 5 \\ Man 6", "cmbloser1: Man 3 \\ Man 4", "cmbloser2: Man 1 \\ Man 2"}},
        {{&S::Winner, 5}, {&S::Loser, 3}, {&S::Place3, 1}}),
    Booking("2 vs 2 vs 2", "Triangle", 6, {{"cmbwinner: Man 4", "cmbloser: Man 6"}},
            {{&S::Winner, 4}, {&S::Loser, 6}}),
    Booking("1 vs 1 vs 1 vs 1", "Elimination", 4,
            {{"cmbwinner: Man 1", "cmbloser1: Man 4", "cmbloser2: Man 3", "cmbloser3: Man 2"}},
            {{&S::Winner, 1}, {&S::Loser, 4}, {&S::Place3, 3}, {&S::Place4, 2}}),
    Booking("2 vs 2 vs 2 vs 2", "TLC", 8, {{"cmbwinner: Man 5 \\ Man 6"}},
            {{&S::Winner, 5}, {&S::Loser, 1}}),
    Booking("3 vs 3", "Tag", 6,
            {{"cmbwinner: Man 5", "cmbloser: Man 1"}, {"lstfinish: Man 5 cheap victory"}},
            {{&S::Winner, 5}, {&S::Loser, 1}, {&S::Finish, 2}}),
    Booking("4 vs 4", "Tag", 8,
            {{"cmbwinner: Draw"}, {"lstfinish: Sports entertainment finish (tm)"}},
            {{&S::Loser, 1}, {&S::Finish, 13}}),
    Booking("4 vs 4", "Survivor", 8,
            {{"cmbwinner: Man 2", "cmbloser1: Man 1", "cmbloser2: Man 8", "cmbloser3: Man 7",
              "cmbloser4: None", "cmbloser5: Man 6", "cmbloser6: Man 5"},
             {"lstfinish: Man 2 cleanly"}},
            {{&S::Winner, 2},
             {&S::Loser, 1},
             {&S::Place3, 8},
             {&S::Place4, 7},
             {&S::Place6, 6},
             {&S::Place7, 5},
             {&S::Finish, 1}}),
};

TEST(BookMatch, WritesEveryFormOfMatchAsChosen) {
  for (const Booking& booking : kBookings) {
    SCOPED_TRACE(std::string(booking.Style) + ", " + booking.Type);
    BookingPlay play(BookingRoster().Game("CWA"));
    play.Book(4);
    play.ChooseMatch(booking.Style, booking.Type);
    play.ChoosePeople(Men(booking.People));
    play.Next();
    for (const Picks& picks : booking.Steps) {
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
    for (const auto& [field, value] : booking.Expect) expected.*field = value;
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
  PickAll(play.Desk, {"cmbwinner: Man 7", "cmbloser: Man 7"});
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
  expected.Winner = 7;
  expected.Loser = 11;
  ExpectSegment(play.Slot(), expected);
}

TEST(BookMatch, TellsWhatAWinnerCostsBeforeIt) {
  World world = BookingRoster().Game("CWA");
  world.FindWorker(2)->Over = 81;
  world.FindWorker(2)->Attitude = 91;
  world.FindWorker(3)->Over = 71;
  world.FindWorker(3)->Attitude = 45;
  BookingPlay play(std::move(world));
  play.Book();
  play.ChooseMatch("Special", "10 Man Battle Royal");
  for (int row = 1; row <= 9; ++row) play.Desk.Pick("lstroster", row);
  play.Desk.Pick("lstroster", "Woman 1");
  play.Desk.Click("cmdadd");
  play.Next();
  play.Next();
  const std::string words =
      "Man 2: I'm not being in a match where the winner is so much lower than me.\nIf you insist, ";
  const std::pair<const char*, std::string> kRows[] = {
      {"Man 2", "Nobody objects."},
      {"Man 1", words + "one will hold it against you, 10 morale, one more 5."},
      {"Woman 1", words + "nine will hold it against you, 50 morale each."}};
  for (const auto& [winner, says] : kRows) {
    play.Desk.Pick("cmbwinner", winner);
    EXPECT_EQ(play.Desk.Text("txtsay"), says) << winner;
  }
  play.World().FindWorker(2)->Attitude = 92;
  play.Desk.Pick("cmbwinner", "Man 1");
  play.Desk.Pick("cmbwinner", "Woman 1");
  EXPECT_EQ(play.Desk.Text("txtsay"),
            "Nobody objects aloud; nine will hold it against you, 50 morale each.");
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

TEST(BookMatch, SuggestsPartnersAndLosersUntilThePlayerChooses) {
  BookingPlay play(BookingRoster().Team("The Dozen", "Man 12", "Man 7").Game("CWA"));
  play.Book();
  play.ChooseMatch("2 vs 2", "Tag");
  PickAll(play.Desk, {"lstwres1: Man 7", "lstwres3: Man 1"});
  EXPECT_FALSE(play.Desk.Enabled("cmddone"));
  play.Desk.OpenRow("lstwres4", "Man 2");
  play.Next();
  EXPECT_EQ(play.Desk.Text("cmbloser"), "Man 1");
  play.Desk.Pick("lstring", "Man 2");
  EXPECT_EQ(play.Desk.Text("cmbwinner"), "Man 2");
  EXPECT_EQ(play.Desk.Text("cmbloser"), "Man 7");
  play.Desk.Pick("cmbwinner", "Draw");
  EXPECT_FALSE(play.Desk.Enabled("cmbloser"));
  PickAll(play.Desk, {"cmbwinner: Man 1", "cmbloser: Man 12", "cmbwinner: Man 2"});
  EXPECT_EQ(play.Desk.Text("cmbloser"), "Man 12") << "the player's own choice stays";
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.Desk.Text("txtdesc(3)"), "The Dozen vs Man 1 \\ Man 2");
  EXPECT_EQ(play.Desk.Text("txtdesc(5)"), "Result = Man 1 \\ Man 2 Win");
}

/// Nine presses and two picks, double clicks among them.
TEST(BookMatch, BooksAPlainSinglesMatchWithWhatIsPreselected) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  for (const char* list : {"lststyle", "lsttype", "lststyle"}) play.Desk.OpenRow(list, 1);
  play.Desk.OpenRow("lstwres1", "Man 3");
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1") << "not every list has a pick";
  play.Desk.OpenRow("lstwres2", "Man 4");
  for (int step = 4; step < 9; ++step) play.Next();
  play.Complete();
  EXPECT_TRUE(play.Desk.Empty());
  Segment expected = MatchOf(play.World(), kSingles, kPlainSingles, {"Man 3", "Man 4"});
  expected.Winner = 3;
  expected.Loser = 4;
  expected.Finish = kClean;
  expected.Aftermath = after1::kNothing;
  expected.Purpose = purpose1::kNone;
  ExpectSegment(play.Slot(), expected);
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
      Row("2 vs 2", "Tag", 4, {"cmbwinner: Man 1", "cmbloser: Man 1"},
          "A worker cannot both win and lose a match"),
      Row("2 vs 2", "Tag", 4, {"cmbwinner: Man 3", "cmbloser: Man 4"},
          "Team mates cannot both win and lose the same match."),
      Row("1 vs 1 vs 1", "Triangle", 3, {"cmbwinner: Man 2", "cmbloser: Man 2"},
          "The same worker cannot win and lose the same bout!"),
      Row("1 vs 1 vs 1", "Elimination", 3, {"cmbloser1: Man 3", "cmbloser2: Man 3"},
          "Please select a different worker for each box!"),
      Row("2 vs 2 vs 2", "Elimination", 6, {"cmbloser1: Man 1 \\ Man 2"},
          "Please select a different team for each box!"),
      Row("4 vs 4", "Survivor", 8, {"cmbloser1: None"},
          "Sorry, the first elimination box MUST be filled in."),
      Row("4 vs 4", "Survivor", 8, {"cmbloser7: Man 1"},
          "You have selected the same worker twice!"),
      Row("4 vs 4", "Survivor", 8, {"cmbloser3: Man 3"}, "One team must be totally eliminated!"),
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(std::string(row.Style) + ", " + row.Message);
    BookingPlay play(BookingRoster().Game("CWA"));
    play.Book();
    play.ChooseMatch(row.Style, row.Type);
    Names twice = Men(row.People);
    twice.back() = "Man 1";
    play.Desk.ExpectSay("Error!", "You have selected the same worker twice!");
    play.ChoosePeople(twice);
    play.ChoosePeople(Men(row.People));
    play.Next();
    const std::string screen = play.Desk.TopName();
    PickAll(play.Desk, row.Result);
    play.Desk.ExpectSay("Error!", row.Message);
    play.Desk.Click("cmddone");
    EXPECT_EQ(play.Desk.TopName(), screen);
    play.Desk.Click("cmdback");
    EXPECT_EQ(play.Desk.Text("txtdesc(5)"), "");
  }
}

TEST(BookMatch, AsksForRunInsWhereTheyAreNeeded) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  play.Desk.ExpectSay("Error!", "Workers cannot fight themselves!");
  play.ChoosePeople({"Man 1", "Man 1"});
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
  PickAll(play.Desk, {"lstfinish: Man 1 \\ Man 2 by interference", "lstrun2: Man 5"});
  play.Desk.ExpectSay("Error!",
                      "If you want interference, someone must be picked in the first inteference "
                      "box");
  play.Next();
  play.Desk.Pick("lstrun1", "Man 5");
  play.Desk.ExpectSay("Error!", "You cannot select the same interfering person twice");
  play.Next();
  play.Desk.Pick("lstrun1", "Man 6");
  play.Next();
  const Names savers = play.Desk.FirstColumn("lstrun1");
  EXPECT_EQ(std::count(savers.begin(), savers.end(), "Man 6"), 0) << "is in the ring already";
  PickAll(play.Desk, {"lstafter: Run in for the save", "lstrun1: Man 8", "lstrun2: Man 8"});
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
  const char* text = "The champion is not present in this match! Continue?";
  play.Book();
  play.ChooseMatch("1 vs 1", "Singles");
  play.ChoosePeople({"Man 2", "Man 3"});
  EXPECT_EQ(play.Desk.FirstColumn("lsttitle"), (Names{"Crown", "Vacant Crown", "None"}));
  EXPECT_EQ(play.Desk.Selected("lsttitle"), std::vector{3});
  play.Desk.Pick("lsttitle", "Crown");
  play.Desk.ExpectAsk("Continue?", text, false);
  play.Next();
  EXPECT_EQ(play.Desk.TopName(), "frmBookBelt");
  play.Desk.ExpectAsk("Continue?", text, true);
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
  play.Desk.Pick("lsttitle", "Tag Straps");
  play.Desk.ExpectAsk("Continue?",
                      "The tag team champions are not present in this match! Continue?", false);
  play.Next();
}

}  // namespace
}  // namespace grapplemont::test
