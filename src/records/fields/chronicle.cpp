#include "records/fields/chronicle.h"

namespace grapplemont {

namespace {

constexpr Term kEnds[] = {{kReignLasts, "", "Lasts"},
                          {kReignLost, "", "Lost to somebody else"},
                          {kReignVacated, "", "Vacated"},
                          {kReignDissolved, "", "The Title was dissolved"}};

constexpr Term kReportKinds[] = {{kNoReport, "", "Free"},
                                 {kShowName, "", "Name of the show"},
                                 {kWhoMet, "", "Names of a Segment"},
                                 {kDetails, "", "Style, type and Title"},
                                 {kProse, "", "Prose"},
                                 {kVerdict, "", "Verdict"},
                                 {kWinner, "", "Winner"},
                                 {kFigures, "", "Percentages"}};

constexpr Term kJoins[] = {{kBegins, "", "Begins"},
                           {kAfterBlank, "", "After a blank"},
                           {kAfterBreak, "", "In a new paragraph"},
                           {kAtOnce, "", "In the midst of a word"}};

constexpr Term kAwards[] = {
    {kWrestlerOfTheYear, "", "Wrestler of the Year"},   {kWomanOfTheYear, "", "Woman of the Year"},
    {kTeamOfTheYear, "", "Tag Team of the Year"},       {kMatchOfTheYear, "", "Match of the Year"},
    {kShowOfTheYear, "", "Show of the Year"},           {kFeudOfTheYear, "", "Feud of the Year"},
    {kPromotionOfTheYear, "", "Promotion of the Year"}, {kMostImproved, "", "Most Improved"},
    {kRookieOfTheYear, "", "Rookie of the Year"}};

#define BOUT(member) GM_FIELD(HeldMatch, member)
constexpr Field kBoutFields[] = {
    BOUT(On).Means("The day of the show."),
    BOUT(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    BOUT(Row).In(1, 11).Means("Row of the sheet; an Event's first is the dark match."),
    BOUT(IsEvent).Means("At an Event; else on a television show."),
    BOUT(Style).In(0, 100).Means("Style, as in match.dat."),
    BOUT(MatchType).In(0, 100).Means("Type, as in match.dat."),
    BOUT(Rating).Counts("percent").Means("Overall rating."),
    BOUT(Winners).In(0, 30).Means("So many of the workers have won it; 0 is a draw."),
    BOUT(Title).Means("Title at stake, or None."),
    BOUT(Changed).Means("The Title went to somebody new."),
    GM_NUMBERED(HeldMatch, Feud)
        .LeadsTo(Refers::Worker)
        .Means("Parties of the feud that it belonged to."),
    GM_NUMBERED(HeldMatch, Worker)
        .LeadsTo(Refers::Worker)
        .Means("Who was in it, the winners first; 0 for who has left the world."),
    BOUT(Won).Means("The winners as they were called; of a draw the first side."),
    BOUT(Lost).Means("The others as they were called."),
};

#define TALLY(member) GM_FIELD(MatchTally, member)
constexpr Field kTallyFields[] = {
    TALLY(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    TALLY(Worker).LeadsTo(Refers::Worker).Means("Whose matches; 0 for who has left the world."),
    TALLY(Name).Means("Name at the last match."),
    TALLY(Won).Means("Matches won."),
    TALLY(Lost).Means("Matches lost."),
    TALLY(Drawn).Means("Matches drawn."),
    TALLY(ForTitles).Means("How many of them were for a Title."),
    TALLY(Ratings).Means("Sum of their ratings."),
    TALLY(Last).Means("The day of the last one."),
};

#define REIGN(member) GM_FIELD(TitleReign, member)
constexpr Field kReignFields[] = {
    REIGN(From).Means("First day; 1980-01-01 for before the game."),
    REIGN(Until).Means("The day it ended; 1980-01-01 while it lasts."),
    REIGN(Title).Means("What the Title is called."),
    REIGN(Owner).In(0, 32767).Means("Uid of its promotion, which may be gone."),
    REIGN(Initials).Means("Initials of the promotion."),
    REIGN(Worker).LeadsTo(Refers::Worker).Means("Holder; 0 for who has gone."),
    REIGN(Partner).LeadsTo(Refers::Worker).Means("The other half of a pair."),
    REIGN(Holder).Means("The holder as they were called, or Vacant."),
    REIGN(Defences).Means("Defences in the ring; -1 not counted."),
    REIGN(End).In(kReignLasts, kReignDissolved).From(kEnds).Means("How it ended."),
};

#define PART(member) GM_FIELD(ReportPart, member)
constexpr Field kReportFields[] = {
    PART(On).Means("The day of the show."),
    PART(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    PART(Voice).In(0, 100).Means("Who told it: 0 The Lamplighter, 1 Rafe Tolland, 2 QVD."),
    PART(Row).In(0, 11).Means("Row of the sheet; 0 for the show's name."),
    PART(Line).In(0, 32767).Means("Place in the row, from 1."),
    PART(Kind).In(kNoReport, kFigures).From(kReportKinds).Means("What the words are."),
    PART(Join).In(kBegins, kAtOnce).From(kJoins).Means("How they go on from those before."),
    PART(Words).Means("The words."),
};

#define SAID(member) GM_FIELD(SaidLine, member)
constexpr Field kSaidFields[] = {
    SAID(Line).Means("A number made of the voice and the words of the line."),
    SAID(On).Means("The day of the last show that said it."),
    SAID(Times).Means("How often it has been said."),
};

#define TELLING(member) GM_FIELD(TellingHabit, member)
constexpr Field kTellingFields[] = {
    TELLING(Version).Means(
        "Of what the record means; a later one than the program's counts as none."),
    TELLING(Live).Means("Reports appear sentence by sentence."),
    TELLING(Pace).Means("0 by the reader's hand, 1 slow, 2 steady, 3 fast."),
};

#define AWARD(member) GM_FIELD(YearAward, member)
constexpr Field kAwardFields[] = {
    AWARD(On).Means("31 December of the year."),
    AWARD(Kind).In(kWrestlerOfTheYear, kRookieOfTheYear).From(kAwards).Means("Which award."),
    AWARD(Worker).LeadsTo(Refers::Worker).Means("Who got it; 0 for who has gone."),
    AWARD(Partner).LeadsTo(Refers::Worker).Means("Who shares it."),
    AWARD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    AWARD(Winner).Means("Who or what got it, as it was called."),
    AWARD(For).Means("What it was given for."),
};

#define YEAR_END(member) GM_FIELD(YearEnd, member)
constexpr Field kYearEndFields[] = {
    YEAR_END(Worker).LeadsTo(Refers::Worker).Means("Who."),
    YEAR_END(Over).Counts("percent").Means("Over when the last year ended, or the game began."),
};

constexpr Term kNotes[] = {{kNoteRating, "", "Rating of the show"},
                           {kNoteImage, "", "Image"},
                           {kNoteNextBand, "", "The better step of the image"},
                           {kNoteCrowd, "", "Attendance"},
                           {kNoteViewers, "", "Television rating or buy rate"},
                           {kNoteMoney, "", "Money"},
                           {kNoteOver, "", "Over"},
                           {kNoteMorale, "", "Morale"},
                           {kNoteCondition, "", "Condition"},
                           {kNoteInjury, "", "Injury"},
                           {kNoteHeat, "", "Heat of a feud"},
                           {kNoteFeudEnd, "", "End of a feud"},
                           {kNoteTitle, "", "Title won"},
                           {kNoteTitleImage, "", "Image of a Title"},
                           {kNoteMerch, "", "Merchandise of the last month"},
                           {kNoteTape, "", "A network's answer to the last tape"},
                           {kNoteStanding, "", "Image beside a show"},
                           {kNoteBeside, "", "Money outside the books"}};

#define NOTE(member) GM_FIELD(ShowNote, member)
constexpr Field kNoteFields[] = {
    NOTE(On).Means("The day of the show or payment, or the first of a month."),
    NOTE(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    NOTE(Kind).In(kNoteRating, kNoteBeside).From(kNotes).Means("What the number is."),
    NOTE(Worker).LeadsTo(Refers::Worker).Means("Whose number; 0 for nobody's and who has gone."),
    NOTE(Row).In(0, 11).Means("Row of the sheet; 0 for what happened beside it."),
    NOTE(What).Means("Whose number it is, as it was called."),
    NOTE(Change).Means("By how much the step moved it."),
    NOTE(Now).Means("What it was after the step."),
    NOTE(Why).Means("Why."),
};

}  // namespace

// Five years of the busiest promotion, a dozen of one with a show a week: what goes beyond them
// stands in the tallies.
GM_LAYOUT(HeldMatch, "bouts.dat", 5000, kBoutFields)
GM_LAYOUT(MatchTally, "tallies.dat", 10000, kTallyFields)
// A hundred Titles that change hands three times a year fill it in forty years.
GM_LAYOUT(TitleReign, "reigns.dat", 12000, kReignFields)
GM_LAYOUT(ReportPart, "reports.dat", 8000, kReportFields)
// Half as many again as the three voices have.
GM_LAYOUT(SaidLine, "said.dat", 20000, kSaidFields)
GM_LAYOUT(TellingHabit, "telling.dat", 1, kTellingFields)
GM_LAYOUT(YearAward, "awards.dat", 2000, kAwardFields)
GM_LAYOUT(YearEnd, "yearend.dat", 25000, kYearEndFields)
// A dozen shows of three hundred steps each.
GM_LAYOUT(ShowNote, "mornings.dat", 4000, kNoteFields)

std::string_view AwardName(int kind) {
  return Says(kAwards, kind);
}

namespace {

constexpr Term kMoodReasons[] = {{kMoodMatchGood, "", "in matches above their standing"},
                                 {kMoodMatchBad, "", "in matches below their standing"},
                                 {kMoodWon, "", "won"},
                                 {kMoodHeldDown, "", "lost while standing too low on the card"},
                                 {kMoodBooked, "", "held a booking against you"},
                                 {kMoodLeftOut, "", "was in no match or angle of a show"},
                                 {kMoodMovedUp, "", "was moved up the card"},
                                 {kMoodMovedDown, "", "was moved down the card"},
                                 {kMoodTurnFailed, "", "a turn failed"},
                                 {kMoodPoorForm, "", "the promotion is losing ground"},
                                 {kMoodAway, "", "away in the territory"},
                                 {kMoodStuck, "", "nothing left to learn there"},
                                 {kMoodOuting, "", "a day out with everybody"},
                                 {kMoodTown, "", "won the town's tournament"}};

#define MONTHS(member) GM_NUMBERED(WorkerMonths, member).Counts("percent")
constexpr Field kMonthsFields[] = {
    GM_FIELD(WorkerMonths, Worker).LeadsTo(Refers::Worker).Means("Who."),
    MONTHS(Over).Means("Over on the first of January to December; -1 not kept."),
    MONTHS(Morale).Means("Morale on the same days."),
    MONTHS(Condition).Means("Condition on the same days."),
};

#define MOOD(member) GM_FIELD(MoodChange, member)
constexpr Field kMoodFields[] = {
    MOOD(On).Means("The day on which it happened."),
    MOOD(Worker).LeadsTo(Refers::Worker).Means("Whose morale."),
    MOOD(Why).In(kMoodMatchGood, kLastMood).From(kMoodReasons).Means("What moved it."),
    MOOD(Change).Counts("percent").Means("By how much."),
    MOOD(After).Counts("percent").Means("Morale afterwards."),
};

}  // namespace

GM_LAYOUT(WorkerMonths, "months.dat", 25000, kMonthsFields)
// Three shows a week of a full roster take more than a year to fill it.
GM_LAYOUT(MoodChange, "moods.dat", 6000, kMoodFields)

std::string_view MoodReasonText(int why) {
  return Says(kMoodReasons, why);
}

namespace {

constexpr Term kPastKinds[] = {{kPastTv, "", "Television show"},
                               {kPastEvent, "", "Event"},
                               {kPastMonth, "", "Month"},
                               {kPastCamp, "", "Training camp opened or improved"},
                               {kPastTerritory, "", "Development territory opened"}};

#define PAST(member) GM_FIELD(HistoryEntry, member)
constexpr Field kPastFields[] = {
    PAST(On).Means("The day of the show, or the first day after the month."),
    PAST(Kind).In(kPastTv, kPastTerritory).From(kPastKinds).Means("What has happened."),
    PAST(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    PAST(Name).Means("The show, the Event, the building, or for a month the promotion."),
    PAST(CalledOff).Means("The show was called off."),
    PAST(Rating).In(0, 100).Means("The show's rating."),
    PAST(Viewers).Counts("hundredths").Means("Television rating, or buy rate."),
    PAST(Attendance).Counts("people").Means("Crowd of the show, or of the month."),
    PAST(Income).Counts("dollars").Means("What the show or the month brought."),
    PAST(Costs).Counts("dollars").Means("What the show, the month or the building cost."),
    PAST(Money).Counts("dollars").Means("Cash afterwards."),
    PAST(Size).In(kGlobal, kBackyard).From(kSizes).Means("Size class afterwards."),
    PAST(Image).Counts("percent").Means("Image afterwards."),
};

constexpr Term kDeedKinds[] = {{kDeedSigned, "", "Signed"},
                               {kDeedStolen, "", "Signed away from another"},
                               {kDeedFired, "", "Fired"},
                               {kDeedLeft, "", "Left"},
                               {kDeedRetiring, "", "Announced the end of a career"},
                               {kDeedRetired, "", "Retired"},
                               {kDeedInjured, "", "Hurt"},
                               {kDeedOnAir, "", "Show on the air"},
                               {kDeedRenewed, "", "Show renewed"},
                               {kDeedOffAir, "", "Show off the air"},
                               {kDeedFounded, "", "Promotion opened"},
                               {kDeedMissed, "", "Repayment missed"},
                               {kDeedWarned, "", "Bankruptcy warning"},
                               {kDeedClosed, "", "Promotion closed"},
                               {kDeedBought, "", "Promotion bought"},
                               {kDeedRisen, "", "Risen a size class"},
                               {kDeedFallen, "", "Fallen a size class"},
                               {kDeedOwner, "", "New owner"},
                               {kDeedOwnerQuit, "", "Owner gone"},
                               {kDeedTvHeld, "", "Television show held"},
                               {kDeedEventHeld, "", "Event held"},
                               {kDeedCalledOff, "", "Show called off"},
                               {kDeedTeamed, "", "Tag Team formed"},
                               {kDeedTeamSplit, "", "Tag Team split"},
                               {kDeedStableFounded, "", "Stable founded"},
                               {kDeedStableEnded, "", "Stable dissolved"},
                               {kDeedJoined, "", "Joined a stable"},
                               {kDeedGrudge, "", "Grudge began"},
                               {kDeedSettled, "", "Grudge settled"},
                               {kDeedManaged, "", "Took a client"},
                               {kDeedManager, "", "Became a manager"},
                               {kDeedTitleMade, "", "Title made"},
                               {kDeedRenamed, "", "Took a new ring name"}};

#define DEED(member) GM_FIELD(Deed, member)
constexpr Field kDeedFields[] = {
    DEED(On).Means("The day on which it happened."),
    DEED(Kind).In(kDeedSigned, kDeedRenamed).From(kDeedKinds).Means("What has happened."),
    DEED(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone; 0 nobody's."),
    DEED(House).Means("The promotion's initials then."),
    DEED(Who).Means("The worker, owner or show, or the promotion's full name."),
    DEED(Other).Means("Whom they were signed away from, the network, or the injury."),
    DEED(Number).Means("Months hurt, weeks on the air, size class reached, or a rival's draw."),
    DEED(Viewers).Counts("hundredths").Means("A show's rating, or its buy rate."),
    DEED(People).Counts("people").Means("A show's crowd."),
};

}  // namespace

// Fifty years of three shows a week and of thirty promotions' months stay below it.
GM_LAYOUT(HistoryEntry, "history.dat", 30000, kPastFields)
// Two months of a busy world take about a third of it.
GM_LAYOUT(Deed, "deeds.dat", 3000, kDeedFields)

}  // namespace grapplemont
