#pragma once

#include <QLayout>
#include <QList>

namespace grapplemont::desktop {

/// Parts of one kind side by side in even columns: as many in a line as have room there, and the
/// lines as equally long as they can be.
class EvenGrid : public QLayout {
 public:
  /// `least` is the width in drawn pixels below which no part stands beside another. A calm one
  /// takes no more width than its parts wish for.
  EvenGrid(int gap, int least, bool isCalm);
  ~EvenGrid() override;

  void addItem(QLayoutItem* item) override { items_.append(item); }
  /// Takes a layout that stands as one part.
  void Add(QLayout& part);
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  QSize minimumSize() const override;
  QSize sizeHint() const override;
  Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return HeightAt(width, false); }
  int minimumHeightForWidth(int width) const override { return HeightAt(width, true); }
  void setGeometry(const QRect& rect) override;

 private:
  using Line = QList<QLayoutItem*>;
  static QList<Line> LinesOf(const Line& parts, int across);
  QList<Line> LinesAt(int width) const;
  QList<int> LeastWidths(const QList<Line>& lines) const;
  int LeastOf(const QList<Line>& lines) const;
  QList<int> WidthsIn(const QList<Line>& lines, int width) const;
  static int HeightOfLine(const Line& line, const QList<int>& widths, bool least);
  int HeightAt(int width, bool least) const;

  int gap_, least_;
  bool isCalm_;
  QList<QLayoutItem*> items_;
};

}  // namespace grapplemont::desktop
