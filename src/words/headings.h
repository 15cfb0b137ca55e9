#pragma once

#include <string>
#include <vector>

// What the program asks of the files of words/: every room's tables, read as headings.

namespace grapplemont {

/// What may stand under one heading.
struct Heading {
  std::string Name;  // "SinglesFinish, Clean"
  int Number = 0, Band = 0;
  int Least = 0, Most = 0;  // lines
  /// A report's line: the letters of the parts that it may name, and of those that it must.
  bool IsReport = false;
  std::string Parts = {}, Must = {};
  bool IsRated = false;  // it says for which ratings it is
  /// Any other line: the names that may stand in braces.
  std::vector<std::string> Slots = {};
};

/// One file of words/ and the function that the build makes of it.
struct WordsFile {
  std::string Path;  // "lamplighter/finishes.txt"
  std::string Module, Function;
  std::vector<Heading> Headings;
};
std::vector<WordsFile> AllWordsFiles();

}  // namespace grapplemont
