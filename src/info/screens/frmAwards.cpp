#include "info/results.h"
#include "info/screens/chroniclescreens.h"
#include "records/fields/fields.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

/// The awards of the years.
class frmAwards : public GameScreen {
 public:
  explicit frmAwards(Game& game) : GameScreen(game, "frmAwards", "Awards") {
    lstawards.EmptyText = "Awards are given on 31 December.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Columns({ui::Field("Year", cmbyear),
                                              ui::Field("Award", cmbaward), ui::Spacer()}),
                                 ui::Grow(lstawards)}),
                  &lblfacts);
  }

  /// The latest year, or whatever there will be.
  void Load() override {
    cmbyear.Add("All years");
    for (const int year : YearsOfAwards(world())) cmbyear.Add(std::to_string(year), year);
    cmbaward.Add("All awards");
    for (int kind = kWrestlerOfTheYear; kind <= kRookieOfTheYear; ++kind)
      cmbaward.Add(std::string(AwardName(kind)), kind);
    cmbyear.Select(cmbyear.Count() > 1 ? 2 : 1);
    cmbaward.Select(1);
    ShowAwards();
  }
  void Return() override { ShowAwards(); }

 private:
  void ShowAwards() {
    std::vector<ui::ListBox::Row> rows;
    for (const YearAward* award : AwardsOf(world(), cmbyear.Key(), cmbaward.Key()))
      rows.push_back({{ui::Cell(YearOf(award->On)), AwardName(award->Kind),
                       ui::Cell(award->Winner.View(), ui::Tone::Gold), award->For.View()},
                      world().Awards().NumberOf(*award)});
    lblfacts.Text = "Each year ends with the last day before 31 December.";
    lstawards.Fill(std::move(rows));
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbyear{*this, "cmbyear", &frmAwards::ShowAwards};
  ui::ComboBox cmbaward{*this, "cmbaward", &frmAwards::ShowAwards};
  ui::ListBox lstawards{
      *this,
      "lstawards",
      {{"Year", K::Number}, {"Award", K::Text, 3}, {"Winner", K::Text, 5}, {"For", K::Text, 8}}};
};

}  // namespace

SCREEN(frmAwards)

}  // namespace grapplemont
