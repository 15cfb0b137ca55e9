#include <array>

#include "calendar/incidents.h"
#include "calendar/screens/calendarscreens.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/leaving.h"
#include "roster/talks.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

constexpr std::array<int, 4> kSuspensions = {1, 3, 6, 12};  // months

/// What happened backstage, one after the other. Each answer takes it off the list for good.
class frmIncident : public ui::Screen {
 public:
  explicit frmIncident(Game& game)
      : Screen(game.Desk(), "frmIncident", "Backstage", ui::Role::Dialog), game_(game) {
    txtincident.Brief = txtchoices.Brief = true;
    lbldone.Visible = false;
    lbldone.Colour = ui::Tone::Muted;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblleft;
    page.Actions = {&cmdfire};
    for (int i = 1; i <= cmdsuspend.Count(); ++i) page.Actions.push_back(&cmdsuspend(i));
    page.Actions.insert(page.Actions.end(), {&cmdignore, &cmdaccept});
    page.Main = &cmdaccept;
    page.Then = &cmdignore;
    page.Cancel = &cmdignore;
    page.Body = ui::Rows({lbldone, txtincident, lblabout, txtchoices});
    return page;
  }

  void Load() override { ShowFirst(); }
  void Return() override { ShowFirst(); }

 private:
  World& world() { return game_.World(); }

  void ShowFirst() {
    const Incident* incident = FirstIncident(world());
    if (!incident) return Leave();
    txtincident.Write(IncidentText(world(), *incident));
    lblleft.Text = Waiting();
    lblleft.Visible = !lblleft.Text->empty();
    const bool isOffer = incident->Type == kJobOffer;
    cmdaccept.Visible = isOffer;
    cmdignore.Text = isOffer ? "Decline" : incident->Type >= kRehab ? "Continue" : "Ignore";
    lblabout.Text = isOffer ? AboutPromotion(incident->Uid) : AboutWorker(incident->Uid);
    ShowSanctions(*incident);
    txtchoices.WriteLines(isOffer ? "Accept: you leave for good, and your feuds end with it.\n"
                                    "Decline: nothing changes."
                                  : Consequences(*incident));
  }

  /// What each answer comes to.
  std::string Consequences(const Incident& incident) {
    const Worker& worker = *world().FindWorker(incident.Uid);
    const int wage = MonthlyWage(worker);
    std::string text = worker.Unsackable
                           ? std::string()
                           : "Fire: gone today, with their Titles and feuds, which saves " +
                                 Dollars(wage) + " a month. A rival may sign them at once.\n";
    if (incident.Type > kPolice)
      return text + "Continue: the place is kept, and the wage of " + Dollars(wage) +
             " a month paid.";
    for (const int months : kSuspensions)
      text += "Suspend " + Counted(months, "Month") + ": not to be booked in that time, and " +
              Dollars(1LL * months * wage) + " paid for nothing.\n";
    return text + "Ignore: nothing changes.";
  }

  void ShowSanctions(const Incident& incident) {
    const Worker* worker = incident.Type == kJobOffer ? nullptr : world().FindWorker(incident.Uid);
    cmdfire.Visible = worker != nullptr;
    cmdfire.Enabled = worker && !worker->Unsackable;
    cmdfire.Tip = cmdfire.Enabled ? "" : "The contract does not allow it.";
    for (int i = 1; i <= cmdsuspend.Count(); ++i)
      cmdsuspend(i).Visible = worker && incident.Type <= kPolice;
  }

  std::string Waiting() {
    int count = 0;
    for (const Incident& incident : world().Incidents()) count += incident.Type != 0;
    return count <= 1 ? "" : "And " + std::to_string(count - 1) + " more.";
  }

  std::string AboutWorker(int uid) {
    const Worker& worker = *world().FindWorker(uid);
    return std::string(PositionText(worker.Position)) + ", Over " + std::to_string(worker.Over) +
           ", behaviour " + std::to_string(worker.Behaviour) + ", morale " +
           std::to_string(worker.Morale) + ". " + ContractLine(worker) + ".";
  }

  std::string AboutPromotion(int uid) {
    const Promotion& promotion = *world().FindPromotion(uid);
    return promotion.Name + ": " + std::string(SizeText(promotion.Size)) + ", image " +
           std::to_string(promotion.Image) + "%.";
  }

  Worker* Culprit() { return world().FindWorker(world().Incidents()[1].Uid); }

  /// Goes on to the next, with a line of what was decided; empty where there was nothing to decide.
  void Next(const std::string& done) {
    CloseIncident(world());
    lbldone.Text = done;
    lbldone.Visible = !done.empty();
    if (!done.empty()) NoteOnMainScreen(game_, done);
    ShowFirst();
  }

  void Leave() {
    Close();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  void cmdfire_Click() {
    Worker* worker = Culprit();
    if (!desk().Ask("Fire?", "Are you sure you wish to fire " + worker->Name.Str() + "?",
                    ui::Default::No))
      return;
    const std::string done = worker->Name + " was fired.";
    ReleaseWorker(world(), *worker);
    Next(done);
  }
  void cmdsuspend_Click(int months) {
    Worker& culprit = *Culprit();
    Suspend(culprit, months);
    Next(culprit.Name + " was suspended for " + Counted(months, "month") + ".");
  }
  void cmdignore_Click() {
    const Incident& incident = *FirstIncident(world());
    const std::string name = incident.Type == kJobOffer
                                 ? world().FindPromotion(incident.Uid)->Name.Str()
                                 : world().FindWorker(incident.Uid)->Name.Str();
    Next(incident.Type == kJobOffer ? "The offer of " + name + " was declined."
         : incident.Type >= kRehab  ? ""
                                    : "What " + name + " did was ignored.");
  }
  void cmdaccept_Click() {
    const Promotion& promotion = *world().FindPromotion(world().Incidents()[1].Uid);
    if (!desk().Ask("Job Offer",
                    "Are you sure you wish to leave " + world().Player().Name.Str() + " for " +
                        promotion.Name.Str() + "?",
                    ui::Default::No))
      return;
    const std::string done = "You left for " + promotion.Name.Str() + ".";
    ChangeJob(world(), promotion);
    Next(done);
  }

  Game& game_;
  ui::Label lblleft{*this, "lblleft"};
  ui::Label lbldone{*this, "lbldone"};
  ui::Report txtincident{*this, "txtincident"};
  ui::Label lblabout{*this, "lblabout"};
  ui::Report txtchoices{*this, "txtchoices"};
  ui::Button cmdfire{*this, "cmdfire", "Fire", &frmIncident::cmdfire_Click};
  ui::Array<ui::Button> cmdsuspend{
      "cmdsuspend", static_cast<int>(kSuspensions.size()), [this](const std::string& name, int i) {
        const int months = kSuspensions[static_cast<std::size_t>(i - 1)];
        return std::make_unique<ui::Button>(*this, name, "Suspend " + Counted(months, "Month"),
                                            [this, months] { cmdsuspend_Click(months); });
      }};
  ui::Button cmdignore{*this, "cmdignore", "Ignore", &frmIncident::cmdignore_Click};
  ui::Button cmdaccept{*this, "cmdaccept", "Accept", &frmIncident::cmdaccept_Click};
};

}  // namespace

SCREEN(frmIncident)

}  // namespace grapplemont
