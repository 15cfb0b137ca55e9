#include "halls/recordbook.h"

#include <algorithm>
#include <functional>
#include <map>

#include "halls/hall.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

using Book = RecordBook;
using Places = std::vector<RecordLine>;

/// The highest figures first; of those alike, as they come.
Places Ranked(Places lines, bool lowestFirst = false) {
  std::ranges::stable_sort(lines, [=](const RecordLine& a, const RecordLine& b) {
    return lowestFirst ? a.Figure < b.Figure : a.Figure > b.Figure;
  });
  lines.resize(std::min(lines.size(), kPlaces));
  return lines;
}

std::string Plain(int number) {
  return std::to_string(number);
}
std::string Share(int number) {
  return std::to_string(number) + "%";
}
std::string InYears(int months) {
  const std::string part = Counted(months % 12, "month");
  if (months < 12) return part;
  return Counted(months / 12, "year") + (months % 12 == 0 ? "" : ", " + part);
}
std::string HundredthsOf(int number) {
  std::string cents = std::to_string(number % 100);
  return std::to_string(number / 100) + (cents.size() < 2 ? ".0" : ".") + cents;
}
std::string Wages(int thousands) {
  return Dollars(1000LL * thousands);
}

RecordLine LineOf(const Life& life, int figure, std::string shown, std::string more) {
  return {life.Of->Name.Str(), static_cast<double>(figure),
          std::move(shown),    std::move(more),
          kNoTitleDate,        life.Of->Worker};
}

// A table of careers: what each comes to, how that reads, what stands beside it.

using Measure = int (*)(const Life&);
using Reads = std::string (*)(int);
using Beside = std::string (*)(const Life&);

std::string Span(const Life& life) {
  return YearsOf(*life.Of);
}
std::string SpanAt(const Life& life) {
  return YearsOf(*life.Of) + ", most of it with " + life.LongestAt;
}

/// Those whose measure is above 0.
template <Measure measure, Reads says = Plain, Beside beside = Span>
Places OfLives(const Book& book) {
  Places lines;
  for (const Life& life : book.Lives)
    if (const int figure = life.Promotions == 0 ? 0 : measure(life); figure > 0)
      lines.push_back(LineOf(life, figure, says(figure), beside(life)));
  return Ranked(std::move(lines));
}

template <int Life::*member>
int Sum(const Life& life) {
  return life.*member;
}
template <auto member>
int Own(const Life& life) {
  return life.Of->*member;
}
int AllMatches(const Life& life) {
  return life.Matches();
}
int WinShare(const Life& life) {
  return life.Matches() < kFewestMatches ? 0 : static_cast<int>(life.Won * 100LL / life.Matches());
}
int MeanRating(const Life& life) {
  return life.Matches() < kFewestMatches ? 0 : static_cast<int>(life.Ratings / life.Matches());
}
int AwardsWon(const Life& life) {
  int sum = 0;
  for (const Natural& count : life.Of->Awards) sum += count;
  return sum;
}
std::string Balance(const Life& life) {
  return std::to_string(life.Won) + " won, " + std::to_string(life.Lost) + " lost, " +
         std::to_string(life.Drawn) + " drawn";
}
std::string InReigns(const Life& life) {
  return Counted(life.Reigns, "reign") + ", " + Counted(life.Days, "day");
}
std::string LongestHouse(const Life& life) {
  return life.LongestAt;
}
std::string RiseYear(const Life& life) {
  return "In " + std::to_string(life.Of->RiseYear);
}
std::string FallYear(const Life& life) {
  return "In " + std::to_string(life.Of->FallYear);
}
std::string PeakOn(const Life& life) {
  return "First in " + MonthYear(life.Of->PeakOn);
}

int NeverChampion(const Life& life) {
  return life.Reigns > 0 || life.Days > 0 || life.Matches() < kFewestMatches ? 0
                                                                             : int(life.Of->Peak);
}
std::string TriedFor(const Life& life) {
  return Counted(life.ForTitles, "match", "matches") + " for a Title";
}

