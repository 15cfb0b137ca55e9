#include <algorithm>

#include "records/modWresCheck.h"
#include "roster/screens/contractscreens.h"
#include "roster/screens/screenstaff.h"
#include "roster/screens/screentalk.h"
#include "roster/stafftalks.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// Talks with a member of staff. The player's own keep to themselves what they want; from others it
/// can be read.
class StaffTalk : public TalkWith<Staff> {
 public:
  StaffTalk(Game& game, const Staff& staff, bool own)
      : TalkWith(game, own ? "frmStaffContract" : "frmOtherStaffContract", staff),
        own_(own),
        offer_(*this, std::max<int>(kHighestStaffWage, own ? staff.Wage : 0)) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdoffer};
    page.Main = &cmdoffer;
    page.Cancel = &cmdback;
    page.Large = true;
    page.Body = ui::Columns(
        {ui::Group("", {ui::Grow(txtpage)}).Grow(1),
         ui::Rows({ui::Group(own_ ? "The contract" : "Wanted of you",
                             {ui::Field("Wage", txtwage), ui::Field("Length", txtlength),
                              ui::Field("Type", txttype)}),
                   ui::Group("Your offer", offer_.Fields()), ui::Spacer()})
             .Grow(1)});
    return page;
  }

 protected:
  Remark Refusal() override { return {"Refusal!", WhyNoStaffOffer(world(), *Who())}; }

  void Begin() override {
    const StaffDemands demands = StaffDemandsOf(world(), *Who());
    offer_.Begin(demands.Wage, demands.Months, demands.Written);
  }

  void Show() override {
    const Staff& staff = *Who();
    WriteStaffPage(txtpage, world(), &staff, "");
    const StaffDemands wanted =
        own_ ? StaffDemands{staff.ContractMonths, staff.ContractType == "Wri", staff.Wage}
             : StaffDemandsOf(world(), staff);
    txtlength.Text = MonthsText(wanted.Months);
    txttype.Text = ContractWord(wanted.Written);
    txtwage.Text = WageText(wanted.Wage) + " a month";
    lblfacts.Text = !closed_.empty() ? closed_ : FactsOf(staff);
    offer_.Allow(closed_);
    EnableUnless(cmdoffer, closed_);
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
    const std::string no = JudgeStaffOffer(world(), staff, StaffDemandsOf(world(), staff), offer);
    if (!no.empty()) return desk().Say("Rejected!", no);
    own_ ? RenewStaff(staff, offer) : HireStaff(world(), staff, offer);
    SayAll({AcceptedRemark(staff.Name, offer.Written)});
    Close();
  }

  void cmdback_Click() { Close(); }

  bool own_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtpage{*this, "txtpage"};
  ui::Label txtwage{*this, "txtwage"};
  ui::Label txtlength{*this, "txtlength"};
  ui::Label txttype{*this, "txttype"};
  OfferControls offer_;  // whoever earns more than anybody wants can be kept at it
  ui::Button cmdback{*this, "cmdback", "Back", &StaffTalk::cmdback_Click};
  ui::Button cmdoffer{*this, "cmdoffer", "Make Offer", &StaffTalk::cmdoffer_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmStaffContract(Game& game, const Staff& staff) {
  return std::make_unique<StaffTalk>(game, staff, true);
}
std::unique_ptr<ui::Screen> MakefrmOtherStaffContract(Game& game, const Staff& staff) {
  return std::make_unique<StaffTalk>(game, staff, false);
}

}  // namespace grapplemont
