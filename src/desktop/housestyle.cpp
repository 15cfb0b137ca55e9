#include "desktop/housestyle.h"

#include <QPainter>
#include <QPixmapCache>
#include <QTableView>
#include <algorithm>
#include <cmath>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr double kCorner = 6;

/// Sizes in drawn pixels; all others are Qt's.
struct Metric {
  QStyle::PixelMetric Of;
  int Drawn;
};
constexpr Metric kMetrics[] = {
    {QStyle::PM_ScrollBarExtent, 12},
    {QStyle::PM_ScrollBarSliderMin, 28},
    {QStyle::PM_IndicatorWidth, 16},
    {QStyle::PM_IndicatorHeight, 16},
    {QStyle::PM_ExclusiveIndicatorWidth, 16},
    {QStyle::PM_ExclusiveIndicatorHeight, 16},
    {QStyle::PM_CheckBoxLabelSpacing, 8},
    {QStyle::PM_RadioButtonLabelSpacing, 8},
    {QStyle::PM_SliderThickness, 18},
    {QStyle::PM_SliderControlThickness, 18},
    {QStyle::PM_SliderLength, 16},
    {QStyle::PM_MenuPanelWidth, 4},
    {QStyle::PM_MenuVMargin, 4},
    {QStyle::PM_TabBarTabHSpace, 28},
    {QStyle::PM_TabBarTabVSpace, 16},
    {QStyle::PM_TabBarTabShiftVertical, 0},
    {QStyle::PM_TabBarTabShiftHorizontal, 0},
    {QStyle::PM_TabBarBaseOverlap, 0},
    {QStyle::PM_TabBarScrollButtonWidth, 28},
    {QStyle::PM_ButtonShiftHorizontal, 0},
    {QStyle::PM_ButtonShiftVertical, 0},
};

void DrawField(const QStyleOption& option, QPainter& painter) {
  const Colours& c = ColoursOf(option.palette);
  const bool enabled = Has(option, QStyle::State_Enabled);
  DrawBox(painter, option.rect, enabled ? c.Field : c.Card, c.Edge, Px(kCorner));
  if (enabled && Has(option, QStyle::State_HasFocus))
    DrawFocus(painter, option.rect, Px(kCorner), option.palette);
}

/// The box of a tick or a dot; false when nothing is to stand in it.
bool DrawMarkBox(const QStyleOption& option, QPainter& painter, double radius) {
  const Colours& c = ColoursOf(option.palette);
  const bool on = Has(option, QStyle::State_On);
  const QColor gold = Has(option, QStyle::State_Enabled) ? c.GoldFill : c.DimGold;
  DrawBox(painter, option.rect, on ? gold : c.Field, on ? QColor() : c.Edge, radius);
  return on;
}

void DrawTick(const QStyleOption& option, QPainter& painter) {
  if (!DrawMarkBox(option, painter, Px(4))) return;
  const QRectF box = option.rect;
  QPainterPath tick;
  tick.moveTo(box.left() + box.width() * 0.26, box.top() + box.height() * 0.52);
  tick.lineTo(box.left() + box.width() * 0.44, box.top() + box.height() * 0.70);
  tick.lineTo(box.left() + box.width() * 0.75, box.top() + box.height() * 0.32);
  DrawStroke(painter, tick, ColoursOf(option.palette).OnGold, box.width() / 8.0);
}

void DrawDot(const QStyleOption& option, QPainter& painter) {
  const QRectF box = option.rect;
  if (!DrawMarkBox(option, painter, box.width() / 2)) return;
  const qreal inset = box.width() * 0.32;
  DrawBox(painter, box.adjusted(inset, inset, -inset, -inset), ColoursOf(option.palette).OnGold,
          QColor(), box.width() / 2);
}

