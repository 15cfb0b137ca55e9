#pragma once

#include <array>
#include <string>
#include <vector>

#include "records/fields/fields.h"
#include "report/recalled.h"

// What a match brings along from before its bell: earlier matches, runs, reigns, attacks, words.

namespace grapplemont {

class Teller;
enum class Family;

/// Something of the past, and whom it is about.
struct PastFact {
  PastKind Is{};
  int Weight = 0;        // the more telling, the higher
  std::vector<int> One;  // uids: who has won, waited, threatened
  std::vector<int> Two;  // who has not; empty where nobody else is meant
  int Count = 0;         // matches, days, wins; 0 for none to tell
  int DaysAgo = -1;      // -1 where no day is meant
  std::string Tally = {};
  int Manager = 0;
  int Row = 0;  // of the sheet that day, of what was said or done on a card
};

/// From here on a fact is something that a career has once.
inline constexpr int kOnceInACareer = 90;

/// Says a line with {F}, {S}, {m} and the rest as the fact has them, and takes them back behind it;
/// nothing where {F} would be nobody.
void SayOf(Teller& teller, const PastFact& fact, Family family, int band);

/// Everything that the records know, the most telling first; empty for a battle royal.
std::vector<PastFact> PastOf(Teller& teller);

/// "a week ago", "in March", "two years ago"; `today` names the month.
std::string AgoText(int days, Day today);
/// "three"; digits above twelve.
std::string CountText(int count);
/// "third", "21st".
std::string NthText(int count);
/// The same behind "since", "until", "of", "from" or "after": "last week", "March", "2024".
std::string SinceText(int days, Day today);

/// The two most telling facts, before the bell. Remembers them in teller.Told.
void TellPast(Teller& teller);
/// Whether it is the month in which the year is looked back on.
bool IsYearsEnd(Day day);
/// At an Event of that month: the year's best match, by a line of this band and in a paragraph.
void TellYear(Teller& teller, Family family, int band);
/// What the result makes of them, and what a career has once.
void TellPastEnding(Teller& teller);

}  // namespace grapplemont
