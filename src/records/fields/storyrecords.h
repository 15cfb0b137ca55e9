#pragma once

#include <array>

#include "records/fields/field.h"
#include "records/fields/vocabulary.h"

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

  int WonOne() const { return Clean1 + Dirty1 + Interference1 + Sneak1; }
  int WonTwo() const { return Clean2 + Dirty2 + Interference2 + Sneak2; }
};
GM_RECORD(Feud, 36);

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
GM_RECORD(Segment, 143);

/// A row of a card that is kept beside the sheet: of one that a show of the player's was held with
/// in the last five weeks or as its last, or of the draft for one to come. A record of cards.dat.
struct KeptRow {
  Segment Booked;  // as in match.dat
  Text<30> Show;   // or Event
  Flag IsEvent;
  Flag IsDraft;
  Word Row;  // from 1
  Date On;   // the day of the show
};
GM_RECORD(KeptRow, 187);

/// A mail to the player: a record of news.dat.
struct Mail {
  Text<30> From;
  Text<10> Date;  // "dd/mm/yy"
  Text<250> Body;
};
GM_RECORD(Mail, 290);

/// A mail of news.dat that the player has read: a record of mailread.dat. Where that file is
/// missing, all but the mails of today and yesterday count as read.
struct ReadMail {
  Long Key;  // made from sender, date and text
};
GM_RECORD(ReadMail, 4);

/// What happened backstage today: one of the ten records of incident.tmp.
struct Incident {
  Word Type;  // 0 for none
  Word Uid;   // of a Worker, or of a Promotion for a job offer
};
GM_RECORD(Incident, 4);

}  // namespace grapplemont
