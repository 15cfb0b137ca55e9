#pragma once

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include "records/fields/field.h"
#include "records/store/growing.h"

namespace grapplemont {

/// A file's bytes cannot be a world's: names file, record and field where there is one, and what to
/// do.
class WorldFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A file that may hold no further record.
class TableFull : public std::runtime_error {
 public:
  explicit TableFull(const RecordLayout& layout);
};

/// Apart from the look-up itself, which is made in place wherever a record is asked for.
[[noreturn]] void ThrowNoRecord(std::string_view file, int number);

/// One file of a world in memory, and what it was when it was committed last.
class Table {
 public:
  virtual ~Table() = default;
  virtual std::string_view File() const = 0;
  /// The layout of its records; nullptr for plain text.
  virtual const RecordLayout* Layout() const { return nullptr; }
  /// All bytes the file holds now; records lie one behind the other.
  virtual ByteSpan Contents() const = 0;
  /// Where its records lie in memory; empty for plain text.
  virtual ByteSpan RecordBytes() const { return {}; }
  virtual std::int64_t MaxBytes() const = 0;
  bool Exists() const { return exists_; }
  virtual void Remove() = 0;
  /// Takes a file's bytes; throws WorldFault when there are more than the file may hold.
  virtual void Load(ByteSpan bytes) = 0;
  /// Until the next commit its records may be changed in any way, without a word about each.
  virtual void ExpectAnyChange() {}

  /// What differs from the last commit; nothing where nothing does. Its spans hold until the next
  /// change.
  std::optional<FileChange> Difference() const;
  bool Changed() const { return Difference().has_value(); }
  bool CommittedExists() const { return committedExists_; }
  /// The whole contents at the last commit.
  virtual Bytes Committed() const { return image_; }
  void MarkCommitted();
  /// The same where Difference() has just given these ranges; none where there was none.
  void MarkCommitted(const std::vector<JournalRange>& changed);
  void Rollback();

 protected:
  bool exists_ = false;

  // How a kind of file knows its past; this one by an image of all its bytes.
  virtual std::int64_t CommittedLength() const { return std::ssize(image_); }
  virtual std::vector<JournalRange> ChangedSince() const {
    return ChangedRanges(image_, Contents());
  }
  /// Of FileChange.
  virtual std::optional<std::vector<JournalRange>> WereIn(ByteSpan /*now*/) const {
    return std::nullopt;
  }
  virtual void TakeOver(const std::vector<JournalRange>& changed);
  virtual void Restore() { Load(image_); }
  /// Nothing of it has ever been committed.
  void ForgetCommitted() {
    image_.clear();
    committedExists_ = false;
  }

 private:
  bool committedExists_ = false;
  Bytes image_;
};

/// A plain text file; of a world, the player's notes.
class TextFile : public Table {
 public:
  explicit TextFile(std::string_view file = "notes.dat") : file_(file) {}
  std::string_view File() const override { return file_; }
  ByteSpan Contents() const override { return std::as_bytes(std::span(text_)); }
  std::int64_t MaxBytes() const override { return 1 << 20; }
  void Remove() override;
  void Load(ByteSpan bytes) override;
  const std::string& Text() const { return text_; }
  /// Becomes what the other is, as a file that was never committed.
  void CopyFrom(const TextFile& other);
  void Set(std::string_view text);

 private:
  std::string_view file_;
  std::string text_;
};

/// The records of one file, numbered from 1. References stay valid across Append (the first record
/// reserves room for all that the file may hold); Keep and Load move records. The records of a
/// growing file are read only: Change gives one that may be changed, until the next commit.
template <class T>
class Records : public Table {
  static constexpr bool kIsGrowing = kGrows<T>;

 public:
  std::string_view File() const override { return LayoutOf<T>().File; }
  const RecordLayout* Layout() const override { return &LayoutOf<T>(); }

  int Count() const { return static_cast<int>(records_.size()); }
  bool Full() const { return Count() >= LayoutOf<T>().Limit; }
  T& operator[](int number) requires(!kIsGrowing) { return records_[Place(number)]; }
  const T& operator[](int number) const { return records_[Place(number)]; }
  auto begin() requires(!kIsGrowing) { return records_.begin(); }
  auto end() requires(!kIsGrowing) { return records_.end(); }
  auto begin() const { return records_.begin(); }
  auto end() const { return records_.end(); }

