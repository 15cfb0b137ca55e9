#include "calendar/showconsequences.h"

#include <algorithm>
#include <array>

#include "business/networks.h"
#include "business/past.h"
#include "business/sponsorlimits.h"
#include "calendar/daykind.h"
#include "calendar/daysteps.h"
#include "calendar/events.h"
#include "calendar/goodwill.h"
#include "calendar/image.h"
#include "calendar/imagetables.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "show/showresults.h"

namespace grapplemont {

namespace {

constexpr int kNoEventImage = 10;
constexpr int kCancelledImage = 15;

// By Event type from 1 to 4, in dollars.
constexpr std::array<int, 4> kCancelCharges = {2000000, 1000000, 100000, 5000};

void ApplyGoodwill(World& world, Promotion& player, const Goodwill& goodwill) {
  for (const int step : goodwill)
    if (step != 0) MoveImage(world, player, step);
}

ShowTakings HoldEvent(World& world, Promotion& player, const Event& event, int type) {
  ApplyGoodwill(world, player, EventGoodwill(world.Game()));
  MoveImage(world, player, EventImageStep(player.Size, world.Session.ShowRating));
  const long long sponsors = PayEventSponsors(world, player);
  ShowTakings takings = EventReport(world, player, event, type);
  takings.Income += sponsors;
  takings.Costs += world.Session.ExtraCost;
  return takings;
}

ShowTakings HoldTv(World& world, Promotion& player) {
  CheckShow(world, player);
  ApplyGoodwill(world, player, TvGoodwill(world.Game()));
  MoveImage(world, player, TvImageStep(player.Size, world.Session.ShowRating));
  const long long sponsors = PayTvSponsors(world, player);
  ShowTakings takings = TvReport(world, player);
  takings.Income += sponsors;
  return takings;
}

/// The past keeps the show under its name, and the promotion as the show left it.
void RememberShow(World& world, const Promotion& player, HistoryKind kind, std::string_view name,
                  bool cancelled, const ShowTakings& takings) {
  HistoryEntry entry = EntryOf(world, player, kind);
  entry.Name = name;
  entry.CalledOff = cancelled;
  entry.Rating = cancelled ? 0 : std::clamp(world.Session.ShowRating, 0, 100);
  entry.Viewers = takings.Viewers;
  entry.Attendance = takings.People;
  entry.Income = takings.Income;
  entry.Costs = takings.Costs;
  Remember(world, entry);
}

void EventDay(World& world, Promotion& player, bool cancelled) {
  const Event* event = PlayerEvent(world, MonthOf(world.Today()));
  if (!event || event->Type == 0) return ChangeImage(world, player, kNoEventImage, false);
  const int type = event->Type;  // the image sets it anew
  ShowTakings takings;
  if (cancelled)
    takings.Costs = CallOffEvent(world, player, type);
  else
    takings = HoldEvent(world, player, *event, type);
  RememberShow(world, player, kPastEvent, event->Name, cancelled, takings);
}

void TvDay(World& world, Promotion& player, bool cancelled) {
  ShowTakings takings;
  if (cancelled)
    CallOffTv(world, player);
  else
    takings = HoldTv(world, player);
  if (const Show* show = ShowOn(world, player.Uid, world.Today()))
    RememberShow(world, player, kPastTv, show->Name, cancelled, takings);
}

long long Receive(Promotion& promotion, int thousands) {
  const long long dollars = thousands * 1000LL;
  promotion.Money += dollars;
  promotion.ThisMonth.SponsorIncome += dollars;
  return dollars;
}

}  // namespace

int CallOffEvent(World& world, Promotion& promotion, int type) {
  const int dollars =
      type >= 1 && type <= 4 ? kCancelCharges[static_cast<std::size_t>(type - 1)] : 0;
  promotion.Money -= dollars;
  ChangeImage(world, promotion, kCancelledImage, false);
  return dollars;
}

void CallOffTv(World& world, Promotion& promotion) {
  if (Show* show = ShowOn(world, promotion.Uid, world.Today())) ++show->Rating4;
  ChangeImage(world, promotion, kCancelledImage, false);
}

void CheckShow(World& world, const Promotion& promotion) {
  Show* show = ShowOn(world, promotion.Uid, world.Today());
  const Network* network = show ? world.FindNetwork(show->Network) : nullptr;
  if (!network) return;
  const bool tells = promotion.Uid == world.PlayerUid();
  if (promotion.Risk > SlotRisk(*network, show->Slot)) {
    ++show->Rating4;
    if (tells)
      AddNews(world, "TV News",
              network->Name +
                  " are not happy with the risky nature of our last show. They are asking us to "
                  "tone it down.");
  }
  if (promotion.Production < network->Production) {
    ++show->Rating4;
    if (tells)
      AddNews(world, network->Name,
              "We are not happy with the production quality of " + show->Name.Str() +
                  ", please improve your productions values ASAP.");
  }
}

long long PayEventSponsors(World& world, Promotion& promotion) {
  long long dollars = 0;
  for (const Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == promotion.Uid) dollars += Receive(promotion, sponsor.Pay);
  return dollars;
}

long long PayTvSponsors(World& world, Promotion& promotion) {
  long long dollars = 0;
  for (const Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion != promotion.Uid) continue;
    const bool isMain = promotion.Sponsor[0] == sponsor.Uid;
    dollars += Receive(promotion, SponsorPayForTv(sponsor, isMain));
  }
  return dollars;
}

void PlayerShowConsequences(World& world, bool cancelled) {
  Promotion& player = world.Player();
  if (IsEventDay(world.Today()))
    EventDay(world, player, cancelled);
  else if (HasTvToday(world, player.Uid))
    TvDay(world, player, cancelled);
  world.Session.ExtraCost = 0;
}

}  // namespace grapplemont
