#include <algorithm>

#include "business/networks.h"
#include "business/screens/screentv.h"
#include "business/screens/tvscreens.h"
#include "records/modWresCheck.h"

// The shows of the world to look at: by their ratings, and all there is to know.

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// A table and the way back.
class ShowTable : public ui::Screen {
 public:
  ShowTable(Game& game, std::string name, std::string title, std::vector<ui::Column> columns,
            std::string none)
      : Screen(game.Desk(), std::move(name), std::move(title)),
        game_(game),
        lstshows{*this, "lstshows", std::move(columns)} {
    lstshows.EmptyText = std::move(none);
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Grow(lstshows)});
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    std::vector<const Show*> shows;
    for (const Show& show : world().Shows()) shows.push_back(&show);
    Arrange(shows);
    std::vector<ui::ListBox::Row> rows;
    for (const Show* show : shows) {
      const int place = static_cast<int>(rows.size()) + 1;
      rows.push_back({RowOf(place, *show), place});
    }
    lstshows.Fill(std::move(rows));
  }

 protected:
  World& world() { return game_.World(); }
  virtual void Arrange(std::vector<const Show*>&) {}
  virtual std::vector<ui::Cell> RowOf(int place, const Show& show) = 0;

 private:
  Game& game_;
  ui::ListBox lstshows;
  ui::Button cmdback{*this, "cmdback", "Back", [this] { Close(); }};
};

/// The best of the last week first; who has not been seen yet stands at the end.
class frmTVRank : public ShowTable {
 public:
  explicit frmTVRank(Game& game)
      : ShowTable(game, "frmTVRank", "Television Ranking",
                  {{"#", K::Number, 1},
                   {"Show", K::Text, 5},
                   {"Promotion", K::Text, 2},
                   {"Network", K::Text, 4},
                   {"Last", K::Number, 2, "Last rating."},
                   {"Highest", K::Number, 2}},
                  "No TV Shows To Rank") {}

 protected:
  void Arrange(std::vector<const Show*>& shows) override {
    const auto last = [](const Show* show) { return show->Rating1 == 0 ? -1 : int(show->Rating3); };
    std::stable_sort(shows.begin(), shows.end(),
                     [&](const Show* a, const Show* b) { return last(a) > last(b); });
  }

  std::vector<ui::Cell> RowOf(int place, const Show& show) override {
    return {ui::Cell(place),
            OwnedCell(world(), show, show.Name),
            PromotionInitials(world(), show.Owner),
            NetworkName(world(), show.Network),
            RatingCell(show, show.Rating3),
            RatingCell(show, show.Rating1)};
  }
};

class frmViewShows : public ShowTable {
 public:
  explicit frmViewShows(Game& game)
      : ShowTable(game, "frmViewShows", "Television Shows",
                  {{"Show", K::Text, 5},
                   {"Promotion", K::Text, 2},
                   {"Day", K::Date, 3},
                   {"Time", K::Text, 3},
                   {"Network", K::Text, 4},
                   {"Weeks", K::Number, 2, "Weeks left of the deal."},
                   {"Last", K::Number, 2, "Last rating."},
                   {"Highest", K::Number, 2},
                   {"Lowest", K::Number, 2}},
                  "Nobody is on the air.") {}

 protected:
  std::vector<ui::Cell> RowOf(int, const Show& show) override {
    return {OwnedCell(world(), show, show.Name),
            PromotionInitials(world(), show.Owner),
            DayCell(show),
            SlotName(show.Slot),
            NetworkName(world(), show.Network),
            ui::Cell(show.ContractWeeks),
            RatingCell(show, show.Rating3),
            RatingCell(show, show.Rating1),
            RatingCell(show, show.Rating2)};
  }
};

}  // namespace

SCREEN(frmTVRank)

SCREEN(frmViewShows)

}  // namespace grapplemont
