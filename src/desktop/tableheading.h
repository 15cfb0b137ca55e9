#pragma once

#include <QHeaderView>
#include <functional>

#include "desktop/tablemodel.h"

namespace grapplemont::desktop {

/// The headings: a click sorts (Shift: by a second key), a drag moves, the context menu filters.
class TableHeading : public QHeaderView {
 public:
  TableHeading(const TableModel& model, QWidget* parent);
  /// The width that a heading needs with its marks.
  int HeadingWidth(int column) const;
  QSize sizeHint() const override;
  std::function<void(int column, bool second)> Clicked;

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int column) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  const TableModel& model_;
  QPoint pressed_;
};

}  // namespace grapplemont::desktop
