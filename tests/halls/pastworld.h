#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "halls/hall.h"
#include "records/fields/fields.h"
#include "support/smallworld.h"
#include "words/segments.h"

// Two small promotions and a past for them.

namespace grapplemont::test {

inline World House() {
  SmallWorld small;
  small.Promotion("NEW")
      .Worker("Nat Other", kMainEvent, 85, [](Worker& w) { w.Wage = 40; })
      .Worker("Ned Third", kMidcard, 50)
      .Title("NEW Crown", "Nat Other")
      .Promotion("CWA")
      .Worker("Bram Okafor", kMainEvent, 80)
      .Worker("Cal Drift", kMidcard, 60, [](Worker& w) { w.Status = "Inj"; })
      .Worker("Dan Dale", kMidcard, 60)
      .Worker("Ilya Marsh", kMidcard, 55)
      .Team("The Drifters", "Cal Drift", "Dan Dale")
      .Title("CWA Crown", "Bram Okafor");
  return small.Game("CWA");
}

inline int UidIn(const World& world, std::string_view name) {
  for (const Worker& worker : world.Workers())
    if (worker.Name == name) return worker.Uid;
  return 0;
}

inline const Life& LifeIn(const std::vector<Life>& lives, std::string_view name) {
  for (const Life& life : lives)
    if (life.Of->Name == name) return life;
  throw std::runtime_error("no career of " + std::string(name));
}

inline void AddCard(World& world, int daysOn, std::vector<std::string_view> people, int winners,
                    int rating, std::string_view title = {}) {
  CardMatch match{};
  match.On = kGameStart + std::chrono::days{daysOn};
  match.Promotion = world.FindWorker(UidIn(world, people[0]))->Employer;
  match.Show = kUnseenTv;
  match.Row = 1;
  match.Style = people.size() == 4 ? kTag : kSingles;
  match.MatchType = people.size() == 4 ? kPlainTag : kHardcore;
  match.Winners = winners;
  for (std::size_t i = 0; i < people.size(); ++i) match.Worker[i] = UidIn(world, people[i]);
  match.Title = title;
  match.Champion = title.empty() ? 0 : int(match.Worker[0]);
  match.Rating = rating;
  world.RivalCards().Append(match);
}

inline void Wait(World& world, int count) {
  world.Game().Today = world.Today() + std::chrono::days{count};
}

/// A career of so many points by awards of 4, and an age.
inline void MakeCareer(Ledger& ledger, const World& world, std::string_view name, int awards) {
  Career career{};
  career.Number = ++ledger.State.LastCareer;
  career.Worker = UidIn(world, name);
  career.Name = name;
  career.First = kGameStart;
  career.Last = kNoTitleDate;
  career.Awards[kMatchOfTheYear - 1] = awards;
  ledger.Careers.push_back(career);
  Tenure tenure{};
  tenure.Career = int(career.Number);
  tenure.Promotion = world.PlayerUid();
  tenure.Initials = "CWA";
  tenure.Months = 12 * kHallYears;
  ledger.Tenures.push_back(tenure);
}

}  // namespace grapplemont::test
