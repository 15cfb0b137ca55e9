#pragma once

#include <span>
#include <string>
#include <string_view>

#include "records/world.h"

// What players have agreed with themselves when the game began. A game without the file has none.

namespace grapplemont {

/// In the order of HouseRules.On.
enum class HouseRule {
  EconomyCycles,
  OneTalk,
  Homegrown,
  WomenOnly,
  NoAutoBooker,
  HarderBoards,
  GodMode,
  RandomWorld
};

struct HouseRuleRow {
  HouseRule Is;
  std::string_view Name;  // "harder boards", as a card has it
  std::string_view Says;
};
std::span<const HouseRuleRow> AllHouseRules();

bool Holds(const HouseRules& rules, HouseRule rule);
bool Holds(const World& world, HouseRule rule);
/// "women only, harder boards"; empty for none. A game that has been changed by hand says so.
std::string HouseRulesText(const HouseRules& rules);

/// Why the house's rules keep the player from signing somebody of others or of nobody; empty when
/// they do not.
std::string WhyNotInThisHouse(const World& world, const Worker& worker);

}  // namespace grapplemont
