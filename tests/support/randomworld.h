#pragma once

#include <cstdint>
#include <random>

#include "records/world.h"

namespace grapplemont::test {

/// Chance for making test data, apart from that of the world under test.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine_(seed) {}
  /// A whole number from `least` to `most`.
  int From(int least, int most);
  bool OneIn(int n) { return From(1, n) == 1; }
  std::byte Byte() { return static_cast<std::byte>(engine_() >> 56); }

 private:
  std::mt19937_64 engine_;
};

/// Default data as nobody would write it: in every field any value its description allows, in texts
/// any letter, references to anybody; then mended, so that CheckWorld passes it. The same for the
/// same seed.
World RandomData(std::uint64_t seed);
/// The same with every file as full as may be (25,000 workers), every number at one of its ends and
/// half of the references leading anywhere before it was mended.
World HostileData(std::uint64_t seed);

/// Sets one field of the record to a value drawn from all that its bytes can hold.
void Scramble(Dice& dice, const Field& field, int index, std::byte* record);

}  // namespace grapplemont::test
