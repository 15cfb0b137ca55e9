#pragma once

#include <string>

#include "records/world.h"

// What happened backstage, and what the player makes of it. The list of the day stands in
// incident.tmp; what has been dealt with leaves it.

namespace grapplemont {

enum IncidentType { kFight = 1, kLate, kPolice, kRehab, kInjury, kJobOffer };

/// Whether the list of the day holds any.
bool HasIncident(const World& world);
/// The first that waits for an answer; those about people or promotions who are gone are dropped.
/// Somebody who has to go into rehab or is hurt does so now: their months, and the injury's name,
/// are drawn. Nothing when all have been dealt with.
const Incident* FirstIncident(World& world);
/// What it says to the player. Requires one that FirstIncident gave.
std::string IncidentText(const World& world, const Incident& incident);
/// Takes the first off the list.
void CloseIncident(World& world);

/// A job offer of this promotion waits among what has happened today, where there is room for it.
void OfferJob(World& world, const Promotion& promotion);

void Suspend(Worker& worker, int months);
/// The player leaves their promotion to its own devices and takes over another: the job goes to the
/// former ones, and their feuds end with it.
void ChangeJob(World& world, const Promotion& promotion);

}  // namespace grapplemont
