#include "rivals/purse.h"

#include "business/beside.h"
#include "records/arithmetic.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "roster/postings.h"

namespace grapplemont {

namespace {

constexpr std::array<int, 6> kFairSum = {20000000, 10000000, 5000000, 2000000, 1000000, 200000};

struct MoneyWords {
  int FromPercent;  // of the fair sum
  const char* Words;
};
constexpr MoneyWords kWords[] = {
    {300, "Rich"}, {100, "Comfortable"}, {40, "Sound"}, {10, "Short of money"}, {0, "Scraping by"}};

long long WagesOf(const Promotion& promotion) {
  const MonthBooks& books = promotion.LastMonth;
  return static_cast<long long>(books.WrestlerWages) + books.StaffWages;
}

/// Twice in a row the money at a month end was less (`sign` -1) or more (1) than at the one before.
bool MovedTwice(const Promotion& promotion, int sign) {
  const auto& money = promotion.MoneyBefore;
  if (money[1] == kNoEnd || money[2] == kNoEnd) return false;
  return sign * (static_cast<long long>(money[0]) - money[1]) > 0 &&
         sign * (static_cast<long long>(money[1]) - money[2]) > 0;
}

void Warn(World& world, const Promotion& promotion) {
  NoteDeed(world, kDeedWarned, &promotion, promotion.Name);
  if (IsPlayers(world, promotion))
    AddNews(world, "Finance Dept.",
            "The bank are warning that we face bankruptcy if our finances fall much lower!");
  else
    TellOf(world, world.Game().MailOtherFed, promotion,
           promotion.Name + " have issued a bankruptcy warning!");
}

void GoBankrupt(World& world, Promotion& promotion) {
  if (IsPlayers(world, promotion)) {
    world.Game().EndCode = kEndBankrupt;
    return;
  }
  NoteDeed(world, kDeedClosed, &promotion, promotion.Name);
  TellOf(world, world.Game().MailOtherFed, promotion, promotion.Name + " have gone bankrupt!");
  promotion.Name = kToBeDeleted;
}

}  // namespace

Purse PurseOf(const Promotion& promotion) {
  if (promotion.Money < 0) return Purse::Saving;
  const bool hasReserve = promotion.Money >= tuning::kMonthsInHand * WagesOf(promotion);
  if (!hasReserve && MovedTwice(promotion, -1)) return Purse::Saving;
  if (hasReserve && MovedTwice(promotion, 1)) return Purse::Spending;
  return Purse::Steady;
}

int FairSum(int size) {
  return BySize(kFairSum, size);
}

std::string MoneyInWords(int size, long long money) {
  if (money < BankruptcyLineOf(size).WarnedBelow) return "Close to bankruptcy";
  if (money < 0) return "In debt";
  const long long percent = money * 100 / FairSum(size);
  for (const MoneyWords& row : kWords)
    if (percent >= row.FromPercent) return row.Words;
  return {};
}

const BankruptcyLine& BankruptcyLineOf(int size) {
  static constexpr std::array<BankruptcyLine, 6> kLines = {{{-19999999, -18000000, -20000000},
                                                            {-14999999, -13000000, -15000000},
                                                            {-4999999, -4400000, -5000000},
                                                            {-2499999, -2300000, -2500000},
                                                            {-999999, -800000, -1000000},
                                                            {-499999, -420000, -500000}}};
  return BySize(kLines, size);
}

void BankruptcyCheck(World& world) {
  for (Promotion& promotion : world.Promotions()) {
    if (!IsAlive(promotion)) continue;
    const BankruptcyLine& line = BankruptcyLineOf(promotion.Size);
    if (promotion.Money >= line.WarnedFrom && promotion.Money < line.WarnedBelow)
      Warn(world, promotion);
    if (promotion.Money < line.BankruptBelow) GoBankrupt(world, promotion);
  }
}

namespace {

constexpr int kLeastMorale = 10;
constexpr int kLeastMonths = 3;
constexpr int kShortContract = 2;

/// What is the same for whoever comes over; contracts that end at once are made longer.
template <class Person>
void KeepOn(Person& person) {
  person.Unsackable = false;
  person.Morale = std::max<int>(person.Morale, kLeastMorale);
  if (person.ContractMonths < kShortContract) person.ContractMonths = kLeastMonths;
}

void ComeOver(World& world, Worker& worker) {
  const Promotion& player = world.Player();
  VacateTitlesOf(world, worker.Uid);
  if (worker.Status == "Hom") worker.Status = "Nor";
  KeepOn(worker);
  worker.Stable = "None";
  worker.Split = "None";
  worker.TurnPending = false;
  worker.Manager = 0;
  worker.Employer = player.Uid;
  worker.Position = PlacementPosition(worker, player.Size);
}

/// A promotion has one owner, and the player's keeps its own.
void ComeOver(World& world, Staff& staff) {
  const int months = staff.ContractMonths;
  DismissStaff(world, staff);
  staff.Unsackable = false;
  if (staff.Position == kOwner) return;
  staff.Employer = world.PlayerUid();
  staff.ContractMonths = months;
  KeepOn(staff);
}

}  // namespace

bool IsForSale(const Promotion& rival) {
  return rival.Money <= BankruptcyLineOf(rival.Size).BankruptBelow / 4;
}

long long TakeoverCost(const Promotion& rival, Takeover kind) {
  return (kind == Takeover::Destruction ? WagesOf(rival) : 0) - rival.Money;
}

void TakeOverRival(World& world, Promotion& rival, Takeover kind) {
  MoveBeside(world, world.Player(), -TakeoverCost(rival, kind), "Taking over " + rival.Initials);
  if (kind == Takeover::Destruction) {
    std::vector<Worker*> roster;
    for (Worker& worker : world.Workers())
      if (worker.Employer == rival.Uid) roster.push_back(&worker);
    PartWays(world, roster);
    for (Staff& staff : world.AllStaff())
      if (staff.Employer == rival.Uid) DismissStaff(world, staff);
  } else {
    for (Worker& worker : world.Workers())
      if (worker.Employer == rival.Uid) ComeOver(world, worker);
    for (Staff& staff : world.AllStaff())
      if (staff.Employer == rival.Uid) ComeOver(world, staff);
  }
  NoteDeed(world, kDeedBought, &rival, rival.Name, world.Player().Initials);
  rival.Name = kToBeDeleted;
}

}  // namespace grapplemont
