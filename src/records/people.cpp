#include "records/people.h"

#include <algorithm>

#include "records/dates.h"

namespace grapplemont {

namespace {

#define FIELD(record, member) GM_FIELD(record, member)

constexpr Field kStaffFields[] = {
    FIELD(Staff, Uid)
        .In(1, 32767)
        .Key()
        .Means("The number by which other records know the person."),
    FIELD(Staff, Name).Key().Means("Full name."),
    FIELD(Staff, Gender).From(kGenders).Means("Male or female."),
    FIELD(Staff, BirthMonth).In(1, 12).Means("Month of the birthday."),
    FIELD(Staff, Age).Counts("years").Means("Age."),
    FIELD(Staff, Employer)
        .In(0, 32767)
        .LeadsTo(Refers::Promotion)
        .Means("The promotion worked for."),
    FIELD(Staff, ContractMonths).Counts("months").Means("Months left; -1 has no end."),
    FIELD(Staff, ContractType)
        .From(kContracts)
        .Means("A written contract, or none but a word given."),
    FIELD(Staff, Wage).Counts("thousand dollars a month").Means("Wage; an Owner's style 1 to 6."),
    FIELD(Staff, Position).In(1, 8).From(kStaffPositions).Means("Post."),
    FIELD(Staff, Talent).Counts("percent").Means("Talent at the post."),
    FIELD(Staff, Morale).Counts("percent").Means("Morale."),
    FIELD(Staff, Backstage).Counts("percent").Means("Low is a trouble maker."),
    FIELD(Staff, Loyalty).Counts("percent").Means("Feeling towards the employer."),
    FIELD(Staff, Unsackable).Means("Cannot be fired."),
    FIELD(Staff, Booker).Means("Can also book."),
};
constexpr RecordLayout kStaffLayout{"Staff", "staff.dat", sizeof(Staff), 10000, kStaffFields};

constexpr Field kTeamFields[] = {
    FIELD(Team, Name).Means("Name of the team."),
    FIELD(Team, Worker1).In(0, 32767).LeadsTo(Refers::Worker).Means("One partner."),
    FIELD(Team, Worker2).In(0, 32767).LeadsTo(Refers::Worker).Means("The other partner."),
    FIELD(Team, Finisher).Means("The team's finisher."),
    FIELD(Team, Experience).Counts("percent").Means("How well the two know each other."),
};
constexpr RecordLayout kTeamLayout{"Team", "teams.dat", sizeof(Team), 10000, kTeamFields};

constexpr Field kStableFields[] = {
    FIELD(Stable, Name).Means("Name of the stable."),
    FIELD(Stable, Owner)
        .In(0, 32767)
        .OrNone()
        .LeadsTo(Refers::Promotion)
        .Means("The promotion it belongs to."),
};
constexpr RecordLayout kStableLayout{"Stable", "stables.dat", sizeof(Stable), 10000, kStableFields};

constexpr Field kTitleFields[] = {
    FIELD(Title, Name).Means("Name of the belt."),
    FIELD(Title, Singles).Means("A singles title; else a tag title."),
    FIELD(Title, Owner)
        .In(0, 32767)
        .OrNone()
        .LeadsTo(Refers::Promotion)
        .Means("The promotion it belongs to."),
    FIELD(Title, Holder).In(0, 32767).LeadsTo(Refers::Worker).Means("The champion."),
    FIELD(Title, Partner).In(0, 32767).LeadsTo(Refers::Worker).Means("The champion's partner."),
    FIELD(Title, Lightweight).Means("Lightweights only."),
    FIELD(Title, Woman).Means("Women only."),
    FIELD(Title, Image)
        .Counts("percent")
        .Means("How marketable the belt is in the eyes of the fans."),
    FIELD(Title, Suspended).Means("No title matches until reactivated."),
    GM_PART(Title, Reigns, Reign, Won, "Won#").Means("The day a reign began."),
    GM_PART(Title, Reigns, Reign, Holder, "Holder#").Means("Who reigned."),
    GM_PART(Title, Reigns, Reign, Lost, "Lost#")
        .Means("The day a reign ended; 1980-01-01 for none."),
};
constexpr RecordLayout kTitleLayout{"Title", "belt.dat", sizeof(Title), 5000, kTitleFields};

}  // namespace

template <>
const RecordLayout& LayoutOf<Staff>() {
  return kStaffLayout;
}
template <>
const RecordLayout& LayoutOf<Team>() {
  return kTeamLayout;
}
template <>
const RecordLayout& LayoutOf<Stable>() {
  return kStableLayout;
}
template <>
const RecordLayout& LayoutOf<Title>() {
  return kTitleLayout;
}

void BeginReign(Title& title, Day today, std::string_view holder) {
  std::shift_right(title.Reigns.begin(), title.Reigns.end(), 1);
  title.Reigns[1].Lost = today;
  title.Reigns[0].Won = today;
  title.Reigns[0].Holder = holder;
  title.Reigns[0].Lost = kNoTitleDate;
}

}  // namespace grapplemont
