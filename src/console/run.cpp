#include "console/run.h"

#include <algorithm>
#include <stdexcept>

#include "program/screens.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "session/home.h"
#include "ui/asnumber.h"

namespace grapplemont::console {

namespace {

/// Takes one option's value; empty, or what is wrong with it.
std::string Take(Options& options, const std::string& name, const std::string& value) {
  if (name == "--home") {
    options.Home = value;
    if (value.empty()) return "--home needs a folder.";
  } else if (name == "--today") {
    options.Today = ParseIsoDate(value);
    if (!options.Today) return "--today needs a date such as 2026-03-01, not \"" + value + "\".";
  } else {
    options.Seed = ui::AsNumber<std::uint64_t>(value);
    if (!options.Seed) return "--seed needs a whole number from 0 up, not \"" + value + "\".";
  }
  return {};
}

constexpr const char* kProgram = "grapplemont-console: ";
constexpr const char* kGreeting =
    "Grapplemont on a terminal. Name a control to work it, or what a button says: click Begin.\n"
    "The command \"help\" lists all there are.\n\n";

void Play(const Options& options, Console& console) {
  const std::unique_ptr<Disk> disk = RealDisk();
  Game::Options choice;
  choice.Home = options.Home ? HomeAt(*disk, *options.Home) : FindHome(*disk);
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

std::optional<Options> ReadOptions(std::span<const std::string> arguments, std::string& why) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--json") {
      options.Json = true;
    } else if (name == "--help") {
      options.Help = true;
    } else if (name != "--home" && name != "--today" && name != "--seed") {
      why = "There is no option \"" + name + "\".";
      return std::nullopt;
    } else if (++i == arguments.size()) {
      why = name + " needs a value.";
      return std::nullopt;
    } else if (why = Take(options, name, arguments[i]); !why.empty()) {
      return std::nullopt;
    }
  }
  return options;
}

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
    why = ToUtf8(fault.what());
    std::replace(why.begin(), why.end(), '\n', ' ');
    streams.Errors << kProgram << why << "\n";
    return 1;
  }
}

}  // namespace grapplemont::console
