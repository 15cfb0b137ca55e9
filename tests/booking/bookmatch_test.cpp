#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/matchrules.h"
#include "booking/wizard/segmentcheck.h"

namespace grapplemont::test {
namespace {

/// One booking, from the style to the record.
struct Booking {
  const char *Style, *Type;
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
      play.Desk.Click(&picks == &booking.Steps.back() ? "cmddone" : "cmdnext");
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

/// Eight presses and two picks, double clicks among them.
TEST(BookMatch, BooksAPlainSinglesMatchWithWhatIsPreselected) {
  BookingPlay play(BookingRoster().Game("CWA"));
  play.Book();
  for (const char* list : {"lststyle", "lsttype", "lststyle"}) play.Desk.OpenRow(list, 1);
  play.Desk.OpenRow("lstwres1", "Man 3");
  EXPECT_EQ(play.Desk.TopName(), "frmBook1vs1") << "not every list has a pick";
  play.Desk.OpenRow("lstwres2", "Man 4");
  for (int step = 4; step < 6; ++step) play.Next();
  ASSERT_EQ(play.Desk.TopName(), "frmBook1vs1Finish");
  for (const auto& [finish, says] :
       {std::pair("Man 3 by interference", "Nobody has been asked yet."),
        std::pair("Man 3 cleanly", "Nobody objects.")}) {
    play.Desk.Pick("lstfinish", finish);
    EXPECT_EQ(play.Desk.Text("txtsay"), says) << finish;
  }
  for (int step = 6; step < 9; ++step) play.Next();
  EXPECT_TRUE(play.Desk.Empty());
  Segment expected = MatchOf(play.World(), kSingles, kPlainSingles, {"Man 3", "Man 4"});
  expected.Winner = 3;
  expected.Loser = 4;
  expected.Finish = kClean;
  expected.Aftermath = after1::kNothing;
  expected.Purpose = purpose1::kNone;
  ExpectSegment(play.Slot(), expected);
}

TEST(BookMatch, RefusesResultsThatCannotBe) {
  const struct {
    int Style, Type, Winner;
    std::vector<int> Losers;
    const char* Message;
  } kRows[] = {
      {kTag, 1, 1, {1}, "A worker cannot both win and lose a match"},
      {kTag, 1, 3, {4}, "Team mates cannot both win and lose the same match."},
      {kTag, 1, 3, {1}, ""},
      {kThreeWay, kTriangle, 2, {2}, "The same worker cannot win and lose the same bout!"},
      {kThreeWay, kElimination, 1, {3, 3}, "Please select a different worker for each box!"},
      {kThreeTeams, kElimination, 1, {1, 3}, "Please select a different team for each box!"},
      {kThreeTeams, kTriangle, 5, {6}, "The winner and loser cannot be team-mates!"},
      {kFourOnFour, kSurvivor, 1, {0}, "Sorry, the first elimination box MUST be filled in."},
      {kFourOnFour, kSurvivor, 1, {5, 6, 7, 2}, "One team must be totally eliminated!"},
      {kFourOnFour, kSurvivor, 1, {5, 6, 7, 8}, ""},
      {kSpecial, kTenMan, 7, {7}, "The same person cannot win and be runner up!"},
  };
  for (const auto& row : kRows) {
    Segment match = EmptySegment();
    match.Kind = kMatch;
    match.Style = row.Style;
    match.MatchType = row.Type;
    for (int i = 0; i < EntrantsOf(match); ++i) match.Worker[static_cast<std::size_t>(i)] = i + 1;
    StoreResult(match, row.Winner, row.Losers);
    EXPECT_EQ(WhyNotLeft(match, kResultStep), row.Message);
    EXPECT_EQ(WhyNotLeft(match, kPeopleStep), "");
    match.Worker[1] = 1;
    EXPECT_EQ(WhyNotLeft(match, kPeopleStep), "You have selected the same worker twice!");
  }
}

}  // namespace
}  // namespace grapplemont::test
