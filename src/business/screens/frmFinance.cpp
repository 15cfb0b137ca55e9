#include <algorithm>
#include <optional>
#include <utility>

#include "business/beside.h"
#include "business/finance.h"
#include "business/past.h"
#include "business/screens/frmSpending.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/talks.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;
using ui::Tone;

/// A book, or a sum of books, whose amounts have a colour.
struct BookRow {
  std::string Title;
  long long Last, Present;
  Tone Colour = Tone::Plain;  // of the title
  Tone (*ToneOf)(long long) = [](long long) { return Tone::Plain; };
};
Tone SumTone(long long) {
  return Tone::Gold;
}
Tone BalanceTone(long long balance) {
  return balance < 0 ? Tone::Red : Tone::Green;
}

const CellColumns<BookRow> kBookTable = {
    {{"Book", K::Text, 3}, [](const BookRow& row) { return ui::Cell(row.Title, row.Colour); }},
    {{"Last month", K::Number, 2},
     [](const BookRow& row) { return MoneyCell(row.Last, row.ToneOf(row.Last)); }},
    {{"This month", K::Number, 2},
     [](const BookRow& row) { return MoneyCell(row.Present, row.ToneOf(row.Present)); }}};

const CellColumns<MonthOfMoney> kMonthTable = {
    {{"Month", K::Text, 2}, [](const MonthOfMoney& month) { return month.Month; }},
    {{"At its end", K::Number, 2},
     [](const MonthOfMoney& month) { return MoneyCell(month.AtEnd); }},
    {{"In", K::Number, 2}, [](const MonthOfMoney& month) { return MoneyCell(month.In); }},
    {{"Out", K::Number, 2}, [](const MonthOfMoney& month) { return MoneyCell(month.Out); }},
    {{"Other", K::Number, 2,
      "What moved the money outside the books: loans, donations, building, ventures, and the "
      "like."},
     [](const MonthOfMoney& month) {
       if (!month.Beside) return ui::Cell("");
       return MoneyCell(*month.Beside,
                        *month.Beside == 0 ? Tone::Muted : BalanceTone(*month.Beside));
     }}};

/// The books of last month and of this one, and the money over time.
class frmFinance : public GameScreen {
 public:
  explicit frmFinance(Game& game) : GameScreen(game, "frmFinance", "Finance", {.Manages = true}) {
    lstmonths.EmptyText = "Each month stands here once it has ended.";
    chtmoney.Unit = "$";
    lstbooks.Room = 11;  // of a fixed number that are read, not searched
    BackBefore(cmdnotepad);
  }

  ui::Page Layout() override {
    return {
        .Facts = &lblmoney,
        .Actions = {&cmdback, &cmdnotepad, &cmdcharity, &cmdloan, &cmdwages, &cmdtickets},
        .Main = &cmdtickets,
        .Cancel = &cmdback,
        .Body = ui::Columns({ui::Group("The books", {ui::Grow(lstbooks), lblbeside}).Grow(5),
                             ui::Rows({ui::Group("Money at month ends and after this month's shows",
                                                 {ui::Grow(chtmoney)})
                                           .Grow(3),
                                       ui::Group("Month by month", {ui::Grow(lstmonths)}).Grow(2)})
                                 .Grow(6)})};
  }

  void Return() override {
    const Promotion& player = world().Player();
    lblmoney.Text = FinanceText(player);
    lblmoney.Colour = player.Money < 0 ? Tone::Red : Tone::Plain;
    lstbooks.Clear();
    std::vector<BookRow> rows = BooksOf(player.LastMonth, player.ThisMonth);
    AddBeside(rows);
    FillPlaces(lstbooks, kBookTable, rows);
    ShowMoney(player);
  }

 private:
  static std::vector<BookRow> BooksOf(const MonthBooks& last, const MonthBooks& present) {
    std::vector<BookRow> rows;
    const auto add = [&](const auto& books) {
      for (const Book& book : books)
        rows.push_back({book.Title, last.*book.Total, present.*book.Total});
    };
    const auto sum = [&](const char* title, long long (*of)(const MonthBooks&), auto toneOf) {
      rows.push_back({title, of(last), of(present), Tone::Gold, toneOf});
    };
    add(kIncome);
    sum("Total in", TotalIn, SumTone);
    add(kOutgoings);
    sum("Total out", TotalOut, SumTone);
    sum("Balance", Balance, BalanceTone);
    return rows;
  }

  /// What no book holds, and what all of it has done to the money.
  void AddBeside(std::vector<BookRow>& rows) {
    const BookRow balance = rows.back();
    const BesideLine total = BesideTotal(world());
    for (const BesideLine& line : BesideLines(world()))
      rows.push_back({line.Why, line.Last, line.Present});
    lblbeside.Visible = rows.back().Title != balance.Title;
    if (!lblbeside.Visible) return;
    rows.push_back({total.Why, total.Last, total.Present, Tone::Gold, SumTone});
    rows.push_back({"The money moved by", balance.Last + total.Last,
                    balance.Present + total.Present, Tone::Gold, BalanceTone});
  }

