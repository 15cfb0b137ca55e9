#include <algorithm>

#include "records/modWresCheck.h"
#include "roster/leaving.h"
#include "roster/postings.h"
#include "roster/screens/frmWorker.h"
#include "roster/screens/screenmany.h"
#include "roster/screens/screentalks.h"
#include "roster/signing.h"
#include "roster/staff.h"
#include "roster/talks.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kOfferedMonths = 24;
constexpr const char* kIfTheyAgree = "they agree to these terms";

/// Talks with a worker of the player's: staying, being let go, being thrown out.
class frmWresContract : public TalkWith<Worker> {
 public:
  frmWresContract(Game& game, const Worker& worker) : TalkWith(game, "frmWresContract", worker) {
    BackBefore(cmdoffer);
  }

  ui::Page Layout() override {
    std::vector<ui::Box> now = terms_.Fields(), offered = offer_.Fields();
    now.emplace_back(lblcreative);
    offered.emplace_back(chkcreative);
    for (ui::Box& part : WhyParts()) offered.push_back(std::move(part));
    return TalkPage({ui::Rows({ui::Group("The contract", std::move(now)),
                               ui::Group("Your offer", std::move(offered)), ui::Spacer()})
                         .Grow(2)},
                    {&cmdterminate, &cmdrelease}, cmdoffer);
  }

 protected:
  Remark Refusal(Decision& why) override { return {kTalksTitle, WhyNoRenewal(*Who(), &why)}; }
  Score WageSteps() override { return RenewalTermsOf(world(), *Who()).WageSteps; }

  void Begin() override {
    const RenewalTerms terms = RenewalTermsOf(world(), *Who());
    offer_.Begin(terms.Wage, kOfferedMonths, terms.Written);
  }

  void Show() override {
    const Worker& worker = *Who();
    WriteUnderName(txtpage, world(), worker);
    terms_.Show(worker.Wage, worker.ContractMonths, worker.ContractType == "Wri");
    lblcreative.Visible = worker.CreativeControl;
    ShowFacts("What is turned down can be changed and offered again.");
    offer_.Allow(closed_);
    EnableUnless({chkcreative, cmdoffer}, closed_);
  }

  std::variant<WhatIf, std::string> Weighed() override {
    const ContractOffer offer = Offered();
    const auto renew = [uid = uid_, offer](World& copy) { Renew(*copy.FindWorker(uid), offer); };
    return WhatIf{"Keep " + Who()->Name + " for " + TermsText(offer) + "?",
                  {"the contract is renewed on these terms", renew},
                  {"the contract runs on, and the office decides by habit whether to renew it", {}},
                  kIfTheyAgree};
  }

 private:
  ContractOffer Offered() const {
    ContractOffer offer = offer_.Offer();
    offer.CreativeControl = chkcreative.Checked;
    return offer;
  }

  void cmdoffer_Click() {
    if (!GoesOn()) return;
    Worker& worker = *Who();
    const ContractOffer offer = Offered();
    const RenewalAnswer answer = JudgeRenewal(worker, RenewalTermsOf(world(), worker), offer);
    if (!answer.Accepted) return Refuse(answer.Remarks, answer.Why);
    SayAll(answer.Remarks);
    Renew(worker, offer);
    Agree(worker.Name, offer.Written);
  }

  void cmdrelease_Click() {
    if (!GoesOn()) return;
    if (OfferRelease(game_, *Who())) Close();
  }

  void cmdterminate_Click() {
    if (!GoesOn()) return;
    Worker& worker = *Who();
    if (!desk().Ask("Terminate Contract", TerminationQuestion(world(), worker), ui::Default::No))
      return;
    Terminate(world(), worker);
    Close();
  }

  TermLabels terms_{*this};
  ui::Label lblcreative{*this, "lblcreative", "A clause gives creative control."};
  OfferControls offer_{*this, game_, kHighestWage};
  ui::CheckBox chkcreative{*this, "chkcreative", "Creative control"};
  ui::Button cmdterminate{*this, "cmdterminate", "Terminate", &frmWresContract::cmdterminate_Click};
  ui::Button cmdrelease{*this, "cmdrelease", "Offer Release", &frmWresContract::cmdrelease_Click};
  ui::Button cmdoffer{*this, "cmdoffer", "Make Offer", &frmWresContract::cmdoffer_Click};
};

