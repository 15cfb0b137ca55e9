#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// The player's Titles: how one is made, named, suspended, given, taken and given up. A Title is
// meant by its record's number.

namespace grapplemont {

/// What a new Title is for.
struct TitleTerms {
  std::string Name;
  bool Singles = true;  // else for a team of two
  bool Woman = false;   // women only
  bool Lightweight = false;
};

/// How much the fans make of a Title that nobody has held yet.
inline constexpr int kNewTitleImage = 20;

bool IsPlayers(const World& world, const Title& title);
/// "Vacant", "Bram Okafor", "The Dock Rats" or "A \ B" of the full names.
std::string ChampionText(const World& world, const Title& title);
/// "Singles", "Women's Tag, light" and so on.
std::string KindText(const Title& title);
/// Whether the worker's weight and sex allow them to hold it.
bool FitsTitle(const Title& title, const Worker& worker);

/// What keeps its holders from defending it, as "injured" or "no wrestler"; empty when nothing
/// does, and for a vacant Title.
std::string WhyNoDefence(const World& world, const Title& title);

/// Why no Title can have this name from now on; empty when one can.
std::string WhyNotTitleName(const World& world, std::string_view name);
/// Why no such Title can be made; empty when it can.
std::string WhyNotCreate(const World& world, const TitleTerms& terms);
/// A vacant Title of the promotion's, active at once, without a past.
Title VacantTitle(const World& world, const TitleTerms& terms, int promotionUid, int image);
/// A vacant Title of the player's, active at once; gives its number. Requires that nothing stands
/// against it.
int CreateTitle(World& world, const TitleTerms& terms);
/// What is booked for it and not held yet follows. Requires a name that can be had.
void RenameTitle(World& world, int number, std::string_view name);

/// Everybody of the player's whom it could be given to: wrestlers who are fit and whom it is for;
/// the most popular first.
std::vector<const Worker*> Contenders(const World& world, const Title& title);
/// Why it cannot be given to these (0: nobody in that place); empty when it can.
std::string WhyNotAward(const World& world, const Title& title, int holder, int partner);
/// New holders (`partner` 0 for a singles Title), and their reign begins today.
void Crown(World& world, Title& title, int holder, int partner);
/// Why nobody can be stripped of it; empty when somebody can. VacateTitle of records/severing.h
/// does it.
std::string WhyNotVacate(const Title& title);

/// How many Segments are booked for it and have not been held yet.
int BookedForTitle(const World& world, const Title& title);
/// Its record goes, those behind it move up, and what is booked for it is taken off the sheet.
void DissolveTitle(World& world, int number);

}  // namespace grapplemont
