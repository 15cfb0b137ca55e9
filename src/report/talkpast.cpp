#include "report/talkpast.h"

#include <algorithm>
#include <cstdlib>
#include <ranges>
#include <utility>
#include <vector>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/pastmatches.h"
#include "records/segments.h"
#include "report/pastlook.h"
#include "report/teller.h"

namespace grapplemont {

namespace {

using Uids = std::vector<int>;

constexpr int kFresh = 35, kLately = 10, kJustBack = 21, kAwayForLong = 30;  // days
constexpr int kBadlyHurt = 2;                                                // months
constexpr int kBesideThePoint = 25;

/// How telling each is on its day, in their order; it loses a point a day. The last two are never
/// weighed: they answer a blow.
constexpr int kWeights[] = {125, 92, 90, 85, 68, 80, 76, 78, 75, 77,
                            74,  72, 70, 66, 64, 60, 56, 0,  0};
static_assert(std::size(kWeights) == kHitAgain + 1);

Uids Both(const Uids& one, const Uids& two) {
  Uids all = one;
  all.insert(all.end(), two.begin(), two.end());
  return all;
}

/// Those whom the fact names beside these.
Uids OthersOf(const PastFact& fact, const Uids& who) {
  Uids others = Both(fact.One, fact.Two);
  std::erase_if(others, [&](int uid) { return AnyOf({uid}, who); });
  return others;
}

PastFact Turned(PastFact fact) {
  std::swap(fact.One, fact.Two);
  return fact;
}

/// What is gathered of one, or of two who stand together.
class TalkLook {
 public:
  TalkLook(Teller& teller, Uids who)
      : teller_(teller), world_(teller.world), who_(std::move(who)) {}

  std::vector<TalkFact> Facts() {
    OfCards();
    OfCrowns();
    OfLastMatch();
    if (who_.size() == 1) OfRun(who_[0]);
    for (const int uid : who_) {
      OfInjury(uid);
      OfTurn(uid);
    }
    return std::move(facts_);
  }

 private:
  void Add(TalkRecalls is, PastFact of, std::string title = {}) {
    of.Weight = kWeights[is] - std::min(of.DaysAgo, kFresh);
    facts_.push_back({is, std::move(of), std::move(title)});
  }
  int DaysSince(Day day) const { return static_cast<int>((teller_.Today() - day).count()); }
  bool IsOurs(const Uids& uids) const { return AnyOf(uids, who_); }
  /// What the two sides of a fact have fought since, the latest first.
  std::vector<const HeldMatch*> Since(const PastFact& fact) const {
    return MatchesBetween(world_, fact.One, fact.Two,
                          teller_.Today() - std::chrono::days(fact.DaysAgo), fact.Row);
  }

  /// Of who has left the world nothing is recalled.
  bool AreStillHere(const Uids& uids) const {
    return std::any_of(uids.begin(), uids.end(),
                       [&](int uid) { return world_.FindWorker(uid) != nullptr; });
  }

  void OfCards() {
    for (const PastFact& fact : CallbacksOf(teller_, who_, {})) {
      if (!AreStillHere(fact.One) || !AreStillHere(fact.Two)) continue;
      if (fact.Is == kWasAttacked) OfBlow(fact);
      if (fact.Is == kThreatened || fact.Is == kManagerSpoke) OfWords(fact);
      if (fact.Is == kChallenged && Since(fact).empty()) Add(kCalledOut, fact);
      if (fact.Is == kSignedFor && Since(fact).empty()) Add(kSignedTogether, fact);
    }
  }

  /// A debt that has been paid in the ring is none.
  void OfBlow(const PastFact& fact) {
    if (!IsOurs(fact.One)) return Add(kHasHit, Turned(fact));
    const auto since = Since(fact);
    if (std::none_of(since.begin(), since.end(),
                     [&](const HeldMatch* bout) { return HasWon(*bout, fact.One); }))
      Add(kWasHit, fact);
  }

  /// One match since then has settled who was right; of several nobody knows which was meant.
  void OfWords(const PastFact& fact) {
    const bool byManager = fact.Is == kManagerSpoke;
    const auto since = Since(fact);
    if (since.empty()) {
      PastFact spoken = fact;
      if (byManager) spoken.One = {fact.Manager};
      return Add(kSpoke, std::move(spoken));
    }
    if (since.size() > 1 || since[0]->Winners == 0) return;
    const bool isKept = HasWon(*since[0], fact.One);
    if (byManager)
      Add(isKept ? kManagerWasRight : kManagerWasWrong, fact);
    else if (IsOurs(fact.One))
      Add(isKept ? kSaidAndDid : kSaidAndDidNot, fact);
    else if (!isKept)
      Add(kTheyAteIt, Turned(fact));
  }

