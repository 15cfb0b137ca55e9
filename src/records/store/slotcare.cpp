#include "records/store/slotcare.h"

#include <algorithm>
#include <set>
#include <span>

#include "records/fields/charset.h"
#include "records/store/compression.h"
#include "records/store/knownfiles.h"
#include "records/store/packing.h"
#include "records/store/slotfolder.h"
#include "records/store/slotrescue.h"

namespace grapplemont {

namespace {

constexpr std::string_view kSlotMark = "GMFRSLOT";
/// The first format has the files as they are, the present one has them compressed.
constexpr std::uint32_t kPlainFormat = 1, kSlotFormat = 2;
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

Bytes PackSlot(const std::vector<NewFile>& files, const std::string& about) {
  Packer body;
  body.Put(static_cast<std::uint32_t>(files.size()));
  for (const NewFile& file : files) {
    body.Put(static_cast<std::uint16_t>(file.Name.size()));
    body.Put(std::string_view(file.Name));
    body.Put(static_cast<std::uint64_t>(file.Contents.size()));
    body.Put(ByteSpan(file.Contents));
  }
  Packer out;
  out.Put(kSlotMark);
  out.Put(kSlotFormat);
  out.Put(std::uint64_t{0});
  out.Put(static_cast<std::uint16_t>(about.size()));
  out.Put(std::string_view(about));
  out.Put(static_cast<std::uint64_t>(body.Packed().size()));
  out.Put(ByteSpan(Compressed(body.Packed())));
  out.PutAt(kHead - sizeof(std::uint64_t), Checksum(ByteSpan(out.Packed()).subspan(kHead)));
  return std::move(out).Packed();
}

namespace {

[[noreturn]] void Refuse(const std::string& path, const std::string& why) {
  throw WorldFault(ForScreen(path) + why);
}

/// What follows the head, in the form of format 1.
Bytes BodyOf(Unpacker& in, std::uint32_t format, const std::string& path) {
  constexpr const char* kSpoiled =
      " is spoiled: it was cut short or changed. Fetch it again, or have it exported again where "
      "the game is.";
  const auto checksum = in.Get<std::uint64_t>();
  if (!in.Whole() || checksum != Checksum(in.Left())) Refuse(path, kSpoiled);
  if (format == kPlainFormat) return {in.Left().begin(), in.Left().end()};
  in.GetText<std::uint16_t>();
  const auto size = in.Get<std::uint64_t>();
  if (!in.Whole() || size > static_cast<std::uint64_t>(MostPackedBytes())) Refuse(path, kSpoiled);
  auto body = Uncompressed(in.Left(), static_cast<std::size_t>(size));
  if (!body) Refuse(path, kSpoiled);
  return *std::move(body);
}

}  // namespace

std::vector<NewFile> UnpackSlot(ByteSpan bytes, const std::string& path) {
  Unpacker head(bytes);
  if (!std::ranges::equal(head.Take(kSlotMark.size()), std::as_bytes(std::span(kSlotMark))))
    Refuse(path, " is not an exported saved game. Choose another file.");
  const auto format = head.Get<std::uint32_t>();
  if (format != kPlainFormat && format != kSlotFormat)
    Refuse(path, " was exported by a newer version of the game (format " + std::to_string(format) +
                     "). Update the game to read it.");
  const Bytes body = BodyOf(head, format, path);
  Unpacker in(body);
  std::vector<NewFile> files;
  std::set<std::string> names;
  for (auto left = in.Get<std::uint32_t>(); left > 0; --left) {
    const std::string name = in.GetText<std::uint16_t>();
    const ByteSpan contents = in.Take(in.Get<std::uint64_t>());
    if (!in.Whole()) Refuse(path, " is spoiled: a file in it is cut short.");
    const std::int64_t most = MostBytesOf(name);
    if (most == 0) Refuse(path, ": " + ForScreen(name) + " in it is no file of a saved game.");
    if (std::ssize(contents) > most)
      Refuse(path,
             ": " + name + " in it is longer than its most of " + std::to_string(most) + " bytes.");
    if (!names.insert(name).second) Refuse(path, ": " + name + " is in it twice.");
    files.push_back({name, Bytes(contents.begin(), contents.end())});
  }
  if (!in.Whole() || !in.Left().empty())
    Refuse(path, " is spoiled: it goes on behind its last file.");
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
