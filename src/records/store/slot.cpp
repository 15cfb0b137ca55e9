#include "records/store/slot.h"

#include <algorithm>

#include "records/store/journalfile.h"
#include "records/store/slotfolder.h"
#include "records/store/slotrescue.h"

namespace grapplemont {

namespace {

constexpr const char* kKept = "Your last step is kept.";
constexpr const char* kStepsLost = "Its journal has lost steps that were kept.";
constexpr const char* kUntilMended =
    "Your last step was taken back, and nothing can be kept until the disk answers again.";
constexpr const char* kKeptUntilMended =
    "Your last step is kept, but nothing further can be until the disk answers again.";

}  // namespace

SlotBusy::SlotBusy(const std::string& folder)
    : std::runtime_error("The slot " + folder +
                         " is open in another program. Close it there first; nothing was "
                         "changed.") {}

SlotDamaged::SlotDamaged(const std::string& folder, const std::string& damage, std::string copy)
    : std::runtime_error("The slot " + folder + " is damaged. " + damage +
                         " The slot as it is now will be kept in " + copy + "."),
      copy_(std::move(copy)) {}

SlotGone::SlotGone(const std::string& path)
    : DiskError(path, "keep anything in", "it was removed or replaced while the slot was open") {}

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
  WorldDigest Digest;          // of the files; ahead of them while a commit is made
  std::uint64_t Promised = 0;  // its value at Sequence
  std::uint64_t World = 0;
  std::uint64_t Sequence = 0;  // the last number spent; every commit up to it is on disk for good
  bool Committed = false;
  bool Broken = false;                 // a call has failed, and recovery has not succeeded since
  std::optional<FolderState> InPlace;  // the folder's when all files were last seen to be in place

  std::string Path(const std::string& name) const { return Folder + "/" + name; }
  std::string CopyName() const { return FreeName(Disk, Folder + ".damaged"); }
  Bytes ReadJournal() { return Journal.Read(LongestJournal(Known, Options.JournalBytes)); }

  void Open(Damage damage);
  void LookOver();
  void Adopt(const StoredSlot& stored, SlotFinding finding);
  void Mend(const StoredSlot& stored, SlotFinding finding);
  void GoOn(SlotFinding finding, const StoredSlot& stored);
  void Apply(const std::vector<JournalRecord>& records) {
    for (const JournalRecord& record : records)
      for (const FilePatch& patch : record.Files) Records.Apply(patch);
  }
  void SyncAll();
  void WriteSeal();
  void RequireInPlace();

  void Recover();
  bool TryRecover();
  void Require(const std::vector<FileChange>& changes) const;
  void MakeRoom(const std::vector<FileChange>& changes, ByteSpan record);
  void ApplyToFiles(const std::vector<FileChange>& changes);
  std::string Lost();
  std::vector<NewFile> Restored();
  void Checkpoint();
};

// Opening.

void Slot::Insides::Open(Damage damage) {
  FinishSwap(Disk, Folder);
  if (Disk.Look(Folder) != Disk::Kind::Folder)
    throw DiskError(Folder, "open", "it is not a plain folder");
  LookOver();
  Bytes journal = ReadJournal();
  StoredSlot stored = ReadStoredSlot(Disk, Folder, Known, std::move(journal), Journal.Size());
  SlotFinding finding = Examine(stored, Known, Options);
  World = finding.World;
  if (!finding.Damage.empty()) {
    if (finding.GivesUp && damage == Damage::Refuse)
      throw SlotDamaged(Folder, finding.Damage, CopyName());
    Mend(stored, std::move(finding));
  } else if (!stored.HasId) {
    Adopt(stored, std::move(finding));
  } else {
    // The last record may have been read out of the system's memory only: a process killed before
    // its sync leaves that, and so does a sync that failed. Were its effects to reach the files
    // first, a power cut would leave half of it and no way back. So all of it goes to disk once
    // more, in a file of its own: rewriting a record in its place could lose one that was promised.
    const JournalChain& chain = finding.Chain;
    Journal.Continue(chain.End, chain.MarkerBlock);
    if (!chain.Records.empty() && !Options.Quirks.TrustWhatIsRead)
      Journal.Replace(chain.Marker, ByteSpan(stored.Journal)
                                        .first(static_cast<std::size_t>(chain.End))
                                        .subspan(kJournalStart));
    GoOn(std::move(finding), stored);
  }
}

