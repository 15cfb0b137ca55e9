#pragma once

#include <string>
#include <string_view>

#include "ui/game.h"

namespace grapplemont {

/// Puts the waiting screen up and tells on it what is going on. A handler that throws takes it down
/// with all else that it opened.
class Waiting {
 public:
  explicit Waiting(Game& game) : game_(game) {}
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  /// "RivalWorkerHiring" is shown as "Rival worker hiring".
  void Tell(std::string_view step);
  /// Takes it down; the screen below shows the world as it is.
  void Done();

 private:
  Game& game_;
  ui::Screen* screen_ = nullptr;
};

/// The words of a name written in one: "RivalNewTvShows" gives "Rival new tv shows".
std::string InWords(std::string_view name);

}  // namespace grapplemont
