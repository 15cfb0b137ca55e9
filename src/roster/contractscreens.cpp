#include "roster/contractscreens.h"

namespace grapplemont {

namespace {

void SayLater(Game& game) {
  game.Desk().Say("Contract Negotiations", "Contract talks come with a later version.");
}

}  // namespace

void OpenWresContract(Game& game, int) {
  SayLater(game);
}
void OpenOtherContract(Game& game, int) {
  SayLater(game);
}

}  // namespace grapplemont
