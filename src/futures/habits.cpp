#include "futures/habits.h"

#include <algorithm>

#include "booking/showstart.h"
#include "business/finance.h"
#include "business/sponsors.h"
#include "business/tvshows.h"
#include "business/tvtalks.h"
#include "calendar/advanceday.h"
#include "calendar/incidents.h"
#include "calendar/playon.h"
#include "records/fields/fields.h"
#include "records/world.h"
#include "report/report.h"
#include "rivals/founding.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "rivals/staffmarket.h"
#include "rivals/talenthunt.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"

namespace grapplemont {

namespace {

Sponsor* BestSponsor(World& world, const Promotion& player) {
  const int limit = SponsorPayLimit(player.Size, player.Image);
  Sponsor* best = nullptr;
  for (Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == 0 && BearsRisk(sponsor, player.Risk) && sponsor.Pay < limit &&
        (!best || sponsor.Pay > best->Pay))
      best = &sponsor;
  return best;
}

void FillSponsorPlaces(World& world) {
  Promotion& player = world.Player();
  while (const int place = FreeSponsorPlace(world, player)) {
    Sponsor* sponsor = BestSponsor(world, player);
    if (!sponsor) return;
    SignSponsor(world, player, *sponsor, place);
  }
}

/// As a rival spends, but no more merchandise than finds buyers.
void SpendByStanding(Promotion& player) {
  const RivalSpending spending = RivalSpendingFor(player.Size);
  const int sells = MerchBase(player.Size, player.Image) / MerchandiseCap(1);
  player.Merchandising = std::min(spending.Merchandising, sells);
  player.Production = spending.Production;
  player.TicketPrice = FairTicketPrice(player.Size);
  player.Advertising = player.Money < 0 ? 0 : TargetAdvertising(player.Size, player.Image) / 2;
}

/// The promotion as it will be where a rise is near: whoever looks for people then looks for those
/// who will be needed up there.
Promotion AsSoon(const Promotion& player) {
  constexpr int kRiseIsNear = 75;
  Promotion soon = player;
  if (player.Size != kGlobal && player.Image >= kRiseIsNear) soon.Size -= 1;
  return soon;
}

/// Whoever has to save lets the roster shrink to half of what a rival would have.
void Recruit(World& world, const Promotion& as) {
  constexpr int kTalksAWeek = 2;
  Rosters rosters(world);
  const bool saves = PurseOf(as) == Purse::Saving;
  const int least = BySize(tuning::kRosters, as.Size).Least;
  if (!saves) GoAfterTalent(world, as, kTalksAWeek, rosters);
  if (!saves || rosters.Of(as.Uid) * 2 < least) FitRoster(world, as, rosters);
}

void TakeOffer(World& world) {
  const auto offer = OfferOnTheTable(world);
  if (!offer) return;
  if (offer->Days.empty() || world.Shows().Full()) return DropOffer(world);
  const int day = offer->Days.front();
  AcceptOffer(world, *offer, day, NameOfNewShow(world, day));
}

void ExtendDeals(World& world) {
  const Promotion& player = world.Player();
  for (Show& show : world.Shows()) {
    const Network* network = world.FindNetwork(show.Network);
    if (show.Owner == player.Uid && network)
      show.ContractWeeks += TalkOfExtension(player, show, *network).Weeks;
  }
}

void SendATape(World& world) {
  if (!ShowsOf(world, world.PlayerUid()).empty() || !WhyNoTape(world).empty() ||
      world.Networks().Count() == 0)
    return;
  SendTape(world, world.Networks()[world.RandomDraw(world.Networks().Count())].Uid);
}

/// Where there is none, nothing is written.
LineMemory* MemoryFor(Prose prose, LineMemory& memory) {
  return prose == Prose::Written ? &memory : nullptr;
}

/// A show that was cut off goes to its end first.
bool FinishTodays(World& world, Prose prose) {
  if (!ShowUnderWay(world)) return false;
  LineMemory memory;
  FinishShow(world, MemoryFor(prose, memory));
  LeaveShow(world);
  return true;
}

/// A show that the roster cannot fill is called off as well. True when it has been held.
bool HoldTodays(World& world, DayKind kind, Shows shows, Prose prose) {
  if (shows == Shows::Cancel) return false;
  LineMemory memory;
  return HoldAutoShow(world, kind == DayKind::Event, MemoryFor(prose, memory));
}

/// Any chair that is open to them; false where none is.
bool TakeAnotherJob(World& world) {
  const std::vector<const Promotion*> chairs = ChairsAfterTheEnd(world);
  if (chairs.empty()) return false;
  const int drawn = world.RandomDraw(static_cast<int>(chairs.size()));
  TakeChair(world, *chairs[static_cast<std::size_t>(drawn - 1)]);
  return true;
}

}  // namespace

std::string NameOfNewShow(const World& world, int day) {
  const std::string plain = world.Player().Initials + " " + std::string(Says(kWeekDays, day));
  std::string name = plain;
  for (int n = 2; ShowNameTaken(world, name); ++n) name = plain + " " + std::to_string(n);
  return name;
}

void WorkInTheOffice(World& world) {
  FillSponsorPlaces(world);
  WorkOnTelevision(world);
  if (IsFirstOfMonth(world.Today())) {
    RenewContracts(world, world.Player());
    SpendByStanding(world.Player());
  }
  if (!IsMonday(world.Today())) return;
  const Promotion soon = AsSoon(world.Player());
  Recruit(world, soon);
  FitPosts(world, soon, Posts(world));
}

void WorkOnTelevision(World& world) {
  TakeOffer(world);
  if (IsMonday(world.Today())) ExtendDeals(world);
  if (DayOfMonth(world.Today()) == 2) SendATape(world);
}

int EndCodeOf(const World& world) {
  return HasEnded(world.Game()) ? int(world.Game().EndCode) : 0;
}

void PlayDay(World& world, Shows shows, const StepWatcher& watcher, Prose prose) {
  // Whoever waits to challenge them is heard out.
  if (world.Game().EndCode == kStrangerWaits) MeetStranger(world);
  world.Session.ShowRating = 0;
  world.Session.ShowFlag = 0;
  const DayKind kind = DayKindToday(world, [] { return true; });
  const bool isShow = kind == DayKind::Television || kind == DayKind::Event;
  const bool cancelled =
      isShow && !FinishTodays(world, prose) && !HoldTodays(world, kind, shows, prose);
  AdvanceDay(world, cancelled, watcher);
  // Whoever runs a promotion unseen makes light of what happens backstage and takes no other job.
  while (FirstIncident(world)) CloseIncident(world);
  if (shows == Shows::Auto && !HasEnded(world.Game())) WorkInTheOffice(world);
}

CareerEnd LiveOn(World& world, int days, const Habits& habits,
                 const std::function<bool(int day)>& dayPassed) {
  CareerEnd end;
  end.EndCode = EndCodeOf(world);
  bool goesOn = true;
  while (goesOn && end.Days < days && end.EndCode == 0) {
    PlayDay(world, habits.Do, {}, habits.Words);
    ++end.Days;
    end.EndCode = EndCodeOf(world);
    if (end.EndCode != 0) end.Reasons.emplace_back(end.EndCode, world.Today());
    if (end.EndCode != 0 && habits.Then == AfterTheEnd::AnotherJob && TakeAnotherJob(world))
      end.EndCode = 0;
    goesOn = dayPassed(end.Days);
  }
  return end;
}

}  // namespace grapplemont
