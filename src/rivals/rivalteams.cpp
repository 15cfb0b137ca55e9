#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>

#include "records/fields/fields.h"
#include "records/keepannals.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/grudges.h"
#include "rivals/rivals.h"
#include "rivals/troupe.h"
#include "rivals/tuning.h"
#include "storylines/partners.h"
#include "words/stories.h"

namespace grapplemont {

namespace {

constexpr int kTriesForAName = 20;

/// Nobody who is cheered teams up with somebody who is booed.
bool GetOn(const Worker& one, const Worker& two) {
  return bool(one.Gender) == bool(two.Gender) && (one.Disposition == two.Disposition.View() ||
                                                  one.Disposition == "T" || two.Disposition == "T");
}

/// "The Rusty Anchors", which no team and no stable is called; nothing where the draws find none.
template <class Nouns>
std::optional<std::string> DrawGroupName(World& world, const Nouns& nouns) {
  for (int i = 0; i < kTriesForAName; ++i) {
    std::string name = "The " + std::string(AnyOf(world, StoryEpithets));
    name += " " + std::string(AnyOf(world, nouns));
    if (WhyNotTeamName(world, name).empty() && WhyNotStableName(world, name).empty()) return name;
  }
  return std::nullopt;
}

bool AreChampions(const World& world, const Team& team) {
  return std::ranges::any_of(world.Titles(), [&](const Title& title) {
    return title.Holder != 0 && IsTeamOf(team, title.Holder, title.Partner);
  });
}

/// One of the two is cheered from now on, the other booed.
void FallOut(World& world, Worker& one, Worker& two) {
  if (one.Disposition != two.Disposition.View()) return;
  Worker& turner = world.Life().Draw(2) == 1 ? one : two;
  turner.Disposition = turner.Disposition == "H" ? "F" : "H";
  turner.LastTurn = world.Today();
}

void SplitUp(World& world, const Promotion& rival, const Team& team, Worker& one, Worker& two) {
  KeepGroup(world, kAnnalParted, team.Name, one.Uid, two.Uid);
  NoteDeed(world, kDeedTeamSplit, &rival, team.Name, one.ShortName + " and " + two.ShortName.Str());
  FallOut(world, one, two);
  BeginGrudge(world, rival, one.Uid, two.Uid, kGrudgeSplit);
}

/// Whether it is a team no longer after this week.
bool Parts(World& world, const Team& team) {
  Worker* one = world.FindWorker(team.Worker1);
  Worker* two = world.FindWorker(team.Worker2);
  if (!one || !two || WorksForPlayer(world, *one) || WorksForPlayer(world, *two)) return false;
  const Promotion* employer = world.FindPromotion(one->Employer);
  if (!employer || one->Employer != two->Employer) return Happens(world, tuning::kPairForgottenIn);
  if (!Happens(world, tuning::kTeamSplitsIn) || AreChampions(world, team)) return false;
  SplitUp(world, *employer, team, *one, *two);
  return true;
}

}  // namespace

void PartTeams(World& world) {
  world.Teams().Keep([&](const Team& team) { return !Parts(world, team); });
}

void FormTeam(World& world, const Promotion& rival, Troupe& troupe) {
  const int wrestlers = static_cast<int>(troupe.Wrestlers.size());
  if (troupe.Teams >= wrestlers / tuning::kWrestlersATeam || world.Teams().Full() ||
      !Happens(world, tuning::kNewTeamIn))
    return;
  std::vector<std::pair<Worker*, Worker*>> pairs;
  Worker* above = nullptr;
  for (Worker* worker : troupe.Wrestlers) {
    if (troupe.Teamed.contains(worker->Uid)) continue;
    if (above && GetOn(*above, *worker)) pairs.emplace_back(above, worker);
    above = worker;
  }
  if (pairs.empty()) return;
  const auto [one, two] = AnyOf(world, pairs);
  const std::optional<std::string> name = DrawGroupName(world, TeamNouns);
  if (!name) return;
  FormTeam(world, *name, one->Uid, two->Uid, AnyOf(world, TeamMoves));
  NoteDeed(world, kDeedTeamed, &rival, *name, one->ShortName + " and " + two->ShortName.Str());
  troupe.Teamed.insert({one->Uid, two->Uid});
  ++troupe.Teams;
}

namespace {

/// The most popular first.
std::vector<Worker*> MembersOf(const Troupe& troupe, std::string_view stable) {
  std::vector<Worker*> members;
  for (const auto* people : {&troupe.Wrestlers, &troupe.Managers})
    for (Worker* worker : *people)
      if (worker->Stable == stable) members.push_back(worker);
  std::ranges::stable_sort(members, [](auto* a, auto* b) { return a->Over > b->Over; });
  return members;
}

/// Those who belong nowhere and get on with the leader, the nearest in popularity first.
std::vector<Worker*> Followers(const Troupe& troupe, const Worker& leader) {
  std::vector<Worker*> found;
  for (Worker* worker : troupe.Wrestlers)
    if (worker != &leader && !IsInStable(*worker) && GetOn(leader, *worker))
      found.push_back(worker);
  std::ranges::stable_sort(found, {}, [&](const Worker* worker) {
    return std::abs(int(worker->Over) - int(leader.Over));
  });
  return found;
}

/// Whoever is in it, the young in the territory and the hurt among them.
void EndStable(World& world, const Promotion& rival, const std::string& name) {
  for (Worker& worker : world.Workers())
    if (worker.Employer == rival.Uid && worker.Stable == name) worker.Stable = "None";
  world.Stables().Keep(
      [&](const Stable& stable) { return stable.Owner != rival.Uid || stable.Name != name; });
  NoteDeed(world, kDeedStableEnded, &rival, name);
}

void TakeIn(World& world, const Promotion& rival, const std::string& name,
            const std::vector<Worker*>& members, const Troupe& troupe) {
  if (members.empty() || static_cast<int>(members.size()) >= tuning::kStableWants ||
      !Happens(world, tuning::kStableTakesIn))
    return;
  const std::vector<Worker*> found = Followers(troupe, *members.front());
  if (found.empty()) return;
  found.front()->Stable = name;
  KeepGroup(world, kAnnalJoined, name, found.front()->Uid);
  NoteDeed(world, kDeedJoined, &rival, found.front()->Name, name);
}

std::optional<std::string> DrawStableName(World& world, const Worker& leader) {
  const std::string own = leader.ShortName + "'s " + std::string(AnyOf(world, Followings));
  if (Happens(world, 2) && WhyNotStableName(world, own).empty()) return own;
  return DrawGroupName(world, StableNouns);
}

void Found(World& world, const Promotion& rival, const Troupe& troupe) {
  constexpr std::size_t kFirstFollowers = 2;
  const auto leader = std::ranges::find_if(
      troupe.Wrestlers, [](const Worker* worker) { return !IsInStable(*worker); });
  if (leader == troupe.Wrestlers.end() || world.Stables().Full()) return;
  const std::vector<Worker*> followers = Followers(troupe, **leader);
  if (followers.size() < kFirstFollowers) return;
  const std::optional<std::string> name = DrawStableName(world, **leader);
  if (!name) return;
  Stable stable;
  stable.Name = *name;
  stable.Owner = rival.Uid;
  world.Stables().Append(stable);
  (*leader)->Stable = *name;
  for (std::size_t i = 0; i < kFirstFollowers; ++i) followers[i]->Stable = *name;
  KeepGroup(world, kAnnalStable, *name, (*leader)->Uid);
  NoteDeed(world, kDeedStableFounded, &rival, *name, (*leader)->Name);
}

}  // namespace

void MoveStables(World& world, const Promotion& rival, const Troupe& troupe) {
  std::vector<std::string> names;
  for (const Stable& stable : world.Stables())
    if (stable.Owner == rival.Uid) names.push_back(stable.Name.Str());
  std::vector<const Worker*> leaders;
  int standing = 0;
  for (const std::string& name : names) {
    const std::vector<Worker*> members = MembersOf(troupe, name);
    if (members.empty() || Happens(world, tuning::kStableEndsIn)) {
      EndStable(world, rival, name);
      continue;
    }
    ++standing;
    TakeIn(world, rival, name, members, troupe);
    if (members.size() > 1 && IsOnRoster(*members.front())) leaders.push_back(members.front());
  }
  if (leaders.size() > 1 && Happens(world, tuning::kStableFeudIn)) {
    const Worker* one = AnyOf(world, leaders);
    std::erase_if(leaders, [&](auto* leader) {
      return leader == one || bool(leader->Gender) != bool(one->Gender);
    });
    if (!leaders.empty())
      BeginGrudge(world, rival, one->Uid, AnyOf(world, leaders)->Uid, kGrudgeStable);
  }
  const int wrestlers = static_cast<int>(troupe.Wrestlers.size());
  if (standing < wrestlers / tuning::kWrestlersAStable && Happens(world, tuning::kNewStableIn))
    Found(world, rival, troupe);
}

}  // namespace grapplemont
