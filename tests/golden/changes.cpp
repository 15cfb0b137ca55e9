#include "golden/changes.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <tuple>

#include "records/tables/tablereader.h"

namespace grapplemont::test {

namespace {

constexpr std::size_t kMostListed = 100;

/// Which value it is, in the order of the files: file, record, field.
using Place = std::tuple<std::string, int, std::string>;
struct Value {
  std::string Name;  // of the record
  std::string Is;
};
using Values = std::map<Place, Value>;

Values ValuesIn(const std::string& text) {
  Values values;
  CsvReader reader(text);
  for (CsvRow row; reader.Next(row);) {
    const int record = std::stoi(row.Cells[1]);
    for (std::size_t i = 3; i < row.Cells.size(); ++i) {
      const auto equals = std::min(row.Cells[i].find('='), row.Cells[i].size());
      values[{row.Cells[0], record, row.Cells[i].substr(0, equals)}] = {
          row.Cells[2], row.Cells[i].substr(std::min(equals + 1, row.Cells[i].size()))};
    }
  }
  if (reader.FaultLine() != 0)
    values[{"the committed table", reader.FaultLine(), "no table"}] = {"", reader.Fault()};
  return values;
}

/// What a value is where one side does not tell it: as it was when the month began.
constexpr const char* kAtFirst = "as it began";

}  // namespace

std::string ChangesText(const std::vector<Difference>& changes) {
  std::string text;
  std::vector<std::string> cells;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const Difference& change = changes[i];
    if (cells.empty())
      cells = {std::string(change.File), std::to_string(change.Record), change.Name};
    cells.push_back(change.Field + "=" + change.Is);
    const bool goesOn = i + 1 < changes.size() && changes[i + 1].File == change.File &&
                        changes[i + 1].Record == change.Record;
    if (goesOn) continue;
    text += CsvLine(cells);
    cells.clear();
  }
  return text;
}

std::vector<std::string> Moved(const std::vector<Difference>& changes,
                               const std::string& committed) {
  const Values was = ValuesIn(committed), is = ValuesIn(ChangesText(changes));
  std::map<Place, Difference> moved;
  const auto at = [&](const Place& place, const Value& value) -> Difference& {
    Difference& line = moved[place];
    line = {std::get<0>(place), std::get<1>(place), value.Name,
            std::get<2>(place), kAtFirst,           kAtFirst};
    return line;
  };
  for (const auto& [place, value] : is) {
    const auto before = was.find(place);
    if (before != was.end() && before->second.Is == value.Is) continue;
    Difference& line = at(place, value);
    line.Is = value.Is;
    if (before != was.end()) line.Was = before->second.Is;
  }
  for (const auto& [place, value] : was)
    if (is.count(place) == 0) at(place, value).Was = value.Is;
  std::vector<std::string> lines;
  for (const auto& [place, line] : moved) lines.push_back(line.Line());
  return lines;
}

std::vector<std::string> MovedLines(const std::string& text, const std::string& committed) {
  std::istringstream is(text), was(committed);
  std::vector<std::string> lines;
  for (int number = 1; is || was; ++number) {
    std::string now, then;
    const bool more = bool(std::getline(is, now)), moreThen = bool(std::getline(was, then));
    if (!more && !moreThen) break;
    if (now != then || more != moreThen)
      lines.push_back("line " + std::to_string(number) + ": was \"" + then + "\", is \"" + now +
                      "\"");
  }
  return lines;
}

std::string Listing(const std::vector<std::string>& lines) {
  std::string text;
  for (std::size_t i = 0; i < std::min(lines.size(), kMostListed); ++i) text += lines[i] + "\n";
  if (lines.size() > kMostListed)
    text += "and " + std::to_string(lines.size() - kMostListed) + " more\n";
  return text;
}

}  // namespace grapplemont::test
