#include "roster/screens/screentalks.h"

#include <algorithm>

#include "records/modWresCheck.h"
#include "records/world.h"
#include "roster/screens/contractscreens.h"
#include "roster/shortlist.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// A show that is being booked or held counts on the people it began with.
constexpr const char* kShowScreens[] = {"frmBooking", "frmPPVBooking", "frmMatchOutput",
                                        "frmPostShow", "frmIncident"};

bool IsAmidShow(Game& game) {
  const auto isShow = [](const auto& screen) {
    return std::find(std::begin(kShowScreens), std::end(kShowScreens), screen->Name()) !=
           std::end(kShowScreens);
  };
  const auto& screens = game.Desk().Screens();
  return std::any_of(screens.begin(), screens.end(), isShow);
}

}  // namespace

std::string WhyNoTalks(Game& game, const Worker* worker) {
  if (!worker) return kNobodyChosen;
  if (worker->Unsackable && worker->Employer != 0)
    return worker->Name + " is unsackable: the agreement has no end, and nothing to talk about.";
  return IsAmidShow(game) ? "There is a show to see to first." : "";
}

void OpenTalks(Game& game, const Worker& worker) {
  const bool own = WorksForPlayer(game.World(), worker);
  own ? OpenWresContract(game, worker.Uid) : OpenOtherContract(game, worker.Uid);
}

void TurnShortlist(Game& game, int workerUid) {
  World& world = game.World();
  const Worker* worker = world.FindWorker(workerUid);
  if (IsShortlisted(world, workerUid)) return RemoveFromShortlist(world, workerUid);
  if (!worker) return;
  if (const std::string why = WhyNotShortlist(world, *worker); !why.empty())
    return game.Desk().Say("Shortlist", why);
  AddToShortlist(world, workerUid);
}

void ShowShortlistButton(Game& game, const Worker* worker, ui::Button& button) {
  const World& world = game.World();
  const bool listed = worker && IsShortlisted(world, worker->Uid);
  const bool own = worker && WorksForPlayer(world, *worker);
  button.Text = listed ? "Take Off Shortlist" : "Put On Shortlist";
  EnableUnless(button, !worker          ? kNobodyChosen
                       : own && !listed ? worker->Name + " works for you."
                                        : "");
}

}  // namespace grapplemont
