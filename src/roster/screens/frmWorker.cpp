#include "roster/screens/frmWorker.h"

#include <algorithm>
#include <span>

#include "records/modWresCheck.h"
#include "records/nameindex.h"
#include "roster/market.h"
#include "roster/screens/screentalks.h"
#include "roster/workerfacts.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;
using Paragraphs = std::vector<ui::Report::Paragraph>;

constexpr std::size_t kAtLeft = 3;  // groups that everybody has: himself, his work, his skill

Paragraphs Told(std::span<const FactGroup> groups) {
  Paragraphs words;
  for (const FactGroup& group : groups) {
    words.push_back({Style::Strong, group.Heading});
    for (const std::string& line : group.Lines) words.push_back({Style::Line, line});
  }
  return words;
}

/// The first group's heading is the title.
void WriteFacts(ui::Report& page, std::span<const FactGroup> facts) {
  Paragraphs words = Told(facts);
  words.front().As = Style::Heading;
  page.Write(std::move(words));
}

/// Two sheets side by side, under a title that names him already: who he is, his work and his skill
/// at the left, everything else at the right.
void WriteWorkerPages(ui::Report& left, ui::Report& right, const World& world, const Worker* worker,
                      const std::string& nobody) {
  right.Write(Paragraphs());
  if (!worker) return left.Write({{Style::Muted, nobody}});
  const std::vector<FactGroup> facts = WorkerFacts(world, *worker);
  const std::span<const FactGroup> all = facts;
  Paragraphs words = Told(all.first(kAtLeft));
  words.erase(words.begin());
  left.Write(std::move(words));
  right.Write(Told(all.subspan(kAtLeft)));
}

/// What is known of one worker.
class frmWorker : public GameScreen {
 public:
  frmWorker(Game& game, int uid)
      : GameScreen(game, "frmWorker", "Worker", {.Is = ui::Role::Dialog}), uid_(uid) {}

  int Uid() const { return uid_; }

  ui::Page Layout() override {
    ui::Page page = PageOf(ui::Columns({ui::Group("", {ui::Grow(txtpage)}).Grow(1),
                                        ui::Group("", {ui::Grow(txtmore)}).Grow(1)}),
                           nullptr, {&cmdshortlist, &cmdcontract});
    page.Large = true;
    return page;
  }

  void Return() override {
    const Worker* worker = Subject();
    const bool own = worker && WorksForPlayer(world(), *worker);
    if (worker) Title = worker->Name.Str();
    WriteWorkerPages(txtpage, txtmore, world(), worker,
                     Title.Get() + " is not in the business any more.");
    ShowShortlistButton(game_, worker, cmdshortlist);
    cmdcontract.Text = own ? "Contract" : "Talks";
    EnableUnless(cmdcontract, worker ? WhyNoTalks(game_, worker) : "There is nobody to talk to.");
  }

 private:
  const Worker* Subject() { return world().FindWorker(uid_); }

  void cmdshortlist_Click() {
    TurnShortlist(game_, uid_);
    Return();
  }
  void cmdcontract_Click() {
    if (const Worker* worker = Subject()) OpenTalks(game_, *worker);
  }

