#include "halls/recordbook.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "halls/hall.h"
#include "records/fields/fields.h"
#include "records/fields/grouping.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

using Book = RecordBook;
using Places = std::vector<RecordLine>;

constexpr int kNoPlace = -1;

/// The highest figures first; of those alike, as they come. Whatever has the figure kNoPlace stays
/// out, and a line is written for those only that stand in the table.
template <class T, class Figure, class Write>
Places Ranked(const std::vector<T>& all, Figure figure, Write write, bool lowestFirst = false) {
  std::vector<std::pair<int, std::size_t>> places;
  for (std::size_t i = 0; i < all.size(); ++i)
    if (const int number = figure(all[i]); number != kNoPlace)
      places.emplace_back(lowestFirst ? number : -number, i);
  const std::size_t shown = std::min(places.size(), kPlaces);
  std::ranges::partial_sort(places, places.begin() + static_cast<std::ptrdiff_t>(shown));
  Places lines;
  for (std::size_t i = 0; i < shown; ++i) {
    const T& one = all[places[i].second];
    RecordLine& line = lines.emplace_back(write(one));
    line.Figure = figure(one);
  }
  return lines;
}

std::string Plain(int number) {
  return Grouped(number);
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

RecordLine LineOf(const Life& life, std::string shown, std::string more) {
  return {life.Of->Name.Str(), 0, std::move(shown), std::move(more), kNoTitleDate, life.Of->Worker};
}

// A table of careers: what each comes to, how that reads, what stands beside it.

using Measure = int (*)(const Life&);
using Reads = std::string (*)(int);
using Beside = std::string (*)(const Life&);

std::string Span(const Life& life) {
  return YearsOf(*life.Of);
}
std::string SpanAt(const Life& life) {
  return life.LongestAt + ", " + YearsOf(*life.Of);
}

/// Those whose measure is above 0.
template <Measure measure, Reads says = Plain, Beside beside = Span>
Places OfLives(const Book& book) {
  return Ranked(
      book.Lives,
      [](const Life& life) {
        const int figure = life.Promotions == 0 ? 0 : measure(life);
        return figure > 0 ? figure : kNoPlace;
      },
      [](const Life& life) { return LineOf(life, says(measure(life)), beside(life)); });
}

/// Of those who were there, what all they did anywhere is worth.
Places AllTime(const Book& book) {
  return Ranked(
      book.House.Uid == 0 ? book.Lives : book.Whole,
      [](const Life& life) {
        const int points = life.Promotions == 0 ? 0 : PointsOf(life);
        return points > 0 ? points : kNoPlace;
      },
      [](const Life& life) { return LineOf(life, Plain(PointsOf(life)), SpanAt(life)); });
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

std::string TriedFor(const Life& life) {
  return Counted(life.ForTitles, "match", "matches") + " for a Title";
}

/// Reigns from before counting began are told of by the Titles alone; they name who has gone.
Places NeverChampions(const Book& book) {
  std::set<int> uids;
  std::set<std::string, std::less<>> names;
  for (const TitleReign* reign : book.Reigns) {
    uids.insert({int(reign->Worker), int(reign->Partner)});
    if (reign->Worker == 0) names.insert(reign->Holder.Str());
  }
  const auto figure = [&](const Life& life) {
    const bool held = life.Reigns > 0 || life.Days > 0 ||
                      (life.Of->Worker != 0 ? uids.contains(life.Of->Worker)
                                            : names.contains(life.Of->Name.View()));
    return held || life.Matches() < kFewestMatches || life.Of->Peak == 0 ? kNoPlace
                                                                         : int(life.Of->Peak);
  };
  return Ranked(book.Lives, figure, [](const Life& life) {
    return LineOf(life, Share(life.Of->Peak), TriedFor(life));
  });
}

// Reigns.

RecordLine LineOf(const TitleReign& reign, int figure) {
  return {reign.Holder.Str(), 0,
          Plain(figure),      reign.Title + " (" + reign.Initials.Str() + ")",
          reign.From,         reign.Partner == 0 ? int(reign.Worker) : 0};
}

template <bool shortest>
Places ByLength(const Book& book) {
  const auto days = [&](const TitleReign* reign) {
    return shortest && reign->End != kReignLost ? kNoPlace : DaysOf(*reign, book.Of().Today());
  };
  const auto write = [&](const TitleReign* reign) {
    RecordLine line = LineOf(*reign, days(reign));
    if (reign->End == kReignLasts) line.More += ", lasts";
    return line;
  };
  return Ranked(book.Reigns, days, write, shortest);
}

Places ByDefences(const Book& book) {
  return Ranked(
      book.Reigns,
      [](const TitleReign* reign) { return reign->Defences > 0 ? int(reign->Defences) : kNoPlace; },
      [](const TitleReign* reign) { return LineOf(*reign, reign->Defences); });
}

Places RestlessTitles(const Book& book) {
  using Key = std::tuple<int, std::string_view, std::string_view>;
  std::map<Key, int> counts;
  for (const TitleReign* reign : book.Reigns)
    ++counts[{reign->Owner, reign->Initials.View(), reign->Title.View()}];
  const std::string least = HaveReignsGone(book.Of()) ? "at least " : "";
  return Ranked(
      std::vector(counts.begin(), counts.end()), [](const auto& title) { return title.second; },
      [&](const auto& title) {
        const auto& [owner, initials, name] = title.first;
        return RecordLine{std::string(name), 0, least + Plain(title.second), std::string(initials)};
      });
}

// Feats.

template <FeatKind kind, Reads says>
Places OfFeats(const Book& book) {
  return Ranked(
      book.Past.Feats,
      [&](const Feat& feat) {
        const bool counts = feat.Kind == kind && feat.Number >= 0 &&
                            IsOf(book.House, feat.Promotion, feat.Initials.View());
        return counts ? int(feat.Number) : kNoPlace;
      },
      [&](const Feat& feat) {
        const int place = book.Past.PlaceOf(feat.Career);
        const std::string what = feat.What.Str();
        return RecordLine{
            feat.Who + (feat.Against.View().empty() ? "" : " vs " + feat.Against.Str()),
            0,
            says(feat.Number),
            what.empty() ? feat.Initials.Str() : what + " (" + feat.Initials.Str() + ")",
            feat.On,
            place < 0 ? 0 : int(book.Past.Careers[static_cast<std::size_t>(place)].Worker)};
      },
      kind == kFeatYoungest);
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
  return Ranked(
      book.Past.Pairs,
      [&](const Partnership& pair) {
        const bool counts = IsOf(book.House, pair.Promotion, pair.Initials.View());
        const int figure = counts ? measure(pair) : 0;
        return figure > 0 ? figure : kNoPlace;
      },
      [&](const Partnership& pair) {
        return RecordLine{TeamText(book, pair), 0, Plain(measure(pair)),
                          std::to_string(pair.Won) + " won, " + std::to_string(pair.Lost) + " lost",
                          pair.First};
      });
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
     "What the whole career is worth by the rule of the hall of fame, wherever they were.",
     AllTime},
    {"Titles", "Longest reigns", "Days", "Title", "Reigns whose beginning is known.",
     ByLength<false>},
    {"Titles", "Shortest reigns", "Days", "Title", "Reigns that were lost in the ring.",
     ByLength<true>},
    {"Titles", "Most defences in a reign", "Defences", "Title",
     "How often it was kept in the ring.", ByDefences},
    {"Titles", "Most reigns", "Reigns", kLives, "Alone or with a partner.",
     OfLives<Sum<&Life::Reigns>>},
    {"Titles", "Most days as champion", "Days", "Reigns", "A day with two Titles is one day.",
     OfLives<Sum<&Life::Days>, Plain, InReigns>},
    {"Titles", "Most defences", "Defences", "Reigns", "Of all reigns.",
     OfLives<Sum<&Life::Defences>, Plain, InReigns>},
    {"Titles", "Best never to hold a Title", "Highest Over", "Tries",
     "The highest Over, wherever they were, of those with thirty matches and no reign.",
     NeverChampions},
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
    {"Careers", "Longest at the top", "Time", kLives,
     "Months with Over at 80 or more, wherever they were.", OfLives<Own<&Career::Top>, InYears>},
    {"Careers", "Highest Over", "Over", "When", "At the first of a month, wherever they were.",
     OfLives<Own<&Career::Peak>, Share, PeakOn>},
    {"Careers", "Biggest rises", "Over", "When", "Of Over within a year, wherever they were.",
     OfLives<Own<&Career::Rise>, Share, RiseYear>},
    {"Careers", "Biggest falls", "Over", "When", "Of Over within a year, wherever they were.",
     OfLives<Own<&Career::Fall>, Share, FallYear>},
    {"Careers", "Highest wages", "A month", kLives, "In all their contracts.",
     OfLives<Sum<&Life::Wage>, Wages, SpanAt>},
    {"Careers", "Most time hurt", "Time", kLives, "Months injured, wherever they were.",
     OfLives<Own<&Career::Hurt>, InYears>},
    {"Careers", "Most awards", "Awards", kLives, "Of the years, wherever they were.",
     OfLives<AwardsWon>},
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

RecordBook::RecordBook(const Ledger& ledger, HouseKey house)
    : Past(ledger), House(std::move(house)), Lives(LivesOf(ledger, House)) {
  if (House.Uid != 0) {
    std::vector<Life> whole = LivesOf(ledger);
    for (std::size_t i = 0; i < whole.size(); ++i)
      if (Lives[i].Promotions > 0) Whole.push_back(std::move(whole[i]));
  }
  for (const TitleReign& reign : ledger.Of().Reigns())
    if (!IsVacancy(reign) && IsOf(House, reign.Owner, reign.Initials.View()))
      Reigns.push_back(&reign);
}

std::span<const RecordTable> RecordTables() {
  return kRecordTables;
}

std::vector<HouseOfRecords> HousesOf(const Ledger& ledger) {
  std::set<HouseKey> houses;
  const auto add = [&](int uid, std::string_view initials) {
    if (uid > 0 && !initials.empty() && initials != "None")
      houses.insert({uid, std::string(initials)});
  };
  for (const Tenure& tenure : ledger.Tenures) add(tenure.Promotion, tenure.Initials.View());
  for (const TitleReign& reign : ledger.Of().Reigns()) add(reign.Owner, reign.Initials.View());
  for (const Promotion& promotion : ledger.Of().Promotions())
    add(promotion.Uid, promotion.Initials.View());
  std::vector<HouseOfRecords> list;
  for (const HouseKey& house : houses) list.push_back({house, ledger.Stands(house)});
  std::ranges::stable_sort(list, [](const HouseOfRecords& a, const HouseOfRecords& b) {
    return a.Stands != b.Stands ? a.Stands : a.Key.Initials < b.Key.Initials;
  });
  return list;
}

}  // namespace grapplemont
