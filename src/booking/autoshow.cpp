#include "booking/autoshow.h"

#include "booking/sheet.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

/// The player's best announcer but for one; nullptr for none.
const Staff* BestAnnouncer(const World& world, const Staff* except) {
  const Staff* best = nullptr;
  for (const Staff& staff : world.AllStaff())
    if (WorksForPlayer(world, staff) && staff.Position == kAnnouncer && &staff != except &&
        (!best || staff.Talent > best->Talent))
      best = &staff;
  return best;
}

const Worker* BestTalker(const World& world) {
  const Worker* best = nullptr;
  for (const Worker& worker : world.Workers())
    if (WorksForPlayer(world, worker) && worker.Announcer && worker.Speaks &&
        worker.Status == "Nor" && (!best || worker.Charisma > best->Charisma))
      best = &worker;
  return best;
}

}  // namespace

CommentaryTeam BestTeam(const World& world) {
  CommentaryTeam team;
  const Staff* announcer = BestAnnouncer(world, nullptr);
  const Staff* colour = BestAnnouncer(world, announcer);
  const Worker* talker = BestTalker(world);
  if (announcer) team.Announcer = announcer->Uid;
  team.ColourIsWorker = talker && (!colour || talker->Charisma > colour->Talent);
  if (team.ColourIsWorker)
    team.Colour = talker->Uid;
  else if (colour)
    team.Colour = colour->Uid;
  return team;
}

bool BookAutoShow(World& world, bool isEvent) {
  EmptySheet(world, isEvent);
  TakeCard(world, AutoBook(world, isEvent, TermsOf(world, isEvent).OpenRows));
  return MayStart(world, isEvent);
}

bool HoldAutoShow(World& world, bool isEvent, LineMemory* memory) {
  if (!BookAutoShow(world, isEvent)) return false;
  HoldShow(world, isEvent, isEvent ? BestTeam(world) : TvTeam(world), 0, memory);
  LeaveShow(world);
  return true;
}

}  // namespace grapplemont
