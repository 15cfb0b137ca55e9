#include "tools/folders.h"

#include <algorithm>

#include "records/fields/charset.h"
#include "records/fields/outside.h"
#include "records/store/datastep.h"
#include "records/store/slotfolder.h"

namespace grapplemont::tools {

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
    throw WorldFault("\"" + folder + "\" is no folder.");
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
