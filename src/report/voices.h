#pragma once

#include <span>

#include "report/family.h"

// The voices' tables. Each voice is a module of five tables, one a subject and file; docs/
// report-writing.md tells how to write one.

namespace grapplemont {

/// The lines of one band of a family; as many as the family asks for.
struct Block {
  Family Of;
  int Band = 0;
  Line Lines[30];

  std::span<const Line> All() const;
};
using Blocks = std::span<const Block>;

struct VoiceTable {
  std::string_view Name;
  Blocks Offence, Bouts, Finishes, Talk, Angles;
};

namespace modLamplighter {
Blocks Offence();
Blocks Bouts();
Blocks Finishes();
Blocks Talk();
Blocks Angles();
}  // namespace modLamplighter

namespace modTolland {
Blocks Offence();
Blocks Bouts();
Blocks Finishes();
Blocks Talk();
Blocks Angles();
}  // namespace modTolland

namespace modQVD {
Blocks Offence();
Blocks Bouts();
Blocks Finishes();
Blocks Talk();
Blocks Angles();
}  // namespace modQVD

/// In the order of GameInfo.Reporter.
std::span<const VoiceTable> AllVoices();
/// The block a voice itself has; nullptr for none.
const Block* OwnBlock(int voice, Family family, int band);
/// The block to draw from: the voice's own, or the first voice's for a family that all share.
/// nullptr for a band that does not exist; the first voice stands in for a number that is none.
const Block* BlockOf(int voice, Family family, int band);

}  // namespace grapplemont
