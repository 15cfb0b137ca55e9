#include "booking/castingchecks.h"

#include <algorithm>
#include <span>

#include "booking/casting.h"
#include "storylines/stables.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

constexpr int kTwo[] = {1,  2,  4,  5,  6,  9,  10, 13, 14, 15, 18, 21, 22, 23,
                        24, 25, 26, 27, 28, 29, 30, 33, 34, 35, 37, 38, 39, 40,
                        41, 45, 49, 61, 63, 64, 66, 67, 68, 69, 72, 73, 74};
constexpr int kThree[] = {7, 8, 42, 47};
constexpr int kFour[] = {11, 17, 48};
// With roles that may stay empty nobody can say how many there must be.
constexpr int kUnique[] = {3, 12, 16, 19};
constexpr int kDifferent[] = {46, 55};
constexpr int kTwice[] = {56, 57, 58, 59};
constexpr int kMoreThanOnce[] = {78};

struct SamePersonRow {
  std::string_view Says;
  std::span<const int> Angles;
};
constexpr SamePersonRow kSamePerson[] = {
    {"Please select two different workers!", kTwo},
    {"Please select three different workers!", kThree},
    {"Please select four different workers!", kFour},
    {"Please select unique workers!", kUnique},
    {"Please select different workers!", kDifferent},
    {"You cannot select the same worker twice!", kTwice},
    {"Please do not select the same worker more than once!", kMoreThanOnce},
};

/// An angle in which the manager, Worker1, must manage the worker at a place.
struct ManagedRow {
  int Angle;
  int Place;
  std::string_view Says;
};
constexpr std::string_view kMustManage =
    "The manager selected must manage the worker you've selected!";
constexpr ManagedRow kManaged[] = {
    {kManagementIssues, 3,
     "The manager selected must manage the worker you've selected as 'Leaves'!"},
    {kMotivation, 2, kMustManage},
    {kManagerialDebut, 2, kMustManage},
    {kManagersSurprise, 2, kMustManage},
};

/// An angle whose stable needs two members who are fit. Nobody from Worker1 to a place may belong
/// to it; 0: it does not matter.
struct StableRow {
  int Angle;
  int StrangersUpTo;
};
// Angle, strangers up to.
constexpr StableRow kStables[] = {
    {kStableAttack, 1}, {kTakingOver, 1},  {kStableDuo, 2},    {kAbduction, 1},
    {kKidnap, 1},       {kCrucifixion, 1}, {kBlackWedding, 0}, {kBloodBath, 1},
};

template <class Row, std::size_t n>
const Row* FindRow(const Row (&rows)[n], int angle) {
  const auto found =
      std::find_if(std::begin(rows), std::end(rows), [&](auto& row) { return row.Angle == angle; });
  return found == std::end(rows) ? nullptr : &*found;
}

std::string_view SamePersonText(int angle) {
  for (const SamePersonRow& row : kSamePerson)
    if (std::find(row.Angles.begin(), row.Angles.end(), angle) != row.Angles.end()) return row.Says;
  return {};
}

int UidAt(const Segment& segment, int place) {
  return segment.Worker[static_cast<std::size_t>(place - 1)];
}

const Worker* WorkerAt(const World& world, const Segment& segment, int place) {
  return world.FindWorker(UidAt(segment, place));
}

bool IsIn(const Worker* worker, const Segment& segment) {
  return worker && worker->Stable == segment.Text;
}

bool IsAward(const Segment& segment) {
  return segment.Style == kAwardSingles || segment.Style == kAwardTag;
}

// The checks, each in the words of a box.

std::string WhyUncast(const World& world, const Angle& angle, const Segment& segment,
                      const BookingView& view) {
  for (const Role& role : angle.Roles) {
    if (!IsUsed(role) || role.Optional || IsCast(segment, role)) continue;
    if (CandidatesFor(world, role.From, angle.Number, view).empty())
      return std::string(NobodyFor(role.From));
    return "Please make a selection for \"" + std::string(role.Caption) + "\"!";
  }
  return {};
}