/// Tabs that go on beyond the edge fade there.
void DrawTear(const QRect& rect, bool toRight, QColor ground, QPainter& painter) {
  QLinearGradient fade(rect.topLeft(), rect.topRight());
  fade.setColorAt(toRight ? 1 : 0, ground);
  ground.setAlpha(0);
  fade.setColorAt(toRight ? 0 : 1, ground);
  painter.fillRect(rect, fade);
}

}  // namespace

namespace {

void DrawRounded(QPainter& painter, const QRectF& where, const QColor& fill, const QColor& edge,
                 double radius) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  painter.setPen(edge.isValid() ? QPen(edge, 1) : QPen(Qt::NoPen));
  const QRectF inner = edge.isValid() ? where.adjusted(0.5, 0.5, -0.5, -0.5) : where;
  painter.drawRoundedRect(inner, radius, radius);
  painter.restore();
}

/// Whether a box lies on whole pixels.
bool IsOnPixels(const QPainter& painter, const QRectF& where) {
  const QTransform& moved = painter.combinedTransform();
  const auto isWhole = [](double at) { return at == std::floor(at); };
  return QRectF(where.toRect()) == where && moved.type() <= QTransform::TxTranslate &&
         isWhole(moved.dx()) && isWhole(moved.dy()) && painter.device()->devicePixelRatioF() == 1;
}

/// A small box as it is drawn again and again.
QPixmap BoxOf(const QSize& size, const QColor& fill, const QColor& edge, double radius) {
  const auto rgba = [](const QColor& colour) { return colour.isValid() ? colour.rgba() : 0; };
  const QString key = QString("box %1 %2 %3 %4 %5")
                          .arg(size.width())
                          .arg(size.height())
                          .arg(rgba(fill), 0, 16)
                          .arg(rgba(edge), 0, 16)
                          .arg(radius);
  QPixmap picture;
  if (QPixmapCache::find(key, &picture)) return picture;
  picture = QPixmap(size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  DrawRounded(painter, QRectF({}, size), fill, edge, radius);
  painter.end();
  QPixmapCache::insert(key, picture);
  return picture;
}

/// All of it but the corners.
void FillBetweenCorners(QPainter& painter, const QRect& box, const QColor& fill, const QColor& edge,
                        int corner) {
  if (fill.isValid()) {
    painter.fillRect(box.adjusted(0, corner, 0, -corner), fill);
    painter.fillRect(box.left() + corner, box.top(), box.width() - 2 * corner, corner, fill);
    painter.fillRect(box.left() + corner, box.bottom() + 1 - corner, box.width() - 2 * corner,
                     corner, fill);
  }
  if (!edge.isValid()) return;
  for (const int y : {box.top(), box.bottom()})
    painter.fillRect(box.left() + corner, y, box.width() - 2 * corner, 1, edge);
  for (const int x : {box.left(), box.right()})
    painter.fillRect(x, box.top() + corner, 1, box.height() - 2 * corner, edge);
}

}  // namespace

/// Curves are slow to fill: a box that has straight sides is put together from one with hardly any.
void DrawBox(QPainter& painter, const QRectF& where, const QColor& fill, const QColor& edge,
             double radius) {
  if (!IsOnPixels(painter, where)) return DrawRounded(painter, where, fill, edge, radius);
  const int corner = static_cast<int>(std::ceil(radius)) + 1;
  const QRect box = where.toRect();
  if (std::min(box.width(), box.height()) <= 2 * corner) {
    constexpr int kSmall = 256;
    if (std::max(box.width(), box.height()) > kSmall || box.isEmpty())
      return DrawRounded(painter, where, fill, edge, radius);
    return painter.drawPixmap(box.topLeft(), BoxOf(box.size(), fill, edge, radius));
  }
  FillBetweenCorners(painter, box, fill, edge, corner);
  const QPixmap corners = BoxOf(QSize(2 * corner, 2 * corner), fill, edge, radius);
  for (const int x : {0, corner})
    for (const int y : {0, corner})
      painter.drawPixmap(x == 0 ? box.left() : box.right() + 1 - corner,
                         y == 0 ? box.top() : box.bottom() + 1 - corner, corners, x, y, corner,
                         corner);
}

