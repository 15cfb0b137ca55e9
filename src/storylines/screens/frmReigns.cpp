#include <algorithm>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "storylines/lineages.h"
#include "storylines/screens/storyscreens.h"

namespace grapplemont {

namespace {

/// Every reign of a Title, of those that stand and those of the past, and what they add up to.
class frmReigns : public ui::Screen {
 public:
  explicit frmReigns(Game& game, Lineage first = {})
      : Screen(game.Desk(), "frmReigns", "Reigns"), game_(game), first_(std::move(first)) {
    lstreigns.EmptyText = "Nothing is known of its past.";
    lsttotals.EmptyText = "Nobody has held it yet.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body =
        ui::Columns({ui::Group("", {ui::Field("Title", cmbtitle), ui::Grow(lstreigns)}).Grow(5),
                     ui::Group("Champions", {ui::Grow(lsttotals)}).Grow(3)});
    return page;
  }

  void Load() override {
    if (!HasEnded(game_.World().Game())) UpdateReigns(game_.World());
    lineages_ = LineagesOf(world());
    for (const Lineage& lineage : lineages_)
      cmbtitle.Add(
          lineage.Title + " (" + lineage.Initials + ")" + (lineage.Stands ? "" : ", of the past"),
          cmbtitle.Count() + 1);
    cmbtitle.Select(cmbtitle.Count() > 0 ? 1 : 0);
    Select();
    ShowReigns();
  }
  void Return() override { ShowReigns(); }

 private:
  const World& world() { return game_.World(); }

  /// The Title that was asked for, else the player's first.
  void Select() {
    const auto asked = std::find(lineages_.begin(), lineages_.end(), first_);
    const auto own = std::find_if(lineages_.begin(), lineages_.end(), [&](const Lineage& lineage) {
      return lineage.Owner == world().PlayerUid();
    });
    const auto chosen = asked != lineages_.end() ? asked : own;
    if (chosen != lineages_.end())
      cmbtitle.Select(static_cast<int>(chosen - lineages_.begin()) + 1);
  }

  static ui::Cell DateCell(Day day, const char* unknown) {
    if (day <= kNoTitleDate) return {0.0, unknown, ui::Tone::Muted};
    return {static_cast<double>((day - kDayZero).count()), PlainDate(day)};
  }

  static ui::Cell CountCell(int number) {
    return number < 0 ? ui::Cell(-1.0, std::string()) : ui::Cell(number);
  }

  static ui::Cell EndCell(const TitleReign& reign) {
    constexpr const char* kEnds[] = {"Lasts", "Lost", "Vacated", "Dissolved"};
    const int end = reign.End;
    if (end < kReignLasts || end > kReignDissolved) return {""};
    const bool says = end == kReignLasts || end == kReignDissolved || !IsVacancy(reign);
    return {says ? kEnds[end] : "", end == kReignLasts ? ui::Tone::Gold : ui::Tone::Plain};
  }

  void ShowReigns() {
    std::vector<ui::ListBox::Row> reigns, totals;
    if (cmbtitle.Selected() != 0) {
      const Lineage& lineage = lineages_[static_cast<std::size_t>(cmbtitle.Selected() - 1)];
      for (const TitleReign* reign : ReignsOf(world(), lineage)) reigns.push_back(RowOf(*reign));
      for (const ChampionTotal& total : TotalsOf(world(), lineage))
        totals.push_back(
            {{total.Name, ui::Cell(total.Reigns), ui::Cell(total.Days), CountCell(total.Defences)},
             static_cast<int>(totals.size()) + 1});
    }
    lblfacts.Text = cmbtitle.Count() == 0 ? "There is no Title in the world."
                                          : Counted(std::ssize(totals), "champion") + ".";
    lstreigns.Fill(std::move(reigns));
    lsttotals.Fill(std::move(totals));
  }

  ui::ListBox::Row RowOf(const TitleReign& reign) {
    const bool vacant = IsVacancy(reign);
    return {
        {ui::Cell(reign.Holder.View(), vacant ? ui::Tone::Muted : ui::Tone::Plain),
         DateCell(reign.From, "Before the game"),
         reign.End == kReignLasts ? ui::Cell(0.0, std::string()) : DateCell(reign.Until, "Unknown"),
         CountCell(DaysOf(reign, world().Today())), CountCell(vacant ? -1 : reign.Defences),
         EndCell(reign)},
        world().Reigns().NumberOf(reign)};
  }

  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  Lineage first_;
  std::vector<Lineage> lineages_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbtitle{*this, "cmbtitle", &frmReigns::ShowReigns};
  ui::ListBox lstreigns{*this,
                        "lstreigns",
                        {{"Holder", K::Text, 5},
                         {"From", K::Date, 3},
                         {"Until", K::Date, 3},
                         {"Days", K::Number},
                         {"Defences", K::Number, 0, "On your shows; of others nobody counts them."},
                         {"End", K::Tag}}};
  ui::ListBox lsttotals{*this,
                        "lsttotals",
                        {{"Champion", K::Text, 4},
                         {"Reigns", K::Number},
                         {"Days", K::Number, 0, "Of the reigns whose length is known."},
                         {"Defences", K::Number}}};
  ui::Button cmdback{*this, "cmdback", "Back", &frmReigns::cmdback_Click};
};

}  // namespace

SCREEN(frmReigns)

std::unique_ptr<ui::Screen> MakefrmReigns(Game& game, std::string_view title, int owner) {
  return std::make_unique<frmReigns>(game, Lineage{std::string(title), owner, {}, false});
}

}  // namespace grapplemont
