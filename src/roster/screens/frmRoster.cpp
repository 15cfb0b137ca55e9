#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "roster/market.h"
#include "roster/postings.h"
#include "roster/screens/screenmany.h"
#include "roster/screens/screentalks.h"
#include "roster/screens/workerlist.h"
#include "roster/signing.h"
#include "roster/talks.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// The player's people, wherever they are posted.
class frmRoster : public WorkerListScreen {
 public:
  explicit frmRoster(Game& game)
      : WorkerListScreen(game, "frmRoster", "Roster", PeopleList::Own, RosterFilters()) {
    BackBefore(cmdcontract);
    lstwres.EmptyText = "Nobody works for you yet. Look for people under Other Workers.";
    lstwres.OpenWith(cmdpage);
    cmbsplit.Filters = true;
    lstwres.Acts = {{&cmdcontract},
                    {&cmdcompare},
                    {&cmdposition, &cmbnewposition},
                    {&cmdsplit, &cmbnewsplit},
                    {&cmddevelopment},
                    {&cmdcamp},
                    {&cmdrelease}};
    for (const int position : PositionsToMoveTo())
      cmbnewposition.Add(std::string(PositionText(position)), position);
  }

  ui::Page Layout() override {
    return WithFilters(PageOf(
        ui::Rows({FilterBox({ui::Field(std::string(OwnCaption()), cmbsplit)}),
                  ui::Columns(
                      {ui::Group("", {ui::Grow(lstwres)}).Grow(11),
                       ui::Rows({PageBox().Grow(1),
                                 ui::Group("Place",
                                           {ui::Field("Position", cmbnewposition, {&cmdposition}),
                                            lblmove, ui::Field("Split", cmbnewsplit, {&cmdsplit}),
                                            ui::Columns({cmddevelopment, cmdcamp, cmdrelease})})})
                           .Grow(4)})
                      .Grow(1)}),
        &lblfacts, {&cmdturn, &cmdmanager, &cmdstables}, &cmdcontract));
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

  ui::ComboBox* OwnFilter() override { return &cmbsplit; }
  std::string_view OwnCaption() const override { return "Split"; }

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
    const std::vector<int> all = AllChosen();
    const ManyAct development = Development(chosen), camp = Camp(chosen);
    cmddevelopment.Text = CaptionFor(development.Title, all);
    cmdcamp.Text = CaptionFor(camp.Title, all);
    cmdrelease.Text = CaptionFor("Offer Release", all);
    EnableUnless(cmddevelopment, WhyToNobody(world(), all, development));
    EnableUnless(cmdcamp, WhyToNobody(world(), all, camp));
    EnableUnless(cmdrelease, WhyToNobody(world(), all, {"", NoTalks(), {}}));
  }

  std::function<std::string(const Worker&)> NoTalks() {
    return [this](const Worker& worker) { return WhyNoTalks(game_, &worker); };
  }

  // What the buttons do to all who are chosen; the first of them says which way.

  ManyAct Development(const Worker* first) {
    if (first && IsInDevelopment(*first))
      return {"Recall From Development",
              [this](const Worker& worker) {
                return IsInDevelopment(worker) ? WhyNotRecall(world(), worker)
                                               : worker.Name + " is not in development.";
              },
              [](Worker& worker) { EndPosting(worker); }};
    return {"Send To Development",
            [this](const Worker& worker) { return WhyNotToDevelopment(world(), worker); },
            [](Worker& worker) { SendToDevelopment(worker); }};
  }
  ManyAct Camp(const Worker* first) {
    if (first && IsInCamp(*first))
      return {"Recall From Camp",
              [this](const Worker& worker) {
                return IsInCamp(worker) ? WhyNotRecall(world(), worker)
                                        : worker.Name + " is not in the training camp.";
              },
              [](Worker& worker) { EndPosting(worker); }};
    return {"Send To Camp", [this](const Worker& worker) { return WhyNotToCamp(world(), worker); },
            [](Worker& worker) { SendToCamp(worker); }};
  }
  ManyAct Move() {
    const int to = cmbnewposition.Key();
    return {"Move", [this, to](const Worker& worker) { return WhyNotMove(world(), worker, to); },
            [this, to](Worker& worker) { MovePosition(world(), worker, to); }};
  }
  ManyAct SetSplit() {
    const std::string to = cmbnewsplit.Text.Get();
    return {"Set Split",
            [this, to](const Worker& worker) {
              return cmbnewsplit.Count() <= 1 ? "Your promotion has no split roster."
                                              : WhyNotSplit(world(), worker, to);
            },
            [to](Worker& worker) { AssignSplit(worker, to); }};
  }

  /// Says beforehand what the move would do.
  void ShowMove() {
    const std::vector<int> all = AllChosen();
    const std::string why = WhyToNobody(world(), all, Move());
    cmdposition.Text = CaptionFor("Move", all);
    EnableUnless(cmdposition, why);
    const std::string words = !why.empty()     ? ""
                              : all.size() > 1 ? OutcomeOfMoves(all)
                                               : OutcomeOfMove(*world().FindWorker(all.front()));
    lblmove.Text = words;
    lblmove.Visible = !words.empty();
  }

