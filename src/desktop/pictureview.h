#pragma once

#include <QPixmap>

#include "desktop/controlview.h"

namespace grapplemont::desktop {

/// A picture in its own proportions, as large as its room allows; it can be clicked where the
/// control has a handler.
class PictureView : public ViewOf<QWidget, ui::Picture> {
 public:
  PictureView(ui::Picture& picture, Stage& stage, QWidget* parent);
  /// The picture is painted elsewhere; this takes the clicks.
  void SetSeeThrough() { seeThrough_ = true; }
  /// The picture's edges fade into what lies behind it.
  void SetFading() { fading_ = true; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;

 protected:
  void Show() override;
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool Clickable() const { return static_cast<bool>(control_.OnClick); }
  void DrawPicture(QPainter& painter);
  double Drawn() const;  // width of what is drawn for a height of 1; 0 for nothing
  int DrawnHeight() const;

  QString file_;
  QSize full_;      // of the file
  QPixmap scaled_;  // for the present size
  bool seeThrough_ = false, fading_ = false;
};

/// A backdrop that fills its widget; what hangs over is cut.
class Backdrop {
 public:
  explicit Backdrop(QString file = {}) : file_(std::move(file)) {}
  void SetFile(const QString& file);
  const QString& File() const { return file_; }
  /// What the picture says at its foot is lifted above `floor`, where other things stand.
  void Paint(QPainter& painter, const QWidget& on, int floor);

 private:
  QString file_;
  QPixmap scaled_;
  QSize for_;
};

}  // namespace grapplemont::desktop
