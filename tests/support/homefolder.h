#pragma once

#include <memory>
#include <string>

#include "records/store/disk.h"
#include "records/world.h"
#include "support/scratchfolder.h"
#include "support/scriptdesk.h"
#include "ui/game.h"

namespace grapplemont::test {

/// A home of its own in a temporary folder: default data made of a world without a game, the
/// pictures that start-up looks for, no slots. Its game knows every screen; 17 March 2026 outside.
class HomeFolder {
 public:
  explicit HomeFolder(const World& data);
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
