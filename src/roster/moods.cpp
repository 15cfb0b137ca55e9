#include "roster/moods.h"

#include <algorithm>
#include <array>
#include <functional>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

constexpr int kMoodsDropped = 500;
constexpr int kMonths = 12;

std::size_t PlaceOf(int month) {
  return static_cast<std::size_t>(month - 1);
}

const WorkerMonths* MonthsOf(const World& world, int uid) {
  const auto row = std::ranges::find_if(
      world.Months(), [=](const WorkerMonths& months) { return months.Worker == uid; });
  return uid == 0 || row == world.Months().end() ? nullptr : &*row;
}

}  // namespace

void NoteMonths(World& world) {
  if (!IsFirstOfMonth(world.Today())) return;
  std::vector<const WorkerMonths*> old(FreeUids::kHighest + 1);
  for (const WorkerMonths& row : world.Months())
    if (row.Worker > 0) old[static_cast<std::size_t>(int(row.Worker))] = &row;
  std::vector<WorkerMonths> rows;
  const std::size_t month = PlaceOf(MonthOf(world.Today()));
  for (const Worker& worker : world.Workers()) {
    if (worker.Uid < 1) continue;
    const WorkerMonths* before = old[static_cast<std::size_t>(int(worker.Uid))];
    WorkerMonths& row = before ? rows.emplace_back(*before) : rows.emplace_back();
    row.Worker = worker.Uid;
    row.Over[month] = int(worker.Over);
    row.Morale[month] = int(worker.Morale);
    row.Condition[month] = int(worker.Condition);
  }
  world.Months().Rewrite(std::move(rows));
}

std::vector<MonthMark> MarksOf(const World& world, const Worker& worker) {
  std::vector<MonthMark> marks;
  const WorkerMonths* row = MonthsOf(world, worker.Uid);
  const int present = MonthOf(world.Today());
  for (int back = kMonths - 1; row && back >= 0; --back) {
    const int month = (present - 1 - back + kMonths) % kMonths + 1;
    const std::size_t at = PlaceOf(month);
    if (row->Over[at] == kNoEnd) continue;
    marks.push_back({std::string(MonthName(month).substr(0, 3)), row->Over[at], row->Morale[at],
                     row->Condition[at]});
  }
  marks.push_back({"Today", worker.Over, worker.Morale, worker.Condition});
  return marks;
}

void MoveMorale(World& world, Worker& worker, int change, MoodReason why) {
  const int before = worker.Morale;
  worker.Morale += change;
  if (worker.Morale == before || !WorksForPlayer(world, worker)) return;
  MoodChange kept;
  kept.On = world.Today();
  kept.Worker = worker.Uid;
  kept.Why = why;
  kept.Change = worker.Morale - before;
  kept.After = int(worker.Morale);
  AppendRolling(world.Moods(), kept, kMoodsDropped);
}

namespace {

/// The first of the month before.
Day StoryFrom(Day today) {
  const Day first = today - std::chrono::days{DayOfMonth(today) - 1};
  const Day before = first - std::chrono::days{1};
  return before - std::chrono::days{DayOfMonth(before) - 1};
}

std::string Times(int count) {
  return count == 1 ? "" : count == 2 ? ", twice" : ", " + std::to_string(count) + " times";
}

}  // namespace

MoodStory MoodStoryOf(const World& world, const Worker& worker) {
  struct Sum {
    int Change = 0, Times = 0;
  };
  std::array<Sum, kLastMood + 1> sums;  // the first is of what nobody has kept
  MoodStory story{kDayZero, worker.Morale, {}};
  const Day from = StoryFrom(world.Today());
  int running = worker.Morale;
  for (const MoodChange& change : world.Moods()) {
    if (change.Worker != worker.Uid || Day(change.On) < from || MoodReasonText(change.Why).empty())
      continue;
    if (story.Since == kDayZero) {
      story.Since = change.On;
      running = story.Before = change.After - change.Change;
    }
    sums[0].Change += change.After - change.Change - running;
    Sum& sum = sums[static_cast<std::size_t>(int(change.Why))];
    sum.Change += change.Change;
    ++sum.Times;
    running = change.After;
  }
  sums[0].Change += worker.Morale - running;
  for (int why = 1; why <= kLastMood; ++why)
    if (const Sum& sum = sums[static_cast<std::size_t>(why)]; sum.Times > 0)
      story.Steps.push_back({sum.Change, std::string(MoodReasonText(why)) + Times(sum.Times)});
  std::ranges::stable_sort(story.Steps, std::ranges::greater(), &MoodStep::Change);
  if (sums[0].Change != 0) story.Steps.push_back({sums[0].Change, "for other reasons"});
  return story;
}

}  // namespace grapplemont
