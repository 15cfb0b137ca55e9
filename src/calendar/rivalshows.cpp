#include <optional>

#include "calendar/daykind.h"
#include "calendar/daysteps.h"
#include "calendar/events.h"
#include "calendar/image.h"
#include "calendar/imagetables.h"
#include "calendar/showconsequences.h"
#include "records/dates.h"
#include "records/modVar.h"
#include "rivals/rivals.h"
#include "show/showresults.h"

namespace grapplemont {

namespace {

constexpr int kEnoughPeople = 6;

/// How often a worker counts in a show's mean, by his position; 0 for who does not carry a show.
int EventWeight(int position) {
  if (position == kMainEvent) return 2;
  return position == kUpperMidcard || position == kMidcard || position == kNonWrestler ||
                 position == kManager
             ? 1
             : 0;
}

int TvWeight(int position) {
  if (position == kMainEvent) return 2;
  return position >= kUpperMidcard && position <= kLowerMidcard ? 1 : 0;
}

/// The weighed mean Over of a roster; nothing when too few are there to hold a show.
std::optional<int> QualityOf(const World& world, int promotionUid, int (*weight)(int)) {
  int count = 0, sum = 0;
  for (const Worker& worker : world.Workers()) {
    if (worker.Employer != promotionUid) continue;
    count += weight(worker.Position);
    sum += weight(worker.Position) * worker.Over;
  }
  if (count < kEnoughPeople) return std::nullopt;
  return sum / count;
}

void TellCancelled(World& world, const Promotion& rival, int option, const char* what) {
  TellOf(world, option, rival, rival.Initials + what);
}

bool SimulateRivalEvent(World& world, Promotion& rival, int type) {
  const auto quality = QualityOf(world, rival.Uid, EventWeight);
  if (quality) {
    MoveImage(world, rival, RivalEventImageStep(rival.Size, *quality));
    return true;
  }
  TellCancelled(world, rival, world.Game().MailShows, " were forced to cancel their last show.");
  CallOffEvent(world, rival, type);
  return false;
}

bool SimulateRivalTv(World& world, Promotion& rival) {
  const auto quality = QualityOf(world, rival.Uid, TvWeight);
  if (quality) {
    CheckShow(world, rival);
    MoveImage(world, rival, RivalTvImageStep(rival.Size, *quality));
    return true;
  }
  TellCancelled(world, rival, world.Game().MailTvShow,
                " were forced to cancel their last television show.");
  CallOffTv(world, rival);
  return false;
}

void RivalEvent(World& world, Promotion& rival) {
  const int type = EventThisMonth(world, rival);
  if (!SimulateRivalEvent(world, rival, type)) return;
  PayEventSponsors(world, rival);
  if (const Event* event = EventOf(world, rival.Uid, MonthOf(world.Today())))
    EventReport(world, rival, *event, type);
}

void RivalTv(World& world, Promotion& rival) {
  if (!SimulateRivalTv(world, rival)) return;
  PayTvSponsors(world, rival);
  TvReport(world, rival);
}

}  // namespace

void RivalShows(World& world) {
  for (Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    if (IsEventDay(world.Today()))
      RivalEvent(world, rival);
    else if (HasTvToday(world, rival.Uid))
      RivalTv(world, rival);
  }
}

}  // namespace grapplemont
