#pragma once

#include <QHeaderView>
#include <QTableView>
#include <functional>

#include "desktop/tablecells.h"

namespace grapplemont::desktop {

/// The headings: a click sorts (Shift: by a second key), a drag moves, the context menu filters.
class TableHeading : public QHeaderView {
 public:
  TableHeading(const TableModel& model, QWidget* parent);
  /// The width that a heading needs with its marks.
  int HeadingWidth(int column) const;
  QSize sizeHint() const override;
  /// The column whose heading is there, -1 for none.
  int ColumnAt(const QPoint& at) const;
  std::function<void(int column, bool second)> Clicked;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int column) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  /// Of the arrow of sorting and the spot of a filter.
  int MarksWidth(int column) const;
  void DrawHeading(QPainter& painter, const QRect& rect, int column) const;
  /// Whether a point lies on the headings of the columns that stay.
  bool OnPinned(const QPoint& at) const { return at.x() < model_.Pin.Width; }

  const TableModel& model_;
  QPoint pressed_;
};

/// The grid of a table. The cursor is Qt's; what is selected stands in the list, and changes only
/// by what the player does here.
class TableGrid : public QTableView {
 public:
  TableGrid(TableModel& model, QWidget* parent);

  TableHeading& Heading() { return *heading_; }
  TableCells& Cells() { return *cells_; }
  void SetEmptyText(const QString& text);
  /// -1 when there is none.
  int CurrentRow() const { return currentIndex().row(); }
  void SetCurrentRow(int row);
  /// Whether the cursor's row stands whole in a viewport of this height.
  bool SeesCursor(int height) const;
  /// As much of a viewport of this height as whole rows fill: no row stands cut at the foot.
  int WholeRows(int height) const;

  /// Whether the columns are wider than their room: the bar below takes none from the rows.
  void SetAcross(bool scrolls);
  /// So many of the first columns shown stay in place while the others scroll.
  void SetPinned(int count);
  QModelIndex indexAt(const QPoint& at) const override;
  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  // Rows as shown.
  std::function<void(int row)> Picked, Opened;
  /// In a list that can have several rows: one more or one less, or all from the last picked on.
  std::function<void(int row)> Added, Reached;
  std::function<void()> AllPicked;
  std::function<void(int row, int to)> Dragged;
  std::function<void(const QString& letters)> Typed;
  std::function<void()> Copied, Resized, Moved;
  /// The way to the link in a cell, by row and column of the list; empty for none.
  std::function<ui::Handler(const QModelIndex& cell)> LinkOf;
  std::function<void(const ui::Handler& open)> Followed;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;

 private:
  void Hover(int row);
  /// Follows the link of a cell that was clicked with Ctrl; false where there is none.
  bool FollowAt(const QMouseEvent& event);
  void Move(QKeyEvent* event);
  /// Picks a row as the keys that are held with it say.
  void PickAs(int row, Qt::KeyboardModifiers held);
  void UpdatePinned();
  void BeginWithWholeRow();
  /// Draws the rows that are seen by handing each one's number and upper edge.
  void EachSeen(const std::function<void(int row, int top)>& draw);
  void BeginAtName();
  void DrawPinned(QPainter& painter);
  void DrawBeyond(QPainter& painter);
  void DrawCursor(QPainter& painter);
  void DrawDrop(QPainter& painter);
  void DropAt(int row);

  TableModel& model_;
  TableCells* cells_;
  TableHeading* heading_;
  QString empty_;
  int hover_ = -1;
  int dragged_ = -1;  // the row that the mouse holds in a list whose rows can be moved
  int drop_ = -1;     // the row in whose place it would come to stand
  bool painted_ = false;
  bool across_ = false;
};

}  // namespace grapplemont::desktop
