#pragma once

#include <span>
#include <string_view>

#include "records/segmentwords.h"
#include "report/family.h"

// Bout scripts: rows of steps, each a call of a family. No script decides a result.
//
//   A B C D E  offence        2  two count       N  near fall      #  counter: the bout changes
//   hands R  referee bump           P  pin, no referee T  tag            X  double team L  ladder
//   W  weapon     K  table           S  what the stipulation is about ~  somebody from outside the
//   exchange breaks in and takes over

namespace grapplemont {

inline constexpr std::string_view kSteps = "ABCDE2N#RPTXLWKS~";

using Script = std::string_view;
using Scripts = std::span<const Script>;

/// The twelve of a singles match, three variants of each of four shapes; the last shape is the
/// squash.
inline constexpr int kShapes = 4, kVariants = 3;
Scripts SinglesScripts();

enum class BoutShape { Duel, Scramble, IronMan, Elimination, Survivor, Rumble, BattleRoyal };

/// How a match of one style and type is told.
struct BoutRow {
  int Style, Type;
  BoutShape Shape;
  Scripts Rows;
  int Spot = kHoldSpot;  // what S calls
  bool Pinfall = true;   // ends in a count or a tap-out
  bool ByTable = false;  // ends with the loser going through a table
};

/// In the order of kMatchTypes' styles and types. nullptr for a match that is none.
const BoutRow* FindBout(int style, int type);
std::span<const BoutRow> AllBouts();

/// The rows of the falls of an Iron Man match, and of what leads to an elimination: the hands
/// change by counters alone.
Scripts FallScripts();
Scripts ExchangeScripts();

}  // namespace grapplemont
