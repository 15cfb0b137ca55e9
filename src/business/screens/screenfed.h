#pragma once

#include <memory>

#include "business/development.h"
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

/// Who is to hold an office of the player's promotion.
std::unique_ptr<ui::Screen> MakefrmFedPick(Game& game, Office office);

/// What a training camp and a development territory have in common, and in which words.
struct SiteKind;
extern const SiteKind kCampSite, kTerritorySite;

/// The half of a tab of frmFed on one of the two: its name, who runs it, who learns there, how it
/// is opened and closed.
class FedSite {
 public:
  /// `changed` runs when money has moved or people have come back.
  FedSite(ui::Screen& screen, Game& game, const SiteKind& kind, ui::Handler changed);
  ui::Box Layout();
  void Show();

 private:
  World& world() const { return game_.World(); }
  bool IsThere() const;
  int Level() const;  // the chosen one; 0 for none
  bool Pays(const std::string& what);
  void ShowLevels();
  void ShowPeople();
  void cmdopen_Click();
  void cmdraise_Click();
  void cmdclose_Click();

  Game& game_;
  const SiteKind& kind_;
  ui::Handler changed_;
  ui::TextBox txtname;
  ui::Label lblstate;
  std::unique_ptr<ui::ComboBox> cmblevel;  // where there are levels
  ui::Button cmdopen;
  std::unique_ptr<ui::Button> cmdraise;
  ui::Button cmdclose;
  ui::Label lblhead;
  ui::Button cmdhead;
  ui::ListBox lstpeople;
};

}  // namespace grapplemont
