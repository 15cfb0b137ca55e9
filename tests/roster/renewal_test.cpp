#include "roster/talks.h"

#include <gtest/gtest.h>

#include "decisions.h"
#include "support/smallworld.h"

// Staying: what opens the talks, and each objection to an offer at its edge.

namespace grapplemont::test {
namespace {

constexpr const char* kBackyards = "No thanks, i think i should move on to a bigger promotion.";
constexpr const char* kSmalls = "No thanks, i want to move to a bigger promotion.";
constexpr const char* kRegionals =
    "No thanks, i feel i'm ready to try and join one of the big promotions.";
constexpr const char* kTooLong = "This contract is too long.";
constexpr const char* kKeepControl = "I do not want to give up my creative control.";
constexpr const char* kControl = "I want a creative control clause in my contract.";
constexpr const char* kWritten = "I want a written contract.";
constexpr const char* kVerbal = "I do not want a written contract.";
constexpr const char* kIncrease = "I think i deserve a small pay increase.";
constexpr const char* kReduction = "I do not accept this pay reduction.";
constexpr const char* kConditions = "I do not accept these conditions.";
constexpr const char* kMoney = "I think i deserve more money.";
constexpr const char* kSubstantial =
    "I want a substantial pay increase if i am to sign for this amount of time.";
constexpr const char* kMoreUnder = "Under these conditions, i'd want more money to sign.";
constexpr const char* kLessUnder = "I do not want a pay reduction under these conditions.";

Worker Bram() {
  Worker worker;
  worker.Name = "Bram Okafor";
  worker.Status = "Nor";
  worker.Position = kMidcard;
  for (Percent* mood : {&worker.Attitude, &worker.Morale, &worker.Loyalty}) *mood = 80;
  return worker;
}

/// Each objection at both sides of its edges; the last ones show their order.
TEST(JudgeRenewal, HearsTheFirstObjectionThatHolds) {
  const struct {
    RenewalTerms Wants;   // size, wage, written
    ContractOffer Offer;  // wage, months, written, control
    int Age, Over, Now, Loyalty, Attitude;
    bool HasControl;
    const char* Words;
  } kCases[] = {
      {{1, 100, true}, {100, 24, true, false}, 28, 15, 100, 80, 80, false, ""},
      {{6, 100, true}, {100, 24, true, false}, 28, 21, 100, 80, 80, false, kBackyards},
      {{6, 100, true}, {100, 24, true, false}, 28, 20, 100, 80, 80, false, ""},
      {{5, 100, true}, {100, 24, true, false}, 28, 41, 100, 80, 80, false, kSmalls},
      {{5, 100, true}, {100, 24, true, false}, 28, 40, 100, 80, 80, false, ""},
      {{4, 100, true}, {100, 6, true, false}, 28, 56, 100, 80, 80, false, kRegionals},
      {{4, 100, true}, {100, 6, true, false}, 28, 55, 100, 80, 80, false, ""},
      {{3, 100, true}, {100, 24, true, false}, 28, 56, 100, 80, 80, false, ""},
      {{4, 100, true}, {100, 12, true, false}, 28, 46, 100, 80, 80, false, kTooLong},
      {{4, 100, true}, {100, 12, true, false}, 28, 45, 100, 80, 80, false, ""},
      {{1, 100, true}, {119, 24, true, false}, 28, 15, 100, 80, 80, true, kKeepControl},
      {{1, 100, true}, {120, 24, true, false}, 28, 15, 100, 80, 80, true, ""},
      {{1, 100, true}, {119, 24, true, true}, 28, 15, 100, 80, 80, true, ""},
      {{1, 250, true}, {299, 24, true, false}, 31, 91, 250, 80, 39, false, kControl},
      {{1, 250, true}, {299, 24, true, false}, 49, 91, 250, 80, 39, false, kControl},
      {{1, 250, true}, {299, 24, true, false}, 30, 91, 250, 80, 39, false, ""},
      {{1, 250, true}, {299, 24, true, false}, 50, 91, 250, 80, 39, false, ""},
      {{1, 250, true}, {299, 24, true, false}, 31, 91, 249, 80, 39, false, ""},
      {{1, 250, true}, {299, 24, true, false}, 31, 91, 250, 80, 40, false, ""},
      {{1, 250, true}, {299, 24, true, false}, 31, 90, 250, 80, 39, false, ""},
      {{1, 250, true}, {299, 24, true, true}, 31, 91, 250, 80, 39, false, ""},
      {{1, 250, true}, {300, 24, true, false}, 31, 91, 250, 80, 39, false, ""},
      {{1, 100, true}, {100, 24, false, false}, 28, 15, 100, 80, 80, false, kWritten},
      {{1, 100, false}, {100, 24, false, false}, 28, 15, 100, 80, 80, false, ""},
      {{1, 100, false}, {100, 24, true, false}, 28, 15, 100, 80, 80, false, kVerbal},
      {{1, 101, true}, {100, 24, true, false}, 28, 15, 100, 49, 80, false, kIncrease},
      {{1, 101, true}, {100, 24, true, false}, 28, 15, 100, 50, 80, false, ""},
      {{1, 101, true}, {101, 24, true, false}, 28, 15, 100, 49, 80, false, ""},
      {{1, 100, true}, {100, 24, true, false}, 28, 15, 101, 49, 80, false, kReduction},
      {{1, 100, true}, {100, 24, true, false}, 28, 15, 101, 50, 80, false, ""},
      {{1, 101, true}, {100, 12, true, false}, 28, 15, 100, 80, 80, false, kConditions},
      {{1, 101, true}, {100, 13, true, false}, 28, 15, 100, 80, 80, false, ""},
      {{1, 100, true}, {100, 12, true, false}, 28, 15, 101, 80, 80, false, kConditions},
      {{1, 100, true}, {101, 12, true, false}, 28, 15, 101, 80, 80, false, ""},
      {{1, 111, true}, {100, 24, true, false}, 28, 15, 100, 80, 80, false, kMoney},
      {{1, 110, true}, {100, 24, true, false}, 28, 15, 100, 80, 80, false, ""},
      {{1, 100, true}, {100, 24, true, false}, 28, 15, 111, 80, 80, false, kReduction},
      {{1, 100, true}, {100, 24, true, false}, 28, 15, 110, 80, 80, false, ""},
      {{1, 19, true}, {19, 24, true, false}, 28, 15, 20, 80, 80, false, kReduction},
      {{1, 19, true}, {19, 24, true, false}, 28, 15, 19, 80, 80, false, ""},
      {{1, 100, true}, {120, 37, true, false}, 28, 15, 100, 80, 80, false, kSubstantial},
      {{1, 100, true}, {121, 37, true, false}, 28, 15, 100, 80, 80, false, ""},
      {{1, 100, true}, {120, 36, true, false}, 28, 15, 100, 80, 80, false, ""},
      {{1, 100, true}, {99, 24, true, false}, 28, 15, 99, 80, 80, false, kMoreUnder},
      {{1, 100, true}, {99, 24, true, false}, 28, 15, 100, 80, 80, false, ""},
      {{1, 98, true}, {98, 24, true, false}, 28, 15, 99, 80, 80, false, kLessUnder},
      {{1, 98, true}, {98, 24, true, false}, 28, 15, 100, 80, 80, false, ""},
      {{6, 300, true}, {250, 12, false, false}, 31, 91, 300, 49, 39, true, kBackyards},
      {{5, 300, true}, {250, 12, false, false}, 31, 91, 300, 49, 39, true, kSmalls},
      {{4, 300, true}, {250, 12, false, false}, 31, 91, 300, 49, 39, true, kRegionals},
      {{4, 300, true}, {250, 12, false, false}, 31, 55, 300, 49, 39, true, kTooLong},
      {{1, 300, true}, {250, 12, false, false}, 31, 91, 300, 49, 39, true, kKeepControl},
      {{1, 300, true}, {250, 12, false, false}, 31, 91, 300, 49, 39, false, kControl},
      {{1, 300, true}, {250, 12, false, true}, 31, 91, 300, 49, 39, false, kWritten},
      {{1, 300, false}, {250, 12, true, true}, 31, 91, 300, 49, 39, false, kVerbal},
      {{1, 300, true}, {250, 12, true, true}, 31, 91, 300, 49, 39, false, kIncrease},
      {{1, 250, true}, {250, 12, true, true}, 31, 91, 300, 49, 39, false, kReduction},
      {{1, 300, true}, {250, 12, true, true}, 31, 91, 300, 50, 39, false, kConditions},
      {{1, 300, true}, {250, 48, true, true}, 31, 91, 300, 50, 39, false, kMoney},
      {{1, 250, true}, {250, 48, true, true}, 31, 91, 300, 50, 39, false, kReduction},
      {{1, 21, true}, {20, 48, true, true}, 31, 91, 22, 50, 39, false, kSubstantial},
      {{1, 21, true}, {20, 24, true, true}, 31, 91, 22, 50, 39, false, kMoreUnder},
      {{1, 20, true}, {20, 24, true, true}, 31, 91, 22, 50, 39, false, kLessUnder},
      {{1, 20, true}, {20, 24, true, true}, 31, 91, 20, 50, 39, false, ""},
  };
  int number = 0;
  for (const auto& c : kCases) {
    SCOPED_TRACE("case " + std::to_string(number++));
    Worker worker = Bram();
    worker.Age = c.Age;
    worker.Over = c.Over;
    worker.Wage = c.Now;
    worker.Loyalty = c.Loyalty;
    worker.Attitude = c.Attitude;
    worker.CreativeControl = c.HasControl;
    const RenewalAnswer answer = JudgeRenewal(worker, c.Wants, c.Offer);
    const bool accepts = std::string_view(c.Words).empty();
    EXPECT_EQ(answer.Accepted, accepts);
    ExpectTells(answer.Why, accepts);
    EXPECT_EQ(answer.Remarks,
              accepts ? std::vector<Remark>() : std::vector<Remark>({{"Rejected!", c.Words}}));
  }
}

TEST(JudgeRenewal, SpeaksOfWagesUnderFiveThousandWhateverWasSaidBefore) {
  Worker worker = Bram();
  const Remark reduction{"Rejected!", kReduction}, written{"Rejected!", kWritten};
  const auto said = [&](int now, ContractOffer offer) {
    worker.Wage = now;
    return JudgeRenewal(worker, {kGlobal, 4, true}, offer).Remarks;
  };
  EXPECT_EQ(said(4, {4, 24, true, false}), std::vector<Remark>({reduction}));
  EXPECT_EQ(said(30, {4, 24, true, false}).size(), 2u) << "the fall of 26 and the wage of 4";
  EXPECT_EQ(said(4, {4, 24, false, false}), std::vector<Remark>({written, reduction}));
  EXPECT_EQ(said(4, {5, 24, false, false}), std::vector<Remark>({written}));
  EXPECT_TRUE(said(4, {5, 24, true, false}).empty());
}

TEST(JudgeRenewal, LetsWhoeverSitsOutAcceptAfterHisWords) {
  Worker worker = Bram();
  worker.Wage = 100;
  worker.Status = "Hom";
  const Remark refusal{"Refusal", "I'm not negotiating with you."};
  const RenewalAnswer yes = JudgeRenewal(worker, {kGlobal, 100, true}, {100, 24, true, false});
  EXPECT_TRUE(yes.Accepted);
  EXPECT_EQ(yes.Remarks, std::vector<Remark>({refusal}));
  EXPECT_EQ(JudgeRenewal(worker, {kGlobal, 100, true}, {100, 24, false, false}).Remarks,
            std::vector<Remark>({refusal, {"Rejected!", kWritten}}));
}

TEST(WhyNoRenewal, ClosesTheTalksForThreeReasons) {
  constexpr const char* kHappy = "Bram Okafor is happy with the current contract.";
  constexpr const char* kRefuses = "Bram Okafor refuses to even begin negotiations with you.";
  constexpr const char* kUnwilling = "Bram Okafor does not want to negotiate.";
  constexpr struct {
    int Months, Morale, Loyalty;
    const char *Status, *Words;
  } kCases[] = {
      {25, 40, 40, "Nor", kHappy},     {24, 40, 40, "Nor", ""},
      {25, 39, 40, "Nor", kUnwilling}, {25, 40, 39, "Nor", kUnwilling},
      {25, 40, 40, "Hom", kHappy},     {12, 80, 80, "Hom", kRefuses},
      {12, 19, 80, "Nor", kRefuses},   {12, 80, 19, "Nor", kRefuses},
      {12, 20, 80, "Nor", kUnwilling}, {12, 80, 20, "Nor", kUnwilling},
      {12, 40, 40, "Inj", ""},         {kNoEnd, 80, 80, "Nor", ""},
  };
  for (const auto& c : kCases) {
    Worker worker = Bram();
    worker.ContractMonths = c.Months;
    worker.Morale = c.Morale;
    worker.Loyalty = c.Loyalty;
    worker.Status = c.Status;
    Decision why;
    EXPECT_EQ(WhyNoRenewal(worker, &why), c.Words)
        << c.Months << " " << c.Morale << " " << c.Loyalty << " " << c.Status;
    ExpectTells(why, std::string_view(c.Words).empty());
  }
}

TEST(Renew, PutsTheOfferIntoTheContract) {
  Worker worker = Bram();
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
