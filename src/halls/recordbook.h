#pragma once

#include <span>
#include <string>
#include <vector>

#include "halls/lives.h"

// The records of the world and of each promotion: a table of definitions, each with the function
// that fills it.

namespace grapplemont {

/// A place in a table.
struct RecordLine {
  std::string Who;
  double Figure = 0;  // what the place goes by
  std::string Shown;  // the figure as it reads
  std::string More;   // the Title, the show, the promotion
  Day On = kNoTitleDate;
  int Uid = 0;  // of a worker who is still there
};

/// What the tables are made from, read once for all of them.
struct RecordBook {
  const Ledger& Past;
  HouseKey House;           // uid 0 is the world
  std::vector<Life> Lives;  // what they did there
  std::vector<Life> Whole;  // of a promotion: what the same people did anywhere
  std::vector<const TitleReign*> Reigns;

  RecordBook(const Ledger& ledger, HouseKey house);
  const World& Of() const { return Past.Of(); }
};

struct RecordTable {
  const char* Group;   // "Titles"
  const char* Name;    // "Longest reigns"
  const char* Figure;  // heading of the figure
  const char* More;    // heading of what more there is
  const char* Tip;     // what counts
  std::vector<RecordLine> (*Lines)(const RecordBook&);
};
std::span<const RecordTable> RecordTables();

/// So many places a table has at most.
inline constexpr std::size_t kPlaces = 50;
/// So many matches make a share or a mean.
inline constexpr int kFewestMatches = 30;

/// A promotion that records know, which may have closed.
struct HouseOfRecords {
  HouseKey Key;
  bool Stands = false;
};
/// Those that stand first, by their initials; then those of the past.
std::vector<HouseOfRecords> HousesOf(const Ledger& ledger);

}  // namespace grapplemont
