#include "roster/talks.h"

#include "records/fields/wording.h"

namespace grapplemont {

std::string_view ContractCodeOf(bool written) {
  return written ? "Wri" : "Non";
}
std::string_view ContractWord(bool written) {
  return written ? "Written" : "Verbal";
}

std::string WageText(int thousands) {
  return thousands == 0 ? "$0" : "$" + std::to_string(thousands) + ",000";
}

std::string MonthsText(int months) {
  return Counted(std::max(months, 1), "month");
}

Remark AcceptedRemark(std::string_view name, bool written) {
  return {"Accepted!",
          std::string(name) + (written ? " signs the contract!" : " agrees to the contract!")};
}

}  // namespace grapplemont
