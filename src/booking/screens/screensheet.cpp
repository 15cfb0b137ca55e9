#include "booking/screens/screensheet.h"

#include <algorithm>

#include "booking/sheet.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/segments.h"
#include "records/whatif.h"
#include "show/holdshow.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr std::string_view kClosedRowTip = "Not Available In This TV Time Slot.";
constexpr std::string_view kClosedRow = kClosedRowTip.substr(0, kClosedRowTip.size() - 1);

constexpr const char* kDarkMatchTold =
    "Row 1 is the dark match: it warms up the hall before the Event begins, and counts neither "
    "for its rating nor among the matches and segments that it needs.";

}  // namespace

SheetScreen::SheetScreen(Game& game, std::string name, bool isEvent)
    : GameScreen(game, std::move(name), SheetHeading(game.World(), isEvent)),
      isEvent_(isEvent),
      lstrows(*this, "lstrows", {}, &SheetScreen::ShowRow, &SheetScreen::lstrows_Open),
      cmdbook("cmdbook", RowsOf(isEvent),
              [this](const std::string& full, int record) {
                return std::make_unique<ui::Button>(*this, full, "Book",
                                                    [this, record] { cmdbook_Click(record); });
              }),
      lstfree(*this, "lstfree", WithFaces(world(), ShortColumns()), ui::Handler{},
              [this] { desk().Open(MakefrmQuickStat(game_, lstfree.Key())); }) {
  BackBefore(cmddoshow);
  std::vector<ui::Column> headings = HeadingsOf(Table());
  headings.push_back({"", K::Button});
  lstrows.SetColumns(std::move(headings));
  lstrows.OnMove = [this](int from, int to) { lstrows_Move(from, to); };
  cmdundo.Key = "Ctrl+Z";
  cmdredo.Key = "Ctrl+Y";
  cmdcancel.Tip = isEvent_ ? "Calling it off costs image, and much of the money spent on it."
                           : "Calling it off costs image.";
  lblcount.Colour = ui::Tone::Muted;
  lblwarnings.Colour = ui::Tone::Amber;
  lstfree.Room = 4;
  lstfree.EmptyText = "Everybody who is fit is on the card.";
}

ui::Page SheetScreen::Layout() {
  std::vector<ui::Button*> buttons;
  for (int record = 1; record <= cmdbook.Count(); ++record) buttons.push_back(&cmdbook(record));
  std::vector<ui::Button*> actions = FirstActions();
  actions.insert(actions.end(), {&cmdwhatif, &cmdfill, &cmdcancel, &cmdnextrow});
  std::vector<ui::Box> left{
      ui::Group("", {ui::WithButtons(lstrows, buttons).Grow(),
                     ui::Columns({cmdedit, cmdup, cmddown, cmdlast, cmdundo, cmdredo, cmdnotepad}),
                     lblwarn, ui::Columns({lblcount, ui::Spacer(), lblforecast}), lblwarnings})
          .Grow()};
  for (ui::Box& below : BelowRows()) left.push_back(std::move(below));
  ui::Page page = PageOf(
      ui::Columns(
          {ui::Rows(std::move(left)).Grow(5),
           ui::Rows({ui::Group("", {ui::Grow(txtrow)}).Grow(5),
                     ui::Group("Not on the card yet", {ui::Grow(lstfree)}).Grow(4),
                     ui::Group("At hand", {cmddebut, cmdfeuds, cmdmanagers, cmdroster, cmdstables,
                                           cmdstats, cmdteams, cmdtitles, cmdturns})})
               .Grow(2)}),
      &lblfacts, std::move(actions), &cmddoshow);
  page.Then = &cmdnextrow;
  page.Stays = IsDraft()
                   ? "Not while a show is being drafted: keep the draft, or go back."
                   : "Not while today's show is being booked: it comes first, or is cancelled.";
  return page;
}

void SheetScreen::BeginSheet() {
  if (game_.ComesUpAgain) return;
  KeepLastCard(world());
  EmptySheet(world(), isEvent_);
}

void SheetScreen::ShowOpened() {
  Return();
  lstrows.SelectKey(1);
  ShowRow();
  if (!IsDraft() && !game_.ComesUpAgain && !Kept(true).Rows.empty()) LayKept(true);
}

int SheetScreen::OpenRows() {
  return Terms().OpenRows;
}

/// No rows when there is nothing; a draft is for its day alone.
KeptCard SheetScreen::Kept(bool isDraft) {
  const CardOwner owner{Called(), isEvent_, isDraft};
  return isDraft ? FindCard(world(), owner, world().Today()) : FindCard(world(), owner);
}

