#include "records/fields/people.h"

#include <algorithm>

#include "records/fields/fields.h"

namespace grapplemont {

namespace {

#define FIELD(member) GM_FIELD(Worker, member)

constexpr Field kFields[] = {
    FIELD(Uid).In(1, 32767).Key().Means("The number by which other records know the worker."),
    FIELD(Name).Key().Means("Full name."),
    FIELD(ShortName).Means("The name that reports use."),
    FIELD(Gender).From(kGenders).Means("Male or female."),
    FIELD(BirthMonth).In(0, 12).Means("Month of the birthday; 0 is drawn at the start of a game."),
    FIELD(Age).Counts("years").Means("Age."),
    FIELD(Weight).From(kWeights).Means("Heavyweight or lightweight."),
    FIELD(Employer).LeadsTo(Refers::Promotion).Means("The promotion worked for."),
    FIELD(ContractType).From(kContracts).Means("A written contract, or none but a word given."),
    FIELD(ContractMonths).Counts("months").Means("Months left; -1 has no end."),
    FIELD(CreativeControl).Means("May veto decisions about the own character."),
    FIELD(Wage).Counts("thousand dollars a month").Means("Wage."),
    FIELD(Position).In(1, 86).From(kStoredPositions).Means("Place on the card."),
    FIELD(Status).From(kStatuses).Means("Whether the worker can work now."),
    FIELD(StatusMonths).Counts("months").Means("Months left of the status."),
    FIELD(InjuryName).Means("What is injured."),
    FIELD(Brawl).Counts("percent").Means("Skill at brawling."),
    FIELD(Technical).Counts("percent").Means("Skill on the mat."),
    FIELD(Speed).Counts("percent").Means("Skill in the air."),
    FIELD(Stiff).Counts("percent").Means("How hard the blows really land."),
    FIELD(Sell).Counts("percent").Means("How well an opponent is made to look."),
    FIELD(Over).Counts("percent").Means("Popularity."),
    FIELD(Charisma).Counts("percent").Means("Presence and talking."),
    FIELD(HighSpots).Means("Willing to do high-risk spots."),
    FIELD(Attitude).Counts("percent").Means("How easy to work with."),
    FIELD(Speaks).Means("Can do interviews."),
    FIELD(Disposition).From(kDispositions).Means("Face, Heel or Tweener."),
    FIELD(Finisher1).Means("The main finisher."),
    FIELD(Finisher1Submission).Means("The main finisher is a submission."),
    FIELD(Finisher1TopRope).Means("The main finisher comes off the top rope."),
    FIELD(Finisher1Ground).Means("The main finisher is done on the ground."),
    FIELD(Finisher2).Means("The second finisher."),
    FIELD(Finisher2Submission).Means("The second finisher is a submission."),
    FIELD(Finisher2TopRope).Means("The second finisher comes off the top rope."),
    FIELD(Finisher2Ground).Means("The second finisher is done on the ground."),
    FIELD(Stable).LeadsTo(Refers::Stable).Means("The stable belonged to, or None."),
    FIELD(Manager).LeadsTo(Refers::Worker).Means("The worker's manager."),
    FIELD(Split).LeadsTo(Refers::Split).Means("The part of a split roster, or None."),
    FIELD(Condition).Counts("percent").Means("Physical condition."),
    FIELD(Morale).Counts("percent").Means("Morale."),
    FIELD(Behaviour).Counts("percent").Means("Low is a trouble maker."),
    FIELD(Loyalty).Counts("percent").Means("Feeling towards the employer."),
    FIELD(Unsackable).Means("Cannot be released."),
    FIELD(TurnPending).Means("A turn is being prepared."),
    FIELD(LastTurn).Means("The day of the last turn."),
    FIELD(Trainer).Means("Able to train others."),
    FIELD(SuperstarLook).Means("Looks like a star."),
    FIELD(Announcer).Means("Can work as an announcer."),
    FIELD(Booker).Means("Can work as a booker."),
    FIELD(Potential).Counts("percent").Means("The popularity that can be grown to."),
    FIELD(OverFloor).Counts("percent").Means("A fall of the promotion takes Over no lower."),
    FIELD(Debuted).Means("Has appeared on the promotion's shows."),
    FIELD(RetiringSoon).Means("Has announced retirement."),
    FIELD(Diva).Means("A woman with sex appeal."),
};

}  // namespace

GM_LAYOUT(Worker, "wrestler.dat", 25000, kFields)

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

constexpr Field kStaffFields[] = {
    GM_FIELD(Staff, Uid)
        .In(1, 32767)
        .Key()
        .Means("The number by which other records know the person."),
    GM_FIELD(Staff, Name).Key().Means("Full name."),
    GM_FIELD(Staff, Gender).From(kGenders).Means("Male or female."),
    GM_FIELD(Staff, BirthMonth).In(1, 12).Means("Month of the birthday."),
    GM_FIELD(Staff, Age).Counts("years").Means("Age."),
    GM_FIELD(Staff, Employer).LeadsTo(Refers::Promotion).Means("The promotion worked for."),
    GM_FIELD(Staff, ContractMonths).Counts("months").Means("Months left; -1 has no end."),
    GM_FIELD(Staff, ContractType)
        .From(kContracts)
        .Means("A written contract, or none but a word given."),
    GM_FIELD(Staff, Wage)
        .Counts("thousand dollars a month")
        .Means("Wage; an Owner's style 1 to 6."),
    GM_FIELD(Staff, Position).In(1, 8).From(kStaffPositions).Means("Post."),
    GM_FIELD(Staff, Talent).Counts("percent").Means("Talent at the post."),
    GM_FIELD(Staff, Morale).Counts("percent").Means("Morale."),
    GM_FIELD(Staff, Backstage).Counts("percent").Means("Low is a trouble maker."),
    GM_FIELD(Staff, Loyalty).Counts("percent").Means("Feeling towards the employer."),
    GM_FIELD(Staff, Unsackable).Means("Cannot be fired."),
    GM_FIELD(Staff, Booker).Means("Can also book."),
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

constexpr Field kTitleFields[] = {
    GM_FIELD(Title, Name).Means("Name of the belt."),
    GM_FIELD(Title, Singles).Means("A singles title; else a tag title."),
    GM_FIELD(Title, Owner)
        .OrNone()
        .LeadsTo(Refers::Promotion)
        .Means("The promotion it belongs to."),
    GM_FIELD(Title, Holder).LeadsTo(Refers::Worker).Means("The champion."),
    GM_FIELD(Title, Partner).LeadsTo(Refers::Worker).Means("The champion's partner."),
    GM_FIELD(Title, Lightweight).Means("Lightweights only."),
    GM_FIELD(Title, Woman).Means("Women only."),
    GM_FIELD(Title, Image)
        .Counts("percent")
        .Means("How marketable the belt is in the eyes of the fans."),
    GM_FIELD(Title, Suspended).Means("No title matches until reactivated."),
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
