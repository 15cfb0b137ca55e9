#include "ui/desk.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/samplescreen.h"
#include "support/scriptdesk.h"

namespace grapplemont::test {
namespace {

using Log = std::vector<std::string>;

/// Work that writes down what is asked of it and fails where a test wants it.
class Recorder : public ui::Work {
 public:
  explicit Recorder(Log& log) : log_(log) {}
  void Commit() override {
    log_.push_back("Commit");
    if (CommitFails) throw std::runtime_error("no space");
  }
  void Rollback() override {
    log_.push_back("Rollback");
    if (RollbackFails) throw std::runtime_error("damaged");
  }
  std::string Explain(const std::exception& fault) const override {
    return "Explained: " + std::string(fault.what());
  }
  bool CommitFails = false, RollbackFails = false;

 private:
  Log& log_;
};

struct Table {
  ScriptDesk Desk;
  Log Said;
  Recorder Work{Said};
  Table() { Desk.SetWork(&Work); }
  SampleScreen& Sample() {
    SampleScreen& screen = SampleScreen::On(Desk, Said);
    Said.clear();
    return screen;
  }
};

TEST(DeskEvents, CommitOnceWhenTheOutermostReturns) {
  Table table;
  table.Desk.Event([&] {
    table.Said.push_back("outer");
    table.Desk.Event([&] { table.Said.push_back("inner"); });
    table.Said.push_back("outer again");
  });
  EXPECT_EQ(table.Said, (Log{"outer", "inner", "outer again", "Commit"}));
}

TEST(DeskEvents, WithoutAHandlerCommitNothing) {
  Table table;
  table.Desk.Event({});
  EXPECT_EQ(table.Said, Log{});
}

TEST(DeskEvents, AreTakenBackWhenTheHandlerThrows) {
  Table table;
  SampleScreen& screen = table.Sample();
  table.Desk.ExpectSay("Error!", "Explained: The disk is full.");
  table.Desk.Click("cmdthrow");
  EXPECT_EQ(table.Said, (Log{"Load", "Rollback", "Return"}));
  ASSERT_EQ(table.Desk.Screens().size(), 1u) << "the one it opened is gone";
  EXPECT_EQ(table.Desk.Top(), &screen) << "the one it closed is back";
  table.Said.clear();
  table.Desk.Click("cmddoit");
  EXPECT_EQ(table.Said, (Log{"cmddoit", "Commit"})) << "and the game goes on";
}

TEST(DeskEvents, AreTakenBackWhenANestedOneThrows) {
  Table table;
  table.Desk.ExpectSay("Error!", "Explained: inner");
  table.Desk.Event([&] {
    table.Desk.Event([] { throw std::runtime_error("inner"); });
    table.Said.push_back("never here");
  });
  EXPECT_EQ(table.Said, (Log{"Rollback"}));
}

TEST(DeskEvents, AreTakenBackWhenTheCommitFails) {
  Table table;
  table.Sample();
  table.Work.CommitFails = true;
  table.Desk.ExpectSay("Error!", "Explained: no space");
  table.Desk.Click("cmddoit");
  EXPECT_EQ(table.Said, (Log{"cmddoit", "Commit", "Rollback", "Return"}));
}

TEST(DeskEvents, TellBothWhenTakingBackFailsToo) {
  Table table;
  SampleScreen& screen = table.Sample();
  table.Work.RollbackFails = true;
  table.Desk.ExpectSay("Error!", "Explained: The disk is full.\nExplained: damaged");
  table.Desk.Click("cmdthrow");
  EXPECT_EQ(table.Desk.Top(), &screen);
}

TEST(DeskEvents, WorkWithoutAnyWork) {
  ScriptDesk desk;
  desk.ExpectSay("Error!", "plain");
  desk.Event([] { throw std::runtime_error("plain"); });
}

TEST(Desk, LoadsAScreenOnceAndTellsItOfItsReturn) {
  ScriptDesk desk;
  Log log;
  SampleScreen::On(desk, log);
  SampleScreen& above = SampleScreen::On(desk, log);
  EXPECT_EQ(log, (Log{"Load", "Load"}));
  desk.Close(above);
  EXPECT_EQ(log, (Log{"Load", "Load", "Return"}));
}

TEST(Desk, OpensAScreenAsAnEventOfItsOwn) {
  Table table;
  SampleScreen::On(table.Desk, table.Said);
  EXPECT_EQ(table.Said, (Log{"Load", "Commit"}));
  table.Work.CommitFails = true;
  table.Said.clear();
  table.Desk.ExpectSay("Error!", "Explained: no space");
  SampleScreen::On(table.Desk, table.Said);
  EXPECT_EQ(table.Said, (Log{"Load", "Commit", "Rollback", "Return"}));
  EXPECT_EQ(table.Desk.Screens().size(), 1u);
}

TEST(Desk, ClosesAScreenBelowTheTopWithoutWakingAnother) {
  Table table;
  SampleScreen& below = table.Sample();
  SampleScreen& above = SampleScreen::On(table.Desk, table.Said);
  table.Said.clear();
  table.Desk.Close(below);
  EXPECT_EQ(table.Said, Log{});
  EXPECT_TRUE(table.Desk.Holds(above));
  EXPECT_EQ(table.Desk.Screens().size(), 1u);
}

TEST(Desk, KeepsAClosedScreenUntilItsHandlerHasReturned) {
  Table table;
  SampleScreen& screen = table.Sample();
  std::weak_ptr<ui::Screen> watched = table.Desk.Screens().front();
  screen.cmddoit.OnClick = [&] {
    table.Desk.Close(screen);
    EXPECT_FALSE(table.Desk.Holds(screen));
    EXPECT_FALSE(watched.expired());
    screen.lblfacts.Text = "still here";
  };
  table.Desk.Click("cmddoit");
  EXPECT_TRUE(watched.expired());
  EXPECT_TRUE(table.Desk.Empty());
}

TEST(Desk, OpensByNameWhatItKnows) {
  ScriptDesk desk;
  Log log;
  EXPECT_FALSE(desk.Knows("frmSample"));
  EXPECT_THROW(desk.Open("frmSample"), std::logic_error);
  desk.Register("frmSample", [&] { return std::make_unique<SampleScreen>(desk, log); });
  ASSERT_TRUE(desk.Knows("frmSample"));
  desk.Open("frmSample");
  desk.Open("frmSample");
  EXPECT_EQ(desk.Screens().size(), 2u);
  desk.CloseAll();
  EXPECT_TRUE(desk.Empty());
  EXPECT_EQ(desk.Top(), nullptr);
}

}  // namespace
}  // namespace grapplemont::test
