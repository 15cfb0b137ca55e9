#include <gtest/gtest.h>

#include <sstream>

#include "calendar/advanceday.h"
#include "records/modVar.h"
#include "records/segments.h"
#include "report/report.h"
#include "show/holdshow.h"
#include "show/recap.h"
#include "support/gameonworld.h"

// A show day as a player has it, from the main screen and back, beside a second world in which the
// engine does what the screens should do.

namespace grapplemont::test {
namespace {

/// Reasons with their changes, and at last "= 61 Crowd Reaction": the changes must make the number.
void ExpectAddsUp(ScriptDesk& desk, int figure, const std::string& caption, const Score& score) {
  desk.Click("cmdwhy(" + std::to_string(figure) + ")");
  std::istringstream lines(desk.Text("txtwhy"));
  std::string line;
  int sum = 0;
  while (std::getline(lines, line) && !line.starts_with("= ")) {
    std::size_t read = 0;
    sum += std::stoi(line, &read);
    EXPECT_GT(line.size(), read + 2) << "no reason: " << line;
  }
  EXPECT_EQ(line, "= " + std::to_string(score) + " " + caption);
  EXPECT_EQ(sum, score) << desk.Text("txtwhy");
}

/// Both worlds draw the same from the moment the show begins.
struct ShowPlay : GameOnWorld {
  explicit ShowPlay(grapplemont::World world) : GameOnWorld(std::move(world)) {
    Desk.Open("frmMainScreen");
  }

  /// Books a row through the wizard with what its steps offer: a match of these two, or an
  /// interview with the first.
  void BookRow(int row, const std::string& one, const std::string& other = {},
               const std::string& title = "None") {
    const std::string sheet = Desk.TopName();
    Desk.Click("cmdbook(" + std::to_string(row) + ")");
    Desk.Pick("lststyle", other.empty() ? "Interview" : "Match");
    Desk.Click("cmdnext");
    for (int step = 0; step < 10 && Desk.TopName() != sheet; ++step) {
      if (Desk.TopName() == "frmIV1" || Desk.TopName() == "frmBook1vs1") Desk.Pick("lstwres1", one);
      if (Desk.TopName() == "frmBook1vs1") Desk.Pick("lstwres2", other);
      if (Desk.TopName() == "frmBookBelt") Desk.Pick("lsttitle", title);
      Desk.Click("cmdnext");
    }
    EXPECT_EQ(Desk.TopName(), sheet);
  }

  /// Lets the sheet fill the rows that are empty.
  void FillTheRest() {
    Desk.Click("cmdfill");
    EXPECT_EQ(Desk.TopName(), "frmFill");
    Desk.Click("cmdsheet");
  }

  /// But for the words: the other world is told nothing.
  void ExpectSameAsOther() {
    if (World().Reports().Exists())
      Other.Reports().Rewrite({World().Reports().begin(), World().Reports().end()});
    if (World().Said().Exists())
      Other.Said().Rewrite({World().Said().begin(), World().Said().end()});
    ExpectSame(World(), Other);
  }

  /// Presses the start and begins the show in the other world too.
  void Start() {
    Other = CopyOf(World());
    DrawAlike();
    StartShow(Other, false, {1, 2, false});
    Desk.ExpectAsk("Sure?", "Are you sure you wish to start this show?", true);
    Desk.Click("cmddoshow");
    ASSERT_EQ(Desk.TopName(), "frmMatchOutput");
    ASSERT_FALSE(Desk.Heard.empty());
    EXPECT_EQ(Desk.Heard.front(), ui::Sound::Bell);
  }

