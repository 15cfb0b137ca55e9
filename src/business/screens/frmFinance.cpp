#include <algorithm>
#include <span>

#include "business/finance.h"
#include "business/past.h"
#include "business/screens/frmSpending.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/world.h"
#include "roster/talks.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

ui::Cell Amount(long long dollars, ui::Tone tone = ui::Tone::Plain) {
  return {static_cast<double>(dollars), Dollars(dollars), tone};
}

ui::Tone ToneOf(long long balance) {
  return balance < 0 ? ui::Tone::Red : ui::Tone::Green;
}

/// The books of last month and of this one, and the money over time.
class frmFinance : public GameScreen {
 public:
  explicit frmFinance(Game& game) : GameScreen(game, "frmFinance", "Finance", {.Manages = true}) {
    BackBefore(cmdnotepad);
  }

  ui::Page Layout() override {
    return {.Facts = &lblmoney,
            .Actions = {&cmdback, &cmdnotepad, &cmdcharity, &cmdloan, &cmdwages, &cmdtickets},
            .Main = &cmdtickets,
            .Cancel = &cmdback,
            .Body = ui::Columns({ui::Group("The books", {ui::Grow(lstbooks), lblbeside}).Grow(3),
                                 ui::Group("Money at month ends", {ui::Grow(chtmoney)}).Grow(2)})};
  }

  void Return() override { Show(); }

 private:
  const Promotion& player() { return game_.World().Player(); }

  void Show() {
    lblmoney.Text = FinanceText(player());
    lblmoney.Colour = player().Money < 0 ? ui::Tone::Red : ui::Tone::Plain;
    ShowBooks(player().LastMonth, player().ThisMonth);
    ShowMoney();
  }

  void ShowBooks(const MonthBooks& last, const MonthBooks& present) {
    lstbooks.Clear();
    AddBooks(kIncome, last, present);
    AddTotal("Total in", TotalIn(last), TotalIn(present));
    AddBooks(kOutgoings, last, present);
    AddTotal("Total out", TotalOut(last), TotalOut(present));
    lstbooks.Add({ui::Cell("Balance", ui::Tone::Gold), Amount(Balance(last), ToneOf(Balance(last))),
                  Amount(Balance(present), ToneOf(Balance(present)))});
  }

  void AddBooks(std::span<const Book> books, const MonthBooks& last, const MonthBooks& present) {
    for (const Book& book : books)
      lstbooks.Add({book.Title, Amount(last.*book.Total), Amount(present.*book.Total)});
  }

  void AddTotal(const char* title, long long last, long long present) {
    constexpr auto kTone = ui::Tone::Gold;
    lstbooks.Add({ui::Cell(title, kTone), Amount(last, kTone), Amount(present, kTone)});
  }

  void ShowMoney() {
    std::vector<std::string> months;
    ui::Chart::Series money{"", {}, ui::Tone::Green};
    for (const MoneyPoint& point : MoneyOverTime(game_.World(), player())) {
      months.push_back(point.Month);
      money.Values.push_back(point.Dollars);
    }
    chtmoney.Captions = std::move(months);
    chtmoney.Lines = std::vector<ui::Chart::Series>{std::move(money)};
  }

  using K = ui::ColumnKind;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::ListBox lstbooks{
      *this,
      "lstbooks",
      {{"", K::Text, 3}, {"Last month", K::Number, 2}, {"This month", K::Number, 2}}};
  ui::Label lblbeside{*this, "lblbeside",
                      "Loans, donations, better production, camps and territories, legal payments, "
                      "an Event's extras and the price of calling one off are paid beside the "
                      "books."};
  ui::Chart chtmoney{*this, "chtmoney"};
  ui::Button cmdnotepad{*this, "cmdnotepad", "Notepad", [this] { desk().Open("frmNotepad"); }};
  ui::Button cmdcharity{*this, "cmdcharity", "Charity", [this] { desk().Open("frmCharity"); }};
  ui::Button cmdloan{*this, "cmdloan", "Loan", [this] { desk().Open("frmLoan"); }};
  ui::Button cmdwages{*this, "cmdwages", "Wages", [this] { desk().Open("frmWages"); }};
  ui::Button cmdtickets{*this, "cmdtickets", "Tickets", [this] { desk().Open("frmTicket"); }};
};

ui::Cell WageCell(long long dollars) {
  return Amount(dollars, dollars == 0 ? ui::Tone::Muted : ui::Tone::Plain);
}

ui::Cell MonthsCell(int months) {
  if (months != kNoEnd) return ui::Cell(months);
  return {10000.0, "No end", ui::Tone::Muted};  // sorts behind every term
}

