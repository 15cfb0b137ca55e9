#include <gtest/gtest.h>

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
  const std::pair<ui::Control&, ui::Handler> kValues[] = {
      {Screen.lblfacts, [&] { Screen.lblfacts.Text = "Other"; }},
      {Screen.cmdsay, [&] { Screen.cmdsay.Badge = "3"; }},
      {Screen.chkday, [&] { Screen.chkday.Checked = true; }},
      {Screen.hsprice, [&] { Screen.hsprice.Value = 21; }}};
  for (const auto& [control, change] : kValues) {
    EXPECT_TRUE(Shows(control, change)) << control.Name();
    EXPECT_FALSE(Shows(control, change)) << control.Name() << ", the same again";
  }
  EXPECT_TRUE(Shows(Screen.lstpeople, [&] { Screen.lstpeople.Add({"Cal Drift"}, 10); }));
  EXPECT_TRUE(Shows(Screen.lstpeople, [&] { Screen.lstpeople.Select(2); }));
  EXPECT_TRUE(Shows(Screen.cmbkind, [&] { Screen.cmbkind.Select(2); }));
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

TEST_F(Controls, SelectsNothingForARowThatIsNotThereAndTellsNoHandler) {
  Log.clear();
  ui::ComboBox& combo = Screen.cmbkind;
  for (const int row : {-1, 0, 4, 99}) {
    SCOPED_TRACE(row);
    Screen.lstpeople.Select(2);
    Screen.lstpeople.Select(row);
    EXPECT_EQ(Screen.lstpeople.Selected(), 0);
    Screen.lstmany.Toggle(row);
    EXPECT_EQ(Screen.lstmany.Keys(), std::vector<int>{});
    combo.SelectKey(8);
    EXPECT_EQ(combo.Text.Get(), "Tag Team");
    combo.Select(row);
    EXPECT_EQ(combo.Selected(), 0);
    EXPECT_EQ(combo.Text.Get(), "");
    EXPECT_EQ(combo.Key(), 0);
    EXPECT_EQ(combo.KeyOf(row), 0);
  }
  Screen.lstpeople.Select(2);
  Screen.lstpeople.SelectKey(999);
  EXPECT_EQ(Screen.lstpeople.Selected(), 0);
  Screen.lstpeople.Clear();
  EXPECT_EQ(Screen.lstpeople.Count(), 0);
  combo.Clear();
  combo.SelectKey(7);
  EXPECT_EQ(combo.Selected(), 0);
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

const struct {
  const char* Name;
  const char* Done;  // as a refusal words it
  std::string (*Try)(ui::Desk&, ui::Screen&, std::string_view);
} kActs[] = {
    {"click", "clicked", [](auto& d, auto& s, auto n) { return ui::Click(d, s, n); }},
    {"type", "typed into", [](auto& d, auto& s, auto n) { return ui::Type(d, s, n, "x"); }},
    {"pick", "picked from", [](auto& d, auto& s, auto n) { return ui::Pick(d, s, n, "2"); }},
    {"open", "opened", [](auto& d, auto& s, auto n) { return ui::OpenRow(d, s, n, "2"); }},
    {"check", "checked", [](auto& d, auto& s, auto n) { return ui::Check(d, s, n, true); }},
    {"slide", "slid", [](auto& d, auto& s, auto n) { return ui::Slide(d, s, n, 50); }},
};

TEST(Acts, OpenARowOnlyWithAButtonThatCanBePressed) {
  ScriptDesk desk;
  Log log;
  SampleScreen& screen = SampleScreen::On(desk, log);
  screen.lstpeople.OpenWith(screen.cmddoit);
  log.clear();
  desk.OpenRow("lstpeople", 1);
  screen.cmddoit.Enabled = false;
  desk.OpenRow("lstpeople", 2);
  EXPECT_EQ(desk.Selected("lstpeople"), std::vector{2}) << "picked all the same";
  screen.cmddoit.Enabled = true;
  screen.cmddoit.Visible = false;
  desk.OpenRow("lstpeople", 3);
  EXPECT_EQ(log, (Log{"lstpeople picked", "cmddoit", "lstpeople picked", "lstpeople picked"}));
}

TEST(Acts, FitTheKindOfTheControl) {
  const struct {
    const char *Control, *Kind, *Takes;
    Log Said;  // by each act it takes, in order
  } kRows[] = {
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
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Control);
    ScriptDesk desk;
    Log log;
    SampleScreen& screen = SampleScreen::On(desk, log);
    log.clear();
    for (const auto& act : kActs) {
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
  for (const auto& act : kActs) {
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

TEST(Acts, FindARowByItsTextBeforeItsNumber) {
  ScriptDesk desk;
  Log log;
  SampleScreen& screen = SampleScreen::On(desk, log);
  // The second row's text is "3"; 0: refused.
  constexpr std::pair<const char*, int> kRows[] = {{"1", 1},  {"3", 2},           {"Ilya Marsh", 3},
                                                   {"0", 0},  {"4", 0},           {"", 0},
                                                   {"1x", 0}, {"99999999999", 0}, {"Ilya", 0}};
  for (const auto& [wanted, row] : kRows) {
    SCOPED_TRACE(wanted);
    for (const bool open : {false, true}) {
      screen.lstpeople.Select(0);
      const std::string refusal = open ? ui::OpenRow(desk, screen, "lstpeople", wanted)
                                       : ui::Pick(desk, screen, "lstpeople", wanted);
      EXPECT_EQ(screen.lstpeople.Selected(), row);
      EXPECT_EQ(refusal,
                row != 0 ? "" : "\"lstpeople\" has no row \"" + std::string(wanted) + "\".");
    }
  }
  desk.Pick("lstpeople", 3);
  EXPECT_EQ(screen.lstpeople.Key(), 13);
  EXPECT_EQ(ui::Pick(desk, screen, "cmbkind", 3), "\"cmbkind\" has no row \"3\".");
  desk.Pick("cmbkind", "Tag Team");
  EXPECT_EQ(screen.cmbkind.Key(), 8);
  EXPECT_EQ(screen.cmbkind.Text.Get(), "Tag Team");
}

TEST(Acts, ChangeWhatTheyNameAndTellOnlyOfChanges) {
  ScriptDesk desk;
  Log log;
  SampleScreen& screen = SampleScreen::On(desk, log);
  log.clear();
  desk.Type("txtname", std::string(300, 'x'));
  EXPECT_EQ(screen.txtname.Text.Get(), "xxxxxxxx") << "cut at its longest";
  desk.Type("txtnotes", std::string(300, 'x'));
  EXPECT_EQ(screen.txtnotes.Text->size(), 300u);

  desk.Pick("lstmany", "Green");
  desk.Pick("lstmany", 1);
  EXPECT_EQ(desk.Selected("lstmany"), (std::vector<int>{1, 2}));
  desk.Pick("lstmany", "Green");
  EXPECT_EQ(desk.Selected("lstmany"), (std::vector<int>{1}));

  desk.Click("optheel");
  EXPECT_TRUE(desk.Checked("optheel"));
  EXPECT_FALSE(desk.Checked("optface"));
  EXPECT_TRUE(desk.Checked("optother")) << "another group";
  EXPECT_EQ(ui::Check(desk, screen, "optheel", false),
            "\"optheel\" is left by checking another of its group.");
  EXPECT_TRUE(desk.Checked("optheel"));

  log.clear();
  desk.Click("chkday");
  desk.Check("chkday", true);
  EXPECT_TRUE(desk.Checked("chkday"));
  desk.Check("chkday", false);
  desk.Check("chkday", false);
  EXPECT_FALSE(desk.Checked("chkday"));

  for (const int value : {4, 101, -2147483647})
    EXPECT_EQ(ui::Slide(desk, screen, "hsprice", value), "\"hsprice\" goes from 5 to 100.");
  EXPECT_EQ(screen.hsprice.Value.Get(), 20);
  for (const int value : {5, 100, 100}) {
    desk.Slide("hsprice", value);
    EXPECT_EQ(desk.Value("hsprice"), value);
  }
  EXPECT_EQ(log, (Log{"chkday", "chkday", "hsprice", "hsprice"}));
}

}  // namespace
}  // namespace grapplemont::test
