#include "booking/writers.h"
#include "calendar/daysteps.h"
#include "records/fields/wording.h"
#include "records/modVar.h"

namespace grapplemont {

void WriterWorkload(World& world) {
  const int shows = PlayerShows(world);
  const int writers = PlayerWriters(world);
  if (shows == 0 || writers >= WritersNeeded(shows)) return;
  AddNews(world, "Maeve",
          "Our writers can't keep up. For " + Counted(shows, "television show") +
              " we need at least " + std::to_string(WritersNeeded(shows)) +
              " writers, and we have " + (writers == 0 ? "none" : std::to_string(writers)) +
              ". Until we hire more, i can't put any angles on television.");
}

void EconomyDrift(World& world) {
  GameInfo& game = world.Game();
  int economy = game.Economy;
  const bool calm = economy >= 20 && economy <= 80;
  if (calm && world.RandomDraw(15) >= 9) return;
  const int step = economy < 20 ? 7 : 1;
  economy += game.EconomyRising ? step : -step;
  // Steps of 7 can pass over 0, and then nothing but the field's own end stops the fall.
  game.Economy = economy;
  if (economy == 100) game.EconomyRising = false;
  if (economy == 0) game.EconomyRising = true;
}

}  // namespace grapplemont