/// Everybody who draws a wage, and what they draw in all.
class frmWages : public GameScreen {
 public:
  explicit frmWages(Game& game) : GameScreen(game, "frmWages", "Wages") {
    lstwages.EmptyText = "Nobody works for you yet. Hire people on the market.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Columns({ui::Field("Workers", lblworkers),
                                              ui::Field("Staff", lblstaff), ui::Spacer()}),
                                 ui::Grow(lstwages)}),
                  &lbltotal);
  }

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
  static ui::ListBox::Row RowOf(const Worker& worker) {
    return {{worker.Name.View(), "Worker", PositionText(worker.Position),
             WageCell(worker.Wage * 1000LL), WageCell(MonthlyWage(worker)),
             MonthsCell(worker.ContractMonths)},
            worker.Uid};
  }

  /// Staff have keys below 0: their uids are not those of workers.
  static ui::ListBox::Row RowOf(const Staff& staff) {
    return {{staff.Name.View(), "Staff", Says(kStaffPositions, staff.Position),
             WageCell(staff.Wage * 1000LL), WageCell(MonthlyWage(staff)),
             MonthsCell(staff.ContractMonths)},
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

  using K = ui::ColumnKind;
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
};

std::string TermText(int months) {
  if (months <= 0 || months % 12 != 0) return std::to_string(months) + " Months";
  return months == 12 ? "1 Year" : std::to_string(months / 12) + " Years";
}

/// The bank: one loan at a time, its price each month, and the way to be rid of it.
class frmLoan : public GameScreen {
 public:
  explicit frmLoan(Game& game) : GameScreen(game, "frmLoan", "Loan") { BackBefore(cmddoit); }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {txtstatus, ui::Field("In steps of $100000", hsamount),
                                 ui::Field("Amount", lblamount), ui::Field("Each month", txtcost),
                                 ui::Columns({lblfor, lblterm, ui::Spacer()}), lblstate}),
                  &lblmoney, {}, &cmddoit);
  }

  void Load() override {
    if (!HasLoan()) hsamount.Value = 1;
    Show();
  }
  void Return() override { Show(); }

 private:
  Promotion& player() { return game_.World().Player(); }
  int difficulty() { return game_.World().Game().Difficulty; }
  bool HasLoan() { return player().LoanAmount > 0; }

  void Show() {
    const bool loan = HasLoan();
    lblmoney.Text = FinanceText(player());
    txtstatus.Text = loan ? "Currently Repaying A Loan" : "No Outstanding Loans";
    if (loan) hsamount.Value = std::clamp(player().LoanAmount / kLoanStep, 1, kMostLoanSteps);
    hsamount.Enabled = !loan;
    hsamount.Tip = loan ? "One loan at a time." : "";
    lblfor.Text = loan ? "Paying Back Over" : "Pay Back Over";
    cmddoit.Text = loan ? "Repay Entire Loan" : "Apply For Loan";
    ShowTerms();
  }

  void ShowTerms() {
    const Promotion& p = player();
    const bool loan = HasLoan();
    const int dollars = loan ? int(p.LoanAmount) : hsamount.Value * kLoanStep;
    const int months = loan ? int(p.LoanMonths) : LoanTerm(hsamount.Value);
    lblamount.Text = "$" + std::to_string(dollars);
    lblterm.Text = TermText(months);
    txtcost.Text = DollarsAndCents(LoanQuote(dollars, months, difficulty()));
    lblstate.Text = loan ? LoanState() : "The bank takes whole dollars on the first of each month.";
  }

  std::string LoanState() {
    const Promotion& p = player();
    std::string text = "Repaid so far " + Dollars(p.LoanRepaid) + ". To repay the rest now costs " +
                       Dollars(PayOffCost(p, difficulty())) + ".";
    if (p.LoanMissed > 0)
      text += " Payments missed: " + std::to_string(p.LoanMissed) + "; the third is one too many.";
    return text;
  }

  void cmddoit_Click() { HasLoan() ? Repay() : Apply(); }

  void Apply() {
    if (!desk().Ask("Apply for loan?", "Are you sure?")) return;
    if (!BankAccepts(player(), hsamount.Value))
      return desk().Say("Rejected!", "The bank have rejected your loan application!");
    TakeLoan(player(), hsamount.Value);
    desk().Say("Accepted!", "The bank have accepted your loan application!");
    Show();
  }

  void Repay() {
    if (!desk().Ask("Repay loan?", "Are you sure?")) return;
    if (!PayOffLoan(player(), difficulty()))
      return desk().Say("Error!", "You cannot afford to repay it!");
    desk().Say("Done!", "The loan has been repayed");
    Show();
  }

  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label txtstatus{*this, "txtstatus"};
  ui::ScrollBar hsamount{*this, "hsamount", 1, kMostLoanSteps, &frmLoan::ShowTerms};
  ui::Label lblamount{*this, "lblamount"};
  ui::Label lblfor{*this, "lblfor"};
  ui::Label lblterm{*this, "lblterm"};
  ui::Label txtcost{*this, "txtcost"};
  ui::Label lblstate{*this, "lblstate"};
  ui::Button cmddoit{*this, "cmddoit", "Apply For Loan", &frmLoan::cmddoit_Click};
};

}  // namespace

SCREEN(frmFinance)
SCREEN(frmWages)
SCREEN(frmLoan)

}  // namespace grapplemont
