#include "desktop/button.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

constexpr int kSide = 15;        // room beside the caption
constexpr int kEnterWidth = 12;  // of the sign
constexpr int kGap = 8;
constexpr int kBadgeHeight = 17;

/// The arrow that turns back to the line's start.
void DrawEnterSign(QPainter& painter, const QRectF& where, const QColor& colour) {
  const double head = where.height() * 0.3;
  const double y = where.top() + where.height() * 0.62;
  QPainterPath path;
  path.moveTo(where.right(), where.top() + where.height() * 0.15);
  path.lineTo(where.right(), y);
  path.lineTo(where.left(), y);
  path.moveTo(where.left() + head, y - head);
  path.lineTo(where.left(), y);
  path.lineTo(where.left() + head, y + head);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, where.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(path);
  painter.restore();
}

}  // namespace

int BadgeWidthFor(const QString& text) {
  const int words = QFontMetrics(TextFont(11, QFont::DemiBold)).horizontalAdvance(text);
  return std::max(Px(20), words + Px(12));
}

void DrawBadge(QPainter& painter, const QRectF& where, const QString& text, const QWidget* on) {
  DrawBox(painter, where, ColoursOf(on).RedFill, QColor(), where.height() / 2);
  painter.setFont(TextFont(11, QFont::DemiBold));
  painter.setPen(Qt::white);
  painter.drawText(where, Qt::AlignCenter, text);
}

PushButton::PushButton(QWidget* parent, const QString& caption) : QAbstractButton(parent) {
  setText(caption);
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PushButton::SetGold(bool gold) {
  if (gold_ == gold) return;
  gold_ = gold;
  updateGeometry();
  update();
}

void PushButton::SetEnter(bool enter) {
  if (enter_ == enter) return;
  enter_ = enter;
  updateGeometry();
  update();
}

void PushButton::SetBadge(const QString& badge) {
  if (badge_ == badge) return;
  badge_ = badge;
  updateGeometry();
  update();
}

void PushButton::SetLeast(int width, int height) {
  least_ = {Px(width), Px(height)};
  updateGeometry();
}

void PushButton::SetTextColour(const QColor& colour) {
  textColour_ = colour;
  update();
}

QFont PushButton::CaptionFont() const {
  return TextFont(kUsualText, gold_ ? QFont::DemiBold : QFont::Normal);
}

int PushButton::BadgeWidth() const {
  return badge_.isEmpty() ? 0 : BadgeWidthFor(badge_) + Px(kGap);
}

QSize PushButton::sizeHint() const {
  int width = QFontMetrics(CaptionFont()).horizontalAdvance(text()) + 2 * Px(kSide) + BadgeWidth();
  if (enter_) width += Px(kGap) + Px(kEnterWidth);
  return QSize(width, Px(32)).expandedTo(least_);
}

void PushButton::paintEvent(QPaintEvent*) {
  const Colours& c = ColoursOf(this);
  QPainter painter(this);
  const bool lit = isEnabled() && (underMouse() || isDown());
  QColor fill = lit ? c.Hover : c.Button;
  QColor edge = c.Edge;
  QColor ink = textColour_.isValid() ? textColour_ : c.Text;
  if (!isEnabled()) {
    fill = c.Card;
    edge = c.Line;
    ink = c.Faint;
  }
  if (gold_) {
    fill = !isEnabled() ? c.DimGold : lit ? c.GoldFill.lighter(108) : c.GoldFill;
    edge = QColor();
    ink = c.OnGold;
  }
  if (isDown()) fill = fill.darker(108);
  DrawBox(painter, rect(), fill, edge, Px(6));

  const QFont font = CaptionFont();
  const QFontMetrics metrics(font);
  const int tail = BadgeWidth() + (enter_ ? Px(kGap) + Px(kEnterWidth) : 0);
  const int room = width() - 2 * Px(8) - tail;
  const QString caption = metrics.elidedText(text(), Qt::ElideRight, room);
  const int words = metrics.horizontalAdvance(caption);
  double x = (width() - words - tail) / 2.0;
  painter.setFont(font);
  painter.setPen(ink);
  painter.drawText(QRectF(x, 0, words + 2, height()), Qt::AlignVCenter | Qt::AlignLeft, caption);
  x += words + Px(kGap);
  if (!badge_.isEmpty()) {
    const int spot = BadgeWidthFor(badge_);
    DrawBadge(painter, QRectF(x, (height() - Px(kBadgeHeight)) / 2.0, spot, Px(kBadgeHeight)),
              badge_, this);
    x += spot + Px(kGap);
  }
  if (enter_)
    DrawEnterSign(painter,
                  QRectF(x, (height() - Px(kEnterWidth)) / 2.0, Px(kEnterWidth), Px(kEnterWidth)),
                  ink);
  if (hasFocus() && ring_) DrawFocus(painter, rect(), Px(6), palette());
}

void PushButton::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !event->isAutoRepeat()) return click();
  QAbstractButton::keyPressEvent(event);
}

/// The ring tells where keys have led to; the answer that a box offers is gold already.
void PushButton::focusInEvent(QFocusEvent* event) {
  ring_ = event->reason() != Qt::OtherFocusReason;
  QAbstractButton::focusInEvent(event);
}

void PushButton::enterEvent(QEnterEvent*) {
  update();
}

void PushButton::leaveEvent(QEvent*) {
  update();
}

ButtonView::ButtonView(ui::Button& button, Stage& stage, QWidget* parent)
    : PushButton(parent), ControlView(button, stage), button_(button) {
  connect(this, &QAbstractButton::clicked, this, [this] { Pressed ? Pressed() : Do(ui::Click); });
}

void ButtonView::Show() {
  setText(Shown(button_.Text.Get()));
  SetBadge(Shown(button_.Badge.Get()));
  const ui::Tone tone = button_.Colour.Get();
  SetTextColour(tone == ui::Tone::Plain ? QColor() : TextColour(ColoursOf(this), tone));
  updateGeometry();
  update();
}

}  // namespace grapplemont::desktop
