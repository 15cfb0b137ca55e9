#include <array>

#include "calendar/daysteps.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

struct Absence {
  std::string_view Status;
  std::string_view From;
};
constexpr std::array<Absence, 3> kAbsences = {
    {{"Inj", "injury"}, {"Reh", "rehab"}, {"Sus", "suspension"}}};

void TellReturn(World& world, const Worker& worker) {
  for (const Absence& absence : kAbsences)
    if (worker.Status == absence.Status)
      AddNews(world, "Roster News",
              worker.Name + " has returned from " + std::string(absence.From) + ".");
}

}  // namespace

void StatusCountdown(World& world) {
  for (Worker& worker : world.Workers()) {
    if (worker.Status == "Nor" || worker.Status == "Hom") continue;
    const bool isLast = worker.StatusMonths == 1;
    worker.StatusMonths -= 1;
    if (!isLast) continue;
    if (WorksForPlayer(world, worker)) TellReturn(world, worker);
    worker.Status = "Nor";
    worker.InjuryName = "";
  }
}

}  // namespace grapplemont
