#include "tools/televisionwork.h"

#include "business/promotapes.h"
#include "business/tvshows.h"
#include "business/tvtalks.h"
#include "records/fields/fields.h"

namespace grapplemont::tools {

namespace {

/// "CWA Friday", or "CWA Friday 2" where that is taken.
std::string NameOfShow(const World& world, int day) {
  const std::string plain = world.Player().Initials + " " + std::string(Says(kWeekDays, day));
  std::string name = plain;
  for (int n = 2; ShowNameTaken(world, name); ++n) name = plain + " " + std::to_string(n);
  return name;
}

void TakeOffer(World& world) {
  const auto offer = OfferOnTheTable(world);
  if (!offer) return;
  if (offer->Days.empty() || world.Shows().Full()) return DropOffer(world);
  const int day = offer->Days.front();
  AcceptOffer(world, *offer, day, NameOfShow(world, day));
}

void ExtendDeals(World& world) {
  const Promotion& player = world.Player();
  for (Show& show : world.Shows()) {
    const Network* network = world.FindNetwork(show.Network);
    if (show.Owner == player.Uid && network)
      show.ContractWeeks += TalkOfExtension(player, show, *network).Weeks;
  }
}

void SendATape(World& world) {
  if (!ShowsOf(world, world.PlayerUid()).empty() || !WhyNoTape(world).empty() ||
      world.Networks().Count() == 0)
    return;
  SendTape(world, world.Networks()[world.RandomDraw(world.Networks().Count())].Uid);
}

}  // namespace

void WorkOnTelevision(World& world) {
  TakeOffer(world);
  if (IsMonday(world.Today())) ExtendDeals(world);
  if (DayOfMonth(world.Today()) == 2) SendATape(world);
}

}  // namespace grapplemont::tools
