#include "records/modWresCheck.h"
#include "records/world.h"
#include "roster/screens/rosterscreens.h"
#include "roster/screens/screentalks.h"
#include "roster/screens/screenworkerpage.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// What is known of one worker.
class frmWorker : public ui::Screen {
 public:
  frmWorker(Game& game, int uid)
      : Screen(game.Desk(), "frmWorker", "Worker", ui::Role::Dialog), game_(game), uid_(uid) {}

  int Uid() const { return uid_; }

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdshortlist, &cmdcontract, &cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Large = true;
    page.Body = ui::Columns(
        {ui::Group("", {ui::Grow(txtpage)}).Grow(1), ui::Group("", {ui::Grow(txtmore)}).Grow(1)});
    return page;
  }

  void Load() override { Return(); }

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
  World& world() { return game_.World(); }
  const Worker* Subject() { return world().FindWorker(uid_); }

  void cmdshortlist_Click() {
    TurnShortlist(game_, uid_);
    Return();
  }
  void cmdcontract_Click() {
    if (const Worker* worker = Subject()) OpenTalks(game_, *worker);
  }
  void cmdback_Click() { Close(); }

  Game& game_;
  int uid_;
  ui::Report txtpage{*this, "txtpage"};
  ui::Report txtmore{*this, "txtmore"};
  ui::Button cmdshortlist{*this, "cmdshortlist", "Shortlist", &frmWorker::cmdshortlist_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Contract", &frmWorker::cmdcontract_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmWorker::cmdback_Click};
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

}  // namespace

std::unique_ptr<ui::Screen> MakefrmWorker(Game& game, int workerUid) {
  return std::make_unique<frmWorker>(game, workerUid);
}

void OpenWorkerPage(Game& game, int workerUid) {
  ui::Desk& desk = game.Desk();
  if (!game.World().FindWorker(workerUid))
    return desk.Say("Gone", "This worker is not in the business any more.");
  const frmWorker* page = PageBelow(desk, workerUid);
  if (!page) return desk.Open(MakefrmWorker(game, workerUid));
  while (desk.Top() != page) desk.Close(*desk.Top());
}

}  // namespace grapplemont
