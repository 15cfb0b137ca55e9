#pragma once

#include <set>
#include <string>
#include <vector>

#include "booking/autopool.h"

// A card while the auto booker works on it. Each step of his adds matches and talk; only then does
// everything get its row.

namespace grapplemont {

/// A Segment that waits for its row. Matches rise with their weight to the top of the card; of
/// interviews and angles the lightest comes first.
struct Planned {
  grapplemont::Segment Segment;
  int Weight = 0;
};

struct AutoPlan {
  AutoPlan(grapplemont::World& world, const BookingView& view, int openRows);

  grapplemont::World& World;
  BookingView View;
  AutoPool Pool;
  bool MayUseAngles;  // the writers are enough

  std::vector<Segment> Rows;  // of the sheet, with what was booked before
  std::vector<Planned> Matches, Talks;

  int MatchesWanted, TalksWanted;   // to be added, when the roster gives so much
  int LeastMatches, LeastSegments;  // without which the show cannot start
  std::set<std::string> TitlesUsed;
  std::set<int> FeudsUsed;   // slots
  std::set<int> AnglesUsed;  // numbers
  int Gimmicks = 0;
  int TitleChanges = 0;

  bool WantsMatch() const { return static_cast<int>(Matches.size()) < MatchesWanted; }
  bool WantsTalk() const { return static_cast<int>(Talks.size()) < TalksWanted; }
  /// Empty rows that nothing is planned for yet.
  int RowsLeft() const;
};

/// The chance of so many in a hundred. Draws once.
bool Chance(World& world, int percent);

/// Whether the Segment could come out of the wizard, and nobody objects or takes it amiss.
bool Stands(const AutoPlan& plan, const Segment& segment);
/// Plans the match and counts its people, Title and feuds. Requires that it stands.
void PlanMatch(AutoPlan& plan, const Segment& match);
/// The same for an interview or angle; false, with nothing planned, when it does not stand.
bool PlanTalk(AutoPlan& plan, const Segment& talk, int weight);

/// What the crowd will make of the match, before its feud and Title.
int ExpectedCrowd(const World& world, const Segment& match);

// The steps, in the order in which the auto booker takes them.
void EndFeuds(AutoPlan& plan);
void DefendTitles(AutoPlan& plan);
void AdvanceFeuds(AutoPlan& plan);
void IntroduceNewcomers(AutoPlan& plan);
void TurnWhoWaits(AutoPlan& plan);
void BookTeams(AutoPlan& plan);
void BookCrowds(AutoPlan& plan);  // more than two sides, and trios
void FillMatches(AutoPlan& plan);
void FillTalks(AutoPlan& plan);

/// Gives every planned Segment its row.
void PlaceOnRows(AutoPlan& plan);
/// What the card lacks before it could start, in plain words.
std::vector<std::string> WhatIsMissing(const AutoPlan& plan);

}  // namespace grapplemont
