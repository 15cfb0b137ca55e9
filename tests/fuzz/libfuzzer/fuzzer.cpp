#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

#include "fuzz/target.h"

// The one target that a program is linked with, as libFuzzer calls it.

using grapplemont::Bytes;
using grapplemont::fuzz::Target;
using grapplemont::fuzz::Targets;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Targets().front().Run(std::as_bytes(std::span(data, size)));
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  const Target& target = Targets().front();
  if (!target.Change || seed % 2 == 0) return LLVMFuzzerMutate(data, size, most);
  const auto given = std::as_bytes(std::span(data, size));
  Bytes bytes(given.begin(), given.end());
  target.Change(bytes, most, seed);
  const std::size_t changed = std::min(bytes.size(), most);
  if (changed > 0) std::memcpy(data, bytes.data(), changed);
  return changed;
}
