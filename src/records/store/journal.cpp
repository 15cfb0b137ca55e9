#include "records/store/journal.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <set>

#include "records/store/packing.h"

namespace grapplemont {

namespace {

constexpr std::uint64_t kRecordMagic = 0x4452434552464D47;  // "GMFRECRD"
constexpr std::uint64_t kMarkerMagic = 0x4B52414D52464D47;  // "GMFRMARK"
constexpr std::uint64_t kSealMagic = 0x4C41455352464D47;    // "GMFRSEAL"
constexpr std::uint32_t kFormat = 1;

// All three begin with the magic, the format and the checksum of all that follows it.
constexpr std::size_t kChecksumAt = 12, kChecked = 20;
constexpr std::size_t kMarkerSize = 52, kRecordHeader = 56;
constexpr std::size_t kLengthAt = 36;

Packer Begun(std::uint64_t magic, std::size_t expected) {
  Packer out;
  out.Reserve(expected);
  out.Put(magic);
  out.Put(kFormat);
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

/// Whether what `in` reads begins as it must: its magic, its format, the checksum of all of it.
bool Opens(Unpacker& in, std::uint64_t magic, ByteSpan whole) {
  return in.Get<std::uint64_t>() == magic && in.Get<std::uint32_t>() == kFormat &&
         in.Get<std::uint64_t>() == Checksum(whole.subspan(kChecked));
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
  Packer out = Begun(kMarkerMagic, kJournalBlock);
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
  if (!Opens(in, kMarkerMagic, whole)) return std::nullopt;
  JournalMarker marker;
  marker.World = in.Get<std::uint64_t>();
  marker.Sequence = in.Get<std::uint64_t>();
  marker.Digest = in.Get<std::uint64_t>();
  marker.Reserved = in.Get<std::int64_t>();
  return marker;
}

Bytes PackSeal(const WorldSeal& seal) {
  Packer out = Begun(kSealMagic, kJournalBlock);
  out.Put(seal.World);
  out.Put(seal.Sequence);
  out.Put(static_cast<std::uint32_t>(seal.Files.OfFiles().size()));
  for (const auto& [name, digest] : seal.Files.OfFiles()) {
    PutName(out, name);
    out.Put(digest);
  }
  return Sealed(std::move(out));
}

std::optional<WorldSeal> UnpackSeal(ByteSpan bytes) {
  Unpacker in(bytes);
  if (bytes.size() < kChecked || !Opens(in, kSealMagic, bytes)) return std::nullopt;
  WorldSeal seal;
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
  Packer out = Begun(kRecordMagic, ExpectedSize(record));
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

std::optional<JournalEntry> UnpackRecord(ByteSpan journal, std::int64_t offset,
                                         const std::vector<KnownFile>& known,
                                         const JournalQuirks& quirks) {
  if (offset < 0 || offset + kJournalBlock > std::ssize(journal)) return std::nullopt;
  const ByteSpan rest = journal.subspan(static_cast<std::size_t>(offset));
  Unpacker header(rest);
  if (header.Get<std::uint64_t>() != kRecordMagic || header.Get<std::uint32_t>() != kFormat)
    return std::nullopt;
  const auto checksum = header.Get<std::uint64_t>();
  JournalEntry entry;
  entry.Record.Sequence = header.Get<std::uint64_t>();
  entry.Record.World = header.Get<std::uint64_t>();
  entry.Size = header.Get<std::int64_t>();
  entry.Record.Digest = header.Get<std::uint64_t>();
  const auto files = header.Get<std::uint32_t>();
  if (entry.Size < kJournalBlock || entry.Size > std::ssize(rest) ||
      entry.Size % kJournalBlock != 0)
    return std::nullopt;
  const ByteSpan whole = rest.first(static_cast<std::size_t>(entry.Size));
  if (!quirks.NoChecksum && Checksum(whole.subspan(kChecked)) != checksum) return std::nullopt;
  Unpacker body(whole.subspan(kRecordHeader));
  for (std::uint32_t i = 0; i < files && body.Whole(); ++i) {
    entry.Record.Files.push_back(UnpackFile(body));
    if (!InBounds(entry.Record.Files.back(), known)) return std::nullopt;
  }
  if (!body.Whole()) return std::nullopt;
  return entry;
}

std::vector<JournalRange> ChangedRanges(ByteSpan before, ByteSpan after,
                                        const JournalQuirks& quirks) {
  constexpr auto kWhole = static_cast<std::size_t>(kJournalBlock);
  const std::size_t step = quirks.BareRanges ? 1 : kWhole;
  const auto part = [&](ByteSpan bytes, std::size_t at) {
    return at >= bytes.size() ? ByteSpan() : bytes.subspan(at, std::min(step, bytes.size() - at));
  };
  std::vector<JournalRange> ranges;
  for (std::size_t at = 0; at < after.size(); at += step) {
    // A last block that was longer or shorter before is a change too: the system writes it.
    const ByteSpan now = part(after, at), then = part(before, at);
    if (now.size() == then.size() && std::memcmp(now.data(), then.data(), now.size()) == 0)
      continue;
    if (!ranges.empty() && ranges.back().Offset + std::ssize(ranges.back().Contents) ==
                               static_cast<std::int64_t>(at)) {
      ByteSpan& joined = ranges.back().Contents;
      joined = after.subspan(at - joined.size(), joined.size() + now.size());
    } else {
      ranges.push_back({static_cast<std::int64_t>(at), now});
    }
  }
  return ranges;
}

void WorldDigest::Set(const std::string& name, ByteSpan contents) {
  files_[name] = Checksum(contents);
}

std::uint64_t WorldDigest::Value() const {
  std::string all;
  for (const auto& [name, digest] : files_) all += name + ":" + std::to_string(digest) + "\n";
  return Checksum(std::as_bytes(std::span(all)));
}

std::vector<std::string> WorldDigest::Differing(const WorldDigest& other) const {
  std::vector<std::pair<std::string, std::uint64_t>> differing;
  std::set_symmetric_difference(files_.begin(), files_.end(), other.files_.begin(),
                                other.files_.end(), std::back_inserter(differing));
  std::set<std::string> names;
  for (const auto& [name, digest] : differing) names.insert(name);
  return {names.begin(), names.end()};
}

WorldDigest DigestOf(const std::map<std::string, Bytes>& files) {
  WorldDigest digest;
  for (const auto& [name, contents] : files) digest.Set(name, contents);
  return digest;
}

}  // namespace grapplemont
