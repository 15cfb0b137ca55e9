#pragma once

#include <QLayout>
#include <QList>
#include <QMouseEvent>
#include <QWidget>
#include <vector>

namespace grapplemont::desktop {

/// Widgets in a row that goes on in the next when it is full; rows in the middle are as equally
/// long as they can be. Rows stand at the top, in the middle or at the bottom of more room than
/// they need.
class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(int gap, Qt::Alignment align = Qt::AlignLeft);
  /// Whether all of it stays in one row, which then is the least that it takes.
  void SetOneRow(bool oneRow);
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Arrange(QRect(0, 0, width, 0), false); }
  QSize sizeHint() const override;
  QSize minimumSize() const override { return oneRow_ ? sizeHint() : LeastSize(); }
  /// That of its widest part, whether it stays in one row now or not.
  QSize LeastSize() const;
  void setGeometry(const QRect& rect) override;

 private:
  int Arrange(const QRect& room, bool place) const;
  /// The most that stand in a row of this width.
  int MostInARow(const QRect& room) const;
  QList<QLayoutItem*> items_;
  int gap_;
  Qt::Alignment align_;
  bool oneRow_ = false;
};

/// A sheet with round corners and a hairline.
class Card : public QWidget {
 public:
  explicit Card(QWidget* parent) : QWidget(parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The ground that is dimmed below a dialog or a box, with a card in its middle. Tab goes round in
/// it, instead of leaving it.
class Veil : public QWidget {
 public:
  explicit Veil(QWidget* ground);
  Card& Sheet() { return *card_; }
  /// How large the card is, in drawn pixels; none: as its contents are.
  void SetWanted(const QSize& drawn) { wanted_ = drawn; }
  /// At the top of the window instead of the middle, where it stays whatever is in it: in drawn
  /// pixels as wide as this, and as high as its contents up to this.
  void SetAtTop(const QSize& drawn) { atTop_ = drawn; }
  void PlaceCard();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent*) override { PlaceCard(); }
  void mousePressEvent(QMouseEvent* event) override { event->accept(); }
  bool event(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PlaceAtTop(const QSize& most);
  /// Whether Tab may lead to this widget.
  bool Leads(const QWidget& widget) const;

  Card* card_;
  QSize wanted_, atTop_;
};

}  // namespace grapplemont::desktop
