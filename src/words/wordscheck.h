#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "words/headings.h"
#include "words/wordstext.h"

namespace grapplemont {

/// Checks files one after the other: headings that do not exist, are missing or stand twice, counts
/// that are off, lines that cannot be said or have been said.
class WordsCheck {
 public:
  /// `root` stands before the files' paths in what is reported.
  explicit WordsCheck(std::string root) : root_(std::move(root)) {}

  void Check(const WordsFile& file, const WordsText& text);
  void Report(const std::string& path, int line, const std::string& what);
  /// "words/qvd/talk.txt:12: two blanks in a row".
  const std::vector<std::string>& Mistakes() const { return mistakes_; }

 private:
  void CheckSection(const WordsFile& file, const WordSection& section, const Heading& heading);
  void CheckIsNew(const WordsFile& file, const NumberedLine& line, const Heading& heading);

  std::string root_;
  std::unordered_map<std::string, std::string> said_;
  std::vector<std::string> mistakes_;
};

/// The heading of this name; nullptr for none.
const Heading* FindHeading(const WordsFile& file, std::string_view name);

/// Why a text cannot stand under a heading; empty for a sound line.
std::string WhyNoLine(std::string_view line, const Heading& heading);

}  // namespace grapplemont
