#pragma once

#include <QPixmap>

#include "desktop/controlview.h"

namespace grapplemont::desktop {

/// A picture in its own proportions, as large as its room allows; it can be clicked where the
/// control has a handler.
class PictureView : public QWidget, public ControlView {
 public:
  PictureView(ui::Picture& picture, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }
  /// The picture is painted elsewhere; this takes the clicks.
  void SetSeeThrough();
  /// The picture's edges fade into what lies behind it.
  void SetFading();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;

 protected:
  void Show() override;
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool Clickable() const;
  ui::Picture& picture_;
  QString file_;
  QSize full_;      // of the file
  QPixmap scaled_;  // for the present size
  bool seeThrough_ = false, fading_ = false;
};

/// A picture read at the size it is shown at; null when there is none.
QImage ReadPicture(const QString& file, const QSize& size);
/// The size that covers `room` in the picture's proportions.
QImage ReadCovering(const QString& file, const QSize& room);
/// The picture's size without reading the whole of it; invalid when there is none.
QSize SizeOfPicture(const QString& file);

/// A backdrop that fills its widget; what hangs over is cut.
class Backdrop {
 public:
  explicit Backdrop(QString file = {}) : file_(std::move(file)) {}
  void SetFile(const QString& file);
  const QString& File() const { return file_; }
  void Paint(QPainter& painter, const QWidget& on);

 private:
  QString file_;
  QPixmap scaled_;
  QSize for_;
};

}  // namespace grapplemont::desktop
