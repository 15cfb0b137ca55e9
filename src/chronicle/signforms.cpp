#include "chronicle/signforms.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace grapplemont {

namespace {

constexpr unsigned kCloth[] = {0x22375E, 0x7A2433, 0x1D5B63, 0x4B3A7C, 0x7A4420, 0x8F2F5C,
                               0x2B2E36, 0x3F5228, 0x5C2A6E, 0x1F6A4A, 0x9A3B2C, 0x34506B};
constexpr unsigned kEdges[] = {0xD8B65A, 0xE9E2D4, 0xC9993A, 0xA9A2D8,
                               0xE08A3C, 0xE6A3C0, 0x9FB4C8};
constexpr std::string_view kCircle = "E0 50 42 42";
constexpr std::string_view kShield =
    "M-36 10 L36 10 L36 52 C36 74 18 86 0 94 C-18 86 -36 74 -36 52Z";
constexpr std::string_view kPointed =
    "M-36 12 C-22 16 -12 14 0 6 C12 14 22 16 36 12 L34 58 C30 76 14 86 0 95 C-14 86 -30 76 -34 58Z";
constexpr std::string_view kHexagon = "M0 6 L38 27 L38 73 L0 94 L-38 73 L-38 27Z";
constexpr std::string_view kDiamond = "M0 4 L46 50 L0 96 L-46 50Z";
constexpr std::string_view kTicket =
    "M-42 22 L42 22 L42 42 C34 42 34 58 42 58 L42 78 L-42 78 L-42 58 C-34 58 -34 42 -42 42Z";

template <std::size_t N>
unsigned OneByLot(const unsigned (&colours)[N], int uid, std::string_view word) {
  return colours[static_cast<std::size_t>(Lot(uid, word) * N)];
}

}  // namespace

double Lot(int uid, std::string_view word) {
  std::uint64_t hash = 0xCBF29CE484222325;
  const auto take = [&hash](unsigned byte) { hash = (hash ^ (byte & 0xFF)) * 0x100000001B3; };
  for (const char letter : word) take(static_cast<unsigned char>(letter));
  for (int shift = 0; shift < 32; shift += 8) take(static_cast<unsigned>(uid) >> shift);
  hash = (hash ^ (hash >> 30)) * 0xBF58476D1CE4E5B9;
  hash = (hash ^ (hash >> 27)) * 0x94D049BB133111EB;
  hash ^= hash >> 31;
  return static_cast<double>(hash >> 11) / 9007199254740992.0;
}

CrestForm CrestFormOf(int uid, int size) {
  static constexpr std::array<CrestForm, 3> kBySize[] = {
      {{{kCircle, true, false, 3}, {kCircle, true, false, 3}, {kCircle, true, false, 3}}},
      {{{kShield, false, false, 2}, {kShield, false, false, 2}, {kShield, false, false, 2}}},
      {{{kHexagon, false, false, 1}, {kPointed, false, false, 1}, {kCircle, true, false, 1}}},
      {{{kCircle}, {kShield}, {kDiamond}}},
      {{{kDiamond}, {kHexagon}, {kTicket}}},
      {{{kTicket, false, true}, {kTicket, false, true}, {kTicket, false, true}}},
  };
  const auto row = static_cast<std::size_t>(std::clamp(size, 1, 6) - 1);
  return kBySize[row][static_cast<std::size_t>(Lot(uid, "crest form") * 3)];
}

bool IsNarrow(const CrestForm& form) {
  return form.Outline == kDiamond;
}

unsigned CrestCloth(int uid) {
  return OneByLot(kCloth, uid, "crest cloth");
}

unsigned CrestEdge(int uid) {
  return OneByLot(kEdges, uid, "crest edge");
}

PlateMetal PlateMetalOf(int image, bool vacant) {
  if (vacant) return {0x4A4F57, 0x5B616A, 0x363A41};
  if (image >= 70) return {0xE3B34A, 0xF6D685, 0xB07F22};
  if (image >= 45) return {0xB9C0C9, 0xDDE2E8, 0x868E99};
  return {0xBC7B4A, 0xDA9C6C, 0x8A5530};
}

std::string_view PlateForm(int number) {
  static constexpr std::string_view kForms[] = {
      "E0 50 46 40", "M-20 8 L20 8 L46 30 L46 70 L20 92 L-20 92 L-46 70 L-46 30Z",
      "M-44 14 C-20 18 -10 10 0 4 C10 10 20 18 44 14 C46 50 36 80 0 96 C-36 80 -46 50 -44 14Z"};
  return kForms[static_cast<std::size_t>(number % 3 + 3) % 3];
}

}  // namespace grapplemont
