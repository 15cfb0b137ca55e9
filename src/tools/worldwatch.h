#pragma once

#include <map>
#include <nlohmann/json_fwd.hpp>
#include <set>

#include "records/world.h"

namespace grapplemont::tools {

/// What only shows over months and years: who rises, whom nothing moves, which of the first
/// promotions go under, how often promotions change class.
class WorldWatch {
 public:
  /// Looks at the first of a month; those of every month, in their order.
  void Look(const World& world);
  /// {"rises":3,"classChanges":9,"rivalYears":410,"stillYears":277,"startersLost":1,
  /// "honoured":11}, all since the first look: workers who have come from under 50 Over to 80;
  /// classes that promotions have crossed from one first of a month to the next; years (any twelve
  /// months in a row) that somebody worked for rivals, and those of them without a change of Over
  /// on any first of a month; promotions of the first look that have gone bankrupt; and who is in
  /// the hall of fame.
  nlohmann::ordered_json Figures() const;

 private:
  struct Year {
    int Months = 0;
    int Over = 0;
    bool Moved = false;
  };
  void LookAt(const World& world, const Worker& worker);
  void CountClosures(const World& world);
  void CompareClasses(const World& world);

  std::map<int, Year> years_;  // by uid
  std::map<int, int> sizes_;   // by uid of the promotion
  std::set<int> low_, risen_, starters_;
  int rises_ = 0, classChanges_ = 0, rivalYears_ = 0, stillYears_ = 0, startersLost_ = 0,
      honoured_ = 0;
  bool hasLooked_ = false;
};

/// How the people of a world stand:
/// {"top":[17,4],"topAge":34.2,"skill":58.9,"women":24.1,"light":27.0,"rosterWomen":22.0,
///  "rosterLight":25.5,"clashes":279,"teams":66,"stables":29,"clients":16}
/// "top" are the uids of the twenty most popular, "skill" the mean best of three, "clashes" the
/// workers who share a short name. The shares are percent, of all and of those on a card; teams
/// count with both partners in one promotion, stables with two members, clients of a manager.
nlohmann::ordered_json PeopleFigures(const World& world);

/// How its money stands: {"over80":3,"globalIncome":61000000,"globalWages":29000000}: promotions
/// with more than $80 million, last month's income of Global promotions and the wages they paid.
nlohmann::ordered_json MoneyFigures(const World& world);

}  // namespace grapplemont::tools
