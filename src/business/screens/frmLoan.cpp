#include <algorithm>

#include "business/loans.h"
#include "business/officewords.h"
#include "business/screens/officescreens.h"
#include "records/modVar.h"
#include "records/world.h"

namespace grapplemont {

namespace {

std::string TermText(int months) {
  if (months <= 0 || months % 12 != 0) return std::to_string(months) + " Months";
  return months == 12 ? "1 Year" : std::to_string(months / 12) + " Years";
}

/// The bank: one loan at a time, its price each month, and the way to be rid of it.
class frmLoan : public ui::Screen {
 public:
  explicit frmLoan(Game& game) : Screen(game.Desk(), "frmLoan", "Loan"), game_(game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblmoney;
    page.Actions = {&cmdback, &cmddoit};
    page.Main = &cmddoit;
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {txtstatus, ui::Field("In steps of $100000", hsamount),
                               ui::Field("Amount", lblamount), ui::Field("Each month", txtcost),
                               ui::Columns({lblfor, lblterm, ui::Spacer()}), lblstate});
    return page;
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

  void cmdback_Click() { Close(); }

  Game& game_;
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label txtstatus{*this, "txtstatus"};
  ui::ScrollBar hsamount{*this, "hsamount", 1, kMostLoanSteps, &frmLoan::ShowTerms};
  ui::Label lblamount{*this, "lblamount"};
  ui::Label lblfor{*this, "lblfor"};
  ui::Label lblterm{*this, "lblterm"};
  ui::Label txtcost{*this, "txtcost"};
  ui::Label lblstate{*this, "lblstate"};
  ui::Button cmdback{*this, "cmdback", "Back", &frmLoan::cmdback_Click};
  ui::Button cmddoit{*this, "cmddoit", "Apply For Loan", &frmLoan::cmddoit_Click};
};

}  // namespace

SCREEN(frmLoan)

}  // namespace grapplemont
