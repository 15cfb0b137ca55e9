#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "records/world.h"

namespace grapplemont {

/// One routine of the day.
struct Step {
  std::string_view Name;
  void (*Run)(World&);
};

// The day's blocks; their order is a rule, since each step reads what the last one wrote.
std::span<const Step> DailySteps();
std::span<const Step> MondaySteps();
std::span<const Step> FirstOfMonthSteps();
std::span<const Step> SecondFirstOfMonthSteps();
std::span<const Step> ClosingSteps();

/// Hears the name of each step of the new day before it runs; what the old day leaves behind comes
/// first and untold, since it may show screens of its own.
using StepWatcher = std::function<void(std::string_view step)>;

/// Ends the day (`cancelled`: its show was called off) and runs the next one's routines.
void AdvanceDay(World& world, bool cancelled, const StepWatcher& watcher = {});

}  // namespace grapplemont
