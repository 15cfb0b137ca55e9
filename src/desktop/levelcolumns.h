#pragma once

#include <QEvent>
#include <QVBoxLayout>
#include <QWidget>
#include <algorithm>
#include <memory>
#include <vector>

#include "desktop/emptytables.h"
#include "desktop/turninglayout.h"

// Columns of a page and of its cards.

namespace grapplemont::desktop {

/// A column among others. A calm one does not ask for more because of the stretch at its end; one
/// of which all is hidden takes no room, whatever its share.
class Column : public QVBoxLayout {
 public:
  explicit Column(bool calm, QWidget* on = nullptr) : QVBoxLayout(on), calm_(calm) {
    setContentsMargins(0, 0, 0, 0);
  }
  Qt::Orientations expandingDirections() const override {
    const auto all = QVBoxLayout::expandingDirections();
    return calm_ ? all & ~Qt::Vertical : all;
  }
  QSize maximumSize() const override {
    return isEmpty() ? QSize(0, 0) : QVBoxLayout::maximumSize();
  }
  void setGeometry(const QRect& rect) override {
    LetEmptyTablesYield(*this, shares_);
    if (!PlaceTight(*this, rect)) QVBoxLayout::setGeometry(rect);
  }

 private:
  bool calm_;
  std::vector<int> shares_;
};

/// What is on a card among others of its kind, all of which are as high as the highest.
class LevelColumn : public QVBoxLayout {
 public:
  using Peers = std::vector<const LevelColumn*>;
  LevelColumn(QWidget* card, std::shared_ptr<Peers> peers)
      : QVBoxLayout(card), peers_(std::move(peers)) {
    peers_->push_back(this);
    card->installEventFilter(this);
  }
  ~LevelColumn() override { std::erase(*peers_, this); }

  QSize sizeHint() const override {
    return {QVBoxLayout::sizeHint().width(), Highest(&LevelColumn::OwnHint)};
  }
  QSize minimumSize() const override {
    return {QVBoxLayout::minimumSize().width(), Highest(&LevelColumn::OwnLeast)};
  }
  /// What changes on a card changes how high its peers are, which Qt keeps until it is said.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest && watched == parentWidget())
      for (const LevelColumn* peer : *peers_)
        if (peer != this) peer->parentWidget()->updateGeometry();
    return QVBoxLayout::eventFilter(watched, event);
  }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Highest(&LevelColumn::OwnAt, width); }
  int minimumHeightForWidth(int width) const override {
    return Highest(&LevelColumn::OwnLeastAt, width);
  }

 private:
  int OwnHint() const { return QVBoxLayout::sizeHint().height(); }
  int OwnLeast() const { return QVBoxLayout::minimumSize().height(); }
  int OwnAt(int width) const {
    return QVBoxLayout::hasHeightForWidth() ? QVBoxLayout::heightForWidth(width) : OwnHint();
  }
  int OwnLeastAt(int width) const {
    return QVBoxLayout::hasHeightForWidth() ? QVBoxLayout::minimumHeightForWidth(width)
                                            : OwnLeast();
  }
  template <class... At>
  int Highest(int (LevelColumn::*own)(At...) const, At... at) const {
    int most = 0;
    for (const LevelColumn* peer : *peers_) most = std::max(most, (peer->*own)(at...));
    return most;
  }

  std::shared_ptr<Peers> peers_;
};

}  // namespace grapplemont::desktop
