#include "roster/talks.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

// Staying: what opens the talks, and each objection to an offer at its edge.

namespace grapplemont::test {
namespace {

/// An offer that nobody could refuse.
struct Talk {
  Worker Who;
  RenewalTerms Wants{kGlobal, 100, true};
  ContractOffer Offer{100, 24, true, false};

  Talk() {
    Who.Name = "Bram Okafor";
    Who.Status = "Nor";
    Who.Age = 28;
    Who.Over = 15;
    Who.Wage = 100;
    Who.Position = kMidcard;
    for (Percent* mood : {&Who.Attitude, &Who.Morale, &Who.Loyalty}) *mood = 80;
  }
  RenewalAnswer Judge() const { return JudgeRenewal(Who, Wants, Offer); }
  void Money(int now, int wanted, int offered) {
    Who.Wage = now;
    Wants.Wage = wanted;
    Offer.Wage = offered;
  }
};

using Twist = void (*)(Talk& t);

void Veteran(Talk& t) {
  t.Who.Age = 31;
  t.Who.Attitude = 39;
  t.Who.Over = 91;
  t.Money(250, 250, 299);
}

struct Objection {
  Twist Holds;
  std::vector<Twist> HoldsNot;  // at the other side of each of its edges, on top of Holds
  const char* Words;
};
const std::vector<Objection>& Objections() {
  static const std::vector<Objection> all = {
      {[](Talk& t) {
         t.Wants.Size = kBackyard;
         t.Who.Over = 21;
       },
       {[](Talk& t) { t.Who.Over = 20; }},
       "No thanks, i think i should move on to a bigger promotion."},
      {[](Talk& t) {
         t.Wants.Size = kSmall;
         t.Who.Over = 41;
       },
       {[](Talk& t) { t.Who.Over = 40; }},
       "No thanks, i want to move to a bigger promotion."},
      {[](Talk& t) {
         t.Wants.Size = kRegional;
         t.Who.Over = 56;
         t.Offer.Months = 6;
       },
       {[](Talk& t) { t.Who.Over = 55; }, [](Talk& t) { t.Wants.Size = kCult; }},
       "No thanks, i feel i'm ready to try and join one of the big promotions."},
      {[](Talk& t) {
         t.Wants.Size = kRegional;
         t.Who.Over = 46;
         t.Offer.Months = 12;
       },
       {[](Talk& t) { t.Who.Over = 45; }, [](Talk& t) { t.Offer.Months = 6; },
        [](Talk& t) { t.Wants.Size = kCult; }},
       "This contract is too long."},
      {[](Talk& t) {
         t.Who.CreativeControl = true;
         t.Offer.Wage = 119;
       },
       {[](Talk& t) { t.Offer.Wage = 120; }, [](Talk& t) { t.Offer.CreativeControl = true; }},
       "I do not want to give up my creative control."},
      {Veteran,
       {[](Talk& t) { t.Who.Age = 30; }, [](Talk& t) { t.Who.Age = 50; },
        [](Talk& t) { t.Who.Wage = 249; }, [](Talk& t) { t.Who.Attitude = 40; },
        [](Talk& t) { t.Who.Over = 90; }, [](Talk& t) { t.Offer.CreativeControl = true; },
        [](Talk& t) { t.Offer.Wage = 300; }},
       "I want a creative control clause in my contract."},
      {[](Talk& t) { t.Offer.Written = false; },
       {[](Talk& t) { t.Wants.Written = false; }},
       "I want a written contract."},
      {[](Talk& t) { t.Wants.Written = false; },
       {[](Talk& t) { t.Offer.Written = false; }},
       "I do not want a written contract."},
      {[](Talk& t) {
         t.Who.Loyalty = 49;
         t.Money(100, 101, 100);
       },
       {[](Talk& t) { t.Who.Loyalty = 50; }, [](Talk& t) { t.Offer.Wage = 101; }},
       "I think i deserve a small pay increase."},
      {[](Talk& t) {
         t.Who.Loyalty = 49;
         t.Money(101, 100, 100);
       },
       {[](Talk& t) { t.Who.Loyalty = 50; }, [](Talk& t) { t.Offer.Wage = 101; }},
       "I do not accept this pay reduction."},
      {[](Talk& t) {
         t.Offer.Months = 12;
         t.Money(100, 101, 100);
       },
       {[](Talk& t) { t.Offer.Months = 13; }, [](Talk& t) { t.Offer.Wage = 101; }},
       "I do not accept these conditions."},
      {[](Talk& t) {
         t.Offer.Months = 12;
         t.Money(101, 100, 100);
       },
       {[](Talk& t) { t.Offer.Months = 13; }, [](Talk& t) { t.Offer.Wage = 101; }},
       "I do not accept these conditions."},
      {[](Talk& t) { t.Money(100, 111, 100); },
       {[](Talk& t) { t.Wants.Wage = 110; }},
       "I think i deserve more money."},
      {[](Talk& t) { t.Money(111, 100, 100); },
       {[](Talk& t) { t.Who.Wage = 110; }},
       "I do not accept this pay reduction."},
      {[](Talk& t) { t.Money(20, 19, 19); },
       {[](Talk& t) { t.Who.Wage = 19; }, [](Talk& t) { t.Offer.Wage = 20; }},
       "I do not accept this pay reduction."},
      {[](Talk& t) {
         t.Offer.Months = 37;
         t.Offer.Wage = 120;
       },
       {[](Talk& t) { t.Offer.Months = 36; }, [](Talk& t) { t.Offer.Wage = 121; }},
       "I want a substantial pay increase if i am to sign for this amount of time."},
      {[](Talk& t) { t.Money(99, 100, 99); },
       {[](Talk& t) { t.Offer.Wage = 100; }, [](Talk& t) { t.Who.Wage = 100; }},
       "Under these conditions, i'd want more money to sign."},
      {[](Talk& t) { t.Money(99, 98, 98); },
       {[](Talk& t) { t.Offer.Wage = 99; }, [](Talk& t) { t.Who.Wage = 100; }},
       "I do not want a pay reduction under these conditions."},
  };
  return all;
}

TEST(JudgeRenewal, TakesAnOfferThatNothingStandsAgainst) {
  EXPECT_TRUE(Talk().Judge().Accepted);
  EXPECT_TRUE(Talk().Judge().Remarks.empty());
}

TEST(JudgeRenewal, HearsEachObjectionAloneAtItsEdge) {
  for (const Objection& objection : Objections()) {
    SCOPED_TRACE(objection.Words);
    Talk talk;
    objection.Holds(talk);
    const RenewalAnswer answer = talk.Judge();
    EXPECT_FALSE(answer.Accepted);
    EXPECT_EQ(answer.Remarks, std::vector<Remark>({{"Rejected!", objection.Words}}));
    for (std::size_t edge = 0; edge < objection.HoldsNot.size(); ++edge) {
      Talk near;
      objection.Holds(near);
      objection.HoldsNot[edge](near);
      EXPECT_TRUE(near.Judge().Accepted) << "edge " << edge;
      EXPECT_TRUE(near.Judge().Remarks.empty()) << "edge " << edge;
    }
  }
}

TEST(JudgeRenewal, HearsOfControlFromStarsOfThirtyOneToFortyNine) {
  for (const auto& [age, wants] : {std::pair(30, false), {31, true}, {49, true}, {50, false}}) {
    Talk talk;
    Veteran(talk);
    talk.Who.Age = age;
    EXPECT_EQ(talk.Judge().Accepted, !wants) << age;
  }
}

TEST(JudgeRenewal, SaysNothingMoreAfterAnObjection) {
  for (const Objection& objection : Objections()) {
    Talk talk;
    objection.Holds(talk);
    talk.Wants.Size = kBackyard;
    talk.Who.Over = 91;
    EXPECT_EQ(talk.Judge().Remarks,
              std::vector<Remark>({{"Rejected!", Objections().front().Words}}))
        << objection.Words;
  }
}

TEST(JudgeRenewal, SpeaksOfWagesUnderFiveThousandWhateverWasSaidBefore) {
  const std::string reduction = "I do not accept this pay reduction.";
  Talk talk;
  talk.Money(4, 4, 4);
  EXPECT_EQ(talk.Judge().Remarks, std::vector<Remark>({{"Rejected!", reduction}}));
  talk.Money(30, 4, 4);
  talk.Offer.Months = 24;
  EXPECT_EQ(talk.Judge().Remarks.size(), 2u) << "the fall of 26 and the wage of 4";
  talk.Money(4, 4, 4);
  talk.Offer.Written = false;
  EXPECT_EQ(talk.Judge().Remarks, std::vector<Remark>({{"Rejected!", "I want a written contract."},
                                                       {"Rejected!", reduction}}));
  talk.Offer.Wage = 5;
  EXPECT_EQ(talk.Judge().Remarks.size(), 1u);
  talk.Offer.Written = true;
  EXPECT_TRUE(talk.Judge().Accepted);
}

/// Every objection at once, taken away from the front.
TEST(JudgeRenewal, GoesDownItsListInOrder) {
  struct Step {
    Twist Change;
    int Objection;  // from 1; 0: a deal
  };
  const Step kSteps[] = {
      {[](Talk& t) {
         t.Wants = {kBackyard, 300, true};
         t.Offer = {250, 12, false, false};
         Veteran(t);
         t.Who.CreativeControl = true;
         t.Who.Loyalty = 49;
         t.Money(300, 300, 250);
       },
       1},
      {[](Talk& t) { t.Wants.Size = kSmall; }, 2},
      {[](Talk& t) { t.Wants.Size = kRegional; }, 3},
      {[](Talk& t) { t.Who.Over = 55; }, 4},
      {[](Talk& t) {
         t.Wants.Size = kGlobal;
         t.Who.Over = 91;
       },
       5},
      {[](Talk& t) { t.Who.CreativeControl = false; }, 6},
      {[](Talk& t) { t.Offer.CreativeControl = true; }, 7},
      {[](Talk& t) {
         t.Wants.Written = false;
         t.Offer.Written = true;
       },
       8},
      {[](Talk& t) { t.Wants.Written = true; }, 9},
      {[](Talk& t) { t.Wants.Wage = 250; }, 10},
      {[](Talk& t) {
         t.Who.Loyalty = 50;
         t.Wants.Wage = 300;
       },
       11},
      {[](Talk& t) { t.Wants.Wage = 250; }, 12},
      {[](Talk& t) {
         t.Offer.Months = 48;
         t.Wants.Wage = 300;
       },
       13},
      {[](Talk& t) { t.Wants.Wage = 250; }, 14},
      {[](Talk& t) { t.Money(21, 20, 19); }, 15},
      {[](Talk& t) { t.Money(22, 21, 20); }, 16},
      {[](Talk& t) { t.Offer.Months = 24; }, 17},
      {[](Talk& t) { t.Wants.Wage = 20; }, 18},
      {[](Talk& t) { t.Who.Wage = 20; }, 0},
  };
  Talk talk;
  for (const Step& step : kSteps) {
    step.Change(talk);
    const RenewalAnswer answer = talk.Judge();
    EXPECT_EQ(answer.Accepted, step.Objection == 0);
    if (step.Objection == 0) continue;
    ASSERT_EQ(answer.Remarks.size(), 1u) << step.Objection;
    EXPECT_EQ(answer.Remarks[0].Text,
              Objections()[static_cast<std::size_t>(step.Objection - 1)].Words)
        << step.Objection;
  }
}

TEST(JudgeRenewal, LetsWhoeverSitsOutAcceptAfterHisWords) {
  Talk talk;
  talk.Who.Status = "Hom";
  const Remark refusal{"Refusal", "I'm not negotiating with you."};
  EXPECT_TRUE(talk.Judge().Accepted);
  EXPECT_EQ(talk.Judge().Remarks, std::vector<Remark>({refusal}));
  talk.Offer.Written = false;
  EXPECT_EQ(talk.Judge().Remarks,
            std::vector<Remark>({refusal, {"Rejected!", "I want a written contract."}}));
}

TEST(WhyNoRenewal, ClosesTheTalksForThreeReasons) {
  constexpr const char* kHappy = "Bram Okafor is happy with the current contract.";
  constexpr const char* kRefuses = "Bram Okafor refuses to even begin negotiations with you.";
  constexpr const char* kUnwilling = "Bram Okafor does not want to negotiate.";
  struct Case {
    int Months, Morale, Loyalty;
    const char* Status;
    const char* Words;
  };
  constexpr Case kCases[] = {
      {25, 40, 40, "Nor", kHappy},     {24, 40, 40, "Nor", ""},
      {25, 39, 40, "Nor", kUnwilling}, {25, 40, 39, "Nor", kUnwilling},
      {25, 40, 40, "Hom", kHappy},     {12, 80, 80, "Hom", kRefuses},
      {12, 19, 80, "Nor", kRefuses},   {12, 80, 19, "Nor", kRefuses},
      {12, 20, 80, "Nor", kUnwilling}, {12, 80, 20, "Nor", kUnwilling},
      {12, 40, 40, "Inj", ""},         {kNoEnd, 80, 80, "Nor", ""},
  };
  for (const Case& c : kCases) {
    Worker worker = Talk().Who;
    worker.ContractMonths = c.Months;
    worker.Morale = c.Morale;
    worker.Loyalty = c.Loyalty;
    worker.Status = c.Status;
    EXPECT_EQ(WhyNoRenewal(worker), c.Words)
        << c.Months << " " << c.Morale << " " << c.Loyalty << " " << c.Status;
  }
}

TEST(Renew, PutsTheOfferIntoTheContract) {
  Worker worker = Talk().Who;
  worker.CreativeControl = true;
  Renew(worker, {120, 36, true, false});
  EXPECT_EQ(worker.ContractType.View(), "Wri");
  EXPECT_EQ(worker.ContractMonths, 36);
  EXPECT_EQ(worker.Wage, 120);
  EXPECT_FALSE(worker.CreativeControl);
  Renew(worker, {0, 6, false, true});
  EXPECT_EQ(worker.ContractType.View(), "Non");
  EXPECT_EQ(worker.Wage, 0);
  EXPECT_TRUE(worker.CreativeControl);
}

}  // namespace
}  // namespace grapplemont::test
