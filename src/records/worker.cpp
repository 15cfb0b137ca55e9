#include "records/worker.h"

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
    FIELD(Employer).In(0, 32767).LeadsTo(Refers::Promotion).Means("The promotion worked for."),
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
    FIELD(Manager).In(0, 32767).LeadsTo(Refers::Worker).Means("The worker's manager."),
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

constexpr RecordLayout kLayout{"Worker", "wrestler.dat", sizeof(Worker), 25000, kFields};

}  // namespace

template <>
const RecordLayout& LayoutOf<Worker>() {
  return kLayout;
}

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

}  // namespace grapplemont
