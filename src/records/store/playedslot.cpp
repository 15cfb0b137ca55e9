#include "records/store/playedslot.h"

#include <algorithm>
#include <cstring>

#include "records/fields/gameinfo.h"
#include "records/store/knownfiles.h"

namespace grapplemont {

namespace {

constexpr const char* kMomentsSpoiled =
    "What this game could go back to was spoiled from outside and is gone; the game itself is "
    "whole.";

std::vector<KnownFile> WithMoments(std::vector<KnownFile> known) {
  if (FindFile(known, kMorningsName)) return known;
  known.push_back({kMorningsName, kMostMornings});
  known.push_back({kBeginningName, kMostBeginning});
  known.push_back({kCommandsName, kMostCommands});
  return known;
}

/// Of the one record of gameinfo.dat; the first day where it is none.
Day DayIn(ByteSpan gameInfo) {
  GameInfo game{};
  if (gameInfo.size() < sizeof(game)) return Day{};
  std::memcpy(&game, gameInfo.data(), sizeof(game));
  return game.Today;
}

std::string_view GameFile() {
  return LayoutOf<GameInfo>().File;
}

std::optional<Bytes> Stored(const std::map<std::string, Bytes>& files, const char* name) {
  const auto found = files.find(name);
  return found == files.end() ? std::nullopt : std::optional(found->second);
}

/// Of a change that has the whole of what was.
ReadBefore ReadOf(const FileChange& change) {
  return [before = change.Before](std::int64_t offset, std::int64_t count) {
    return before.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(count));
  };
}

/// Whether the last moment is the one before a click of this day.
bool IsLastOf(const Mornings& mornings, Day today) {
  if (mornings.Count() == 0) return false;
  const Moment& last = mornings[mornings.Count() - 1];
  return last.On == today && (last.Is == MomentKind::Click || last.Is == MomentKind::Morning);
}

/// A letter more, and what is no click of the player's, are part of the click before.
bool JoinsLast(Mornings& mornings, const PlayedStep& step, const WayBack& way, const Moment& before,
               Day after) {
  if (!IsLastOf(mornings, before.On) || after != before.On || step.Is != PlayedStep::Click)
    return false;
  const Moment last = mornings[mornings.Count() - 1];
  if (!step.Name.empty() && !(step.GoesOn && last.Name == before.Name)) return false;
  const auto farther = mornings.WayTo(mornings.Count() - 1);
  const auto both = farther ? Joined(way, *farther) : std::nullopt;
  if (!both) return false;
  mornings.DropLast();
  mornings.Add(last, *both, after);
  return true;
}

}  // namespace

PlayedSlot::PlayedSlot(Disk& disk, std::string folder, Damage damage, const SlotOptions& options)
    : PlayedSlot(disk, std::move(folder), KnownFiles(), damage, options) {}

PlayedSlot::PlayedSlot(Disk& disk, std::string folder, std::vector<KnownFile> known, Damage damage,
                       const SlotOptions& options, const PlayedQuirks& quirks)
    : disk_(disk),
      folder_(folder),
      known_(WithMoments(std::move(known))),
      slot_(disk, std::move(folder), known_, damage, options),
      remarks_(slot_.Remarks()),
      mornings_(Stored(slot_.Files(), kMorningsName)),
      commands_(Stored(slot_.Files(), kCommandsName)),
      quirks_(quirks) {
  for (const auto& [name, digest] : slot_.Digest().Files())
    if (!IsOwn(name)) digest_.Set(name, digest);
  if (const auto game = slot_.Files().find(std::string(GameFile())); game != slot_.Files().end())
    today_ = DayIn(game->second);
  if (mornings_.WasSpoiled()) remarks_.push_back(kMomentsSpoiled);
}

/// What the slot keeps about its world is not of it.
bool PlayedSlot::IsOwn(const std::string& name) {
  return name == kMorningsName || name == kBeginningName || name == kCommandsName;
}

/// What a commit changes here is put back unless it comes to stand.
class PlayedSlot::Ahead {
 public:
  explicit Ahead(PlayedSlot& slot, const std::vector<FileChange>& changes)
      : slot_(slot), digest_(slot.digest_, changes) {}
  ~Ahead() {
    if (isReached_) return;
    slot_.mornings_.PutBack();
    slot_.commands_.PutBack();
  }
  Ahead(const Ahead&) = delete;
  Ahead& operator=(const Ahead&) = delete;
  void Reach() {
    isReached_ = true;
    slot_.mornings_.Reach();
    slot_.commands_.Reach();
    digest_.Reach();
  }

