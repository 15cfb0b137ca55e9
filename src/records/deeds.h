#pragma once

#include "records/field.h"
#include "records/vocabulary.h"

namespace grapplemont {

class World;
struct Promotion;

/// Deed.Kind.
enum DeedKind {
  kDeedSigned = 1,
  kDeedStolen,
  kDeedFired,
  kDeedLeft,
  kDeedRetiring,
  kDeedRetired,
  kDeedInjured,
  kDeedOnAir,
  kDeedRenewed,
  kDeedOffAir,
  kDeedFounded,
  kDeedMissed,
  kDeedWarned,
  kDeedClosed,
  kDeedBought,
  kDeedRisen,
  kDeedFallen,
  kDeedOwner,
  kDeedOwnerQuit,
  kDeedTvHeld,
  kDeedEventHeld,
  kDeedCalledOff
};

/// Something that the wrestling world did in public, the player's promotion or another. A record of
/// deeds.dat, appended and never changed; names are kept as they were, since people and promotions
/// go.
struct Deed {
  Date On;
  Word Kind;
  Word Promotion;  // uid; 0 nobody's; it may be gone
  Text<6> House;   // its initials then
  Text<40> Who;    // a worker, an owner, a show, or the promotion's full name
  Text<40> Other;  // whom he was stolen from, the network, the injury
  RangedWord<-32768, 32767>
      Number;  // months hurt, weeks on the air, the size class reached, a rival's roster's draw
  Hundredths Viewers;                  // hundredths: of a show that was held
  RangedLong<0, kMostDollars> People;  // its crowd
};

static_assert(sizeof(Deed) == 106 && alignof(Deed) == 1);
static_assert(offsetof(Deed, On) == 0 && offsetof(Deed, Kind) == 8);
static_assert(offsetof(Deed, Promotion) == 10 && offsetof(Deed, House) == 12);
static_assert(offsetof(Deed, Who) == 18 && offsetof(Deed, Other) == 58);
static_assert(offsetof(Deed, Number) == 98 && offsetof(Deed, Viewers) == 100);
static_assert(offsetof(Deed, People) == 102);

template <>
const RecordLayout& LayoutOf<Deed>();

/// Notes what happened today. `house` nullptr: it is nobody's. A full file drops its five hundred
/// oldest deeds.
void NoteDeed(World& world, DeedKind kind, const Promotion* house, std::string_view who,
              std::string_view other = {}, int number = 0);
/// The same of a show that was held, with a rival's draw of 0 to 100.
void NoteShow(World& world, DeedKind kind, const Promotion& house, std::string_view show, int draw,
              int viewers, int people);

}  // namespace grapplemont
