#include "records/modVar.h"

#include "records/dates.h"
#include "records/rolling.h"

namespace grapplemont {

namespace {
constexpr int kMailsDropped = 1000;
}

void AddNews(World& world, std::string_view from, std::string_view body) {
  Mail mail;
  mail.From = from;
  mail.Date = ShortDate(world.Today());
  mail.Body = body;
  AppendRolling(world.News(), mail, kMailsDropped);
}

bool HasNews(const World& world) {
  return world.News().Count() > 0;
}

std::string RatingText(int value) {
  const int remainder = value % 100;
  const std::string whole = std::to_string(value / 100);
  if (remainder >= 1 && remainder <= 9) return whole + ". 0" + std::to_string(remainder);
  std::string text = whole + "." + std::to_string(remainder);
  if (remainder == 0) text += "0";
  return text;
}

bool ShouldTell(const World& world, int option, int size) {
  return option == 0 || (option == 1 && size <= world.Session.StartSize);
}

void TellOf(World& world, int option, const Promotion& rival, const std::string& body) {
  if (ShouldTell(world, option, rival.Size)) AddNews(world, rival.Initials + " News", body);
}

std::string Dollars(long long amount) {
  std::string digits = std::to_string(amount < 0 ? -amount : amount);
  for (std::size_t place = digits.size(); place > 3;) digits.insert(place -= 3, ",");
  return (amount < 0 ? "-$" : "$") + digits;
}

}  // namespace grapplemont
