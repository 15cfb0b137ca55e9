#include "roster/signing.h"

#include <gtest/gtest.h>

#include "decisions.h"
#include "support/smallworld.h"

// Coming: what opens the talks, each objection at its edge, names, and what signing changes.

namespace grapplemont::test {
namespace {

constexpr const char* kWritten = "I want a written contract!";
constexpr const char* kVerbal = "I do not want a written contract!";
constexpr const char* kMoney = "You are not offering me enough money!";
constexpr const char* kControl = "I want a creative control clause!";
constexpr const char* kOnlyManager = "I only wish to work as a manager!";
constexpr const char* kNoManager = "I do not want to become a manager!";
constexpr const char* kOnlyNon = "I only wish to work as a non-wrestler!";
constexpr const char* kNoNon = "I do not want to become a non-wrestler!";
constexpr const char* kCamp = "I do not want to go to the training camp!";
constexpr const char* kHigher = "I want to be positioned higher up the card!";
constexpr const char* kLong = "I do not want to sign such a long contract!";
constexpr const char* kShort = "I need job security. I want a longer contract!";
constexpr const char* kMuchLonger = "I want a much longer contract!";
constexpr const char* kExtra = "I want extra money to sign for this amount of time!";

/// Each objection at both sides of its edges; the last ones show their order.
TEST(JudgeSigning, HearsTheFirstObjectionThatHolds) {
  constexpr int kM = kManager, kN = kNonWrestler, kC = kTrainingCamp;
  const struct {
    Demands Wants;        // position, months, written, wage, control
    ContractOffer Offer;  // wage, months, written, control
    int Position, Age, Skill;
    const char* Words;
  } kCases[] = {
      {{3, 12, true, 100, false}, {100, 12, true, false}, 3, 28, 60, ""},
      {{3, 12, true, 100, false}, {100, 12, false, false}, 3, 28, 60, kWritten},
      {{3, 12, false, 100, false}, {100, 12, false, false}, 3, 28, 60, ""},
      {{3, 12, false, 100, false}, {100, 12, true, false}, 3, 28, 60, kVerbal},
      {{3, 12, true, 109, false}, {98, 12, true, false}, 3, 28, 60, kMoney},
      {{3, 12, true, 109, false}, {99, 12, true, false}, 3, 28, 60, ""},
      {{3, 12, true, 100, true}, {119, 12, true, false}, 3, 28, 60, kControl},
      {{3, 12, true, 100, true}, {120, 12, true, false}, 3, 28, 60, ""},
      {{3, 12, true, 100, true}, {100, 12, true, true}, 3, 28, 60, ""},
      {{kM, 12, true, 100, false}, {119, 12, true, false}, 3, 28, 60, kOnlyManager},
      {{kM, 12, true, 100, false}, {120, 12, true, false}, 3, 28, 60, ""},
      {{kM, 12, true, 100, false}, {119, 12, true, false}, 3, 28, 61, ""},
      {{kM, 12, true, 100, false}, {119, 12, true, false}, kM, 28, 61, ""},
      {{3, 12, true, 100, false}, {119, 12, true, false}, kM, 28, 61, kNoManager},
      {{3, 12, true, 100, false}, {120, 12, true, false}, kM, 28, 61, ""},
      {{3, 12, true, 100, false}, {119, 12, true, false}, kM, 28, 60, ""},
      {{kN, 12, true, 100, false}, {139, 12, true, false}, 3, 28, 60, kOnlyNon},
      {{kN, 12, true, 100, false}, {140, 12, true, false}, 3, 28, 60, ""},
      {{kN, 12, true, 100, false}, {139, 12, true, false}, kN, 28, 60, ""},
      {{kN, 12, true, 100, false}, {100, 12, true, false}, 3, 35, 76, ""},
      {{kN, 12, true, 100, false}, {100, 12, true, false}, 3, 36, 76, kOnlyNon},
      {{3, 12, true, 100, false}, {129, 12, true, false}, kN, 28, 61, kNoNon},
      {{3, 12, true, 100, false}, {130, 12, true, false}, kN, 28, 61, ""},
      {{3, 12, true, 100, false}, {129, 12, true, false}, kN, 28, 60, ""},
      {{3, 12, true, 100, false}, {100, 12, true, false}, kC, 25, 60, kCamp},
      {{3, 12, true, 100, false}, {100, 12, true, false}, kC, 24, 60, ""},
      {{3, 12, true, 100, false}, {100, 12, true, false}, kC, 24, 61, kCamp},
      {{3, 12, true, 100, false}, {100, 12, true, false}, 4, 28, 60, kHigher},
      {{3, 12, true, 100, false}, {100, 12, true, false}, 1, 28, 60, ""},
      {{3, 12, true, 100, false}, {100, 12, true, false}, kDevelopmentDeal, 28, 60, ""},
      {{3, 6, true, 100, false}, {100, 13, true, false}, 3, 28, 60, kLong},
      {{3, 6, true, 100, false}, {100, 12, true, false}, 3, 28, 60, ""},
      {{3, 24, true, 100, false}, {100, 6, true, false}, 3, 28, 60, kShort},
      {{3, 24, true, 100, false}, {100, 12, true, false}, 3, 28, 60, ""},
      {{3, 31, true, 100, false}, {100, 24, true, false}, 3, 28, 60, kShort},
      {{3, 31, true, 100, false}, {100, 25, true, false}, 3, 28, 60, ""},
      {{3, 30, true, 100, false}, {100, 24, true, false}, 3, 28, 60, ""},
      {{3, 60, true, 100, false}, {100, 36, true, false}, 3, 28, 60, kMuchLonger},
      {{3, 60, true, 100, false}, {100, 37, true, false}, 3, 28, 60, ""},
      {{3, 48, true, 100, false}, {100, 36, true, false}, 3, 28, 60, ""},
      // 15 percent of 119 are 17, a fifth of 104 is 20.
      {{3, 24, true, 119, false}, {137, 49, true, false}, 3, 28, 60, kExtra},
      {{3, 24, true, 119, false}, {136, 49, true, false}, 3, 28, 60, ""},
      {{3, 24, true, 119, false}, {137, 48, true, false}, 3, 28, 60, ""},
      {{3, 12, true, 104, false}, {125, 31, true, false}, 3, 28, 60, kExtra},
      {{3, 12, true, 104, false}, {124, 31, true, false}, 3, 28, 60, ""},
      {{3, 12, true, 104, false}, {125, 30, true, false}, 3, 28, 60, ""},
      {{kM, 6, true, 200, true}, {100, 60, false, false}, 3, 28, 60, kWritten},
      {{kM, 6, false, 200, true}, {100, 60, true, false}, 3, 28, 60, kVerbal},
      {{kM, 6, true, 200, true}, {100, 60, true, false}, 3, 28, 60, kMoney},
      {{kM, 6, true, 200, true}, {200, 60, true, false}, 3, 28, 60, kControl},
      {{kM, 6, true, 200, true}, {200, 60, true, true}, 3, 28, 60, kOnlyManager},
      {{kN, 6, true, 200, true}, {200, 60, true, true}, kM, 40, 61, kNoManager},
      {{kN, 6, true, 200, true}, {200, 60, true, true}, kC, 40, 61, kOnlyNon},
      {{3, 6, true, 200, true}, {200, 60, true, true}, kC, 40, 61, kCamp},
      {{3, 6, true, 200, true}, {200, 60, true, true}, 6, 40, 61, kHigher},
      {{3, 6, true, 200, true}, {200, 60, true, true}, 3, 40, 61, kLong},
      {{3, 60, true, 200, true}, {200, 24, true, true}, 3, 40, 61, kShort},
      {{3, 60, true, 200, true}, {200, 36, true, true}, 3, 40, 61, kMuchLonger},
  };
  int number = 0;
  for (const auto& c : kCases) {
    Worker worker;
    worker.Age = c.Age;
    worker.Speed = c.Skill;
    SigningOffer offer{c.Offer, "", "", "", c.Position};
    Decision why;
    EXPECT_EQ(JudgeSigning(worker, c.Wants, offer, &why), c.Words) << "case " << number;
    ExpectTells(why, std::string_view(c.Words).empty());
    ++number;
  }
}

SmallWorld Market() {
  SmallWorld small;
  small.Promotion("CWA", kRegional)
      .Worker("Bram Okafor")
      .Promotion("NEW", kCult)
      .Worker("Rival Ray", kMidcard, 50)
      .OnTheMarket()
      .Worker("Free Fred", kMidcard, 50);
  return small;
}

TEST(WhyNoSigning, RefusesInTheWordsOfBothSexes) {
  constexpr const char* kAll[][2] = {
      {"", ""},
      {"He does not want to negotiate with you at all.",
       "She does not want to negotiate with you at all."},
      {"He apologises, but he does not wish to negotiate while working for another organisation.",
       "She apologises, but she does not wish to negotiate while working for another "
       "organisation."},
      {"He apologises, but he does not want to leave his current employers to join you.",
       "She apologises, but she does not want to leave her current employers to join you."},
      {"He does not feel your promotion is big enough for him.",
       "She does not feel your promotion is big enough for her."}};
  constexpr struct {
    int Size, Over, Loyalty, Morale, Behaviour, EmployerSize, Words;
  } kRows[] = {
      {3, 50, 39, 60, 80, 3, 1}, {3, 50, 40, 60, 80, 3, 0}, {3, 50, 39, 80, 95, 3, 1},
      {1, 50, 80, 61, 91, 3, 2}, {1, 50, 80, 61, 91, 4, 0}, {1, 50, 80, 60, 91, 3, 0},
      {2, 50, 80, 61, 91, 4, 2}, {1, 50, 80, 61, 90, 2, 3}, {1, 50, 80, 61, 90, 3, 0},
      {2, 50, 80, 61, 0, 3, 3},  {2, 50, 80, 61, 0, 4, 0},  {6, 31, 80, 60, 80, 6, 4},
      {6, 30, 80, 60, 80, 6, 0}, {5, 51, 80, 60, 80, 6, 4}, {5, 50, 80, 60, 80, 6, 0},
      {4, 71, 80, 60, 80, 6, 4}, {4, 70, 80, 60, 80, 6, 0}, {3, 100, 80, 60, 80, 6, 0},
      {6, 90, 80, 61, 95, 6, 2},
  };
  World world = Market().Game("CWA");
  Worker& ray = Named(world.Workers(), "Rival Ray");
  for (const auto& row : kRows)
    for (const bool man : {true, false}) {
      world.Player().Size = row.Size;
      Named(world.Promotions(), "NEW").Size = row.EmployerSize;
      ray.Gender = man;
      ray.Over = row.Over;
      ray.Loyalty = row.Loyalty;
      ray.Morale = row.Morale;
      ray.Behaviour = row.Behaviour;
      Decision why;
      EXPECT_EQ(WhyNoSigning(world, ray, &why), kAll[row.Words][man ? 0 : 1])
          << row.Size << " " << row.Over << " " << row.Loyalty << " " << row.Morale << " "
          << row.Behaviour << " " << row.EmployerSize;
      ExpectTells(why, row.Words == 0);
    }
}

TEST(WhyNoSigning, HoldsOnlyTheBoundToTheirEmployer) {
  World world = Market().Game("CWA");
  Worker& ray = Named(world.Workers(), "Rival Ray");
  EXPECT_NE(WhyNoSigning(world, ray), "");
  ray.ContractMonths = 0;
  EXPECT_EQ(WhyNoSigning(world, ray), "");
  ray.ContractMonths = 1;
  EXPECT_NE(WhyNoSigning(world, ray), "");
  ray.ContractType = "Non";
  EXPECT_EQ(WhyNoSigning(world, ray), "");
  EXPECT_EQ(WhyNoSigning(world, Named(world.Workers(), "Free Fred")), "");
}

SigningOffer Called(const char* name, const char* shortName) {
  SigningOffer offer;
  offer.Name = name;
  offer.ShortName = shortName;
  offer.Position = kMidcard;
  offer.Disposition = "H";
  return offer;
}

TEST(WhyNotAsOffered, LooksAtTheNames) {
  World world = Market().Game("CWA");
  const Worker& fred = Named(world.Workers(), "Free Fred");
  constexpr const char* kTaken = "This name already exists!";
  constexpr const char* kBlank = "You cannot use a blank name!";
  constexpr const char* kBlankShort = "You cannot use a blank short name!";
  for (const auto& [name, shortName, why] :
       {std::tuple("Free Fred", "Fred", ""),
        {"Fred the First", "Fred", ""},
        {"Bram Okafor", "Fred", kTaken},
        {"  Rival Ray ", "Fred", kTaken},
        {"bram okafor", "Fred", ""},
        {"", "Fred", kBlank},
        {"   ", "Fred", kBlank},
        {"Fred", "", kBlankShort},
        {"", "  ", kBlankShort},
        {"Bram Okafor", "", kBlankShort},
        {"Caf\xe9 Fred", "Caf\xe9", ""},
        {"Fred\nFred", "Fred", "A name is one line of plain text."},
        {"Fred\x7F", "Fred", "A name is one line of plain text."},
        {"\xA0Rival Ray\xA0", "Fred", kTaken},
        {"\xA0", "Fred", kBlank},
        {"Vacant", "Fred", "\"Vacant\" has a meaning of its own and cannot be a name."},
        {"None", "Fred", "\"None\" stands for nothing at all and cannot be a name."}})
    EXPECT_EQ(WhyNotAsOffered(world, fred, Called(name, shortName)), why) << name << shortName;
}

TEST(WhyNotAsOffered, NeedsTheCampOrTerritoryItSendsTo) {
  World world = Market().Game("CWA");
  const Worker& fred = Named(world.Workers(), "Free Fred");
  SigningOffer offer = Called("Fred", "Fred");
  for (const auto& [position, why] :
       {std::pair(int(kTrainingCamp), "You do not have a training camp set up!"),
        {int(kDevelopmentDeal), "You do not have a development territory set up!"}}) {
    offer.Position = position;
    EXPECT_EQ(WhyNotAsOffered(world, fred, offer), why);
  }
  world.Player().CampName = "The Barn";
  world.Player().DevName = "The Yard";
  for (const int position : {kTrainingCamp, kDevelopmentDeal, kManager}) {
    offer.Position = position;
    EXPECT_EQ(WhyNotAsOffered(world, fred, offer), "");
  }
}

TEST(Sign, ChangesTheRecordAndLeavesNothingBehind) {
  World world =
      Market()
          .Network("Nine")
          .Promotion("ACE", kCult, [](Promotion& p) { p.Split[0] = "Red"; })
          .Worker("Client")
          .Worker("Star Stan", kNonWrestler, 50,
                  [](Worker& w) { w.Split = "Red", w.Manager = 4, w.CreativeControl = true; })
          .Title("Ace Crown", "Star Stan", {}, [](Title& t) { t.Image = 90; })
          .Show("Ace Hour", "Monday", "Nine",
                [](Show& show) { show.ColourIsWorker = true, show.Colour = 5; })
          .Game("CWA");
  Worker& stan = Named(world.Workers(), "Star Stan");
  ASSERT_EQ(stan.Uid, 5);
  Named(world.Workers(), "Client").Manager = 5;
  Promotion& ace = Named(world.Promotions(), "ACE");
  ace.Commissioner = int(stan.Uid);
  const long long money = ace.Money;
  SigningOffer offer = Called("  Stan Starr ", "Starr");
  offer.Wage = 33;
  offer.Months = 36;
  offer.Written = false;
  Sign(world, stan, offer);
  EXPECT_EQ(stan.Employer, world.PlayerUid());
  EXPECT_EQ(stan.Name.View(), "Stan Starr");
  EXPECT_EQ(stan.ShortName.View(), "Starr");
  EXPECT_EQ(stan.Disposition.View(), "H");
  EXPECT_EQ(stan.Position, kMidcard);
  EXPECT_EQ(stan.ContractMonths, 36);
  EXPECT_EQ(stan.ContractType.View(), "Non");
  EXPECT_EQ(stan.Wage, 33);
  EXPECT_FALSE(stan.CreativeControl);
  EXPECT_EQ(stan.Split.View(), "None");
  EXPECT_EQ(stan.Stable.View(), "None");
  EXPECT_EQ(stan.Manager, 0);
  EXPECT_FALSE(stan.Debuted);
  EXPECT_EQ(ace.Money, money);
  EXPECT_EQ(ace.Commissioner, 0);
  EXPECT_EQ(Named(world.Titles(), "Ace Crown").Holder, 0);
  EXPECT_EQ(Named(world.Titles(), "Ace Crown").Image, 70);
  EXPECT_EQ(Named(world.Workers(), "Client").Manager, 0);
  EXPECT_EQ(world.Shows()[1].Colour, 0);
  EXPECT_FALSE(world.Shows()[1].ColourIsWorker);
  ExpectSound(world);
}

}  // namespace
}  // namespace grapplemont::test
