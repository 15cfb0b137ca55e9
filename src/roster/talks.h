#pragma once

#include <string>

#include "records/arithmetic.h"
#include "records/fields/vocabulary.h"
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

/// "$40,000", and "$0" for nothing.
std::string WageText(int thousands);
/// "1 month" for the last one, else "14 months".
std::string MonthsText(int months);

/// "Bram Okafor signs the contract!", or agrees to it where it is verbal.
Remark AcceptedRemark(std::string_view name, bool written);

}  // namespace grapplemont
