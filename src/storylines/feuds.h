#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/world.h"

// Feuds: who stands against whom, how one begins, how it stands, how it ends off camera.

namespace grapplemont {

/// One side of a feud: a worker alone, or two partners.
struct FeudSide {
  int First = 0;   // uids
  int Second = 0;  // 0 for a worker alone

  bool IsTeam() const { return Second != 0; }
  bool Has(int uid) const { return uid != 0 && (uid == First || uid == Second); }
  /// The same people, in whatever order.
  friend bool operator==(const FeudSide& a, const FeudSide& b) {
    return (a.First == b.First && a.Second == b.Second) ||
           (a.First == b.Second && a.Second == b.First);
  }
};

struct FeudSides {
  FeudSide One, Two;
};

/// Won totals: each side's four counters added up.
struct FeudScore {
  int One = 0, Two = 0;
};

bool IsFreeSlot(const Feud& feud);
/// The first empty slot, from 1; 0 when all eight are taken.
int FreeFeudSlot(const World& world);
/// Both sides hold nobody in an empty slot.
FeudSides SidesOf(const Feud& feud);
/// Whether people of both sides are among these.
bool EnemiesMeet(const Feud& feud, const std::vector<int>& people);
/// "Bram Okafor", or the team's name, or "Bram Okafor \ Ilya Marsh".
std::string SideName(const World& world, const FeudSide& side);
FeudScore FeudWins(const Feud& feud);

/// Whether the two have a singles feud with each other, in either order.
bool FeudExists(const World& world, int workerA, int workerB);
/// The same for any sides: two workers, or two pairs in any order.
bool FeudExists(const World& world, const FeudSides& sides);

/// Whether a worker of the player's can be put into a feud: fit, and seen on the shows.
bool MayFeud(const World& world, const Worker& worker);
/// Everybody who may, the most popular first.
std::vector<const Worker*> FeudRoster(const World& world);

/// How hot a feud begins, and how that came about.
struct StartingHeat {
  int Popularity = 0;  // mean Over of all parties
  int Contrast = 0;    // Face against Heel adds, like against like takes off
  int Heat = 0;        // the sum, held to 10..90
};
StartingHeat StartingHeatOf(const World& world, const FeudSides& sides);

/// Why this feud cannot be, whatever anybody wants; empty when it can.
std::string WhyNoFeud(const World& world, const FeudSides& sides);

/// A side that finds its opponents far below it.
struct FeudRefusal {
  std::string Words;  // with the speaker's name in front
  std::string Veto;   // why it is final; empty when the player may insist
};
/// Side one is asked first. Nothing when both sides are willing.
std::optional<FeudRefusal> RefusalOf(const World& world, const FeudSides& sides);

/// Begins the feud today, in the first empty slot, and gives the slot. Requires one.
int StartFeud(World& world, const FeudSides& sides);

/// What Maeve thinks should become of the feud. Requires a slot that is taken.
std::string AssessFeud(const World& world, const Feud& feud);
/// Whether that is to end it. Requires the same.
bool IsRipe(const Feud& feud);

/// Empties the slot. Each party of a feud that has seen at least four wins or attacks draws once;
/// whom it hurts loses popularity and writes a mail.
void EndFeudOffCamera(World& world, int slot);

}  // namespace grapplemont
