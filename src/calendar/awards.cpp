#include "calendar/awards.h"

#include <algorithm>
#include <bitset>
#include <map>
#include <optional>
#include <tuple>

#include "business/finance.h"
#include "business/past.h"
#include "calendar/feudyears.h"
#include "halls/yearbook.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

constexpr const char* kJury = "Year's Awards";
/// What a year's rise in Over and a year with a Title of full renown may add to a worker's own
/// Over.
constexpr int kMostGain = 20, kMostRenown = 20;
constexpr int kLeastImprovement = 5;

/// The days of a year on which somebody held a Title, or two of them.
using DaysOfYear = std::bitset<366>;

/// The year so far, the present day included. Reigns count from the day on from which the past is
/// counted, so that no page of it knows other days.
class Year {
 public:
  explicit Year(const World& world) : world_(world), until_(world.Today() + std::chrono::days{1}) {
    from_ = std::chrono::year{YearOf(world.Today())} / 1 / 1;
    // A later career in the same world has a beginning of its own.
    const auto& totals = world.Of<TotalsState>();
    const Day start = world.Game().StartDate;
    const Day since = totals.Count() > 0 ? std::min(start, Day(totals[1].Since)) : start;
    counted_ = std::max(from_, since);
    for (const YearEnd& row : world.YearEnds()) before_[row.Worker] = row.Over;
    for (const TitleReign& reign : world.Reigns()) CountReign(reign);
  }

  const World& Of() const { return world_; }
  Day From() const { return from_; }
  /// Behind its last day.
  Day Until() const { return until_; }
  bool Has(Day day) const { return from_ <= day && day < until_; }
  bool Has(const HistoryEntry& entry) const { return Has(Day(entry.On)); }

  bool KnowsLastYear() const { return !before_.empty(); }
  bool WasThere(int uid) const { return before_.contains(uid); }
  /// What Over has risen by since the last year ended; 0 for who was not there.
  int GainOf(const Worker& worker) const {
    const auto before = before_.find(worker.Uid);
    return before == before_.end() ? 0 : worker.Over - before->second;
  }
  /// Marks the days on which a reign lasted.
  void Mark(DaysOfYear& days, const TitleReign& reign) const {
    const Day end = reign.End == kReignLasts ? until_ : std::min(Day(reign.Until), until_);
    for (Day day = std::max(Day(reign.From), counted_); day < end; day += std::chrono::days{1})
      days.set(static_cast<std::size_t>((day - from_).count()));
  }
  int DaysAsChampion(int uid) const { return static_cast<int>(ChampionOf(uid).Days.count()); }
  /// What the days with Titles are worth by their images.
  int RenownOf(int uid) const { return std::min(kMostRenown, ChampionOf(uid).Renown / 1825); }

 private:
  struct Champion {
    DaysOfYear Days;
    int Renown = 0;
  };
  Champion ChampionOf(int uid) const {
    const auto found = champions_.find(uid);
    return found == champions_.end() ? Champion{} : found->second;
  }

  int ImageOf(const TitleReign& reign) const {
    for (const Title& title : world_.Titles())
      if (title.Owner == reign.Owner && title.Name == reign.Title.View()) return title.Image;
    return 0;
  }

  void CountReign(const TitleReign& reign) {
    DaysOfYear days;
    Mark(days, reign);
    if (days.none() || IsVacancy(reign)) return;
    for (const int uid : {int(reign.Worker), int(reign.Partner)}) {
      if (uid == 0) continue;
      champions_[uid].Days |= days;
      champions_[uid].Renown += static_cast<int>(days.count()) * ImageOf(reign);
    }
  }

  const World& world_;
  Day from_, until_, counted_;
  std::map<int, int> before_;  // Over by uid
  std::map<int, Champion> champions_;
};

YearAward NewAward(const Year& year, AwardKind kind, int promotion, std::string_view winner,
                   std::string_view why) {
  YearAward award;
  award.On = year.Of().Today();
  award.Kind = kind;
  award.Promotion = promotion;
  award.Winner = winner;
  award.For = why;
  return award;
}

YearAward ForWorker(const Year& year, AwardKind kind, const Worker& worker, std::string_view why) {
  YearAward award = NewAward(year, kind, worker.Employer, worker.Name, why);
  award.Worker = worker.Uid;
  return award;
}

bool IsActive(const Worker& worker) {
  return worker.Employer != 0 && IsOnRoster(worker);
}

/// What a year was worth: the first number decides, then the second, then the third.
using Merit = std::tuple<int, int, int>;

/// The record of the highest merit, of those alike the first; nullptr when none has any. `most` is
/// what it earned.
template <class Records, class Of>
auto Best(const Records& records, Merit& most, Of merit) {
  decltype(&*records.begin()) best = nullptr;
  for (const auto& record : records) {
    const Merit its = merit(record);
    if (its <= most) continue;
    best = &record;
    most = its;
  }
  return best;
}

template <class Of>
const Worker* BestWorker(const Year& year, Of merit) {
  Merit most{};
  return Best(year.Of().Workers(), most, [&](const Worker& worker) {
    return IsActive(worker) ? Merit(merit(worker)) : Merit{};
  });
}

