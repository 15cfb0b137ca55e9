#include <gtest/gtest.h>

#include <map>
#include <set>

#include "booking/wizard/casting.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

const BookingView kTv;

constexpr const char* kOnTop[] = {"Ann Ace", "Bob Bold", "Cat Cold", "Dan Dark", "Eve East"};

/// Five plain workers, a manager with their client, a stable of three (one of them hurt), a full
/// stable, Titles, and a Commissioner who wrestles too.
World Company() {
  SmallWorld small;
  small.Promotion("CWA", kGlobal, [](Promotion& p) { p.Risk = 100; });
  for (const char* name : kOnTop)
    small.Worker(name, kMidcard, 50, [](Worker& w) { w.Gender = w.Name.View()[0] % 2 == 0; });
  small.Worker("Max Mouth", kManager, 50)
      .Worker("Cleo Client", kMidcard, 50)
      .Worker("Tide One", kMidcard, 50)
      .Worker("Tide Two", kMidcard, 50)
      .Worker("Tide Hurt", kMidcard, 50)
      .Worker("Una Small", kMidcard, 50, [](Worker& w) { w.Gender = false, w.Weight = "L"; })
      .Crew(10)
      .Stable("The Tide", {"Tide One", "Tide Two", "Tide Hurt"})
      .Stable("The Mob", {"CWA Hand 1", "CWA Hand 2", "CWA Hand 3", "CWA Hand 4", "CWA Hand 5",
                          "CWA Hand 6", "CWA Hand 7", "CWA Hand 8", "CWA Hand 9", "CWA Hand 10"})
      .Title("Open Crown")
      .Title("Queens Crown", {}, {}, [](Title& t) { t.Woman = true; })
      .Title("Light Crown", {}, {}, [](Title& t) { t.Lightweight = true; })
      .Title("Light Pair", {}, {}, [](Title& t) { t.Singles = false, t.Lightweight = true; })
      .Title("Held Crown", "Ann Ace")
      .Game("CWA");
  World world = small;
  Named(world.Workers(), "Cleo Client").Manager = Named(world.Workers(), "Max Mouth").Uid;
  Named(world.Workers(), "Tide Hurt").Status = "Inj";
  world.Player().Commissioner = Named(world.Workers(), "Eve East").Uid;
  return world;
}

/// An angle with these people at Worker1 and on ("" for nobody), its stable and its Title.
struct Cast {
  int Number;
  std::vector<std::string> People = {};
  std::string Stable = "None";
  std::string Title = "None";
};

std::string Why(World& world, const Cast& cast) {
  Segment segment = EmptySegment();
  segment.Kind = kAngle;
  segment.Style = cast.Number;
  for (std::size_t place = 0; place < cast.People.size(); ++place)
    if (!cast.People[place].empty())
      segment.Worker[place] = Named(world.Workers(), cast.People[place]).Uid;
  segment.Text = cast.Stable;
  segment.TitleName = cast.Title;
  return WhyNotCast(world, segment, kTv);
}

/// Everybody different, in a way that every check of the angle lets pass.
Cast Good(const Angle& angle) {
  Cast good{angle.Number, std::vector<std::string>(kAnglePlaces)};
  for (const Role& role : angle.Roles) {
    if (role.Caption.empty()) continue;
    if (role.From == Casting::Stables) good.Stable = "The Tide";
    if (role.From == Casting::SinglesTitles) good.Title = "Open Crown";
    if (role.From == Casting::TagTitles) good.Title = "Light Pair";
    if (role.Place != 0)
      good.People[static_cast<std::size_t>(role.Place - 1)] = kOnTop[role.Place - 1];
    if (role.From == Casting::Commissioner) good.People[0] = "Eve East";
    if (role.From == Casting::Managers || role.From == Casting::DebutManagers)
      good.People[0] = "Max Mouth";
  }
  switch (angle.Number) {
    case kManagementIssues:
      good.People[2] = "Cleo Client";
      break;
    case kMotivation:
    case kManagerialDebut:
    case kManagersSurprise:
      good.People[1] = "Cleo Client";
      break;
    case kStableKickOut:
      good.People[0] = "Tide Hurt";
      break;
    case kAwardTag:
      good.People = {"Eve East", "Una Small", "Bob Bold"};
      break;
  }
  return good;
}

TEST(WhyNotCast, LetsAGoodCastOfEveryAnglePass) {
  World world = Company();
  Named(world.Workers(), "Bob Bold").Weight = "L";
  for (const Angle& angle : AllAngles()) EXPECT_EQ(Why(world, Good(angle)), "") << angle.Says;
}

TEST(WhyNotCast, WordsTheSamePersonInTwoRolesByAngle) {
  World world = Company();
  Named(world.Workers(), "Bob Bold").Weight = "L";
  std::map<std::string, int> words;  // and how many angles have them
  for (const Angle& angle : AllAngles()) {
    const Cast good = Good(angle);
    std::set<std::string> says;
    for (std::size_t a = angle.Number == kAwardTag ? 1 : 0; a < kAnglePlaces; ++a)
      for (std::size_t b = a + 1; b < kAnglePlaces; ++b) {
        if (good.People[a].empty() || good.People[b].empty() || angle.Number == kAwardSingles)
          continue;
        Cast twice = good;
        twice.People[b] = good.People[a];
        says.insert(Why(world, twice));
      }
    EXPECT_LE(says.size(), 1u) << angle.Says;
    for (const std::string& word : says) ++words[word];
  }
  EXPECT_EQ(words, (std::map<std::string, int>{
                       {"Please select two different workers!", 41},
                       {"Please select three different workers!", 4},
                       {"Please select four different workers!", 3},
                       {"Please select unique workers!", 4},
                       {"Please select different workers!", 2},
                       {"You cannot select the same worker twice!", 4},
                       {"Please do not select the same worker more than once!", 1}}));
}

