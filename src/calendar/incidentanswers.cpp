#include "calendar/incidents.h"
#include "roster/release.h"

namespace grapplemont {

void FireFor(World& world, Worker& worker) {
  ReleaseWorker(world, worker);
}

void Suspend(Worker& worker, int months) {
  worker.Status = "Sus";
  worker.StatusMonths = months;
}

namespace {

/// Rivals make no use of debuts, turns and suspended Titles that the player has had in mind.
void GoOnWithoutThePlayer(World& world, const Promotion& former) {
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != former.Uid) continue;
    worker.Debuted = true;
    worker.TurnPending = false;
  }
  for (Title& title : world.Titles())
    if (title.Owner == former.Uid) title.Suspended = false;
}

bool IsEmployed(const World& world, const Show& show, int uid, bool isWorker) {
  const auto worksThere = [&](const auto* person) {
    return person && person->Employer == show.Owner;
  };
  return isWorker ? worksThere(world.FindWorker(uid)) : worksThere(world.FindStaff(uid));
}

/// A rival's voices may have left without anybody taking their place.
void ClearTheBooth(World& world, const Promotion& promotion) {
  for (Show& show : world.Shows()) {
    if (show.Owner != promotion.Uid) continue;
    if (!IsEmployed(world, show, show.Announcer, false)) show.Announcer = 0;
    if (IsEmployed(world, show, show.Colour, show.ColourIsWorker)) continue;
    show.Colour = 0;
    show.ColourIsWorker = false;
  }
}

}  // namespace

void ChangeJob(World& world, const Promotion& promotion) {
  GameInfo& game = world.Game();
  const Promotion& former = world.Player();
  GoOnWithoutThePlayer(world, former);
  ClearTheBooth(world, promotion);
  for (std::size_t i = game.Jobs.size() - 1; i > 0; --i) game.Jobs[i] = game.Jobs[i - 1];
  game.Jobs[1].EndImage = former.Image;
  game.Jobs[1].EndSize = former.Size;
  Job job;
  job.Promotion = promotion.Name.View();
  job.Started = world.Today();
  job.StartImage = promotion.Image;
  job.StartSize = promotion.Size;
  game.Jobs[0] = job;
  game.PlayerPromotion = promotion.Uid;
  game.TapeWait = 0;
  game.TvOfferWait = 0;
  for (Feud& feud : world.Feuds()) feud = {};
  world.Session.StartSize = promotion.Size;
}

}  // namespace grapplemont
