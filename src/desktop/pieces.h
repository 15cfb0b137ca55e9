#pragma once

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>

#include "desktop/look.h"

// What every part of the window is made of.

namespace grapplemont::desktop {

/// A layout of the holder, or without one for another layout. Spacing and margins are in drawn
/// pixels; below 0 the spacing is the style's.
template <class Layout>
Layout* NewLayout(QWidget* holder, int spacing, const QMargins& drawn = {}) {
  auto* layout = new Layout(holder);
  layout->setContentsMargins(Px(drawn.left()), Px(drawn.top()), Px(drawn.right()),
                             Px(drawn.bottom()));
  if (spacing >= 0) layout->setSpacing(Px(spacing));
  return layout;
}

/// The width of about 75 letters, beyond which an eye no longer finds the next line.
int ReadableWidth();

/// At a tool-tip's event, shows the whole of a text that is cut in a widget without a tip of its
/// own; true when it did.
bool TipWhatIsCut(QEvent& event, QWidget& widget, const QString& text, bool cut);

/// Plain text that breaks where its room ends, or where it would be too wide to be read, and is as
/// wide as its words where it may be.
class WrappedLabel : public QLabel {
 public:
  explicit WrappedLabel(QWidget* parent, const QString& text = {}, const QFont& font = TextFont());
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;
  /// Lets it break where it is as wide as this, in drawn pixels, and as its widest word.
  void BreakFrom(int width) { unbroken_ = width; }
  /// Whether it is cut where it would break; a tip tells all of it.
  void SetOneLine(bool oneLine);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int NaturalWidth() const;
  int WordWidth() const;
  int RoomIn(int width) const;

  int unbroken_;
  bool oneLine_ = false;
};

/// Gives a label's words a colour of the set that it belongs to.
void SetInk(QWidget& label, const QColor& colour);

/// Gives the text in a line its room at the sides.
void SetMargins(QLineEdit& line);
/// A line to type in.
QLineEdit* NewLine(QWidget* holder, const QString& name, const QString& text = {});

/// A scroll area that shows nothing of itself but its bar, upright.
class BareScroller : public QScrollArea {
 public:
  explicit BareScroller(QWidget* parent);
  void Hold(QWidget* body);
};

/// A menu that goes when it closes.
QMenu* NewMenu(QWidget* parent, const QString& name = {});

inline bool IsEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}
/// Of a widget that takes Enter for what is typed in it, instead of leaving it to the page.
inline constexpr const char* kKeepsEnter = "keepsEnter";
inline bool KeepsEnter(const QWidget* widget) {
  return widget && widget->property(kKeepsEnter).toBool();
}

}  // namespace grapplemont::desktop
