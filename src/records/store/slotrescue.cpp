#include "records/store/slotrescue.h"

#include <algorithm>
#include <cstring>
#include <set>

#include "records/fields/fields.h"
#include "records/fields/gameinfo.h"
#include "records/store/mornings.h"
#include "records/store/slotfolder.h"

namespace grapplemont {

namespace {

using Files = std::map<std::string, Bytes>;
using RecordSpan = std::span<const JournalRecord>;

Files Applied(Files files, RecordSpan records) {
  for (const JournalRecord& record : records)
    for (const FilePatch& patch : record.Files) {
      std::optional<Bytes> file;
      if (auto node = files.extract(patch.Name)) file = std::move(node.mapped());
      ApplyTo(file, patch);
      if (file) files.emplace(patch.Name, *std::move(file));
    }
  return files;
}

/// The last of the records that follow each other without a gap.
RecordSpan LastRun(RecordSpan records) {
  std::size_t first = records.size();
  while (first > 0 &&
         (first == records.size() || records[first - 1].Sequence + 1 == records[first].Sequence))
    --first;
  return records.subspan(first);
}

std::optional<GameInfo> GameOf(const Files& files) {
  const auto info = files.find(std::string(LayoutOf<GameInfo>().File));
  if (info == files.end() || info->second.size() < sizeof(GameInfo)) return std::nullopt;
  GameInfo game;
  std::memcpy(&game, info->second.data(), sizeof(GameInfo));
  return game;
}

/// " (Monday, 09 March 2026)"; nothing where the files hold no game.
std::string DayOf(const Files& files) {
  const auto game = GameOf(files);
  return game ? " (" + LongDate(game->Today) + ")" : "";
}

/// The last day that these files know of: a game that has gone back keeps the day that it left.
Day LatestOf(const Files& files, Day today) {
  const auto kept = files.find(kMorningsName);
  if (kept == files.end()) return today;
  const Mornings moments(kept->second);
  for (std::size_t i = 0; i < moments.Count(); ++i) today = std::max(today, moments[i].On);
  return today;
}

/// Whether both are of one game, and `files` of a later day. What a power cut leaves of a block
/// that was being written does not begin with the names of this game.
bool IsLater(const Files& files, const Files& than) {
  const auto game = GameOf(files), other = GameOf(than);
  if (!game || !other) return false;
  return game->PlayerName == other->PlayerName && game->SaveName == other->SaveName &&
         Day(game->StartDate) == Day(other->StartDate) && Day(game->Today) > Day(other->Today) &&
         Day(game->Today) > LatestOf(than, other->Today);
}

class Examination {
 public:
  Examination(StoredSlot& stored, const std::vector<KnownFile>& known, const SlotOptions& options)
      : stored_(stored), known_(known), options_(options) {}

  SlotFinding Find() {
    auto world = stored_.Id;
    if (!world && stored_.Seal) world = stored_.Seal->World;
    if (stored_.HasId)
      out_.Chain = ReadChain(stored_.Journal, world, known_, ~std::uint64_t{0}, options_.Quirks);
    const RecordSpan records = out_.Chain.Records;
    if (records.empty())
      TakeStored();
    else
      Take(Applied(stored_.Files, records), records);
    LookForTooLong();
    if (stored_.HasId) LookForDamage();
    if (options_.Quirks.TrustTheChain && out_.Chain.Found == JournalChain::State::Sound)
      out_.Damage.clear();
    if (!out_.Damage.empty()) Choose();
    out_.World = world.value_or(out_.Chain.Marker.World);
    if (out_.World == 0) out_.World = out_.Digest.Value();
    // Who mends a slot compares both.
    if (isStored_ && out_.Damage.empty()) out_.Files = std::move(stored_.Files);
    if (isStored_ && !out_.Damage.empty()) out_.Files = stored_.Files;
    return std::move(out_);
  }

