#pragma once

#include <QAbstractButton>
#include <QLayoutItem>
#include <QTimer>
#include <vector>

#include "desktop/controlview.h"

namespace grapplemont::desktop {

/// A button without a look of its own. It takes the keyboard by Tab alone, and then the space bar
/// presses it; Enter goes on meaning the page's main button.
class BareButton : public QAbstractButton {
 public:
  BareButton(QWidget* parent, const QString& caption);
  void SetBadge(const QString& badge) {
    Change(badge_, badge);
    setAccessibleName(badge.isEmpty() ? QString() : text() + ", " + badge);
  }

 protected:
  /// Makes room for what has changed and shows it.
  template <class T>
  void Change(T& held, const T& value) {
    if (held == value) return;
    held = value;
    updateGeometry();
    update();
  }
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  /// The width at which the whole caption is shown; a narrower one tells it in a tip.
  virtual int WidthWanted() const { return sizeHint().width(); }
  void enterEvent(QEnterEvent*) override { update(); }
  void leaveEvent(QEvent*) override { update(); }
  /// The width of the badge's spot; 0 without a badge.
  int BadgeWidth() const;
  /// Draws it in the middle of the height.
  void DrawBadge(QPainter& painter, double left) const;

  QString badge_;
};

/// Where words without a frame stand in a layout: they begin at the edge of what is above them.
class LinkItem : public QWidgetItem {
 public:
  using QWidgetItem::QWidgetItem;
  void setGeometry(const QRect& rect) override;
};

/// A button after the look.
class PushButton : public BareButton {
 public:
  explicit PushButton(QWidget* parent = nullptr, const QString& caption = {});

  void SetGold(bool gold) { Change(gold_, gold); }
  /// Shows the sign of the Enter key behind the caption. A gold button keeps room for it.
  void SetEnter(bool enter) { Change(enter_, enter); }
  /// Words alone, as a link.
  void SetPlain(bool plain) { Change(plain_, plain); }
  /// In drawn pixels.
  void SetLeast(int width, int height) { Change(least_, {Px(width), Px(height)}); }
  bool ShowsEnter() const { return enter_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

  QColor textColour_;  // of the caption; none: the usual one

 private:
  struct Paints {
    QColor Fill, Edge, Ink;
  };
  Paints PaintsNow() const;
  /// The room at either side of the caption, in drawn pixels.
  int Side() const;
  QFont CaptionFont() const;
  /// What stands behind the caption, with the gaps before it.
  int TailWidth(bool enter) const;

  bool gold_ = false, enter_ = false, ring_ = false, plain_ = false;
  QSize least_;
};

/// Offers buttons that have no room of their own in a menu below the one that stands for them.
void OpenFolded(const std::vector<PushButton*>& folded, QWidget& below);

/// Why a button cannot be pressed, in its tip's words if it has one; empty when it can.
std::string WhyNotPress(const ui::Button& button);

class ButtonView : public ViewOf<PushButton, ui::Button> {
 public:
  ButtonView(ui::Button& button, Stage& stage, QWidget* parent);
  /// What a click does instead of clicking the control.
  std::function<void()> Pressed;

 protected:
  void Show() override;
  QString KeyNow() const override { return OnStage().Kept().KeyOn(control_); }

 private:
  void KeepTime();

  QTimer clock_;  // runs while the button is to be pressed by itself
};

}  // namespace grapplemont::desktop
