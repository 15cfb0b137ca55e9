#pragma once

#include "ui/game.h"

namespace grapplemont {

/// What differs between the frames of screens.
struct Frame {
  ui::Role Is = ui::Role::Page;
  const char* Back = "Back";  // the caption of the way back
  const char* BackName = "cmdback";
  bool Manages = false;  // something of the main screen's: leaving brings that up to date
};

/// What every screen of the game has: the world, and the way back, its last control.
class GameScreen : public ui::Screen {
 public:
  GameScreen(Game& game, std::string name, std::string title, const Frame& frame = {});
  /// Most screens come up as they come back.
  void Load() override { Return(); }

 protected:
  World& world() { return game_.World(); }
  /// The actions, then the way back, which Escape presses; then `main`, which Enter presses.
  /// Without one Enter goes back, too.
  ui::Page PageOf(ui::Box body, ui::Label* facts = nullptr, std::vector<ui::Button*> actions = {},
                  ui::Button* main = nullptr);
  /// For a screen that has controls behind the way back, of which this is the first.
  void BackBefore(const ui::Control& control) { PutBefore(cmdback, control); }
  virtual void cmdback_Click();

  Game& game_;
  ui::Button cmdback;

 private:
  bool manages_;
};

}  // namespace grapplemont
