#include <algorithm>
#include <array>
#include <span>

#include "calendar/advanceday.h"
#include "calendar/birthdays.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "roster/invented.h"
#include "roster/leaving.h"
#include "roster/market.h"
#include "roster/postings.h"

// Birthdays, and what they bring: the end of a career, and somebody new in its place.

namespace grapplemont {

namespace {

/// One who goes on whatever their age is.
constexpr std::string_view kTireless = "Tobias Fenn";

/// At this age and above one in this many stops; 1 is everybody and needs no draw.
struct AgeBand {
  int From;
  int OneIn;
};
constexpr std::array<AgeBand, 4> kStaffStop = {{{74, 1}, {66, 2}, {60, 3}, {50, 10}}};
constexpr std::array<AgeBand, 4> kWorkersStop = {{{66, 1}, {51, 3}, {45, 15}, {35, 40}}};

bool DrawStop(World& world, int age, std::span<const AgeBand> bands) {
  const auto band =
      std::ranges::find_if(bands, [&](const AgeBand& row) { return age >= row.From; });
  if (band == bands.end()) return false;
  return band->OneIn == 1 || world.RandomDraw(band->OneIn) == 1;
}

/// Everything about the player's own is reported. Who works for nobody concerns no rival.
bool MayTell(const World& world, int option, int employerUid) {
  if (employerUid != 0 && employerUid == world.PlayerUid()) return true;
  const Promotion* employer = world.FindPromotion(employerUid);
  return employer ? ShouldTell(world, option, employer->Size) : option == 0;
}

/// " from CWA"; nothing for who works for nobody.
std::string FromEmployer(const World& world, int employerUid) {
  const Promotion* employer = world.FindPromotion(employerUid);
  return employer ? " from " + employer->Initials.Str() : std::string();
}

void RetireStaff(World& world, Staff& staff) {
  if (MayTell(world, world.Game().MailStaffRetire, staff.Employer))
    AddNews(world, "Retirement!",
            "Staff member " + staff.Name.Str() + " has retired" +
                FromEmployer(world, staff.Employer) + "!");
  DismissStaff(world, staff);
  ReplaceByNewcomer(world, staff);
}

bool IsWatched(const World& world, const Worker& worker) {
  return IsShortlisted(world, worker.Uid) || WorksForPlayer(world, worker);
}

void TellRetirement(World& world, const Worker& worker, const std::string& words) {
  if (!IsWatched(world, worker) && !MayTell(world, world.Game().MailRetirement, worker.Employer))
    return;
  const bool isFree = world.FindPromotion(worker.Employer) == nullptr;
  AddNews(world, isFree ? "Retiring!" : "Retirement!", worker.Name + words);
}

void Announce(World& world, Worker& worker) {
  TellRetirement(world, worker,
                 std::string(" has announced ") + (worker.Gender ? "he" : "she") + " will retire" +
                     FromEmployer(world, worker.Employer) + " in one month.");
  worker.RetiringSoon = true;
  NoteDeed(world, kDeedRetiring, world.FindPromotion(worker.Employer), worker);
}

void Retire(World& world, Worker& worker) {
  TellRetirement(world, worker, " has retired" + FromEmployer(world, worker.Employer) + "!");
  NoteDeed(world, kDeedRetired, world.FindPromotion(worker.Employer), worker);
  PartWith(world, worker);
  ForgetWorker(world, worker);
  ReplaceByRookie(world, worker);
}

/// Better in some things and worse in others.
void GrowOlder(World& world, Worker& worker) {
  constexpr int kUnchanged = 3;
  worker.Age += 1;
  if (world.RandomDraw(5) == kUnchanged) return;
  for (Percent Worker::*skill : {&Worker::Brawl, &Worker::Technical, &Worker::Speed}) {
    const int gain = world.RandomDraw(kBirthdayDraw);
    worker.*skill = worker.*skill + gain - world.RandomDraw(kBirthdayDraw);
  }
}

/// Whoever goes on may do so outside the ring.
void LeaveTheRing(World& world, Worker& worker) {
  constexpr int kHasEnough = 5;  // of a draw of 25
  if (worker.Position == kNonWrestler || worker.Age < kMiddleAged) return;
  if (worker.Age < kAged && world.RandomDraw(25) != kHasEnough) return;
  MovePosition(world, worker, kNonWrestler);
  if (IsWatched(world, worker))
    AddNews(world, "News Desk", worker.Name + " has decided to become a 'non wrestler'!");
}

void Birthday(World& world, Worker& worker) {
  GrowOlder(world, worker);
  const bool hadEnough = DrawStop(world, worker.Age, kWorkersStop);
  if (hadEnough && worker.Name != kTireless)
    Announce(world, worker);
  else
    LeaveTheRing(world, worker);
}

}  // namespace

void AgeAndRetire(World& world) {
  const int present = MonthOf(world.Today());
  const int month = present == 1 ? 12 : present - 1;
  for (Staff& staff : world.AllStaff()) {
    if (staff.BirthMonth != month) continue;
    staff.Age += 1;
    if (DrawStop(world, staff.Age, kStaffStop)) RetireStaff(world, staff);
  }
  for (Worker& worker : world.Workers()) {
    if (worker.BirthMonth == month)
      Birthday(world, worker);
    else if (worker.RetiringSoon)
      Retire(world, worker);
  }
}

int RetiringAge() {
  return kWorkersStop.back().From;
}

}  // namespace grapplemont
