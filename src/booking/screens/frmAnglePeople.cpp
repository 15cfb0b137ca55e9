#include "booking/candidates.h"
#include "booking/casting.h"
#include "booking/castingchecks.h"
#include "booking/screens/talkscreens.h"

namespace grapplemont {

namespace {

constexpr const char* kUnused = "N\\A";
constexpr const char* kNobody = "None (optional)";

class frmAnglePeople : public StepScreen {
 public:
  frmAnglePeople(Game& game, WizardHost& host)
      : StepScreen(game, host, "frmAnglePeople", "Select Participants") {}

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
      lbl(box).Visible = cmb(box).Visible = lblabout(box).Visible = IsUsed(At(box).Role);
    }
    lbldesc.Colour = ui::Tone::Muted;
    lbldesc.Text = std::string(angle ? angle->Text : "");
  }

  void FillBox(int box) {
    auto& [role, candidates] = At(box);
    lbl(box).Text = std::string(role.Caption);
    lblabout(box).Colour = ui::Tone::Muted;
    if (!IsUsed(role)) {
      cmb(box).Add(kUnused);
    } else {
      candidates = CandidatesFor(world(), role.From, buffer().Style, wizard().View);
      if (role.Optional) cmb(box).Add(kNobody);
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

  void ShowAbout(int box) {
    const Candidate* candidate = Chosen(box);
    lblabout(box).Text = candidate ? AboutCandidate(world(), At(box).Role, *candidate) : "";
  }

  bool Store() override {
    Segment cast = buffer();
    for (int box = 1; box <= kAnglePlaces; ++box)
      if (const Candidate* candidate = Chosen(box)) Cast(cast, At(box).Role, *candidate);
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
                                    [this, box] { ShowAbout(box); });
                              }};
  ui::Array<ui::Label> lblabout = Labels("lblabout");
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmAnglePeople(Game& game, WizardHost& host, const std::string&) {
  return std::make_unique<frmAnglePeople>(game, host);
}

}  // namespace grapplemont
