#include <algorithm>

#include "booking/screens/bookingscreens.h"
#include "booking/screens/screensheet.h"
#include "booking/sheet.h"
#include "records/fields/wording.h"
#include "records/segments.h"
#include "report/report.h"
#include "show/holdshow.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// What `look` makes of the sheet with a card in it; the sheet stays as it is.
template <class Look>
auto WithCard(World& world, const AutoCard& card, Look look) {
  const std::vector<Segment> sheet(world.Segments().begin(), world.Segments().end());
  TakeCard(world, card);
  auto seen = look();
  world.Segments().Rewrite(sheet);
  return seen;
}

FillOrder ForTonight(World& world) {
  const Show* show = ShowOfToday(world);
  return {.Show = show ? show->Name.Str() : "No show today",
          .OpenRows = TermsOf(world, false).OpenRows,
          .Team = show ? TvTeam(world) : CommentaryTeam()};
}

/// A card that is proposed whole. What the sheet holds already stays in it; the sheet itself stays
/// as it is until the player takes the card.
class frmAutoBook : public GameScreen {
 public:
  /// For today's television show, which can be run from such a card at once.
  explicit frmAutoBook(Game& game)
      : frmAutoBook(game, "frmAutoBook", "Auto Booker", ForTonight(game.World())) {}
  frmAutoBook(Game& game, FillOrder order)
      : frmAutoBook(game, "frmFill", "Fill The Rest", std::move(order)) {
    cmdbook.Visible = false;
  }
  frmAutoBook(Game& game, const char* name, const char* title, FillOrder order)
      : GameScreen(game, name, title), order_(std::move(order)) {
    BackBefore(cmdagain);
    lstcard.EmptyText = "There is no show today to book a card for.";
    lstcard.Acts = {{&cmdleave}};
    lblmissing.Colour = ui::Tone::Amber;
    txtchanges.Brief = true;
  }

  ui::Page Layout() override {
    ui::Page page =
        PageOf(ui::Columns({ui::Group("", {ui::Grow(lstcard)}).Grow(3),
                            ui::Rows({ui::Group("", {ui::Grow(txtrow), cmdleave}).Grow(),
                                      ui::Group("What it changes", {txtchanges}),
                                      ui::Group("What it may come to", {lblrating, lblmissing})})
                                .Grow()}),
               &lblfacts, {}, &cmdsheet);
    page.Actions = {&cmdback, &cmdagain, &cmdbook, &cmdsheet};
    return page;
  }

  void Load() override { order_.First.Rows.empty() ? Propose() : Lay(order_.First); }
  void Return() override { ShowCard(); }

 private:
  void Propose() { Lay(AutoBook(world(), order_.IsEvent, order_.OpenRows)); }

  void Lay(const AutoCard& card) {
    card_ = card;
    isOpen_ = NewSegments(world(), card_) > 0;
    ShowCard();
    lstcard.Select(1);
    ShowRow();
  }

  void ShowCard() {
    forecast_ = WithCard(world(), card_,
                         [&] { return ForecastShow(world(), order_.IsEvent, order_.Team); });
    lblfacts.Text = order_.Show;
    lblrating.Text = "Forecast " + RangeText(forecast_.Rating) + ".";
    lblrating.Tip = kLuckLeftOut;
    FillRows();
    ShowChanges();
    ShowMissing();
    const bool any = lstcard.Count() > 0;
    EnableUnless(cmdagain,
                 isOpen_ ? "" : "Every row that could be filled is booked: it would be the same.");
    EnableUnless(cmdbook, WithCard(world(), card_, [&] { return MayStart(world(), false); }) ? ""
                          : any ? "The card is too short for the show to be held."
                                : "There is no show today.");
    EnableUnless(cmdsheet, any ? "" : "There is no card to send.");
  }

  void FillRows() {
    std::vector<ui::ListBox::Row> rows;
    const auto columns = WithoutEmptyTags(Table());
    for (int record = 1; record <= static_cast<int>(card_.Rows.size()); ++record)
      if (const Segment& segment = card_.Rows[static_cast<std::size_t>(record - 1)];
          segment.Kind != kEmptySegment)
        rows.push_back(RowOf(columns, {record, segment, forecast_}, record));
    lstcard.SetColumns(HeadingsOf(columns));
    lstcard.Fill(std::move(rows));
  }

  /// A card without Titles or feuds has no columns for them: the reasons want the width.
  CellColumns<SheetRow> WithoutEmptyTags(CellColumns<SheetRow> table) {
    std::erase_if(table, [this](const CellColumn<SheetRow>& column) {
      int record = 0;
      return column.Heading.Kind == ui::ColumnKind::Tag &&
             std::ranges::all_of(card_.Rows, [&](const Segment& segment) {
               return column.Show({++record, segment, forecast_}).Text.empty();
             });
    });
    return table;
  }

