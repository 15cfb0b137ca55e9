#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/look.h"

// The tests of the window run without a display.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  grapplemont::desktop::ReadDesktop();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
