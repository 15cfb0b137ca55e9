#include "business/tvshows.h"

#include <algorithm>

#include "business/networks.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

constexpr int kShowNameLetters = 20;

/// Whether a network that cannot share its spots has a show in the slot that `counts`.
template <class Test>
bool HasInSlot(const World& world, const Network& network, std::string_view slot, Test counts) {
  const auto& shows = world.Shows();
  return !network.Generic && std::any_of(shows.begin(), shows.end(), [&](const Show& show) {
    return show.Network == network.Uid && show.Slot == slot && counts(show);
  });
}

}  // namespace

std::vector<const Show*> ShowsOf(const World& world, int promotionUid) {
  std::vector<const Show*> shows;
  for (const Show& show : world.Shows())
    if (show.Owner == promotionUid) shows.push_back(&show);
  return shows;
}

Show* PlayerShow(World& world, std::string_view name) {
  for (Show& show : world.Shows())
    if (show.Owner == world.PlayerUid() && show.Name == name) return &show;
  return nullptr;
}

std::string WhyNoShowName(std::string_view name) {
  if (TrimmedName(name) == kToBeDeleted) return "No show can be called that.";
  return WhyNoName(name, kShowNameLetters);
}

bool ShowNameTaken(const World& world, std::string_view name) {
  const auto& shows = world.Shows();
  return std::any_of(shows.begin(), shows.end(),
                     [&](const Show& show) { return show.Name == TrimmedName(name); });
}

bool SlotTaken(const World& world, const Network& network, std::string_view slot) {
  return HasInSlot(world, network, slot, [](const Show&) { return true; });
}

std::vector<int> FreeDays(const World& world, int promotionUid, const Network& network,
                          std::string_view slot) {
  std::vector<int> free;
  const std::vector<const Show*> own = ShowsOf(world, promotionUid);
  for (const Term& day : kWeekDays) {
    const auto isThen = [&](const Show& show) { return show.Day == day.Says; };
    const bool busy =
        std::any_of(own.begin(), own.end(), [&](const Show* show) { return isThen(*show); });
    if (!busy && !HasInSlot(world, network, slot, isThen)) free.push_back(day.Code);
  }
  return free;
}

void AddShow(World& world, std::string_view name, const TvDeal& deal) {
  Show show;
  show.Name = TrimmedName(name);
  show.Owner = deal.Owner;
  show.Day = Says(kWeekDays, deal.Day);
  show.Slot = deal.Slot;
  show.Network = deal.Network;
  show.ContractWeeks = deal.Weeks;
  world.Shows().Append(show);
  NoteDeed(world, kDeedOnAir, world.FindPromotion(deal.Owner), show.Name,
           NetworkName(world, deal.Network), deal.Weeks);
}

void EndShow(World& world, Show& show) {
  NoteDeed(world, kDeedOffAir, world.FindPromotion(show.Owner), show.Name,
           NetworkName(world, show.Network));
  // Marked first: in a world from elsewhere two shows may have one name.
  show.Name = kToBeDeleted;
  RemoveShow(world, kToBeDeleted);
}

void TellOfDeal(World& world, const Promotion& owner, std::string_view text) {
  const bool isPlayer = owner.Uid == world.PlayerUid();
  if (isPlayer || ShouldTell(world, world.Game().MailTv, owner.Size))
    AddNews(world, "TV News", text);
}

}  // namespace grapplemont
