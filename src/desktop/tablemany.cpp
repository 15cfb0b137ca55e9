#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QSaveFile>
#include <algorithm>

#include "desktop/tableview.h"
#include "ui/acts.h"

// Several rows at once, and a table's way out of the program.

namespace grapplemont::desktop {

void TableView::PickShown(const std::vector<int>& shownRows) {
  std::vector<int> rows;
  for (const int row : shownRows) rows.push_back(table_.Rows()[static_cast<std::size_t>(row)] + 1);
  Do<std::vector<int>>(ui::PickRows, rows);
}

void TableView::AddRow(int shownRow) {
  currentKey_ = anchorKey_ = table_.KeyAt(shownRow);
  Do<int>(ui::PickToo, table_.Rows()[static_cast<std::size_t>(shownRow)] + 1);
}

void TableView::ReachRow(int shownRow) {
  currentKey_ = table_.KeyAt(shownRow);
  int from = shownRow;
  for (int row = 0; row < model_.rowCount(); ++row)
    if (table_.KeyAt(row) == anchorKey_) from = row;
  std::vector<int> rows;
  for (int row = std::min(from, shownRow); row <= std::max(from, shownRow); ++row)
    rows.push_back(row);
  PickShown(rows);
}

void TableView::PickAll() {
  std::vector<int> rows;
  for (int row = 0; row < model_.rowCount(); ++row) rows.push_back(row);
  PickShown(rows);
}

bool TableView::WaitsForChoice() const {
  return control_.OnPick && control_.Enabled && control_.Selected() == 0 && model_.rowCount() > 0;
}

bool TableView::ChooseCurrent() {
  const int row = std::max(0, grid_->CurrentRow());
  const bool isOneMore =
      control_.Multi && control_.Enabled && row < model_.rowCount() && !table_.IsSelected(row);
  if (!isOneMore && !WaitsForChoice()) return false;
  Act(row, false);
  return true;
}

void TableView::DropUnseen() {
  const std::size_t chosen = control_.Multi ? 0 : control_.Keys().size();
  std::vector<int> seen;
  for (int row = 0; row < model_.rowCount(); ++row)
    if (table_.IsSelected(row)) seen.push_back(row);
  if (seen.size() == chosen || control_.Multi) return;
  if (seen.empty() && model_.rowCount() > 0) return Act(0, false);
  if (control_.Extends) PickShown(seen);
}

/// What leaves the program is what is shown; where several rows are chosen, those.
std::string TableView::Csv() const {
  return table_.Csv(SeveralChosen());
}

bool TableView::SeveralChosen() const {
  return control_.Extends && control_.Keys().size() > 1;
}

void TableView::CopyCsv() const {
  QApplication::clipboard()->setText(Shown(Csv()));
}

void TableView::SaveCsv() {
  const QString csv = Shown(Csv());
  const QString name = QFileDialog::getSaveFileName(
      this, "Save as CSV", Shown(control_.Parent().Title.Get()) + ".csv", "CSV (*.csv)");
  if (name.isEmpty()) return;
  constexpr const char* kUtf8 = "\xEF\xBB\xBF";  // so that spreadsheets read the letters rightly
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(kUtf8 + csv.toUtf8()) < 0 || !file.commit())
    OnStage().Hint(*this, name + " could not be written: " + file.errorString());
}

}  // namespace grapplemont::desktop