  /// The record, to be changed.
  T& Change(int number) {
    const std::size_t at = Place(number);
    past_.NoteChange(at, records_[at]);
    return records_[at];
  }
  /// Lets `edit` have a copy of every record, and takes those back that it changes.
  template <class Edit>
  void EditEach(Edit edit) {
    for (int number = 1; number <= Count(); ++number) {
      const T& record = std::as_const(*this)[number];
      T edited = record;
      edit(edited);
      if (std::memcmp(&edited, &record, sizeof(T)) != 0) Change(number) = edited;
    }
  }
  /// Of a growing file: grows with whatever happens to its records but an append. What is known of
  /// each stays true while it does not.
  unsigned Changes() const requires kIsGrowing { return past_.Changes(); }
  /// The same, apart from single records that are changed where they stand.
  unsigned Moves() const requires kIsGrowing { return past_.Moves(); }
  void ExpectAnyChange() override { past_.NoteGone(records_, records_.size()); }
  /// All records, to be changed once ExpectAnyChange was called.
  std::span<T> Unwatched() { return records_; }
  /// All records, to be changed in any way.
  std::span<T> Any() {
    ExpectAnyChange();
    return records_;
  }

  /// The record may be changed until the next commit. Throws TableFull at the file's limit.
  T& Append(const T& record) {
    if (Full()) throw TableFull(LayoutOf<T>());
    Begin();
    return records_.emplace_back(record);
  }
  /// The file with these records and no others. Throws TableFull for more than the file's limit.
  void Rewrite(std::vector<T> records) {
    if (static_cast<int>(records.size()) > LayoutOf<T>().Limit) throw TableFull(LayoutOf<T>());
    Begin();
    ExpectAnyChange();
    records_.assign(records.begin(), records.end());
  }
  /// Compaction: the records that `stays` holds move together, in their order.
  template <class Stays>
  void Keep(Stays stays) {
    const auto goes = [&](const T& record) { return !stays(record); };
    const auto first = std::find_if(records_.begin(), records_.end(), goes);
    if (first == records_.end()) return;
    // Asked once each: `stays` may count.
    std::vector<bool> gone(records_.size());
    auto at = static_cast<std::size_t>(first - records_.begin());
    gone[at] = true;
    for (++at; at < records_.size(); ++at) gone[at] = goes(records_[at]);
    ExpectAnyChange();
    at = 0;
    std::erase_if(records_, [&](const T&) { return gone[at++]; });
    surplus_.clear();
  }
  /// The first `count` go.
  void DropFirst(int count) {
    const auto dropped = std::min(static_cast<std::size_t>(std::max(count, 0)), records_.size());
    past_.NoteGone(records_, dropped);
    records_.erase(records_.begin(), records_.begin() + static_cast<std::ptrdiff_t>(dropped));
    surplus_.clear();
  }
  void Erase(int number) {
    const auto at = static_cast<std::ptrdiff_t>(Place(number));
    ExpectAnyChange();
    records_.erase(records_.begin() + at);
    surplus_.clear();
  }
  void Remove() override {
    ExpectAnyChange();
    exists_ = false;
    records_.clear();
    surplus_.clear();
  }
  /// The number of a record of this table.
  int NumberOf(const T& record) const { return static_cast<int>(&record - records_.data()) + 1; }

  ByteSpan RecordBytes() const override { return std::as_bytes(std::span(records_)); }
  ByteSpan Contents() const override {
    if (surplus_.empty()) return std::as_bytes(std::span(records_));
    const auto whole = std::as_bytes(std::span(records_));
    joined_.assign(whole.begin(), whole.end());
    joined_.insert(joined_.end(), surplus_.begin(), surplus_.end());
    return joined_;
  }
  std::int64_t MaxBytes() const override {
    return static_cast<std::int64_t>(LayoutOf<T>().Limit) * LayoutOf<T>().Size + sizeof(T) - 1;
  }
  void Load(ByteSpan bytes) override;
  /// Becomes what the other is, as a file that was never committed. Memory that it has is used
  /// again.
  void CopyFrom(const Records& other);
  Bytes Committed() const override {
    if constexpr (kIsGrowing)
      return past_.Contents(records_);
    else
      return Table::Committed();
  }

