#include "show/holdshow.h"

#include <algorithm>
#include <array>
#include <span>

#include "business/tvshows.h"
#include "records/angles.h"
#include "records/arithmetic.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "roster/moods.h"
#include "show/boutbook.h"
#include "show/nightbook.h"
#include "show/recap.h"
#include "show/runsegment.h"
#include "show/showfeuds.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

ShowRun& Run(World& world) {
  return world.ShowRuns()[1];
}

bool IsOwnStable(const World& world, const Segment& segment) {
  for (const Stable& stable : world.Stables())
    if (stable.Owner == world.PlayerUid() && stable.Name == segment.Text) return true;
  return false;
}

/// The show's rating, or what a row of its sheet adds to it.
NoteOf RatingNote(const World& world, int row = 0) {
  return {kNoteRating, ShowName(world, world.ShowRuns()[1].IsEvent), 0, row};
}

/// What a flat night has taken of a rating: 0 or less.
int TakenByFlatNight(const Score& rating) {
  int taken = 0;
  for (const ScoreStep& step : rating.Steps())
    if (step.Why == kFlatNight) taken += static_cast<int>(step.Change);
  return taken;
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
  const Event* event = isEvent ? EventOfToday(world) : nullptr;
  const Show* show = isEvent ? nullptr : ShowOfToday(world);
  return event ? event->Name.Str() : show ? show->Name.Str() : std::string();
}

int LastRow(const World& world, bool isEvent) {
  return std::min(RowsOf(isEvent), world.Segments().Count());
}

CommentaryTeam TvTeam(const World& world) {
  const Show* show = ShowOfToday(world);
  return show ? CommentaryTeam{show->Announcer, show->Colour, show->ColourIsWorker}
              : CommentaryTeam{};
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
  BeginNight(world);
  const NoteOf rating = RatingNote(world);
  NoteStep(world, rating, run.AnnouncerCharge, announced,
           "Announcer " + AnnouncerName(world, team));
  NoteStep(world, rating, run.ColourCharge, coloured,
           "Colour commentator " + ColourName(world, team));
}

void AddExtraBonus(World& world, int bonus) {
  Run(world).ShowSum += bonus;
  Run(world).ExtraBonus = bonus;
  NoteStep(world, RatingNote(world), bonus, Run(world).ShowSum, "The extra of the Event");
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
  return segment.Kind != kMatch && segment.Text != "None" && !IsOwnStable(world, segment);
}

int NextSegment(const World& world) {
  const ShowRun* run = ShowUnderWay(world);
  if (!run || run->Stage != kShowRuns) return 0;
  const int last = LastRow(world, run->IsEvent);
  for (int number = std::max(0, int(run->Current)) + 1; number <= last; ++number) {
    const Segment& segment = world.Segments()[number];
    if (segment.Style != 0 && !IsPassedOver(world, segment)) return number;
  }
  return 0;
}

ToldSegment RunNextSegment(World& world, LineMemory* memory) {
  const int number = NextSegment(world);
  const bool first = Run(world).Current == 0;
  const Segment& segment = world.Segments()[number];
  const AtTheBell bell = LookAtTheBell(world, segment);
  const int sum = Run(world).ShowSum;
  ToldSegment told = RunSegment(world, number, memory);
  Run(world).Current = number;
  const int counted = Run(world).ShowSum - sum;
  const int taken = counted == 0 ? 0 : TakenByFlatNight(told.Overall);
  NoteStep(world, RatingNote(world, number), counted - taken, sum + counted - taken,
           SegmentResult(world, segment));
  NoteStep(world, RatingNote(world), taken, Run(world).ShowSum, kFlatNight);
  KeepBout(world, number, bell);
  if (memory) KeepReport(world, number, told, first);
  return told;
}

