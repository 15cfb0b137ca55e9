#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "records/world.h"

// Which mails the player has read, and which are for the player alone.

namespace grapplemont {

/// Keeps that the mails of these numbers have been read. False, and nothing changes, where all
/// were.
bool MarkRead(World& world, const std::vector<int>& numbers);

/// Everything that lies in the box has been read.
void MarkAllRead(World& world);

/// What the player has not looked at yet, by the numbers of the mails, the newest first: what is
/// the player's own, and the news of others, which is read a day at a time. In a slot that has
/// never kept what was read, that of today and yesterday.
struct Unread {
  std::vector<int> Own, Others;
  int Days = 0;  // that have such news
  /// A day's news of others counts as one.
  int Count() const { return static_cast<int>(Own.size()) + Days; }
};
Unread UnreadOf(const World& world);

/// The news of others that came on one day.
struct Digest {
  std::string Date;        // as mails have it
  std::vector<int> Mails;  // their numbers, the newest first
  std::string Words;       // "14 items from 9 promotions (8 signings, 3 shows)", or "14 items"
  bool IsUnread = false;   // one of them is
};
/// The latest day first, and no more than `most`.
std::vector<Digest> DigestsOf(const World& world, std::size_t most = ~std::size_t{0});

}  // namespace grapplemont