 private:
  void Note(const std::string& sentence) {
    out_.Damage += (out_.Damage.empty() ? "" : " ") + sentence;
  }

  void Take(Files files, RecordSpan records) {
    out_.Files = std::move(files);
    out_.Digest = DigestOf(out_.Files);
    applied_ = records;
    isStored_ = false;
  }

  /// The files as they are, which are not copied for it.
  void TakeStored() {
    out_.Files.clear();
    out_.Digest = DigestOf(stored_.Files);
    applied_ = {};
    isStored_ = true;
  }
  const Files& Found() const { return isStored_ ? stored_.Files : out_.Files; }

  static bool IsWorld(const Files& files, std::uint64_t digest, DigestForm form) {
    return DigestOf(files, form).Value() == digest;
  }

  /// The files that are found, in the form of the seal.
  WorldDigest AsSealed() const { return DigestOf(Found(), stored_.Seal->Files.Form()); }

  /// Whether what is found is what the chain leads to.
  bool IsOfChain() const {
    const JournalChain& chain = out_.Chain;
    return chain.Form() == out_.Digest.Form() ? out_.Digest.Value() == chain.Digest()
                                              : IsWorld(Found(), chain.Digest(), chain.Form());
  }

  bool IsFleeting(const std::string& name) const {
    const KnownFile* file = FindFile(known_, name);
    return file && file->Fleeting;
  }

  /// What the records that were applied write again is as long as it ought to be.
  void LookForTooLong() {
    std::set<std::string> written;
    for (const JournalRecord& record : applied_)
      for (const FilePatch& patch : record.Files) written.insert(patch.Name);
    for (const auto& [name, size] : stored_.TooLong) {
      if (IsFleeting(name)) continue;
      const bool isRewritten = written.contains(name);
      Note(name + " is " + std::to_string(size) + " bytes long, more than its most of " +
           std::to_string(Found().at(name).size()) + "; what is too much goes.");
      hasSurplus_ |= !isRewritten;
    }
  }

  void LookForDamage() {
    using State = JournalChain::State;
    const JournalChain& chain = out_.Chain;
    if (!stored_.Id) Note("Its world.id is missing or spoiled.");
    if (chain.Found == State::Foreign) Note("The journal in it is another world's.");
    if (chain.Found == State::Damaged) Note("Its journal has lost something in its midst.");
    if (chain.Found == State::Unreadable)
      Note(stored_.Journal.empty() ? "It has no journal."
                                   : "Its journal cannot be read: it is another kind of file.");
    const std::int64_t reserved =
        chain.Marker.Reserved > 0 ? chain.Marker.Reserved : options_.JournalBytes;
    isCut_ = chain.MarkerRead && stored_.JournalSize < reserved;
    if (isCut_)
      Note("Its journal was cut short: " + std::to_string(stored_.JournalSize) + " of " +
           std::to_string(reserved) + " bytes are left.");
    if (chain.Found == State::Sound) LookForStrangers();
  }

  /// Whether chain and files, each whole, belong together.
  void LookForStrangers() {
    const JournalChain& chain = out_.Chain;
    const auto& seal = stored_.Seal;
    isBehind_ = IsLater(stored_.Files, Found());
    if (isBehind_ ||
        (seal && seal->Sequence > chain.Last() && seal->Files.Value() != chain.Digest()))
      return Note("Its files" + DayOf(stored_.Files) + " hold more than its journal" +
                  DayOf(Found()) + ".");
    if (!chain.Vouches() || IsOfChain()) return;
    if (seal && seal->Sequence == chain.Last()) {
      const auto strangers = AsSealed().Differing(seal->Files);
      if (std::all_of(strangers.begin(), strangers.end(),
                      [this](auto& name) { return IsFleeting(name); }))
        return;
    }
    Note("Files of it were changed from outside since the game last kept them.");
  }

