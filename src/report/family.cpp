#include "report/family.h"

#include <iterator>

#include "records/angles.h"
#include "records/fields/enumnames.h"
#include "report/recalled.h"
#include "report/tells.h"

namespace grapplemont {

namespace {

using enum Family;

template <auto First, auto Last>
std::string NameIn(int band) {
  return std::string(EnumNameIn<First, Last>(band));
}

/// Bands that are the values of an enumeration.
template <auto First, auto Last>
constexpr BandRange Named(std::uint32_t skips = 0) {
  return {First, Last, NameIn<First, Last>, skips};
}

std::string BoutName(int band) {
  const MatchTypeRow& row = kMatchTypes[band];
  return NameIn<kSingles, kSpecial>(row.Style) + ", " + std::string(row.Says);
}

std::string SpeechName(int band) {
  return NameIn<kSingleTalk, kManagedTeamTalk>(band / kTalkNone + kSingleTalk) + ", " +
         NameIn<kVerbalAttack, kTalkNone>(band % kTalkNone + kVerbalAttack);
}

std::string AngleName(int band) {
  return std::to_string(band) + " " + std::string(FindAngle(band)->Says);
}

std::string VerdictName(int band) {
  return "up to " + std::to_string(kVerdictsUpTo[band]);
}

constexpr BandRange kOne = {};
constexpr BandRange kSkills = Named<kBrawlLow, kSpeedHigh>();
constexpr BandRange kBouts = {0, static_cast<int>(std::size(kMatchTypes)) - 1, BoutName};
constexpr BandRange kSpeeches = {0, TalkBand(kManagedTeamTalk, kTalkNone), SpeechName};
constexpr BandRange kTellings = {static_cast<int>(Tells::WorksFor),
                                 static_cast<int>(Tells::BeforeAnnals),
                                 NameIn<Tells::WorksFor, Tells::BeforeAnnals>};
constexpr BandRange kVerdicts = {0, static_cast<int>(std::size(kVerdictsUpTo)) - 1, VerdictName};
constexpr std::uint32_t kNotInSingles = 1U << kMiscommunication | 1U << kPartnerTurns;
constexpr bool kExact = true;

// Family, file, parts its lines may name, parts each of them names, bands, lines a band, exactly as
// many, the only voice that has it, the bands that judge.
constexpr FamilyRow kRows[] = {
    {OffenceA, "offence", "ad", "a", kSkills, 10, kExact},
    {OffenceB, "offence", "ad", "a", kSkills, 10, kExact},
    {OffenceC, "offence", "ad", "a", kSkills, 10, kExact},
    {OffenceD, "offence", "ad", "a", kSkills, 10, kExact},
    {OffenceE, "offence", "ad", "a", kSkills, 10, kExact},
    {Counter, "bouts", "ad", "a", kOne, 30, kExact},
    {TwoCount, "bouts", "", "", kOne, 3, kExact},
    {NearFall, "bouts", "d", "", kOne, 5, kExact},
    {ThreeCount, "bouts", "wl", "w", kOne, 8},
    {TapOut, "bouts", "wl", "l", kOne, 6},
    {PinNoRef, "bouts", "", "", kOne, 6},
    {PutDown, "bouts", "ad", "ad", kOne, 6},
    {RefBump, "bouts", "ad", "", kOne, 6, kExact},
    {TagOut, "bouts", "ab", "ab", kOne, 12},
    {DoubleTeam, "bouts", "abd", "ab", kOne, 6, kExact},
    {BreakIn, "bouts", "ad", "a", kOne, 10},
    {LadderSpot, "bouts", "ad", "a", kOne, 8},
    {WeaponSpot, "bouts", "ad", "a", kOne, 10},
    {TableSpot, "bouts", "ad", "a", kOne, 8, false, kLamplighter},
    {Spot, "bouts", "ad", "a", Named<kHoldSpot, kTlcSpot>(), 8},
    {FinishImpact, "bouts", "ad", "a", kOne, 8},
    {FinishHold, "bouts", "ad", "a", kOne, 6},
    {FinishTopRope, "bouts", "ad", "a", kOne, 6},
    {FinishGround, "bouts", "ad", "a", kOne, 6},
    {IronFall, "bouts", "ad", "a", kOne, 6},
    {IronSum, "bouts", "wl", "w", kOne, 3},
    {EliminatedOne, "bouts", "ad", "d", kOne, 6},
    {EliminatedTeam, "bouts", "adX", "dX", kOne, 4},
    {SurvivorOut, "bouts", "ad", "d", kOne, 8},
    {TurnReturns, "finishes", "tlw", "tlw", kOne, 2},
    {Survivors, "bouts", "Z", "Z", kOne, 3},
    {RumbleStart, "bouts", "ad", "ad", kOne, 2},
    {RumbleEntry, "bouts", "a", "a", kOne, 12},
    {EliminationTry, "bouts", "ad", "ad", kOne, 8},
    {Elimination, "bouts", "ad", "d", kOne, 12},
    {LastTwo, "bouts", "wl", "wl", kOne, 3},
    {Beat, "bouts", "ad", "", Named<kComeback, kRefereeBack>(), 4},
    {Opening, "bouts", "12345678FSXY", "", kBouts, 2},
    {TitleOpening, "finishes", "c", "", Named<kDefended, kChampionAway>(), 3},
    {FeudOpening, "finishes", "FS", "", Named<kSimmers, kBoils>(), 3},
    {FeudPartners, "finishes", "FS", "FS", kOne, 3},
    {DebutOpening, "finishes", "t", "t", kOne, 3},
    {ChampionNote, "finishes", "c", "c", kOne, 6},
    {Closer, "bouts", "wljWL", "", kBouts, 2},
    {DoubleDq, "finishes", "", "", kOne, 3},
    {SinglesFinish, "finishes", "wl12op", "", Named<kClean, kDqThroughInterference>(kNotInSingles),
     3},
    {TagFinish, "finishes", "wlkjWLFSopO", "", Named<kClean, kDqThroughInterference>(), 3},
    {CheapFinish, "finishes", "wlWL", "wl", kOne, 3},
    {SideDraw, "finishes", "FS", "", kOne, 3},
    {SideShow, "finishes", "wlWLFS", "", kOne, 2},
    {TurnCosts, "finishes", "tlwL", "tlw", kOne, 3},
    {TurnWalksOut, "finishes", "tvw", "tw", kOne, 3},
    {TurnAfterWin, "finishes", "tvw", "tv", kOne, 3},
    {TurnDraw, "finishes", "tvFS", "tv", kOne, 3},
    {SinglesAftermath, "finishes", "wl12opvu", "",
     Named<after1::kAttacksReferee, after1::kFailedSave>(), 2},
    {TagAftermath, "finishes", "wlkjWLFS1234opqrOQVU", "",
     Named<after2::kRevenge, after2::kRunInOnBoth>(), 2},
    {TitleEnding, "finishes", "cC", "", Named<kRetained, kWonInAbsence>(), 3},
    {FeudEnding, "finishes", "FS", "", Named<kFeudGoesOn, kFeudIsOver>(), 3},
    {PurposeEnding, "finishes", "tFS", "", Named<kGoodMatchTold, kRunInDebutTold>(), 3, false,
     kEveryVoice, (1U << kPurposesTold) - 1},
    {Turn, "finishes", "t", "t", Named<kTurnsHeel, kTooSoon>(), 3},
    {PastOpening, "memory", "FSm", "", Named<kMetFirst, kYearRecalled>(), 8},
    {PastEnding, "memory", "FSm", "", Named<kPaidBack, kYearStands>(), 8},
    {Interlude, "beats", "adwlcFS", "", Named<kWalkIn, kAfterBell>(), 10, false, kEveryVoice,
     1U << kAfterBell},
    {Squash, "beats", "wl", "", Named<kSquashBegins, kSquashDone>(), 6},
    {TalkOpening, "talk", "Tm", "T", Named<kSingleTalk, kManagedTeamTalk>(), 3},
    {Speech, "talk", "TmV", "", kSpeeches, 2},
    {SpeechAgain, "talk", "T", "T", kOne, 3},
    {TalkClosing, "talk", "TV", "", Named<kVerbalAttack, kTalkNone>(), 2},
    {TalkPast, "memory", "FSm", "", Named<kHurtAndBack, kHitAgain>(), 8},
    {AngleText, "angles", "1234FSOG", "", {1, kAngles, AngleName}, 2},
    {Chapter, "chronicle", "FSXG", "", kTellings, 6},
    {Verdict, "verdicts", "", "", kVerdicts, 2, false, kTolland},
    {NoVerdict, "verdicts", "", "", kOne, 1, kExact, kTolland},
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

std::string HeadingOf(Family family) {
  return NameIn<OffenceA, NoVerdict>(static_cast<int>(family));
}

std::string HeadingOf(Family family, int band) {
  const auto name = RowOf(family).Bands.Name;
  return name ? HeadingOf(family) + ", " + name(band) : HeadingOf(family);
}

}  // namespace grapplemont
