#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "booking/wizard/roster.h"

// Who is free for a card that is being booked: what each has on it already, and how worn they are.

namespace grapplemont {

/// Somebody who may be booked tonight. Parts are matches, interviews, angles and run-ins together.
struct Hand {
  const Worker* Who = nullptr;
  int Matches = 0;
  int Parts = 0;
};

/// How deep the roster is searched for wrestlers.
struct Reserve {
  int Condition;    // the least that will do
  int Matches;      // the most in one night
  bool Newcomers;   // who has not been seen yet may stand in as well
  bool SameCorner;  // team mates may meet
};
/// From the fit alone to whoever can still stand.
inline constexpr Reserve kReserves[] = {
    {60, 1, false, false}, {35, 1, true, false}, {35, 2, true, true}, {0, 2, true, true}};
inline constexpr int kDeepest = 3;
/// For a match that should not wait for a better day: a blow-off, a Title at an Event.
inline constexpr Reserve kForTheOccasion = {40, 1, true, false};

/// Nobody appears more often in one show.
inline constexpr int kMostParts = 2;

class AutoPool {
 public:
  AutoPool(const World& world, const BookingView& view);

  /// Everybody in the Segment has a part more.
  void Count(const Segment& segment);
  /// Somebody has been laid out and should not wrestle tonight.
  void Rest(int uid);
  void Reach(const Reserve& reserve) { reserve_ = reserve; }

  /// An active wrestler within reach with a match left.
  bool MayWrestle(int uid) const { return MayWrestle(Find(uid)); }
  bool MayWrestle(const std::vector<int>& uids) const;
  /// On the roster in whatever role, with a part left.
  bool MayAppear(int uid) const;
  bool MayAppear(const std::vector<int>& uids) const;
  bool IsBooked(int uid) const { return Find(uid).Parts > 0; }
  bool Wrestles(int uid) const { return Find(uid).Matches > 0; }
  bool SameCornerMeets() const { return reserve_.SameCorner; }

  /// All who may wrestle and all who may appear, the most popular first.
  std::vector<const Worker*> Wrestlers() const;
  std::vector<const Worker*> People() const;
  /// Active wrestlers not seen yet who are within reach.
  std::vector<const Worker*> Newcomers() const;

 private:
  /// Of nobody where the worker is not one of them.
  const Hand& Find(int uid) const;
  bool MayWrestle(const Hand& hand) const;

  std::vector<Hand> hands_;
  Reserve reserve_ = kReserves[0];
};

// A card while the auto booker works on it. Each of its steps adds matches and talk; only then does
// everything get its row.

/// A Segment that waits for its row. Matches rise with their weight to the top of the card; of
/// interviews and angles the lightest comes first.
struct Planned {
  grapplemont::Segment Segment;
  int Weight = 0;
  std::string Because = {};  // why it is on the card, a sentence
};

struct AutoPlan {
  AutoPlan(grapplemont::World& world, const BookingView& view, int openRows);

  grapplemont::World& World;
  BookingView View;
  AutoPool Pool;
  bool MayUseAngles;  // the writers are enough

  std::vector<Segment> Rows;         // of the sheet, with what was booked before
  std::vector<std::string> Reasons;  // of each row; empty for what was booked before
  std::string Because;               // of the step that is at work
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

/// Whether the sheet or what waits for its row has a Segment that `takes` accepts.
template <class Takes>
bool IsOnCard(const AutoPlan& plan, Takes takes) {
  const auto is = [&](const Planned& planned) { return takes(planned.Segment); };
  return std::ranges::any_of(plan.Rows, takes) || std::ranges::any_of(plan.Matches, is) ||
         std::ranges::any_of(plan.Talks, is);
}

/// The best by their scores, those alike in their order; `most` of them at most.
template <class T>
std::vector<T> BestOf(std::vector<std::pair<int, T>> ranked, std::size_t most = ~std::size_t{0}) {
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](auto& a, auto& b) { return a.first > b.first; });
  std::vector<T> best;
  for (std::size_t i = 0; i < std::min(most, ranked.size()); ++i) best.push_back(ranked[i].second);
  return best;
}

/// A Segment of these people in their order, otherwise empty.
Segment NewSegment(int kind, int style, const std::vector<int>& people);

/// A chance in a hundred. Draws once.
bool Chance(World& world, int percent);

/// Whether the Segment could come out of the wizard, and nobody objects or takes it amiss.
bool Stands(const AutoPlan& plan, const Segment& segment);
/// Plans the match and counts its people, Title and feuds. Requires that it stands.
void PlanMatch(AutoPlan& plan, const Segment& match);
/// The same for an interview or angle; false, with nothing planned, when it does not stand.
bool PlanTalk(AutoPlan& plan, const Segment& talk, int weight);

/// The player's Titles that may be fought for, the most renowned first.
std::vector<const Title*> ActiveTitles(const World& world);
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

/// Rows that count for what the show needs, of one kind or of all; what waits for its row with
/// them.
int RowsOf(const AutoPlan& plan, int kind = kEmptySegment);
int Booked(const AutoPlan& plan, int kind = kEmptySegment);
/// Gives every planned Segment its row.
void PlaceOnRows(AutoPlan& plan);
/// What the card lacks before it could start, in plain words.
std::vector<std::string> WhatIsMissing(const AutoPlan& plan);

}  // namespace grapplemont
