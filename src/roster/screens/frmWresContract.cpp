#include "roster/release.h"
#include "roster/releaseoffer.h"
#include "roster/renewal.h"
#include "roster/screens/contractscreens.h"
#include "roster/screens/screentalk.h"
#include "roster/screens/screenworkerpage.h"
#include "roster/termination.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kOfferedMonths = 24;

/// Talks with a worker of the player's: staying, being let go, being thrown out.
class frmWresContract : public TalkWith<Worker> {
 public:
  frmWresContract(Game& game, const Worker& worker) : TalkWith(game, "frmWresContract", worker) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdterminate, &cmdrelease, &cmdback, &cmdoffer};
    page.Main = &cmdoffer;
    page.Cancel = &cmdback;
    page.Large = true;
    std::vector<ui::Box> fields = offer_.Fields();
    fields.emplace_back(chkcreative);
    page.Body =
        ui::Columns({ui::Group("", {ui::Grow(txtpage)}).Grow(1),
                     ui::Rows({ui::Group("The contract", {ui::Field("Wage", txtwage),
                                                          ui::Field("Length", txtlength),
                                                          ui::Field("Type", txttype), lblcreative}),
                               ui::Group("Your offer", std::move(fields)), ui::Spacer()})
                         .Grow(1)});
    return page;
  }

 protected:
  Remark Refusal() override { return {kTalksTitle, WhyNoRenewal(*Who())}; }

  void Begin() override {
    const RenewalTerms terms = RenewalTermsOf(world(), *Who());
    offer_.Begin(terms.Wage, kOfferedMonths, terms.Written);
  }

  void Show() override {
    const Worker& worker = *Who();
    WriteWorkerPage(txtpage, world(), &worker, "");
    txtlength.Text = MonthsText(worker.ContractMonths);
    txttype.Text = ContractWord(worker.ContractType == "Wri");
    txtwage.Text = WageText(worker.Wage) + " a month";
    lblcreative.Visible = worker.CreativeControl;
    lblfacts.Text =
        closed_.empty() ? "What is turned down can be changed and offered again." : closed_;
    offer_.Allow(closed_);
    EnableUnless(chkcreative, closed_);
    EnableUnless(cmdoffer, closed_);
  }

 private:
  void cmdoffer_Click() {
    if (!GoesOn()) return;
    Worker& worker = *Who();
    ContractOffer offer = offer_.Offer();
    offer.CreativeControl = chkcreative.Checked;
    const RenewalAnswer answer = JudgeRenewal(worker, RenewalTermsOf(world(), worker), offer);
    SayAll(answer.Remarks);
    if (!answer.Accepted) return;
    Renew(worker, offer);
    SayAll({AcceptedRemark(worker.Name, offer.Written)});
    Close();
  }

  void cmdrelease_Click() {
    if (!GoesOn()) return;
    Worker& worker = *Who();
    const ReleaseAnswer answer = AnswerToRelease(world(), worker);
    SayAll(answer.Remarks);
    if (!answer.Accepted ||
        !desk().Ask("Release", worker.Name + " formally accepts your offer. Proceed?"))
      return;
    ReleaseWorker(world(), worker);
    Close();
  }

  void cmdterminate_Click() {
    if (!GoesOn()) return;
    Worker& worker = *Who();
    if (!desk().Ask("Terminate Contract", TerminationQuestion(world(), worker), ui::Default::No))
      return;
    Terminate(world(), worker);
    Close();
  }

  void cmdback_Click() { Close(); }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtpage{*this, "txtpage"};
  ui::Label txtwage{*this, "txtwage"};
  ui::Label txtlength{*this, "txtlength"};
  ui::Label txttype{*this, "txttype"};
  ui::Label lblcreative{*this, "lblcreative", "A clause gives creative control."};
  OfferControls offer_{*this, kHighestWage};
  ui::CheckBox chkcreative{*this, "chkcreative", "Creative control"};
  ui::Button cmdterminate{*this, "cmdterminate", "Terminate", &frmWresContract::cmdterminate_Click};
  ui::Button cmdrelease{*this, "cmdrelease", "Offer Release", &frmWresContract::cmdrelease_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmWresContract::cmdback_Click};
  ui::Button cmdoffer{*this, "cmdoffer", "Make Offer", &frmWresContract::cmdoffer_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmWresContract(Game& game, const Worker& worker) {
  return std::make_unique<frmWresContract>(game, worker);
}

}  // namespace grapplemont
