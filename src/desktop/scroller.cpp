#include "desktop/scroller.h"

#include <QScrollBar>
#include <algorithm>

namespace grapplemont::desktop {

namespace {

constexpr int kLeastBody = 170;  // under a window's head, before all of the page scrolls

}  // namespace

Scroller::Scroller(QWidget* parent, bool tight) : BareScroller(parent), tight_(tight) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);  // where even that is too wide for it
}

QSize Scroller::sizeHint() const {
  const QSize wanted = widget()->sizeHint();
  return tight_ ? QSize(wanted.width(), LeastHeight(WholeWidth())) : wanted;
}

QSize Scroller::minimumSizeHint() const {
  return {Px(160), std::clamp(LeastHeight(WholeWidth()), Px(80), Px(kLeastBody))};
}

int Scroller::LeastHeight(int width) const {
  const QLayout* layout = widget()->layout();
  return layout->hasHeightForWidth() ? layout->totalMinimumHeightForWidth(width)
                                     : layout->totalMinimumSize().height();
}

int Scroller::WholeWidth() const {
  if (!placed_) return Px(480);
  return std::min(std::max(maximumViewportSize().width(), widget()->minimumSizeHint().width()),
                  widget()->maximumWidth());
}

/// Whether it must scroll is told from the width that it has without a bar. Else a row that turns
/// for want of the bar's width would need the bar that has turned it.
void Scroller::Fit() {
  const QSize room = maximumViewportSize();
  int width = WholeWidth();
  const int bar = width > room.width() ? horizontalScrollBar()->sizeHint().height() : 0;
  int height = LeastHeight(width);
  if (height > room.height() - bar) {
    const int beside = room.width() - verticalScrollBar()->sizeHint().width();
    width = std::max(beside, widget()->minimumSizeHint().width());
    height = LeastHeight(width);
  }
  widget()->resize(width, std::max(room.height() - bar, height));
}

void Scroller::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  placed_ = true;
  Fit();
  updateGeometry();  // what it asks for hangs on the width
}

bool Scroller::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) {
    widget()->layout()->activate();  // else it would answer from what it knew before
    Fit();
    updateGeometry();
  }
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace grapplemont::desktop
