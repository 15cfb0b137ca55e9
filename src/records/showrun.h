#pragma once

#include <array>

#include "records/field.h"
#include "records/vocabulary.h"

namespace grapplemont {

/// ShowRun.Stage.
enum ShowStage { kNoShow = 0, kShowRuns, kShowClosed };

/// A show that is under way: the one record of showrun.dat, there from "Start The Show!" until the
/// day moves on. It is what a program that was killed amid a show needs to go on with the Segment
/// that was to come.
struct ShowRun {
  Word Stage;
  Flag IsEvent;
  Word Current;        // the record of match.dat that was told last; 0 before the first
  Word PreviousCrowd;  // of the last match told; 0 before the first
  Word LastOverall;    // of the Segment told last; it counts once more at the close
  Flag FlatNight;
  std::array<Flag, 8> FeudTouched;
  RangedWord<-32768, 32767> ShowSum;  // ratings and charges so far; at the close the show's rating
  Natural ShowSegments;               // ratings in the sum
  Word Announcer;                     // Staff uid; 0 none
  Word Colour;                        // uid of a Staff, or of a Worker
  Flag ColourIsWorker;
  Word AnnouncerCharge;                   // what the primary announcer cost the sum
  Word ColourCharge;                      // what the colour commentator cost it
  Word ProductionCharge;                  // what poor production cost it
  Word ExtraBonus;                        // what an Event's extra added to it
  RangedLong<0, kMostDollars> ExtraCost;  // dollars that the extra was charged
};

static_assert(sizeof(ShowRun) == 50 && alignof(ShowRun) == 1);
static_assert(offsetof(ShowRun, Stage) == 0 && offsetof(ShowRun, IsEvent) == 2);
static_assert(offsetof(ShowRun, Current) == 4 && offsetof(ShowRun, PreviousCrowd) == 6);
static_assert(offsetof(ShowRun, LastOverall) == 8 && offsetof(ShowRun, FlatNight) == 10);
static_assert(offsetof(ShowRun, FeudTouched) == 12 && offsetof(ShowRun, ShowSum) == 28);
static_assert(offsetof(ShowRun, ShowSegments) == 30 && offsetof(ShowRun, Announcer) == 32);
static_assert(offsetof(ShowRun, Colour) == 34 && offsetof(ShowRun, ColourIsWorker) == 36);
static_assert(offsetof(ShowRun, AnnouncerCharge) == 38 && offsetof(ShowRun, ColourCharge) == 40);
static_assert(offsetof(ShowRun, ProductionCharge) == 42 && offsetof(ShowRun, ExtraBonus) == 44);
static_assert(offsetof(ShowRun, ExtraCost) == 46);

template <>
const RecordLayout& LayoutOf<ShowRun>();

}  // namespace grapplemont
