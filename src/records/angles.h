#pragma once

#include <algorithm>

#include "words/angles.h"

// The angles: how each is called, when it is offered, who is cast in it.

namespace grapplemont {

inline constexpr int kAngles = static_cast<int>(std::size(kAllAngles));

/// In the order of their numbers.
inline std::span<const Angle> AllAngles() {
  return kAllAngles;
}
/// nullptr for an unknown number.
inline const Angle* FindAngle(int number) {
  return number >= 1 && number <= kAngles ? &kAllAngles[number - 1] : nullptr;
}
/// The sheet and the summary tell these by their stable.
inline bool IsToldByStable(int number) {
  return number == kStableVideo || number == kAbduction || number == kKidnap ||
         number == kCrucifixion || number == kBloodBath;
}
/// Whether one of its boxes is a stable.
inline bool HasStableRole(const Angle& angle) {
  return std::any_of(angle.Roles.begin(), angle.Roles.end(), [](const Role& role) {
    return !role.Caption.empty() && role.From == Casting::Stables;
  });
}

}  // namespace grapplemont
