#include <algorithm>

#include "booking/screens/bookingscreens.h"
#include "booking/screens/screensheet.h"
#include "booking/sheet.h"
#include "booking/showstart.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

std::string DraftTitle(const ComingShow& show) {
  return "Draft For " + show.Owner.Show;
}

/// The sheet of a show to come. What is booked on it is kept until the day of the show, and nobody
/// holds anything against the player before that.
class frmDraft : public SheetScreen {
 public:
  frmDraft(Game& game, const ComingShow& show)
      : SheetScreen(game, "frmDraft", show.Owner.IsEvent), show_(show) {
    cmdcancel.Visible = false;
    cmddoshow.Text = "Keep The Draft";
  }

  void Load() override {
    if (game_.ComesUpAgain) return ShowOpened();
    BeginSheet();
    const KeptCard kept = FindCard(world(), show_.Owner, show_.On);
    if (!kept.Rows.empty()) TellLaid(LayCard(world(), kept.Rows, isEvent_, Terms().OpenRows));
    ShowOpened();
  }

 protected:
  /// Who would sit there: nobody has been named yet for an Event.
  CommentaryTeam Team() override {
    if (isEvent_) return BestTeam(world());
    for (const Show& show : world().Shows())
      if (show.Owner == world().PlayerUid() && show.Name == std::string_view(show_.Owner.Show))
        return {show.Announcer, show.Colour, show.ColourIsWorker};
    return {};
  }
  std::function<void(World&)> Beginning() override { return {}; }
  bool IsDraft() const override { return true; }
  std::string Heading() override { return DraftTitle(show_); }
  std::string Called() override { return show_.Owner.Show; }
  std::string Facts() override {
    return LongDate(show_.On) + ", " + std::to_string(Terms().OpenRows) + " rows";
  }
  std::string TopRow() override {
    return isEvent_ ? "Pre-Show Match Description" : "Opening Credits";
  }
  SheetTerms Terms() override { return isEvent_ ? kEventTerms : TermsOfSlot(show_.Slot); }

  void cmddoshow_Click() override {
    KeepCard(world(), show_.Owner, CardOf(world()), show_.On);
    EmptySheet(world(), isEvent_);
    Close();
  }

  /// What was kept before stays as it was.
  void cmdback_Click() override {
    if (IsTouched() &&
        !desk().Ask("Confirm", "Leave without keeping what has been changed in this draft?",
                    ui::Default::No))
      return;
    EmptySheet(world(), isEvent_);
    Close();
  }

 private:
  void TellLaid(const std::vector<std::string>& dropped) {
    if (!dropped.empty())
      desk().Say("Draft", "Not everything holds any more:\n" + Joined(dropped, "\n"));
  }

  ComingShow show_;
};

/// Shows to come, and how far each is drafted.
class frmDrafts : public GameScreen {
 public:
  explicit frmDrafts(Game& game) : GameScreen(game, "frmDrafts", "Drafts") {
    BackBefore(cmddraft);
    lstshows.EmptyText = "There is no television show or Event of ours to come.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Grow(lstshows)}), nullptr, {}, &cmddraft);
  }

  void Return() override {
    shows_ = ComingShows(world());
    FillPlaces(lstshows, Table(), shows_);
    if (lstshows.Selected() == 0 && lstshows.Count() > 0) lstshows.Select(1);
    EnableUnless(cmddraft, lstshows.Count() == 0 ? lstshows.EmptyText
                           : IsSheetInUse()      ? "Today's show comes first: its sheet is open."
                                                 : "");
  }

 private:
  /// The sheet of today's show lies on the desk, or the show is under way.
  bool IsSheetInUse() {
    const auto& screens = desk().Screens();
    return ShowUnderWay(world()) || std::ranges::any_of(screens, [](const auto& screen) {
             return screen->Name() == "frmBooking" || screen->Name() == "frmPPVBooking";
           });
  }

  static CellColumns<ComingShow> Table() {
    using K = ui::ColumnKind;
    return {{{"Show"}, [](const ComingShow& show) { return ui::Cell(show.Owner.Show); }},
            {{"Date", K::Date}, [](const ComingShow& show) { return DayCell(show.On); }},
            {{"Kind", K::Tag},
             [](const ComingShow& show) {
               return ui::Cell(show.Owner.IsEvent ? "Event" : "Television");
             }},
            {{"Drafted", K::Text, 0, "Rows of the sheet."}, [](const ComingShow& show) {
               const SheetTerms terms = show.Owner.IsEvent ? kEventTerms : TermsOfSlot(show.Slot);
               return ui::Cell(show.Drafted, std::to_string(show.Drafted) + " of " +
                                                 std::to_string(terms.OpenRows) + " rows");
             }}};
  }

  void cmddraft_Click() {
    const auto at = static_cast<std::size_t>(lstshows.Key() - 1);
    const ComingShow& show = shows_.at(at);
    // By its title it can come up again.
    desk().Register("frmDraft " + DraftTitle(show),
                    [&game = game_, show] { return MakefrmDraft(game, show); });
    desk().Open(MakefrmDraft(game_, show));
  }

  std::vector<ComingShow> shows_;
  ui::ListBox lstshows{*this, "lstshows", HeadingsOf(Table()), {}, cmddraft};
  ui::Button cmddraft{*this, "cmddraft", "Draft This Show", &frmDrafts::cmddraft_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmDraft(Game& game, const ComingShow& show) {
  return std::make_unique<frmDraft>(game, show);
}

SCREEN(frmDrafts)

}  // namespace grapplemont
