#pragma once

#include <array>

#include "records/fields/field.h"

namespace grapplemont {

/// Annal.Kind.
enum AnnalKind {
  kAnnalsBegin = 1,  // Number: the version of the file
  kAnnalFounded,     // Number: the size class
  kAnnalClosed,
  kAnnalBought,  // Other: who bought it
  kAnnalRisen,
  kAnnalFallen,
  kAnnalOwner,  // Name: the new owner
  kAnnalSigned,
  kAnnalStolen,  // Other: whose they were
  kAnnalLetGo,
  kAnnalLeft,
  kAnnalRetired,
  kAnnalHurt,     // What: the injury; Number: months
  kAnnalRenamed,  // Other: the name until then
  kAnnalTeamed,   // What: the team
  kAnnalParted,
  kAnnalStable,  // What: the stable; Name: who leads it, if anybody
  kAnnalJoined,
  kAnnalFeud,
  kAnnalFeudOver,  // Name: who won; Number and Against: matches won; Days: how long
  kAnnalFeudCold,  // ended without a last match
  kAnnalTitle,     // What: the Title that was made
  kLastAnnal = kAnnalTitle
};

/// The version of the file that the present program writes.
inline constexpr int kAnnalsVersion = 1;

/// Annal.Sex, of those in Name.
enum AnnalSex { kNobodysSex = 0, kMan, kWoman, kSeveral };

/// An event of the world that is kept for good: a record of annals.dat. The first one says since
/// when events are kept. Names stand there as they were.
struct Annal {
  Date On;
  Word Kind;
  Word Promotion;                 // uid; 0 nobody's; it may be gone
  Text<6> House;                  // its initials then
  std::array<Word, 2> Who, Whom;  // uids; 0 for nobody and for who has gone
  Word Sex;                       // of Who
  Text<25> Name, Other;           // what Who and Whom were called
  Text<40> What;                  // a promotion's full name, a Title, a team, a stable, an injury
  Word Number, Against, Days;
};
GM_RECORD(Annal, 124);
GM_GROWS(Annal);

}  // namespace grapplemont