// Reigns.

template <bool shortest>
Places ByLength(const Book& book) {
  Places lines;
  for (const TitleReign& reign : book.Reigns) {
    const int days = DaysOf(reign, book.Of().Today());
    if (days < 0 || (shortest && reign.End != kReignLost)) continue;
    lines.push_back({reign.Holder.Str(), static_cast<double>(days), Plain(days),
                     reign.Title + " (" + reign.Initials.Str() + ")" +
                         (reign.End == kReignLasts ? ", lasts" : ""),
                     reign.From, reign.Partner == 0 ? int(reign.Worker) : 0});
  }
  return Ranked(std::move(lines), shortest);
}

Places ByDefences(const Book& book) {
  Places lines;
  for (const TitleReign& reign : book.Reigns)
    if (reign.Defences > 0)
      lines.push_back({reign.Holder.Str(), static_cast<double>(reign.Defences),
                       Plain(reign.Defences), reign.Title + " (" + reign.Initials.Str() + ")",
                       reign.From, reign.Partner == 0 ? int(reign.Worker) : 0});
  return Ranked(std::move(lines));
}

Places RestlessTitles(const Book& book) {
  std::map<std::pair<int, std::string>, RecordLine> titles;
  for (const TitleReign& reign : book.Reigns) {
    RecordLine& line = titles[{reign.Owner, reign.Title.Str()}];
    line.Who = reign.Title.Str();
    line.More = reign.Initials.Str();
    ++line.Figure;
  }
  Places lines;
  for (auto& [title, line] : titles) {
    line.Shown = Plain(static_cast<int>(line.Figure));
    lines.push_back(line);
  }
  return Ranked(std::move(lines));
}

// Feats.

template <FeatKind kind, Reads says>
Places OfFeats(const Book& book) {
  Places lines;
  for (const Feat& feat : book.Past.Feats) {
    if (feat.Kind != kind || !book.Covers(feat.Promotion)) continue;
    const int place = book.Past.PlaceOf(feat.Career);
    const std::string what = feat.What.Str();
    lines.push_back(
        {feat.Who + (feat.Against.View().empty() ? "" : " vs " + feat.Against.Str()),
         static_cast<double>(feat.Number), says(feat.Number),
         what.empty() ? feat.Initials.Str() : what + " (" + feat.Initials.Str() + ")", feat.On,
         place < 0 ? 0 : int(book.Past.Careers[static_cast<std::size_t>(place)].Worker)});
  }
  return Ranked(std::move(lines), kind == kFeatYoungest);
}

// Teams.

std::string TeamText(const Book& book, const Partnership& pair) {
  const auto name = [&](int number) {
    const int place = book.Past.PlaceOf(number);
    return place < 0 ? std::string("somebody")
                     : book.Past.Careers[static_cast<std::size_t>(place)].Name.Str();
  };
  const std::string both = name(pair.One) + " and " + name(pair.Two);
  return pair.Team.View().empty() ? both : pair.Team + " (" + both + ")";
}

template <int (*measure)(const Partnership&)>
Places OfPairs(const Book& book) {
  Places lines;
  for (const Partnership& pair : book.Past.Pairs) {
    const int figure = book.Covers(pair.Promotion) ? measure(pair) : 0;
    if (figure > 0)
      lines.push_back({TeamText(book, pair), static_cast<double>(figure), Plain(figure),
                       std::to_string(pair.Won) + " won, " + std::to_string(pair.Lost) + " lost",
                       pair.First, 0});
  }
  return Ranked(std::move(lines));
}
int MatchesTogether(const Partnership& pair) {
  return pair.Won + pair.Lost + pair.Drawn;
}
int DaysTogether(const Partnership& pair) {
  return pair.Days;
}
int ReignsTogether(const Partnership& pair) {
  return pair.Reigns;
}

