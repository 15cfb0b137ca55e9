#include "records/gameinfo.h"

namespace grapplemont {

namespace {

#define FIELD(member) GM_FIELD(GameInfo, member)
#define JOB(member) GM_PART(GameInfo, Jobs, Job, member, "Job#" #member)
#define MAIL(member) FIELD(member).In(0, 2).From(kMailOptions)

constexpr Field kFields[] = {
    FIELD(PlayerName).Means("The player's name."),
    FIELD(Reputation).Counts("percent").Means("The player's standing."),
    FIELD(StartDate).Means("The day the game began."),
    GM_NUMBERED(GameInfo, Shortlist)
        .In(0, 32767)
        .LeadsTo(Refers::Worker)
        .Means("Workers to keep an eye on."),
    JOB(Promotion).Means("Employer, or None."),
    JOB(Started).Means("The day the job began."),
    JOB(StartImage).In(0, 100).Counts("percent").Means("Image of the promotion at that day."),
    JOB(StartSize).In(0, 6).Means("Size of the promotion at that day."),
    JOB(EndImage).In(0, 100).Counts("percent").Means("Image at the end; 0 for the present job."),
    JOB(EndSize).In(0, 6).Means("Size at the end; 0 for the present job."),
    FIELD(SaveName).Means("The name of the saved game."),
    FIELD(LoadingSet).In(0, 4).Means("Pictures of the waiting screen; 0 the program's own."),
    FIELD(TapeWait)
        .In(0, 32767)
        .LeadsTo(Refers::Network)
        .Means("The network that holds a promo tape."),
    FIELD(TvOfferWait)
        .In(0, 32767)
        .LeadsTo(Refers::Network)
        .Means("The network that has made an offer."),
    FIELD(PlayerPromotion).In(1, 32767).LeadsTo(Refers::Promotion).Means("The player's promotion."),
    FIELD(Difficulty).In(1, 4).From(kDifficulties).Means("Difficulty."),
    FIELD(Today).Means("The present day."),
    MAIL(MailOwners).Means("Mails about new owners."),
    MAIL(MailWorkerHire).Means("Mails about workers signed."),
    MAIL(MailWorkerFire).Means("Mails about workers fired."),
    MAIL(MailStaffHire).Means("Mails about staff signed."),
    MAIL(MailStaffFire).Means("Mails about staff fired."),
    MAIL(MailTv).Means("Mails about television deals."),
    MAIL(MailRetirement).Means("Mails about retirements."),
    MAIL(MailOtherFed).Means("Mails about rival finances, sizes and new promotions."),
    MAIL(MailSponsor).Means("Mails about sponsors."),
    FIELD(EndCode).In(0, 100).Means("0 while the game goes on."),
    MAIL(MailShows).Means("Mails about rival events."),
    MAIL(MailTvShow).Means("Mails about rival television shows."),
    MAIL(MailStaffRetire).Means("Mails about staff retirements."),
    FIELD(MailDev).In(0, 2).From(kTwoWayMailOptions).Means("Reports of the development territory."),
    FIELD(MailTrain).In(0, 2).From(kTwoWayMailOptions).Means("Reports of the training camp."),
    FIELD(Reporter).In(0, 2).Means("Who reports the shows."),
    FIELD(Economy).Means("The world's economy."),
    FIELD(EconomyRising).Means("The economy drifts upward."),
    FIELD(Version).Means("Version of the slot."),
};

constexpr RecordLayout kLayout{"GameInfo", "gameinfo.dat", sizeof(GameInfo), 1, kFields};

}  // namespace

template <>
const RecordLayout& LayoutOf<GameInfo>() {
  return kLayout;
}

bool HasEnded(const GameInfo& game) {
  return game.EndCode > kGoesOn && game.EndCode <= kLastEnd;
}

}  // namespace grapplemont
