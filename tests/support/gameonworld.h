#pragma once

#include <memory>
#include <string>

#include "records/store/disk.h"
#include "records/world.h"
#include "support/scratchfolder.h"
#include "support/scriptdesk.h"
#include "support/smallworld.h"
#include "ui/game.h"

namespace grapplemont::test {

/// A game that is being played: a small world in slot 1 of a home of its own, opened on a script
/// desk that knows every screen of the program. What a test does is committed as a player's clicks
/// are.
///
///   GameOnWorld play(SmallWorld().Promotion("CWA").Crew(6).Game("CWA"));
///   play.Desk.Open("frmFeuds");
///   play.Desk.Click("cmdask");
///   play.Reopen();
///   EXPECT_EQ(play.World().Feuds()[1].Heat, 50);
class GameOnWorld {
 public:
  /// Without a disk: the machine's own, in a temporary folder.
  explicit GameOnWorld(grapplemont::World world, std::unique_ptr<Disk> disk = nullptr);
  ~GameOnWorld();
  GameOnWorld(const GameOnWorld&) = delete;
  GameOnWorld& operator=(const GameOnWorld&) = delete;

  grapplemont::World& World() { return Play.World(); }
  /// Leaves the slot and opens it again: the world as it stands on disk. Its draws start again.
  void Reopen();

 private:
  ScratchFolder home_;
  std::unique_ptr<Disk> disk_;

 public:
  ScriptDesk Desk;
  Game Play;
};

}  // namespace grapplemont::test
