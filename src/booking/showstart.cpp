#include "booking/showstart.h"

#include "booking/keptcards.h"
#include "booking/sheet.h"
#include "business/beside.h"
#include "records/modWresCheck.h"
#include "show/nightbook.h"

namespace grapplemont {

namespace {

constexpr EventExtra kEventExtras[] = {
    // size, name, cost, bonus up to
    {kBackyard, "Local College Band To Play", 1000, 0},
    {kBackyard, "Hire A Better Ring", 5000, 30},
    {kSmall, "Local Band To Play", 20000, 5},
    {kSmall, "Have The Event Logo On The Ring Apron", 30000, 0},
    {kRegional, "Well-Known Band To Play", 60000, 10},
    {kRegional, "Have The Event Logo On The Ring Apron", 30000, 0},
    {kRegional, "Have Pyros For Ring Entrances", 80000, 0},
    {kCult, "Have Special On-Screen Graphics", 70000, 5},
    {kCult, "Have A New-Look Ring", 125000, 5},
    {kCult, "Have A Spectacular Pyro Opening", 100000, 5},
    {kCult, "Hire A Big-Screen For This Event", 500000, 15},
    {kNational, "Top National Band To Play", 1500000, 0},
    {kNational, "Famous Celebrity As Ring Announcer", 1000000, 0},
    {kNational, "Have A New-Look Ring", 125000, 5},
    {kNational, "Hold A Fan-Festival Beforehand", 2000000, 30},
    {kGlobal, "World Famous Rock Band To Play", 4000000, 0},
    {kGlobal, "World Famous Celebrity As Ring Announcer", 4000000, 0},
    {kGlobal, "Have A Specially-Designed Set", 1000000, 15},
    {kGlobal, "Hold A Fan-Festival Beforehand", 2000000, 30},
    {kGlobal, "'Theme' The Entire Event", 3000000, 20},
};

/// The player's best announcer except this one; nullptr for none.
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

std::vector<const EventExtra*> ExtrasFor(const Promotion& promotion) {
  std::vector<const EventExtra*> extras;
  for (const EventExtra& extra : kEventExtras)
    if (extra.Size == promotion.Size) extras.push_back(&extra);
  return extras;
}

int CostOfExtra(std::string_view name) {
  int cost = 0;
  for (const EventExtra& extra : kEventExtras)
    if (extra.Name == name) cost = extra.Cost;
  return cost;
}

void StartEvent(World& world, const EventExtra* extra) {
  const SessionWords& session = world.Session;
  StartShow(world, true,
            {session.EventAnnouncer, session.EventColour, session.EventColourIsWorker});
  if (!extra) return;
  const int dollars = CostOfExtra(extra->Name);
  MoveBeside(world, world.Player(), -dollars, "Extras of Events");
  world.ShowRuns()[1].ExtraCost = dollars;
  NoteStep(world, {kNoteMoney, world.Player().Name.Str()}, -dollars, world.Player().Money,
           "The extra of the Event");
  if (extra->Bonus > 0) AddExtraBonus(world, world.RandomDraw(extra->Bonus));
}

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
  KeepLastCard(world);
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
