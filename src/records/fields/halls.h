#pragma once

#include <array>

#include "records/fields/chronicle.h"
#include "records/fields/field.h"
#include "records/fields/vocabulary.h"

// What a slot adds up of its past, for the records, the hall of fame and the yearbook: totals that
// are kept when the matches and the people themselves have gone. A career has a number of its own,
// which is never given twice; uids are given again.

namespace grapplemont {

/// How far the totals have come, and in which form they are: the one record of totals.dat.
struct TotalsState {
  Word Version;                            // kTotalsVersion
  Date Since;                              // the day counting began
  Date Counted;                            // what happened before this day is in the totals
  RangedLong<0, kMostDollars> LastCareer;  // the highest number that was given
};
GM_RECORD(TotalsState, 22);
inline constexpr int kTotalsVersion = 1;

inline constexpr int kAwardKinds = kRookieOfTheYear;

/// What a working life adds up to, beside what its spells (Tenure) hold: a record of careers.dat.
struct Career {
  Long Number;
  Word Worker;  // uid; 0 for who has gone
  Text<25> Name;
  Flag Gender;
  Date First;    // the day they were first seen
  Date Last;     // the day they left the business; kNoTitleDate while they are in it
  Natural Top;   // months with Over at 80 or more
  Natural Hurt;  // months injured
  Percent Peak;  // the highest Over at the first of a month
  Date PeakOn;
  RangedLong<0, kMostDollars> Renown;  // days with a Title, each as much as its image
  Natural Great;                       // matches rated 90 or more
  RangedWord<-32768, 32767> Streak;    // matches won in a row, or lost below 0; a draw ends it
  Natural MostWins;                    // the longest such rows
  Natural MostLosses;
  Word Rise;  // of Over, the most within a year
  Word RiseYear;
  Word Fall;
  Word FallYear;
  std::array<Natural, kAwardKinds> Awards;  // by AwardKind
  Word Elected;  // the year they entered the hall of fame; 0 for who has not
};
GM_RECORD(Career, 103);
GM_GROWS(Career);

/// What a career's time with one promotion adds up to: a record of tenures.dat. Somebody who comes
/// back goes on with the same record.
struct Tenure {
  Long Career;
  Word Promotion;  // uid; the promotion may be gone
  Text<6> Initials;
  Date First;
  Date Last;  // the last first of a month that saw them there
  Natural Months;
  Natural Won;
  Natural Lost;
  Natural Drawn;
  Natural ForTitles;
  Natural MainEvents;
  Natural Rough;                        // matches of a type that is not for every product
  RangedLong<0, kMostDollars> Ratings;  // the sum
  Percent Best;                         // the best rating
  Natural Reigns;
  RangedLong<0, kMostDollars> Days;  // as champion
  Natural Defences;
  Natural Wage;  // the highest, thousands of dollars a month
};
GM_RECORD(Tenure, 58);
GM_GROWS(Tenure);

/// Two who wrestled as a team: a record of pairs.dat.
struct Partnership {
  Long One;  // numbers of careers, the lower first
  Long Two;
  Text<25> Team;   // as it was called last, or empty
  Word Promotion;  // the last one
  Text<6> Initials;
  Date First;
  Date Last;
  Natural Won;
  Natural Lost;
  Natural Drawn;
  Natural Reigns;
  RangedLong<0, kMostDollars> Days;  // as champions
  Natural Defences;
};
GM_RECORD(Partnership, 71);
GM_GROWS(Partnership);

/// Feat.Kind.
enum FeatKind {
  kFeatMatch = 1,  // rating in percent
  kFeatGate,       // people
  kFeatViewers,    // hundredths, television
  kFeatBuys,       // hundredths, pay-per-view
  kFeatYoungest,   // months of age
  kFeatOldest,
  kFeatFeud  // days
};

/// Something that stands among the best of its kind, in the world or in its promotion: a record of
/// feats.dat.
struct Feat {
  Word Kind;
  Date On;         // of a feud, the day it began
  Word Promotion;  // uid; the promotion may be gone
  Text<6> Initials;
  Long Number;
  Long Career;  // whose; 0 for nobody's
  Text<54> Who;
  Text<54> Against;
  Text<40> What;  // the show or the Title
};
GM_RECORD(Feat, 174);
GM_GROWS(Feat);

/// YearLine.Kind.
enum YearLineKind {
  kYearMatch = 1,  // Number: rating
  kYearGate,       // people
  kYearShow,       // the player's; rating
  kYearRise,       // points of Over; Other: Over at the end
  kYearFall,
  kYearDebut,    // Over at the end
  kYearRetired,  // points of the career
  kYearJoined,   // the player's promotion; Over
  kYearLeft,
  kYearFounded,  // size
  kYearClosed,
  kYearRisen,  // size reached
  kYearFallen,
  kYearStanding,  // a promotion: Number size, Other image; What: money
  kYearPlayer,    // the player's: Number money, Other image
  kYearElected,   // points
  kYearChampion   // a Title at the end: Number days, below 0 where nobody knows; What: the Title
};

/// A line of the page of a year: a record of yearbook.dat.
struct YearLine {
  Word Year;
  Word Kind;
  Word Promotion;  // uid; the promotion may be gone
  Text<6> Initials;
  Long Number;
  Long Other;
  Long Career;  // 0 for nobody's
  Text<100> Who;
  Text<60> What;
};
GM_RECORD(YearLine, 184);
GM_GROWS(YearLine);

inline constexpr int kHallMerits = 8;

/// A member of the hall of fame: a record of hall.dat.
struct HallMember {
  Date On;
  Long Career;
  Text<25> Name;
  Text<6> Initials;  // where they spent most of their time
  Word From;         // the years of the career
  Word To;
  std::array<Natural, kHallMerits> Count;   // of each merit, in the order of the rule
  std::array<Natural, kHallMerits> Points;  // for it
};
GM_RECORD(HallMember, 79);
GM_GROWS(HallMember);

}  // namespace grapplemont
