#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Where the player's promotion raises its young: a training camp, a development territory. Each act
// has a check that says why it cannot be; empty when it can.

namespace grapplemont {

inline constexpr int kBestCamp = 4;  // CampFacilities

/// Dollars for facilities of the level 1 to 4, opened with it or raised to it.
int CampPrice(int level);
/// Dollars for a territory.
inline constexpr int kTerritoryPrice = 250000;

bool HasCamp(const Promotion& promotion);
bool HasTerritory(const Promotion& promotion);
/// The player's people who are there, in the order of the file.
std::vector<const Worker*> PeopleInCamp(const World& world);
std::vector<const Worker*> PeopleInTerritory(const World& world);

// Building is paid at once, past the books, and once a month at most.
std::string WhyNotOpenCamp(const World& world, std::string_view name, int level);
void OpenCamp(World& world, std::string_view name, int level);
std::string WhyNotRaiseCamp(const World& world, int level);
void RaiseCamp(World& world, int level);
std::string WhyNotOpenTerritory(const World& world, std::string_view name);
void OpenTerritory(World& world, std::string_view name);

std::string WhyNotRenameCamp(const World& world, std::string_view name);
void RenameCamp(World& world, std::string_view name);
std::string WhyNotRenameTerritory(const World& world, std::string_view name);
void RenameTerritory(World& world, std::string_view name);

/// Costs nothing. Whoever is there comes back to the place on the card that waits for him or that
/// he has earned; whoever ran it runs nothing.
void CloseCamp(World& world);
void CloseTerritory(World& world);

}  // namespace grapplemont
