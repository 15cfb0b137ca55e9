#pragma once

#include <string>

#include "records/world.h"
#include "ui/game.h"

// How staff stand in tables and on pages.

namespace grapplemont {

/// Writes the page of a member of staff; for nullptr the words for nobody.
void WriteStaffPage(ui::Report& page, const World& world, const Staff* staff,
                    const std::string& nobody);

/// Whose list it is: only the market's has employers to be told.
enum class StaffList { Own, Market };

/// A table of staff, the page of the chosen one beside it.
class StaffListScreen : public GameScreen {
 public:
  StaffListScreen(Game& game, std::string name, std::string title, StaffList list);
  void Return() override { ShowList(); }

 protected:
  /// Who is to be listed.
  virtual bool Belongs(const Staff& staff) const = 0;
  /// Brings facts and buttons to the chosen one; nullptr for nobody.
  virtual void ShowActions(const Staff* chosen) = 0;

  using GameScreen::world;
  const World& world() const { return game_.World(); }
  /// nullptr for nobody, or somebody who has left the world.
  Staff* Chosen() { return world().FindStaff(lststaff.Key()); }
  /// Makes the rows anew; the choice stays where it can, else the next row's is taken.
  void ShowList();
  void ShowChoice();
  /// Talks with the chosen one, where there can be any.
  void Negotiate();
  /// Why there can be no talks with him at this moment; empty when there can.
  static std::string WhyNot(const Staff* chosen);

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lststaff;
  ui::Report txtpage{*this, "txtpage"};

 private:
  StaffList list_;
};

}  // namespace grapplemont
