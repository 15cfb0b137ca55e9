#include "business/officewords.h"

namespace grapplemont {

std::string FinanceText(const Promotion& promotion) {
  return "Current finance: $" + std::to_string(promotion.Money);
}

std::string SpendingText(int level, int dollarsAMonth) {
  return std::to_string(level) + "% \\ $" + std::to_string(dollarsAMonth) + " p.m";
}

std::string DollarsAndCents(long long cents) {
  std::string text = "$" + std::to_string(cents / 100);
  if (const auto rest = std::to_string(cents % 100); cents % 100 != 0)
    text += (rest.size() < 2 ? ".0" : ".") + rest;
  return text;
}

}  // namespace grapplemont
