#include "booking/screens/screenmatchstep.h"
#include "booking/screens/stepscreens.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

/// What the match is for.
class frmBookBelt : public MatchStepScreen {
 public:
  frmBookBelt(Game& game, WizardHost& host, const std::string& name)
      : MatchStepScreen(game, host, name, "Select Title") {}

 private:
  void Prepare() override {
    for (const grapplemont::Title* title : OfferedTitles(world(), buffer()))
      lsttitle.Add({title->Name.View(), ChampionText(world(), *title), ui::Cell(title->Image)},
                   world().Titles().NumberOf(*title));
    lsttitle.Add({"None", "", ""});
    lsttitle.Select(lsttitle.Count());
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(lsttitle)}); }

  bool Store() override {
    const int record = lsttitle.Key();
    if (record == 0) {
      buffer().TitleName = "None";
      return true;
    }
    const grapplemont::Title& title = world().Titles()[record];
    if (IsChampionMissing(buffer(), title) && !desk().Ask("Continue?", Question())) return false;
    buffer().TitleName = title.Name;
    return true;
  }

  std::string Question() {
    const int style = buffer().Style;
    return style == kTag || style == kThreeTeams || style == kFourTeams
               ? "The tag team champions are not present in this match! Continue?"
               : "The champion is not present in this match! Continue?";
  }

  using K = ui::ColumnKind;
  ui::ListBox lsttitle{*this,
                       "lsttitle",
                       {{"Title", K::Text, 4}, {"Holder", K::Text, 4}, {"Image", K::Percent, 2}},
                       {},
                       [this] { GoOn(); }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakeTitleStep(Game& game, WizardHost& host, const std::string& name) {
  return std::make_unique<frmBookBelt>(game, host, name);
}

}  // namespace grapplemont
