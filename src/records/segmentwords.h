#pragma once

#include <span>

#include "records/fields/field.h"

// The vocabulary of Segments. The codes stand in match.dat; gaps and disorder among them are part
// of the format.

namespace grapplemont {

/// Segment.Kind.
enum SegmentKind { kEmptySegment = 0, kMatch, kInterview, kAngle };

/// Segment.Loser of a match without one: the result has been chosen, and nobody takes the fall.
inline constexpr int kNoLoser = 1;

/// Segment.Style of a match.
enum MatchStyle {
  kSingles = 1,
  kTag,
  kThreeWay,
  kThreeTeams,
  kFourWay,
  kFourTeams,
  kThreeOnThree,
  kFourOnFour,
  kSpecial
};

/// How a style's workers stand: side by side, each side's members next to one another.
struct MatchStyleRow {
  int Code;
  std::string_view Says;
  int Sides;
  int PerSide;
};
inline constexpr MatchStyleRow kMatchStyles[] = {
    {kSingles, "1 vs 1", 2, 1},           {kTag, "2 vs 2", 2, 2},
    {kThreeWay, "1 vs 1 vs 1", 3, 1},     {kThreeTeams, "2 vs 2 vs 2", 3, 2},
    {kFourWay, "1 vs 1 vs 1 vs 1", 4, 1}, {kFourTeams, "2 vs 2 vs 2 vs 2", 4, 2},
    {kThreeOnThree, "3 vs 3", 2, 3},      {kFourOnFour, "4 vs 4", 2, 4},
    {kSpecial, "Special", 30, 1},  // 30, 20 or 10 by type
};

/// A match type, in the order in which lists show them, and what the promotion must be for it.
struct MatchTypeRow {
  int Style;
  int Code;
  std::string_view Says;
  int RiskOver = -1;  // Promotion.Risk must be above it
  int SizeUnder = 7;  // Promotion.Size must be below it
};
inline constexpr MatchTypeRow kMatchTypes[] = {
    {kSingles, 1, "Singles"},
    {kSingles, 4, "Hardcore", 30},
    {kSingles, 2, "Submission", 20},
    {kSingles, 9, "Ladder", 45},
    {kSingles, 10, "Tables", 55},
    {kSingles, 5, "Cage", 30, 5},
    {kSingles, 6, "Texas Death", 30},
    {kSingles, 7, "Last Man Standing", 35},
    {kSingles, 8, "Falls Count Anywhere", 35},
    {kSingles, 3, "Iron Man", 10},
    {kSingles, 11, "Bra and Panties", 65},
    {kSingles, 12, "I Quit", 30},
    {kSingles, 14, "Inferno", 65, 5},
    {kSingles, 15, "Hell In A Cell", 60, 3},
    {kSingles, 16, "High Incident", 70, 4},
    {kSingles, 13, "First Blood", 60},
    {kSingles, 17, "Barbed Wire", 80},
    {kSingles, 18, "Death Match", 95},
    {kSingles, 19, "Buck Naked", 99},
    {kTag, 1, "Tag"},
    {kTag, 2, "Hardcore", 30},
    {kTag, 3, "Cage", 30, 5},
    {kTag, 4, "Ladder", 45},
    {kTag, 5, "Tables", 55},
    {kThreeWay, 1, "Elimination"},
    {kThreeWay, 2, "Triangle"},
    {kThreeWay, 3, "Hardcore", 30},
    {kThreeWay, 4, "Cage", 30, 5},
    {kThreeTeams, 1, "Elimination"},
    {kThreeTeams, 2, "Triangle"},
    {kThreeTeams, 3, "Ladder", 55},
    {kThreeTeams, 4, "TLC", 65},
    {kFourWay, 1, "Elimination"},
    {kFourWay, 2, "4 Corners"},
    {kFourTeams, 1, "Elimination"},
    {kFourTeams, 2, "TLC", 65},
    {kThreeOnThree, 1, "Tag"},
    {kFourOnFour, 1, "Tag"},
    {kFourOnFour, 2, "Survivor"},
    {kSpecial, 1, "Royal Rumble"},
    {kSpecial, 2, "20 Man Battle Royal"},
    {kSpecial, 3, "10 Man Battle Royal"},
};

/// Segment.MatchType of kSingles.
enum SinglesType {
  kPlainSingles = 1,
  kSubmission,
  kIronMan,
  kHardcore,
  kCage,
  kTexasDeath,
  kLastManStanding,
  kFallsCountAnywhere,
  kLadder,
  kTables,
  kBraAndPanties,
  kIQuit,
  kFirstBlood,
  kInferno,
  kHellInACell,
  kHighIncident,
  kBarbedWire,
  kDeathMatch,
  kBuckNaked
};
/// Segment.MatchType of the other styles, where a rule needs them.
enum OtherType {
  kPlainTag = 1,
  kTagHardcore,
  kTagCage,
  kTagLadder,
  kTagTables,
  kElimination = 1,
  kTriangle = 2,
  kThreeTeamsLadder = 3,
  kThreeTeamsTlc = 4,
  kFourTeamsTlc = 2,
  kPlainEightMan = 1,
  kSurvivor = 2,
  kRoyalRumble = 1,
  kTwentyMan = 2,
  kTenMan = 3
};

/// A code with what a list says of it and what the wizard's summary says behind "Finish = ",
/// "Aftermath = " or "Purpose = ". In both, names in braces stand for people of the Segment:
/// {W} Winner, {L} Loser, {P} the Loser's partner, {1} to {8} a worker by his place, {O1} to {O4}
/// the run-ins, {12} and {34} the first and the second team, {WT} and {LT} the winning and the
/// losing team, {AT} the team that the run-ins attacked, {OO} the run-ins Other1 and Other2
/// together, {PP} Other3 and Other4.
struct Phrase {
  int Code;
  std::string_view Says;
  std::string_view Summary;
};
using Phrases = std::span<const Phrase>;

/// Segment.Finish of styles 1 and 2.
enum Finish {
  kClean = 1,
  kCountOut,
  kInterference,
  kBotchedInterference,
  kCheating,
  kDoubleDq,
  kDoubleCountOut,
  kNoContest,
  kSportsEntertainment,
  kSickBump,
  kMiscommunication,
  kPartnerTurns,
  kDqThroughInterference
};
inline constexpr Phrase kSinglesFinishes[] = {
    {kClean, "{W} cleanly", "Clean"},
    {kCountOut, "{W} by count out \\ DQ", "Count out \\ DQ"},
    {kInterference, "{W} by interference", "Outside Interference"},
    {kBotchedInterference, "{W} by botched interference", "Botched Interference"},
    {kCheating, "{W} by cheating", "Cheating"},
    {kDoubleDq, "Double DQ", "Double DQ"},
    {kDoubleCountOut, "Double count out", "Double Count Out"},
    {kNoContest, "No contest through interference", "No Contest Through Interference"},
    {kSportsEntertainment, "Sports entertainment finish (tm)", "Sports Entertainment Finish (tm)"},
    {kSickBump, "Sick Bump", "Sick Bump"},
    {kDqThroughInterference, "{W} by DQ through interference", "DQ Through Interference"},
};
inline constexpr Phrase kTagFinishes[] = {
    {kClean, "{WT} cleanly", "Clean"},
    {kCountOut, "By count out \\ DQ", "Count out \\ DQ"},
    {kInterference, "{WT} by interference", "Outside Interference"},
    {kBotchedInterference, "{WT} by botched interference", "Botched Interference"},
    {kCheating, "{WT} by cheating", "Cheating"},
    {kDoubleDq, "Double DQ", "Double DQ"},
    {kDoubleCountOut, "Double count out", "Double Count Out"},
    {kNoContest, "No contest through interference", "No Contest Through Interference"},
    {kSportsEntertainment, "Sports entertainment finish (tm)", "Sports Entertainment Finish (tm)"},
    {kSickBump, "Sick Bump", "Sick Bump"},
    {kMiscommunication, "Opponent mis-communication", "Opponent Mis-Communication"},
    {kPartnerTurns, "{P} turns on partner", "{L} Gets Backstabbed"},
    {kDqThroughInterference, "{WT} by DQ through interference", "DQ Through Interference"},
};

/// Segment.Finish of styles 7 and 8: from kFirstTurns on, one for each worker who turns on his
/// side.
inline constexpr int kCheapVictory = 2;
inline constexpr int kFirstTurns = 3;
inline constexpr Phrase kSixManFinishes[] = {
    {1, "{W} cleanly", "Clean"},
    {kCheapVictory, "{W} cheap victory", "Cheap"},
    {3, "{1} turns", "{1} turns"},
    {4, "{2} turns", "{2} turns"},
    {5, "{3} turns", "{3} turns"},
    {6, "{4} turns", "{4} turns"},
    {7, "{5} turns", "{5} turns"},
    {8, "{6} turns", "{6} turns"},
    {9, "Double DQ", "Double DQ"},
    {10, "Double count out", "Double Count Out"},
    {11, "Sports entertainment finish (tm)", "Sports Entertainment Finish (tm)"},
};
inline constexpr Phrase kEightManFinishes[] = {
    {1, "{W} cleanly", "Clean"},
    {kCheapVictory, "{W} cheap victory", "Cheap"},
    {3, "{1} turns", "{1} turns"},
    {4, "{2} turns", "{2} turns"},
    {5, "{3} turns", "{3} turns"},
    {6, "{4} turns", "{4} turns"},
    {7, "{5} turns", "{5} turns"},
    {8, "{6} turns", "{6} turns"},
    {9, "{7} turns", "{7} turns"},
    {10, "{8} turns", "{8} turns"},
    {11, "Double DQ", "Double DQ"},
    {12, "Double count out", "Double Count Out"},
    {13, "Sports entertainment finish (tm)", "Sports Entertainment Finish (tm)"},
};

/// Segment.Aftermath of style 1.
namespace after1 {
enum Code {
  kNothing = 1,
  kAttacksReferee,
  kTantrum,
  kRunInOnFirst,
  kRunInOnSecond,
  kRunInOnBoth,
  kRevengeAttack,
  kBeatDown,
  kGetsRevenge,
  kTwoOnLoser,
  kTwoOnWinner,
  kAttacksRunIn,
  kRunInDestroys,
  kTwoOnFirst,
  kTwoOnSecond,
  kTwoOnRunIn,
  kThreeWayBrawl,
  kLoserRuns,
  kHandshake,
  kCheapShot,
  kFirstRefusesHand,
  kSecondRefusesHand,
  kBrawlToTheBack,
  kWinnerRuns,
  kAssaultGoesOn,
  kSave,
  kFailedSave
};
}
inline constexpr Phrase kSinglesAftermaths[] = {
    {1, "Nothing", "Nothing"},
    {2, "{L} attacks the referee", "{L} attacks the referee"},
    {3, "{L} has a temper tantrum", "{L} has a temper tantrum"},
    {4, "Run in attack on {1}", "Run in attack on {1}"},
    {5, "Run in attack on {2}", "Run in attack on {2}"},
    {6, "Run in attack on both competitors", "Run in attack on both competitors"},
    {7, "{L} revenge attack", "{L} revenge attack"},
    {8, "{W} does a beat-down", "{W} does a beat-down"},
    {9, "{L} gets revenge", "{L} gets revenge"},
    {10, "Two-on-one on {L}", "Two-on-one on {L}"},
    {11, "Two-on-one on {W}", "Two-on-one on {W}"},
    {12, "{L} attacks {O1}", "{L} attacks {O1}"},
    {13, "{O1} destroys everyone", "{O1} destroys everyone"},
    {14, "Two-on-one on {1}", "Two-on-one on {1}"},
    {15, "Two-on-one on {2}", "Two-on-one on {2}"},
    {16, "Two-on-one on {O1}", "Two-on-one on {O1}"},
    {17, "Three way brawl", "Three way brawl"},
    {18, "{L} runs away", "{L} runs away"},
    {19, "Handshake", "Handshake"},
    {20, "{L} cheap shots after a handshake", "{L} cheap shots after a handshake"},
    {21, "{1} refuses a handshake", "{1} refuses a handshake"},
    {22, "{2} refuses a handshake", "{2} refuses a handshake"},
    {23, "Brawl to the back", "Brawl to the back"},
    {24, "{W} runs away", "{W} runs away"},
    {25, "{O1} continues assault", "{O1} continues assault"},
    {26, "Run in for the save", "Run in for the save"},
    {27, "Run in for failed save attempt", "Run in for failed save attempt"},
};

/// Segment.Aftermath of style 2.
namespace after2 {
enum Code {
  kNothing = 1,
  kRevenge,
  kBeatenDown,
  kFirstTurns,
  kSecondTurns,
  kThirdTurns,
  kFourthTurns,
  kBrawling,
  kFirstBeatsSecond,
  kSecondBeatsFirst,
  kAssaultGoesOn,
  kThreeOnTwo,
  kAttackRunIn,
  kAttackRunIns,
  kThreeTeamBrawl,
  kLosersArgue,
  kThreeOnOne,
  kSave,
  kFailedSave,
  kBrawlToTheBack,
  kRunInOnFirst,
  kRunInOnSecond,
  kRunInOnThird,
  kRunInOnFourth,
  kRunInOnFirstTeam,
  kRunInOnSecondTeam,
  kRunInOnBoth
};
}
inline constexpr Phrase kTagAftermaths[] = {
    {1, "Nothing", "Nothing"},
    {2, "{LT} get revenge", "Revenge Attack"},
    {3, "{LT} get beaten down", "Losers Get Beaten Down"},
    {4, "{1} turns", "{1} turns"},
    {5, "{2} turns", "{2} turns"},
    {6, "{3} turns", "{3} turns"},
    {7, "{4} turns", "{4} turns"},
    {8, "Continue brawling", "Continued Brawling"},
    {9, "{12} beat-down {34}", "{12} beat-down {34}"},
    {10, "{34} beat-down {12}", "{34} beat-down {12}"},
    {11, "{OO} continue assault", "{OO} continue their assault"},
    {12, "Three-on-two on {AT}", "Three-On-Two Beating"},
    {13, "{LT} attack {O1}", "Revenge Attack On {O1}"},
    {14, "{LT} attack {OO}", "Revenge Attack On {OO}"},
    {15, "Three team brawl", "Three team brawl"},
    {16, "Losers Argue", "Losers Argue"},
    {17, "Three-on-one assault", "Three-On-One Assault"},
    {18, "Run in for the save", "Run in for the save"},
    {19, "Run in for failed save attempt", "Run in for failed save attempt"},
    {20, "Brawl to the back", "Brawl to the back"},
    {21, "Run in attack on {1}", "Run in attack on {1}"},
    {22, "Run in attack on {2}", "Run in attack on {2}"},
    {23, "Run in attack on {3}", "Run in attack on {3}"},
    {24, "Run in attack on {4}", "Run in attack on {4}"},
    {25, "Run in attack on {12}", "Run in attack on {12}"},
    {26, "Run in attack on {34}", "Run in attack on {34}"},
    {27, "Run in attack on both teams", "Run in attack on both teams"},
};

/// Segment.Purpose of style 1.
namespace purpose1 {
enum Code {
  kNone = 1,
  kGoodMatch,
  kPutWinnerOver,
  kEndFeud,
  kTurnRunIn,
  kPutRunInOver,
  kContinueFeud,
  kPutLoserOver,
  kPutBothOver,
  kTurnWinner,
  kTurnLoser,
  kEyeCandy,
  kDebutFirst,
  kDebutSecond,
  kDebutRunIn,
  kDebutRunIn2 = 30,
  kTurnRunIn2,
  kPutRunIn2Over
};
}
inline constexpr Phrase kSinglesPurposes[] = {
    {1, "None", "None"},
    {2, "Put on a good match", "To Put On A Good Match"},
    {3, "Put {W} over", "Put {W} over"},
    {4, "End feud", "End feud"},
    {5, "Turn {O1}", "Turn {O1}"},
    {6, "Put {O1} over", "Put {O1} over"},
    {7, "Continue feud", "Continue feud"},
    {8, "Put {L} over", "Put {L} over"},
    {9, "Put both workers over", "Put both workers over"},
    {10, "Turn {W}", "Turn {W}"},
    {11, "Turn {L}", "Turn {L}"},
    {12, "Eye Candy", "Eye Candy"},
    {13, "Debut {1}", "Debut {1}"},
    {14, "Debut {2}", "Debut {2}"},
    {15, "Debut {O1}", "Debut {O1}"},
    {30, "Debut {O2}", "Debut {O2}"},
    {31, "Turn {O2}", "Turn {O2}"},
    {32, "Put {O2} over", "Put {O2} over"},
};

/// Segment.Purpose of style 2.
namespace purpose2 {
enum Code {
  kNone = 1,
  kPutFirstTeamOver,
  kPutSecondTeamOver,
  kGoodMatch,
  kContinueFeud,
  kEndFeud,
  kPutBothOver,
  kPutWorker1Over,
  kPutWorker2Over,
  kPutWorker3Over,
  kPutWorker4Over,
  kTurnWorker1,
  kTurnWorker2,
  kTurnWorker3,
  kTurnWorker4,
  kTurnFirstTeam,
  kTurnSecondTeam,
  kTurnOther1,
  kTurnOthers12,
  kPutOther1Over,
  kPutOthers12Over,
  kDebutFirstTeam,
  kDebutSecondTeam,
  kDebutWorker1,
  kDebutWorker2,
  kDebutWorker3,
  kDebutWorker4,
  kDebutOthers12,
  kDebutOther1,
  kDebutOther2,
  kTurnOther2 = 33,
  kTurnOther3,
  kTurnOther4,
  kTurnOthers34,
  kPutOther3Over,
  kPutOthers34Over,
  kDebutOther3,
  kDebutOther4,
  kDebutOthers34
};
}
inline constexpr Phrase kTagPurposes[] = {
    {1, "None", "None"},
    {2, "Put {12} over", "Put {12} over"},
    {3, "Put {34} over", "Put {34} over"},
    {4, "Put on a good match", "Put on a good match"},
    {5, "Continue Feud", "Continue Feud"},
    {6, "End Feud", "End Feud"},
    {7, "Put both teams over", "Put both teams over"},
    {8, "Put {1} over", "Put {1} over"},
    {9, "Put {2} over", "Put {2} over"},
    {10, "Put {3} over", "Put {3} over"},
    {11, "Put {4} over", "Put {4} over"},
    {12, "Turn {1}", "Turn {1}"},
    {13, "Turn {2}", "Turn {2}"},
    {14, "Turn {3}", "Turn {3}"},
    {15, "Turn {4}", "Turn {4}"},
    {16, "Turn {12}", "Turn {12}"},
    {17, "Turn {34}", "Turn {34}"},
    {18, "Turn {O1}", "Turn {O1}"},
    {19, "Turn {OO}", "Turn {OO}"},
    {20, "Put {O1} over", "Put {O1} over"},
    {21, "Put {OO} over", "Put {OO} over"},
    {22, "Debut {12}", "Debut {12}"},
    {23, "Debut {34}", "Debut {34}"},
    {24, "Debut {1}", "Debut {1}"},
    {25, "Debut {2}", "Debut {2}"},
    {26, "Debut {3}", "Debut {3}"},
    {27, "Debut {4}", "Debut {4}"},
    {28, "Debut {OO}", "Debut {OO}"},
    {29, "Debut {O1}", "Debut {O1}"},
    {30, "Debut {O2}", "Debut {O2}"},
    {33, "Turn {O2}", "Turn {O2}"},
    {34, "Turn {O3}", "Turn {O3}"},
    {35, "Turn {O4}", "Turn {O4}"},
    {36, "Turn {PP}", "Turn {PP}"},
    {37, "Put {O3} over", "Put {O3} over"},
    {38, "Put {PP} over", "Put {PP} over"},
    {39, "Debut {O3}", "Debut {O3}"},
    {40, "Debut {O4}", "Debut {O4}"},
    {41, "Debut {PP}", "Debut {PP}"},
};

/// Segment.Style of an interview. In style 4 the manager is Worker1 and the team Worker2 and
/// Worker3.
enum InterviewStyle { kSingleTalk = 1, kTeamTalk, kManagedTalk, kManagedTeamTalk };
/// How an interview's people stand in Segment.Worker: so many speakers, then so many targets.
struct InterviewStyleRow {
  int Code;
  std::string_view Says;
  int Speakers;
  int Targets;
};
inline constexpr InterviewStyleRow kInterviewStyles[] = {
    {kSingleTalk, "Single Worker", 1, 1},
    {kTeamTalk, "Tag Team", 2, 2},
    {kManagedTalk, "Single Worker With Manager", 2, 1},
    {kManagedTeamTalk, "Tag Team With Manager", 3, 2},
};
enum InterviewPurpose {
  kVerbalAttack = 1,
  kHypeMatch,
  kTalkTurn,
  kTalkContinueFeud,
  kSelfPromotion,
  kTalkNone
};
inline constexpr Term kInterviewPurposes[] = {{kVerbalAttack, "", "Verbal Attack"},
                                              {kHypeMatch, "", "Hype Upcoming Match"},
                                              {kTalkTurn, "", "Turn"},
                                              {kTalkContinueFeud, "", "Continue Feud"},
                                              {kSelfPromotion, "", "Self Promotion"},
                                              {kTalkNone, "", "None"}};

}  // namespace grapplemont
