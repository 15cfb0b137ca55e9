#pragma once

#include <string_view>
#include <vector>

#include "records/world.h"

// What the slot remembers, oldest first.

namespace grapplemont {

/// How the promotion stood at its month ends.
std::vector<const HistoryEntry*> MonthsOf(const World& world, int promotionUid);
/// The entry is a television show or an Event.
bool IsShow(const HistoryEntry& entry);
/// The promotion's latest show of the day `from` or later, held or called off; of one kind alone
/// where one is given. nullptr for none.
const HistoryEntry* LastShowOf(const World& world, int promotionUid, Day from, int kind = 0);
/// What became of a television show of the promotion's, or of its Events where no name is given.
std::vector<const HistoryEntry*> PastShowsOf(const World& world, int promotionUid,
                                             std::string_view name = {});
/// The crowds, in people, of all its shows from the day `from` until the day before `until`.
long long AttendanceOf(const World& world, int promotionUid, Day from, Day until);

/// An entry of today with the promotion's name, money, size and image as they are now.
HistoryEntry EntryOf(const World& world, const Promotion& promotion, HistoryKind kind);
/// Appends what has happened; a full file drops its thousand oldest entries.
void Remember(World& world, const HistoryEntry& entry);
/// The promotion's month as its books have closed it; crowds are the player's alone. Requires the
/// first day after the month.
void RememberMonth(World& world, const Promotion& promotion);

}  // namespace grapplemont
