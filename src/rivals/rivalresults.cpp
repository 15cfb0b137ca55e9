#include "rivals/rivalresults.h"

#include <algorithm>

#include "records/segments.h"
#include "report/report.h"

namespace grapplemont {

namespace {

constexpr const char* kGone = "somebody who has left the business";

int CountOf(const CardMatch& match) {
  return match.Style == kTag ? 4 : 2;
}

/// The places of a side in the record: the first is the winners'.
std::vector<int> SideOf(const CardMatch& match, int side) {
  const int size = CountOf(match) / 2;
  const auto begin = match.Worker.begin() + side * size;
  return {begin, begin + size};
}

bool IsWhole(const World& world, const CardMatch& match) {
  return std::all_of(match.Worker.begin(), match.Worker.begin() + CountOf(match),
                     [&](int uid) { return world.FindWorker(uid); });
}

std::string Names(const World& world, const CardMatch& match, int side) {
  const std::vector<int> uids = SideOf(match, side);
  const bool gone = std::ranges::any_of(uids, [&](int uid) { return !world.FindWorker(uid); });
  return gone ? kGone : SideText(world, uids);
}

std::string Stakes(const CardMatch& match) {
  if (match.Title == "") return {};
  const char* what = !match.Changed        ? " to keep the "
                     : match.Champion == 0 ? " to win the vacant "
                                           : " to win the ";
  return what + match.Title.Str();
}

/// What the deeds know of it.
void FillFigures(const World& world, RivalShow& show, int promotionUid) {
  const int kind = show.Is == kUnseenEvent ? kDeedEventHeld : kDeedTvHeld;
  for (const Deed& deed : world.Deeds()) {
    if (deed.Kind != kind || deed.Promotion != promotionUid || Day(deed.On) != show.On) continue;
    show.Name = deed.Who.Str();
    show.Draw = deed.Number;
    show.Viewers = deed.Viewers;
    show.People = deed.People;
  }
}

Segment SegmentOf(const CardMatch& match) {
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = match.Style;
  segment.MatchType = match.MatchType;
  segment.Finish = match.Finish;
  std::copy_n(match.Worker.begin(), CountOf(match), segment.Worker.begin());
  segment.Winner = match.Winners == 0 ? 0 : int(match.Worker[0]);
  segment.Loser = match.Winners == 0 ? kNoLoser : SideOf(match, 1)[0];
  if (match.Title != "") segment.TitleName = match.Title.View();
  segment.Rating = match.Rating;
  return segment;
}

bool IsMainEvent(const World& world, const CardMatch& match) {
  return std::ranges::none_of(world.RivalCards(), [&](const CardMatch& other) {
    return other.Promotion == match.Promotion && Day(other.On) == Day(match.On) &&
           other.Show == match.Show && other.Row > match.Row;
  });
}

/// As it was when the bell rang. The hall is told by the match: nobody has rated it apart.
Scene SceneOf(const World& world, const CardMatch& match) {
  Scene scene{.Champion = match.Champion};
  scene.IsLast = IsMainEvent(world, match);
  scene.IsEvent = match.Show == kUnseenEvent;
  scene.Overall = scene.Crowd = match.Rating;
  scene.Promotion = match.Promotion;
  scene.On = match.On;
  for (const int side : {0, 1}) {
    const std::vector<int> uids = SideOf(match, side);
    if (uids.size() == 2 && std::ranges::count(uids, scene.Champion) != 0)
      scene.CoChampion = uids[0] == scene.Champion ? uids[1] : uids[0];
  }
  return scene;
}

}  // namespace

std::vector<RivalShow> RivalShowsOf(const World& world, int promotionUid) {
  std::vector<RivalShow> shows;
  for (const CardMatch& match : world.RivalCards()) {
    if (match.Promotion != promotionUid) continue;
    if (shows.empty() || shows.back().On != Day(match.On) || shows.back().Is != match.Show) {
      shows.push_back({.On = match.On, .Is = match.Show, .Name = "House show"});
      if (match.Show != kUnseenHouseShow) FillFigures(world, shows.back(), promotionUid);
    }
    shows.back().Matches.push_back(&match);
  }
  std::ranges::reverse(shows);
  return shows;
}

std::string_view UnseenShowText(int show) {
  return show == kUnseenEvent ? "Event" : show == kUnseenTv ? "Television" : "House show";
}

std::string MatchLine(const World& world, const CardMatch& match) {
  const std::string one = Names(world, match, 0), two = Names(world, match, 1);
  std::string line = match.Winners == 0
                         ? one + " and " + two + " fought to a double count out"
                         : one + " beat " + two + (match.Finish == kCheating ? " by cheating" : "");
  if (match.MatchType != kPlainSingles)
    line += " (" + std::string(MatchTypeText(match.Style, match.MatchType)) + ")";
  return line + Stakes(match);
}

std::string TellMatch(World& world, const CardMatch& match) {
  if (!IsWhole(world, match)) return {};
  const int day = static_cast<int>((Day(match.On) - kDayZero).count());
  auto before = world.ExchangeProse(std::make_unique<SeededDraws>(
      world.Fate("rival's match", {match.Promotion, day, match.Show, match.Row})));
  LineMemory memory = LineMemory::Apart();
  std::string told = WriteReport(world, SegmentOf(match), SceneOf(world, match), memory);
  world.ExchangeProse(std::move(before));
  return told;
}

}  // namespace grapplemont