  /// The newest world that can be proven, or the files as they are.
  void Choose() {
    const JournalChain& chain = out_.Chain;
    const auto& seal = stored_.Seal;
    const RecordSpan run = LastRun(chain.Behind);
    const std::uint64_t last = run.empty() ? chain.Last() : run.back().Sequence;
    out_.Newest = std::max(last, seal ? seal->Sequence : 0);
    const bool hasRecords = !chain.Records.empty() || !run.empty();
    std::optional<std::uint64_t> proven;
    if (chain.Vouches() && IsOfChain() && !isBehind_) proven = chain.Last();
    if (seal && IsWorld(stored_.Files, seal->Files.Value(), seal->Files.Form()) &&
        (!proven || seal->Sequence >= *proven)) {
      proven = seal->Sequence;
      TakeStored();
    }
    if (!run.empty() && (!proven || last > *proven)) {
      Files behind = Applied(stored_.Files, run);
      if (IsWorld(behind, run.back().Digest, run.back().Form)) {
        proven = last;
        Take(std::move(behind), run);
      }
    }
    if (!proven) TakeStored();
    // What a journal held that was cut short nobody knows, except for the seal.
    const bool mayBeOld = isCut_ && !applied_.empty() && !(seal && seal->Sequence == proven);
    const bool losesSteps = proven ? *proven < out_.Newest || mayBeOld : hasRecords;
    const std::string spoiled = proven ? "" : NotAsSealed();
    out_.GivesUp = losesSteps || hasSurplus_ || !spoiled.empty();
    Conclude(proven.has_value(), losesSteps, spoiled);
  }

  /// The names of the files that are not what they were when the game last kept them.
  std::string NotAsSealed() const {
    std::string names;
    if (stored_.Seal && stored_.Seal->Sequence == out_.Newest)
      for (const std::string& name : AsSealed().Differing(stored_.Seal->Files))
        if (!IsFleeting(name)) names += (names.empty() ? "" : ", ") + name;
    return names;
  }

  void Conclude(bool proven, bool losesSteps, const std::string& spoiled) {
    const std::string day = DayOf(Found());
    if (proven && !losesSteps) return Note("Every step could be found again" + day + ".");
    if (proven)
      return Note("The game goes on from the last state that is whole" + day +
                  "; whatever came after it is lost.");
    Note("The files are taken as they are" + day + "; they may hold parts of several steps.");
    if (!spoiled.empty())
      Note("Not as the game last kept them: " + spoiled + "; what is missing there is lost.");
    Note("Have the world checked with: grapplemont-world check FOLDER.");
  }

