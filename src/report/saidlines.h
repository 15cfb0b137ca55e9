#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "records/world.h"

namespace grapplemont {

/// The number by which a line of a voice is remembered, whatever stands beside it in words/.
std::int32_t LineKey(int voice, std::string_view line);

/// The number by which it is remembered that one speaker said it.
std::int32_t SpeakerKey(std::int32_t line, int speaker);

/// The lines that the shows of a slot have said (said.dat). A world without a game remembers none.
class SaidLines {
 public:
  SaidLines() = default;
  /// Apart from the slot nothing is read of it and nothing noted there: only how often this one
  /// has said a line counts.
  explicit SaidLines(bool apart) : apart_(apart) {}
  /// Days since a show said it; kNever for a line that none has.
  int DaysSince(const World& world, std::int32_t key) const;
  static constexpr int kNever = 1 << 30;
  /// How often it has been said.
  int Times(const World& world, std::int32_t key) const;
  /// It has been said on today's show.
  void Say(World& world, std::int32_t key);

 private:
  bool apart_ = false;
  std::unordered_map<std::int32_t, int> own_;  // times, where it is apart
};

}  // namespace grapplemont
