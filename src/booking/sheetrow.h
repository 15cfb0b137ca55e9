#pragma once

#include <string>
#include <vector>

#include "booking/roster.h"
#include "show/forecast.h"

// What a sheet tells of a booked row beside its one line.

namespace grapplemont {

/// "Singles", "Interview", "Angle"; empty for an empty row.
std::string KindOfRow(const Segment& segment);
/// The feud that the Segment is about, the hottest of those whose enemies meet in it: "Feud 71".
/// Empty for none.
std::string FeudOfRow(const World& world, const Segment& segment);
/// "58 - 66%", "58%" where there is no doubt; empty for a row that is not there or not booked.
std::string ForecastOfRow(const ShowForecast& forecast, int record);
std::string RangeText(const Forecast& forecast);
/// The lines of the wizard's summary, as they stood when the Segment was completed.
std::vector<std::string> SummaryOfRow(const World& world, const Segment& segment, bool isEvent);
/// What these lines leave out, so that nothing of the row stays untold: who has entered a battle
/// royal, who beats whom in a team, in which order people leave, who plays which part in an angle.
std::vector<std::string> DetailsOfRow(const World& world, const Segment& segment);
/// Who may be booked and is not on the card yet, the most popular first.
std::vector<const Worker*> NotOnTheCard(const World& world, bool isEvent);

}  // namespace grapplemont
