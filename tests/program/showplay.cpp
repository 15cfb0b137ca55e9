#include "showplay.h"

#include <gtest/gtest.h>

#include <sstream>

#include "records/segments.h"
#include "report/report.h"

namespace grapplemont::test {

namespace {

constexpr const char* kStartText = "Are you sure you wish to start this show?";

/// "Crowd Reaction 61 =" and its reasons with their changes: the changes must make the number.
void ExpectAddsUp(ScriptDesk& desk, int figure, const std::string& caption, const Score& score) {
  desk.Click("cmdwhy(" + std::to_string(figure) + ")");
  std::istringstream lines(desk.Text("txtwhy"));
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, caption + " " + std::to_string(score) + " =");
  int sum = 0, reasons = 0;
  while (std::getline(lines, line)) {
    std::size_t read = 0;
    sum += std::stoi(line, &read);
    EXPECT_GT(line.size(), read + 1) << "no reason: " << line;
    ++reasons;
  }
  EXPECT_EQ(sum, score) << desk.Text("txtwhy");
  EXPECT_GT(reasons, 0);
}

}  // namespace

SmallWorld Company(int size) {
  SmallWorld small;
  small.Network("Harbor 9")
      .Promotion("CWA", size)
      .Staff("Milo Grant", kAnnouncer, 44)
      .Staff("Pia Root", kAnnouncer, 41)
      .Staff("Pen", kWriter)
      .Staff("Quill", kWriter)
      .Crew(24)
      .Title("CWA Crown", "CWA Hand 1");
  return small;
}

ShowPlay::ShowPlay(grapplemont::World world) : GameOnWorld(std::move(world)) {
  Desk.Open("frmMainScreen");
}

void ShowPlay::BookRow(int row, const std::string& one, const std::string& other,
                       const std::string& title) {
  const std::string sheet = Desk.TopName();
  Desk.Click("cmdbook(" + std::to_string(row) + ")");
  Desk.Click("cmdbook(0)");
  Desk.Pick("lststyle", other.empty() ? "Interview" : "Match");
  Desk.Click("cmdnext");
  for (int step = 0; step < 10 && Desk.TopName() != "frmBookSheet"; ++step) {
    if (Desk.TopName() == "frmIV1" || Desk.TopName() == "frmBook1vs1") Desk.Pick("lstwres1", one);
    if (Desk.TopName() == "frmBook1vs1") Desk.Pick("lstwres2", other);
    if (Desk.TopName() == "frmBookBelt") Desk.Pick("lsttitle", title);
    Desk.Click("cmdnext");
  }
  Desk.Click("cmdcomplete");
  EXPECT_EQ(Desk.TopName(), sheet);
}

void ShowPlay::FillTheRest() {
  Desk.ExpectAsk("Fill The Rest", kAnyText, true);
  Desk.Click("cmdfill");
}

void ShowPlay::ExpectSameAsOther() {
  if (World().Reports().Exists())
    Other.Reports().Rewrite({World().Reports().begin(), World().Reports().end()});
  ExpectSame(World(), Other);
}

void ShowPlay::DrawAlike() {
  ++draws_;
  World().SetChance(std::make_unique<SeededDraws>(draws_));
  Other.SetChance(std::make_unique<SeededDraws>(draws_));
}

void ShowPlay::Start(bool isEvent, const CommentaryTeam& team) {
  Other = CopyOf(World());
  DrawAlike();
  StartShow(Other, isEvent, team);
  Desk.ExpectAsk("Sure?", kStartText, true);
  Desk.Click("cmddoshow");
  ASSERT_EQ(Desk.TopName(), "frmMatchOutput");
}

void ShowPlay::ExpectNextSegment() {
  ASSERT_EQ(Desk.TopName(), "frmMatchOutput");
  ASSERT_NE(NextSegment(Other), 0);
  const int row = NextSegment(Other);
  SCOPED_TRACE("row " + std::to_string(row));
  const ToldSegment told = RunNextSegment(Other, nullptr);
  ExpectSameAsOther();
  const Segment& segment = Other.Segments()[row];
  const bool isMatch = segment.Kind == kMatch;
  const SegmentDetails details = DetailsOf(Other, segment);
  EXPECT_EQ(Desk.Text("lblinfo"), details.Heading);
  EXPECT_EQ(Desk.Text("txtstyle"), details.Style);
  EXPECT_EQ(Desk.Text("txttype"), details.Type);
  EXPECT_EQ(Desk.Text("txtbelt"), details.Belt);
  EXPECT_EQ(Desk.Visible("txtbelt"), !details.Belt.empty());
  EXPECT_EQ(Desk.Visible("lblwinner"), isMatch);
  EXPECT_EQ(Desk.Text("lblwinner"), details.Winner);
  EXPECT_NE(Desk.Text("txtreport"), "");
  EXPECT_EQ(Desk.Visible("txtquality"), isMatch);
  EXPECT_EQ(Desk.Visible("cmdwhy(1)"), isMatch);
  if (isMatch) {
    EXPECT_EQ(Desk.Text("txtquality"), std::to_string(told.Quality) + "%");
    ExpectAddsUp(Desk, 1, "Match Quality", told.Quality);
  }
  EXPECT_EQ(Desk.Text("txtcrowd"), std::to_string(told.Crowd) + "%");
  EXPECT_EQ(Desk.Text("txtoverall"), std::to_string(told.Overall) + "%");
  ExpectAddsUp(Desk, 2, "Crowd Reaction", told.Crowd);
  ExpectAddsUp(Desk, 3, "Overall Rating", told.Overall);
  EXPECT_EQ(Desk.Text("txtroad"), told.Notes);
  EXPECT_EQ(Desk.Text("cmdnext"), "Next");
}

void ShowPlay::Kill() {
  Desk.CloseAll();
  Reopen();
  DrawAlike();
  Desk.Open("frmMainScreen");
}

}  // namespace grapplemont::test
