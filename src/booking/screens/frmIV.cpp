#include <algorithm>

#include "booking/screens/stepscreens.h"
#include "booking/wizard/interviews.h"

namespace grapplemont {

namespace {

/// Who does the talking: alone or a team, with or without a manager.
class frmIVType : public StepScreen {
 public:
  frmIVType(Game& game, WizardHost& host)
      : StepScreen(game, host, "frmIVType", "Select Interview Style") {}

 private:
  void Prepare() override {
    for (const InterviewStyleRow& style : kInterviewStyles) lsttype.Add({style.Says}, style.Code);
    lsttype.Select(1);
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(lsttype)}); }

  bool Store() override {
    buffer().Style = lsttype.Key();
    return true;
  }

  ui::ListBox lsttype{*this, "lsttype", {{"Interview style"}}, {}, [this] { GoOn(); }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmIVType(Game& game, WizardHost& host, const std::string&) {
  return std::make_unique<frmIVType>(game, host);
}

namespace {

/// The speakers' lists of an interview style, in the order of Segment.Worker.
struct SpeakersRow {
  std::string_view Screen;
  int Style;
  std::vector<std::string> Lists;
};
const std::vector<SpeakersRow>& SpeakersTable() {
  static const std::vector<SpeakersRow> kRows = {
      {"frmIV1", kSingleTalk, {"Worker"}},
      {"frmIV2", kTeamTalk, {"Worker", "Partner"}},
      {"frmIV1m", kManagedTalk, {"Worker", "Manager"}},
      {"frmIV2m", kManagedTeamTalk, {"Manager", "Worker", "Partner"}},
  };
  return kRows;
}

const SpeakersRow& RowOf(const std::string& name) {
  for (const SpeakersRow& row : SpeakersTable())
    if (row.Screen == name) return row;
  return SpeakersTable().front();
}

/// The other half of the first Tag Team this worker is in; 0 for none.
int TeamMate(const World& world, int uid) {
  for (const Team& team : world.Teams()) {
    if (team.Worker1 == uid) return team.Worker2;
    if (team.Worker2 == uid) return team.Worker1;
  }
  return 0;
}

/// Who is interviewed. Whoever is chosen brings his partner and his manager along, as long as the
/// player has not chosen these himself.
class frmIVPeople : public StepScreen {
 public:
  frmIVPeople(Game& game, WizardHost& host, const std::string& name)
      : StepScreen(game, host, name, "Select Participants"), row_(RowOf(name)) {}

 private:
  int Lists() const { return static_cast<int>(row_.Lists.size()); }
  const TalkShape& Shape() const { return *FindTalkShape(row_.Style); }

  void Prepare() override {
    for (int place = 1; place <= Lists(); ++place) {
      const bool manager = place == Shape().Manager;
      lstwres(place).EmptyText = manager ? "Nobody on the roster can speak as a manager."
                                         : "Nobody on the roster can be interviewed.";
      FillPeople(lstwres(place), manager ? TalkingManagers(world(), wizard().View)
                                         : Talkers(world(), wizard().View));
    }
  }

  ui::Box Body() override {
    std::vector<ui::Box> lists;
    for (int place = 1; place <= Lists(); ++place)
      lists.push_back(
          ui::Group(row_.Lists[static_cast<std::size_t>(place - 1)], {ui::Grow(lstwres(place))})
              .Grow());
    return ui::Columns(std::move(lists));
  }

  void Picked(int place) {
    chosen_[static_cast<std::size_t>(place)] = true;
    const Worker* worker = world().FindWorker(lstwres(place).Key());
    if (!worker || place == Shape().Manager) return;
    Suggest(Shape().Manager, worker->Manager);
    if (Shape().Workers < 2) return;
    const int partner = place == Shape().FirstWorker ? place + 1 : Shape().FirstWorker;
    Suggest(partner, TeamMate(world(), worker->Uid));
  }

  void Suggest(int place, int uid) {
    if (place == 0 || chosen_[static_cast<std::size_t>(place)]) return;
    lstwres(place).Select(0);
    if (uid != 0) lstwres(place).SelectKey(uid);
  }

  bool Store() override {
    Segment chosen = buffer();
    for (int place = 1; place <= Lists(); ++place)
      chosen.Worker[static_cast<std::size_t>(place - 1)] = lstwres(place).Key();
    if (const std::string why = WhyNotSpeakers(world(), chosen); !why.empty()) return Fail(why);
    buffer() = chosen;
    return true;
  }

  const SpeakersRow& row_;
  std::array<bool, 4> chosen_ = {};  // by place
  ui::Array<ui::ListBox> lstwres{"lstwres", Lists(), [this](const std::string&, int place) {
                                   return std::make_unique<ui::ListBox>(
                                       *this, "lstwres" + std::to_string(place),
                                       PeopleColumns(Lists()), [this, place] { Picked(place); },
                                       [this] { GoOn(); });
                                 }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmIVPeople(Game& game, WizardHost& host, const std::string& name) {
  return std::make_unique<frmIVPeople>(game, host, name);
}

namespace {

/// Whom the interview is about: frmIV1opp asks for one, frmIV2opp for a second one behind him.
class frmIVTargets : public StepScreen {
 public:
  frmIVTargets(Game& game, WizardHost& host, const std::string& name)
      : StepScreen(game, host, name, "Select Targets"), targets_(name == "frmIV2opp" ? 2 : 1) {}

 private:
  void Prepare() override {
    for (int target = 1; target <= targets_; ++target)
      FillPeople(lstopp(target), TalkTargets(world(), buffer(), wizard().View), true);
  }

  ui::Box Body() override {
    if (targets_ == 1) return ui::Group("Target", {ui::Grow(lstopp(1))});
    return ui::Columns({ui::Group("First target", {ui::Grow(lstopp(1))}).Grow(),
                        ui::Group("Second target", {ui::Grow(lstopp(2))}).Grow()});
  }

  bool Store() override {
    const TalkShape* shape = FindTalkShape(buffer().Style);
    Segment chosen = buffer();
    for (int target = 1; shape && target <= targets_; ++target)
      chosen.Worker[static_cast<std::size_t>(shape->FirstTarget + target - 2)] =
          lstopp(target).Key();
    if (const std::string why = WhyNotTargets(chosen); !why.empty()) return Fail(why);
    buffer() = chosen;
    return true;
  }

  int targets_;
  ui::Array<ui::ListBox> lstopp{"lstopp", targets_, [this](const std::string&, int target) {
                                  return std::make_unique<ui::ListBox>(
                                      *this, "lstopp" + std::to_string(target), PeopleColumns(),
                                      ui::Handler{}, [this] { GoOn(); });
                                }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmIVTargets(Game& game, WizardHost& host,
                                             const std::string& name) {
  return std::make_unique<frmIVTargets>(game, host, name);
}

namespace {

class frmIVPurpose : public StepScreen {
 public:
  frmIVPurpose(Game& game, WizardHost& host)
      : StepScreen(game, host, "frmIVPurpose", "Select Interview Purpose") {}

 private:
  void Prepare() override {
    for (const int purpose : OfferedTalkPurposes(world(), buffer()))
      cmbwinner.Add({Says(kInterviewPurposes, purpose)}, purpose);
    cmbwinner.SelectKey(kTalkNone);
    lblturn.Text = TurnText();
    lblturn.Visible = !lblturn.Text->empty();
    lblturn.Colour = ui::Tone::Muted;
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(cmbwinner), lblturn}); }

  /// Beside a single worker it is the manager who turns.
  std::string TurnText() {
    const auto offered = OfferedTalkPurposes(world(), buffer());
    if (std::find(offered.begin(), offered.end(), kTalkTurn) == offered.end()) return {};
    std::string text;
    for (const TurnCall& call : TalkTurns(world(), buffer()))
      text += (text.empty() ? "" : ", ") + SideText(world(), {call.Turner}) + " on " +
              SideText(world(), {call.Other});
    return text.empty() ? text : "Who turns with \"Turn\": " + text + ".";
  }

  bool Store() override {
    buffer().Purpose = cmbwinner.Key();
    return true;
  }

  ui::Label lblturn{*this, "lblturn"};
  ui::ListBox cmbwinner{*this, "cmbwinner", {{"Purpose"}}, {}, [this] { GoOn(); }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmIVPurpose(Game& game, WizardHost& host, const std::string&) {
  return std::make_unique<frmIVPurpose>(game, host);
}

}  // namespace grapplemont
