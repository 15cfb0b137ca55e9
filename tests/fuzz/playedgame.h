#pragma once

#include <memory>
#include <string>

#include "fuzz/target.h"
#include "support/cutdisk.h"
#include "ui/game.h"

namespace grapplemont::fuzz {

/// A small game in slot 1 of a home in memory, with the data of an editor beside it. Its clean
/// start is made once; each case has a disk of its own from there.
class GameInMemory {
 public:
  explicit GameInMemory(ui::Desk& desk);
  ~GameInMemory();
  GameInMemory(const GameInMemory&) = delete;
  GameInMemory& operator=(const GameInMemory&) = delete;

  /// A fault that no player should meet, or a world that is not in order after a commit, ends the
  /// case. What a disk, a full file or a number at its end refuses is told to the player.
  void RequireSound() const { Require(watch_.Found.empty(), watch_.Found); }

 private:
  /// Stands between desk and game.
  struct Watch : ui::Work {
    explicit Watch(Game& game) : Of(game) {}
    void Commit() override;
    void Rollback() override { Of.Rollback(); }
    std::string Explain(const std::exception& fault) const override;
    Game& Of;
    mutable std::string Found;
  };

  test::CutDisk disk_;

 public:
  Game Play;

 private:
  Watch watch_;
};

}  // namespace grapplemont::fuzz
