#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "ui/desk.h"

// Small screens to try the window on.

namespace grapplemont::test {

using Log = std::vector<std::string>;

class Dialog : public ui::Screen {
 public:
  Dialog(ui::Desk& desk, Log& log) : Screen(desk, "frmMore", "More", ui::Role::Dialog), log_(log) {
    cmdlast.Visible = false;
  }
  ui::Page Layout() override {
    return {.Actions = {&cmdlast, &cmdok, &cmdcancel},
            .Main = &cmdok,
            .Then = &cmdlast,
            .Cancel = &cmdcancel,
            .Body = ui::Rows({lblmore})};
  }

 private:
  void Leave(const char* word) {
    log_.push_back(word);
    Close();
  }

  Log& log_;

 public:
  ui::Label lblmore{*this, "lblmore", "There is more."};
  ui::Button cmdlast{*this, "cmdlast", "Last", [this] { Leave("last"); }};
  ui::Button cmdok{*this, "cmdok", "OK", [this] { Leave("ok"); }};
  ui::Button cmdcancel{*this, "cmdcancel", "Cancel", [this] { Leave("cancel"); }};
};

/// A page with one control of each kind that a player works.
class DeskPage : public ui::Screen {
 public:
  DeskPage(ui::Desk& desk, Log& log) : Screen(desk, "frmDesk", "Desk"), log_(log) {
    for (const char* kind : {"First", "Second", "2"}) cmbkind.Add(kind);
    cmbkind.Select(1);
    txtnotes.MultiLine = true;
    cmdoff.Enabled = false;
    cmdoff.Tip = "Not today.";
  }
  ui::Page Layout() override {
    return {.Facts = &lblfacts,
            .Actions = {&cmddone, &cmdback},
            .Main = &cmddone,
            .Cancel = &cmdback,
            .Stays = WhyItStays,
            .Body = ui::Rows(
                {ui::Group("Fields", {ui::Field("Name", txtname), ui::Field("Notes", txtnotes),
                                      ui::Field("Kind", cmbkind), ui::Field("Price", hsprice)}),
                 ui::Group("Choices", {chkday, ui::Columns({optface, optheel})}),
                 ui::Group("At hand", {cmdask, cmdname, cmdthrow, cmdmore, cmdoff})})};
  }
  void Return() override { log_.push_back("page again"); }

 private:
  ui::Handler Notes(const char* word) {
    return [this, word] { log_.push_back(word); };
  }
  void Asks() {
    const bool yes = desk().Ask("Sure?", "Are you sure?\nReally?", ui::Default::Yes);
    log_.push_back(yes ? "yes" : "no");
  }
  void Prompts() { log_.push_back("[" + desk().Prompt("Name", "New name:", "Save Game 1") + "]"); }
  void Throws() {
    OpensDialog();
    throw std::runtime_error("The disk is full.");
  }
  void OpensDialog() { desk().Open(std::make_unique<Dialog>(desk(), log_)); }
  void Leaves() {
    if (!AsksBeforeItGoes || desk().Ask("Leave?", "Leave this page?", ui::Default::No)) Close();
  }
  Log& log_;

