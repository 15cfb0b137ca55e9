#include "records/tables/tablereader.h"

#include <gtest/gtest.h>

#include "records/fields/wording.h"

namespace grapplemont {
namespace {

using namespace std::string_literals;

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
      {"a,b\r\n1,2\r\n", "1:[a][b] 2:[1][2] "},
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
      {"employer", {"Employee", "Employer"}, "; did you mean Employer?"},
      {"Bram Okafro", {"Bram Okada", "Bram Okafor"}, "; did you mean Bram Okafor?"},
      {"ab", {"ba", "cd"}, "; did you mean ba?"},
      {"same", {"same1", "same2"}, "; did you mean same1?"},
      {"xyz", {"CWA"}, "; the nearest is CWA"},
      {"", {"CWA"}, "; the nearest is CWA"},
      {"CWA", {}, ""},
  };
  for (const auto& row : rows) EXPECT_EQ(row.Expected, DidYouMean(row.Name, row.Candidates));
}

}  // namespace
}  // namespace grapplemont
