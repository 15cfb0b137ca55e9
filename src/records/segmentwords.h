#pragma once

#include <array>
#include <span>

#include "records/fields/field.h"

// What the rows of the tables of Segments and angles hold. The tables themselves stand in
// words/segments.txt and words/angles.txt, and the build makes words/segments.h and words/angles.h
// of them.

namespace grapplemont {

/// Segment.Kind.
enum SegmentKind { kEmptySegment = 0, kMatch, kInterview, kAngle };

/// Segment.Loser of a match without one: the result has been chosen, and nobody takes the fall.
inline constexpr int kNoLoser = 1;

/// Of a promotion that an angle or a match type is for: any Risk is above the one, any Size below
/// the other.
inline constexpr int kAnyRisk = -1, kAnySize = 7;

/// How a style's workers stand: side by side, each side's members next to one another.
struct MatchStyleRow {
  int Code;
  std::string_view Says;
  int Sides;
  int PerSide;
};

/// A match type, in the order in which lists show them, and what the promotion must be for it.
struct MatchTypeRow {
  int Style;
  int Code;
  std::string_view Says;
  int RiskOver = kAnyRisk;   // Promotion.Risk must be above it
  int SizeUnder = kAnySize;  // Promotion.Size must be below it
  std::string_view Means = {};
};

/// A code with what a list says of it and what the wizard's summary says. Both may name people of
/// the Segment in braces.
struct Phrase {
  int Code;
  std::string_view Says;
  std::string_view Summary;
};
using Phrases = std::span<const Phrase>;

/// How an interview's people stand in Segment.Worker: first its speakers, then its targets.
struct InterviewStyleRow {
  int Code;
  std::string_view Says;
  int Speakers;
  int Targets;
};

/// Of the Segment's workers, those an angle may use.
inline constexpr int kAnglePlaces = 4;

/// Who may be cast in a role.
enum class Casting {
  Plain,         // everybody who may be booked
  Commissioner,  // the one in office
  Managers,
  DebutManagers,  // managers who have not been seen yet
  Turners,        // with a turn pending
  Women,
  Men,
  Debuts,         // not been seen yet
  Stables,        // goes to Segment.Text
  SinglesTitles,  // vacant; goes to Segment.TitleName
  TagTitles,
  // In interviews.
  Talkers,       // who can speak
  TalkManagers,  // managers among them
  Targets        // everybody who may be booked, without those who speak
};

/// One box of the cast.
struct Role {
  std::string_view Caption = {};  // empty: the box is not used
  Casting From = Casting::Plain;
  int Place = 0;  // of Segment.Worker, from 1; 0 for a stable or a Title
  bool Optional = false;
};

struct Angle {
  int Number;
  std::string_view Says;
  std::string_view Sheet;  // the word on the sheet, a blank behind it
  int RiskOver;            // Promotion.Risk must be above it
  int SizeUnder;           // Promotion.Size must be below it
  std::string_view Date;   // "25 December": on this day alone
  bool NeedsCommissioner;  // there must be one in office
  std::array<Role, kAnglePlaces> Roles;
  std::string_view Text;
  std::string_view Summary = {};  // what the wizard's summary calls it, where it differs from Says
};

}  // namespace grapplemont
