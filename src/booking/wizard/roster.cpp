#include "booking/wizard/roster.h"

#include <algorithm>

#include "records/modWresCheck.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

template <class Takes>
std::vector<const Worker*> WorkersWho(const World& world, Takes takes) {
  std::vector<const Worker*> found;
  for (const Worker& worker : world.Workers())
    if (takes(worker)) found.push_back(&worker);
  return found;
}

bool IsWrestlerOrManager(const Worker& worker) {
  return worker.Position < kDevelopmentDeal || worker.Position == kManager;
}

/// Who must fit a singles Title: the places of the match that are looked at.
int PlacesThatMustFit(const Segment& match) {
  switch (match.Style) {
    case kSingles:
      return 2;
    case kThreeWay:
      return 3;
    case kFourWay:
      return 4;
    case kSpecial:
      return EntrantsOf(match);
    default:
      return 0;
  }
}

bool AllFit(const World& world, const Title& title, const Segment& match) {
  for (int place = 0; place < PlacesThatMustFit(match); ++place) {
    const Worker* worker = world.FindWorker(match.Worker[static_cast<std::size_t>(place)]);
    if (worker && !FitsTitle(title, *worker)) return false;
  }
  return true;
}

}  // namespace

bool InSplit(const Worker& worker, const BookingView& view) {
  return view.Split == "All" || worker.Split == view.Split;
}

bool IsAvailable(const World& world, const Worker& worker, const BookingView& view) {
  return WorksForPlayer(world, worker) && worker.Status == "Nor" && InSplit(worker, view);
}

bool IsEligible(const World& world, const Worker& worker, const BookingView& view) {
  return IsAvailable(world, worker, view) &&
         (IsWrestlerOrManager(worker) || (view.IsEvent && worker.Position == kNonWrestler));
}

std::vector<const Worker*> EligibleRoster(const World& world, const BookingView& view) {
  return WorkersWho(world, [&](const Worker& worker) { return IsEligible(world, worker, view); });
}

std::vector<const Worker*> RunInRoster(const World& world, const Segment& segment,
                                       const BookingView& view) {
  const std::vector<int> people = PeopleOf(segment);
  return WorkersWho(world, [&](const Worker& worker) {
    return IsAvailable(world, worker, view) &&
           (IsWrestlerOrManager(worker) || worker.Position == kNonWrestler) &&
           std::find(people.begin(), people.end(), worker.Uid) == people.end();
  });
}

std::vector<const Worker*> Talkers(const World& world, const BookingView& view) {
  return WorkersWho(world, [&](const Worker& worker) {
    return worker.Speaks && IsAvailable(world, worker, view) &&
           (IsWrestlerOrManager(worker) || worker.Position == kNonWrestler);
  });
}

bool CanTurn(const Worker& turner, const Worker* partner) {
  if (!turner.TurnPending) return false;
  if (!partner) return !(turner.Disposition == "H");
  const std::string pair = turner.Disposition.Str() + partner->Disposition.Str();
  return pair != "HF" && pair != "FH" && pair != "TT";
}

std::vector<const MatchTypeRow*> OfferedMatchTypes(const World& world, int style) {
  const Promotion& player = world.Player();
  std::vector<const MatchTypeRow*> offered;
  for (const MatchTypeRow& type : kMatchTypes)
    if (type.Style == style && player.Risk > type.RiskOver && player.Size < type.SizeUnder)
      offered.push_back(&type);
  return offered;
}

std::vector<const Title*> OfferedTitles(const World& world, const Segment& match) {
  const bool singles = match.Style == kSingles || match.Style == kThreeWay ||
                       match.Style == kFourWay || match.Style == kSpecial;
  const bool tag = match.Style == kTag || match.Style == kThreeTeams || match.Style == kFourTeams;
  std::vector<const Title*> offered;
  for (const Title& title : world.Titles()) {
    if (title.Owner != world.PlayerUid() || title.Suspended) continue;
    if (title.Singles ? singles && AllFit(world, title, match) : tag) offered.push_back(&title);
  }
  return offered;
}

int PlayerWriters(const World& world) {
  const int player = world.PlayerUid();
  return static_cast<int>(std::count_if(
      world.AllStaff().begin(), world.AllStaff().end(),
      [&](const Staff& staff) { return staff.Employer == player && staff.Position == kWriter; }));
}

int PlayerShows(const World& world) {
  const int player = world.PlayerUid();
  return static_cast<int>(std::count_if(world.Shows().begin(), world.Shows().end(),
                                        [&](const Show& show) { return show.Owner == player; }));
}

bool EnoughWriters(const World& world, bool isEvent) {
  return PlayerWriters(world) >= WritersNeeded(isEvent ? 0 : PlayerShows(world));
}

}  // namespace grapplemont
