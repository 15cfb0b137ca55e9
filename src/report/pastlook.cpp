#include "report/pastlook.h"

#include <algorithm>
#include <ranges>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/pastmatches.h"
#include "records/segments.h"
#include "report/stages.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

using Uids = std::vector<int>;

constexpr int kLately = 60, kLongApart = 365, kAMonth = 28, kSlotIsYoung = 180;
constexpr int kALead = 3, kTooMany = 8, kFifty = 50, kARun = 5, kSeasoned = 8, kGreen = 8;
constexpr int kALongReign = 100, kManyDefences = 3, kANewReign = 15, kAway = 60, kGreat = 80;
constexpr int kDecember = 12, kPerfect = 100;

int DaysAgo(const World& world, Day day) {
  return static_cast<int>((world.Today() - day).count());
}

bool IsAmong(const Uids& uids, int uid) {
  return std::find(uids.begin(), uids.end(), uid) != uids.end();
}

/// Whether a match was between these two sides; 1 or 2 for the side whose people come first.
int FirstSide(const HeldMatch& bout, const Uids& one, const Uids& two) {
  const auto holds = [&](std::size_t from, const Uids& side) {
    for (std::size_t i = 0; i < side.size(); ++i)
      if (!IsAmong(side, bout.Worker[from + i])) return false;
    return true;
  };
  if (one.size() != two.size() || one.empty()) return 0;
  if (holds(0, one)) return holds(one.size(), two) ? 1 : 0;
  return holds(0, two) && holds(one.size(), one) ? 2 : 0;
}

int MatchesOf(const MatchTally* tally) {
  return tally ? tally->Won + tally->Lost + tally->Drawn : 0;
}

/// The people of a match, and what is gathered of them.
class Look {
 public:
  explicit Look(Teller& teller)
      : teller_(teller),
        world_(teller.world),
        segment_(teller.segment),
        sides_(SidesOf(segment_)) {}

  std::vector<PastFact> Facts() {
    for (const Uids& side : sides_)
      for (const int uid : side) OfOne(uid);
    if (sides_.size() != 2) return std::move(facts_);
    const Uids &one = sides_[0], &two = sides_[1];
    OfMeetings(one, two);
    OfTitle();
    OfRoad(one, two);
    if (one.size() == 1) {
      OfPartner(one[0], two[0]);
      OfPartner(two[0], one[0]);
    }
    for (PastFact& fact : CallbacksOf(teller_, one, two)) facts_.push_back(std::move(fact));
    return std::move(facts_);
  }

 private:
  void Add(PastFact fact) { facts_.push_back(std::move(fact)); }

  Uids Others(int uid) const {
    for (std::size_t i = 0; sides_.size() == 2 && i < 2; ++i)
      if (IsAmong(sides_[i], uid)) return sides_[1 - i];
    return {};
  }

  void OfOne(int uid) {
    const Worker* worker = world_.FindWorker(uid);
    const MatchTally* tally = TallyOf(world_, uid);
    if (!worker) return;
    if (worker->RetiringSoon) Add({kLastMatch, 100, {uid}, Others(uid)});
    if (tally && DaysAgo(world_, tally->Last) >= kAway)
      Add({kAwayLong, 65, {uid}, Others(uid), 0, DaysAgo(world_, tally->Last)});
    const int matches = MatchesOf(tally);
    const bool atTheTop = teller_.scene.IsLast || segment_.TitleName != "None";
    if (atTheTop && tally && matches <= kGreen && IsSeasoned())
      Add({kNewAtTheTop, 62, {uid}, Others(uid), matches + 1});
    if (segment_.Style != kSingles || matches < kARun) return;
    if (const int run = RunOf(world_, uid); run >= kARun)
      Add({kWinsInARow, 38 + std::min(run, 20), {uid}, Others(uid), run});
    else if (run <= -kARun)
      Add({kLossesInARow, 36 + std::min(-run, 20), {uid}, Others(uid), -run});
  }

  /// The slot is old enough to know that something has not been before.
  bool IsSeasoned() const {
    const auto& bouts = world_.Bouts();
    return bouts.Count() > 0 && DaysAgo(world_, bouts[1].On) >= kSlotIsYoung;
  }

