#include "report/family.h"

#include <iterator>

namespace grapplemont {

namespace {

using enum Family;

constexpr int kLastBout = static_cast<int>(std::size(kMatchTypes)) - 1;
constexpr std::uint32_t kNotInSingles = 1U << kMiscommunication | 1U << kPartnerTurns;
constexpr bool kShared = true;
constexpr bool kExact = true;

// Family, name, parts its lines may name, parts each of them names, first and last band, lines a
// band, bands without lines, shared by all voices, exactly so many lines.
constexpr FamilyRow kRows[] = {
    {OffenceA, "OffenceA", "ad", "a", kBLow, kSHigh, 10, 0, false, kExact},
    {OffenceB, "OffenceB", "ad", "a", kBLow, kSHigh, 10, 0, false, kExact},
    {OffenceC, "OffenceC", "ad", "a", kBLow, kSHigh, 10, 0, false, kExact},
    {OffenceD, "OffenceD", "ad", "a", kBLow, kSHigh, 10, 0, false, kExact},
    {OffenceE, "OffenceE", "ad", "a", kBLow, kSHigh, 10, 0, false, kExact},
    {Counter, "Counter", "ad", "a", 0, 0, 30, 0, false, kExact},
    {TwoCount, "TwoCount", "", "", 0, 0, 3, 0, false, kExact},
    {NearFall, "NearFall", "d", "", 0, 0, 5, 0, false, kExact},
    {ThreeCount, "ThreeCount", "wl", "w", 0, 0, 8},
    {TapOut, "TapOut", "wl", "l", 0, 0, 6},
    {PinNoRef, "PinNoRef", "", "", 0, 0, 6},
    {RefBump, "RefBump", "ad", "", 0, 0, 6, 0, false, kExact},
    {TagOut, "TagOut", "ab", "ab", 0, 0, 12},
    {DoubleTeam, "DoubleTeam", "abd", "ab", 0, 0, 6, 0, false, kExact},
    {BreakIn, "BreakIn", "ad", "a", 0, 0, 10},
    {LadderSpot, "LadderSpot", "ad", "a", 0, 0, 8},
    {WeaponSpot, "WeaponSpot", "ad", "a", 0, 0, 10},
    {TableSpot, "TableSpot", "ad", "a", 0, 0, 8, 0, kShared},
    {Spot, "Spot", "ad", "a", 0, kStipulations - 1, 8},
    {FinishImpact, "FinishImpact", "ad", "a", 0, 0, 8},
    {FinishHold, "FinishHold", "ad", "a", 0, 0, 6},
    {FinishTopRope, "FinishTopRope", "ad", "a", 0, 0, 6},
    {FinishGround, "FinishGround", "ad", "a", 0, 0, 6},
    {IronFall, "IronFall", "ad", "a", 0, 0, 6},
    {IronSum, "IronSum", "wl", "w", 0, 0, 3},
    {EliminatedOne, "EliminatedOne", "ad", "d", 0, 0, 6},
    {EliminatedTeam, "EliminatedTeam", "adX", "dX", 0, 0, 4},
    {SurvivorOut, "SurvivorOut", "ad", "d", 0, 0, 8},
    {Survivors, "Survivors", "Z", "Z", 0, 0, 3},
    {RumbleStart, "RumbleStart", "ad", "ad", 0, 0, 2},
    {RumbleEntry, "RumbleEntry", "a", "a", 0, 0, 12},
    {EliminationTry, "EliminationTry", "ad", "ad", 0, 0, 8},
    {Elimination, "Elimination", "ad", "d", 0, 0, 12},
    {LastTwo, "LastTwo", "wl", "wl", 0, 0, 3},
    {Opening, "Opening", "12345678FSXY", "", 0, kLastBout, 2},
    {TitleOpening, "TitleOpening", "c", "", 0, kTitleStakes - 1, 3},
    {FeudOpening, "FeudOpening", "FS", "", 0, kBoils, 3},
    {DebutOpening, "DebutOpening", "t", "t", 0, 0, 3},
    {ChampionNote, "ChampionNote", "c", "c", 0, 0, 6},
    {Closer, "Closer", "wljWL", "", 0, kLastBout, 2},
    {DoubleDq, "DoubleDq", "", "", 0, 0, 3},
    {SinglesFinish, "SinglesFinish", "wl12op", "", kClean, kDqThroughInterference, 3,
     kNotInSingles},
    {TagFinish, "TagFinish", "wlkjWLFSopO", "", kClean, kDqThroughInterference, 3},
    {CheapFinish, "CheapFinish", "wlWL", "wl", 0, 0, 3},
    {SideDraw, "SideDraw", "FS", "", 0, 0, 3},
    {SideShow, "SideShow", "wlWLFS", "", 0, 0, 2},
    {TurnCosts, "TurnCosts", "tlwL", "tlw", 0, 0, 3},
    {TurnWalksOut, "TurnWalksOut", "tvw", "tw", 0, 0, 3},
    {TurnAfterWin, "TurnAfterWin", "tvw", "tv", 0, 0, 3},
    {TurnDraw, "TurnDraw", "tvFS", "tv", 0, 0, 3},
    {SinglesAftermath, "SinglesAftermath", "wl12opvu", "", 2, after1::kFailedSave, 2},
    {TagAftermath, "TagAftermath", "wlkjWLFS1234opqrOQVU", "", 2, after2::kRunInOnBoth, 2},
    {TitleEnding, "TitleEnding", "cC", "", 0, kTitleOutcomes - 1, 3},
    {FeudEnding, "FeudEnding", "FS", "", 0, kFeudIsOver, 3},
    {PurposeEnding, "PurposeEnding", "tFS", "", 0, kPurposesTold - 1, 3},
    {Turn, "Turn", "t", "t", 0, kTurnsTold - 1, 3},
    {TalkOpening, "TalkOpening", "Tm", "T", kSingleTalk, kManagedTeamTalk, 3},
    {Speech, "Speech", "TmV", "", 0, TalkBand(kManagedTeamTalk, kTalkNone), 2},
    {TalkClosing, "TalkClosing", "TV", "", kVerbalAttack, kTalkNone, 2},
    {AngleText, "AngleText", "1234FSOG", "", 1, 79, 2},
};

constexpr bool InOrder() {
  int number = 0;
  for (const FamilyRow& row : kRows)
    if (static_cast<int>(row.Of) != number++) return false;
  return number == kFamilies;
}
static_assert(InOrder());

}  // namespace

std::span<const FamilyRow> AllFamilies() {
  return kRows;
}

const FamilyRow& RowOf(Family family) {
  return kRows[static_cast<int>(family)];
}

}  // namespace grapplemont
