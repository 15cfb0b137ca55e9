#include "editor/screens/screenrecords.h"

#include <algorithm>

#include "editor/choices.h"
#include "editor/keeping.h"
#include "editor/screens/screenfiles.h"
#include "records/fields/grouping.h"
#include "records/modVar.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

ui::ColumnKind KindOf(const PageColumn& column, const Field& field) {
  if (!column.Words.empty() || !field.Words.empty() || field.To != Refers::Nothing)
    return column.Kind;
  const bool isNumber = field.Kind == FieldKind::Word || field.Kind == FieldKind::Long;
  return isNumber                           ? ui::ColumnKind::Number
         : field.Kind == FieldKind::Percent ? ui::ColumnKind::Percent
                                            : column.Kind;
}

std::string Small(std::string_view text) {
  std::string small(text);
  for (char& c : small)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return small;
}

/// The first few lines, and how many more there are.
std::string Lines(const std::vector<std::string>& lines) {
  constexpr std::size_t kMost = 8;
  std::string text;
  for (std::size_t i = 0; i < std::min(lines.size(), kMost); ++i) text += "\n" + lines[i];
  if (lines.size() > kMost) text += "\nand " + std::to_string(lines.size() - kMost) + " more.";
  return text;
}

/// A line for each reason; faults of other records begin with whose they are.
std::string WhyNot(const Keeping& keeping, std::string_view file) {
  std::string why = keeping.WhyNot;
  for (const Fault& fault : keeping.Wrong) {
    if (!why.empty()) why += "\n";
    if (fault.File != file || fault.Record != keeping.Number) why += fault.Who + ": ";
    why += FaultWords(fault);
  }
  return why;
}

int CodeIn(const Field& field, const FieldPlace& place, const std::byte* record) {
  if (field.Kind != FieldKind::Text)
    return static_cast<int>(FieldNumber(field, record, place.Index));
  for (const Term& term : field.Words)
    if (term.Stored == FieldText(field, record, place.Index)) return term.Code;
  return 0;
}

std::string WordsOf(const PageColumn& column, const FieldPlace& place, const std::byte* record) {
  if (column.Words.empty()) return FieldShown(*place.Of, record, place.Index);
  const int code = static_cast<int>(FieldNumber(*place.Of, record, place.Index));
  const auto words = Says(column.Words, code);
  return words.empty() ? std::to_string(code) : std::string(words);
}

/// What a table shows of a field: words for codes, names for references, dollars for money.
ui::Cell CellOf(const World& world, const PageColumn& column, const FieldPlace& place,
                const std::byte* record) {
  const Field& field = *place.Of;
  if (field.To != Refers::Nothing && field.Kind == FieldKind::Word)
    return NameOfUid(world, field.To, static_cast<int>(FieldNumber(field, record, place.Index)));
  const ui::ColumnKind kind = KindOf(column, field);
  if (kind == ui::ColumnKind::Number || kind == ui::ColumnKind::Percent) {
    const long long number = FieldNumber(field, record, place.Index);
    if (field.Unit == "dollars") return {static_cast<double>(number), Dollars(number)};
    if (field.Unit == "hundredths")
      return {static_cast<double>(number), RatingText(static_cast<int>(number))};
    return ui::Cell(static_cast<int>(number));
  }
  const std::string words = WordsOf(column, place, record);
  if (kind == kByCode) return {static_cast<double>(CodeIn(field, place, record)), words};
  return {words,
          field.Name == "Disposition" ? DispositionTone(As<Worker>(record)) : ui::Tone::Plain};
}

}  // namespace

RecordScreen::RecordScreen(Game& game, const RecordPage& page)
    : Screen(game.Desk(), std::string(page.Screen), std::string(page.Title)),
      data_(EditedData(game)),
      page_(page),
      lstrecords(*this, "lstrecords", {}, &RecordScreen::lstrecords_Click),
      form_(*this, page, [this] { ShowButtons(); }) {
  std::vector<ui::Column> headings;
  for (const PageColumn& column : page.Columns) {
    columns_.push_back(FieldNamed(page.Kind, column.Field));
    headings.push_back({std::string(column.Title), KindOf(column, *columns_.back().Of)});
  }
  lstrecords.SetColumns(std::move(headings));
  txtsearch.Hint = "Search in all columns";
  lstrecords.Search = &txtsearch;
  txtsearch.OnChange = [this] { txtsearch_Change(); };
  lblrecord.Large = true;
  lblfault.Colour = ui::Tone::Amber;
  lstrecords.Room = 30;
}

