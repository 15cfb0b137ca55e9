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
constexpr int kALead = 3, kTooMany = 8, kFifty = 50, kSeasoned = 8, kGreen = 8;
constexpr int kALongReign = 100, kANewReign = 15, kAReturn = 180;  // days
constexpr int kAway = 60, kYoung = 25;
constexpr int kPerfect = 100;
constexpr std::size_t kFewNames = 3;

int DaysAgo(const World& world, Day day) {
  return static_cast<int>((world.Today() - day).count());
}

bool IsAmong(const Uids& uids, int uid) {
  return std::find(uids.begin(), uids.end(), uid) != uids.end();
}

/// What has been written down since the day of a rival's match is not known there.
bool HasBegun(const Teller& teller, const TitleReign& reign) {
  return teller.IsOurs() || Day(reign.From) < teller.Today();
}

int MatchesOf(const MatchTally* tally) {
  return tally ? tally->Won + tally->Lost + tally->Drawn : 0;
}

/// Whether they hold another Title, or have ever held one.
bool WasChampion(const Teller& teller, int uid) {
  const World& world = teller.world;
  const bool holds =
      teller.IsOurs() && std::any_of(world.Titles().begin(), world.Titles().end(), [&](auto& each) {
        return !(each.Name == teller.segment.TitleName) &&
               (each.Holder == uid || each.Partner == uid);
      });
  return holds || std::any_of(world.Reigns().begin(), world.Reigns().end(), [&](auto& reign) {
           return HasBegun(teller, reign) && (reign.Worker == uid || reign.Partner == uid);
         });
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
    OfTitle();
    if (!teller_.IsOurs()) return std::move(facts_);
    for (const Uids& side : sides_)
      for (const int uid : side) OfOne(uid);
    if (sides_.size() != 2) return std::move(facts_);
    const Uids &one = sides_[0], &two = sides_[1];
    OfMeetings(one, two);
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

  /// Everybody on another side than this one; nobody where they are on none.
  Uids Against(int uid) const {
    Uids all;
    bool isThere = false;
    for (const Uids& side : sides_) {
      const bool isOwn = IsAmong(side, uid);
      isThere |= isOwn;
      if (!isOwn) all.insert(all.end(), side.begin(), side.end());
    }
    return isThere ? all : Uids{};
  }

  Uids SideOf(int uid) const {
    for (const Uids& side : sides_)
      if (IsAmong(side, uid)) return side;
    return {};
  }

  void OfOne(int uid) {
    const Worker* worker = world_.FindWorker(uid);
    const MatchTally* tally = TallyOf(world_, uid);
    if (!worker) return;
    if (worker->RetiringSoon) Add({kLastMatch, 100, {uid}, Others(uid)});
    // Who comes late into a rumble does so unannounced.
    const bool isSecret = segment_.Style == kSpecial && segment_.MatchType == kRoyalRumble;
    if (tally && DaysAgo(world_, tally->Last) >= kAway && !isSecret && !WasOnACard(world_, uid))
      Add({kAwayLong, 65, {uid}, Others(uid), 0, DaysAgo(world_, tally->Last)});
    const int matches = MatchesOf(tally);
    const bool atTheTop =
        segment_.Style != kSpecial && (teller_.scene.IsLast || segment_.TitleName != "None");
    if (atTheTop && tally && matches <= kGreen && worker->Age <= kYoung && IsSeasoned())
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
          MatchesOf(TallyOf(world_, two[0])) >= kSeasoned && !HaveSharedARing(world_, one, two))
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
    const bool isLate = had.LastDaysAgo <= kLately && had.LastWinner != 0;
    // Whoever has won them all has won the last one.
    const bool tellsLast = isLate && low == 0 && high >= kALead;
    if (high - low >= kALead)
      Add({kSeriesLed, 50, oneLeads ? one : two, oneLeads ? two : one, high,
           tellsLast ? had.LastDaysAgo : -1, tally});
    if (had.LastDaysAgo > kLongApart)
      Add({kMetLongAgo, 45, one, two, had.Met, had.LastDaysAgo});
    else if (isLate && !tellsLast)
      Add({kMetLately, 50, had.LastWinner == 1 ? one : two, had.LastWinner == 1 ? two : one, 0,
           had.LastDaysAgo});
    if (IsYearsEnd(world_.Today()) && IsOnTheYearsList(world_, had.BestRating))
      Add({kYearsBest, 68, one, two, had.BestRating, had.BestDaysAgo});
  }

  bool IsOfTitle(const TitleReign& reign) const {
    return reign.Owner == teller_.Promotion() && reign.Title == segment_.TitleName &&
           HasBegun(teller_, reign);
  }
  bool Lasts(const TitleReign& reign) const {
    return reign.End == kReignLasts || (!teller_.IsOurs() && Day(reign.Until) >= teller_.Today());
  }
  int DaysSince(Day day) const { return static_cast<int>((teller_.Today() - day).count()); }

  /// Whether who holds the Title now took it in a match that they were not in.
  bool WentWithoutThem(const TitleReign& lost, const Uids& theirs) const {
    const auto& numbers = MatchesWith(world_, teller_.scene.Champion);
    return std::any_of(numbers.begin(), numbers.end(), [&](int number) {
      const HeldMatch& bout = world_.Bouts()[number];
      return bout.Promotion == lost.Owner && Day(bout.On) == Day(lost.Until) &&
             bout.Title == lost.Title &&
             !AnyOf(theirs, Uids(bout.Worker.begin(), bout.Worker.end()));
    });
  }

  /// The first match for the Title that they have since they lost it, and not too late for that.
  bool IsReturn(const TitleReign& lost, const Uids& theirs) const {
    return lost.End == kReignLost && DaysSince(lost.Until) <= kAReturn &&
           !WentWithoutThem(lost, theirs) &&
           !HaveFoughtFor(world_, segment_.TitleName.View(), theirs, lost.Until);
  }

  /// Of two who held it together and are now on different sides only the first can have it back.
  Uids OfOneSide(const Uids& challengers, const Uids& holders) const {
    Uids theirs;
    for (const Uids& side : sides_)
      if (Uids found = Shared(Shared(side, challengers), holders); found.size() > theirs.size())
        theirs = std::move(found);
    return theirs;
  }

  void OfTitle() {
    const int holder = teller_.scene.Champion;
    if (segment_.TitleName == "None" || holder == 0) return;
    const Uids challengers = Against(holder);
    if (challengers.empty()) return;
    const TitleReign *lasts = nullptr, *before = nullptr, *once = nullptr;
    for (const TitleReign& reign : world_.Reigns()) {
      if (!IsOfTitle(reign) || reign.Worker == 0) continue;
      if (Lasts(reign)) {
        lasts = &reign;
      } else {
        before = &reign;
        if (AnyOf({reign.Worker, reign.Partner}, challengers)) once = &reign;
      }
    }
    // Who only stands with the holder is no champion.
    const Uids champions =
        lasts ? Shared(SideOf(holder), {lasts->Worker, lasts->Partner}) : Uids{holder};
    if (champions.empty()) return;
    if (lasts) OfReign(*lasts, champions, challengers);
    if (once) {
      const Uids theirs = OfOneSide(challengers, {once->Worker, once->Partner});
      const bool isRematch = once == before && IsReturn(*once, theirs);
      Add({isRematch ? kTitleAgain : kOnceChampion, isRematch ? 75 : 58, theirs, champions, 0,
           DaysSince(once->Until)});
    }
    if (teller_.IsOurs() && IsSeasoned()) OfFirstShot(champions);
  }

  /// The first side beside the champions' of whom nobody has ever fought for a Title here.
  void OfFirstShot(const Uids& champions) {
    const auto isNew = [&](int uid) {
      const MatchTally* tally = TallyOf(world_, uid);
      return tally && tally->ForTitles == 0 && MatchesOf(tally) >= kSeasoned &&
             !WasChampion(teller_, uid);
    };
    for (const Uids& side : sides_) {
      if (AnyOf(side, champions) || !std::all_of(side.begin(), side.end(), isNew)) continue;
      const int matches = MatchesOf(TallyOf(world_, side[0]));
      return Add({kTitleNever, 52, side, champions, side.size() == 1 ? matches + 1 : 0});
    }
  }

  void OfReign(const TitleReign& reign, const Uids& champions, const Uids& challengers) {
    if (Day(reign.From) == Day(kNoTitleDate)) return;
    const int days = DaysSince(reign.From);
    // How often it has been defended by now is counted for the player's alone.
    const int defences = teller_.IsOurs() ? int(reign.Defences) : 0;
    const Uids named = challengers.size() <= kFewNames ? challengers : Uids{};
    if (days >= kALongReign)
      Add({kReignLong, 60, champions, named, days, -1,
           defences > 1 ? CountText(defences) + " defences" : std::string()});
    else if (days < kANewReign && days > 0 && defences <= 0 && teller_.IsOurs())
      Add({kReignNew, 54, champions, named, days, days});
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

bool IsDeadly(const Segment& segment) {
  constexpr int kDeadly[] = {kDeathMatch, kBarbedWire, kInferno};
  return segment.Style == kSingles &&
         std::count(std::begin(kDeadly), std::end(kDeadly), int(segment.MatchType)) != 0;
}

}  // namespace

