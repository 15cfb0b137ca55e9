#pragma once

#include <vector>

#include "booking/roster.h"

// Who is free for a card that is being booked: what each has on it already, and how worn he is.

namespace grapplemont {

/// Somebody who may be booked tonight. Parts are matches, interviews, angles and run-ins together.
struct Hand {
  const Worker* Who;
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

  /// An active wrestler within reach with a match left in him.
  bool MayWrestle(int uid) const;
  bool MayWrestle(const std::vector<int>& uids) const;
  /// On the roster in whatever role, with a part left.
  bool MayAppear(int uid) const;
  bool MayAppear(const std::vector<int>& uids) const;
  bool IsBooked(int uid) const;  // has a part
  bool Wrestles(int uid) const;  // has a match
  bool SameCornerMeets() const { return reserve_.SameCorner; }

  /// All who may wrestle and all who may appear, the most popular first.
  std::vector<const Worker*> Wrestlers() const;
  std::vector<const Worker*> People() const;
  /// Active wrestlers not seen yet who are within reach.
  std::vector<const Worker*> Newcomers() const;

 private:
  const Hand* Find(int uid) const;
  Hand* Find(int uid);
  bool MayWrestle(const Hand& hand) const;

  std::vector<Hand> hands_;
  Reserve reserve_ = kReserves[0];
};

/// A wrestler of the present roster, not a manager or non-wrestler.
bool IsActiveWrestler(const Worker& worker);

}  // namespace grapplemont
