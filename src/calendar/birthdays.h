#pragma once

namespace grapplemont {

// What a birthday may bring a worker. Each skill gains one draw of this many points and loses
// another.
inline constexpr int kBirthdayDraw = 5;
/// From this age on whoever goes on may leave the ring, and from the second on does.
inline constexpr int kMiddleAged = 41, kAged = 50;

}  // namespace grapplemont
