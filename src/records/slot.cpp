#include "records/slot.h"

#include <algorithm>

#include "records/journalchain.h"
#include "records/journalfile.h"
#include "records/slotfiles.h"
#include "records/slotfolder.h"
#include "records/slotrescue.h"
#include "records/worlddigest.h"

namespace grapplemont {

namespace {

constexpr const char* kTakenBack = "Your last step was taken back.";
constexpr const char* kKept = "Your last step is kept.";
constexpr const char* kUntilMended =
    "Your last step was taken back, and nothing can be kept until the disk answers again.";
constexpr const char* kKeptUntilMended =
    "Your last step is kept, but nothing further can be until the disk answers again.";

/// More than the longest record of these files and a usual journal before it.
std::int64_t LongestJournal(const std::vector<KnownFile>& known, std::int64_t usual) {
  std::int64_t bytes = usual + kJournalStart + kJournalBlock;
  for (const KnownFile& file : known)
    bytes += RoundedToBlocks(file.MaxBytes) + RoundedToBlocks(file.MaxBytes) / 64 + kJournalBlock;
  return bytes;
}

}  // namespace

SlotBusy::SlotBusy(const std::string& folder)
    : std::runtime_error("The slot " + folder +
                         " is open in another program. Close it there first; nothing was "
                         "changed.") {}

SlotDamaged::SlotDamaged(const std::string& folder, std::string copy)
    : std::runtime_error("The journal of the slot " + folder +
                         " is damaged: something that was kept in it is lost. The game can go on "
                         "from the last state that is whole; the slot as it is now will be kept "
                         "in " +
                         copy + "."),
      copy_(std::move(copy)) {}

struct Slot::Insides {
  Insides(grapplemont::Disk& disk, std::string folder, std::vector<KnownFile> known,
          const SlotOptions& options)
      : Options(options),
        Disk(disk),
        Folder(std::move(folder)),
        Known(std::move(known)),
        Lock(disk, Folder),
        Journal(disk, Folder, options.JournalBytes, Options.Quirks),
        Records(disk, Folder) {}

  SlotOptions Options;
  grapplemont::Disk& Disk;
  std::string Folder;
  std::vector<KnownFile> Known;
  SlotLock Lock;
  JournalFile Journal;
  SlotFiles Records;
  std::map<std::string, Bytes> Files;
  std::vector<std::string> Remarks;
  WorldDigest Digest;
  std::uint64_t World = 0;
  std::uint64_t Sequence = 0;  // the last number spent; every commit up to it is on disk for good
  bool Committed = false;
  bool Broken = false;  // a call has failed, and recovery has not succeeded since

  std::string Path(const std::string& name) const { return Folder + "/" + name; }
  Bytes ReadJournal() { return Journal.Read(LongestJournal(Known, Options.JournalBytes)); }

  void Open(Damage damage);
  void LookOver();
  void TakeOver();
  void Adopt();
  void SetJournalAside(const std::string& remark);
  void Replay(ByteSpan journal, const JournalChain& chain);
  void Rescue(ByteSpan journal, std::optional<std::uint64_t> id);

