#pragma once

#include <QPainterPath>
#include <QProxyStyle>
#include <QStyleOption>

namespace grapplemont::desktop {

/// How Qt's own widgets are drawn here: boxes, ticks, sliders, scroll bars, tabs, menus.
class HouseStyle : public QProxyStyle {
 public:
  HouseStyle();

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

/// A filled box with round corners and a line around it; one without a line has the fill's colour
/// there.
void DrawBox(QPainter& painter, const QRectF& where, const QColor& fill, const QColor& edge,
             double radius);
/// The line around what has the keyboard.
void DrawFocus(QPainter& painter, const QRectF& where, double radius, const QPalette& palette);
/// A line along the path, its ends round.
void DrawStroke(QPainter& painter, const QPainterPath& path, const QColor& colour, double width);
/// A small arrow head, its tip down.
void DrawChevron(QPainter& painter, const QPointF& centre, double width, const QColor& colour);

inline bool Has(const QStyleOption& option, QStyle::StateFlag state) {
  return option.state.testFlag(state);
}

}  // namespace grapplemont::desktop