void DrawFocus(QPainter& painter, const QRectF& where, double radius, const QPalette& palette) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ColoursOf(palette).Blue, 1.6));
  painter.drawRoundedRect(where.adjusted(0.8, 0.8, -0.8, -0.8), radius, radius);
  painter.restore();
}

void DrawStroke(QPainter& painter, const QPainterPath& path, const QColor& colour, double width) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(path);
  painter.restore();
}

void DrawChevron(QPainter& painter, const QPointF& centre, double width, const QColor& colour) {
  const double half = width / 2, drop = width / 4;
  QPainterPath path;
  path.moveTo(centre.x() - half, centre.y() - drop);
  path.lineTo(centre.x(), centre.y() + drop);
  path.lineTo(centre.x() + half, centre.y() - drop);
  DrawStroke(painter, path, colour, width / 6);
}

HouseStyle::HouseStyle() : QProxyStyle("Fusion") {}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
  const auto drawn =
      std::ranges::find_if(kMetrics, [&](const Metric& row) { return row.Of == metric; });
  return drawn == std::end(kMetrics) ? QProxyStyle::pixelMetric(metric, option, widget)
                                     : Px(drawn->Drawn);
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const {
  switch (hint) {
    case SH_Slider_AbsoluteSetButtons:
      return Qt::LeftButton;
    case SH_ScrollBar_LeftClickAbsolutePosition:
      return 1;
    case SH_ComboBox_Popup:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_UnderlineShortcut:
    case SH_Widget_Animate:
    case SH_ItemView_ActivateItemOnSingleClick:
    case SH_ItemView_ArrowKeysNavigateIntoChildren:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, returned);
  }
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const {
  const QSize given = QProxyStyle::sizeFromContents(type, option, size, widget);
  switch (type) {
    case CT_LineEdit:
    case CT_SpinBox:
      return {given.width(), Px(32)};
    case CT_ComboBox:
      return {given.width() + Px(20), Px(32)};
    case CT_MenuItem: {
      const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
      if (item && item->menuItemType == QStyleOptionMenuItem::Separator) return given;
      return {given.width() + Px(12), Px(28)};
    }
    default:
      return given;
  }
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  const Colours& c = ColoursOf(option->palette);
  switch (element) {
    case PE_PanelLineEdit:
      if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
          frame && frame->lineWidth > 0)
        DrawField(*option, *painter);
      return;
    case PE_Frame:
    case PE_FrameLineEdit:
      DrawBox(*painter, option->rect, c.Field, c.Edge, Px(kCorner));
      if (!Has(*option, State_HasFocus)) return;
      return DrawFocus(*painter, option->rect, Px(kCorner), option->palette);
    case PE_IndicatorCheckBox:
      return DrawTick(*option, *painter);
    case PE_IndicatorRadioButton:
      return DrawDot(*option, *painter);
    case PE_FrameFocusRect:
      return DrawFocus(*painter, option->rect, Px(4), option->palette);
    case PE_PanelMenu:
    case PE_PanelTipLabel:
      painter->fillRect(option->rect, c.Button);
      painter->setPen(c.Edge);
      painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
      return;
    case PE_IndicatorTabTearLeft:
    case PE_IndicatorTabTearRight:
      return DrawTear(option->rect, element == PE_IndicatorTabTearRight, c.Ground, *painter);
    case PE_FrameMenu:
    case PE_FrameTabBarBase:
    case PE_PanelScrollAreaCorner:
      return;
    case PE_PanelItemViewRow:
      if (qobject_cast<const QTableView*>(widget)) return;  // its cells mark the whole row
      [[fallthrough]];
    case PE_PanelItemViewItem:
      if (Has(*option, State_Selected) || Has(*option, State_MouseOver))
        painter->fillRect(option->rect, c.Chosen);
      return;
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

}  // namespace grapplemont::desktop