 private:
  PlayedSlot& slot_;
  DigestAhead digest_;
  bool isReached_ = false;
};

/// The record files hold what was committed last, and the changes say where they will not. Nothing
/// where they were changed from outside: then no moment leads on from here.
std::optional<WayBack> PlayedSlot::WayBefore(const std::vector<FileChange>& changes) {
  WayBack way;
  for (const FileChange& change : changes) {
    if (!change.ExistsBefore || change.LengthBefore == 0) {
      way.push_back({change.Name, change.ExistsBefore, {}});
      continue;
    }
    if (change.Were) {
      way.push_back(BackFrom(change));
      continue;
    }
    const KnownFile* known = FindFile(known_, change.Name);
    const auto back = [&](const ReadBefore& read) {
      way.push_back(BackFrom(change, known ? known->RecordBytes : 1, read));
    };
    if (std::ssize(change.Before) == change.LengthBefore) {
      back(ReadOf(change));
      continue;
    }
    const OpenedFile file(disk_, folder_ + "/" + change.Name, false);
    if (disk_.Size(file) != change.LengthBefore) return std::nullopt;
    Bytes buffer;
    back([&](std::int64_t offset, std::int64_t count) {
      buffer.resize(static_cast<std::size_t>(count));
      disk_.ReadAt(file, offset, buffer);
      return ByteSpan(buffer);
    });
  }
  return way;
}

std::optional<WayBack> PlayedSlot::Before(const std::vector<FileChange>& changes,
                                          const PlayedStep& step) try {
  // After a fault the record files are what the journal says only once they have been mended. And
  // of a journal that leads to an earlier day than files have, only the last road left may tell.
  if (unsure_ || step.Is == PlayedStep::Left) {
    slot_.Checkpoint();
    unsure_ = false;
  }
  return mornings_.Keeps() ? WayBefore(changes) : std::nullopt;
} catch (const DiskError& fault) {
  try {
    slot_.RequireInPlace();
  } catch (const DiskError& gone) {  // says more than the file that could not be read
    throw DiskError(gone, kTakenBack);
  }
  throw DiskError(fault, kTakenBack);
}

void PlayedSlot::Keep(const PlayedStep& step, const std::optional<WayBack>& way, Moment before,
                      Day after, std::uint64_t digest) {
  if (!mornings_.Keeps()) return;
  if (!way) {
    redo_.clear();
    return mornings_.Clear();
  }
  const auto click = step.Is == PlayedStep::Undo ? ClickToUndo() : std::nullopt;
  if (click) {
    redo_.push_back({mornings_[*click].Name, *way, before.Digest, step.Page});
    return mornings_.TakeBack(*click, *way, digest);
  }
  if (step.Is == PlayedStep::Redo && !redo_.empty()) {
    before.Name = std::move(redo_.back().Name);
    redo_.pop_back();
  } else {
    redo_.clear();
  }
  if (!JoinsLast(mornings_, step, *way, before, after))
    mornings_.Add(std::move(before), *way, after);
}

void PlayedSlot::Write(const std::vector<FileChange>& changes) {
  try {
    slot_.Commit(changes);
  } catch (const DiskError&) {
    unsure_ = true;
    committed_ = slot_.Committed();
    throw;
  }
  committed_ = true;
}

void PlayedSlot::WriteWithMoments(std::vector<FileChange> changes) {
  if (quirks_.Apart) Write(std::exchange(changes, {}));
  if (auto change = mornings_.Change()) changes.push_back(*std::move(change));
  if (auto change = commands_.Change()) changes.push_back(*std::move(change));
  Write(changes);
}

void PlayedSlot::Commit(const std::vector<FileChange>& changes, const PlayedStep& step) {
  committed_ = false;
  if (changes.empty()) return Write(changes);
  const auto way = Before(changes, step);
  Moment before{MomentKind::Click, today_, digest_.Value(), step.Name};
  before.Page = step.Page;
  Ahead ahead(*this, changes);
  redoBefore_ = redo_;
  Day after = today_;
  for (const FileChange& change : changes)
    if (change.Name == GameFile()) after = DayIn(change.After);
  if (step.Is == PlayedStep::Left) {
    before.Is = MomentKind::Left;
    before.Target = after;
    before.TargetDigest = step.Target;
  }
  Keep(step, way, std::move(before), after, digest_.Value());
  commands_.Add(step.Commands);
  const auto reach = [&] {
    ahead.Reach();
    today_ = after;
  };
  try {
    WriteWithMoments(changes);
  } catch (const DiskError&) {
    if (committed_)
      reach();
    else
      redo_ = redoBefore_;
    throw;
  }
  reach();
}

