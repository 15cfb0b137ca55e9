#pragma once

#include <string>

#include "records/world.h"
#include "show/score.h"

namespace grapplemont {

/// Ratings of several people, told by name: "Bram Okafor 61, Ilya Marsh 55".
class MeanRating {
 public:
  /// Whoever is not to be found counts as 0.
  void Add(const World& world, int uid, int (*rating)(const Worker&));
  void Add(std::string_view name, int rating);
  /// Rounded down; 0 for nobody.
  int Mean() const { return count_ == 0 ? 0 : Score::Floor(sum_, count_); }
  /// "mean work of Bram Okafor 61, Ilya Marsh 55", or "work of Bram Okafor 61" for one alone.
  std::string Told(std::string_view what) const;

 private:
  int sum_ = 0, count_ = 0;
  std::string names_;
};

}  // namespace grapplemont
