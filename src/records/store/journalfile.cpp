#include "records/store/journalfile.h"

#include <algorithm>

#include "records/store/slotfolder.h"

namespace grapplemont {

JournalFile::JournalFile(Disk& disk, std::string folder, std::int64_t bytes,
                         const JournalQuirks& quirks)
    : disk_(disk),
      folder_(std::move(folder)),
      path_(folder_ + "/" + kJournalName),
      bytes_(std::max(bytes, kJournalStart + kJournalBlock)),
      quirks_(quirks) {}

Disk::Handle JournalFile::Handle() {
  if (!handle_) {
    handle_ = disk_.Open(path_, false);
    size_ = disk_.Size(*handle_);
  }
  return *handle_;
}

void JournalFile::Drop() {
  if (handle_) disk_.Close(*handle_);
  handle_.reset();
}

Bytes JournalFile::Read(std::int64_t limit) {
  const Disk::Kind kind = disk_.Look(path_);
  if (kind == Disk::Kind::Nothing) {
    size_ = 0;
    return {};
  }
  if (kind != Disk::Kind::File) throw DiskError(path_, "open", "it is not a plain file");
  const Disk::Handle handle = Handle();
  const std::int64_t size = std::min(size_, limit);
  Bytes bytes(static_cast<std::size_t>(quirks_.NoSequence ? size : UsedOf(handle, size)));
  if (!bytes.empty()) disk_.ReadAt(handle, 0, bytes);
  return bytes;
}

namespace {

/// The marker that the journal goes by; nothing where there is none, or where there are those of
/// two worlds.
std::optional<JournalMarker> MarkerOf(ByteSpan journal) {
  std::optional<JournalMarker> found;
  for (const std::int64_t at : {std::int64_t{0}, kJournalBlock}) {
    if (std::ssize(journal) <= at) break;
    const auto marker = UnpackMarker(journal.subspan(static_cast<std::size_t>(at)));
    if (!marker) continue;
    if (found && found->World != marker->World) return std::nullopt;
    if (!found || found->Sequence < marker->Sequence) found = marker;
  }
  return found;
}

}  // namespace

/// Up to the end of the last record that may count. Those that the marker is past never do, but
/// they fill the journal from earlier rounds.
std::int64_t JournalFile::UsedOf(Disk::Handle file, std::int64_t size) {
  constexpr std::int64_t kStretch = 64 * kJournalBlock;
  Bytes stretch(static_cast<std::size_t>(std::min(size, kStretch)));
  std::optional<JournalMarker> marker;
  std::int64_t used = std::min(size, kJournalStart);
  for (std::int64_t from = 0; from < size; from += kStretch) {
    const auto part =
        std::span(stretch).first(static_cast<std::size_t>(std::min(kStretch, size - from)));
    disk_.ReadAt(file, from, part);
    if (from == 0) marker = MarkerOf(part);
    std::int64_t at = from == 0 ? kJournalStart : 0;
    for (; at + kJournalBlock <= std::ssize(part); at += kJournalBlock) {
      const auto head = HeadOfRecord(part.subspan(static_cast<std::size_t>(at)));
      if (!head) continue;
      if (marker && head->World == marker->World && head->Sequence <= marker->Sequence) continue;
      const std::int64_t room = size - from - at;
      used = std::max(used, from + at + std::clamp(head->Size, kJournalBlock, room));
    }
  }
  return used;
}

void JournalFile::Continue(std::int64_t end, int markerBlock) {
  end_ = end;
  markerBlock_ = markerBlock;
}

void JournalFile::Replace(const JournalMarker& marker, ByteSpan records) {
  Drop();
  const std::string beside = path_ + kBesideSuffix;
  WriteJournal(disk_, beside, marker, records, bytes_, 0);
  disk_.Rename(beside, path_);
  disk_.SyncFolder(folder_);
  Continue(kJournalStart + std::ssize(records), 0);
}

bool JournalFile::IsInPlace() {
  return !handle_ || disk_.IsAt(*handle_, path_);
}

void JournalFile::MakeRoom(ByteSpan record) {
  Handle();
  const std::int64_t needed = end_ + std::ssize(record);
  if (needed <= size_) return;
  try {
    Grow(std::max(needed, bytes_));
  } catch (const DiskError&) {
    if (needed >= bytes_) throw;
    Grow(needed);
  }
}

void JournalFile::Grow(std::int64_t size) {
  disk_.Allocate(Handle(), size);
  disk_.Resize(Handle(), size);
  size_ = size;
}

void JournalFile::Append(ByteSpan record) {
  disk_.WriteAt(Handle(), end_, record);
  Sync();
  end_ += std::ssize(record);
}

void JournalFile::Empty(JournalMarker marker) {
  const int block = 1 - markerBlock_;
  const Disk::Handle handle = Handle();
  marker.Reserved = size_;
  disk_.WriteAt(handle, block * kJournalBlock, PackMarker(marker));
  Sync();
  Continue(kJournalStart, block);
}

void JournalFile::Sync() {
  if (!quirks_.RetrySync) return disk_.Sync(Handle());
  try {
    disk_.Sync(Handle());
  } catch (const DiskError&) {
    disk_.Sync(Handle());
  }
}

void WriteJournal(Disk& disk, const std::string& path, JournalMarker marker, ByteSpan records,
                  std::int64_t size, std::int64_t least) {
  const OpenedFile file(disk, path, true);
  const auto write = [&](std::int64_t length) {
    disk.Resize(file, 0);
    disk.Allocate(file, length);
    marker.Reserved = length;
    Bytes whole = PackMarker(marker);
    whole.resize(kJournalStart);
    whole.insert(whole.end(), records.begin(), records.end());
    // Zeros that were really written: a sync over them later has no new blocks to note down, which
    // makes it several times faster.
    whole.resize(static_cast<std::size_t>(length));
    disk.WriteAt(file, 0, whole);
  };
  const std::int64_t needed = kJournalStart + std::ssize(records);
  least = std::max(least, needed);
  size = std::max(size, needed);
  try {
    write(size);
  } catch (const DiskError&) {
    if (least >= size) throw;
    write(least);
  }
  disk.Sync(file);
}

namespace {

class ChainReader {
 public:
  ChainReader(ByteSpan journal, const std::vector<KnownFile>& known, const JournalQuirks& quirks)
      : journal_(journal), known_(known), quirks_(quirks) {}

