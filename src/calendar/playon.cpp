#include "calendar/playon.h"

#include "calendar/incidents.h"
#include "rivals/founding.h"
#include "rivals/rivals.h"

namespace grapplemont {

namespace {

constexpr int kBeginnersReputation = 80;

}  // namespace

std::vector<const Promotion*> ChairsAfterTheEnd(const World& world) {
  std::vector<const Promotion*> chairs;
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion) && promotion.Size >= world.Player().Size)
      chairs.push_back(&promotion);
  return chairs;
}

void TakeChair(World& world, const Promotion& promotion) {
  ChangeJob(world, promotion);
  world.Game().EndCode = kGoesOn;
  while (HasIncident(world)) CloseIncident(world);
}

void GoOnAs(World& world, std::string_view name) {
  GameInfo& game = world.Game();
  if (game.PlayerName == name) return;
  game.PlayerName = name;
  game.StartDate = world.Today();
  game.Reputation = kBeginnersReputation;
  for (std::size_t i = 1; i < game.Jobs.size(); ++i) {
    game.Jobs[i] = {};
    game.Jobs[i].Promotion = "None";
  }
}

void FoundAndLead(World& world, std::string_view name, std::string_view initials) {
  TakeChair(world, FoundOwn(world, name, initials));
}

}  // namespace grapplemont
