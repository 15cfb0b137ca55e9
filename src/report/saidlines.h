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
  /// Apart from the slot none is remembered and none noted.
  explicit SaidLines(bool apart) : apart_(apart) {}
  /// Days since a show said it; kNever for a line that none has.
  int DaysSince(const World& world, std::int32_t key);
  static constexpr int kNever = 1 << 30;
  /// How often it has been said.
  int Times(const World& world, std::int32_t key);
  /// It has been said on today's show.
  void Say(World& world, std::int32_t key);

 private:
  int NumberOf(const World& world, std::int32_t key);
  void Read(const World& world);

  std::unordered_map<std::int32_t, int> numbers_;  // of the records
  int read_ = 0;                                   // records that these are
  bool apart_ = false;
};

}  // namespace grapplemont
