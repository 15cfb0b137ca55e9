#include "tools/tool.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <new>
#include <ostream>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/outside.h"
#include "records/fields/wording.h"
#include "records/store/datastep.h"
#include "records/store/disk.h"
#include "records/store/slotfolder.h"
#include "tools/commands.h"

namespace grapplemont::tools {

namespace {

constexpr std::string_view kProgram = "grapplemont-world";

std::array<const Command*, 11> Commands() {
  return {&kBuild, &kExport, &kCheck,   &kNew,     &kRun,    &kTell,
          &kBook,  &kSoak,   &kFormats, &kColumns, &kBalance};
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

/// One line without what a terminal would take for a command.
std::string OneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(),
      [](unsigned char letter) { return letter < 0x20 || letter == 0x7F; }, ' ');
  return text;
}

int RunCommand(const Command& command, std::span<const std::string> words, Shell& shell) {
  if (std::find(words.begin(), words.end(), "--help") != words.end()) {
    PrintUsage(shell.Out, command);
    shell.Out << command.Summary << "\n";
    return 0;
  }
  const auto tell = [&](std::string_view fault) {
    // Some speak of what they found in files, in the letters of the records, others of what was
    // typed.
    shell.Errors << kProgram << " " << command.Name << ": " << OneLine(ValidUtf8(fault)) << "\n";
  };
  try {
    return command.Run(Arguments(words, command.Options, command.Places), shell);
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

std::string Quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

const OptionKind& FindOption(std::span<const OptionKind> options, const std::string& name) {
  const auto found = std::find_if(options.begin(), options.end(),
                                  [&](const OptionKind& option) { return option.Name == name; });
  if (found != options.end()) return *found;
  std::vector<std::string_view> names;
  for (const OptionKind& option : options) names.push_back(option.Name);
  throw UsageError("there is no option " + Quoted(name) + DidYouMean(name, names));
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
    shell.Errors << kProgram << ": " << OneLine(ValidUtf8(fault.what())) << "\n";
    PrintHelp(shell.Errors);
    return 2;
  }
}

Arguments::Arguments(std::span<const std::string> words, std::span<const OptionKind> options,
                     std::size_t places) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (!words[i].starts_with("--")) {
      places_.push_back(words[i]);
      continue;
    }
    const OptionKind& option = FindOption(options, words[i]);
    const bool takesValue = !option.Value.empty();
    if (takesValue && i + 1 == words.size())
      throw UsageError(words[i] + " needs a value, " + std::string(option.Value));
    if (!options_.emplace(words[i], takesValue ? words[i + 1] : "").second)
      throw UsageError(words[i] + " stands there twice");
    if (takesValue) ++i;
  }
  if (places_.size() > places) throw UsageError(Quoted(places_[places]) + " is one word too many");
  if (places_.size() < places) throw UsageError("something is missing");
  for (const OptionKind& option : options)
    if (option.Needed && !Has(option.Name))
      throw UsageError(std::string(option.Name) + " is missing");
}

bool Arguments::Has(std::string_view name) const {
  return options_.contains(name);
}

std::optional<std::string> Arguments::Text(std::string_view name) const {
  const auto found = options_.find(name);
  return found == options_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::uint64_t> Arguments::Number(std::string_view name, std::uint64_t least,
                                               std::uint64_t most) const {
  const auto text = Text(name);
  if (!text) return std::nullopt;
  std::uint64_t number = 0;
  const char* const last = text->data() + text->size();
  const auto [end, fault] = std::from_chars(text->data(), last, number);
  if (fault == std::errc() && end == last && number >= least && number <= most) return number;
  throw UsageError(std::string(name) + " needs a whole number from " + std::to_string(least) +
                   " to " + std::to_string(most) + ", not " + Quoted(*text));
}

std::optional<Day> Arguments::Date(std::string_view name) const {
  const auto text = Text(name);
  if (!text) return std::nullopt;
  if (const auto day = ParseIsoDate(*text)) return day;
  throw UsageError(std::string(name) + " needs a date such as 2026-03-01, not " + Quoted(*text));
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

}  // namespace grapplemont::tools
