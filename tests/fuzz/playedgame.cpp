#include "fuzz/playedgame.h"

#include <typeinfo>

#include "program/richworld.h"
#include "program/screens.h"
#include "records/checks/checkworld.h"
#include "records/store/slot.h"
#include "session/slots.h"

namespace grapplemont::fuzz {

namespace {

constexpr const char* kHome = "home";

/// A home with such a game, and data that an editor opens.
const test::CutDisk& CleanStart() {
  static const test::CutDisk start = [] {
    test::CutDisk disk;
    for (const char* folder : {"home", "home/data", "home/gfx"}) disk.MakeFolder(folder);
    for (const NewFile& file : FilesOf(test::RichWorld().Build()))
      WriteNewFile(disk, "home/data/" + file.Name, file.Contents);
    for (const char* picture : {"vxm_back.jpg", "vxm_title.jpg", "VXM_load1.jpg"})
      WriteNewFile(disk, std::string("home/gfx/") + picture, BytesIn("picture"));
    const World world =
        test::RichWorld().Game("CWA").Feud("CWA Hand 5", "CWA Hand 6").Mail("Ruth Vane", "Hello.");
    Slot::Create(disk, "home/s1", BeginningFiles(world, true), 7);
    return disk.Restarted();
  }();
  return start;
}

Game::Options OptionsOf() {
  Game::Options options;
  options.Home = kHome;
  options.Today = [] { return test::kGameStart; };
  options.Seed = 1;
  options.Worlds = 1;
  return options;
}

}  // namespace

GameInMemory::GameInMemory(ui::Desk& desk)
    : disk_(CleanStart().Restarted()), Play(desk, disk_, OptionsOf()), watch_(Play) {
  RegisterScreens(Play);
  desk.SetWork(&watch_);
  Play.OpenSlot(1);
  desk.Open("frmMainScreen");
}

GameInMemory::~GameInMemory() {
  Play.Desk().CloseAll();
  Play.CloseSlot();
}

void GameInMemory::Watch::Commit() {
  const bool changes = Of.HasWorld() && !Of.World().Changes().empty();
  Of.Commit();
  if (!changes || !Of.HasWorld() || !Found.empty()) return;
  CheckWorld(Of.World(), [this](Fault&& fault) {
    if (Found.empty()) Found = "after a commit: " + fault.Line();
  });
}

std::string GameInMemory::Watch::Explain(const std::exception& fault) const {
  const std::string told = Of.Explain(fault);
  // What is said to the player on purpose; a number past its end, or a place that is none, is not.
  const bool mayBe = (dynamic_cast<const std::runtime_error*>(&fault) &&
                      !dynamic_cast<const FieldOverflow*>(&fault)) ||
                     told == kCareerIsOver;
  if (!mayBe && Found.empty())
    Found = "thrown to the desk: " + std::string(typeid(fault).name()) + ", " + told;
  return told;
}

}  // namespace grapplemont::fuzz