  /// Why a row of the card is there; empty for an empty one.
  std::string ReasonOf(int record) const {
    const auto row = static_cast<std::size_t>(record - 1);
    if (card_.Rows[row].Kind == kEmptySegment) return {};
    return card_.Reasons[row].empty() ? "Already there." : card_.Reasons[row];
  }

  CellColumns<SheetRow> Table() {
    CellColumns<SheetRow> table = SheetTable(
        world(),
        {{"#", ui::ColumnKind::Number}, [](const SheetRow& row) { return ui::Cell(row.Record); }});
    table.push_back({{"Why", ui::ColumnKind::Text, 4}, [this](const SheetRow& row) {
                       return ui::Cell(ReasonOf(row.Record), ui::Tone::Muted);
                     }});
    return table;
  }

  void ShowChanges() {
    std::vector<std::string> changes = ChangesBy(world(), card_);
    changes.insert(changes.end(), order_.Also.begin(), order_.Also.end());
    const std::string lines = Joined(changes, "\n");
    txtchanges.WriteLines(lines.empty() ? "No Title, no turn, no debut, no end of a feud." : lines);
  }

  void ShowMissing() {
    std::vector<std::string> lines = card_.Missing;
    lines.insert(lines.end(), forecast_.Warnings.begin(), forecast_.Warnings.end());
    lblmissing.Text = Joined(lines, "\n");
    lblmissing.Visible = !lblmissing.Text->empty();
  }

  void ShowRow() {
    const int record = lstcard.Key();
    const auto row = static_cast<std::size_t>(record - 1);
    EnableUnless(cmdleave, record == 0                  ? "Choose a row of the card first."
                           : card_.Reasons[row].empty() ? "It stands on the sheet: remove it there."
                                                        : "");
    if (record == 0) return txtrow.Write("");
    using Style = ui::Report::Style;
    std::vector<ui::Report::Paragraph> told = ToldOf(world(), card_.Rows[row], order_.IsEvent);
    told.push_back({Style::Strong, "Why"});
    told.push_back({Style::Line, ReasonOf(record)});
    txtrow.Write(std::move(told));
  }

  /// The card without the row, which stays empty on the sheet.
  void cmdleave_Click() {
    const int place = lstcard.Selected();
    const auto row = static_cast<std::size_t>(lstcard.Key() - 1);
    card_.Rows[row] = EmptySegment();
    card_.Reasons[row].clear();
    lstcard.EmptyText = "Every row is left out. Another Card proposes others.";
    ShowCard();
    lstcard.Select(std::min(place, lstcard.Count()));
    ShowRow();
  }

  void cmdsheet_Click() {
    TakeCard(world(), card_);
    if (order_.Taken) order_.Taken();
    Close();
  }

  void cmdbook_Click() {
    if (!desk().Ask("Sure?", "Are you sure you wish to start this show?")) return;
    TakeCard(world(), card_);
    const std::string name = ShowOfToday(world())->Name.Str();
    LineMemory memory;  // written all the same: the report column keeps it
    const int rating = HoldShow(world(), false, TvTeam(world()), 0, &memory);
    desk().Say("Show Rating",
               name + " has been held. Its rating is " + std::to_string(rating) + "%.");
    LeaveShow(world());
    for (const auto& screen : std::vector(desk().Screens()))
      if (screen->Name() == "frmBooking") desk().Close(*screen);
    Close();
    game_.AdvanceDay(false);
  }

  FillOrder order_;
  AutoCard card_;
  bool isOpen_ = false;  // there were rows to fill when it was proposed
  ShowForecast forecast_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstcard{*this, "lstcard", HeadingsOf(Table()), &frmAutoBook::ShowRow};
  ui::Report txtrow{*this, "txtrow"};
  ui::Report txtchanges{*this, "txtchanges"};
  ui::Label lblrating{*this, "lblrating"};
  ui::Label lblmissing{*this, "lblmissing"};
  ui::Button cmdleave{*this, "cmdleave", "Leave This Row Out", &frmAutoBook::cmdleave_Click};
  ui::Button cmdagain{*this, "cmdagain", "Another Card", &frmAutoBook::Propose};
  ui::Button cmdsheet{*this, "cmdsheet", "Send To The Sheet", &frmAutoBook::cmdsheet_Click};
  ui::Button cmdbook{*this, "cmdbook", "Run This Show", &frmAutoBook::cmdbook_Click};
};

}  // namespace

SCREEN(frmAutoBook)

std::unique_ptr<ui::Screen> MakefrmFill(Game& game, FillOrder order) {
  return std::make_unique<frmAutoBook>(game, std::move(order));
}

}  // namespace grapplemont