void SheetScreen::Return() {
  history_.Look(world());
  DropGone();
  Title = Heading();
  lblfacts.Text = Facts();
  lblwarn.Text = SheetWarning(Terms(), isEvent_);
  ShowCounts();
  ShowForecast();
  FillShort(lstfree, NotOnTheCard(world(), isEvent_));
  atHand_ = AtHand(world(), isEvent_);
}

/// A room that was visited may have let somebody go who is booked.
void SheetScreen::DropGone() {
  const std::vector<std::string> dropped = EmptyRowsOfGone(world(), isEvent_, atHand_);
  if (!dropped.empty()) desk().Say("Booking", Joined(dropped, "\n"));
}

bool SheetScreen::IsAnyBooked() {
  return std::ranges::any_of(world().Segments(),
                             [](const Segment& segment) { return segment.Kind != kEmptySegment; });
}

void SheetScreen::ShowForecast() {
  const bool any = IsAnyBooked();
  forecast_ =
      any ? grapplemont::ForecastShow(world(), isEvent_, Team()) : grapplemont::ShowForecast();
  const bool counts = CountSheet(world(), isEvent_).Segments > 0;
  lblforecast.Text = !any      ? "Nothing is booked yet."
                     : !counts ? "Only the dark match is booked yet, and it counts for nothing."
                               : "Forecast " + RangeText(forecast_.Rating) +
                                     (IsDraft() ? ", as things stand today." : ".");
  lblforecast.Tip = any && counts ? kLuckLeftOut : "";
  lblwarnings.Text = Joined(forecast_.Warnings, "\n");
  lblwarnings.Visible = !forecast_.Warnings.empty();
  FillRows();
}

void SheetScreen::FillRows() {
  std::vector<ui::ListBox::Row> rows;
  rows.push_back({{ui::Cell("-", ui::Tone::Muted), ui::Cell(TopRow(), ui::Tone::Muted)}, 0});
  for (int record = 1; record <= world().Segments().Count(); ++record) {
    rows.push_back(RowOf(record));
    ShowButton(record);
  }
  lstrows.Fill(std::move(rows));
  ShowRow();
}

/// On an Event's sheet the first row and the last are not like the others.
CellColumns<SheetRow> SheetScreen::Table() {
  CellColumns<SheetRow> table =
      SheetTable(world(), {{"#", K::Text, 0, "Row of the sheet."},
                           [](const SheetRow& row) { return std::to_string(row.Record); }});
  if (!isEvent_) return table;
  table.push_back({{"Place", K::Tag, 0, "The dark match counts for nothing, the last row twice."},
                   [this](const SheetRow& row) {
                     if (row.Record == kDarkMatch) return ui::Cell("Dark match", ui::Tone::Muted);
                     return ui::Cell(row.Record == OpenRows() ? "Main event" : "", ui::Tone::Gold);
                   }});
  return table;
}

ui::ListBox::Row SheetScreen::RowOf(int record) {
  if (record <= OpenRows())
    return grapplemont::RowOf(Table(), {record, Row(record), forecast_}, record);
  return {{ui::Cell("-", ui::Tone::Muted), ui::Cell(std::string(kClosedRow), ui::Tone::Muted)},
          record};
}

void SheetScreen::ShowButton(int record) {
  const bool open = record <= OpenRows();
  const bool booked = Row(record).Kind != kEmptySegment;
  cmdbook(record).Text = booked ? "Remove" : "Book";
  cmdbook(record).Enabled = open;
  cmdbook(record).Tip = open ? TitleTip(Row(record)) : std::string(kClosedRowTip);
}

void SheetScreen::ShowCounts() {
  const SheetTerms terms = Terms();
  const SheetCount count = CountSheet(world(), isEvent_);
  lblcount.Text = CountText(count, terms);
  const bool enough = count.Matches >= terms.MinMatches && count.Segments >= terms.MinSegments;
  lblwarn.Colour = enough ? ui::Tone::Muted : ui::Tone::Amber;
  const std::string house = WhyNotInThisHouse(world());
  EnableUnless(cmddoshow, IsDraft() || MayStart(world(), isEvent_) ? ""
                          : terms.OpenRows == 0                    ? "There is no show today."
                          : !house.empty()                         ? house
                                           : "Not enough yet: " + lblcount.Text.Get());
  cmdwhatif.Visible = !IsDraft();
  EnableUnless(cmdwhatif, cmddoshow.Enabled ? "" : cmddoshow.Tip.Get());
  EnableUnless(cmdfill, EmptyRow() == 0                           ? "No row is empty."
                        : Holds(world(), HouseRule::NoAutoBooker) ? WhyNoAutoBooker(world())
                                                                  : "");
}

