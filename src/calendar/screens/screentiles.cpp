#include "calendar/screens/screentiles.h"

#include "calendar/board.h"
#include "calendar/desktiles.h"

namespace grapplemont {

namespace {

/// In the order of the figures.
struct TileRow {
  const char* Screen;
  const char* Tip;
};
constexpr TileRow kTiles[] = {
    {"frmFinance",
     "What you have, and what has come of it since the last month end. Opens Finance."},
    {"frmFed", "At 100 the promotion rises to the next size, at 0 it falls. Opens its page."},
    {"frmResults",
     "How far your standing has moved since the last month end: a size is worth 100, the image up "
     "to 100 more. Opens Results."},
    {"frmNews", "Your own mails count one by one, a day's news of others as one. Opens News."},
    {"frmRoster",
     "Who works for you, and how many of them are away or unhappy. Opens the Roster."}};
constexpr int kTileCount = static_cast<int>(std::size(kTiles));

/// The letters that a figure needs beside others.
constexpr int kTileLetters = 20;

constexpr int kImage = 2;  // the figure
constexpr TileRow kClassInSight = {
    "frmProspect", "Another size class is in sight. Opens the page on what it would ask of us."};

const TileRow& TileAt(const World& world, int place) {
  if (place == kImage && ClassInSight(world.Player()) != 0) return kClassInSight;
  return kTiles[static_cast<std::size_t>(place - 1)];
}

}  // namespace

DeskFigures::DeskFigures(ui::Screen& screen, Game& game)
    : game_(game),
      cmdtile("cmdtile", kTileCount,
              [&](const std::string& name, int place) {
                auto tile = std::make_unique<ui::Button>(screen, name, "", [this, place] {
                  game_.Desk().Open(TileAt(game_.World(), place).Screen);
                });
                tile->Plain = true;
                return tile;
              }),
      lbltile("lbltile", kTileCount, [&](const std::string& name, int) {
        return std::make_unique<ui::Label>(screen, name);
      }) {}

ui::Box DeskFigures::Layout() {
  std::vector<ui::Box> tiles;
  for (int place = 1; place <= kTileCount; ++place)
    tiles.push_back(ui::Group("", {cmdtile(place), lbltile(place)}).Grow());
  return ui::Columns(std::move(tiles)).Wide(kTileLetters);
}

void DeskFigures::Show() {
  int place = 0;
  for (const DeskTile& tile : DeskTiles(game_.World())) {
    cmdtile(++place).Text = tile.Says;
    const char* opens = TileAt(game_.World(), place).Tip;
    cmdtile(place).Tip = tile.Why.empty() ? opens : tile.Why + ". " + opens;
    lbltile(place).Text = tile.About;
    lbltile(place).Colour = tile.Trend > 0   ? ui::Tone::Green
                            : tile.Trend < 0 ? ui::Tone::Red
                                             : ui::Tone::Muted;
  }
}

}  // namespace grapplemont
