#include "fuzz/livingworld.h"
#include "fuzz/target.h"
#include "records/checks/checkworld.h"
#include "records/tables/worldreport.h"
#include "records/tables/worldtables.h"

// Tables of a world: lines behind "@workers.csv" stand for that table, the others are a good
// world's.

namespace grapplemont::fuzz {
namespace {

const Tables& SampleTables() {
  static const Tables tables = ExportWorld(SampleGame());
  return tables;
}

Tables TablesIn(std::string_view text) {
  Tables tables = SampleTables();
  while (text.starts_with('@')) {
    const std::size_t next = std::min(text.find("\n@"), text.size());
    const std::string_view section = text.substr(1, next - 1);
    const std::size_t line = std::min(section.find('\n'), section.size());
    const std::string_view rest = section.substr(std::min(line + 1, section.size()));
    tables[std::string(section.substr(0, line))] = std::string(rest) + "\n";
    text.remove_prefix(std::min(next + 1, text.size()));
  }
  return tables;
}

void RequireToComeBack(const World& world) {
  CheckWorld(world, [](Fault&& fault) { throw Finding("built with a fault: " + fault.Line()); });
  const Building again = BuildWorld(ExportWorld(world));
  for (const Mistake& mistake : again.Mistakes)
    throw Finding("a table of its own is wrong: " + mistake.Text());
  Require(again.Made.has_value(), "its own tables build no world");
  const std::string difference = FirstDifference(*again.Made, world);
  Require(difference.empty(), "it comes back different: " + difference);
}

void Read(ByteSpan bytes) {
  const Building building = BuildWorld(TablesIn(TextOf(bytes)));
  Require(building.Made.has_value() == (building.MistakeCount == 0),
          "a world with mistakes, or none without");
  for (const Mistake& mistake : building.Mistakes)
    Require(!mistake.Table.empty() && !mistake.What.empty(), "a mistake without a place");
  for (const std::string& line : MistakeLines(building)) Require(!line.empty(), "an empty line");
  if (building.Made) RequireToComeBack(*building.Made);
}

const Registered kTables({.Name = "tables", .Run = Read, .Cases = 60});

}  // namespace
}  // namespace grapplemont::fuzz
