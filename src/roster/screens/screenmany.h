#pragma once

#include <functional>
#include <string>
#include <vector>

#include "records/world.h"
#include "ui/game.h"

// What is done to several workers at once, from a list.

namespace grapplemont {

/// What is done to each, and what stands against it; empty when nothing does.
struct ManyAct {
  std::string Title;  // of the box that tells what came of it
  std::function<std::string(const Worker&)> WhyNot;
  std::function<void(Worker&)> Does;
};

/// Why it can be done to none of them, the first one's reason; empty when it can to somebody.
std::string WhyToNobody(const World& world, const std::vector<int>& uids, const ManyAct& act);
/// Does it to each to whom it can be done, in their order. Of several it says to whom, and to whom
/// not and why.
void DoToAll(Game& game, const std::vector<int>& uids, const ManyAct& act);

/// "Send To Development", with the number of those it is done to where they are several:
/// "Send To Development (3)".
std::string CaptionFor(const std::string& caption, const std::vector<int>& uids);

/// Offers one of the player's to be let go, box by box; true when the contract is over.
bool OfferRelease(Game& game, Worker& worker);
/// The same by a list: says who will not go, asks once about all who will. One alone is offered it
/// as above.
void OfferReleases(Game& game, const std::vector<int>& uids,
                   const std::function<std::string(const Worker&)>& whyNot);

/// The columns of lists of workers that are looked at together.
std::vector<ui::ListBox::View> WorkerViews();

}  // namespace grapplemont
