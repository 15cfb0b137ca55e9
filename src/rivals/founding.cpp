#include "rivals/founding.h"

#include <algorithm>

#include "business/monthlymoney.h"
#include "records/dates.h"
#include "records/modWresCheck.h"
#include "rivals/staffmarket.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"

namespace grapplemont {

namespace {

/// As many whole words of the name as leave room for `behind` in a Title's name.
std::string NamedAfter(std::string_view name, std::string_view behind) {
  constexpr auto kRoom = static_cast<std::size_t>(decltype(Title::Name)::kWidth);
  std::string_view front = name;
  while (front.size() + behind.size() > kRoom) {
    const auto blank = front.rfind(' ');
    if (blank == std::string_view::npos) break;
    front = front.substr(0, blank);
  }
  return std::string(front) + std::string(behind);
}

Title VacantTitle(const Promotion& promotion, std::string_view behind, bool singles) {
  Title title;
  title.Name = NamedAfter(promotion.Name, behind);
  title.Singles = singles;
  title.Owner = promotion.Uid;
  title.Image = BySize(tuning::kNewTitleImage, promotion.Size);
  for (Reign& reign : title.Reigns) {
    reign.Won = kNoTitleDate;
    reign.Lost = kNoTitleDate;
    reign.Holder = "None";
  }
  title.Reigns[0].Holder = "Vacant";
  return title;
}

}  // namespace

bool IsNameFree(const World& world, std::string_view name, std::string_view initials) {
  return std::none_of(world.Promotions().begin(), world.Promotions().end(),
                      [&](auto& p) { return p.Name == name || p.Initials == initials; });
}

int CountPromotions(const World& world) {
  return static_cast<int>(
      std::count_if(world.Promotions().begin(), world.Promotions().end(), IsAlive));
}

Promotion NewPromotion(const World& world, std::string_view name, std::string_view initials) {
  Promotion promotion;
  promotion.Uid = NextPromotionUid(world);
  promotion.Active = true;
  promotion.Name = name;
  promotion.Initials = initials;
  promotion.MeetingDay = "Monday";
  for (Word& rank : promotion.Rank) rank = kNoEnd;
  for (Long& money : promotion.MoneyBefore) money = kNoEnd;
  for (auto& split : promotion.Split) split = "None";
  promotion.CampName = "None";
  promotion.DevName = "None";
  return promotion;
}

Promotion& Open(World& world, Promotion promotion) {
  const RivalSpending spending = RivalSpendingFor(promotion.Size);
  promotion.Merchandising = spending.Merchandising;
  promotion.Production = spending.Production;
  promotion.TicketPrice = FairTicketPrice(promotion.Size);
  promotion.Rank[0] = StandingScore(promotion);
  Promotion& opened = world.Promotions().Append(promotion);
  Rosters rosters(world);
  FitRoster(world, opened, rosters);
  FitPosts(world, opened, Posts(world));
  return opened;
}

void FoundTitles(World& world, const Promotion& promotion) {
  world.Titles().Append(VacantTitle(promotion, " Crown", true));
  world.Titles().Append(VacantTitle(promotion, " Tag Titles", false));
}

}  // namespace grapplemont
