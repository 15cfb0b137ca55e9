#pragma once

#include <span>
#include <string_view>

#include "records/world.h"

// The quick filters over lists of workers: tables of rows to choose from, each with its test.

namespace grapplemont {

struct WorkerFilter {
  std::string_view Label;
  bool (*Keeps)(const Worker& worker);
};

/// One ComboBox of filters; its first row keeps everybody.
struct FilterFamily {
  std::string_view Control;  // the ComboBox's name
  std::string_view Caption;
  std::span<const WorkerFilter> Rows;
};

/// By position, sex, disposition, status and months left.
std::span<const FilterFamily> RosterFilters();
/// By bond, sex, kind of work, skill and age.
std::span<const FilterFamily> MarketFilters();

/// A contract that runs out within so many months; none for free agents and the unsackable.
bool RunsOutWithin(const Worker& worker, int months);

}  // namespace grapplemont
