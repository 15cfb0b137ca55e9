#pragma once

#include "records/world.h"

// The annals: what happens in the wrestling world, one record an event, kept for good. News and
// the last cards are forgotten after some weeks; this is what a chronicle is written from.

namespace grapplemont {

/// The first record, which says since when events are kept; nothing where there is one.
void BeginAnnals(World& world);
/// Keeps an event, behind the first record. A full file drops its thousand oldest events.
void Keep(World& world, const Annal& event);

/// An event of today about a promotion; nullptr for nobody's.
Annal NewAnnal(const World& world, AnnalKind kind, const Promotion* house);
/// Who it is about: a worker, or two who are called as their team is.
void SetWho(const World& world, Annal& event, int worker, int partner = 0);
void SetWhom(const World& world, Annal& event, int worker, int partner = 0);

// Nothing is kept of a world that nobody plays in, such as the editor's.

/// What the annals keep of a deed, if anything. `who` is the worker it is about; nullptr where it
/// is about none.
void KeepDeed(World& world, const Deed& deed, const Worker* who);
/// What becomes of a feud of the player's; whoever won its last match comes first.
void KeepFeud(World& world, AnnalKind kind, const Feud& feud, bool secondWon = false);
/// What becomes of a team or a stable, `name`, by its people; nobody for a stable without any.
void KeepGroup(World& world, AnnalKind kind, std::string_view name, int worker, int partner = 0);
/// A worker of the player's has another name from today.
void KeepNewName(World& world, const Worker& worker, std::string_view before);
/// A Title of the promotion's is there.
void KeepTitle(World& world, const Promotion* house, std::string_view title);

}  // namespace grapplemont
