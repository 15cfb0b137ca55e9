#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "records/segmentwords.h"
#include "report/line.h"

// The families of lines. A bout script, a finish, an aftermath calls a family; which words come out
// is the voice's affair. All voices hold the same families with the same number of lines.

namespace grapplemont {

enum class Family {
  // What happens in a bout. {a} acts, {d} suffers, {b} is the partner of {a}.
  OffenceA,
  OffenceB,
  OffenceC,
  OffenceD,
  OffenceE,
  Counter,  // {a} turns the tables on {d}
  TwoCount,
  NearFall,
  ThreeCount,
  TapOut,
  PinNoRef,
  RefBump,
  TagOut,      // {a} tags {b}
  DoubleTeam,  // {a} and {b} on {d}
  BreakIn,     // {a}, from outside the exchange, stops {d}
  LadderSpot,
  WeaponSpot,
  TableSpot,
  Spot,            // by stipulation
  FinishImpact,    // {a} hits {d} with the {finisher}
  FinishHold,      // the same, a submission
  FinishTopRope,   // the same, from the top rope
  FinishGround,    // the same, on a fallen opponent
  IronFall,        // {a} takes a fall off {d}; {tally}
  IronSum,         // after the end: {tally}
  EliminatedOne,   // {a} eliminates {d}
  EliminatedTeam,  // {a} pins {d}, and {X} leave
  SurvivorOut,     // {a} eliminates {d}
  Survivors,       // {Z} are left
  RumbleStart,     // {a} and {d} are the first two
  RumbleEntry,     // {a} enters as {no}
  EliminationTry,  // {a} nearly eliminates {d}
  Elimination,     // {a} eliminates {d}, {no}
  LastTwo,         // {w} and {l} are left
  // Around the bout.
  Opening,  // by style and type
  TitleOpening,
  FeudOpening,
  DebutOpening,
  ChampionNote,
  Closer,  // by style and type
  DoubleDq,
  SinglesFinish,  // by code
  TagFinish,
  CheapFinish,  // sides of three and four
  SideDraw,
  SideShow,
  TurnCosts,
  TurnWalksOut,
  TurnAfterWin,
  TurnDraw,
  SinglesAftermath,  // by code
  TagAftermath,
  TitleEnding,
  FeudEnding,
  PurposeEnding,
  Turn,
  // Talk and angles.
  TalkOpening,
  Speech,
  TalkClosing,
  AngleText,
};
inline constexpr int kFamilies = static_cast<int>(Family::AngleText) + 1;

/// Bands of the offence: the wrestler's strongest side, and how good he is at it.
enum OffenceBand { kBLow, kBMid, kBHigh, kTLow, kTMid, kTHigh, kSLow, kSMid, kSHigh };

/// Bands of Spot.
enum Stipulation {
  kHoldSpot,
  kClockSpot,
  kJunkSpot,
  kCageSpot,
  kTexasSpot,
  kTenCountSpot,
  kAnywhereSpot,
  kClimbSpot,
  kTableSetUp,
  kClothesSpot,
  kQuitSpot,
  kBloodSpot,
  kFireSpot,
  kCellSpot,
  kIncidentSpot,
  kWireSpot,
  kDeathSpot,
  kNakedSpot,
  kTlcSpot,
  kStipulations
};

/// Bands of TitleOpening, TitleEnding, FeudOpening, FeudEnding, PurposeEnding, Turn.
enum TitleStake { kDefended, kVacant, kChampionAway, kTitleStakes };
enum TitleOutcome {
  kRetained,
  kNewChampion,
  kVacancyFilled,
  kKeptThoughBeaten,
  kKeptByDraw,
  kWonInAbsence,
  kTitleOutcomes
};
enum FeudTemperature { kSimmers, kBoils };
enum FeudOutcome { kFeudGoesOn, kFeudIsOver };
enum PurposeTold {
  kGoodMatchTold,
  kPutOverTold,
  kBothOverTold,
  kEyeCandyTold,
  kRunInDebutTold,
  kPurposesTold
};
enum TurnTold { kTurnsHeel, kTurnsFace, kTweenerTurns, kBaffling, kTurnsTold };

/// Bands of Opening and Closer: the row of kMatchTypes.
constexpr int Bout(int style, int type) {
  int band = 0;
  for (const MatchTypeRow& row : kMatchTypes) {
    if (row.Style == style && row.Code == type) return band;
    ++band;
  }
  throw "no such match type";
}
/// Bands of Speech.
constexpr int TalkBand(int style, int purpose) {
  return (style - 1) * 6 + purpose - 1;
}

struct FamilyRow {
  Family Of;
  std::string_view Name;
  std::string_view Parts;   // that its lines may name
  std::string_view Must;    // that each of its lines does name
  int First = 0, Last = 0;  // its bands
  int Lines = 0;            // of each band, at least
  std::uint32_t Skips = 0;  // bands that do not exist, a bit for each
  bool Shared = false;      // the first voice's lines serve all
  bool Exact = false;       // not a line more

  constexpr bool Has(int band) const {
    return band >= First && band <= Last && !(band < 32 && (Skips >> band & 1) != 0);
  }
};
/// In the order of the enumeration.
std::span<const FamilyRow> AllFamilies();
const FamilyRow& RowOf(Family family);

}  // namespace grapplemont
