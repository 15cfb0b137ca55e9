#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/postings.h"
#include "roster/screens/rosterscreens.h"
#include "roster/screens/screentalks.h"
#include "roster/screens/screenworkerlist.h"
#include "roster/wagebill.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// The player's people, wherever they are posted.
class frmRoster : public WorkerListScreen {
 public:
  explicit frmRoster(Game& game)
      : WorkerListScreen(game, "frmRoster", "Roster", WorkerList::Roster, RosterFilters()) {
    lstwres.EmptyText = "Nobody works for you yet. Look for people under Other Workers.";
    lstwres.OpenWith(cmdcontract);
    for (const int position : PositionsToMoveTo())
      cmbnewposition.Add(std::string(PositionText(position)), position);
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdturn, &cmdmanager, &cmdstables, &cmdback, &cmdcontract};
    page.Main = &cmdcontract;
    page.Cancel = &cmdback;
    page.Body = ui::Rows(
        {ui::Group("", {FilterBox({ui::Field("Split", cmbsplit)})}),
         ui::Columns(
             {ui::Group("", {ui::Grow(lstwres)}).Grow(9),
              ui::Rows({ui::Group("", {ui::Grow(txtpage)}).Grow(1),
                        ui::Group("Place", {ui::Columns({ui::Grow(cmbnewposition), cmdposition}),
                                            lblmove, ui::Columns({ui::Grow(cmbnewsplit), cmdsplit}),
                                            ui::Columns({cmddevelopment, cmdcamp})})})
                  .Grow(4)})
             .Grow(1)});
    return page;
  }

  void Load() override {
    FillSplits(cmbsplit, "All");
    FillSplits(cmbnewsplit, "None");
    WorkerListScreen::Load();
  }

 protected:
  bool Belongs(const Worker& worker) const override { return WorksForPlayer(world(), worker); }
  bool Passes(const Worker& worker) const override {
    return cmbsplit.Selected() <= 1 || worker.Split == cmbsplit.Text.Get();
  }

  std::string Facts(int listed) const override {
    return Counted(listed, "worker") + ", " +
           Dollars(WagesOf(world(), world().PlayerUid()).Workers) + " a month.";
  }

  void ShowActions(const Worker* chosen) override {
    EnableUnless(cmdcontract, WhyNoTalks(game_, chosen));
    cmbnewposition.SelectKey(chosen ? int(chosen->Position) : 0);
    SelectSplit(chosen);
    ShowPostings(chosen);
    ShowMove();
    ShowSplit();
  }

 private:
  void FillSplits(ui::ComboBox& combo, const char* first) {
    combo.Clear();
    combo.Add(first);
    for (const auto& split : world().Player().Split)
      if (!(split == "None") && !split.View().empty()) combo.Add(split.Str());
    combo.Select(1);
  }

  void SelectSplit(const Worker* chosen) {
    cmbnewsplit.Select(1);
    for (int row = 2; chosen && row <= cmbnewsplit.Count(); ++row)
      if (chosen->Split == cmbnewsplit.Rows()[static_cast<std::size_t>(row - 1)])
        cmbnewsplit.Select(row);
  }

  void ShowPostings(const Worker* chosen) {
    const bool away = chosen && IsInDevelopment(*chosen), camps = chosen && IsInCamp(*chosen);
    cmddevelopment.Text = away ? "Recall From Development" : "Send To Development";
    cmdcamp.Text = camps ? "Recall From Camp" : "Send To Camp";
    EnableUnless(cmddevelopment, !chosen ? kNobodyChosen
                                 : away  ? WhyNotRecall(world(), *chosen)
                                         : WhyNotToDevelopment(world(), *chosen));
    EnableUnless(cmdcamp, !chosen ? kNobodyChosen
                          : camps ? WhyNotRecall(world(), *chosen)
                                  : WhyNotToCamp(world(), *chosen));
  }

  /// Says beforehand what the move would do.
  void ShowMove() {
    const Worker* chosen = Chosen();
    const int to = cmbnewposition.Key();
    const std::string why = chosen ? WhyNotMove(world(), *chosen, to) : kNobodyChosen;
    EnableUnless(cmdposition, why);
    const int morale = why.empty() ? MoraleOfMove(chosen->Position, to) : 0;
    std::string words = why.empty() ? EndedByMove(world(), *chosen, to) : "";
    if (morale < 0) words = "A fall that costs " + std::to_string(-morale) + " morale. " + words;
    if (morale > 0) words = "A rise that gives " + std::to_string(morale) + " morale. " + words;
    lblmove.Text = words;
    lblmove.Visible = !words.empty();
  }

  void ShowSplit() {
    const Worker* chosen = Chosen();
    EnableUnless(cmdsplit, !chosen ? kNobodyChosen
                           : cmbnewsplit.Count() <= 1
                               ? "Your promotion has no split roster."
                               : WhyNotSplit(world(), *chosen, cmbnewsplit.Text.Get()));
  }

  /// Acts on the chosen worker, who may have gone since the list was made.
  template <class Does>
  void Act(Does does) {
    Worker* worker = world().FindWorker(lstwres.Key());
    if (worker && Belongs(*worker)) does(*worker);
    ShowList();
  }

  void cmdposition_Click() {
    Act([this](Worker& worker) { MovePosition(world(), worker, cmbnewposition.Key()); });
  }
  void cmdsplit_Click() {
    Act([this](Worker& worker) { AssignSplit(worker, cmbnewsplit.Text.Get()); });
  }
  void cmddevelopment_Click() {
    Act([](Worker& worker) {
      IsInDevelopment(worker) ? Recall(worker) : SendToDevelopment(worker);
    });
  }
  void cmdcamp_Click() {
    Act([](Worker& worker) { IsInCamp(worker) ? Recall(worker) : SendToCamp(worker); });
  }
  void cmdcontract_Click() {
    if (const Worker* chosen = Chosen()) OpenTalks(game_, *chosen);
  }
  void cmdturn_Click() { desk().Open("frmTurn"); }
  void cmdmanager_Click() { desk().Open("frmManagers"); }
  void cmdstables_Click() { desk().Open("frmStables"); }
  void cmdback_Click() { Leave(); }

  ui::ComboBox cmbsplit{*this, "cmbsplit", &frmRoster::ShowList};
  ui::ComboBox cmbnewposition{*this, "cmbnewposition", &frmRoster::ShowMove};
  ui::Button cmdposition{*this, "cmdposition", "Move", &frmRoster::cmdposition_Click};
  ui::Label lblmove{*this, "lblmove"};
  ui::ComboBox cmbnewsplit{*this, "cmbnewsplit", &frmRoster::ShowSplit};
  ui::Button cmdsplit{*this, "cmdsplit", "Set Split", &frmRoster::cmdsplit_Click};
  ui::Button cmddevelopment{*this, "cmddevelopment", "Send To Development",
                            &frmRoster::cmddevelopment_Click};
  ui::Button cmdcamp{*this, "cmdcamp", "Send To Camp", &frmRoster::cmdcamp_Click};
  ui::Button cmdturn{*this, "cmdturn", "Turns", &frmRoster::cmdturn_Click};
  ui::Button cmdmanager{*this, "cmdmanager", "Managers", &frmRoster::cmdmanager_Click};
  ui::Button cmdstables{*this, "cmdstables", "Stables", &frmRoster::cmdstables_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmRoster::cmdback_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Contract", &frmRoster::cmdcontract_Click};
};

}  // namespace

SCREEN(frmRoster)

}  // namespace grapplemont
