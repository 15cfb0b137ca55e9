#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The player's unread mail on the main screen, and one line for all news of others.
class DeskMail {
 public:
  DeskMail(ui::Screen& screen, Game& game);
  ui::Box Layout();
  /// Gives how much is unread; a day's news of others counts as one.
  int Show();

 private:
  World& world() { return game_.World(); }
  void ShowDigest();
  void Open(int number);

  Game& game_;
  ui::Label imgmail;
  ui::ListBox lstmail;
  ui::Label lblworld;
  ui::Button cmdworld;
};

}  // namespace grapplemont
