#include "records/slotrescue.h"

#include "records/journalchain.h"
#include "records/worlddigest.h"

namespace grapplemont {

namespace {

void ApplyAll(std::map<std::string, Bytes>& files, const std::vector<JournalRecord>& records) {
  for (const JournalRecord& record : records)
    for (const FilePatch& patch : record.Files) {
      std::optional<Bytes> file;
      if (auto node = files.extract(patch.Name)) file = std::move(node.mapped());
      ApplyTo(file, patch);
      if (file) files.emplace(patch.Name, *std::move(file));
    }
}

}  // namespace

RescuedWorld RescueWorld(const std::map<std::string, Bytes>& files, ByteSpan journal,
                         std::optional<std::uint64_t> id, const std::vector<KnownFile>& known) {
  const JournalChain chain = ReadChain(journal, id, known);
  std::map<std::string, Bytes> before = files;
  ApplyAll(before, chain.Records);
  std::map<std::string, Bytes> all = before;
  ApplyAll(all, chain.Behind);
  const auto proven = [](const std::map<std::string, Bytes>& world, std::uint64_t digest) {
    return DigestOf(world).Value() == digest;
  };

  RescuedWorld rescued;
  const std::map<std::string, Bytes>* taken = &before;
  if (proven(all, chain.Behind.empty() ? chain.Digest() : chain.Behind.back().Digest)) {
    taken = &all;
    rescued.Remark = "The slot was damaged, but every step could be found again.";
  } else if (proven(before, chain.Digest())) {
    rescued.Remark = "The slot was damaged. The game goes on from before the damage.";
  } else {
    rescued.Remark =
        "The slot was damaged. The game goes on from before the damage, but its files may hold "
        "parts of later steps: have the world checked.";
  }
  for (const auto& [name, contents] : *taken) rescued.Files.push_back({name, contents});
  rescued.World = id ? *id : chain.Marker.World;
  if (rescued.World == 0) rescued.World = DigestOf(*taken).Value();
  return rescued;
}

std::map<std::string, Bytes> ReadKnownFiles(Disk& disk, const std::string& folder,
                                            const std::vector<KnownFile>& known) {
  std::map<std::string, Bytes> files;
  for (const KnownFile& each : known) {
    const std::string path = folder + "/" + each.Name;
    const Disk::Kind kind = disk.Look(path);
    if (kind == Disk::Kind::Nothing) continue;
    if (kind != Disk::Kind::File) throw DiskError(path, "open", "it is no plain file");
    const OpenedFile file(disk, path, false);
    const std::int64_t size = disk.Size(file);
    if (size > each.MaxBytes)
      throw DiskError(path, "open",
                      "it is " + std::to_string(size) + " bytes long, more than its most of " +
                          std::to_string(each.MaxBytes));
    Bytes bytes(static_cast<std::size_t>(size));
    if (size > 0) disk.ReadAt(file, 0, bytes);
    files.emplace(each.Name, std::move(bytes));
  }
  return files;
}

}  // namespace grapplemont
