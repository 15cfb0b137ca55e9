#pragma once

#include <vector>

#include "records/world.h"

// Which mails the player has read, and which are for the player alone.

namespace grapplemont {

/// Keeps that the mails of these numbers have been read. False, and nothing changes, where all
/// were.
bool MarkRead(World& world, const std::vector<int>& numbers);

/// News of somebody else's promotion: what no option of the player's own people sends.
bool IsWorldNews(const World& world, const Mail& mail);

/// The numbers of the mails that the player has not looked at yet, the newest first: the player's
/// own, or the news of others. In a slot that has never kept what was read, those of today and
/// yesterday.
std::vector<int> UnreadMails(const World& world, bool worldNews);

/// The news of others that came on one day.
struct Digest {
  std::string Date;        // as mails have it
  std::vector<int> Mails;  // their numbers, the newest first
  std::string Words;       // "14 news from 9 promotions"
  bool IsUnread = false;   // one of them is
};
/// The latest day first.
std::vector<Digest> DigestsOf(const World& world);

}  // namespace grapplemont