bool SheetScreen::IsEmptyRow(int record) {
  return record >= 1 && record <= OpenRows() && Row(record).Kind == kEmptySegment;
}

/// The selected row if it is empty, else the first that is; 0 for none.
int SheetScreen::EmptyRow() {
  if (IsEmptyRow(lstrows.Key())) return lstrows.Key();
  for (int record = 1; record <= OpenRows(); ++record)
    if (IsEmptyRow(record)) return record;
  return 0;
}

/// What can be done with the selected row, and with the steps before.
void SheetScreen::ShowRowActs() {
  const int record = lstrows.Key();
  const bool open = record >= 1 && record <= OpenRows();
  EnableUnless(cmdedit, !open                               ? "Choose a row that is booked."
                        : Row(record).Kind == kEmptySegment ? "Nothing is booked in this row."
                                                            : "");
  const auto whyNotTo = [&](int other, const char* edge) {
    return !open                                     ? "Choose a row of the show."
           : other < 1 || other > OpenRows()         ? edge
           : IsEmptyRow(record) && IsEmptyRow(other) ? "Nothing is booked in either row."
                                                     : "";
  };
  EnableUnless(cmdup, whyNotTo(record - 1, "It is the first."));
  EnableUnless(cmddown, whyNotTo(record + 1, "It is the last."));
  EnableUnless(cmdlast, Kept(false).Rows.empty() ? "No card of this show has been kept yet." : "");
  const std::string undoes = history_.ToUndo(world()), redoes = history_.ToRedo(world());
  EnableUnless(cmdundo, undoes.empty() ? "Nothing has been done on this sheet." : "");
  EnableUnless(cmdredo, redoes.empty() ? "Nothing has been taken back." : "");
  if (!undoes.empty()) cmdundo.Tip = "Takes back: " + undoes + ".";
  if (!redoes.empty()) cmdredo.Tip = "Does again: " + redoes + ".";
  cmdnextrow.Visible = !cmddoshow.Enabled && EmptyRow() != 0;
  cmdnextrow.Text = "Book Row " + std::to_string(EmptyRow());
}

/// What the selected row is about, without opening it.
void SheetScreen::ShowRow() {
  ShowRowActs();
  TellRow({});
}

void SheetScreen::TellRow(std::vector<ui::Report::Paragraph> first) {
  const std::vector<ui::Report::Paragraph> told = ToldOfRow(lstrows.Key());
  first.insert(first.end(), told.begin(), told.end());
  txtrow.Write(std::move(first));
}

std::vector<ui::Report::Paragraph> SheetScreen::ToldOfRow(int record) {
  using Style = ui::Report::Style;
  if (record == 0)
    return {
        {Style::Muted, "Choose a row to read what is booked in it."},
        {Style::Muted, isEvent_ ? kDarkMatchTold : "The last row that is booked counts twice."}};
  if (record > OpenRows()) return {{Style::Muted, std::string(kClosedRowTip)}};
  const Segment& segment = Row(record);
  std::vector<ui::Report::Paragraph> told;
  if (IsDark(record)) told.push_back({Style::Muted, kDarkMatchTold});
  if (segment.Kind == kEmptySegment) {
    told.insert(told.begin(), {Style::Strong, "Row " + std::to_string(record)});
    told.push_back({Style::Muted, "Nothing is booked here. Book opens the wizard."});
    return told;
  }
  std::vector<ui::Report::Paragraph> booked = ToldOf(world(), segment, isEvent_);
  told.insert(told.begin(), booked.begin(), booked.end());
  for (std::string& line : DetailsOfRow(world(), segment))
    told.push_back({Style::Line, std::move(line)});
  if (const std::string tip = TitleTip(segment); !tip.empty()) told.push_back({Style::Strong, tip});
  told.push_back({Style::Muted, "Edit changes a step of it, Remove empties the row."});
  return told;
}

void SheetScreen::cmdbook_Click(int record) {
  lstrows.SelectKey(record);
  ShowRow();
  if (Row(record).Kind == kEmptySegment) return OpenWizardAtOnce(game_, At(record));
  if (!desk().Ask("Remove?", "Are you sure you wish to remove this booking?")) return;
  ClearSegment(world().Segments()[record]);
  Return();
}

void SheetScreen::lstrows_Open() {
  const int record = lstrows.Key();
  if (record == 0 || record > OpenRows()) return;
  if (Row(record).Kind != kEmptySegment) return cmdedit_Click();
  OpenWizardAtOnce(game_, At(record));
}

void SheetScreen::cmdedit_Click() {
  desk().Open(MakeEditSheet(game_, At(lstrows.Key())));
}

