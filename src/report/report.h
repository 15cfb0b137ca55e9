#pragma once

#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "records/fields/outside.h"
#include "records/segments.h"
#include "records/world.h"
#include "report/family.h"
#include "report/line.h"
#include "report/saidlines.h"

// A Segment told in prose, in the voice that the player has chosen.

namespace grapplemont {

/// "The Lamplighter", "Rafe Tolland", "QVD"; the first one's for an unknown number.
std::string_view VoiceName(int voice);

/// Somebody whom the booking makes turn.
struct Turning {
  int Uid = 0;
  std::string Becomes = {};  // the disposition behind it; empty where nobody was prepared for it
  bool FellFlat = false;     // the crowd did not like it
  bool CameTooSoon = false;  // it remembered the last one
};

constexpr int kUnrated = -1;

/// What the report knows beside the Segment itself, since it is written when all has happened.
struct Scene {
  int Champion = 0;    // who held the Title at stake when the bell rang; 0 for nobody
  int CoChampion = 0;  // the other half of a tag champion
  std::vector<Turning> Turns = {};
  std::vector<Feud> Feuds = {};  // as they stood when the bell rang
  int Row = 0;                   // of the sheet; 0 outside a show
  bool IsLast = false, IsEvent = false;
  int Overall = kUnrated;         // what the match is rated, 0 to 100
  int Crowd = kUnrated;           // the same of the crowd
  std::optional<Feud> Ends = {};  // the feud that the match was booked to end
  /// A match on another promotion's card, read at any time behind its day; 0 on a show of ours.
  int Promotion = 0;
  Day On = {};
};
/// A sentence of a report: where it ends in the text, and the line that it is of.
struct SaidSentence {
  std::size_t Until = 0;
  Family Of = Family::Opening;
  int Band = 0;
};

/// The feuds of now, for a Scene.
std::vector<Feud> FeudsAtTheBell(const World& world);

/// Which lines a show has used, so that none comes again before the others of its band have, nor
/// twice in a Segment while another would do.
class LineMemory {
 public:
  LineMemory() = default;
  /// For what must read the same whenever it is told: no other show counts, and no later one knows.
  static LineMemory Apart() { return LineMemory(SaidLines(true)); }

  /// What is picked from now on is said in another Segment.
  void BeginSegment() { ++segment_; }
  /// A line of the band, from 0: the one that a draw of `lines` names, or, if it is not its turn,
  /// one that a second draw picks among those whose turn it is: the ones that the show has used
  /// least, none that this Segment has said, and where it has said all, the one longest ago. `band`
  /// tells the bands apart. Requires at least one line.
  /// The same among those that `fits` holds true, one for each line; among all where it holds none.
  /// `days` since shows said each of them; only the longest unused are drawn among. Empty where
  /// nothing is remembered.
  int Pick(Draws& draws, const void* band, std::vector<bool> fits, std::span<const int> days = {});
  int Pick(Draws& draws, const void* band, int lines, std::span<const int> days = {}) {
    return Pick(draws, band, std::vector<bool>(static_cast<std::size_t>(lines), true), days);
  }
  /// The same by a wish: of the half that has been unused for longest, one of the two shortest, or
  /// longest, by `lengths`, one for each line. Requires `days`.
  int PickAsWished(Draws& draws, const void* band, std::vector<bool> fits,
                   std::span<const int> days, std::span<const int> lengths, LineWish wish);
  /// Whether this Segment has said all of those that `fits` holds true.
  bool SaidAll(const void* band, const std::vector<bool>& fits) const;
  /// Whether the show has said it. What a text says cannot tell: two bands may use the same words.
  bool Used(const void* band, int line) const;
  /// What the shows before have said.
  SaidLines& Said() { return said_; }

 private:
  struct Use {
    int Times = 0;
    int Segment = 0, At = 0;  // of the last time, At counting all that was said
  };
  explicit LineMemory(SaidLines said) : said_(std::move(said)) {}
  /// Those that fit and whose turn it is.
  std::vector<std::size_t> Open(const void* band, std::vector<bool>& fits);
  int Take(const void* band, std::size_t line);

  SaidLines said_;
  std::unordered_map<const void*, std::vector<Use>> uses_;
  std::unordered_map<const void*, std::size_t> last_;  // of each band
  int segment_ = 0, count_ = 0;
};

/// The prose of a match, an interview or an angle, in paragraphs. Draws from World::Prose alone, so
/// that a result never depends on it. `sentences` takes what it consists of, where it is asked for.
std::string WriteReport(World& world, const Segment& segment, const Scene& scene,
                        LineMemory& memory, std::vector<SaidSentence>* sentences = nullptr);
/// The second reporter's rating of a match; empty for the others and for what is not a match. Draws
/// from World::Prose.
std::string Verdict(World& world, const Segment& segment, int overall,
                    LineMemory* memory = nullptr);

/// The lines above the prose.
struct SegmentDetails {
  std::string Heading;  // "Match Details", "Interview Details", "Angle Details"
  std::string Style;    // "1 vs 1"
  std::string Type;     // "Ladder"; "Ladder Title Match! "
  std::string Names;    // "Bram Okafor vs Ludo Marsh"; "... is backstage. "
  std::string Belt;     // "(For The Harbor Crown Title)"; empty without one
  std::string Winner;   // "Winner : Bram Okafor", "Winner : Draw"; matches only
};
SegmentDetails DetailsOf(const World& world, const Segment& segment);

}  // namespace grapplemont
