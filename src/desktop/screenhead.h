#pragma once

// What the parts of a page keep between them, in drawn pixels.

namespace grapplemont::desktop {

inline constexpr int kPageSide = 20, kUsualTop = 18;
inline constexpr int kPartGap = 14;  // between head, body and foot

}  // namespace grapplemont::desktop
