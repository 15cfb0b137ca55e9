#include "desktop/drawn/likeness.h"

#include <algorithm>
#include <array>

#include "desktop/drawn/brush.h"

namespace grapplemont::desktop {

namespace {

using ui::Dress;
using ui::Mood;

struct Tone {
  QRgb Skin, Shade;
  int Hair[9];  // weights of the natural colours of hair
};
constexpr Tone kTones[] = {
    {0xF3D3BC, 0xD9AE92, {2, 3, 4, 4, 3, 4, 3, 4, 3}},
    {0xEBC09F, 0xCF9B78, {3, 4, 4, 4, 2, 2, 3, 3, 2}},
    {0xEFC9A2, 0xD3A57C, {4, 4, 4, 3, 2, 2, 3, 3, 1}},
    {0xDDA97F, 0xBD855B, {6, 5, 4, 3, 1, 1, 1, 1, 0}},
    {0xCB9268, 0xA97048, {7, 5, 4, 2, 1, 0, 1, 0, 0}},
    {0xB47B52, 0x935E3A, {8, 5, 3, 1, 0, 0, 0, 0, 0}},
    {0x9C6742, 0x7D4E2F, {8, 4, 2, 0, 0, 0, 0, 0, 0}},
    {0x83543A, 0x663E29, {9, 3, 1, 0, 0, 0, 0, 0, 0}},
    {0x6C4434, 0x523226, {9, 3, 0, 0, 0, 0, 0, 0, 0}},
    {0x593A2F, 0x432A22, {9, 2, 0, 0, 0, 0, 0, 0, 0}},
};
constexpr QRgb kHair[] = {0x1D1B20, 0x38261B, 0x5C3D26, 0x7A4929, 0x8F4329,
                          0xC2682F, 0xA47F4B, 0xD6B469, 0xE9DEBB};
constexpr QRgb kDyed[] = {0xAF353C, 0x34908C, 0x7350A2, 0xCF6B8E};
constexpr QRgb kGrey = 0xB4B3B1;
constexpr QRgb kIris[] = {0x2B1D16, 0x3A2616, 0x4A3A22, 0x3D5A4A, 0x39618A};

struct KitColour {
  QRgb Colour;
  int Face, Heel;  // weights as the first colour
};
constexpr KitColour kKit[] = {
    {0xC9992F, 3, 2}, {0xB93C38, 2, 3}, {0x3C6BAA, 3, 1}, {0x2F8A86, 3, 1},
    {0x76539F, 2, 2}, {0x4B8A5B, 3, 1}, {0xD0712D, 3, 1}, {0xDDD6C6, 2, 1},
    {0x2A2D34, 0, 5}, {0x7B2B3A, 0, 4}, {0xC9648A, 2, 1}, {0x7F8B9C, 1, 2},
};

constexpr std::string_view kCrop =
    "M-1.05 43 C-1.13 22 -.72 14.6 0 14.6 C.72 14.6 1.13 22 1.05 43 L.95 43 C.95 34 .84 30 .58 "
    "28.4 "
    "C.3 27 -.3 27 -.58 28.4 C-.84 30 -.95 34 -.95 43Z";
constexpr std::string_view kSlick =
    "M-1.05 43 C-1.15 21 -.72 13.4 0 13.4 C.72 13.4 1.15 21 1.05 43 L.95 43 C.95 33 .82 27 .5 25 "
    "C.25 23.6 -.25 23.6 -.5 25 C-.82 27 -.95 33 -.95 43Z";
constexpr std::string_view kParted =
    "M-1.1 54 C-1.24 23 -.8 13.6 0 13.6 C.8 13.6 1.24 23 1.1 54 C.98 46 1 36 .6 29.5 C.34 25.4 .1 "
    "23 "
    "0 20.5 C-.1 23 -.34 25.4 -.6 29.5 C-1 36 -.98 46 -1.1 54Z";

constexpr HairStyle kStyles[] = {
    // Front, Behind, Braids, men, women, long, faded, costume
    {kCrop, "", "", 9, 2, false, false, false},
    {"M-1.04 43 L-1.08 25 L-1 11.5 C-.5 9.6 .5 9.6 1 11.5 L1.08 25 L1.04 43 L.95 43 L.92 32 L.72 "
     "28.6 "
     "L-.72 28.6 L-.92 32 L-.95 43Z",
     "", "", 4, 0, false, false, false},
    {kSlick, "", "", 6, 0, false, false, false},
    {"M-1.06 45 C-1.17 24 -.86 12.6 .08 12.2 C.95 12 1.17 25 1.05 43 L.95 42 C.96 35 .88 31 .74 "
     "28.6 "
     "C.2 31 -.42 29 -.58 24 C-.72 28 -.92 32 -.95 45Z",
     "", "", 6, 3, false, false, false},
    {"M-1.06 42 L-1.2 29 L-1.02 27 L-1.06 15 L-.66 18 L-.46 8.5 L-.1 15 L.26 6.8 L.5 15.5 L.98 "
     "11.5 "
     "L.98 25 L1.22 28 L1.06 42 L.95 42 L.9 33 L.56 28.4 L.26 30.5 L-.1 27.8 L-.5 30.4 L-.9 33 "
     "L-.95 "
     "42Z",
     "", "", 4, 1, false, false, true},
    {"M-.3 30 C-.44 20 -.44 9 -.34 4 L-.1 9 L0 1.5 L.14 8.4 L.36 4 C.48 12 .44 22 .3 30 C.1 28.4 "
     "-.1 "
     "28.4 -.3 30Z",
     "", "", 3, 1, false, true, true},
    {"M-1.05 41 C-1.08 22 -.72 16.6 0 16.6 C.72 16.6 1.08 22 1.05 41 L.95 41 C.95 33 .84 29 .58 "
     "27.4 "
     "C.3 26 -.3 26 -.58 27.4 C-.84 29 -.95 33 -.95 41Z",
     "", "", 3, 0, false, true, false},
    {kParted, "M-1.08 28 C-1.32 46 -1.36 64 -1.5 82 L1.5 82 C1.36 64 1.32 46 1.08 28Z", "", 4, 6,
     true, false, false},
    {"M-1.1 52 C-1.26 22 -.8 13 0 13 C.86 13 1.26 22 1.1 52 C1 44 1.02 35 .86 30 C.4 29.6 -.3 27 "
     "-.62 "
     "20.6 C-.7 28 -1 36 -1.1 52Z",
     "M-1.08 28 C-1.4 46 -1.5 62 -1.42 76 C-1 80 1 80 1.42 76 C1.5 62 1.4 46 1.08 28Z", "", 2, 6,
     true, false, false},
    {"M-1.14 53 C-1.3 22 -.82 13.2 0 13.2 C.82 13.2 1.3 22 1.14 53 C1 45 .99 37 .93 33.6 C.4 35.4 "
     "-.4 "
     "35.4 -.93 33.6 C-.99 37 -1 45 -1.14 53Z",
     "M-1.1 28 C-1.46 44 -1.46 58 -1.22 66 L1.22 66 C1.46 58 1.46 44 1.1 28Z", "", 0, 4, true,
     false, false},
    {kSlick, "", "E0 9.6 .42 6.4", 1, 3, false, false, false},
    {kSlick, "M.36 13 C1.3 3 2.3 14 2.16 34 C2.1 46 1.9 56 1.7 62 C1.56 52 1.5 34 .8 24Z", "", 1, 4,
     false, false, false},
    {kParted, "",
     "E-1.18 57 .2 5.2 E-1.2 65 .2 5.2 E-1.22 73 .19 5.2 E-1.24 81 .16 5.4 E1.18 57 .2 5.2 E1.2 65 "
     ".2 "
     "5.2 E1.22 73 .19 5.2 E1.24 81 .16 5.4",
     1, 3, true, false, false},
    {"M-1.12 52 C-1.34 22 -.84 12 0 12 C.84 12 1.34 22 1.12 52 L1.02 52 L.98 36 L.66 29 L.4 31 L.1 "
     "27 "
     "L-.3 31 L-.66 28 L-.98 36 L-1.02 52Z",
     "M-1.1 26 C-1.56 44 -1.6 60 -1.66 76 L-1.42 82 L-1.3 76 L-1.12 83 L-.96 76 L.96 76 L1.12 83 "
     "L1.3 76 "
     "L1.42 82 L1.66 76 C1.6 60 1.56 44 1.1 26Z",
     "", 3, 3, true, false, false},
    {"E0 21 .8 7.5 E-1 27 .32 6.5 E-.78 19.5 .38 6.4 E-.34 15.4 .42 6.2 E.16 14.6 .42 6.2 E.64 "
     "17.6 .4 6.6 E.96 "
     "25 .34 "
     "6.6 E-1.04 35 .22 6 E1.04 35 .22 6 M-.95 36 L-.8 22 L.8 22 L.95 36 C.7 28 -.7 28 -.95 36Z",
     "", "", 4, 2, false, false, false},
    {"M-1.06 45 C-1.6 40 -1.72 8 0 6.4 C1.72 8 1.6 40 1.06 45 L.95 43 C.95 34 .74 29 0 28.4 C-.74 "
     "29 "
     "-.95 34 -.95 43Z",
     "E0 28 1.5 22", "", 2, 3, false, false, false},
    {"E0 21 .8 7.5 E-1 27 .32 6.5 E-.78 19 .38 6.4 E-.34 15 .42 6.2 E.16 14.4 .42 6.2 E.64 17.4 .4 "
     "6.6 E.96 25 "
     ".34 6.6 "
     "M-1.04 48 L-.8 20 L.8 20 L1.04 48 C.9 30 .5 27 .2 27.4 C-.4 28 -.9 30 -1.04 48Z",
     "E-1.16 42 .46 10 E1.16 42 .46 10 E-1.3 56 .52 10.5 E1.3 56 .52 10.5 E-1.26 70 .54 10.5 E1.26 "
     "70 "
     ".54 10.5 E0 40 1.2 20",
     "", 1, 5, true, false, false},
};

/// 0 before `from`, 1 from `full` on.
double Share(double age, double from, double full) {
  return std::clamp((age - from) / (full - from), 0.0, 1.0);
}

template <class Row, std::size_t N>
const Row& Picked(const Row (&rows)[N], int uid, std::string_view word) {
  return rows[static_cast<std::size_t>(Lot(uid, word) * N)];
}

template <class Value>
struct Weighted {
  Value Is;
  int Weight;
};
template <class Value, std::size_t N>
Value PickedBy(const Weighted<Value> (&rows)[N], int uid, std::string_view word) {
  return rows[Drawn(rows, Lot(uid, word), [](const auto& row) { return row.Weight; })].Is;
}

void GiveProportions(Likeness& face) {
  const int uid = face.Person.Uid;
  const bool woman = face.Person.Woman, heavy = face.Person.Heavy;
  const double years = std::clamp(face.Person.Age - 36, 0, 30) * 0.03;
  face.Skull =
      (woman ? 13.6 : 14.6) + (heavy ? 1.3 : 0) + 1.8 * (Lot(uid, "skull") - 0.5) + years * 0.4;
  face.Jaw =
      face.Skull * ((woman ? 0.84 : 0.9) + (heavy ? 0.05 : 0) + 0.08 * (Lot(uid, "jaw") - 0.5)) +
      years + (face.Person.Superstar && !woman ? 0.5 : 0);
  face.Chin = (woman ? 4.6 : 7) + (heavy ? 1.2 : 0) + 3 * (Lot(uid, "chin") - 0.5) +
              (face.Person.Superstar && !woman ? 0.8 : 0);
  face.Neck = (woman ? 6.4 : 9) + (heavy ? (woman ? 1.2 : 2.6) : 0);
  face.Shoulders = (woman ? 27 : 33) + (heavy ? (woman ? 6 : 12) : 0) + 3 * Lot(uid, "shoulders");
}

void GiveColours(Likeness& face) {
  const int uid = face.Person.Uid, age = face.Person.Age;
  const Tone& tone = Picked(kTones, uid, "skin");
  face.Skin = QColor(tone.Skin);
  face.Shade = QColor(tone.Shade);
  const QColor natural(
      kHair[Drawn(tone.Hair, Lot(uid, "hair colour"), [](int weight) { return weight; })]);
  const bool dyes = Wrestles(face.Person) && Lot(uid, "dyed") < 0.09;
  const QColor worn = dyes ? QColor(Picked(kDyed, uid, "dye")) : natural;
  // Nearly half the women hide their grey for a while.
  const double begins = 33 + 17 * Lot(uid, "grey"), full = begins + 17;
  const bool hidden = face.Person.Woman && Lot(uid, "hides grey") < 0.45 && age < 56;
  const double grey = hidden ? 0 : Share(age, begins, full);
  face.Hair = Mixed(worn, QColor(kGrey), dyes ? grey * 0.4 : grey);
  face.BeardColour = Mixed(natural, QColor(kGrey), std::min(1.0, grey * 1.3));
  face.Brows = Mixed(natural, QColor(kGrey), hidden ? 0 : Share(age, begins + 8, full + 8));
  const bool dark = tone.Hair[7] == 0;
  face.Iris = QColor(kIris[static_cast<std::size_t>(Lot(uid, "iris") * (dark ? 2 : 5))]);
  const bool heel = face.Person.Shows == Mood::Heel;
  const std::size_t first = Drawn(
      kKit, Lot(uid, "kit"), [heel](const KitColour& row) { return heel ? row.Heel : row.Face; });
  const std::size_t second =
      (first + 1 + static_cast<std::size_t>(Lot(uid, "second kit") * (std::size(kKit) - 1))) %
      std::size(kKit);
  face.First = QColor(kKit[first].Colour);
  face.Second = QColor(kKit[second].Colour);
}

void GiveHair(Likeness& face) {
  const int uid = face.Person.Uid, age = face.Person.Age;
  const bool woman = face.Person.Woman, wrestles = Wrestles(face.Person);
  face.Style = &kStyles[Drawn(kStyles, Lot(uid, "hair"), [&](const HairStyle& style) {
    return style.Costume && !wrestles ? 0 : woman ? style.Women : style.Men;
  })];
  if (!woman && Lot(uid, "shaven") < 0.13) face.Style = nullptr;
  const double loses = 34 + 38 * Lot(uid, "hairline");
  face.Receding = !woman && loses < 50 ? std::max(0.0, (age - loses) / 13.0) : 0;

  constexpr Weighted<Beard> kBeards[] = {
      {Beard::None, 34},  {Beard::Stubble, 16}, {Beard::Moustache, 8}, {Beard::Goatee, 9},
      {Beard::Short, 14}, {Beard::Full, 13},    {Beard::Long, 6}};
  face.Grows = woman ? Beard::None : PickedBy(kBeards, uid, "beard");
  if (age < 22 && face.Grows != Beard::None) face.Grows = Beard::Stubble;
  if (age < 27 && face.Grows == Beard::Long) face.Grows = Beard::Full;
  const bool bald = !face.Style || face.Receding >= 1;
  if (bald && face.Grows == Beard::Goatee) face.Grows = Beard::Short;
}

Clothes ClothesOf(const ui::Portrait& person) {
  constexpr Weighted<Clothes> kBrawlers[] = {
      {Clothes::Vest, 4}, {Clothes::Straps, 3}, {Clothes::TornTee, 3}, {Clothes::Bare, 3}};
  constexpr Weighted<Clothes> kTechnicians[] = {
      {Clothes::Singlet, 6}, {Clothes::Bare, 3}, {Clothes::Robe, 2}};
  constexpr Weighted<Clothes> kFlyers[] = {
      {Clothes::VTop, 7}, {Clothes::SpikedTop, 2}, {Clothes::Straps, 1}};
  constexpr Weighted<Clothes> kManagers[] = {
      {Clothes::Suit, 6}, {Clothes::BowTie, 2}, {Clothes::RollNeck, 2}};
  constexpr Weighted<Clothes> kOffice[] = {
      {Clothes::Blazer, 4}, {Clothes::Polo, 3}, {Clothes::RollNeck, 2}, {Clothes::Suit, 3}};
  const int uid = person.Uid;
  if (person.Superstar && Wrestles(person) && Lot(uid, "star robe") < 0.4) return Clothes::Robe;
  Clothes worn = Clothes::Suit;
  switch (person.Wears) {
    case Dress::Brawler:
      worn = PickedBy(kBrawlers, uid, "dress");
      break;
    case Dress::Technician:
      worn = PickedBy(kTechnicians, uid, "dress");
      break;
    case Dress::HighFlyer:
      worn = PickedBy(kFlyers, uid, "dress");
      break;
    case Dress::Manager:
      worn = PickedBy(kManagers, uid, "dress");
      break;
    case Dress::Office:
      worn = PickedBy(kOffice, uid, "dress");
      break;
  }
  return worn == Clothes::Bare && person.Woman ? Clothes::Straps : worn;
}

void GiveCostume(Likeness& face) {
  const ui::Portrait& person = face.Person;
  const int uid = person.Uid;
  const bool wrestles = Wrestles(person), flies = person.Wears == Dress::HighFlyer;
  const bool brawls = person.Wears == Dress::Brawler;
  face.Wears = ClothesOf(person);
  face.Masked = wrestles && Lot(uid, "mask") < (!flies ? 1.0 / 17 : person.Woman ? 0.2 : 1.0 / 3);
  face.MaskCut = static_cast<int>(Lot(uid, "mask cut") * 4);
  face.Spiked = face.Wears == Clothes::SpikedTop;
  face.Chain = person.Superstar && wrestles && face.Wears != Clothes::Robe;

  constexpr Weighted<Paint> kPaints[] = {{Paint::HalfFace, 2},
                                         {Paint::Diamond, 3},
                                         {Paint::Band, 3},
                                         {Paint::Cheeks, 3},
                                         {Paint::Streaks, 2}};
  const bool tweener = person.Shows == Mood::Tweener;
  const bool painted = wrestles && person.Wears != Dress::Technician && !face.Masked &&
                       Lot(uid, "paint") < (tweener ? 0.4 : 0.16);
  face.Painted = painted ? PickedBy(kPaints, uid, "paint form") : Paint::None;

  constexpr Weighted<Headwear> kBrawlersWear[] = {{Headwear::None, 66},
                                                  {Headwear::Bandana, 11},
                                                  {Headwear::Brim, 9},
                                                  {Headwear::Patch, 8},
                                                  {Headwear::Band, 6}};
  constexpr Weighted<Headwear> kFlyersWear[] = {{Headwear::None, 88}, {Headwear::Band, 12}};
  constexpr Weighted<Headwear> kManagersWear[] = {
      {Headwear::None, 70}, {Headwear::Brim, 12}, {Headwear::FlatCap, 18}};
  face.On = Headwear::None;
  if (!face.Masked) {
    if (brawls) face.On = PickedBy(kBrawlersWear, uid, "headwear");
    if (flies) face.On = PickedBy(kFlyersWear, uid, "headwear");
    if (person.Wears == Dress::Manager) face.On = PickedBy(kManagersWear, uid, "headwear");
  }
  constexpr Weighted<Glasses> kManagersSee[] = {
      {Glasses::None, 50}, {Glasses::Clear, 28}, {Glasses::Dark, 22}};
  constexpr Weighted<Glasses> kOfficeSees[] = {{Glasses::None, 60}, {Glasses::Clear, 40}};
  constexpr Weighted<Glasses> kWrestlersSee[] = {{Glasses::None, 95}, {Glasses::Dark, 5}};
  face.Sees = face.Masked || face.On == Headwear::Patch ? Glasses::None
              : person.Wears == Dress::Manager          ? PickedBy(kManagersSee, uid, "glasses")
              : person.Wears == Dress::Office           ? PickedBy(kOfficeSees, uid, "glasses")
                                                        : PickedBy(kWrestlersSee, uid, "glasses");
  if (face.On == Headwear::Patch && face.Painted != Paint::None) face.Painted = Paint::None;
}

}  // namespace

bool Wrestles(const ui::Portrait& person) {
  return person.Wears != Dress::Manager && person.Wears != Dress::Office;
}

Likeness LikenessOf(const ui::Portrait& person) {
  const int uid = person.Uid;
  Likeness face{};
  face.Person = person;
  GiveProportions(face);
  GiveColours(face);
  GiveHair(face);
  GiveCostume(face);
  const bool wrestles = Wrestles(person);
  face.Scar =
      wrestles && person.Wears == Dress::Brawler && person.Age >= 24 && Lot(uid, "scar") < 0.3;
  face.Mole = Lot(uid, "mole") < 0.1;
  face.Freckles = Lot(uid, "freckles") < 0.25 && face.Skin.lightness() > 190;
  face.Rings = Lot(uid, "rings") < (person.Woman ? 0.4 : 0.1);
  face.Eyes = static_cast<int>(Lot(uid, "eyes") * 3);
  face.Nose = static_cast<int>(Lot(uid, "nose") * 4);
  face.Mouth = static_cast<int>(Lot(uid, "mouth") * 2);
  return face;
}

}  // namespace grapplemont::desktop
