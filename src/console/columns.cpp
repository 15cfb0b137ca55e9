#include "console/columns.h"

#include <algorithm>
#include <numeric>

namespace grapplemont::console {

namespace {

constexpr std::size_t kGap = 2;
constexpr std::size_t kNarrowest = 6;    // a column is not cut below this
constexpr std::size_t kLeastFirst = 18;  // nor the first, by which rows are picked, below this
constexpr std::string_view kCut = "...";

void WrapLine(std::string_view line, std::size_t width, std::vector<std::string>& lines) {
  while (line.size() > width) {
    const auto blank = line.rfind(' ', width);
    const bool hasBlank = blank != std::string_view::npos && blank > 0;
    lines.push_back(TrimmedBehind(std::string(line.substr(0, hasBlank ? blank : width))));
    line.remove_prefix(hasBlank ? blank + 1 : width);
  }
  lines.emplace_back(line);
}

}  // namespace

std::string Padded(std::string text, std::size_t width, bool right) {
  const std::string blanks(width - std::min(width, text.size()), ' ');
  return right ? blanks + text : text + blanks;
}

std::string TrimmedBehind(std::string line) {
  line.resize(line.find_last_not_of(' ') + 1);
  return line;
}

std::string Printable(std::string_view text) {
  std::string printable(text);
  for (char& letter : printable) {
    const auto byte = static_cast<unsigned char>(letter);
    const bool open = byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
    if (letter == '\t')
      letter = ' ';
    else if ((byte < 0x20 && letter != '\n') || byte == 0x7F || open)
      letter = '?';
  }
  return printable;
}

std::vector<std::string> Wrapped(std::string_view text, std::size_t width) {
  std::vector<std::string> lines;
  for (;;) {
    const auto end = text.find('\n');
    WrapLine(text.substr(0, end), std::max<std::size_t>(width, 1), lines);
    if (end == std::string_view::npos) return lines;
    text.remove_prefix(end + 1);
  }
}

std::string Shortened(std::string_view text, std::size_t width) {
  std::string line(text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  if (line.size() <= width) return line;
  if (width <= kCut.size()) return line.substr(0, width);
  return line.substr(0, width - kCut.size()) + std::string(kCut);
}

void TableText::Add(int number, bool chosen, std::vector<std::string> cells) {
  if (cells.size() > columns_.size()) columns_.resize(cells.size());
  cells.resize(columns_.size());
  rows_.push_back({std::to_string(number), chosen, std::move(cells)});
}

std::vector<std::size_t> TableText::Widths(std::size_t width) const {
  std::vector<std::size_t> widths;
  for (const TableColumn& column : columns_) widths.push_back(column.Title.size());
  std::size_t used = 1;
  for (const Row& row : rows_) {
    used = std::max(used, row.Number.size() + 1);
    for (std::size_t i = 0; i < row.Cells.size(); ++i)
      widths[i] = std::max(widths[i], row.Cells[i].size());
  }
  used += kGap * widths.size() + std::accumulate(widths.begin(), widths.end(), std::size_t{0});
  const auto excess = [&](const std::size_t& column) {
    const std::size_t least = &column == &widths.front() ? kLeastFirst : kNarrowest;
    return column - std::min(column, least);
  };
  for (; width != 0 && used > width; --used) {
    const auto widest = std::ranges::max_element(
        widths, [&](const auto& one, const auto& other) { return excess(one) < excess(other); });
    if (widest == widths.end() || excess(*widest) == 0) break;
    --*widest;
  }
  return widths;
}

std::string TableText::Line(char mark, const std::string& number,
                            const std::vector<std::string>& cells,
                            const std::vector<std::size_t>& widths) const {
  std::string line = mark + number;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const std::string cell = i < cells.size() ? cells[i] : std::string();
    line +=
        std::string(kGap, ' ') + Padded(Shortened(cell, widths[i]), widths[i], columns_[i].Right);
  }
  return TrimmedBehind(std::move(line));
}

std::vector<std::string> TableText::Lines(std::size_t width) const {
  const std::vector<std::size_t> widths = Widths(width);
  std::size_t numbers = 0;
  for (const Row& row : rows_) numbers = std::max(numbers, row.Number.size());
  std::vector<std::string> titles, lines;
  for (const TableColumn& column : columns_) titles.push_back(column.Title);
  if (std::ranges::any_of(titles, [](auto& title) { return !title.empty(); }))
    lines.push_back(Line(' ', std::string(numbers, ' '), titles, widths));
  for (const Row& row : rows_)
    lines.push_back(
        Line(row.Chosen ? '>' : ' ', Padded(row.Number, numbers, true), row.Cells, widths));
  return lines;
}

}  // namespace grapplemont::console
