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
  note.On = world.Today();
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

}  // namespace grapplemont
