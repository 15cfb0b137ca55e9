#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// A whole name that stands in a text.
struct NameSpan {
  enum class Kind { Worker, Promotion };
  std::size_t From = 0, Length = 0;
  Kind Of = Kind::Worker;
  int Uid = 0;
  friend bool operator==(const NameSpan&, const NameSpan&) = default;
};

/// Finds the full names of workers, and the names and initials of promotions, in any text: as they
/// are written, whole words only, the longest where several begin at one place. A worker goes
/// before a promotion of the same name, and the earlier record before the later.
class NameIndex {
 public:
  /// The names in their order; none overlaps another. A rename since the last call is seen, unless
  /// it is known that there has been none.
  std::vector<NameSpan> Find(const World& world, std::string_view text, bool known = false);

 private:
  struct Named {
    NameSpan::Kind Of;
    int Uid;
  };
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  template <class V>
  using ByText = std::unordered_map<std::string, V, Hash, std::equal_to<>>;

  void Build(const World& world);
  void Enter(std::string_view name, Named named);
  /// The longest name that begins here; nothing for none.
  const Named* At(std::string_view text, std::size_t from, std::size_t& length) const;

  ByText<Named> names_;
  ByText<std::size_t> longest_;  // of the names that begin with this word
  std::string seen_;             // the bytes of all names and uids when they were entered
};

}  // namespace grapplemont
