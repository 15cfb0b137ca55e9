#include "calendar/advanceday.h"

#include "business/businesssteps.h"
#include "calendar/awards.h"
#include "calendar/daysteps.h"
#include "records/fields/fields.h"
#include "records/severing.h"
#include "rivals/rivalsteps.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

#define STEP(routine) \
  Step {              \
#routine, routine \
  }

constexpr Step kDaily[] = {
    STEP(OwnerlessPromotions), STEP(RivalWorkerHiring), STEP(RivalStaffHiring),
    STEP(RivalSponsorSigning), STEP(DailyWorkerUpkeep),
};

constexpr Step kMonday[] = {
    STEP(RivalPositions),    STEP(RivalHouseShows), STEP(WriterWorkload),   STEP(TvContractReview),
    STEP(SponsorRiskReview), STEP(EconomyDrift),    STEP(RivalAdvertising), STEP(RosterSizeReview),
};

constexpr Step kFirstOfMonth[] = {
    STEP(PoorFormMorale),        STEP(DiscoverFreeAgents),
    STEP(DevelopmentMonth),      STEP(TrainingCampMonth),
    STEP(StatusCountdown),       STEP(AgeAndRetire),
    STEP(RivalNewTvShows),       STEP(PayWagesAndContracts),
    STEP(RivalContractRenewals), STEP(SponsorContractCountdown),
    STEP(LoanRepayments),        STEP(MerchandiseIncome),
    STEP(MonthlyCosts),          STEP(MonthlyReview),
};

constexpr Step kSecondFirstOfMonth[] = {
    STEP(CloseMonthBooks),
    STEP(BankruptcyCheck),
    STEP(NewPromotionCheck),
};

constexpr Step kClosing[] = {
    STEP(IncidentRoll), STEP(SweepDeadPromotions), STEP(SweepDeadShows),
    STEP(UpdateReigns), STEP(GiveAwards),
};

#undef STEP

void Walk(World& world, std::span<const Step> steps, const StepWatcher& watcher) {
  for (const Step& step : steps) {
    if (watcher) watcher(step.Name);
    step.Run(world);
  }
}

void MoveDate(World& world) {
  GameInfo& game = world.Game();
  game.Today = world.Today() + std::chrono::days{1};
  if (!IsFirstOfMonth(game.Today) || game.TapeWait == 0) return;
  AnswerPromoTapes(world);
  game.TapeWait = 0;
}

}  // namespace

std::span<const Step> DailySteps() {
  return kDaily;
}
std::span<const Step> MondaySteps() {
  return kMonday;
}
std::span<const Step> FirstOfMonthSteps() {
  return kFirstOfMonth;
}
std::span<const Step> SecondFirstOfMonthSteps() {
  return kSecondFirstOfMonth;
}
std::span<const Step> ClosingSteps() {
  return kClosing;
}

void AdvanceDay(World& world, bool cancelled, const StepWatcher& watcher) {
  world.Session.StartSize = world.Player().Size;
  PlayerShowConsequences(world, cancelled);
  RivalShows(world);
  MoveDate(world);
  world.Session.StartSize = world.Player().Size;
  Walk(world, kDaily, watcher);
  if (IsMonday(world.Today())) Walk(world, kMonday, watcher);
  if (IsFirstOfMonth(world.Today())) {
    Walk(world, kFirstOfMonth, watcher);
    Walk(world, kSecondFirstOfMonth, watcher);
  }
  Walk(world, kClosing, watcher);
}

}  // namespace grapplemont
