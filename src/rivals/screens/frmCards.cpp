#include <algorithm>

#include "records/fields/wording.h"
#include "records/modVar.h"
#include "rivals/promotionfacts.h"
#include "rivals/rivalresults.h"
#include "rivals/rivals.h"
#include "rivals/screens/rivalscreens.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;

/// The last shows of another promotion, and how each match of one came out.
class frmCards : public GameScreen {
 public:
  explicit frmCards(Game& game, int promotionUid = 0)
      : GameScreen(game, "frmCards", "Last Shows"), first_(promotionUid) {
    lstshows.EmptyText = "They have held no show since the game began, or none that is remembered.";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns({ui::Group("", {ui::Field("Promotion", cmbfeds), ui::Grow(lstshows)}).Grow(),
                     ui::Group("The card", {ui::Grow(txtcard)}).Grow()}),
        &lblfacts);
  }

  void Return() override {
    const int shown = cmbfeds.Key() > 0 ? cmbfeds.Key() : first_;
    cmbfeds.Clear();
    for (const Promotion* promotion : PromotionsByStanding(world()))
      if (IsRival(world(), *promotion)) {
        cmbfeds.Add(promotion->Name.Str(), promotion->Uid);
        if (promotion->Uid == shown || cmbfeds.Count() == 1) cmbfeds.Select(cmbfeds.Count());
      }
    cmbfeds_Change();
  }

 private:
  void cmbfeds_Change() {
    shows_ = RivalShowsOf(world(), cmbfeds.Key());
    FillPlaces(lstshows, table_, shows_);
    if (lstshows.Count() > 0) lstshows.Select(1);
    lblfacts.Text = Counted(static_cast<int>(shows_.size()), "show") + " of the last weeks.";
    lstshows_Click();
  }

  /// The mean of the matches.
  static int RatingOf(const RivalShow& show) {
    int sum = 0;
    for (const CardMatch* match : show.Matches) sum += match->Rating;
    return sum / static_cast<int>(show.Matches.size());
  }

  static std::string FiguresOf(const RivalShow& show) {
    std::string text = std::string(UnseenShowText(show.Is)) + ", " + PlainDate(show.On) + ". ";
    if (show.Viewers > 0)
      text += (show.Is == kUnseenEvent ? "A buy rate of " : "A television rating of ") +
              RatingText(show.Viewers) + ". ";
    if (show.People > 0) text += Counted(show.People, "person", "people") + " in the hall. ";
    return text + "The matches were worth " + std::to_string(RatingOf(show)) + "%.";
  }

  void lstshows_Click() {
    std::vector<ui::Report::Paragraph> words;
    const int key = lstshows.Selected() == 0 ? 0 : lstshows.Key();
    if (key < 1) return txtcard.Write(std::move(words));
    const RivalShow& show = shows_.at(static_cast<std::size_t>(key - 1));
    words = {{Style::Heading, show.Name}, {Style::Muted, FiguresOf(show)}};
    for (auto match = show.Matches.rbegin(); match != show.Matches.rend(); ++match) {
      const bool isMain = match == show.Matches.rbegin();
      words.push_back(
          {isMain ? Style::Strong : Style::Line,
           MatchLine(world(), **match) + ", " + std::to_string((*match)->Rating) + "%."});
      if (!isMain) continue;
      TellMainEvent(words, **match);
      if (show.Matches.size() > 1) words.push_back({Style::Strong, "The rest of the card"});
    }
    txtcard.Write(std::move(words));
  }

  void TellMainEvent(std::vector<ui::Report::Paragraph>& words, const CardMatch& match) {
    const std::string told = TellMatch(world(), match);
    for (std::size_t from = 0; from < told.size();) {
      const std::size_t end = std::min(told.find('\n', from), told.size());
      if (end > from) words.push_back({Style::Body, told.substr(from, end - from)});
      from = end + 1;
    }
  }

  using K = ui::ColumnKind;
  int first_;
  std::vector<RivalShow> shows_;
  const CellColumns<RivalShow> table_ = {
      {{"Date", K::Date, 3}, [](const RivalShow& show) { return DayCell(show.On); }},
      {{"Show", K::Text, 6}, [](const RivalShow& show) { return ui::Cell(show.Name); }},
      {{"Kind", K::Tag, 4},
       [](const RivalShow& show) { return ui::Cell(UnseenShowText(show.Is)); }},
      {{"Draw", K::Number, 2, "What the roster was worth that day. Nobody measures house shows."},
       [](const RivalShow& show) {
         return show.Draw < 0 ? ui::Cell(-1.0, "") : ui::Cell(show.Draw);
       }},
      {{"Matches", K::Percent, 3, "What the matches were worth, on average."},
       [](const RivalShow& show) { return ui::Cell(RatingOf(show)); }}};
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbfeds{*this, "cmbfeds", &frmCards::cmbfeds_Change};
  ui::ListBox lstshows{*this, "lstshows", HeadingsOf(table_), &frmCards::lstshows_Click};
  ui::Report txtcard{*this, "txtcard"};
};

}  // namespace

SCREEN(frmCards)

std::unique_ptr<ui::Screen> MakefrmCards(Game& game, int promotionUid) {
  return std::make_unique<frmCards>(game, promotionUid);
}

}  // namespace grapplemont
