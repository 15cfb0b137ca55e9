#include <gtest/gtest.h>

#include <QSlider>
#include <QSpinBox>

#include "desktop/player.h"

// Each kind of control, worked by mouse and keys.

namespace grapplemont::test {
namespace {

class TheControls : public testing::Test {
 protected:
  TheControls() : Page(*new DeskPage(Play.Desk, Notes)) {
    Play.Desk.Open(std::unique_ptr<ui::Screen>(&Page));
    Play.Window.Sync();
  }

  Log Notes;
  Player Play;
  DeskPage& Page;
};

TEST_F(TheControls, TakeWhatIsTypedInTheGamesLetters) {
  Play.Click("txtname");
  Play.Type(QString::fromUtf8("Jos\u00E9 \u20AC"));
  EXPECT_EQ(Page.txtname.Text.Get(), "Jos\xE9 \x80");
}

TEST_F(TheControls, RefuseALetterThatTheGameCannotKeepAndNameIt) {
  Play.Click("txtname");
  Play.Type(QString::fromUtf8("Te\u0142d"));
  EXPECT_EQ(Page.txtname.Text.Get(), "Ted");
  EXPECT_EQ(Play.TextOf("txtname"), "Ted");
  EXPECT_TRUE(Play.TextOf("hint").contains(QChar(0x142)));
}

TEST_F(TheControls, CutATextAtItsMostLetters) {
  Play.Click("txtname");
  Play.Type("Twelve letters and more");
  EXPECT_EQ(Page.txtname.Text.Get(), "Twelve lette");
}

TEST_F(TheControls, KeepTheCursorWhereSomebodyTypesInTheMiddle) {
  Play.Click("txtname");
  Play.Type("Bo");
  Play.Key(Qt::Key_Left);
  Play.Type(QString::fromUtf8("ru\u0142n"));
  EXPECT_EQ(Page.txtname.Text.Get(), "Bruno");
}

TEST_F(TheControls, TakeLinesInABoxOfMany) {
  Play.Click("txtnotes");
  Play.Type("One");
  Play.Key(Qt::Key_Return);
  Play.Type(QString::fromUtf8("Tw\u4E00o"));
  EXPECT_EQ(Page.txtnotes.Text.Get(), "One\nTwo");
  Play.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Notes, Log({"done"}));
}

TEST_F(TheControls, ShowWhatTheScreenPutsIn) {
  Page.txtname.Text = "Put in";
  Page.lblfacts.Text = "Other facts";
  Page.cmdask.Text = "Really ask";
  Page.cmdoff.Enabled = true;
  Page.chkday.Visible = false;
  Play.Window.Sync();
  EXPECT_EQ(Play.TextOf("txtname"), "Put in");
  EXPECT_EQ(Play.TextOf("lblfacts"), "Other facts");
  EXPECT_EQ(Play.TextOf("cmdask"), "Really ask");
  EXPECT_FALSE(Play.Sees("chkday"));
  Play.Click("cmdoff");
  EXPECT_EQ(Notes, Log({"off"}));
}

TEST_F(TheControls, DoNothingWhileDisabledAndSayWhy) {
  Play.Click("cmdoff");
  EXPECT_EQ(Notes, Log());
  EXPECT_TRUE(Play.See("cmdoff")->toolTip().contains("Not today."));
}

TEST_F(TheControls, PickFromAComboByItsRowNotByALikeText) {
  QWidget* combo = Play.See("cmbkind");
  combo->setFocus();
  Play.Key(Qt::Key_Down);
  EXPECT_EQ(Page.cmbkind.Selected(), 2) << "the third row's text is \"2\"";
  Play.Key(Qt::Key_End);
  EXPECT_EQ(Notes, Log({"kind Second", "kind 2"}));
}

TEST_F(TheControls, CheckAndChoose) {
  Play.Click("chkday");
  EXPECT_TRUE(Page.chkday.Checked.Get());
  Play.Click("optheel");
  EXPECT_TRUE(Page.optheel.Checked.Get());
  EXPECT_FALSE(qobject_cast<QAbstractButton*>(Play.See("optface"))->isChecked());
  Play.Click("optheel");
  EXPECT_TRUE(qobject_cast<QAbstractButton*>(Play.See("optheel"))->isChecked())
      << "one of them is always chosen";
  EXPECT_EQ(Notes, Log({"day", "heel"}));
}

TEST_F(TheControls, SlideByKeyOrByNumber) {
  auto* slider = Play.See("hsprice")->findChild<QSlider*>();
  auto* number = Play.See("hsprice")->findChild<QSpinBox*>();
  slider->setFocus();
  Play.Key(Qt::Key_Right);
  EXPECT_EQ(Page.hsprice.Value.Get(), 6);
  EXPECT_EQ(number->value(), 6);
  number->setFocus();
  number->selectAll();
  QTest::keyClicks(number, "42");
  EXPECT_EQ(Page.hsprice.Value.Get(), 42);
  EXPECT_EQ(slider->value(), 42);
}

}  // namespace
}  // namespace grapplemont::test
