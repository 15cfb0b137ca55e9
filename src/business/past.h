#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/fields/fields.h"
#include "records/world.h"

// What the slot remembers, oldest first.

namespace grapplemont {

/// How the promotion stood at its month ends.
std::vector<const HistoryEntry*> MonthsOf(const World& world, int promotionUid);
/// The entry is a television show or an Event.
bool IsShow(const HistoryEntry& entry);
/// The promotion's latest show of the day `from` or later, held or called off; where a kind is
/// given, the latest entry of that. nullptr for none.
const HistoryEntry* LastShowOf(const World& world, int promotionUid, Day from, int kind = 0);

/// The promotion's Events of a month in all years, the latest first; of every month for 0.
std::vector<const HistoryEntry*> EventsOf(const World& world, int promotionUid, int month = 0);

/// An entry of today with the promotion's name, money, size and image as they are now.
HistoryEntry EntryOf(const World& world, const Promotion& promotion, HistoryKind kind);
/// Appends what has happened; a full file drops its thousand oldest entries.
void Remember(World& world, const HistoryEntry& entry);
/// The promotion's month as its books have closed it; crowds are the player's alone. Requires the
/// first day after the month.
void RememberMonth(World& world, const Promotion& promotion);

// Months as the office's charts and books count them.

/// The first of the month that lies `months` before the day's own.
Day MonthsBefore(Day day, int months);

/// What a promotion had when a month was closed or a show was over.
struct MoneyPoint {
  std::string When;  // "Mar 2026", the month that was closed, or "09/04", the day of the show
  int Dollars;
  Day On;
};

/// A promotion's money at the ends of the last five years' months, oldest first, after the present
/// month's shows, and today as "Today". From what the slot remembers; where the promotion's own
/// record goes back further (at most five months), from that.
std::vector<MoneyPoint> MoneyOverTime(const World& world, const Promotion& promotion);

/// What a month did to a promotion's money.
struct MonthOfMoney {
  std::string Month;  // "Mar 2026"
  long long AtEnd, In, Out;
  std::optional<long long> Beside;  // what moved it beside the books; unknown for the first
};
/// The months of the last five years that the slot remembers, the latest first.
std::vector<MonthOfMoney> MoneyByMonth(const World& world, const Promotion& promotion);

/// How a show of the player's went, week by week, the oldest first.
struct TvPast {
  std::vector<std::string> Days;  // "09/03"
  std::vector<double> Ratings;    // 2.5 for a rating of 2.50
  std::vector<double> Attendance;
};
/// A year at most. What was called off had neither viewers nor guests and is left out.
TvPast TvPastOf(const World& world, std::string_view show);

// How a promotion has stood, and how the world around it does.

/// How a promotion stood on a day.
struct PastStanding {
  Day On;
  int Size;
  int Image;

  /// As StandingScore counts it: a size class is worth 100.
  int Score() const { return (kBackyard - Size) * 100 + Image; }
};

/// A standing score back in its size and image. The highest of all is a full image at the top.
PastStanding FromScore(Day on, int score);

/// The last month ends, oldest first, and how it stands today; at most `most` in all. Months from
/// before the past was kept are read from the five of the promotion's own record.
std::vector<PastStanding> StandingsOf(const World& world, const Promotion& promotion, int most);
/// Below a chart: "Mar 2026", the month that ended before the day, or "Today" for the last of them.
std::vector<std::string> CaptionsOf(const std::vector<PastStanding>& standings);
/// Where they stand on a chart, by their days; of one day.
std::vector<double> PlacesOf(const std::vector<PastStanding>& standings);
double PlaceOf(Day on);

/// The world's economy in words: "Booming" to "In a slump", by the bands that crowds and sales
/// follow.
std::string_view EconomyText(int economy);

}  // namespace grapplemont
