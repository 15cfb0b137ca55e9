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

// The first of a month. The four that change lives leave the world as it is.
void PoorFormMorale(World& world);
void DevelopmentMonth(World& world);
void TrainingCampMonth(World& world);
void StatusCountdown(World& world);
void AgeAndRetire(World& world);
void PayWagesAndContracts(World& world);
void LoanRepayments(World& world);
void MerchandiseIncome(World& world);
void MonthlyCosts(World& world);
void MonthlyReview(World& world);
void CloseMonthBooks(World& world);

}  // namespace grapplemont
