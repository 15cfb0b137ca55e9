#include "ui/controls.h"

#include <gtest/gtest.h>

#include <set>

#include "support/samplescreen.h"
#include "support/scriptdesk.h"

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

}  // namespace
}  // namespace grapplemont::test
