#pragma once

#include <string>
#include <vector>

#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

/// What the main screen says of how the house stands: people, champions, feuds, lines.
class DeskCards {
 public:
  DeskCards(ui::Screen& screen, Game& game);
  /// Who wants looking at.
  ui::Box People();
  /// Champions, feuds and the lines of image and money.
  ui::Box Standing();
  void Show();

 private:
  World& world() { return game_.World(); }
  void ShowStories();
  void ShowLines();
  void OpenWorkerOf(const ui::ListBox& list);
  std::vector<ui::Column> WithFaces(const CellColumns<Worker>& table);

  Game& game_;
  ui::ListBox lstchampions, lstfeuds, lsthurt, lstunhappy, lstcontracts;
  ui::Chart chtimage, chtmoney;
};

/// How the career ended and what the player can do now; requires that it has.
std::string WaysAfterTheEnd(Game& game);

}  // namespace grapplemont
