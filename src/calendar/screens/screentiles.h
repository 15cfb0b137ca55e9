#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The line of figures above the desk, each of which opens its page.
class DeskFigures {
 public:
  DeskFigures(ui::Screen& screen, Game& game);
  ui::Box Layout();
  void Show();

 private:
  Game& game_;
  ui::Array<ui::Button> cmdtile;
  ui::Array<ui::Label> lbltile;
};

}  // namespace grapplemont
