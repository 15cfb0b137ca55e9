#include <gtest/gtest.h>
#include <set>

#include "support/samplescreen.h"
#include "support/scriptdesk.h"
#include "ui/acts.h"
#include "ui/controls.h"

namespace grapplemont::test {
namespace {

class Controls : public testing::Test {
 protected:
  /// Whether the change counts in the control's revision.
  bool Shows(const ui::Control& control, const ui::Handler& change) {
    const unsigned before = control.Revision();
    change();
    return control.Revision() != before;
  }

  ScriptDesk Desk;
  std::vector<std::string> Log;
  SampleScreen& Screen = SampleScreen::On(Desk, Log);
};

TEST_F(Controls, CountEveryChangeThatCanBeSeen) {
  struct Row {
    const char* What;
    ui::Control& Control;
    ui::Handler Change;
  };
  const Row kRows[] = {
      {"text", Screen.lblfacts, [&] { Screen.lblfacts.Text = "Other"; }},
      {"enabled", Screen.cmddoit, [&] { Screen.cmddoit.Enabled = false; }},
      {"visible", Screen.cmddoit, [&] { Screen.cmddoit.Visible = false; }},
      {"tip", Screen.cmddoit, [&] { Screen.cmddoit.Tip = "Go on"; }},
      {"colour", Screen.lblfacts, [&] { Screen.lblfacts.Colour = ui::Tone::Red; }},
      {"badge", Screen.cmdsay, [&] { Screen.cmdsay.Badge = "3"; }},
      {"checked", Screen.chkday, [&] { Screen.chkday.Checked = true; }},
      {"value", Screen.hsprice, [&] { Screen.hsprice.Value = 21; }},
      {"range", Screen.hsprice, [&] { Screen.hsprice.Max = 120; }},
      {"file", Screen.imgdoor, [&] { Screen.imgdoor.File = "gate.jpg"; }},
      {"captions", Screen.chtmoney, [&] { Screen.chtmoney.Captions = std::vector<std::string>{}; }},
      {"rows", Screen.lstpeople,
       [&] {
         Screen.lstpeople.Add({"Cal Drift", 10});
       }},
      {"selection", Screen.lstpeople, [&] { Screen.lstpeople.Select(2); }},
      {"combo", Screen.cmbkind, [&] { Screen.cmbkind.Select(2); }},
  };
  for (const Row& row : kRows) EXPECT_TRUE(Shows(row.Control, row.Change)) << row.What;
  const std::set<std::string_view> kAlwaysCount = {"rows", "selection", "combo"};
  for (const Row& row : kRows) {
    if (kAlwaysCount.contains(row.What)) continue;
    EXPECT_FALSE(Shows(row.Control, row.Change)) << row.What << ", the same again";
  }
}

TEST_F(Controls, AListKeepsItsSelectionByKey) {
  using Row = ui::ListBox::Row;
  Screen.lstpeople.SelectKey(13);
  EXPECT_EQ(Screen.lstpeople.Selected(), 3);
  const std::vector<Row> shorter = {{{"Ilya Marsh", 70}, 13}, {{"Bram Okafor", 88}, 11}};
  Screen.lstpeople.Fill(shorter);
  EXPECT_EQ(Screen.lstpeople.Selected(), 1);
  EXPECT_EQ(Screen.lstpeople.Key(), 13);
  EXPECT_FALSE(Shows(Screen.lstpeople, [&] { Screen.lstpeople.Fill(shorter); }));
  Screen.lstpeople.Fill({{{"Bram Okafor", 88}, 11}});
  EXPECT_EQ(Screen.lstpeople.Selected(), 0) << "its row is gone";
  EXPECT_EQ(Screen.lstpeople.Key(), 0);
  Screen.lstpeople.Select(1);
  Screen.lstpeople.Fill(shorter, false);
  EXPECT_EQ(Screen.lstpeople.Selected(), 0);
}

TEST_F(Controls, AListBearsAnyRowNumber) {
  for (const int row : {-1, 0, 4, 99}) {
    Screen.lstpeople.Select(2);
    Screen.lstpeople.Select(row);
    EXPECT_EQ(Screen.lstpeople.Selected(), 0) << row;
    Screen.lstmany.Toggle(row);
    EXPECT_EQ(Screen.lstmany.Keys(), std::vector<int>{}) << row;
  }
  Screen.lstpeople.SelectKey(999);
  EXPECT_EQ(Screen.lstpeople.Selected(), 0);
  Screen.lstpeople.Select(2);
  Screen.lstpeople.Clear();
  EXPECT_EQ(Screen.lstpeople.Selected(), 0);
  EXPECT_EQ(Screen.lstpeople.Count(), 0);
}

TEST_F(Controls, AComboShowsItsChosenRow) {
  ui::ComboBox& combo = Screen.cmbkind;
  EXPECT_EQ(combo.Text.Get(), "Singles");
  EXPECT_EQ(combo.Key(), 7);
  combo.SelectKey(8);
  EXPECT_EQ(combo.Selected(), 2);
  EXPECT_EQ(combo.Text.Get(), "Tag Team");
  for (const int row : {-1, 0, 3}) {
    combo.Select(2);
    combo.Select(row);
    EXPECT_EQ(combo.Selected(), 0) << row;
    EXPECT_EQ(combo.Text.Get(), "") << row;
    EXPECT_EQ(combo.Key(), 0) << row;
    EXPECT_EQ(combo.KeyOf(row), 0) << row;
  }
  combo.SelectKey(7);
  combo.Clear();
  EXPECT_EQ(combo.Text.Get(), "");
  combo.SelectKey(7);
  EXPECT_EQ(combo.Selected(), 0);
}

TEST_F(Controls, SelectingTellsNoHandler) {
  Log.clear();
  Screen.cmbkind.Select(2);
  Screen.lstpeople.Select(1);
  Screen.lstmany.Toggle(1);
  Screen.hsprice.Value = 7;
  Screen.chkday.Checked = true;
  EXPECT_TRUE(Log.empty());
}

TEST_F(Controls, AReportReadsAsItsParagraphs) {
  using ui::Report;
  EXPECT_EQ(Screen.rptshow.Paragraphs(),
            (std::vector<Report::Paragraph>{{Report::Style::Body, "The bell rings."},
                                            {Report::Style::Body, "It is over."}}));
  Screen.rptshow.Write({{Report::Style::Heading, "Main Event"}, {Report::Style::Body, "A draw."}});
  EXPECT_EQ(Screen.rptshow.Text.Get(), "Main Event\nA draw.");
  Screen.rptshow.Write("");
  EXPECT_TRUE(Screen.rptshow.Paragraphs().empty());
}

TEST_F(Controls, AreFoundByNameUntilTheyAreGone) {
  EXPECT_EQ(Screen.Find("cmddoit"), &Screen.cmddoit);
  EXPECT_EQ(Screen.Find("cmd"), nullptr);
  const auto count = Screen.Controls().size();
  {
    ui::Array<ui::Button> slots("cmdbook", 2, [&](const std::string& name, int i) {
      return std::make_unique<ui::Button>(Screen, name, "Slot " + std::to_string(i));
    });
    EXPECT_EQ(Screen.Find("cmdbook(2)"), &slots(2));
    EXPECT_EQ(slots(2).Text.Get(), "Slot 2");
    EXPECT_THROW(slots(0), std::out_of_range);
    EXPECT_THROW(slots(3), std::out_of_range);
  }
  EXPECT_EQ(Screen.Controls().size(), count);
  EXPECT_EQ(Screen.Find("cmdbook(2)"), nullptr);
}

using Log = std::vector<std::string>;

struct Act {
  const char* Name;
  const char* Done;  // as a refusal words it
  std::string (*Try)(ui::Desk&, ui::Screen&, std::string_view);
};
const Act kActs[] = {
    {"click", "clicked", [](auto& d, auto& s, auto n) { return ui::Click(d, s, n); }},
    {"type", "typed into", [](auto& d, auto& s, auto n) { return ui::Type(d, s, n, "x"); }},
    {"pick", "picked from", [](auto& d, auto& s, auto n) { return ui::Pick(d, s, n, "2"); }},
    {"open", "opened", [](auto& d, auto& s, auto n) { return ui::OpenRow(d, s, n, "2"); }},
    {"check", "checked", [](auto& d, auto& s, auto n) { return ui::Check(d, s, n, true); }},
    {"slide", "slid", [](auto& d, auto& s, auto n) { return ui::Slide(d, s, n, 50); }},
};

/// A list whose rows open with a button that picking the second row disables.
class Doors : public ui::Screen {
 public:
  explicit Doors(ui::Desk& desk) : Screen(desk, "frmDoors", "Doors") {
    lstdoors.Add({"Open"}, 1);
    lstdoors.Add({"Locked"}, 2);
  }
  ui::Page Layout() override { return {}; }
  int Entered = 0;

