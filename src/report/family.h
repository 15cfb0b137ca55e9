#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "words/segments.h"

// The families of lines. A bout script, a finish, an aftermath calls a family; which words come out
// is the voice's affair. The lines stand in words/, a folder a voice; the build refuses a voice
// that lacks any.

namespace grapplemont {

/// Who tells the show, by GameInfo.Reporter.
enum Voice { kLamplighter = 0, kTolland, kQvd };
/// In that order: the name, the folder of words/, the module that the build makes of it.
struct VoiceRow {
  std::string_view Name, Folder, Module;
};
inline constexpr VoiceRow kVoiceRows[] = {{"The Lamplighter", "lamplighter", "modLamplighter"},
                                          {"Rafe Tolland", "tolland", "modTolland"},
                                          {"QVD", "qvd", "modQVD"}};

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
  PutDown,  // {a} gets {d} to the mat, who stood or was held until then
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
  TurnReturns,     // {t}, who was out, comes back to see to it that {w} beats {l}
  Survivors,       // {Z} are left
  RumbleStart,     // {a} and {d} are the first two
  RumbleEntry,     // {a} enters as {no}
  EliminationTry,  // {a} nearly eliminates {d}
  Elimination,     // {a} eliminates {d}, {no}
  LastTwo,         // {w} and {l} are left
  Beat,            // what a match has come to, between its steps
  // Around the bout.
  Opening,  // by style and type
  TitleOpening,
  FeudOpening,
  FeudPartners,  // {F} and {S} have a feud, and stand on one side
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
  // Beside the row: what lies behind a match, and what comes of it; how it is going.
  PastOpening,
  PastEnding,
  Interlude,
  Squash,  // {w} has {l} beaten for a Title in next to no time
  // Talk and angles.
  TalkOpening,
  Speech,
  SpeechAgain,  // {T} has nothing to add to what the show has heard
  TalkClosing,
  TalkPast,  // what lies behind an interview or an angle
  AngleText,
  Chapter,  // of a chronicle, by what it tells
  // The second reporter's ratings.
  Verdict,  // by kVerdictsUpTo
  NoVerdict,
};
inline constexpr int kFamilies = static_cast<int>(Family::NoVerdict) + 1;

/// Bands of the offence: the wrestler's strongest side, and how good they are at it.
enum OffenceBand {
  kBrawlLow,
  kBrawlMid,
  kBrawlHigh,
  kTechnicalLow,
  kTechnicalMid,
  kTechnicalHigh,
  kSpeedLow,
  kSpeedMid,
  kSpeedHigh
};

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
  kTlcSpot
};

/// Bands of Beat.
enum BeatTold {
  kComeback,   // {a} has turned it, who had taken a good deal
  kInTrouble,  // {d} has taken a good deal
  kFallLead,   // {a} covers {d} once more
  kFallReaction,
  kFallDoubt,  // behind the third near fall and later
  kLegGoes,    // the leg of {d} that {a} has worked on
  kArmGoes,
  kBackGoes,
  kRefereeBack,
  kBeats
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
enum TurnTold {
  kTurnsHeel,
  kTurnsFace,
  kTurnsTweener,
  kBaffling,
  kFellFlat,  // {?face}, {?heel} or {?tweener}
  kTooSoon,
  kTurnsTold
};

/// Bands of Interlude. {a} and {d} as in the step before.
enum InterludeKind {
  kWalkIn,
  kTitleAir,
  kFeeling,
  kInControl,
  kHurting,
  kLoud,
  kSplit,    // some like it, some do not
  kDivided,  // one half for {a}, one for {d}
  kQuiet,
  kWakes,  // once it has something to look at
  kHope,
  kDesperate,
  kDoubt,
  kLead,  // to a near fall
  kGasp,  // behind it
  kHeldBreath,
  kAfterBell
};

/// Bands of Squash: before the few steps, and behind them.
enum SquashTold { kSquashBegins, kSquashDone };

/// What the second reporter calls a dud, no line praises, and what comes up to here none shrugs
/// off.
inline constexpr int kDudUpTo = 45, kFairUpTo = 80;

/// Bands of Verdict: the highest Overall that each rates.
inline constexpr int kVerdictsUpTo[] = {15, 20, 25, 30, 35, 40, 45, 50, 55, 60, 66,
                                        71, 75, 80, 84, 86, 90, 93, 97, 99, 100};

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

/// The bands of a family, by number, and what words/ calls each of them.
struct BandRange {
  int First = 0, Last = 0;
  std::string (*Name)(int band) = nullptr;  // of a family with several
  std::uint32_t Skips = 0;                  // bands that do not exist, a bit for each
};

inline constexpr int kEveryVoice = -1;

struct FamilyRow {
  Family Of;
  std::string_view File;   // of the voice's folder
  std::string_view Parts;  // that its lines may name
  std::string_view Must;   // that each of its lines does name
  BandRange Bands;
  int Lines = 0;           // of each band, at least
  bool Exact = false;      // not a line more
  int Only = kEveryVoice;  // the voice that has it for all
  /// Bands that judge the match, a bit for each: every line of theirs says for which ratings.
  std::uint32_t Rated = 0;

  constexpr bool Has(int band) const {
    return band >= Bands.First && band <= Bands.Last &&
           !(band < 32 && (Bands.Skips >> band & 1) != 0);
  }
};
/// In the order of the enumeration.
std::span<const FamilyRow> AllFamilies();
const FamilyRow& RowOf(Family family);
/// "SinglesFinish", "SinglesFinish, Clean": as words/ has it in a heading.
std::string HeadingOf(Family family);
std::string HeadingOf(Family family, int band);

}  // namespace grapplemont
