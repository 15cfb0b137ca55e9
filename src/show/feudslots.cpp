#include "show/feudslots.h"

#include "storylines/feuds.h"

namespace grapplemont {

int FeudSideOf(const Feud& feud, int uid) {
  if (IsFreeSlot(feud)) return 0;
  const FeudSides sides = SidesOf(feud);
  if (sides.One.Has(uid)) return 1;
  return sides.Two.Has(uid) ? 2 : 0;
}

bool AreEnemies(const Feud& feud, int workerX, int workerY) {
  const int sideX = FeudSideOf(feud, workerX), sideY = FeudSideOf(feud, workerY);
  return sideX != 0 && sideY != 0 && sideX != sideY;
}

int FeudSlotOf(const World& world, int workerX, int workerY) {
  for (int slot = 1; slot <= world.Feuds().Count(); ++slot)
    if (AreEnemies(world.Feuds()[slot], workerX, workerY)) return slot;
  return 0;
}

void MarkFeud(World& world, ShowRun& show, int workerX, int workerY) {
  for (int slot = 1; slot <= world.Feuds().Count(); ++slot)
    if (AreEnemies(world.Feuds()[slot], workerX, workerY))
      show.FeudTouched[static_cast<std::size_t>(slot - 1)] = true;
}

}  // namespace grapplemont
