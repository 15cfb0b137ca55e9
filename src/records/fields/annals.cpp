#include "records/fields/annals.h"

#include "records/fields/vocabulary.h"

namespace grapplemont {

namespace {

constexpr Term kAnnalKinds[] = {{kAnnalsBegin, "", "The annals begin"},
                                {kAnnalFounded, "", "Promotion opened"},
                                {kAnnalClosed, "", "Promotion closed"},
                                {kAnnalBought, "", "Promotion bought"},
                                {kAnnalRisen, "", "Risen a size class"},
                                {kAnnalFallen, "", "Fallen a size class"},
                                {kAnnalOwner, "", "New owner"},
                                {kAnnalSigned, "", "Signed"},
                                {kAnnalStolen, "", "Signed away from another"},
                                {kAnnalLetGo, "", "Let go"},
                                {kAnnalLeft, "", "Left"},
                                {kAnnalRetired, "", "Retired"},
                                {kAnnalHurt, "", "Badly hurt"},
                                {kAnnalRenamed, "", "Took a new ring name"},
                                {kAnnalTeamed, "", "Tag Team formed"},
                                {kAnnalParted, "", "Tag Team split"},
                                {kAnnalStable, "", "Stable founded"},
                                {kAnnalJoined, "", "Joined a stable"},
                                {kAnnalFeud, "", "Feud began"},
                                {kAnnalFeudOver, "", "Feud ended with a last match"},
                                {kAnnalFeudCold, "", "Feud ended without one"},
                                {kAnnalTitle, "", "Title made"}};
constexpr Term kSexes[] = {{kNobodysSex, "", "Nobody"},
                           {kMan, "", "A man"},
                           {kWoman, "", "A woman"},
                           {kSeveral, "", "Several"}};

#define ANNAL(member) GM_FIELD(Annal, member)
constexpr Field kAnnalFields[] = {
    ANNAL(On).Means("The day on which it happened."),
    ANNAL(Kind).In(kAnnalsBegin, kLastAnnal).From(kAnnalKinds).Means("What has happened."),
    ANNAL(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone; 0 nobody's."),
    ANNAL(House).Means("The promotion's initials then."),
    GM_NUMBERED(Annal, Who).LeadsTo(Refers::Worker).Means("Who; 0 for who has left the world."),
    GM_NUMBERED(Annal, Whom)
        .LeadsTo(Refers::Worker)
        .Means("With or against whom; 0 for who has left the world."),
    ANNAL(Sex).In(kNobodysSex, kSeveral).From(kSexes).Means("What the first are."),
    ANNAL(Name).Means("What the first were called."),
    ANNAL(Other).Means("What the others were called, or the other promotion."),
    ANNAL(What).Means("The promotion's full name, the Title, the team, the stable or the injury."),
    ANNAL(Number).Means("Size class, months hurt, matches won, or the version of the file."),
    ANNAL(Against).Means("Matches that the others won."),
    ANNAL(Days).Counts("days").Means("How long it had lasted."),
};

}  // namespace

GM_LAYOUT(Annal, "annals.dat", 32000, kAnnalFields)

}  // namespace grapplemont