/// Whoever gets a Title may be told from the Commissioner by a check with words of its own.
std::string WhySamePerson(const World&, const Angle& angle, const Segment& segment,
                          const BookingView&) {
  std::vector<int> people;
  for (const Role& role : angle.Roles)
    if (IsUsed(role) && role.Place != 0 && IsCast(segment, role) &&
        !(IsAward(segment) && role.From == Casting::Commissioner))
      people.push_back(UidAt(segment, role.Place));
  std::sort(people.begin(), people.end());
  const bool twice = std::adjacent_find(people.begin(), people.end()) != people.end();
  return twice ? std::string(SamePersonText(angle.Number)) : std::string();
}

std::string WhyNotManaged(const World& world, const Angle& angle, const Segment& segment,
                          const BookingView&) {
  const ManagedRow* row = FindRow(kManaged, angle.Number);
  if (!row) return {};
  const Worker* client = WorkerAt(world, segment, row->Place);
  return client && client->Manager == UidAt(segment, 1) ? "" : std::string(row->Says);
}

std::string WhyNoTable(const World&, const Angle& angle, const Segment& segment,
                       const BookingView&) {
  const bool uneven =
      angle.Number == kGetTheTable && UidAt(segment, 2) != 0 && UidAt(segment, 4) == 0;
  return uneven ? "If two people are going through a table, two attackers must be seleceted." : "";
}

std::string WhyNoMembership(const World& world, const Angle& angle, const Segment& segment,
                            const BookingView&) {
  const bool isIn = IsIn(WorkerAt(world, segment, 1), segment);
  if (angle.Number == kStableKickOut) return isIn ? "" : "This worker is not in that stable!";
  if (angle.Number != kStableInduction) return {};
  if (isIn) return "This worker is already in that stable!";
  return StableMembers(world, segment.Text).size() < kFullStable
             ? ""
             : "Sorry, this stable already has the maximum amount of members!";
}

std::string WhyNoStable(const World& world, const Angle& angle, const Segment& segment,
                        const BookingView&) {
  const StableRow* row = FindRow(kStables, angle.Number);
  if (!row) return {};
  if (ActiveMembers(world, segment.Text).size() < 2)
    return "Sorry, there need to be at least 2 active members of the stable!";
  for (int place = 1; place <= row->StrangersUpTo; ++place)
    if (const Worker* worker = WorkerAt(world, segment, place); IsIn(worker, segment))
      return (angle.Number == kTakingOver ? "The Commissioner" : worker->Name.Str()) +
             " is part of that stable!";
  return {};
}

bool FitsVacantTitle(const World& world, const Segment& segment, const Worker* worker) {
  const bool singles = segment.Style == kAwardSingles;
  for (const Title& title : world.Titles())
    if (IsVacantTitle(world, title, singles) && title.Name == segment.TitleName)
      return worker && FitsTitle(title, *worker);
  return false;
}

std::string WhyNoTitle(const World& world, const Angle& angle, const Segment& segment,
                       const BookingView&) {
  if (!IsAward(segment)) return {};
  const bool singles = angle.Number == kAwardSingles;
  const int last = singles ? 2 : 3;
  for (int place = 2; place <= last; ++place)
    if (UidAt(segment, place) == UidAt(segment, 1))
      return "The worker cannot also be the Commissioner!";
  for (int place = 2; place <= last; ++place)
    if (!FitsVacantTitle(world, segment, WorkerAt(world, segment, place)))
      return singles ? "The worker is not eligible for this title!"
                     : "These workers are not eligible for these titles!";
  return {};
}

using Check = std::string (*)(const World&, const Angle&, const Segment&, const BookingView&);
// The first that objects speaks.
constexpr Check kChecks[] = {WhyUncast,       WhySamePerson, WhyNotManaged, WhyNoTable,
                             WhyNoMembership, WhyNoStable,   WhyNoTitle};

}  // namespace

std::string WhyNotCast(const World& world, const Segment& segment, const BookingView& view) {
  const Angle* angle = FindAngle(segment.Style);
  if (!angle) return "There is no such angle!";
  for (const Check check : kChecks)
    if (std::string why = check(world, *angle, segment, view); !why.empty()) return why;
  return {};
}

}  // namespace grapplemont
