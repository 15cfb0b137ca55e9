#include <algorithm>
#include <string>

#include "records/fields/fields.h"
#include "records/keepannals.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/founding.h"
#include "rivals/grudges.h"
#include "rivals/rivals.h"
#include "rivals/troupe.h"
#include "rivals/tuning.h"
#include "roster/postings.h"
#include "storylines/partners.h"
#include "words/names.h"
#include "words/stories.h"

namespace grapplemont {

namespace {

constexpr std::size_t kClientsAsked = 6;
constexpr int kNamesDropped = 100;

/// Somebody who cannot talk has somebody who can.
void TakeClient(World& world, const Promotion& rival, const Worker& manager, const Troupe& troupe) {
  std::vector<Worker*> alone;
  int clients = 0;
  for (Worker* worker : troupe.Wrestlers) {
    if (worker->Manager == manager.Uid) ++clients;
    if (!ManagerOf(world, *worker)) alone.push_back(worker);
  }
  if (manager.Status != "Nor" || clients >= tuning::kClientsWanted || alone.empty() ||
      !Happens(world, tuning::kClientTakenIn))
    return;
  std::ranges::stable_sort(alone, [](auto* a, auto* b) { return a->Charisma < b->Charisma; });
  if (alone.size() > kClientsAsked) alone.resize(kClientsAsked);
  Worker* client = AnyOf(world, alone);
  client->Manager = manager.Uid;
  NoteDeed(world, kDeedManaged, &rival, manager.Name, client->Name);
}

bool IsChampion(const World& world, const Worker& worker) {
  return std::ranges::any_of(world.Titles(), [&](const Title& title) {
    return title.Holder == worker.Uid || title.Partner == worker.Uid;
  });
}

/// The lowest on the card of those who are old enough and can talk leaves the ring.
void MakeManager(World& world, const Promotion& rival, const Troupe& troupe) {
  const int wanted = static_cast<int>(troupe.Wrestlers.size()) / tuning::kWrestlersAManager;
  if (static_cast<int>(troupe.Managers.size()) >= wanted || !Happens(world, tuning::kNewManagerIn))
    return;
  const auto old =
      std::find_if(troupe.Wrestlers.rbegin(), troupe.Wrestlers.rend(), [&](const Worker* worker) {
        return worker->Age >= tuning::kManagersAge && worker->Status == "Nor" &&
               worker->Charisma >= tuning::kManagersCharisma && worker->Speaks &&
               !troupe.Teamed.contains(worker->Uid) && !IsChampion(world, *worker);
      });
  if (old == troupe.Wrestlers.rend()) return;
  (*old)->Position = kManager;
  (*old)->Manager = 0;
  NoteDeed(world, kDeedManager, &rival, (*old)->Name);
}

// Titles.

bool IsForWomen(const Title& title) {
  return title.Woman;
}
bool IsForLightweights(const Title& title) {
  return title.Lightweight && !title.Woman;
}
bool IsForTeams(const Title& title) {
  return !title.Singles && !title.Woman && !title.Lightweight;
}

struct KindOfTitle {
  bool (*Is)(const Title& title);
  const char* What;
  TitleTerms Terms;
};
const KindOfTitle kKindsOfTitle[] = {
    {IsForWomen, "Women's Belt", {.Name = {}, .Woman = true}},
    {IsForLightweights, "Light Belt", {.Name = {}, .Lightweight = true}},
    {IsForTeams, "Tag Titles", {.Name = {}, .Singles = false}}};

int MayFightFor(const Title& title, const Troupe& troupe) {
  return static_cast<int>(std::ranges::count_if(
      troupe.Wrestlers, [&](const Worker* worker) { return FitsTitle(title, *worker); }));
}

/// A vacant Title rests while nobody could fight for it.
void RestTitles(World& world, const Promotion& rival, const Troupe& troupe) {
  for (Title& title : world.Titles()) {
    if (title.Owner != rival.Uid || title.Holder != 0) continue;
    const int least = title.Singles ? 2 : 4, there = MayFightFor(title, troupe);
    title.Suspended = there < least || (title.Suspended && there < least + 2);
  }
}

void MakeTitles(World& world, const Promotion& rival, const Troupe& troupe) {
  if (!Happens(world, tuning::kNewTitleIn)) return;
  RestTitles(world, rival, troupe);
  const auto count = [&](auto is) {
    return static_cast<int>(std::ranges::count_if(troupe.Wrestlers, is));
  };
  const bool enough[] = {
      count([](auto* worker) { return !worker->Gender; }) >= tuning::kWomenForTitle,
      count([](auto* worker) { return worker->Weight == "L"; }) >= tuning::kLightweightsForTitle,
      troupe.Teams >= tuning::kTeamsForTitle};
  for (std::size_t i = 0; i < std::size(kKindsOfTitle); ++i) {
    const KindOfTitle& kind = kKindsOfTitle[i];
    const bool has = std::ranges::any_of(world.Titles(), [&](const Title& title) {
      return title.Owner == rival.Uid && kind.Is(title);
    });
    if (has || !enough[i]) continue;
    if (const std::string name = FoundTitle(world, rival, kind.What, kind.Terms); !name.empty()) {
      NoteDeed(world, kDeedTitleMade, &rival, name);
      KeepTitle(world, &rival, name);
    }
  }
}

// Moves and names.

/// A new move, of the kind that they do best.
void LearnMove(World& world, Worker& worker) {
  const int best = BestSkillOf(worker);
  const char kind = worker.Brawl == best ? 'B' : worker.Technical == best ? 'T' : 'S';
  std::vector<const FinisherMove*> moves;
  for (const FinisherMove& move : FinisherMoves)
    if (move.Kind == kind && worker.Finisher1 != move.Name && worker.Finisher2 != move.Name)
      moves.push_back(&move);
  if (moves.empty()) return;
  const int slot = world.Life().Draw(2);
  const FinisherMove& move = *AnyOf(world, moves);
  (slot == 1 ? worker.Finisher1 : worker.Finisher2) = move.Name;
  FinisherFlags(worker, slot, move.Type);
}

/// The surname stays, and the old name is kept.
void ChangeName(World& world, const Promotion& rival, Worker& worker) {
  if (worker.Over > tuning::kKnownByName || IsChampion(world, worker)) return;
  const std::string before = worker.Name.Str();
  const std::size_t blank = before.rfind(' ');
  const std::string name = std::string(AnyOf(world, Nicknames)) + " " +
                           (blank == before.npos ? before : before.substr(blank + 1));
  constexpr std::size_t kLetters = decltype(Worker::Name)::kWidth;
  if (name.size() > kLetters || !WorkerNameFree(world, name)) return;
  RingName old{};
  old.Until = world.Today();
  old.Worker = worker.Uid;
  old.Name = before;
  AppendRolling(world.RingNames(), old, kNamesDropped);
  worker.Name = name;
  NoteDeed(world, kDeedRenamed, &rival, worker, before);
}

void Tell(World& world, const Promotion& rival, Troupe& troupe) {
  FormTeam(world, rival, troupe);
  MoveStables(world, rival, troupe);
  MakeManager(world, rival, troupe);
  for (const Worker* manager : troupe.Managers) TakeClient(world, rival, *manager, troupe);
  MakeTitles(world, rival, troupe);
  if (troupe.Wrestlers.empty()) return;
  if (Happens(world, tuning::kNewFinisherIn)) LearnMove(world, *AnyOf(world, troupe.Wrestlers));
  if (Happens(world, tuning::kNewNameIn)) ChangeName(world, rival, *AnyOf(world, troupe.Wrestlers));
}

}  // namespace

std::map<int, Troupe> TroupesOf(World& world) {
  std::map<int, Troupe> troupes;
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion)) troupes[promotion.Uid];
  for (Worker& worker : world.Workers()) {
    const auto found = troupes.find(worker.Employer);
    if (found == troupes.end()) continue;
    if (IsOnRoster(worker)) found->second.Wrestlers.push_back(&worker);
    if (worker.Position == kManager) found->second.Managers.push_back(&worker);
  }
  for (auto& [uid, troupe] : troupes)
    std::ranges::stable_sort(troupe.Wrestlers, [](const Worker* a, const Worker* b) {
      return std::pair<int, int>(a->Position, -a->Over) <
             std::pair<int, int>(b->Position, -b->Over);
    });
  for (const Team& team : world.Teams()) {
    const Worker* one = world.FindWorker(team.Worker1);
    const Worker* two = world.FindWorker(team.Worker2);
    if (!one || !two || one->Employer != two->Employer) continue;
    const auto found = troupes.find(one->Employer);
    if (found == troupes.end()) continue;
    found->second.Teamed.insert({one->Uid, two->Uid});
    ++found->second.Teams;
  }
  return troupes;
}

void RivalStories(World& world) {
  CoolGrudges(world);
  PartTeams(world);
  std::map<int, Troupe> troupes = TroupesOf(world);
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion)) Tell(world, promotion, troupes[promotion.Uid]);
}

}  // namespace grapplemont
