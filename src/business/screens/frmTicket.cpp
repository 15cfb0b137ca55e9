#include <algorithm>

#include "business/monthlymoney.h"
#include "business/screens/officescreens.h"
#include "business/ticketprice.h"
#include "records/modVar.h"
#include "records/world.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kDearestTicket = 100;  // dollars

/// What a ticket costs, and what people would say of another price.
class frmTicket : public ui::Screen {
 public:
  explicit frmTicket(Game& game) : Screen(game.Desk(), "frmTicket", "Ticket Prices"), game_(game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblprice;
    page.Actions = {&cmdback, &cmddoit};
    page.Main = &cmddoit;
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Field("New price in dollars", hsticket),
                               ui::Field("What people say", lblopinion), lblfair});
    return page;
  }

  void Load() override {
    hsticket.Max = std::max<int>(kDearestTicket, player().TicketPrice);
    hsticket.Value = player().TicketPrice;
    Show();
  }
  void Return() override { Show(); }

 private:
  Promotion& player() { return game_.World().Player(); }

  void Show() {
    lblprice.Text = "Current Ticket Prices : $" + std::to_string(player().TicketPrice);
    lblfair.Text = "People expect to pay " + Dollars(FairTicketPrice(player().Size)) +
                   " at a promotion that is " + std::string(SizeText(player().Size)) + ".";
    ShowChoice();
  }

  void ShowChoice() {
    lblopinion.Text = std::string(TicketOpinion(player().Size, hsticket.Value));
    EnableUnless(cmddoit, hsticket.Value == player().TicketPrice ? "That is the price now." : "");
  }

  void cmddoit_Click() {
    if (!desk().Ask("Change price?", "Are you sure?")) return;
    player().TicketPrice = hsticket.Value;
    Show();
  }

  void cmdback_Click() { Close(); }

  Game& game_;
  ui::Label lblprice{*this, "lblprice"};
  ui::ScrollBar hsticket{*this, "hsticket", 0, kDearestTicket, &frmTicket::ShowChoice};
  ui::Label lblopinion{*this, "lblopinion"};
  ui::Label lblfair{*this, "lblfair"};
  ui::Button cmdback{*this, "cmdback", "Back", &frmTicket::cmdback_Click};
  ui::Button cmddoit{*this, "cmddoit", "Change Price", &frmTicket::cmddoit_Click};
};

}  // namespace

SCREEN(frmTicket)

}  // namespace grapplemont
