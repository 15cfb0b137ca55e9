#include "business/networks.h"
#include "business/screens/screentv.h"
#include "business/screens/tvscreens.h"
#include "records/fields/wording.h"

namespace grapplemont {

namespace {

/// Talks with the network about a show.
class frmTVContract : public ShowScreen {
 public:
  frmTVContract(Game& game, std::string show)
      : ShowScreen(game, "frmTVContract", "Network Talks", std::move(show)) {
    txtwants.Brief = true;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Rows({ui::Group("", {txtwants}),
                          ui::Group("", {ui::Columns({cmdask, cmdcontract, cmdtime, cmdend})})});
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    if (const Show* show = FindShow()) ShowDeal(*show);
  }

 private:
  /// The show with its network, as long as both are there.
  struct Deal {
    Show* Airs = nullptr;
    const Network* With = nullptr;
  };
  Deal DealOrLeave() {
    Show* show = ShowOrLeave();
    if (!show) return {};
    const Network* network = world().FindNetwork(show->Network);
    if (!network) {
      desk().Say("Error!", "The network of " + show->Name.Str() + " is no longer there.");
      Close();
    }
    return {show, network};
  }

  void ShowDeal(const Show& show) {
    const Network* network = world().FindNetwork(show.Network);
    lblfacts.Text = show.Name + ", " + show.Day.Str() + ", " + std::string(SlotName(show.Slot)) +
                    ", on " + NetworkName(world(), show.Network) + ". " +
                    Counted(show.ContractWeeks, "week") + " to run.";
    txtwants.WriteLines(network ? WantsText(world(), show, *network) : "");
  }

  void cmdask_Click() {
    if (const Deal deal = DealOrLeave(); deal.With)
      SayAll(desk(), AskNetwork(world().Player(), *deal.Airs, *deal.With));
  }

  void cmdcontract_Click() {
    const Deal deal = DealOrLeave();
    if (!deal.With) return;
    const ExtensionTalk talk = TalkOfExtension(world().Player(), *deal.Airs, *deal.With);
    if (talk.Weeks == 0) return desk().Say("Rejection!", talk.Text);
    if (!desk().Ask("Offer!", talk.Text + "\nAccept?")) return;
    deal.Airs->ContractWeeks += talk.Weeks;
    ShowDeal(*deal.Airs);
  }

  void cmdtime_Click() {
    const Deal deal = DealOrLeave();
    if (!deal.With) return;
    const MoveTalk talk = TalkOfMove(world(), world().Player(), *deal.Airs, *deal.With);
    if (talk.Slot.empty()) return desk().Say("Rejection!", talk.Text);
    if (!desk().Ask("Offer!", talk.Text + "\nContinue?")) return;
    deal.Airs->Slot = talk.Slot;
    ShowDeal(*deal.Airs);
  }

  void cmdend_Click() {
    const Deal deal = DealOrLeave();
    if (!deal.With) return;
    const EndingTalk talk = TalkOfEnding(world().Player(), *deal.Airs, *deal.With);
    if (!desk().Ask("End Deal?", talk.Text + "\nContinue?", ui::Default::No)) return;
    EndDeal(world(), *deal.Airs, talk.Penalty);
    Close();
  }

  void cmdback_Click() { Close(); }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtwants{*this, "txtwants"};
  ui::Button cmdask{*this, "cmdask", "Ask The Network", &frmTVContract::cmdask_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Extend The Deal",
                         &frmTVContract::cmdcontract_Click};
  ui::Button cmdtime{*this, "cmdtime", "Move The Slot", &frmTVContract::cmdtime_Click};
  ui::Button cmdend{*this, "cmdend", "End The Deal", &frmTVContract::cmdend_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmTVContract::cmdback_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmTVContract(Game& game, std::string show) {
  return std::make_unique<frmTVContract>(game, std::move(show));
}

}  // namespace grapplemont
