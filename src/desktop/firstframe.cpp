#include "desktop/firstframe.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <iostream>

namespace grapplemont::desktop {

namespace {

/// Hears of the first painting; all of a window is painted before the next turn of the loop.
class FirstPainting : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Paint || seen_) return false;
    seen_ = true;
    QTimer::singleShot(0, this, [] {
      std::cout << "painted" << std::endl;
      QCoreApplication::quit();
    });
    return false;
  }

 private:
  bool seen_ = false;
};

}  // namespace

void EndAtFirstFrame() {
  qApp->installEventFilter(new FirstPainting(qApp));
}

}  // namespace grapplemont::desktop
