#include "calendar/daysteps.h"

namespace grapplemont {

void PlayerShowConsequences(World&, bool) {}
void RivalShows(World&) {}
void DailyWorkerUpkeep(World&) {}
void IncidentRoll(World&) {}
void PoorFormMorale(World&) {}
void DevelopmentMonth(World&) {}
void TrainingCampMonth(World&) {}
void StatusCountdown(World&) {}
void AgeAndRetire(World&) {}
void PayWagesAndContracts(World&) {}
void LoanRepayments(World&) {}
void MerchandiseIncome(World&) {}
void MonthlyCosts(World&) {}
void MonthlyReview(World&) {}
void CloseMonthBooks(World&) {}

}  // namespace grapplemont
