#include <algorithm>

#include "records/fields/wording.h"
#include "records/store/playedslot.h"
#include "records/world.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"
#include "ui/goingback.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

constexpr std::size_t kLongestName = 40;

std::string_view KindOf(const Moment& moment) {
  switch (moment.Is) {
    case MomentKind::Named:
      return "Named";
    case MomentKind::Left:
      return "A road left";
    default:
      return "Morning";
  }
}

bool IsNamed(const PastMoment& past) {
  return past.Of.Is == MomentKind::Named;
}

/// What the game can go back to.
class frmMornings : public GameScreen {
 public:
  explicit frmMornings(Game& game) : GameScreen(game, "frmMornings", "Back In Time") {
    lstmornings.EmptyText = "Nothing yet: the first morning is kept with the first click.";
    lblkept.Text =
        "Kept: at least the last 7 mornings on which you stopped, the first of each of 12 "
        "months, " +
        std::to_string(Mornings::kNamed) + " moments you name and " +
        std::to_string(Mornings::kLeft) +
        " roads you left, the first of these for good. The oldest go first once 4 MB are full.";
    lblkept.Colour = ui::Tone::Muted;
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Grow(lstmornings), lblkept}), &lblfacts,
                  {&cmdundo, &cmdredo, &cmdname, &cmdforget}, &cmdgo);
  }

  void Return() override {
    past_ = PastMoments(game_);
    const CellColumns<PastMoment> columns = Table();
    lstmornings.SetColumns(HeadingsOf(columns));
    FillPlaces(lstmornings, columns, past_);
    if (lstmornings.Selected() == 0 && !past_.empty()) lstmornings.Select(1);
    const std::string why = WhyNoWayBack(game_);
    lblfacts.Text = why.empty() ? "Choose where to go back to. What you leave is kept." : why;
    lblkept.Visible = why.empty();
    if (!why.empty()) lstmornings.EmptyText = "Nothing is kept.";
    EnableUnless(cmdname, why);
    ShowClick(cmdundo, "Undo", desk().Undo, "Nothing was done today that can be taken back.");
    ShowClick(cmdredo, "Redo", desk().Redo, "Nothing was taken back.");
    cmdforget.Visible = std::ranges::any_of(past_, IsNamed);
    lstmornings_Click();
  }

 private:
  /// Names and roads have their columns once there are any.
  CellColumns<PastMoment> Table() {
    CellColumns<PastMoment> columns = {
        {{"Day", K::Date}, [](const PastMoment& past) { return DayCell(past.Of.On); }},
        {{.Title = "What has happened since", .Width = 4},
         [this](const PastMoment& past) { return SinceText(game_, past); }},
        {{"Image", K::Percent}, [](const PastMoment& past) { return ui::Cell(past.Image); }},
        {{"Kind", K::Tag}, [](const PastMoment& past) { return std::string(KindOf(past.Of)); }}};
    if (std::ranges::any_of(past_, IsNamed))
      columns.push_back({{"Name"}, [](const PastMoment& past) {
                           return IsNamed(past) ? past.Of.Name : std::string();
                         }});
    if (std::ranges::any_of(past_, &PastMoment::OnOtherRoad))
      columns.push_back(
          {{"Road", K::Tag, 0, "Another does not lead to today: you left it for another day."},
           [](const PastMoment& past) {
             return std::string(past.OnOtherRoad ? "Another road" : "This road");
           }});
    return columns;
  }

  static void ShowClick(ui::Button& button, const std::string& caption,
                        const ui::Desk::TakingBack& back, const char* none) {
    const std::string what = back.What ? back.What() : std::string();
    button.Text = what.empty() ? caption : caption + ": " + what;
    EnableUnless(button, what.empty() ? none : "");
  }

  const PastMoment* Chosen() const {
    const auto place = static_cast<std::size_t>(lstmornings.Key());
    return place >= 1 && place <= past_.size() ? &past_[place - 1] : nullptr;
  }

  void lstmornings_Click() {
    const PastMoment* chosen = Chosen();
    const bool isNamed = chosen && IsNamed(*chosen);
    EnableUnless(cmdgo, chosen ? "" : "Choose a morning first.");
    EnableUnless(cmdforget, isNamed ? "" : "Choose a moment that you have named first.");
  }

  void cmdgo_Click() {
    if (const PastMoment* chosen = Chosen()) AskAndGoBack(game_, PastMoment(*chosen));
  }

  void cmdname_Click() {
    std::string name(detail::Trimmed(
        desk().Prompt("Name This Moment", "What is it to be called?", "before the Event")));
    if (name.empty() || desk().Objects(WhyNotName(name)) || !MayForget()) return;
    game_.Commit();
    game_.OpenedSlot().Name(name);
    Return();
  }

  void cmdforget_Click() {
    const PastMoment* chosen = Chosen();
    if (!chosen || !desk().Ask("Forget The Name",
                               MomentText(chosen->Of) +
                                   " is kept no longer then, unless it is a morning that is kept "
                                   "anyway. Forget it?",
                               ui::Default::No))
      return;
    game_.OpenedSlot().ForgetName(chosen->Number);
    Return();
  }

  std::string WhyNotName(const std::string& name) {
    if (name.size() > kLongestName)
      return "A name has " + std::to_string(kLongestName) + " letters at most.";
    const bool isTaken = std::ranges::any_of(past_, [&](const PastMoment& past) {
      return past.Of.Is == MomentKind::Named && past.Of.On == world().Today() &&
             past.Of.Name == name;
    });
    return isTaken ? "Another moment of this day is called so." : "";
  }

  /// Asks where the name of another goes for this one.
  bool MayForget() {
    const Mornings& moments = game_.OpenedSlot().Moments();
    const auto goes = moments.WouldGo(MomentKind::Named);
    return !goes || desk().Ask("Name This Moment",
                               std::to_string(Mornings::kNamed) + " named moments are kept: \"" +
                                   MomentText(moments[*goes]) +
                                   "\" is forgotten for it. Name this one all the same?",
                               ui::Default::No);
  }

  std::vector<PastMoment> past_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstmornings{*this,
                          "lstmornings",
                          {{"Day", K::Date}},
                          &frmMornings::lstmornings_Click,
                          &frmMornings::cmdgo_Click};
  ui::Label lblkept{*this, "lblkept"};
  ui::Button cmdundo{*this, "cmdundo", "Undo", [this] { desk().Take(desk().Undo); }};
  ui::Button cmdredo{*this, "cmdredo", "Redo", [this] { desk().Take(desk().Redo); }};
  ui::Button cmdname{*this, "cmdname", "Name This Moment", &frmMornings::cmdname_Click};
  ui::Button cmdforget{*this, "cmdforget", "Forget The Name", &frmMornings::cmdforget_Click};
  ui::Button cmdgo{*this, "cmdgo", "Go There", &frmMornings::cmdgo_Click};
};

}  // namespace

SCREEN(frmMornings)

}  // namespace grapplemont