  void Recover();
  bool TryRecover();
  void Require(const std::vector<FileChange>& changes) const;
  void MakeRoom(const std::vector<FileChange>& changes, ByteSpan record);
  void Checkpoint();
};

// Opening.

void Slot::Insides::Open(Damage damage) {
  FinishSwap(Disk, Folder);
  if (Disk.Look(Folder) != Disk::Kind::Folder)
    throw DiskError(Folder, "open", "it is no plain folder");
  LookOver();
  if (Disk.Look(Path(kWorldIdName)) == Disk::Kind::Nothing) return Adopt();
  const auto id = ReadWorldId(Disk, Folder);
  const Bytes journal = ReadJournal();
  const JournalChain chain = ReadChain(journal, id, Known, ~std::uint64_t{0}, Options.Quirks);
  if (!id || chain.Found == JournalChain::State::Damaged) {
    if (damage == Damage::Refuse) throw SlotDamaged(Folder, FreeCopyName(Disk, Folder));
    Rescue(journal, id);
    return Open(Damage::Refuse);
  }
  World = *id;
  if (chain.Found == JournalChain::State::Foreign) {
    SetJournalAside("The journal of another world lay in this slot. It was left aside.");
  } else if (chain.Found == JournalChain::State::Unreadable) {
    SetJournalAside(journal.empty()
                        ? "This slot had no journal; it has a new one now."
                        : "What lay in the journal's place is none. It was left aside.");
  } else {
    Replay(journal, chain);
  }
}

/// Only known names, plain files and no links; whatever else lies there is told and left alone.
void Slot::Insides::LookOver() {
  constexpr std::size_t kMostRemarks = 20;
  std::size_t unknown = 0;
  for (const std::string& name : Disk.List(Folder)) {
    const auto is = [&](const std::string& suffix) {
      return [&name, suffix](const KnownFile& file) { return file.Name + suffix == name; };
    };
    if (std::any_of(Known.begin(), Known.end(), is("")) || name == kWorldIdName ||
        name == kJournalName) {
      if (Disk.Look(Path(name)) != Disk::Kind::File)
        throw DiskError(Path(name), "open", "it is no plain file");
    } else if (std::any_of(Known.begin(), Known.end(), is(kRoomSuffix)) ||
               name == kJournalName + std::string(kBesideSuffix) ||
               name == kWorldIdName + std::string(".tmp")) {
      RemoveTree(Disk, Path(name));
    } else if (name != kOtherJournalName && ++unknown <= kMostRemarks) {
      Remarks.push_back(DiskError(Path(name), "use", "it is no file of a game").what());
    }
  }
  if (unknown > kMostRemarks)
    Remarks.push_back("The slot holds " + std::to_string(unknown) +
                      " files in all that are none of a game.");
}

/// Reads the files, and sees to it that they are on disk: who wrote them last, and whether it was
/// ever synced, is not known. What is promised from now on builds on them.
void Slot::Insides::TakeOver() {
  Files = ReadKnownFiles(Disk, Folder, Known);
  Digest = DigestOf(Files);
  for (const auto& [name, contents] : Files) Records.Touch(name);
  Records.Sync();
  Disk.SyncFolder(ParentOf(Folder));
}

/// A folder from elsewhere: only its record files are believed, and from now on it is a slot.
void Slot::Insides::Adopt() {
  TakeOver();
  World = Digest.Value();
  SetJournalAside(Disk.Look(Path(kJournalName)) == Disk::Kind::Nothing
                      ? "This folder had no journal; it has a new one now."
                      : "The journal that lay in this folder cannot be known to be its own. It was "
                        "left aside.");
  WriteFile(Disk, Path(kWorldIdName), PackWorldId(World));
}

void Slot::Insides::SetJournalAside(const std::string& remark) {
  TakeOver();
  Journal.Drop();
  if (Disk.Look(Path(kJournalName)) != Disk::Kind::Nothing) {
    Disk.Rename(Path(kJournalName), Path(kOtherJournalName));
    Disk.SyncFolder(Folder);
  }
  Journal.Replace(EmptyJournal({World, 0, Digest.Value()}));
  Remarks.push_back(remark);
}

void Slot::Insides::Replay(ByteSpan journal, const JournalChain& chain) {
  // The last record may have been read out of the system's memory only: a process killed before its
  // sync leaves that, and so does a sync that failed. Were its effects to reach the files first, a
  // power cut would leave half of it and no way back. So all of it goes to disk once more, in a
  // file of its own: rewriting a record in its place could lose one that was already promised.
  if (!chain.Records.empty() && !Options.Quirks.TrustWhatIsRead)
    Journal.Replace(journal.first(static_cast<std::size_t>(chain.End)));
  for (const JournalRecord& record : chain.Records)
    for (const FilePatch& patch : record.Files) Records.Apply(patch);
  TakeOver();
  if (chain.MarkerRead && Digest.Value() != chain.Digest())
    Remarks.push_back(
        "Files of this slot were changed from outside since the game last kept them.");
  Sequence = chain.Last();
  Journal.Continue(chain.End, chain.MarkerBlock);
  Journal.Empty({World, Sequence, Digest.Value()});
}

void Slot::Insides::Rescue(ByteSpan journal, std::optional<std::uint64_t> id) {
  Journal.Drop();
  RescuedWorld rescued = RescueWorld(ReadKnownFiles(Disk, Folder, Known), journal, id, Known);
  const std::string copy = FreeCopyName(Disk, Folder);
  CopyBeside(Disk, Folder, copy);
  ReplaceSlot(Disk, Folder, rescued.Files, rescued.World, Options.JournalBytes, Options.Quirks);
  Remarks = {rescued.Remark, "The slot as it was is kept in " + copy + "."};
}

// Running.

/// From the start on new handles: what a disk said about the old ones is worth nothing. A record
/// that was never promised is dropped for good, its number spent.
void Slot::Insides::Recover() {
  Broken = true;
  Journal.Drop();
  Records.Drop();
  const Bytes journal = ReadJournal();
  const JournalChain chain = ReadChain(journal, World, Known, Sequence, Options.Quirks);
  if (chain.Found != JournalChain::State::Sound || chain.Last() < Sequence)
    throw SlotDamaged(Folder, FreeCopyName(Disk, Folder));
  for (const JournalRecord& record : chain.Records)
    for (const FilePatch& patch : record.Files) Records.Apply(patch);
  Records.Sync();
  const std::uint64_t spent = std::max(Sequence + 1, chain.Last());
  Journal.Empty({World, spent, Digest.Value()});
  Sequence = spent;
  Broken = false;
}

bool Slot::Insides::TryRecover() {
  try {
    Recover();
    return true;
  } catch (const DiskError&) {
    return false;
  }
}

/// What the next opening would not believe is not written either.
void Slot::Insides::Require(const std::vector<FileChange>& changes) const {
  for (const FileChange& change : changes) {
    const auto known = std::find_if(Known.begin(), Known.end(),
                                    [&](auto& file) { return file.Name == change.Name; });
    if (known == Known.end()) throw std::invalid_argument(change.Name + " is no file of a slot.");
    if (std::ssize(change.After) > known->MaxBytes)
      throw std::invalid_argument(change.Name + " would be longer than its most of " +
                                  std::to_string(known->MaxBytes) + " bytes.");
  }
}

void Slot::Insides::MakeRoom(const std::vector<FileChange>& changes, ByteSpan record) {
  if (!Journal.Fits(record)) Checkpoint();
  try {
    Journal.MakeRoom(record);
    for (const FileChange& change : changes) {
      if (!change.ExistsAfter) continue;
      if (!change.ExistsBefore)
        Records.ReserveNew(change.Name, std::ssize(change.After));
      else if (change.After.size() > change.Before.size())
        Records.Reserve(change.Name, std::ssize(change.After));
    }
  } catch (const DiskError&) {
    Records.GiveBack();
    throw;
  }
}

void Slot::Insides::Checkpoint() {
  if (Broken) return Recover();
  if (Journal.IsEmpty()) return;
  try {
    const JournalMarker marker{World, Sequence, Digest.Value()};
    if (Options.Quirks.EmptyBeforeFiles) Journal.Empty(marker);
    Records.Sync();
    if (!Options.Quirks.EmptyBeforeFiles) Journal.Empty(marker);
  } catch (const DiskError&) {
    Broken = true;
    TryRecover();
    throw;
  }
}

void Slot::Create(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
                  std::uint64_t worldId, const SlotOptions& options) {
  const SlotLock lock(disk, folder);
  FinishSwap(disk, folder);
  ReplaceSlot(disk, folder, files, worldId, options.JournalBytes, options.Quirks);
}

std::optional<Bytes> Slot::Peek(Disk& disk, const std::string& folder,
                                const std::vector<KnownFile>& known, const std::string& name) {
  const std::string standing = StandingFolder(disk, folder);
  if (standing.empty()) return std::nullopt;
  std::optional<Bytes> file;
  const std::string path = standing + "/" + name;
  const auto is =
      std::find_if(known.begin(), known.end(), [&](auto& one) { return one.Name == name; });
  if (is != known.end() && disk.Look(path) == Disk::Kind::File)
    file = ReadStart(disk, path, is->MaxBytes);
  if (disk.Look(standing + "/" + kWorldIdName) != Disk::Kind::File) return file;
  const auto id = ReadWorldId(disk, standing);
  const SlotOptions usual;
  JournalFile journal(disk, standing, usual.JournalBytes, usual.Quirks);
  const Bytes bytes = journal.Read(LongestJournal(known, usual.JournalBytes));
  for (const JournalRecord& record : ReadChain(bytes, id, known).Records)
    for (const FilePatch& patch : record.Files)
      if (patch.Name == name) ApplyTo(file, patch);
  return file;
}

Slot::Slot(Disk& disk, std::string folder, std::vector<KnownFile> known, Damage damage,
           const SlotOptions& options) {
  // No lock is left beside a slot that is not there.
  if (StandingFolder(disk, folder).empty())
    throw DiskError(folder, "open", "there is no such folder");
  insides_ = std::make_unique<Insides>(disk, std::move(folder), std::move(known), options);
  insides_->Open(damage);
}

Slot::~Slot() = default;

const std::map<std::string, Bytes>& Slot::Files() const {
  return insides_->Files;
}

void Slot::Forget() {
  insides_->Files.clear();
}

const std::vector<std::string>& Slot::Remarks() const {
  return insides_->Remarks;
}

bool Slot::Committed() const {
  return insides_->Committed;
}

void Slot::Checkpoint() {
  insides_->Checkpoint();
}

void Slot::Commit(const std::vector<FileChange>& changes) {
  Insides& in = *insides_;
  in.Committed = changes.empty();
  if (changes.empty()) return;
  in.Require(changes);
  bool written = false;
  try {
    if (in.Broken) in.Recover();
    JournalRecord record{in.World, in.Sequence + 1, 0, {}};
    WorldDigest digest = in.Digest;
    for (const FileChange& change : changes) {
      FilePatch patch{change.Name, change.ExistsAfter, std::ssize(change.After), {}};
      if (change.ExistsAfter) {
        patch.Ranges = ChangedRanges(change.Before, change.After, in.Options.Quirks);
        digest.Set(change.Name, change.After);
      } else {
        patch.Length = 0;
        digest.Remove(change.Name);
      }
      record.Files.push_back(std::move(patch));
    }
    record.Digest = digest.Value();
    const Bytes packed = PackRecord(record);
    in.MakeRoom(changes, packed);
    written = true;
    in.Journal.Append(packed);
    in.Sequence = record.Sequence;
    in.Digest = std::move(digest);
    in.Committed = true;
    for (const FilePatch& patch : record.Files) in.Records.Apply(patch);
  } catch (const DiskError& fault) {
    // What the disk holds now is unknown: only reading it anew tells.
    if (written) in.TryRecover();
    if (in.Committed) throw DiskError(fault, in.Broken ? kKeptUntilMended : kKept);
    throw DiskError(fault, in.Broken ? kUntilMended : kTakenBack);
  }
}

}  // namespace grapplemont