  void OfMeetings(const Uids& one, const Uids& two) {
    if (segment_.Style != kSingles && segment_.Style != kTag) return;
    const Meetings had = MeetingsOf(world_, segment_.Style, one, two);
    if (had.Met == 0) {
      if (IsSeasoned() && MatchesOf(TallyOf(world_, one[0])) >= kSeasoned &&
          MatchesOf(TallyOf(world_, two[0])) >= kSeasoned)
        Add({kMetFirst, 30, one, two});
      return;
    }
    const int now = had.Met + 1;
    if (now % kFifty == 0) Add({kMetFiftyTimes, 95, one, two, now});
    if (had.LastYear >= kTooMany) Add({kMetTooOften, 70, one, two, had.LastYear + 1});
    const bool oneLeads = had.One > had.Two;
    const int high = std::max(had.One, had.Two), low = std::min(had.One, had.Two);
    const std::string tally =
        CountText(high) + " to " + (low > 0 ? CountText(low) : std::string("nothing"));
    if (high == low && high >= 2) Add({kSeriesLevel, 55, one, two, high});
    if (high - low >= kALead)
      Add({kSeriesLed, 50, oneLeads ? one : two, oneLeads ? two : one, high, -1, tally});
    if (had.LastDaysAgo > kLongApart)
      Add({kMetLongAgo, 45, one, two, had.Met, had.LastDaysAgo});
    else if (had.LastDaysAgo <= kLately && had.LastWinner != 0)
      Add({kMetLately, 50, had.LastWinner == 1 ? one : two, had.LastWinner == 1 ? two : one, 0,
           had.LastDaysAgo});
    if (MonthOf(world_.Today()) == kDecember && had.BestRating >= kGreat)
      Add({kYearsBest, 68, one, two, had.BestRating, had.BestDaysAgo});
  }

  bool IsOfTitle(const TitleReign& reign) const {
    return reign.Owner == world_.PlayerUid() && reign.Title == segment_.TitleName;
  }

  void OfTitle() {
    const int holder = teller_.scene.Champion;
    if (segment_.TitleName == "None" || holder == 0) return;
    const Uids challengers = Others(holder);
    if (challengers.empty()) return;
    const TitleReign *lasts = nullptr, *before = nullptr, *once = nullptr;
    for (const TitleReign& reign : world_.Reigns()) {
      if (!IsOfTitle(reign) || reign.Worker == 0) continue;
      if (reign.End == kReignLasts) {
        lasts = &reign;
      } else {
        before = &reign;
        if (IsAmong(challengers, reign.Worker)) once = &reign;
      }
    }
    if (lasts) OfReign(*lasts, challengers);
    if (once && once == before && once->End == kReignLost)
      Add({kTitleAgain, 75, challengers, {holder}, 0, DaysAgo(world_, once->Until)});
    else if (once)
      Add({kOnceChampion, 58, challengers, {holder}, 0, DaysAgo(world_, once->Until)});
    const MatchTally* tally = TallyOf(world_, challengers[0]);
    if (!once && tally && tally->ForTitles == 0 && MatchesOf(tally) >= kSeasoned && IsSeasoned())
      Add({kTitleNever, 52, challengers, {holder}, MatchesOf(tally) + 1});
  }

  void OfReign(const TitleReign& reign, const Uids& challengers) {
    if (Day(reign.From) == Day(kNoTitleDate)) return;
    const int days = DaysAgo(world_, reign.From), defences = reign.Defences;
    const Uids champions = Others(challengers[0]);
    if (days >= kALongReign || defences >= kManyDefences)
      Add({kReignLong, 60, champions, challengers, days, -1,
           defences > 1 ? CountText(defences) + " defences" : std::string()});
    else if (days < kANewReign && days > 0 && defences <= 0)
      Add({kReignNew, 54, champions, challengers, days, days});
  }

  /// What an Event recalls: since when the two have been at it.
  void OfRoad(const Uids& one, const Uids& two) {
    if (!teller_.scene.IsEvent) return;
    const FeudOfSides feud = FeudTold(teller_);
    if (!feud.Between) return;
    int met = 0;
    for (const HeldMatch& bout : world_.Bouts())
      if (bout.Feud[0] == feud.Between->Worker1 && bout.Feud[1] == feud.Between->Worker2 &&
          Day(bout.On) >= Day(feud.Between->Started))
        ++met;
    const int days = DaysAgo(world_, feud.Between->Started);
    // One match is no number that is worth a word.
    if (days > kAMonth / 2) Add({kRoadHere, 82, one, two, met > 1 ? met : 0, days});
  }

  /// The other one has lately beaten this one's partner.
  void OfPartner(int uid, int other) {
    for (const Team& team : world_.Teams()) {
      if (team.Worker1 != uid && team.Worker2 != uid) continue;
      const int mate = team.Worker1 == uid ? team.Worker2 : team.Worker1;
      const Meetings had = MeetingsOf(world_, kSingles, {other}, {mate});
      if (had.LastWinner != 1 || had.LastDaysAgo > kAMonth || had.LastDaysAgo < 1) continue;
      PastFact fact{kPartnerBeaten, 60, {uid}, {other}, 0, had.LastDaysAgo};
      fact.Tally = WorkerName(world_, mate);
      Add(std::move(fact));
    }
  }

