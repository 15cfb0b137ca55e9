#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "records/world.h"
#include "support/cutdisk.h"

namespace grapplemont::test {

/// What a home's default data are.
enum class Data { Small, Default, Random, Hostile };
/// "small", "default", "random", "hostile"; nothing for another word.
std::optional<Data> DataNamed(std::string_view word);
/// Of a seed that may have any: mostly a small world.
Data DataOf(std::uint64_t seed);

inline constexpr const char *kHomeFolder = "home", *kShareFolder = "share";
/// A home in memory, with an empty folder "extra" beside data and pictures. Those of the default
/// world lie where an installed program has them, under a home of the player's own.
CutDisk HomeOf(Data data, std::uint64_t seed);
World DataWorld(Data data, std::uint64_t seed);
/// The expression that makes such data in a test.
std::string ExpressionOf(Data data, std::uint64_t seed);

}  // namespace grapplemont::test
