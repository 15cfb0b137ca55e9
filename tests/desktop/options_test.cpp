#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <memory>

#include "desktop/player.h"
#include "desktop/sharing.h"
#include "support/scratchfolder.h"
#include "ui/acts.h"

// What the player sets about the window, and that it is there the next time.

namespace grapplemont::test {
namespace {

class TheOptions : public testing::Test {
 protected:
  void Begin() {
    Play.reset();
    Play = std::make_unique<Player>(QString::fromStdString(folder_ / "settings.ini"));
    Play->Open(std::make_unique<Hub>(Play->Desk, Notes));
  }
  void OpenOptions() {
    Play->Key(Qt::Key_Comma, Qt::ControlModifier);
    ASSERT_EQ(Play->Top(), "frmWindow");
  }
  void Choose(const char* box, int row) {
    Play->Window.Act([&] { return ui::Pick(Play->Desk, *Play->Desk.Top(), box, row); });
  }
  std::string Text(const char* name) { return Play->Desk.Top()->Find(name)->Text.Get(); }

  ScratchFolder folder_;
  Log Notes;
  std::unique_ptr<Player> Play;
};

TEST_F(TheOptions, AreKeptFromOneStartToTheNext) {
  Begin();
  const int before = Play->See("cmdnext")->height();
  OpenOptions();
  Choose("cmbtheme", 4);
  Choose("cmbtext", 7);
  Choose("cmbscale", 3);
  Play->Click("chkstill");
  EXPECT_EQ(QApplication::cursorFlashTime(), 0);
  Play->Key(Qt::Key_Escape);
  Begin();
  EXPECT_EQ(&desktop::ColoursOf(Play->See("cmdnext")), &desktop::ContrastColours());
  EXPECT_NEAR(Play->See("cmdnext")->height(), 2 * before, 2);
  OpenOptions();
  EXPECT_EQ(Text("cmbtheme"), "High contrast");
  EXPECT_EQ(Text("cmbtext"), "200%");
  EXPECT_EQ(Text("cmbscale"), "125%");
  Play->Click("chkstill");
  EXPECT_GT(QApplication::cursorFlashTime(), 0);
}

TEST_F(TheOptions, GiveACommandAnotherKey) {
  Begin();
  OpenOptions();
  const auto change = [&](const char* key, bool taken) {
    Play->AtNextBox([&] {
      Play->Type(key);
      if (!taken) Play->AtNextBox([&] { Play->Click("boxok"); });
      Play->Click("boxok");
    });
    Play->Click("cmdkey");
  };
  for (const char* refused : {"x", "F4", "F11", "Ctrl+K"}) change(refused, false);
  change("Ctrl+R", true);
  Play->Key(Qt::Key_Escape);
  Play->Key(Qt::Key_F2);
  EXPECT_EQ(Play->Top(), "frmHub") << "it is nobody's key any more";
  Play->Key(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(Play->Top(), "frmPeople");
  Begin();
  Play->Key(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(Play->Top(), "frmPeople");
  OpenOptions();
  Play->Click("cmdusual");
  Play->Key(Qt::Key_Escape);
  Play->Key(Qt::Key_Escape);
  Play->Key(Qt::Key_F2);
  EXPECT_EQ(Play->Top(), "frmPeople");
}

TEST_F(TheOptions, LeaveThePageItselfToBeShared) {
  Begin();
  Play->Open(std::make_unique<PeoplePage>(Play->Desk, Notes));
  const auto find = [&](const char* letters) {
    Play->Key(Qt::Key_K, Qt::ControlModifier);
    Play->Type(letters);
    Play->Key(Qt::Key_Return);
  };
  find("Copy this page as Markdown");
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("# People\n\n| \\# | Name |"));
  find("Copy this page as a picture");
  EXPECT_FALSE(QApplication::clipboard()->image().isNull());
  const QString file = QString::fromStdString(folder_ / "people.");
  for (const auto& [ending, start] : {std::pair("md", "# People"),
                                      {"html", "<!DOCTYPE html>"},
                                      {"txt", "[size=150]"},
                                      {"png", "\x89PNG"}}) {
    EXPECT_EQ(desktop::WritePage(file + ending, *Play->Desk.Top(), *Play->See("frmPeople")), "");
    QFile written(file + ending);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(written.readAll().startsWith(start)) << ending;
  }
  const QString nowhere = QString::fromStdString(folder_ / "no/where.md");
  EXPECT_TRUE(desktop::WritePage(nowhere, *Play->Desk.Top(), *Play->See("frmPeople"))
                  .startsWith("Could not write " + nowhere));
}

TEST_F(TheOptions, FillTheScreenByF11) {
  Begin();
  for (const bool full : {true, false}) {
    Play->Key(Qt::Key_F11);
    EXPECT_EQ(Play->Window.isFullScreen(), full);
  }
}

}  // namespace
}  // namespace grapplemont::test
