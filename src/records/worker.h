#pragma once

#include "records/field.h"
#include "records/vocabulary.h"

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

static_assert(sizeof(Worker) == 237 && alignof(Worker) == 1);
static_assert(offsetof(Worker, Uid) == 0 && offsetof(Worker, Name) == 2);
static_assert(offsetof(Worker, ShortName) == 27 && offsetof(Worker, Gender) == 37);
static_assert(offsetof(Worker, BirthMonth) == 39 && offsetof(Worker, Age) == 41);
static_assert(offsetof(Worker, Weight) == 43 && offsetof(Worker, Employer) == 44);
static_assert(offsetof(Worker, ContractType) == 46 && offsetof(Worker, ContractMonths) == 49);
static_assert(offsetof(Worker, CreativeControl) == 51 && offsetof(Worker, Wage) == 53);
static_assert(offsetof(Worker, Position) == 57 && offsetof(Worker, Status) == 59);
static_assert(offsetof(Worker, StatusMonths) == 62 && offsetof(Worker, InjuryName) == 64);
static_assert(offsetof(Worker, Brawl) == 79 && offsetof(Worker, Technical) == 81);
static_assert(offsetof(Worker, Speed) == 83 && offsetof(Worker, Stiff) == 85);
static_assert(offsetof(Worker, Sell) == 87 && offsetof(Worker, Over) == 89);
static_assert(offsetof(Worker, Charisma) == 91 && offsetof(Worker, HighSpots) == 93);
static_assert(offsetof(Worker, Attitude) == 95 && offsetof(Worker, Speaks) == 97);
static_assert(offsetof(Worker, Disposition) == 99 && offsetof(Worker, Finisher1) == 100);
static_assert(offsetof(Worker, Finisher1Submission) == 125);
static_assert(offsetof(Worker, Finisher1TopRope) == 127);
static_assert(offsetof(Worker, Finisher1Ground) == 129 && offsetof(Worker, Finisher2) == 131);
static_assert(offsetof(Worker, Finisher2Submission) == 156);
static_assert(offsetof(Worker, Finisher2TopRope) == 158);
static_assert(offsetof(Worker, Finisher2Ground) == 160 && offsetof(Worker, Stable) == 162);
static_assert(offsetof(Worker, Manager) == 187 && offsetof(Worker, Split) == 189);
static_assert(offsetof(Worker, Condition) == 199 && offsetof(Worker, Morale) == 201);
static_assert(offsetof(Worker, Behaviour) == 203 && offsetof(Worker, Loyalty) == 205);
static_assert(offsetof(Worker, Unsackable) == 207 && offsetof(Worker, TurnPending) == 209);
static_assert(offsetof(Worker, LastTurn) == 211 && offsetof(Worker, Trainer) == 219);
static_assert(offsetof(Worker, SuperstarLook) == 221 && offsetof(Worker, Announcer) == 223);
static_assert(offsetof(Worker, Booker) == 225 && offsetof(Worker, Potential) == 227);
static_assert(offsetof(Worker, OverFloor) == 229 && offsetof(Worker, Debuted) == 231);
static_assert(offsetof(Worker, RetiringSoon) == 233 && offsetof(Worker, Diva) == 235);

template <>
const RecordLayout& LayoutOf<Worker>();

/// True for the positions of the active wrestling roster, 1 to 6.
bool IsRosterPosition(int position);
bool IsOnRoster(const Worker& worker);
/// In the development territory: under a development deal or sent there, positions 7 and 80 up.
bool IsInDevelopment(const Worker& worker);
/// Sent away to the development territory for a while: positions 81 to 86.
bool IsSentAway(const Worker& worker);

}  // namespace grapplemont
