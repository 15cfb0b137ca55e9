#pragma once

#include <span>
#include <string_view>

namespace grapplemont {

/// What a post is about.
enum class FanMood { Superb, Good, Fair, Weak, Awful, CalledOff, Stolen, Bored, Star, Full, Empty };

/// The lines of a mood, eight or more. {show}, {house}, {what} and {who} are filled in.
std::span<const std::string_view> FanLines(FanMood mood);
/// The names under which fans write.
std::span<const std::string_view> FanHandles();

}  // namespace grapplemont
