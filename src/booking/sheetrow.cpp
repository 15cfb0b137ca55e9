#include "booking/sheetrow.h"

#include <algorithm>

#include "booking/wizard.h"
#include "records/segments.h"
#include "show/feudslots.h"

namespace grapplemont {

namespace {

bool EnemiesMeet(const Feud& feud, const std::vector<int>& people) {
  for (const int one : people)
    for (const int other : people)
      if (AreEnemies(feud, one, other)) return true;
  return false;
}

/// Everybody of the Segment, those who run in as well.
std::vector<int> AllPeople(const Segment& segment) {
  std::vector<int> people = PeopleOf(segment);
  for (const int uid : {segment.Other1, segment.Other2, segment.Other3, segment.Other4})
    if (uid != 0) people.push_back(uid);
  return people;
}

}  // namespace

std::string KindOfRow(const Segment& segment) {
  switch (segment.Kind) {
    case kMatch:
      return std::string(MatchTypeText(segment.Style, segment.MatchType));
    case kInterview:
      return "Interview";
    case kAngle:
      return "Angle";
    default:
      return {};
  }
}

std::string FeudOfRow(const World& world, const Segment& segment) {
  if (segment.Kind == kEmptySegment) return {};
  const std::vector<int> people = AllPeople(segment);
  int hottest = -1;
  for (const Feud& feud : world.Feuds())
    if (feud.Heat > hottest && EnemiesMeet(feud, people)) hottest = feud.Heat;
  return hottest < 0 ? std::string() : "Feud " + std::to_string(hottest);
}

std::string RangeText(const Forecast& forecast) {
  if (forecast.Low == forecast.High) return std::to_string(forecast.Low) + "%";
  return std::to_string(forecast.Low) + " - " + std::to_string(forecast.High) + "%";
}

std::string ForecastOfRow(const ShowForecast& forecast, int record) {
  const auto row = static_cast<std::size_t>(record - 1);
  if (row >= forecast.Rows.size() || forecast.Rows[row] == Forecast{}) return {};
  return RangeText(forecast.Rows[row]);
}

std::vector<std::string> SummaryOfRow(const World& world, const Segment& segment, bool isEvent) {
  Wizard wizard = BeginBooking(1, isEvent);
  wizard.Buffer = segment;
  wizard.Step = StepsOf(segment);
  wizard.SegmentComplete = true;
  std::vector<std::string> lines;
  for (int step = 0; step < wizard.Step; ++step) {
    const StepText text = TextOfStep(world, wizard, step);
    if (!text.Summary.empty()) lines.push_back(text.Summary);
    if (!text.Tip.empty()) lines.push_back(text.Tip);
  }
  return lines;
}

std::vector<const Worker*> NotOnTheCard(const World& world, bool isEvent) {
  std::vector<const Worker*> free = EligibleRoster(world, {isEvent, "All"});
  for (const Segment& segment : world.Segments())
    std::erase_if(free, [&](const Worker* worker) { return TakesPart(segment, worker->Uid); });
  std::stable_sort(free.begin(), free.end(),
                   [](const Worker* a, const Worker* b) { return a->Over > b->Over; });
  return free;
}

}  // namespace grapplemont
