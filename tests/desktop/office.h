#pragma once

#include <string>
#include <vector>

#include "ui/desk.h"

// Small screens to try the window on.

namespace grapplemont::test {

using Log = std::vector<std::string>;

/// A page with one control of each kind that a player works.
class DeskPage : public ui::Screen {
 public:
  DeskPage(ui::Desk& desk, Log& log);
  ui::Page Layout() override;
  void Return() override { log_.push_back("page again"); }

  Log& log_;
  bool AsksBeforeItGoes = false;
  ui::Label lblfacts{*this, "lblfacts", "Everything at hand"};
  ui::TextBox txtname{*this, "txtname", "", 12};
  ui::TextBox txtnotes{*this, "txtnotes"};
  ui::ComboBox cmbkind{*this, "cmbkind", [this] { log_.push_back("kind " + cmbkind.Text.Get()); }};
  ui::CheckBox chkday{*this, "chkday", "Every day", false, [this] { log_.push_back("day"); }};
  ui::OptionButton optface{*this,  "optface", "Face",
                           "side", true,      [this] { log_.push_back("face"); }};
  ui::OptionButton optheel{*this,  "optheel", "Heel",
                           "side", false,     [this] { log_.push_back("heel"); }};
  ui::ScrollBar hsprice{*this, "hsprice", 5, 100, [this] { log_.push_back("price"); }};
  ui::Button cmdask{*this, "cmdask", "Ask", [this] { Asks(); }};
  ui::Button cmdname{*this, "cmdname", "Rename", [this] { Prompts(); }};
  ui::Button cmdthrow{*this, "cmdthrow", "Throw", [this] { Throws(); }};
  ui::Button cmdmore{*this, "cmdmore", "More", [this] { OpensDialog(); }};
  ui::Button cmdoff{*this, "cmdoff", "Off", [this] { log_.push_back("off"); }};
  ui::Button cmdback{*this, "cmdback", "Back", [this] { Leaves(); }};
  ui::Button cmddone{*this, "cmddone", "Done", [this] { log_.push_back("done"); }};

 private:
  void Asks();
  void Prompts();
  void Throws();
  void OpensDialog();
  void Leaves();
};

/// A page with a table of ten people.
class PeoplePage : public ui::Screen {
 public:
  PeoplePage(ui::Desk& desk, Log& log, bool multi = false);
  ui::Page Layout() override;

  Log& log_;
  ui::ListBox lstpeople;
  ui::Button cmdback{*this, "cmdback", "Back", [this] { Close(); }};
};

/// A hub with a side bar of three commands.
class Hub : public ui::Screen {
 public:
  Hub(ui::Desk& desk, Log& log);
  ui::Page Layout() override;
  void Return() override { log_.push_back("hub again"); }

  Log& log_;
  ui::Label txtdate{*this, "txtdate", "Monday, 09 March 2026"};
  ui::Label lblimage{*this, "lblimage", "Image 62%"};
  ui::Button cmdpeople{*this, "cmdpeople", "People",
                       [this] { desk().Open(std::make_unique<PeoplePage>(desk(), log_)); }};
  ui::Button cmddesk{*this, "cmddesk", "Desk",
                     [this] { desk().Open(std::make_unique<DeskPage>(desk(), log_)); }};
  ui::Button cmdlater{*this, "cmdlater", "Later", [this] { log_.push_back("later"); }};
  ui::Button cmdnext{*this, "cmdnext", "Next Day", [this] { log_.push_back("next day"); }};
  ui::Button cmdquit{*this, "cmdquit", "Quit", [this] { desk().CloseAll(); }};
};

}  // namespace grapplemont::test
