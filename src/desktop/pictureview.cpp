#include "desktop/pictureview.h"

#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

/// Widest that a picture asks for by itself; it takes more where it is given more.
constexpr QSize kAskedFor(480, 300);

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

}  // namespace

QSize SizeOfPicture(const QString& file) {
  return file.isEmpty() ? QSize() : QImageReader(file).size();
}

QImage ReadPicture(const QString& file, const QSize& size) {
  QImageReader reader(file);
  const QSize full = reader.size();
  if (!full.isValid() || size.isEmpty()) return {};
  reader.setScaledSize(full.scaled(size, Qt::KeepAspectRatio));
  return reader.read();
}

QImage ReadCovering(const QString& file, const QSize& room) {
  QImageReader reader(file);
  const QSize full = reader.size();
  if (!full.isValid() || room.isEmpty()) return {};
  reader.setScaledSize(full.scaled(room, Qt::KeepAspectRatioByExpanding));
  return reader.read();
}

void Backdrop::SetFile(const QString& file) {
  if (file == file_) return;
  file_ = file;
  for_ = {};
}

void Backdrop::Paint(QPainter& painter, const QWidget& on) {
  const double ratio = on.devicePixelRatioF();
  if (for_ != on.size()) {
    for_ = on.size();
    scaled_ = QPixmap::fromImage(ReadCovering(file_, on.size() * ratio));
    scaled_.setDevicePixelRatio(ratio);
  }
  if (scaled_.isNull()) return;
  const QSizeF size = scaled_.deviceIndependentSize();
  painter.drawPixmap(QPointF((on.width() - size.width()) / 2, (on.height() - size.height()) / 2),
                     scaled_);
}

PictureView::PictureView(ui::Picture& picture, Stage& stage, QWidget* parent)
    : QWidget(parent), ControlView(picture, stage), picture_(picture) {
  if (Clickable()) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
  }
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

bool PictureView::Clickable() const {
  return static_cast<bool>(picture_.OnClick);
}

void PictureView::SetSeeThrough() {
  seeThrough_ = true;
  update();
}

void PictureView::SetFading() {
  fading_ = true;
  scaled_ = {};
}

QSize PictureView::sizeHint() const {
  if (!full_.isValid() || seeThrough_) return {Px(120), Px(80)};
  const QSize most(Px(kAskedFor.width()), Px(kAskedFor.height()));
  return full_.width() > most.width() || full_.height() > most.height()
             ? full_.scaled(most, Qt::KeepAspectRatio)
             : full_;
}

QSize PictureView::minimumSizeHint() const {
  return sizeHint().boundedTo({Px(120), Px(80)});
}

int PictureView::heightForWidth(int width) const {
  if (!full_.isValid() || seeThrough_) return Px(80);
  return std::min(sizeHint().height(), width * full_.height() / std::max(1, full_.width()));
}

void PictureView::Show() {
  const QString file =
      picture_.File->empty() ? QString() : OnStage().PictureFile(picture_.File.Get());
  if (file == file_) return;
  file_ = file;
  full_ = SizeOfPicture(file_);
  scaled_ = {};
  updateGeometry();
  update();
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!seeThrough_ && full_.isValid()) {
    const double ratio = devicePixelRatioF();
    const QSize wanted = full_.scaled(size() * ratio, Qt::KeepAspectRatio);
    if (scaled_.size() != wanted) {
      QImage image = ReadPicture(file_, wanted);
      if (fading_ && !image.isNull()) FadeEdges(image);
      scaled_ = QPixmap::fromImage(image);
      scaled_.setDevicePixelRatio(ratio);
    }
    const QSizeF size = scaled_.deviceIndependentSize();
    const QRectF where((width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
                       size.height());
    if (!fading_) {
      QPainterPath corners;
      corners.addRoundedRect(where, Px(8), Px(8));
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setClipPath(corners);
    }
    painter.drawPixmap(where.topLeft(), scaled_);
    painter.setClipping(false);
  }
  if (hasFocus()) DrawFocus(painter, rect(), Px(8), palette());
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
  const bool within = rect().contains(event->position().toPoint());
  if (Clickable() && event->button() == Qt::LeftButton && within) Do(ui::Click);
}

void PictureView::keyPressEvent(QKeyEvent* event) {
  if (Clickable() && !event->isAutoRepeat() &&
      (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
       event->key() == Qt::Key_Enter))
    return Do(ui::Click);
  event->ignore();
}

}  // namespace grapplemont::desktop
