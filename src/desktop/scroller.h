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

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int LeastHeight(int width) const;
  /// The body's width without a scroll bar beside it.
  int WholeWidth() const;
  void Fit();

  bool tight_;
  bool placed_ = false;  // before that its width says nothing
};

}  // namespace grapplemont::desktop
