#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <cstring>
#include <iostream>
#include <optional>
#include <stdexcept>

#include "desktop/look.h"
#include "desktop/window.h"
#include "program/screens.h"
#include "session/home.h"
#include "ui/game.h"

namespace {

using namespace grapplemont;

constexpr const char* kUsage =
    "usage: grapplemont [--home DIR]\n"
    "\n"
    "  --home DIR  the folder with data/, gfx/ and the slots; without it, the folder the game\n"
    "              is started in if that has data/, else your user's data folder\n"
    "  --help      these lines\n";

struct Arguments {
  std::optional<std::string> Home;
  bool Sensible = true;
};

Arguments Read(int count, char** words) {
  Arguments read;
  for (int i = 1; i < count; ++i) {
    if (std::strcmp(words[i], "--home") == 0 && i + 1 < count) {
      read.Home = words[++i];
    } else {
      read.Sensible = false;
    }
  }
  return read;
}

int Play(QApplication& app, const std::optional<std::string>& named) {
  const std::unique_ptr<Disk> disk = RealDisk();
  const std::string home = named ? HomeAt(*disk, *named) : FindHome(*disk);
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
  options.Game = [&] {
    const auto [slot, world] = game.Opened();
    return slot == 0 ? desktop::OpenGame()
                     : desktop::OpenGame{QString("s%1").arg(slot), QString::number(world, 16)};
  };
  desktop::Window window(desk, options);
  window.show();
  desk.Event([&] { desk.Open("frmTitleScreen"); });
  window.Sync();
  if (desk.Empty())
    throw std::runtime_error("The game could not start from the folder \"" + home +
                             "\": its pictures belong into \"" + home + "/gfx\".");
  const int result = QApplication::exec();
  desk.CloseAll();
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i)
    if (std::strcmp(argv[i], "--help") == 0) {
      std::cout << kUsage;
      return 0;
    }
  QApplication app(argc, argv);  // takes its own arguments out
  QApplication::setApplicationName("Grapplemont");
  QApplication::setDesktopFileName("grapplemont");
  const Arguments arguments = Read(argc, argv);
  if (!arguments.Sensible) {
    std::cerr << kUsage;
    return 2;
  }
  grapplemont::desktop::ReadDesktop();
  try {
    return Play(app, arguments.Home);
  } catch (const std::exception& fault) {
    std::cerr << "grapplemont: " << fault.what() << "\n";
    QMessageBox::critical(nullptr, "Grapplemont", QString::fromStdString(fault.what()));
    return 1;
  }
}
