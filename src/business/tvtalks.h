#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/score.h"
#include "records/world.h"

// What a network thinks of a show of the player's, and what it lets them do with the deal.

namespace grapplemont {

/// How a network sees a show.
enum NetworkView { kUnseen = 0, kTerrible, kLow, kHappy, kGreat };
/// By its last rating against the audience of its slot; unseen until it has been held once.
NetworkView ViewOf(const Show& show, const Network& network);

/// A remark in a box of its own.
struct TvRemark {
  std::string Title, Text;
};

/// What the network has to say about the show, box by box. `why` gets what it weighed.
std::vector<TvRemark> AskNetwork(const Promotion& promotion, const Show& show,
                                 const Network& network, Decision* why = nullptr);

/// What the network says to a wish for more weeks.
struct ExtensionTalk {
  std::string Text;
  int Weeks = 0;  // offered; 0 is a rejection
  Decision Why = {};
};
ExtensionTalk TalkOfExtension(const Promotion& promotion, const Show& show, const Network& network);

/// What the network says to a wish to go, and what going costs.
struct EndingTalk {
  std::string Text;
  int Penalty = 0;  // dollars
  Decision Why = {};
};
EndingTalk TalkOfEnding(const Promotion& promotion, const Show& show, const Network& network);
/// Pays the penalty, whatever is in the bank, and takes the show off the air.
void EndDeal(World& world, Show& show, int penalty);

/// What the network says to a wish for another time slot.
struct MoveTalk {
  std::string Text;
  std::string_view Slot = {};  // offered; empty is a rejection
  Decision Why = {};
};
MoveTalk TalkOfMove(const World& world, const Promotion& promotion, const Show& show,
                    const Network& network);

// How a promotion comes on the air: a tape goes out, a network answers on the first of a month, an
// offer lies on the table until it is accepted or turned down.

/// Whether nothing about the player's promotion speaks against a show on the network.
bool CouldUseTape(const World& world, const Network& network);
/// Why no tape can go out now; empty when one can.
std::string WhyNoTape(const World& world);
void SendTape(World& world, int networkUid);

struct TvOffer {
  const Network* From = nullptr;
  int Weeks = 0;
  std::string_view Slot;
  std::vector<int> Days;  // to choose from, 1 Monday to 7 Sunday; without any it cannot be held
};
/// The offer that waits for the player; nothing without one, or when its network is no more.
std::optional<TvOffer> OfferOnTheTable(const World& world);
void DropOffer(World& world);
/// Puts the show on the air. Requires a day of the offer and a name that can be and is free.
void AcceptOffer(World& world, const TvOffer& offer, int day, std::string_view name);

/// The network that has the player's tape answers: a step of the first of a month. Requires a tape
/// under way. What it weighs is noted.
void AnswerPromoTapes(World& world);
/// What the last network weighed that saw a tape, a line each; empty while none has.
std::string WhyOfTape(const World& world);

}  // namespace grapplemont