  void ShowMoney(const Promotion& player) {
    std::vector<std::string> months;
    std::vector<double> places;
    ui::Chart::Series money{"", {}, Tone::Green};
    for (const MoneyPoint& point : MoneyOverTime(world(), player)) {
      months.push_back(point.When);
      places.push_back(PlaceOf(point.On));
      money.Values.push_back(point.Dollars);
    }
    chtmoney.Captions = std::move(months);
    chtmoney.Places = std::move(places);
    chtmoney.Lines = std::vector<ui::Chart::Series>{std::move(money)};
    lstmonths.Clear();
    FillPlaces(lstmonths, kMonthTable, MoneyByMonth(world(), player));
  }

  ui::Label lblmoney{*this, "lblmoney"};
  ui::ListBox lstbooks{*this, "lstbooks", HeadingsOf(kBookTable)};
  ui::Label lblbeside{
      *this, "lblbeside",
      "What is outside the books, such as loans, donations and building, stands below the "
      "balance."};
  ui::Chart chtmoney{*this, "chtmoney"};
  ui::ListBox lstmonths{*this, "lstmonths", HeadingsOf(kMonthTable)};
  ui::Button cmdnotepad{*this, "cmdnotepad", "Notepad", [this] { desk().Open("frmNotepad"); }};
  ui::Button cmdcharity{*this, "cmdcharity", "Charity", [this] { desk().Open("frmCharity"); }};
  ui::Button cmdloan{*this, "cmdloan", "Loan", [this] { desk().Open("frmLoan"); }};
  ui::Button cmdwages{*this, "cmdwages", "Wages", [this] { desk().Open("frmWages"); }};
  ui::Button cmdtickets{*this, "cmdtickets", "Tickets", [this] { desk().Open("frmTicket"); }};
};

ui::Cell WageCell(long long dollars) {
  return MoneyCell(dollars, dollars == 0 ? Tone::Muted : Tone::Plain);
}

ui::Cell MonthsCell(int months) {
  if (months != kNoEnd) return ui::Cell(months);
  return {10000.0, "No end", Tone::Muted};  // sorts behind every term
}

/// Somebody who draws a wage. Staff have keys below 0: their uids are not those of workers.
struct WageRow {
  int Uid;
  std::string Name;
  const char* Kind;
  std::string_view Position;
  int Wage;  // thousands of dollars
  long long Due;
  int Months;
};
template <class Person>
WageRow WageOf(const Person& person, int key, const char* kind, std::string_view position) {
  return {key,
          person.Name.Str(),
          kind,
          position,
          person.Wage,
          MonthlyWage(person),
          person.ContractMonths};
}

const CellColumns<WageRow> kWageTable = {
    {{"Name", K::Text, 4}, [](const WageRow& row) { return row.Name; }},
    {{"Kind", K::Text, 1}, [](const WageRow& row) { return row.Kind; }},
    {{"Position", K::Text, 2}, [](const WageRow& row) { return row.Position; }},
    {{"Wage", K::Number, 2, "As agreed, each month."},
     [](const WageRow& row) { return WageCell(row.Wage * 1000LL); }},
    {{"Due", K::Number, 2,
      "What is paid on the first. Nothing goes to people who were sent home or whose contract has "
      "no end."},
     [](const WageRow& row) { return WageCell(row.Due); }},
    {{"Months", K::Number, 1, "Months left of the contract."},
     [](const WageRow& row) { return MonthsCell(row.Months); }}};

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
    std::vector<WageRow> rows;
    for (const Worker& worker : world().Workers())
      if (worker.Employer == world().PlayerUid())
        rows.push_back(WageOf(worker, worker.Uid, "Worker", PositionText(worker.Position)));
    for (const Staff& staff : world().AllStaff())
      if (staff.Employer == world().PlayerUid() && staff.Position != kOwner)
        rows.push_back(WageOf(staff, -staff.Uid, "Staff", Says(kStaffPositions, staff.Position)));
    std::ranges::stable_sort(rows, std::ranges::greater(), &WageRow::Wage);
    FillTable(lstwages, kWageTable, rows);
    const WageBill bill = WagesOf(world(), world().PlayerUid());
    lblworkers.Text = Dollars(bill.Workers) + " a month";
    lblstaff.Text = Dollars(bill.Staff) + " a month";
    lbltotal.Text = "Wages due on the first of the month: " + Dollars(bill.Workers + bill.Staff);
  }

 private:
  void lstwages_DblClick() {
    if (lstwages.Key() > 0 && game_.OpenWorker) game_.OpenWorker(lstwages.Key());
  }

  ui::Label lbltotal{*this, "lbltotal"};
  ui::Label lblworkers{*this, "lblworkers"};
  ui::Label lblstaff{*this, "lblstaff"};
  ui::ListBox lstwages{*this, "lstwages", HeadingsOf(kWageTable), ui::Handler{},
                       [this] { lstwages_DblClick(); }};
};

