#include "support/scriptdesk.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "support/samplescreen.h"
#include "support/scripteddraws.h"

// A script desk that lets a fault pass would make every screen test worthless.

namespace grapplemont::test {
namespace {

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
