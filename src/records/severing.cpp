#include "records/severing.h"

#include <algorithm>
#include <array>
#include <utility>

#include "records/fields/fields.h"
#include "records/keepannals.h"
#include "records/segments.h"

namespace grapplemont {

namespace {

/// From this Over up comes the position; the last row takes all the rest.
struct EarnedPosition {
  int From;
  int Position;
};
constexpr std::array<EarnedPosition, 5> kEarnedPositions = {
    {{81, kUpperMidcard}, {71, kMidcard}, {51, kLowerMidcard}, {30, kOpener}, {-32768, kJobber}}};

void LeaveEmployersOffice(World& world, const Worker& worker) {
  Promotion* employer = world.FindPromotion(worker.Employer);
  if (employer && employer->Commissioner == worker.Uid) employer->Commissioner = 0;
}

/// What a Title loses of its image when it falls vacant.
int LossOf(const Title& title, TitleLoss loss) {
  return loss == TitleLoss::ATenth ? title.Image / 10 : kImageOfStripped;
}

/// The job offer among the incidents names a promotion.
constexpr int kJobOfferIncident = 6;

bool Names(const Word& place, int uid) {
  return place == uid;
}
template <std::size_t N>
bool Names(const std::array<Word, N>& places, int uid) {
  return std::ranges::any_of(places, [=](const Word& place) { return place == uid; });
}

/// Nobody stands where they stood.
void Leave(Word& place, int uid) {
  if (place == uid) place = 0;
}
template <std::size_t N>
void Leave(std::array<Word, N>& places, int uid) {
  for (Word& place : places) Leave(place, uid);
}

/// What is booked with them is booked no more. A place that the style does not look at may still
/// name them.
void LeaveSegment(Segment& segment, int workerUid) {
  if (TakesPart(segment, workerUid)) segment = EmptySegment();
  Leave(segment.Worker, workerUid);
}

void EmptyChair(Show& show, int uid, bool isWorker) {
  if (uid == 0 || show.Colour != uid || bool(show.ColourIsWorker) != isWorker) return;
  show.Colour = 0;
  show.ColourIsWorker = false;
}

}  // namespace

void LeaveOffice(World& world, int workerUid) {
  for (Promotion& promotion : world.Promotions())
    if (promotion.Commissioner == workerUid) promotion.Commissioner = 0;
}

void EndContract(Worker& worker) {
  if (worker.Status == "Hom") {
    worker.Morale = 80;
    worker.Status = "Nor";
  }
  worker.Employer = 0;
  worker.Unsackable = false;
  worker.ContractMonths = 0;
  worker.Manager = 0;
  worker.TurnPending = false;
  worker.ContractType = "Non";
  worker.Stable = "None";
}

void LoseClients(World& world, const std::set<int>& managerUids) {
  for (Worker& client : world.Workers())
    if (client.Manager != 0 && managerUids.contains(client.Manager)) client.Manager = 0;
}

namespace {

/// These are long files that seldom name somebody: only what does is touched.
template <class T, class... Places>
void ForgetIn(Records<T>& table, int uid, Places T::*... places) {
  for (int number = 1; number <= table.Count(); ++number) {
    const T& told = std::as_const(table)[number];
    if (!(Names(told.*places, uid) || ...)) continue;
    T& record = table.Change(number);
    (Leave(record.*places, uid), ...);
  }
}

/// What tells of them keeps their name, since their uid may be another's one day.
void ForgetInThePast(World& world, int uid) {
  ForgetIn(world.Bouts(), uid, &HeldMatch::Worker, &HeldMatch::Feud);
  ForgetIn(world.Tallies(), uid, &MatchTally::Worker);
  ForgetIn(world.Reigns(), uid, &TitleReign::Worker, &TitleReign::Partner);
  ForgetIn(world.Awards(), uid, &YearAward::Worker, &YearAward::Partner);
  ForgetIn(world.ShowNotes(), uid, &ShowNote::Worker);
  ForgetIn(world.RivalCards(), uid, &CardMatch::Worker, &CardMatch::Champion);
  ForgetIn(world.Annals(), uid, &Annal::Who, &Annal::Whom);
  world.Grudges().Keep(
      [=](const Grudge& grudge) { return grudge.One != uid && grudge.Two != uid; });
  const auto isOthers = [=](const auto& row) { return row.Worker != uid; };
  world.YearEnds().Keep(isOthers);
  world.Months().Keep(isOthers);
  world.Moods().Keep(isOthers);
  world.RingNames().Keep(isOthers);
  Records<Career>& careers = world.Of<Career>();
  for (int number = 1; number <= careers.Count(); ++number) {
    if (std::as_const(careers)[number].Worker != uid) continue;
    Career& career = careers.Change(number);
    career.Worker = 0;
    if (world.HasGame()) career.Last = world.Today();
  }
}

}  // namespace

void EndPosting(Worker& worker) {
  if (worker.Position > kSentToDevelopment) worker.Position -= kSentToDevelopment;
  if (worker.Position == kDevelopmentDeal || worker.Position == kTrainingCamp)
    worker.Position = PositionFromOver(worker.Over);
}

int PositionFromOver(int over) {
  for (const EarnedPosition& row : kEarnedPositions)
    if (over >= row.From) return row.Position;
  return kJobber;
}

void LeaveFeuds(World& world, int workerUid) {
  for (Feud& feud : world.Feuds()) {
    Word* const parties[] = {&feud.Worker1, &feud.Worker2, &feud.Worker3, &feud.Worker4};
    if (std::any_of(std::begin(parties), std::end(parties),
                    [=](const Word* party) { return *party == workerUid; })) {
      if (workerUid != 0) KeepFeud(world, kAnnalFeudCold, feud);
      for (Word* party : parties) *party = 0;
    }
  }
}

void VacateTitle(World& world, Title& title, TitleLoss loss) {
  title.Holder = 0;
  title.Partner = 0;
  title.Image -= LossOf(title, loss);
  BeginReign(title, world.HasGame() ? world.Today() : kNoTitleDate, kVacantHolder);
}

void VacateTitlesOf(World& world, int workerUid, TitleLoss loss) {
  for (Title& title : world.Titles())
    if (title.Holder == workerUid || title.Partner == workerUid) VacateTitle(world, title, loss);
}

void LeaveCommentary(World& world, int workerUid) {
  if (!world.HasGame()) return;
  for (Show& show : world.Shows())
    if (show.Owner == world.PlayerUid()) EmptyChair(show, workerUid, true);
}

void LeaveMicrophones(World& world, const Worker& worker) {
  for (Show& show : world.Shows()) EmptyChair(show, worker.Uid, true);
}

void LeaveMicrophones(World& world, const Staff& staff) {
  for (Show& show : world.Shows()) {
    if (show.Announcer == staff.Uid) show.Announcer = 0;
    EmptyChair(show, staff.Uid, false);
  }
}

void SeverWorker(World& world, Worker& worker) {
  LeaveEmployersOffice(world, worker);
  EndPosting(worker);
  EndContract(worker);
  if (worker.Uid == 0) return;
  LeaveFeuds(world, worker.Uid);
  VacateTitlesOf(world, worker.Uid);
  LeaveCommentary(world, worker.Uid);
}

void SeverStaff(World& world, Staff& staff) {
  staff.Employer = 0;
  staff.ContractMonths = 0;
  if (staff.Uid == 0) return;
  for (Promotion& promotion : world.Promotions()) {
    if (promotion.HeadTrainer == staff.Uid) promotion.HeadTrainer = 0;
    if (promotion.DevBooker == staff.Uid) promotion.DevBooker = 0;
  }
  if (!world.HasGame()) return;
  for (Show& show : world.Shows())
    if (show.Owner == world.PlayerUid() && show.Announcer == staff.Uid) show.Announcer = 0;
}

void DismissStaff(World& world, Staff& staff) {
  SeverStaff(world, staff);
  LeaveMicrophones(world, staff);
}

void ForgetWorker(World& world, const Worker& worker) {
  const int workerUid = worker.Uid;
  if (workerUid == 0) return;
  world.Teams().Keep(
      [=](const Team& team) { return team.Worker1 != workerUid && team.Worker2 != workerUid; });
  LoseClients(world, {workerUid});
  LeaveMicrophones(world, worker);
  ForgetInThePast(world, workerUid);
  for (Segment& segment : world.Segments())
    if (segment.Rating == 0) LeaveSegment(segment, workerUid);
  if (!world.HasGame()) return;
  Leave(world.Game().Shortlist, workerUid);
  for (Incident& incident : world.Incidents())
    if (incident.Type != kJobOfferIncident && incident.Uid == workerUid) incident = Incident{};
}

namespace {

void EndPromotion(World& world, int uid) {
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != uid) continue;
    worker.Split = "None";
    SeverWorker(world, worker);
  }
  for (Staff& staff : world.AllStaff())
    if (staff.Employer == uid) SeverStaff(world, staff);
  for (Show& show : world.Shows())
    if (show.Owner == uid) show.Name = kToBeDeleted;
  for (Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion != uid) continue;
    sponsor.Promotion = 0;
    sponsor.ContractMonths = 0;
  }
  for (Event& event : world.Events())
    if (event.Owner == uid) event.Owner = 0;
  for (Title& title : world.Titles())
    if (title.Owner == uid) title.Owner = kNoEnd;
  for (Stable& stable : world.Stables())
    if (stable.Owner == uid) stable.Owner = kNoEnd;
}

}  // namespace

bool RemoveShow(World& world, std::string_view name) {
  for (int number = 1; number <= world.Shows().Count(); ++number) {
    if (!(world.Shows()[number].Name == name)) continue;
    world.Shows().Erase(number);
    return true;
  }
  return false;
}

void SweepDeadShows(World& world) {
  while (RemoveShow(world, kToBeDeleted)) {
  }
}

void SweepDeadPromotions(World& world) {
  for (const Promotion& promotion : world.Promotions())
    if (promotion.Name == kToBeDeleted && promotion.Uid != 0) EndPromotion(world, promotion.Uid);
  world.Promotions().Keep([](const Promotion& p) { return !(p.Name == kToBeDeleted); });
}

}  // namespace grapplemont
