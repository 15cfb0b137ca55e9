#include "records/store/journal.h"

#include <algorithm>

#include "records/store/packing.h"

namespace grapplemont {

namespace {

constexpr std::uint64_t kRecordMagic = 0x4452434552464D47;  // "GMFRECRD"
constexpr std::uint64_t kMarkerMagic = 0x4B52414D52464D47;  // "GMFRMARK"
constexpr std::uint64_t kSealMagic = 0x4C41455352464D47;    // "GMFRSEAL"

// All three begin with the magic, the format and the checksum of all that follows it.
constexpr std::size_t kChecksumAt = 12, kChecked = 20;
constexpr std::size_t kMarkerSize = 52, kRecordHeader = 56;
constexpr std::size_t kLengthAt = 36;

Packer Begun(std::uint64_t magic, DigestForm form, std::size_t expected) {
  Packer out;
  out.Reserve(expected);
  out.Put(magic);
  out.Put(static_cast<std::uint32_t>(form));
  out.Put(std::uint64_t{0});  // the checksum
  return out;
}

void PutName(Packer& out, const std::string& name) {
  out.Put(static_cast<std::uint16_t>(name.size()));
  out.Put(name);
}

std::size_t SizeInBlocks(const Packer& out) {
  return static_cast<std::size_t>(RoundedToBlocks(std::ssize(out.Packed())));
}

/// Pads to blocks and seals with the checksum, padding included.
Bytes Sealed(Packer out) {
  out.PadTo(SizeInBlocks(out));
  out.PutAt(kChecksumAt, Checksum(ByteSpan(out.Packed()).subspan(kChecked)));
  return std::move(out).Packed();
}

/// Reads the magic and the format; nothing where either is another.
std::optional<DigestForm> FormOf(Unpacker& in, std::uint64_t magic) {
  if (in.Get<std::uint64_t>() != magic) return std::nullopt;
  const auto form = static_cast<DigestForm>(in.Get<std::uint32_t>());
  const bool isKnown = form == DigestForm::Whole || form == DigestForm::Blocks;
  return isKnown ? std::optional(form) : std::nullopt;
}

/// The same, where the checksum of all that follows holds too.
std::optional<DigestForm> Opened(Unpacker& in, std::uint64_t magic, ByteSpan whole) {
  const auto form = FormOf(in, magic);
  if (!form || in.Get<std::uint64_t>() != Checksum(whole.subspan(kChecked))) return std::nullopt;
  return form;
}

FilePatch UnpackFile(Unpacker& in) {
  FilePatch file;
  file.Name = in.GetText<std::uint16_t>();
  file.Exists = in.Get<std::uint8_t>() != 0;
  file.Length = in.Get<std::int64_t>();
  const auto ranges = in.Get<std::uint32_t>();
  for (std::uint32_t i = 0; i < ranges && in.Whole(); ++i) {
    JournalRange range;
    range.Offset = in.Get<std::int64_t>();
    range.Contents = in.Take(in.Get<std::uint64_t>());
    file.Ranges.push_back(range);
  }
  return file;
}

bool InBounds(const FilePatch& file, const std::vector<KnownFile>& known) {
  const KnownFile* found = FindFile(known, file.Name);
  if (!found || file.Length < 0 || file.Length > found->MaxBytes) return false;
  return std::all_of(file.Ranges.begin(), file.Ranges.end(), [&](const JournalRange& range) {
    return range.Offset >= 0 && range.Offset <= file.Length &&
           std::ssize(range.Contents) <= file.Length - range.Offset;
  });
}

std::size_t ExpectedSize(const JournalRecord& record) {
  std::size_t size = kRecordHeader + kJournalBlock;
  for (const FilePatch& file : record.Files) {
    size += 32 + file.Name.size() + 16 * file.Ranges.size();
    for (const JournalRange& range : file.Ranges) size += range.Contents.size();
  }
  return size;
}

}  // namespace

const KnownFile* FindFile(const std::vector<KnownFile>& known, std::string_view name) {
  for (const KnownFile& file : known)
    if (file.Name == name) return &file;
  return nullptr;
}

Bytes PackMarker(const JournalMarker& marker) {
  Packer out = Begun(kMarkerMagic, marker.Form, kJournalBlock);
  out.Put(marker.World);
  out.Put(marker.Sequence);
  out.Put(marker.Digest);
  out.Put(marker.Reserved);
  return Sealed(std::move(out));
}

std::optional<JournalMarker> UnpackMarker(ByteSpan block) {
  if (std::ssize(block) < kJournalBlock) return std::nullopt;
  const ByteSpan whole = block.first(kJournalBlock);
  Unpacker in(whole.first(kMarkerSize));
  const auto form = Opened(in, kMarkerMagic, whole);
  if (!form) return std::nullopt;
  JournalMarker marker;
  marker.Form = *form;
  marker.World = in.Get<std::uint64_t>();
  marker.Sequence = in.Get<std::uint64_t>();
  marker.Digest = in.Get<std::uint64_t>();
  marker.Reserved = in.Get<std::int64_t>();
  return marker;
}

bool IsOfNewerVersion(ByteSpan block) {
  if (std::ssize(block) < kJournalBlock) return false;
  const ByteSpan whole = block.first(kJournalBlock);
  Unpacker in(whole);
  return in.Get<std::uint64_t>() == kMarkerMagic &&
         in.Get<std::uint32_t>() > static_cast<std::uint32_t>(DigestForm::Blocks) &&
         in.Get<std::uint64_t>() == Checksum(whole.subspan(kChecked));
}

Bytes PackSeal(std::uint64_t world, std::uint64_t sequence, const WorldDigest& files) {
  Packer out = Begun(kSealMagic, files.Form(), kJournalBlock);
  out.Put(world);
  out.Put(sequence);
  out.Put(static_cast<std::uint32_t>(files.Files().size()));
  for (const auto& [name, digest] : files.Files()) {
    PutName(out, name);
    out.Put(digest.Value());
  }
  return Sealed(std::move(out));
}

std::optional<WorldSeal> UnpackSeal(ByteSpan bytes) {
  Unpacker in(bytes);
  if (bytes.size() < kChecked) return std::nullopt;
  const auto form = Opened(in, kSealMagic, bytes);
  if (!form) return std::nullopt;
  WorldSeal seal{0, 0, WorldDigest(*form)};
  seal.World = in.Get<std::uint64_t>();
  seal.Sequence = in.Get<std::uint64_t>();
  for (auto files = in.Get<std::uint32_t>(); files > 0 && in.Whole(); --files) {
    std::string name = in.GetText<std::uint16_t>();
    seal.Files.Set(std::move(name), in.Get<std::uint64_t>());
  }
  if (!in.Whole()) return std::nullopt;
  return seal;
}

Bytes PackRecord(const JournalRecord& record) {
  Packer out = Begun(kRecordMagic, record.Form, ExpectedSize(record));
  out.Put(record.Sequence);
  out.Put(record.World);
  out.Put(std::uint64_t{0});  // the length
  out.Put(record.Digest);
  out.Put(static_cast<std::uint32_t>(record.Files.size()));
  for (const FilePatch& file : record.Files) {
    PutName(out, file.Name);
    out.Put(static_cast<std::uint8_t>(file.Exists));
    out.Put(file.Length);
    out.Put(static_cast<std::uint32_t>(file.Ranges.size()));
    for (const JournalRange& range : file.Ranges) {
      out.Put(range.Offset);
      out.Put(static_cast<std::uint64_t>(range.Contents.size()));
      out.Put(range.Contents);
    }
  }
  out.PutAt(kLengthAt, static_cast<std::int64_t>(SizeInBlocks(out)));
  return Sealed(std::move(out));
}

std::optional<RecordHead> HeadOfRecord(ByteSpan bytes) {
  if (bytes.size() < kRecordHeader) return std::nullopt;
  Unpacker in(bytes);
  const auto form = FormOf(in, kRecordMagic);
  if (!form) return std::nullopt;
  return RecordHead{*form,
                    in.Get<std::uint64_t>(),
                    in.Get<std::uint64_t>(),
                    in.Get<std::uint64_t>(),
                    in.Get<std::int64_t>(),
                    in.Get<std::uint64_t>(),
                    in.Get<std::uint32_t>()};
}

std::optional<JournalEntry> UnpackRecord(ByteSpan journal, std::int64_t offset,
                                         const std::vector<KnownFile>& known,
                                         const JournalQuirks& quirks) {
  if (offset < 0 || offset + kJournalBlock > std::ssize(journal)) return std::nullopt;
  const ByteSpan rest = journal.subspan(static_cast<std::size_t>(offset));
  const auto head = HeadOfRecord(rest);
  if (!head) return std::nullopt;
  JournalEntry entry;
  entry.Record.Form = head->Form;
  entry.Record.Sequence = head->Sequence;
  entry.Record.World = head->World;
  entry.Record.Digest = head->Digest;
  entry.Size = head->Size;
  if (entry.Size < kJournalBlock || entry.Size > std::ssize(rest) ||
      entry.Size % kJournalBlock != 0)
    return std::nullopt;
  const ByteSpan whole = rest.first(static_cast<std::size_t>(entry.Size));
  if (!quirks.NoChecksum && Checksum(whole.subspan(kChecked)) != head->Checksum)
    return std::nullopt;
  Unpacker body(whole.subspan(kRecordHeader));
  for (std::uint32_t i = 0; i < head->Files && body.Whole(); ++i) {
    entry.Record.Files.push_back(UnpackFile(body));
    if (!InBounds(entry.Record.Files.back(), known)) return std::nullopt;
  }
  if (!body.Whole()) return std::nullopt;
  return entry;
}

}  // namespace grapplemont
