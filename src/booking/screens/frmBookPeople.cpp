#include <algorithm>

#include "booking/screens/screenmatchstep.h"
#include "booking/screens/stepscreens.h"

namespace grapplemont {

namespace {

constexpr const char* kChooseAll = "Choose somebody in every list.";

/// Who stands in the match: a list a place, the lists of a side together.
class frmBookPeople : public MatchStepScreen {
 public:
  frmBookPeople(Game& game, WizardHost& host, const std::string& name)
      : MatchStepScreen(game, host, name, "Select Participants"),
        style_(*FindMatchStyle(buffer().Style)) {}

 private:
  void Prepare() override {
    const auto roster = EligibleRoster(world(), wizard().View);
    for (int place = 1; place <= lstwres.Count(); ++place) {
      lstwres(place).EmptyText = "Nobody on the roster can be booked.";
      FillPeople(lstwres(place), roster);
    }
    AllowDone(false, kChooseAll);
  }

  ui::Box Body() override {
    std::vector<ui::Box> rows;
    for (int first = 0; first < style_.Sides; first += SidesAbreast()) {
      std::vector<ui::Box> sides;
      for (int side = first; side < std::min(first + SidesAbreast(), style_.Sides); ++side)
        sides.push_back(SideBox(side));
      rows.push_back(ui::Columns(std::move(sides)).Grow());
    }
    return ui::Rows(std::move(rows));
  }

  bool NeedsWidth() const override { return ListsAbreast() > 3; }

  ui::Box SideBox(int side) {
    std::vector<ui::Box> lists;
    for (int member = 1; member <= style_.PerSide; ++member)
      lists.push_back(ui::Grow(lstwres(side * style_.PerSide + member)));
    const std::string title = (style_.PerSide > 1 ? "Team " : "Worker ") + std::to_string(side + 1);
    ui::Box box = HasRowsOfMates() ? ui::Columns(std::move(lists)) : ui::Rows(std::move(lists));
    return ui::Group(title, {std::move(box).Grow()}).Grow();
  }

  bool Store() override {
    Segment draft = buffer();
    for (int place = 1; place <= lstwres.Count(); ++place)
      draft.Worker[static_cast<std::size_t>(place - 1)] = lstwres(place).Key();
    return Accept(draft, kPeopleStep);
  }

  bool HasRowsOfMates() const { return style_.PerSide > 2; }
  /// Four alone stand two by two, so that the lists keep their width.
  int SidesAbreast() const {
    if (HasRowsOfMates()) return 1;
    return style_.Code == kFourWay ? 2 : style_.Sides;
  }
  int ListsAbreast() const { return HasRowsOfMates() ? style_.PerSide : SidesAbreast(); }

  bool IsComplete() {
    for (int place = 1; place <= lstwres.Count(); ++place)
      if (lstwres(place).Key() == 0) return false;
    return true;
  }

  bool IsChosen(int uid) {
    for (int place = 1; place <= lstwres.Count(); ++place)
      if (lstwres(place).Key() == uid) return true;
    return false;
  }

  void lstwres_Click(int place) {
    if (style_.PerSide == 2 && place % 2 == 1 && lstwres(place + 1).Key() == 0)
      SuggestPartner(lstwres(place).Key(), lstwres(place + 1));
    AllowDone(IsComplete(), kChooseAll);
  }

  /// Who belongs to a Tag Team mostly stands beside his partner.
  void SuggestPartner(int uid, ui::ListBox& partners) {
    for (const Team& team : world().Teams()) {
      if (team.Worker1 != uid && team.Worker2 != uid) continue;
      const int partner = team.Worker1 == uid ? team.Worker2 : team.Worker1;
      if (!IsChosen(partner)) partners.SelectKey(partner);
      if (partners.Key() != 0) return;
    }
  }

  const MatchStyleRow& style_;
  ui::Array<ui::ListBox> lstwres{
      "lstwres", style_.Sides* style_.PerSide, [this](const std::string&, int place) {
        return std::make_unique<ui::ListBox>(
            *this, "lstwres" + std::to_string(place), PeopleColumns(ListsAbreast()),
            [this, place] { lstwres_Click(place); }, [this] { GoOn(); });
      }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakePeopleStep(Game& game, WizardHost& host, const std::string& name) {
  return std::make_unique<frmBookPeople>(game, host, name);
}

}  // namespace grapplemont