TEST(WhyNotCast, AsksForEverybodyButTheOptionalOnes) {
  World world = Company();
  EXPECT_EQ(Why(world, {1, {"Ann Ace", ""}}), "Please make a selection for \"Challengee\"!");
  EXPECT_EQ(Why(world, {kAmbush, {"Ann Ace", "Bob Bold"}}), "");
  EXPECT_EQ(Why(world, {kGetTheTable, {"Ann Ace", "", "Bob Bold"}}), "");
  EXPECT_EQ(Why(world, {kBlackWedding, {"Ann Ace", "Bob Bold"}, "The Tide"}), "");
  EXPECT_EQ(Why(world, {kStableVideo}), "Please make a selection for \"Stable\"!");
  EXPECT_EQ(Why(world, {kAwardSingles, {"Eve East", "Ann Ace"}}),
            "Please make a selection for \"Title\"!");
  EXPECT_EQ(Why(world, {kFaceTurnAngle, {"", "Ann Ace"}}), "Nobody waiting to turn");
}

constexpr const char* kManages = "The manager selected must manage the worker you've selected!";
constexpr const char* kFew = "Sorry, there need to be at least 2 active members of the stable!";

TEST(WhyNotCast, HoldsEachAngleAgainstItsOwnRules) {
  const std::vector<std::pair<Cast, std::string>> kCases = {
      {{7, {"Max Mouth", "Cleo Client", "Bob Bold"}},
       "The manager selected must manage the worker you've selected as 'Leaves'!"},
      {{49, {"Max Mouth", "Bob Bold"}}, kManages},
      {{12, {"Ann Ace", "Bob Bold", "Cat Cold"}},
       "If two people are going through a table, two attackers must be seleceted."},
      {{12, {"Ann Ace", "", "Bob Bold", "Cat Cold"}}, ""},
      {{50, {"Tide One"}, "The Tide"}, "This worker is already in that stable!"},
      {{50, {"Tide One"}, "The Mob"},
       "Sorry, this stable already has the maximum amount of members!"},
      {{51, {"Ann Ace"}, "The Tide"}, "This worker is not in that stable!"},
      {{52, {"Tide Two"}, "The Tide"}, "Tide Two is part of that stable!"},
      {{53, {"Tide Two"}, "The Tide"}, ""},
      {{55, {"Tide One", "Ann Ace"}, "The Tide"}, "Tide One is part of that stable!"},
      {{55, {"Ann Ace", "Tide Hurt"}, "The Tide"}, "Tide Hurt is part of that stable!"},
      {{79, {"Tide One"}, "The Tide"}, "Tide One is part of that stable!"},
      {{78, {"Tide One", "Ann Ace", "", "Tide Two"}, "The Tide"}, ""},
      {{71, {"Eve East", "Eve East"}, "None", "Open Crown"},
       "The worker cannot also be the Commissioner!"},
      {{72, {"Eve East", "Una Small", "Eve East"}, "None", "Light Pair"},
       "The worker cannot also be the Commissioner!"},
      {{71, {"Eve East", "Bob Bold"}, "None", "Queens Crown"},
       "The worker is not eligible for this title!"},
      {{71, {"Eve East", "Ann Ace"}, "None", "Queens Crown"}, ""},
      {{71, {"Eve East", "Ann Ace"}, "None", "Light Crown"},
       "The worker is not eligible for this title!"},
      {{71, {"Eve East", "Bob Bold"}, "None", "Held Crown"},
       "The worker is not eligible for this title!"},
      {{72, {"Eve East", "Una Small", "Ann Ace"}, "None", "Light Pair"},
       "These workers are not eligible for these titles!"},
  };
  World world = Company();
  for (const auto& [cast, why] : kCases)
    EXPECT_EQ(Why(world, cast), why) << cast.Number << " " << cast.People[0];
}

TEST(WhyNotCast, CountsTheMembersOfAStable) {
  World world = Company();
  Named(world.Workers(), "Tide Two").Status = "Sus";
  for (const int number : {52, 54, 55, 75, 76, 77, 78, 79})
    EXPECT_EQ(Why(world, Good(*FindAngle(number))), kFew) << number;
  for (const int number : {50, 51, 53, 62})
    EXPECT_EQ(Why(world, Good(*FindAngle(number))), "") << number;
  Named(world.Workers(), "Tide Hurt").Status = "Nor";
  EXPECT_EQ(Why(world, Good(*FindAngle(52))), "");
  Named(world.Workers(), "Eve East").Stable = "The Tide";
  EXPECT_EQ(Why(world, {54, {"Eve East"}, "The Tide"}), "The Commissioner is part of that stable!");
  Named(world.Workers(), "CWA Hand 10").Stable = "None";
  EXPECT_EQ(Why(world, {50, {"Ann Ace"}, "The Mob"}), "") << "nine are not too many";
}

}  // namespace
}  // namespace grapplemont::test
