#include "roster/screens/contractscreens.h"

#include "records/modWresCheck.h"
#include "roster/screens/screentalk.h"
#include "roster/stafftalks.h"

namespace grapplemont {

namespace {

void Say(Game& game, const std::string& why) {
  game.Desk().Say(kTalksTitle, why);
}

std::string WhyNotWith(const World& world, const Worker* worker, bool own) {
  if (!worker) return "This worker is not in the business any more.";
  if (own && !WorksForPlayer(world, *worker))
    return worker->Name + " does not work for you any more.";
  if (!own && WorksForPlayer(world, *worker)) return worker->Name + " works for you now.";
  return WhyTalksOver(world, worker, {worker->Name.Str(), worker->Employer});
}

}  // namespace

void OpenWresContract(Game& game, int workerUid) {
  const Worker* worker = game.World().FindWorker(workerUid);
  if (const std::string why = WhyNotWith(game.World(), worker, true); !why.empty())
    return Say(game, why);
  game.Desk().Open(MakefrmWresContract(game, *worker));
}

void OpenOtherContract(Game& game, int workerUid) {
  const Worker* worker = game.World().FindWorker(workerUid);
  if (const std::string why = WhyNotWith(game.World(), worker, false); !why.empty())
    return Say(game, why);
  game.Desk().Open(MakefrmOtherContract(game, *worker));
}

void OpenStaffContract(Game& game, int staffUid) {
  const Staff* staff = game.World().FindStaff(staffUid);
  if (!staff) return Say(game, "This member of staff is not in the business any more.");
  if (const std::string why = WhyNoStaffTalks(*staff); !why.empty()) return Say(game, why);
  game.Desk().Open(WorksForPlayer(game.World(), *staff) ? MakefrmStaffContract(game, *staff)
                                                        : MakefrmOtherStaffContract(game, *staff));
}

}  // namespace grapplemont