ui::Page RecordScreen::Layout() {
  ui::Page page;
  page.Facts = &lblfacts;
  page.Actions = {&cmdback, &cmddelete, &cmdcopy, &cmdnew, &cmdrevert, &cmdsave};
  page.Main = &cmdsave;
  page.Cancel = &cmdback;
  page.Body =
      ui::Columns({ui::Group("", {txtsearch, ui::Grow(lstrecords)}).Grow(),
                   ui::Rows({lblrecord, lblfault, form_.Body().Grow(), ui::Spacer()}).Grow()});
  return page;
}

void RecordScreen::Load() {
  LookOver();
  FillTable();
  Choose(lstrecords.Count() > 0 ? lstrecords.Rows().front().Key : 0);
}

void RecordScreen::Return() {
  LookOver();
  // A record that was to be kept and was taken back stays in hand.
  if (number_ > CountOf(data_.World(), page_.Kind)) {
    number_ = 0;
    fresh_ = worthKeeping_ = true;
  }
  FillTable();
  ShowButtons();
}

/// What is wrong with the page's records.
void RecordScreen::LookOver() {
  faults_.clear();
  const std::string_view file = LayoutOf(page_.Kind).File;
  CheckWorld(data_.World(), [&](Fault&& fault) {
    if (fault.File != file || fault.Record == 0) return;
    if (!page_.Has(RecordAt(std::as_const(data_).World(), page_.Kind, fault.Record))) return;
    constexpr int kMost = 6;
    Faults& found = faults_[fault.Record];
    if (++found.Count <= kMost)
      found.Words += (found.Words.empty() ? "" : " ") + FaultWords(fault);
    else if (found.Count == kMost + 1)
      found.Words += " There is more: Check And Clean-Up lists it.";
  });
}

ui::ListBox::Row RecordScreen::RowOf(int number) const {
  const World& world = data_.World();
  const std::byte* record = RecordAt(world, page_.Kind, number);
  ui::ListBox::Row row;
  row.Key = number;
  for (std::size_t i = 0; i < columns_.size(); ++i)
    row.Cells.push_back(CellOf(world, page_.Columns[i], columns_[i], record));
  if (faults_.contains(number)) row.Cells.front().Colour = ui::Tone::Amber;
  return row;
}

bool RecordScreen::Found(const ui::ListBox::Row& row) const {
  const std::string wanted = Small(detail::Trimmed(txtsearch.Text.Get()));
  return std::any_of(row.Cells.begin(), row.Cells.end(), [&](const ui::Cell& cell) {
    return Small(cell.Text).find(wanted) != std::string::npos;
  });
}

void RecordScreen::FillTable() {
  const World& world = data_.World();
  std::vector<ui::ListBox::Row> rows;
  int all = 0;
  for (int number = 1; number <= CountOf(world, page_.Kind); ++number) {
    if (!page_.Has(RecordAt(world, page_.Kind, number))) continue;
    ++all;
    auto row = RowOf(number);
    if (Found(row)) rows.push_back(std::move(row));
  }
  lstrecords.EmptyText =
      all > 0 ? "Nothing here has this in it." : "There are none yet. New makes one.";
  const std::string file(LayoutOf(page_.Kind).File);
  if (!data_.IsReadable(file)) lstrecords.EmptyText = file + " cannot be read.";
  lstrecords.Fill(std::move(rows), false);
  lstrecords.SelectKey(number_);
  lblfacts.Text = (page_.Shows ? Grouped(all) + " here; the file holds " : "") +
                  Grouped(CountOf(world, page_.Kind)) + " of " +
                  Grouped(LayoutOf(page_.Kind).Limit) + " records. " +
                  (faults_.empty() ? "None has a fault."
                                   : std::to_string(faults_.size()) + " with faults, in amber.");
}

void RecordScreen::Choose(int number) {
  Bytes record;
  if (number > 0) {
    const std::byte* stands = RecordAt(std::as_const(data_).World(), page_.Kind, number);
    record.assign(stands, stands + LayoutOf(page_.Kind).Size);
  }
  fresh_ = worthKeeping_ = false;
  TakeInHand(number, std::move(record));
}

void RecordScreen::ShowNew(Bytes record, bool worthKeeping) {
  fresh_ = true;
  worthKeeping_ = worthKeeping;
  TakeInHand(0, std::move(record));
}

