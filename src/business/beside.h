#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Money that moves outside the nine books of a month: loans, gifts, building, ventures.

namespace grapplemont {

/// The cause of what a bank is paid back.
inline constexpr std::string_view kRepayment = "Loan repayments";

/// The promotion's money moves by so many dollars, below 0 for what it pays. Of the player's it is
/// noted why, as of `on`, today where none is given; notes go once the month after theirs is over.
void MoveBeside(World& world, Promotion& promotion, long long dollars, std::string_view why,
                std::optional<Day> on = {});

/// What one cause has moved, in dollars.
struct BesideLine {
  std::string Why;
  long long Last = 0, Present = 0;  // in the last month and in this one
};
/// Of the player's promotion, in the order in which they began. What nothing is noted of, as where
/// an earlier version played the month, comes last in a line of its own.
std::vector<BesideLine> BesideLines(const World& world);
/// Their sums.
BesideLine BesideTotal(const World& world);

}  // namespace grapplemont
