#include <algorithm>

#include "booking/screens/screenmatchstep.h"
#include "booking/screens/stepscreens.h"

namespace grapplemont {

namespace {

/// Who wins, and who loses in which order. In a match between two the loser needs no box.
class frmBookWinner : public MatchStepScreen {
 public:
  frmBookWinner(Game& game, WizardHost& host, const std::string& name)
      : MatchStepScreen(game, host, name, "Select Result"), form_(ResultFormOf(buffer())) {}

 private:
  void Prepare() override {
    FillPeople(lstring, People());
    FillBox(cmbwinner);
    if (OffersDraw(buffer())) cmbwinner.Add("Draw");
    for (int box = 1; box <= form_.Losers; ++box) {
      if (form_.MayBeNone) cmbloser(box).Add("None");
      FillBox(cmbloser(box));
    }
    cmbwinner.Select(1);
    SuggestLosers();
    ShowPicks();
  }

  ui::Box Body() override {
    std::vector<ui::Box> boxes = {ui::Field("Winner", cmbwinner)};
    for (int box = 1; box <= form_.Losers; ++box)
      boxes.push_back(ui::Field(LoserLabel(box), cmbloser(box)));
    boxes.push_back(ui::Spacer());
    return ui::Rows({ui::Columns({ui::Group("Result", std::move(boxes)).Grow(2),
                                  ui::Group("In the ring", {ui::Grow(lstring)}).Grow(3)})
                         .Grow(),
                     Objections()});
  }

  bool Store() override { return Accept(Draft(), kResultStep); }

  std::string LoserLabel(int box) {
    if (form_.Losers > 1) return "Loser #" + std::to_string(box);
    return buffer().Style == kSpecial ? "Runner-up" : "Loser";
  }

  std::vector<const Worker*> People() {
    std::vector<const Worker*> people;
    for (const int uid : PeopleOf(buffer()))
      if (const Worker* worker = world().FindWorker(uid)) people.push_back(worker);
    return people;
  }

  void FillBox(ui::ComboBox& box) {
    const auto sides = SidesOf(buffer());
    for (const int uid : ResultCandidates(buffer()))
      box.Add(form_.Teams
                  ? SideText(world(), sides[static_cast<std::size_t>(SideOf(buffer(), uid) - 1)])
                  : SideText(world(), {uid}),
              uid);
  }

  /// The others in their order; in a match of two sides those who do not stand beside the winner.
  void SuggestLosers() {
    const auto sides = SidesOf(buffer());
    const int winners = SideOf(buffer(), cmbwinner.Key());
    std::vector<int> others;
    for (const int uid : ResultCandidates(buffer()))
      if (SideOf(buffer(), uid) != winners) others.push_back(uid);
    for (int box = 1; box <= form_.Losers; ++box) {
      const auto i = static_cast<std::size_t>(box - 1);
      i < others.size() ? cmbloser(box).SelectKey(others[i]) : cmbloser(box).Select(1);
    }
  }

  Segment Draft() {
    Segment draft = buffer();
    std::vector<int> losers;
    for (int box = 1; box <= form_.Losers; ++box) losers.push_back(cmbloser(box).Key());
    StoreResult(draft, cmbwinner.Key(), losers);
    return draft;
  }

  void cmbwinner_Click() {
    if (!hasPickedLoser_ && cmbwinner.Key() != 0) SuggestLosers();
    ShowPicks();
  }

  /// Whoever is picked in the ring wins.
  void lstring_Click() {
    for (const int uid : ResultCandidates(buffer()))
      if (uid == lstring.Key() ||
          (form_.Teams && SideOf(buffer(), uid) == SideOf(buffer(), lstring.Key())))
        cmbwinner.SelectKey(uid);
    cmbwinner_Click();
  }

  void cmbloser_Click() {
    hasPickedLoser_ = true;
    ShowPicks();
  }

  void ShowPicks() {
    const bool draw = cmbwinner.Key() == 0;
    for (int box = 1; box <= form_.Losers; ++box) {
      cmbloser(box).Enabled = !draw;
      cmbloser(box).Tip = draw ? "Nobody loses in a draw." : "";
    }
    const bool stands = SideOf(buffer(), lstring.Key()) == SideOf(buffer(), cmbwinner.Key());
    if (!form_.Teams || !stands) lstring.SelectKey(cmbwinner.Key());
    ShowObjections(Draft(), kResultStep);
  }

  const ResultForm& form_;
  bool hasPickedLoser_ = false;
  ui::ComboBox cmbwinner{*this, "cmbwinner", &frmBookWinner::cmbwinner_Click};
  ui::Array<ui::ComboBox> cmbloser{
      "cmbloser", form_.Losers, [this](const std::string&, int box) {
        return std::make_unique<ui::ComboBox>(
            *this, form_.Losers > 1 ? "cmbloser" + std::to_string(box) : "cmbloser",
            &frmBookWinner::cmbloser_Click);
      }};
  ui::ListBox lstring{*this, "lstring", PeopleColumns(), [this] { lstring_Click(); },
                      [this] { GoOn(); }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakeResultStep(Game& game, WizardHost& host, const std::string& name) {
  return std::make_unique<frmBookWinner>(game, host, name);
}

}  // namespace grapplemont
