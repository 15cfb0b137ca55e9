#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Texts laid out in letters of one width. A byte is a letter: what comes in and goes out is in the
// program's own letters.

namespace grapplemont::console {

/// The text without anything that would move a terminal's cursor; line ends stay.
std::string Printable(std::string_view text);
/// The line without the blanks behind it.
std::string TrimmedBehind(std::string line);
/// The text with blanks behind it, or before it, up to the width.
std::string Padded(std::string text, std::size_t width, bool right = false);
/// Lines of at most `width` letters, broken at blanks where there are any; never none.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width);
/// The text on one line, with "..." in place of what `width` has no room for.
std::string Shortened(std::string_view text, std::size_t width);

struct TableColumn {
  std::string Title;
  bool Right = false;
};

/// A table whose rows have numbers; a chosen one has a ">" before it.
class TableText {
 public:
  explicit TableText(std::vector<TableColumn> columns) : columns_(std::move(columns)) {}
  void Add(int number, bool chosen, std::vector<std::string> cells);
  /// Lines of at most `width` letters with the widest columns cut for it; 0 cuts nothing. The first
  /// holds the titles, if there are any.
  std::vector<std::string> Lines(std::size_t width) const;

 private:
  struct Row {
    std::string Number;
    bool Chosen;
    std::vector<std::string> Cells;
  };
  std::vector<std::size_t> Widths(std::size_t width) const;
  std::string Line(char mark, const std::string& number, const std::vector<std::string>& cells,
                   const std::vector<std::size_t>& widths) const;

  std::vector<TableColumn> columns_;
  std::vector<Row> rows_;
};

}  // namespace grapplemont::console
