#include "console/typing.h"

#ifdef GRAPPLEMONT_EDITLINE

#include <histedit.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <memory>

namespace grapplemont::console {

namespace {

/// The part that all words begin with.
std::string CommonStart(const std::vector<std::string>& words) {
  std::string start = words.front();
  for (const std::string& word : words)
    start.resize(static_cast<std::size_t>(std::ranges::mismatch(start, word).in1 - start.begin()));
  return start;
}

/// A terminal's line with its history, for as long as the program runs.
class EditedLine {
 public:
  EditedLine()
      : editor_(el_init("grapplemont-console", stdin, stdout, stderr)), history_(history_init()) {
    constexpr int kKept = 500;  // lines
    HistEvent event;
    history(history_, &event, H_SETSIZE, kKept);
    history(history_, &event, H_SETUNIQUE, 1);
    el_set(editor_, EL_CLIENTDATA, this);
    el_set(editor_, EL_PROMPT, +[](EditLine* editor) { return Of(editor).prompt_.data(); });
    el_set(editor_, EL_EDITOR, "emacs");
    el_set(editor_, EL_SIGNAL, 1);
    el_set(editor_, EL_HIST, history, history_);
    el_set(editor_, EL_ADDFN, "complete", "Completes a word",
           +[](EditLine* editor, int) -> unsigned char { return Of(editor).Complete(); });
    el_set(editor_, EL_BIND, "^I", "complete", nullptr);
    el_source(editor_, nullptr);
  }
  ~EditedLine() {
    history_end(history_);
    el_end(editor_);
  }
  EditedLine(const EditedLine&) = delete;
  EditedLine& operator=(const EditedLine&) = delete;

  std::optional<Line> Ask(const std::string& prompt, const Completions& completions) {
    prompt_ = prompt;
    completions_ = &completions;
    int count = 0;
    const char* const typed = el_gets(editor_, &count);
    if (!typed || count <= 0) return std::nullopt;
    Line line{std::string(typed, static_cast<std::size_t>(count))};
    while (!line.Bytes.empty() && (line.Bytes.back() == '\n' || line.Bytes.back() == '\r'))
      line.Bytes.pop_back();
    HistEvent event;
    if (!line.Bytes.empty()) history(history_, &event, H_ENTER, line.Bytes.c_str());
    return line;
  }

 private:
  static EditedLine& Of(EditLine* editor) {
    void* self = nullptr;
    el_get(editor, EL_CLIENTDATA, &self);
    return *static_cast<EditedLine*>(self);
  }

  unsigned char Complete() {
    const LineInfo* const line = el_line(editor_);
    const std::string_view before(line->buffer,
                                  static_cast<std::size_t>(line->cursor - line->buffer));
    const std::vector<std::string> words = (*completions_)(before);
    if (words.empty()) return CC_ERROR;
    const std::size_t typed = before.size() - (before.find_last_of(' ') + 1);
    const std::string more = CommonStart(words).substr(typed) + (words.size() == 1 ? " " : "");
    if (!more.empty()) return el_insertstr(editor_, more.c_str()) == 0 ? CC_REFRESH : CC_ERROR;
    std::fputc('\n', stdout);
    for (const std::string& word : words) std::fprintf(stdout, "%s  ", word.c_str());
    std::fputc('\n', stdout);
    return CC_REDISPLAY;
  }

  EditLine* editor_;
  History* history_;
  std::string prompt_;
  const Completions* completions_ = nullptr;
};

}  // namespace

Typist TerminalTypist() {
  std::setlocale(LC_CTYPE, "");  // letters are more than bytes where they are edited
  return [line = std::make_shared<EditedLine>()](const std::string& prompt,
                                                 const Completions& completions) {
    return line->Ask(prompt, completions);
  };
}

}  // namespace grapplemont::console

#else

namespace grapplemont::console {

Typist TerminalTypist() {
  return {};
}

}  // namespace grapplemont::console

#endif