constexpr int kOfferedPositions[] = {kMainEvent,    kUpperMidcard,   kMidcard, kLowerMidcard,
                                     kOpener,       kJobber,         kManager, kNonWrestler,
                                     kTrainingCamp, kDevelopmentDeal};
constexpr const char* kOfferedDispositions[] = {"F", "T", "H"};

/// Talks with a worker of anybody else's, or of nobody's, about coming.
class frmOtherContract : public TalkWith<Worker> {
 public:
  frmOtherContract(Game& game, const Worker& worker) : TalkWith(game, "frmOtherContract", worker) {
    BackBefore(cmdoffer);
    for (const int position : kOfferedPositions)
      cmbnewposition.Add(std::string(PositionText(position)), position);
    for (const char* code : kOfferedDispositions)
      cmbnewdispo.Add(std::string(DispositionText(code)));
  }

  ui::Page Layout() override {
    std::vector<ui::Box> wanted = terms_.Fields(), offered = offer_.Fields();
    wanted.insert(wanted.begin(), ui::Field("Position", txtposition));
    wanted.push_back(ui::Field("Creative control", txtcreative));
    for (ui::Box& part : WhyParts()) wanted.push_back(std::move(part));
    wanted.push_back(ui::Spacer());
    offered.emplace_back(chkcreative);
    return TalkPage({ui::Group("Wanted of you", std::move(wanted)),
                     ui::Rows({ui::Group("Your offer", std::move(offered)),
                               ui::Group("The role", {ui::Field("Position", cmbnewposition),
                                                      ui::Field("Disposition", cmbnewdispo),
                                                      ui::Field("Name", txtnewname),
                                                      ui::Field("Short name", txtnewname2)}),
                               ui::Spacer()})
                         .Grow(2)},
                    {}, cmdoffer);
  }

  void Load() override {
    TalkScreen::Load();
    if (closed_.empty() && Who()->Employer != 0) SayAll({{"More Money.", MoreMoneyText(*Who())}});
  }

 protected:
  Remark Refusal(Decision& why) override {
    return {"Refusal!", WhyNoSigning(world(), *Who(), &why)};
  }
  Score WageSteps() override { return ContractDemands(world(), *Who()).WageSteps; }

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
    WriteUnderName(txtpage, world(), worker);
    const Demands demands = ContractDemands(world(), worker);
    txtposition.Text = PositionText(demands.Position);
    terms_.Show(demands.Wage, demands.Months, demands.Written);
    txtcreative.Text = demands.CreativeControl ? "Yes" : "No";
    ShowFacts(FactsOf(worker));
    offer_.Allow(closed_);
    EnableUnless({cmdoffer, cmbnewposition, cmbnewdispo, txtnewname, txtnewname2}, closed_);
  }

  std::variant<WhatIf, std::string> Weighed() override {
    const SigningOffer offer = Offered();
    if (std::string why = WhyNotAsOffered(world(), *Who(), offer); !why.empty()) return why;
    const auto sign = [uid = uid_, offer](World& copy) {
      Sign(copy, *copy.FindWorker(uid), offer);
    };
    return WhatIf{"Sign " + Who()->Name + " for " + TermsText(offer) + "?",
                  {"they work for you on these terms", sign},
                  {"you make no offer, and the office signs people by habit", {}},
                  kIfTheyAgree};
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
    Decision why;
    const std::string no = JudgeSigning(worker, ContractDemands(world(), worker), offer, &why);
    if (!no.empty()) return Refuse({{"Rejection!", no}}, std::move(why));
    Sign(world(), worker, offer);
    Agree(worker.Name, offer.Written);
  }

  ui::Label txtposition{*this, "txtposition"};
  TermLabels terms_{*this};
  ui::Label txtcreative{*this, "txtcreative"};
  OfferControls offer_{*this, game_, kHighestWage};
  ui::CheckBox chkcreative{*this, "chkcreative", "Creative control"};
  ui::ComboBox cmbnewposition{*this, "cmbnewposition"};
  ui::ComboBox cmbnewdispo{*this, "cmbnewdispo"};
  ui::TextBox txtnewname{*this, "txtnewname", "", Text<25>::kWidth};
  ui::TextBox txtnewname2{*this, "txtnewname2", "", Text<10>::kWidth};
  ui::Button cmdoffer{*this, "cmdoffer", "Make Offer", &frmOtherContract::cmdoffer_Click};
};

