#include "show/livetelling.h"

#include <algorithm>

namespace grapplemont {

namespace {

constexpr TellingPace kPaces[] = {{"By hand", 0}, {"Slow", 450}, {"Steady", 300}, {"Fast", 160}};
constexpr int kLeastWords = 3, kBreath = 5;  // words that a short sentence, a held breath are worth

/// nullptr for none that this program understands.
const TellingHabit* Habit(const World& world) {
  const Records<TellingHabit>& habits = world.Of<TellingHabit>();
  const bool isKnown = habits.Count() > 0 && habits[1].Version == TellingHabit::kKnownVersion;
  return isKnown ? &habits[1] : nullptr;
}

template <class Change>
void ChangeHabit(World& world, Change change) {
  const TellingHabit* known = Habit(world);
  TellingHabit habit = known ? *known : TellingHabit{};
  change(habit);
  world.Of<TellingHabit>().Rewrite({habit});
}

}  // namespace

std::span<const TellingPace> TellingPaces() {
  return kPaces;
}

bool TellsLive(const World& world) {
  const TellingHabit* habit = Habit(world);
  return habit && habit->Live;
}

void SetTellsLive(World& world, bool live) {
  ChangeHabit(world, [live](TellingHabit& habit) { habit.Live = live; });
}

int PaceOfTelling(const World& world) {
  const TellingHabit* habit = Habit(world);
  const int last = static_cast<int>(std::size(kPaces)) - 1;
  return habit ? std::clamp(int(habit->Pace), 0, last) : 0;
}

void SetPaceOfTelling(World& world, int pace) {
  ChangeHabit(world, [pace](TellingHabit& habit) { habit.Pace = pace; });
}

int WaitBehind(std::string_view words, bool holdsBreath, int pace) {
  const auto row = static_cast<std::size_t>(pace);
  if (row >= std::size(kPaces)) return 0;
  const auto blanks = static_cast<int>(std::count(words.begin(), words.end(), ' '));
  return kPaces[row].PerWord * (holdsBreath ? kBreath : std::max(kLeastWords, blanks + 1));
}

}  // namespace grapplemont
