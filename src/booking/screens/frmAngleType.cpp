#include "booking/casting.h"
#include "booking/screens/talkscreens.h"
#include "booking/writers.h"

namespace grapplemont {

namespace {

/// "Challenger, Challengee": the roles in short, those that may stay empty in brackets.
std::string CastText(const Angle& angle) {
  std::string text;
  for (const Role& role : angle.Roles) {
    if (!IsUsed(role)) continue;
    const std::string caption(role.Caption);
    text += (text.empty() ? "" : ", ") + (role.Optional ? "(" + caption + ")" : caption);
  }
  return text;
}

class frmAngleType : public StepScreen {
 public:
  frmAngleType(Game& game, WizardHost& host)
      : StepScreen(game, host, "frmAngleType", "Select Angle") {}

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

}  // namespace

std::unique_ptr<ui::Screen> MakefrmAngleType(Game& game, WizardHost& host, const std::string&) {
  return std::make_unique<frmAngleType>(game, host);
}

}  // namespace grapplemont
