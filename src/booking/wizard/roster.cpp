#include "booking/wizard/roster.h"

#include <algorithm>

#include "records/modWresCheck.h"
#include "storylines/storynames.h"
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

bool AllFit(const World& world, const Title& title, const Segment& match) {
  const std::vector<int> people = PeopleOf(match);
  return std::all_of(people.begin(), people.end(), [&](int uid) {
    const Worker* worker = world.FindWorker(uid);
    return !worker || FitsTitle(title, *worker);
  });
}

}  // namespace

bool IsAvailable(const World& world, const Worker& worker, const BookingView& view) {
  return WorksForPlayer(world, worker) && worker.Status == "Nor" &&
         (view.Split == "All" || worker.Split == view.Split);
}

bool IsEligible(const World& world, const Worker& worker, const BookingView& view) {
  return IsAvailable(world, worker, view) && IsSeenOnShows(worker) &&
         (view.IsEvent || worker.Position != kNonWrestler);
}

std::vector<const Worker*> EligibleRoster(const World& world, const BookingView& view) {
  return WorkersWho(world, [&](const Worker& worker) { return IsEligible(world, worker, view); });
}

std::vector<const Worker*> RunInRoster(const World& world, const Segment& segment,
                                       const BookingView& view) {
  const std::vector<int> people = PeopleOf(segment);
  return WorkersWho(world, [&](const Worker& worker) {
    return IsAvailable(world, worker, view) && IsSeenOnShows(worker) &&
           std::find(people.begin(), people.end(), worker.Uid) == people.end();
  });
}

bool IsTalker(const World& world, const Worker& worker, const BookingView& view) {
  return worker.Speaks && IsAvailable(world, worker, view) && IsSeenOnShows(worker);
}

bool CanTurn(const Worker& turner, const Worker* partner) {
  if (!turner.TurnPending) return false;
  if (!partner) return turner.Disposition != "H";
  const std::string pair = turner.Disposition.Str() + partner->Disposition.Str();
  return pair != "HF" && pair != "FH" && pair != "TT";
}

bool IsOffered(const World& world, const MatchTypeRow& type) {
  const Promotion& player = world.Player();
  return player.Risk > type.RiskOver && player.Size < type.SizeUnder;
}

std::vector<const MatchTypeRow*> OfferedMatchTypes(const World& world, int style) {
  std::vector<const MatchTypeRow*> offered;
  for (const MatchTypeRow& type : kMatchTypes)
    if (type.Style == style && IsOffered(world, type)) offered.push_back(&type);
  return offered;
}

std::vector<const Title*> OfferedTitles(const World& world, const Segment& match) {
  // Those for a team are fought for by sides of two.
  const MatchStyleRow* style = FindMatchStyle(match.Style);
  const int perSide = style ? style->PerSide : 0;
  std::vector<const Title*> offered;
  for (const Title& title : world.Titles()) {
    if (!IsPlayers(world, title) || title.Suspended) continue;
    if (title.Singles ? perSide == 1 && AllFit(world, title, match) : perSide == 2)
      offered.push_back(&title);
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
