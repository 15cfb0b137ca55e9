#pragma once

#include <QLayout>
#include <QList>

namespace grapplemont::desktop {

/// Widgets in a row that goes on in the next when it is full.
class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(int gap, Qt::Alignment align = Qt::AlignLeft);
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Arrange(QRect(0, 0, width, 0), false); }
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  int Arrange(const QRect& room, bool place) const;
  QList<QLayoutItem*> items_;
  int gap_;
  Qt::Alignment align_;
};

}  // namespace grapplemont::desktop
