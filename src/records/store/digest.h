#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "records/store/changes.h"

namespace grapplemont {

/// How files become numbers; journals, records and seals carry it as their format's version.
enum class DigestForm : std::uint32_t {
  Whole = 1,   // a file's number is made of all its bytes at once: slots of earlier versions
  Blocks = 2,  // ... of the numbers of its blocks: a change costs the blocks that it changes
};

/// One number that stands for a file, and those of its blocks where a change is to be followed.
class FileDigest {
 public:
  FileDigest() = default;
  /// A number that was read, of a file that nobody follows.
  explicit FileDigest(std::uint64_t value) : value_(value) {}
  FileDigest(ByteSpan contents, DigestForm form);
  /// The contents now, of which only `changed` is not what it was. Requires DigestForm::Blocks.
  void Follow(ByteSpan contents, const std::vector<JournalRange>& changed);
  std::uint64_t Value() const { return value_; }

 private:
  Bytes blocks_;  // the file's length, and a number for each block
  std::uint64_t value_ = 0;
};

/// One number that stands for all files of a world: two worlds of the same digest are the same, as
/// far as 64 bits can tell.
class WorldDigest {
 public:
  /// What some files were; nothing for one that was not there.
  using Aside = std::vector<std::pair<std::string, std::optional<FileDigest>>>;

  WorldDigest() = default;
  explicit WorldDigest(DigestForm form) : form_(form) {}
  DigestForm Form() const { return form_; }
  void Set(const std::string& name, ByteSpan contents) {
    files_[name] = FileDigest(contents, form_);
  }
  void Set(const std::string& name, FileDigest digest) { files_[name] = std::move(digest); }
  void Set(std::string name, std::uint64_t value) { files_[std::move(name)] = FileDigest(value); }
  /// The files after these changes; gives what they were before, for PutBack. Requires
  /// DigestForm::Blocks and that the files were Set with their contents.
  Aside Follow(const std::vector<FileChange>& changes);
  void PutBack(Aside before);
  std::uint64_t Value() const;
  const std::map<std::string, FileDigest>& Files() const { return files_; }
  /// The names of the files that are not the same in both, which are of one form.
  std::vector<std::string> Differing(const WorldDigest& other) const;

 private:
  DigestForm form_ = DigestForm::Blocks;
  std::map<std::string, FileDigest> files_;
};

WorldDigest DigestOf(const std::map<std::string, Bytes>& files,
                     DigestForm form = DigestForm::Blocks);

/// A digest that is ahead by changes which are not on disk yet: it falls back unless they come to
/// be.
class DigestAhead {
 public:
  DigestAhead(WorldDigest& digest, const std::vector<FileChange>& changes)
      : digest_(digest), before_(digest.Follow(changes)) {}
  ~DigestAhead() {
    if (!isReached_) digest_.PutBack(std::move(before_));
  }
  DigestAhead(const DigestAhead&) = delete;
  DigestAhead& operator=(const DigestAhead&) = delete;
  void Reach() { isReached_ = true; }

 private:
  WorldDigest& digest_;
  WorldDigest::Aside before_;
  bool isReached_ = false;
};

}  // namespace grapplemont
