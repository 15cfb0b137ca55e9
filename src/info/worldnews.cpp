#include "info/worldnews.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "business/networks.h"
#include "business/past.h"
#include "info/infowords.h"
#include "records/fields/fields.h"
#include "records/fields/grouping.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/promotionfacts.h"
#include "roster/postings.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

/// Chooses lines by the day and, on a day of many alike, each another one.
class Desk {
 public:
  /// What is of one kind takes turns, under whichever heading.
  std::string_view Choose(int heading, int kind, Day day) {
    const auto lines = LinesUnder(words::News(), heading);
    const std::size_t sofar = told_[{day, kind}]++;
    return lines[(ChoiceFor(std::to_string(kind), day, lines.size()) + sofar) % lines.size()];
  }

 private:
  std::map<std::pair<Day, int>, std::size_t> told_;
};

std::string Words(Desk& desk, const Deed& deed) {
  const int number = deed.Number;
  return FillLine(desk.Choose(deed.Kind, deed.Kind, deed.On),
                  {{"who", deed.Who.Str()},
                   {"house", deed.House == "" ? "nobody" : deed.House.Str()},
                   {"other", deed.Other.Str()},
                   {"size", std::string(SizeText(number))},
                   {"months", Counted(number, "month")},
                   {"weeks", Counted(number, "week")},
                   {"rating", RatingText(deed.Viewers)},
                   {"people", deed.People == 1 ? "one person" : Grouped(deed.People) + " people"}});
}

/// A show of the player's reads as the rivals' do.
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

NewsItem ItemOf(Desk& desk, const Deed& deed) {
  const auto row = std::find_if(std::begin(kDeedRows), std::end(kDeedRows),
                                [&](const DeedRow& each) { return each.Kind == deed.Kind; });
  if (row == std::end(kDeedRows)) return {deed.On, "", deed.House.Str(), ""};
  return {deed.On, std::string(row->What), deed.House.Str(), Words(desk, deed)};
}

bool IsNobody(const Reign& reign) {
  return reign.Holder == "Vacant" || reign.Holder == "None" || reign.Holder == "";
}