 public:
  bool AsksBeforeItGoes = false;
  std::string WhyItStays;  // before it is opened
  ui::Label lblfacts{*this, "lblfacts", "Everything at hand"};
  ui::TextBox txtname{*this, "txtname", "", 12};
  ui::TextBox txtnotes{*this, "txtnotes"};
  ui::ComboBox cmbkind{*this, "cmbkind", [this] { log_.push_back("kind " + cmbkind.Text.Get()); }};
  ui::CheckBox chkday{*this, "chkday", "Every day", false, Notes("day")};
  ui::OptionButton optface{*this, "optface", "Face", "side", true, Notes("face")};
  ui::OptionButton optheel{*this, "optheel", "Heel", "side", false, Notes("heel")};
  ui::ScrollBar hsprice{*this, "hsprice", 5, 100, Notes("price")};
  ui::Button cmdask{*this, "cmdask", "Ask", &DeskPage::Asks};
  ui::Button cmdname{*this, "cmdname", "Rename", &DeskPage::Prompts};
  ui::Button cmdthrow{*this, "cmdthrow", "Throw", &DeskPage::Throws};
  ui::Button cmdmore{*this, "cmdmore", "More", &DeskPage::OpensDialog};
  ui::Button cmdoff{*this, "cmdoff", "Off", Notes("off")};
  ui::Button cmdback{*this, "cmdback", "Back", &DeskPage::Leaves};
  ui::Button cmddone{*this, "cmddone", "Done", Notes("done")};
};

/// A page with a table of ten people.
class PeoplePage : public ui::Screen {
 public:
  PeoplePage(ui::Desk& desk, Log& log, bool multi = false, ui::Role role = ui::Role::Page)
      : Screen(desk, "frmPeople", "People", role), log_(log) {
    lstpeople.Multi = multi;
    // The first column holds numbers that are not those of the rows.
    int row = 0;
    for (const char* name :
         {"Bram", "Ludo", "Dane", "Hattie", "Petey", "Kid", "Rory", "Fetch", "Salt", "Iron"}) {
      lstpeople.Add({std::to_string(10 - row), name, row % 2 ? "Heel" : "Face", 50 + row * 7 % 10},
                    101 + row);
      ++row;
    }
  }
  ui::Page Layout() override {
    return {
        .Actions = {&cmdback}, .Cancel = &cmdback, .Body = ui::Group("", {ui::Grow(lstpeople)})};
  }

 private:
  ui::Handler Notes(const char* word) {
    return [this, word] { log_.push_back(word + std::to_string(lstpeople.Key())); };
  }
  Log& log_;

 public:
  ui::ListBox lstpeople{
      *this,
      "lstpeople",
      {{"#"}, {"Name"}, {"Disp.", ui::ColumnKind::Tag}, {"Over", ui::ColumnKind::Number}},
      Notes("picked "),
      Notes("opened ")};
  ui::Button cmdback{*this, "cmdback", "Back", [this] { Close(); }};
};

/// A hub with a side bar of three commands.
class Hub : public ui::Screen {
 public:
  Hub(ui::Desk& desk, Log& log) : Screen(desk, "frmHub", "Today", ui::Role::Hub), log_(log) {
    cmdlater.Enabled = false;
    cmdpeople.Badge = "4";
  }
  ui::Page Layout() override {
    return {.Main = &cmdnext,
            .Cancel = &cmdquit,
            .Side = {{"Rooms",
                      {{&cmdpeople, "F2"}, {&cmddesk, "F4", ui::Reach::Today}, {&cmdlater, "F5"}}},
                     {"", {{&cmdquit, "", ui::Reach::Away}}}},
            .Top = {&txtdate, &lblimage},
            .TopActions = {&cmdnext}};
  }
  void Return() override { log_.push_back("hub again"); }

 private:
  template <class Page>
  ui::Handler Opens() {
    return [this] { desk().Open(std::make_unique<Page>(desk(), log_)); };
  }
  Log& log_;
  ui::Label txtdate{*this, "txtdate", "Monday, 09 March 2026"};
  ui::Label lblimage{*this, "lblimage", "Image 62%"};
  ui::Button cmdpeople{*this, "cmdpeople", "People", Opens<PeoplePage>()};
  ui::Button cmddesk{*this, "cmddesk", "Desk", Opens<DeskPage>()};
  ui::Button cmdlater{*this, "cmdlater", "Later", [this] { log_.push_back("later"); }};
  ui::Button cmdnext{*this, "cmdnext", "Next Day", [this] { log_.push_back("next day"); }};
  ui::Button cmdquit{*this, "cmdquit", "Quit", [this] { desk().CloseAll(); }};
};

}  // namespace grapplemont::test
