#pragma once

#include <string_view>

// What the signs of promotions and the plates of Titles look like, whoever draws them. The same
// facts give the same picture. Shapes lie on a square of 100 by 100, as short texts: M, L, Q, C
// with absolute points, Z, and E (centre and radii) for an ellipse; x counts from the middle line.

namespace grapplemont {

/// A number from 0 to below 1 that belongs to a uid and a word, the same for ever. Each choice has
/// a word of its own, so that a new one changes no old picture.
double Lot(int uid, std::string_view word);

/// A promotion's sign, by its uid and size class.
struct CrestForm {
  std::string_view Outline;
  bool Rope = false;
  bool Askew = false;
  int Stars = 0;
};
CrestForm CrestFormOf(int uid, int size);
/// Letters need less room in it.
bool IsNarrow(const CrestForm& form);
/// 0xRRGGBB.
unsigned CrestCloth(int uid);
unsigned CrestEdge(int uid);

/// A plate's metal, by its image and whether nobody has it.
struct PlateMetal {
  unsigned Plate, Light, Dark;
};
PlateMetal PlateMetalOf(int image, bool vacant);
/// The outline of the plate of a Title's record.
std::string_view PlateForm(int number);

}  // namespace grapplemont
