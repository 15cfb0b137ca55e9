#include "records/fields/gameinfo.h"

namespace grapplemont {

namespace {

#define GAME(member) GM_FIELD(GameInfo, member)
#define JOB(member) GM_PART(GameInfo, Jobs, Job, member, "Job#" #member)
#define MAIL(member) GAME(member).In(0, 2).From(kMailOptions)

constexpr Field kGameInfoFields[] = {
    GAME(PlayerName).Means("The player's name."),
    GAME(Reputation).Counts("percent").Means("The player's standing."),
    GAME(StartDate).Means("The day the game began."),
    GM_NUMBERED(GameInfo, Shortlist).LeadsTo(Refers::Worker).Means("Workers to keep an eye on."),
    JOB(Promotion).Means("Employer, or None."),
    JOB(Started).Means("The day the job began."),
    JOB(StartImage).In(0, 100).Counts("percent").Means("Image of the promotion at that day."),
    JOB(StartSize).In(0, 6).Means("Size of the promotion at that day."),
    JOB(EndImage).In(0, 100).Counts("percent").Means("Image at the end; 0 for the present job."),
    JOB(EndSize).In(0, 6).Means("Size at the end; 0 for the present job."),
    GAME(SaveName).Means("The name of the saved game."),
    GAME(LoadingSet).In(0, 4).Means("Pictures of the waiting screen; 0 the program's own."),
    GAME(TapeWait).LeadsTo(Refers::Network).Means("The network that holds a promo tape."),
    GAME(TvOfferWait).LeadsTo(Refers::Network).Means("The network that has made an offer."),
    GAME(PlayerPromotion).LeadsTo(Refers::Promotion).In(1, 32767).Means("The player's promotion."),
    GAME(Difficulty).In(1, 4).From(kDifficulties).Means("Difficulty."),
    GAME(Today).Means("The present day."),
    MAIL(MailOwners).Means("Mails about new owners."),
    MAIL(MailWorkerHire).Means("Mails about workers signed."),
    MAIL(MailWorkerFire).Means("Mails about workers fired."),
    MAIL(MailStaffHire).Means("Mails about staff signed."),
    MAIL(MailStaffFire).Means("Mails about staff fired."),
    MAIL(MailTv).Means("Mails about television deals."),
    MAIL(MailRetirement).Means("Mails about retirements."),
    MAIL(MailOtherFed).Means("Mails about rival finances, sizes and new promotions."),
    MAIL(MailSponsor).Means("Mails about sponsors."),
    GAME(EndCode).In(0, 100).Means("0 while the game goes on."),
    MAIL(MailShows).Means("Mails about rival events."),
    MAIL(MailTvShow).Means("Mails about rival television shows."),
    MAIL(MailStaffRetire).Means("Mails about staff retirements."),
    GAME(MailDev).In(0, 2).From(kTwoWayMailOptions).Means("Reports of the development territory."),
    GAME(MailTrain).In(0, 2).From(kTwoWayMailOptions).Means("Reports of the training camp."),
    GAME(Reporter).In(0, 2).Means("Who reports the shows."),
    GAME(Economy).Means("The world's economy."),
    GAME(EconomyRising).Means("The economy drifts upward."),
    GAME(Version).Means("Version of the slot."),
};

}  // namespace

GM_LAYOUT(GameInfo, "gameinfo.dat", 1, kGameInfoFields)

bool HasEnded(const GameInfo& game) {
  return game.EndCode > kGoesOn && game.EndCode <= kLastEnd;
}

namespace {

constexpr Term kStages[] = {
    {kNoShow, "", "None"}, {kShowRuns, "", "Under way"}, {kShowClosed, "", "Closed"}};

#define RUN(member) GM_FIELD(ShowRun, member)
constexpr Field kRunFields[] = {
    RUN(Stage).In(kNoShow, kShowClosed).From(kStages).Means("How far the show has come."),
    RUN(IsEvent).Means("A monthly Event; else a television show."),
    RUN(Current).In(0, 11).Means("Record of match.dat told last; 0 before the first."),
    RUN(PreviousCrowd).In(0, 100).Means("Crowd reaction of the last match told."),
    RUN(LastOverall).In(0, 100).Means("Overall rating of the Segment told last."),
    RUN(FlatNight).Means("Nothing quite comes off tonight: matches lose a tenth."),
    GM_NUMBERED(ShowRun, FeudTouched).Means("The show has used the feud of this slot."),
    RUN(ShowSum).Means("Ratings and charges added up; at the close the show's rating."),
    RUN(ShowSegments).Means("How many ratings stand in the sum."),
    RUN(Announcer).LeadsTo(Refers::Staff).Means("Primary announcer."),
    RUN(Colour).In(0, 32767).Means("Colour commentator: staff, or a worker."),
    RUN(ColourIsWorker).Means("The colour commentator is a worker."),
    RUN(AnnouncerCharge).Means("What the primary announcer cost the sum."),
    RUN(ColourCharge).Means("What the colour commentator cost the sum."),
    RUN(ProductionCharge).Means("What poor production cost the sum."),
    RUN(ExtraBonus).Means("What an Event's extra added to the sum."),
    RUN(ExtraCost).Counts("dollars").Means("What an Event's extra cost."),
};

}  // namespace

GM_LAYOUT(ShowRun, "showrun.dat", 1, kRunFields)

namespace {

constexpr Term kTours[] = {{0, "", "None"}, {1, "", "Backyard"}, {2, "", "Television"}};

constexpr Field kGuideFields[] = {
    GM_FIELD(GuideState, Tour).In(0, 2).From(kTours).Means("Which first week is told."),
    GM_NUMBERED(GuideState, Done).Means("The step is done."),
    GM_FIELD(GuideState, Closed).Means("The player has closed the guide."),
};

}  // namespace

GM_LAYOUT(GuideState, "guide.dat", 1, kGuideFields)

namespace {

constexpr Field kKeyFields[] = {
    GM_FIELD(WorldKey, Key).Means("Sets this game's hidden gifts and unseen cards apart."),
};

}  // namespace

GM_LAYOUT(WorldKey, "worldkey.dat", 1, kKeyFields)

}  // namespace grapplemont
