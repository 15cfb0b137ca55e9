#include <QPixmapCache>
#include <cmath>

#include "desktop/drawn/drawn.h"
#include "desktop/drawn/figure.h"

namespace grapplemont::desktop {

namespace {

constexpr double kSmall = 34;  // pixels of the drawing, up to which a portrait is a head alone

/// Clips have no soft edges: everything is painted that much larger and made smaller at once.
constexpr int kFiner = 3;

QImage Painted(const ui::Portrait& person, bool small, int pixels) {
  const QRectF shown = small ? QRectF(19, 9, 62, 62) : QRectF(5, 6.5, 90, 90);
  const Likeness face = LikenessOf(person);
  QImage image(pixels * kFiner, pixels * kFiner, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(image.width() / shown.width(), image.height() / shown.height());
  painter.translate(-shown.topLeft());
  Brush brush(painter);
  PaintGround(brush, face, small);
  PaintHairBehind(brush, face);
  PaintBody(brush, face);
  PaintBraids(brush, face);
  face.Masked ? PaintMask(brush, face) : PaintFace(brush, face, small);
  PaintOver(brush, face);
  painter.end();
  return image.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

void DrawPortrait(QPainter& painter, const QRectF& where, const ui::Portrait& person) {
  const bool small = where.width() <= kSmall;
  const double ratio = painter.device()->devicePixelRatioF();
  const int pixels = static_cast<int>(std::ceil(where.width() * ratio));
  const QString key = QString("portrait %1 %2%3%4 %5 %6 %7 %8 %9")
                          .arg(person.Uid)
                          .arg(person.Woman)
                          .arg(person.Heavy)
                          .arg(person.Superstar)
                          .arg(static_cast<int>(person.Wears))
                          .arg(static_cast<int>(person.Shows))
                          .arg(person.Age)
                          .arg(pixels)
                          .arg(small);
  QPixmap picture;
  if (!QPixmapCache::find(key, &picture)) {
    picture = QPixmap::fromImage(Painted(person, small, pixels));
    QPixmapCache::insert(key, picture);
  }
  const double round = small ? where.width() / 6 : 8;
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  QBrush texture(picture);
  QTransform place;
  place.translate(where.x(), where.y());
  place.scale(where.width() / pixels, where.height() / pixels);
  texture.setTransform(place);
  painter.setPen(Qt::NoPen);
  painter.setBrush(texture);
  painter.drawRoundedRect(where, round, round);
  painter.restore();
}

}  // namespace grapplemont::desktop
