#include "desktop/button.h"

#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <algorithm>

#include "desktop/housestyle.h"
#include "desktop/pieces.h"
#include "desktop/views.h"
#include "desktop/wordswidth.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

constexpr int kSide = 15;      // room beside the caption
constexpr int kPlainSide = 3;  // of words without a frame
constexpr int kHeight = 32, kPlainHeight = 24;
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
  DrawStroke(painter, path, colour, where.width() / 8);
}

/// In whole pixels, so that words are not cut in the room that they have asked for.
QFont BadgeFont() {
  return TextFont(11, QFont::DemiBold);
}

}  // namespace

BareButton::BareButton(QWidget* parent, const QString& caption) : QAbstractButton(parent) {
  setText(caption);
  setFocusPolicy(Qt::TabFocus);
  connect(this, &QAbstractButton::released, this, [this] { setUpdatesEnabled(true); });
}

bool BareButton::event(QEvent* event) {
  const bool cut = event->type() == QEvent::ToolTip && WidthWanted() > width();
  return TipWhatIsCut(*event, *this, text(), cut) || QAbstractButton::event(event);
}

/// Some desktops have Enter press whatever button has the keyboard; here it is the page's.
void BareButton::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event->key())) return event->ignore();
  QAbstractButton::keyPressEvent(event);
}

/// Qt would paint a button that is let go at once, and again what its click makes of it.
void BareButton::mouseReleaseEvent(QMouseEvent* event) {
  const QPointer<BareButton> still(this);
  setUpdatesEnabled(!isDown());
  QAbstractButton::mouseReleaseEvent(event);
  if (still) setUpdatesEnabled(true);
}
void BareButton::keyReleaseEvent(QKeyEvent* event) {
  const QPointer<BareButton> still(this);
  setUpdatesEnabled(!isDown());
  QAbstractButton::keyReleaseEvent(event);
  if (still) setUpdatesEnabled(true);
}

int BareButton::BadgeWidth() const {
  if (badge_.isEmpty()) return 0;
  return std::max(Px(20), WordsWidth(BadgeFont(), badge_) + Px(12));
}

void BareButton::DrawBadge(QPainter& painter, double left) const {
  const QRectF spot(left, (height() - Px(kBadgeHeight)) / 2.0, BadgeWidth(), Px(kBadgeHeight));
  DrawBox(painter, spot, ColoursOf(this).RedFill, QColor(), spot.height() / 2);
  painter.setPen(Qt::white);
  DrawWords(painter, spot, Qt::AlignCenter, BadgeFont(), badge_);
}

void LinkItem::setGeometry(const QRect& rect) {
  QWidgetItem::setGeometry(rect.translated(-Px(kPlainSide), 0));
}

PushButton::PushButton(QWidget* parent, const QString& caption) : BareButton(parent, caption) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QFont PushButton::CaptionFont() const {
  return TextFont(kUsualText, gold_ ? QFont::DemiBold : QFont::Normal);
}

int PushButton::TailWidth(bool enter) const {
  return (badge_.isEmpty() ? 0 : Px(kGap) + BadgeWidth()) +
         (enter ? Px(kGap) + Px(kEnterWidth) : 0);
}

int PushButton::Side() const {
  return plain_ ? kPlainSide : kSide;
}

QSize PushButton::sizeHint() const {
  const int words = WordsWidth(CaptionFont(), text());
  const int height = Px(plain_ ? kPlainHeight : kHeight);
  return QSize(words + 2 * Px(Side()) + TailWidth(gold_ || enter_), height).expandedTo(least_);
}

PushButton::Paints PushButton::PaintsNow() const {
  const Colours& c = ColoursOf(this);
  const bool lit = isEnabled() && (underMouse() || isDown());
  Paints paints{lit ? c.Hover : c.Button, c.Edge, textColour_.isValid() ? textColour_ : c.Text};
  if (!isEnabled()) paints = {c.Card, c.Line, c.Faint};
  if (gold_) {
    paints = {lit ? c.GoldFill.lighter(108) : c.GoldFill, QColor(), c.OnGold};
    if (!isEnabled()) paints = {c.DimGold, QColor(), c.OnDimGold};
  }
  if (isDown()) paints.Fill = paints.Fill.darker(108);
  if (plain_) {
    const QColor ink = textColour_.isValid() ? textColour_ : c.Blue;
    paints = {lit ? c.Hover : QColor(), QColor(), isEnabled() ? ink : c.Muted};
  }
  return paints;
}

void PushButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto [fill, edge, ink] = PaintsNow();
  DrawBox(painter, rect(), fill, edge, Px(6));

  const int room = width() - 2 * Px(std::min(8, Side())) - TailWidth(enter_);
  const QString caption = WordsWithin(CaptionFont(), text(), room);
  const int words = WordsWidth(CaptionFont(), caption);
  double x = (width() - words - TailWidth(enter_)) / 2.0;
  painter.setPen(ink);
  DrawWords(painter, QRectF(x, 0, words + 2, height()), Qt::AlignVCenter, CaptionFont(), caption);
  x += words + Px(kGap);
  if (!badge_.isEmpty()) {
    DrawBadge(painter, x);
    x += BadgeWidth() + Px(kGap);
  }
  const int sign = Px(kEnterWidth);
  if (enter_) DrawEnterSign(painter, QRectF(x, (height() - sign) / 2.0, sign, sign), ink);
  if (hasFocus() && ring_) DrawFocus(painter, rect(), Px(6), palette());
}

/// The ring tells where keys have led to; the answer that a box offers is gold already.
void PushButton::focusInEvent(QFocusEvent* event) {
  ring_ = event->reason() != Qt::OtherFocusReason;
  QAbstractButton::focusInEvent(event);
}

void OpenFolded(const std::vector<PushButton*>& folded, QWidget& below) {
  QMenu* menu = NewMenu(&below, below.objectName() + "menu");
  menu->setToolTipsVisible(true);
  for (PushButton* view : folded) {
    QAction* action = menu->addAction(view->text(), view, [view] { view->click(); });
    action->setEnabled(view->isEnabled());
    action->setToolTip(view->toolTip());
  }
  menu->popup(below.mapToGlobal(QPoint(0, below.height() + Px(4))));
}

std::string WhyNotPress(const ui::Button& button) {
  if (button.Enabled) return {};
  return button.Tip->empty() ? button.Text.Get() + " cannot be pressed now." : button.Tip.Get();
}

ButtonView::ButtonView(ui::Button& button, Stage& stage, QWidget* parent)
    : ViewOf(button, stage, parent) {
  connect(this, &QAbstractButton::clicked, this, [this] { Pressed ? Pressed() : Do(ui::Click); });
  connect(&clock_, &QTimer::timeout, this, [this] {
    if (isVisible() && isEnabled()) click();
  });
}

/// What it waits for is not moved away by being looked at again.
void ButtonView::KeepTime() {
  const int wait = control_.Every;
  if (wait == 0) return clock_.stop();
  if (!clock_.isActive() || clock_.interval() != wait) clock_.start(wait);
}

void ButtonView::Show() {
  SetPlain(control_.Plain);
  setText(Shown(control_.Text.Get()));
  SetBadge(Shown(control_.Badge.Get()));
  const ui::Tone tone = control_.Colour.Get();
  textColour_ = tone == ui::Tone::Plain ? QColor() : TextColour(ColoursOf(this), tone);
  KeepTime();
  updateGeometry();
  update();
}

ControlView* NewView(ui::Button& button, Stage& stage, QWidget* parent) {
  return new ButtonView(button, stage, parent);
}

}  // namespace grapplemont::desktop