  Teller& teller_;
  const World& world_;
  const Segment& segment_;
  std::vector<Uids> sides_;
  std::vector<PastFact> facts_;
};

/// All single Titles of the player's that stand, and whether the worker has ever held each.
bool HasHeldAll(const World& world, int uid) {
  constexpr int kWorthTelling = 3;
  int titles = 0;
  for (const Title& title : world.Titles()) {
    if (title.Owner != world.PlayerUid() || !title.Singles || title.Suspended) continue;
    ++titles;
    const bool held = title.Holder == uid ||
                      std::any_of(world.Reigns().begin(), world.Reigns().end(), [&](auto& reign) {
                        return reign.Worker == uid && reign.Title == title.Name;
                      });
    if (!held) return false;
  }
  return titles >= kWorthTelling;
}

bool WasChampion(const World& world, int uid) {
  return std::any_of(world.Reigns().begin(), world.Reigns().end(), [&](const TitleReign& reign) {
    return reign.Worker == uid || reign.Partner == uid;
  });
}

bool IsDeadly(const Segment& segment) {
  constexpr int kDeadly[] = {kDeathMatch, kBarbedWire, kInferno};
  return segment.Style == kSingles &&
         std::count(std::begin(kDeadly), std::end(kDeadly), int(segment.MatchType)) != 0;
}

}  // namespace

bool AnyOf(const std::vector<int>& some, const std::vector<int>& others) {
  return std::any_of(some.begin(), some.end(), [&](int uid) { return IsAmong(others, uid); });
}

Meetings MeetingsOf(const World& world, int style, const std::vector<int>& one,
                    const std::vector<int>& two) {
  Meetings had;
  if (one.empty()) return had;
  for (const int number : MatchesWith(world, one[0])) {
    const HeldMatch& bout = world.Bouts()[number];
    if (bout.Style != style || bout.Promotion != world.PlayerUid()) continue;
    const int first = FirstSide(bout, one, two);
    if (first == 0) continue;
    ++had.Met;
    had.LastDaysAgo = DaysAgo(world, bout.On);
    had.LastWinner = bout.Winners == 0 ? 0 : first;
    if (had.LastWinner == 1) ++had.One;
    if (had.LastWinner == 2) ++had.Two;
    if (had.LastDaysAgo <= 365) ++had.LastYear;
    if (YearOf(bout.On) == YearOf(world.Today()) && bout.Rating > had.BestRating) {
      had.BestRating = bout.Rating;
      had.BestDaysAgo = had.LastDaysAgo;
    }
  }
  return had;
}

int RunOf(const World& world, int uid) {
  int run = 0;
  for (const int number : std::views::reverse(MatchesWith(world, uid))) {
    const HeldMatch& bout = world.Bouts()[number];
    if (bout.Style == kSpecial || bout.Promotion != world.PlayerUid()) continue;
    const auto* end = bout.Worker.begin() + 8;
    const auto* at = std::find(bout.Worker.begin(), end, uid);
    if (at == end) continue;
    const bool won = at - bout.Worker.begin() < bout.Winners;
    if (bout.Winners == 0 || (run != 0 && (run > 0) != won)) return run;
    run += won ? 1 : -1;
  }
  return run;
}

std::vector<PastFact> LookBack(Teller& teller) {
  return Look(teller).Facts();
}

bool ChangesHands(Teller& teller) {
  const Segment& segment = teller.segment;
  if (teller.cast.Thing(Item::Title).empty() || IsDraw(segment) || segment.Style == kSpecial)
    return false;
  return PassesTitles(segment) && !IsAmong(WinnersOf(segment), teller.scene.Champion);
}

std::vector<PastMark> MarksOf(Teller& teller, const std::vector<int>& winners, bool changed) {
  const World& world = teller.world;
  std::vector<PastMark> marks;
  const auto others = winners.empty() ? Uids{} : LosersOf(teller.segment);
  for (const PastFact& fact : teller.Told)
    if (fact.Is == kLastMatch) marks.push_back({kLastBow, fact});
  if (IsDeadly(teller.segment))
    for (const int uid : PeopleOf(teller.segment))
      if (const Worker* worker = world.FindWorker(uid); worker && worker->Status == "Inj")
        marks.push_back({kWentTooFar, {{}, 0, {uid}, {}}});
  if (teller.scene.Overall >= kPerfect && !winners.empty())
    marks.push_back({kPerfectMatch, {{}, 0, winners, others}});
  if (!changed || winners.empty()) return marks;
  const int champion = winners[0];
  if (winners.size() == 1 && HasHeldAll(world, champion))
    marks.push_back({kEveryCrown, {{}, 0, winners, others}});
  else if (world.Reigns().Count() > 0 && !WasChampion(world, champion))
    marks.push_back({kFirstCrown, {{}, 0, winners, others}});
  return marks;
}

}  // namespace grapplemont
