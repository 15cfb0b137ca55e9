#pragma once

#include <array>

#include "records/fields/field.h"
#include "records/fields/vocabulary.h"

// What a slot keeps of its past beside history.dat: matches and what they add up to, reigns, the
// words of the last shows, the awards of the years. Names stand there as they were; whoever leaves
// the world for good leaves their name behind and no uid.

namespace grapplemont {

/// A match that was held on a show of the player's: a record of bouts.dat, appended when it has
/// been reported.
struct HeldMatch {
  Date On;
  Word Promotion;  // uid; the promotion may be gone
  Word Row;        // of the sheet, from 1; an Event's first is the dark match
  Flag IsEvent;
  Word Style;
  Word MatchType;
  Percent Rating;
  Word Winners;                 // how many of Worker have won it; 0 for a draw
  Text<20> Title;               // at stake; "None"
  Flag Changed;                 // and won by somebody new
  std::array<Word, 4> Feud;     // the parties as in the feud's record; all 0 for no feud's match
  std::array<Word, 30> Worker;  // uids, the winners first; 0 for nobody and for who has gone
  Text<54> Won, Lost;  // the winners and the others; of a draw the first side and the others
};
GM_RECORD(HeldMatch, 220);
GM_GROWS(HeldMatch);

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
GM_RECORD(MatchTally, 49);
GM_GROWS(MatchTally);

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
  Text<25> Holder;                      // as the Title's own record names them; "Vacant"
  RangedWord<0, 32767, true> Defences;  // kNoEnd where nobody has counted
  Word End;
};
GM_RECORD(TitleReign, 77);
GM_GROWS(TitleReign);

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

/// Some of the words of a show's report: a record of reports.dat. Old shows' places are
/// taken by new ones, so that records lie in no order.
struct ReportPart {
  Date On;
  Word Promotion;  // uid
  Word Voice;      // whose report it is
  Word Row;        // of the sheet; 0 for the show's name
  Word Line;       // from 1 within the row
  Word Kind;
  Word Join;
  Text<200> Words;
};
GM_RECORD(ReportPart, 220);
GM_GROWS(ReportPart);

/// When a line of the reports was last said, and how often: a record of said.dat.
struct SaidLine {
  Long Line;  // a number made of the voice and the line's words
  Date On;
  Natural Times;
};
GM_RECORD(SaidLine, 14);
GM_GROWS(SaidLine);

/// How the player has the shows told: the one record of telling.dat. A slot without it has never
/// been asked: a Segment's words stand there at once.
struct TellingHabit {
  static constexpr int kKnownVersion = 1;

  RangedWord<1, 32767> Version{kKnownVersion};  // of what the record means
  Flag Live;                                    // sentence by sentence
  RangedWord<0, 3> Pace;                        // 0 by the reader's hand, else from slow to fast
};
GM_RECORD(TellingHabit, 6);

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
GM_RECORD(YearAward, 176);
GM_GROWS(YearAward);

/// How a worker stood when the last year ended, or the game began: a record of yearend.dat.
struct YearEnd {
  Word Worker;  // uid
  Percent Over;
};
GM_RECORD(YearEnd, 4);
GM_GROWS(YearEnd);

/// How a worker stood on the first of each month: a record of months.dat. A month takes the place
/// of the same one a year before.
struct WorkerMonths {
  using Months = std::array<RangedWord<0, 100, true>, 12>;  // January first; kNoEnd for not kept
  static Months Unkept() {
    Months months;
    for (auto& month : months) month = kNoEnd;
    return months;
  }

  Word Worker;  // uid
  Months Over = Unkept();
  Months Morale = Unkept();
  Months Condition = Unkept();
};
GM_RECORD(WorkerMonths, 74);
GM_GROWS(WorkerMonths);

/// MoodChange.Why.
enum MoodReason {
  kMoodMatchGood = 1,  // a match above their standing
  kMoodMatchBad,
  kMoodWon,
  kMoodHeldDown,  // lost while their place on the card is too low
  kMoodBooked,    // holds a booking against the player
  kMoodLeftOut,   // a star who was on no show
  kMoodMovedUp,
  kMoodMovedDown,
  kMoodTurnFailed,
  kMoodPoorForm,  // the promotion keeps falling
  kMoodAway,      // in the development territory
  kMoodStuck,     // has nothing left to learn there
  kMoodOuting,    // a day out with everybody
  kMoodTown,      // won the town's tournament
  kLastMood = kMoodTown
};

