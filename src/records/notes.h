#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "records/score.h"
#include "records/world.h"

// The steps of numbers and answers that are asked about later than they were computed, kept in
// mornings.dat by the rule that took them.

namespace grapplemont {

/// Which number a note is of.
struct NoteOf {
  NoteKind Kind;
  std::string What;            // whose, as it is called
  int Worker = 0;              // uid
  int Row = 0;                 // of the sheet
  std::optional<Day> On = {};  // today where none is given
};

/// Notes a step to `now`; nothing for a change of 0.
void NoteStep(World& world, const NoteOf& of, int change, int now, std::string_view why);
/// The same for what has no size: it is noted whatever the numbers are.
void NoteFact(World& world, const NoteOf& of, int change, int now, std::string_view why);
/// Every step of a number that a rule has made from nothing, or from where it stood at `from`; of
/// an answer, all that was weighed.
void NoteSteps(World& world, const NoteOf& of, const Explained& steps, int from = 0);
/// The same in the place of all earlier steps of the kind.
void NoteAnew(World& world, const NoteOf& of, const Explained& steps);

/// The number of the kind that was noted of the player's promotion, on that day or whenever;
/// without steps for none.
Score NotedScore(const World& world, NoteKind kind, std::optional<Day> on = {});
/// The same for an answer, and whose it was.
struct NotedDecision {
  std::string Whose;
  Decision Why;
};
NotedDecision NotedAnswer(const World& world, NoteKind kind);
/// The last day on which a step of this number was noted; nothing for none.
std::optional<Day> LastNoted(const World& world, NoteKind kind, std::string_view what);

/// How the image of the player's promotion came to be what it is: the changes that are noted
/// without a gap up to now, ten at most.
Score ImageSteps(const World& world);
/// Momentum: by how much size and image of the player's promotion have moved since the last month
/// end, a class counting 100, with every step that is noted.
Score MomentumSteps(const World& world);

}  // namespace grapplemont
