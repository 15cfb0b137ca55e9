#include "desktop/card.h"

#include <QEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/scroller.h"
#include "desktop/spoken.h"

namespace grapplemont::desktop {

FlowLayout::FlowLayout(int gap, Qt::Alignment align) : gap_(gap), align_(align) {
  setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
  while (QLayoutItem* item = takeAt(0)) delete item;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

QSize FlowLayout::sizeHint() const {
  int width = 0, height = 0;
  for (const QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    width += (width > 0 ? gap_ : 0) + item->sizeHint().width();
    height = std::max(height, item->sizeHint().height());
  }
  return {width, height};
}

void FlowLayout::SetOneRow(bool oneRow) {
  if (oneRow_ == oneRow) return;
  oneRow_ = oneRow;
  invalidate();
}

QSize FlowLayout::LeastSize() const {
  QSize least;
  for (const QLayoutItem* item : items_)
    if (!item->isEmpty()) least = least.expandedTo(item->minimumSize());
  return least;
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  Arrange(rect, true);
}

namespace {

/// What is wider than the whole room is cut to it.
QSize SizeWithin(const QRect& room, const QLayoutItem& item) {
  const QSize size = item.sizeHint();
  return {std::clamp(room.width(), 1, std::max(1, size.width())), size.height()};
}

}  // namespace

int FlowLayout::MostInARow(const QRect& room) const {
  int all = 0, rows = 1, width = -gap_;
  for (const QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    const int own = SizeWithin(room, *item).width();
    if (width > 0 && width + gap_ + own > room.width()) {
      ++rows;
      width = -gap_;
    }
    width += gap_ + own;
    ++all;
  }
  return align_ & Qt::AlignHCenter ? (all + rows - 1) / rows : all;
}

int FlowLayout::Arrange(const QRect& room, bool place) const {
  int y = room.top();
  if (place && align_ & (Qt::AlignBottom | Qt::AlignVCenter)) {
    const int over = std::max(0, room.height() - heightForWidth(room.width()));
    y += align_ & Qt::AlignBottom ? over : over / 2;
  }
  QList<QLayoutItem*> line;
  int width = 0, height = 0;
  const int most = MostInARow(room);
  const auto finish = [&] {
    const int over = std::max(0, room.width() - width);
    int x = room.left() + (align_ & Qt::AlignHCenter ? over / 2
                           : align_ & Qt::AlignRight ? over
                                                     : 0);
    for (QLayoutItem* item : line) {
      const QSize size = SizeWithin(room, *item);
      if (place) item->setGeometry(QRect(QPoint(x, y + (height - size.height()) / 2), size));
      x += size.width() + gap_;
    }
    if (!line.isEmpty()) y += height + gap_;
    line.clear();
    width = height = 0;
  };
  for (QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    const QSize size = SizeWithin(room, *item);
    if (line.size() == most || (!line.isEmpty() && width + gap_ + size.width() > room.width()))
      finish();
    width += (line.isEmpty() ? 0 : gap_) + size.width();
    height = std::max(height, size.height());
    line.append(item);
  }
  finish();
  return std::max(0, y - room.top() - gap_);
}

namespace {

// What a card keeps from the window's edge, less where the window has not even this room for it.
constexpr int kMargin = 40, kLeastMargin = 8;
constexpr QSize kRoomy(860, 560);
constexpr int kTop = 80;  // above a card that does not stand in the middle

int MarginIn(int window, int roomy) {
  return std::clamp((window - Px(roomy)) / 2, Px(kLeastMargin), Px(kMargin));
}

}  // namespace

void Card::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Colours& c = ColoursOf(this);
  DrawBox(painter, rect(), c.Card, c.Line, Px(8));
}

bool Veil::Leads(const QWidget& widget) const {
  return isAncestorOf(&widget) && (widget.focusPolicy() & Qt::TabFocus) && widget.isEnabled() &&
         widget.isVisibleTo(this) && !widget.focusProxy();
}

bool Veil::focusNextPrevChild(bool next) {
  QWidget* const from = focusWidget() ? focusWidget() : this;
  QWidget* widget = from;
  do {
    widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    if (widget == from) return true;
  } while (!Leads(*widget));
  widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

Veil::Veil(QWidget* ground) : QWidget(ground), card_(new Card(this)) {
  Means(*this, QAccessible::Dialog);
  setFocusPolicy(Qt::ClickFocus);
  card_->installEventFilter(this);
  ground->installEventFilter(this);
  setGeometry(ground->rect());
}

void Veil::PlaceCard() {
  const QSize most =
      size() - 2 * QSize(MarginIn(width(), kRoomy.width()), MarginIn(height(), kRoomy.height()));
  if (atTop_.isValid()) return PlaceAtTop(most);
  QSize wanted = card_->sizeHint();
  if (wanted_.isValid()) wanted = wanted.expandedTo({Px(wanted_.width()), Px(wanted_.height())});
  // What is too high scrolls, and its bar takes nothing from it.
  else if (wanted.height() > most.height())
    wanted.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  wanted = wanted.boundedTo(most);
  if (!wanted_.isValid() && card_->layout() && card_->layout()->hasHeightForWidth())
    wanted.setHeight(card_->layout()->totalHeightForWidth(wanted.width()));
  // Words that have turned into more lines make a body higher than it asks for.
  const auto* body = dynamic_cast<const Scroller*>(card_->findChild<QScrollArea*>());
  if (body && !wanted_.isValid()) wanted.rheight() += body->Lacks();
  wanted = wanted.boundedTo(most);
  const int top = std::max(0, (height() - wanted.height()) / 2);
  card_->setGeometry((width() - wanted.width()) / 2, top, wanted.width(), wanted.height());
}

void Veil::PlaceAtTop(const QSize& most) {
  const QSize full = QSize(Px(atTop_.width()), Px(atTop_.height())).boundedTo(most);
  const int top = std::clamp((height() - full.height()) / 2, 0, Px(kTop));
  card_->setGeometry((width() - full.width()) / 2, top, full.width(),
                     std::min(full.height(), card_->sizeHint().height()));
}

void Veil::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ColoursOf(this).Shade);
}

/// What lies below takes no clicks and does not scroll.
bool Veil::event(QEvent* event) {
  return event->type() == QEvent::Wheel || QWidget::event(event);
}

bool Veil::eventFilter(QObject* watched, QEvent* event) {
  if (watched == card_ && event->type() == QEvent::LayoutRequest) PlaceCard();
  if (watched == parentWidget() && event->type() == QEvent::Resize)
    setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

}  // namespace grapplemont::desktop
