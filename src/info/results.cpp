#include "info/results.h"

#include <algorithm>
#include <functional>
#include <set>

#include "business/past.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/segments.h"

namespace grapplemont {

namespace {

template <class Records, class Test>
std::vector<int> YearsIn(const Records& records, Test test) {
  std::set<int, std::greater<>> years;
  for (const auto& record : records)
    if (test(record)) years.insert(YearOf(record.On));
  return {years.begin(), years.end()};
}

}  // namespace

std::vector<const HistoryEntry*> PastCards(const World& world, std::string_view name, int year) {
  std::vector<const HistoryEntry*> shows;
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (IsShow(entry) && (name.empty() || entry.Name == name) &&
        (year == 0 || YearOf(entry.On) == year))
      shows.push_back(&entry);
  }
  return shows;
}

std::vector<std::string> NamesOfPastShows(const World& world) {
  std::set<std::string> names;
  for (const HistoryEntry& entry : world.History())
    if (IsShow(entry) && !entry.Name.View().empty()) names.insert(entry.Name.Str());
  return {names.begin(), names.end()};
}

std::vector<int> YearsOfPastShows(const World& world) {
  return YearsIn(world.History(), IsShow);
}

std::vector<const HeldMatch*> MatchesOf(const World& world, const HistoryEntry& show) {
  std::vector<const HeldMatch*> matches;
  for (const HeldMatch& match : world.Bouts())
    if (Day(match.On) == Day(show.On) && match.Promotion == show.Promotion)
      matches.push_back(&match);
  return matches;
}

std::string ResultText(const HeldMatch& match) {
  return match.Won + (match.Winners > 0 ? " beat " : " drew with ") + match.Lost.Str();
}

std::string KindText(const HeldMatch& match) {
  const std::string type(MatchTypeText(match.Style, match.MatchType));
  std::string text = type;
  if (const MatchStyleRow* style = FindMatchStyle(match.Style); style && match.Style != kSpecial)
    text = std::string(style->Says) + (type.empty() ? "" : ", " + type);
  return match.IsEvent && match.Row == 1 ? text + " (dark match)" : text;
}

std::string SumOf(const std::vector<const HistoryEntry*>& shows) {
  long long held = 0, ratings = 0, people = 0, calledOff = 0;
  for (const HistoryEntry* show : shows) {
    (show->CalledOff ? calledOff : held) += 1;
    if (!show->CalledOff) ratings += show->Rating;
    people += show->Attendance;
  }
  std::string text = Counted(held, "show") + " held, " + std::to_string(calledOff) + " called off.";
  if (held > 0)
    text += " Rated " + std::to_string(ratings / held) + "% on average, " +
            Counted(people, "person", "people") + " in all.";
  return text;
}

std::vector<int> YearsOfAwards(const World& world) {
  return YearsIn(world.Awards(), [](const YearAward&) { return true; });
}

std::vector<const YearAward*> AwardsOf(const World& world, int year, int kind) {
  std::vector<const YearAward*> awards;
  for (const YearAward& award : world.Awards())
    if ((year == 0 || YearOf(award.On) == year) && (kind == 0 || award.Kind == kind))
      awards.push_back(&award);
  std::stable_sort(awards.begin(), awards.end(), [](const YearAward* a, const YearAward* b) {
    return Day(a->On) != Day(b->On) ? Day(a->On) > Day(b->On) : a->Kind < b->Kind;
  });
  return awards;
}

namespace {

struct Standing {
  int From;
  const char* Words;
};
// By the lowest reputation, from the top.
constexpr Standing kStandings[] = {{90, "A legend of the business"},
                                   {75, "Respected"},
                                   {50, "Well thought of"},
                                   {25, "Doubted"},
                                   {1, "Distrusted"}};

void CountShow(const HistoryEntry& show, JobRecord& record, long long& sum) {
  if (show.CalledOff) {
    ++record.CalledOff;
    return;
  }
  ++(show.Kind == kPastTv ? record.Shows : record.Events);
  sum += show.Rating;
  if (record.BestShow.empty() || show.Rating > record.BestRating) {
    record.BestShow = show.Name.Str();
    record.BestRating = show.Rating;
  }
}

}  // namespace

std::string ReputationText(int reputation) {
  for (const Standing& standing : kStandings)
    if (reputation >= standing.From) return standing.Words;
  return "Finished in the eyes of many";
}

std::vector<JobLine> CareerOf(const World& world) {
  std::vector<JobLine> career;
  Day next = world.Today();
  for (const Job& job : world.Game().Jobs) {
    const bool present = &job == &world.Game().Jobs.front();
    if (!present && (job.Promotion == "None" || job.Promotion == "")) continue;
    career.push_back({job.Promotion.Str(), job.Started, next, present, job.StartSize,
                      job.StartImage, job.EndSize, job.EndImage});
    next = job.Started;
  }
  if (const Promotion* player = world.FindPromotion(world.PlayerUid())) {
    career.front().Promotion = player->Name.Str();
    career.front().EndSize = player->Size;
    career.front().EndImage = player->Image;
  }
  return career;
}

JobRecord RecordOfJob(const World& world) {
  JobRecord record;
  long long sum = 0;
  const Day started = world.Game().Jobs.front().Started;
  for (const HistoryEntry& entry : world.History()) {
    if (entry.Promotion != world.PlayerUid() || Day(entry.On) < started) continue;
    if (entry.Kind == kPastMonth) {
      if (Day(entry.On) == started) continue;  // the month before, of somebody else
      ++record.Months;
      record.Profit += static_cast<long long>(entry.Income) - entry.Costs;
    } else {
      CountShow(entry, record, sum);
    }
  }
  const int held = record.Shows + record.Events;
  record.MeanRating = held == 0 ? 0 : static_cast<int>(sum / held);
  return record;
}

}  // namespace grapplemont
