#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// What a network thinks of a show of the player's, and what it lets him do with the deal.

namespace grapplemont {

/// How a network sees a show.
enum NetworkView { kUnseen = 0, kTerrible, kLow, kHappy, kGreat };
/// By its last rating against the audience of its slot; unseen until it has been held once.
NetworkView ViewOf(const Show& show, const Network& network);

/// A remark in a box of its own.
struct TvRemark {
  std::string Title, Text;
};

/// What the network has to say about the show, box by box.
std::vector<TvRemark> AskNetwork(const Promotion& promotion, const Show& show,
                                 const Network& network);

/// What the network says to a wish for more weeks.
struct ExtensionTalk {
  std::string Text;
  int Weeks = 0;  // offered; 0 is a rejection
};
ExtensionTalk TalkOfExtension(const Promotion& promotion, const Show& show, const Network& network);

/// What the network says to a wish to go, and what going costs.
struct EndingTalk {
  std::string Text;
  int Penalty = 0;  // dollars
};
EndingTalk TalkOfEnding(const Promotion& promotion, const Show& show, const Network& network);
/// Pays the penalty, whatever is in the bank, and takes the show off the air.
void EndDeal(World& world, Show& show, int penalty);

/// What the network says to a wish for another time slot.
struct MoveTalk {
  std::string Text;
  std::string_view Slot;  // offered; empty is a rejection
};
MoveTalk TalkOfMove(const World& world, const Promotion& promotion, const Show& show,
                    const Network& network);

}  // namespace grapplemont
