#include <QApplication>
#include <QLabel>

#include "desktop/firstframe.h"

// The least that a program with Qt does to show a window: what the game's own start is set beside.

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QLabel window("Grapplemont");
  window.resize(1280, 800);
  grapplemont::desktop::EndAtFirstFrame();
  window.show();
  return QApplication::exec();
}