Merit YearOfWorker(const Year& year, const Worker& worker) {
  const int gain = std::clamp(year.GainOf(worker), 0, kMostGain);
  return {worker.Over + gain + year.RenownOf(worker.Uid), worker.Over,
          year.DaysAsChampion(worker.Uid)};
}

std::string WhyWorker(const Year& year, const Worker& worker) {
  std::string why = "Over " + std::to_string(worker.Over);
  if (const int gain = year.GainOf(worker); gain > 0)
    why += ", " + std::to_string(gain) + " more than a year ago";
  if (const int days = year.DaysAsChampion(worker.Uid); days > 0)
    why += ", " + Counted(days, "day") + " with a Title";
  return why;
}

std::optional<YearAward> ForBest(const Year& year, AwardKind kind, const Worker* best) {
  return best ? std::optional(ForWorker(year, kind, *best, WhyWorker(year, *best))) : std::nullopt;
}

template <AwardKind kind, bool man>
std::optional<YearAward> BestOfSex(const Year& year) {
  return ForBest(year, kind, BestWorker(year, [&](const Worker& worker) {
                   return worker.Gender == man ? YearOfWorker(year, worker) : Merit{};
                 }));
}

/// Days of the year in which the two held a Title together.
int DaysTogether(const Year& year, const Team& team) {
  DaysOfYear days;
  for (const TitleReign& reign : year.Of().Reigns())
    if (reign.Partner != 0 && std::minmax({int(reign.Worker), int(reign.Partner)}) ==
                                  std::minmax({int(team.Worker1), int(team.Worker2)}))
      year.Mark(days, reign);
  return static_cast<int>(days.count());
}

Merit YearOfTeam(const Year& year, const Team& team) {
  const Worker* one = year.Of().FindWorker(team.Worker1);
  const Worker* two = year.Of().FindWorker(team.Worker2);
  if (!one || !two || !IsActive(*one) || !IsActive(*two) || one->Employer != two->Employer)
    return {};
  const int days = DaysTogether(year, team), over = (one->Over + two->Over) / 2;
  return {over + team.Experience / 5 + days * kMostRenown / 365, over, days};
}

std::optional<YearAward> BestTeam(const Year& year) {
  Merit most{};
  const Team* best =
      Best(year.Of().Teams(), most, [&](const Team& team) { return YearOfTeam(year, team); });
  if (!best) return std::nullopt;
  const auto [merit, over, days] = most;
  YearAward award = ForWorker(year, kTeamOfTheYear, *year.Of().FindWorker(best->Worker1),
                              "Over " + std::to_string(over) + " between them, experience " +
                                  std::to_string(best->Experience) +
                                  (days > 0 ? ", " + Counted(days, "day") + " as champions" : ""));
  award.Partner = best->Worker2;
  award.Winner = PairName(year.Of(), best->Worker1, best->Worker2);
  return award;
}

std::string WhereAndWhen(const Year& year, const HeldMatch& bout) {
  for (const HistoryEntry& entry : year.Of().History())
    if (entry.Promotion == bout.Promotion && Day(entry.On) == Day(bout.On) && IsShow(entry))
      return " at " + entry.Name.Str() + ", " + PlainDate(bout.On);
  return " on " + PlainDate(bout.On);
}

/// The first of the best by rating, Events before television, Titles before none.
std::optional<YearAward> BestMatch(const Year& year) {
  Merit most{};
  const HeldMatch* best = Best(year.Of().Bouts(), most, [&](const HeldMatch& bout) {
    return year.Has(Day(bout.On)) ? Merit{bout.Rating, bout.IsEvent, bout.Title != "None"}
                                  : Merit{};
  });
  if (!best) return std::nullopt;
  YearAward award =
      NewAward(year, kMatchOfTheYear, best->Promotion,
               best->Won + (best->Winners > 0 ? " beat " : " drew with ") + best->Lost.Str(),
               "Rated " + std::to_string(best->Rating) + "%" + WhereAndWhen(year, *best));
  award.Worker = best->Winners == 1 ? int(best->Worker[0]) : 0;
  return award;
}

/// The first of the best by rating, then by the crowd.
std::optional<YearAward> BestShow(const Year& year) {
  Merit most{};
  const HistoryEntry* best = Best(year.Of().History(), most, [&](const HistoryEntry& entry) {
    return IsShow(entry) && !entry.CalledOff && year.Has(entry)
               ? Merit{entry.Rating, entry.Attendance, 0}
               : Merit{};
  });
  if (!best) return std::nullopt;
  return NewAward(year, kShowOfTheYear, best->Promotion, best->Name,
                  "Rated " + std::to_string(best->Rating) + "% on " + PlainDate(best->On) +
                      ", seen by " + Counted(best->Attendance, "person", "people"));
}

