#include "booking/wizard/interviews.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using Purposes = std::vector<int>;

World Company() {
  SmallWorld small;
  small.Promotion("CWA")
      .Worker("Ann Ace", kMainEvent, 80)
      .Worker("Bob Bold", kMidcard, 60)
      .Worker("Cat Cold", kMidcard, 60)
      .Worker("Dan Dark", kMidcard, 60)
      .Worker("Max Mouth", kManager, 50)
      .Worker("Mim Mute", kManager, 50)
      .Worker("Sid Silent", kMidcard, 50)
      .Worker("Nell Suit", kNonWrestler, 50)
      .Worker("Dev Deal", kDevelopmentDeal, 20)
      .Feud("Ann Ace", "Cat Cold")
      .TagFeud("Bob Bold", "Ann Ace", "Dan Dark", "Sid Silent")
      .Feud("Max Mouth", "Dan Dark")
      .Game("CWA");
  World world = small.BuildUnchecked();
  for (Worker& worker : world.Workers()) worker.Speaks = true;
  for (const char* name : {"Mim Mute", "Sid Silent"}) Named(world.Workers(), name).Speaks = false;
  for (const char* name : {"Ann Ace", "Bob Bold"})
    Named(world.Workers(), name).Manager = Named(world.Workers(), "Max Mouth").Uid;
  return world;
}

Segment Interview(const World& world, int style, const Names& people) {
  Segment interview = EmptySegment();
  interview.Kind = kInterview;
  interview.Style = style;
  for (std::size_t place = 0; place < people.size(); ++place)
    if (!people[place].empty()) interview.Worker[place] = Named(world.Workers(), people[place]).Uid;
  return interview;
}

TEST(Interviews, SayWhatIsWrongWithTheirPeople) {
  constexpr const char* kValid = "You must select a valid manager!";
  constexpr const char* kTwo = "Please select two different people!";
  constexpr const char* kSecond = "If the first opponent is 'None', then the second must be too!";
  const std::tuple<int, Names, std::string, std::string> kCases[] = {
      {kSingleTalk, {"Ann Ace"}, "", ""},
      {kSingleTalk, {}, "Please select a worker!", ""},
      {kTeamTalk, {"Ann Ace", "Ann Ace"}, kTwo, ""},
      {kTeamTalk, {"", "Ann Ace"}, kTwo, ""},
      {kTeamTalk, {"Ann Ace", "Bob Bold", "Cat Cold", ""}, "", ""},
      {kTeamTalk, {"Ann Ace", "Bob Bold", "", "Dan Dark"}, "", kSecond},
      {kTeamTalk, {"Ann Ace", "Bob Bold", "Cat Cold", "Cat Cold"}, "", kTwo},
      {kManagedTalk, {"Ann Ace", "Max Mouth"}, "", ""},
      {kManagedTalk, {"Ann Ace", ""}, kValid, ""},
      {kManagedTalk, {"Ann Ace", "Bob Bold"}, kValid, ""},
      {kManagedTalk, {"Ann Ace", "Mim Mute"}, kValid, ""},
      {kManagedTalk, {"Max Mouth", "Max Mouth"}, kTwo, ""},
      {kManagedTalk,
       {"Cat Cold", "Max Mouth"},
       "The manager selected does not manage the chosen worker!",
       ""},
      {kManagedTeamTalk, {"Max Mouth", "Ann Ace", "Bob Bold", "", "Dan Dark"}, "", kSecond},
      {kManagedTeamTalk,
       {"Max Mouth", "Ann Ace", "Ann Ace"},
       "Please select three different people!",
       ""},
      {kManagedTeamTalk,
       {"Max Mouth", "Ann Ace", "Cat Cold"},
       "The manager selected does not manage both the chosen workers!",
       ""},
  };
  const World world = Company();
  for (const auto& [style, people, speakers, targets] : kCases) {
    const Segment interview = Interview(world, style, people);
    EXPECT_EQ(WhyNotSpeakers(world, interview), speakers) << style;
    EXPECT_EQ(WhyNotTargets(interview), targets) << style;
  }
}

