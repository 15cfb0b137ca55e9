#include <cstring>

#include "booking/screens/screenstep.h"
#include "booking/wizard/casting.h"
#include "booking/wizard/roster.h"
#include "records/fields/wording.h"

namespace grapplemont {

namespace {

/// "Challenger, Challengee": the roles in short, those that may stay empty in brackets.
std::string CastText(const Angle& angle) {
  std::vector<std::string> captions;
  for (const Role& role : angle.Roles) {
    if (role.Caption.empty()) continue;
    const std::string caption(role.Caption);
    captions.push_back(role.Optional ? "(" + caption + ")" : caption);
  }
  return Joined(captions);
}

class frmAngleType : public StepScreen {
 public:
  using StepScreen::StepScreen;

 private:
  void Prepare() override {
    if (!EnoughWriters(world(), wizard().View.IsEvent)) return ShowNoWriters();
    for (const Angle* angle : OfferedAngles(world())) {
      const std::string sheet(angle->Sheet);
      lstangle.Add(
          {angle->Says, sheet.substr(0, sheet.find_last_not_of(' ') + 1), CastText(*angle)},
          angle->Number);
    }
    lstangle.SelectKey(kWalking);
    lstangle_Click();
  }

  void ShowNoWriters() {
    lstangle.Add({"Not Enough Writers!", "", ""});
    lbldesc.Text = "You do not have enough writers to use angles.";
    const int shows = wizard().View.IsEvent ? 0 : PlayerShows(world());
    AllowDone(false, "You have " + std::to_string(PlayerWriters(world())) + " of the " +
                         std::to_string(WritersNeeded(shows)) + " writers that angles need.");
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(lstangle), lbldesc}); }

  void lstangle_Click() {
    if (const Angle* angle = FindAngle(lstangle.Key())) lbldesc.Text = std::string(angle->Text);
  }

  void Recall(const Segment& earlier) override {
    if (cmdnext->Enabled) Choose(lstangle, earlier.Style);
    lstangle_Click();
  }

  bool Store() override {
    buffer().Style = lstangle.Key();
    return true;
  }

  ui::ListBox lstangle{*this,
                       "lstangle",
                       {{"Angle", ui::ColumnKind::Text, 4},
                        {"Sheet", ui::ColumnKind::Text, 2, "What the booking sheet calls it."},
                        {"Cast", ui::ColumnKind::Text, 6, "In brackets: may stay empty."}},
                       [this] { lstangle_Click(); },
                       [this] { GoOn(); }};
  ui::Label lbldesc{*this, "lbldesc"};
};

class frmAnglePeople : public StepScreen {
 public:
  using StepScreen::StepScreen;

 private:
  /// One box: its role, and what stands in it. An optional role has a first row more for nobody.
  struct Filled {
    grapplemont::Role Role = {};
    std::vector<Candidate> Candidates;
  };

  void Prepare() override {
    const Angle* angle = FindAngle(buffer().Style);
    for (int box = 1; box <= kAnglePlaces; ++box) {
      At(box).Role = angle ? angle->Roles[static_cast<std::size_t>(box - 1)] : Role{};
      FillBox(box);
      lbl(box).Visible = cmb(box).Visible = lblabout(box).Visible = !At(box).Role.Caption.empty();
    }
    lbldesc.Colour = ui::Tone::Muted;
    lbldesc.Text = std::string(angle ? angle->Text : "");
  }

  void FillBox(int box) {
    auto& [role, candidates] = At(box);
    lbl(box).Text = std::string(role.Caption);
    lblabout(box).Colour = ui::Tone::Muted;
    if (role.Caption.empty()) {
      cmb(box).Add("N\\A");
    } else {
      candidates = CandidatesFor(world(), role.From, buffer(), wizard().View);
      if (role.Optional) cmb(box).Add("None (optional)");
      for (const Candidate& candidate : candidates) cmb(box).Add(candidate.Name, candidate.Uid);
      if (cmb(box).Count() == 0) cmb(box).Add(std::string(NobodyFor(role.From)));
    }
    cmb(box).Select(1);
    ShowAbout(box);
  }

  ui::Box Body() override {
    std::vector<ui::Box> boxes = {lbldesc};
    for (int box = 1; box <= kAnglePlaces; ++box)
      boxes.push_back(ui::Columns({lbl(box), ui::Grow(cmb(box), 2), ui::Grow(lblabout(box), 3)}));
    boxes.push_back(ui::Spacer());
    return ui::Group("", std::move(boxes));
  }

  Filled& At(int box) { return filled_[static_cast<std::size_t>(box - 1)]; }

  /// nullptr for an empty list and for nobody in an optional role.
  const Candidate* Chosen(int box) {
    const std::vector<Candidate>& candidates = At(box).Candidates;
    const int at = cmb(box).Selected() - (At(box).Role.Optional ? 2 : 1);
    const bool there = at >= 0 && at < static_cast<int>(candidates.size());
    return there ? &candidates[static_cast<std::size_t>(at)] : nullptr;
  }

  void cmb_Click(int box) {
    const Candidate* candidate = Chosen(box);
    const std::string marks = candidate ? MarksOf(candidate->Uid) : "";
    lblpartner.Text = marks.empty() ? "" : candidate->Name + ": " + marks;
    ShowAbout(box);
    ShowOutlook();
  }

  void ShowAbout(int box) {
    const Candidate* candidate = Chosen(box);
    lblabout(box).Text = candidate ? AboutCandidate(world(), At(box).Role, *candidate) : "";
  }

  void Recall(const Segment& earlier) override {
    if (earlier.Style != buffer().Style) return;
    for (int box = 1; box <= kAnglePlaces; ++box) RecallBox(box, earlier);
  }

  /// Stables and Titles have no uid: they are known by their names.
  void RecallBox(int box, const Segment& earlier) {
    const auto& [role, candidates] = At(box);
    int row = role.Optional ? 2 : 1;
    for (const Candidate& candidate : candidates) {
      Segment cast = earlier;
      Cast(cast, role, candidate);
      if (std::memcmp(&cast, &earlier, sizeof cast) == 0) cmb(box).Select(row);
      ++row;
    }
    ShowAbout(box);
  }

  Segment Draft() override {
    Segment cast = buffer();
    for (int box = 1; box <= kAnglePlaces; ++box)
      if (const Candidate* candidate = Chosen(box)) Cast(cast, At(box).Role, *candidate);
    return cast;
  }

  bool Store() override {
    const Segment cast = Draft();
    if (const std::string why = WhyNotCast(world(), cast, wizard().View); !why.empty())
      return Fail(why);
    buffer() = cast;
    return true;
  }

  ui::Array<ui::Label> Labels(const char* name) {
    return {name, kAnglePlaces, [this, name](const std::string&, int box) {
              return std::make_unique<ui::Label>(*this, name + std::to_string(box));
            }};
  }

  std::array<Filled, kAnglePlaces> filled_;
  ui::Label lbldesc{*this, "lbldesc"};
  ui::Array<ui::Label> lbl = Labels("lbl");
  ui::Array<ui::ComboBox> cmb{"cmb", kAnglePlaces, [this](const std::string&, int box) {
                                return std::make_unique<ui::ComboBox>(
                                    *this, "cmb" + std::to_string(box),
                                    [this, box] { cmb_Click(box); });
                              }};
  ui::Array<ui::Label> lblabout = Labels("lblabout");
};

}  // namespace

STEP(MakeAngleStep, frmAngleType)
STEP(MakeCastStep, frmAnglePeople)

}  // namespace grapplemont
