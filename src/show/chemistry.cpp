#include "show/chemistry.h"

namespace grapplemont {

namespace {

struct Band {
  int From;
  int Gives;
};
/// What a team adds, by its experience.
constexpr Band kLevels[] = {{96, 4}, {76, 3}, {51, 2}, {26, 1}};
/// The draw that the match takes, by the level of all.
constexpr Band kDraws[] = {{14, 12}, {11, 10}, {5, 8}, {1, 5}};

template <std::size_t N>
int Given(const Band (&bands)[N], int value) {
  for (const Band& band : bands)
    if (value >= band.From) return band.Gives;
  return 0;
}

bool IsPair(const Team& team, const std::vector<int>& side) {
  if (side[0] == 0 || side[1] == 0) return false;
  return (team.Worker1 == side[0] && team.Worker2 == side[1]) ||
         (team.Worker1 == side[1] && team.Worker2 == side[0]);
}

bool HasTeams(const Segment& segment) {
  return segment.Style == kTag || segment.Style == kThreeTeams || segment.Style == kFourTeams;
}

std::string TeamsText(const std::vector<std::string>& teams) {
  std::string text;
  for (const std::string& team : teams) text += (text.empty() ? "" : ", ") + team;
  return text;
}

}  // namespace

Chemistry ChemistryOf(const World& world, const Segment& segment) {
  Chemistry chemistry;
  if (!HasTeams(segment)) return chemistry;
  const auto sides = SidesOf(segment);
  for (const Team& team : world.Teams())
    for (const auto& side : sides) {
      const int level = IsPair(team, side) ? Given(kLevels, team.Experience) : 0;
      if (level == 0) continue;
      chemistry.Level += level;
      chemistry.Teams.push_back(team.Name.Str());
    }
  return chemistry;
}

void AddChemistry(SegmentRun& run, const Chemistry& chemistry) {
  const int draw = Given(kDraws, chemistry.Level);
  if (draw == 0) return;
  const std::string why = "chemistry of " + TeamsText(chemistry.Teams);
  run.Quality.Add(run.World.RandomDraw(draw), why);
  run.Crowd.Add(run.World.RandomDraw(draw), why);
}

}  // namespace grapplemont