/// What moved the morale of one of the player's people: a record of moods.dat, appended and never
/// changed.
struct MoodChange {
  Date On;
  Word Worker;  // uid
  Word Why;
  RangedWord<-100, 100> Change;
  Percent After;
};
GM_RECORD(MoodChange, 16);
GM_GROWS(MoodChange);

/// "won", "a match below their standing"; empty for an unknown code.
std::string_view MoodReasonText(int why);
/// ShowNote.Kind: what the number is.
enum NoteKind {
  kNoteRating = 1,  // points of the show's sum; its rating at last
  kNoteImage,       // percent
  kNoteNextBand,    // Change: the step of the image that a better rating brings; Now: from where on
  kNoteCrowd,       // people
  kNoteViewers,     // hundredths
  kNoteMoney,       // dollars
  kNoteOver,        // a worker's, percent
  kNoteMorale,
  kNoteCondition,
  kNoteInjury,      // Change: months
  kNoteHeat,        // a feud's, percent
  kNoteFeudEnd,     // Now: the heat at which it ended
  kNoteTitle,       // a Title's new holder
  kNoteTitleImage,  // percent
  // Of no show:
  kNoteMerch,     // dollars of the last month's merchandise
  kNoteTape,      // what a network weighed when it saw the last tape; Change: 1 for, -1 against
  kNoteStanding,  // percent of the image, moved beside any show
  kNoteBeside     // dollars that no book of the month holds
};

/// A step of a number that a show of the player's made or moved, as the rule computed it: a record
/// of mornings.dat. The steps of a number lie in their order, and each goes on where the last one
/// ended.
struct ShowNote {
  Date On;
  Word Promotion;  // uid
  Word Kind;
  Word Worker;    // uid; 0 where no worker is meant, and for who has gone
  Word Row;       // of the sheet; 0 for what happened beside it
  Text<54> What;  // whose number it is, as it was called
  Long Change;
  Long Now;  // after it
  Text<80> Why;
};
GM_RECORD(ShowNote, 158);
GM_GROWS(ShowNote);

/// "Match of the Year"; empty for an unknown code.
std::string_view AwardName(int kind);

/// HistoryEntry.Kind.
enum HistoryKind { kPastTv = 1, kPastEvent, kPastMonth, kPastCamp, kPastTerritory };

/// What a slot remembers of its past: a show of the player's that was held or called off, how a
/// promotion stood when a month was closed, or what it built for its young workers. A record of
/// history.dat, appended and never changed.
struct HistoryEntry {
  Date On;
  Word Kind;
  Word Promotion;      // uid; the promotion may be gone
  Text<40> Name;       // of the show or Event, of what was built; of the promotion for a month
  Flag CalledOff;      // shows
  Word Rating;         // a show's, 0 to 100
  Hundredths Viewers;  // hundredths: a television rating, or a pay-per-view's buy rate
  RangedLong<0, kMostDollars> Attendance;  // people; a month's sum of the player's shows
  Cash Income;                             // dollars that the show brought, or the month
  Cash Costs;     // dollars that the show cost, the month, or what was built
  Cash Money;     // cash afterwards
  Word Size;      // afterwards
  Percent Image;  // afterwards
};
GM_RECORD(HistoryEntry, 78);
GM_GROWS(HistoryEntry);

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
  kDeedCalledOff,
  kDeedTeamed,
  kDeedTeamSplit,
  kDeedStableFounded,
  kDeedStableEnded,
  kDeedJoined,
  kDeedGrudge,
  kDeedSettled,
  kDeedManaged,
  kDeedManager,
  kDeedTitleMade,
  kDeedRenamed
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
  Text<40> Other;  // whom they were stolen from, the network, the injury
  RangedWord<-32768, 32767>
      Number;  // months hurt, weeks on the air, the size class reached, a rival's roster's draw
  Hundredths Viewers;                  // hundredths: of a show that was held
  RangedLong<0, kMostDollars> People;  // its crowd
};
GM_RECORD(Deed, 106);
GM_GROWS(Deed);

}  // namespace grapplemont
