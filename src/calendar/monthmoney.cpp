#include <algorithm>
#include <array>

#include "business/beside.h"
#include "business/finance.h"
#include "business/past.h"
#include "calendar/advanceday.h"
#include "calendar/board.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/notes.h"
#include "records/severing.h"
#include "rivals/rivals.h"
#include "roster/leaving.h"
#include "roster/market.h"
#include "roster/moods.h"
#include "roster/talks.h"

namespace grapplemont {

namespace {

constexpr const char* kFinance = "Finance Dept.";

void PlayerMisses(World& world, int missed) {
  if (missed == 3) world.Game().EndCode = kEndLoan;
  if (missed != 1 && missed != 2) return;
  AddNews(world, kFinance,
          std::string("The bank have given us a ") + (missed == 1 ? "verbal" : "written") +
              " warning as we could not make this month's loan repayment.");
}

void RivalMisses(World& world, Promotion& rival, int missed) {
  constexpr std::array<const char*, 3> kWords = {" are experiencing financial problems.",
                                                 " are experiencing major financial problems.",
                                                 " have gone out of business!"};
  if (missed < 1 || missed > 3) return;
  if (missed == 3) NoteDeed(world, kDeedClosed, &rival, rival.Name);
  TellOf(world, world.Game().MailOtherFed, rival,
         rival.Initials + kWords[static_cast<std::size_t>(missed - 1)]);
  if (missed == 3) rival.Name = kToBeDeleted;
}

void MissRepayment(World& world, Promotion& promotion) {
  promotion.LoanMissed += 1;
  if (promotion.LoanMissed < 3) NoteDeed(world, kDeedMissed, &promotion, promotion.Name);
  if (IsPlayers(world, promotion))
    PlayerMisses(world, promotion.LoanMissed);
  else
    RivalMisses(world, promotion, promotion.LoanMissed);
}

void Repay(World& world, Promotion& promotion, int repayment) {
  MoveBeside(world, promotion, -repayment, kRepayment, world.Today() - std::chrono::days{1});
  promotion.LoanRepaid += repayment;
  if (IsPlayers(world, promotion))
    AddNews(world, kFinance,
            "We have made this month's loan repayment of $" + std::to_string(repayment) + ".");
}

void EndRepaidLoan(World& world, Promotion& promotion) {
  if (promotion.LoanRepaid < promotion.LoanAmount) return;
  ForgetLoan(promotion);
  if (IsPlayers(world, promotion)) AddNews(world, kFinance, "Our loan repayment is now complete.");
}

void Charge(Promotion& promotion, Cash& book, int dollars) {
  promotion.Money -= dollars;
  book += dollars;
}

}  // namespace

void LoanRepayments(World& world) {
  for (Promotion& promotion : world.Promotions()) {
    if (promotion.LoanAmount < 1) continue;
    const int repayment = MonthlyRepayment(promotion, world.Game().Difficulty);
    if (promotion.Money < repayment)
      MissRepayment(world, promotion);
    else
      Repay(world, promotion, repayment);
    EndRepaidLoan(world, promotion);
  }
}

void MerchandiseIncome(World& world) {
  for (Promotion& promotion : world.Promotions()) {
    const Score dollars = MerchandiseSales(promotion, world.Game().Economy);
    if (IsPlayers(world, promotion)) NoteAnew(world, {kNoteMerch, promotion.Name.Str()}, dollars);
    if (promotion.Merchandising <= 0) continue;
    promotion.Money += dollars;
    promotion.ThisMonth.MerchIncome += dollars;
    if (!IsPlayers(world, promotion)) continue;
    AddNews(world, kFinance,
            "We made $" + std::to_string(dollars) + " off merchandise this month.");
  }
}

void MonthlyCosts(World& world) {
  for (Promotion& promotion : world.Promotions()) {
    MonthBooks& books = promotion.ThisMonth;
    if (promotion.Advertising != 0)
      Charge(promotion, books.AdvertisingCost, AdvertisingCost(promotion.Advertising));
    if (promotion.Merchandising != 0)
      Charge(promotion, books.MerchCost, MerchandisingCost(promotion.Merchandising));
    if (promotion.Production != 0)
      Charge(promotion, books.ProductionCost, ProductionCost(promotion.Production));
  }
}

long long DueOnTheFirst(const World& world) {
  const Promotion& player = world.Player();
  const WageBill wages = WagesOf(world, player.Uid);
  long long due = wages.Workers + wages.Staff;
  if (player.Advertising != 0) due += AdvertisingCost(player.Advertising);
  if (player.Merchandising != 0) due += MerchandisingCost(player.Merchandising);
  if (player.Production != 0) due += ProductionCost(player.Production);
  if (player.LoanAmount > 0) due += MonthlyRepayment(player, world.Game().Difficulty);
  const int sales = MerchandiseSales(player, world.Game().Economy);
  return player.Merchandising > 0 ? due - sales : due;
}

namespace {

/// " Outside the books it was -$300: Monthly tryout -$300." The largest come first, as many as the
/// mail has room for; empty for nothing.
std::string ToldBeside(const World& world, std::size_t room) {
  std::vector<BesideLine> lines = BesideLines(world);
  std::erase_if(lines, [](const BesideLine& line) { return line.Last == 0; });
  if (lines.empty()) return {};
  std::ranges::stable_sort(lines, std::greater{},
                           [](const BesideLine& line) { return std::abs(line.Last); });
  std::string text = " Outside the books it was " + Dollars(BesideTotal(world).Last);
  const char* before = ": ";
  for (const BesideLine& line : lines) {
    const std::string next = before + line.Why + " " + Dollars(line.Last);
    if (text.size() + next.size() + 1 > room) break;
    text += next;
    before = ", ";
  }
  return text + ".";
}

}  // namespace

void TellOfTheMonth(World& world) {
  if (!IsFirstOfMonth(world.Today())) return;
  const MonthBooks& books = world.Player().LastMonth;
  const long long in = TotalIn(books), out = TotalOut(books), left = in - out;
  std::string text = "The month is closed: " + Dollars(in) + " came in, " + Dollars(out) +
                     " went out. It has " + (left < 0 ? "cost" : "earned") + " us " +
                     Dollars(left < 0 ? -left : left) + ".";
  const std::string beside = ToldBeside(world, decltype(Mail::Body)::kWidth - text.size());
  if (in != 0 || out != 0 || !beside.empty()) AddNews(world, kFinance, text + beside);
}

void CloseMonthBooks(World& world) {
  for (Promotion& promotion : world.Promotions()) {
    promotion.LastMonth = promotion.ThisMonth;
    promotion.ThisMonth = {};
    promotion.Money = std::clamp<int>(promotion.Money, -kMostMoney, kMostMoney);
    if (promotion.Name != kToBeDeleted) RememberMonth(world, promotion);
  }
}

namespace {

constexpr const char* kPersonnel = "Human Resources";

/// "3 months left on his contract." at three months and at one; empty at any other.
std::string MonthsLeft(int months, bool isMan) {
  if (months != 3 && months != 1) return {};
  return std::string(months == 3 ? " has 3 months left on " : " has 1 month left on ") +
         (isMan ? "his" : "her") + " contract.";
}

template <class Person>
void PayWage(World& world, const Person& person, Cash MonthBooks::*book) {
  Promotion* employer = world.FindPromotion(person.Employer);
  if (employer) Charge(*employer, employer->ThisMonth.*book, MonthlyWage(person));
}

/// What the player is told; whether the contract has run out.
template <class Person>
bool EndsAtPlayers(World& world, const Person& person, const std::string& who,
                   const char* hasLeft) {
  if (const std::string left = MonthsLeft(person.ContractMonths, person.Gender); !left.empty())
    AddNews(world, kPersonnel, who + left);
  if (person.ContractMonths == 0) AddNews(world, kPersonnel, who + hasLeft);
  return person.ContractMonths == 0;
}

void TellOfLeaving(World& world, int employerUid, int option, bool isWatched,
                   const std::string& hasLeft) {
  const Promotion* rival = world.FindPromotion(employerUid);
  if (rival && (isWatched || ShouldTell(world, option, rival->Size)))
    AddNews(world, rival->Initials + " News", hasLeft + rival->Initials.Str() + ".");
}

void LeaveRival(World& world, Worker& worker) {
  NoteDeed(world, kDeedLeft, world.FindPromotion(worker.Employer), worker);
  TellOfLeaving(world, worker.Employer, world.Game().MailWorkerFire,
                IsShortlisted(world, worker.Uid), worker.Name + " has left ");
  PartWays(world, {&worker});
}

void PayWorkers(World& world) {
  for (Worker& worker : world.Workers()) {
    if (worker.Employer == 0 || worker.ContractMonths == kNoEnd) continue;
    PayWage(world, worker, &MonthBooks::WrestlerWages);
    worker.ContractMonths -= 1;
    if (!WorksForPlayer(world, worker)) {
      if (worker.ContractMonths == 0) LeaveRival(world, worker);
    } else if (EndsAtPlayers(world, worker, worker.Name.Str(), " has now left the promotion.")) {
      ReleaseWorker(world, worker);
    }
  }
}

void PayStaff(World& world) {
  for (Staff& staff : world.AllStaff()) {
    if (staff.Employer == 0 || staff.Position == kOwner || staff.ContractMonths == kNoEnd) continue;
    PayWage(world, staff, &MonthBooks::StaffWages);
    staff.ContractMonths -= 1;
    const std::string who = "Staff member " + staff.Name.Str();
    if (WorksForPlayer(world, staff))
      EndsAtPlayers(world, staff, who, " is now no longer under contract with us.");
    else if (staff.ContractMonths == 0)
      TellOfLeaving(world, staff.Employer, world.Game().MailStaffFire, false,
                    staff.Name + " has left the staff of ");
    if (staff.ContractMonths == 0) DismissStaff(world, staff);
  }
}

/// What is said of a trend of 2, 3 and 4 counts, up and down. The months in the words do not match
/// the counts one to one; they stand so.
struct TrendWords {
  std::array<const char*, 3> Up;
  std::array<const char*, 3> Down;
};
constexpr TrendWords kImageWords = {
    {"Good work, our public image is rising nicely.",
     "Great work, this is the fourth consecutive month that our public image has risen.",
     "Superb work, our public image is improving every month."},
    {"Our public image seems to be falling...what are you going to do about it?",
     "This is the fourth month running that our public image has dropped. I hope you have a plan "
     "to turn things around!",
     "What are you doing? Our public image is dropping at a rapid rate!"}};
constexpr TrendWords kMoneyWords = {
    {"Good work chief, our money is increasing nicely.",
     "Great work boss, we've been making money for four months running.",
     "We're making money every month, this is great!"},
    {"We've lost money for three months running now...maybe you should cut some costs?",
     "Our money is going down, and has been for four months in a row. Uh-oh.",
     "We're losing money too fast, we need to find a way to cut costs ASAP!!!"}};

/// How often in a row the last month ends went the same way, from 0 to 4, below 0 for down.
template <class Number>
int Trend(const std::array<Number, 5>& history) {
  const auto step = [&](std::size_t i) {
    if (history[i + 1] == kNoEnd || history[i] == history[i + 1]) return 0;
    return history[i] > history[i + 1] ? 1 : -1;
  };
  const int direction = step(0);
  int count = 0;
  for (std::size_t i = 0; i + 1 < history.size() && direction != 0 && step(i) == direction; ++i)
    ++count;
  return count * direction;
}

void TellTrend(World& world, const std::string& from, int trend, const TrendWords& words) {
  if (trend >= 2) AddNews(world, from, words.Up[static_cast<std::size_t>(trend - 2)]);
  if (trend <= -2) AddNews(world, from, words.Down[static_cast<std::size_t>(-trend - 2)]);
}

template <class Number>
void Shift(std::array<Number, 5>& history, int newest) {
  std::shift_right(history.begin(), history.end(), 1);
  history[0] = newest;
}

/// How many months in a row the standing fell, up to 3.
int FallsInARow(const Promotion& promotion) {
  const auto& rank = promotion.Rank;
  std::size_t falls = 0;
  while (falls < 3 && rank[falls + 1] != kNoEnd && rank[falls + 1] > rank[falls]) ++falls;
  return static_cast<int>(falls);
}

}  // namespace

void PayWagesAndContracts(World& world) {
  PayWorkers(world);
  PayStaff(world);
}

void PoorFormMorale(World& world) {
  for (const Promotion& promotion : world.Promotions()) {
    if (FallsInARow(promotion) < 2) continue;
    if (IsPlayers(world, promotion))
      AddNews(world, "Maeve", "Our poor performance is affecting the worker's morale.");
    for (Worker& worker : world.Workers())
      if (worker.Employer == promotion.Uid)
        MoveMorale(world, worker, -kPoorFormLoss, kMoodPoorForm);
  }
}

void MonthlyReview(World& world) {
  for (Promotion& promotion : world.Promotions()) {
    Shift(promotion.Rank, StandingScore(promotion));
    Shift(promotion.MoneyBefore, promotion.Money);
  }
  const Promotion& player = world.Player();
  TellTrend(world, VoiceOfBoard(world), Trend(player.Rank), kImageWords);
  TellTrend(world, kFinance, Trend(player.MoneyBefore), kMoneyWords);
}

}  // namespace grapplemont
