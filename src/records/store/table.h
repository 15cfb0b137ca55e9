#pragma once

#include <algorithm>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string>
#include <unordered_set>
#include <vector>

#include "records/fields/field.h"
#include "records/store/disk.h"

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

/// One file of a world in memory, beside the bytes that were committed last.
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

  bool Changed() const;
  bool CommittedExists() const { return committedExists_; }
  const Bytes& Committed() const { return committed_; }
  void MarkCommitted();
  void Rollback();

 protected:
  bool exists_ = false;

 private:
  bool committedExists_ = false;
  Bytes committed_;
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
  void Set(std::string_view text);

 private:
  std::string_view file_;
  std::string text_;
};

/// The records of one file, numbered from 1. References stay valid across Append (the first record
/// reserves room for all that the file may hold); Keep and Load move records.
template <class T>
class Records : public Table {
 public:
  std::string_view File() const override { return LayoutOf<T>().File; }
  const RecordLayout* Layout() const override { return &LayoutOf<T>(); }

  int Count() const { return static_cast<int>(records_.size()); }
  bool Full() const { return Count() >= LayoutOf<T>().Limit; }
  T& operator[](int number) { return records_[Place(number)]; }
  const T& operator[](int number) const { return records_[Place(number)]; }
  auto begin() { return records_.begin(); }
  auto end() { return records_.end(); }
  auto begin() const { return records_.begin(); }
  auto end() const { return records_.end(); }

  /// Throws TableFull at the file's limit.
  T& Append(const T& record) {
    if (Full()) throw TableFull(LayoutOf<T>());
    Begin();
    return records_.emplace_back(record);
  }
  /// The file with these records and no others. Throws TableFull for more than the file's limit.
  void Rewrite(std::vector<T> records) {
    if (static_cast<int>(records.size()) > LayoutOf<T>().Limit) throw TableFull(LayoutOf<T>());
    Begin();
    records_.assign(records.begin(), records.end());
  }
  /// Compaction: the records that `stays` holds move together, in their order.
  template <class Stays>
  void Keep(Stays stays) {
    const auto before = records_.size();
    std::erase_if(records_, [&](const T& record) { return !stays(record); });
    if (records_.size() != before) surplus_.clear();
  }
  void Erase(int number) {
    records_.erase(records_.begin() + static_cast<std::ptrdiff_t>(Place(number)));
    surplus_.clear();
  }
  void Remove() override {
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

 private:
  /// Makes the file one that may take records.
  void Begin() {
    exists_ = true;
    surplus_.clear();
    if (records_.capacity() == 0)
      records_.reserve(static_cast<std::size_t>(LayoutOf<T>().Limit) + 1);
  }
  std::size_t Place(int number) const {
    if (number < 1 || number > Count())
      throw std::out_of_range(std::string(File()) + " has no record " + std::to_string(number));
    return static_cast<std::size_t>(number - 1);
  }

  std::vector<T> records_;
  Bytes surplus_;  // behind the last whole record; the next append overwrites it
  mutable Bytes joined_;
};

/// Throws WorldFault for a file of more records than its limit.
void RequireWithinLimit(const RecordLayout& layout, std::size_t bytes);

template <class T>
void Records<T>::Load(ByteSpan bytes) {
  RequireWithinLimit(LayoutOf<T>(), bytes.size());
  Begin();
  const std::size_t count = bytes.size() / sizeof(T);
  records_.resize(count);
  if (count > 0) std::memcpy(records_.data(), bytes.data(), count * sizeof(T));
  surplus_.assign(bytes.begin() + static_cast<std::ptrdiff_t>(count * sizeof(T)), bytes.end());
}

/// Appends to a file that need not keep everything: a full one loses `oldest` of its oldest records
/// first, many at once, since making room must not move the whole file with every record.
template <class T>
T& AppendRolling(Records<T>& records, const T& record, int oldest) {
  if (records.Full()) {
    int number = 0;
    records.Keep([&](const T&) { return ++number > oldest; });
  }
  return records.Append(record);
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
