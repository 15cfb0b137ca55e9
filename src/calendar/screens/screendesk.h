#pragma once

#include <vector>

#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

/// The half of the main screen that says how the house stands: champions, feuds, people, lines.
class DeskCards {
 public:
  DeskCards(ui::Screen& screen, Game& game);
  ui::Box Layout();
  void Show();

 private:
  World& world() { return game_.World(); }
  void ShowStories();
  void ShowLines();
  void OpenWorkerOf(const ui::ListBox& list);
  ui::Drawing PlateOfRow(int number);
  std::vector<ui::Column> WithFaces(const CellColumns<Worker>& table);

  Game& game_;
  ui::ListBox lstchampions, lstfeuds, lsthurt, lstunhappy, lstcontracts;
  ui::Chart chtimage, chtmoney;
};

}  // namespace grapplemont
