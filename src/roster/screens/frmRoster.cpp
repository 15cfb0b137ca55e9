#include <algorithm>
#include <span>

#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "roster/market.h"
#include "roster/postings.h"
#include "roster/screens/frmWorker.h"
#include "roster/screens/screentalks.h"
#include "roster/screens/screenworkers.h"
#include "roster/talks.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

/// A table of workers under its quick filters, the page of the chosen one beside it. Rows are made
/// when the list or a filter changes; picking one writes his page and no more.
class WorkerListScreen : public GameScreen {
 public:
  WorkerListScreen(Game& game, std::string name, std::string title, PeopleList list,
                   std::span<const FilterFamily> filters)
      : GameScreen(game, std::move(name), std::move(title), {.Manages = true}),
        cmbfilters("", static_cast<int>(filters.size()),
                   [&](const std::string&, int i) {
                     const FilterFamily& family = filters[Index(i)];
                     auto combo = std::make_unique<ui::ComboBox>(*this, std::string(family.Control),
                                                                 [this] { ShowList(); });
                     for (const WorkerFilter& row : family.Rows) combo->Add(std::string(row.Label));
                     combo->Select(1);
                     return combo;
                   }),
        lstwres(*this, "lstwres", WithFaces(game.World(), WorkerColumns(list)),
                ui::Handler([this] { ShowChoice(); })),
        list_(list),
        filters_(filters) {}

  void Load() override { ShowList(); }

  /// Where the chosen worker is listed no more, the next one takes his place.
  void Return() override {
    const int key = lstwres.Key(), row = lstwres.Selected();
    ShowList();
    if (lstwres.Key() == key || row == 0) return;
    lstwres.Select(std::min(row, lstwres.Count()));
    ShowChoice();
  }

 protected:
  /// Who is to be listed at all.
  virtual bool Belongs(const Worker& worker) const = 0;
  /// What the screen's own filters say.
  virtual bool Passes(const Worker&) const { return true; }
  /// Brings the buttons to the chosen worker; nullptr for nobody.
  virtual void ShowActions(const Worker* chosen) = 0;
  virtual std::string Facts(int listed) const = 0;

  using GameScreen::world;
  const World& world() const { return game_.World(); }
  /// nullptr for nobody, or somebody who has left the world.
  const Worker* Chosen() { return world().FindWorker(lstwres.Key()); }

  /// The most popular come first; the choice stays where it can, else the first row is chosen.
  void ShowList() {
    std::vector<const Worker*> people;
    listed_ = 0;
    for (const Worker& worker : world().Workers()) {
      if (!Belongs(worker)) continue;
      ++listed_;
      if (FitsFilters(worker)) people.push_back(&worker);
    }
    SortByOver(people);
    std::vector<ui::ListBox::Row> rows;
    rows.reserve(people.size());
    for (const Worker* worker : people) rows.push_back(WorkerRow(world(), *worker, list_));
    lstwres.Fill(std::move(rows));
    if (lstwres.Selected() == 0) lstwres.Select(1);
    ShowFacts();
    ShowChoice();
  }

  void ShowChoice() {
    const Worker* chosen = Chosen();
    WriteWorkerPage(txtpage, world(), chosen, "Choose somebody to read about.");
    EnableUnless({cmdpage, cmdcompare}, chosen ? "" : kNobodyChosen);
    ShowActions(chosen);
  }
  void ShowFacts() { lblfacts.Text = Facts(listed_); }

  void Negotiate() {
    if (const Worker* chosen = Chosen()) OpenTalks(game_, *chosen);
  }

  /// The filters side by side, with the screen's own behind them.
  ui::Box FilterBox(std::vector<ui::Box> more = {}) {
    std::vector<ui::Box> fields;
    for (int i = 1; i <= cmbfilters.Count(); ++i)
      fields.push_back(ui::Field(std::string(filters_[Index(i)].Caption), cmbfilters(i)));
    for (ui::Box& box : more) fields.push_back(std::move(box));
    return ui::Columns(std::move(fields));
  }

  /// What is known of the chosen worker, and the ways on.
  ui::Box PageBox() {
    return ui::Group("", {ui::Grow(txtpage), ui::Columns({cmdpage, cmdcompare})});
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Array<ui::ComboBox> cmbfilters;
  ui::ListBox lstwres;
  ui::Report txtpage{*this, "txtpage"};
  ui::Button cmdpage{*this, "cmdpage", "Open Page",
                     [this] { OpenWorkerPage(game_, lstwres.Key()); }};
  ui::Button cmdcompare{*this, "cmdcompare", "Compare",
                        [this] { desk().Open(MakefrmCompare(game_, lstwres.Key())); }};

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number - 1); }

  bool FitsFilters(const Worker& worker) {
    for (int i = 1; i <= cmbfilters.Count(); ++i) {
      const int row = cmbfilters(i).Selected();
      if (row > 1 && !filters_[Index(i)].Rows[Index(row)].Keeps(worker)) return false;
    }
    return Passes(worker);
  }

  PeopleList list_;
  int listed_ = 0;  // before the filters
  std::span<const FilterFamily> filters_;
};

