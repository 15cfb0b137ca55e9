#include "business/screens/fedscreens.h"
#include "business/worth.h"
#include "records/modVar.h"
#include "records/world.h"

namespace grapplemont {

namespace {

/// What the promotion is worth, and why.
class frmFedValue : public ui::Screen {
 public:
  explicit frmFedValue(Game& game)
      : Screen(game.Desk(), "frmFedValue", "What We Are Worth", ui::Role::Dialog), game_(game) {
    lstworth.Room = 16;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblworth;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Large = true;
    page.Body = ui::Group("", {ui::Grow(lstworth)});
    return page;
  }

  void Load() override { Return(); }

  void Return() override {
    const Promotion& player = game_.World().Player();
    const std::vector<WorthLine> lines = PromotionWorth(game_.World(), player);
    std::vector<ui::ListBox::Row> rows;
    for (const WorthLine& line : lines)
      rows.push_back({{line.What, ui::Cell(line.Why, ui::Tone::Muted), Amount(line.Dollars)}});
    const std::string sum = Dollars(SumOf(lines));
    rows.push_back({{ui::Cell("All together", ui::Tone::Gold), "",
                     ui::Cell(static_cast<double>(SumOf(lines)), sum, ui::Tone::Gold)}});
    lstworth.Fill(std::move(rows));
    lblworth.Text = player.Name + " is worth " + sum + ".";
  }

 private:
  static ui::Cell Amount(long long dollars) {
    return {static_cast<double>(dollars), Dollars(dollars),
            dollars < 0    ? ui::Tone::Red
            : dollars == 0 ? ui::Tone::Muted
                           : ui::Tone::Plain};
  }

  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lblworth{*this, "lblworth"};
  ui::ListBox lstworth{
      *this, "lstworth", {{"What", K::Text, 3}, {"Why", K::Text, 8}, {"Dollars", K::Number, 2}}};
  ui::Button cmdback{*this, "cmdback", "Back", &frmFedValue::cmdback_Click};
};

}  // namespace

SCREEN(frmFedValue)

}  // namespace grapplemont
