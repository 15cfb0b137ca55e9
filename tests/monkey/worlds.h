#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "support/cutdisk.h"

namespace grapplemont::test {

/// What a home's default data are.
enum class Data { Small, Default, Random };
/// "small", "default", "random"; nothing for another word.
std::optional<Data> DataNamed(std::string_view word);
/// Of a seed that may have any: mostly a small world.
Data DataOf(std::uint64_t seed);

/// A home in memory, in the folder "home", with an empty folder "home/extra" beside data and
/// pictures.
CutDisk HomeOf(Data data, std::uint64_t seed);
/// The expression that makes such data in a test.
std::string ExpressionOf(Data data, std::uint64_t seed);

}  // namespace grapplemont::test