/// The player's people, wherever they are posted.
class frmRoster : public WorkerListScreen {
 public:
  explicit frmRoster(Game& game)
      : WorkerListScreen(game, "frmRoster", "Roster", PeopleList::Own, RosterFilters()) {
    BackBefore(cmdcontract);
    lstwres.EmptyText = "Nobody works for you yet. Look for people under Other Workers.";
    lstwres.OpenWith(cmdcontract);
    for (const int position : PositionsToMoveTo())
      cmbnewposition.Add(std::string(PositionText(position)), position);
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Rows({ui::Group("", {FilterBox({ui::Field("Split", cmbsplit)})}),
                  ui::Columns(
                      {ui::Group("", {ui::Grow(lstwres)}).Grow(9),
                       ui::Rows({PageBox().Grow(1),
                                 ui::Group("Place",
                                           {ui::Columns({ui::Grow(cmbnewposition), cmdposition}),
                                            lblmove, ui::Columns({ui::Grow(cmbnewsplit), cmdsplit}),
                                            ui::Columns({cmddevelopment, cmdcamp})})})
                           .Grow(4)})
                      .Grow(1)}),
        &lblfacts, {&cmdturn, &cmdmanager, &cmdstables}, &cmdcontract);
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
      if (split != "None" && !split.View().empty()) combo.Add(split.Str());
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
      IsInDevelopment(worker) ? EndPosting(worker) : SendToDevelopment(worker);
    });
  }
  void cmdcamp_Click() {
    Act([](Worker& worker) { IsInCamp(worker) ? EndPosting(worker) : SendToCamp(worker); });
  }

  ui::ComboBox cmbsplit{*this, "cmbsplit", &frmRoster::ShowList};
  ui::ComboBox cmbnewposition{*this, "cmbnewposition", &frmRoster::ShowMove};
  ui::Button cmdposition{*this, "cmdposition", "Move", &frmRoster::cmdposition_Click};
  ui::Label lblmove{*this, "lblmove"};
  ui::ComboBox cmbnewsplit{*this, "cmbnewsplit", &frmRoster::ShowSplit};
  ui::Button cmdsplit{*this, "cmdsplit", "Set Split", &frmRoster::cmdsplit_Click};
  ui::Button cmddevelopment{*this, "cmddevelopment", "Send To Development",
                            &frmRoster::cmddevelopment_Click};
  ui::Button cmdcamp{*this, "cmdcamp", "Send To Camp", &frmRoster::cmdcamp_Click};
  ui::Button cmdturn{*this, "cmdturn", "Turns", [this] { desk().Open("frmTurn"); }};
  ui::Button cmdmanager{*this, "cmdmanager", "Managers", [this] { desk().Open("frmManagers"); }};
  ui::Button cmdstables{*this, "cmdstables", "Stables", [this] { desk().Open("frmStables"); }};
  ui::Button cmdcontract{*this, "cmdcontract", "Contract", [this] { Negotiate(); }};
};

/// Everybody who does not work for the player.
class frmOtherWres : public WorkerListScreen {
 public:
  explicit frmOtherWres(Game& game)
      : WorkerListScreen(game, "frmOtherWres", "Other Workers", PeopleList::Market,
                         MarketFilters()) {
    BackBefore(cmdcontract);
    lstwres.EmptyText = "There is nobody else who fits.";
    lstwres.OpenWith(cmdcontract);
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Rows(
            {ui::Group("", {FilterBox()}),
             ui::Columns({ui::Group("", {ui::Grow(lstwres)}).Grow(9), PageBox().Grow(4)}).Grow(1)}),
        &lblfacts, {&cmdlist, &cmdshortlist}, &cmdcontract);
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
  /// Nobody's row changes by it.
  void cmdshortlist_Click() {
    TurnShortlist(game_, lstwres.Key());
    ShowFacts();
    ShowChoice();
  }

  ui::Button cmdlist{*this, "cmdlist", "Shortlist", [this] { desk().Open("frmShortlist"); }};
  ui::Button cmdshortlist{*this, "cmdshortlist", "Put On Shortlist",
                          &frmOtherWres::cmdshortlist_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Talks", [this] { Negotiate(); }};
};

}  // namespace

SCREEN(frmRoster)
SCREEN(frmOtherWres)

}  // namespace grapplemont
