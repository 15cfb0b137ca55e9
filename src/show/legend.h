#pragma once

#include "records/world.h"

namespace grapplemont {

/// The one worker who has their own way of speaking in every mail.
inline bool IsLegend(const Worker& worker) {
  return worker.Name == "Maul Gantry";
}

/// What somebody writes, and how the legend writes it.
struct Wording {
  std::string_view Plain;
  std::string_view Legend;

  std::string_view By(const Worker& worker) const { return IsLegend(worker) ? Legend : Plain; }
};

}  // namespace grapplemont
