#include <optional>

#include "calendar/daykind.h"
#include "calendar/daysteps.h"
#include "calendar/events.h"
#include "calendar/image.h"
#include "calendar/imagetables.h"
#include "calendar/showconsequences.h"
#include "records/fields/fields.h"
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
  NoteDeed(world, kDeedCalledOff, &rival, rival.Name);
  TellOf(world, option, rival, rival.Initials + what);
}

/// The draw of those who carried it; nothing when it was called off.
std::optional<int> SimulateRivalEvent(World& world, Promotion& rival, int type) {
  const auto quality = QualityOf(world, rival.Uid, EventWeight);
  if (quality) {
    MoveImage(world, rival, RivalEventImageStep(rival.Size, *quality));
    return quality;
  }
  TellCancelled(world, rival, world.Game().MailShows, " were forced to cancel their last show.");
  CallOffEvent(world, rival, type);
  return std::nullopt;
}

std::optional<int> SimulateRivalTv(World& world, Promotion& rival) {
  const auto quality = QualityOf(world, rival.Uid, TvWeight);
  if (quality) {
    CheckShow(world, rival);
    MoveImage(world, rival, RivalTvImageStep(rival.Size, *quality));
    return quality;
  }
  TellCancelled(world, rival, world.Game().MailTvShow,
                " were forced to cancel their last television show.");
  CallOffTv(world, rival);
  return std::nullopt;
}

void RivalEvent(World& world, Promotion& rival) {
  const int type = EventThisMonth(world, rival);
  const std::optional<int> draw = SimulateRivalEvent(world, rival, type);
  if (!draw) return;
  PayEventSponsors(world, rival);
  const Event* event = EventOf(world, rival.Uid, MonthOf(world.Today()));
  if (!event) return;
  const ShowTakings takings = EventReport(world, rival, *event, type);
  NoteShow(world, kDeedEventHeld, rival, event->Name, *draw, takings.Viewers, takings.People);
}

void RivalTv(World& world, Promotion& rival) {
  const std::optional<int> draw = SimulateRivalTv(world, rival);
  if (!draw) return;
  PayTvSponsors(world, rival);
  const Show* show = ShowOn(world, rival.Uid, world.Today());
  const ShowTakings takings = TvReport(world, rival);
  if (show) NoteShow(world, kDeedTvHeld, rival, show->Name, *draw, takings.Viewers, takings.People);
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
