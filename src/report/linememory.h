#pragma once

#include <map>
#include <vector>

namespace grapplemont {

/// Which lines a show has used, so that none comes again before the others of its band have.
class LineMemory {
 public:
  /// Counts the line as used. `lines` is how many its band has, `band` names the band.
  void Use(const void* band, int line, int lines) {
    std::vector<bool>& used = used_[band];
    used.resize(static_cast<std::size_t>(lines));
    used[static_cast<std::size_t>(line)] = true;
    for (const bool each : used)
      if (!each) return;
    used.assign(used.size(), false);
  }
  bool Used(const void* band, int line) const {
    const auto found = used_.find(band);
    return found != used_.end() && found->second[static_cast<std::size_t>(line)];
  }

 private:
  std::map<const void*, std::vector<bool>> used_;
};

}  // namespace grapplemont
