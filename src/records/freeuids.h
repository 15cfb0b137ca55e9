#pragma once

#include <algorithm>
#include <unordered_set>

#include "records/table.h"

namespace grapplemont {

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
