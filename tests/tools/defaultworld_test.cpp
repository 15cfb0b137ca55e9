#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "booking/wizard/roster.h"
#include "business/networks.h"
#include "business/sponsors.h"
#include "calendar/events.h"
#include "records/checks/checkworld.h"
#include "records/fields/charset.h"
#include "records/modWresCheck.h"
#include "roster/postings.h"
#include "show/attendance.h"
#include "support/defaultworld.h"
#include "support/smallworld.h"
#include "tools/balance.h"
#include "words/promotions.h"

// Holds the tables of world/ to what makes a world worth playing: nothing here is a rule of the
// game, all of it is care for the people and companies in it.

namespace grapplemont::test {
namespace {

bool Wrestles(const Worker& worker) {
  return worker.Position >= kMainEvent && worker.Position <= kJobber;
}

template <class Records, class Wanted>
int CountIf(const Records& records, Wanted wanted) {
  return static_cast<int>(std::count_if(records.begin(), records.end(), wanted));
}

/// The workers of a promotion that `wanted` takes.
template <class Wanted>
std::vector<const Worker*> WorkersOf(const Promotion& promotion, Wanted wanted) {
  std::vector<const Worker*> found;
  for (const Worker& worker : DefaultWorld().Workers())
    if (worker.Employer == promotion.Uid && wanted(worker)) found.push_back(&worker);
  return found;
}

int StaffIn(const Promotion& promotion, int post) {
  return CountIf(DefaultWorld().AllStaff(), [&](const Staff& staff) {
    return staff.Employer == promotion.Uid && staff.Position == post;
  });
}

int ShowsOf(const Promotion& promotion) {
  return CountIf(DefaultWorld().Shows(),
                 [&](const Show& show) { return show.Owner == promotion.Uid; });
}

TEST(DefaultWorld, HasNoFaults) {
  for (const Fault& fault : CheckWorld(DefaultWorld())) ADD_FAILURE() << ToUtf8(fault.Line());
}

TEST(DefaultWorld, LeavesTheNamesOfLaterPromotionsFree) {
  for (const Promotion& promotion : DefaultWorld().Promotions())
    for (const NewPromotionName& later : kNewPromotionNames) {
      EXPECT_NE(promotion.Initials.View(), later.Initials);
      EXPECT_NE(promotion.Name.View(), later.Name);
    }
}

TEST(DefaultWorld, PutsEveryWrestlerWhereHisPopularityBelongs) {
  for (const Promotion& promotion : DefaultWorld().Promotions())
    for (const Worker* worker : WorkersOf(promotion, Wrestles))
      EXPECT_EQ(worker->Position, FittingPosition(promotion.Size, worker->Over))
          << ToUtf8(worker->Name) << ", " << promotion.Initials.Str() << ", Over " << worker->Over;
}

// Four bouts with other people in each, and four Segments in which somebody talks.
TEST(DefaultWorld, CanFillAShowWithAnyRoster) {
  for (const Promotion& promotion : DefaultWorld().Promotions()) {
    const auto ready =
        WorkersOf(promotion, [](const Worker& w) { return Wrestles(w) && w.Status == "Nor"; });
    const std::string& who = promotion.Initials.Str();
    EXPECT_GE(ready.size(), 8u) << who;
    for (const char* side : {"F", "H"})
      EXPECT_GE(CountIf(ready, [=](auto* w) { return w->Disposition == side; }), 3) << who;
    EXPECT_NE(CountIf(ready, [](auto* w) { return !w->Gender; }), 1)
        << who << " has one woman and nobody for her to wrestle";
    const auto speakers = WorkersOf(promotion, [](const Worker& w) {
      return w.Speaks && (Wrestles(w) || w.Position == kManager || w.Position == kNonWrestler);
    });
    EXPECT_GE(CountIf(speakers, [](auto* w) { return w->Charisma >= 50; }), 4)
        << promotion.Initials.Str();
  }
}

TEST(DefaultWorld, HasAStaffForEveryPromotion) {
  // By post from Owner to Trainer: how many there must be from Global to Regional, and below.
  constexpr int kNeeded[][2] = {{1, 1}, {2, 0}, {1, 1}, {1, 0}, {1, 0}, {1, 0}, {1, 0}, {1, 0}};
  for (const Promotion& promotion : DefaultWorld().Promotions()) {
    const std::string who = promotion.Initials.Str();
    for (int post = kOwner; post <= kTrainer; ++post)
      EXPECT_GE(StaffIn(promotion, post), kNeeded[post - 1][promotion.Size > kRegional])
          << who << " " << Says(kStaffPositions, post);
    if (promotion.Size <= kCult || ShowsOf(promotion) > 0) {
      EXPECT_GE(StaffIn(promotion, kWriter), WritersNeeded(ShowsOf(promotion))) << who;
    }
  }
  for (int post = kOwner; post <= kTrainer; ++post)
    EXPECT_GE(CountIf(DefaultWorld().AllStaff(),
                      [=](auto& s) { return s.Position == post && s.Employer == 0; }),
              5)
        << "to be hired: " << Says(kStaffPositions, post);
}

TEST(DefaultWorld, GivesTitlesToThoseWhoCarryThem) {
  const World& world = DefaultWorld();
  for (const Title& title : world.Titles()) {
    for (const int uid : {int(title.Holder), int(title.Partner)})
      if (const Worker* holder = world.FindWorker(uid)) {
        EXPECT_TRUE(!title.Woman || !holder->Gender) << ToUtf8(title.Name);
        EXPECT_TRUE(!title.Lightweight || holder->Weight == "L") << ToUtf8(title.Name);
        EXPECT_LE(std::abs(title.Image - holder->Over), 22) << ToUtf8(title.Name);
      }
    if (!title.Singles && title.Holder != 0) {
      EXPECT_NE(TeamNameOf(world, title.Holder, title.Partner), "None") << ToUtf8(title.Name);
    }
  }
}

TEST(DefaultWorld, HasTeamsAndStablesEverywhere) {
  const World& world = DefaultWorld();
  std::map<int, int> teams, stables;
  for (const Team& team : world.Teams()) {
    EXPECT_FALSE(team.Finisher.View().empty()) << ToUtf8(team.Name);
    const int employer = world.FindWorker(team.Worker1)->Employer;
    teams[employer] += world.FindWorker(team.Worker2)->Employer == employer;
  }
  for (const Stable& stable : world.Stables()) ++stables[stable.Owner];
  for (const Promotion& promotion : world.Promotions()) {
    EXPECT_GE(teams[promotion.Uid], 2) << promotion.Initials.Str();
    EXPECT_GE(stables[promotion.Uid], 1) << promotion.Initials.Str();
  }
}

TEST(DefaultWorld, BroadcastsOnlyWhatNetworksWant) {
  const World& world = DefaultWorld();
  for (const Show& show : world.Shows()) {
    const Promotion& promotion = *world.FindPromotion(show.Owner);
    const Network& network = *world.FindNetwork(show.Network);
    const std::string who = ToUtf8(show.Name);
    EXPECT_LE(promotion.Risk, SlotRisk(network, show.Slot)) << who;
    EXPECT_GE(promotion.Production, network.Production) << who;
    EXPECT_NE(world.FindStaff(show.Announcer), nullptr) << who;
    EXPECT_NE(show.Colour, 0) << who;
    // Seven tenths of what the network hopes for is enough to have the deal renewed.
    const int audience = SlotAudience(network, show.Slot);
    const int rating = std::min(Mean(TvRatingBase(promotion.Size, promotion.Image)), audience);
    EXPECT_GE(rating, audience * 7 / 10) << who;
    EXPECT_TRUE(show.Rating2 <= show.Rating3 && show.Rating3 <= show.Rating1) << who;
    EXPECT_LE(std::abs(show.Rating3 - rating), rating / 5 + 5) << who << " " << rating;
    EXPECT_LT(show.Rating4, 3) << who;
  }
}

TEST(DefaultWorld, HasSponsorsForEverybody) {
  const World& world = DefaultWorld();
  const auto count = [&](auto wanted) { return CountIf(world.Sponsors(), wanted); };
  std::set<std::string> slogans, names;
  for (const Sponsor& sponsor : world.Sponsors()) {
    EXPECT_FALSE(sponsor.Slogan.View().empty()) << ToUtf8(sponsor.Name);
    EXPECT_TRUE(slogans.insert(sponsor.Slogan.Str()).second) << ToUtf8(sponsor.Slogan);
    EXPECT_TRUE(names.insert(sponsor.Name.Str()).second) << ToUtf8(sponsor.Name);
  }
  for (const Promotion& promotion : world.Promotions()) {
    const int limit = SponsorPayLimit(promotion.Size, promotion.Image);
    EXPECT_GE(count([&](auto& s) { return BearsRisk(s, promotion.Risk) && s.Pay < limit; }), 4)
        << promotion.Initials.Str();
  }
}

TEST(DefaultWorld, HoldsAnEventOfItsOwnEveryMonth) {
  const World& world = DefaultWorld();
  std::map<std::pair<int, int>, int> held;
  std::set<std::string> names;
  for (const Event& event : world.Events()) {
    ++held[{event.Owner, event.Month}];
    EXPECT_TRUE(names.insert(event.Name.Str()).second) << ToUtf8(event.Name);
    EXPECT_EQ(event.Type, NewEventType(*world.FindPromotion(event.Owner))) << ToUtf8(event.Name);
  }
  for (const Promotion& promotion : world.Promotions())
    for (int month = 1; month <= 12; ++month)
      EXPECT_EQ((held[{promotion.Uid, month}]), 1) << promotion.Initials.Str() << " " << month;
}

TEST(DefaultWorld, CallsPeopleByNamesThatFitTheProse) {
  const World& world = DefaultWorld();
  std::map<int, std::set<std::string>> shortNames;
  for (const Worker& worker : world.Workers()) {
    const std::string who = ToUtf8(worker.Name);
    EXPECT_FALSE(worker.ShortName.View().empty()) << who;
    if (worker.Employer != 0) {
      EXPECT_TRUE(shortNames[worker.Employer].insert(worker.ShortName.Str()).second)
          << who << " shares a short name with a colleague";
    }
    EXPECT_FALSE(worker.Finisher1.View().empty() || worker.Finisher2.View().empty()) << who;
    EXPECT_FALSE(worker.Finisher1 == worker.Finisher2) << who;
  }
}

TEST(DefaultWorld, LetsNobodyStartInRuinNorGetRichWithoutWork) {
  for (const auto& balance : tools::BalanceOf(DefaultWorld())) {
    SCOPED_TRACE(balance.Of->Initials.Str());
    EXPECT_EQ(balance.AsPlayers.HouseShows, 0);
    EXPECT_LE(balance.AsPlayers.CostsPerHundred(), 150);
    if (balance.Of->Size < kBackyard) {
      EXPECT_GE(balance.AsPlayers.CostsPerHundred(), 60);
      // A year of waiting must not win more than one and a half times what there was.
      const auto won = balance.AsPlayers.Income() - balance.AsPlayers.Costs();
      EXPECT_LE(2 * 12 * won, 3LL * balance.Of->Money);
    }
    EXPECT_LE(balance.AsRival.CostsPerHundred(), 150);
    // What is lost in a year must be there, or may be owed.
    constexpr int kRuin[] = {20'000'000, 15'000'000, 5'000'000, 2'500'000, 1'000'000, 500'000};
    const auto lost = balance.AsRival.Costs() - balance.AsRival.Income();
    EXPECT_LT(12 * lost, balance.Of->Money + kRuin[balance.Of->Size - 1]);
  }
}

}  // namespace
}  // namespace grapplemont::test