void PlayedSlot::Name(const std::string& name) {
  if (!mornings_.Keeps()) return;
  Ahead ahead(*this, {});
  mornings_.Add({MomentKind::Named, today_, digest_.Value(), name}, {}, today_);
  WriteOwn(ahead);
}

void PlayedSlot::ForgetName(std::size_t moment) {
  Ahead ahead(*this, {});
  mornings_.Forget(moment);
  WriteOwn(ahead);
}

void PlayedSlot::Record(const std::string& commands) {
  Ahead ahead(*this, {});
  commands_.Add(commands);
  WriteOwn(ahead);
}

void PlayedSlot::EndRecord(const std::string& who) {
  if (Records()) Record(EndOfCommands(digest_.Value(), who));
}

void PlayedSlot::WriteOwn(Ahead& ahead) {
  committed_ = false;
  try {
    WriteWithMoments({});
  } catch (const DiskError&) {
    if (committed_) ahead.Reach();
    throw;
  }
  ahead.Reach();
}

std::optional<std::size_t> PlayedSlot::ClickToUndo() const {
  for (std::size_t i = mornings_.Count(); i-- > 0;) {
    const Moment& moment = mornings_[i];
    if (moment.On != today_ || moment.Is == MomentKind::Left) break;
    if (moment.Is != MomentKind::Named && !moment.Name.empty()) return i;
  }
  return std::nullopt;
}

std::string PlayedSlot::WhatToUndo() const {
  const auto click = ClickToUndo();
  return click ? mornings_[*click].Name : std::string();
}

std::uint64_t PlayedSlot::DigestAfter(const std::vector<FileChange>& changes) {
  const DigestAhead ahead(digest_, changes);
  return digest_.Value();
}

std::string PlayedSlot::WhatToRedo() const {
  return redo_.empty() ? std::string() : redo_.back().Name;
}

bool PlayedSlot::Restore(const WayBack& way, std::uint64_t digest,
                         std::map<std::string, Bytes>& files) const {
  if (!GoBack(way, files, [this](const std::string& name) {
        const KnownFile* known = FindFile(known_, name);
        return known ? known->MaxBytes : 0;
      }))
    return false;
  std::map<std::string, FileDigest> all = digest_.Files();
  WorldDigest restored;
  for (const FileBack& file : way) all.erase(file.Name);
  for (const auto& [name, digested] : all) restored.Set(name, digested.Value());
  for (const auto& [name, contents] : files)
    if (std::ranges::find(way, name, &FileBack::Name) != way.end()) restored.Set(name, contents);
  return restored.Value() == digest;
}

std::map<std::string, Bytes> FilesAfter(std::map<std::string, Bytes> files, const std::string& name,
                                        Bytes contents, const std::string& commands) {
  const auto changed = files.find(name);
  if (changed == files.end()) return files;
  const auto change = ChangeBetween(name, &changed->second, &contents);
  if (!change) return files;
  Mornings mornings(Stored(files, kMorningsName));
  CommandLog log(Stored(files, kCommandsName));
  WorldDigest digest;
  for (const auto& [held, bytes] : files)
    if (!PlayedSlot::IsOwn(held)) digest.Set(held, bytes);
  const Day today = DayIn(files[std::string(GameFile())]);
  const Moment before{MomentKind::Click, today, digest.Value(), {}};
  const KnownFile* known = FindFile(KnownFiles(), name);
  const WayBack way{BackFrom(*change, known ? known->RecordBytes : 1, ReadOf(*change))};
  if (mornings.Keeps() && !JoinsLast(mornings, {}, way, before, today))
    mornings.Add(before, way, today);
  log.Add(commands);
  for (const auto& own : {mornings.Change(), log.Change()})
    if (own) files[own->Name] = Bytes(own->After.begin(), own->After.end());
  files[name] = std::move(contents);
  return files;
}

}  // namespace grapplemont