bool WasOnACard(const World& world, int uid) {
  return std::any_of(world.KeptRows().begin(), world.KeptRows().end(), [&](const KeptRow& kept) {
    const int days = DaysAgo(world, kept.On);
    return !kept.IsDraft && days > 0 && days < kAway && IsAmong(EverybodyOf(kept.Booked), uid);
  });
}

std::vector<PastFact> LookBack(Teller& teller) {
  return Look(teller).Facts();
}

bool ChangesHands(Teller& teller) {
  const Segment& segment = teller.segment;
  if (teller.cast.Thing(Item::Title).empty() || IsDraw(segment)) return false;
  const Uids winners = segment.Style == kSpecial ? Uids{int(segment.Winner)} : WinnersOf(segment);
  return PassesTitles(segment) && !IsAmong(winners, teller.scene.Champion);
}

std::vector<PastMark> MarksOf(Teller& teller, const std::vector<int>& winners, bool changed) {
  const World& world = teller.world;
  std::vector<PastMark> marks;
  const bool isCrowded = teller.segment.Style == kSpecial;
  const auto others = winners.empty() || isCrowded ? Uids{} : LosersOf(teller.segment);
  // In a crowd only who is left at the end stands there to be seen off.
  for (const PastFact& fact : teller.Told)
    if (fact.Is == kLastMatch && (!isCrowded || AnyOf(winners, fact.One)))
      marks.push_back({kLastBow, fact});
  if (teller.IsOurs() && IsDeadly(teller.segment))
    for (const int uid : PeopleOf(teller.segment))
      if (const Worker* worker = world.FindWorker(uid); worker && worker->Status == "Inj")
        marks.push_back({kWentTooFar, {{}, 0, {uid}, {}}});
  if (teller.scene.Overall >= kPerfect && !winners.empty())
    marks.push_back({kPerfectMatch, {{}, 0, winners, others}});
  if (!changed || winners.empty()) return marks;
  const bool isFirst =
      world.Reigns().Count() > 0 && std::none_of(winners.begin(), winners.end(),
                                                 [&](int uid) { return WasChampion(teller, uid); });
  if (teller.IsOurs() && winners.size() == 1 && HasHeldAll(world, winners[0]))
    marks.push_back({kEveryCrown, {{}, 0, winners, others}});
  else if (isFirst)
    marks.push_back({kFirstCrown, {{}, 0, winners, others}});
  return marks;
}

}  // namespace grapplemont
