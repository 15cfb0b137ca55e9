#include "tools/tool.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <new>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/store/datastep.h"
#include "records/store/disk.h"
#include "records/store/machine.h"
#include "records/store/slotfolder.h"
#include "tools/commands.h"

namespace grapplemont::tools {

namespace {

constexpr std::string_view kProgram = "grapplemont-world";
constexpr std::string_view kUsage = "usage: grapplemont-world COMMAND ...";

std::array<const Command*, 13> Commands() {
  return {&kBuild, &kExport,      &kCheck,  &kNew,     &kRun,     &kTell,   &kBook,
          &kSoak,  &kLivingWorld, &kReplay, &kFormats, &kColumns, &kBalance};
}

std::string UsageOf(const Command& command) {
  return grapplemont::UsageOf(command.Name, command.Takes, command.Options);
}

void PrintUsage(std::ostream& out, const Command& command) {
  out << "usage: " << kProgram << " " << UsageOf(command) << "\n";
}

void PrintHelp(std::ostream& out) {
  out << kUsage << "\n\nMakes, checks and runs the worlds of Grapplemont.\n";
  for (const Command* command : Commands())
    out << "\n  " << UsageOf(*command) << "\n      " << command->Summary << "\n";
  out << "\nWithout --home a command works on your own games. --help behind a command tells of it "
         "alone; --version\nprints the version. Ends with 0 when all went well, 1 for faults and "
         "failures, 2 for a wrong use.\n";
}

const Command& FindCommand(const std::string& name) {
  if (name.starts_with("-"))
    throw UsageError("\"" + name + "\" stands where the command belongs; options come behind it");
  std::vector<std::string_view> names;
  for (const Command* command : Commands()) {
    if (command->Name == name) return *command;
    names.push_back(command->Name);
  }
  throw UsageError("there is no command \"" + name + "\"" + DidYouMean(name, names));
}

std::size_t CountOfWords(std::string_view words) {
  return static_cast<std::size_t>(std::ranges::count(words, ' ')) + 1;
}

/// One line without what a terminal would take for a command.
std::string OneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(),
      [](unsigned char letter) { return letter < 0x20 || letter == 0x7F; }, ' ');
  return text;
}

/// Whether the words ask about the tool, or about a command of it, rather than for work.
bool Answer(std::span<const std::string> words, Shell& shell) {
  const Asked asked = AskedIn(words);
  const bool ofAll = words.empty() || words[0].starts_with("-");
  if (asked == Asked::Version) {
    shell.Out << VersionLine(kProgram);
  } else if (!words.empty() && words[0] == "help") {
    PrintHelp(shell.Out);
  } else if (asked == Asked::Nothing) {
    return false;
  } else if (ofAll) {
    PrintHelp(shell.Out);
  } else {
    const Command& command = FindCommand(words[0]);
    PrintUsage(shell.Out, command);
    shell.Out << command.Summary << "\n";
  }
  return true;
}

int RunCommand(const Command& command, std::span<const std::string> words, Shell& shell) {
  const auto tell = [&](std::string_view fault) {
    // Some speak of what they found in files, in the letters of the records, others of what was
    // typed.
    shell.Errors << kProgram << " " << command.Name << ": " << OneLine(ValidUtf8(fault)) << "\n";
  };
  try {
    const std::size_t places = command.Takes.empty() ? 0 : CountOfWords(command.Takes);
    return command.Run(Arguments(words, command.Options, places), shell);
  } catch (const UsageError& fault) {
    tell(fault.what());
    PrintUsage(shell.Errors, command);
    return 2;
  } catch (const std::bad_alloc&) {
    tell(kOutOfMemory);
  } catch (const std::exception& fault) {
    tell(fault.what());
  }
  return 1;
}

}  // namespace

int RunWorldTool(std::span<const std::string> arguments, Shell shell) {
  try {
    if (Answer(arguments, shell)) return 0;
    if (arguments.empty()) throw UsageError("a command is missing");
    return RunCommand(FindCommand(arguments[0]), arguments.subspan(1), shell);
  } catch (const UsageError& fault) {
    shell.Errors << kProgram << ": " << OneLine(ValidUtf8(fault.what())) << "\n"
                 << kUsage << "; --help lists the commands\n";
    return 2;
  }
}

