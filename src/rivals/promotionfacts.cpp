#include "rivals/promotionfacts.h"

#include <algorithm>

#include "business/past.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "rivals/ownership.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"

namespace grapplemont {

namespace {

std::string Line(const std::string& what, const std::string& value) {
  return what + ": " + value + "\n";
}

std::string Plain(const std::string& name) {
  return name.empty() ? "None" : name;
}

std::string OwnerText(const World& world, const Promotion& promotion) {
  const Staff* owner = OwnerOf(world, promotion.Uid);
  return owner ? owner->Name.Str() : "Nobody, the board decides";
}

int PlaceOnCard(const Worker& worker) {
  return IsOnRoster(worker) ? int(worker.Position) : 100 + worker.Position;
}

/// A game that has just begun knows a standing without the money to it.
int MoneyThen(const Promotion& promotion, std::size_t monthsAgo) {
  const int money = promotion.MoneyBefore[monthsAgo];
  return money == kNoEnd ? int(promotion.Money) : money;
}

MonthEnd MonthEndOf(const World& world, const Promotion& promotion, std::size_t monthsAgo) {
  const PastStanding then = FromScore(world.Today(), promotion.Rank[monthsAgo]);
  return {monthsAgo == 0 ? "Last month end" : std::to_string(monthsAgo) + " before it", then.Size,
          then.Image, MoneyThen(promotion, monthsAgo)};
}

}  // namespace

std::vector<const Promotion*> PromotionsByStanding(const World& world) {
  std::vector<const Promotion*> all;
  for (const Promotion& promotion : world.Promotions())
    if (IsAlive(promotion)) all.push_back(&promotion);
  std::ranges::stable_sort(all,
                           [](auto* a, auto* b) { return StandingScore(*a) > StandingScore(*b); });
  return all;
}

std::string AboutPromotion(const World& world, const Promotion& promotion) {
  std::string text;
  text += Line("Size", std::string(SizeText(promotion.Size)));
  text += Line("Image", std::to_string(promotion.Image) + "%");
  text += Line("Money", MoneyInWords(promotion.Size, promotion.Money));
  text += Line("Owner", OwnerText(world, promotion));
  text += Line("Looks for", TasteText(TasteOf(world, promotion.Uid)));
  text += Line("Commissioner", Plain(WorkerName(world, promotion.Commissioner)));
  text += Line("Riskiness", std::to_string(promotion.Risk) + "%");
  text += Line("Production values", std::to_string(promotion.Production) + "%");
  text += Line("Ticket price", "$" + std::to_string(promotion.TicketPrice));
  text += Line("Training camp", Plain(promotion.CampName.Str()));
  text += Line("Development territory", Plain(promotion.DevName.Str()));
  text.pop_back();
  return text;
}

std::vector<const Worker*> RosterOf(const World& world, int promotionUid) {
  std::vector<const Worker*> all;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == promotionUid && promotionUid != 0) all.push_back(&worker);
  std::ranges::stable_sort(all, [](auto* a, auto* b) {
    return std::pair(PlaceOnCard(*a), -a->Over) < std::pair(PlaceOnCard(*b), -b->Over);
  });
  return all;
}

std::vector<const Staff*> StaffOf(const World& world, int promotionUid) {
  std::vector<const Staff*> all;
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == promotionUid && promotionUid != 0) all.push_back(&staff);
  std::ranges::stable_sort(all, [](auto* a, auto* b) {
    return std::pair<int, int>(a->Position, -a->Talent) <
           std::pair<int, int>(b->Position, -b->Talent);
  });
  return all;
}

std::vector<MonthEnd> MonthEndsOf(const World& world, const Promotion& promotion) {
  std::vector<MonthEnd> past;
  for (const HistoryEntry* entry : MonthsOf(world, promotion.Uid))
    // Another promotion may have had the number before.
    if (entry->Name == promotion.Name.View())
      past.push_back({MonthYear(Day(entry->On) - std::chrono::days{1}), entry->Size, entry->Image,
                      entry->Money});
  std::reverse(past.begin(), past.end());
  for (std::size_t i = 0; past.size() <= i && i < promotion.Rank.size(); ++i)
    if (promotion.Rank[i] != kNoEnd) past.push_back(MonthEndOf(world, promotion, i));
  return past;
}

}  // namespace grapplemont
