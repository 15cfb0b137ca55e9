#pragma once

#include "business/tvtalks.h"
#include "ui/game.h"

// What the screens of television share.

namespace grapplemont {

/// A screen about one show of the player's.
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

/// What the network asks of the show, a line each.
std::string WantsText(const World& world, const Show& show, const Network& network);

/// A rating with its two decimals; "-" before a show has been held.
ui::Cell RatingCell(const Show& show, int rating);
/// The day of a show, sorted through the week.
ui::Cell DayCell(const Show& show);
/// A name of the player's in gold.
ui::Cell OwnedCell(const World& world, const Show& show, std::string_view text);

/// Every network with what its slots have, bear and ask.
std::vector<ui::Column> NetworkColumns();
void FillNetworks(ui::ListBox& list, const World& world);

/// The boxes of somebody who has several things to say.
void SayAll(ui::Desk& desk, const std::vector<TvRemark>& remarks);

}  // namespace grapplemont