  std::string OutcomeOfMove(const Worker& worker) {
    const int to = cmbnewposition.Key(), morale = MoraleOfMove(worker.Position, to);
    std::string words = EndedByMove(world(), worker, to);
    if (morale < 0) words = "A fall that costs " + std::to_string(-morale) + " morale. " + words;
    if (morale > 0) words = "A rise that gives " + std::to_string(morale) + " morale. " + words;
    return words;
  }

  std::string OutcomeOfMoves(const std::vector<int>& all) {
    const int to = cmbnewposition.Key();
    const ManyAct move = Move();
    std::string words;
    for (const int uid : all)
      if (const Worker* worker = world().FindWorker(uid); worker && move.WhyNot(*worker).empty())
        if (const int morale = MoraleOfMove(worker->Position, to); morale != 0)
          words += (words.empty() ? "Morale: " : ", ") + worker->Name + (morale < 0 ? " " : " +") +
                   std::to_string(morale);
    return words;
  }

  void ShowSplit() {
    const std::vector<int> all = AllChosen();
    cmdsplit.Text = CaptionFor("Set Split", all);
    EnableUnless(cmdsplit, WhyToNobody(world(), all, SetSplit()));
  }

  /// Acts on the chosen workers, who may have gone since the list was made.
  void Act(const ManyAct& act) {
    DoToAll(game_, AllChosen(), act);
    ShowList();
  }

  void cmdposition_Click() { Act(Move()); }
  void cmdsplit_Click() { Act(SetSplit()); }
  void cmddevelopment_Click() { Act(Development(Chosen())); }
  void cmdcamp_Click() { Act(Camp(Chosen())); }
  void cmdrelease_Click() {
    OfferReleases(game_, AllChosen(), NoTalks());
    WorkerListScreen::Return();
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
  ui::Button cmdrelease{*this, "cmdrelease", "Offer Release", &frmRoster::cmdrelease_Click};
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
    lstwres.OpenWith(cmdpage);
    cmbtalks.Add("All");
    cmbtalks.Add("Would listen to us");
    cmbtalks.Select(1);
    lstwres.Acts = {{&cmdcontract}, {&cmdcompare}, {&cmdshortlist}};
  }

  ui::Page Layout() override {
    return WithFilters(PageOf(
        ui::Rows(
            {FilterBox({ui::Field(std::string(OwnCaption()), cmbtalks)}),
             ui::Columns({ui::Group("", {ui::Grow(lstwres)}).Grow(9), PageBox().Grow(4)}).Grow(1)}),
        &lblfacts, {&cmdlist, &cmdshortlist}, &cmdcontract));
  }

 protected:
  bool Belongs(const Worker& worker) const override { return !WorksForPlayer(world(), worker); }
  bool Passes(const Worker& worker) const override {
    return cmbtalks.Selected() <= 1 ||
           (!IsSettled(worker) && WhyNoSigning(world(), worker).empty());
  }

  ui::ComboBox* OwnFilter() override { return &cmbtalks; }
  std::string_view OwnCaption() const override { return "Talks"; }

  std::string Facts(int listed) const override {
    const bool some = lstwres.Count() < listed;
    return (some ? std::to_string(lstwres.Count()) + " of " : "") + Counted(listed, "worker") +
           ", " + std::to_string(Shortlisted(world()).size()) + " on your shortlist.";
  }

  void ShowActions(const Worker* chosen) override {
    EnableUnless(cmdcontract, WhyNoTalks(game_, chosen));
    ShowShortlistButton(game_, chosen, cmdshortlist);
    cmdshortlist.Text = CaptionFor(cmdshortlist.Text.Get(), AllChosen());
  }

 private:
  /// Puts all on it or takes all off, as the first one of them is. Nobody's row changes by it.
  void cmdshortlist_Click() {
    const std::vector<int> all = AllChosen();
    if (all.size() < 2) {
      TurnShortlist(game_, lstwres.Key());
    } else if (IsShortlisted(world(), all.front())) {
      DoToAll(game_, all,
              {"Take Off Shortlist",
               [this](const Worker& worker) {
                 return IsShortlisted(world(), worker.Uid)
                            ? ""
                            : worker.Name + " is not on your shortlist.";
               },
               [this](Worker& worker) { RemoveFromShortlist(world(), worker.Uid); }});
    } else {
      DoToAll(game_, all,
              {"Put On Shortlist",
               [this](const Worker& worker) { return WhyNotShortlist(world(), worker); },
               [this](Worker& worker) { AddToShortlist(world(), worker.Uid); }});
    }
    ShowChoice();
  }

  ui::ComboBox cmbtalks{*this, "cmbtalks", [this] { ShowList(); }};
  ui::Button cmdlist{*this, "cmdlist", "Shortlist", [this] { desk().Open("frmShortlist"); }};
  ui::Button cmdshortlist{*this, "cmdshortlist", "Put On Shortlist",
                          &frmOtherWres::cmdshortlist_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Talks", [this] { Negotiate(); }};
};

}  // namespace

SCREEN(frmRoster)
SCREEN(frmOtherWres)

}  // namespace grapplemont
