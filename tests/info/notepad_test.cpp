#include <gtest/gtest.h>

#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

World Plain() {
  return SmallWorld().Promotion("CWA").Game("CWA");
}

/// A game whose commits fail while its disk is full.
class FullDisk : public ui::Work {
 public:
  explicit FullDisk(GameOnWorld& play) : game_(play.Play) { play.Desk.SetWork(this); }
  ~FullDisk() override { game_.Desk().SetWork(&game_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  bool Full = true;

  void Commit() override {
    if (Full && !game_.World().Changes().empty())
      throw DiskError("notes.dat", "write to", "no space is left");
    game_.Commit();
  }
  void Rollback() override { game_.Rollback(); }
  std::string Explain(const std::exception& fault) const override { return game_.Explain(fault); }

 private:
  Game& game_;
};

TEST(frmNotepad, KeepsWhatIsTypedHoweverItCloses) {
  GameOnWorld play(Plain());
  play.Desk.Open("frmNotepad");
  EXPECT_EQ(play.Desk.Text("txtnotes"), "Notepad");
  const std::string notes =
      "Push Bram.\r\n\tDrop Ilya.\n\n  caf\xE9 \x80"
      "5\n";
  play.Desk.Type("txtnotes", notes);
  play.Desk.CloseAll();
  play.Reopen();
  EXPECT_EQ(play.World().Notes().Text(), notes);
  play.Desk.Open("frmNotepad");
  EXPECT_EQ(play.Desk.Text("txtnotes"), notes);
  play.Desk.Type("txtnotes", "");
  play.Desk.Click("cmdback");
  EXPECT_TRUE(play.Desk.Empty());
  play.Reopen();
  EXPECT_EQ(play.World().Notes().Text(), "");
}

TEST(frmNotepad, RefusesMoreThanItHolds) {
  GameOnWorld play(Plain());
  play.Desk.Open("frmNotepad");
  std::string notes(1 << 20, 'n');
  play.Desk.Type("txtnotes", notes);
  EXPECT_EQ(play.World().Notes().Text(), notes);
  play.Desk.ExpectSay("Error!",
                      "The notepad holds 1048576 letters at most. Your notes are as they were "
                      "before.");
  play.Desk.Type("txtnotes", notes + "n");
  EXPECT_EQ(play.Desk.Text("txtnotes"), notes);
  EXPECT_EQ(play.World().Notes().Text(), notes);
}

TEST(frmNotepad, LosesNothingToAFullDisk) {
  GameOnWorld play(Plain());
  play.Desk.Open("frmNotepad");
  EXPECT_FALSE(play.Desk.Visible("cmdrevert"));

  FullDisk disk(play);
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Type("txtnotes", "A long letter.");
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmNotepad");
  EXPECT_EQ(play.Desk.Text("txtnotes"), "A long letter.");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "The last change is not saved yet.");
  EXPECT_EQ(play.World().Notes().Text(), "Notepad");

  disk.Full = false;
  play.Desk.Click("cmdback");
  EXPECT_TRUE(play.Desk.Empty());
  play.Reopen();
  EXPECT_EQ(play.World().Notes().Text(), "A long letter.");
}

TEST(frmNotepad, CanBeLeftWhileTheDiskIsFull) {
  GameOnWorld play(Plain());
  play.Desk.Open("frmNotepad");
  FullDisk disk(play);
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Type("txtnotes", "A long letter.");
  play.Desk.Click("cmdrevert");
  EXPECT_EQ(play.Desk.Text("txtnotes"), "Notepad");
  play.Desk.Click("cmdback");
  EXPECT_TRUE(play.Desk.Empty());
}

}  // namespace
}  // namespace grapplemont::test
