#include <gtest/gtest.h>

#include <QAccessible>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

#include "desktop/player.h"

// What goes on by itself: words that grow, a button with a clock, the line of the hall.

namespace grapplemont::test {
namespace {

class Story : public ui::Screen {
 public:
  explicit Story(ui::Desk& desk) : Screen(desk, "frmStory", "Story") {
    rptstory.Grows = true;
    chthall.Thin = true;
  }
  ui::Page Layout() override {
    return {.Actions = {&cmdnext},
            .Main = &cmdnext,
            .Body = ui::Group("", {ui::Grow(rptstory), ui::Field("The hall", chthall)})};
  }
  void Next() {
    words += "Okafor slams Marsh, sentence " + std::to_string(++told) + ". ";
    rptstory.Write(words);
    if (told == kLast) cmdnext.Every = 0;
  }

  static constexpr int kLast = 3;
  std::string words;
  int told = 0;
  ui::Report rptstory{*this, "rptstory"};
  ui::Chart chthall{*this, "chthall"};
  ui::Button cmdnext{*this, "cmdnext", "Next", &Story::Next};
};

class TheStory : public testing::Test {
 protected:
  TheStory() : Page(*new Story(Play.Desk)) { Play.Open(std::unique_ptr<ui::Screen>(&Page)); }

  Player Play;
  Story& Page;
};

TEST_F(TheStory, StaysAtItsEndWhileItGrowsAndIsHeardPieceByPiece) {
  auto* view = dynamic_cast<QTextEdit*>(Play.See("rptstory"));
  ASSERT_TRUE(view);
  for (int piece = 1; piece <= 200; ++piece) {
    Play.Key(Qt::Key_Space);
    ASSERT_EQ(Page.told, piece) << "the space bar goes on, however long the words are";
    EXPECT_EQ(view->accessibleDescription(),
              QString("Okafor slams Marsh, sentence %1.").arg(piece));
  }
  EXPECT_GT(view->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
  const int before = view->verticalScrollBar()->maximum();
  Play.Window.resize(Play.Window.width(), Play.Window.height() - 150);
  QApplication::processEvents();
  EXPECT_GT(view->verticalScrollBar()->maximum(), before);
  EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum())
      << "the winner's line takes some of its room";
  Page.rptstory.Write("Marsh has the microphone.");
  Play.Window.Sync();
  EXPECT_EQ(view->accessibleDescription(), "Marsh has the microphone.");
}

TEST_F(TheStory, IsReadPageByPageWithoutALineThatIsSeenOnlyInPart) {
  Page.rptstory.Grows = false;
  std::string words;
  for (int told = 0; told < 300; ++told) words += "Okafor slams Marsh again and again. ";
  Page.rptstory.Write(words);
  Play.Window.Sync();
  QApplication::processEvents();
  auto* view = dynamic_cast<QTextEdit*>(Play.See("rptstory"));
  view->setFocus();
  const QTextLayout& lines = *view->document()->firstBlock().layout();
  const QScrollBar& bar = *view->verticalScrollBar();
  const auto isSeen = [&](int line) {
    const QRectF place = lines.lineAt(line).rect();
    return place.top() + 1 >= bar.value() &&
           place.bottom() <= bar.value() + view->viewport()->height();
  };
  int next = 0;
  for (const Qt::Key key :
       {Qt::Key_Home, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_Down, Qt::Key_PageDown}) {
    const int before = bar.value();
    Play.Key(key);
    EXPECT_EQ(bar.value() > before, key != Qt::Key_Home);
    EXPECT_TRUE(isSeen(next)) << "line " << next << " was cut, or not seen, on the page before";
    while (isSeen(next)) ++next;
  }
  Play.Key(Qt::Key_End);
  EXPECT_TRUE(isSeen(lines.lineCount() - 1));
  while (next > 0 && lines.lineAt(next - 1).rect().bottom() > bar.value()) --next;
  while (lines.lineAt(next).rect().bottom() <= bar.value()) ++next;
  EXPECT_TRUE(isSeen(next)) << "the last page begins with a whole line, too";
}

TEST_F(TheStory, GoesOnByTheClockUntilItIsToStop) {
  Page.cmdnext.Every = 5;
  Play.Window.Sync();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Page.told == Story::kLast; }));
  QTest::qWait(50);
  EXPECT_EQ(Page.told, Story::kLast) << "nobody winds the clock any more";
  Page.cmdnext.Every = 5;
  Page.cmdnext.Enabled = false;
  Play.Window.Sync();
  QTest::qWait(50);
  EXPECT_EQ(Page.told, Story::kLast) << "it cannot be pressed";
}

TEST_F(TheStory, ShowsTheHallAsALineThatCanBeHeard) {
  QWidget* line = Play.See("chthall");
  const auto picture = [&] { return line->grab().toImage(); };
  const QImage silent = picture();
  Page.chthall.Lines = std::vector<ui::Chart::Series>{{"The hall", {20, 40, 90}}};
  Play.Window.Sync();
  EXPECT_NE(picture(), silent);
  EXPECT_LT(line->height(), 60);
  EXPECT_EQ(line->accessibleDescription(), "The hall: 3 values, 20 to 90, now 90");
}

}  // namespace
}  // namespace grapplemont::test
