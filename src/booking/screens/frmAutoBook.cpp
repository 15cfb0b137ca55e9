#include "booking/screens/bookingscreens.h"
#include "booking/sheet.h"
#include "records/segments.h"
#include "report/linememory.h"
#include "show/holdshow.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// What a card may come to if it is the one that is held.
ShowForecast ForecastCard(World& world, const AutoCard& card) {
  const std::vector<Segment> sheet(world.Segments().begin(), world.Segments().end());
  TakeCard(world, card);
  ShowForecast forecast = ForecastShow(world, false, TvTeam(world));
  world.Segments().Rewrite(sheet);
  return forecast;
}

bool IsEnough(World& world, const AutoCard& card) {
  const std::vector<Segment> sheet(world.Segments().begin(), world.Segments().end());
  TakeCard(world, card);
  const bool enough = MayStart(world, false);
  world.Segments().Rewrite(sheet);
  return enough;
}

/// A card for today's television show, proposed whole. What the sheet holds already stays in it;
/// the sheet itself stays as it is until the player takes the card.
class frmAutoBook : public ui::Screen {
 public:
  explicit frmAutoBook(Game& game)
      : Screen(game.Desk(), "frmAutoBook", "Auto Booker"), game_(game) {
    lstcard.EmptyText = "There is no show today to book a card for.";
    lblmissing.Colour = ui::Tone::Amber;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdagain, &cmdsheet, &cmdbook};
    page.Main = &cmdbook;
    page.Cancel = &cmdback;
    page.Body = ui::Columns(
        {ui::Group("", {ui::Grow(lstcard)}).Grow(5),
         ui::Rows({ui::Group("", {ui::Grow(txtrow)}).Grow(1),
                   ui::Group("What it may come to", {lblrating, lblmissing}), ui::Spacer()})
             .Grow(2)});
    return page;
  }

  void Load() override { Propose(); }
  void Return() override { ShowCard(); }

 private:
  World& world() { return game_.World(); }

  void Propose() {
    card_ = AutoBook(world(), false, TermsOf(world(), false).OpenRows);
    ShowCard();
    lstcard.Select(1);
    ShowRow();
  }

  void ShowCard() {
    forecast_ = ForecastCard(world(), card_);
    const Show* show = ShowOfToday(world());
    lblfacts.Text = show ? show->Name.Str() : "No show today";
    lblrating.Text = "Expected rating " + RangeText(forecast_.Rating) + ".";
    FillRows();
    ShowMissing();
    const bool any = lstcard.Count() > 0;
    EnableUnless(cmdbook, IsEnough(world(), card_) ? ""
                          : any ? "The card is too short for the show to be held."
                                : "There is no show today.");
    EnableUnless(cmdsheet, any ? "" : "There is no card to send.");
  }

  void FillRows() {
    std::vector<ui::ListBox::Row> rows;
    for (int record = 1; record <= static_cast<int>(card_.Rows.size()); ++record) {
      const Segment& segment = card_.Rows[static_cast<std::size_t>(record - 1)];
      if (segment.Kind == kEmptySegment) continue;
      const bool atStake = !TitleTip(segment).empty();
      rows.push_back({{ui::Cell(record), DescribeSegment(world(), segment), KindOfRow(segment),
                       ui::Cell(atStake ? "Title" : "", ui::Tone::Gold),
                       ui::Cell(FeudOfRow(world(), segment), ui::Tone::Gold),
                       ui::Cell(0, ForecastOfRow(forecast_, record))},
                      record});
    }
    lstcard.Fill(std::move(rows));
  }

  void ShowMissing() {
    std::string text;
    for (const auto* lines : {&card_.Missing, &forecast_.Warnings})
      for (const std::string& line : *lines) text += (text.empty() ? "" : "\n") + line;
    lblmissing.Text = text;
    lblmissing.Visible = !text.empty();
  }

  void ShowRow() {
    using Style = ui::Report::Style;
    const int record = lstcard.Key();
    if (record == 0) return txtrow.Write("");
    const Segment& segment = card_.Rows[static_cast<std::size_t>(record - 1)];
    std::vector<ui::Report::Paragraph> told{{Style::Strong, DescribeSegment(world(), segment)}};
    for (std::string& line : SummaryOfRow(world(), segment, false))
      told.push_back({Style::Line, std::move(line)});
    txtrow.Write(std::move(told));
  }

  void cmdbook_Click() {
    TakeCard(world(), card_);
    const std::string name = ShowOfToday(world())->Name.Str();
    LineMemory memory;  // told all the same: the report column keeps it
    const int rating = HoldShow(world(), false, TvTeam(world()), 0, &memory);
    desk().Say("Show Rating",
               name + " has been held. Its rating is " + std::to_string(rating) + "%.");
    LeaveShow(world());
    CloseSheet();
    Close();
    game_.AdvanceDay(false);
  }

  void CloseSheet() {
    for (const auto& screen : std::vector(desk().Screens()))
      if (screen->Name() == "frmBooking") desk().Close(*screen);
  }

  void cmdsheet_Click() {
    TakeCard(world(), card_);
    Close();
  }

  void cmdagain_Click() { Propose(); }
  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  AutoCard card_;
  ShowForecast forecast_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstcard{*this,
                      "lstcard",
                      {{"#", K::Number},
                       {"Segment", K::Text, 1},
                       {"Kind", K::Tag},
                       {"Title", K::Tag},
                       {"Feud", K::Tag},
                       {"Forecast", K::Number, 0, "What its rating may come to."}},
                      &frmAutoBook::ShowRow};
  ui::Report txtrow{*this, "txtrow"};
  ui::Label lblrating{*this, "lblrating"};
  ui::Label lblmissing{*this, "lblmissing"};
  ui::Button cmdback{*this, "cmdback", "Back", &frmAutoBook::cmdback_Click};
  ui::Button cmdagain{*this, "cmdagain", "Another Card", &frmAutoBook::cmdagain_Click};
  ui::Button cmdsheet{*this, "cmdsheet", "Send To The Sheet", &frmAutoBook::cmdsheet_Click};
  ui::Button cmdbook{*this, "cmdbook", "Run This Show", &frmAutoBook::cmdbook_Click};
};

}  // namespace

SCREEN(frmAutoBook)

}  // namespace grapplemont
