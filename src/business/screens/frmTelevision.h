#pragma once

#include "business/tvtalks.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

// What the screens of television share.

namespace grapplemont {

/// A screen about one show of the player's, by its name. When it is gone by the time something is
/// done with it, the screen says so and closes.
class ShowScreen : public GameScreen {
 protected:
  ShowScreen(Game& game, std::string name, std::string title, std::string show);
  /// The show; nullptr, said and closed, when it is no more on the air.
  Show* ShowOrLeave();
  /// The show without a word; nullptr when it is gone.
  Show* FindShow();

 private:
  std::string show_;
};

/// One of those screens: "frmTVContract", "frmShowName", "frmAnnouncer", "frmColourMan" or
/// "frmTVRivals".
std::unique_ptr<ui::Screen> MakeShowScreen(Game& game, std::string_view screen, std::string show);

/// A rating with its two decimals; "-" before a show has been held.
ui::Cell RatingCell(const Show& show, int rating);

/// A show in a table of shows.
struct ShowRow {
  const World& In;
  const Show& Is;
  int Place;  // from 1
};
enum class ShowColumn { Place, Name, Promotion, Day, Time, Network, Weeks, Last, Highest, Lowest };
/// A table of these columns.
CellColumns<ShowRow> ShowTable(std::initializer_list<ShowColumn> columns);
void FillShows(ui::ListBox& list, const CellColumns<ShowRow>& table, const World& world,
               const std::vector<const Show*>& shows);

/// Every network with what its slots have, bear and ask.
std::vector<ui::Column> NetworkColumns();
void FillNetworks(ui::ListBox& list, const World& world);

}  // namespace grapplemont
