#include "showplay.h"

#include <gtest/gtest.h>

#include "booking/showstart.h"
#include "calendar/advanceday.h"
#include "records/fields/fields.h"
#include "records/segments.h"

namespace grapplemont::test {
namespace {

using Row = std::vector<std::string>;

constexpr Day kEventDay{std::chrono::year{2026} / 3 / 29};
constexpr CommentaryTeam kTable{1, 2, false};

/// The game starts on a Sunday, and five rows are booked on the sheet of its show.
struct OnSunday : ShowPlay {
  OnSunday() : ShowPlay(Sunday()) {
    Desk.Click("cmdnext");
    EXPECT_EQ(Desk.TopName(), "frmBooking");
    BookRow(1, "CWA Hand 2", "CWA Hand 8");
    BookRow(2, "CWA Hand 3");
    BookRow(5, "CWA Hand 1", "CWA Hand 7", "CWA Crown");
    FillTheRest();
    Start(false, kTable);
  }

  static grapplemont::World Sunday() {
    return Company(kRegional)
        .Show("Sunday Slam", "Sunday", "Harbor 9",
              [](Show& show) {
                show.Slot = "G";
                show.Announcer = 1;
                show.Colour = 2;
              })
        .Game("CWA");
  }

  void CloseTheShow() {
    Desk.Click("cmdnext");
    CloseShow(Other);
    EXPECT_EQ(Desk.TopName(), "frmPostShow");
    ExpectSameAsOther();
  }
  void GoOnToMonday() {
    Desk.Click("cmdback");
    LeaveShow(Other);
    AdvanceDay(Other, false);
    EXPECT_EQ(Desk.TopName(), "frmMainScreen");
    EXPECT_EQ(Desk.Text("txtdate"), "Monday, 02 March 2026");
    ExpectSameAsOther();
    EXPECT_FALSE(World().ShowRuns().Exists());
  }
};

TEST(ATelevisionShowPlayed, IsToldSegmentBySegmentAndLeadsToTheNextDay) {
  OnSunday play;
  EXPECT_EQ(play.Desk.Text("lbltitle"), "Event Report For Sunday Slam");
  EXPECT_EQ(play.Desk.Text("lblreportedby"), "Reported By Rafe Tolland");
  EXPECT_EQ(play.Desk.Text("txtannouncers"), "Milo Grant and Pia Root");
  EXPECT_EQ(play.Desk.Text("lblinfo"), "Match Details");
  EXPECT_EQ(play.Desk.Text("txtstyle"), "1 vs 1");
  EXPECT_EQ(play.Desk.Text("txttype"), "Singles");
  EXPECT_EQ(play.Desk.Text("lblwinner"), "Winner : CWA Hand 2");
  play.ExpectNextSegment();
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.Desk.Text("lblinfo"), "Interview Details");
  play.ExpectNextSegment();
  for (int row = 3; row <= 5; ++row) {
    play.Desk.Click("cmdnext");
    play.ExpectNextSegment();
  }
  EXPECT_EQ(play.Desk.Text("txtbelt"), "(For The CWA Crown Title)");
  play.CloseTheShow();

