#pragma once

#include "records/field.h"
#include "records/vocabulary.h"

// The partners and the programmes of promotions: television shows, networks, sponsors, Events.

namespace grapplemont {

/// A weekly television show: a record of tv.dat.
struct Show {
  Text<20> Name;
  Word Owner;
  Text<9> Day;
  Text<1> Slot;
  Word Network;
  RangedWord<0, 520> ContractWeeks;
  Word Announcer;
  Word Colour;
  Flag ColourIsWorker;
  Hundredths Rating1;           // highest so far, in hundredths; 0 before the first show
  Hundredths Rating2;           // lowest
  Hundredths Rating3;           // last
  RangedWord<0, 1000> Rating4;  // strikes
};

static_assert(sizeof(Show) == 50 && alignof(Show) == 1);
static_assert(offsetof(Show, Name) == 0 && offsetof(Show, Owner) == 20);
static_assert(offsetof(Show, Day) == 22 && offsetof(Show, Slot) == 31);
static_assert(offsetof(Show, Network) == 32 && offsetof(Show, ContractWeeks) == 34);
static_assert(offsetof(Show, Announcer) == 36 && offsetof(Show, Colour) == 38);
static_assert(offsetof(Show, ColourIsWorker) == 40 && offsetof(Show, Rating1) == 42);
static_assert(offsetof(Show, Rating2) == 44 && offsetof(Show, Rating3) == 46);
static_assert(offsetof(Show, Rating4) == 48);

/// A television network: a record of network.dat. Audiences are ratings in hundredths.
struct Network {
  Word Uid;
  Text<20> Name;
  Hundredths EarlyAudience;
  Hundredths PrimeAudience;
  Hundredths LateAudience;
  Hundredths GraveAudience;
  Percent EarlyRisk;
  Percent PrimeRisk;
  Percent LateRisk;
  Percent GraveRisk;
  Percent Production;
  Flag Generic;
};

static_assert(sizeof(Network) == 42 && alignof(Network) == 1);
static_assert(offsetof(Network, Uid) == 0 && offsetof(Network, Name) == 2);
static_assert(offsetof(Network, EarlyAudience) == 22 && offsetof(Network, PrimeAudience) == 24);
static_assert(offsetof(Network, LateAudience) == 26 && offsetof(Network, GraveAudience) == 28);
static_assert(offsetof(Network, EarlyRisk) == 30 && offsetof(Network, PrimeRisk) == 32);
static_assert(offsetof(Network, LateRisk) == 34 && offsetof(Network, GraveRisk) == 36);
static_assert(offsetof(Network, Production) == 38 && offsetof(Network, Generic) == 40);

/// A sponsor: a record of sponsor.dat.
struct Sponsor {
  Word Uid;
  Text<20> Name;
  Text<40> Slogan;
  Word Promotion;
  RangedWord<0, 600> ContractMonths;
  Percent Morality;
  RangedLong<0, 100000> Pay;  // thousands of dollars a show
};

static_assert(sizeof(Sponsor) == 72 && alignof(Sponsor) == 1);
static_assert(offsetof(Sponsor, Uid) == 0 && offsetof(Sponsor, Name) == 2);
static_assert(offsetof(Sponsor, Slogan) == 22 && offsetof(Sponsor, Promotion) == 62);
static_assert(offsetof(Sponsor, ContractMonths) == 64 && offsetof(Sponsor, Morality) == 66);
static_assert(offsetof(Sponsor, Pay) == 68);

/// A monthly big show: a record of event.dat.
struct Event {
  Text<20> Name;
  Word Owner;
  Word Month;
  Word Type;
};

static_assert(sizeof(Event) == 26 && alignof(Event) == 1);
static_assert(offsetof(Event, Name) == 0 && offsetof(Event, Owner) == 20);
static_assert(offsetof(Event, Month) == 22 && offsetof(Event, Type) == 24);

template <>
const RecordLayout& LayoutOf<Show>();
template <>
const RecordLayout& LayoutOf<Network>();
template <>
const RecordLayout& LayoutOf<Sponsor>();
template <>
const RecordLayout& LayoutOf<Event>();

}  // namespace grapplemont
