#pragma once

#include "records/world.h"

// The day's own steps: what shows leave behind, what days do to people, the month's books.

namespace grapplemont {

// What the day that ends leaves behind.
void PlayerShowConsequences(World& world, bool cancelled);
void RivalShows(World& world);

// Daily.
void DailyWorkerUpkeep(World& world);
void IncidentRoll(World& world);

// Mondays.
/// A mail from Maeve when there are fewer writers than the television shows ask for.
void WriterWorkload(World& world);
/// Moves GameInfo.Economy. Draws once while it is from 20 to 80.
void EconomyDrift(World& world);

// The first of a month.
void PoorFormMorale(World& world);
/// The player's workers in the territory learn from its booker, or fret where he has nothing left
/// to teach them.
void DevelopmentMonth(World& world);
/// The player's trainees learn from the head trainer of the camp.
void TrainingCampMonth(World& world);
/// Takes a month off every injury, rehab and suspension.
void StatusCountdown(World& world);
/// The birthdays of the month before: skills drift, careers end. Whoever has announced his end goes
/// in the first month that is not that of his birthday, and somebody new takes his record.
void AgeAndRetire(World& world);
void PayWagesAndContracts(World& world);
void LoanRepayments(World& world);
void MerchandiseIncome(World& world);
void MonthlyCosts(World& world);
void MonthlyReview(World& world);
void CloseMonthBooks(World& world);

}  // namespace grapplemont
