#include "report/saidlines.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/store/table.h"

namespace grapplemont {

namespace {

constexpr int kDroppedLines = 2000;
constexpr int kMostTimes = 32767;

/// The number of the record that remembers the line; 0 for none.
int NumberOf(const World& world, std::int32_t key) {
  return world.LineNumbers().Find(world.Said(), key,
                                  [](const SaidLine& line) { return std::int32_t(line.Line); });
}

}  // namespace

std::int32_t LineKey(int voice, std::string_view line) {
  std::uint32_t key = 2166136261U + static_cast<std::uint32_t>(voice);
  for (const char letter : line) key = (key ^ static_cast<unsigned char>(letter)) * 16777619U;
  return static_cast<std::int32_t>(key);
}

std::int32_t SpeakerKey(std::int32_t line, int speaker) {
  const auto of = static_cast<std::uint32_t>(line) ^ (static_cast<std::uint32_t>(speaker) << 8);
  return static_cast<std::int32_t>(of * 16777619U);
}

int SaidLines::DaysSince(const World& world, std::int32_t key) const {
  const int number = world.HasGame() && !apart_ ? NumberOf(world, key) : 0;
  if (number == 0) return kNever;
  return std::max(0, static_cast<int>((world.Today() - Day(world.Said()[number].On)).count()));
}

int SaidLines::Times(const World& world, std::int32_t key) const {
  if (apart_) {
    const auto found = own_.find(key);
    return found == own_.end() ? 0 : found->second;
  }
  const int number = NumberOf(world, key);
  return number == 0 ? 0 : int(world.Said()[number].Times);
}

void SaidLines::Say(World& world, std::int32_t key) {
  if (apart_) ++own_[key];
  if (!world.HasGame() || apart_) return;
  if (const int number = NumberOf(world, key); number != 0) {
    SaidLine& line = world.Said().Change(number);
    line.On = world.Today();
    line.Times = std::min(kMostTimes, line.Times + 1);
    return;
  }
  SaidLine line;
  line.Line = key;
  line.On = world.Today();
  line.Times = 1;
  AppendRolling(world.Said(), line, kDroppedLines);
}

}  // namespace grapplemont
