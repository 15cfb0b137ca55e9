#pragma once

#include "records/field.h"
#include "records/vocabulary.h"

namespace grapplemont {

/// HistoryEntry.Kind.
enum HistoryKind { kPastTv = 1, kPastEvent, kPastMonth, kPastCamp, kPastTerritory };

/// What a slot remembers of its past: a show of the player's that was held or called off, how a
/// promotion stood when a month was closed, or what it built for its young workers. A record of
/// history.dat, appended and never changed.
struct HistoryEntry {
  Date On;
  Word Kind;
  Word Promotion;      // uid; the promotion may be gone
  Text<40> Name;       // of the show or Event, of what was built; of the promotion for a month
  Flag CalledOff;      // shows
  Word Rating;         // a show's, 0 to 100
  Hundredths Viewers;  // hundredths: a television rating, or a pay-per-view's buy rate
  RangedLong<0, kMostDollars> Attendance;  // people; a month's sum of the player's shows
  Cash Income;                             // dollars that the show brought, or the month
  Cash Costs;     // dollars that the show cost, the month, or what was built
  Cash Money;     // cash afterwards
  Word Size;      // afterwards
  Percent Image;  // afterwards
};

static_assert(sizeof(HistoryEntry) == 78 && alignof(HistoryEntry) == 1);
static_assert(offsetof(HistoryEntry, On) == 0 && offsetof(HistoryEntry, Kind) == 8);
static_assert(offsetof(HistoryEntry, Promotion) == 10 && offsetof(HistoryEntry, Name) == 12);
static_assert(offsetof(HistoryEntry, CalledOff) == 52 && offsetof(HistoryEntry, Rating) == 54);
static_assert(offsetof(HistoryEntry, Viewers) == 56 && offsetof(HistoryEntry, Attendance) == 58);
static_assert(offsetof(HistoryEntry, Income) == 62 && offsetof(HistoryEntry, Costs) == 66);
static_assert(offsetof(HistoryEntry, Money) == 70 && offsetof(HistoryEntry, Size) == 74);
static_assert(offsetof(HistoryEntry, Image) == 76);

template <>
const RecordLayout& LayoutOf<HistoryEntry>();

}  // namespace grapplemont
