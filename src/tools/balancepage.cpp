#include <ostream>

#include "records/fields/charset.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "tools/balance.h"
#include "tools/commands.h"
#include "tools/folders.h"

namespace grapplemont::tools {

namespace {

constexpr std::string_view kIntroduction = R"(# Balance of the default world

This page is made by `grapplemont-world balance data`. It shows what each promotion starts with and what an average month
of the first year brings in and costs, so that a world maker sees who lives well and who has to hurry. Another world's
page is a command away: `grapplemont-world balance mydata > balance.md`.

The month is an average one: an even economy, tickets at the fair price, 52 weeks spread over 12 months, crowds and buy
rates at their mean for today's image, and four sponsors of mean pay out of those who would sign. Who picks sponsors well
does better. Workers who cannot be released draw no wage. Two columns tell the same company in two pairs of hands:

- **Player**: with the advertising, merchandise, production and Events that it has on the first day, and the sponsors
  that say yes to a player.
- **Rival**: with what a rival of its size and image spends as soon as its first show has been seen, an Event of its
  standing every month, a house show every week where eight wrestlers are fit, and the sponsors that say yes to a rival.

Wages are those of the first day in both. A rival's people move towards the band of its size and the going rate within
the first months, and one in debt advertises half as much.

Dollars throughout. *Costs per 100* is what it costs to earn a hundred dollars: under 100 a promotion grows richer.
)";

struct MoneyRow {
  std::string_view What;
  long long MonthMoney::*Amount;
};
constexpr MoneyRow kIncome[] = {
    {"Tickets, television", &MonthMoney::TvTickets}, {"Tickets, Event", &MonthMoney::EventTickets},
    {"House shows", &MonthMoney::HouseShows},        {"Pay-per-view", &MonthMoney::PayPerView},
    {"Merchandise", &MonthMoney::Merchandise},       {"Sponsors", &MonthMoney::Sponsors},
};
constexpr MoneyRow kCosts[] = {
    {"Workers' wages", &MonthMoney::WorkerWages},
    {"Staff wages", &MonthMoney::StaffWages},
    {"Production", &MonthMoney::Production},
    {"Putting on the Event", &MonthMoney::Events},
    {"Advertising", &MonthMoney::Advertising},
    {"Making merchandise", &MonthMoney::Merchandising},
};

std::string Row(std::string_view what, long long player, long long rival) {
  return "| " + std::string(what) + " | " + std::to_string(player) + " | " + std::to_string(rival) +
         " |\n";
}

std::string Overview(const std::vector<PromotionBalance>& balances) {
  std::string text =
      "\n## All promotions\n\n| Promotion | Size | Image | Cash | Player: month | costs per 100 | "
      "Rival: month | costs per 100 |\n| --- | --- | ---: | ---: | ---: | ---: | ---: | ---: |\n";
  const auto month = [](const MonthMoney& money) {
    return std::to_string(money.Income() - money.Costs()) + " | " +
           std::to_string(money.CostsPerHundred());
  };
  for (const PromotionBalance& balance : balances)
    text += "| " + balance.Of->Initials + " | " + std::string(SizeText(balance.Of->Size)) + " | " +
            std::to_string(balance.Of->Image) + " | " + std::to_string(balance.Of->Money) + " | " +
            month(balance.AsPlayers) + " | " + month(balance.AsRival) + " |\n";
  return text;
}

std::string CardTable(const PromotionBalance& balance) {
  std::string text = "| Place | Workers | Mean popularity |\n| --- | ---: | ---: |\n";
  for (const PlaceOnCard& place : balance.Card)
    text += Row(Says(kStoredPositions, place.Position), place.Workers, place.MeanOver);
  return text;
}

std::string MoneyTable(const PromotionBalance& balance) {
  const MonthMoney &player = balance.AsPlayers, &rival = balance.AsRival;
  std::string text = "| A month | Player | Rival |\n| --- | ---: | ---: |\n";
  for (const MoneyRow& row : kIncome) text += Row(row.What, player.*row.Amount, rival.*row.Amount);
  text += Row("**Income**", player.Income(), rival.Income());
  for (const MoneyRow& row : kCosts) text += Row(row.What, player.*row.Amount, rival.*row.Amount);
  text += Row("**Costs**", player.Costs(), rival.Costs());
  return text + Row("**Costs per 100**", player.CostsPerHundred(), rival.CostsPerHundred());
}

int Balance(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  shell.Out << BalancePage(ReadWorld(*disk, arguments.Place(0), shell.Errors));
  return 0;
}

}  // namespace

std::string BalancePage(const World& world) {
  const std::vector<PromotionBalance> balances = BalanceOf(world);
  std::string page = std::string(kIntroduction) + Overview(balances);
  for (const PromotionBalance& balance : balances)
    page += "\n## " + balance.Of->Name + " (" + balance.Of->Initials + ")\n\n" +
            std::string(SizeText(balance.Of->Size)) + ", image " +
            std::to_string(balance.Of->Image) + ", risk " + std::to_string(balance.Of->Risk) +
            ".\n\n" + CardTable(balance) + "\n" + MoneyTable(balance);
  return ToUtf8(page);
}

const Command kBalance{"balance",
                       "FOLDER",
                       "Prints what every promotion of a world earns and spends: docs/balance.md.",
                       1,
                       {},
                       Balance};

}  // namespace grapplemont::tools