  /// The screen shows what the other world's next Segment comes to, and why.
  void ExpectNextSegment() {
    ASSERT_EQ(Desk.TopName(), "frmMatchOutput");
    const int row = NextSegment(Other);
    ASSERT_NE(row, 0);
    SCOPED_TRACE("row " + std::to_string(row));
    const ToldSegment told = RunNextSegment(Other, nullptr);
    ExpectSameAsOther();
    const Segment& segment = Other.Segments()[row];
    const bool isMatch = segment.Kind == kMatch;
    EXPECT_EQ(std::ssize(Desk.Heard), bells_ += isMatch) << "a match ends with the bell";
    const SegmentDetails details = DetailsOf(Other, segment);
    const std::pair<const char*, std::string> kShown[] = {
        {"lblinfo", details.Heading},
        {"txtstyle", details.Style},
        {"txttype", details.Type},
        {"txtbelt", details.Belt},
        {"lblwinner", details.Winner},
        {"txtcrowd", std::to_string(told.Crowd) + "%"},
        {"txtoverall", std::to_string(told.Overall) + "%"},
        {"txtroad", told.Notes},
        {"cmdnext", "Next"}};
    for (const auto& [name, text] : kShown) EXPECT_EQ(Desk.Text(name), text) << name;
    EXPECT_NE(Desk.Text("txtreport"), "");
    EXPECT_EQ(Desk.Visible("txtbelt"), !details.Belt.empty());
    EXPECT_EQ(Desk.Visible("txtroad"), !told.Notes.empty());
    for (const char* name : {"lblwinner", "txtquality", "cmdwhy(1)"})
      EXPECT_EQ(Desk.Visible(name), isMatch) << name;
    if (isMatch) {
      EXPECT_EQ(Desk.Text("txtquality"), std::to_string(told.Quality) + "%");
      ExpectAddsUp(Desk, 1, "Match Quality", told.Quality);
    }
    ExpectAddsUp(Desk, 2, "Crowd Reaction", told.Crowd);
    ExpectAddsUp(Desk, 3, "Overall Rating", told.Overall);
  }

  /// The next one and those behind it up to this row.
  void ExpectSegmentsUpTo(int row) {
    while (NextSegment(Other) != 0 && NextSegment(Other) <= row) {
      if (NextSegment(Other) != 1) Desk.Click("cmdnext");
      ExpectNextSegment();
      if (testing::Test::HasFailure()) return;
    }
  }

  /// Ends the program without warning and opens it again.
  void Kill() {
    Desk.CloseAll();
    Reopen();
    DrawAlike();
    Desk.Open("frmMainScreen");
    ExpectSameAsOther();
  }

  grapplemont::World Other;

 private:
  void DrawAlike() {
    ++draws_;
    World().SetChance(std::make_unique<SeededDraws>(draws_));
    Other.SetChance(std::make_unique<SeededDraws>(draws_));
  }
  int draws_ = 40;
  int bells_ = 1;  // the one that begins the show
};

/// The game starts on a Sunday, and five rows are booked on the sheet of its show.
struct OnSunday : ShowPlay {
  OnSunday() : ShowPlay(Sunday()) {
    Desk.Click("cmdnext");
    EXPECT_EQ(Desk.TopName(), "frmBooking");
    BookRow(1, "CWA Hand 2", "CWA Hand 8");
    BookRow(2, "CWA Hand 3");
    BookRow(kRows, "CWA Hand 1", "CWA Hand 7", "CWA Crown");
    FillTheRest();
    Start();
  }
  static constexpr int kRows = 5;

  static grapplemont::World Sunday() {
    return SmallWorld()
        .Network("Harbor 9")
        .Promotion("CWA", kRegional)
        .Staff("Milo Grant", kAnnouncer, 44)
        .Staff("Pia Root", kAnnouncer, 41)
        .Staff("Pen", kWriter)
        .Staff("Quill", kWriter)
        .Crew(24)
        .Title("CWA Crown", "CWA Hand 1")
        .Show("Sunday Slam", "Sunday", "Harbor 9",
              [](Show& show) { show.Slot = "G", show.Announcer = 1, show.Colour = 2; })
        .Game("CWA");
  }

