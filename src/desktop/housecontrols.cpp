#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/wordswidth.h"

// The larger parts of the style: combo boxes, sliders, scroll bars, tabs, menus.

namespace grapplemont::desktop {

namespace {

void DrawCombo(const QStyleOptionComboBox& option, QPainter& painter) {
  const Colours& c = ColoursOf(option.palette);
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool hover = enabled && Has(option, QStyle::State_MouseOver);
  DrawBox(painter, option.rect, hover ? c.Hover : enabled ? c.Field : c.Card, c.Edge, Px(6));
  DrawChevron(painter, QPointF(option.rect.right() - Px(15), option.rect.center().y() + 1), Px(8),
              enabled ? c.Muted : c.Faint);
  if (enabled && Has(option, QStyle::State_HasFocus))
    DrawFocus(painter, option.rect, Px(6), option.palette);
}

void DrawSlider(const QStyleOptionSlider& option, QPainter& painter, const QRect& handle) {
  const Colours& c = ColoursOf(option.palette);
  const bool enabled = Has(option, QStyle::State_Enabled);
  const QRectF full = option.rect;
  const double thick = Px(4);
  const QRectF groove(full.left(), full.center().y() - thick / 2, full.width(), thick);
  DrawBox(painter, groove, c.Track, QColor(), thick / 2);
  QRectF filled = groove;
  filled.setRight(handle.center().x());
  DrawBox(painter, filled, enabled ? c.BlueFill : c.Faint, QColor(), thick / 2);
  const double size = Px(14);
  const QRectF knob(handle.center().x() - size / 2, full.center().y() - size / 2, size, size);
  DrawBox(painter, knob, enabled ? c.Soft : c.Faint, c.Card, size / 2);
  if (Has(option, QStyle::State_HasFocus))
    DrawFocus(painter, knob.adjusted(-2, -2, 2, 2), size / 2 + 2, option.palette);
}

/// A slim bar without arrows that shows itself only where there is something to scroll.
void DrawScrollBar(const QStyleOptionSlider& option, QPainter& painter, QRectF slider) {
  if (option.maximum <= option.minimum) return;
  const Colours& c = ColoursOf(option.palette);
  const bool busy = Has(option, QStyle::State_MouseOver) || Has(option, QStyle::State_Sunken);
  const double inset = Px(busy ? 2 : 3);
  slider.adjust(inset, inset, -inset, -inset);
  const double radius = std::min(slider.width(), slider.height()) / 2;
  DrawBox(painter, slider, busy ? c.Faint : c.Edge, QColor(), radius);
}

void DrawTab(const QStyleOptionTab& option, QPainter& painter) {
  const Colours& c = ColoursOf(option.palette);
  const bool chosen = Has(option, QStyle::State_Selected);
  const bool hover = Has(option, QStyle::State_MouseOver);
  painter.setPen(chosen ? c.Text : hover ? c.Soft : c.Muted);
  const QFont font = TextFont(13, chosen ? QFont::DemiBold : QFont::Normal);
  DrawWords(painter, option.rect, Qt::AlignCenter, font,
            WordsWithin(font, option.text, option.rect.width() - Px(8)));
  QRect line = option.rect;
  line.setTop(line.bottom() - Px(2) + 1);
  if (chosen) painter.fillRect(line.adjusted(Px(8), 0, -Px(8), 0), c.GoldFill);
  if (Has(option, QStyle::State_HasFocus))
    DrawFocus(painter, option.rect.adjusted(2, 2, -2, -4), Px(4), option.palette);
}

/// One of the arrows beside tabs that have no room.
void DrawTabArrow(const QStyleOptionToolButton& option, QPainter& painter) {
  const Colours& c = ColoursOf(option.palette);
  const bool enabled = Has(option, QStyle::State_Enabled);
  painter.fillRect(option.rect, c.Ground);
  painter.save();
  painter.translate(QRectF(option.rect).center());
  painter.rotate(option.arrowType == Qt::LeftArrow ? 90 : -90);
  DrawChevron(painter, {}, Px(10), enabled ? c.Soft : c.Faint);
  painter.restore();
}

void DrawMenuItem(const QStyleOptionMenuItem& option, QPainter& painter) {
  const Colours& c = ColoursOf(option.palette);
  const QRect rect = option.rect;
  if (option.menuItemType == QStyleOptionMenuItem::Separator) {
    painter.fillRect(rect.left() + Px(8), rect.center().y(), rect.width() - Px(16), 1, c.Edge);
    return;
  }
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool lit = enabled && Has(option, QStyle::State_Selected);
  if (lit) DrawBox(painter, rect.adjusted(Px(2), 0, -Px(2), 0), c.Hover, QColor(), Px(4));
  const QColor quiet = !enabled ? c.Faint : lit ? c.Soft : c.Muted;
  if (option.checkType != QStyleOptionMenuItem::NotCheckable && option.checked) {
    QStyleOption tick;
    tick.palette = option.palette;
    tick.state = QStyle::State_On | QStyle::State_Enabled;
    tick.rect = QRect(rect.left() + Px(8), rect.center().y() - Px(7), Px(14), Px(14));
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &tick, &painter);
  }
  painter.setFont(TextFont());
  painter.setPen(enabled ? c.Text : c.Faint);
  const auto parts = option.text.split('\t');
  const QRect text = rect.adjusted(Px(30), 0, -Px(12), 0);
  painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft, parts.front());
  if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
    painter.save();
    painter.translate(rect.right() - Px(12), rect.center().y() + 1);
    painter.rotate(-90);
    DrawChevron(painter, {}, Px(8), quiet);
    painter.restore();
  }
  if (parts.size() < 2) return;
  painter.setPen(quiet);
  painter.drawText(text, Qt::AlignVCenter | Qt::AlignRight, parts.back());
}

}  // namespace

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  switch (element) {
    case CE_TabBarTab:
      if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option))
        return DrawTab(*tab, *painter);
      break;
    case CE_MenuItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
        return DrawMenuItem(*item, *painter);
      break;
    case CE_HeaderEmptyArea:
      return;
    case CE_ComboBoxLabel:
      if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        const Colours& c = ColoursOf(option->palette);
        painter->setPen(Has(*option, State_Enabled) ? c.Text : c.Faint);
        const QRect text = option->rect.adjusted(Px(11), 0, -Px(26), 0);
        const QFont& font = painter->font();
        DrawWords(*painter, text, Qt::AlignVCenter, font,
                  WordsWithin(font, combo->currentText, text.width()));
        return;
      }
      break;
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  if (control == CC_ComboBox)
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
      return DrawCombo(*combo, *painter);
  if (control == CC_ToolButton)
    if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        button && button->arrowType != Qt::NoArrow)
      return DrawTabArrow(*button, *painter);
  if (control == CC_SpinBox) {
    QStyleOptionFrame field;
    field.QStyleOption::operator=(*option);
    field.lineWidth = 1;
    return drawPrimitive(PE_PanelLineEdit, &field, painter, widget);
  }
  if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
    if (control == CC_Slider)
      return DrawSlider(*slider, *painter,
                        subControlRect(control, option, SC_SliderHandle, widget));
    if (control == CC_ScrollBar)
      return DrawScrollBar(*slider, *painter,
                           subControlRect(control, option, SC_ScrollBarSlider, widget));
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect HouseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                 SubControl part, const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control != CC_ScrollBar || !bar)
    return QProxyStyle::subControlRect(control, option, part, widget);
  const bool across = bar->orientation == Qt::Horizontal;
  const QRect all = bar->rect;
  const int room = across ? all.width() : all.height();
  const int range = bar->maximum - bar->minimum;
  int length = room;
  if (range > 0)
    length = std::clamp(
        static_cast<int>(static_cast<qint64>(room) * bar->pageStep / (range + bar->pageStep)),
        std::min(Px(28), room), room);
  const int at = sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition,
                                         room - length, bar->upsideDown);
  const auto piece = [&](int from, int size) {
    return across ? QRect(all.left() + from, all.top(), size, all.height())
                  : QRect(all.left(), all.top() + from, all.width(), size);
  };
  switch (part) {
    case SC_ScrollBarGroove:
      return all;
    case SC_ScrollBarSlider:
      return piece(at, length);
    case SC_ScrollBarSubPage:
      return piece(0, at);
    case SC_ScrollBarAddPage:
      return piece(at + length, room - at - length);
    default:
      return {};
  }
}

}  // namespace grapplemont::desktop
