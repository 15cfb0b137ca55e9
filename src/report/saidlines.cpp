#include "report/saidlines.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/store/table.h"

namespace grapplemont {

namespace {

constexpr int kDroppedLines = 2000;
constexpr int kMostTimes = 32767;

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

void SaidLines::Read(const World& world) {
  const auto& said = world.Said();
  if (read_ > said.Count()) {
    numbers_.clear();
    read_ = 0;
  }
  if (read_ == 0) numbers_.reserve(static_cast<std::size_t>(said.Count()));
  while (read_ < said.Count()) {
    ++read_;
    numbers_[said[read_].Line] = read_;
  }
}

/// Records move when a full file makes room, and go when a click is taken back.
int SaidLines::NumberOf(const World& world, std::int32_t key) {
  Read(world);
  const auto found = numbers_.find(key);
  if (found == numbers_.end()) return 0;
  if (world.Said()[found->second].Line == key) return found->second;
  read_ = 0;
  numbers_.clear();
  Read(world);
  const auto again = numbers_.find(key);
  return again == numbers_.end() ? 0 : again->second;
}

int SaidLines::DaysSince(const World& world, std::int32_t key) {
  const int number = world.HasGame() && !apart_ ? NumberOf(world, key) : 0;
  if (number == 0) return kNever;
  return std::max(0, static_cast<int>((world.Today() - Day(world.Said()[number].On)).count()));
}

int SaidLines::Times(const World& world, std::int32_t key) {
  const int number = apart_ ? 0 : NumberOf(world, key);
  return number == 0 ? 0 : int(world.Said()[number].Times);
}

void SaidLines::Say(World& world, std::int32_t key) {
  if (!world.HasGame() || apart_) return;
  if (const int number = NumberOf(world, key); number != 0) {
    SaidLine& line = world.Said()[number];
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
