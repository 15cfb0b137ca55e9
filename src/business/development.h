#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Where the player's promotion raises its young: a training camp, a development territory. Each act
// has a check that says why it cannot be; empty when it can.

namespace grapplemont {

inline constexpr int kBestCamp = 4;  // CampFacilities

/// A training camp has facilities of a level, a territory has none.
enum class Site { Camp, Territory };
/// Dollars for a site with facilities of the level 1 to 4, opened with it or raised to it.
int SitePrice(Site site, int level);

bool HasSite(const Promotion& promotion, Site site);
std::string SiteName(const Promotion& promotion, Site site);
/// The player's people who are there, in the order of the file.
std::vector<const Worker*> PeopleAt(const World& world, Site site);

// Building is paid at once, past the books, and once a month at most.
std::string WhyNotOpen(const World& world, Site site, std::string_view name, int level = 0);
void OpenSite(World& world, Site site, std::string_view name, int level = 0);
std::string WhyNotRaiseCamp(const World& world, int level);
void RaiseCamp(World& world, int level);

std::string WhyNotRename(const World& world, Site site, std::string_view name);
void RenameSite(World& world, Site site, std::string_view name);

/// Costs nothing. Whoever is there comes back to the place on the card that waits for them or that
/// they have earned; whoever ran it runs nothing.
void CloseSite(World& world, Site site);

// The offices that the player fills: the Commissioner from the non-wrestlers, the camp's head
// trainer from the staff's trainers, the territory's booker from the staff who can book.

enum class Office { Commissioner, HeadTrainer, DevBooker };

/// "Commissioner" and so on.
const char* OfficeName(Office office);
/// Who holds it: a Worker's uid for the Commissioner, else a Staff's; 0 for nobody, also where the
/// record names somebody who is not there.
int HolderOf(const World& world, Office office);
/// "None" for nobody.
std::string HolderName(const World& world, Office office);

/// Somebody who could hold an office.
struct OfficeSeeker {
  int Uid;
  std::string Name;
  int Mark;           // Charisma of a worker, Talent of staff
  std::string Doing;  // what else there is to say: "Broken Leg, out for 3 months"
};
/// In the order of the file.
std::vector<OfficeSeeker> CandidatesFor(const World& world, Office office);
/// Why the office cannot go to them; empty when it can. Nobody (uid 0) always can.
std::string WhyNotAppoint(const World& world, Office office, int uid);
void Appoint(World& world, Office office, int uid);

// The parts into which the player divides the roster: up to four, each by its name. Each act has a
// check that says why it cannot be; empty when it can.

/// Places 1 to 4.
inline constexpr int kSplits = 4;

/// The name of the place's split; empty for none.
std::string SplitName(const Promotion& promotion, int place);
/// How many of its people the split holds.
int PeopleInSplit(const World& world, std::string_view split);

/// A name for the place: a new split's, or another for the one that is there.
std::string WhyNotSplitName(const World& world, int place, std::string_view name);
/// A new split begins empty; a renamed one keeps its people. Requires a name that can be had.
void NameSplit(World& world, int place, std::string_view name);
/// Its people are in none then.
void DissolveSplit(World& world, int place);

}  // namespace grapplemont
