#pragma once

#include "desktop/pieces.h"

namespace grapplemont::desktop {

/// A body that scrolls when the window is too small for what it needs at least.
class Scroller : public BareScroller {
 public:
  /// A tight one asks for what the body needs, not for what it would like.
  Scroller(QWidget* parent, bool tight);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  /// How much higher than its hint the body likes to be at the width that it has been given.
  int Lacks() const;
  /// Has this one, which stands in the body, scroll by itself only where it has room enough for
  /// that; else all of it scrolls with the rest.
  void SetInner(Scroller& inner) {
    inner_ = &inner;
    inner.isWithin_ = true;
  }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int LeastHeight(int width) const;
  int LikedHeight(int width) const;
  /// The body's width without a scroll bar beside it.
  int WholeWidth() const;
  void Fit();
  /// The least that it needs in order to scroll by itself.
  int LeastRoom() const;
  /// Shows all of its body, whose window has this height; 0: scrolls by itself.
  void SetWhole(int window);
  void FitInner(int width, int room);

  Scroller* inner_ = nullptr;
  int window_ = 0;
  bool tight_, isWithin_ = false;
  bool placed_ = false;  // before that its width says nothing
};

}  // namespace grapplemont::desktop
