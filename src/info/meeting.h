#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "info/infowords.h"
#include "info/meetingpoints.h"
#include "records/world.h"

// The weekly staff meeting: what the people in their posts have to say, each from what the records
// show, and what they would do about it.

namespace grapplemont {

/// Something that somebody at the table has to say.
struct Advice {
  Point Is;
  Topic About;
  Urgency How;
  std::string Speaker, Post;  // who speaks, and as what
  std::string Says;           // with the figure it rests on
  std::string Do;             // what follows; empty for good news
  const char* Screen;         // where it is done; empty for nowhere
};

/// All there is to say today, the most urgent first. Draws nothing: the same world gives the same
/// words as often as it is asked.
std::vector<Advice> HoldMeeting(const World& world);

/// Collects what is said; every subject of the meeting is a function that adds to it.
class Meeting {
 public:
  explicit Meeting(const World& world) : world_(world) {}
  using Words = LineWords;
  /// Puts the words in place of {their names} in the lines of the point. It is as urgent as its row
  /// says, or as `how`.
  void Say(Point point, const Words& words = {}, std::optional<Urgency> how = {});
  const World& Of() const { return world_; }
  const Promotion& Player() const { return world_.Player(); }
  std::vector<Advice> Close();

 private:
  const World& world_;
  std::vector<Advice> said_;
};

// The subjects.
void TalkOfRoster(Meeting& meeting);
void TalkOfMorale(Meeting& meeting);
void TalkOfContracts(Meeting& meeting);
void TalkOfHealth(Meeting& meeting);
void TalkOfTheYoung(Meeting& meeting);
void TalkOfStaff(Meeting& meeting);
void TalkOfMoney(Meeting& meeting);
void TalkOfLoans(Meeting& meeting);
void TalkOfPrices(Meeting& meeting);
void TalkOfSponsors(Meeting& meeting);
void TalkOfImage(Meeting& meeting);
void TalkOfFeuds(Meeting& meeting);
void TalkOfTitles(Meeting& meeting);
void TalkOfTelevision(Meeting& meeting);
void TalkOfEvents(Meeting& meeting);

// What they count with.

using People = std::vector<const Worker*>;

/// The player's of whom the test holds, the most popular first.
template <class Test>
People Ours(const World& world, Test test) {
  People people;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && test(worker)) people.push_back(&worker);
  std::stable_sort(people.begin(), people.end(),
                   [](auto* a, auto* b) { return a->Over > b->Over; });
  return people;
}
/// Those on the card who can wrestle.
People FitWrestlers(const World& world);

/// The first of those who have least of it. Requires somebody.
template <class Record, class Field>
const Record& LeastOf(const std::vector<const Record*>& records, Field field) {
  return **std::ranges::min_element(records, {},
                                    [=](const Record* record) { return int(record->*field); });
}

/// "Bram Okafor", "Bram Okafor and Ilya Marsh", "Bram Okafor, Ilya Marsh and 3 more": no more than
/// `most` names.
std::string SomeOf(const People& people, std::size_t most = 3);
/// Says the point with their number {n} and some of their {names}, and `more`, if there is anybody.
void SayOf(Meeting& meeting, Point point, const People& people, std::size_t most = 3,
           const Meeting::Words& more = {});

template <class Count>
std::string Number(Count count) {
  return std::to_string(count);
}

/// Whether somebody of the player's would sign for neither half a year nor a year, whatever the
/// wage.
bool MovesOn(const World& world, const Worker& worker);

/// How often in a row the standing fell at the last month ends.
int FallsInARow(const Promotion& promotion);

}  // namespace grapplemont
