#include "storylines/feuds.h"

#include <algorithm>
#include <array>

#include "records/keepannals.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

/// An opponent is too low when they are more than this below the worker; teams count it per head.
constexpr int kLeagueGap = 20;

constexpr int kContrastBonus = 10;
constexpr int kColdestStart = 10;
constexpr int kHottestStart = 90;

/// Fewer wins and attacks than these, and nobody has noticed the feud yet.
constexpr int kNoticed = 4;
/// A feud that just stops hurts one in this many of its people, as much as losing the last bout
/// does.
constexpr int kHurtOdds = 4;
constexpr int kHurtOver = 2;
/// From this Attitude on a complaint is put politely.
constexpr int kPolite = 61;

std::vector<int> Members(const FeudSide& side) {
  return side.IsTeam() ? std::vector{side.First, side.Second} : std::vector{side.First};
}

std::vector<int> Members(const FeudSides& sides) {
  std::vector<int> all = Members(sides.One);
  for (const int uid : Members(sides.Two)) all.push_back(uid);
  return all;
}

int OverOf(const World& world, const FeudSide& side) {
  int sum = 0;
  for (const int uid : Members(side))
    if (const Worker* worker = world.FindWorker(uid)) sum += worker->Over;
  return sum;
}

/// The disposition that all of a side have; empty when they differ.
std::string_view DispositionOf(const World& world, const FeudSide& side) {
  const Worker* first = world.FindWorker(side.First);
  if (!first) return {};
  if (!side.IsTeam()) return first->Disposition;
  const Worker* second = world.FindWorker(side.Second);
  if (!second || second->Disposition != first->Disposition) return {};
  return first->Disposition;
}

int ContrastOf(std::string_view one, std::string_view two) {
  if ((one == "F" && two == "H") || (one == "H" && two == "F")) return kContrastBonus;
  return !one.empty() && one == two ? -kContrastBonus : 0;
}

bool IsTooLow(const World& world, const FeudSide& speaker, const FeudSide& opponent) {
  const int gap = kLeagueGap * static_cast<int>(Members(speaker).size());
  return OverOf(world, speaker) - gap > OverOf(world, opponent);
}

bool HasCreativeControl(const World& world, const FeudSide& side) {
  return std::ranges::any_of(Members(side), [&](int uid) {
    const Worker* worker = world.FindWorker(uid);
    return worker && worker->CreativeControl;
  });
}

FeudRefusal Refuse(const World& world, const FeudSide& speaker, const FeudSide& opponent) {
  const bool veto = HasCreativeControl(world, speaker);
  const std::string name = SideName(world, speaker);
  if (speaker.IsTeam())
    return {name +
                ": 'We are not willing to do this feud, our opponents are not in our "
                "league.'",
            veto ? "They have creative control, and refuse." : ""};
  return {name + ": 'I am not willing to do this feud, " + SideName(world, opponent) +
              " is not in my league.'",
          veto ? name + " has creative control, and refuses." : ""};
}

void Complain(World& world, const Worker& worker) {
  AddNews(world, worker.Name,
          worker.Attitude >= kPolite
              ? "Ending my last feud off-camera was a bad move, i think it has hurt my popularity."
              : "Ending my last feud off-camera was a stupid move, it has hurt my popularity.");
}

/// A feud as Maeve looks at it, and the same feud with its sides changed over.
struct View {
  const Feud& Seen;
  int Won, WonThere;      // totals of the side looked from and of the other
  int Clean, DirtyThere;  // clean wins here, dirty wins there
  int Sum() const { return Won + WonThere; }
};

/// A sentence; with something after the name it names the side for which the test holds. Side one
/// is tried first.
struct Opinion {
  bool (*Fits)(const View&);
  std::string_view Before, After = {};
  bool IsEnd = false;  // says that the feud should come to one
};

