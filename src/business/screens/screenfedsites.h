#pragma once

#include <memory>

#include "business/appointments.h"
#include "ui/game.h"

namespace grapplemont {

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
