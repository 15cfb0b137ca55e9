#include "booking/debuts.h"

#include <algorithm>

#include "booking/wizard/casting.h"
#include "booking/wizard/roster.h"
#include "records/modWresCheck.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

struct MatchWay {
  std::string_view How;
  bool AsRunIn;  // open to those who do not wrestle
};
constexpr MatchWay kMatchWays[] = {
    {"1 vs 1: one of the two, purpose \"Debut\"", false},
    {"1 vs 1: run-in at the finish or after, purpose \"Debut\"", true},
    {"2 vs 2: one of the four or a team, purpose \"Debut\"", false},
    {"2 vs 2: run-in at the finish or after, purpose \"Debut\"", true},
};

/// Whether an angle has a part that only somebody like this worker can be cast in.
bool HasPartFor(const Angle& angle, const Worker& worker) {
  return std::any_of(angle.Roles.begin(), angle.Roles.end(), [&](const Role& role) {
    if (role.Caption.empty()) return false;
    return role.From == Casting::Debuts ||
           (role.From == Casting::DebutManagers && worker.Position == kManager);
  });
}

}  // namespace

std::vector<const Worker*> WaitingForDebut(const World& world) {
  std::vector<const Worker*> waiting = SeenOnShows(world);
  std::erase_if(waiting, [](const Worker* worker) { return bool(worker->Debuted); });
  return waiting;
}

std::vector<DebutWay> WaysToDebut(const World& world, const Worker& worker, bool isEvent) {
  const std::string unfit =
      worker.Status == "Nor" ? "" : worker.Name + ": " + StatusLine(worker) + ".";
  std::vector<DebutWay> ways;
  for (const MatchWay& way : kMatchWays)
    if (worker.Position != kNonWrestler || way.AsRunIn)
      ways.push_back({"Match", std::string(way.How), unfit});
  for (const Angle& angle : AllAngles()) {
    if (!HasPartFor(angle, worker)) continue;
    const std::string why = !unfit.empty() ? unfit
                            : !EnoughWriters(world, isEvent)
                                ? "There are not enough writers for angles."
                                : WhyNotOffered(world, angle);
    ways.push_back({"Angle", std::string(angle.Says), why});
  }
  return ways;
}

}  // namespace grapplemont
