#include "business/screens/screenfedproduct.h"

#include "business/productrisk.h"
#include "records/world.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

ui::Cell VerdictCell(const RiskLimit& limit, int risk) {
  if (risk <= limit.Limit) return {"Bears it", ui::Tone::Green};
  return {limit.Otherwise, ui::Tone::Red};
}

std::string OutOf(int some, int all) {
  return std::to_string(some) + " of " + std::to_string(all);
}

}  // namespace

FedProduct::FedProduct(ui::Screen& screen, Game& game)
    : game_(game),
      hsrisk(screen, "hsrisk", 0, 100, [this] { ShowChoice(); }),
      lblrisk(screen, "lblrisk"),
      lblmarket(screen, "lblmarket"),
      cmdrisk(screen, "cmdrisk", "Change Risk", [this] { cmdrisk_Click(); }),
      lstrisk(screen, "lstrisk",
              {{"Partner", K::Text, 3},
               {"What it is to us", K::Text, 4},
               {"Bears at most", K::Number, 2, "The highest risk that it puts up with."},
               {"At this risk", K::Tag, 2}}) {
  lstrisk.EmptyText =
      "You have neither a television show nor a sponsor: nobody minds what you show.";
}

ui::Box FedProduct::Layout() {
  return ui::Group("Product",
                   {ui::Field("Risk", hsrisk), ui::Field("That is", lblrisk),
                    ui::Field("Who could bear it", lblmarket), cmdrisk, ui::Grow(lstrisk)});
}

void FedProduct::Show() {
  hsrisk.Value = game_.World().Player().Risk;
  ShowChoice();
}

void FedProduct::ShowChoice() {
  const World& world = game_.World();
  const int risk = hsrisk.Value, now = world.Player().Risk;
  lblrisk.Text =
      std::to_string(risk) + "% - " + RiskText(risk) + ". " +
      (risk == now ? "This is what we show now." : "Now we show " + std::to_string(now) + "%.");
  const RiskMarket market = MarketFor(world, risk);
  lblmarket.Text = OutOf(market.SponsorsThatBear, market.Sponsors) + " sponsors, " +
                   OutOf(market.SlotsThatBear, market.Slots) + " time slots of the networks";
  std::vector<ui::ListBox::Row> rows;
  for (const RiskLimit& limit : RiskLimits(world))
    rows.push_back({{limit.Who, limit.What, ui::Cell(limit.Limit), VerdictCell(limit, risk)},
                    static_cast<int>(rows.size()) + 1});
  lstrisk.Fill(std::move(rows));
  EnableUnless(cmdrisk, risk == now ? "That is the risk now." : "");
}

void FedProduct::cmdrisk_Click() {
  game_.World().Player().Risk = hsrisk.Value;
  ShowChoice();
}

}  // namespace grapplemont
