#include "booking/interviews.h"
#include "booking/screens/talkscreens.h"

namespace grapplemont {

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

}  // namespace grapplemont