  void OfCrowns() {
    for (const TitleReign& reign : world_.Reigns()) {
      const bool lasts = reign.End == kReignLasts;
      if (reign.Owner != world_.PlayerUid() || (!lasts && reign.End != kReignLost)) continue;
      const Day day = lasts ? reign.From : reign.Until;
      if (const int days = DaysSince(day); days < 0 || days > kFresh) continue;
      const Uids theirs = Shared(who_, {reign.Worker, reign.Partner});
      if (!theirs.empty() && (lasts || (LostInTheRing(reign, theirs) && !HasBack(reign))))
        OfReign(lasts ? kCrownWon : kCrownLost, reign, day, theirs);
    }
  }
  static bool IsOfTheSame(const TitleReign& one, const TitleReign& other) {
    return one.Owner == other.Owner && one.Title == other.Title;
  }
  /// Who held it next, from the same day on; nobody where it fell vacant.
  Uids HeldNext(const TitleReign& lost) const {
    const auto& reigns = world_.Reigns();
    const auto next = std::find_if(
        reigns.begin() + (&lost - &*reigns.begin() + 1), reigns.end(), [&](const auto& other) {
          return IsOfTheSame(other, lost) && Day(other.From) == Day(lost.Until);
        });
    return next == reigns.end() ? Uids{} : Uids{next->Worker, next->Partner};
  }
  /// A Title may also go by a match that its holder is not in.
  bool LostInTheRing(const TitleReign& lost, const Uids& holders) const {
    const Uids next = HeldNext(lost);
    return std::any_of(holders.begin(), holders.end(), [&](int uid) {
      const auto& numbers = MatchesWith(world_, uid);
      return std::any_of(numbers.rbegin(), numbers.rend(), [&](int number) {
        const HeldMatch& bout = world_.Bouts()[number];
        return bout.Promotion == world_.PlayerUid() && Day(bout.On) == Day(lost.Until) &&
               bout.Title == lost.Title && !HasWon(bout, {uid}) && HasWon(bout, next);
      });
    });
  }
  bool HasBack(const TitleReign& lost) const {
    return std::any_of(world_.Reigns().begin(), world_.Reigns().end(), [&](auto& reign) {
      return IsOfTheSame(reign, lost) && reign.End == kReignLasts &&
             IsOurs({reign.Worker, reign.Partner});
    });
  }
  void OfReign(TalkRecalls is, const TitleReign& reign, Day day, const Uids& theirs) {
    Uids others = is == kCrownLost ? HeldNext(reign) : Uids{};
    for (const TitleReign& other : world_.Reigns()) {
      const bool isLast = is == kCrownWon && IsOfTheSame(other, reign) && &other < &reign &&
                          other.End == kReignLost && Day(other.Until) == day;
      if (!isLast) continue;
      others = {other.Worker, other.Partner};
      // Of several changes on one day the one that is told.
      if (!LostInTheRing(other, others)) others.clear();
    }
    std::erase(others, 0);
    Add(is, {{}, 0, theirs, others, 0, DaysSince(day)},
        TitleInProse(reign.Title.View(), reign.Partner == 0));
  }

  void OfLastMatch() {
    const auto lately =
        MatchesBetween(world_, who_, {}, teller_.Today() - std::chrono::days(kLately), 0);
    if (lately.empty() || lately[0]->Winners == 0) return;
    const Uids others = OpponentsIn(*lately[0], who_);
    if (others.size() != who_.size()) return;
    const PastFact won{{}, 0, who_, others, 0, DaysSince(lately[0]->On)};
    Add(kLastMet, HasWon(*lately[0], who_) ? won : Turned(won));
  }

  void OfRun(int uid) {
    const HeldMatch* last = LastInTheRun(world_, uid);
    if (!last || last->Winners == 0 || DaysSince(last->On) > kFresh) return;
    const int before = RunOf(world_, uid, 1);
    const bool hasWon = HasWon(*last, {uid});
    if (std::abs(before) < kARun || (before > 0) == hasWon) return;
    Add(hasWon ? kSlumpBroken : kRunBroken,
        {{},
         0,
         {uid},
         last->Style == kSingles ? OpponentsIn(*last, {uid}) : Uids{},
         std::abs(before),
         DaysSince(last->On)});
  }

