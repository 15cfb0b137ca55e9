#pragma once

#include <string_view>
#include <vector>

// What the program asks of the tables of words/: their columns, and what C++ is made of them.

namespace grapplemont {

/// The cell of a table that is empty.
inline constexpr std::string_view kEmptyCell = "-";

struct WordColumn {
  enum Kind {
    Number,
    Text,
    Phrase,    // a text that may name people of the Segment in braces
    RuleName,  // letters and digits; becomes an enumerator or a constant with a k before it
    Choice,    // one of Choices
    Rule,      // a rule name of the table Of, which stands above
    Cast,      // the boxes of an angle
    Places,    // of an angle's people, one of Choices among them: "1 2 Leader"
    Pairs      // of such: "2>1 3>1"; "3?>1" for one who is not sure
  };
  std::string_view Title;
  Kind Is = Text;
  /// C++ for an empty cell; "=Says" for what stands in that column. Without it the cell may only be
  /// empty in a RuleName, and in a table whose outputs leave such rows out (kLeavesOut).
  std::string_view Empty = {};
  std::string_view Before = {};  // in C++, before the choice
  std::vector<std::string_view> Choices = {};
  std::string_view Of = {};
  std::string_view Behind = {};  // goes to the end of the text
};
inline constexpr std::string_view kLeavesOut = "leave the row out";

/// An array that is made of a table's rows.
struct RowArray {
  std::string_view Header;  // "segments" for words/segments.h
  std::string_view Type, Name;
  std::vector<std::string_view> Columns;  // titles; "\"" before what is C++ as it stands
};

struct WordTable {
  std::string_view Heading;
  std::vector<WordColumn> Columns;
  std::vector<std::string_view> Keys = {};  // no two rows are alike in all of them
  bool Counts = false;                      // the first column counts from 1
  /// What becomes of the rule names: the enumeration, in its namespace, with the numbers of a
  /// column; constants without an enumeration. Empty for a table without rule names.
  std::string_view Namespace = {}, Enum = {}, NumbersOf = {};
  std::vector<RowArray> Arrays = {};
};

/// An array that is made of lists of names between commas.
struct NameArray {
  struct List {
    std::string_view Heading;
    std::string_view Before = {};   // in C++, before the name
    int Names = 0;                  // exactly as many; 0 for any number
    std::string_view CountAs = {};  // the constant that says how many there are
  };
  std::string_view Type, Name;
  int Names = 0;    // of all lists together
  int Longest = 0;  // letters
  std::vector<List> Lists;
};

/// A header that is made of a file.
struct MadeHeader {
  std::string_view Name;
  std::vector<std::string_view> Includes;
};
struct TableFile {
  std::string_view Path;
  std::vector<MadeHeader> Headers;
  std::vector<WordTable> Tables;
  std::vector<NameArray> Names;
};
const std::vector<TableFile>& AllTableFiles();

}  // namespace grapplemont
