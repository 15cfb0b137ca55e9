#include "desktop/office.h"

#include <stdexcept>

namespace grapplemont::test {

namespace {

class Dialog : public ui::Screen {
 public:
  Dialog(ui::Desk& desk, Log& log) : Screen(desk, "frmMore", "More", ui::Role::Dialog), log_(log) {}
  ui::Page Layout() override {
    ui::Page page;
    page.Body = ui::Rows({lblmore});
    page.Main = &cmdok;
    page.Cancel = &cmdcancel;
    page.Actions = {&cmdok, &cmdcancel};
    return page;
  }

 private:
  Log& log_;
  ui::Label lblmore{*this, "lblmore", "There is more."};
  ui::Button cmdok{*this, "cmdok", "OK", [this] {
                     log_.push_back("ok");
                     Close();
                   }};
  ui::Button cmdcancel{*this, "cmdcancel", "Cancel", [this] {
                         log_.push_back("cancel");
                         Close();
                       }};
};

}  // namespace

DeskPage::DeskPage(ui::Desk& desk, Log& log) : Screen(desk, "frmDesk", "Desk"), log_(log) {
  for (const char* kind : {"First", "Second", "2"}) cmbkind.Add(kind);
  cmbkind.Select(1);
  txtnotes.MultiLine = true;
  cmdoff.Enabled = false;
  cmdoff.Tip = "Not today.";
}

ui::Page DeskPage::Layout() {
  ui::Page page;
  page.Facts = &lblfacts;
  page.Actions = {&cmddone, &cmdback};
  page.Main = &cmddone;
  page.Cancel = &cmdback;
  page.Body =
      ui::Rows({ui::Group("Fields", {ui::Field("Name", txtname), ui::Field("Notes", txtnotes),
                                     ui::Field("Kind", cmbkind), ui::Field("Price", hsprice)}),
                ui::Group("Choices", {chkday, ui::Columns({optface, optheel})}),
                ui::Group("At hand", {cmdask, cmdname, cmdthrow, cmdmore, cmdoff})});
  return page;
}

void DeskPage::Asks() {
  const bool yes = desk().Ask("Sure?", "Are you sure?\nReally?", ui::Default::Yes);
  log_.push_back(yes ? "yes" : "no");
}

void DeskPage::Prompts() {
  log_.push_back("[" + desk().Prompt("Name", "New name:", "Save Game 1") + "]");
}

void DeskPage::Throws() {
  desk().Open(std::make_unique<Dialog>(desk(), log_));
  throw std::runtime_error("The disk is full.");
}

void DeskPage::OpensDialog() {
  desk().Open(std::make_unique<Dialog>(desk(), log_));
}

void DeskPage::Leaves() {
  if (!AsksBeforeItGoes || desk().Ask("Leave?", "Leave this page?", ui::Default::No)) Close();
}

PeoplePage::PeoplePage(ui::Desk& desk, Log& log, bool multi)
    : Screen(desk, "frmPeople", "People"),
      log_(log),
      lstpeople(
          *this, "lstpeople",
          {{"#"}, {"Name"}, {"Disp.", ui::ColumnKind::Tag}, {"Over", ui::ColumnKind::Number}},
          [this] { log_.push_back("picked " + std::to_string(lstpeople.Key())); },
          [this] { log_.push_back("opened " + std::to_string(lstpeople.Key())); }) {
  lstpeople.Multi = multi;
  const char* names[] = {"Bram", "Ludo", "Dane",  "Hattie", "Petey",
                         "Kid",  "Rory", "Fetch", "Salt",   "Iron"};
  // The first column holds numbers that are not those of the rows.
  for (int i = 0; i < 10; ++i)
    lstpeople.Add({std::to_string(10 - i), names[i], i % 2 ? "Heel" : "Face", 50 + (i * 7) % 10},
                  101 + i);
}

ui::Page PeoplePage::Layout() {
  ui::Page page;
  page.Actions = {&cmdback};
  page.Cancel = &cmdback;
  page.Body = ui::Group("", {ui::Grow(lstpeople)});
  return page;
}

Hub::Hub(ui::Desk& desk, Log& log) : Screen(desk, "frmHub", "Today", ui::Role::Hub), log_(log) {
  cmdlater.Enabled = false;
  cmdpeople.Badge = "4";
}

ui::Page Hub::Layout() {
  ui::Page page;
  page.Side = {{"Rooms", {{&cmdpeople, "F2"}, {&cmddesk, "F4"}, {&cmdlater, "F5"}}},
               {"", {{&cmdquit}}}};
  page.Top = {&txtdate, &lblimage};
  page.TopActions = {&cmdnext};
  page.Main = &cmdnext;
  page.Cancel = &cmdquit;
  return page;
}

}  // namespace grapplemont::test
