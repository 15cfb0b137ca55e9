#pragma once

#include "records/world.h"
#include "ui/game.h"

namespace grapplemont {

/// What is known of a promotion, on sheets side by side: the part that the list of all promotions
/// and the page of one have in common.
class PromotionSheets {
 public:
  PromotionSheets(ui::Screen& screen, Game& game);
  ui::Box Layout();
  /// Nothing at all for nullptr.
  void Show(const Promotion* promotion);

 private:
  const World& world() { return game_.World(); }
  void ShowPeople(int uid);
  void ShowProgramme(int uid);
  void ShowTitles(int uid);
  void ShowSponsors(const Promotion& promotion);
  void ShowPast(const Promotion& promotion);
  void OpenWorkerOf(const ui::ListBox& list);

  Game& game_;
  ui::Report txtabout;
  ui::ListBox lstroster, lststaff, lstshows, lstevents, lsttitles, lstsponsors, lstpast;
  ui::Chart chtstanding;
};

}  // namespace grapplemont