std::string TermText(int months) {
  if (months == 1) return "1 Month";
  if (months <= 0 || months % 12 != 0) return std::to_string(months) + " Months";
  return months == 12 ? "1 Year" : std::to_string(months / 12) + " Years";
}

constexpr const char* kRejected = "The bank have rejected your loan application!";

/// The bank: one loan at a time, its price each month, and the way to be rid of it.
class frmLoan : public GameScreen {
 public:
  explicit frmLoan(Game& game) : GameScreen(game, "frmLoan", "Loan", {.Is = ui::Role::Dialog}) {
    txtwhy.Brief = true;
    lblfor.Colour = Tone::Muted;  // it stands before its term as other fields' names do
    BackBefore(cmddoit);
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {txtstatus, ui::Field("In steps of $100,000", hsamount),
                                 ui::Field("Amount", lblamount), ui::Field("Each month", txtcost),
                                 ui::Columns({lblfor, lblterm, ui::Spacer()}), lblstate,
                                 ui::Columns({cmdwhy, cmdwhynot, ui::Spacer()}), txtwhy}),
                  &lblmoney, {}, &cmddoit);
  }

  void Load() override {
    if (!HasLoan()) hsamount.Value = 1;
    refused_.reset();
    Return();
  }
  void Return() override {
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

 private:
  Promotion& player() { return world().Player(); }
  int difficulty() { return world().Game().Difficulty; }
  bool HasLoan() { return player().LoanAmount > 0; }

  void ShowTerms() {
    const Promotion& p = player();
    const bool loan = HasLoan();
    const int dollars = loan ? int(p.LoanAmount) : hsamount.Value * kLoanStep;
    const int months = loan ? int(p.LoanMonths) : LoanTerm(hsamount.Value);
    lblamount.Text = "$" + std::to_string(dollars);
    lblterm.Text = TermText(months);
    quote_ = LoanQuote(dollars, months, difficulty());
    txtcost.Text = DollarsAndCents(quote_.Whole());
    txtwhy.Write("");
    EnableUnless(cmdwhynot, refused_ ? "" : "The bank has turned nothing down.");
    lblstate.Text = loan ? LoanState() : "The bank takes whole dollars on the first of each month.";
  }

  std::string LoanState() {
    const Promotion& p = player();
    std::string text = "Repaid so far " + Dollars(p.LoanRepaid) + ". To repay the rest now costs " +
                       Dollars(PayOffCost(p, difficulty()).Whole()) + ".";
    if (p.LoanMissed > 0)
      text += " Payments missed: " + std::to_string(p.LoanMissed) + "; the third is one too many.";
    return text;
  }

  void cmdwhy_Click() {
    std::string why = WhyText("each month", quote_, DollarsAndCents);
    if (HasLoan())
      why += "\n" + WhyText("to repay the rest now", PayOffCost(player(), difficulty()), Dollars);
    txtwhy.WriteLines(why);
  }

  void cmddoit_Click() { HasLoan() ? Repay() : Apply(); }

  void Apply() {
    if (!desk().Ask("Apply for loan?", "Are you sure?")) return;
    Decision decision;
    if (!BankAccepts(player(), hsamount.Value, &decision)) {
      refused_ = std::move(decision);
      ShowTerms();
      return desk().Say("Rejected!", kRejected);
    }
    refused_.reset();
    TakeLoan(world(), hsamount.Value);
    desk().Say("Accepted!", "The bank have accepted your loan application!");
    Return();
  }

  void Repay() {
    if (!desk().Ask("Repay loan?", "Are you sure?")) return;
    if (!PayOffLoan(world())) return desk().Say("Error!", "You cannot afford to repay it!");
    desk().Say("Done!", "The loan has been repayed");
    Return();
  }

  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label txtstatus{*this, "txtstatus"};
  ui::ScrollBar hsamount{*this, "hsamount", 1, kMostLoanSteps, &frmLoan::ShowTerms};
  ui::Label lblamount{*this, "lblamount"};
  ui::Label lblfor{*this, "lblfor"};
  ui::Label lblterm{*this, "lblterm"};
  ui::Label txtcost{*this, "txtcost"};
  ui::Button cmdwhy{*this, "cmdwhy", "Why?", &frmLoan::cmdwhy_Click};
  ui::Button cmdwhynot{*this, "cmdwhynot", "Why Not?",
                       [this] { txtwhy.WriteLines(WhyText(kRejected, *refused_)); }};
  ui::Report txtwhy{*this, "txtwhy"};
  Score quote_;                      // of a month
  std::optional<Decision> refused_;  // the bank's last no
  ui::Label lblstate{*this, "lblstate"};
  ui::Button cmddoit{*this, "cmddoit", "Apply For Loan", &frmLoan::cmddoit_Click};
};

}  // namespace

SCREEN(frmFinance)
SCREEN(frmWages)
SCREEN(frmLoan)

}  // namespace grapplemont
