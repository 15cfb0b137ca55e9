#include "info/results.h"
#include "info/screens/chroniclescreens.h"
#include "records/dates.h"

namespace grapplemont {

namespace {

/// The awards of the years.
class frmAwards : public ui::Screen {
 public:
  explicit frmAwards(Game& game) : Screen(game.Desk(), "frmAwards", "Awards"), game_(game) {
    lstawards.EmptyText = "Awards are given on 31 December.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body = ui::Group(
        "", {ui::Columns({ui::Field("Year", cmbyear), ui::Field("Award", cmbaward), ui::Spacer()}),
             ui::Grow(lstawards)});
    return page;
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
  const World& world() { return game_.World(); }

  void ShowAwards() {
    std::vector<ui::ListBox::Row> rows;
    for (const YearAward* award : AwardsOf(world(), cmbyear.Key(), cmbaward.Key()))
      rows.push_back({{ui::Cell(YearOf(award->On)), AwardName(award->Kind),
                       ui::Cell(award->Winner.View(), ui::Tone::Gold), award->For.View()},
                      world().Awards().NumberOf(*award)});
    lblfacts.Text = "Each year ends with the last day before 31 December.";
    lstawards.Fill(std::move(rows));
  }

  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbyear{*this, "cmbyear", &frmAwards::ShowAwards};
  ui::ComboBox cmbaward{*this, "cmbaward", &frmAwards::ShowAwards};
  ui::ListBox lstawards{
      *this,
      "lstawards",
      {{"Year", K::Number}, {"Award", K::Text, 3}, {"Winner", K::Text, 5}, {"For", K::Text, 8}}};
  ui::Button cmdback{*this, "cmdback", "Back", &frmAwards::cmdback_Click};
};

}  // namespace

SCREEN(frmAwards)

}  // namespace grapplemont
