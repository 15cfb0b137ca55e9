// What invented people are made of: the tables that a draw picks names and finishing moves from.
#pragma once

#include <array>
#include <string_view>

#include "records/modWresCheck.h"

namespace grapplemont {

inline constexpr int kSurnames = 300;
inline constexpr int kWorkerFirstNames = 303;
inline constexpr int kStaffFirstNames = 192;
inline constexpr int kFinisherMoves = 64;

// A draw counts from 1; a first name drawn above these makes its bearer a woman.
inline constexpr int kLastMaleWorkerFirstName = 251;
inline constexpr int kLastMaleStaffFirstName = 161;

// A move of the kind 'B' brawling, 'T' technical or 'S' speed.
struct FinisherMove {
  char Kind;
  FinisherType Type;
  std::string_view Name;
};

// Any first name, a blank and any surname fit a person's 25 characters; any surname fits the 10 of
// a worker's short name; any move fits its 25.
extern const std::array<std::string_view, kSurnames> Surnames;
extern const std::array<std::string_view, kWorkerFirstNames> WorkerFirstNames;
extern const std::array<std::string_view, kStaffFirstNames> StaffFirstNames;

// All brawling moves, then all technical ones, then all speed ones.
extern const std::array<FinisherMove, kFinisherMoves> FinisherMoves;

}  // namespace grapplemont
