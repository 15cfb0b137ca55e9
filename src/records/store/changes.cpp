#include "records/store/changes.h"

#include <algorithm>
#include <cstring>

namespace grapplemont {

void ChangedBlocks::Add(std::size_t from, std::size_t to) {
  from = from / step_ * step_;
  to = std::min((to + step_ - 1) / step_ * step_, after_.size());
  if (!ranges_.empty()) {
    JournalRange& last = ranges_.back();
    const auto begin = static_cast<std::size_t>(last.Offset);
    const std::size_t end = begin + last.Contents.size();
    if (from <= end) {
      last.Contents = after_.subspan(begin, std::max(end, to) - begin);
      return;
    }
  }
  if (from < to)
    ranges_.push_back({static_cast<std::int64_t>(from), after_.subspan(from, to - from)});
}

std::vector<JournalRange> ChangedRanges(ByteSpan before, ByteSpan after, bool bare) {
  const std::size_t step = bare ? 1 : kJournalBlock;
  ChangedBlocks changed(after, step);
  for (std::size_t at = 0; at < after.size(); at += step) {
    const std::size_t now = std::min(step, after.size() - at);
    const std::size_t then = at >= before.size() ? 0 : std::min(step, before.size() - at);
    if (now != then || std::memcmp(after.data() + at, before.data() + at, now) != 0)
      changed.Add(at, at + now);
  }
  return std::move(changed).Take();
}

std::optional<FileChange> ChangeBetween(const std::string& name, const Bytes* before,
                                        const Bytes* after, bool bare) {
  if (!before && !after) return std::nullopt;
  FileChange change{name, before != nullptr, after != nullptr, 0, {}, {}};
  if (before) {
    change.LengthBefore = std::ssize(*before);
    change.Before = *before;
  }
  if (after) {
    change.After = *after;
    change.Ranges = ChangedRanges(before ? ByteSpan(*before) : ByteSpan(), change.After, bare);
  }
  const bool same = before && after && change.LengthBefore == std::ssize(*after);
  if (same && change.Ranges.empty()) return std::nullopt;
  return change;
}

}  // namespace grapplemont
