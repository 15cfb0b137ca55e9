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

#define FIELD(member) GM_FIELD(HeldMatch, member)
constexpr Field kBoutFields[] = {
    FIELD(On).Means("The day of the show."),
    FIELD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    FIELD(Row).In(1, 11).Means("Row of the sheet; an Event's first is the dark match."),
    FIELD(IsEvent).Means("At an Event; else on a television show."),
    FIELD(Style).In(0, 100).Means("Style, as in match.dat."),
    FIELD(MatchType).In(0, 100).Means("Type, as in match.dat."),
    FIELD(Rating).Counts("percent").Means("Overall rating."),
    FIELD(Winners).In(0, 30).Means("So many of the workers have won it; 0 is a draw."),
    FIELD(Title).Means("Title at stake, or None."),
    FIELD(Changed).Means("The Title went to somebody new."),
    GM_NUMBERED(HeldMatch, Feud)
        .LeadsTo(Refers::Worker)
        .Means("Parties of the feud that it belonged to."),
    GM_NUMBERED(HeldMatch, Worker)
        .LeadsTo(Refers::Worker)
        .Means("Who was in it, the winners first; 0 for who has left the world."),
    FIELD(Won).Means("The winners as they were called; of a draw the first side."),
    FIELD(Lost).Means("The others as they were called."),
};
#undef FIELD

#define FIELD(member) GM_FIELD(MatchTally, member)
constexpr Field kTallyFields[] = {
    FIELD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    FIELD(Worker).LeadsTo(Refers::Worker).Means("Whose matches; 0 for who has left the world."),
    FIELD(Name).Means("Name at the last match."),
    FIELD(Won).Means("Matches won."),
    FIELD(Lost).Means("Matches lost."),
    FIELD(Drawn).Means("Matches drawn."),
    FIELD(ForTitles).Means("How many of them were for a Title."),
    FIELD(Ratings).Means("Sum of their ratings."),
    FIELD(Last).Means("The day of the last one."),
};
#undef FIELD

#define FIELD(member) GM_FIELD(TitleReign, member)
constexpr Field kReignFields[] = {
    FIELD(From).Means("First day; 1980-01-01 for before the game."),
    FIELD(Until).Means("The day it ended; 1980-01-01 while it lasts."),
    FIELD(Title).Means("What the Title is called."),
    FIELD(Owner).In(0, 32767).Means("Uid of its promotion, which may be gone."),
    FIELD(Initials).Means("Initials of the promotion."),
    FIELD(Worker).LeadsTo(Refers::Worker).Means("Holder; 0 for who has gone."),
    FIELD(Partner).LeadsTo(Refers::Worker).Means("The other half of a pair."),
    FIELD(Holder).Means("The holder as he was called, or Vacant."),
    FIELD(Defences).Means("Defences on the player's shows; -1 not counted."),
    FIELD(End).In(kReignLasts, kReignDissolved).From(kEnds).Means("How it ended."),
};
#undef FIELD

#define FIELD(member) GM_FIELD(ReportPart, member)
constexpr Field kReportFields[] = {
    FIELD(On).Means("The day of the show."),
    FIELD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    FIELD(Voice).In(0, 100).Means("Who told it: 0 The Lamplighter, 1 Rafe Tolland, 2 QVD."),
    FIELD(Row).In(0, 11).Means("Row of the sheet; 0 for the show's name."),
    FIELD(Line).In(0, 32767).Means("Place in the row, from 1."),
    FIELD(Kind).In(kNoReport, kFigures).From(kReportKinds).Means("What the words are."),
    FIELD(Join).In(kBegins, kAtOnce).From(kJoins).Means("How they go on from those before."),
    FIELD(Words).Means("The words."),
};
#undef FIELD

#define FIELD(member) GM_FIELD(YearAward, member)
constexpr Field kAwardFields[] = {
    FIELD(On).Means("31 December of the year."),
    FIELD(Kind).In(kWrestlerOfTheYear, kRookieOfTheYear).From(kAwards).Means("Which award."),
    FIELD(Worker).LeadsTo(Refers::Worker).Means("Who got it; 0 for who has gone."),
    FIELD(Partner).LeadsTo(Refers::Worker).Means("Who shares it."),
    FIELD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    FIELD(Winner).Means("Who or what got it, as it was called."),
    FIELD(For).Means("What it was given for."),
};
#undef FIELD