/// Only known names, plain files and no links; whatever else lies there is reported and left alone.
void Slot::Insides::LookOver() {
  for (const std::string& name : Disk.List(Folder)) {
    const auto is = [&](const std::string& suffix) {
      return [&name, suffix](const KnownFile& file) { return file.Name + suffix == name; };
    };
    if (std::any_of(Known.begin(), Known.end(), is("")) || name == kWorldIdName ||
        name == kJournalName || name == kSealName) {
      if (Disk.Look(Path(name)) != Disk::Kind::File)
        throw DiskError(Path(name), "open", "it is not a plain file");
    } else if (std::any_of(Known.begin(), Known.end(), is(kRoomSuffix)) ||
               name == kJournalName + std::string(kBesideSuffix) ||
               name == kWorldIdName + std::string(".tmp")) {
      RemoveTree(Disk, Path(name));
    }
  }
}

/// From here the files are what the finding says: the chain is applied, all is on disk (who wrote
/// the files last, and whether they were ever synced, is not known), and the journal is empty.
void Slot::Insides::GoOn(SlotFinding finding, const StoredSlot& stored) {
  Files = std::move(finding.Files);
  Digest = std::move(finding.Digest);
  Promised = Digest.Value();
  Sequence = finding.Chain.Last();
  WriteSeal();
  Apply(finding.Chain.Records);
  for (const auto& [name, size] : stored.TooLong)
    if (const auto file = Files.find(name); file != Files.end())
      Records.Apply({name, true, std::ssize(file->second), {}});
  SyncAll();
  Journal.Empty({World, Sequence, Promised});
}

void Slot::Insides::SyncAll() {
  for (const KnownFile& file : Known) Records.Touch(file.Name);
  Records.Sync();
  Disk.SyncFolder(ParentOf(Folder));
}

/// Comes before each change that reaches the files: see WorldSeal.
void Slot::Insides::WriteSeal() {
  const Bytes seal = PackSeal(World, Sequence, Digest);
  Records.Apply({kSealName, true, std::ssize(seal), {{0, seal}}});
}

/// A folder from elsewhere: only its record files are believed, and from now on it is a slot.
void Slot::Insides::Adopt(const StoredSlot& stored, SlotFinding finding) {
  SyncAll();
  Journal.Drop();
  const bool hasJournal = Disk.Look(Path(kJournalName)) != Disk::Kind::Nothing;
  if (hasJournal) {
    Disk.Rename(Path(kJournalName), FreeName(Disk, Path(kOtherJournalName)));
    Disk.SyncFolder(Folder);
  }
  Remarks.emplace_back(hasJournal ? "The journal that lay in this folder cannot be known to be its "
                                    "own. It was left aside."
                                  : "This folder had no journal; it has a new one now.");
  finding.Chain.Marker = {World, 0, finding.Digest.Value()};
  Journal.Replace(finding.Chain.Marker, {});
  GoOn(std::move(finding), stored);
  WriteFile(Disk, Path(kWorldIdName), PackWorldId(World));
}

/// The folder is copied as it is. Then the files, as they are, begin a new journal, and what makes
/// the world found of them is the one record in it: from there on it is a slot like any other.
void Slot::Insides::Mend(const StoredSlot& stored, SlotFinding finding) {
  const std::string copy = CopyName();
  CopyBeside(Disk, Folder, copy);
  Remarks.push_back("The slot was damaged. " + finding.Damage);
  Remarks.push_back("The slot as it was is kept in " + copy + ".");
  SyncAll();
  if (!stored.Id) WriteFile(Disk, Path(kWorldIdName), PackWorldId(World));
  JournalChain chain;
  chain.Marker = {World, finding.Newest, DigestOf(stored.Files).Value()};
  Bytes packed;
  JournalRecord record{World, finding.Newest + 1, finding.Digest.Value(),
                       PatchesTo(finding, stored)};
  if (!record.Files.empty()) {
    packed = PackRecord(record);
    chain.Records.push_back(std::move(record));
  }
  Journal.Replace(chain.Marker, packed);
  finding.Chain = std::move(chain);
  GoOn(std::move(finding), stored);
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
    throw SlotDamaged(Folder, kStepsLost, CopyName());
  Apply(chain.Records);
  Records.Sync();
  const std::uint64_t spent = std::max(Sequence + 1, chain.Last());
  Journal.Empty({World, spent, Promised});
  Sequence = spent;
  Broken = false;
}

