#include "records/notes.h"

#include <algorithm>
#include <vector>

#include "records/fields/fields.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

constexpr int kDroppedNotes = 500;
constexpr std::size_t kImageChanges = 10;

template <class Take>
void ForNotes(const World& world, NoteKind kind, Take take) {
  for (const ShowNote& note : world.ShowNotes())
    if (note.Kind == kind && note.Promotion == world.PlayerUid()) take(note);
}

}  // namespace

void NoteFact(World& world, const NoteOf& of, int change, int now, std::string_view why) {
  ShowNote note;
  note.On = of.On.value_or(world.Today());
  note.Promotion = world.PlayerUid();
  note.Kind = of.Kind;
  note.Worker = of.Worker;
  note.Row = of.Row;
  note.What = of.What;
  note.Change = change;
  note.Now = now;
  note.Why = why;
  AppendRolling(world.ShowNotes(), note, kDroppedNotes);
}

void NoteStep(World& world, const NoteOf& of, int change, int now, std::string_view why) {
  if (change != 0) NoteFact(world, of, change, now, why);
}

void NoteSteps(World& world, const NoteOf& of, const Explained& steps, int from) {
  for (const ScoreStep& step : steps.Steps()) {
    const int change = static_cast<int>(step.Change);
    NoteFact(world, of, change, from += change, step.Why);
  }
}

void NoteAnew(World& world, const NoteOf& of, const Explained& steps) {
  world.ShowNotes().Keep([&](const ShowNote& note) { return note.Kind != of.Kind; });
  NoteSteps(world, of, steps);
}

Score NotedScore(const World& world, NoteKind kind, std::optional<Day> on) {
  Score score;
  ForNotes(world, kind, [&](const ShowNote& note) {
    if (!on || Day(note.On) == *on) score.Step(note.Change, note.Why.Str());
  });
  return score;
}

NotedDecision NotedAnswer(const World& world, NoteKind kind) {
  NotedDecision answer;
  ForNotes(world, kind, [&](const ShowNote& note) {
    answer.Whose = note.What.Str();
    answer.Why.Weigh(note.Change > 0, note.Why.Str());
  });
  return answer;
}

std::optional<Day> LastNoted(const World& world, NoteKind kind, std::string_view what) {
  std::optional<Day> last;
  ForNotes(world, kind, [&](const ShowNote& note) {
    if (note.What == what) last = Day(note.On);
  });
  return last;
}

Score ImageSteps(const World& world) {
  std::vector<const ShowNote*> changes;
  for (const ShowNote& note : world.ShowNotes()) {
    const bool isImage = note.Kind == kNoteImage || note.Kind == kNoteStanding;
    if (!isImage || note.Promotion != world.PlayerUid()) continue;
    if (!changes.empty() && changes.back()->Now != note.Now - note.Change) changes.clear();
    changes.push_back(&note);
  }
  Score image;
  if (changes.empty() || changes.back()->Now != world.Player().Image) return image;
  if (changes.size() > kImageChanges) changes.erase(changes.begin(), changes.end() - kImageChanges);
  image.Add(changes.front()->Now - changes.front()->Change, "as it stood before");
  for (const ShowNote* change : changes)
    image.Add(change->Change, change->Why.Str() + ", " + LongDate(change->On));
  return image;
}

namespace {

/// By how much the standing moved with the image: what rises a class begins low, what falls high.
int StandingChange(const ShowNote& note) {
  constexpr int kClass = 100, kFar = 50;  // no show or month moves the image so far
  return note.Change > kFar    ? note.Change - kClass
         : note.Change < -kFar ? note.Change + kClass
                               : int(note.Change);
}

}  // namespace

Score MomentumSteps(const World& world) {
  const Promotion& player = world.Player();
  Score momentum;
  if (player.Rank[0] == kNoEnd) return momentum;
  const int moved = StandingScore(player) - player.Rank[0];
  const std::chrono::year_month_day today{world.Today()};
  const Day monthEnd = std::chrono::sys_days{today.year() / today.month() / 1};
  int noted = 0;
  std::vector<ScoreStep> steps;
  for (const ShowNote& note : world.ShowNotes()) {
    const bool isImage = note.Kind == kNoteImage || note.Kind == kNoteStanding;
    if (!isImage || note.Promotion != world.PlayerUid() || Day(note.On) < monthEnd) continue;
    steps.push_back({note.Why.Str() + ", " + ShortDate(note.On), StandingChange(note)});
    noted += StandingChange(note);
  }
  momentum.Add(moved - noted, "from before what is remembered");
  for (ScoreStep& step : steps) momentum.Add(step.Change, std::move(step.Why));
  return momentum;
}

}  // namespace grapplemont
