#include "show/boutbook.h"

#include <algorithm>

#include "records/modWresCheck.h"
#include "records/segments.h"
#include "records/store/table.h"
#include "show/showfeuds.h"
#include "show/titlechange.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

constexpr int kDropped = 500;
constexpr std::size_t kSideWidth = decltype(HeldMatch::Won)::kWidth;

/// Everybody who has gone makes room first, then whoever has not been seen for the longest time.
void MakeRoom(Records<MatchTally>& tallies) {
  tallies.Keep([](const MatchTally& tally) { return tally.Worker != 0; });
  if (!tallies.Full()) return;
  const auto oldest = std::min_element(
      tallies.begin(), tallies.end(),
      [](const MatchTally& a, const MatchTally& b) { return Day(a.Last) < Day(b.Last); });
  tallies.Erase(tallies.NumberOf(*oldest));
}

MatchTally& TallyOf(World& world, int uid) {
  Records<MatchTally>& tallies = world.Tallies();
  for (MatchTally& tally : tallies)
    if (tally.Worker == uid && tally.Promotion == world.PlayerUid()) return tally;
  if (tallies.Full()) MakeRoom(tallies);
  MatchTally fresh;
  fresh.Promotion = world.PlayerUid();
  fresh.Worker = uid;
  return tallies.Append(fresh);
}

void AddToTally(World& world, int uid, const HeldMatch& bout, bool won) {
  MatchTally& tally = TallyOf(world, uid);
  tally.Name = WorkerName(world, uid);
  ++(bout.Winners == 0 ? tally.Drawn : won ? tally.Won : tally.Lost);
  if (bout.Title != "None") ++tally.ForTitles;
  tally.Ratings += bout.Rating;
  tally.Last = bout.On;
}

std::vector<int> Without(std::vector<int> people, const std::vector<int>& others) {
  std::erase_if(people, [&](int uid) {
    return std::find(others.begin(), others.end(), uid) != others.end();
  });
  return people;
}

/// Who has not won, side by side.
std::string OthersText(const World& world, const Segment& segment, const std::vector<int>& first) {
  std::string text;
  std::vector<int> others;
  for (const std::vector<int>& side : SidesOf(segment)) {
    if (side == first) continue;
    others.insert(others.end(), side.begin(), side.end());
    text += (text.empty() ? "" : ", ") + NamesOfMany(world, side, kSideWidth);
  }
  return text.size() <= kSideWidth ? text : NamesOfMany(world, others, kSideWidth);
}

void NamePeople(const World& world, const Segment& segment, HeldMatch& bout) {
  std::vector<int> first = WinnersOf(segment);
  bout.Winners = static_cast<int>(first.size());
  const auto sides = SidesOf(segment);
  if (first.empty() && !sides.empty()) first = sides.front();
  bout.Won = NamesOfMany(world, first, kSideWidth);
  bout.Lost = OthersText(world, segment, first);
  std::vector<int> people = first;
  for (const int uid : Without(PeopleOf(segment), first)) people.push_back(uid);
  for (std::size_t i = 0; i < people.size() && i < bout.Worker.size(); ++i)
    bout.Worker[i] = world.FindWorker(people[i]) ? people[i] : 0;
}

/// The slot of the feud that stands between two sides; 0 for none.
int FeudBetween(const World& world, const std::vector<std::vector<int>>& sides) {
  for (std::size_t i = 0; i < sides.size(); ++i)
    for (std::size_t j = i + 1; j < sides.size(); ++j)
      for (const int one : sides[i])
        for (const int two : sides[j])
          if (const int slot = FeudSlotOf(world, one, two); slot != 0) return slot;
  return 0;
}

bool HasAnyFeud(const World& world) {
  return std::any_of(world.Feuds().begin(), world.Feuds().end(),
                     [](const Feud& feud) { return feud.Worker1 != 0; });
}

/// The Title as the match has left it.
void NoteTitle(World& world, const Segment& segment, const AtTheBell& bell, HeldMatch& bout) {
  bout.Title = bell.ForTitle ? segment.TitleName.View() : std::string_view("None");
  const Title* title = bell.ForTitle ? TitleAtStake(world, segment) : nullptr;
  if (!title) return;
  bout.Changed = title->Holder != bell.Champion || title->Partner != bell.CoChampion;
  UpdateReigns(world);
  if (!bout.Changed && bell.Champion != 0 && TakesPart(segment, bell.Champion))
    CountDefence(world, *title);
}

}  // namespace

AtTheBell LookAtTheBell(World& world, const Segment& segment) {
  AtTheBell bell;
  if (segment.Kind != kMatch) return bell;
  if (const Title* title = TitleAtStake(world, segment)) {
    bell.ForTitle = true;
    bell.Champion = title->Holder;
    bell.CoChampion = title->Partner;
  }
  const int slot = HasAnyFeud(world) ? FeudBetween(world, SidesOf(segment)) : 0;
  if (slot == 0) return bell;
  const Feud& feud = world.Feuds()[slot];
  bell.Feud = {feud.Worker1, feud.Worker2, feud.Worker3, feud.Worker4};
  return bell;
}

void KeepBout(World& world, int number, const AtTheBell& bell) {
  const Segment& segment = world.Segments()[number];
  if (segment.Kind != kMatch) return;
  HeldMatch bout;
  bout.On = world.Today();
  bout.Promotion = world.PlayerUid();
  bout.Row = number;
  bout.IsEvent = world.ShowRuns()[1].IsEvent;
  bout.Style = segment.Style;
  bout.MatchType = segment.MatchType;
  bout.Rating = segment.Rating;
  for (std::size_t i = 0; i < bell.Feud.size(); ++i)
    bout.Feud[i] = world.FindWorker(bell.Feud[i]) ? bell.Feud[i] : 0;
  NamePeople(world, segment, bout);
  NoteTitle(world, segment, bell, bout);
  for (std::size_t i = 0; i < bout.Worker.size(); ++i)
    if (bout.Worker[i] != 0)
      AddToTally(world, bout.Worker[i], bout, static_cast<int>(i) < bout.Winners);
  AppendRolling(world.Bouts(), bout, kDropped);
}

std::string NamesOfMany(const World& world, const std::vector<int>& uids, std::size_t width) {
  if (uids.empty()) return {};
  if (uids.size() == 1) return WorkerName(world, uids[0]);
  if (uids.size() == 2) return PairName(world, uids[0], uids[1]);
  std::string text = WorkerShortName(world, uids[0]);
  for (std::size_t i = 1; i < uids.size(); ++i) {
    const bool last = i + 1 == uids.size();
    const std::string next = text + (last ? " and " : ", ") + WorkerShortName(world, uids[i]);
    const std::string rest = " and " + std::to_string(uids.size() - i - 1) + " more";
    if (next.size() + (last ? 0 : rest.size()) > width)
      return text + " and " + std::to_string(uids.size() - i) + " more";
    text = next;
  }
  return text;
}

}  // namespace grapplemont
