#include "show/holdshow.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "show/aftershow.h"
#include "show/boutbook.h"
#include "show/charges.h"
#include "show/reportcolumn.h"

namespace grapplemont {

namespace {

constexpr int kFlatNightOdds = 8;

ShowRun& Run(World& world) {
  return world.ShowRuns()[1];
}

bool IsOwnStable(const World& world, const Segment& segment) {
  for (const Stable& stable : world.Stables())
    if (stable.Owner == world.PlayerUid() && stable.Name == segment.Text) return true;
  return false;
}

}  // namespace

const Show* ShowOfToday(const World& world) {
  for (const Show& show : world.Shows())
    if (show.Owner == world.PlayerUid() && show.Day == DayName(world.Today())) return &show;
  return nullptr;
}

const Event* EventOfToday(const World& world) {
  for (const Event& event : world.Events())
    if (event.Owner == world.PlayerUid() && event.Month == MonthOf(world.Today())) return &event;
  return nullptr;
}

std::string ShowName(const World& world, bool isEvent) {
  if (isEvent) {
    const Event* event = EventOfToday(world);
    return event ? event->Name.Str() : std::string();
  }
  const Show* show = ShowOfToday(world);
  return show ? show->Name.Str() : std::string();
}

CommentaryTeam TvTeam(const World& world) {
  const Show* show = ShowOfToday(world);
  if (!show) return {};
  return {show->Announcer, show->Colour, show->ColourIsWorker};
}

std::string AnnouncerName(const World& world, const CommentaryTeam& team) {
  const std::string name = StaffName(world, team.Announcer);
  return name.empty() ? "None" : name;
}

std::string ColourName(const World& world, const CommentaryTeam& team) {
  const std::string name =
      team.ColourIsWorker ? WorkerName(world, team.Colour) : StaffName(world, team.Colour);
  return name.empty() ? "None" : name;
}

void StartShow(World& world, bool isEvent, const CommentaryTeam& team) {
  ShowRun run;
  run.Stage = kShowRuns;
  run.IsEvent = isEvent;
  run.FlatNight = world.RandomDraw(kFlatNightOdds) == 1;
  run.Announcer = team.Announcer;
  run.Colour = team.Colour;
  run.ColourIsWorker = team.ColourIsWorker;
  const int announced = WithAnnouncer(world, team.Announcer, 0);
  const int coloured = WithColour(world, team.Colour, team.ColourIsWorker, announced);
  run.AnnouncerCharge = announced;
  run.ColourCharge = coloured - announced;
  run.ShowSum = coloured;
  world.ShowRuns().Rewrite({run});
}

void AddExtraBonus(World& world, int bonus) {
  Run(world).ShowSum += bonus;
  Run(world).ExtraBonus = bonus;
}

const ShowRun* ShowUnderWay(const World& world) {
  if (world.ShowRuns().Count() == 0 || world.ShowRuns()[1].Stage == kNoShow) return nullptr;
  return &world.ShowRuns()[1];
}

bool ShowIsClosed(const World& world) {
  const ShowRun* run = ShowUnderWay(world);
  return run && run->Stage == kShowClosed;
}

bool IsPassedOver(const World& world, const Segment& segment) {
  return segment.Kind != kMatch && !(segment.Text == "None") && !IsOwnStable(world, segment);
}

int NextSegment(const World& world) {
  const ShowRun* run = ShowUnderWay(world);
  if (!run || run->Stage != kShowRuns) return 0;
  const int last = std::min(RowsOf(run->IsEvent), world.Segments().Count());
  for (int number = std::max(0, int(run->Current)) + 1; number <= last; ++number) {
    const Segment& segment = world.Segments()[number];
    if (segment.Style != 0 && !IsPassedOver(world, segment)) return number;
  }
  return 0;
}

ToldSegment RunNextSegment(World& world, LineMemory* memory) {
  const int number = NextSegment(world);
  const bool first = Run(world).Current == 0;
  const AtTheBell bell = LookAtTheBell(world, world.Segments()[number]);
  ToldSegment told = RunSegment(world, number, memory);
  Run(world).Current = number;
  KeepBout(world, number, bell);
  if (memory) KeepReport(world, number, told, first);
  return told;
}

int CloseShow(World& world) {
  ShowRun& run = Run(world);
  run.ProductionCharge = ProductionCharge(world.Player());
  run.ShowSum += run.ProductionCharge;
  if (run.IsEvent) CoolUnusedFeuds(world, run);
  run.ShowSum += run.LastOverall;  // the closing Segment counts twice
  run.ShowSegments += 1;
  run.ShowSum = std::clamp(Score::Floor(run.ShowSum, run.ShowSegments), 0, 100);
  AfterShow(world, RowsOf(run.IsEvent));
  if (run.IsEvent) FadeUnusedTitles(world);
  run.Stage = kShowClosed;
  world.Session.ShowRating = run.ShowSum;
  world.Session.ShowFlag = run.ShowSegments;
  return run.ShowSum;
}

int FinishShow(World& world, LineMemory* memory) {
  while (NextSegment(world) != 0) RunNextSegment(world, memory);
  return ShowIsClosed(world) ? int(Run(world).ShowSum) : CloseShow(world);
}

int HoldShow(World& world, bool isEvent, const CommentaryTeam& team, int extraBonus,
             LineMemory* memory) {
  StartShow(world, isEvent, team);
  AddExtraBonus(world, extraBonus);
  return FinishShow(world, memory);
}

void LeaveShow(World& world) {
  world.Session.ShowRating = Run(world).ShowSum;
  world.Session.ShowFlag = Run(world).ShowSegments;
  world.Session.ExtraCost = Run(world).ExtraCost;
  world.ShowRuns().Remove();
}

}  // namespace grapplemont
