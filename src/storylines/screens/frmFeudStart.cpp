#include "storylines/screens/frmFeudStart.h"

#include <algorithm>
#include <utility>

#include "records/world.h"
#include "storylines/feuds.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

std::string ContrastText(int contrast) {
  if (contrast == 0) return {};
  return contrast > 0 ? ", a Face against a Heel +" + std::to_string(contrast)
                      : ", like against like " + std::to_string(contrast);
}

std::string Forecast(const StartingHeat& start) {
  const int sum = start.Popularity + start.Contrast;
  return "Starting heat " + std::to_string(start.Heat) + "%: mean Over " +
         std::to_string(start.Popularity) + ContrastText(start.Contrast) +
         (sum == start.Heat ? "." : ", held to " + std::to_string(start.Heat) + ".");
}

/// Who is to feud with whom: a list a head. In a singles feud lists 1 and 2 are the sides; in a tag
/// feud lists 1 and 2 are one side, lists 3 and 4 the other.
class frmFeudStart : public GameScreen {
 public:
  explicit frmFeudStart(Game& game, std::vector<int> people = {})
      : GameScreen(game, "frmFeudStart", "Start A Feud"), people_(std::move(people)) {
    BackBefore(cmdstart);
  }

  ui::Page Layout() override {
    std::vector<ui::Box> heads;
    for (int head = 1; head <= kHeads; ++head)
      heads.push_back(ui::Rows({lblheads(head), ui::Grow(lstwres(head))}).Grow());
    // The box goes last: in a small window the lists want the room.
    return PageOf(ui::Group("", {ui::Columns(std::move(heads)).Grow(),
                                 ui::Columns({chksingles, lblwarning, ui::Spacer()})}),
                  &lblheat, {}, &cmdstart);
  }

  void Load() override {
    FillLists();
    chksingles.Checked = people_.size() <= 2;
    for (int head = 1; head <= std::min(kHeads, static_cast<int>(people_.size())); ++head)
      lstwres(head).SelectKey(people_[static_cast<std::size_t>(head - 1)]);
    ShowHeads();
    ShowForecast();
  }

  void Return() override {
    FillLists();
    ShowForecast();
  }

 private:
  static constexpr int kHeads = 4;

  void FillLists() {
    const std::vector<const Worker*> roster = FeudRoster(world());
    for (int head = 1; head <= kHeads; ++head) {
      lstwres(head).EmptyText = "Nobody on the roster is fit to feud.";
      FillShort(lstwres(head), roster);
    }
  }

  void ShowHeads() {
    constexpr const char* kSingles[kHeads] = {"Side one", "Side two", "", ""};
    constexpr const char* kTeams[kHeads] = {"Side one", "With", "Side two", "With"};
    for (int head = 1; head <= kHeads; ++head) {
      lblheads(head).Text = (chksingles.Checked ? kSingles : kTeams)[head - 1];
      lblheads(head).Visible = IsUsed(head);
      lstwres(head).Visible = IsUsed(head);
    }
  }

  bool IsUsed(int head) const { return head <= 2 || !chksingles.Checked; }

  bool IsComplete() {
    for (int head = 1; head <= kHeads; ++head)
      if (IsUsed(head) && lstwres(head).Key() == 0) return false;
    return true;
  }

  FeudSides Chosen() {
    if (chksingles.Checked) return {{lstwres(1).Key(), 0}, {lstwres(2).Key(), 0}};
    return {{lstwres(1).Key(), lstwres(2).Key()}, {lstwres(3).Key(), lstwres(4).Key()}};
  }

  void ShowForecast() {
    const bool complete = IsComplete();
    const std::string why = complete ? WhyNoFeud(world(), Chosen()) : std::string();
    EnableUnless(cmdstart, complete ? "" : "Choose both sides first.");
    lblwarning.Text = why;
    lblwarning.Visible = !why.empty();
    lblheat.Text = !why.empty()         ? ""
                   : complete           ? Forecast(StartingHeatOf(world(), Chosen()))
                   : chksingles.Checked ? "Choose the two who are to feud."
                                        : "Choose two teams of two.";
  }

  void lstwres_Click(int head) {
    if (!chksingles.Checked && head % 2 == 1) SuggestPartner(lstwres(head), lstwres(head + 1));
    ShowForecast();
  }

  /// Who belongs to a Tag Team mostly feuds beside their partner.
  void SuggestPartner(const ui::ListBox& leader, ui::ListBox& partner) {
    for (const int uid : PartnersOf(world(), leader.Key()))
      if (const Worker* worker = world().FindWorker(uid); worker && MayFeud(world(), *worker))
        return partner.SelectKey(uid);
  }

  void chksingles_Click() {
    ShowHeads();
    ShowForecast();
  }

  /// Both sides are willing, or the player insists and may.
  bool IsAgreed(const FeudSides& sides) {
    const auto refusal = RefusalOf(world(), sides);
    if (!refusal) return true;
    desk().Say("Rejection!", refusal->Words);
    if (refusal->Veto.empty()) return desk().Ask("Continue?", "Continue anyway?", ui::Default::No);
    desk().Say("Creative Control", refusal->Veto);
    return false;
  }

  void cmdstart_Click() {
    const FeudSides sides = Chosen();
    if (desk().Objects(WhyNoFeud(world(), sides)) || !IsAgreed(sides)) return;
    if (!desk().Ask("Start?", "Are you sure you wish to start a feud between " +
                                  SideName(world(), sides.One) + " and " +
                                  SideName(world(), sides.Two) + "?"))
      return;
    StartFeud(world(), sides);
    Close();
  }

  std::vector<int> people_;  // chosen at first
  ui::CheckBox chksingles{*this, "chksingles", "Singles feud", true,
                          &frmFeudStart::chksingles_Click};
  ui::Label lblheat{*this, "lblheat"};
  ui::Label lblwarning{*this, "lblwarning"};
  ui::Array<ui::Label> lblheads{"lblside", kHeads, [this](const std::string&, int head) {
                                  return std::make_unique<ui::Label>(
                                      *this, "lblside" + std::to_string(head));
                                }};
  ui::Array<ui::ListBox> lstwres{"lstwres", kHeads, [this](const std::string&, int head) {
                                   return std::make_unique<ui::ListBox>(
                                       *this, "lstwres" + std::to_string(head),
                                       WithFaces(world(), ShortColumns()),
                                       [this, head] { lstwres_Click(head); });
                                 }};
  ui::Button cmdstart{*this, "cmdstart", "Start Feud", &frmFeudStart::cmdstart_Click};
};

}  // namespace

SCREEN(frmFeudStart)

std::unique_ptr<ui::Screen> MakefrmFeudStart(Game& game, std::vector<int> people) {
  return std::make_unique<frmFeudStart>(game, std::move(people));
}

}  // namespace grapplemont
