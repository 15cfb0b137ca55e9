#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>

#include "records/world.h"
#include "tools/worldwatch.h"

namespace grapplemont::tools {

/// What a world is month by month.
class MonthSummaries {
 public:
  /// How the world stands at the beginning of a month, as one JSON object; those of all months, in
  /// their order:
  /// {"date":"2026-04-01","economy":58,
  ///  "promotions":{"Global":2,"National":3,"Cult":4,"Regional":4,"Small":3,"Backyard":2,"all":18},
  ///  "workers":{"employed":412,"free":338,"meanOver":51.25},
  ///  "shows":14,"titles":{"all":64,"held":61,"won":9,"tag":12,"tagVacant":1},
  ///  "player":{"promotion":"CWA","size":"Cult","image":52,"money":1250000,"reputation":80},
  ///  "mails":17,"people":{...},"money":{...},"since":{...}}
  /// "meanOver" is of the employed, to two places; null when nobody is. "shows" are those on
  /// television; "won" counts the reigns that began since the first of the month before,
  /// "tagVacant" the Titles of teams that nobody holds. "player" is null when their promotion is
  /// gone. The last three are of worldwatch.h, "since" from the first of these objects on.
  nlohmann::ordered_json Next(const World& world);

 private:
  WorldWatch watch_;
};

/// A file of summaries, one a line, that grows month by month.
class StatsFile {
 public:
  /// Begins a new file.
  StatsFile(Disk& disk, const std::string& path);
  /// The next of MonthSummaries.
  void Add(const World& world);
  /// Lines that were made elsewhere.
  void AddLines(const std::string& lines);

 private:
  Disk& disk_;
  OpenedFile file_;
  std::int64_t end_ = 0;
  MonthSummaries months_;
};

}  // namespace grapplemont::tools
