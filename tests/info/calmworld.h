#pragma once

#include "support/smallworld.h"

namespace grapplemont::test {

/// A Regional promotion in which all is as it should be: nobody at its meeting asks for anything.
/// Its people are "CWA 1" to "CWA 18", six to a row of the card from the top; the rival NEW is
/// Small and has six, "NEW 1" to "NEW 6".
SmallWorld CalmWorld();

/// A Monday, the meeting's day.
inline constexpr Day kMeeting{std::chrono::year{2026} / 3 / 2};

}  // namespace grapplemont::test
