#include <algorithm>
#include <array>

#include "business/loans.h"
#include "business/monthlymoney.h"
#include "business/past.h"
#include "calendar/daysteps.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

constexpr const char* kFinance = "Finance Dept.";
constexpr int kMostMoney = 90000000;

bool IsPlayers(const World& world, const Promotion& promotion) {
  return promotion.Uid == world.PlayerUid();
}

void TellOfRival(World& world, const Promotion& rival, const char* what) {
  TellOf(world, world.Game().MailOtherFed, rival, rival.Initials + what);
}

void PlayerMisses(World& world, int missed) {
  if (missed == 1)
    AddNews(world, kFinance,
            "The bank have given us a verbal warning as we could not make this month's loan "
            "repayment.");
  if (missed == 2)
    AddNews(world, kFinance,
            "The bank have given us a written warning as we could not make this month's loan "
            "repayment.");
  if (missed == 3) world.Game().EndCode = kEndLoan;
}

void RivalMisses(World& world, Promotion& rival, int missed) {
  if (missed == 1) TellOfRival(world, rival, " are experiencing financial problems.");
  if (missed == 2) TellOfRival(world, rival, " are experiencing major financial problems.");
  if (missed != 3) return;
  NoteDeed(world, kDeedClosed, &rival, rival.Name);
  TellOfRival(world, rival, " have gone out of business!");
  rival.Name = kToBeDeleted;
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
  promotion.Money -= repayment;
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
    if (promotion.Merchandising <= 0) continue;
    const int dollars = MerchandiseSales(promotion, world.Game().Economy);
    promotion.Money += dollars;
    promotion.ThisMonth.MerchIncome += dollars;
    if (IsPlayers(world, promotion))
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

void CloseMonthBooks(World& world) {
  for (Promotion& promotion : world.Promotions()) {
    promotion.LastMonth = promotion.ThisMonth;
    promotion.ThisMonth = {};
    promotion.Money = std::clamp<int>(promotion.Money, -kMostMoney, kMostMoney);
    if (!(promotion.Name == kToBeDeleted)) RememberMonth(world, promotion);
  }
}

}  // namespace grapplemont
