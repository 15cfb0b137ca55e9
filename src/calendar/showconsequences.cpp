#include "calendar/showconsequences.h"

#include <algorithm>
#include <array>

#include "business/networks.h"
#include "business/sponsorlimits.h"
#include "calendar/daykind.h"
#include "calendar/daysteps.h"
#include "calendar/events.h"
#include "calendar/image.h"
#include "calendar/imagetables.h"
#include "records/dates.h"
#include "records/modVar.h"
#include "show/showresults.h"

namespace grapplemont {

namespace {

constexpr int kNoEventImage = 10;
constexpr int kCancelledImage = 15;
constexpr int kPoorReputation = 25;

// By Event type from 1 to 4, in dollars.
constexpr std::array<int, 4> kCancelCharges = {2000000, 1000000, 100000, 5000};

// By difficulty from 1 to 4: what the public thinks of a show before it has seen it.
constexpr std::array<int, 4> kEventGoodwill = {1, 0, -2, -3};
constexpr std::array<int, 4> kTvGoodwill = {1, 0, -1, -2};

void ApplyGoodwill(World& world, Promotion& player, const std::array<int, 4>& byDifficulty) {
  const int difficulty = std::clamp<int>(world.Game().Difficulty, kEasy, kRockHard);
  if (const int step = byDifficulty[static_cast<std::size_t>(difficulty - 1)]; step != 0)
    MoveImage(world, player, step);
  if (world.Game().Reputation < kPoorReputation) ChangeImage(world, player, 1, false);
}

/// False when the Event was called off.
bool EventReview(World& world, Promotion& player, int type, bool cancelled) {
  if (cancelled) {
    CallOffEvent(world, player, type);
    return false;
  }
  ApplyGoodwill(world, player, kEventGoodwill);
  if (world.Game().Reputation == 0) ChangeImage(world, player, 1, false);
  return true;
}

bool TvReview(World& world, Promotion& player, bool cancelled) {
  if (cancelled) {
    CallOffTv(world, player);
    return false;
  }
  CheckShow(world, player);
  ApplyGoodwill(world, player, kTvGoodwill);
  return true;
}

void EventDay(World& world, Promotion& player, bool cancelled) {
  const int type = EventThisMonth(world, player);
  if (type == 0) return ChangeImage(world, player, kNoEventImage, false);
  if (!EventReview(world, player, type, cancelled)) return;
  MoveImage(world, player, EventImageStep(player.Size, world.Session.ShowRating));
  PayEventSponsors(world, player);
  if (const Event* event = PlayerEvent(world, MonthOf(world.Today())))
    EventReport(world, player, *event, type);
}

void TvDay(World& world, Promotion& player, bool cancelled) {
  if (!TvReview(world, player, cancelled)) return;
  MoveImage(world, player, TvImageStep(player.Size, world.Session.ShowRating));
  PayTvSponsors(world, player);
  TvReport(world, player);
}

void Receive(Promotion& promotion, int thousands) {
  promotion.Money += thousands * 1000LL;
  promotion.ThisMonth.SponsorIncome += thousands * 1000LL;
}

}  // namespace

void CallOffEvent(World& world, Promotion& promotion, int type) {
  if (type >= 1 && type <= 4) promotion.Money -= kCancelCharges[static_cast<std::size_t>(type - 1)];
  ChangeImage(world, promotion, kCancelledImage, false);
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

void PayEventSponsors(World& world, Promotion& promotion) {
  for (const Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == promotion.Uid) Receive(promotion, sponsor.Pay);
}

void PayTvSponsors(World& world, Promotion& promotion) {
  for (const Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion != promotion.Uid) continue;
    const bool isMain = promotion.Sponsor[0] == sponsor.Uid;
    Receive(promotion, SponsorPayForTv(sponsor, isMain));
  }
}

void PlayerShowConsequences(World& world, bool cancelled) {
  Promotion& player = world.Player();
  if (IsEventDay(world.Today()))
    EventDay(world, player, cancelled);
  else if (HasTvToday(world, player.Uid))
    TvDay(world, player, cancelled);
}

}  // namespace grapplemont
