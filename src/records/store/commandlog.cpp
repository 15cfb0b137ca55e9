#include "records/store/commandlog.h"

#include <algorithm>
#include <span>

namespace grapplemont {

namespace {

constexpr std::string_view kCommandsHead = "grapplemont commands, format 1\n";

ByteSpan BytesIn(std::string_view text) {
  return std::as_bytes(std::span(text));
}

bool EndsWith(ByteSpan bytes, std::string_view text) {
  return bytes.size() >= text.size() && std::ranges::equal(bytes.last(text.size()), BytesIn(text));
}

}  // namespace

Bytes CommandLog::Empty() {
  const ByteSpan head = BytesIn(kCommandsHead);
  return {head.begin(), head.end()};
}

CommandLog::CommandLog(std::optional<Bytes> file) {
  if (!file) return;
  file_ = *std::move(file);
  stored_ = file_.size();
  records_ = !EndsWith(file_, std::string(kCommandsFull) + "\n");
}

void CommandLog::Add(std::string_view lines) {
  if (!records_ || lines.empty()) return;
  const std::string full = std::string(kCommandsFull) + "\n";
  const bool fits = std::ssize(file_) + std::ssize(lines) + std::ssize(full) <= kMostCommands;
  const ByteSpan added = BytesIn(fits ? lines : std::string_view(full));
  file_.insert(file_.end(), added.begin(), added.end());
}

std::optional<FileChange> CommandLog::Change() const {
  if (file_.size() == stored_) return std::nullopt;
  FileChange change{kCommandsName, true, true, static_cast<std::int64_t>(stored_), file_, {}};
  ChangedBlocks changed(file_);
  changed.Add(stored_, file_.size());
  change.Ranges = std::move(changed).Take();
  return change;
}

}  // namespace grapplemont