/// Whoever removes or replaces an open slot leaves the old files to this program alone: they take
/// every step, and nobody finds it again. While no name in the folder moves, all are in place.
void Slot::Insides::RequireInPlace() {
  const auto state = Disk.StateOf(Folder);
  if (state && state == InPlace) return;
  InPlace.reset();
  const std::string lost = Journal.IsInPlace() ? Records.Displaced() : Path(kJournalName);
  if (!lost.empty()) throw SlotGone(lost);
  InPlace = state;
}

bool Slot::Insides::TryRecover() try {
  Recover();
  return true;
} catch (const DiskError&) {
  return false;
}

/// What the next opening would not believe is not written either.
void Slot::Insides::Require(const std::vector<FileChange>& changes) const {
  for (const FileChange& change : changes) {
    const KnownFile* known = FindFile(Known, change.Name);
    if (!known) throw std::invalid_argument(change.Name + " is not a file of a slot.");
    if (std::ssize(change.After) > known->MaxBytes)
      throw std::invalid_argument(change.Name + " would be longer than its most of " +
                                  std::to_string(known->MaxBytes) + " bytes.");
  }
}

void Slot::Insides::MakeRoom(const std::vector<FileChange>& changes, ByteSpan record) {
  // Where a file cannot be restored the journal must not be emptied; it grows.
  if (!Journal.Fits(record) && Lost().empty()) Checkpoint();
  try {
    Journal.MakeRoom(record);
    for (const FileChange& change : changes) {
      if (!change.ExistsAfter) continue;
      if (!change.ExistsBefore)
        Records.ReserveNew(change.Name, std::ssize(change.After));
      else if (std::ssize(change.After) > change.LengthBefore)
        Records.Reserve(change.Name, std::ssize(change.After));
    }
  } catch (const DiskError&) {
    Records.GiveBack();
    throw;
  }
}

/// A file that somebody else has cut short gets more than its changes: they would leave a hole.
void Slot::Insides::ApplyToFiles(const std::vector<FileChange>& changes) {
  for (const FileChange& change : changes) {
    FilePatch patch = PatchOf(change);
    if (change.ExistsAfter && !Records.IsAsLeft(change.Name)) patch.Ranges = {{0, change.After}};
    Records.Apply(patch);
  }
}

/// A file that has been cut short and of which nobody knows the whole; empty for none.
std::string Slot::Insides::Lost() {
  for (const std::string& name : Records.NotAsLeft())
    if (!Options.Contents || !Options.Contents(name)) return name;
  return {};
}

/// The files that have been cut short since, as they ought to be: what the journal holds of them is
/// not all.
std::vector<NewFile> Slot::Insides::Restored() {
  if (const std::string lost = Lost(); !lost.empty())
    throw DiskError(Path(lost), "keep", "another program changed it while the game was open");
  std::vector<NewFile> files;
  for (const std::string& name : Records.NotAsLeft())
    files.push_back({name, Options.Contents(name).value()});
  return files;
}

void Slot::Insides::Checkpoint() {
  if (Broken) return Recover();
  if (Journal.IsEmpty()) return;
  RequireInPlace();
  const std::vector<NewFile> restored = Restored();
  try {
    for (const NewFile& file : restored)
      Records.Apply({file.Name, true, std::ssize(file.Contents), {{0, file.Contents}}});
    const JournalMarker marker{World, Sequence, Promised};
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

const WorldDigest& Slot::Digest() const {
  return insides_->Digest;
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

void Slot::RequireInPlace() const {
  insides_->RequireInPlace();
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
    in.RequireInPlace();
    if (in.Broken) in.Recover();
    JournalRecord record{in.World, in.Sequence + 1, 0, {}};
    for (const FileChange& change : changes) record.Files.push_back(PatchOf(change));
    DigestAhead ahead(in.Digest, changes);
    record.Digest = in.Digest.Value();
    const Bytes packed = PackRecord(record);
    in.MakeRoom(changes, packed);
    written = true;
    in.Journal.Append(packed);
    in.Sequence = record.Sequence;
    in.Promised = record.Digest;
    ahead.Reach();
    in.Committed = true;
    in.WriteSeal();
    in.ApplyToFiles(changes);
  } catch (const DiskError& fault) {
    // What the disk holds now is unknown: only reading it again tells.
    if (written) in.TryRecover();
    if (in.Committed) throw DiskError(fault, in.Broken ? kKeptUntilMended : kKept);
    throw DiskError(fault, in.Broken ? kUntilMended : kTakenBack);
  }
}

}  // namespace grapplemont
