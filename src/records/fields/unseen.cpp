#include "records/fields/unseen.h"

#include "records/fields/vocabulary.h"

namespace grapplemont {

namespace {

constexpr Term kUnseenShows[] = {{kUnseenTv, "", "Television show"},
                                 {kUnseenEvent, "", "Event"},
                                 {kUnseenHouseShow, "", "House show"}};

constexpr Term kGrudgeReasons[] = {{kGrudgeCard, "", "Met on a card"},
                                   {kGrudgeTitle, "", "Fought for a Title"},
                                   {kGrudgeSplit, "", "Were a team"},
                                   {kGrudgeStable, "", "Lead two stables"}};

#define CARD(member) GM_FIELD(CardMatch, member)
constexpr Field kCardFields[] = {
    CARD(On).Means("The day of the show."),
    CARD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    CARD(Show).In(kUnseenTv, kUnseenHouseShow).From(kUnseenShows).Means("What it was part of."),
    CARD(Row).In(1, 20).Means("Place on the card; the last one is the main event."),
    CARD(Style).In(1, 100).Means("Style, as in match.dat."),
    CARD(MatchType).In(0, 100).Means("Type, as in match.dat."),
    CARD(Finish).In(0, 100).Means("How it ended, as in match.dat."),
    CARD(Winners).In(0, 6).Means("How many of the workers won it; 0 is a draw."),
    GM_NUMBERED(CardMatch, Worker)
        .LeadsTo(Refers::Worker)
        .Means("Who was in it, the winners first; 0 for who has left the world."),
    CARD(Champion).LeadsTo(Refers::Worker).Means("Who held the Title before; 0 for nobody."),
    CARD(Changed).Means("The winners took the Title."),
    CARD(Title).Means("The Title at stake, or nothing."),
    CARD(Rating).Counts("percent").Means("Rating."),
};

#define GRUDGE(member) GM_FIELD(Grudge, member)
constexpr Field kGrudgeFields[] = {
    GRUDGE(Since).Means("The day it began."),
    GRUDGE(Promotion).In(0, 32767).Means("Uid of the promotion where it is fought out."),
    GRUDGE(One).LeadsTo(Refers::Worker).Means("Who."),
    GRUDGE(Two).LeadsTo(Refers::Worker).Means("Against whom."),
    GRUDGE(WonOne).Means("Matches that the first has won."),
    GRUDGE(WonTwo).Means("Matches that the second has won."),
    GRUDGE(Heat).Counts("percent").Means("Heat."),
    GRUDGE(Why).In(kGrudgeCard, kGrudgeStable).From(kGrudgeReasons).Means("What it began with."),
};

constexpr Field kRingNameFields[] = {
    GM_FIELD(RingName, Until).Means("The day of the new name."),
    GM_FIELD(RingName, Worker).LeadsTo(Refers::Worker).Means("Whose name it was."),
    GM_FIELD(RingName, Name).Means("The old name."),
};

}  // namespace

// Two months of thirty promotions' cards.
GM_LAYOUT(CardMatch, "rivalcards.dat", 4000, kCardFields)
GM_LAYOUT(Grudge, "grudges.dat", 200, kGrudgeFields)
GM_LAYOUT(RingName, "ringnames.dat", 2000, kRingNameFields)

}  // namespace grapplemont