constexpr const char* kLives = "Career";
constexpr RecordTable kRecordTables[] = {
    {"All time", "All-time ranking", "Points", kLives,
     "What a career is worth by the rule of the hall of fame.", OfLives<PointsOf, Plain, SpanAt>},
    {"Titles", "Longest reigns", "Days", "Title", "Reigns whose beginning is known.",
     ByLength<false>},
    {"Titles", "Shortest reigns", "Days", "Title", "Reigns that were lost in the ring.",
     ByLength<true>},
    {"Titles", "Most defences in a reign", "Defences", "Title",
     "How often it was kept in the ring.", ByDefences},
    {"Titles", "Most reigns", "Reigns", kLives, "Alone or with a partner.",
     OfLives<Sum<&Life::Reigns>>},
    {"Titles", "Most days as champion", "Days", "Reigns", "Of two Titles at once each counts.",
     OfLives<Sum<&Life::Days>, Plain, InReigns>},
    {"Titles", "Most defences", "Defences", "Reigns", "Of all reigns.",
     OfLives<Sum<&Life::Defences>, Plain, InReigns>},
    {"Titles", "Best never to hold a Title", "Highest Over", "Tries",
     "The highest Over of those with thirty matches and no reign.",
     OfLives<NeverChampion, Share, TriedFor>},
    {"Titles", "Youngest champions", "Age", "Title", "On the day a reign began.",
     OfFeats<kFeatYoungest, InYears>},
    {"Titles", "Oldest champions", "Age", "Title", "On the day a reign began.",
     OfFeats<kFeatOldest, InYears>},
    {"Titles", "Titles that changed hands most", "Reigns", "Promotion", "Vacancies do not count.",
     RestlessTitles},
    {"Matches", "Best matches", "Rating", "What for", "At most fifteen of one promotion.",
     OfFeats<kFeatMatch, Share>},
    {"Matches", "Most matches", "Matches", "Balance", "House shows count as well.",
     OfLives<AllMatches, Plain, Balance>},
    {"Matches", "Most wins", "Wins", "Balance", "", OfLives<Sum<&Life::Won>, Plain, Balance>},
    {"Matches", "Most defeats", "Defeats", "Balance", "",
     OfLives<Sum<&Life::Lost>, Plain, Balance>},
    {"Matches", "Win shares", "Won", "Balance", "Of thirty matches or more.",
     OfLives<WinShare, Share, Balance>},
    {"Matches", "Longest winning streaks", "Matches", kLives,
     "In a row, wherever they were. A draw ends it.", OfLives<Own<&Career::MostWins>>},
    {"Matches", "Longest losing streaks", "Matches", kLives,
     "In a row, wherever they were. A draw ends it.", OfLives<Own<&Career::MostLosses>>},
    {"Matches", "Most main events", "Matches", "Balance", "The match that closes a show.",
     OfLives<Sum<&Life::MainEvents>, Plain, Balance>},
    {"Matches", "Best mean rating", "Rating", "Balance", "Of thirty matches or more.",
     OfLives<MeanRating, Share, Balance>},
    {"Matches", "Most great matches", "Matches", kLives, "Rated 90 or more, wherever they were.",
     OfLives<Own<&Career::Great>>},
    {"Matches", "Most matches for a Title", "Matches", "Reigns", "",
     OfLives<Sum<&Life::ForTitles>, Plain, InReigns>},
    {"Matches", "Bloodiest careers", "Matches", "Balance",
     "Of a type that needs a product with a risk of more than 30.",
     OfLives<Sum<&Life::Rough>, Plain, Balance>},
    {"Matches", "Longest feuds", "Days", "Promotion",
     "Of the player's and of rivals'; those that last grow with every month.",
     OfFeats<kFeatFeud, Plain>},
    {"Careers", "Most years in one promotion", "Time", "Promotion", "Under contract, all in all.",
     OfLives<Sum<&Life::LongestMonths>, InYears, LongestHouse>},
    {"Careers", "Longest careers", "Time", kLives, "Under contract, anywhere.",
     OfLives<Sum<&Life::Months>, InYears, SpanAt>},
    {"Careers", "Most promotions", "Promotions", kLives, "Under contract.",
     OfLives<Sum<&Life::Promotions>, Plain, SpanAt>},
    {"Careers", "Longest at the top", "Time", kLives, "Months with Over at 80 or more.",
     OfLives<Own<&Career::Top>, InYears>},
    {"Careers", "Highest Over", "Over", "When", "At the first of a month.",
     OfLives<Own<&Career::Peak>, Share, PeakOn>},
    {"Careers", "Biggest rises", "Over", "When", "Of Over within a year.",
     OfLives<Own<&Career::Rise>, Share, RiseYear>},
    {"Careers", "Biggest falls", "Over", "When", "Of Over within a year.",
     OfLives<Own<&Career::Fall>, Share, FallYear>},
    {"Careers", "Highest wages", "A month", kLives, "In all their contracts.",
     OfLives<Sum<&Life::Wage>, Wages, SpanAt>},
    {"Careers", "Most time hurt", "Time", kLives, "Months injured.",
     OfLives<Own<&Career::Hurt>, InYears>},
    {"Careers", "Most awards", "Awards", kLives, "Of the years.", OfLives<AwardsWon>},
    {"Shows", "Biggest gates", "People", "Promotion", "At most fifteen of one promotion.",
     OfFeats<kFeatGate, Plain>},
    {"Shows", "Best television ratings", "Rating", "Promotion", "At most fifteen of one promotion.",
     OfFeats<kFeatViewers, HundredthsOf>},
    {"Shows", "Best buy rates", "Buy rate", "Promotion", "At most fifteen of one promotion.",
     OfFeats<kFeatBuys, HundredthsOf>},
    {"Teams", "Most matches as a team", "Matches", "Balance",
     "Of a promotion: of the teams that were there last.", OfPairs<MatchesTogether>},
    {"Teams", "Most days as team champions", "Days", "Balance",
     "Of a promotion: of the teams that were there last.", OfPairs<DaysTogether>},
    {"Teams", "Most reigns as a team", "Reigns", "Balance",
     "Of a promotion: of the teams that were there last.", OfPairs<ReignsTogether>},
};

}  // namespace

