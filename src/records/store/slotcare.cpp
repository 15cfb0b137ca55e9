#include "records/store/slotcare.h"

#include <algorithm>
#include <set>
#include <span>

#include "records/fields/charset.h"
#include "records/store/knownfiles.h"
#include "records/store/packing.h"
#include "records/store/slotfolder.h"
#include "records/store/slotrescue.h"

namespace grapplemont {

namespace {

constexpr std::string_view kSlotMark = "GMFRSLOT";
constexpr std::uint32_t kSlotFormat = 1;
constexpr std::size_t kHead = kSlotMark.size() + sizeof(std::uint32_t) + sizeof(std::uint64_t);

}  // namespace

std::vector<NewFile> ReadSlot(Disk& disk, const std::string& folder) {
  if (StandingFolder(disk, folder).empty())
    throw DiskError(folder, "read", "there is no such slot");
  const SlotLock lock(disk, folder);
  FinishSwap(disk, folder);
  SlotFinding found = ExamineSlot(disk, folder, KnownFiles());
  if (found.GivesUp)
    throw DiskError(folder, "copy", "it is damaged. Load it first, which asks what is to be done");
  std::vector<NewFile> files;
  for (auto& [name, contents] : found.Files) files.push_back({name, std::move(contents)});
  return files;
}

Bytes PackSlot(const std::vector<NewFile>& files) {
  Packer out;
  out.Put(kSlotMark);
  out.Put(kSlotFormat);
  out.Put(std::uint64_t{0});
  out.Put(static_cast<std::uint32_t>(files.size()));
  for (const NewFile& file : files) {
    out.Put(static_cast<std::uint16_t>(file.Name.size()));
    out.Put(std::string_view(file.Name));
    out.Put(static_cast<std::uint64_t>(file.Contents.size()));
    out.Put(ByteSpan(file.Contents));
  }
  out.PutAt(kHead - sizeof(std::uint64_t), Checksum(ByteSpan(out.Packed()).subspan(kHead)));
  return std::move(out).Packed();
}

std::vector<NewFile> UnpackSlot(ByteSpan bytes, const std::string& path) {
  Unpacker in(bytes);
  const std::string file = ForScreen(path);
  if (!std::ranges::equal(in.Take(kSlotMark.size()), std::as_bytes(std::span(kSlotMark))))
    throw WorldFault(file + " is not an exported saved game. Choose another file.");
  if (in.Get<std::uint32_t>() != kSlotFormat)
    throw WorldFault(file + " was exported by another version of the game and cannot be read.");
  const auto checksum = in.Get<std::uint64_t>();
  bool sound = in.Whole() && checksum == Checksum(in.Left());
  std::vector<NewFile> files;
  std::set<std::string> names;
  for (auto left = in.Get<std::uint32_t>(); sound && left > 0; --left) {
    const std::string name = in.GetText<std::uint16_t>();
    const ByteSpan contents = in.Take(in.Get<std::uint64_t>());
    const std::int64_t most = MostBytesOf(name);  // 0 for what is not a file of a slot
    sound = in.Whole() && most > 0 && std::ssize(contents) <= most && names.insert(name).second;
    files.push_back({name, Bytes(contents.begin(), contents.end())});
  }
  if (!sound || !in.Whole() || !in.Left().empty())
    throw WorldFault(file + " is spoiled: it was cut short or changed. Export the game once more.");
  return files;
}

std::int64_t MostPackedBytes() {
  std::int64_t most = 4096;  // head and names
  for (const KnownFile& file : KnownFiles()) most += file.MaxBytes;
  return most;
}

void PutAway(Disk& disk, const std::string& folder, const std::string& away) {
  if (StandingFolder(disk, folder).empty())
    throw DiskError(folder, "delete", "there is no such slot");
  const SlotLock lock(disk, folder);
  FinishSwap(disk, folder);
  disk.Rename(folder, away);
  disk.SyncFolder(ParentOf(folder));
}

void BringBack(Disk& disk, const std::string& away, const std::string& folder) {
  const SlotLock lock(disk, folder);
  FinishSwap(disk, folder);
  if (disk.Look(folder) != Disk::Kind::Nothing)
    throw DiskError(away, "bring back", "another game stands in its slot");
  disk.Rename(away, folder);
  disk.SyncFolder(ParentOf(folder));
}

void RemoveForGood(Disk& disk, const std::string& away) {
  bool keeps = false;
  for (const std::string& name : disk.List(away)) {
    const std::string path = away + "/" + name;
    if (IsOfSlot(name) && disk.Look(path) == Disk::Kind::File)
      disk.Remove(path);
    else
      keeps = true;
  }
  if (!keeps) disk.Remove(away);
}

}  // namespace grapplemont
