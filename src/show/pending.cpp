#include "records/dates.h"
#include "records/segments.h"
#include "show/forecast.h"
#include "show/holdshow.h"

// Plain answers until the show's engine has its own.

namespace grapplemont {

const Show* ShowOfToday(const World& world) {
  for (const Show& show : world.Shows())
    if (show.Owner == world.PlayerUid() && show.Day == DayName(world.Today())) return &show;
  return nullptr;
}

CommentaryTeam TvTeam(const World& world) {
  const Show* show = ShowOfToday(world);
  if (!show) return {};
  return {show->Announcer, show->Colour, bool(show->ColourIsWorker)};
}

void StartShow(World& world, bool isEvent, const CommentaryTeam& team) {
  ShowRun run;
  run.Stage = kShowRuns;
  run.IsEvent = isEvent;
  run.Announcer = team.Announcer;
  run.Colour = team.Colour;
  run.ColourIsWorker = team.ColourIsWorker;
  run.FlatNight = world.RandomDraw(15) == 1;
  world.ShowRuns().Rewrite({run});
}

void AddExtraBonus(World& world, int bonus) {
  ShowRun& run = world.ShowRuns()[1];
  run.ExtraBonus = bonus;
  run.ShowSum = run.ShowSum + bonus;
}

int HoldShow(World& world, bool isEvent, const CommentaryTeam& team, int extraBonus, LineMemory*) {
  StartShow(world, isEvent, team);
  AddExtraBonus(world, extraBonus);
  world.ShowRuns()[1].Stage = kShowClosed;
  return world.ShowRuns()[1].ShowSum = 50;
}

void LeaveShow(World& world) {
  if (world.ShowRuns().Count() > 0) world.Session.ShowRating = world.ShowRuns()[1].ShowSum;
  world.ShowRuns().Remove();
}

ShowForecast ForecastShow(const World& world, bool, const CommentaryTeam& team) {
  ShowForecast forecast;
  int booked = 0, sum = 0;
  for (const Segment& segment : world.Segments()) {
    Forecast row;
    if (segment.Kind != kEmptySegment) {
      int over = 0, heads = 0;
      for (const int uid : PeopleOf(segment))
        if (const Worker* worker = world.FindWorker(uid)) over += worker->Over, ++heads;
      const int mean = heads == 0 ? 0 : over / heads;
      row = {mean, mean + 8 > 100 ? 100 : mean + 8};
      sum += mean;
      ++booked;
    }
    forecast.Rows.push_back(row);
  }
  if (booked > 0) forecast.Rating = {sum / booked, sum / booked + 6};
  if (booked > 0 && team.Announcer == 0) forecast.Warnings.push_back("There is no announcer.");
  return forecast;
}

}  // namespace grapplemont
