#include "show/nightbook.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

#include "show/recap.h"

namespace grapplemont {

namespace {

using Night = std::pair<Day, int>;

Night NightOf(const ShowNote& note) {
  return {note.On, note.Promotion};
}

bool IsOfAShow(const ShowNote& note) {
  return note.Kind < kNoteMerch;
}

}  // namespace

void BeginNight(World& world) {
  const Night today{world.Today(), world.PlayerUid()};
  std::set<Night> nights;
  for (const ShowNote& note : world.ShowNotes())
    if (IsOfAShow(note)) nights.insert(NightOf(note));
  nights.erase(today);
  while (static_cast<int>(nights.size()) >= kKeptShows) nights.erase(nights.begin());
  const auto stays = [&](const ShowNote& note) {
    if (note.Kind == kNoteStanding) return nights.empty() || NightOf(note) >= *nights.begin();
    return !IsOfAShow(note) || nights.contains(NightOf(note));
  };
  world.ShowNotes().Keep(stays);
}

void NoteStep(SegmentRun& run, NoteKind kind, const Worker& worker, int change, int now,
              std::string_view why) {
  if (run.Row != 0)
    NoteStep(run.World, {kind, worker.Name.Str(), worker.Uid, run.Row}, change, now, why);
}

void NoteStep(SegmentRun& run, NoteKind kind, const std::string& what, int change, int now,
              std::string_view why) {
  if (run.Row != 0) NoteStep(run.World, {kind, what, 0, run.Row}, change, now, why);
}

void NoteFact(SegmentRun& run, const NoteOf& of, int change, int now, std::string_view why) {
  if (run.Row != 0) NoteFact(run.World, {of.Kind, of.What, of.Worker, run.Row}, change, now, why);
}

const ShowNote& NotedNumber::Main() const {
  return **std::ranges::max_element(
      Steps, {}, [](const ShowNote* step) { return std::abs(int(step->Change)); });
}

std::vector<NotedNumber> NightOf(const World& world, Day on, int promotionUid) {
  std::vector<NotedNumber> numbers;
  for (const ShowNote& note : world.ShowNotes()) {
    if (!IsOfAShow(note) || NightOf(note) != Night{on, promotionUid}) continue;
    const auto known = std::ranges::find_if(numbers, [&](const NotedNumber& number) {
      return number.Kind == note.Kind && note.What == number.What;
    });
    NotedNumber& number =
        known != numbers.end()
            ? *known
            : numbers.emplace_back(NotedNumber{note.Kind, note.What.Str(), note.Worker, {}});
    number.Steps.push_back(&note);
  }
  return numbers;
}

bool HasAnyNight(const World& world) {
  return std::ranges::any_of(world.ShowNotes(), IsOfAShow);
}

bool HasNight(const World& world, Day on, int promotionUid) {
  return std::ranges::any_of(world.ShowNotes(), [&](const ShowNote& note) {
    return note.Kind == kNoteRating && NightOf(note) == Night{on, promotionUid};
  });
}

}  // namespace grapplemont
