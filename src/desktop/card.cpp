#include "desktop/card.h"

#include <QEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/palette.h"

namespace grapplemont::desktop {

namespace {

constexpr int kMargin = 40;  // that a card keeps from the window's edge

}  // namespace

void Card::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Colours& c = ColoursOf(this);
  DrawBox(painter, rect(), c.Card, c.Line, Px(8));
}

void FocusRing::FocusFirst() {
  const QWidget* const self = this;
  for (QWidget* widget = nextInFocusChain(); widget != self; widget = widget->nextInFocusChain())
    if (isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() &&
        widget->isVisibleTo(this) && !widget->focusProxy())
      return widget->setFocus(Qt::OtherFocusReason);
  setFocus(Qt::OtherFocusReason);
}

bool FocusRing::focusNextPrevChild(bool next) {
  QWidget* const from = focusWidget() ? focusWidget() : this;
  for (QWidget* widget = from;;) {
    widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    if (widget == from) return true;
    if (isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() &&
        widget->isVisibleTo(this) && !widget->focusProxy()) {
      widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
      return true;
    }
  }
}

Veil::Veil(QWidget* ground) : FocusRing(ground), card_(new Card(this)) {
  setFocusPolicy(Qt::ClickFocus);
  card_->installEventFilter(this);
  ground->installEventFilter(this);
  setGeometry(ground->rect());
}

void Veil::PlaceCard() {
  const QSize most = size() - QSize(2 * Px(kMargin), 2 * Px(kMargin));
  QSize wanted =
      wanted_.isValid() ? QSize(Px(wanted_.width()), Px(wanted_.height())) : card_->sizeHint();
  if (wanted_.isValid()) wanted = wanted.expandedTo(card_->sizeHint());
  wanted = wanted.boundedTo(most);
  if (!wanted_.isValid() && card_->layout() && card_->layout()->hasHeightForWidth())
    wanted.setHeight(std::min(most.height(), card_->layout()->totalHeightForWidth(wanted.width())));
  const int top = atTop_ ? Px(80) : std::max(0, (height() - wanted.height()) / 2);
  card_->setGeometry((width() - wanted.width()) / 2, top, wanted.width(), wanted.height());
}

void Veil::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ColoursOf(this).Shade);
}

void Veil::resizeEvent(QResizeEvent*) {
  PlaceCard();
}

/// What lies below takes no clicks.
void Veil::mousePressEvent(QMouseEvent* event) {
  event->accept();
}

bool Veil::event(QEvent* event) {
  if (event->type() == QEvent::Wheel) return true;
  return FocusRing::event(event);
}

bool Veil::eventFilter(QObject* watched, QEvent* event) {
  if (watched == card_ && event->type() == QEvent::LayoutRequest) PlaceCard();
  if (watched == parentWidget() && event->type() == QEvent::Resize)
    setGeometry(parentWidget()->rect());
  return FocusRing::eventFilter(watched, event);
}

}  // namespace grapplemont::desktop
