#include "business/screens/screentv.h"

#include "business/networks.h"
#include "business/tvadvice.h"
#include "business/tvshows.h"
#include "records/fields/fields.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

ui::Cell SlotCell(const Network& network, std::string_view slot) {
  const int audience = SlotAudience(network, slot);
  return {double(audience), RatingText(audience) + " / " + std::to_string(SlotRisk(network, slot))};
}

ui::Cell RoomCell(const World& world, const Network& network) {
  if (network.Generic) return {"Always", ui::Tone::Green};
  return IsFull(world, network) ? ui::Cell("Full", ui::Tone::Red) : ui::Cell("Yes");
}

}  // namespace

ShowScreen::ShowScreen(Game& game, std::string name, std::string title, std::string show)
    : Screen(game.Desk(), std::move(name), std::move(title), ui::Role::Dialog),
      game_(game),
      show_(std::move(show)) {}

Show* ShowScreen::FindShow() {
  return PlayerShow(world(), show_);
}

Show* ShowScreen::ShowOrLeave() {
  Show* show = FindShow();
  if (show) return show;
  desk().Say("Error!", show_ + " is no longer one of our shows.");
  Close();
  return nullptr;
}

std::string WantsText(const World& world, const Show& show, const Network& network) {
  std::string text;
  for (const std::string& line : NetworkWants(world.Player(), show, network))
    text += (text.empty() ? "" : "\n") + line;
  return text;
}

ui::Cell RatingCell(const Show& show, int rating) {
  if (show.Rating1 == 0) return {-1.0, "-", ui::Tone::Muted};
  return {double(rating), RatingText(rating)};
}

ui::Cell DayCell(const Show& show) {
  return {double(DayNumber(show.Day)), show.Day.Str()};
}

ui::Cell OwnedCell(const World& world, const Show& show, std::string_view text) {
  return {text, show.Owner == world.PlayerUid() ? ui::Tone::Gold : ui::Tone::Plain};
}

std::vector<ui::Column> NetworkColumns() {
  using K = ui::ColumnKind;
  const std::string tip = "The rating that a show is measured against, and the risk it may run.";
  return {{"Network", K::Text, 4},
          {"Early", K::Number, 2, tip},
          {"Prime", K::Number, 2, tip},
          {"Late", K::Number, 2, tip},
          {"Graveyard", K::Number, 2, tip},
          {"Production", K::Number, 2, "The production values it asks for."},
          {"Shows", K::Number, 1, "So many are on it now."},
          {"Room", K::Tag, 2, "Whether it has a spot for another show."}};
}

void FillNetworks(ui::ListBox& list, const World& world) {
  std::vector<ui::ListBox::Row> rows;
  for (const Network& network : world.Networks())
    rows.push_back({{network.Name.View(), SlotCell(network, "E"), SlotCell(network, "P"),
                     SlotCell(network, "L"), SlotCell(network, "G"), ui::Cell(network.Production),
                     ui::Cell(ShowsOn(world, network)), RoomCell(world, network)},
                    network.Uid});
  list.Fill(std::move(rows));
}

void SayAll(ui::Desk& desk, const std::vector<TvRemark>& remarks) {
  for (const TvRemark& remark : remarks) desk.Say(remark.Title, remark.Text);
}

}  // namespace grapplemont
