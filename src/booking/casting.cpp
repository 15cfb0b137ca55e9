#include "booking/casting.h"

#include <algorithm>

#include "records/fields/fields.h"

namespace grapplemont {

namespace {

bool IsWaitingToTurn(const Worker& worker, int angle) {
  if (!worker.TurnPending) return false;
  if (angle == kTeamFaceTurn) return !(worker.Disposition == "F");
  return angle != kTeamHeelTurn || !(worker.Disposition == "H");
}

bool Takes(const World& world, const Worker& worker, Casting from, int turnsIn) {
  switch (from) {
    case Casting::Commissioner:
      return worker.Uid == world.Player().Commissioner;
    case Casting::Managers:
      return worker.Position == kManager;
    case Casting::DebutManagers:
      return worker.Position == kManager && !worker.Debuted;
    case Casting::Turners:
      return IsWaitingToTurn(worker, turnsIn);
    case Casting::Women:
      return !worker.Gender;
    case Casting::Men:
      return worker.Gender;
    case Casting::Debuts:
      return !worker.Debuted;
    default:
      return false;
  }
}

bool IsTitleRole(Casting from) {
  return from == Casting::SinglesTitles || from == Casting::TagTitles;
}

std::vector<Candidate> StablesToCast(const World& world) {
  std::vector<Candidate> stables;
  for (const Stable& stable : world.Stables())
    if (stable.Owner == world.PlayerUid()) stables.push_back({stable.Name.Str()});
  return stables;
}

std::vector<Candidate> VacantTitles(const World& world, bool singles) {
  std::vector<Candidate> titles;
  for (const Title& title : world.Titles())
    if (IsVacantTitle(world, title, singles)) titles.push_back({title.Name.Str()});
  return titles;
}

Word& PlaceOf(Segment& segment, int place) {
  return segment.Worker[static_cast<std::size_t>(place - 1)];
}

int UidAt(const Segment& segment, int place) {
  return segment.Worker[static_cast<std::size_t>(place - 1)];
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

std::vector<Candidate> CandidatesFor(const World& world, Casting from, int turnsIn,
                                     const BookingView& view) {
  if (from == Casting::Stables) return StablesToCast(world);
  if (IsTitleRole(from)) return VacantTitles(world, from == Casting::SinglesTitles);
  std::vector<Candidate> people;
  for (const Worker& worker : world.Workers())
    if (from == Casting::Plain
            ? IsEligible(world, worker, view)
            : IsAvailable(world, worker, view) && Takes(world, worker, from, turnsIn))
      people.push_back({worker.Name.Str(), worker.Uid});
  return people;
}

std::string_view NobodyFor(Casting from) {
  switch (from) {
    case Casting::Plain:
      return "No workers available";
    case Casting::Commissioner:
      return "No Commissioner available";
    case Casting::Managers:
      return "No managers available";
    case Casting::DebutManagers:
      return "No debut managers available";
    case Casting::Turners:
      return "Nobody waiting to turn";
    case Casting::Women:
      return "No women available";
    case Casting::Men:
      return "No men available";
    case Casting::Debuts:
      return "No debuts available";
    case Casting::Stables:
      return "No stables available";
    case Casting::SinglesTitles:
    case Casting::TagTitles:
      return "No vacant titles available";
  }
  return {};
}

bool IsUsed(const Role& role) {
  return !role.Caption.empty();
}

bool IsVacantTitle(const World& world, const Title& title, bool singles) {
  return title.Owner == world.PlayerUid() && title.Holder == 0 && title.Singles == singles;
}

void Cast(Segment& segment, const Role& role, const Candidate& candidate) {
  if (role.From == Casting::Stables)
    segment.Text = candidate.Name;
  else if (IsTitleRole(role.From))
    segment.TitleName = candidate.Name;
  else
    PlaceOf(segment, role.Place) = candidate.Uid;
}

bool IsCast(const Segment& segment, const Role& role) {
  if (role.From == Casting::Stables) return !(segment.Text == "None");
  if (IsTitleRole(role.From)) return !(segment.TitleName == "None");
  return UidAt(segment, role.Place) != 0;
}

}  // namespace grapplemont
