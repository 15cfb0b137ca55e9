#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace grapplemont {

/// One line of a file with its number, from 1. The text is as the program has it: Windows-1252.
struct NumberedLine {
  int Number = 0;
  std::string Text;
};
/// A heading and what stands under it.
struct WordSection {
  NumberedLine Heading;
  std::vector<NumberedLine> Lines;
};
struct WordsText {
  std::vector<WordSection> Sections;
  std::vector<NumberedLine> Mistakes;
  int Last = 1;  // the number of the file's last line
};

/// Reads a file of words/: "== HEADING", a line of text a line, "# " before a comment. Blanks at
/// either end and empty lines mean nothing.
WordsText ReadWordsText(std::string_view utf8);

}  // namespace grapplemont