NewsItem ItemOf(Desk& desk, const World& world, const Title& title, std::size_t reign) {
  const Reign& now = title.Reigns[reign];
  const bool hasBefore = reign + 1 < title.Reigns.size() && !IsNobody(title.Reigns[reign + 1]);
  const TitleNews news = IsNobody(now) ? kTitleLost : hasBefore ? kTitleWon : kTitleFound;
  const std::string other = hasBefore ? title.Reigns[reign + 1].Holder.Str() : "nobody";
  const std::string house = PromotionInitials(world, title.Owner);
  return {now.Won, "Title", house,
          FillLine(desk.Choose(news, news == kTitleLost ? kTitleFound : news, now.Won),
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

using Rows = std::vector<RankRow>;

constexpr std::size_t kMost = 100;
constexpr int kYoung = 25;

RankFigure Figure(int number) {
  return {static_cast<double>(number), std::to_string(number)};
}

std::string HouseOf(const World& world, int promotionUid) {
  return promotionUid == 0 ? "" : PromotionInitials(world, promotionUid);
}

int SkillOf(const Worker& worker) {
  return (worker.Brawl + worker.Technical + worker.Speed) / 3;
}
int OverOf(const Worker& worker) {
  return worker.Over;
}
int AgeOf(const Worker& worker) {
  return worker.Age;
}

/// Whoever may wrestle, with or without a job.
template <bool (*test)(const Worker&), int (*first)(const Worker&), int (*second)(const Worker&)>
Rows Wrestlers(const World& world) {
  Rows rows;
  for (const Worker& worker : world.Workers())
    if (IsOnRoster(worker) && test(worker))
      rows.push_back({worker.Name.Str(), HouseOf(world, worker.Employer), Figure(first(worker)),
                      Figure(second(worker))});
  return rows;
}

bool IsMan(const Worker& worker) {
  return worker.Gender;
}
bool IsWoman(const Worker& worker) {
  return !worker.Gender;
}
bool IsYoung(const Worker& worker) {
  return worker.Age < kYoung;
}

Rows PromotionRows(const World& world) {
  Rows rows;
  for (const Promotion* promotion : PromotionsByStanding(world))
    rows.push_back(
        {promotion->Name.Str(),
         promotion->Initials.Str(),
         {static_cast<double>(StandingScore(*promotion)), std::string(SizeText(promotion->Size))},
         Figure(promotion->Image)});
  return rows;
}

Rows ShowRows(const World& world) {
  Rows rows;
  for (const Show& show : world.Shows())
    if (show.Rating3 > 0)
      rows.push_back({show.Name.Str(),
                      HouseOf(world, show.Owner),
                      {static_cast<double>(show.Rating3), RatingText(show.Rating3)},
                      {0, NetworkName(world, show.Network)}});
  return rows;
}

Rows NetworkRows(const World& world) {
  Rows rows;
  for (const Network& network : world.Networks())
    rows.push_back({network.Name.Str(),
                    "",
                    {static_cast<double>(network.PrimeAudience), RatingText(network.PrimeAudience)},
                    Figure(ShowsOn(world, network))});
  return rows;
}

Rows TeamRows(const World& world) {
  Rows rows;
  for (const Team& team : world.Teams()) {
    const Worker* one = world.FindWorker(team.Worker1);
    const Worker* two = world.FindWorker(team.Worker2);
    if (!one || !two || one->Employer != two->Employer) continue;
    rows.push_back({team.Name.Str(), HouseOf(world, one->Employer),
                    Figure((one->Over + two->Over) / 2), Figure(team.Experience)});
  }
  return rows;
}

Rows TitleRows(const World& world) {
  Rows rows;
  for (const Title& title : world.Titles())
    if (world.FindPromotion(title.Owner) && !title.Suspended)
      rows.push_back({title.Name.Str(),
                      HouseOf(world, title.Owner),
                      Figure(title.Image),
                      {0, ChampionText(world, title)}});
  return rows;
}

constexpr Ranking kRankings[] = {
    {"Promotions", "Name", "Size", "Image", PromotionRows},
    {"Men by popularity", "Worker", "Over", "Skill", Wrestlers<IsMan, OverOf, SkillOf>},
    {"Women by popularity", "Worker", "Over", "Skill", Wrestlers<IsWoman, OverOf, SkillOf>},
    {"Men by skill", "Worker", "Skill", "Over", Wrestlers<IsMan, SkillOf, OverOf>},
    {"Women by skill", "Worker", "Skill", "Over", Wrestlers<IsWoman, SkillOf, OverOf>},
    {"The young", "Worker", "Over", "Age", Wrestlers<IsYoung, OverOf, AgeOf>},
    {"Tag Teams", "Team", "Over", "Experience", TeamRows},
    {"Titles", "Title", "Image", "Champion", TitleRows},
    {"Television shows", "Show", "Last rating", "Network", ShowRows},
    {"Networks", "Network", "Prime Time", "Shows", NetworkRows}};

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
  Desk desk;
  for (const Deed& deed : world.Deeds())
    if (Day(deed.On) >= from) news.push_back(ItemOf(desk, deed));
  for (const HistoryEntry& entry : world.History())
    if (Day(entry.On) >= from && IsShow(entry) && world.FindPromotion(entry.Promotion))
      news.push_back(ItemOf(desk, DeedOf(world, entry)));
  for (const Title& title : world.Titles()) {
    if (title.Owner <= 0) continue;  // its promotion has closed
    for (std::size_t reign = 0; reign < title.Reigns.size(); ++reign)
      if (Day(title.Reigns[reign].Won) >= from && IsNews(title, reign))
        news.push_back(ItemOf(desk, world, title, reign));
  }
  std::stable_sort(news.begin(), news.end(),
                   [](const NewsItem& a, const NewsItem& b) { return a.On > b.On; });
  return news;
}

std::span<const Ranking> Rankings() {
  return kRankings;
}

std::vector<RankRow> RowsOf(const World& world, const Ranking& ranking) {
  std::vector<RankRow> rows = ranking.Rows(world);
  std::stable_sort(rows.begin(), rows.end(), [](const RankRow& a, const RankRow& b) {
    return a.First.Number > b.First.Number;
  });
  if (rows.size() > kMost) rows.resize(kMost);
  for (int place = 1; RankRow & row : rows) row.Place = place++;
  return rows;
}

}  // namespace grapplemont
