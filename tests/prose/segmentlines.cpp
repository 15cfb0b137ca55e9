#include "prose/segmentlines.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "report/cast.h"
#include "storylines/feuds.h"

namespace grapplemont::test {

namespace {

using Json = nlohmann::ordered_json;

std::vector<int> UidsOf(const FeudSide& side) {
  std::vector<int> uids;
  for (const int uid : {side.First, side.Second})
    if (uid != 0) uids.push_back(uid);
  return uids;
}

Json NamesOf(const World& world, const Segment& segment) {
  Json names = Json::object();
  for (const int uid : EverybodyOf(segment))
    if (const Worker* worker = world.FindWorker(uid))
      names[std::to_string(uid)] = {ToUtf8(OneSpaced(worker->Name)),
                                    ToUtf8(OneSpaced(worker->ShortName)),
                                    worker->Gender ? "m" : "f"};
  return names;
}

bool Goes(const World& world, const Feud& feud) {
  return std::any_of(world.Feuds().begin(), world.Feuds().end(), [&](const Feud& each) {
    return each.Worker1 == feud.Worker1 && each.Worker2 == feud.Worker2 &&
           each.Worker3 == feud.Worker3 && each.Worker4 == feud.Worker4;
  });
}

Json FeudsAmong(const World& world, const std::vector<Feud>& feuds,
                const std::vector<int>& people) {
  const auto isThere = [&](int uid) {
    return std::find(people.begin(), people.end(), uid) != people.end();
  };
  Json rows = Json::array();
  for (const Feud& feud : feuds) {
    const FeudSides sides = SidesOf(feud);
    const auto one = UidsOf(sides.One), two = UidsOf(sides.Two);
    if (std::any_of(one.begin(), one.end(), isThere) &&
        std::any_of(two.begin(), two.end(), isThere))
      rows.push_back(
          {{"one", one}, {"two", two}, {"heat", int(feud.Heat)}, {"over", !Goes(world, feud)}});
  }
  return rows;
}

}  // namespace

SegmentLine::SegmentLine(const World& world, int number) : segment_(world.Segments()[number]) {
  for (const int uid : EverybodyOf(segment_))
    if (const Worker* worker = world.FindWorker(uid))
      before_.push_back({uid, worker->Disposition.Str(), bool(worker->TurnPending)});
  for (const Feud& feud : world.Feuds())
    if (feud.Worker1 != 0) feuds_.push_back(feud);
}

std::string SegmentLine::Told(const World& world, const ToldSegment& told) const {
  const Segment& s = segment_;
  Json turns = Json::array();
  for (const Standing& was : before_)
    if (const Worker* worker = world.FindWorker(was.Uid);
        worker &&
        (was.Disposition != worker->Disposition.Str() || (was.TurnPending && !worker->TurnPending)))
      turns.push_back({{"uid", was.Uid},
                       {"from", was.Disposition},
                       {"to", worker->Disposition.Str()},
                       {"pending", was.TurnPending}});
  Json line{
      {"day", (world.Today() - Day{}).count()},
      {"kind", int(s.Kind)},
      {"style", int(s.Style)},
      {"type", int(s.MatchType)},
      {"finish", int(s.Finish)},
      {"aftermath", int(s.Aftermath)},
      {"purpose", int(s.Purpose)},
      {"title", ToUtf8(s.TitleName.Str())},
      {"winner", int(s.Winner)},
      {"loser", NamesLoser(s) ? int(s.Loser) : 0},
      {"others", {int(s.Other1), int(s.Other2), int(s.Other3), int(s.Other4)}},
      {"out",
       {int(s.Place3), int(s.Place4), int(s.Place5), int(s.Place6), int(s.Place7), int(s.Place8)}},
      {"people", PeopleOf(s)},
      {"places", {UidAt(s, 1), UidAt(s, 2), UidAt(s, 3), UidAt(s, 4)}},
      {"sides", s.Kind == kMatch ? SidesOf(s) : std::vector<std::vector<int>>{}},
      {"names", NamesOf(world, s)},
      {"feuds", FeudsAmong(world, feuds_, EverybodyOf(s))},
      {"turns", turns},
      {"notes", ToUtf8(told.Notes)},
      {"quality", int(told.Quality)},
      {"crowd", int(told.Crowd)},
      {"overall", int(told.Overall)},
      {"voice", int(world.Game().Reporter)},
      {"report", ToUtf8(told.Report)},
      {"verdict", ToUtf8(told.Verdict)}};
  return line.dump();
}

}  // namespace grapplemont::test
