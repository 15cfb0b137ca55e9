#pragma once

#include <string>
#include <vector>

#include "records/arithmetic.h"
#include "records/fields/vocabulary.h"
#include "records/score.h"
#include "records/world.h"

// What all contract talks share.

namespace grapplemont {

/// A box of its own.
struct Remark {
  std::string Title, Text;
  friend bool operator==(const Remark&, const Remark&) = default;
};

/// What the player puts on the table.
struct ContractOffer {
  int Wage = 0;  // thousands of dollars a month
  int Months = 0;
  bool Written = true;
  bool CreativeControl = false;
};

/// The lengths that can be offered, in months.
inline constexpr Term kContractLengths[] = {{6, "", "6 Months"}, {12, "", "1 Year"},
                                            {24, "", "2 Years"}, {36, "", "3 Years"},
                                            {48, "", "4 Years"}, {60, "", "5 Years"}};

inline constexpr int kHighestWage = 300;  // thousands of dollars a month, a worker's

/// "Wri" and "Non", as the records have them; "Written" and "Verbal", as the talks do.
std::string_view ContractCodeOf(bool written);
std::string_view ContractWord(bool written);

/// The length, the kind and the wage of the offer become those of the contract.
template <class Person>
void PutInto(Person& person, const ContractOffer& offer) {
  person.ContractType = ContractCodeOf(offer.Written);
  person.ContractMonths = offer.Months;
  person.Wage = offer.Wage;
}

/// "$40,000", and "$0" for nothing.
std::string WageText(int thousands);
/// "1 month" for the last one, else "14 months".
std::string MonthsText(int months);

// Who costs what on the first of a month, in dollars.

/// 0 for whoever draws no wage: nobody's worker, one who has been sent home, one whose contract has
/// no end.
int MonthlyWage(const Worker& worker);
/// 0 for nobody's staff, for Owners, and for a contract without an end.
int MonthlyWage(const Staff& staff);

/// What the promotion pays to all its people.
struct WageBill {
  long long Workers = 0;
  long long Staff = 0;
};
WageBill WagesOf(const World& world, int promotionUid);

// What a worker wants of a contract.

/// What somebody from outside wants for coming.
struct Demands {
  int Position = 0;  // a code of Worker.Position; 0 for an Over that no table knows
  int Months = 12;
  bool Written = true;
  int Wage = 0;  // thousands of dollars a month
  bool CreativeControl = false;
  Score WageSteps = {};  // how the wage came about
};
/// Of the player's promotion.
Demands ContractDemands(const World& world, const Worker& worker);

// Talks with a worker of the player's about staying.

/// What closes the talks before they begin, with their name in front; empty while they will listen.
/// `why` gets what was weighed, here and with every answer below.
std::string WhyNoRenewal(const Worker& worker, Decision* why = nullptr);

/// What an offer is held against.
struct RenewalTerms {
  int Size = kGlobal;  // the promotion's
  int Wage = 0;        // wanted, thousands of dollars a month
  bool Written = true;
  Score WageSteps = {};  // how the wage came about
};
RenewalTerms RenewalTermsOf(const World& world, const Worker& worker);

/// What they say to an offer, box by box, and whether it is a deal.
struct RenewalAnswer {
  std::vector<Remark> Remarks;
  bool Accepted = false;
  Decision Why = {};
};
RenewalAnswer JudgeRenewal(const Worker& worker, const RenewalTerms& terms,
                           const ContractOffer& offer);

/// Puts the offer into their contract.
void Renew(Worker& worker, const ContractOffer& offer);

}  // namespace grapplemont
