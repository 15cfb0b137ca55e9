#include "business/screens/officescreens.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/wagebill.h"

namespace grapplemont {

namespace {

ui::Cell Amount(long long dollars) {
  return {static_cast<double>(dollars), Dollars(dollars),
          dollars == 0 ? ui::Tone::Muted : ui::Tone::Plain};
}

ui::Cell MonthsCell(int months) {
  if (months != kNoEnd) return ui::Cell(months);
  return {10000.0, "No end", ui::Tone::Muted};  // sorts behind every term
}

/// Everybody who draws a wage, and what they draw in all.
class frmWages : public ui::Screen {
 public:
  explicit frmWages(Game& game) : Screen(game.Desk(), "frmWages", "Wages"), game_(game) {
    lstwages.EmptyText = "Nobody works for you yet. Hire people on the market.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lbltotal;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Columns({ui::Field("Workers", lblworkers),
                                            ui::Field("Staff", lblstaff), ui::Spacer()}),
                               ui::Grow(lstwages)});
    return page;
  }

  void Load() override { Return(); }

  void Return() override {
    std::vector<ui::ListBox::Row> rows;
    for (const Worker& worker : world().Workers())
      if (worker.Employer == world().PlayerUid()) rows.push_back(RowOf(worker));
    for (const Staff& staff : world().AllStaff())
      if (staff.Employer == world().PlayerUid() && staff.Position != kOwner)
        rows.push_back(RowOf(staff));
    lstwages.Fill(std::move(rows));
    ShowTotals();
  }

 private:
  const World& world() { return game_.World(); }

  static ui::ListBox::Row RowOf(const Worker& worker) {
    return {
        {worker.Name.View(), "Worker", PositionText(worker.Position), Amount(worker.Wage * 1000LL),
         Amount(MonthlyWage(worker)), MonthsCell(worker.ContractMonths)},
        worker.Uid};
  }

  /// Staff have keys below 0: their uids are not those of workers.
  static ui::ListBox::Row RowOf(const Staff& staff) {
    return {
        {staff.Name.View(), "Staff", Says(kStaffPositions, staff.Position),
         Amount(staff.Wage * 1000LL), Amount(MonthlyWage(staff)), MonthsCell(staff.ContractMonths)},
        -staff.Uid};
  }

  void ShowTotals() {
    const WageBill bill = WagesOf(world(), world().PlayerUid());
    lblworkers.Text = Dollars(bill.Workers) + " p.m";
    lblstaff.Text = Dollars(bill.Staff) + " p.m";
    lbltotal.Text = "Wages due on the first of the month: " + Dollars(bill.Workers + bill.Staff);
  }

  void lstwages_DblClick() {
    if (lstwages.Key() > 0 && game_.OpenWorker) game_.OpenWorker(lstwages.Key());
  }

  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lbltotal{*this, "lbltotal"};
  ui::Label lblworkers{*this, "lblworkers"};
  ui::Label lblstaff{*this, "lblstaff"};
  ui::ListBox lstwages{
      *this,
      "lstwages",
      {{"Name", K::Text, 4},
       {"Kind", K::Text, 1},
       {"Position", K::Text, 2},
       {"Wage", K::Number, 2, "As agreed, each month."},
       {"Due", K::Number, 2,
        "What is paid on the first. Nothing goes to people who were sent home or whose contract "
        "has no end."},
       {"Months", K::Number, 1, "Months left of the contract."}},
      ui::Handler{},
      [this] { lstwages_DblClick(); }};
  ui::Button cmdback{*this, "cmdback", "Back", &frmWages::cmdback_Click};
};

}  // namespace

SCREEN(frmWages)

}  // namespace grapplemont
