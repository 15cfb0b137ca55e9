#pragma once

#include <array>
#include <span>
#include <string_view>

#include "records/fields/fields.h"

// The 79 angles: how each is called, when it is offered, who is cast in it.

namespace grapplemont {

/// Segment.Style of the angles that rules single out.
enum AngleNumber {
  kAmbush = 3,
  kBetterEnemies = 4,
  kFaceTurnAngle = 5,
  kHeelTurnAngle = 6,
  kManagementIssues = 7,
  kGetTheTable = 12,
  kStripping = 15,
  kDivaFever = 19,
  kMotivation = 34,
  kWalking = 36,
  kManagerialDebut = 38,
  kMatchMaking = 42,
  kImpression = 45,
  kManagersSurprise = 49,
  kStableInduction = 50,
  kStableKickOut = 51,
  kStableAttack = 52,
  kStableDebut = 53,
  kTakingOver = 54,
  kStableDuo = 55,
  kTeamFaceTurn = 56,
  kTeamHeelTurn = 57,
  kWorkerVideo = 60,
  kTeamVideo = 61,
  kStableVideo = 62,
  kStalkerReveal = 63,
  kStalkerCaught = 64,
  kWorkerDebutVideo = 65,
  kTeamDebutVideo = 66,
  kCelebrity = 70,
  kAwardSingles = 71,
  kAwardTag = 72,
  kRejectedProposal = 74,
  kAbduction = 75,
  kKidnap = 76,
  kCrucifixion = 77,
  kBlackWedding = 78,
  kBloodBath = 79
};
inline constexpr int kAngles = 79;
/// Of the Segment's workers, those an angle may use.
inline constexpr int kAnglePlaces = 4;

/// Who may be cast in a role.
enum class Casting {
  Plain,         // everybody who may be booked
  Commissioner,  // the one in office
  Managers,
  DebutManagers,  // managers who have not been seen yet
  Turners,        // with a turn pending
  Women,
  Men,
  Debuts,         // not been seen yet
  Stables,        // goes to Segment.Text
  SinglesTitles,  // vacant; goes to Segment.TitleName
  TagTitles
};

/// One box of the cast.
struct Role {
  std::string_view Caption = {};  // empty: the box is not used
  Casting From = Casting::Plain;
  int Place = 0;  // of Segment.Worker, from 1; 0 for a stable or a Title
  bool Optional = false;
};

struct Angle {
  int Number;
  std::string_view Says;
  std::string_view Sheet;  // the word on the sheet, a blank behind it
  int RiskOver;            // Promotion.Risk must be above it; -1 for any
  int SizeUnder;           // Promotion.Size must be below it; 7 for any
  bool NeedsCommissioner;
  std::string_view Date;  // "25 December": on this day alone
  std::array<Role, kAnglePlaces> Roles;
  std::string_view Text;
  std::string_view Summary = {};  // what the wizard's summary calls it, where it differs from Says
};

/// In the order of their numbers.
std::span<const Angle> AllAngles();
/// nullptr for a number that is none.
const Angle* FindAngle(int number);
/// The sheet and the summary tell these by their stable: 62, 75, 76, 77 and 79.
bool IsToldByStable(int number);
/// Whether one of its roles is a stable.
bool HasStableRole(const Angle& angle);

}  // namespace grapplemont