namespace {

/// A match, or an angle in which its people are there in person; interviews do not wear anybody
/// out.
bool Shows(const Segment& segment) {
  if (segment.Kind == kMatch) return true;
  return segment.Kind == kAngle && segment.Style != kWorkerDebutVideo &&
         segment.Style != kTeamDebutVideo;
}

int Appearances(const World& world, int uid, bool isEvent) {
  int count = 0;
  for (int number = 1; number <= LastRow(world, isEvent); ++number)
    if (const Segment& segment = world.Segments()[number];
        Shows(segment) && TakesPart(segment, uid))
      ++count;
  return count;
}

void TakeOverexposure(World& world, Worker& worker, int appearances) {
  const int before = worker.Over;
  if (appearances == 3) worker.Over -= world.RandomDraw(2);
  if (appearances == 4) worker.Over -= 2 + world.RandomDraw(3);
  if (appearances >= 5) worker.Over -= 6;
  NoteStep(world, {kNoteOver, worker.Name.Str(), worker.Uid}, worker.Over - before, worker.Over,
           std::to_string(appearances) + " times on the card: the fans tire of that");
}

void FeelLeftOut(World& world, Worker& worker) {
  if (worker.Position >= kMidcard || worker.Condition < 86) return;
  const int before = worker.Morale;
  MoveMorale(world, worker, -world.RandomDraw(8), kMoodLeftOut);
  NoteStep(world, {kNoteMorale, worker.Name.Str(), worker.Uid}, worker.Morale - before,
           worker.Morale, "rested, but in no match or angle");
}

bool WasAtStake(const World& world, const Title& title) {
  for (int number = 1; number <= LastRow(world, true); ++number)
    if (const Segment& segment = world.Segments()[number];
        segment.Kind == kMatch && segment.TitleName == title.Name)
      return true;
  return false;
}

/// Overexposure and rest: Over of who was seen three times and more, Morale of stars who were left
/// at home, and the debuts.
void AfterShow(World& world, bool isEvent) {
  for (Worker& worker : world.Workers()) {
    if (!WorksForPlayer(world, worker) || worker.Position == kDevelopmentDeal ||
        worker.Position >= 79)
      continue;
    const int appearances = Appearances(world, worker.Uid, isEvent);
    if (appearances == 0) {
      FeelLeftOut(world, worker);
    } else {
      TakeOverexposure(world, worker, appearances);
      worker.Debuted = true;
    }
  }
}

/// An Event's: feuds that it did not use may cool. Draws once for each.
void CoolUnusedFeuds(World& world, const ShowRun& run) {
  for (int slot = 1; slot <= world.Feuds().Count(); ++slot) {
    if (run.FeudTouched[static_cast<std::size_t>(slot - 1)]) continue;
    Feud& feud = world.Feuds()[slot];
    if (world.RandomDraw(3) != 2) continue;
    const int before = feud.Heat;
    feud.Heat -= feud.Heat / 10;
    if (!IsFreeSlot(feud))
      NoteStep(world, {kNoteHeat, FeudText(world, feud)}, feud.Heat - before, feud.Heat,
               "not on the card of the Event");
  }
}

/// An Event's: Titles that were not at stake may lose image. Draws once for each.
void FadeUnusedTitles(World& world) {
  for (Title& title : world.Titles()) {
    if (title.Owner != world.PlayerUid() || title.Suspended || WasAtStake(world, title)) continue;
    if (world.RandomDraw(3) != 1) continue;
    const int before = title.Image;
    title.Image = title.Image * 9 / 10;
    NoteStep(world, {kNoteTitleImage, title.Name.Str()}, title.Image - before, title.Image,
             "not at stake at the Event");
  }
}

/// So much below what the size asks for, and the sum loses so much; every limit passed charges.
struct Charge {
  int Margin;
  int Amount;
};
constexpr Charge kAnnouncerCharges[] = {{5, 20}, {10, 20}, {20, 20}, {30, 40}};
constexpr Charge kColourCharges[] = {{5, 5}, {10, 10}, {20, 15}, {30, 30}};
constexpr Charge kProductionCharges[] = {{5, 10}, {10, 10}, {20, 10}, {30, 10}, {50, 20}};

// By size, Global to Backyard.
constexpr std::array<int, 6> kWantedProduction = {85, 65, 60, 40, 10, 5};

constexpr int kSpeechlessCharge = 100;

int Charged(std::span<const Charge> charges, int have, int want) {
  int sum = 0;
  for (const Charge& charge : charges)
    if (have + charge.Margin < want) sum -= charge.Amount;
  return sum;
}

/// An empty chair does not charge the sum: it makes it true or false that it stood at a number.
int EmptyChair(int sum, int number) {
  return sum == number ? -1 : 0;
}

}  // namespace

int CloseShow(World& world) {
  ShowRun& run = Run(world);
  const NoteOf rating = RatingNote(world);
  run.ProductionCharge = ProductionCharge(world.Player());
  run.ShowSum += run.ProductionCharge;
  NoteStep(world, rating, run.ProductionCharge, run.ShowSum,
           "Production " + std::to_string(world.Player().Production) + ", too poor for this size");
  if (run.IsEvent) CoolUnusedFeuds(world, run);
  run.ShowSum += run.LastOverall;  // the closing Segment counts twice
  NoteStep(world, rating, run.LastOverall, run.ShowSum, "The last row counts twice");
  run.ShowSegments += 1;
  const int sum = run.ShowSum;
  run.ShowSum = std::clamp(Score::Floor(sum, run.ShowSegments), 0, 100);
  NoteFact(world, rating, run.ShowSum - sum, run.ShowSum,
           "Divided by " + std::to_string(run.ShowSegments) + ", rounded down");
  AfterShow(world, run.IsEvent);
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

int WithAnnouncer(const World& world, int announcer, int sum) {
  const Staff* staff = world.FindStaff(announcer);
  if (!staff) return EmptyChair(sum, 100);
  return sum + Charged(kAnnouncerCharges, staff->Talent, WantedTalent(world.Player().Size));
}

int WithColour(const World& world, int colour, bool isWorker, int sum) {
  const Worker* worker = isWorker ? world.FindWorker(colour) : nullptr;
  const Staff* staff = isWorker ? nullptr : world.FindStaff(colour);
  if (!worker && !staff) return EmptyChair(sum, 40);
  const int have = worker ? worker->Charisma : staff->Talent;
  sum += Charged(kColourCharges, have, WantedTalent(world.Player().Size));
  return worker && !worker->Speaks ? sum - kSpeechlessCharge : sum;
}

int ProductionCharge(const Promotion& promotion) {
  return Charged(kProductionCharges, promotion.Production,
                 BySize(kWantedProduction, promotion.Size));
}

}  // namespace grapplemont
