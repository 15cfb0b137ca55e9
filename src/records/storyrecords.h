#pragma once

#include <array>

#include "records/field.h"
#include "records/vocabulary.h"

// Records that only a running game has: feuds, the Segments of the show being booked, mails,
// incidents.

namespace grapplemont {

/// A rivalry: one of the eight records of feudinfo.dat; Worker1 0 is an empty slot. In a singles
/// feud the sides are Worker1 and Worker2; in a tag feud they are Worker1 with Worker2, and Worker3
/// with Worker4.
struct Feud {
  Flag Singles;
  Word Worker1;
  Word Worker2;
  Word Worker3;
  Word Worker4;
  Natural Clean1;
  Natural Dirty1;
  Natural Interference1;
  Natural Sneak1;
  Natural Clean2;
  Natural Dirty2;
  Natural Interference2;
  Natural Sneak2;
  Percent Heat;
  Date Started;
};

static_assert(sizeof(Feud) == 36 && alignof(Feud) == 1);
static_assert(offsetof(Feud, Singles) == 0 && offsetof(Feud, Worker1) == 2);
static_assert(offsetof(Feud, Worker2) == 4 && offsetof(Feud, Worker3) == 6);
static_assert(offsetof(Feud, Worker4) == 8 && offsetof(Feud, Clean1) == 10);
static_assert(offsetof(Feud, Dirty1) == 12 && offsetof(Feud, Interference1) == 14);
static_assert(offsetof(Feud, Sneak1) == 16 && offsetof(Feud, Clean2) == 18);
static_assert(offsetof(Feud, Dirty2) == 20 && offsetof(Feud, Interference2) == 22);
static_assert(offsetof(Feud, Sneak2) == 24 && offsetof(Feud, Heat) == 26);
static_assert(offsetof(Feud, Started) == 28);

inline constexpr int kFeuds = 8;

/// A match, an interview or an angle of the show being booked: a record of match.dat. (Its member
/// Text hides the type of that name.)
struct Segment {
  Percent Rating;
  Word Kind;
  Word Style;
  Word MatchType;
  Word Purpose;
  Word Winner;
  Word Loser;
  Word Place3;
  Word Place4;
  Word Place5;
  Word Place6;
  Word Place7;
  Word Place8;
  Word Finish;
  grapplemont::Text<20> TitleName;
  Word Other1;
  Word Other2;
  Word Other3;
  Word Other4;
  Word Aftermath;
  std::array<Word, 30> Worker;
  grapplemont::Text<25> Text;
};

static_assert(sizeof(Segment) == 143 && alignof(Segment) == 1);
static_assert(offsetof(Segment, Rating) == 0 && offsetof(Segment, Kind) == 2);
static_assert(offsetof(Segment, Style) == 4 && offsetof(Segment, MatchType) == 6);
static_assert(offsetof(Segment, Purpose) == 8 && offsetof(Segment, Winner) == 10);
static_assert(offsetof(Segment, Loser) == 12 && offsetof(Segment, Place3) == 14);
static_assert(offsetof(Segment, Place4) == 16 && offsetof(Segment, Place5) == 18);
static_assert(offsetof(Segment, Place6) == 20 && offsetof(Segment, Place7) == 22);
static_assert(offsetof(Segment, Place8) == 24 && offsetof(Segment, Finish) == 26);
static_assert(offsetof(Segment, TitleName) == 28 && offsetof(Segment, Other1) == 48);
static_assert(offsetof(Segment, Other2) == 50 && offsetof(Segment, Other3) == 52);
static_assert(offsetof(Segment, Other4) == 54 && offsetof(Segment, Aftermath) == 56);
static_assert(offsetof(Segment, Worker) == 58 && offsetof(Segment, Text) == 118);

/// A mail to the player: a record of news.dat.
struct Mail {
  Text<30> From;
  Text<10> Date;  // "dd/mm/yy"
  Text<250> Body;
};

static_assert(sizeof(Mail) == 290 && alignof(Mail) == 1);
static_assert(offsetof(Mail, From) == 0 && offsetof(Mail, Date) == 30);
static_assert(offsetof(Mail, Body) == 40);

/// What happened backstage today: one of the ten records of incident.tmp.
struct Incident {
  Word Type;  // 0 for none
  Word Uid;   // of a Worker, or of a Promotion for a job offer
};

static_assert(sizeof(Incident) == 4 && alignof(Incident) == 1);
static_assert(offsetof(Incident, Type) == 0 && offsetof(Incident, Uid) == 2);

template <>
const RecordLayout& LayoutOf<Feud>();
template <>
const RecordLayout& LayoutOf<Segment>();
template <>
const RecordLayout& LayoutOf<Mail>();
template <>
const RecordLayout& LayoutOf<Incident>();

}  // namespace grapplemont
