#pragma once

#include "ui/game.h"

namespace grapplemont {

/// The tab of frmFed on how risky the product is, and who would not bear it.
class FedProduct {
 public:
  FedProduct(ui::Screen& screen, Game& game);
  ui::Box Layout();
  /// The slider goes back to the present risk.
  void Show();

 private:
  void ShowChoice();
  void cmdrisk_Click();

  Game& game_;
  ui::ScrollBar hsrisk;
  ui::Label lblrisk, lblmarket;
  ui::Button cmdrisk;
  ui::ListBox lstrisk;
};

}  // namespace grapplemont
