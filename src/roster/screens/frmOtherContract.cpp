#include "records/modWresCheck.h"
#include "roster/postings.h"
#include "roster/screens/contractscreens.h"
#include "roster/screens/screentalk.h"
#include "roster/screens/screenworkerpage.h"
#include "roster/signing.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kOfferedPositions[] = {kMainEvent,    kUpperMidcard,   kMidcard, kLowerMidcard,
                                     kOpener,       kJobber,         kManager, kNonWrestler,
                                     kTrainingCamp, kDevelopmentDeal};
constexpr const char* kOfferedDispositions[] = {"F", "T", "H"};

/// Talks with a worker of anybody else's, or of nobody's, about coming.
class frmOtherContract : public TalkWith<Worker> {
 public:
  frmOtherContract(Game& game, const Worker& worker) : TalkWith(game, "frmOtherContract", worker) {
    for (const int position : kOfferedPositions)
      cmbnewposition.Add(std::string(PositionText(position)), position);
    for (const char* code : kOfferedDispositions)
      cmbnewdispo.Add(std::string(DispositionText(code)));
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdoffer};
    page.Main = &cmdoffer;
    page.Cancel = &cmdback;
    page.Large = true;
    std::vector<ui::Box> terms = offer_.Fields();
    terms.emplace_back(chkcreative);
    page.Body = ui::Columns(
        {ui::Group("", {ui::Grow(txtpage)}).Grow(1),
         ui::Group("Wanted of you", {ui::Field("Position", txtposition), ui::Field("Wage", txtwage),
                                     ui::Field("Length", txtlength), ui::Field("Type", txttype),
                                     ui::Field("Creative control", txtcreative), ui::Spacer()}),
         ui::Rows({ui::Group("Your offer", std::move(terms)),
                   ui::Group("The role",
                             {ui::Field("Position", cmbnewposition),
                              ui::Field("Disposition", cmbnewdispo), ui::Field("Name", txtnewname),
                              ui::Field("Short name", txtnewname2)}),
                   ui::Spacer()})
             .Grow(1)});
    return page;
  }

  void Load() override {
    TalkScreen::Load();
    if (closed_.empty() && Who()->Employer != 0) SayAll({{"More Money.", MoreMoneyText(*Who())}});
  }

 protected:
  Remark Refusal() override { return {"Refusal!", WhyNoSigning(world(), *Who())}; }

  void Begin() override {
    const Worker& worker = *Who();
    const Demands demands = ContractDemands(world(), worker);
    offer_.Begin(demands.Wage, demands.Months, demands.Written);
    cmbnewposition.SelectKey(demands.Position);
    cmbnewdispo.Select(1);
    for (int row = 1; row <= cmbnewdispo.Count(); ++row)
      if (worker.Disposition == kOfferedDispositions[row - 1]) cmbnewdispo.Select(row);
    txtnewname.Text = worker.Name.Str();
    txtnewname2.Text = worker.ShortName.Str();
  }

  void Show() override {
    const Worker& worker = *Who();
    WriteWorkerPage(txtpage, world(), &worker, "");
    const Demands demands = ContractDemands(world(), worker);
    txtposition.Text = PositionText(demands.Position);
    txtlength.Text = MonthsText(demands.Months);
    txttype.Text = ContractWord(demands.Written);
    txtwage.Text = WageText(demands.Wage) + " a month";
    txtcreative.Text = demands.CreativeControl ? "Yes" : "No";
    lblfacts.Text = closed_.empty() ? FactsOf(worker) : closed_;
    offer_.Allow(closed_);
    EnableUnless({cmdoffer, cmbnewposition, cmbnewdispo, txtnewname, txtnewname2}, closed_);
  }

 private:
  std::string FactsOf(const Worker& worker) {
    if (worker.Employer == 0) return "A free agent.";
    return "Works for " + PromotionName(world(), worker.Employer) +
           ", which gets nothing for letting " + (worker.Gender ? "him" : "her") + " go.";
  }

  SigningOffer Offered() {
    SigningOffer offer{offer_.Offer(), txtnewname.Text, txtnewname2.Text, "", 0};
    offer.CreativeControl = chkcreative.Checked;
    offer.Position = cmbnewposition.Key();
    offer.Disposition = DispositionCode(cmbnewdispo.Text.Get());
    return offer;
  }

  void cmdoffer_Click() {
    if (!GoesOn()) return;
    Worker& worker = *Who();
    const SigningOffer offer = Offered();
    if (desk().Objects(WhyNotAsOffered(world(), worker, offer))) return;
    const std::string no = JudgeSigning(worker, ContractDemands(world(), worker), offer);
    if (!no.empty()) return desk().Say("Rejection!", no);
    Sign(world(), worker, offer);
    SayAll({AcceptedRemark(worker.Name, offer.Written)});
    Close();
  }

  void cmdback_Click() { Close(); }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtpage{*this, "txtpage"};
  ui::Label txtposition{*this, "txtposition"};
  ui::Label txtwage{*this, "txtwage"};
  ui::Label txtlength{*this, "txtlength"};
  ui::Label txttype{*this, "txttype"};
  ui::Label txtcreative{*this, "txtcreative"};
  OfferControls offer_{*this, kHighestWage};
  ui::CheckBox chkcreative{*this, "chkcreative", "Creative control"};
  ui::ComboBox cmbnewposition{*this, "cmbnewposition"};
  ui::ComboBox cmbnewdispo{*this, "cmbnewdispo"};
  ui::TextBox txtnewname{*this, "txtnewname", "", Text<25>::kWidth};
  ui::TextBox txtnewname2{*this, "txtnewname2", "", Text<10>::kWidth};
  ui::Button cmdback{*this, "cmdback", "Back", &frmOtherContract::cmdback_Click};
  ui::Button cmdoffer{*this, "cmdoffer", "Make Offer", &frmOtherContract::cmdoffer_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmOtherContract(Game& game, const Worker& worker) {
  return std::make_unique<frmOtherContract>(game, worker);
}

}  // namespace grapplemont
