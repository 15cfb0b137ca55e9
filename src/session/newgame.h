#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "records/checks/checkworld.h"
#include "records/world.h"

namespace grapplemont {

/// What the player chose for a new game.
struct NewGameChoice {
  std::string PlayerName;
  int PromotionUid = 0;
  int Difficulty = 2;  // 1 easy to 4 rock hard
  Day Start{};         // the first of a month
  std::string SaveName;
  HouseRules House = {};
  bool NoWayBack = false;  // the slot keeps no moment to go back to
  bool Recorded = false;   // the slot keeps what the player does, to be played again
  int Slot = 0;            // that it was begun from; 0 for none
};

/// Turns a world of default data into a fresh game: its contracts, conditions, made-up people, the
/// first mail. Requires a promotion of that uid. Gives what the clean-up of the data had to mend.
/// `watcher` hears each step's name.
FaultList NewGame(World& world, const NewGameChoice& choice,
                  const std::function<void(std::string_view)>& watcher = {});

}  // namespace grapplemont
