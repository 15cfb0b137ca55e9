#pragma once

#include <memory>

#include "business/development.h"
#include "ui/game.h"

namespace grapplemont {

/// A part of frmFed that has its own controls and their arrangement.
class FedPart {
 public:
  FedPart(ui::Screen& screen, Game& game) : screen_(screen), game_(game) {}
  virtual ~FedPart() = default;
  virtual ui::Box Layout() = 0;
  /// The world as it is; what was being chosen is forgotten.
  virtual void Show() = 0;

 protected:
  World& world() const { return game_.World(); }
  ui::Desk& desk() const { return game_.Desk(); }

  ui::Screen& screen_;
  Game& game_;
};

/// The tab on how risky the product is, and who would not bear it.
std::unique_ptr<FedPart> MakeFedProduct(ui::Screen& screen, Game& game);
/// The tab on the splits of the roster and who is in them.
std::unique_ptr<FedPart> MakeFedSplits(ui::Screen& screen, Game& game);
/// Half of a tab: what a training camp or a territory is called, who runs it, who learns there, how
/// it is opened and closed. `changed` runs when money has moved or people have come back.
std::unique_ptr<FedPart> MakeFedSite(ui::Screen& screen, Game& game, Site site,
                                     ui::Handler changed);

/// Who is to hold an office of the player's promotion.
std::unique_ptr<ui::Screen> MakefrmFedPick(Game& game, Office office);

}  // namespace grapplemont
