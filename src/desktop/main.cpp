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

/// The scale that the player has set counts from the start on; what the environment says goes
/// first.
void ApplyScale() try {
  const std::string home = FindHome(*RealDisk());
  const int percent = desktop::Settings(QString::fromStdString(home + "/settings.ini")).Scale();
  if (percent != 100 && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
    qputenv("QT_SCALE_FACTOR", QByteArray::number(percent / 100.0));
} catch (const std::exception&) {
  // What is wrong with the home is said once there is a window.
}

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
  ApplyScale();
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
