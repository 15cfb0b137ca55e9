#include "records/fields/people.h"

#include "records/fields/fields.h"

namespace grapplemont {

namespace {

#define WORKER(member) GM_FIELD(Worker, member)
constexpr Field kWorkerFields[] = {
    WORKER(Uid).In(1, 32767).Key().Means("The number by which other records know the worker."),
    WORKER(Name).Key().Means("Full name."),
    WORKER(ShortName).Means("The name that reports use."),
    WORKER(Gender).From(kGenders).Means("Male or female."),
    WORKER(BirthMonth).In(0, 12).Means("Month of the birthday; 0 is drawn at the start of a game."),
    WORKER(Age).Counts("years").Means("Age."),
    WORKER(Weight).From(kWeights).Means("Heavyweight or lightweight."),
    WORKER(Employer).LeadsTo(Refers::Promotion).Means("The promotion worked for."),
    WORKER(ContractType).From(kContracts).Means("A written contract, or none but a word given."),
    WORKER(ContractMonths).Counts("months").Means("Months left; -1 has no end."),
    WORKER(CreativeControl).Means("May veto decisions about the own character."),
    WORKER(Wage).Counts("thousand dollars a month").Means("Wage."),
    WORKER(Position).In(1, 86).From(kStoredPositions).Means("Place on the card."),
    WORKER(Status).From(kStatuses).Means("Whether the worker can work now."),
    WORKER(StatusMonths).Counts("months").Means("Months left of the status."),
    WORKER(InjuryName).Means("What is injured."),
    WORKER(Brawl).Counts("percent").Means("Skill at brawling."),
    WORKER(Technical).Counts("percent").Means("Skill on the mat."),
    WORKER(Speed).Counts("percent").Means("Skill in the air."),
    WORKER(Stiff).Counts("percent").Means("How hard the blows really land."),
    WORKER(Sell).Counts("percent").Means("How well an opponent is made to look."),
    WORKER(Over).Counts("percent").Means("Popularity."),
    WORKER(Charisma).Counts("percent").Means("Presence and talking."),
    WORKER(HighSpots).Means("Willing to do high-risk spots."),
    WORKER(Attitude).Counts("percent").Means("How easy to work with."),
    WORKER(Speaks).Means("Can do interviews."),
    WORKER(Disposition).From(kDispositions).Means("Face, Heel or Tweener."),
    WORKER(Finisher1).Means("The main finisher."),
    WORKER(Finisher1Submission).Means("The main finisher is a submission."),
    WORKER(Finisher1TopRope).Means("The main finisher comes off the top rope."),
    WORKER(Finisher1Ground).Means("The main finisher is done on the ground."),
    WORKER(Finisher2).Means("The second finisher."),
    WORKER(Finisher2Submission).Means("The second finisher is a submission."),
    WORKER(Finisher2TopRope).Means("The second finisher comes off the top rope."),
    WORKER(Finisher2Ground).Means("The second finisher is done on the ground."),
    WORKER(Stable).LeadsTo(Refers::Stable).Means("The stable belonged to, or None."),
    WORKER(Manager).LeadsTo(Refers::Worker).Means("The worker's manager."),
    WORKER(Split).LeadsTo(Refers::Split).Means("The part of a split roster, or None."),
    WORKER(Condition).Counts("percent").Means("Physical condition."),
    WORKER(Morale).Counts("percent").Means("Morale."),
    WORKER(Behaviour).Counts("percent").Means("Low is a trouble maker."),
    WORKER(Loyalty).Counts("percent").Means("Feeling towards the employer."),
    WORKER(Unsackable).Means("Cannot be released."),
    WORKER(TurnPending).Means("A turn is being prepared."),
    WORKER(LastTurn).Means("The day of the last turn."),
    WORKER(Trainer).Means("Able to train others."),
    WORKER(SuperstarLook).Means("Looks like a star."),
    WORKER(Announcer).Means("Can work as an announcer."),
    WORKER(Booker).Means("Can work as a booker."),
    WORKER(Potential).Counts("percent").Means("The popularity that can be grown to."),
    WORKER(OverFloor).Counts("percent").Means("A fall of the promotion takes Over no lower."),
    WORKER(Debuted).Means("Has appeared on the promotion's shows."),
    WORKER(RetiringSoon).Means("Has announced retirement."),
    WORKER(Diva).Means("A woman with sex appeal."),
};

}  // namespace

GM_LAYOUT(Worker, "wrestler.dat", 25000, kWorkerFields)

bool IsRosterPosition(int position) {
  return position >= kMainEvent && position <= kJobber;
}

bool IsOnRoster(const Worker& worker) {
  return IsRosterPosition(worker.Position);
}

bool IsInDevelopment(const Worker& worker) {
  return worker.Position == kDevelopmentDeal || worker.Position >= kSentToDevelopment;
}

bool IsSentAway(const Worker& worker) {
  return worker.Position > kSentToDevelopment && worker.Position <= kSentToDevelopment + kJobber;
}

namespace {

#define STAFF(member) GM_FIELD(Staff, member)
constexpr Field kStaffFields[] = {
    STAFF(Uid).In(1, 32767).Key().Means("The number by which other records know the person."),
    STAFF(Name).Key().Means("Full name."),
    STAFF(Gender).From(kGenders).Means("Male or female."),
    STAFF(BirthMonth).In(1, 12).Means("Month of the birthday."),
    STAFF(Age).Counts("years").Means("Age."),
    STAFF(Employer).LeadsTo(Refers::Promotion).Means("The promotion worked for."),
    STAFF(ContractMonths).Counts("months").Means("Months left; -1 has no end."),
    STAFF(ContractType).From(kContracts).Means("A written contract, or none but a word given."),
    STAFF(Wage).Counts("thousand dollars a month").Means("Wage; an Owner's style 1 to 6."),
    STAFF(Position).In(1, 8).From(kStaffPositions).Means("Post."),
    STAFF(Talent).Counts("percent").Means("Talent at the post."),
    STAFF(Morale).Counts("percent").Means("Morale."),
    STAFF(Backstage).Counts("percent").Means("Low is a trouble maker."),
    STAFF(Loyalty).Counts("percent").Means("Feeling towards the employer."),
    STAFF(Unsackable).Means("Cannot be fired."),
    STAFF(Booker).Means("Can also book."),
};

constexpr Field kTeamFields[] = {
    GM_FIELD(Team, Name).Means("Name of the team."),
    GM_FIELD(Team, Worker1).LeadsTo(Refers::Worker).Means("One partner."),
    GM_FIELD(Team, Worker2).LeadsTo(Refers::Worker).Means("The other partner."),
    GM_FIELD(Team, Finisher).Means("The team's finisher."),
    GM_FIELD(Team, Experience).Counts("percent").Means("How well the two know each other."),
};

constexpr Field kStableFields[] = {
    GM_FIELD(Stable, Name).Means("Name of the stable."),
    GM_FIELD(Stable, Owner)
        .OrNone()
        .LeadsTo(Refers::Promotion)
        .Means("The promotion it belongs to."),
};

#define TITLE(member) GM_FIELD(Title, member)
constexpr Field kTitleFields[] = {
    TITLE(Name).Means("Name of the belt."),
    TITLE(Singles).Means("A singles title; else a tag title."),
    TITLE(Owner).OrNone().LeadsTo(Refers::Promotion).Means("The promotion it belongs to."),
    TITLE(Holder).LeadsTo(Refers::Worker).Means("The champion."),
    TITLE(Partner).LeadsTo(Refers::Worker).Means("The champion's partner."),
    TITLE(Lightweight).Means("Lightweights only."),
    TITLE(Woman).Means("Women only."),
    TITLE(Image).Counts("percent").Means("How marketable the belt is in the eyes of the fans."),
    TITLE(Suspended).Means("No title matches until reactivated."),
    GM_PART(Title, Reigns, Reign, Won, "Won#").Means("The day a reign began."),
    GM_PART(Title, Reigns, Reign, Holder, "Holder#").Means("Who reigned."),
    GM_PART(Title, Reigns, Reign, Lost, "Lost#")
        .Means("The day a reign ended; 1980-01-01 for none."),
};

}  // namespace

GM_LAYOUT(Staff, "staff.dat", 10000, kStaffFields)
GM_LAYOUT(Team, "teams.dat", 10000, kTeamFields)
GM_LAYOUT(Stable, "stables.dat", 10000, kStableFields)
GM_LAYOUT(Title, "belt.dat", 5000, kTitleFields)

void BeginReign(Title& title, Day today, std::string_view holder) {
  std::shift_right(title.Reigns.begin(), title.Reigns.end(), 1);
  title.Reigns[1].Lost = today;
  title.Reigns[0].Won = today;
  title.Reigns[0].Holder = holder;
  title.Reigns[0].Lost = kNoTitleDate;
}

}  // namespace grapplemont