  void CloseTheShow() {
    Desk.Click("cmdnext");
    CloseShow(Other);
    EXPECT_EQ(Desk.TopName(), "frmPostShow");
    EXPECT_EQ(Desk.Heard.back(), ui::Sound::Crowd);
    ExpectSameAsOther();
  }
  /// Says what the show did, each number with steps that lead to it.
  void ExpectTheMorning() {
    ASSERT_EQ(Desk.TopName(), "frmMorning");
    const HistoryEntry& show = Other.History()[Other.History().Count()];
    EXPECT_EQ(Desk.Text("lblrating"), std::to_string(show.Rating) + "%");
    EXPECT_EQ(Desk.Text("lblcrowd"), std::to_string(show.Attendance));
    EXPECT_EQ(Desk.Text("lblviewers"), RatingText(show.Viewers));
    EXPECT_EQ(Desk.Text("lblimage"), std::to_string(show.Image) + "%");
    EXPECT_EQ(Desk.Text("lblmoney"), "+" + Dollars(show.Income - show.Costs));
    for (const char* why : {"cmdwhy(1)", "cmdwhy(3)"}) {
      Desk.Click(why);
      const auto steps = Desk.Rows("lstwhy");
      // Behind the sum of a rating stand the division and what comes of it.
      const std::size_t total = steps.size() - (why == std::string("cmdwhy(1)") ? 3 : 1);
      int sum = 0;
      for (std::size_t i = 0; i < total; ++i) sum += std::stoi(steps[i].front());
      EXPECT_EQ(sum, std::stoi(steps[total].front())) << why;
    }
    EXPECT_FALSE(Desk.Rows("lstpeople").empty());
    Desk.Pick("lstpeople", 1);
    EXPECT_EQ(Desk.Text("lblwhy"), "Why " + Desk.Rows("lstpeople").front().front() + "?");
  }
  void GoOnToMonday() {
    Desk.Click("cmdback");
    LeaveShow(Other);
    AdvanceDay(Other, false);
    ExpectTheMorning();
    Desk.Click("cmdback");
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
  EXPECT_EQ(play.Desk.Text("lblwinner"), "Winner : CWA Hand 2");
  play.ExpectSegmentsUpTo(2);
  EXPECT_EQ(play.Desk.Text("lblinfo"), "Interview Details");
  play.ExpectSegmentsUpTo(play.kRows);
  EXPECT_EQ(play.Desk.Text("txtbelt"), "(For The CWA Crown Title)");
  play.CloseTheShow();

  EXPECT_EQ(play.Desk.Title(), "Recap Sheet For Sunday Slam");
  const int rating = play.Other.ShowRuns()[1].ShowSum;
  EXPECT_EQ(play.Desk.Text("lblrating"), "The show is rated " + std::to_string(rating) + "%.");
  std::vector<std::vector<std::string>> recap;
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

/// What a Segment's kept report says, with the verdict below.
std::string KeptWords(const grapplemont::World& world, int row) {
  std::string words;
  for (const ReportText& text : ReportOf(world, world.Today(), world.PlayerUid()))
    if (text.Row == row && (text.Kind == kProse || text.Kind == kVerdict))
      words += (words.empty() ? "" : "\n") + text.Words;
  return words;
}

void ChooseLive(ScriptDesk& desk, bool live) {
  desk.Open("frmOptions");
  EXPECT_NE(desk.Checked("chklive"), live);
  desk.Check("chklive", live);
  desk.Click("cmddone");
}

TEST(AShowToldLive, AppearsSentenceBySentenceAndItsPercentagesLast) {
  OnSunday play;
  ScriptDesk& desk = play.Desk;
  for (const char* name : {"cmdall", "chthall", "cmbpace"}) EXPECT_FALSE(desk.Visible(name));
  ChooseLive(desk, true);
  EXPECT_TRUE(desk.Visible("txtoverall")) << "what stood there stays";
  int breaths = 0;
  for (int row = 2; row <= play.kRows; ++row) {
    SCOPED_TRACE(row);
    desk.Click("cmdnext");
    std::string told;
    int steps = 0;
    for (; desk.Visible("cmdall") && steps < 400; ++steps) {
      const std::string text = desk.Text("txtreport");
      for (const char* name : {"txtoverall", "txtcrowd", "lblwinner", "txtroad", "cmdwhy(3)"})
        EXPECT_FALSE(desk.Visible(name)) << name << " before the end";
      EXPECT_TRUE(desk.Text("txtwhy").ends_with("\nThe percentages come when it has been told."))
          << desk.Text("txtwhy");
      for (const auto& cells : desk.Rows("lstcast"))
        EXPECT_EQ(cells.back(), "") << cells.front() << " before the end";
      EXPECT_EQ(text.substr(0, told.size()), told);
      EXPECT_TRUE(desk.Visible("chthall"));
      told = text;
      if (text.ends_with(" ...")) told.resize(text.size() - 4), ++breaths;
      desk.Click("cmdnext");
    }
    EXPECT_GT(steps, 2);
    EXPECT_EQ(told, KeptWords(play.World(), row));
    EXPECT_EQ(detail::Trimmed(desk.Text("txtreport")), told);
    EXPECT_TRUE(desk.Visible("txtoverall"));
    const bool isMatch = play.World().Segments()[row].Kind == kMatch;
    const auto cast = desk.Rows("lstcast");
    EXPECT_EQ(!cast.empty() && !cast.front().back().empty(), isMatch);
  }
  EXPECT_GT(breaths, 0) << "no count was waited for";
  ChooseLive(desk, false);
  desk.Click("cmdnext");
  EXPECT_EQ(desk.TopName(), "frmPostShow");
}

TEST(AShowToldLive, IsSeenAtOnceOnRequestOrGoesOnByItself) {
  OnSunday play;
  ScriptDesk& desk = play.Desk;
  ChooseLive(desk, true);
  desk.Click("cmdnext");
  const auto wait = [&] {
    return dynamic_cast<const ui::Button&>(*desk.Top()->Find("cmdnext")).Every.Get();
  };
  EXPECT_EQ(wait(), 0) << "it waits for its reader";
  desk.Pick("cmbpace", "Slow");
  const int slow = wait();
  desk.Pick("cmbpace", "Fast");
  EXPECT_GT(wait(), 0);
  EXPECT_LT(wait(), slow);
  desk.Click("cmdall");
  EXPECT_EQ(desk.Text("txtreport"), KeptWords(play.World(), 2));
  EXPECT_TRUE(desk.Visible("txtoverall"));
  EXPECT_EQ(wait(), 0) << "the next Segment waits for its reader";
  desk.Click("cmdnext");
  EXPECT_GT(wait(), 0) << "the pace stays";
  play.World().Of<TellingHabit>()[1].Version = TellingHabit::kKnownVersion + 1;
  desk.Click("cmdall");
  desk.Click("cmdnext");
  EXPECT_TRUE(desk.Visible("txtoverall")) << "what a later program has kept counts for nothing";
}

TEST(AShowThatIsKilled, GoesOnWithTheSegmentThatWasToComeOrOnItsRecap) {
  for (const int toldBefore : {1, 4, 5}) {
    SCOPED_TRACE(toldBefore);
    OnSunday play;
    play.ExpectSegmentsUpTo(toldBefore);
    play.Kill();
    ASSERT_EQ(play.Desk.TopName(), "frmMatchOutput");
    EXPECT_EQ(play.Desk.Text("lbltitle"), "Event Report For Sunday Slam");
    EXPECT_EQ(play.Desk.Text("lblinfo"), "The show goes on");
    EXPECT_FALSE(play.Desk.Visible("txtoverall"));
    EXPECT_EQ(play.Desk.Text("txtreport"),
              toldBefore == play.kRows
                  ? "Every Segment has been told. Press Next for what the show came to."
                  : "What has been told so far stands. Press Next for what was to come.");
    play.ExpectSegmentsUpTo(play.kRows);
    play.CloseTheShow();
    EXPECT_EQ(play.World().ShowRuns()[1].ShowSegments, 6);
    const auto recap = play.Desk.Rows("lstrecap"), sum = play.Desk.Rows("lstsum");
    play.Kill();
    ASSERT_EQ(play.Desk.TopName(), "frmPostShow");
    EXPECT_EQ(play.Desk.Rows("lstrecap"), recap);
    EXPECT_EQ(play.Desk.Rows("lstsum"), sum);
    play.GoOnToMonday();
  }
}

}  // namespace
}  // namespace grapplemont::test
