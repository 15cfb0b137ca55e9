#pragma once

#include <span>
#include <string>
#include <vector>

#include "calendar/passing.h"
#include "records/world.h"

// What the player of a Small or Backyard promotion can do with a month beside its shows: each
// venture once a month, for money. What comes of them is drawn from World::Life.

namespace grapplemont {

enum class Venture { Tryout, Scouting, Tournament, Posters, Outing, Benefit };

struct VentureRow {
  Venture Is;
  const char* Name;
  int SmallPrice, BackyardPrice;  // dollars
  const char* Brings;
  const char* Whom;  // what there is to choose; empty for nobody
};
std::span<const VentureRow> Ventures();

int PriceOf(const World& world, const VentureRow& venture);
bool IsDoneThisMonth(const World& world, Venture venture);

/// Whom it could be about, the most popular first; the same people all month as far as nothing
/// changes for them. Empty for a venture about nobody.
std::vector<const Worker*> WhomFor(const World& world, Venture venture);
/// What somebody who has come to the tryout signs for: "12 months, at $300 a month".
std::string TryoutTerms(const World& world, const Worker& worker);
/// Why it cannot be done about this worker (0 for one about nobody); empty when it can.
std::string WhyNotVenture(const World& world, Venture venture, int workerUid);
/// Pays and does it; what came of it, in a sentence or two.
std::string Undertake(World& world, Venture venture, int workerUid);

/// Something that is said in town and can be used.
struct LocalRumour {
  std::string Words;
  int Worker = 0;  // whose page it leads to; 0 for a screen
  const char* Screen = "";
};
/// All of them true. The same all month while they are.
std::vector<LocalRumour> LocalRumours(const World& world);

}  // namespace grapplemont
