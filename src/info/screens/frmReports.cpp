#include "info/screens/chroniclescreens.h"
#include "records/fields/fields.h"
#include "report/report.h"
#include "show/reportcolumn.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

/// The last shows, to be read again in the words in which they were told.
class frmReports : public GameScreen {
 public:
  explicit frmReports(Game& game, Day on = kDayZero, int promotionUid = 0)
      : GameScreen(game, "frmReports", "Report Column"), on_(on), promotion_(promotionUid) {
    lstreports.EmptyText = "Whatever is told of your shows can be read here again.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("The last shows", {ui::Grow(lstreports)}).Grow(2),
                               ui::Group("", {ui::Grow(txtreport)}).Grow(3)}),
                  &lblfacts);
  }

  void Load() override {
    ShowList();
    Select();
    ShowReport();
  }
  void Return() override {
    ShowList();
    if (lstreports.Selected() == 0) lstreports.Select(lstreports.Count() > 0 ? 1 : 0);
    ShowReport();
  }

 private:
  void ShowList() {
    shows_ = ShowsInTheColumn(world());
    std::vector<ui::ListBox::Row> rows;
    for (const KeptShow& show : shows_)
      rows.push_back(
          {{ui::Cell(static_cast<double>((show.On - kDayZero).count()), PlainDate(show.On)),
            show.Name, VoiceName(show.Voice)},
           static_cast<int>(rows.size()) + 1});
    lstreports.Fill(std::move(rows));
    lblfacts.Text = shows_.empty() ? "Nothing has been told yet."
                                   : "The last " + std::to_string(kKeptShows) +
                                         " shows are kept as they were told.";
  }

  /// The show that was asked for, else the latest.
  void Select() {
    lstreports.Select(shows_.empty() ? 0 : 1);
    for (std::size_t i = 0; i < shows_.size(); ++i)
      if (shows_[i].On == on_ && shows_[i].Promotion == promotion_)
        lstreports.Select(static_cast<int>(i) + 1);
  }

  static ui::Report::Style StyleOf(int kind) {
    using Style = ui::Report::Style;
    switch (kind) {
      case kWhoMet:
        return Style::Strong;
      case kDetails:
      case kFigures:
        return Style::Muted;
      case kWinner:
        return Style::Line;
      default:
        return Style::Body;
    }
  }

  void ShowReport() {
    using Style = ui::Report::Style;
    const int key = lstreports.Key();
    if (key < 1 || key > static_cast<int>(shows_.size())) return txtreport.Write("");
    const KeptShow& show = shows_[static_cast<std::size_t>(key - 1)];
    std::vector<ui::Report::Paragraph> words = {
        {Style::Heading, show.Name},
        {Style::Muted,
         LongDate(show.On) + ". Reported by " + std::string(VoiceName(show.Voice)) + "."}};
    for (const ReportText& text : ReportOf(world(), show.On, show.Promotion))
      AddText(words, StyleOf(text.Kind), text.Words);
    txtreport.Write(std::move(words));
  }

  static void AddText(std::vector<ui::Report::Paragraph>& words, ui::Report::Style style,
                      std::string_view text) {
    while (!text.empty()) {
      const auto end = text.find('\n');
      if (const auto line = text.substr(0, end); !line.empty())
        words.push_back({style, std::string(line)});
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
  }

  using K = ui::ColumnKind;
  Day on_;
  int promotion_;
  std::vector<KeptShow> shows_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstreports{*this,
                         "lstreports",
                         {{"Date", K::Date}, {"Show", K::Text, 3}, {"Told by", K::Text, 2}},
                         &frmReports::ShowReport};
  ui::Report txtreport{*this, "txtreport"};
};

}  // namespace

SCREEN(frmReports)

std::unique_ptr<ui::Screen> MakefrmReports(Game& game, Day on, int promotionUid) {
  return std::make_unique<frmReports>(game, on, promotionUid);
}

}  // namespace grapplemont
