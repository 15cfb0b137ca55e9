#pragma once

#include "records/fields/wording.h"
#include "report/family.h"

// The voices' lines. Each voice is a module that the build makes of its folder of words/, a
// function a file; docs/report-writing.md tells how to write one.

namespace grapplemont {

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
Blocks Verdicts();
}  // namespace modTolland

namespace modQVD {
Blocks Offence();
Blocks Bouts();
Blocks Finishes();
Blocks Talk();
Blocks Angles();
}  // namespace modQVD

/// The lines to draw from: the voice's, or those of the one voice that has the family for all.
/// nullptr for a band that does not exist; the first voice stands in for an invalid number.
const Block* BlockOf(int voice, Family family, int band);

}  // namespace grapplemont
