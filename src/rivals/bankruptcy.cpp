#include "rivals/bankruptcy.h"

#include "records/arithmetic.h"
#include "records/modVar.h"
#include "rivals/rivals.h"
#include "rivals/rivalsteps.h"

namespace grapplemont {

namespace {

void Warn(World& world, const Promotion& promotion) {
  NoteDeed(world, kDeedWarned, &promotion, promotion.Name);
  if (promotion.Uid == world.PlayerUid())
    AddNews(world, "Finance Dept.",
            "The bank are warning that we face bankruptcy if our finances fall much lower!");
  else
    TellOf(world, world.Game().MailOtherFed, promotion,
           promotion.Name + " have issued a bankruptcy warning!");
}

void GoBankrupt(World& world, Promotion& promotion) {
  if (promotion.Uid == world.PlayerUid()) {
    world.Game().EndCode = kEndBankrupt;
    return;
  }
  NoteDeed(world, kDeedClosed, &promotion, promotion.Name);
  TellOf(world, world.Game().MailOtherFed, promotion, promotion.Name + " have gone bankrupt!");
  promotion.Name = kToBeDeleted;
}

}  // namespace

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

}  // namespace grapplemont
