#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The text with the keys of the hub's and the window's commands in place of their names, as the
/// player has set them: "Roster{cmdroster}" becomes "Roster (F2)", or "Roster" where there is none.
std::string WithKeys(const ui::Desk& desk, std::string_view text);

/// The card on the desk that leads to the first show; it is there while the guide is open.
class GuideCard {
 public:
  /// `openSheet` opens that of tonight's show.
  GuideCard(ui::Screen& screen, Game& game, ui::Handler openSheet);
  ui::Box Layout();
  /// Brings it up to date.
  void Show();

 private:
  void Close();
  void ShowWay();
  void Lead();

  Game& game_;
  ui::Handler openSheet_;
  ui::Report txtguide;
  ui::Button cmdstep, cmdguide;
  std::string page_;  // of the step that comes next
  bool comesToSheet_ = false;
};

}  // namespace grapplemont
