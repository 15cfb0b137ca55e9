#pragma once

#include <array>

#include "records/field.h"
#include "records/vocabulary.h"

// The smaller people-and-belts records: staff, Tag Teams, Stables, Titles.

namespace grapplemont {

/// A member of staff: a record of staff.dat.
struct Staff {
  Word Uid;
  Text<25> Name;
  Flag Gender;  // true male
  Word BirthMonth;
  RangedWord<0, kOldest> Age;
  Word Employer;
  RangedWord<0, 120, true> ContractMonths;
  Text<3> ContractType;
  RangedLong<0, kDearest> Wage;  // thousands of dollars a month; an Owner's style 1 to 6
  Word Position;
  Percent Talent;
  Percent Morale;
  Percent Backstage;
  Percent Loyalty;
  Flag Unsackable;
  Flag Booker;
};

static_assert(sizeof(Staff) == 58 && alignof(Staff) == 1);
static_assert(offsetof(Staff, Uid) == 0 && offsetof(Staff, Name) == 2);
static_assert(offsetof(Staff, Gender) == 27 && offsetof(Staff, BirthMonth) == 29);
static_assert(offsetof(Staff, Age) == 31 && offsetof(Staff, Employer) == 33);
static_assert(offsetof(Staff, ContractMonths) == 35 && offsetof(Staff, ContractType) == 37);
static_assert(offsetof(Staff, Wage) == 40 && offsetof(Staff, Position) == 44);
static_assert(offsetof(Staff, Talent) == 46 && offsetof(Staff, Morale) == 48);
static_assert(offsetof(Staff, Backstage) == 50 && offsetof(Staff, Loyalty) == 52);
static_assert(offsetof(Staff, Unsackable) == 54 && offsetof(Staff, Booker) == 56);

/// A Tag Team: a record of teams.dat.
struct Team {
  Text<25> Name;
  Word Worker1;
  Word Worker2;
  Text<25> Finisher;
  Percent Experience;
};

static_assert(sizeof(Team) == 56 && alignof(Team) == 1);
static_assert(offsetof(Team, Name) == 0 && offsetof(Team, Worker1) == 25);
static_assert(offsetof(Team, Worker2) == 27 && offsetof(Team, Finisher) == 29);
static_assert(offsetof(Team, Experience) == 54);

/// A Stable: a record of stables.dat.
struct Stable {
  Text<25> Name;
  Word Owner;  // kNoEnd when its promotion has closed
};

static_assert(sizeof(Stable) == 27 && alignof(Stable) == 1);
static_assert(offsetof(Stable, Name) == 0 && offsetof(Stable, Owner) == 25);

/// Who holds a Title that nobody holds.
inline constexpr std::string_view kVacantHolder = "Vacant";

/// One line of a Title's history.
struct Reign {
  Date Won;
  Text<25> Holder;  // a name, kVacantHolder, or "None" for an unused line
  Date Lost;        // kNoTitleDate while it lasts
};

/// A Title: a record of belt.dat.
struct Title {
  Text<20> Name;
  Flag Singles;
  Word Owner;  // kNoEnd when its promotion has closed
  Word Holder;
  Word Partner;
  Flag Lightweight;
  Flag Woman;
  Percent Image;
  Flag Suspended;
  std::array<Reign, 5> Reigns;  // the present one first
};

static_assert(sizeof(Reign) == 41 && sizeof(Title) == 241 && alignof(Title) == 1);
static_assert(offsetof(Title, Name) == 0 && offsetof(Title, Singles) == 20);
static_assert(offsetof(Title, Owner) == 22 && offsetof(Title, Holder) == 24);
static_assert(offsetof(Title, Partner) == 26 && offsetof(Title, Lightweight) == 28);
static_assert(offsetof(Title, Woman) == 30 && offsetof(Title, Image) == 32);
static_assert(offsetof(Title, Suspended) == 34 && offsetof(Title, Reigns) == 36);
static_assert(offsetof(Reign, Won) == 0 && offsetof(Reign, Holder) == 8);
static_assert(offsetof(Reign, Lost) == 33);

template <>
const RecordLayout& LayoutOf<Staff>();
template <>
const RecordLayout& LayoutOf<Team>();
template <>
const RecordLayout& LayoutOf<Stable>();
template <>
const RecordLayout& LayoutOf<Title>();

/// Ends the present reign on `today` and begins one of `holder` (kVacantHolder for nobody); the
/// oldest line falls away.
void BeginReign(Title& title, Day today, std::string_view holder);

}  // namespace grapplemont
