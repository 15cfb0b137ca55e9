#include "booking/autopool.h"

#include <algorithm>

namespace grapplemont {

namespace {

bool HasARole(const Worker& worker) {
  return IsActiveWrestler(worker) || worker.Position == kManager || worker.Position == kNonWrestler;
}

template <class Takes>
std::vector<const Worker*> HandsWho(const std::vector<Hand>& hands, Takes takes) {
  std::vector<const Worker*> found;
  for (const Hand& hand : hands)
    if (takes(hand)) found.push_back(hand.Who);
  return found;
}

}  // namespace

bool IsActiveWrestler(const Worker& worker) {
  return worker.Position < kDevelopmentDeal;
}

AutoPool::AutoPool(const World& world, const BookingView& view) {
  for (const Worker& worker : world.Workers())
    if (IsAvailable(world, worker, view) && HasARole(worker)) hands_.push_back({&worker});
  std::stable_sort(hands_.begin(), hands_.end(),
                   [](const Hand& a, const Hand& b) { return a.Who->Over > b.Who->Over; });
}

const Hand* AutoPool::Find(int uid) const {
  const auto found = std::find_if(hands_.begin(), hands_.end(),
                                  [&](const Hand& hand) { return hand.Who->Uid == uid; });
  return found == hands_.end() ? nullptr : &*found;
}

Hand* AutoPool::Find(int uid) {
  return const_cast<Hand*>(std::as_const(*this).Find(uid));
}

void AutoPool::Count(const Segment& segment) {
  std::vector<int> people = PeopleOf(segment);
  for (const int uid : {segment.Other1, segment.Other2, segment.Other3, segment.Other4})
    if (uid != 0) people.push_back(uid);
  for (const int uid : people)
    if (Hand* hand = Find(uid)) ++hand->Parts;
  for (const int uid : people)
    if (Hand* hand = Find(uid); hand && segment.Kind == kMatch) ++hand->Matches;
}

void AutoPool::Rest(int uid) {
  if (Hand* hand = Find(uid)) ++hand->Matches;
}

bool AutoPool::MayWrestle(const Hand& hand) const {
  return IsActiveWrestler(*hand.Who) && hand.Parts < kMostParts &&
         hand.Matches < reserve_.Matches && hand.Who->Condition >= reserve_.Condition;
}

bool AutoPool::MayWrestle(int uid) const {
  const Hand* hand = Find(uid);
  return hand && MayWrestle(*hand);
}

bool AutoPool::MayWrestle(const std::vector<int>& uids) const {
  return std::all_of(uids.begin(), uids.end(), [&](int uid) { return MayWrestle(uid); });
}

bool AutoPool::MayAppear(int uid) const {
  const Hand* hand = Find(uid);
  return hand && hand->Parts < kMostParts;
}

bool AutoPool::MayAppear(const std::vector<int>& uids) const {
  return std::all_of(uids.begin(), uids.end(), [&](int uid) { return MayAppear(uid); });
}

bool AutoPool::IsBooked(int uid) const {
  const Hand* hand = Find(uid);
  return hand && hand->Parts > 0;
}

bool AutoPool::Wrestles(int uid) const {
  const Hand* hand = Find(uid);
  return hand && hand->Matches > 0;
}

std::vector<const Worker*> AutoPool::Wrestlers() const {
  return HandsWho(hands_, [&](const Hand& hand) {
    return MayWrestle(hand) && (hand.Who->Debuted || reserve_.Newcomers);
  });
}

std::vector<const Worker*> AutoPool::People() const {
  return HandsWho(hands_, [](const Hand& hand) { return hand.Parts < kMostParts; });
}

std::vector<const Worker*> AutoPool::Newcomers() const {
  return HandsWho(hands_, [&](const Hand& hand) { return MayWrestle(hand) && !hand.Who->Debuted; });
}

}  // namespace grapplemont