// The first that fits is said, so the order is the rule. The one about losing popularity stands
// before the one about falling behind and leaves it nothing to fit.
constexpr std::array<Opinion, 8> kOpinions = {{
    {[](const View& v) { return v.Sum() < 4 && v.Seen.Singles; },
     "You need to build this rivalry up more. Use matches, interviews and angles to heat things "
     "up."},
    {[](const View& v) { return v.Sum() < 4; },
     "You need to build this rivalry up more, it has barely begun."},
    {[](const View& v) { return v.Seen.Dirty1 == 0 && v.Seen.Dirty2 == 0; },
     "I'd give one of the teams a few cheap wins - clean-cut faces vs cheating heels always "
     "draws."},
    {[](const View& v) {
       return v.Won == 0 && v.Won + 5 < v.WonThere && v.Clean == 0 && v.DirtyThere >= 4;
     },
     "This feud is poised perfectly for ", " to get a climatic clean victory to end the feud.",
     true},
    {[](const View& v) { return v.Sum() <= 13 && v.Won == v.WonThere; },
     "A nice even feud - i'd let one team get slightly ahead, then have the other team win the "
     "feud-ending bout to even the score."},
    {[](const View& v) { return v.Sum() > 13; },
     "This feud has been built up well, i think we should end it with a big gimmick bout, then "
     "move both teams onto new feuds.",
     "", true},
    {[](const View& v) { return v.Won + 5 > v.WonThere; }, "",
     " would lose popularity if they lost the feud at this stage."},
    {[](const View& v) { return v.Won + 5 < v.WonThere; }, "I'd give ",
     " more wins, as they are falling too far behind."},
}};

/// The first that fits, if any, and whether it does so from side one.
struct Found {
  const Opinion* Is = nullptr;
  bool FromOne = false;
};

Found FirstOf(const Feud& feud) {
  const FeudScore score = FeudWins(feud);
  const View one{feud, score.One, score.Two, feud.Clean1, feud.Dirty2};
  const View two{feud, score.Two, score.One, feud.Clean2, feud.Dirty1};
  for (const Opinion& opinion : kOpinions) {
    const bool fitsOne = opinion.Fits(one);
    if (fitsOne || opinion.Fits(two)) return {&opinion, fitsOne};
  }
  return {};
}

}  // namespace

bool IsFreeSlot(const Feud& feud) {
  return feud.Worker1 == 0;
}

int FreeFeudSlot(const World& world) {
  int slot = 0;
  for (const Feud& feud : world.Feuds()) {
    ++slot;
    if (IsFreeSlot(feud)) return slot;
  }
  return slot < kFeuds ? slot + 1 : 0;
}

FeudSides SidesOf(const Feud& feud) {
  if (feud.Singles) return {{feud.Worker1, 0}, {feud.Worker2, 0}};
  return {{feud.Worker1, feud.Worker2}, {feud.Worker3, feud.Worker4}};
}

bool EnemiesMeet(const Feud& feud, const std::vector<int>& people) {
  if (IsFreeSlot(feud)) return false;
  const FeudSides sides = SidesOf(feud);
  const auto has = [&](const FeudSide& side) {
    return std::ranges::any_of(people, [&](int uid) { return side.Has(uid); });
  };
  return has(sides.One) && has(sides.Two);
}

std::string SideName(const World& world, const FeudSide& side) {
  return side.IsTeam() ? PairName(world, side.First, side.Second) : WorkerName(world, side.First);
}

FeudScore FeudWins(const Feud& feud) {
  return {feud.WonOne(), feud.WonTwo()};
}

bool FeudExists(const World& world, int workerA, int workerB) {
  return FeudExists(world, {{workerA, 0}, {workerB, 0}});
}

bool FeudExists(const World& world, const FeudSides& sides) {
  return std::ranges::any_of(world.Feuds(), [&](const Feud& feud) {
    if (IsFreeSlot(feud) || bool(feud.Singles) == sides.One.IsTeam()) return false;
    const FeudSides held = SidesOf(feud);
    return (held.One == sides.One && held.Two == sides.Two) ||
           (held.One == sides.Two && held.Two == sides.One);
  });
}

