#pragma once

#include <string>
#include <vector>

#include "halls/lives.h"
#include "storylines/lineages.h"

// Family trees: of a Title from holder to holder, of teams from partner to partner.

namespace grapplemont {

/// A holder of a Title in their turn.
struct TreeReign {
  const TitleReign* Reign = nullptr;
  int Number = 0;         // which reign of those that are kept, from 1; 0 for a vacancy
  int OfTheirs = 0;       // which one of theirs
  std::string TakenFrom;  // the holder before; empty where it was vacant or nobody knows
};
/// The oldest first. Where HaveReignsGone, there were as many or more.
std::vector<TreeReign> TreeOf(const World& world, const Lineage& lineage);

/// Two who teamed up, as one of them sees it.
struct TreePair {
  const Partnership* Pair = nullptr;
  int Depth = 0;  // 0 for the one the tree is of, 1 for a partner's other partners
  int Whose = 0;  // number of a career
  int Partner = 0;
};
/// Whoever has teamed up with somebody, by their names.
std::vector<const Career*> PartnersIn(const Ledger& ledger);
/// Their partners in order, and behind each the partner's other partners.
std::vector<TreePair> TeamTreeOf(const Ledger& ledger, int career);

}  // namespace grapplemont
