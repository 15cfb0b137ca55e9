
#include "business/finance.h"
#include "business/sponsors.h"
#include "info/meeting.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "rivals/purse.h"
#include "roster/talks.h"
#include "show/attendance.h"

// The meeting on money: what is in hand, what comes and goes, and who else might pay.

namespace grapplemont {

namespace {

constexpr int kShortRunway = 12;  // months
constexpr int kVeryShortRunway = 3;
constexpr int kDearWages = 60;      // percent of the income
constexpr int kWorthAWord = 10;     // percent of the gate
constexpr int kWorthTheBother = 5;  // percent of what merchandise leaves
constexpr int kMostSpending = 100;
constexpr int kEndingMonths = 2;
/// A crowd that is large enough for every percent to show.
constexpr int kManyPeople = 10000;

bool HasClosedAMonth(const MonthBooks& books) {
  return TotalIn(books) != 0 || TotalOut(books) != 0;
}

void TalkOfDebt(Meeting& meeting) {
  const Promotion& player = meeting.Player();
  const BankruptcyLine& line = BankruptcyLineOf(player.Size);
  if (player.Money >= 0) return;
  const long long debt = -static_cast<long long>(player.Money);
  const long long end = -static_cast<long long>(line.BankruptBelow);
  meeting.Say(player.Money < line.WarnedBelow ? Point::NearBankruptcy : Point::Debt,
              {{"debt", Dollars(debt)},
               {"line", Dollars(end)},
               {"left", debt < end ? Dollars(end - debt) : "nothing"}});
}

void TalkOfTheMonth(Meeting& meeting) {
  const Promotion& player = meeting.Player();
  const long long balance = Balance(player.LastMonth);
  if (balance > 0) meeting.Say(Point::Profit, {{"gain", Dollars(balance)}});
  if (balance >= 0 || player.Money < 0) return;
  const long long months = player.Money / -balance;
  if (months <= kShortRunway)
    meeting.Say(Point::Runway,
                {{"loss", Dollars(-balance)},
                 {"money", Dollars(player.Money)},
                 {"months", months == 0 ? "less than a month" : Counted(months, "month")}},
                months > kVeryShortRunway ? Urgency::Soon : Urgency::Now);
}

void TalkOfWages(Meeting& meeting) {
  const MonthBooks& books = meeting.Player().LastMonth;
  const long long wages = static_cast<long long>(books.WrestlerWages) + books.StaffWages;
  const long long income = TotalIn(books);
  if (income == 0 && wages > 0) meeting.Say(Point::NoIncome, {{"wages", Dollars(wages)}});
  if (income <= 0) return;
  const long long share = wages * 100 / income;
  if (share > kDearWages)
    meeting.Say(Point::WageShare, {{"wages", Dollars(wages)}, {"share", Number(share)}});
}

long long GateAt(int size, int price, int economy) {
  return static_cast<long long>(price) * TvGate(kManyPeople, {size, price, economy});
}

/// The ticket price that brings most at the gate.
int BestTicketPrice(int size, int economy) {
  int best = 1;
  for (int price = 2; price <= 2 * FairTicketPrice(size) + kWorthAWord; ++price)
    if (GateAt(size, price, economy) > GateAt(size, best, economy)) best = price;
  return best;
}

void TalkOfTickets(Meeting& meeting) {
  const Promotion& player = meeting.Player();
  const int economy = meeting.Of().Game().Economy;
  const int best = BestTicketPrice(player.Size, economy);
  const Meeting::Words words = {{"price", Dollars(player.TicketPrice)},
                                {"fair", Dollars(FairTicketPrice(player.Size))},
                                {"best", Dollars(best)}};
  if (player.TicketPrice == 0) return meeting.Say(Point::TicketFree, words);
  if (IsNobodysPrice(player.Size, player.TicketPrice))
    return meeting.Say(Point::TicketNobody, words);
  const long long now = GateAt(player.Size, player.TicketPrice, economy);
  const long long then = GateAt(player.Size, best, economy);
  if (now == 0) return;
  const long long more = then * 100 / now - 100;
  if (more < kWorthAWord) return;
  Meeting::Words all = words;
  all.emplace_back("more", Number(more));
  meeting.Say(Point::TicketWrong, all);
}

/// What a level of merchandising leaves of a month.
long long LeftOf(const Promotion& promotion, int level, int economy) {
  Promotion other = promotion;
  other.Merchandising = level;
  return static_cast<long long>(MerchandiseSales(other, economy)) - MerchandisingCost(level);
}

/// The level of merchandising that leaves most after its cost.
int BestMerchandising(const Promotion& promotion, int economy) {
  int best = 0;
  for (int level = 1; level <= kMostSpending; ++level)
    if (LeftOf(promotion, level, economy) > LeftOf(promotion, best, economy)) best = level;
  return best;
}

void TalkOfMerchandise(Meeting& meeting) {
  const Promotion& player = meeting.Player();
  const int economy = meeting.Of().Game().Economy;
  const int best = BestMerchandising(player, economy);
  const long long now = LeftOf(player, player.Merchandising, economy);
  const long long then = LeftOf(player, best, economy);
  if ((then - now) * 100 <= then * kWorthTheBother || then == now) return;
  meeting.Say(Point::Merchandise, {{"level", Number(int(player.Merchandising))},
                                   {"best", Number(best)},
                                   {"now", Dollars(now)},
                                   {"then", Dollars(then)}});
}

/// Those who are free and give the player this answer.
std::vector<const Sponsor*> FreeSponsors(const World& world, SponsorAnswer answer) {
  std::vector<const Sponsor*> found;
  for (const Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == 0 && AnswerOf(sponsor, world.Player()) == answer)
      found.push_back(&sponsor);
  return found;
}

const Sponsor& BestPaying(const std::vector<const Sponsor*>& sponsors) {
  return **std::max_element(sponsors.begin(), sponsors.end(),
                            [](auto* a, auto* b) { return a->Pay < b->Pay; });
}

std::vector<const Sponsor*> OurSponsors(const World& world) {
  std::vector<const Sponsor*> ours;
  for (const Word& uid : world.Player().Sponsor)
    if (const Sponsor* sponsor = world.FindSponsor(uid)) ours.push_back(sponsor);
  return ours;
}

void TalkOfFreePlaces(Meeting& meeting) {
  const World& world = meeting.Of();
  const Promotion& player = meeting.Player();
  const auto free = kSponsorPlaces - OurSponsors(world).size();
  if (free == 0) return;
  const auto willing = FreeSponsors(world, SponsorAnswer::Accepts);
  if (!willing.empty()) {
    const Sponsor& best = BestPaying(willing);
    const bool isMain = !world.FindSponsor(player.Sponsor[0]);
    return meeting.Say(Point::SponsorsFree,
                       {{"n", Number(free)},
                        {"takers", Number(willing.size())},
                        {"who", best.Name.Str()},
                        {"pay", Dollars(SponsorPayForTv(best, isMain) * 1000LL)}});
  }
  auto shy = FreeSponsors(world, SponsorAnswer::TooRisky);
  std::erase_if(
      shy, [&](const Sponsor* s) { return s->Pay >= SponsorPayLimit(player.Size, player.Image); });
  if (shy.empty()) return;
  const Sponsor& boldest = LeastOf(shy, &Sponsor::Morality);
  meeting.Say(Point::SponsorsRisk, {{"n", Number(free)},
                                    {"risk", Number(int(player.Risk))},
                                    {"who", boldest.Name.Str()},
                                    {"below", Number(100 - boldest.Morality)}});
}

void TalkOfEndingSponsors(Meeting& meeting) {
  std::vector<std::string> names;
  for (const Sponsor* sponsor : OurSponsors(meeting.Of()))
    if (sponsor->ContractMonths <= kEndingMonths) names.push_back(sponsor->Name.Str());
  if (!names.empty()) meeting.Say(Point::SponsorsEnd, {{"names", Joined(names)}});
}

void TalkOfTheirOrder(Meeting& meeting) {
  const World& world = meeting.Of();
  const Sponsor* main = world.FindSponsor(meeting.Player().Sponsor[0]);
  const auto ours = OurSponsors(world);
  if (!main) return;
  const Sponsor& best = BestPaying(ours);
  const int more = SponsorPayForTv(best, true) + SponsorPayForTv(*main, false) -
                   SponsorPayForTv(best, false) - SponsorPayForTv(*main, true);
  if (more > 0)
    meeting.Say(
        Point::SponsorsOrder,
        {{"main", main->Name.Str()}, {"who", best.Name.Str()}, {"more", Dollars(more * 1000LL)}});
}

}  // namespace

void TalkOfMoney(Meeting& meeting) {
  TalkOfDebt(meeting);
  if (HasClosedAMonth(meeting.Player().LastMonth)) {
    TalkOfTheMonth(meeting);
    TalkOfWages(meeting);
  }
  if (const int cost = AdvertisingCost(meeting.Player().Advertising); cost > 0)
    meeting.Say(Point::Advertising, {{"cost", Dollars(cost)}});
}

void TalkOfLoans(Meeting& meeting) {
  const Promotion& player = meeting.Player();
  if (player.LoanAmount < 1) return;
  const int difficulty = meeting.Of().Game().Difficulty;
  const long long payment = MonthlyRepayment(player, difficulty);
  // The wages are paid first.
  const WageBill bill = WagesOf(meeting.Of(), player.Uid);
  const long long wages = bill.Workers + bill.Staff, need = wages + payment;
  const long long rest = static_cast<long long>(player.LoanAmount) - player.LoanRepaid;
  const Meeting::Words words = {
      {"payment", Dollars(payment)},
      {"wages", Dollars(wages)},
      {"need", Dollars(need)},
      {"money", Dollars(player.Money)},
      {"missed", Number(int(player.LoanMissed))},
      {"gap", Dollars(need - player.Money)},
      {"rest", Dollars(rest)},
      {"fee", PayOffCost(player, difficulty) > rest ? " Paying early costs a fee." : ""}};
  if (player.Money < need) return meeting.Say(Point::LoanShort, words);
  meeting.Say(player.LoanMissed > 0 ? Point::LoanMissed : Point::LoanRuns, words);
}

void TalkOfPrices(Meeting& meeting) {
  TalkOfTickets(meeting);
  TalkOfMerchandise(meeting);
}

void TalkOfSponsors(Meeting& meeting) {
  TalkOfFreePlaces(meeting);
  TalkOfEndingSponsors(meeting);
  TalkOfTheirOrder(meeting);
}

}  // namespace grapplemont
