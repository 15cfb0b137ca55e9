#include "booking/wizard/casting.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "storylines/partners.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

// --- Whom a seat may be given to

bool IsManager(const World&, const Worker& worker, const Segment&) {
  return worker.Position == kManager;
}
/// What a team turns to decides who is waiting for it.
bool IsWaitingToTurn(const World&, const Worker& worker, const Segment& angle) {
  if (!worker.TurnPending) return false;
  if (angle.Style == kTeamFaceTurn) return worker.Disposition != "F";
  return angle.Style != kTeamHeelTurn || worker.Disposition != "H";
}
bool IsNoSpeaker(const World&, const Worker& worker, const Segment& talk) {
  for (const Casting speaks : {Casting::Talkers, Casting::TalkManagers})
    for (const int uid : SeatedAs(talk, speaks))
      if (uid == worker.Uid) return false;
  return true;
}

/// Who is taken of whom, and what the list says when there is nobody.
struct CastingRow {
  Casting From;
  std::string_view Nobody;
  bool (*Of)(const World&, const Worker&, const BookingView&);           // nullptr: no people
  bool (*Takes)(const World&, const Worker&, const Segment&) = nullptr;  // nullptr: all of them
};
constexpr CastingRow kCastings[] = {
    {Casting::Plain, "No workers available", IsEligible},
    {Casting::Commissioner, "No Commissioner available", IsAvailable,
     [](auto& world, auto& worker, auto&) { return worker.Uid == world.Player().Commissioner; }},
    {Casting::Managers, "No managers available", IsAvailable, IsManager},
    {Casting::DebutManagers, "No debut managers available", IsAvailable,
     [](auto&, auto& worker, auto&) { return worker.Position == kManager && !worker.Debuted; }},
    {Casting::Turners, "Nobody waiting to turn", IsAvailable, IsWaitingToTurn},
    {Casting::Women, "No women available", IsAvailable,
     [](auto&, auto& worker, auto&) { return !worker.Gender; }},
    {Casting::Men, "No men available", IsAvailable,
     [](auto&, auto& worker, auto&) { return bool(worker.Gender); }},
    {Casting::Debuts, "No debuts available", IsAvailable,
     [](auto&, auto& worker, auto&) { return !worker.Debuted; }},
    {Casting::Stables, "No stables available", nullptr},
    {Casting::SinglesTitles, "No vacant titles available", nullptr},
    {Casting::TagTitles, "No vacant titles available", nullptr},
    {Casting::Talkers, "Nobody on the roster can be interviewed.", IsTalker},
    {Casting::TalkManagers, "Nobody on the roster can speak as a manager.", IsTalker, IsManager},
    {Casting::Targets, "", IsEligible, IsNoSpeaker},
};
constexpr bool IsInOrder() {
  int at = 0;
  for (const CastingRow& row : kCastings)
    if (static_cast<int>(row.From) != at++) return false;
  return true;
}
static_assert(IsInOrder());

const CastingRow& RowOf(Casting from) {
  return kCastings[static_cast<std::size_t>(from)];
}

// --- What stands against a cast

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

std::string_view SamePersonText(int angle) {
  for (const SamePersonRow& row : kSamePerson)
    if (std::ranges::count(row.Angles, angle) > 0) return row.Says;
  return {};
}

bool IsIn(const Worker* worker, const Segment& segment) {
  return worker && worker->Stable == segment.Text;
}

bool IsAward(const Segment& segment) {
  return segment.Style == kAwardSingles || segment.Style == kAwardTag;
}

// The checks, each in the words of a box.

std::string WhyUncast(const World& world, const Segment& segment, const BookingView& view) {
  for (const Role& role : SeatsOf(segment)) {
    if (role.Optional || IsCast(segment, role)) continue;
    if (CandidatesFor(world, role.From, segment, view).empty())
      return std::string(NobodyFor(role.From));
    return "Please make a selection for \"" + std::string(role.Caption) + "\"!";
  }
  return {};
}

