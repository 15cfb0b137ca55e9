#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "records/fields.h"

// The calendar of the game. Day and month names are English whatever the machine speaks.

namespace grapplemont {

/// "Monday" to "Sunday".
std::string_view DayName(Day day);
/// "January" to "December", by number 1 to 12; empty for another number.
std::string_view MonthName(int month);
int YearOf(Day day);
int MonthOf(Day day);
int DayOfMonth(Day day);
/// 1 Monday to 7 Sunday; 0 for no day's name.
int DayNumber(std::string_view dayName);

std::string LongDate(Day day);   // "Monday, 09 March 2026"
std::string PlainDate(Day day);  // "09 March 2026"
std::string MonthYear(Day day);  // "March 2026"
std::string ShortDate(Day day);  // "09/03/26", the form of mails
std::string IsoDate(Day day);    // "2026-03-09"
std::optional<Day> ParseIsoDate(std::string_view text);

bool IsMonday(Day day);
bool IsFirstOfMonth(Day day);
/// The last Sunday of its month.
bool IsEventDay(Day day);
/// The day itself if it is the first of a month, else the first of the next.
Day NextFirst(Day day);

/// The marker for no date in a Title's history: 1 January 1980.
inline constexpr Day kNoTitleDate{std::chrono::year{1980} / 1 / 1};

}  // namespace grapplemont
