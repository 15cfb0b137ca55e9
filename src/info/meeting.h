#pragma once

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

/// The ticket price that brings most at the gate.
int BestTicketPrice(int size, int economy);
/// The level of merchandising that leaves most after its cost.
int BestMerchandising(const Promotion& promotion, int economy);
/// What weighs on a worker of the player's, as far as the records tell: "stands too low on the
/// card"; empty where they do not.
std::string WhyUnhappy(const World& world, const Worker& worker);

/// "Bram Okafor", "Bram Okafor and Ilya Marsh", "Bram Okafor, Ilya Marsh and 3 more": no more than
/// `most` names.
std::string SomeOf(const std::vector<const Worker*>& people, std::size_t most = 3);

}  // namespace grapplemont
