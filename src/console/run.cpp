#include "console/run.h"

#include <algorithm>
#include <iostream>
#include <stdexcept>

#include "console/typing.h"
#include "program/screens.h"
#include "records/fields/charset.h"
#include "records/store/machine.h"
#include "session/arguments.h"
#include "session/build.h"
#include "session/faultlog.h"

namespace grapplemont::console {

namespace {

constexpr std::string_view kProgram = "grapplemont-console";
constexpr int kLeastLetters = 60, kMostLetters = 160;  // letters a line, whatever the terminal has
constexpr std::string_view kToday = "--today", kSeed = "--seed", kJson = "--json";
constexpr OptionKind kOptions[] = {
    kHomeOption,
    {kToday, "YYYY-MM-DD", false, "the present date, in place of the machine's"},
    {kSeed, "N", false, "chance from this number, 0 and up, in place of the machine's"},
    {kJson, "", false, "each answer is one JSON object on one line"}};

std::string Usage() {
  return "usage: " + UsageOf(kProgram, "", kOptions) + "\n";
}

std::string Help() {
  return Usage() +
         "\nServes the screens of Grapplemont to a terminal or a script: a command a line on\n"
         "standard input, an answer on standard output. The command \"help\" lists them.\n\n" +
         OptionLines(kOptions);
}

constexpr const char* kGreeting =
    "Grapplemont on a terminal. Name a control to work it, or what a button says: click Begin.\n"
    "The command \"help\" lists all there are.\n\n";

Game::Options ChoiceOf(const grapplemont::Arguments& arguments, Disk& disk,
                       const Surroundings& around) {
  Game::Options choice;
  if (const auto today = arguments.Date(kToday)) choice.Today = [day = *today] { return day; };
  choice.Seed = arguments.Number(kSeed, 0, ~std::uint64_t{0});
  const auto named = arguments.Text(kHomeOption.Name);
  const Home home = named ? HomeAt(disk, *named, around) : FindHome(disk, around);
  choice.Home = home.Folder;
  choice.Share = home.Share;
  choice.Faults = around.FaultFile();
  return choice;
}

void Play(Console& console, Disk& disk, const Game::Options& choice, FaultLog& log) {
  Game game(console, disk, choice);
  console.NoteFault = [&log](const std::string& fault) { log.Note(ToUtf8(fault)); };
  RegisterScreens(game);
  console.Open("frmTitleScreen");
  if (console.Empty()) throw std::runtime_error("The game could not start.");
  console.Run();
  console.CloseAll();
  game.CloseSlot();
}

}  // namespace

int RunConsole(std::span<const std::string> words, Streams streams, Settings settings,
               const Surroundings& around) {
  if (const Asked asked = AskedIn(words); asked != Asked::Nothing) {
    streams.Out << (asked == Asked::Help ? Help() : VersionLine(kProgram));
    return 0;
  }
  FaultLog log(around.FaultFile(), std::string(kProgram) + " " + kProgramVersion);
  const auto tell = [&](const std::exception& fault) {
    std::string why = ValidUtf8(fault.what());
    std::replace(why.begin(), why.end(), '\n', ' ');
    streams.Errors << kProgram << ": " << why << "\n";
    return why;
  };
  try {
    const grapplemont::Arguments arguments(words, kOptions, 0);
    settings.Json = arguments.Has(kJson);
    settings.Prompt = settings.Prompt && !settings.Json;
    const std::unique_ptr<Disk> disk = RealDisk();
    const Game::Options choice = ChoiceOf(arguments, *disk, around);
    if (settings.Prompt) streams.Out << kGreeting;
    Console console(streams.In, streams.Out, settings);
    Play(console, *disk, choice, log);
    return 0;
  } catch (const UsageError& fault) {
    tell(fault);
    streams.Errors << Usage();
    return 2;
  } catch (const std::exception& fault) {
    log.Note(tell(fault));
    return 1;
  }
}

int RunConsoleHere(std::span<const std::string> words) {
  std::ios::sync_with_stdio(false);
  Settings settings;
  settings.Prompt = IsTerminal(Stream::In) && IsTerminal(Stream::Out);
  if (settings.Prompt) settings.Ask = TerminalTypist();
  if (const int columns = TerminalColumns(); settings.Prompt && columns > 0)
    settings.Width = std::clamp(columns, kLeastLetters, kMostLetters);
  return RunConsole(words, {std::cin, std::cout, std::cerr}, std::move(settings));
}

}  // namespace grapplemont::console
