#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <stdexcept>

#include "support/samplescreen.h"
#include "support/scriptdesk.h"
#include "support/scripteddraws.h"
#include "ui/desk.h"

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

// A script desk that lets a fault pass would make every screen test worthless.

class TheScriptDesk : public testing::Test {
 protected:
  ScriptDesk Desk;
  std::vector<std::string> Log;
  SampleScreen& Screen = SampleScreen::On(Desk, Log);
};

TEST_F(TheScriptDesk, AnswersExpectedBoxesInOrder) {
  Desk.ExpectSay("Told", "First.");
  Desk.ExpectSay("Told", kAnyText);
  Desk.Click("cmdsay");
  Desk.ExpectAsk("Sure?", "Really?", true, ui::Default::No);
  Desk.Click("cmdask");
  Desk.ExpectAsk(kAnyText, "Really?", false);
  Desk.Click("cmdask");
  Desk.ExpectPrompt("Name?", "A new name:", "Sam", "Pat");
  Desk.Click("cmdprompt");
  EXPECT_EQ(Log, (std::vector<std::string>{"Load", "said", "yes", "no", "\"Sam\""}));
  ASSERT_EQ(Desk.Boxes().size(), 5u);
  EXPECT_EQ(Desk.Boxes()[1].Text, "Second.");
}

TEST_F(TheScriptDesk, FailsOnAnUnexpectedBox) {
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmdask"), "Unexpected box: Ask(\"Sure?\", \"Really?\")");
  EXPECT_EQ(Log.back(), "no") << "the default is taken";
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmdprompt"), "Unexpected box: Prompt");
  EXPECT_EQ(Log.back(), "\"\"");
}

TEST_F(TheScriptDesk, FailsOnOtherWords) {
  Desk.ExpectAsk("Sure??", "Really?", true);
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmdask"), "the title of the box");
  Desk.ExpectAsk("Sure?", "Truly?", true);
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmdask"), "the text of the box");
  Desk.ExpectAsk("Sure?", "Really?", true, ui::Default::Yes);
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmdask"), "the default of");
  Desk.ExpectPrompt("Name?", "A new name:", "Sam", "Pat Lee");
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmdprompt"), "the offered text of the box");
  Desk.ExpectSay("Sure?", "Really?");
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmdask"), "next.Kind");
}

TEST_F(TheScriptDesk, FailsOnABoxThatNeverComes) {
  Desk.ExpectSay("Told", "First.");
  EXPECT_NONFATAL_FAILURE(Desk.Finish(), "Say(\"Told\", \"First.\") was expected and never came.");
  Desk.Finish();  // once is enough
  const auto leaveOne = [] {
    ScriptDesk other;
    other.ExpectAsk("Quit?", kAnyText, true);
  };
  EXPECT_NONFATAL_FAILURE(leaveOne(), "Ask(\"Quit?\", any text) was expected");
}

TEST_F(TheScriptDesk, FailsOnAnActThatAPlayerCannotDo) {
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmdoff"), "\"cmdoff\" is disabled.");
  EXPECT_NONFATAL_FAILURE(Desk.Pick("lstpeople", "Nobody"), "has no row");
  EXPECT_NONFATAL_FAILURE(Desk.Slide("hsprice", 101), "goes from 5 to 100");
  EXPECT_NONFATAL_FAILURE((void)Desk.Text("lblnone"), "has no control \"lblnone\"");
  EXPECT_NONFATAL_FAILURE((void)Desk.Value("cmddoit"), "is a Button");
  Desk.Click("cmdclose");
  EXPECT_EQ(Desk.TopName(), "");
  EXPECT_NONFATAL_FAILURE(Desk.Click("cmddoit"), "Nothing lies on the desk.");
}

TEST_F(TheScriptDesk, ReadsTheTopScreen) {
  EXPECT_EQ(Desk.TopName(), "frmSample");
  EXPECT_EQ(Desk.Title(), "Sample");
  EXPECT_EQ(Desk.Text("cmbkind"), "Singles");
  EXPECT_EQ(Desk.Rows("lstpeople")[2], (std::vector<std::string>{"Ilya Marsh", "$1,284,500"}));
  EXPECT_EQ(Desk.FirstColumn("cmbkind"), (std::vector<std::string>{"Singles", "Tag Team"}));
  EXPECT_EQ(Desk.Selected("cmbkind"), std::vector<int>{1});
  EXPECT_FALSE(Desk.Enabled("cmdoff"));
  EXPECT_EQ(Desk.Tip("cmdoff"), "Not yet.");
  EXPECT_FALSE(Desk.Visible("cmdhidden"));
  EXPECT_TRUE(Desk.Checked("optface"));
}

TEST(ScriptedDraws, GiveTheScript) {
  ScriptedDraws draws{3, {6, 1}, 5};
  EXPECT_EQ(draws.Draw(3), 3);
  EXPECT_EQ(draws.Draw(6), 1);
  EXPECT_EQ(draws.Left(), 1);
  EXPECT_EQ(draws.Draw(100), 5);
  ScriptedDraws noChoice{1, 1};
  EXPECT_EQ(noChoice.Draw(0), 1);
  EXPECT_EQ(noChoice.Draw(-5), 1);
}

TEST(ScriptedDraws, FailLoudly) {
  const auto runOut = [] {
    ScriptedDraws draws{2};
    EXPECT_EQ(draws.Draw(2), 2);
    EXPECT_THROW(draws.Draw(9), std::logic_error);
  };
  EXPECT_NONFATAL_FAILURE(runOut(), "Draw number 2, of 9, is one more than the script holds.");
  const auto leaveSome = [] {
    ScriptedDraws draws{3, 1, 5};
    EXPECT_EQ(draws.Draw(4), 3);
  };
  EXPECT_NONFATAL_FAILURE(leaveSome(), "Only 1 numbers of the script were drawn; left over: 1 5");
  const auto lieOutside = [](int value) {
    ScriptedDraws draws{value};
    EXPECT_THROW(draws.Draw(6), std::logic_error);
  };
  for (const int value : {0, -1, 7})
    EXPECT_NONFATAL_FAILURE(lieOutside(value), "cannot give " + std::to_string(value));
  const auto drawOfAnother = [] {
    ScriptedDraws draws{{100, 3}};
    EXPECT_EQ(draws.Draw(10), 3);
  };
  EXPECT_NONFATAL_FAILURE(drawOfAnother(), "should be a draw of 100.");
}

}  // namespace
}  // namespace grapplemont::test
