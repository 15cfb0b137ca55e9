#pragma once

#include <QAbstractButton>

#include "desktop/controlview.h"

namespace grapplemont::desktop {

/// A button after the look. It takes the keyboard by Tab alone, so that Enter goes on meaning the
/// page's main button after a click.
class PushButton : public QAbstractButton {
 public:
  explicit PushButton(QWidget* parent = nullptr, const QString& caption = {});

  void SetGold(bool gold);
  /// Shows the sign of the Enter key behind the caption.
  void SetEnter(bool enter);
  void SetBadge(const QString& badge);
  void SetLeast(int width, int height);  // in drawn pixels
  /// Of the caption; none: the usual one.
  void SetTextColour(const QColor& colour);
  bool IsGold() const { return gold_; }
  bool ShowsEnter() const { return enter_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  QFont CaptionFont() const;
  int BadgeWidth() const;

  bool gold_ = false, enter_ = false, ring_ = false;
  QString badge_;
  QColor textColour_;
  QSize least_;
};

/// A red spot with a short text.
void DrawBadge(QPainter& painter, const QRectF& where, const QString& text, const QWidget* on);
/// How wide DrawBadge's spot has to be.
int BadgeWidthFor(const QString& text);

class ButtonView : public PushButton, public ControlView {
 public:
  ButtonView(ui::Button& button, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }
  /// What a click does instead of clicking the control.
  std::function<void()> Pressed;

 protected:
  void Show() override;

 private:
  ui::Button& button_;
};

}  // namespace grapplemont::desktop