bool MayFeud(const World& world, const Worker& worker) {
  return WorksForPlayer(world, worker) && worker.Status == "Nor" && IsSeenOnShows(worker);
}

std::vector<const Worker*> FeudRoster(const World& world) {
  std::vector<const Worker*> roster = SeenOnShows(world);
  std::erase_if(roster, [&](const Worker* worker) { return !MayFeud(world, *worker); });
  return roster;
}

StartingHeat StartingHeatOf(const World& world, const FeudSides& sides) {
  StartingHeat start;
  const int heads = static_cast<int>(Members(sides).size());
  start.Popularity = (OverOf(world, sides.One) + OverOf(world, sides.Two)) / heads;
  start.Contrast = ContrastOf(DispositionOf(world, sides.One), DispositionOf(world, sides.Two));
  start.Heat = std::clamp(start.Popularity + start.Contrast, kColdestStart, kHottestStart);
  return start;
}

std::string WhyNoFeud(const World& world, const FeudSides& sides) {
  const FeudSide& one = sides.One;
  if (sides.Two.Has(one.First) || sides.Two.Has(one.Second))
    return "Wrestlers cannot feud with themselves!";
  if (one.First == one.Second || sides.Two.First == sides.Two.Second)
    return "You have selected the same worker twice!";
  if (FeudExists(world, sides)) return "They are already in a feud with each other!";
  if (FreeFeudSlot(world) == 0) return "All eight feud slots are taken. End a feud first.";
  return {};
}

std::optional<FeudRefusal> RefusalOf(const World& world, const FeudSides& sides) {
  if (IsTooLow(world, sides.One, sides.Two)) return Refuse(world, sides.One, sides.Two);
  if (IsTooLow(world, sides.Two, sides.One)) return Refuse(world, sides.Two, sides.One);
  return std::nullopt;
}

int StartFeud(World& world, const FeudSides& sides) {
  const int slot = FreeFeudSlot(world);
  while (world.Feuds().Count() < slot) world.Feuds().Append({});
  Feud feud;
  feud.Singles = !sides.One.IsTeam();
  feud.Worker1 = sides.One.First;
  feud.Worker2 = feud.Singles ? sides.Two.First : sides.One.Second;
  feud.Worker3 = feud.Singles ? 0 : sides.Two.First;
  feud.Worker4 = feud.Singles ? 0 : sides.Two.Second;
  feud.Heat = StartingHeatOf(world, sides).Heat;
  feud.Started = world.Today();
  world.Feuds()[slot] = feud;
  KeepFeud(world, kAnnalFeud, feud);
  return slot;
}

void EndFeudOffCamera(World& world, int slot) {
  const Feud ended = world.Feuds()[slot];
  world.Feuds()[slot] = Feud{};
  KeepFeud(world, kAnnalFeudCold, ended);
  const FeudScore score = FeudWins(ended);
  if (score.One + score.Two < kNoticed) return;
  for (const int uid : Members(SidesOf(ended))) {
    Worker* worker = world.FindWorker(uid);
    if (!worker || world.RandomDraw(kHurtOdds) != 1 || worker->Over <= 0) continue;
    worker->Over -= kHurtOver;
    Complain(world, *worker);
  }
}

std::string AssessFeud(const World& world, const Feud& feud) {
  const Found found = FirstOf(feud);
  if (!found.Is) return "I'd keep developing this feud, it is getting interesting.";
  const FeudSides sides = SidesOf(feud);
  std::string text(found.Is->Before);
  if (!found.Is->After.empty())
    text.append(SideName(world, found.FromOne ? sides.One : sides.Two)).append(found.Is->After);
  return text;
}

bool IsRipe(const Feud& feud) {
  const Opinion* opinion = FirstOf(feud).Is;
  return opinion && opinion->IsEnd;
}

}  // namespace grapplemont
