#include "info/worldnews.h"

#include <algorithm>

#include "business/months.h"
#include "info/fill.h"
#include "info/newslines.h"
#include "records/dates.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

std::string Counted(int count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string Words(const Deed& deed) {
  const DeedLine* line = LineOfDeed(deed.Kind);
  if (!line) return {};
  const int number = deed.Number;
  return FillLine(
      line->Lines[ChoiceFor(deed.Who.View(), deed.On, line->Lines.size())],
      {{"who", deed.Who.Str()},
       {"house", deed.House == "" ? "nobody" : deed.House.Str()},
       {"other", deed.Other.Str()},
       {"size", std::string(SizeText(number))},
       {"months", Counted(number, "month")},
       {"weeks", Counted(number, "week")},
       {"rating", RatingText(deed.Viewers)},
       {"people", deed.People == 1 ? "one person" : std::to_string(deed.People) + " people"}});
}

/// A show of the player's is told as the rivals' are.
Deed DeedOf(const World& world, const HistoryEntry& entry) {
  Deed deed{};
  deed.On = entry.On;
  deed.Kind = entry.CalledOff         ? kDeedCalledOff
              : entry.Kind == kPastTv ? kDeedTvHeld
                                      : kDeedEventHeld;
  deed.Promotion = entry.Promotion;
  deed.House = PromotionInitials(world, entry.Promotion);
  deed.Who = entry.CalledOff ? PromotionName(world, entry.Promotion) : entry.Name.Str();
  deed.Viewers = entry.Viewers;
  deed.People = entry.Attendance;
  return deed;
}

NewsItem ItemOf(const Deed& deed) {
  const DeedLine* line = LineOfDeed(deed.Kind);
  return {deed.On, line ? std::string(line->What) : "", deed.House.Str(), Words(deed)};
}

bool IsNobody(const Reign& reign) {
  return reign.Holder == "Vacant" || reign.Holder == "None" || reign.Holder == "";
}

NewsItem ItemOf(const World& world, const Title& title, std::size_t reign) {
  const Reign& now = title.Reigns[reign];
  const bool hasBefore = reign + 1 < title.Reigns.size() && !IsNobody(title.Reigns[reign + 1]);
  const auto& lines = IsNobody(now) ? kTitleLost : hasBefore ? kTitleWon : kTitleFound;
  const std::string other = hasBefore ? title.Reigns[reign + 1].Holder.Str() : "nobody";
  const std::string house = PromotionInitials(world, title.Owner);
  return {now.Won, "Title", house,
          FillLine(lines[ChoiceFor(title.Name.View(), now.Won, lines.size())],
                   {{"who", now.Holder.Str()},
                    {"title", WithArticle(title.Name.View())},
                    {"house", house},
                    {"other", other}})};
}

/// A Title that has never been held and is not held now is no news.
bool IsNews(const Title& title, std::size_t reign) {
  if (Day(title.Reigns[reign].Won) == kNoTitleDate || title.Reigns[reign].Holder == "None")
    return false;
  const bool neverHeld = reign + 1 >= title.Reigns.size() || IsNobody(title.Reigns[reign + 1]);
  return !(IsNobody(title.Reigns[reign]) && neverHeld);
}

}  // namespace

std::size_t ChoiceFor(std::string_view words, Day day, std::size_t of) {
  std::size_t hash = static_cast<std::size_t>((day - kDayZero).count()) * 2654435761U;
  for (const char letter : words) hash = hash * 31 + static_cast<unsigned char>(letter);
  return (hash >> 7) % of;
}

Day NewsBegin(const World& world) {
  return MonthsBefore(world.Today(), 1);
}

std::vector<NewsItem> WorldNews(const World& world) {
  const Day from = NewsBegin(world);
  std::vector<NewsItem> news;
  for (const Deed& deed : world.Deeds())
    if (Day(deed.On) >= from) news.push_back(ItemOf(deed));
  for (const HistoryEntry& entry : world.History())
    if (Day(entry.On) >= from && (entry.Kind == kPastTv || entry.Kind == kPastEvent))
      news.push_back(ItemOf(DeedOf(world, entry)));
  for (const Title& title : world.Titles())
    for (std::size_t reign = 0; reign < title.Reigns.size(); ++reign)
      if (Day(title.Reigns[reign].Won) >= from && IsNews(title, reign))
        news.push_back(ItemOf(world, title, reign));
  std::stable_sort(news.begin(), news.end(),
                   [](const NewsItem& a, const NewsItem& b) { return a.On > b.On; });
  return news;
}

}  // namespace grapplemont