/// That whoever gets a Title is not the Commissioner has a check of its own.
std::string WhySamePerson(const World&, const Segment& segment, const BookingView&) {
  std::vector<int> people;
  for (const Role& role : SeatsOf(segment))
    if (role.Place != 0 && IsCast(segment, role) &&
        !(IsAward(segment) && role.From == Casting::Commissioner))
      people.push_back(UidAt(segment, role.Place));
  std::sort(people.begin(), people.end());
  const bool twice = std::adjacent_find(people.begin(), people.end()) != people.end();
  return twice ? std::string(SamePersonText(segment.Style)) : std::string();
}

std::string WhyNotManaged(const World& world, const Segment& segment, const BookingView&) {
  const auto* row = std::ranges::find(kManaged, int(segment.Style), &ManagedRow::Angle);
  if (row == std::end(kManaged)) return {};
  const Worker* client = WorkerAt(world, segment, row->Place);
  return client && client->Manager == UidAt(segment, 1) ? "" : std::string(row->Says);
}

std::string WhyNoTable(const World&, const Segment& segment, const BookingView&) {
  const bool uneven =
      segment.Style == kGetTheTable && UidAt(segment, 2) != 0 && UidAt(segment, 4) == 0;
  return uneven ? "If two people are going through a table, two attackers must be seleceted." : "";
}

std::string WhyNoMembership(const World& world, const Segment& segment, const BookingView&) {
  const bool isIn = IsIn(WorkerAt(world, segment, 1), segment);
  if (segment.Style == kStableKickOut) return isIn ? "" : "This worker is not in that stable!";
  if (segment.Style != kStableInduction) return {};
  if (isIn) return "This worker is already in that stable!";
  return StableMembers(world, segment.Text).size() < kFullStable
             ? ""
             : "Sorry, this stable already has the maximum amount of members!";
}

std::string WhyNoStable(const World& world, const Segment& segment, const BookingView&) {
  const auto* row = std::ranges::find(kStables, int(segment.Style), &StableRow::Angle);
  if (row == std::end(kStables)) return {};
  if (ActiveMembers(world, segment.Text).size() < 2)
    return "Sorry, there need to be at least 2 active members of the stable!";
  for (int place = 1; place <= row->StrangersUpTo; ++place)
    if (const Worker* worker = WorkerAt(world, segment, place); IsIn(worker, segment))
      return (segment.Style == kTakingOver ? "The Commissioner" : worker->Name.Str()) +
             " is part of that stable!";
  return {};
}

/// Whether one of the player's Titles waits for a holder; a singles Title or one for a team.
bool IsVacantTitle(const World& world, const Title& title, bool singles) {
  return IsPlayers(world, title) && title.Holder == 0 && title.Singles == singles;
}

const Title* FindVacant(const World& world, bool singles, std::string_view name) {
  for (const Title& title : world.Titles())
    if (IsVacantTitle(world, title, singles) && title.Name == name) return &title;
  return nullptr;
}

std::string WhyNoTitle(const World& world, const Segment& segment, const BookingView&) {
  if (!IsAward(segment)) return {};
  const bool singles = segment.Style == kAwardSingles;
  const Title* title = FindVacant(world, singles, segment.TitleName);
  const int last = singles ? 2 : 3;
  for (int place = 2; place <= last; ++place)
    if (UidAt(segment, place) == UidAt(segment, 1))
      return "The worker cannot also be the Commissioner!";
  for (int place = 2; place <= last; ++place)
    if (const Worker* worker = WorkerAt(world, segment, place);
        !title || !worker || !FitsTitle(*title, *worker))
      return singles ? "The worker is not eligible for this title!"
                     : "These workers are not eligible for these titles!";
  return {};
}

using Check = std::string (*)(const World&, const Segment&, const BookingView&);
// The first that objects speaks.
constexpr Check kChecks[] = {WhyUncast,       WhySamePerson, WhyNotManaged, WhyNoTable,
                             WhyNoMembership, WhyNoStable,   WhyNoTitle};

// --- What is said of a candidate

std::string AboutWorker(const World& world, const Worker& worker) {
  std::string text = std::string(PositionText(worker.Position)) + ", " +
                     std::string(DispositionText(worker.Disposition)) + ", Over " +
                     std::to_string(worker.Over) + ", Condition " +
                     std::to_string(worker.Condition) + ", Morale " + std::to_string(worker.Morale);
  if (worker.TurnPending) text += ", waiting to turn";
  if (!worker.Debuted) text += ", not seen yet";
  if (const std::string manager = WorkerName(world, worker.Manager); !manager.empty())
    text += ", managed by " + manager;
  if (IsInStable(worker)) text += ", in " + worker.Stable;
  return text;
}

