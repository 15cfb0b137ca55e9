#include "calendar/advanceday.h"

#include <algorithm>

#include "business/networks.h"
#include "business/sponsors.h"
#include "business/tvtalks.h"
#include "calendar/awards.h"
#include "calendar/board.h"
#include "calendar/events.h"
#include "calendar/fanmail.h"
#include "calendar/incidents.h"
#include "calendar/wishes.h"
#include "halls/ledger.h"
#include "records/fields/fields.h"
#include "records/severing.h"
#include "rivals/rivals.h"
#include "roster/moods.h"
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
    STEP(RivalPositions),   STEP(RivalHouseShows),   STEP(WriterWorkload),
    STEP(TvContractReview), STEP(SponsorRiskReview), STEP(EconomyDrift),
    STEP(RivalAdvertising), STEP(RosterSizeReview),  STEP(RivalStories),
};

// What the last month brought is counted before anybody retires.
constexpr Step kFirstOfMonth[] = {
    STEP(CountThePast),
    STEP(PoorFormMorale),
    STEP(DiscoverFreeAgents),
    STEP(DevelopmentMonth),
    STEP(TrainingCampMonth),
    STEP(StatusCountdown),
    STEP(AgeAndRetire),
    STEP(RivalNewTvShows),
    STEP(PayWagesAndContracts),
    STEP(RivalContractRenewals),
    STEP(SponsorContractCountdown),
    STEP(LoanRepayments),
    STEP(MerchandiseIncome),
    STEP(MonthlyCosts),
    STEP(MonthlyReview),
    STEP(CloseMonthBooks),
    STEP(BankruptcyCheck),
    STEP(NewPromotionCheck),
    STEP(WorkersCareers),
};

constexpr Step kClosing[] = {
    STEP(IncidentRoll),   STEP(SweepDeadPromotions), STEP(SweepDeadShows),
    STEP(TellOfTheMonth), STEP(UpdateReigns),        STEP(OwnersWishes),
    STEP(NoteMonths),     STEP(BoardWarning),        STEP(FanMail),
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

const DayBlocks kDayBlocks{kDaily, kMonday, kFirstOfMonth, kClosing};

void AdvanceDay(World& world, bool cancelled, const StepWatcher& watcher) {
  world.Session.StartSize = world.Player().Size;
  PlayerShowConsequences(world, cancelled);
  RivalShows(world);
  GiveAwards(world);  // a year ends with its last night
  MoveDate(world);
  world.Session.StartSize = world.Player().Size;
  Walk(world, kDaily, watcher);
  if (IsMonday(world.Today())) Walk(world, kMonday, watcher);
  if (IsFirstOfMonth(world.Today())) Walk(world, kFirstOfMonth, watcher);
  Walk(world, kClosing, watcher);
}

void AdvanceToNextShow(World& world, const StepWatcher& watcher) {
  constexpr int kLongestWait = 31;  // days
  const int endCode = world.Game().EndCode;
  for (int day = 0; day < kLongestWait; ++day) {
    AdvanceDay(world, false, watcher);
    if (NeedsThePlayer(world) || world.Game().EndCode != endCode || HasIncident(world)) return;
  }
}

bool HasTvToday(const World& world, int promotionUid) {
  return std::ranges::any_of(world.Shows(), [&](const Show& show) {
    return show.Owner == promotionUid && show.Day == DayName(world.Today());
  });
}

DayKind DayKindToday(World& world, const std::function<bool()>& holdNone) {
  if (IsEventDay(world.Today())) {
    if (EventThisMonth(world, world.Player()) != 0) return DayKind::Event;
    return holdNone() ? DayKind::Plain : DayKind::Stay;
  }
  return HasTvToday(world, world.PlayerUid()) ? DayKind::Television : DayKind::Plain;
}

std::vector<Appointment> ComingShows(const World& world, int days) {
  std::vector<Appointment> coming;
  for (int i = 0; i < days; ++i) {
    const Day day = world.Today() + std::chrono::days{i};
    if (IsEventDay(day)) {
      const Event* event = PlayerEvent(world, MonthOf(day));
      coming.push_back(event ? Appointment{day, event->Name.Str(), "Event"}
                             : Appointment{day, "Nothing planned", "No Event"});
      continue;
    }
    for (const Show& show : world.Shows())
      if (show.Owner == world.PlayerUid() && show.Day == DayName(day))
        coming.push_back({day, show.Name.Str(), "Television"});
  }
  return coming;
}

bool NeedsThePlayer(const World& world) {
  return IsEventDay(world.Today()) || HasTvToday(world, world.PlayerUid());
}

std::optional<Day> NextMeeting(const World& world) {
  const int wanted = DayNumber(world.Player().MeetingDay.View());
  if (wanted == 0) return std::nullopt;
  const int present = DayNumber(DayName(world.Today()));
  return world.Today() + std::chrono::days{(wanted - present + 7) % 7};
}

std::string WhyNoMeeting(const World& world) {
  const std::optional<Day> next = NextMeeting(world);
  if (!next) return "No day is set for the meeting. The promotion's page has it.";
  if (*next == world.Today()) return {};
  return "The staff meet on " + std::string(DayName(*next)) + ", " + PlainDate(*next) + ".";
}

}  // namespace grapplemont
