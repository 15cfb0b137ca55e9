#include "booking/autoplan.h"

#include <algorithm>

#include "booking/grievances.h"
#include "booking/segmentcheck.h"
#include "booking/writers.h"
#include "show/ratings.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// How a sheet of so many rows is best filled, and the least that it needs.
struct Shape {
  bool IsEvent;
  int Rows;
  int Matches;
  int LeastMatches;
  int LeastSegments;
};
// An Event's dark match is one of its seven and counts for nothing in what it needs.
constexpr Shape kShapes[] = {{false, 11, 6, 4, 8},
                             {false, 8, 5, 3, 7},
                             {false, 6, 4, 3, 6},
                             {false, 5, 3, 2, 5},
                             {true, 9, 7, 4, 6}};

const Shape& ShapeOf(bool isEvent, int rows) {
  const Shape* best = isEvent ? &kShapes[4] : &kShapes[3];
  for (const Shape& shape : kShapes)
    if (shape.IsEvent == isEvent && shape.Rows == rows) best = &shape;
  return *best;
}

std::vector<Segment> SheetOf(const World& world, int openRows) {
  std::vector<Segment> rows(static_cast<std::size_t>(openRows), EmptySegment());
  for (int row = 1; row <= std::min(openRows, world.Segments().Count()); ++row)
    rows[static_cast<std::size_t>(row - 1)] = world.Segments()[row];
  return rows;
}

bool Touches(const Feud& feud, const Segment& segment) {
  if (IsFreeSlot(feud)) return false;
  const FeudSides sides = SidesOf(feud);
  const std::vector<int> people = PeopleOf(segment);
  const auto has = [&](const FeudSide& side) {
    return std::any_of(people.begin(), people.end(), [&](int uid) { return side.Has(uid); });
  };
  return has(sides.One) && has(sides.Two);
}

void CountIn(AutoPlan& plan, const Segment& segment) {
  plan.Pool.Count(segment);
  if (!(segment.TitleName == "None")) plan.TitlesUsed.insert(segment.TitleName.Str());
  if (segment.Kind == kAngle) plan.AnglesUsed.insert(segment.Style);
  int slot = 0;
  for (const Feud& feud : plan.World.Feuds())
    if (++slot; Touches(feud, segment)) plan.FeudsUsed.insert(slot);
}

constexpr int kTopTitle = 1000;  // outweighs whatever stands beside it on an Event

/// The most renowned Title of the player's.
const Title* TopTitle(const World& world) {
  const Title* top = nullptr;
  for (const Title& title : world.Titles())
    if (title.Owner == world.PlayerUid() && !title.Suspended && (!top || title.Image > top->Image))
      top = &title;
  return top;
}

int WeightOf(const AutoPlan& plan, const Segment& match) {
  int weight = ExpectedCrowd(plan.World, match);
  for (const Feud& feud : plan.World.Feuds())
    if (Touches(feud, match)) weight += feud.Heat / 12;
  for (const Title& title : plan.World.Titles())
    if (title.Owner == plan.World.PlayerUid() && title.Name == match.TitleName)
      weight += title.Image / 10;
  const Title* top = TopTitle(plan.World);
  const bool crowns = top && match.TitleName == top->Name;
  return weight + (crowns && plan.View.IsEvent ? kTopTitle : 0);
}

}  // namespace

AutoPlan::AutoPlan(grapplemont::World& world, const BookingView& view, int openRows)
    : World(world),
      View(view),
      Pool(world, view),
      MayUseAngles(EnoughWriters(world, view.IsEvent)),
      Rows(SheetOf(world, openRows)) {
  const Shape& shape = ShapeOf(view.IsEvent, openRows);
  LeastMatches = shape.LeastMatches;
  LeastSegments = shape.LeastSegments;
  int matches = 0;
  for (const Segment& row : Rows) {
    if (row.Kind == kMatch) ++matches;
    if (row.Kind != kEmptySegment) CountIn(*this, row);
  }
  MatchesWanted = TalksWanted = 0;
  const int empty = RowsLeft();
  MatchesWanted = std::clamp(shape.Matches - matches, 0, empty);
  TalksWanted = empty - MatchesWanted;
}

int AutoPlan::RowsLeft() const {
  const auto empty = std::count_if(Rows.begin(), Rows.end(),
                                   [](const Segment& row) { return row.Kind == kEmptySegment; });
  return static_cast<int>(empty) - static_cast<int>(Matches.size() + Talks.size());
}

bool Chance(World& world, int percent) {
  return world.RandomDraw(100) <= percent;
}

bool Stands(const AutoPlan& plan, const Segment& segment) {
  return RefusalsOf(plan.World, segment).empty() &&
         WhyNotBookable(plan.World, segment, plan.View).empty() &&
         GrievancesOf(plan.World, segment).empty();
}

void PlanMatch(AutoPlan& plan, const Segment& match) {
  plan.Matches.push_back({match, WeightOf(plan, match)});
  CountIn(plan, match);
}

bool PlanTalk(AutoPlan& plan, const Segment& talk, int weight) {
  if (!Stands(plan, talk)) return false;
  plan.Talks.push_back({talk, weight});
  CountIn(plan, talk);
  return true;
}

int ExpectedCrowd(const World& world, const Segment& match) {
  const std::vector<int> people = PeopleOf(match);
  int draw = 0, work = 0;
  for (const int uid : people)
    if (const Worker* worker = world.FindWorker(uid)) {
      draw += DrawRating(*worker);
      work += WorkRating(*worker);
    }
  const int count = std::max(1, static_cast<int>(people.size()));
  return (draw * 4 + work) / (5 * count);
}

}  // namespace grapplemont
