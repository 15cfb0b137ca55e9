#include "booking/sheetrow.h"

#include <algorithm>

#include "booking/casting.h"
#include "booking/matchsteps.h"
#include "booking/wizard.h"
#include "records/segments.h"
#include "show/showfeuds.h"

namespace grapplemont {

namespace {

bool EnemiesMeet(const Feud& feud, const std::vector<int>& people) {
  for (const int one : people)
    for (const int other : people)
      if (AreEnemies(feud, one, other)) return true;
  return false;
}

std::string NameOf(const World& world, int uid) {
  return SideText(world, {uid});
}

/// Those the uids stand for: themselves, or with `teams` the sides that they are the first of.
std::string NamesOf(const World& world, const Segment& match, const std::vector<int>& uids,
                    bool teams = false) {
  const auto sides = SidesOf(match);
  std::string text;
  for (const int uid : uids) {
    const int side = teams ? SideOf(match, uid) : 0;
    text += (text.empty() ? "" : ", ") +
            (side == 0 ? NameOf(world, uid)
                       : SideText(world, sides[static_cast<std::size_t>(side - 1)]));
  }
  return text;
}

std::vector<std::string> DetailsOfMatch(const World& world, const Segment& match) {
  if (match.Style == kSpecial)
    return {"Entrants: " + NamesOf(world, match, PeopleOf(match)),
            "Runner-up: " + NameOf(world, match.Loser)};
  const ResultForm& form = ResultFormOf(match);
  if (IsDraw(match) || form.Losers == 0) return {};
  if (form.Losers == 1)
    return {"Fall: " + NameOf(world, match.Winner) + " over " + NameOf(world, match.Loser)};
  return {"Order of elimination: " + NamesOf(world, match, LosersInOrder(match), form.Teams)};
}

std::string PlayedBy(const World& world, const Segment& angle, const Role& role) {
  if (role.From == Casting::Stables) return angle.Text.Str();
  if (role.Place == 0) return angle.TitleName.Str();
  return NameOf(world, angle.Worker[static_cast<std::size_t>(role.Place - 1)]);
}

std::vector<std::string> DetailsOfAngle(const World& world, const Segment& segment) {
  std::vector<std::string> lines;
  if (const Angle* angle = FindAngle(segment.Style))
    for (const Role& role : angle->Roles)
      if (IsUsed(role) && IsCast(segment, role))
        lines.push_back(std::string(role.Caption) + ": " + PlayedBy(world, segment, role));
  return lines;
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

std::vector<std::string> DetailsOfRow(const World& world, const Segment& segment) {
  if (segment.Kind == kMatch) return DetailsOfMatch(world, segment);
  if (segment.Kind == kAngle) return DetailsOfAngle(world, segment);
  return {};
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
