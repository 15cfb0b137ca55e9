#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <map>
#include <span>
#include <vector>

#include "records/store/changes.h"

namespace grapplemont {

/// What a growing file was at the last commit: only what is no longer so.
template <class T>
class GrowingPast {
 public:
  /// Comes before record `at` (from 0) is changed.
  void NoteChange(std::size_t at, const T& record) {
    ++changes_;
    if (at < stays_) were_.try_emplace(gone_.size() + at, record);
  }
  /// Comes before the first `count` of the records go.
  void NoteGone(const std::vector<T>& records, std::size_t count) {
    ++moves_;
    count = std::min(count, stays_);
    gone_.insert(gone_.end(), records.begin(),
                 records.begin() + static_cast<std::ptrdiff_t>(count));
    stays_ -= count;
    for (auto were = were_.begin(); were != were_.end() && were->first < gone_.size();
         were = were_.erase(were))
      gone_[were->first] = were->second;
  }

  /// Forgets the past: the file is what it is now.
  void Commit(const std::vector<T>& records, const Bytes& surplus) {
    std::vector<T>().swap(gone_);  // a file that was written as a whole is twice in memory
    were_.clear();
    stays_ = records.size();
    surplus_ = surplus;
  }
  /// The file has no past: all that it is will have changed.
  void Forget() {
    ++moves_;
    std::vector<T>().swap(gone_);
    were_.clear();
    stays_ = 0;
    surplus_.clear();
  }
  /// Bytes of memory held for records that have gone.
  std::size_t Held() const { return gone_.capacity() * sizeof(T); }
  /// Makes the file what it was.
  void Restore(std::vector<T>& records, Bytes& surplus) {
    ++moves_;
    records.erase(records.begin() + static_cast<std::ptrdiff_t>(stays_), records.end());
    for (const auto& [at, was] : were_) records[at - gone_.size()] = was;
    records.insert(records.begin(), gone_.begin(), gone_.end());
    surplus = surplus_;
    Commit(records, surplus);
  }

  unsigned Changes() const { return changes_ + moves_; }
  unsigned Moves() const { return moves_; }
  std::int64_t Length() const {
    return static_cast<std::int64_t>((gone_.size() + stays_) * sizeof(T) + surplus_.size());
  }
  /// The file's bytes as they were.
  Bytes Contents(const std::vector<T>& records) const {
    Bytes bytes(static_cast<std::size_t>(Length()));
    const auto put = [&bytes](std::size_t at, const void* from, std::size_t size) {
      if (size > 0) std::memcpy(bytes.data() + at, from, size);
    };
    put(0, gone_.data(), gone_.size() * sizeof(T));
    put(gone_.size() * sizeof(T), records.data(), stays_ * sizeof(T));
    for (const auto& [at, was] : were_) put(at * sizeof(T), &was, sizeof(T));
    put(bytes.size() - surplus_.size(), surplus_.data(), surplus_.size());
    return bytes;
  }
  /// The stretches of `now`, the bytes of the file, that may have changed, as they were; nothing
  /// where more has happened than changes in their place and additions. They hold until the next
  /// change.
  std::optional<std::vector<JournalRange>> Were(ByteSpan now) const {
    if (!gone_.empty() || std::ssize(now) < Length()) return std::nullopt;
    std::vector<JournalRange> were;
    for (const auto& [at, was] : were_)
      were.push_back(
          {static_cast<std::int64_t>(at * sizeof(T)), std::as_bytes(std::span(&was, 1))});
    if (!surplus_.empty())
      were.push_back({static_cast<std::int64_t>(stays_ * sizeof(T)), surplus_});
    return were;
  }
  /// What of `now` is not what it was.
  std::vector<JournalRange> Changed(const std::vector<T>& records, ByteSpan now) const {
    // Where the first have gone, all others have moved.
    if (!gone_.empty() && stays_ > 0 && std::ssize(now) != Length()) return {{0, now}};
    if (!gone_.empty() || std::ssize(now) < Length()) return ChangedRanges(Contents(records), now);
    ChangedBlocks changed(now);
    for (const auto& [at, was] : were_) AddDifference(changed, at * sizeof(T), was, records[at]);
    const std::size_t same = stays_ * sizeof(T);
    if (std::ssize(now) != Length() || !std::equal(surplus_.begin(), surplus_.end(),
                                                   now.begin() + static_cast<std::ptrdiff_t>(same)))
      changed.Add(same, now.size());
    return std::move(changed).Take();
  }

 private:
  static void AddDifference(ChangedBlocks& changed, std::size_t at, const T& was, const T& is) {
    const ByteSpan before = std::as_bytes(std::span(&was, 1));
    const ByteSpan after = std::as_bytes(std::span(&is, 1));
    const auto first = std::mismatch(before.begin(), before.end(), after.begin()).first;
    if (first == before.end()) return;
    const auto behind = std::mismatch(before.rbegin(), before.rend(), after.rbegin()).first.base();
    changed.Add(at + static_cast<std::size_t>(first - before.begin()),
                at + static_cast<std::size_t>(behind - before.begin()));
  }

  std::vector<T> gone_;            // the first records that the file had
  std::size_t stays_ = 0;          // as many of its records now come behind them
  std::map<std::size_t, T> were_;  // those of them that were changed, as they were, by their place
  Bytes surplus_;                  // behind the last whole record
  unsigned changes_ = 0, moves_ = 0;
};

/// In place of it for all other files, which are compared with an image of their own.
template <class T>
struct NoPast {
  void NoteChange(std::size_t, const T&) {}
  void NoteGone(const std::vector<T>&, std::size_t) {}
  void Forget() {}
};

}  // namespace grapplemont
