#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ui/desk.h"

namespace grapplemont::test {

/// A screen with every kind of control. Its handlers write down what they were called for; the
/// buttons named for it ask, throw, open or close.
class SampleScreen : public ui::Screen {
 public:
  SampleScreen(ui::Desk& desk, std::vector<std::string>& log);

  ui::Page Layout() override;
  void Load() override { log_.push_back("Load"); }
  void Return() override { log_.push_back("Return"); }

  /// Opens one on the desk.
  static SampleScreen& On(ui::Desk& desk, std::vector<std::string>& log);

 private:
  ui::Handler Writes(std::string words) {
    return [this, words] { log_.push_back(words); };
  }
  void cmdsay_Click();
  void cmdask_Click();
  void cmdprompt_Click();
  void cmdthrow_Click();
  void cmdclose_Click();

  std::vector<std::string>& log_;

 public:
  ui::Label lblfacts{*this, "lblfacts", "Two of everything."};
  ui::TextBox txtname{*this, "txtname", "Pat", 8};
  ui::TextBox txtnotes{*this, "txtnotes"};
  ui::Button cmddoit{*this, "cmddoit", "Do It", Writes("cmddoit")};
  ui::Button cmdsay{*this, "cmdsay", "Say", &SampleScreen::cmdsay_Click};
  ui::Button cmdask{*this, "cmdask", "Ask", &SampleScreen::cmdask_Click};
  ui::Button cmdprompt{*this, "cmdprompt", "Prompt", &SampleScreen::cmdprompt_Click};
  ui::Button cmdthrow{*this, "cmdthrow", "Throw", &SampleScreen::cmdthrow_Click};
  ui::Button cmdclose{*this, "cmdclose", "Close", &SampleScreen::cmdclose_Click};
  ui::Button cmdoff{*this, "cmdoff", "Off", Writes("cmdoff")};
  ui::Button cmdhidden{*this, "cmdhidden", "Hidden", Writes("cmdhidden")};
  ui::ListBox lstpeople{*this,
                        "lstpeople",
                        {{"Name"}, {"Over", ui::ColumnKind::Number}},
                        Writes("lstpeople picked"),
                        Writes("lstpeople opened")};
  ui::ListBox lstmany{*this, "lstmany", {{}}, Writes("lstmany picked")};
  ui::ListBox lstnone{*this, "lstnone", {{}}};
  ui::ComboBox cmbkind{*this, "cmbkind", Writes("cmbkind picked")};
  ui::CheckBox chkday{*this, "chkday", "Every day", false, Writes("chkday")};
  ui::OptionButton optface{*this, "optface", "Face", "side", true, Writes("optface")};
  ui::OptionButton optheel{*this, "optheel", "Heel", "side", false, Writes("optheel")};
  ui::OptionButton optother{*this, "optother", "Other", "else", true, Writes("optother")};
  ui::ScrollBar hsprice{*this, "hsprice", 5, 100, Writes("hsprice")};
  ui::Picture imgdoor{*this, "imgdoor", "door.jpg", Writes("imgdoor")};
  ui::Picture imgback{*this, "imgback", "back.jpg"};
  ui::Chart chtmoney{*this, "chtmoney"};
  ui::Report rptshow{*this, "rptshow"};
};

}  // namespace grapplemont::test
