#include "info/fans.h"
#include "info/rumours.h"
#include "info/screens/infotables.h"
#include "info/worldnews.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;
using Paragraphs = std::vector<ui::Report::Paragraph>;

// The sites. All of it is free, and some of it is worth that.
constexpr const char* kNewsSite = "The Daily Turnbuckle";
constexpr const char* kRankSite = "Rankwell's Register";
constexpr const char* kRumourSite = "Behind The Curtain";
constexpr const char* kFanSite = "Cheap Seats";

/// What the world says about itself, a tab for each site.
class frmInternet : public GameScreen {
 public:
  explicit frmInternet(Game& game) : GameScreen(game, "frmInternet", "Internet") {
    lstnews.EmptyText = "Nothing has happened since the first of last month.";
    lstrank.EmptyText = "Nobody can be ranked here.";
    for (const Ranking& ranking : Rankings()) cmbrank.Add(ranking.Title, cmbrank.Count() + 1);
    cmbrank.Select(1);
    BackBefore(cmdcards);
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Tabs({ui::Group(kNewsSite, {chkshows, ui::Grow(lstnews)}),
                  ui::Group(kRankSite, {ui::Field("Ranking", cmbrank), ui::Grow(lstrank)}),
                  ui::Group(kRumourSite, {ui::Grow(txtrumours)}),
                  ui::Group(kFanSite, {ui::Grow(txtfans)})}),
        &lblfacts, {&cmdcards});
  }

  void Return() override {
    lblfacts.Text = "As of " + LongDate(world().Today()) + ". Pages load slowly, but they load.";
    ShowNews();
    ShowRanking();
    ShowRumours();
    ShowFans();
  }

 private:
  void ShowNews() {
    std::vector<NewsItem> news = WorldNews(world());
    std::erase_if(news, [&](const NewsItem& item) {
      return !chkshows.Checked && (item.What == "Show" || item.What == "Event");
    });
    lstnews.Fill(NumberedRows(news_, news), false);
  }

  /// The page of whom a row's story names first, else of the promotion that it is about.
  void OpenChosen(const ui::ListBox& list, std::size_t story, std::size_t house) {
    if (list.Selected() == 0) return;
    const auto& cells = list.Rows()[static_cast<std::size_t>(list.Selected() - 1)].Cells;
    if (const auto links = desk().LinksIn(cells[story].Text); !links.empty())
      return links.front().Open();
    for (const Promotion& promotion : world().Promotions())
      if (promotion.Initials == cells[house].Text) return game_.OpenPromotion(promotion.Uid);
  }

  bool IsOurs(const std::string& house) { return house == world().Player().Initials.View(); }

  ui::Tone ToneOf(const NewsItem& item) {
    if (IsOurs(item.House)) return ui::Tone::Gold;
    if (item.What == "Money" || item.What == "Injury") return ui::Tone::Red;
    return item.What == "Title" ? ui::Tone::Blue : ui::Tone::Plain;
  }

  void ShowRanking() {
    const int key = cmbrank.Key();
    if (key < 1) return;
    const Ranking& ranking = Rankings()[static_cast<std::size_t>(key - 1)];
    const CellColumns<RankRow> columns = TableOf(ranking);
    lstrank.SetColumns(HeadingsOf(columns));
    lstrank.Fill(NumberedRows(columns, RowsOf(world(), ranking)), false);
  }

  CellColumns<RankRow> TableOf(const Ranking& ranking) {
    return {{{"Place", K::Number, 1}, [](const RankRow& row) { return row.Place; }},
            {{ranking.What, K::Text, 5},
             [this](const RankRow& row) {
               return ui::Cell(row.Name, IsOurs(row.House) ? ui::Tone::Gold : ui::Tone::Plain);
             }},
            {{"Promotion", K::Text, 2}, [](const RankRow& row) { return row.House; }},
            {{ranking.First, K::Number, 2},
             [](const RankRow& row) { return ui::Cell(row.First.Number, row.First.Text); }},
            {{ranking.Second, K::Number, 3},
             [](const RankRow& row) { return ui::Cell(row.Second.Number, row.Second.Text); }}};
  }

  void ShowRumours() {
    Paragraphs words = {{Style::Heading, "Heard in " + MonthYear(world().Today())},
                        {Style::Muted, "We print what we hear. What we hear, we hear twice."}};
    const std::vector<Rumour> rumours = RumoursOf(world());
    for (const Rumour& rumour : rumours) words.push_back({Style::Body, rumour.Words});
    if (rumours.empty()) words.push_back({Style::Body, "Nobody whispers. It is unnerving."});
    txtrumours.Write(std::move(words));
  }

  static std::string HeadingOf(const ShowSeen& show) {
    return show.Show + ", " + show.House + ", " + PlainDate(show.On);
  }

  static std::string FiguresOf(const ShowSeen& show) {
    if (show.CalledOff) return "Called off.";
    std::string text = show.IsPlayers ? "Rated " + std::to_string(show.Rating) + "%. " : "";
    if (show.Viewers > 0)
      text += (show.IsEvent ? "A buy rate of " : "A television rating of ") +
              RatingText(show.Viewers) + ". ";
    return text + Counted(show.People, "person", "people") + " in the hall.";
  }

  void ShowFans() {
    Paragraphs words;
    for (const FanThread& thread : FanPage(world())) {
      words.push_back({Style::Heading, HeadingOf(thread.About)});
      words.push_back({Style::Muted, FiguresOf(thread.About)});
      for (const FanPost& post : thread.Posts) {
        words.push_back({Style::Strong, post.Handle});
        words.push_back({Style::Body, post.Words});
      }
    }
    if (words.empty())
      words.push_back(
          {Style::Muted, "No show has been held of late. The fans discuss each other's spelling."});
    txtfans.Write(std::move(words));
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::CheckBox chkshows{*this, "chkshows", "Shows that were held, too", false,
                        &frmInternet::ShowNews};
  const CellColumns<NewsItem> news_ = {
      {{"Date", K::Date, 2},
       [](const NewsItem& item) { return ShortDayCell(item.On, ui::Tone::Muted); }},
      {{"What", K::Tag, 2},
       [this](const NewsItem& item) { return ui::Cell(item.What, ToneOf(item)); }},
      {{"Who", K::Text, 2}, [](const NewsItem& item) { return item.House; }},
      {{"Story", K::Text, 14}, [](const NewsItem& item) { return item.Words; }}};
  ui::ListBox lstnews{*this, "lstnews", HeadingsOf(news_), ui::Handler{},
                      [this] { OpenChosen(lstnews, 3, 2); }};
  ui::ComboBox cmbrank{*this, "cmbrank", &frmInternet::ShowRanking};
  ui::ListBox lstrank{*this, "lstrank", {{"Place", K::Number}}, ui::Handler{}, [this] {
                        OpenChosen(lstrank, 1, 2);
                      }};
  ui::Report txtrumours{*this, "txtrumours"};
  ui::Report txtfans{*this, "txtfans"};
  ui::Button cmdcards{*this, "cmdcards", "Rivals' Shows", [this] { desk().Open("frmCards"); }};
};

}  // namespace

SCREEN(frmInternet)

}  // namespace grapplemont
