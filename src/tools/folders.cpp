#include "tools/folders.h"

#include "records/datastep.h"
#include "records/draws.h"
#include "records/slotfolder.h"

namespace grapplemont::tools {

namespace {

std::string WithoutSlashes(std::string folder) {
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  return folder;
}

bool IsSavedGame(Disk& disk, const std::string& folder) {
  return disk.Look(folder + "/" + kJournalName) != Disk::Kind::Nothing ||
         disk.Look(folder + "/" + std::string(LayoutOf<GameInfo>().File)) != Disk::Kind::Nothing;
}

std::map<std::string, Bytes> ReadFiles(Disk& disk, const std::string& folder,
                                       std::ostream& remarks) {
  if (disk.Look(folder + "/" + kJournalName) != Disk::Kind::File)
    return ReadWorldFiles(disk, folder);
  Slot slot(disk, folder, KnownFiles());
  for (const std::string& remark : slot.Remarks()) remarks << remark << "\n";
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

void WriteData(Disk& disk, const std::string& folder, const World& world) {
  const std::string beside = folder + kBesideSuffix;
  RemoveTree(disk, beside);
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

std::string FolderName(Disk& disk, const std::string& folder) {
  // Behind the "/." a link to a folder counts as the folder.
  if (folder.empty() || disk.Look(folder + "/.") != Disk::Kind::Folder)
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
