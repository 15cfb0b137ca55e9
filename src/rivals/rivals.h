#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "records/arithmetic.h"
#include "records/modVar.h"
#include "records/world.h"

// What all that rivals do has in common.

namespace grapplemont {

/// A promotion that has not ceased to exist today.
inline bool IsAlive(const Promotion& promotion) {
  return promotion.Name != kToBeDeleted;
}
inline bool IsPlayers(const World& world, const Promotion& promotion) {
  return promotion.Uid == world.PlayerUid();
}
/// A living promotion that is not the player's.
inline bool IsRival(const World& world, const Promotion& promotion) {
  return !IsPlayers(world, promotion) && IsAlive(promotion);
}

/// Someone whom a rival's roster counts: on the card, a manager or a non-wrestler, not in
/// development or at the camp.
bool IsOnMainRoster(const Worker& worker);

/// What is known of each promotion, by its uid.
template <class T>
class ByPromotion {
 public:
  /// Of one that nothing is known of: what T begins as.
  const T& Of(int uid) const {
    static const T kNothing{};
    if (IsNear(uid)) return near_[static_cast<std::size_t>(uid)];
    const auto found = far_.find(uid);
    return found == far_.end() ? kNothing : found->second;
  }
  T& operator[](int uid) { return IsNear(uid) ? near_[static_cast<std::size_t>(uid)] : far_[uid]; }

 private:
  static constexpr int kNear = 256;  // uids that a world usually has
  static bool IsNear(int uid) { return uid >= 0 && uid < kNear; }

  std::array<T, kNear> near_{};
  std::map<int, T> far_;
};

/// Who works for each promotion, and how many are on its main roster: looked up once, kept up to
/// date by whoever moves them.
class Rosters {
 public:
  explicit Rosters(const World& world);
  /// How many are on the main roster.
  int Of(int promotionUid) const { return onMainRoster_.Of(promotionUid); }
  /// The record numbers of everybody whom it employs, in the order of the file. Where a move is
  /// being made it must be done, in the record too.
  const std::vector<int>& NumbersOf(int promotionUid) const;
  void Move(const Worker& worker, int fromUid, int toUid);

 private:
  using Numbers = ByPromotion<std::vector<int>>;

  const Records<Worker>& workers_;
  ByPromotion<int> onMainRoster_;
  mutable std::unique_ptr<Numbers> numbers_;  // once somebody asks: on most days nobody does
};

/// The workers leave their employers, and all that tied them there ends: Titles, feuds, corner,
/// office, the part of a divided roster. Whom they managed stays behind alone.
void PartWays(World& world, const std::vector<Worker*>& workers);

// What rival promotions do by themselves: steps of the day.

// Daily.
/// A promotion without an owner finds one in 1 of 14 days, if one on the market suits it.
void OwnerlessPromotions(World& world);
void RivalWorkerHiring(World& world);
void RivalStaffHiring(World& world);
/// Each empty sponsor's place of a rival goes to one of the sponsors who are free, willing and fit
/// its class, else to who pays most like them.
void RivalSponsorSigning(World& world);
/// Whether the sponsor is willing and pays as is usual for the rival's class.
bool FitsRival(const Sponsor& sponsor, const Promotion& rival);
// Mondays.
/// Everybody who works for a rival stands on the card where their popularity puts them.
void RivalPositions(World& world);
/// Teams, stables, managers and grudges come together and apart, Titles are made and rest, moves
/// and names change.
void RivalStories(World& world);
/// Rivals advertise by their standing, those in debt not at all, and the rich put on campaigns.
void RivalAdvertising(World& world);
/// Rivals that save let somebody go, those that prosper go after somebody, and those that have
/// become big enough found Titles.
void RosterSizeReview(World& world);
// The first of a month.
/// Whoever waits for work asks for less or gives up, and new talent comes (newtalent.h).
void DiscoverFreeAgents(World& world);
/// Rivals go after who is free by now and decide about the contracts that have one month left.
void RivalContractRenewals(World& world);
/// Those who work for rivals, or for nobody, learn, peak, fade, get hurt and come back
/// (careers.h).
void WorkersCareers(World& world);
/// Warns promotions that are deep in debt and closes those that are below the line; the player's
/// own ends the career.
void BankruptcyCheck(World& world);
/// Opens a new promotion now and then, and may bring the player a challenger.
void NewPromotionCheck(World& world);

}  // namespace grapplemont
