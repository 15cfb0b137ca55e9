#include <gtest/gtest.h>

#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/tables/tablereader.h"

namespace grapplemont {

namespace {

using namespace std::string_literals;

TEST(Charset, EveryByteHasItsLetterAndComesBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    all += static_cast<char>(byte);
    EXPECT_EQ(std::string(1, all.back()), FromUtf8(ToUtf8(all.substr(all.size() - 1)))) << byte;
  }
  // The bytes 0x80 to 0x9F as the code page lists them.
  EXPECT_EQ(
      "\u20AC\xC2\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\xC2\x8D"
      "\u017D"
      "\xC2\x8F\xC2\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\xC2"
      "\x9D"
      "\u017E\u0178",
      ToUtf8(all.substr(0x80, 0x20)));
  EXPECT_EQ("~\u00E9", ToUtf8("~\xE9"));
  EXPECT_EQ(all, FromUtf8(ToUtf8(all)));
  EXPECT_EQ("", FirstForeignLetter(ToUtf8(all)));
}

TEST(Charset, RefusesLettersBeyondItAndBrokenUtf8) {
  const struct {
    std::string Utf8, Foreign;
  } rows[] = {
      {"Zo\u00EB \u0141ukasz \u0416", "\u0141"},  // Latin, but not of the west
      {"R\u2192L", "\u2192"},
      {"\U0001F4AA", "\U0001F4AA"},
      {"\u0100", "\u0100"},  // the first letter past the last byte
      {"a\xBF", "?"},        // a letter's tail alone
      {"\xC3", "?"},         // cut short
      {"\xF0\x9F\x92", "?"},
      {"\xC3(", "?"},  // an invalid tail
      {"\xE2(\xAC", "?"},
      {"\xC1\xBF", "?"},  // longer than need be
      {"\xE0\x82\x80", "?"},
      {"\xF0\x80\x82\xAC", "?"},
      {"\xED\xA0\x80", "?"},      // half of a pair
      {"\xF4\x90\x80\x80", "?"},  // past the last letter
      {"\xF5\x80\x80\x80", "?"},
      {"\xFF", "?"},
  };
  for (const auto& row : rows) {
    EXPECT_FALSE(FromUtf8(row.Utf8)) << ToUtf8(row.Utf8);
    EXPECT_EQ(row.Foreign, FirstForeignLetter(row.Utf8));
  }
}

/// "line: [cell][cell]" for each row, then the fault.
std::string Told(CsvReader table) {
  std::string told;
  for (CsvRow row; table.Next(row);) {
    told += std::to_string(row.Line) + ":";
    for (const std::string& cell : row.Cells) told += "[" + cell + "]";
    told += " ";
  }
  if (table.FaultLine() != 0) told += std::to_string(table.FaultLine()) + "! " + table.Fault();
  return told;
}

TEST(Csv, ReadsCellsAndKnowsTheirLines) {
  const struct {
    std::string Text, Expected;
  } rows[] = {
      {"", ""},
      {"a,b\n1,2\n", "1:[a][b] 2:[1][2] "},
      {"a,b\r1,2", "1:[a][b] 2:[1][2] "},
      {"\xEF\xBB\xBF"s + "a\n", "1:[a] "},
      {"a\n\n\r\n1\n", "1:[a] 4:[1] "},
      {" a ,\tb\t\n", "1:[a][b] "},
      {"a,,\n,\n", "1:[a][][] 2:[][] "},
      {"\"a,b\",\"say \"\"hi\"\"\"\n", "1:[a,b][say \"hi\"] "},
      {"\" a \" ,b\n", "1:[ a ][b] "},
      {"\"two\nlines\r\nthree\",x\nnext\n", "1:[two\nlines\r\nthree][x] 4:[next] "},
      {"\"\"\n", "1:[] "},
      {"a\n\"open\nstill\n", "1:[a] 2! has a quotation mark that is never closed"},
      {"a\nb\"c\n", "1:[a] 2! has a quotation mark inside a cell that does not begin with one"},
      {"\"a\"b\n", "1! has letters behind the quotation mark that closes a cell"},
      {"a\0b\n"s, "1:[a\0b] "s},
      {"a\n" + std::string(1000, ',') + "\nb\n", "1:[a] 2! has more than 1000 cells"},
      {"a\n\"\n" + std::string(32768, 'x') + "\"\n",
       "1:[a] 2! has a cell of more than 32768 letters"},
      {"a\n" + std::string(32769, 'x'), "1:[a] 2! has a cell of more than 32768 letters"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.Expected, Told(CsvReader(row.Text))) << row.Text;
}

TEST(Csv, ReadsWhatItWrites) {
  const std::vector<std::string> cells = {"plain",      "with, comma", "\"quoted\"", "",
                                          " blanks ",   "two\nlines",  "\r",         "\"",
                                          "tab\tend\t", "a \"b\" c"};
  const std::string text = CsvLine(cells) + CsvLine({"next"});
  CsvReader table(text);
  CsvRow row;
  ASSERT_TRUE(table.Next(row));
  EXPECT_EQ(cells, row.Cells);
  ASSERT_TRUE(table.Next(row));
  EXPECT_EQ(std::vector<std::string>{"next"}, row.Cells);
  EXPECT_EQ(4, row.Line) << "a line feed and a carriage return inside cells count";
}

TEST(Nearest, FindsWhatWasMeant) {
  const struct {
    std::string Name;
    std::vector<std::string_view> Candidates;
    std::string Expected;
  } rows[] = {
      {"CWAA", {"NEW", "CWA", "CWB"}, "; did you mean CWA?"},
      {"Ovr", {"Over", "Owner"}, "; did you mean Over?"},
      {"Bram Okafro", {"Bram Okada", "Bram Okafor"}, "; did you mean Bram Okafor?"},
      {"ab", {"ba", "cd"}, "; did you mean ba?"},
      {"same", {"same1", "same2"}, "; did you mean same1?"},
      {"xyz", {"CWA"}, "; the nearest is CWA"},
      {"CWA", {}, ""},
  };
  for (const auto& row : rows) EXPECT_EQ(row.Expected, DidYouMean(row.Name, row.Candidates));
}

}  // namespace

}  // namespace grapplemont
