#include "halls/hall.h"

#include <algorithm>
#include <numeric>
#include <ranges>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

int AwardsAt(const Life& life, AwardKind first, AwardKind last) {
  int sum = 0;
  for (int kind = first; kind <= last; ++kind)
    sum += life.Of->Awards[static_cast<std::size_t>(kind - 1)];
  return sum;
}

constexpr std::array<HallMerit, kHallMerits> kMerits = {
    {{"Years in the business", "1 for each", [](const Life& life) { return life.Months / 12; }, 1,
      1},
     {"Reigns", "2 for each", [](const Life& life) { return life.Reigns; }, 2, 1},
     {"Days with a Title, by its image",
      "1 for 30 days with a Title of full image, with others as much less as their image",
      [](const Life& life) { return life.Of->Renown / 100; }, 1, 30},
     {"Wrestler or Woman of the Year", "10 for each",
      [](const Life& life) { return AwardsAt(life, kWrestlerOfTheYear, kWomanOfTheYear); }, 10, 1},
     {"Other awards", "4 for each",
      [](const Life& life) { return AwardsAt(life, kTeamOfTheYear, kRookieOfTheYear); }, 4, 1},
     {"Great matches", "1 for 10 that were rated 90 or more",
      [](const Life& life) { return int(life.Of->Great); }, 1, 10},
     {"Main events", "1 for 10", [](const Life& life) { return life.MainEvents; }, 1, 10},
     {"Months at the top", "1 for 3 months with Over at 80 or more",
      [](const Life& life) { return int(life.Of->Top); }, 1, 3}}};

HallMember MemberOf(const World& world, const Nominee& nominee) {
  const Life& life = nominee.Of;
  HallMember member{};
  member.On = world.Today();
  member.Career = int(life.Of->Number);
  member.Name = life.Of->Name;
  member.Initials = life.LongestAt;
  member.From = YearOf(life.Of->First);
  const bool gone = Day(life.Of->Last) != kNoTitleDate;
  member.To = YearOf(gone ? Day(life.Of->Last) : world.Today());
  for (std::size_t i = 0; i < kMerits.size(); ++i) {
    member.Count[i] = kMerits[i].Count(life);
    member.Points[i] = kMerits[i].PointsFor(kMerits[i].Count(life));
  }
  return member;
}

}  // namespace

std::span<const HallMerit, kHallMerits> Merits() {
  return kMerits;
}

int PointsOf(const Life& life) {
  int points = 0;
  for (const HallMerit& merit : kMerits) points += merit.PointsFor(merit.Count(life));
  return points;
}

std::vector<int> PointsOfAll(const Ledger& ledger) {
  std::vector<int> points;
  for (const Life& life : LivesOf(ledger)) points.push_back(PointsOf(life));
  return points;
}

std::string WhyNotElected(const World& world, const Life& life) {
  if (life.Months < kHallYears * 12)
    return "Has been seen for fewer than " + std::to_string(kHallYears) + " years.";
  if (const Worker* worker = world.FindWorker(life.Of->Worker); worker && worker->Age < kHallAge)
    return "Still wrestles, and is " + std::to_string(worker->Age) + ".";
  const int missing = kHallBar - PointsOf(life);
  return missing > 0 ? "Lacks " + Counted(missing, "point") + "." : "";
}

std::vector<Nominee> NomineesOf(const Ledger& ledger, std::size_t most) {
  std::vector<Nominee> nominees;
  for (const Life& life : LivesOf(ledger))
    if (life.Of->Elected == 0 && life.Months > 0) nominees.push_back({life, PointsOf(life), {}});
  std::ranges::stable_sort(nominees, std::greater{}, [](const Nominee& nominee) {
    return std::pair(nominee.Points, nominee.Of.Reigns);
  });
  nominees.resize(std::min(nominees.size(), most));
  for (Nominee& nominee : nominees) nominee.WhyNot = WhyNotElected(ledger.Of(), nominee.Of);
  return nominees;
}

void VoteHall(World& world, Ledger& ledger) {
  int elected = 0;
  for (const Nominee& nominee : NomineesOf(ledger, ledger.Careers.size())) {
    if (elected == kElectedAYear || nominee.Points < kHallBar) break;
    if (!nominee.WhyNot.empty() || world.Of<HallMember>().Full()) continue;
    ++elected;
    const HallMember& member = world.Of<HallMember>().Append(MemberOf(world, nominee));
    Career& career = ledger.Careers[static_cast<std::size_t>(ledger.PlaceOf(member.Career))];
    career.Elected = YearOf(world.Today());
    AddNews(world, "Hall of Fame",
            member.Name + " enters the hall of fame with " + Counted(nominee.Points, "point") +
                ". " + MeritLines(member).front() + ".");
  }
}

std::vector<std::string> MeritLines(const HallMember& member) {
  std::array<std::size_t, kHallMerits> order{};
  std::iota(order.begin(), order.end(), 0U);
  std::ranges::stable_sort(order, std::greater{},
                           [&](std::size_t i) { return int(member.Points[i]); });
  std::vector<std::string> lines;
  for (const std::size_t i : order)
    if (member.Count[i] > 0)
      lines.push_back(std::string(kMerits[i].Name) + ": " + std::to_string(member.Count[i]) + " (" +
                      Counted(member.Points[i], "point") + ")");
  return lines;
}

int PointsOf(const HallMember& member) {
  int points = 0;
  for (const Natural& part : member.Points) points += part;
  return points;
}

std::vector<const HallMember*> HallOf(const World& world) {
  std::vector<const HallMember*> members;
  for (const HallMember& member : std::views::reverse(world.Of<HallMember>()))
    members.push_back(&member);
  return members;
}

}  // namespace grapplemont
