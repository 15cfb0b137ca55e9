#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QMessageBox>
#include <iostream>

#include "desktop/album.h"
#include "desktop/look.h"
#include "desktop/window.h"
#include "program/screens.h"
#include "session/home.h"
#include "ui/game.h"

namespace {

using namespace grapplemont;

/// What the program is started with; without arguments it is played.
struct Arguments {
  QString Pictures;  // the folder for an album of all screens
};

Arguments Read(QApplication& app) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "A management simulation of professional wrestling. It plays in the folder it is started in "
      "where that has a folder data, else in yours.");
  parser.addHelpOption();
  const QCommandLineOption pictures(
      "pictures",
      "Takes a picture of every screen into <folder> instead of being played. It plays on in the "
      "first slot that it finds; take a copy of your games for it.",
      "folder");
  parser.addOption(pictures);
  parser.process(app);
  return {parser.value(pictures)};
}

int FillAlbum(desktop::Window& window, desktop::WindowDesk& desk, Game& game,
              const QString& folder) {
  desktop::Album album(window, desk, {}, [&](const std::string& screen, const QString& look) {
    desktop::KeepPicture(window, folder, look, screen);
  });
  album.Fill();
  for (const std::string& screen : album.Taken()) std::cout << screen << "\n";
  desk.CloseAll();
  game.CloseSlot();
  return 0;
}

int Play(QApplication& app) {
  const Arguments arguments = Read(app);
  const std::unique_ptr<Disk> disk = RealDisk();
  const std::string home = FindHome(*disk);
  const QString folder = QString::fromStdString(home);
  app.setWindowIcon(QIcon(folder + "/gfx/icon.png"));

  desktop::WindowDesk desk;
  Game game(desk, *disk, {.Home = home});
  RegisterScreens(game);
  desktop::Window::Options options;
  options.Pictures = folder + "/gfx";
  if (arguments.Pictures.isEmpty()) options.Settings = folder + "/settings.ini";
  options.Closing = [&] {
    try {
      game.CloseSlot();
    } catch (const std::exception& fault) {
      desk.Say("Error!", game.Explain(fault));
    }
  };
  desktop::Window window(desk, options);
  window.show();
  desk.Event([&] { desk.Open("frmTitleScreen"); });
  window.Sync();
  if (desk.Empty()) return 1;
  if (!arguments.Pictures.isEmpty()) return FillAlbum(window, desk, game, arguments.Pictures);
  const int result = QApplication::exec();
  desk.CloseAll();
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