void SheetScreen::lstrows_Move(int from, int to) {
  if (from < 1 || to < 1 || std::max(from, to) > OpenRows()) return;
  MoveRow(world(), from, to);
  lstrows.SelectKey(to);
  Return();
}

void SheetScreen::MoveBy(int rows) {
  lstrows_Move(lstrows.Key(), lstrows.Key() + rows);
}

void SheetScreen::Tell(const std::string& title, const std::vector<std::string>& dropped) {
  Return();
  if (!dropped.empty())
    desk().Say(title, "Not everything holds any more:\n" + Joined(dropped, "\n"));
}

void SheetScreen::LayKept(bool isDraft) {
  const KeptCard kept = Kept(isDraft);
  const std::string title = isDraft ? "Draft" : "Last Card";
  std::string text =
      "Lay " +
      (isDraft ? std::string("the draft for today") : "the card of " + PlainDate(kept.On)) +
      " on the sheet?" + (IsAnyBooked() ? " What is booked there now goes." : "");
  const std::string minded = IsDraft() ? std::string() : MindedBy(world(), kept.Rows);
  if (!minded.empty()) text += "\n" + minded;
  if (!desk().Ask(title, text)) return;
  const Card before = CardOf(world());
  const std::vector<std::string> dropped = LayCard(world(), kept.Rows, isEvent_, OpenRows());
  if (!IsDraft()) PayForRows(world(), before);
  Tell(title, dropped);
}

void SheetScreen::cmdundo_Click() {
  TakeStep("Undo", "Taken back: " + history_.ToUndo(world()), &SheetHistory::Undo);
}

void SheetScreen::cmdredo_Click() {
  TakeStep("Redo", "Done again: " + history_.ToRedo(world()), &SheetHistory::Redo);
}

/// The mark goes along with its Segment, or to the first row that is not what it was.
void SheetScreen::TakeStep(const char* title, const std::string& told, SheetStep step) {
  const Card before = CardOf(world());
  const std::vector<std::string> dropped = (history_.*step)(world(), isEvent_, OpenRows());
  lstrows.SelectKey(RowAfter(before, CardOf(world()), lstrows.Key()));
  Tell(title, dropped);
  TellRow({{ui::Report::Style::Muted, told + "."}});
}

/// Who takes the seats that are empty now.
std::vector<std::string> SheetScreen::SeatsTaken(const CommentaryTeam& full) {
  const CommentaryTeam now = Team();
  std::vector<std::string> lines;
  const Staff* announcer = world().FindStaff(full.Announcer);
  if (now.Announcer == 0 && announcer) lines.push_back(announcer->Name + " calls the show.");
  if (now.Colour != 0 || full.Colour == 0) return lines;
  const std::string colour = full.ColourIsWorker ? SideText(world(), {full.Colour})
                                                 : world().FindStaff(full.Colour)->Name.Str();
  lines.push_back(colour + " does the colour commentary.");
  return lines;
}

void SheetScreen::cmdfill_Click() {
  const AutoCard card = AutoBook(world(), isEvent_, OpenRows());
  const std::string missing = card.Missing.empty() ? "" : "\n" + Joined(card.Missing, "\n");
  if (NewSegments(world(), card) == 0)
    return desk().Say("Fill The Rest", "The roster has nothing to fill a row with." + missing);
  const CommentaryTeam full = FullTeam();
  desk().Open(MakefrmFill(game_, {Called(), isEvent_, OpenRows(), full, card, SeatsTaken(full),
                                  [this, full] { Seat(full); }}));
}

bool SheetScreen::MayBegin() {
  return desk().Ask("Sure?", "Are you sure you wish to start this show?");
}

/// By habit the auto booker empties the sheet and books its own.
void SheetScreen::cmdwhatif_Click() {
  game_.OpenWhatIf({"Hold " + Called() + " as it stands on the sheet?",
                    {"the show is held as it is booked", Beginning()},
                    {"the auto booker books the show", {}}});
}

void SheetScreen::cmddoshow_Click() {
  if (!MayBegin()) return;
  Beginning()(world());
  desk().Open("frmMatchOutput");
  Close();
}

void SheetScreen::cmdback_Click() {
  if (desk().Ask("Confirm",
                 "Are you sure you wish to go back? It will erase any booking you have done so "
                 "far.",
                 ui::Default::No)) {
    EmptySheet(world(), isEvent_);
    Close();
  }
}

void SheetScreen::cmdcancel_Click() {
  if (!desk().Ask("Cancel?", "Are You Sure You Wish To Cancel The Show?", ui::Default::No)) return;
  EmptySheet(world(), isEvent_);
  game_.AdvanceDay(true);
  Close();
}

}  // namespace grapplemont