/// Talks with a member of staff. The player's own keep to themselves what they want; from others it
/// can be read.
class StaffTalk : public TalkWith<Staff> {
 public:
  StaffTalk(Game& game, const Staff& staff, bool own)
      : TalkWith(game, own ? "frmStaffContract" : "frmOtherStaffContract", staff),
        own_(own),
        offer_(*this, game, std::max<int>(kHighestStaffWage, own ? staff.Wage : 0)) {
    BackBefore(cmdoffer);
  }

  ui::Page Layout() override {
    std::vector<ui::Box> offered = offer_.Fields();
    for (ui::Box& part : WhyParts()) offered.push_back(std::move(part));
    return TalkPage({ui::Rows({ui::Group(own_ ? "The contract" : "Wanted of you", terms_.Fields()),
                               ui::Group("Your offer", std::move(offered)), ui::Spacer()})
                         .Grow(2)},
                    {}, cmdoffer);
  }

 protected:
  Remark Refusal(Decision& why) override {
    return {"Refusal!", WhyNoStaffOffer(world(), *Who(), &why)};
  }
  Score WageSteps() override { return StaffDemandsOf(world(), *Who()).WageSteps; }

  void Begin() override {
    const StaffDemands demands = StaffDemandsOf(world(), *Who());
    offer_.Begin(demands.Wage, demands.Months, demands.Written);
  }

  void Show() override {
    const Staff& staff = *Who();
    WriteUnderName(txtpage, world(), staff);
    const StaffDemands wanted =
        own_ ? StaffDemands{staff.ContractMonths, staff.ContractType == "Wri", staff.Wage}
             : StaffDemandsOf(world(), staff);
    terms_.Show(wanted.Wage, wanted.Months, wanted.Written);
    ShowFacts(FactsOf(staff));
    offer_.Allow(closed_);
    EnableUnless(cmdoffer, closed_);
  }

  std::variant<WhatIf, std::string> Weighed() override {
    const ContractOffer offer = offer_.Offer();
    const auto hire = [uid = uid_, offer, own = own_](World& copy) {
      Staff& staff = *copy.FindStaff(uid);
      own ? PutInto(staff, offer) : HireStaff(copy, staff, offer);
    };
    return WhatIf{(own_ ? "Keep " : "Hire ") + Who()->Name + " for " + TermsText(offer) + "?",
                  {"they work for you on these terms", hire},
                  {"you make no offer, and the office fills its posts by habit", {}},
                  kIfTheyAgree};
  }

 private:
  std::string FactsOf(const Staff& staff) {
    if (own_) return "What is turned down can be changed and offered again.";
    if (staff.Employer == 0) return "A free agent.";
    return "Works for " + PromotionName(world(), staff.Employer) +
           ", and wants a fifth more to go.";
  }

  void cmdoffer_Click() {
    if (!GoesOn()) return;
    Staff& staff = *Who();
    const ContractOffer offer = offer_.Offer();
    Decision why;
    const std::string no =
        JudgeStaffOffer(world(), staff, StaffDemandsOf(world(), staff), offer, &why);
    if (!no.empty()) return Refuse({{"Rejected!", no}}, std::move(why));
    own_ ? PutInto(staff, offer) : HireStaff(world(), staff, offer);
    Agree(staff.Name, offer.Written);
  }

  bool own_;
  TermLabels terms_{*this};
  OfferControls offer_;  // whoever earns more than anybody wants can be kept at it
  ui::Button cmdoffer{*this, "cmdoffer", "Make Offer", &StaffTalk::cmdoffer_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmWresContract(Game& game, const Worker& worker) {
  return std::make_unique<frmWresContract>(game, worker);
}

std::unique_ptr<ui::Screen> MakefrmOtherContract(Game& game, const Worker& worker) {
  return std::make_unique<frmOtherContract>(game, worker);
}

std::unique_ptr<ui::Screen> MakefrmStaffContract(Game& game, const Staff& staff) {
  return std::make_unique<StaffTalk>(game, staff, WorksForPlayer(game.World(), staff));
}

}  // namespace grapplemont
