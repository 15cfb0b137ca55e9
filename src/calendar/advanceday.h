#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// One routine of the day.
struct Step {
  std::string_view Name;
  void (*Run)(World&);
};

/// The day's blocks; their order is a rule, since each step reads what the last one wrote.
struct DayBlocks {
  std::span<const Step> Daily, Monday, FirstOfMonth, Closing;
};
extern const DayBlocks kDayBlocks;

/// Hears the name of each step of the new day before it runs; what the old day leaves behind comes
/// first and untold, since it may show screens of its own.
using StepWatcher = std::function<void(std::string_view step)>;

/// Ends the day (`cancelled`: its show was called off) and runs the next one's routines.
void AdvanceDay(World& world, bool cancelled, const StepWatcher& watcher = {});
/// Plain days pass, one at least and a month at most, until a show is due, the career ends or an
/// incident waits.
void AdvanceToNextShow(World& world, const StepWatcher& watcher = {});

// What the day that ends leaves behind.
void PlayerShowConsequences(World& world, bool cancelled);
void RivalShows(World& world);

// How much the days and months move people, as the glossary tells it.
inline constexpr int kRest = 2, kRestWithMedics = 5;  // condition a day, the most of a draw
inline constexpr int kWalksOutBelow = 10;             // morale, without a written contract
inline constexpr int kPoorFormLoss = 10;              // morale, after two bad months
inline constexpr int kCampBasics = 2;                 // selling and attitude, whoever teaches
inline constexpr int kCharismatic = 90;               // from here on charisma cannot be taught
inline constexpr int kTooSoft = 25;                   // under it one learns to hit harder,
inline constexpr int kTooStiff = 76;                  // from here on to take care
inline constexpr int kOutgrownBehaviour = 2;          // a month in the territory, a draw
/// The most that a month in the camp or the territory can teach of a skill.
int MostOfCamp();
int MostOfLesson();
/// The age from which on workers may retire.
int RetiringAge();
/// Where the economy drifts calmly: a step a day on so many days of so many.
inline constexpr int kCalmFrom = 20, kCalmTo = 80, kDriftDays = 8, kDriftOf = 15;

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
/// The player's workers in the territory learn from its booker, or fret where they have nothing
/// left to teach them.
void DevelopmentMonth(World& world);
/// The player's trainees learn from the head trainer of the camp.
void TrainingCampMonth(World& world);
/// Takes a month off every injury, rehab and suspension.
void StatusCountdown(World& world);
/// The birthdays of the month before: skills drift, careers end. Whoever has announced their end
/// goes in the first month that is not that of their birthday, and somebody new takes their record.
void AgeAndRetire(World& world);
void PayWagesAndContracts(World& world);
void LoanRepayments(World& world);
/// The house shows of rivals, and what they do to their standing: where one that is at home in its
/// class would fall, it tours where it is loved; where it would rise to what it is not ready for,
/// only where it has always been. Draws of World::Life, and those of a class that is crossed.
void RivalHouseShows(World& world);
void MerchandiseIncome(World& world);
void MonthlyCosts(World& world);
void MonthlyReview(World& world);
void CloseMonthBooks(World& world);
/// On the first of a month, once its steps are over: a mail of what the books closed with.
void TellOfTheMonth(World& world);
/// What the next first of a month takes from the player as things stand, in dollars: wages, running
/// costs and the repayment, less what merchandise brings then.
long long DueOnTheFirst(const World& world);

/// What pressing "Next Day" does.
enum class DayKind { Plain = 1, Television = 2, Event = 3, Stay = 4 };

/// True when the promotion has a television show on this day of the week.
bool HasTvToday(const World& world, int promotionUid);

/// An Event day goes before a television day. On an Event day without an Event `holdNone` is asked
/// whether the month shall pass without one: true makes the day plain, false stays on it.
DayKind DayKindToday(World& world, const std::function<bool()>& holdNone);

/// A show day of the player's that is still to come.
struct Appointment {
  Day On;
  std::string What;  // the name of the show or Event, or what is missing
  std::string Kind;  // "Television", "Event", "No Event"
};

/// The player's show days from today on, for `days` days.
std::vector<Appointment> ComingShows(const World& world, int days);

/// Whether Today is a show day of the player's, or one that asks about a missing Event.
bool NeedsThePlayer(const World& world);

// The promotion's weekly staff meeting.

/// The day of the next meeting, today or later; nothing for a promotion that has named no day.
std::optional<Day> NextMeeting(const World& world);
/// Why there is no meeting today, with the day of the next; empty on the day.
std::string WhyNoMeeting(const World& world);

}  // namespace grapplemont