  EXPECT_EQ(play.Desk.Title(), "Recap Sheet For Sunday Slam");
  const int rating = play.Other.ShowRuns()[1].ShowSum;
  EXPECT_EQ(play.Desk.Text("lblrating"), "The show is rated " + std::to_string(rating) + "%.");
  std::vector<Row> recap;
  for (int row = 1; row <= 5; ++row) {
    const Segment& segment = play.Other.Segments()[row];
    recap.push_back({std::to_string(row), DescribeSegment(play.Other, segment),
                     std::to_string(segment.Rating) + "%"});
  }
  EXPECT_EQ(play.Desk.Rows("lstrecap"), recap);
  play.GoOnToMonday();
  std::string senders;
  for (const Mail& mail : play.World().News()) senders += mail.From.Str() + "\n";
  EXPECT_NE(senders.find("Television report"), std::string::npos) << senders;
}

TEST(AShowThatIsKilled, GoesOnWithTheSegmentThatWasToCome) {
  for (const int toldBefore : {1, 2, 4, 5}) {
    SCOPED_TRACE(toldBefore);
    OnSunday play;
    play.ExpectNextSegment();
    for (int told = 2; told <= toldBefore; ++told) {
      play.Desk.Click("cmdnext");
      play.ExpectNextSegment();
    }
    play.Kill();
    play.ExpectSameAsOther();
    ASSERT_EQ(play.Desk.TopName(), "frmMatchOutput");
    EXPECT_EQ(play.Desk.Text("lbltitle"), "Event Report For Sunday Slam");
    EXPECT_EQ(play.Desk.Text("lblinfo"), "The show goes on");
    EXPECT_FALSE(play.Desk.Visible("txtoverall"));
    EXPECT_EQ(play.Desk.Text("txtreport"),
              toldBefore == 5
                  ? "Every Segment has been told. Press Next for what the show came to."
                  : "What has been told so far stands. Press Next for what was to come.");
    for (int row = toldBefore + 1; row <= 5; ++row) {
      play.Desk.Click("cmdnext");
      play.ExpectNextSegment();
    }
    play.CloseTheShow();
    EXPECT_EQ(play.World().ShowRuns()[1].ShowSegments, 6);
    play.GoOnToMonday();
  }
}

TEST(AShowThatIsKilled, OpensAgainOnItsRecap) {
  OnSunday play;
  play.ExpectNextSegment();
  for (int row = 2; row <= 5; ++row) {
    play.Desk.Click("cmdnext");
    play.ExpectNextSegment();
  }
  play.CloseTheShow();
  const auto recap = play.Desk.Rows("lstrecap"), sum = play.Desk.Rows("lstsum");
  play.Kill();
  ASSERT_EQ(play.Desk.TopName(), "frmPostShow");
  play.ExpectSameAsOther();
  EXPECT_EQ(play.Desk.Rows("lstrecap"), recap);
  EXPECT_EQ(play.Desk.Rows("lstsum"), sum);
  play.GoOnToMonday();
}

/// The number behind these words in the mail from `from`.
int NumberInMail(const World& world, std::string_view from, const std::string& words) {
  for (const Mail& mail : world.News())
    if (const auto at = mail.Body.View().find(words);
        mail.From == from && at != std::string_view::npos)
      return std::stoi(std::string(mail.Body.View().substr(at + words.size())));
  ADD_FAILURE() << "no mail from " << from << " says " << words;
  return 0;
}

TEST(AnEventPlayed, PaysForItsExtraAndTakesItsBonus) {
  ShowPlay play(Company(kCult).Event(3, 2, "Marchmania").Game("CWA", kEventDay));
  play.Desk.Click("cmdnext");
  ASSERT_EQ(play.Desk.TopName(), "frmPPVBooking");
  play.BookRow(1, "CWA Hand 2", "CWA Hand 8");
  play.BookRow(9, "CWA Hand 1", "CWA Hand 7", "CWA Crown");
  play.FillTheRest();
  play.Desk.Pick("cmbannouncer", "Milo Grant");
  play.Desk.Pick("cmbcolour", "Pia Root");
  play.Desk.Pick("cmbspecial", "Hire A Big-Screen For This Event");
  const int money = play.World().Player().Money;
  play.Start(true, kTable);
  const int bonus = play.Other.RandomDraw(15);
  AddExtraBonus(play.Other, bonus);
  play.Other.Player().Money -= 500000;
  play.Other.ShowRuns()[1].ExtraCost = 500000;
  EXPECT_EQ(play.World().Player().Money, money - 500000);
  play.ExpectNextSegment();
  while (NextSegment(play.Other) != 0) {
    play.Desk.Click("cmdnext");
    play.ExpectNextSegment();
    if (testing::Test::HasFailure()) return;
  }
  play.Desk.Click("cmdnext");
  CloseShow(play.Other);
  ASSERT_EQ(play.Desk.TopName(), "frmPostShow");
  play.ExpectSameAsOther();
  EXPECT_EQ(play.Desk.Title(), "Recap Sheet For Marchmania");

  // What the sum is made of, line by line; the last line divides it.
  const auto sum = play.Desk.Rows("lstsum");
  int total = 0, extra = 0;
  for (const Row& row : sum) {
    if (row[0] == "Together") {
      EXPECT_EQ(std::stoi(row[1]), total);
      break;
    }
    total += std::stoi(row[1]);
    if (row[0] == "The extra of the Event") extra = std::stoi(row[1]);
  }
  EXPECT_EQ(extra, bonus);
  const ShowRun& run = play.Other.ShowRuns()[1];
  EXPECT_EQ(Score::Floor(total, run.ShowSegments), run.ShowSum);
  EXPECT_EQ(sum.back()[1], std::to_string(run.ShowSum));

  play.Desk.Click("cmdback");
  LeaveShow(play.Other);
  AdvanceDay(play.Other, false);
  EXPECT_EQ(play.Desk.Text("txtdate"), "Monday, 30 March 2026");
  play.ExpectSameAsOther();
  const int people = NumberInMail(play.World(), "Show report", "Marchmania was attended by ");
  EXPECT_GT(people, 0);
  EXPECT_EQ(play.World().Player().Money,
            money - 500000 - 200000 + people * int(play.World().Player().TicketPrice));
}

}  // namespace
}  // namespace grapplemont::test
