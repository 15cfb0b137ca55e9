#include "records/store/commandlog.h"

#include <algorithm>
#include <span>

namespace grapplemont {

namespace {

constexpr std::string_view kCommandsHead = "grapplemont commands, format 1\n";

ByteSpan BytesIn(std::string_view text) {
  return std::as_bytes(std::span(text));
}

}  // namespace

std::string EndOfCommands(std::uint64_t digest, std::string_view who) {
  return std::string(kCommandsOutside) + " " + std::to_string(digest) + " " + std::string(who) +
         "\n";
}

Bytes CommandLog::Empty() {
  const ByteSpan head = BytesIn(kCommandsHead);
  return {head.begin(), head.end()};
}

CommandLog::CommandLog(std::optional<Bytes> file) {
  if (!file) return;
  file_ = *std::move(file);
  stored_ = file_.size();
  exists_ = true;
}

/// Its last line says so.
bool CommandLog::HasEnded() const {
  std::string_view text(reinterpret_cast<const char*>(file_.data()), file_.size());
  if (text.ends_with('\n')) text.remove_suffix(1);
  const std::string_view last = text.substr(text.rfind('\n') + 1);
  return last == kCommandsFull || last.starts_with(std::string(kCommandsOutside) + " ");
}

void CommandLog::Add(std::string_view lines) {
  if (!Records() || lines.empty()) return;
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