#define FIELD(member) GM_FIELD(YearEnd, member)
constexpr Field kYearEndFields[] = {
    FIELD(Worker).LeadsTo(Refers::Worker).Means("Who."),
    FIELD(Over).Counts("percent").Means("Over when the last year ended, or the game began."),
};
#undef FIELD

}  // namespace

// Five years of the busiest promotion, a dozen of one with a show a week: what goes beyond them
// stands in the tallies.
GM_LAYOUT(HeldMatch, "bouts.dat", 5000, kBoutFields)
GM_LAYOUT(MatchTally, "tallies.dat", 10000, kTallyFields)
// A hundred Titles that change hands three times a year fill it in forty years.
GM_LAYOUT(TitleReign, "reigns.dat", 12000, kReignFields)
GM_LAYOUT(ReportPart, "reports.dat", 8000, kReportFields)
GM_LAYOUT(YearAward, "awards.dat", 2000, kAwardFields)
GM_LAYOUT(YearEnd, "yearend.dat", 25000, kYearEndFields)

std::string_view AwardName(int kind) {
  return Says(kAwards, kind);
}

namespace {

constexpr Term kPastKinds[] = {{kPastTv, "", "Television show"},
                               {kPastEvent, "", "Event"},
                               {kPastMonth, "", "Month"},
                               {kPastCamp, "", "Training camp opened or improved"},
                               {kPastTerritory, "", "Development territory opened"}};

#define FIELD(member) GM_FIELD(HistoryEntry, member)

constexpr Field kPastFields[] = {
    FIELD(On).Means("The day of the show, or the first day after the month."),
    FIELD(Kind).In(kPastTv, kPastTerritory).From(kPastKinds).Means("What has happened."),
    FIELD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    FIELD(Name).Means("The show, the Event, the building, or for a month the promotion."),
    FIELD(CalledOff).Means("The show was called off."),
    FIELD(Rating).In(0, 100).Means("The show's rating."),
    FIELD(Viewers).Counts("hundredths").Means("Television rating, or buy rate."),
    FIELD(Attendance).Counts("people").Means("Crowd of the show, or of the month."),
    FIELD(Income).Counts("dollars").Means("What the show or the month brought."),
    FIELD(Costs).Counts("dollars").Means("What the show, the month or the building cost."),
    FIELD(Money).Counts("dollars").Means("Cash afterwards."),
    FIELD(Size).In(kGlobal, kBackyard).From(kSizes).Means("Size class afterwards."),
    FIELD(Image).Counts("percent").Means("Image afterwards."),
};
#undef FIELD

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
                               {kDeedCalledOff, "", "Show called off"}};

#define FIELD(member) GM_FIELD(Deed, member)

constexpr Field kDeedFields[] = {
    FIELD(On).Means("The day on which it happened."),
    FIELD(Kind).In(kDeedSigned, kDeedCalledOff).From(kDeedKinds).Means("What has happened."),
    FIELD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone; 0 nobody's."),
    FIELD(House).Means("The promotion's initials then."),
    FIELD(Who).Means("The worker, owner or show, or the promotion's full name."),
    FIELD(Other).Means("Whom he was signed away from, the network, or the injury."),
    FIELD(Number).Means("Months hurt, weeks on the air, size class reached, or a rival's draw."),
    FIELD(Viewers).Counts("hundredths").Means("A show's rating, or its buy rate."),
    FIELD(People).Counts("people").Means("A show's crowd."),
};
#undef FIELD

}  // namespace

// Fifty years of three shows a week and of thirty promotions' months stay below it.
GM_LAYOUT(HistoryEntry, "history.dat", 30000, kPastFields)
// Two months of a busy world take about a third of it.
GM_LAYOUT(Deed, "deeds.dat", 3000, kDeedFields)

}  // namespace grapplemont
