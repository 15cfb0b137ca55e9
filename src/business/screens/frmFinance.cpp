#include <span>

#include "business/books.h"
#include "business/moneyhistory.h"
#include "business/officewords.h"
#include "business/screens/officescreens.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

ui::Cell Amount(long long dollars, ui::Tone tone = ui::Tone::Plain) {
  return {static_cast<double>(dollars), Dollars(dollars), tone};
}

ui::Tone ToneOf(long long balance) {
  return balance < 0 ? ui::Tone::Red : ui::Tone::Green;
}

/// The books of last month and of this one, and the money over time.
class frmFinance : public ui::Screen {
 public:
  explicit frmFinance(Game& game) : Screen(game.Desk(), "frmFinance", "Finance"), game_(game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblmoney;
    page.Actions = {&cmdback, &cmdnotepad, &cmdcharity, &cmdloan, &cmdwages, &cmdtickets};
    page.Main = &cmdtickets;
    page.Cancel = &cmdback;
    page.Body = ui::Columns({ui::Group("The books", {ui::Grow(lstbooks), lblbeside}).Grow(3),
                             ui::Group("Money at month ends", {ui::Grow(chtmoney)}).Grow(2)});
    return page;
  }

  void Load() override { Show(); }
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

  void cmdback_Click() {
    Close();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  using K = ui::ColumnKind;
  Game& game_;
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
  ui::Button cmdback{*this, "cmdback", "Back", &frmFinance::cmdback_Click};
  ui::Button cmdnotepad{*this, "cmdnotepad", "Notepad", [this] { desk().Open("frmNotepad"); }};
  ui::Button cmdcharity{*this, "cmdcharity", "Charity", [this] { desk().Open("frmCharity"); }};
  ui::Button cmdloan{*this, "cmdloan", "Loan", [this] { desk().Open("frmLoan"); }};
  ui::Button cmdwages{*this, "cmdwages", "Wages", [this] { desk().Open("frmWages"); }};
  ui::Button cmdtickets{*this, "cmdtickets", "Tickets", [this] { desk().Open("frmTicket"); }};
};

}  // namespace

SCREEN(frmFinance)

}  // namespace grapplemont