/// By the three best matches, then by how many there were; of those alike the first.
std::optional<YearAward> BestFeud(const Year& year) {
  const std::vector<FeudYear> feuds = FeudYears(year.Of(), year.From(), year.Until());
  Merit most{};
  const FeudYear* best = Best(feuds, most, [](const FeudYear& feud) {
    const int matches = static_cast<int>(feud.Ratings.size());
    return matches < kFewestFeudMatches ? Merit{} : Merit{feud.Best, matches, 0};
  });
  if (!best) return std::nullopt;
  YearAward award =
      NewAward(year, kFeudOfTheYear, year.Of().PlayerUid(), FeudName(year.Of(), *best),
               Counted(std::ssize(best->Ratings), "match", "matches") + ", the best rated " +
                   std::to_string(best->Ratings[0]) + "%");
  award.Worker = best->Parties[0];
  award.Partner = best->Parties[1];
  return award;
}

/// By the rise since the first month end of the year.
std::optional<YearAward> BestPromotion(const Year& year) {
  std::map<int, int> first;  // score by uid
  for (const HistoryEntry& entry : year.Of().History())
    if (entry.Kind == kPastMonth && year.Has(entry))
      first.emplace(entry.Promotion, PastStanding{entry.On, entry.Size, entry.Image}.Score());
  Merit most{};
  const Promotion* best = Best(year.Of().Promotions(), most, [&](const Promotion& promotion) {
    const auto begin = first.find(promotion.Uid);
    const int score = StandingScore(promotion);
    const int gain = begin == first.end() ? 0 : score - begin->second;
    return gain > 0 ? Merit{gain, score, 0} : Merit{};
  });
  if (!best) return std::nullopt;
  return NewAward(year, kPromotionOfTheYear, best->Uid, best->Name,
                  "Nobody has risen further: " + std::string(Says(kSizes, best->Size)) +
                      ", image " + std::to_string(best->Image) + "%");
}

std::optional<YearAward> MostImproved(const Year& year) {
  return ForBest(year, kMostImproved, BestWorker(year, [&](const Worker& worker) {
                   const int gain = year.GainOf(worker);
                   return gain < kLeastImprovement ? Merit{} : Merit{gain, worker.Over, 0};
                 }));
}

/// Somebody who was not in the business when the last year ended.
std::optional<YearAward> BestRookie(const Year& year) {
  if (!year.KnowsLastYear()) return std::nullopt;
  return ForBest(year, kRookieOfTheYear, BestWorker(year, [&](const Worker& worker) {
                   return year.WasThere(worker.Uid) ? Merit{} : Merit{worker.Over, 0, 0};
                 }));
}

constexpr std::optional<YearAward> (*kAwards[])(const Year&) = {BestOfSex<kWrestlerOfTheYear, true>,
                                                                BestOfSex<kWomanOfTheYear, false>,
                                                                BestTeam,
                                                                BestMatch,
                                                                BestShow,
                                                                BestFeud,
                                                                BestPromotion,
                                                                MostImproved,
                                                                BestRookie};

/// As many awards to a mail as it has room for.
void Tell(World& world, const std::vector<YearAward>& awards) {
  constexpr std::size_t kRoom = decltype(Mail::Body)::kWidth;
  std::string body;
  for (const YearAward& award : awards) {
    const std::string line = std::string(AwardName(award.Kind)) + ": " + award.Winner.Str() + ". " +
                             award.For.Str() + ".";
    if (!body.empty() && body.size() + 1 + line.size() > kRoom) {
      AddNews(world, kJury, body);
      body.clear();
    }
    body += (body.empty() ? "" : "\n") + line;
  }
  if (!body.empty()) AddNews(world, kJury, body);
}

void Keep(World& world, const YearAward& award) {
  Records<YearAward>& awards = world.Awards();
  if (awards.Full()) {
    const Day oldest = awards[1].On;
    awards.Keep([=](const YearAward& old) { return Day(old.On) != oldest; });
  }
  awards.Append(award);
}

}  // namespace

std::vector<YearAward> AwardsOfTheYear(const World& world) {
  const Year year(world);
  std::vector<YearAward> awards;
  for (const auto choose : kAwards)
    if (const std::optional<YearAward> award = choose(year)) awards.push_back(*award);
  return awards;
}

void NoteYearEnd(World& world) {
  std::vector<YearEnd> rows;
  for (const Worker& worker : world.Workers()) {
    YearEnd& row = rows.emplace_back();
    row.Worker = worker.Uid;
    row.Over = int(worker.Over);
  }
  world.YearEnds().Rewrite(std::move(rows));
}

void GiveAwards(World& world) {
  if (MonthOf(world.Today()) != 12 || DayOfMonth(world.Today()) != 31) return;
  // Earlier versions closed the year in the morning of its last day.
  const Records<YearAward>& given = world.Awards();
  if (given.Count() > 0 && Day(given[given.Count()].On) == world.Today()) return;
  UpdateReigns(world);
  const std::vector<YearAward> awards = AwardsOfTheYear(world);
  for (const YearAward& award : awards) Keep(world, award);
  Tell(world, awards);
  CloseTheYear(world);
  NoteYearEnd(world);
}

}  // namespace grapplemont
