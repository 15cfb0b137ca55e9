#pragma once

#include <QColor>
#include <string_view>

#include "ui/drawings.h"

namespace grapplemont::desktop {

enum class Beard { None, Stubble, Moustache, Goatee, Short, Full, Long };
enum class Headwear { None, Bandana, Band, Brim, FlatCap, Patch };
enum class Glasses { None, Clear, Dark };
enum class Clothes {
  Vest,
  Straps,
  TornTee,
  Bare,  // brawlers
  Singlet,
  Robe,  // technicians
  VTop,
  SpikedTop,  // high-flyers
  Suit,
  BowTie,
  RollNeck,
  Blazer,
  Polo  // whoever does not wrestle
};
enum class Paint { None, HalfFace, Diamond, Band, Cheeks, Streaks };

/// One style of hair: shapes in units of the skull's half width, and how often it is picked.
struct HairStyle {
  std::string_view Front, Behind, Braids;
  int Men, Women;
  bool Long;     // hangs beside the face
  bool Fades;    // the sides are cropped to a shade on the skin
  bool Costume;  // not for who does not wrestle
};

/// Everything that a portrait is drawn by, decided from the facts of one person.
struct Likeness {
  ui::Portrait Person;
  double Skull, Jaw, Chin, Neck, Shoulders;  // half widths on the canvas of 100
  QColor Skin, Shade, Hair, Brows;           // Hair and Brows with the grey of the person's age
  QColor BeardColour, Iris, First, Second;   // First, Second: the kit
  const HairStyle* Style;                    // nullptr for bald
  double Receding;                           // 0 to 1; from 1 on only the sides are left
  Beard Grows;
  Headwear On;
  Glasses Sees;
  Clothes Wears;
  Paint Painted;
  bool Masked, Spiked, Chain, Scar, Mole, Freckles, Rings;
  int Eyes, Nose, Mouth, MaskCut;  // a form each
};

/// False for managers and the office.
bool Wrestles(const ui::Portrait& person);
Likeness LikenessOf(const ui::Portrait& person);

}  // namespace grapplemont::desktop
