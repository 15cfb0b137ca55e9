#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The card on the desk that leads through the first week; it is there while the guide is open.
class GuideCard {
 public:
  GuideCard(ui::Screen& screen, Game& game);
  ui::Box Layout();
  /// Brings it up to date.
  void Show();

 private:
  void Close();

  Game& game_;
  ui::Report txtguide;
  ui::Button cmdguide;
};

}  // namespace grapplemont
