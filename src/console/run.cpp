#include "console/run.h"

#include <algorithm>
#include <stdexcept>

#include "console/options.h"
#include "program/screens.h"
#include "records/fields/charset.h"
#include "session/home.h"

namespace grapplemont::console {

namespace {

constexpr const char* kProgram = "grapplemont-console: ";
constexpr const char* kGreeting =
    "Grapplemont on a terminal. Name a control to work it, for example: click cmdbegin.\n"
    "The command \"help\" lists all there are.\n\n";

std::string OneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

std::string HomeOf(const Options& options, Disk& disk) {
  if (!options.Home) return FindHome(disk);
  // Behind the "/." a link to a folder counts as the folder.
  if (disk.Look(*options.Home + "/.") != Disk::Kind::Folder)
    throw std::runtime_error("\"" + *options.Home + "\" is no folder.");
  return *options.Home;
}

void Play(const Options& options, Console& console) {
  const std::unique_ptr<Disk> disk = RealDisk();
  Game::Options choice;
  choice.Home = HomeOf(options, *disk);
  if (options.Today) choice.Today = [day = *options.Today] { return day; };
  choice.Seed = options.Seed;
  Game game(console, *disk, choice);
  RegisterScreens(game);
  console.Open("frmTitleScreen");
  if (console.Empty()) throw std::runtime_error("The game could not start.");
  console.Run();
  console.CloseAll();
  game.CloseSlot();
}

}  // namespace

int RunConsole(std::span<const std::string> arguments, Streams streams, Settings settings) {
  std::string why;
  const auto options = ReadOptions(arguments, why);
  if (!options) {
    streams.Errors << kProgram << why << "\n" << kUsage;
    return 2;
  }
  if (options->Help) {
    streams.Out << kUsage;
    return 0;
  }
  settings.Json = options->Json;
  settings.Prompt = settings.Prompt && !settings.Json;
  if (settings.Prompt) streams.Out << kGreeting;
  try {
    Console console(streams.In, streams.Out, settings);
    Play(*options, console);
    return 0;
  } catch (const std::exception& fault) {
    streams.Errors << kProgram << OneLine(ToUtf8(fault.what())) << "\n";
    return 1;
  }
}

}  // namespace grapplemont::console
