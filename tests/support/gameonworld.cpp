#include "support/gameonworld.h"

#include <filesystem>

#include "program/screens.h"
#include "records/store/slot.h"

namespace grapplemont::test {

namespace {

constexpr int kSlot = 1;

std::string NewHome() {
  std::string name = (std::filesystem::temp_directory_path() / "grapplemont-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("No temporary folder can be made.");
  return name;
}

Game::Options OptionsIn(const std::string& home) {
  Game::Options options;
  options.Home = home;
  options.Today = [] { return kGameStart; };
  options.Seed = 1;
  return options;
}

}  // namespace

GameOnWorld::GameOnWorld(grapplemont::World world, std::unique_ptr<Disk> disk)
    : home_(NewHome()),
      disk_(disk ? std::move(disk) : RealDisk(Syncs::None)),
      Play(Desk, *disk_, OptionsIn(home_)) {
  RegisterScreens(Play);
  Slot::Create(*disk_, Play.SlotFolder(kSlot), grapplemont::FilesOf(world), Play.NewWorldId());
  Play.OpenSlot(kSlot);
}

GameOnWorld::~GameOnWorld() {
  Desk.CloseAll();
  Play.CloseSlot();
  std::error_code ignored;
  std::filesystem::remove_all(home_, ignored);
}

void GameOnWorld::Reopen() {
  Play.CloseSlot();
  Play.OpenSlot(kSlot);
}

}  // namespace grapplemont::test