std::string AboutStable(const World& world, std::string_view name) {
  const auto members = StableMembers(world, name), active = ActiveMembers(world, name);
  std::string text = std::to_string(members.size()) + " of " + std::to_string(kFullStable) +
                     " members, " + std::to_string(active.size()) + " of them active";
  if (const Worker* leader = StableLeader(world, name)) text += ", led by " + leader->Name;
  return text;
}

std::string AboutTitle(const World& world, bool singles, std::string_view name) {
  const Title* title = FindVacant(world, singles, name);
  if (!title) return {};
  return "Vacant, image " + std::to_string(title->Image) + "%" +
         (title->Woman ? ", for women" : "") + (title->Lightweight ? ", for lightweights" : "");
}

}  // namespace

std::string WhyNotOffered(const World& world, const Angle& angle) {
  const Promotion& player = world.Player();
  if (player.Risk <= angle.RiskOver)
    return "The risk level must be over " + std::to_string(angle.RiskOver) + ".";
  if (player.Size >= angle.SizeUnder) return "The promotion is too small for it.";
  if (angle.NeedsCommissioner && player.Commissioner == 0) return "There is no Commissioner.";
  if (!PlainDate(world.Today()).starts_with(angle.Date))
    return "Only on " + std::string(angle.Date) + ".";
  return {};
}

bool IsOffered(const World& world, const Angle& angle) {
  return WhyNotOffered(world, angle).empty();
}

std::vector<const Angle*> OfferedAngles(const World& world) {
  std::vector<const Angle*> offered;
  for (const Angle& angle : AllAngles())
    if (IsOffered(world, angle)) offered.push_back(&angle);
  return offered;
}

bool MayBeCast(const World& world, Casting from, const Worker& worker, const Segment& segment,
               const BookingView& view) {
  const CastingRow& row = RowOf(from);
  return row.Of && row.Of(world, worker, view) && (!row.Takes || row.Takes(world, worker, segment));
}

std::vector<const Worker*> WorkersFor(const World& world, Casting from, const Segment& segment,
                                      const BookingView& view) {
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers())
    if (MayBeCast(world, from, worker, segment, view)) people.push_back(&worker);
  return people;
}

std::vector<Candidate> CandidatesFor(const World& world, Casting from, const Segment& segment,
                                     const BookingView& view) {
  std::vector<Candidate> candidates;
  if (from == Casting::Stables)
    for (const Stable* stable : PlayerStables(world)) candidates.push_back({stable->Name.Str()});
  if (from == Casting::SinglesTitles || from == Casting::TagTitles)
    for (const Title& title : world.Titles())
      if (IsVacantTitle(world, title, from == Casting::SinglesTitles))
        candidates.push_back({title.Name.Str()});
  for (const Worker* worker : WorkersFor(world, from, segment, view))
    candidates.push_back({worker->Name.Str(), worker->Uid});
  return candidates;
}

std::string_view NobodyFor(Casting from) {
  return RowOf(from).Nobody;
}

void Cast(Segment& segment, const Role& seat, const Candidate& candidate) {
  if (seat.Place != 0)
    segment.Worker[static_cast<std::size_t>(seat.Place - 1)] = candidate.Uid;
  else if (seat.From == Casting::Stables)
    segment.Text = candidate.Name;
  else
    segment.TitleName = candidate.Name;
}

std::string WhyNotCast(const World& world, const Segment& segment, const BookingView& view) {
  if (!FindAngle(segment.Style)) return "There is no such angle!";
  for (const Check check : kChecks)
    if (std::string why = check(world, segment, view); !why.empty()) return why;
  return {};
}

std::string AboutCandidate(const World& world, const Role& seat, const Candidate& candidate) {
  if (seat.From == Casting::Stables) return AboutStable(world, candidate.Name);
  if (seat.Place == 0)
    return AboutTitle(world, seat.From == Casting::SinglesTitles, candidate.Name);
  const Worker* worker = world.FindWorker(candidate.Uid);
  return worker ? AboutWorker(world, *worker) : std::string();
}

}  // namespace grapplemont
