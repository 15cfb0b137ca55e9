#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QMessageBox>
#include <cstring>
#include <iostream>
#include <optional>
#include <stdexcept>

#include "desktop/album.h"
#include "desktop/bookpdf.h"
#include "desktop/look.h"
#include "desktop/sound.h"
#include "desktop/window.h"
#include "program/screens.h"
#include "session/home.h"
#include "ui/game.h"

namespace {

using namespace grapplemont;

/// What the program is started with; without arguments it is played.
struct Arguments {
  std::optional<std::string> Home;  // the folder with data/, gfx/ and the slots
  QString Pictures;                 // the folder for an album of all screens
};

Arguments Read(QCoreApplication& app) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "A management simulation of professional wrestling. It plays in the folder it is started in "
      "where that has a folder data, else in yours.");
  parser.addHelpOption();
  const QCommandLineOption home(
      "home", "The folder with data, gfx and the slots that is played in.", "folder");
  const QCommandLineOption pictures(
      "pictures",
      "Takes a picture of every screen into <folder> instead of being played. It plays on in the "
      "first slot that it finds; take a copy of your games for it.",
      "folder");
  parser.addOptions({home, pictures});
  parser.process(app);
  Arguments read{{}, parser.value(pictures)};
  if (parser.isSet(home)) read.Home = parser.value(home).toStdString();
  return read;
}

int FillAlbum(desktop::Window& window, desktop::WindowDesk& desk, Game& game,
              const QString& folder) {
  desktop::Album album(window, desk, {}, [&](const std::string& screen, const QString& look) {
    desktop::KeepPicture(window, folder, look, screen);
  });
  album.Fill();
  for (const std::string& screen : album.Taken()) std::cout << screen << "\n";
  const std::vector<std::string> missing = album.Missing();
  for (const std::string& screen : missing)
    std::cerr << "The walk has not come to " << screen << ".\n";
  desk.CloseAll();
  game.CloseSlot();
  return missing.empty() ? 0 : 1;
}

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
  const Arguments arguments = Read(app);
  const std::unique_ptr<Disk> disk = RealDisk();
  const std::string home = arguments.Home ? HomeAt(*disk, *arguments.Home) : FindHome(*disk);
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
  options.Game = [&] {
    const auto [slot, world] = game.Opened();
    return slot == 0 ? desktop::OpenGame()
                     : desktop::OpenGame{QString("s%1").arg(slot), QString::number(world, 16)};
  };
  std::optional<desktop::Speaker> speaker;  // once something is heard
  options.Play = [&speaker](ui::Sound sound, int volume) {
    if (!speaker) speaker.emplace();
    speaker->Play(sound, volume);
  };
  desktop::Window window(desk, options);
  game.KeepPage = [&window](const std::string& file) {
    window.KeepPage(QString::fromStdString(file));
  };
  game.WritePdf = [&game](const std::string& file, int voice) {
    return desktop::WriteBookPdf(game.World(), file, voice);
  };
  window.show();
  desk.Event([&] { desk.Open("frmTitleScreen"); });
  window.Sync();
  if (desk.Empty())
    throw std::runtime_error("The game could not start from the folder \"" + home +
                             "\": its pictures belong into \"" + home + "/gfx\".");
  if (!arguments.Pictures.isEmpty()) return FillAlbum(window, desk, game, arguments.Pictures);
  const int result = QApplication::exec();
  desk.CloseAll();
  game.KeepPage = nullptr;
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  // Help needs no display.
  for (int at = 1; at < argc; ++at)
    if (std::strcmp(argv[at], "--help") == 0 || std::strcmp(argv[at], "-h") == 0) {
      QCoreApplication words(argc, argv);
      Read(words);
    }
  ApplyScale();
  QApplication app(argc, argv);
  QApplication::setApplicationName("Grapplemont");
  QApplication::setDesktopFileName("grapplemont");
  grapplemont::desktop::ReadDesktop();
  try {
    return Play(app);
  } catch (const std::exception& fault) {
    std::cerr << "grapplemont: " << fault.what() << "\n";
    QMessageBox::critical(nullptr, "Grapplemont", QString::fromStdString(fault.what()));
    return 1;
  }
}
