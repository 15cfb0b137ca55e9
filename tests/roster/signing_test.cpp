#include "roster/signing.h"

#include <gtest/gtest.h>

#include "records/checks/checkworld.h"
#include "support/smallworld.h"

// Coming: what opens the talks, each objection at its edge, names, and what signing changes.

namespace grapplemont::test {
namespace {

/// An offer that nobody could refuse.
struct Talk {
  Worker Who;
  Demands Wants{kMidcard, 12, true, 100, false};
  SigningOffer Offer;

  Talk() {
    Who.Age = 28;
    Who.Brawl = Who.Technical = Who.Speed = 60;
    Offer.Wage = 100;
    Offer.Months = 12;
    Offer.Position = kMidcard;
  }
  std::string Judge() const { return JudgeSigning(Who, Wants, Offer); }
};

using Twist = void (*)(Talk& t);

struct Objection {
  Twist Holds;
  std::vector<Twist> HoldsNot;  // at the other side of each of its edges, on top of Holds
  const char* Words;
};
const std::vector<Objection>& Objections() {
  static const std::vector<Objection> all = {
      {[](Talk& t) { t.Offer.Written = false; },
       {[](Talk& t) { t.Offer.Written = true; }, [](Talk& t) { t.Wants.Written = false; }},
       "I want a written contract!"},
      {[](Talk& t) { t.Wants.Written = false; },
       {[](Talk& t) { t.Offer.Written = false; }},
       "I do not want a written contract!"},
      {[](Talk& t) {
         t.Wants.Wage = 109;  // a tenth of it is 10
         t.Offer.Wage = 98;
       },
       {[](Talk& t) { t.Offer.Wage = 99; }},
       "You are not offering me enough money!"},
      {[](Talk& t) {
         t.Wants.CreativeControl = true;
         t.Offer.Wage = 119;
       },
       {[](Talk& t) { t.Offer.Wage = 120; }, [](Talk& t) { t.Offer.CreativeControl = true; }},
       "I want a creative control clause!"},
      {[](Talk& t) {
         t.Wants.Position = kManager;
         t.Offer.Wage = 119;
       },
       {[](Talk& t) { t.Offer.Wage = 120; }, [](Talk& t) { t.Offer.Position = kManager; },
        [](Talk& t) { t.Who.Speed = 61; }},
       "I only wish to work as a manager!"},
      {[](Talk& t) {
         t.Offer.Position = kManager;
         t.Who.Brawl = 61;
         t.Offer.Wage = 119;
       },
       {[](Talk& t) { t.Offer.Wage = 120; }, [](Talk& t) { t.Who.Brawl = 60; },
        [](Talk& t) { t.Wants.Position = kManager; }},
       "I do not want to become a manager!"},
      {[](Talk& t) {
         t.Wants.Position = kNonWrestler;
         t.Offer.Wage = 139;
       },
       {[](Talk& t) { t.Offer.Wage = 140; }, [](Talk& t) { t.Offer.Position = kNonWrestler; },
        [](Talk& t) { t.Who.Technical = 61; }},
       "I only wish to work as a non-wrestler!"},
      {[](Talk& t) {
         t.Wants.Position = kNonWrestler;
         t.Who.Technical = 76;
         t.Who.Age = 36;
       },
       {[](Talk& t) { t.Who.Age = 35; }},
       "I only wish to work as a non-wrestler!"},
      {[](Talk& t) {
         t.Wants.Position = kNonWrestler;
         t.Who.Technical = 61;
         t.Who.Age = 36;
       },
       {[](Talk& t) { t.Offer.Wage = 140; }},
       "I only wish to work as a non-wrestler!"},
      {[](Talk& t) {
         t.Offer.Position = kNonWrestler;
         t.Who.Technical = 61;
         t.Offer.Wage = 129;
       },
       {[](Talk& t) { t.Offer.Wage = 130; }, [](Talk& t) { t.Who.Technical = 60; },
        [](Talk& t) { t.Wants.Position = kNonWrestler; }},
       "I do not want to become a non-wrestler!"},
      {[](Talk& t) {
         t.Offer.Position = kTrainingCamp;
         t.Who.Age = 25;
       },
       {[](Talk& t) { t.Who.Age = 24; }},
       "I do not want to go to the training camp!"},
      {[](Talk& t) {
         t.Offer.Position = kTrainingCamp;
         t.Who.Age = 20;
         t.Who.Speed = 61;
       },
       {[](Talk& t) { t.Who.Speed = 60; }},
       "I do not want to go to the training camp!"},
      {[](Talk& t) { t.Offer.Position = kLowerMidcard; },
       {[](Talk& t) { t.Offer.Position = kMidcard; },
        [](Talk& t) { t.Offer.Position = kMainEvent; },
        [](Talk& t) { t.Wants.Position = kLowerMidcard; },
        [](Talk& t) { t.Offer.Position = kDevelopmentDeal; }},
       "I want to be positioned higher up the card!"},
      {[](Talk& t) {
         t.Wants.Months = 6;
         t.Offer.Months = 13;
       },
       {[](Talk& t) { t.Offer.Months = 12; }, [](Talk& t) { t.Wants.Months = 12; }},
       "I do not want to sign such a long contract!"},
      {[](Talk& t) {
         t.Wants.Months = 24;
         t.Offer.Months = 6;
       },
       {[](Talk& t) { t.Offer.Months = 12; }, [](Talk& t) { t.Wants.Months = 12; }},
       "I need job security. I want a longer contract!"},
      {[](Talk& t) {
         t.Wants.Months = 31;
         t.Offer.Months = 24;
       },
       {[](Talk& t) { t.Offer.Months = 25; }, [](Talk& t) { t.Wants.Months = 30; }},
       "I need job security. I want a longer contract!"},
      {[](Talk& t) {
         t.Wants.Months = 60;
         t.Offer.Months = 36;
       },
       {[](Talk& t) { t.Offer.Months = 37; }, [](Talk& t) { t.Wants.Months = 48; }},
       "I want a much longer contract!"},
      {[](Talk& t) {
         t.Wants.Months = 24;
         t.Offer.Months = 49;
         t.Wants.Wage = 119;  // 15 percent of it are 17
         t.Offer.Wage = 137;
       },
       {[](Talk& t) { t.Offer.Wage = 136; }, [](Talk& t) { t.Offer.Months = 48; },
        [](Talk& t) { t.Wants.Months = 36; }},
       "I want extra money to sign for this amount of time!"},
      {[](Talk& t) {
         t.Offer.Months = 31;
         t.Wants.Wage = 104;  // a fifth of it is 20
         t.Offer.Wage = 125;
       },
       {[](Talk& t) { t.Offer.Wage = 124; }, [](Talk& t) { t.Offer.Months = 30; },
        [](Talk& t) { t.Wants.Months = 24; }},
       "I want extra money to sign for this amount of time!"},
  };
  return all;
}

TEST(JudgeSigning, HearsEachObjectionAloneAtItsEdge) {
  EXPECT_EQ(Talk().Judge(), "");
  for (const Objection& objection : Objections()) {
    SCOPED_TRACE(objection.Words);
    Talk talk;
    objection.Holds(talk);
    EXPECT_EQ(talk.Judge(), objection.Words);
    for (std::size_t edge = 0; edge < objection.HoldsNot.size(); ++edge) {
      Talk near;
      objection.Holds(near);
      objection.HoldsNot[edge](near);
      EXPECT_EQ(near.Judge(), "") << "edge " << edge;
    }
  }
}

TEST(JudgeSigning, GoesDownItsListInOrder) {
  struct Step {
    Twist Change;
    const char* Words;
  };
  const Step kSteps[] = {
      {[](Talk& t) {
         t.Offer.Written = false;
         t.Wants = {kManager, 6, true, 200, true};
         t.Offer.Months = 60;
       },
       "I want a written contract!"},
      {[](Talk& t) {
         t.Wants.Written = false;
         t.Offer.Written = true;
       },
       "I do not want a written contract!"},
      {[](Talk& t) { t.Wants.Written = true; }, "You are not offering me enough money!"},
      {[](Talk& t) { t.Offer.Wage = 200; }, "I want a creative control clause!"},
      {[](Talk& t) { t.Offer.CreativeControl = true; }, "I only wish to work as a manager!"},
      {[](Talk& t) {
         t.Wants.Position = kNonWrestler;
         t.Who.Brawl = 61;
         t.Who.Age = 40;
         t.Offer.Position = kManager;
       },
       "I do not want to become a manager!"},
      {[](Talk& t) { t.Offer.Position = kTrainingCamp; }, "I only wish to work as a non-wrestler!"},
      {[](Talk& t) { t.Wants.Position = kMidcard; }, "I do not want to go to the training camp!"},
      {[](Talk& t) { t.Offer.Position = kNonWrestler; }, "I do not want to become a non-wrestler!"},
      {[](Talk& t) { t.Offer.Position = kJobber; }, "I want to be positioned higher up the card!"},
      {[](Talk& t) { t.Offer.Position = kMidcard; }, "I do not want to sign such a long contract!"},
      {[](Talk& t) {
         t.Wants.Months = 60;
         t.Offer.Months = 24;
       },
       "I need job security. I want a longer contract!"},
      {[](Talk& t) { t.Offer.Months = 36; }, "I want a much longer contract!"},
      {[](Talk& t) { t.Offer.Months = 48; }, ""},
  };
  Talk talk;
  for (const Step& step : kSteps) {
    step.Change(talk);
    EXPECT_EQ(talk.Judge(), step.Words);
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
  struct Row {
    int Size, Over, Loyalty, Morale, Behaviour, EmployerSize, Words;
  };
  constexpr Row kRows[] = {
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
  for (const Row& row : kRows)
    for (const bool man : {true, false}) {
      world.Player().Size = row.Size;
      Named(world.Promotions(), "NEW").Size = row.EmployerSize;
      ray.Gender = man;
      ray.Over = row.Over;
      ray.Loyalty = row.Loyalty;
      ray.Morale = row.Morale;
      ray.Behaviour = row.Behaviour;
      EXPECT_EQ(WhyNoSigning(world, ray), kAll[row.Words][man ? 0 : 1])
          << row.Size << " " << row.Over << " " << row.Loyalty << " " << row.Morale << " "
          << row.Behaviour << " " << row.EmployerSize;
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
  World world = Market()
                    .Network("Nine")
                    .Promotion("ACE", kCult, [](Promotion& p) { p.Split[0] = "Red"; })
                    .Worker("Client")
                    .Worker("Star Stan", kNonWrestler, 50,
                            [](Worker& w) {
                              w.Split = "Red";
                              w.Manager = 4;
                              w.CreativeControl = true;
                            })
                    .Title("Ace Crown", "Star Stan", {}, [](Title& t) { t.Image = 90; })
                    .Show("Ace Hour", "Monday", "Nine",
                          [](Show& show) {
                            show.ColourIsWorker = true;
                            show.Colour = 5;
                          })
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
  for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
}

}  // namespace
}  // namespace grapplemont::test
