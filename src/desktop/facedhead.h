#pragma once

#include <QLayout>

namespace grapplemont::desktop {

class TurningLayout;

/// What stands beside a face: the title, much that is said below it, and what can be done. The
/// buttons stand in the title's line where they have room there in one row, else behind all that
/// is said.
class FacedHead : public QLayout {
 public:
  /// Takes the parts; `tail` may be nullptr. `least` is what the title has beside buttons, in drawn
  /// pixels.
  FacedHead(QWidget* title, QLayout* facts, TurningLayout* tail, int least);
  ~FacedHead() override;

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  QSize minimumSize() const override;
  QSize sizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Arrange({0, 0, width, 0}, false); }
  void setGeometry(const QRect& rect) override;

 private:
  /// Gives the height that the parts take in this width, and places them there.
  int Arrange(const QRect& rect, bool place) const;

  TurningLayout* tail_;
  int least_;
  QList<QLayoutItem*> items_;
};

}  // namespace grapplemont::desktop