  StoredSlot& stored_;
  const std::vector<KnownFile>& known_;
  const SlotOptions& options_;
  SlotFinding out_;
  bool isStored_ = false;    // the stored files are what is found, and out_.Files is empty
  RecordSpan applied_;       // to the stored files, for out_.Files
  bool isCut_ = false;       // the journal is shorter than it was made
  bool isBehind_ = false;    // the files are of a later day than the journal
  bool hasSurplus_ = false;  // a file is too long, and nothing writes it again
};

/// What a later version of the game means by its files nobody here knows: taken for damage, they
/// would be mended to death.
void RefuseNewer(const std::string& folder, ByteSpan journal) {
  for (const std::int64_t at : {std::int64_t{0}, kJournalBlock})
    if (std::ssize(journal) > at && IsOfNewerVersion(journal.subspan(static_cast<std::size_t>(at))))
      throw DiskError(folder, "open",
                      "it was played with a newer version of the game. Update the game to play on");
}

}  // namespace

SlotFinding Examine(StoredSlot& stored, const std::vector<KnownFile>& known,
                    const SlotOptions& options) {
  return Examination(stored, known, options).Find();
}

StoredSlot ReadStoredSlot(Disk& disk, const std::string& folder,
                          const std::vector<KnownFile>& known, Bytes journal,
                          std::int64_t journalSize) {
  RefuseNewer(folder, journal);
  StoredSlot stored;
  for (const KnownFile& each : known) {
    const std::string path = folder + "/" + each.Name;
    const Disk::Kind kind = disk.Look(path);
    if (kind == Disk::Kind::Nothing) continue;
    if (kind != Disk::Kind::File) throw DiskError(path, "open", "it is not a plain file");
    const OpenedFile file(disk, path, false);
    const std::int64_t size = disk.Size(file);
    if (size > each.MaxBytes) stored.TooLong[each.Name] = size;
    Bytes bytes(static_cast<std::size_t>(size > each.MaxBytes ? each.MostBytes() : size));
    if (!bytes.empty()) disk.ReadAt(file, 0, bytes);
    stored.Files.emplace(each.Name, std::move(bytes));
  }
  stored.HasId = disk.Look(folder + "/" + kWorldIdName) != Disk::Kind::Nothing;
  const std::string seal = folder + "/" + kSealName;
  if (disk.Look(seal) == Disk::Kind::File)
    stored.Seal = UnpackSeal(ReadStart(disk, seal, kJournalBlock));
  // An id that is lost is known again where seal and journal name the same one.
  if (!stored.HasId && stored.Seal)
    stored.HasId = ReadChain(journal, std::nullopt, known).Marker.World == stored.Seal->World;
  if (!stored.HasId) {
    stored.Seal.reset();
    return stored;
  }
  stored.Id = ReadWorldId(disk, folder);
  if (stored.Seal && stored.Id && stored.Seal->World != *stored.Id) stored.Seal.reset();
  stored.Journal = std::move(journal);
  stored.JournalSize = journalSize;
  return stored;
}

std::int64_t LongestJournal(const std::vector<KnownFile>& known, std::int64_t usual) {
  std::int64_t bytes = usual + kJournalStart + kJournalBlock;
  for (const KnownFile& file : known)
    bytes += RoundedToBlocks(file.MaxBytes) + RoundedToBlocks(file.MaxBytes) / 64 + kJournalBlock;
  return bytes;
}

SlotFinding ExamineSlot(Disk& disk, const std::string& folder,
                        const std::vector<KnownFile>& known) {
  const SlotOptions usual;
  JournalFile journal(disk, folder, usual.JournalBytes, usual.Quirks);
  Bytes read = journal.Read(LongestJournal(known, usual.JournalBytes));
  StoredSlot stored = ReadStoredSlot(disk, folder, known, std::move(read), journal.Size());
  SlotFinding found = Examine(stored, known, usual);
  found.Chain = {};  // it points into what is gone now
  return found;
}

std::optional<Bytes> Slot::Peek(Disk& disk, const std::string& folder,
                                const std::vector<KnownFile>& known, const std::string& name) {
  const std::string standing = StandingFolder(disk, folder);
  if (standing.empty()) return std::nullopt;
  SlotFinding found = ExamineSlot(disk, standing, known);
  const auto file = found.Files.find(name);
  if (file == found.Files.end()) return std::nullopt;
  return std::move(file->second);
}

FilePatch PatchOf(const FileChange& change) {
  return {change.Name, change.ExistsAfter, std::ssize(change.After), change.Ranges};
}

std::vector<FilePatch> PatchesTo(const SlotFinding& finding, const StoredSlot& stored) {
  std::set<std::string> names;
  for (const auto* files : {&stored.Files, &finding.Files})
    for (const auto& [name, contents] : *files) names.insert(name);
  const auto in = [](const std::map<std::string, Bytes>& files, const std::string& name) {
    const auto found = files.find(name);
    return found == files.end() ? nullptr : &found->second;
  };
  std::vector<FilePatch> patches;
  for (const std::string& name : names) {
    const Bytes* after = in(finding.Files, name);
    if (const auto change = ChangeBetween(name, in(stored.Files, name), after))
      patches.push_back(PatchOf(*change));
    else if (stored.TooLong.contains(name))
      patches.push_back({name, true, std::ssize(*after), {}});
  }
  return patches;
}

}  // namespace grapplemont