 private:
  std::int64_t CommittedLength() const override {
    if constexpr (kIsGrowing)
      return past_.Length();
    else
      return Table::CommittedLength();
  }
  std::vector<JournalRange> ChangedSince() const override {
    if constexpr (kIsGrowing)
      return past_.Changed(records_, Contents());
    else
      return Table::ChangedSince();
  }
  std::optional<std::vector<JournalRange>> WereIn(ByteSpan now) const override {
    if constexpr (kIsGrowing)
      return past_.Were(now);
    else
      return Table::WereIn(now);
  }
  void TakeOver(const std::vector<JournalRange>& changed) override {
    if constexpr (kIsGrowing)
      past_.Commit(records_, surplus_);
    else
      Table::TakeOver(changed);
  }
  void Restore() override {
    if constexpr (kIsGrowing) {
      Begin();
      past_.Restore(records_, surplus_);
    } else {
      Table::Restore();
    }
  }
  /// Makes the file one that may take records.
  void Begin() {
    exists_ = true;
    surplus_.clear();
    if (records_.capacity() == 0)
      records_.reserve(static_cast<std::size_t>(LayoutOf<T>().Limit) + 1);
  }
  std::size_t Place(int number) const {
    if (number < 1 || number > Count()) ThrowNoRecord(File(), number);
    return static_cast<std::size_t>(number - 1);
  }

  std::vector<T> records_;
  [[no_unique_address]] std::conditional_t<kIsGrowing, GrowingPast<T>, NoPast<T>> past_;
  Bytes surplus_;  // behind the last whole record; the next append overwrites it
  mutable Bytes joined_;
};

/// Throws WorldFault for a file of more records than its limit.
void RequireWithinLimit(const RecordLayout& layout, std::size_t bytes);

template <class T>
void Records<T>::Load(ByteSpan bytes) {
  RequireWithinLimit(LayoutOf<T>(), bytes.size());
  ExpectAnyChange();
  Begin();
  const std::size_t count = bytes.size() / sizeof(T);
  records_.resize(count);
  if (count > 0) std::memcpy(records_.data(), bytes.data(), count * sizeof(T));
  surplus_.assign(bytes.begin() + static_cast<std::ptrdiff_t>(count * sizeof(T)), bytes.end());
}

template <class T>
void Records<T>::CopyFrom(const Records& other) {
  ForgetCommitted();
  past_.Forget();
  if (other.exists_) Begin();
  exists_ = other.exists_;
  records_.assign(other.records_.begin(), other.records_.end());
  surplus_ = other.surplus_;
}

/// Appends to a file that need not keep everything: a full one loses `oldest` of its oldest records
/// first, many at once, since making room must not move the whole file with every record.
template <class T>
void AppendRolling(Records<T>& records, const T& record, int oldest) {
  if (records.Full()) records.DropFirst(oldest);
  records.Append(record);
}

/// Numbers for records whose own is none or taken: behind the highest, in gaps when there is
/// nothing behind it.
class FreeUids {
 public:
  static constexpr int kHighest = 32767;

  template <class T>
  explicit FreeUids(const Records<T>& records) {
    for (const T& record : records) Mark(record.Uid);
  }
  bool Has(int uid) const { return taken_.contains(uid); }
  void Mark(int uid) {
    taken_.insert(uid);
    PassBy(uid);
  }
  /// Is not given away as long as there are numbers behind it.
  void PassBy(int uid) { highest_ = std::max(highest_, uid); }
  int Take() {
    int uid = highest_ + 1;
    if (uid > kHighest) {
      while (taken_.contains(gap_)) ++gap_;
      uid = gap_;
    }
    Mark(uid);
    return uid;
  }

 private:
  std::unordered_set<int> taken_;
  int highest_ = 0;
  int gap_ = 1;  // no number below it is free
};

}  // namespace grapplemont
