#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"

// The half of the table component that knows no toolkit: which rows and columns of a ListBox are
// shown, in which order.

namespace grapplemont::ui {

class Filter;
class Search;

/// What the player has made of a table. Columns go by their ids (see ColumnId).
struct TableState {
  struct SortKey {
    std::string Column;
    bool Descending = false;
    friend bool operator==(const SortKey&, const SortKey&) = default;
  };
  std::vector<SortKey> Sort;  // the first counts most; two at most
  std::map<std::string, std::string> Filters;
  std::string Search;
  std::vector<std::string> Order;  // columns that are not named follow in their own order
  std::set<std::string> Hidden;
  std::map<std::string, int> Widths;       // set by hand, in pixels at the usual size of text
  std::string View;                        // the view that is shown as it is; empty for none
  std::map<std::string, std::string> Own;  // the player's own views: states as texts, by name
  int TopRow = 0;                          // where the table is scrolled to, from 0
  int CurrentKey = 0;                      // the key of the row under the cursor
  friend bool operator==(const TableState&, const TableState&) = default;
};

/// A state as a text of one line, and back. Any text can be read: what is not understood is left
/// out.
std::string Written(const TableState& state);
TableState ReadTableState(std::string_view text);

/// A column's title, or "#2" for the second when it has none.
std::string ColumnId(const std::vector<Column>& columns, int column);

/// What a shell shows in place of a cell's text: what is typed to find rows holds against it.
using CellReader = std::function<std::string(const Cell& cell, ColumnKind kind)>;

/// Rows and columns count from 0 here, in the list and as shown.
class Table {
 public:
  /// Without a reader what is shown are the texts themselves.
  explicit Table(const ListBox& list, TableState state = {}, CellReader reads = {});

  /// Follows a change of the list's contents; true when there was one.
  bool Follow();
  /// False between a change of the list and Follow: then rows may be gone that are still shown.
  bool Follows() const { return seen_ == list_.Contents(); }
  const std::vector<int>& Rows() const { return rows_; }
  const std::vector<int>& Columns() const { return columns_; }
  const std::vector<Column>& ListColumns() const { return list_.Columns(); }
  /// An empty cell where the row has none.
  const Cell& At(int shownRow, int listColumn) const;
  /// The same for one column of many rows: rows that are made late stay unmade.
  Cell CellAt(int shownRow, int listColumn) const;
  int KeyAt(int shownRow) const;
  bool IsSelected(int shownRow) const;
  /// -1 when the row is filtered away.
  int ShownRow(int listRow) const;
  bool Filtered() const { return static_cast<int>(rows_.size()) != list_.Count(); }

  const TableState& State() const { return state_; }
  /// Rows that can be moved have an order of their own, and a column without a heading has none.
  bool Sorts(int listColumn) const;
  /// The next of: the kind's own order (numbers fall, texts rise), the other way round, unsorted.
  /// `second` leaves the first key as it is.
  void TurnSort(int listColumn, bool second);
  /// 0 not sorted by this column, else 1 or 2 for its place among the keys.
  int SortPlace(int listColumn) const;
  bool SortsDown(int listColumn) const;
  void SetFilter(int listColumn, std::string expression);
  const std::string& FilterOf(int listColumn) const;
  void SetSearch(std::string line);
  void ClearFilters();  // and the search
  void Show(int listColumn, bool shown);
  bool Shows(int listColumn) const;
  /// Puts the shown columns in another order.
  void SetOrder(const std::vector<int>& listColumns);
  void ResetColumns();
  void SetWidth(int listColumn, int width);
  void SetPlace(int topRow, int currentKey);
  /// The place, among the columns shown, of what is read first: the name, else the first text that
  /// is not a number.
  int NamePlace() const;

  /// A filter in force and how many rows it hides by itself.
  struct Hider {
    std::string Words;
    int Rows;
  };
  std::vector<Hider> Hiders() const;
  /// "Disp. Heel hides 5, Over >60 hides 8"; empty where nothing filters.
  std::string HidingText() const;

  /// The list's own views, then the player's.
  std::vector<std::string> Views() const;
  bool IsOwnView(const std::string& name) const { return state_.Own.contains(name); }
  /// Shows the columns of a view; of one of the player's own also in its order and its filters.
  void TakeView(const std::string& name);
  /// Keeps what is shown under a name; one of that name is replaced.
  void KeepView(const std::string& name);
  void ForgetView(const std::string& name);

  /// What is shown, headings first, lines ending as RFC 4180 has it; or of it the chosen rows
  /// alone.
  std::string Csv(bool chosenAlone = false) const;

 private:
  void ArrangeColumns();
  void ArrangeRows();
  int RowsWhere(const std::function<bool(int listRow)>& holds) const;
  int RowsHidden(int listColumn) const;
  void SortRows();
  bool Fits(const Search& search, int listRow) const;
  bool Fits(const Filter& filter, int listRow, int listColumn) const;
  int ListRow(int shownRow) const { return rows_[static_cast<std::size_t>(shownRow)] + 1; }
  std::string Id(int listColumn) const { return ColumnId(list_.Columns(), listColumn); }

  const ListBox& list_;
  TableState state_;
  CellReader reads_;
  unsigned seen_ = 0;
  std::vector<int> rows_, columns_;
};

}  // namespace grapplemont::ui
