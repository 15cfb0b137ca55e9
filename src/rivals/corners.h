#pragma once

#include "records/world.h"
#include "roster/postings.h"
#include "storylines/titles.h"

// Who stands against whom on a rival's card, and for what.

namespace grapplemont {

/// A worker, or two of them.
struct Corner {
  Worker* First = nullptr;
  Worker* Second = nullptr;

  int Size() const { return Second ? 2 : 1; }
  int Over() const { return Second ? (First->Over + Second->Over) / 2 : int(First->Over); }
  int Skill() const {
    return Second ? (BestSkillOf(*First) + BestSkillOf(*Second)) / 2 : BestSkillOf(*First);
  }
};

/// Whether both can be in one match against each other.
inline bool MayMeet(const Corner& one, const Corner& two) {
  const auto isIn = [&](const Worker* worker) {
    return worker && (worker == two.First || worker == two.Second);
  };
  return bool(one.First->Gender) == bool(two.First->Gender) && !isIn(one.First) &&
         !isIn(one.Second);
}

/// Renewals come on the first of a month: whoever of a rival's has this left has not been kept.
inline bool IsLeaving(const Worker& worker) {
  return worker.ContractMonths == 1;
}

inline bool MayWin(const Title& title, const Worker& worker) {
  return FitsTitle(title, worker) && !IsLeaving(worker);
}

}  // namespace grapplemont