  /// Fit again after a long time, and either not seen since or in the ring again for some days
  /// only.
  void OfInjury(int uid) {
    const Worker* worker = world_.FindWorker(uid);
    if (!worker || worker->Status == "Inj") return;
    Day left = {}, back = teller_.Today();
    for (const int number : std::views::reverse(MatchesWith(world_, uid))) {
      const Day day = world_.Bouts()[number].On;
      const bool isOfLate = DaysSince(day) <= kJustBack;
      (isOfLate ? back : left) = day;
      if (!isOfLate) break;
    }
    const bool wasAway = left != Day{} && (back - left).count() >= kAwayForLong;
    if (!wasAway || (back == teller_.Today() && WasOnACard(world_, uid))) return;
    if (WasHurtOn(*worker, left)) Add(kHurtAndBack, {{}, 0, {uid}, {}, 0, DaysSince(left)});
  }
  bool WasHurtOn(const Worker& worker, Day day) const {
    for (int number = world_.Deeds().Count(); number >= 1; --number) {
      const Deed& deed = world_.Deeds()[number];
      if (Day(deed.On) < day) return false;
      if (deed.Kind == kDeedInjured && deed.Promotion == world_.PlayerUid() &&
          deed.Number >= kBadlyHurt && Day(deed.On) == day && deed.Who == worker.Name.View())
        return true;
    }
    return false;
  }

  /// On a show of the player's, which the cards that are kept prove.
  void OfTurn(int uid) {
    const Worker* worker = world_.FindWorker(uid);
    const int days = worker ? DaysSince(worker->LastTurn) : 0;
    if (days < 1 || days > kFresh) return;
    const auto& cards = world_.KeptRows();
    if (std::any_of(cards.begin(), cards.end(), [&](const KeptRow& kept) {
          return !kept.IsDraft && Day(kept.On) == Day(worker->LastTurn) &&
                 AnyOf({uid}, EverybodyOf(kept.Booked));
        }))
      Add(kChangedWays, {{}, 0, {uid}, {}, 0, days});
  }

  Teller& teller_;
  const World& world_;
  Uids who_;
  std::vector<TalkFact> facts_;
};

/// Before a talk about somebody what lies between them comes first.
std::vector<TalkFact> OfInterview(Teller& teller) {
  Uids speakers = SeatedAs(teller.segment, Casting::Talkers);
  std::erase(speakers, 0);
  const Uids subjects = SeatedAs(teller.segment, Casting::Targets);
  const bool hasSubject =
      std::any_of(subjects.begin(), subjects.end(), [](int uid) { return uid != 0; });
  std::vector<TalkFact> facts = TalkLook(teller, speakers).Facts();
  // Of what a manager said of somebody else neither need be there.
  std::erase_if(facts, [people = PeopleOf(teller.segment)](const TalkFact& fact) {
    return !AnyOf(people, Both(fact.Of.One, fact.Of.Two));
  });
  for (TalkFact& fact : facts)
    if (const Uids others = OthersOf(fact.Of, speakers);
        hasSubject && !others.empty() && !AnyOf(others, subjects))
      fact.Of.Weight -= kBesideThePoint;
  return facts;
}

/// A blow that answers one, or follows on one, of before.
bool SetAnswer(const std::vector<Blow>& blows, TalkFact& fact) {
  if (fact.Is != kWasHit && fact.Is != kHasHit) return false;
  const bool answers = std::any_of(blows.begin(), blows.end(), [&](const Blow& blow) {
    return AnyOf(fact.Of.One, blow.By) && AnyOf(fact.Of.Two, blow.On);
  });
  if (answers) fact.Is = fact.Is == kWasHit ? kHitBack : kHitAgain;
  return answers;
}

/// What lies between two of them, and what is to be said of whoever comes first.
std::vector<TalkFact> OfAngle(Teller& teller) {
  const Uids people = PeopleOf(teller.segment);
  const std::vector<Blow> blows = BlowsOf(teller.segment);
  std::vector<TalkFact> facts, answers;
  for (const int uid : people)
    for (TalkFact& fact : TalkLook(teller, {uid}).Facts()) {
      const Uids others = OthersOf(fact.Of, {uid});
      const bool isTheirs = std::all_of(others.begin(), others.end(),
                                        [&](int other) { return AnyOf({other}, people); });
      if (!isTheirs || (others.empty() && uid != people.front())) continue;
      if (SetAnswer(blows, fact))
        answers.push_back(std::move(fact));
      else
        facts.push_back(std::move(fact));
    }
  return answers.empty() ? facts : answers;
}

}  // namespace

std::optional<TalkFact> PastOfTalk(Teller& teller) {
  if (!teller.world.HasGame()) return {};
  std::vector<TalkFact> facts =
      teller.segment.Kind == kInterview ? OfInterview(teller) : OfAngle(teller);
  const auto best = std::max_element(
      facts.begin(), facts.end(),
      [](const TalkFact& a, const TalkFact& b) { return a.Of.Weight < b.Of.Weight; });
  if (best == facts.end()) return {};
  return std::move(*best);
}

void TellTalkPast(Teller& teller, const TalkFact& fact) {
  const std::string before = teller.cast.Thing(Item::Title);
  if (!fact.Title.empty()) teller.cast.Set(Item::Title, fact.Title);
  SayOf(teller, fact.Of, Family::TalkPast, fact.Is);
  teller.cast.Set(Item::Title, before);
}

}  // namespace grapplemont