RecordBook::RecordBook(const Ledger& ledger, int promotionUid)
    : Past(ledger), Promotion(promotionUid), Lives(LivesOf(ledger, promotionUid)) {
  for (const TitleReign& reign : ledger.Of().Reigns())
    if (!IsVacancy(reign) && Covers(reign.Owner)) Reigns.push_back(reign);
}

std::span<const RecordTable> RecordTables() {
  return kRecordTables;
}

std::vector<HouseOfRecords> HousesOf(const Ledger& ledger) {
  std::map<int, HouseOfRecords> houses;
  const auto add = [&](int uid, std::string_view initials) {
    if (uid > 0 && !initials.empty() && initials != "None")
      houses[uid] = {uid, std::string(initials), ledger.Of().FindPromotion(uid) != nullptr};
  };
  for (const Tenure& tenure : ledger.Tenures) add(tenure.Promotion, tenure.Initials.View());
  for (const TitleReign& reign : ledger.Of().Reigns()) add(reign.Owner, reign.Initials.View());
  for (const Promotion& promotion : ledger.Of().Promotions())
    add(promotion.Uid, promotion.Initials.View());
  std::vector<HouseOfRecords> list;
  for (const auto& [uid, house] : houses) list.push_back(house);
  std::ranges::stable_sort(list, [](const HouseOfRecords& a, const HouseOfRecords& b) {
    return a.Stands != b.Stands ? a.Stands : a.Name < b.Name;
  });
  return list;
}

}  // namespace grapplemont