  int uid_;
  ui::Report txtpage{*this, "txtpage"};
  ui::Report txtmore{*this, "txtmore"};
  ui::Button cmdshortlist{*this, "cmdshortlist", "Shortlist", &frmWorker::cmdshortlist_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Contract", &frmWorker::cmdcontract_Click};
};

/// His page, if only pages of workers lie above it.
frmWorker* PageBelow(ui::Desk& desk, int uid) {
  const auto& screens = desk.Screens();
  for (auto screen = screens.rbegin(); screen != screens.rend(); ++screen) {
    auto* page = dynamic_cast<frmWorker*>(screen->get());
    if (!page || page->Uid() == uid) return page;
  }
  return nullptr;
}

/// Opens the worker's page, or goes back to it where it lies below others of its kind. Says so when
/// there is nobody of this uid any more.
void OpenWorkerPage(Game& game, int workerUid) {
  ui::Desk& desk = game.Desk();
  if (!game.World().FindWorker(workerUid))
    return desk.Say("Gone", "This worker is not in the business any more.");
  const frmWorker* page = PageBelow(desk, workerUid);
  if (!page) return desk.Open(std::make_unique<frmWorker>(game, workerUid));
  while (desk.Top() != page) desk.Close(*desk.Top());
}

std::vector<ui::Link> LinksOf(Game& game, NameIndex& names, std::string_view text) {
  std::vector<ui::Link> links;
  if (!game.HasWorld()) return links;
  for (const NameSpan& name : names.Find(game.World(), text)) {
    const auto& page = name.Of == NameSpan::Kind::Worker ? game.OpenWorker : game.OpenPromotion;
    if (page) links.push_back({name.From, name.Length, [&page, uid = name.Uid] { page(uid); }});
  }
  return links;
}

/// Whom the player keeps an eye on, and how they stand today.
class frmShortlist : public GameScreen {
 public:
  explicit frmShortlist(Game& game) : GameScreen(game, "frmShortlist", "Shortlist") {
    BackBefore(cmdcontract);
    lstwres.Extends = true;
    lstwres.Acts = {{&cmdpage}, {&cmdcontract}, {&cmdremove}};
    lstwres.EmptyText = "Nobody yet. Put somebody on it under Other Workers or on a worker's page.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("", {ui::Grow(lstwres)}).Grow(5),
                               ui::Group("", {ui::Grow(txtpage)}).Grow(3)}),
                  &lblfacts, {&cmdremove, &cmdpage}, &cmdcontract);
  }

  void Return() override {
    ShowList();
    if (lstwres.Selected() == 0) lstwres.Select(1);
    ShowChoice();
  }

 private:
  const Worker* Chosen() { return world().FindWorker(lstwres.Key()); }

  void ShowList() {
    FillTable(lstwres, columns_, Shortlisted(world()));
    lblfacts.Text = std::to_string(lstwres.Count()) + " of " +
                    std::to_string(world().Game().Shortlist.size()) + " places taken.";
  }

  void ShowChoice() {
    const Worker* chosen = Chosen();
    WriteWorkerPage(txtpage, world(), chosen, "Nobody is chosen.");
    EnableUnless(cmdcontract, WhyNoTalks(game_, chosen));
    for (ui::Button* button : {&cmdremove, &cmdpage})
      EnableUnless(*button, chosen ? "" : kNobodyChosen);
  }

  /// The place in the list stays, so that several can be taken off one after the other.
  void cmdremove_Click() {
    const int place = lstwres.Selected();
    for (const int uid : lstwres.Keys()) RemoveFromShortlist(world(), uid);
    lstwres.Select(0);
    ShowList();
    lstwres.Select(std::min(place, lstwres.Count()));
    ShowChoice();
  }
  void cmdcontract_Click() {
    if (const Worker* chosen = Chosen()) OpenTalks(game_, *chosen);
  }

  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Worker> columns_ = PeopleTable(
      {{{"Standing", ui::ColumnKind::Text, 6},
        [this](const Worker& worker) { return MarketStanding(world(), worker); }},
       {{"Status", ui::ColumnKind::Text, 2, "Empty for who is available."}, StatusCell}});
  ui::ListBox lstwres{*this, "lstwres", HeadingsOf(columns_), &frmShortlist::ShowChoice, cmdpage};
  ui::Report txtpage{*this, "txtpage"};
  ui::Button cmdremove{*this, "cmdremove", "Remove", &frmShortlist::cmdremove_Click};
  ui::Button cmdpage{*this, "cmdpage", "Open Page",
                     [this] { OpenWorkerPage(game_, lstwres.Key()); }};
  ui::Button cmdcontract{*this, "cmdcontract", "Talks", &frmShortlist::cmdcontract_Click};
};

}  // namespace

void WriteWorkerPage(ui::Report& page, const World& world, const Worker* worker,
                     const std::string& nobody) {
  if (!worker) return page.Write({{Style::Muted, nobody}});
  WriteFacts(page, WorkerFacts(world, *worker));
}

void WriteStaffPage(ui::Report& page, const World& world, const Staff* staff,
                    const std::string& nobody) {
  if (!staff) return page.Write({{Style::Muted, nobody}});
  WriteFacts(page, StaffFacts(world, *staff));
}

void ConnectRoster(Game& game) {
  game.OpenWorker = [&game](int uid) { OpenWorkerPage(game, uid); };
  game.Desk().FindLinks = [&game, names = std::make_shared<NameIndex>()](std::string_view text) {
    return LinksOf(game, *names, text);
  };
}

SCREEN(frmShortlist)

}  // namespace grapplemont
