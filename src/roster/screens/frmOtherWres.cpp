#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "roster/screens/rosterscreens.h"
#include "roster/screens/screentalks.h"
#include "roster/screens/screenworkerlist.h"
#include "roster/shortlist.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// Everybody who does not work for the player.
class frmOtherWres : public WorkerListScreen {
 public:
  explicit frmOtherWres(Game& game)
      : WorkerListScreen(game, "frmOtherWres", "Other Workers", WorkerList::Market,
                         MarketFilters()) {
    lstwres.EmptyText = "There is nobody else who fits.";
    lstwres.OpenWith(cmdcontract);
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdlist, &cmdshortlist, &cmdback, &cmdcontract};
    page.Main = &cmdcontract;
    page.Cancel = &cmdback;
    page.Body = ui::Rows(
        {ui::Group("", {FilterBox()}), ui::Columns({ui::Group("", {ui::Grow(lstwres)}).Grow(9),
                                                    ui::Group("", {ui::Grow(txtpage)}).Grow(4)})
                                           .Grow(1)});
    return page;
  }

 protected:
  bool Belongs(const Worker& worker) const override { return !WorksForPlayer(world(), worker); }

  std::string Facts(int listed) const override {
    const bool some = lstwres.Count() < listed;
    return (some ? std::to_string(lstwres.Count()) + " of " : "") + Counted(listed, "worker") +
           ", " + std::to_string(Shortlisted(world()).size()) + " on your shortlist.";
  }

  void ShowActions(const Worker* chosen) override {
    EnableUnless(cmdcontract, WhyNoTalks(game_, chosen));
    ShowShortlistButton(game_, chosen, cmdshortlist);
  }

 private:
  void cmdcontract_Click() {
    if (const Worker* chosen = Chosen()) OpenTalks(game_, *chosen);
  }
  /// Nobody's row changes by it.
  void cmdshortlist_Click() {
    TurnShortlist(game_, lstwres.Key());
    ShowFacts();
    ShowChoice();
  }
  void cmdlist_Click() { desk().Open("frmShortlist"); }
  void cmdback_Click() { Leave(); }

  ui::Button cmdlist{*this, "cmdlist", "Shortlist", &frmOtherWres::cmdlist_Click};
  ui::Button cmdshortlist{*this, "cmdshortlist", "Put On Shortlist",
                          &frmOtherWres::cmdshortlist_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmOtherWres::cmdback_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Talks", &frmOtherWres::cmdcontract_Click};
};

}  // namespace

SCREEN(frmOtherWres)

}  // namespace grapplemont
