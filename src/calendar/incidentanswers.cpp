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

void ChangeJob(World& world, const Promotion& promotion) {
  GameInfo& game = world.Game();
  const Promotion& former = world.Player();
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
