#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "records/store/table.h"

namespace grapplemont {

/// The numbers of a growing file's records by a number that tells each from the others, read once.
class NumbersByKey {
 public:
  /// The first record that `keyOf` gives this key; 0 for none.
  template <class T, class KeyOf>
  int Find(const Records<T>& records, std::int64_t key, KeyOf keyOf) {
    if (moves_ != records.Moves()) Clear(records.Moves());
    Read(records, keyOf);
    auto found = numbers_.find(key);
    if (found == numbers_.end()) return 0;
    if (keyOf(records[found->second]) == key) return found->second;
    // Its record has another now.
    Clear(moves_);
    Read(records, keyOf);
    found = numbers_.find(key);
    return found == numbers_.end() ? 0 : found->second;
  }

 private:
  void Clear(unsigned moves) {
    numbers_.clear();
    read_ = 0;
    moves_ = moves;
  }
  template <class T, class KeyOf>
  void Read(const Records<T>& records, const KeyOf& keyOf) {
    while (read_ < records.Count()) {
      ++read_;
      numbers_.try_emplace(keyOf(records[read_]), read_);
    }
  }

  std::unordered_map<std::int64_t, int> numbers_;
  int read_ = 0;        // records that these are
  unsigned moves_ = 0;  // of the file, when they were read
};

/// The same where a record has several keys and shares them with others.
class NumbersByKeys {
 public:
  /// All records that have the key, in order. `addKeys(record, add)` calls add(key) for each of its
  /// keys.
  template <class T, class AddKeys>
  const std::vector<int>& Find(const Records<T>& records, int key, AddKeys addKeys) {
    static const std::vector<int> kNone;
    if (changes_ != records.Changes()) {
      numbers_.clear();
      read_ = 0;
      changes_ = records.Changes();
    }
    while (read_ < records.Count()) {
      ++read_;
      addKeys(records[read_], [this](int each) {
        std::vector<int>& numbers = numbers_[each];
        if (numbers.empty() || numbers.back() != read_) numbers.push_back(read_);
      });
    }
    const auto found = numbers_.find(key);
    return found == numbers_.end() ? kNone : found->second;
  }

 private:
  std::unordered_map<int, std::vector<int>> numbers_;
  int read_ = 0;          // records that these are
  unsigned changes_ = 0;  // of the file, when they were read
};

}  // namespace grapplemont