namespace {

bool IsSavedGame(Disk& disk, const std::string& folder) {
  return disk.Look(folder + "/" + kJournalName) != Disk::Kind::Nothing ||
         disk.Look(folder + "/" + std::string(LayoutOf<GameInfo>().File)) != Disk::Kind::Nothing;
}

std::map<std::string, Bytes> ReadFiles(Disk& disk, const std::string& folder,
                                       std::ostream& remarks) {
  if (disk.Look(folder + "/" + kJournalName) != Disk::Kind::File)
    return ReadWorldFiles(disk, folder);
  Slot slot(disk, folder, KnownFiles());
  for (const std::string& remark : slot.Remarks()) remarks << ToUtf8(remark) << "\n";
  return slot.Files();
}

/// A slot takes the place of the whole folder: only of one that held a slot, or nothing.
void WriteSlot(Disk& disk, const std::string& folder, const World& world) {
  if (disk.Look(folder) == Disk::Kind::Folder && !IsSavedGame(disk, folder) &&
      !disk.List(folder).empty())
    throw WorldFault("\"" + folder +
                     "\" holds other files. Name an empty folder for the saved game.");
  Slot::Create(disk, folder, FilesOf(world), MachineSeed());
}

/// Takes away what a run that was cut short has left there, and nothing else.
void ClearBeside(Disk& disk, const std::string& beside) {
  const Disk::Kind kind = disk.Look(beside);
  const std::vector<std::string> names =
      kind == Disk::Kind::Folder ? disk.List(beside) : std::vector<std::string>();
  if ((kind != Disk::Kind::Nothing && kind != Disk::Kind::Folder) ||
      !std::all_of(names.begin(), names.end(), IsOfSlot))
    throw WorldFault("\"" + beside +
                     "\" holds other files. Move it away: the world is put together there.");
  RemoveTree(disk, beside);
}

void WriteData(Disk& disk, const std::string& folder, const World& world) {
  const std::string beside = folder + kBesideSuffix;
  ClearBeside(disk, beside);
  disk.MakeFolder(beside);
  const std::vector<NewFile> files = FilesOf(world);
  for (const NewFile& file : files) WriteFile(disk, beside + "/" + file.Name, file.Contents);
  disk.MakeFolder(folder);
  FinishStep(disk, folder);  // an editor's, cut short; it must not come up again over these files
  for (const NewFile& file : files) disk.Rename(beside + "/" + file.Name, folder + "/" + file.Name);
  disk.SyncFolder(folder);
  disk.Remove(beside);
}

}  // namespace

std::string WithoutSlashes(std::string folder) {
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  return folder;
}

std::string FolderName(Disk& disk, const std::string& folder) {
  if (folder.empty() || !IsFolder(disk, folder))
    throw WorldFault("\"" + folder + "\" is not a folder.");
  return WithoutSlashes(folder);
}

World ReadWorld(Disk& disk, const std::string& folder, std::ostream& remarks) {
  const auto files = ReadFiles(disk, FolderName(disk, folder), remarks);
  if (files.empty()) throw WorldFault("\"" + folder + "\" holds no file of a world.");
  World world;
  world.Load(files);
  return world;
}

void WriteWorld(Disk& disk, const std::string& folder, const World& world) {
  const std::string name = WithoutSlashes(folder);
  if (world.HasGame()) return WriteSlot(disk, name, world);
  if (IsSavedGame(disk, name))
    throw WorldFault("\"" + folder + "\" holds a saved game. Name another folder for the world.");
  WriteData(disk, name, world);
}

int RunWorldToolHere(std::span<const std::string> arguments) {
  std::ios::sync_with_stdio(false);
  const bool isWatched = IsTerminal(Stream::Out) && IsTerminal(Stream::Errors);
  return RunWorldTool(arguments, {std::cout, std::cerr, isWatched});
}

}  // namespace grapplemont::tools
