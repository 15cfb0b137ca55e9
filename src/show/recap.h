#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"
#include "show/ratings.h"
#include "show/runsegment.h"

// A show looked back upon.

namespace grapplemont {

/// The ratings of what has been shown, by the rows of the sheet; those still to come have none.
struct RatingsSoFar {
  std::vector<std::string> Rows;
  std::vector<double> Values;
};
RatingsSoFar RatingsOfShow(const World& world);

/// The one line of a sheet, told as a result.
std::string SegmentResult(const World& world, const Segment& segment);

struct RecapLine {
  int Number = 0;    // the row of the sheet
  std::string What;  // the one line of a sheet, told as a result
  int Rating = 0;
};
struct ShowRecap {
  int Rating = 0;
  std::vector<RecapLine> Lines;
  std::string Best, Worst;     // with their ratings; empty for a show without Segments
  std::vector<ScoreStep> Sum;  // what came into the sum and what was charged, and the mean at last
};
/// Of the show that has just closed. Requires one.
ShowRecap RecapOf(const World& world);

// The report column: the words in which the last shows were told, as they were told.

/// So many shows can be read again.
inline constexpr int kKeptShows = 12;

/// Keeps the words of record `number` of match.dat, which has just been told on today's show as the
/// first or a later one. The first takes the places of the oldest show's words.
void KeepReport(World& world, int number, const ToldSegment& told, bool first);

/// A show whose report can be read.
struct KeptShow {
  Day On{};
  int Promotion = 0;
  std::string Name;
  int Voice = 0;
};
/// The latest first.
std::vector<KeptShow> ShowsInTheColumn(const World& world);

/// A text of a report: what it is, and which row of the sheet it belongs to.
struct ReportText {
  int Row = 0;
  int Kind = 0;  // a ReportKind
  std::string Words;
};
/// In the order in which it was told; empty for a show that has none.
std::vector<ReportText> ReportOf(const World& world, Day on, int promotionUid);

/// A text cut to pieces of at most `width` letters; what parted a piece from the one before it is
/// told by its join.
struct ReportPiece {
  int Join = 0;  // a ReportJoin
  std::string Words;
};
std::vector<ReportPiece> CutToPieces(std::string_view text, std::size_t width);

}  // namespace grapplemont
