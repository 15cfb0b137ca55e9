#include "support/gameonworld.h"

#include "program/screens.h"
#include "records/store/slot.h"

namespace grapplemont::test {

namespace {

constexpr int kSlot = 1;

Game::Options OptionsIn(const std::string& home) {
  Game::Options options;
  options.Home = home;
  options.Today = [] { return kGameStart; };
  options.Seed = 1;
  options.Worlds = 4;
  return options;
}

}  // namespace

GameOnWorld::GameOnWorld(grapplemont::World world, std::unique_ptr<Disk> disk)
    : disk_(disk ? std::move(disk) : RealDisk(Syncs::None)),
      Play(Desk, *disk_, OptionsIn(home_.Path())) {
  RegisterScreens(Play);
  Slot::Create(*disk_, Play.SlotFolder(kSlot), grapplemont::FilesOf(world), Play.NewWorldId());
  Play.OpenSlot(kSlot);
}

GameOnWorld::~GameOnWorld() {
  Desk.CloseAll();
  Play.CloseSlot();
}

void GameOnWorld::Reopen() {
  Play.CloseSlot();
  Play.OpenSlot(kSlot);
}

}  // namespace grapplemont::test
