#pragma once

#include <array>

#include "records/field.h"
#include "records/vocabulary.h"

// What a slot keeps of its past beside history.dat: matches and what they add up to, reigns, the
// words of the last shows, the awards of the years. Names stand there as they were; whoever leaves
// the world for good leaves his name behind and no uid.

namespace grapplemont {

/// A match that was held on a show of the player's: a record of bouts.dat, appended when it has
/// been told.
struct HeldMatch {
  Date On;
  Word Promotion;  // uid; the promotion may be gone
  Word Row;        // of the sheet, from 1; an Event's first is the dark match
  Flag IsEvent;
  Word Style;
  Word MatchType;
  Percent Rating;
  Word Winners;                 // so many of Worker have won it; 0 for a draw
  Text<20> Title;               // at stake; "None"
  Flag Changed;                 // and won by somebody new
  std::array<Word, 4> Feud;     // the parties as in the feud's record; all 0 for no feud's match
  std::array<Word, 30> Worker;  // uids, the winners first; 0 for nobody and for who has gone
  Text<54> Won, Lost;  // the winners and the others; of a draw the first side and the others
};

static_assert(sizeof(HeldMatch) == 220 && alignof(HeldMatch) == 1);
static_assert(offsetof(HeldMatch, Promotion) == 8 && offsetof(HeldMatch, Row) == 10);
static_assert(offsetof(HeldMatch, IsEvent) == 12 && offsetof(HeldMatch, Style) == 14);
static_assert(offsetof(HeldMatch, MatchType) == 16 && offsetof(HeldMatch, Rating) == 18);
static_assert(offsetof(HeldMatch, Winners) == 20 && offsetof(HeldMatch, Title) == 22);
static_assert(offsetof(HeldMatch, Changed) == 42 && offsetof(HeldMatch, Feud) == 44);
static_assert(offsetof(HeldMatch, Worker) == 52 && offsetof(HeldMatch, Won) == 112);
static_assert(offsetof(HeldMatch, Lost) == 166);

/// What one worker's matches for one promotion add up to: a record of tallies.dat. It outlives the
/// matches themselves.
struct MatchTally {
  Word Promotion;  // uid
  Word Worker;     // uid; 0 for who has gone
  Text<25> Name;   // as it was in the last match
  Natural Won;
  Natural Lost;
  Natural Drawn;
  Natural ForTitles;                    // how many of them were for a Title
  RangedLong<0, kMostDollars> Ratings;  // the sum
  Date Last;
};

static_assert(sizeof(MatchTally) == 49 && alignof(MatchTally) == 1);
static_assert(offsetof(MatchTally, Name) == 4 && offsetof(MatchTally, Won) == 29);
static_assert(offsetof(MatchTally, Lost) == 31 && offsetof(MatchTally, Drawn) == 33);
static_assert(offsetof(MatchTally, ForTitles) == 35 && offsetof(MatchTally, Ratings) == 37);
static_assert(offsetof(MatchTally, Last) == 41);

/// TitleReign.End.
enum ReignEnd { kReignLasts = 0, kReignLost, kReignVacated, kReignDissolved };

/// A reign of any Title in the world, or the time that it was vacant: a record of reigns.dat. Each
/// Title that stands has exactly one that lasts.
struct TitleReign {
  Date From;         // kNoTitleDate: since before the game
  Date Until;        // kNoTitleDate while it lasts
  Text<20> Title;    // as the Title is called, or was at its end
  Word Owner;        // uid of its promotion
  Text<6> Initials;  // of the promotion
  Word Worker;       // uids; 0 for nobody and for who has gone
  Word Partner;
  Text<25> Holder;                      // as the Title's own record names him; "Vacant"
  RangedWord<0, 32767, true> Defences;  // on the player's shows; kNoEnd where nobody counts
  Word End;
};

static_assert(sizeof(TitleReign) == 77 && alignof(TitleReign) == 1);
static_assert(offsetof(TitleReign, Until) == 8 && offsetof(TitleReign, Title) == 16);
static_assert(offsetof(TitleReign, Owner) == 36 && offsetof(TitleReign, Initials) == 38);
static_assert(offsetof(TitleReign, Worker) == 44 && offsetof(TitleReign, Partner) == 46);
static_assert(offsetof(TitleReign, Holder) == 48 && offsetof(TitleReign, Defences) == 73);
static_assert(offsetof(TitleReign, End) == 75);

/// ReportPart.Kind.
enum ReportKind {
  kNoReport = 0,  // a free place
  kShowName,
  kWhoMet,   // the names above a Segment
  kDetails,  // its style, type and Title
  kProse,
  kVerdict,
  kWinner,
  kFigures
};
/// ReportPart.Join: how its words go on from those before it in the same row and kind.
enum ReportJoin { kBegins = 0, kAfterBlank, kAfterBreak, kAtOnce };

/// Some of the words in which a show was told: a record of reports.dat. Old shows' places are
/// taken by new ones, so that records lie in no order.
struct ReportPart {
  Date On;
  Word Promotion;  // uid
  Word Voice;      // who told it
  Word Row;        // of the sheet; 0 for the show's name
  Word Line;       // from 1 within the row
  Word Kind;
  Word Join;
  Text<200> Words;
};

static_assert(sizeof(ReportPart) == 220 && alignof(ReportPart) == 1);
static_assert(offsetof(ReportPart, Promotion) == 8 && offsetof(ReportPart, Voice) == 10);
static_assert(offsetof(ReportPart, Row) == 12 && offsetof(ReportPart, Line) == 14);
static_assert(offsetof(ReportPart, Kind) == 16 && offsetof(ReportPart, Join) == 18);
static_assert(offsetof(ReportPart, Words) == 20);

/// YearAward.Kind.
enum AwardKind {
  kWrestlerOfTheYear = 1,
  kWomanOfTheYear,
  kTeamOfTheYear,
  kMatchOfTheYear,
  kShowOfTheYear,
  kFeudOfTheYear,
  kPromotionOfTheYear,
  kMostImproved,
  kRookieOfTheYear
};

/// An award of a year: a record of awards.dat.
struct YearAward {
  Date On;  // 31 December
  Word Kind;
  Word Worker;  // uids; 0 where it went to nobody alone, and for who has gone
  Word Partner;
  Word Promotion;   // uid; the promotion may be gone
  Text<60> Winner;  // as it was called
  Text<100> For;    // what it was given for
};

static_assert(sizeof(YearAward) == 176 && alignof(YearAward) == 1);
static_assert(offsetof(YearAward, Kind) == 8 && offsetof(YearAward, Worker) == 10);
static_assert(offsetof(YearAward, Partner) == 12 && offsetof(YearAward, Promotion) == 14);
static_assert(offsetof(YearAward, Winner) == 16 && offsetof(YearAward, For) == 76);

/// How a worker stood when the last year ended, or the game began: a record of yearend.dat.
struct YearEnd {
  Word Worker;  // uid
  Percent Over;
};

static_assert(sizeof(YearEnd) == 4 && alignof(YearEnd) == 1);
static_assert(offsetof(YearEnd, Over) == 2);

template <>
const RecordLayout& LayoutOf<HeldMatch>();
template <>
const RecordLayout& LayoutOf<MatchTally>();
template <>
const RecordLayout& LayoutOf<TitleReign>();
template <>
const RecordLayout& LayoutOf<ReportPart>();
template <>
const RecordLayout& LayoutOf<YearAward>();
template <>
const RecordLayout& LayoutOf<YearEnd>();

/// "Match of the Year"; empty for an unknown code.
std::string_view AwardName(int kind);

}  // namespace grapplemont
