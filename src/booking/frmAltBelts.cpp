#include "booking/bookingscreens.h"
#include "records/dates.h"
#include "records/modWresCheck.h"
#include "storylines/screenpeople.h"

namespace grapplemont {

namespace {

/// A reign that has lasted since before the game has no day.
constexpr const char* kFromTheStart = "From the start";

std::string KindOf(const Title& title) {
  std::string kind = title.Singles ? "Singles" : "Tag";
  if (title.Woman) kind = "Women's " + kind;
  if (title.Lightweight) kind += ", light";
  return kind;
}

ui::Cell DateCell(Day day, const char* unknown) {
  if (day <= kNoTitleDate) return {unknown, ui::Tone::Muted};
  return {static_cast<double>((day - kDayZero).count()), PlainDate(day)};
}

/// The player's Titles to look up while a show is being booked.
class frmAltBelts : public ui::Screen {
 public:
  explicit frmAltBelts(Game& game) : Screen(game.Desk(), "frmAltBelts", "Titles"), game_(game) {
    lsttitles.EmptyText = "Your promotion has no Title.";
    lsthistory.EmptyText = "Choose a Title to see who has held it.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Columns({ui::Group("", {ui::Grow(lsttitles)}).Grow(4),
                             ui::Group("Who has held it", {ui::Grow(lsthistory)}).Grow(3)});
    return page;
  }

  void Load() override {
    ShowTitles();
    lsttitles.Select(lsttitles.Count() > 0 ? 1 : 0);
    ShowHistory();
  }
  void Return() override {
    ShowTitles();
    ShowHistory();
  }

 private:
  World& world() { return game_.World(); }

  void ShowTitles() {
    std::vector<ui::ListBox::Row> rows;
    int vacant = 0;
    for (const grapplemont::Title& title : world().Titles()) {
      if (title.Owner != world().PlayerUid()) continue;
      if (title.Holder == 0) ++vacant;
      rows.push_back(
          {{title.Name.View(), ui::Cell(KindOf(title)), HolderCell(title),
            title.Holder == 0 ? ui::Cell("") : DateCell(title.Reigns[0].Won, kFromTheStart),
            ui::Cell(title.Image), ui::Cell(title.Suspended ? "Suspended" : "", ui::Tone::Red)},
           world().Titles().NumberOf(title)});
    }
    lblfacts.Text = std::to_string(rows.size()) + " Titles, " + std::to_string(vacant) + " vacant";
    lsttitles.Fill(std::move(rows));
  }

  ui::Cell HolderCell(const grapplemont::Title& title) {
    if (title.Holder == 0) return {"Vacant", ui::Tone::Muted};
    return title.Partner == 0 ? WorkerName(world(), title.Holder)
                              : PairName(world(), title.Holder, title.Partner);
  }

  void ShowHistory() {
    std::vector<ui::ListBox::Row> rows;
    if (const int number = lsttitles.Key(); number != 0)
      for (const Reign& reign : world().Titles()[number].Reigns)
        if (!(reign.Holder == "None"))
          rows.push_back(
              {{reign.Holder.View(), DateCell(reign.Won, kFromTheStart), DateCell(reign.Lost, "")},
               static_cast<int>(rows.size()) + 1});
    lsthistory.Fill(std::move(rows));
  }

  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lsttitles{*this,
                        "lsttitles",
                        {{"Title"},
                         {"Kind", K::Tag},
                         {"Holder"},
                         {"Since", K::Date},
                         {"Image", K::Percent, 0, "How much the fans make of it."},
                         {"", K::Tag}},
                        &frmAltBelts::ShowHistory};
  ui::ListBox lsthistory{*this, "lsthistory", {{"Holder"}, {"Won", K::Date}, {"Lost", K::Date}}};
  ui::Button cmdback{*this, "cmdback", "Back", &frmAltBelts::cmdback_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmAltBelts(Game& game) {
  return std::make_unique<frmAltBelts>(game);
}

}  // namespace grapplemont
