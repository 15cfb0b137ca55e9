#include <QApplication>
#include <QIcon>
#include <QMessageBox>

#include "desktop/look.h"
#include "desktop/window.h"
#include "program/screens.h"
#include "session/home.h"
#include "ui/game.h"

namespace {

using namespace grapplemont;

int Play(QApplication& app) {
  const std::unique_ptr<Disk> disk = RealDisk();
  const std::string home = FindHome(*disk);
  const QString folder = QString::fromStdString(home);
  app.setWindowIcon(QIcon(folder + "/gfx/icon.png"));

  desktop::WindowDesk desk;
  Game game(desk, *disk, {.Home = home});
  RegisterScreens(game);
  desktop::Window::Options options;
  options.Pictures = folder + "/gfx";
  options.Settings = folder + "/settings.ini";
  options.Closing = [&] {
    try {
      game.CloseSlot();
    } catch (const std::exception& fault) {
      desk.Say("Error!", game.Explain(fault));
    }
  };
  desktop::Window window(desk, options);
  game.KeepPage = [&window](const std::string& file) {
    window.KeepPage(QString::fromStdString(file));
  };
  window.show();
  desk.Event([&] { desk.Open("frmTitleScreen"); });
  window.Sync();
  if (desk.Empty()) return 1;
  const int result = QApplication::exec();
  desk.CloseAll();
  game.KeepPage = nullptr;
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Grapplemont");
  QApplication::setDesktopFileName("grapplemont");
  grapplemont::desktop::ReadDesktop();
  try {
    return Play(app);
  } catch (const std::exception& fault) {
    QMessageBox::critical(nullptr, "Grapplemont", fault.what());
    return 1;
  }
}
