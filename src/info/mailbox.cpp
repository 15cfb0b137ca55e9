#include "info/mailbox.h"

#include <set>
#include <string_view>

namespace grapplemont {

void SetMailOption(GameInfo& game, const MailOption& option, int choice) {
  game.*option.Choice = option.TwoWay && choice == kMailRivals ? int(kMailAlways) : choice;
}

void SetAllMailOptions(GameInfo& game, int choice) {
  for (const MailOption& option : kMailOptionTable) SetMailOption(game, option, choice);
}

std::vector<std::string> MailSenders(const World& world) {
  std::set<std::string_view> senders;
  for (const Mail& mail : world.News())
    if (const std::string_view from = mail.From.View(); !from.empty()) senders.insert(from);
  return {senders.begin(), senders.end()};
}

std::vector<int> MailsNewestFirst(const World& world, std::string_view from) {
  std::vector<int> numbers;
  for (int number = world.News().Count(); number >= 1; --number)
    if (from.empty() || world.News()[number].From == from) numbers.push_back(number);
  return numbers;
}

}  // namespace grapplemont
