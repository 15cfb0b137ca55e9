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
  table.Desk.Event({});
  EXPECT_EQ(table.Said, (Log{"outer", "inner", "outer again", "Commit"}));
}

TEST(DeskEvents, AreTakenBackWhenSomethingThrows) {
  const struct {
    const char* Fails;
    std::function<void(Table&)> Act;
    const char* Told;
    Log Said;
  } kRows[] = {
      {"the handler, which has closed its screen and opened another",
       [](Table& table) { table.Desk.Click("cmdthrow"); },
       "Explained: The disk is full.",
       {"Load", "Rollback", "Return"}},
      {"a handler within another",
       [](Table& table) {
         table.Desk.Event([&] {
           table.Desk.Event([] { throw std::runtime_error("inner"); });
           table.Said.push_back("never here");
         });
       },
       "Explained: inner",
       {"Rollback", "Return"}},
      {"the commit",
       [](Table& table) {
         table.Work.CommitFails = true;
         table.Desk.Click("cmddoit");
       },
       "Explained: no space",
       {"cmddoit", "Commit", "Rollback", "Return"}},
      {"taking back, too",
       [](Table& table) {
         table.Work.RollbackFails = true;
         table.Desk.Click("cmdthrow");
       },
       "Explained: The disk is full.\nExplained: damaged",
       {"Load", "Rollback", "Return"}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Fails);
    Table table;
    const SampleScreen& screen = table.Sample();
    table.Desk.ExpectSay("Error!", row.Told);
    row.Act(table);
    EXPECT_EQ(table.Said, row.Said);
    ASSERT_EQ(table.Desk.Screens().size(), 1u);
    EXPECT_EQ(table.Desk.Top(), &screen);
    table.Work.CommitFails = false;
    table.Said.clear();
    table.Desk.Click("cmddoit");
    EXPECT_EQ(table.Said, (Log{"cmddoit", "Commit"})) << "and the game goes on";
  }
  ScriptDesk workless;
  workless.ExpectSay("Error!", "plain");
  workless.Event([] { throw std::runtime_error("plain"); });
}

TEST(Desk, LoadsAScreenOnceAsAnEventAndTellsItOfItsReturn) {
  Table table;
  SampleScreen& bottom = SampleScreen::On(table.Desk, table.Said);
  SampleScreen& below = SampleScreen::On(table.Desk, table.Said);
  SampleScreen& above = SampleScreen::On(table.Desk, table.Said);
  EXPECT_EQ(table.Said, (Log{"Load", "Commit", "Load", "Commit", "Load", "Commit"}));
  table.Said.clear();
  table.Desk.Close(below);
  EXPECT_EQ(table.Said, Log{}) << "it was not on top";
  table.Desk.Close(above);
  EXPECT_EQ(table.Said, Log{"Return"});
  EXPECT_EQ(table.Desk.Top(), &bottom);
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
  EXPECT_THROW(desk.Open("frmSample"), std::logic_error);
  desk.Register("frmSample", [&] { return std::make_unique<SampleScreen>(desk, log); });
  desk.Open("frmSample");
  desk.Open("frmSample");
  EXPECT_EQ(desk.Screens().size(), 2u);
  desk.CloseAll();
  EXPECT_EQ(desk.Top(), nullptr);
}

// A script desk or draws that let a fault pass would make every other test worthless.

TEST(TheScriptDesk, FailsOnWhatWasNotExpected) {
  ScriptDesk desk;
  Log log;
  SampleScreen::On(desk, log);
  EXPECT_NONFATAL_FAILURE(desk.Click("cmdask"), "Unexpected box: Ask(\"Sure?\", \"Really?\")");
  EXPECT_EQ(log.back(), "no") << "the default is taken";
  desk.ExpectAsk("Sure??", "Really?", true);
  EXPECT_NONFATAL_FAILURE(desk.Click("cmdask"), "the title of the box");
  desk.ExpectAsk("Sure?", "Truly?", true, ui::Default::No);
  EXPECT_NONFATAL_FAILURE(desk.Click("cmdask"), "the text of the box");
  desk.ExpectAsk("Sure?", "Really?", true, ui::Default::Yes);
  EXPECT_NONFATAL_FAILURE(desk.Click("cmdask"), "the default of");
  desk.ExpectSay("Sure?", "Really?");
  EXPECT_NONFATAL_FAILURE(desk.Click("cmdask"), "next.Kind");
  desk.ExpectSay("Told", "First.");
  EXPECT_NONFATAL_FAILURE(desk.Finish(), "Say(\"Told\", \"First.\") was expected and never came.");
  EXPECT_NONFATAL_FAILURE(desk.Click("cmdoff"), "\"cmdoff\" is disabled.");
  desk.Top()->Find("cmdoff")->Tip = "Not before noon.";
  EXPECT_NONFATAL_FAILURE(desk.Click("cmdoff"), "\"cmdoff\" is disabled. Not before noon.");
  EXPECT_NONFATAL_FAILURE((void)desk.Text("lblnone"), "has no control \"lblnone\"");
  const auto leaveOne = [] { ScriptDesk().ExpectAsk("Quit?", kAnyText, true); };
  EXPECT_NONFATAL_FAILURE(leaveOne(), "Ask(\"Quit?\", any text) was expected");
}

TEST(ScriptedDraws, FailOnWhatWasNotScripted) {
  const auto runOut = [] {
    ScriptedDraws draws{2};
    EXPECT_EQ(draws.Draw(2), 2);
    EXPECT_THROW(draws.Draw(9), std::logic_error);
  };
  EXPECT_NONFATAL_FAILURE(runOut(), "Draw number 2, of 9, is one more than the script holds.");
  const auto lieOutside = [](int value) {
    EXPECT_THROW(ScriptedDraws{value}.Draw(6), std::logic_error);
  };
  for (const int value : {0, -1, 7})
    EXPECT_NONFATAL_FAILURE(lieOutside(value), "cannot give " + std::to_string(value));
  const auto leaveSome = [] { EXPECT_EQ((ScriptedDraws{3, 1, 5}.Draw(4)), 3); };
  EXPECT_NONFATAL_FAILURE(leaveSome(), "Only 1 numbers of the script were drawn; left over: 1 5");
  const auto drawOfAnother = [] { EXPECT_EQ((ScriptedDraws{{100, 3}}.Draw(10)), 3); };
  EXPECT_NONFATAL_FAILURE(drawOfAnother(), "should be a draw of 100.");
}

}  // namespace
}  // namespace grapplemont::test
