#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The tab of frmFed on the splits of the roster and who is in them.
class FedSplits {
 public:
  FedSplits(ui::Screen& screen, Game& game);
  ui::Box Layout();
  void Show();

 private:
  std::string Chosen() const;  // empty for a place without a split
  void ShowSplits();
  void ShowPeople();
  void ShowButtons();
  void lstsplits_Click();
  void cmdsplit_Click();
  void cmddissolve_Click();
  void Assign(const std::string& split);

  Game& game_;
  ui::ListBox lstsplits;
  ui::TextBox txtsplit;
  ui::Button cmdsplit, cmddissolve;
  ui::ListBox lstpeople;
  ui::Button cmdassign, cmdtakeout;
};

}  // namespace grapplemont
