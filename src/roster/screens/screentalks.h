#pragma once

#include <string>

#include "records/fields/people.h"
#include "ui/game.h"

// The way from any worker's page to the talks with him.

namespace grapplemont {

/// The tip of what needs a worker.
inline constexpr const char* kNobodyChosen = "Choose a worker first.";
/// Why there can be no talks with him at this moment; empty when there can. nullptr for nobody
/// chosen.
std::string WhyNoTalks(Game& game, const Worker* worker);
/// The contract of a worker of the player's, or the talks with anybody else. Requires that nothing
/// stands against them.
void OpenTalks(Game& game, const Worker& worker);

/// Puts him on the shortlist or takes him off; says why when there is no room.
void TurnShortlist(Game& game, int workerUid);
/// Shows on the button what it would do; nobody chosen disables it.
void ShowShortlistButton(Game& game, const Worker* worker, ui::Button& button);

}  // namespace grapplemont