  JournalChain Read(std::optional<std::uint64_t> world, std::uint64_t upTo) {
    ReadMarkers(world);
    if (chain_.Found == JournalChain::State::Foreign) return chain_;
    auto entry = At(kJournalStart);
    if (!chain_.MarkerRead && !StartFrom(entry, world)) return chain_;
    chain_.Found = JournalChain::State::Sound;
    while (entry && Follows(entry->Record) && entry->Record.Sequence <= upTo) {
      chain_.End += entry->Size;
      chain_.Records.push_back(std::move(entry->Record));
      entry = At(chain_.End);
    }
    if (upTo == ~std::uint64_t{0} && !quirks_.NoSequence) LookBehind();
    return chain_;
  }

 private:
  std::optional<JournalEntry> At(std::int64_t offset) const {
    return UnpackRecord(journal_, offset, known_, quirks_);
  }

  /// Of two markers the higher one counts; the other is the one before it.
  void ReadMarkers(std::optional<std::uint64_t> world) {
    for (int block = 0; block < 2; ++block) {
      const auto at = static_cast<std::size_t>(block * kJournalBlock);
      if (journal_.size() < at) continue;
      const auto marker = UnpackMarker(journal_.subspan(at));
      if (!marker) continue;
      if (world && marker->World != *world) {
        if (!chain_.MarkerRead) chain_.Found = JournalChain::State::Foreign;
        continue;
      }
      if (chain_.MarkerRead && marker->Sequence < chain_.Marker.Sequence) continue;
      chain_.Marker = *marker;
      chain_.MarkerRead = true;
      chain_.MarkerBlock = block;
      chain_.Found = JournalChain::State::Sound;
    }
  }

  /// Without a marker: it was lost while the journal was being emptied. The chain before it is then
  /// still whole, stands in the files already, and changes nothing.
  bool StartFrom(const std::optional<JournalEntry>& first, std::optional<std::uint64_t> world) {
    if (!first) {
      chain_.Marker.World = world.value_or(0);
      LookBehind();
      return false;
    }
    if (world && first->Record.World != *world) {
      chain_.Found = JournalChain::State::Foreign;
      return false;
    }
    chain_.Marker = {first->Record.World, first->Record.Sequence - 1, 0};
    return true;
  }

  bool Follows(const JournalRecord& record) const {
    return record.World == chain_.Marker.World &&
           (quirks_.NoSequence || record.Sequence == chain_.Last() + 1);
  }

  /// Records from before the journal was last emptied have sequences that the chain is past. A
  /// later one can stand behind its end only when the one between was once on disk, whole.
  void LookBehind() {
    for (std::int64_t at = chain_.End; at < std::ssize(journal_); at += kJournalBlock) {
      // The head tells it without a checksum of the whole.
      const auto head = HeadOfRecord(journal_.subspan(static_cast<std::size_t>(at)));
      if (!head || head->World != chain_.Marker.World || head->Sequence <= chain_.Last()) continue;
      if (auto entry = At(at)) chain_.Behind.push_back(std::move(entry->Record));
    }
    std::sort(chain_.Behind.begin(), chain_.Behind.end(),
              [](auto& a, auto& b) { return a.Sequence < b.Sequence; });
    if (!chain_.Behind.empty()) chain_.Found = JournalChain::State::Damaged;
  }

  ByteSpan journal_;
  const std::vector<KnownFile>& known_;
  const JournalQuirks& quirks_;
  JournalChain chain_;
};

}  // namespace

JournalChain ReadChain(ByteSpan journal, std::optional<std::uint64_t> world,
                       const std::vector<KnownFile>& known, std::uint64_t upTo,
                       const JournalQuirks& quirks) {
  return ChainReader(journal, known, quirks).Read(world, upTo);
}

void ApplyTo(std::optional<Bytes>& file, const FilePatch& patch) {
  if (!patch.Exists) {
    file.reset();
    return;
  }
  if (!file) file.emplace();
  file->resize(static_cast<std::size_t>(patch.Length));
  for (const JournalRange& range : patch.Ranges)
    std::copy(range.Contents.begin(), range.Contents.end(), file->begin() + range.Offset);
}

}  // namespace grapplemont
