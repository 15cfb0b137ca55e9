#include "desktop/scroller.h"

#include <QScrollBar>
#include <algorithm>

namespace grapplemont::desktop {

namespace {

// The least height of a body that scrolls by itself: alone, and in a scroller, before all of that
// scrolls instead.
constexpr int kLeast = 80, kLeastWithin = 170;

}  // namespace

Scroller::Scroller(QWidget* parent, bool tight) : BareScroller(parent), tight_(tight) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);  // where even that is too wide for it
}

QSize Scroller::sizeHint() const {
  const QSize wanted = widget()->sizeHint();
  return tight_ ? QSize(wanted.width(), LeastHeight(WholeWidth())) : wanted;
}

int Scroller::LeastRoom() const {
  return std::clamp(LeastHeight(WholeWidth()), Px(kLeast), Px(isWithin_ ? kLeastWithin : kLeast));
}

/// All of a body is as high as it likes to be, though hardly more than its window shows at once.
QSize Scroller::minimumSizeHint() const {
  if (window_ == 0) return {Px(160), LeastRoom()};
  const int width = WholeWidth(), least = LeastHeight(width);
  const int liked = LikedHeight(width);
  const int bar =
      width > maximumViewportSize().width() ? horizontalScrollBar()->sizeHint().height() : 0;
  return {Px(160), std::max(least, std::min(liked, std::max(window_, least * 5 / 4))) + bar};
}

void Scroller::SetWhole(int window) {
  if (window_ == window) return;
  window_ = window;
  updateGeometry();
}

/// Whether the body scrolls by itself is told from what it needs for that, however it is now.
void Scroller::FitInner(int width, int room) {
  const int head = LeastHeight(width) - inner_->minimumSizeHint().height();
  const int window = head + inner_->LeastRoom() > room ? room : 0;
  if (window == inner_->window_) return;
  inner_->SetWhole(window);
  widget()->layout()->invalidate();
}

int Scroller::LeastHeight(int width) const {
  const QLayout* layout = widget()->layout();
  return layout->hasHeightForWidth() ? layout->totalMinimumHeightForWidth(width)
                                     : layout->totalMinimumSize().height();
}

int Scroller::LikedHeight(int width) const {
  const QLayout* layout = widget()->layout();
  return layout->hasHeightForWidth() ? layout->totalHeightForWidth(width)
                                     : layout->totalSizeHint().height();
}

int Scroller::Lacks() const {
  return placed_ ? std::max(0, LikedHeight(WholeWidth()) - sizeHint().height()) : 0;
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
  if (inner_) FitInner(width, room.height());
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
