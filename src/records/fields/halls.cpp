#include "records/fields/halls.h"

namespace grapplemont {

namespace {

#define TOTALS(member) GM_FIELD(TotalsState, member)
constexpr Field kTotalsFields[] = {
    TOTALS(Version).In(1, 32767).Means("Form in which the totals are kept."),
    TOTALS(Since).Means("The day counting began."),
    TOTALS(Counted).Means("What happened before this day is in the totals."),
    TOTALS(LastCareer).Means("The highest number that a career was given."),
};

#define CAREER(member) GM_FIELD(Career, member)
constexpr Field kCareerFields[] = {
    CAREER(Number).Means("Number of the career, never given twice."),
    CAREER(Worker).LeadsTo(Refers::Worker).Means("Whose; 0 for who has left the world."),
    CAREER(Name).Means("Name, as they were last called."),
    CAREER(Gender).Means("-1 male, 0 female."),
    CAREER(First).Means("The day they were first seen."),
    CAREER(Last).Means("The day they left the business; 1980-01-01 while they are in it."),
    CAREER(Top).Counts("months").Means("Months with Over at 80 or more."),
    CAREER(Hurt).Counts("months").Means("Months injured."),
    CAREER(Peak).Counts("percent").Means("The highest Over at the first of a month."),
    CAREER(PeakOn).Means("The first of a month that saw it."),
    CAREER(Renown).Means("Days with a Title, each as much as its image."),
    CAREER(Great).Means("Matches rated 90 or more."),
    CAREER(Streak).Means("Matches won in a row; below 0, lost."),
    CAREER(MostWins).Means("The longest row of matches won."),
    CAREER(MostLosses).Means("The longest row of matches lost."),
    CAREER(Rise).In(0, 100).Counts("percent").Means("The highest rise of Over in a year."),
    CAREER(RiseYear).In(0, 9999).Means("The year of it."),
    CAREER(Fall).In(0, 100).Counts("percent").Means("The deepest fall of Over in a year."),
    CAREER(FallYear).In(0, 9999).Means("The year of it."),
    GM_NUMBERED(Career, Awards)
        .Means("How often each award was theirs, in the order of awards.dat."),
    CAREER(Elected).In(0, 9999).Means("The year of the hall of fame; 0 for none."),
};

#define TENURE(member) GM_FIELD(Tenure, member)
constexpr Field kTenureFields[] = {
    TENURE(Career).Means("Number of the career."),
    TENURE(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    TENURE(Initials).Means("Initials of the promotion."),
    TENURE(First).Means("The day it began, as far as it was seen."),
    TENURE(Last).Means("The last first of a month that saw them there."),
    TENURE(Months).Counts("months").Means("Firsts of months under contract."),
    TENURE(Won).Means("Matches won."),
    TENURE(Lost).Means("Matches lost."),
    TENURE(Drawn).Means("Matches drawn."),
    TENURE(ForTitles).Means("Matches for a Title."),
    TENURE(MainEvents).Means("Matches that closed a show."),
    TENURE(Rough).Means("Matches of a type that not every product bears."),
    TENURE(Ratings).Means("Sum of the ratings."),
    TENURE(Best).Counts("percent").Means("The best rating."),
    TENURE(Reigns).Means("Reigns that began."),
    TENURE(Days).Means("Days with a Title."),
    TENURE(Defences).Means("Titles kept in the ring."),
    TENURE(Wage).Counts("thousand dollars a month").Means("The highest wage."),
};

#define PAIR(member) GM_FIELD(Partnership, member)
constexpr Field kPairFields[] = {
    PAIR(One).Means("Number of a career, the lower of both."),
    PAIR(Two).Means("Number of the other."),
    PAIR(Team).Means("Name of the team, or nothing."),
    PAIR(Promotion).In(0, 32767).Means("Uid of the last promotion, which may be gone."),
    PAIR(Initials).Means("Initials of the last promotion."),
    PAIR(First).Means("The day of the first match."),
    PAIR(Last).Means("The day of the last one."),
    PAIR(Won).Means("Matches won."),
    PAIR(Lost).Means("Matches lost."),
    PAIR(Drawn).Means("Matches drawn."),
    PAIR(Reigns).Means("Reigns that began."),
    PAIR(Days).Means("Days with a Title."),
    PAIR(Defences).Means("Titles kept in the ring."),
};

constexpr Term kFeats[] = {{kFeatMatch, "", "Match"},
                           {kFeatGate, "", "Gate"},
                           {kFeatViewers, "", "Television rating"},
                           {kFeatBuys, "", "Buy rate"},
                           {kFeatYoungest, "", "Youngest champion"},
                           {kFeatOldest, "", "Oldest champion"},
                           {kFeatFeud, "", "Feud"}};

#define FEAT(member) GM_FIELD(Feat, member)
constexpr Field kFeatFields[] = {
    FEAT(Kind).In(kFeatMatch, kFeatFeud).From(kFeats).Means("What it is."),
    FEAT(On).Means("The day; of a feud, the day it began."),
    FEAT(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    FEAT(Initials).Means("Initials of the promotion."),
    FEAT(Number).Means("How much: percent, people, hundredths, months of age or days."),
    FEAT(Career).Means("Number of the career; 0 for nobody's."),
    FEAT(Who).Means("Who or what it was, as it was called."),
    FEAT(Against).Means("The other side."),
    FEAT(What).Means("The show or the Title."),
};

constexpr Term kYearLines[] = {{kYearMatch, "", "Best match"},
                               {kYearGate, "", "Biggest gate"},
                               {kYearShow, "", "Best show"},
                               {kYearRise, "", "Rise"},
                               {kYearFall, "", "Fall"},
                               {kYearDebut, "", "Newcomer"},
                               {kYearRetired, "", "Retired"},
                               {kYearJoined, "", "Came"},
                               {kYearLeft, "", "Went"},
                               {kYearFounded, "", "Promotion founded"},
                               {kYearClosed, "", "Promotion closed"},
                               {kYearRisen, "", "Risen a size class"},
                               {kYearFallen, "", "Fallen a size class"},
                               {kYearStanding, "", "Standing"},
                               {kYearPlayer, "", "The player's year"},
                               {kYearElected, "", "Hall of fame"},
                               {kYearChampion, "", "Champion"}};

#define YEAR(member) GM_FIELD(YearLine, member)
constexpr Field kYearFields[] = {
    YEAR(Year).In(0, 9999).Means("The year."),
    YEAR(Kind).In(kYearMatch, kYearChampion).From(kYearLines).Means("What the line tells."),
    YEAR(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    YEAR(Initials).Means("Initials of the promotion."),
    YEAR(Number).Means("How much, in the unit of the kind."),
    YEAR(Other).Means("A second number."),
    YEAR(Career).Means("Number of the career; 0 for nobody's."),
    YEAR(Who).Means("Who or what, as it was called."),
    YEAR(What).Means("What more there is to tell."),
};

#define HALL(member) GM_FIELD(HallMember, member)
constexpr Field kHallFields[] = {
    HALL(On).Means("The day of the vote."),
    HALL(Career).Means("Number of the career."),
    HALL(Name).Means("Name, as they were called then."),
    HALL(Initials).Means("Initials of the promotion they were with for longest."),
    HALL(From).In(0, 9999).Means("First year of the career."),
    HALL(To).In(0, 9999).Means("Last year of it, or the year of the vote."),
    GM_NUMBERED(HallMember, Count).Means("How much of each merit, in the order of the rule."),
    GM_NUMBERED(HallMember, Points).Means("The points for it."),
};

}  // namespace

GM_LAYOUT(TotalsState, "totals.dat", 1, kTotalsFields)
// Everybody there is, and two thousand of those who have gone.
GM_LAYOUT(Career, "careers.dat", 30000, kCareerFields)
GM_LAYOUT(Tenure, "tenures.dat", 60000, kTenureFields)
GM_LAYOUT(Partnership, "pairs.dat", 10000, kPairFields)
// Fifty of each kind in the world and ten in each promotion.
GM_LAYOUT(Feat, "feats.dat", 8000, kFeatFields)
// A hundred and fifty years of some two hundred lines.
GM_LAYOUT(YearLine, "yearbook.dat", 40000, kYearFields)
GM_LAYOUT(HallMember, "hall.dat", 2000, kHallFields)

}  // namespace grapplemont
