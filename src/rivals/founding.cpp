#include "rivals/founding.h"

#include <algorithm>

#include "business/monthlymoney.h"
#include "records/arithmetic.h"
#include "records/modWresCheck.h"
#include "rivals/staffmarket.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

/// The Title of this name that a promotion has left behind, or any such once the file is full.
Title* LeftBehind(World& world, std::string_view name) {
  Title* any = nullptr;
  for (Title& title : world.Titles()) {
    if (title.Owner != kNoEnd) continue;
    if (title.Name == name) return &title;
    if (!any && world.Titles().Full()) any = &title;
  }
  return any;
}

/// "CWA Crown", or "CWA Crown II" and on where somebody has a Title of that name.
std::string TitleNameOf(const World& world, const Promotion& promotion, std::string_view what) {
  const std::string plain = promotion.Initials + " " + std::string(what);
  std::string name = plain;
  const auto isHeld = [&](const Title& title) {
    return title.Owner != kNoEnd && title.Name == name;
  };
  for (const char* behind : {" II", " III", " IV"})
    if (std::any_of(world.Titles().begin(), world.Titles().end(), isHeld)) name = plain + behind;
  return name;
}

/// A Title that comes back keeps its past.
void FoundTitle(World& world, const Promotion& promotion, std::string_view what, bool singles) {
  const TitleTerms terms{.Name = TitleNameOf(world, promotion, what), .Singles = singles};
  Title title =
      VacantTitle(world, terms, promotion.Uid, BySize(tuning::kNewTitleImage, promotion.Size));
  Title* before = LeftBehind(world, terms.Name);
  if (before && before->Name == terms.Name && before->Holder == 0) title.Reigns = before->Reigns;
  if (before)
    *before = title;
  else if (!world.Titles().Full())
    world.Titles().Append(title);
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
  for (auto& rank : promotion.Rank) rank = kNoEnd;
  for (Cash& money : promotion.MoneyBefore) money = kNoEnd;
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
  FoundTitle(world, promotion, "Crown", true);
  FoundTitle(world, promotion, "Tag Titles", false);
}

}  // namespace grapplemont
