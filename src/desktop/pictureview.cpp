#include "desktop/pictureview.h"

#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <algorithm>

#include "desktop/drawn/drawn.h"
#include "desktop/housestyle.h"
#include "desktop/pieces.h"
#include "desktop/spoken.h"
#include "desktop/views.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

/// Widest that a picture asks for by itself, whatever the size of text: it takes more where it is
/// given more, and words need the room first.
constexpr QSize kAskedFor(480, 300);
constexpr int kLarge = 90;          // high, of what is drawn
constexpr double kWordsEnd = 0.89;  // of a backdrop's height

/// Makes the outer tenth of a picture fade away.
void FadeEdges(QImage& image) {
  image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  for (const auto& [from, to] : {std::pair(QPointF(0, 0), QPointF(image.width(), 0)),
                                 std::pair(QPointF(0, 0), QPointF(0, image.height()))}) {
    QLinearGradient fade(from, to);
    fade.setColorAt(0, Qt::transparent);
    fade.setColorAt(0.10, Qt::black);
    fade.setColorAt(0.90, Qt::black);
    fade.setColorAt(1, Qt::transparent);
    painter.fillRect(image.rect(), fade);
  }
}

QPixmap DecodePicture(const QString& file, const QSize& room, Qt::AspectRatioMode mode,
                      double ratio, bool fading) {
  QImageReader reader(file);
  const QSize full = reader.size();
  if (!full.isValid() || room.isEmpty()) return {};
  reader.setScaledSize(full.scaled(room, mode));
  QImage image = reader.read();
  if (fading && !image.isNull()) FadeEdges(image);
  QPixmap pixmap = QPixmap::fromImage(image);
  pixmap.setDevicePixelRatio(ratio);
  return pixmap;
}

/// A picture read at a size in its own proportions, within `room` or covering it; null when there
/// is none. One that was read before is still known, as long as its file is as it was.
QPixmap ReadPicture(const QString& file, const QSize& room, Qt::AspectRatioMode mode, double ratio,
                    bool fading = false) {
  if (file.isEmpty()) return {};
  const QFileInfo now(file);
  const QString key = QString("%1|%2|%3|%4x%5|%6|%7|%8")
                          .arg(file)
                          .arg(now.lastModified().toMSecsSinceEpoch())
                          .arg(now.size())
                          .arg(room.width())
                          .arg(room.height())
                          .arg(static_cast<int>(mode))
                          .arg(ratio)
                          .arg(fading);
  QPixmap pixmap;
  if (QPixmapCache::find(key, &pixmap)) return pixmap;
  pixmap = DecodePicture(file, room, mode, ratio, fading);
  if (!pixmap.isNull()) QPixmapCache::insert(key, pixmap);
  return pixmap;
}

}  // namespace

void Backdrop::SetFile(const QString& file) {
  if (file == file_) return;
  file_ = file;
  for_ = {};
}

void Backdrop::Paint(QPainter& painter, const QWidget& on, int floor) {
  const double ratio = on.devicePixelRatioF();
  if (for_ != on.size()) {
    for_ = on.size();
    scaled_ = ReadPicture(file_, on.size() * ratio, Qt::KeepAspectRatioByExpanding, ratio);
  }
  if (scaled_.isNull()) return;
  const QSizeF size = scaled_.deviceIndependentSize();
  const double middle = (on.height() - size.height()) / 2;
  const double lift = std::max(0.0, middle + size.height() * kWordsEnd - floor);
  painter.drawPixmap(QPointF((on.width() - size.width()) / 2, middle - lift), scaled_);
  const double end = middle + size.height() - lift;
  if (end >= on.height()) return;
  // The picture runs out into what is below it.
  QColor ground = ColoursOf(&on).Ground;
  QLinearGradient fade(0, end - Px(48), 0, end);
  fade.setColorAt(1, ground);
  ground.setAlpha(0);
  fade.setColorAt(0, ground);
  painter.fillRect(QRectF(0, end - Px(48), on.width(), on.height() - end + Px(48)), fade);
}

PictureView::PictureView(ui::Picture& picture, Stage& stage, QWidget* parent)
    : ViewOf(picture, stage, parent) {
  Means(*this, Clickable() ? QAccessible::Button : QAccessible::Graphic);
  if (Clickable()) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
  }
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

double PictureView::Drawn() const {
  return ShapeOf(control_.Drawn.Get());
}

/// A picture that stands for itself grows little with the text, which would leave no room for any.
int PictureView::DrawnHeight() const {
  const int height = control_.Height;
  return height < kLarge ? Px(height) : std::min(Px(height), height * 5 / 4);
}

QSize PictureView::sizeHint() const {
  if (Drawn() > 0) return {static_cast<int>(DrawnHeight() * Drawn()), DrawnHeight()};
  if (!full_.isValid() || seeThrough_) return {Px(120), Px(80)};
  return full_.width() > kAskedFor.width() || full_.height() > kAskedFor.height()
             ? full_.scaled(kAskedFor, Qt::KeepAspectRatio)
             : full_;
}

QSize PictureView::minimumSizeHint() const {
  if (Drawn() > 0) return sizeHint();
  return sizeHint().boundedTo({Px(120), Px(80)});
}

int PictureView::heightForWidth(int width) const {
  if (Drawn() > 0) return sizeHint().height();
  // A drawing among buttons steps back as far as they need.
  if (!full_.isValid() || seeThrough_ || fading_) return Px(80);
  return std::min(sizeHint().height(), width * full_.height() / std::max(1, full_.width()));
}

void PictureView::Show() {
  if (Drawn() > 0) {
    setAccessibleName(WordsFor(control_.Drawn.Get()));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    updateGeometry();
    return update();
  }
  const QString file =
      control_.File->empty() ? QString() : OnStage().PictureFile(control_.File.Get());
  if (file == file_) return;
  file_ = file;
  full_ = file.isEmpty() ? QSize() : QImageReader(file).size();
  scaled_ = {};
  updateGeometry();
  update();
}

void PictureView::DrawPicture(QPainter& painter) {
  const double ratio = devicePixelRatioF();
  const QSize wanted = full_.scaled(size() * ratio, Qt::KeepAspectRatio);
  if (scaled_.size() != wanted)
    scaled_ = ReadPicture(file_, wanted, Qt::KeepAspectRatio, ratio, fading_);
  const QSizeF size = scaled_.deviceIndependentSize();
  const QRectF where({(width() - size.width()) / 2, (height() - size.height()) / 2}, size);
  if (!fading_) {
    QPainterPath corners;
    corners.addRoundedRect(where, Px(8), Px(8));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(corners);
  }
  painter.drawPixmap(where.topLeft(), scaled_);
  painter.setClipping(false);
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (Drawn() > 0) {
    Draw(painter, QRectF({}, sizeHint()), control_.Drawn.Get());
  } else if (!seeThrough_ && full_.isValid()) {
    DrawPicture(painter);
  }
  if (hasFocus()) DrawFocus(painter, rect(), Px(8), palette());
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
  const bool within = rect().contains(event->position().toPoint());
  if (Clickable() && event->button() == Qt::LeftButton && within) Do(ui::Click);
}

void PictureView::keyPressEvent(QKeyEvent* event) {
  const bool pressed = event->key() == Qt::Key_Space || IsEnter(event->key());
  if (Clickable() && pressed && !event->isAutoRepeat()) return Do(ui::Click);
  event->ignore();
}

ControlView* NewView(ui::Picture& picture, Stage& stage, QWidget* parent) {
  return new PictureView(picture, stage, parent);
}

}  // namespace grapplemont::desktop
