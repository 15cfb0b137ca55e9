#include "records/keepannals.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

constexpr int kDropped = 1000;

/// Whom or what a deed's words name.
enum class Names { Nothing, Worker, Owner, House, Injury, Words };
/// A deed that is worth keeping: from a number on, and at rivals' of those whom the public knows.
struct DeedKept {
  DeedKind Of;
  AnnalKind As;
  Names Who, Other;
  int Least = 0;
  int LeastOver = 0;
};
constexpr int kBadlyHurt = 6;  // months
constexpr int kKnown = 35;
constexpr DeedKept kKept[] = {
    {kDeedFounded, kAnnalFounded, Names::House, Names::Nothing},
    {kDeedClosed, kAnnalClosed, Names::House, Names::Nothing},
    {kDeedBought, kAnnalBought, Names::House, Names::Words},
    {kDeedRisen, kAnnalRisen, Names::House, Names::Nothing},
    {kDeedFallen, kAnnalFallen, Names::House, Names::Nothing},
    {kDeedOwner, kAnnalOwner, Names::Owner, Names::Nothing},
    {kDeedSigned, kAnnalSigned, Names::Worker, Names::Nothing, 0, kKnown},
    {kDeedStolen, kAnnalStolen, Names::Worker, Names::Words, 0, kKnown},
    {kDeedFired, kAnnalLetGo, Names::Worker, Names::Nothing, 0, kKnown},
    {kDeedLeft, kAnnalLeft, Names::Worker, Names::Nothing, 0, kKnown},
    {kDeedRetired, kAnnalRetired, Names::Worker, Names::Nothing},
    {kDeedInjured, kAnnalHurt, Names::Worker, Names::Injury, kBadlyHurt},
    {kDeedRenamed, kAnnalRenamed, Names::Worker, Names::Words},
};

/// What a spoiled record adds up to may be more than an event holds.
int Held(long long count) {
  return static_cast<int>(std::clamp<long long>(count, INT16_MIN, INT16_MAX));
}

AnnalSex SexOf(bool isMan) {
  return isMan ? kMan : kWoman;
}

/// "Okafor and Marsh", or what their team is called.
std::string Called(const World& world, int worker, int partner) {
  if (partner == 0) return WorkerName(world, worker);
  const std::string team = TeamNameOf(world, worker, partner);
  return team != "None"
             ? team
             : WorkerShortName(world, worker) + " and " + WorkerShortName(world, partner);
}

void SetNamed(const World& world, Annal& event, Names what, const Deed& deed, const Worker* who) {
  event.Name = deed.Who.View().substr(0, decltype(Annal::Name)::kWidth);
  if (what == Names::House) {
    event.What = deed.Who.View();
    event.Name = "";
  }
  if (what == Names::Worker) {
    event.Who[0] = who ? int(who->Uid) : 0;
    event.Sex = who ? SexOf(who->Gender) : kNobodysSex;
  }
  if (what == Names::Owner)
    for (const Staff& staff : world.AllStaff())
      if (staff.Name == deed.Who.View()) event.Sex = SexOf(staff.Gender);
}

}  // namespace

void BeginAnnals(World& world) {
  if (world.Annals().Count() > 0) return;
  Annal first{};
  first.On = world.Today();
  first.Kind = kAnnalsBegin;
  first.Number = kAnnalsVersion;
  world.Annals().Append(first);
}

void Keep(World& world, const Annal& event) {
  BeginAnnals(world);
  Records<Annal>& annals = world.Annals();
  if (annals.Full()) {
    int number = 0;
    annals.Keep([&](const Annal&) { return ++number == 1 || number > kDropped + 1; });
  }
  annals.Append(event);
}

Annal NewAnnal(const World& world, AnnalKind kind, const Promotion* house) {
  Annal event{};
  event.On = world.Today();
  event.Kind = kind;
  if (house) {
    event.Promotion = house->Uid;
    event.House = house->Initials;
  }
  return event;
}

void SetWho(const World& world, Annal& event, int worker, int partner) {
  event.Who[0] = worker;
  event.Who[1] = partner;
  event.Name = Called(world, worker, partner);
  const Worker* one = world.FindWorker(worker);
  event.Sex = partner != 0 ? kSeveral : one ? SexOf(one->Gender) : kNobodysSex;
}

void SetWhom(const World& world, Annal& event, int worker, int partner) {
  event.Whom[0] = worker;
  event.Whom[1] = partner;
  event.Other = Called(world, worker, partner);
}

void KeepDeed(World& world, const Deed& deed, const Worker* who) {
  if (!world.HasGame()) return;
  const auto row = std::ranges::find(kKept, int(deed.Kind), &DeedKept::Of);
  if (row == std::end(kKept) || deed.Number < row->Least) return;
  Annal event = NewAnnal(world, row->As, nullptr);
  event.Promotion = deed.Promotion;
  event.House = deed.House;
  event.Number = deed.Number;
  const bool isOwn = deed.Promotion == world.PlayerUid();
  if (!isOwn && who && who->Over < row->LeastOver) return;
  SetNamed(world, event, row->Who, deed, who);
  if (row->Other == Names::Words)
    event.Other = deed.Other.View().substr(0, decltype(Annal::Other)::kWidth);
  if (row->Other == Names::Injury) event.What = deed.Other;
  Keep(world, event);
}

void KeepFeud(World& world, AnnalKind kind, const Feud& feud, bool secondWon) {
  if (!world.HasGame()) return;
  Annal event = NewAnnal(world, kind, world.FindPromotion(world.PlayerUid()));
  const bool pairs = !feud.Singles;
  int one[] = {feud.Worker1, pairs ? int(feud.Worker2) : 0};
  int two[] = {pairs ? feud.Worker3 : feud.Worker2, pairs ? int(feud.Worker4) : 0};
  int won = feud.WonOne(), lost = feud.WonTwo();
  if (secondWon) {
    std::swap(one, two);
    std::swap(won, lost);
  }
  SetWho(world, event, one[0], one[1]);
  SetWhom(world, event, two[0], two[1]);
  event.Number = Held(won);
  event.Against = Held(lost);
  if (kind != kAnnalFeud) event.Days = Held((world.Today() - Day(feud.Started)).count());
  Keep(world, event);
}

void KeepGroup(World& world, AnnalKind kind, std::string_view name, int worker, int partner) {
  if (!world.HasGame()) return;
  const Worker* one = world.FindWorker(worker);
  Annal event =
      NewAnnal(world, kind, world.FindPromotion(one ? int(one->Employer) : world.PlayerUid()));
  SetWho(world, event, worker, partner);
  // The team's own name says nothing of who they are.
  if (partner != 0)
    event.Name = WorkerShortName(world, worker) + " and " + WorkerShortName(world, partner);
  event.What = name;
  Keep(world, event);
}

void KeepNewName(World& world, const Worker& worker, std::string_view before) {
  if (!world.HasGame()) return;
  Annal event = NewAnnal(world, kAnnalRenamed, world.FindPromotion(worker.Employer));
  SetWho(world, event, worker.Uid);
  event.Other = before;
  Keep(world, event);
}

void KeepTitle(World& world, const Promotion* house, std::string_view title) {
  if (!world.HasGame()) return;
  Annal event = NewAnnal(world, kAnnalTitle, house);
  event.What = title;
  Keep(world, event);
}

}  // namespace grapplemont
