#include <algorithm>

#include "fuzz/livingworld.h"
#include "fuzz/target.h"
#include "records/store/journalfile.h"
#include "records/store/packing.h"
#include "records/store/slotrescue.h"

// A journal, the seal beside it and the files under both. No guess would find a checksum, so most
// cases are told as markers and records, which are packed here and then spoiled.

namespace grapplemont::fuzz {
namespace {

constexpr std::uint64_t kWorld = 7, kOtherWorld = 8;

const std::vector<KnownFile>& Known() {
  static const std::vector<KnownFile> known = {{"belt.dat", 9000, 30},
                                               {"gameinfo.dat", 4096},
                                               {"tv.dat", 20000, 100},
                                               {"mornings", 500, 1, true}};
  return known;
}

/// The checksum of what was spoiled is right again.
void Seal(Bytes& packed) {
  constexpr std::size_t kAt = 12, kChecked = 20;
  const std::uint64_t sum = Checksum(ByteSpan(packed).subspan(kChecked));
  for (std::size_t i = 0; i < 8; ++i) packed[kAt + i] = static_cast<std::byte>(sum >> (8 * i));
}

void Spoil(Input& in, Bytes& packed) {
  const int how = in.Byte();
  // Where something stands; the rest is padding.
  const std::size_t most = std::min<std::size_t>(packed.size(), 256);
  for (int left = how % 4; left > 0; --left)
    packed[in.Below(most)] = static_cast<std::byte>(in.Byte());
  if (how & 4) Seal(packed);
  if (how & 8) packed.resize(in.Below(packed.size() + 1));
}

std::uint64_t AWorld(Input& in) {
  return in.Below(8) == 0 ? kOtherWorld : kWorld;
}

DigestForm AForm(Input& in) {
  return in.Below(4) == 0 ? DigestForm::Whole : DigestForm::Blocks;
}

std::string AName(Input& in) {
  const std::size_t which = in.Below(Known().size() + 1);
  return which < Known().size() ? Known()[which].Name : std::string(TextOf(in.Take(in.Below(12))));
}

FilePatch APatch(Input& in) {
  FilePatch patch{AName(in), in.Below(8) > 0, static_cast<std::int64_t>(in.Below(1 << 15)), {}};
  for (std::size_t left = in.Below(4); left > 0; --left) {
    const auto offset = static_cast<std::int64_t>(in.Below(1 << 15));
    patch.Ranges.push_back({offset, in.Take(in.Below(64))});
  }
  if (in.Below(16) == 0) patch.Length = -patch.Length;
  return patch;
}

Bytes ARecord(Input& in, std::uint64_t& sequence) {
  sequence += in.Below(8) == 0 ? in.Below(4) : 1;
  JournalRecord record{AWorld(in), sequence, static_cast<std::uint64_t>(in.Byte()), {}, AForm(in)};
  for (std::size_t left = in.Below(4); left > 0; --left) record.Files.push_back(APatch(in));
  return PackRecord(record);
}

Bytes AJournal(Input& in) {
  Bytes journal;
  std::uint64_t sequence = in.Below(16);
  const auto put = [&](Bytes packed) {
    Spoil(in, packed);
    journal.insert(journal.end(), packed.begin(), packed.end());
  };
  for (int marker = 0; marker < 2; ++marker)
    put(in.Below(3) == 0 ? Bytes(kJournalBlock)
                         : PackMarker({AWorld(in), sequence + in.Below(2),
                                       static_cast<std::uint64_t>(in.Byte()), 0, AForm(in)}));
  for (int left = 8; left > 0 && !in.Empty(); --left) put(ARecord(in, sequence));
  return journal;
}

StoredSlot ASlot(Input& in) {
  StoredSlot stored;
  for (const KnownFile& known : Known())
    if (in.Below(4) > 0)
      stored.Files[known.Name] = Bytes(in.Below(static_cast<std::size_t>(known.MostBytes()) + 1));
  stored.HasId = in.Below(8) > 0;
  if (stored.HasId && in.Below(8) > 0) stored.Id = kWorld;
  if (in.Below(2) > 0) {
    const DigestForm form = AForm(in);
    WorldDigest files = DigestOf(stored.Files, form);
    if (const std::size_t other = in.Below(8); other < Known().size())
      files.Set(Known()[other].Name, std::uint64_t{1});
    Bytes seal = PackSeal(AWorld(in), in.Below(16), files);
    Spoil(in, seal);
    stored.Seal = UnpackSeal(seal);
  }
  return stored;
}

void RequireWithin(const std::map<std::string, Bytes>& files) {
  for (const auto& [name, contents] : files) {
    const KnownFile* known = FindFile(Known(), name);
    Require(known && std::ssize(contents) <= known->MaxBytes, name + " is no file of the slot");
  }
}

void Judge(const StoredSlot& stored) {
  StoredSlot examined = stored;
  const SlotFinding finding = Examine(examined, Known(), {});
  RequireWithin(finding.Files);
  if (!finding.Damage.empty() || !stored.HasId) return;
  std::map<std::string, Bytes> files = stored.Files;
  for (const FilePatch& patch : PatchesTo(finding, stored)) {
    std::optional<Bytes> file;
    if (const auto found = files.find(patch.Name); found != files.end()) file = found->second;
    ApplyTo(file, patch);
    files.erase(patch.Name);
    if (file) files.emplace(patch.Name, *std::move(file));
  }
  Require(files == finding.Files, "the patches lead to another world than what was found");
}

void ReadChains(ByteSpan journal) {
  JournalQuirks open;
  open.NoChecksum = true;
  for (const JournalQuirks& quirks : {JournalQuirks(), open})
    for (const std::optional<std::uint64_t> world :
         {std::optional(kWorld), std::optional<std::uint64_t>()}) {
      const JournalChain chain = ReadChain(journal, world, Known(), ~std::uint64_t{0}, quirks);
      std::map<std::string, std::optional<Bytes>> files;
      for (const JournalRecord& record : chain.Records)
        for (const FilePatch& patch : record.Files) ApplyTo(files[patch.Name], patch);
      for (const auto& [name, file] : files) {
        const KnownFile* known = FindFile(Known(), name);
        Require(known && (!file || std::ssize(*file) <= known->MaxBytes), "too much of " + name);
      }
    }
}

void Read(ByteSpan bytes) {
  Input in(bytes);
  const int how = in.Byte();
  if (how % 8 == 7) {
    ReadChains(in.Rest());
    UnpackSeal(bytes);
    IsOfNewerVersion(bytes);
    return;
  }
  StoredSlot stored = ASlot(in);
  stored.Journal = AJournal(in);
  stored.JournalSize = std::ssize(stored.Journal);
  ReadChains(stored.Journal);
  Judge(stored);
}

const Registered kJournal({.Name = "journal", .Run = Read, .Cases = 1000, .Most = 512});

}  // namespace
}  // namespace grapplemont::fuzz
