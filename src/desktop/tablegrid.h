#pragma once

#include <QTableView>
#include <functional>

#include "desktop/tablecells.h"
#include "desktop/tableheading.h"

namespace grapplemont::desktop {

/// The grid of a table. The cursor is Qt's; what is selected stands in the list, and changes only
/// by what the player does here.
class TableGrid : public QTableView {
 public:
  TableGrid(TableModel& model, QWidget* parent);

  TableHeading& Heading() { return *heading_; }
  void SetEmptyText(const QString& text);
  /// -1 when there is none.
  int CurrentRow() const { return currentIndex().row(); }
  void SetCurrentRow(int row);

  // Rows as shown.
  std::function<void(int row)> Picked, Opened;
  std::function<void(const QString& letters)> Typed;
  std::function<void()> Copied, Resized, Moved;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;

 private:
  void Hover(int row);
  void Move(QKeyEvent* event);
  void DrawCursor(QPainter& painter);

  TableModel& model_;
  TableCells* cells_;
  TableHeading* heading_;
  QString empty_;
  int hover_ = -1;
  bool painted_ = false;
};

}  // namespace grapplemont::desktop
