#include "report/linememory.h"

#include <algorithm>

namespace grapplemont {

int LineMemory::Pick(Draws& draws, const void* band, int lines) {
  std::vector<bool>& used = used_[band];
  used.resize(static_cast<std::size_t>(lines));
  if (std::find(used.begin(), used.end(), false) == used.end())
    used.assign(static_cast<std::size_t>(lines), false);
  int picked = draws.Draw(lines) - 1;
  if (used[static_cast<std::size_t>(picked)]) {
    std::vector<int> unused;
    for (int line = 0; line < lines; ++line)
      if (!used[static_cast<std::size_t>(line)]) unused.push_back(line);
    picked = unused[static_cast<std::size_t>(draws.Draw(static_cast<int>(unused.size())) - 1)];
  }
  used[static_cast<std::size_t>(picked)] = true;
  return picked;
}

bool LineMemory::Used(const void* band, int line) const {
  const auto found = used_.find(band);
  return found != used_.end() && found->second[static_cast<std::size_t>(line)];
}

}  // namespace grapplemont
