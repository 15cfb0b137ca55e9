#include "tools/balance.h"

#include <algorithm>

#include "business/finance.h"
#include "business/sponsors.h"
#include "calendar/events.h"
#include "records/fields/charset.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/houseshows.h"
#include "rivals/rivals.h"
#include "roster/talks.h"
#include "show/attendance.h"
#include "tools/commands.h"
#include "tools/tool.h"

namespace grapplemont::tools {

namespace {

constexpr int kEvenEconomy = 60;
constexpr int kWeeks = 52, kMonths = 12;

/// What its sponsors pay a promotion, in thousands, as sums over a number of their kind.
struct SponsorPay {
  long long AnEvent = 0, ATvShow = 0, Of = 1;
};

/// Those of a kind, at their mean in each place.
template <class Kind>
SponsorPay MeanSponsors(const World& world, Kind isOne) {
  long long count = 0;
  SponsorPay sum;
  for (const Sponsor& sponsor : world.Sponsors()) {
    if (!isOne(sponsor)) continue;
    ++count;
    sum.AnEvent += sponsor.Pay;
    sum.ATvShow +=
        SponsorPayForTv(sponsor, true) + SponsorPayForTv(sponsor, false) * (kSponsorPlaces - 1);
  }
  sum.AnEvent *= std::min<long long>(count, kSponsorPlaces);
  sum.Of = std::max(count, 1LL);
  return sum;
}

/// The same promotion in the player's hands or its own.
struct Hands {
  int Advertising;
  int Merchandising;
  int Production;
  SponsorPay Sponsors;
  std::vector<int> EventTypes;  // of a year
  int HouseShow;                // dollars a week
};

Hands PlayersHands(const World& world, const Promotion& promotion) {
  std::vector<int> types;
  for (const Event& event : world.Events())
    if (event.Owner == promotion.Uid) types.push_back(event.Type);
  const auto saysYes = [&](const Sponsor& sponsor) {
    return AnswerOf(sponsor, promotion) == SponsorAnswer::Accepts;
  };
  return {promotion.Advertising,        promotion.Merchandising, promotion.Production,
          MeanSponsors(world, saysYes), std::move(types),        0};
}

Hands RivalsHands(const World& world, const Promotion& promotion) {
  const RivalSpending spending = RivalSpendingFor(promotion.Size);
  const auto fits = [&](const Sponsor& sponsor) { return FitsRival(sponsor, promotion); };
  return {TargetAdvertising(promotion.Size, promotion.Image),
          spending.Merchandising,
          spending.Production,
          MeanSponsors(world, fits),
          std::vector<int>(kMonths, NewEventType(promotion)),
          HouseShowIncome(promotion, CrewsFor(world).Of(promotion.Uid))};
}

/// Television shows in a year: the last Sunday of a month is an Event's.
int ShowsAYear(const World& world, const Promotion& promotion) {
  int shows = 0;
  for (const Show& show : world.Shows())
    if (show.Owner == promotion.Uid) shows += show.Day == "Sunday" ? kWeeks - kMonths : kWeeks;
  return shows;
}

void AddTickets(const World& world, const Promotion& promotion, const Hands& hands,
                MonthMoney& money) {
  const Gate gate{promotion.Size, FairTicketPrice(promotion.Size), kEvenEconomy};
  const auto paid = [&](int people) { return static_cast<long long>(people) * gate.TicketPrice; };
  money.TvTickets = paid(TvGate(Mean(TvCrowd(promotion.Size, promotion.Image)), gate)) *
                    ShowsAYear(world, promotion) / kMonths;
  for (const int type : hands.EventTypes) {
    money.EventTickets +=
        paid(EventGate(Mean(EventCrowd(type, promotion.Size, promotion.Image)), gate));
    money.Events += EventProductionCost(type);
    if (type == 1)
      money.PayPerView += PpvIncome(Mean(BuyRateBase(promotion.Size, promotion.Image)));
  }
  for (long long* year : {&money.EventTickets, &money.Events, &money.PayPerView}) *year /= kMonths;
}

long long SponsorsMonth(const World& world, const Promotion& promotion, const Hands& hands) {
  const SponsorPay& pay = hands.Sponsors;
  return (pay.AnEvent * std::ssize(hands.EventTypes) + pay.ATvShow * ShowsAYear(world, promotion)) *
         1000 / pay.Of / kMonths;
}

MonthMoney MonthOf(const World& world, const Promotion& promotion, const Hands& hands) {
  MonthMoney money;
  AddTickets(world, promotion, hands, money);
  const WageBill bill = WagesOf(world, promotion.Uid);
  money.WorkerWages = bill.Workers;
  money.StaffWages = bill.Staff;
  Promotion spending = promotion;
  spending.Merchandising = hands.Merchandising;
  money.Merchandise = MerchandiseSales(spending, kEvenEconomy);
  money.Sponsors = SponsorsMonth(world, promotion, hands);
  money.HouseShows = 1LL * hands.HouseShow * kWeeks / kMonths;
  money.Production = ProductionCost(hands.Production);
  money.Advertising = AdvertisingCost(hands.Advertising);
  money.Merchandising = MerchandisingCost(hands.Merchandising);
  return money;
}

std::vector<PlaceOnCard> CardOf(const World& world, const Promotion& promotion) {
  std::vector<PlaceOnCard> card;
  for (const Term& place : kStoredPositions) {
    int workers = 0, over = 0;
    for (const Worker& worker : world.Workers()) {
      if (worker.Employer != promotion.Uid || worker.Position != place.Code) continue;
      ++workers;
      over += worker.Over;
    }
    if (workers > 0) card.push_back({place.Code, workers, (over + workers / 2) / workers});
  }
  return card;
}

constexpr std::string_view kIntroduction = R"(# Balance of the default world

This page is made by `grapplemont-world balance data`. It shows what each promotion starts with and what an average month
of the first year brings in and costs, so that a world maker sees who lives well and who has to hurry. Another world's
page is a command away: `grapplemont-world balance mydata > balance.md`.

The month is an average one: an even economy, tickets at the fair price, 52 weeks spread over 12 months, crowds and buy
rates at their mean for today's image. Workers who cannot be released draw no wage. Two columns tell the same company in
two pairs of hands:

- **Player**: with the advertising, merchandise, production and Events that it has on the first day, and four sponsors
  of mean pay out of those who say yes to a player. Who picks sponsors well does better.
- **Rival**: with what a rival of its size and image spends as soon as its first show has been seen, an Event of its
  standing every month, a house show every week where eight wrestlers are fit, and four sponsors of mean pay out of those
  who are willing and pay as is usual for its class. There are not enough of them for everybody: some places stay empty.

Wages are those of the first day in both. A rival's people move towards the band of its size and the going rate within
the first months. One in debt does not advertise, and a rich one spends more.

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
  const World world = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  const std::vector<PromotionBalance> balances = BalanceOf(world);
  std::string page = std::string(kIntroduction) + Overview(balances);
  for (const PromotionBalance& balance : balances)
    page += "\n## " + balance.Of->Name + " (" + balance.Of->Initials + ")\n\n" +
            std::string(SizeText(balance.Of->Size)) + ", image " +
            std::to_string(balance.Of->Image) + ", risk " + std::to_string(balance.Of->Risk) +
            ".\n\n" + CardTable(balance) + "\n" + MoneyTable(balance);
  shell.Out << ToUtf8(page);
  return 0;
}

}  // namespace

long long MonthMoney::Income() const {
  return TvTickets + EventTickets + HouseShows + PayPerView + Merchandise + Sponsors;
}

long long MonthMoney::Costs() const {
  return WorkerWages + StaffWages + Production + Events + Advertising + Merchandising;
}

int MonthMoney::CostsPerHundred() const {
  return static_cast<int>(100 * Costs() / std::max(Income(), 1LL));
}

std::vector<PromotionBalance> BalanceOf(const World& world) {
  std::vector<PromotionBalance> balances;
  for (const Promotion& promotion : world.Promotions())
    balances.push_back({&promotion, CardOf(world, promotion),
                        MonthOf(world, promotion, PlayersHands(world, promotion)),
                        MonthOf(world, promotion, RivalsHands(world, promotion))});
  return balances;
}

const Command kBalance{"balance",
                       "FOLDER",
                       "Prints what every promotion of a world earns and spends: docs/balance.md.",
                       {},
                       Balance};

}  // namespace grapplemont::tools