void RecordScreen::TakeInHand(int number, Bytes record) {
  number_ = number;
  inHand_ = std::move(record);
  if (inHand_.empty())
    form_.Clear();
  else
    form_.Show(data_.World(), inHand_);
  lstrecords.SelectKey(number);
  ShowButtons();
}

std::string RecordScreen::Called() const {
  if (inHand_.empty()) return "No " + std::string(page_.One);
  const std::string name = NameOf(page_.Kind, inHand_.data());
  if (!fresh_) return name.empty() ? "A " + std::string(page_.One) + " without a name" : name;
  return "New " + std::string(page_.One);
}

void RecordScreen::ShowButtons() {
  const bool stands = number_ > 0, dirty = IsDirty();
  lblrecord.Text = Called();
  const auto fault = faults_.find(number_);
  lblfault.Text = fault == faults_.end() ? std::string() : fault->second.Words;
  lblfault.Visible = !lblfault.Text->empty();
  EnableUnless({cmdsave, cmdrevert}, dirty || fresh_ ? "" : "Nothing has been changed.");
  EnableUnless({cmdcopy, cmddelete}, stands ? "" : "Choose a record first.");
  EnableUnless(cmdnew,
               data_.IsReadable(LayoutOf(page_.Kind).File) ? "" : "The file cannot be read.");
}

bool RecordScreen::IsDirty() const {
  if (form_.Changed() || (fresh_ && worthKeeping_)) return true;
  if (number_ == 0 || number_ > CountOf(data_.World(), page_.Kind)) return false;
  const std::byte* stands = RecordAt(std::as_const(data_).World(), page_.Kind, number_);
  return !std::equal(inHand_.begin(), inHand_.end(), stands);
}

bool RecordScreen::MayLeave() {
  return !IsDirty() || desk().Ask("Unsaved Changes",
                                  Called() + " has changes that are not saved. Throw them away?",
                                  ui::Default::No);
}

void RecordScreen::lstrecords_Click() {
  const int chosen = lstrecords.Key();
  if (chosen == 0 || chosen == number_) return;
  if (MayLeave()) return Choose(chosen);
  lstrecords.SelectKey(number_);
}

bool RecordScreen::MayBegin() {
  const std::string why = WhyNoMore(data_.World(), page_.Kind);
  if (!why.empty()) desk().Say("Error!", why);
  return why.empty() && MayLeave();
}

void RecordScreen::cmdnew_Click() {
  if (!MayBegin()) return;
  Bytes record = NewRecord(page_.Kind);
  if (page_.Begin) page_.Begin(record.data());
  ShowNew(std::move(record), false);
}

void RecordScreen::cmdcopy_Click() {
  if (MayBegin()) ShowNew(CopyOfRecord(data_.World(), page_.Kind, number_), true);
}

void RecordScreen::cmddelete_Click() {
  // Done at first, so that the question can tell what comes of it; nothing is on disk before Yes.
  const std::string name = Called();
  const auto also = DeleteRecord(data_.World(), page_.Kind, number_);
  std::string text = "Are you sure you want to delete " + name + "?";
  if (!also.empty()) text += "\n\nThis also happens:" + Lines(also);
  if (!desk().Ask("Delete", text, ui::Default::No)) return data_.Rollback();
  const int at = lstrecords.Selected();
  LookOver();
  number_ = 0;
  FillTable();
  const int row = std::min(at > 0 ? at : 1, lstrecords.Count());
  Choose(row > 0 ? lstrecords.Rows()[static_cast<std::size_t>(row - 1)].Key : 0);
}

void RecordScreen::cmdrevert_Click() {
  Choose(fresh_ ? (lstrecords.Count() > 0 ? lstrecords.Rows().front().Key : 0) : number_);
}

void RecordScreen::cmdsave_Click() {
  Bytes record;
  std::string why = form_.Take(record);
  if (!why.empty()) return desk().Say("Error!", why);
  const Keeping keeping = KeepRecord(data_.World(), page_.Kind, number_, record);
  if (!keeping.Done()) {
    data_.Rollback();
    return desk().Say("Error!", WhyNot(keeping, LayoutOf(page_.Kind).File));
  }
  LookOver();
  FillTable();
  Choose(keeping.Number);
  if (!keeping.Also.empty()) desk().Say("Saved", "This has also happened:" + Lines(keeping.Also));
}

void RecordScreen::cmdback_Click() {
  if (MayLeave()) Close();
}

}  // namespace grapplemont