TEST(Interviews, KnowFeuds) {
  const Purposes none = {kTalkNone, kSelfPromotion};
  const Purposes plain = {kTalkNone, kVerbalAttack, kHypeMatch};
  const Purposes feud = {kTalkNone, kVerbalAttack, kHypeMatch, kTalkContinueFeud};
  const std::tuple<int, Names, Purposes> kCases[] = {
      {kSingleTalk, {"Ann Ace"}, none},
      {kSingleTalk, {"Cat Cold", "Ann Ace"}, feud},
      {kSingleTalk, {"Bob Bold", "Dan Dark"}, plain},  // as teams they feud, not alone
      {kTeamTalk, {"Ann Ace", "Bob Bold", "Dan Dark", "Sid Silent"}, feud},
      {kTeamTalk, {"Ann Ace", "Bob Bold", "Dan Dark", "Mim Mute"}, plain},
      {kTeamTalk, {"Bob Bold", "Ann Ace", "Dan Dark", "Cat Cold"}, feud},
      {kManagedTalk, {"Ann Ace", "Max Mouth", "Dan Dark"}, feud},  // the manager's own
      {kManagedTeamTalk, {"Max Mouth", "Bob Bold", "Ann Ace", "Sid Silent", "Dan Dark"}, feud},
      {kManagedTeamTalk, {"Max Mouth", "Bob Bold", "Ann Ace"}, none},
  };
  const World world = Company();
  for (const auto& [style, people, purposes] : kCases)
    EXPECT_EQ(OfferedTalkPurposes(world, Interview(world, style, people)), purposes)
        << style << " " << people[0];
}

TEST(Interviews, TurnThoseWhoAreWaitingTo) {
  const Names kSolo = {"Bob Bold", "Cat Cold"}, kTeam = {"Ann Ace", "Bob Bold", "Cat Cold"},
              kManaged = {"Bob Bold", "Max Mouth", "Cat Cold"},
              kManagedTeam = {"Max Mouth", "Bob Bold", "Ann Ace", "Cat Cold"};
  const struct {
    int Style;
    Names People, Pending, Heels;
    bool Turns;
  } kRows[] = {
      {kSingleTalk, kSolo, {"Bob Bold"}, {"Cat Cold"}, true},  // liked or not
      {kSingleTalk, kSolo, {"Cat Cold"}, {}, false},
      {kSingleTalk, {"Bob Bold"}, {"Bob Bold"}, {}, false},  // nobody to turn on
      {kTeamTalk, kTeam, {"Ann Ace"}, {}, false},
      {kTeamTalk, kTeam, {"Ann Ace", "Bob Bold"}, {}, true},
      {kManagedTalk, kManaged, {"Bob Bold"}, {}, false},  // the manager would turn, and fail
      {kManagedTalk, kManaged, {"Max Mouth"}, {}, true},
      {kManagedTalk, kManaged, {"Max Mouth"}, {"Cat Cold"}, false},
      {kManagedTeamTalk, kManagedTeam, {"Max Mouth", "Bob Bold"}, {}, false},
      {kManagedTeamTalk, kManagedTeam, {"Ann Ace", "Bob Bold"}, {}, true},
      {kManagedTeamTalk, kManagedTeam, {"Ann Ace", "Bob Bold"}, {"Ann Ace"}, false},
  };
  for (const auto& row : kRows) {
    World world = Company();
    for (const std::string& name : row.Pending) Named(world.Workers(), name).TurnPending = true;
    for (const std::string& name : row.Heels) Named(world.Workers(), name).Disposition = "H";
    const Purposes offered = OfferedTalkPurposes(world, Interview(world, row.Style, row.People));
    EXPECT_EQ(std::count(offered.begin(), offered.end(), kTalkTurn), row.Turns)
        << "style " << row.Style << ", waiting: " << row.Pending.front();
  }
}

}  // namespace
}  // namespace grapplemont::test
