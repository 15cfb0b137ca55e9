#include "support/samplescreen.h"

#include <stdexcept>

namespace grapplemont::test {

SampleScreen::SampleScreen(ui::Desk& desk, std::vector<std::string>& log)
    : Screen(desk, "frmSample", "Sample"), log_(log) {
  txtname.OnChange = Writes("txtname typed");
  txtnotes.MultiLine = true;
  cmdoff.Enabled = false;
  cmdoff.Tip = "Not yet.";
  cmdhidden.Visible = false;
  lstpeople.Add({"Bram Okafor", 88}, 11);
  lstpeople.Add({"3", 40}, 12);
  lstpeople.Add({"Ilya Marsh", ui::Cell(1284500, "$1,284,500")}, 13);
  lstmany.Multi = true;
  for (const char* row : {"Red", "Green", "Blue"}) lstmany.Add({row});
  lstnone.EmptyText = "Nothing yet.";
  cmbkind.Add("Singles", 7);
  cmbkind.Add("Tag Team", 8);
  cmbkind.Select(1);
  hsprice.Value = 20;
  chtmoney.Captions = std::vector<std::string>{"Jan", "Feb"};
  chtmoney.Lines =
      std::vector<ui::Chart::Series>{{"Money", {1200, -50.25}}, {"Image", {61}, ui::Tone::Gold}};
  rptshow.Write("The bell rings.\nIt is over.");
}

SampleScreen& SampleScreen::On(ui::Desk& desk, std::vector<std::string>& log) {
  desk.Open(std::make_unique<SampleScreen>(desk, log));
  return static_cast<SampleScreen&>(*desk.Top());
}

ui::Page SampleScreen::Layout() {
  ui::Page page;
  page.Facts = &lblfacts;
  page.Actions = {&cmdsay, &cmdask, &cmdprompt, &cmdthrow, &cmddoit};
  page.Main = &cmddoit;
  page.Cancel = &cmdclose;
  page.Body = ui::Columns({ui::Group("Who", {ui::Field("Name", txtname), ui::Grow(lstpeople)}),
                           ui::Tabs({ui::Group("How", {cmbkind, chkday, optface, optheel}),
                                     ui::Group("What", {hsprice, chtmoney, rptshow})}),
                           cmdhidden});
  return page;
}

void SampleScreen::cmdsay_Click() {
  desk().Say("Told", "First.");
  desk().Say("Told", "Second.");
  log_.push_back("said");
}

void SampleScreen::cmdask_Click() {
  log_.push_back(desk().Ask("Sure?", "Really?", ui::Default::No) ? "yes" : "no");
}

void SampleScreen::cmdprompt_Click() {
  log_.push_back("\"" + desk().Prompt("Name?", "A new name:", "Pat") + "\"");
}

void SampleScreen::cmdthrow_Click() {
  txtname.Text = "changed";
  desk().Open(std::make_unique<SampleScreen>(desk(), log_));
  Close();
  throw std::runtime_error("The disk is full.");
}

void SampleScreen::cmdclose_Click() {
  Close();
}

}  // namespace grapplemont::test
