#include "tools/tool.h"

#include <algorithm>
#include <array>
#include <new>
#include <ostream>

#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/store/disk.h"
#include "tools/commands.h"

namespace grapplemont::tools {

namespace {

constexpr std::string_view kProgram = "grapplemont-world";

std::array<const Command*, 10> Commands() {
  return {&kBuild, &kExport, &kCheck,   &kNew,     &kRun,
          &kTell,  &kSoak,   &kFormats, &kColumns, &kBalance};
}

void PrintUsage(std::ostream& out, const Command& command) {
  out << "usage: " << kProgram << " " << command.Name;
  if (!command.Usage.empty()) out << " " << command.Usage;
  out << "\n";
}

void PrintHelp(std::ostream& out) {
  out << "usage: " << kProgram
      << " COMMAND ...\n\nMakes, checks and runs the worlds of Grapplemont.\n";
  for (const Command* command : Commands()) {
    out << "\n  " << command->Name;
    if (!command->Usage.empty()) out << " " << command->Usage;
    out << "\n      " << command->Summary << "\n";
  }
  out << "\nEnds with 0 when all went well, 1 for faults and failures, 2 for a wrong use.\n";
}

const Command& FindCommand(const std::string& name) {
  std::vector<std::string_view> names;
  for (const Command* command : Commands()) {
    if (command->Name == name) return *command;
    names.push_back(command->Name);
  }
  throw UsageError("there is no command \"" + name + "\"" + DidYouMean(name, names));
}

std::string OneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

int RunCommand(const Command& command, std::span<const std::string> words, Shell& shell) {
  if (std::find(words.begin(), words.end(), "--help") != words.end()) {
    PrintUsage(shell.Out, command);
    shell.Out << command.Summary << "\n";
    return 0;
  }
  try {
    return command.Run(Arguments(words, command.Options, command.Places), shell);
  } catch (const UsageError& fault) {
    shell.Errors << kProgram << " " << command.Name << ": " << ValidUtf8(fault.what()) << "\n";
    PrintUsage(shell.Errors, command);
    return 2;
  } catch (const std::bad_alloc&) {
    shell.Errors << kProgram << " " << command.Name << ": " << kOutOfMemory << "\n";
    return 1;
  } catch (const std::exception& fault) {
    // Some speak of what they found in files, in the letters of the records, others of what was
    // typed.
    shell.Errors << kProgram << " " << command.Name << ": " << OneLine(ValidUtf8(fault.what()))
                 << "\n";
    return 1;
  }
}

}  // namespace

int RunWorldTool(std::span<const std::string> arguments, Shell shell) {
  if (!arguments.empty() && (arguments[0] == "--help" || arguments[0] == "help")) {
    PrintHelp(shell.Out);
    return 0;
  }
  try {
    if (arguments.empty()) throw UsageError("a command is missing");
    return RunCommand(FindCommand(arguments[0]), arguments.subspan(1), shell);
  } catch (const UsageError& fault) {
    shell.Errors << kProgram << ": " << ValidUtf8(fault.what()) << "\n";
    PrintHelp(shell.Errors);
    return 2;
  }
}

}  // namespace grapplemont::tools
