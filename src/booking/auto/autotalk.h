#pragma once

#include "booking/auto/autoplan.h"

// Interviews and angles.

namespace grapplemont {

/// What an angle shows, and so whom it needs.
enum class AngleScene {
  Words,  // one against one: challenges, stares
  Attack,
  TeamWords,  // two against two
  TeamAttack,
  Solo,    // one alone
  Allies,  // two of one corner
  Debut,   // a newcomer against somebody
};

/// Whether somebody has an interview or angle tonight.
bool HasTalk(const AutoPlan& plan, int uid);

/// Plans an angle of the scene that the promotion may use and that tonight has not seen. `victims`
/// stay empty for Solo; Allies are actor and other. False when there is none, or not enough
/// writers. Draws.
bool BookScene(AutoPlan& plan, AngleScene scene, const std::vector<int>& actors,
               const std::vector<int>& victims);
/// Plans this very angle, its people in the order of its roles.
bool BookAngle(AutoPlan& plan, int number, const std::vector<int>& people, int weight);

/// Plans that the stable which the worker leads lays a beating on the victim, once a show. False
/// when they lead none.
bool BookStableAttack(AutoPlan& plan, const Worker& leader, int victim);

/// Plans an interview of one or of a team, the manager beside them when they have one who talks.
/// Targets may be empty.
bool BookTalkBetween(AutoPlan& plan, const std::vector<int>& speakers,
                     const std::vector<int>& targets, int purpose);

/// A match between people of the talk is drafted for a show to come.
bool IsDrafted(const World& world, const Segment& talk);

/// Where they stand among the talk of a show.
enum TalkWeight { kOpens = 0, kEarly = 10, kMiddle = 20, kLate = 30 };

}  // namespace grapplemont
