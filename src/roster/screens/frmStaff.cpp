#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/screens/contractscreens.h"
#include "roster/screens/screenstaff.h"
#include "roster/stafffiring.h"
#include "roster/staffneeds.h"
#include "roster/stafftalks.h"
#include "roster/wagebill.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// The player's staff, and where hands are lacking.
class frmStaff : public StaffListScreen {
 public:
  explicit frmStaff(Game& game) : StaffListScreen(game, "frmStaff", "Staff", StaffList::Own) {
    lststaff.OpenWith(cmdcontract);
    lststaff.EmptyText = "Nobody is on your staff yet. Look for people under Other Staff.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdfire, &cmdback, &cmdcontract};
    page.Main = &cmdcontract;
    page.Cancel = &cmdback;
    page.Body = ui::Rows({ui::Group("", {lblposts, lbladvice}),
                          ui::Columns({ui::Group("", {ui::Grow(lststaff)}).Grow(3),
                                       ui::Group("", {ui::Grow(txtpage)}).Grow(1)})
                              .Grow(1)});
    return page;
  }

 protected:
  bool Belongs(const Staff& staff) const override { return WorksForPlayer(world(), staff); }

  void ShowActions(const Staff* chosen) override {
    const std::string why = WhyNot(chosen);
    EnableUnless(cmdcontract, why);
    EnableUnless(cmdfire, why);
    const std::vector<PostCount> posts = PostCounts(world());
    lblposts.Text = PostLine(posts);
    lbladvice.Text = PostAdvice(posts);
    lblfacts.Text = std::to_string(lststaff.Count()) + " on the staff, " +
                    Dollars(WagesOf(world(), world().PlayerUid()).Staff) + " a month.";
  }

 private:
  void cmdcontract_Click() { Negotiate(); }

  void cmdfire_Click() {
    Staff* chosen = Chosen();
    if (!chosen || !Belongs(*chosen) || !WhyNot(chosen).empty()) return ShowList();
    if (!desk().Ask("Terminate Contract", FiringQuestion(world(), *chosen), ui::Default::No))
      return;
    FireStaff(world(), *chosen);
    ShowList();
  }

  void cmdback_Click() { Leave(); }

  ui::Label lblposts{*this, "lblposts"};
  ui::Label lbladvice{*this, "lbladvice"};
  ui::Button cmdfire{*this, "cmdfire", "Fire", &frmStaff::cmdfire_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmStaff::cmdback_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Contract", &frmStaff::cmdcontract_Click};
};

}  // namespace

SCREEN(frmStaff)

}  // namespace grapplemont
