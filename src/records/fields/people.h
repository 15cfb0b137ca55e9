#pragma once

#include <array>

#include "records/fields/field.h"
#include "records/fields/vocabulary.h"

namespace grapplemont {

/// A person on a roster or on the free market, wrestler or not: a record of wrestler.dat.
struct Worker {
  Word Uid;
  Text<25> Name;
  Text<10> ShortName;
  Flag Gender;  // true male
  Word BirthMonth;
  RangedWord<0, kOldest> Age;
  Text<1> Weight;
  Word Employer;
  Text<3> ContractType;
  RangedWord<0, 120, true> ContractMonths;
  Flag CreativeControl;
  RangedLong<0, kDearest> Wage;  // thousands of dollars a month
  Word Position;
  Text<3> Status;
  RangedWord<0, 120> StatusMonths;
  Text<15> InjuryName;
  Percent Brawl;
  Percent Technical;
  Percent Speed;
  Percent Stiff;
  Percent Sell;
  Percent Over;
  Percent Charisma;
  Flag HighSpots;
  Percent Attitude;
  Flag Speaks;
  Text<1> Disposition;
  Text<25> Finisher1;
  Flag Finisher1Submission;
  Flag Finisher1TopRope;
  Flag Finisher1Ground;
  Text<25> Finisher2;
  Flag Finisher2Submission;
  Flag Finisher2TopRope;
  Flag Finisher2Ground;
  Text<25> Stable;
  Word Manager;
  Text<10> Split;
  Percent Condition;
  Percent Morale;
  Percent Behaviour;
  Percent Loyalty;
  Flag Unsackable;
  Flag TurnPending;
  Date LastTurn;
  Flag Trainer;
  Flag SuperstarLook;
  Flag Announcer;
  Flag Booker;
  Percent Potential;
  Percent OverFloor;
  Flag Debuted;
  Flag RetiringSoon;
  Flag Diva;
};
GM_RECORD(Worker, 237);

/// True for the positions of the active wrestling roster, 1 to 6.
bool IsRosterPosition(int position);
bool IsOnRoster(const Worker& worker);
/// In the development territory: under a development deal or sent there, positions 7 and 80 up.
bool IsInDevelopment(const Worker& worker);
/// Sent away to the development territory for a while: positions 81 to 86.
bool IsSentAway(const Worker& worker);

// The smaller people-and-belts records: staff, Tag Teams, Stables, Titles.

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
GM_RECORD(Staff, 58);

/// A Tag Team: a record of teams.dat.
struct Team {
  Text<25> Name;
  Word Worker1;
  Word Worker2;
  Text<25> Finisher;
  Percent Experience;
};
GM_RECORD(Team, 56);

/// A Stable: a record of stables.dat.
struct Stable {
  Text<25> Name;
  Word Owner;  // kNoEnd when its promotion has closed
};
GM_RECORD(Stable, 27);

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
GM_RECORD(Title, 241);

/// Ends the present reign on `today` and begins one of `holder` (kVacantHolder for nobody); the
/// oldest line falls away.
void BeginReign(Title& title, Day today, std::string_view holder);

}  // namespace grapplemont