 private:
  ui::ListBox lstdoors{*this,
                       "lstdoors",
                       {{}},
                       ui::Handler([this] { cmdenter.Enabled = lstdoors.Key() == 1; }),
                       cmdenter};
  ui::Button cmdenter{*this, "cmdenter", "Enter", ui::Handler([this] { ++Entered; })};
};

TEST(Acts, OpenARowOnlyWithAButtonThatCanBePressed) {
  ScriptDesk desk;
  auto screen = std::make_unique<Doors>(desk);
  Doors& doors = *screen;
  desk.Open(std::move(screen));
  desk.OpenRow("lstdoors", "Open");
  EXPECT_EQ(doors.Entered, 1);
  desk.OpenRow("lstdoors", "Locked");
  EXPECT_EQ(doors.Entered, 1);
  EXPECT_EQ(desk.Selected("lstdoors"), std::vector{2}) << "picked all the same";
  doors.Find("cmdenter")->Visible = false;
  desk.OpenRow("lstdoors", "Open");
  EXPECT_EQ(doors.Entered, 1);
}

TEST(Acts, FitTheKindOfTheControl) {
  struct Row {
    const char *Control, *Kind, *Takes;
    Log Said;  // by each act it takes, in order
  };
  const Row kRows[] = {
      {"lblfacts", "Label", "", {}},
      {"txtname", "TextBox", "type", {"txtname typed"}},
      {"txtnotes", "TextBox", "type", {}},
      {"cmddoit", "Button", "click", {"cmddoit"}},
      {"lstpeople",
       "ListBox",
       "pick open",
       {"lstpeople picked", "lstpeople picked", "lstpeople opened"}},
      {"lstmany", "ListBox", "pick", {"lstmany picked"}},
      {"cmbkind", "ComboBox", "pick", {"cmbkind picked"}},
      {"chkday", "CheckBox", "click check", {"chkday"}},  // the second finds it checked
      {"optheel", "OptionButton", "click check", {"optheel"}},
      {"optface", "OptionButton", "click check", {}},  // it was checked already
      {"hsprice", "ScrollBar", "slide", {"hsprice"}},
      {"imgdoor", "Picture", "click", {"imgdoor"}},
      {"imgback", "Picture", "", {}},
      {"chtmoney", "Chart", "", {}},
      {"rptshow", "Report", "", {}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.Control);
    ScriptDesk desk;
    Log log;
    SampleScreen& screen = SampleScreen::On(desk, log);
    log.clear();
    for (const Act& act : kActs) {
      const bool takes = std::string_view(row.Takes).find(act.Name) != std::string_view::npos;
      const std::string refusal = "\"" + std::string(row.Control) + "\" is a " + row.Kind +
                                  " and cannot be " + act.Done + ".";
      EXPECT_EQ(act.Try(desk, screen, row.Control), takes ? "" : refusal) << act.Name;
    }
    EXPECT_EQ(log, row.Said);
  }
}

TEST(Acts, DoNotReachWhatAPlayerCannotReach) {
  ScriptDesk desk;
  Log log;
  SampleScreen& screen = SampleScreen::On(desk, log);
  log.clear();
  for (ui::Control* control : screen.Controls())
    if (control != &screen.cmdhidden) control->Enabled = false;
  for (const Act& act : kActs) {
    SCOPED_TRACE(act.Name);
    EXPECT_EQ(act.Try(desk, screen, "cmdnowhere"), "frmSample has no control \"cmdnowhere\".");
    EXPECT_EQ(act.Try(desk, screen, "cmdhidden"), "\"cmdhidden\" is not visible.");
    for (const char* name :
         {"txtname", "cmddoit", "lstpeople", "cmbkind", "chkday", "optheel", "hsprice", "imgdoor"})
      EXPECT_EQ(act.Try(desk, screen, name), "\"" + std::string(name) + "\" is disabled.");
  }
  EXPECT_EQ(log, Log{});
  EXPECT_EQ(screen.txtname.Text.Get(), "Pat");
  EXPECT_EQ(screen.hsprice.Value.Get(), 20);
  EXPECT_EQ(screen.lstpeople.Selected(), 0);
  EXPECT_FALSE(screen.chkday.Checked);
}

TEST(Acts, CutWhatIsTypedAtTheLongestText) {
  ScriptDesk desk;
  Log log;
  SampleScreen& screen = SampleScreen::On(desk, log);
  desk.Type("txtname", std::string(300, 'x'));
  EXPECT_EQ(screen.txtname.Text.Get(), "xxxxxxxx");
  desk.Type("txtname", "");
  EXPECT_EQ(screen.txtname.Text.Get(), "");
  desk.Type("txtnotes", std::string(300, 'x'));
  EXPECT_EQ(screen.txtnotes.Text->size(), 300u);
}

TEST(Acts, FindARowByItsTextBeforeItsNumber) {
  ScriptDesk desk;
  Log log;
  SampleScreen& screen = SampleScreen::On(desk, log);
  struct Row {
    const char* Wanted;
    int Found;  // 0: refused
  };
  // The second row's text is "3".
  constexpr Row kRows[] = {{"1", 1},  {"2", 2},  {"3", 2},           {"Ilya Marsh", 3},
                           {"0", 0},  {"4", 0},  {"-1", 0},          {"", 0},
                           {"1 ", 0}, {"+1", 0}, {"ilya marsh", 0},  {"88", 0},
                           {"1x", 0}, {" 1", 0}, {"99999999999", 0}, {"Ilya", 0}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.Wanted);
    for (const bool open : {false, true}) {
      screen.lstpeople.Select(0);
      const std::string refusal = open ? ui::OpenRow(desk, screen, "lstpeople", row.Wanted)
                                       : ui::Pick(desk, screen, "lstpeople", row.Wanted);
      EXPECT_EQ(screen.lstpeople.Selected(), row.Found);
      EXPECT_EQ(refusal, row.Found != 0
                             ? ""
                             : "\"lstpeople\" has no row \"" + std::string(row.Wanted) + "\".");
    }
  }
  desk.Pick("lstpeople", 3);
  EXPECT_EQ(screen.lstpeople.Key(), 13);
  EXPECT_EQ(ui::Pick(desk, screen, "cmbkind", 3), "\"cmbkind\" has no row \"3\".");
  desk.Pick("cmbkind", "Tag Team");
  EXPECT_EQ(screen.cmbkind.Key(), 8);
  EXPECT_EQ(screen.cmbkind.Text.Get(), "Tag Team");
}

TEST(Acts, ToggleTheRowsOfAListThatTakesSeveral) {
  ScriptDesk desk;
  Log log;
  SampleScreen::On(desk, log);
  desk.Pick("lstmany", "Green");
  desk.Pick("lstmany", 1);
  EXPECT_EQ(desk.Selected("lstmany"), (std::vector<int>{1, 2}));
  desk.Pick("lstmany", "Green");
  EXPECT_EQ(desk.Selected("lstmany"), (std::vector<int>{1}));
}

TEST(Acts, KeepOneOptionOfAGroupChecked) {
  ScriptDesk desk;
  Log log;
  SampleScreen& screen = SampleScreen::On(desk, log);
  desk.Click("optheel");
  EXPECT_TRUE(desk.Checked("optheel"));
  EXPECT_FALSE(desk.Checked("optface"));
  EXPECT_TRUE(desk.Checked("optother")) << "another group";
  EXPECT_EQ(ui::Check(desk, screen, "optheel", false),
            "\"optheel\" is left by checking another of its group.");
  EXPECT_TRUE(desk.Checked("optheel"));
}

TEST(Acts, TurnACheckBoxAndTellOnlyOfChanges) {
  ScriptDesk desk;
  Log log;
  SampleScreen::On(desk, log);
  log.clear();
  desk.Click("chkday");
  desk.Check("chkday", true);
  EXPECT_TRUE(desk.Checked("chkday"));
  desk.Check("chkday", false);
  desk.Check("chkday", false);
  EXPECT_FALSE(desk.Checked("chkday"));
  EXPECT_EQ(log, (Log{"chkday", "chkday"}));
}

TEST(Acts, SlideWithinTheBar) {
  ScriptDesk desk;
  Log log;
  SampleScreen& screen = SampleScreen::On(desk, log);
  for (const int value : {4, 101, -2147483647})
    EXPECT_EQ(ui::Slide(desk, screen, "hsprice", value), "\"hsprice\" goes from 5 to 100.");
  EXPECT_EQ(screen.hsprice.Value.Get(), 20);
  log.clear();
  for (const int value : {5, 100, 100}) {
    desk.Slide("hsprice", value);
    EXPECT_EQ(desk.Value("hsprice"), value);
  }
  EXPECT_EQ(log, (Log{"hsprice", "hsprice"}));
}

}  // namespace
}  // namespace grapplemont::test
