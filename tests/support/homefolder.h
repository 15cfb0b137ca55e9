#pragma once

#include <memory>
#include <string>
#include <vector>

#include "records/store/disk.h"
#include "records/store/slot.h"
#include "records/world.h"
#include "support/scratchfolder.h"
#include "support/scriptdesk.h"
#include "ui/game.h"

namespace grapplemont::test {

/// What lies in a home without slots: default data made of a world without a game, the pictures
/// that start-up looks for.
std::vector<NewFile> HomeFiles(const World& data);
/// Played in that folder, with 17 March 2026 outside.
Game::Options PlayedIn(const std::string& home, std::uint64_t seed);

/// A home of its own in a temporary folder. Its game knows every screen.
class HomeFolder {
 public:
  explicit HomeFolder(const World& data, std::uint64_t seed = 11);
  ~HomeFolder();
  HomeFolder(const HomeFolder&) = delete;
  HomeFolder& operator=(const HomeFolder&) = delete;

  std::string Path(const std::string& name) const { return home_ / name; }
  void Write(const std::string& name, std::string_view text);
  void Remove(const std::string& name);
  /// From the menu to the main screen of a new game in slot 1.
  void StartNewGame(const std::string& player = "Pat Lee");

 private:
  ScratchFolder home_;
  std::unique_ptr<Disk> disk_;

 public:
  ScriptDesk Desk;
  Game Play;
};

}  // namespace grapplemont::test
