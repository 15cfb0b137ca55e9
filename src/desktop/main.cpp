#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <stdexcept>

#include "desktop/album.h"
#include "desktop/bookpdf.h"
#include "desktop/desktopcolours.h"
#include "desktop/firstframe.h"
#include "desktop/look.h"
#include "desktop/nodisplay.h"
#include "desktop/sound.h"
#include "desktop/window.h"
#include "program/screens.h"
#include "records/fields/charset.h"
#include "session/build.h"
#include "session/faultlog.h"
#include "session/home.h"
#include "session/screens/frmLoadGame.h"
#include "ui/game.h"

namespace {

using namespace grapplemont;

/// What the program is started with; without arguments it is played.
struct Wanted {
  std::optional<std::string> Home;  // the folder with the slots
  std::string Import = {};          // a file with an exported game
  QString Pictures;                 // the folder for an album of all screens
  QString PicturesOf = {};          // what the album is of; empty: everything
  bool FirstFrame = false;          // it ends once the window is painted
};

/// Before there is a display: questions about the program and mistakes in its use need none.
Wanted Read(int argc, char** argv) {
  const QCoreApplication words(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "A management simulation of professional wrestling. Your games are kept in your data "
      "folder.");
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  const QCommandLineOption home(
      "home", "Play in <folder>, with your games and with data and gfx of your own.", "folder");
  const QCommandLineOption pictures(
      "pictures",
      "Take a picture of every screen into <folder> instead of being played. It plays on in the "
      "first slot that it finds; take a copy of your games for it.",
      "folder");
  const QCommandLineOption of("of",
                              "Take those pictures only that these words name, with commas between "
                              "them: \"frmRoster,1024x640,dark,200\".",
                              "words");
  const QCommandLineOption firstFrame(
      "first-frame", "End once the window is painted, which shows how long a start takes.");
  const QCommandLineOption help({"h", "help"}, "These lines.");
  const QCommandLineOption version({"v", "version"}, "The version of the program.");
  parser.addOptions({home, pictures, of, firstFrame, help, version});
  parser.addPositionalArgument("file", "An exported game to be put into an empty slot and played.",
                               "[file]");
  for (const char* ofQt : {"platform", "style", "display", "qwindowgeometry"}) {
    QCommandLineOption option(ofQt, {}, "value");
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(option);
  }
  const bool makesSense = parser.parse(words.arguments());
  if (parser.isSet(version)) parser.showVersion();
  if (parser.isSet(help)) parser.showHelp();
  const QStringList files = parser.positionalArguments();
  if (!makesSense || files.size() > 1) {
    QString why = makesSense ? "\"" + files.back() + "\" is one word too many" : parser.errorText();
    if (why.endsWith('.')) why.chop(1);
    std::cerr << "grapplemont: " << why.toStdString() << "; --help lists what there is\n";
    std::exit(2);
  }
  Wanted wanted{{}, {}, parser.value(pictures), parser.value(of), parser.isSet(firstFrame)};
  if (!files.isEmpty()) wanted.Import = QFileInfo(files.front()).absoluteFilePath().toStdString();
  if (parser.isSet(home)) wanted.Home = parser.value(home).toStdString();
  return wanted;
}

int FillAlbum(desktop::Window& window, desktop::WindowDesk& desk, Game& game, const QString& folder,
              const QString& of) {
  std::vector<std::string> words;
  for (const QString& word : of.split(',', Qt::SkipEmptyParts)) words.push_back(word.toStdString());
  const auto looks = desktop::Album::Looks::Of(words);
  desktop::Album album(window, desk, looks, [&](const std::string& screen, const QString& look) {
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

/// Where the player's settings are kept, whatever home is played in. Those that lay in a home
/// before are taken along.
QString SettingsFile(Disk& disk, const Surroundings& around) try {
  if (around.UserConfig.empty()) return {};
  const std::string file = around.UserConfig + "/settings.ini";
  const std::string before = around.UserData + "/settings.ini";
  MakeFolders(disk, around.UserConfig);
  if (disk.Look(file) == Disk::Kind::Nothing && disk.Look(before) == Disk::Kind::File)
    CopyFile(disk, before, file);
  return QString::fromStdString(file);
} catch (const DiskError&) {
  return {};  // then nothing is kept; the game can be played all the same
}

/// The scale that the player has set counts from the start on; what the environment says goes
/// first.
void ApplyScale(const QString& settings) {
  const int percent = desktop::Settings(settings).Scale();
  if (percent != 100 && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
    qputenv("QT_SCALE_FACTOR", QByteArray::number(percent / 100.0));
}

/// What the whole program knows once it has begun.
struct Started {
  Wanted Wants;
  Surroundings Around;
  QString Settings;
  FaultLog& Log;
  Disk& Files;
};

desktop::Window::Options OptionsFor(desktop::WindowDesk& desk, Game& game, const Started& started) {
  desktop::Window::Options options;
  for (const std::string& folder : WithPages(game.PictureFolders(), game.Home()))
    options.Pictures.append(QString::fromStdString(folder));
  if (started.Wants.Pictures.isEmpty()) options.Settings = started.Settings;
  options.Closing = [&desk, &game] {
    try {
      game.CloseSlot();
    } catch (const std::exception& fault) {
      desk.Say("Error!", game.Explain(fault));
    }
  };
  options.Game = [&game] {
    const auto [slot, world] = game.Opened();
    return slot == 0 ? desktop::OpenGame()
                     : desktop::OpenGame{QString("s%1").arg(slot), QString::number(world, 16)};
  };
  return options;
}

int Play(QApplication& app, const Started& started) {
  const Wanted& wanted = started.Wants;
  Disk& disk = started.Files;
  const Home home =
      wanted.Home ? HomeAt(disk, *wanted.Home, started.Around) : FindHome(disk, started.Around);
  desktop::WindowDesk desk;
  desk.NoteFault = [&](const std::string& fault) { started.Log.Note(ToUtf8(fault)); };
  Game game(desk, disk, {.Home = home.Folder, .Share = home.Share, .Faults = started.Log.File()});
  RegisterScreens(game);
  desktop::Window::Options options = OptionsFor(desk, game, started);
  std::optional<desktop::Speaker> speaker;  // once something is heard
  options.Play = [&speaker](ui::Sound sound, int volume) {
    if (!speaker) speaker.emplace();
    speaker->Play(sound, volume);
  };
  desktop::Window window(desk, options);
  if (wanted.Pictures.isEmpty() && window.Kept().Place().isEmpty())
    window.resize(window.size().boundedTo(window.screen()->availableSize()));
  app.setWindowIcon(QIcon(window.PictureFile("icon.png")));
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
    throw std::runtime_error("The game could not start from the folder \"" + home.Folder +
                             "\": its pictures belong into \"" + home.Folder + "/gfx\".");
  if (!wanted.Import.empty()) {
    desk.Event([&] { OfferImport(game, wanted.Import); });
    window.Sync();
  }
  if (!wanted.Pictures.isEmpty())
    return FillAlbum(window, desk, game, wanted.Pictures, wanted.PicturesOf);
  const desktop::DesktopColours colours([&window](bool dark) { window.FollowDesktop(dark); });
  if (wanted.FirstFrame) desktop::EndAtFirstFrame();
  const int result = QApplication::exec();
  desk.CloseAll();
  game.KeepPage = nullptr;
  return result;
}

/// The console that was installed with the window, for where no window can be opened.
desktop::WithoutDisplay ConsoleFor(const Wanted& wanted, const Surroundings& around) {
  const std::string folder = around.Program.substr(0, around.Program.rfind('/') + 1);
  desktop::WithoutDisplay without{folder + "grapplemont-console", {}, wanted.Pictures.isEmpty()};
  if (wanted.Home) without.Arguments = {"--home", *wanted.Home};
  if (!wanted.Import.empty())
    without.Then = " Import A File on its load screen takes " + wanted.Import + ".";
  return without;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName("Grapplemont");
  QCoreApplication::setApplicationVersion(kProgramVersion);
  const Surroundings around = MachineSurroundings();
  const Wanted wanted = Read(argc, argv);
  static FaultLog log(around.FaultFile(),
                      std::string("grapplemont ") + kProgramVersion + ", Qt " + qVersion());
  desktop::WatchQt(log, ConsoleFor(wanted, around));
  const std::unique_ptr<Disk> disk = RealDisk();
  const QString settings = SettingsFile(*disk, around);
  ApplyScale(settings);
  QApplication app(argc, argv);
  desktop::DisplayIsThere();
  // In a Flatpak the menu entry has the name of the whole.
  QApplication::setDesktopFileName(qEnvironmentVariable("FLATPAK_ID", "grapplemont"));
  desktop::ReadDesktop();
  try {
    return Play(app, {wanted, around, settings, log, *disk});
  } catch (const std::exception& fault) {
    const std::string why = ValidUtf8(fault.what());
    log.Note(why);
    std::cerr << "grapplemont: " << why << "\n";
    QMessageBox::critical(nullptr, "Grapplemont", QString::fromStdString(why));
    return 1;
  }
}
