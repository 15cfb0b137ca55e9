#include "rivals/rivalcards.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "records/fields/fields.h"
#include "records/segments.h"
#include "rivals/corners.h"
#include "rivals/grudges.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "roster/postings.h"
#include "storylines/lineages.h"
#include "storylines/partners.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

constexpr int kMatchesDropped = 500;

struct CardBout {
  Corner Red, Blue;  // a champion is Red
  Title* Belt = nullptr;
  int Heat = 0;  // of the grudge between the First of both; 0 for none

  /// What the bout is worth to the poster: it decides the place on the card.
  int Weight() const { return Red.Over() + Blue.Over() + Heat / 2 + (Belt ? int(Belt->Image) : 0); }
};

struct CardOutcome {
  bool IsDraw = false;
  bool RedWins = false;
  int Finish = kClean;
  int Type = kPlainSingles;
  bool Settles = false;
};

int MatchesOf(UnseenShow show) {
  return show == kUnseenEvent ? tuning::kEventMatches
         : show == kUnseenTv  ? tuning::kTvMatches
                              : tuning::kHouseShowMatches;
}

/// What two who have had enough of each other may be locked into.
constexpr int kSettlingTypes[] = {kPlainSingles,    kHardcore, kLadder,    kCage,
                                  kLastManStanding, kIQuit,    kTexasDeath};

/// Puts a card together from the top, and holds it.
class CardMaker {
 public:
  CardMaker(World& world, const Promotion& rival, UnseenShow show)
      : world_(world), rival_(rival), show_(show), room_(MatchesOf(show)) {
    isFree_.resize(static_cast<std::size_t>(world.Workers().Count()) + 1);
    for (Worker& worker : world.Workers()) {
      if (worker.Employer != rival.Uid || !IsFit(worker)) continue;
      free_.push_back(&worker);
      FreeAt(worker) = true;
    }
    for (const Grudge& grudge : world.Grudges())
      if (grudge.Promotion == rival.Uid) grudges_.push_back(grudge);
    std::ranges::stable_sort(free_, [](const Worker* a, const Worker* b) {
      return std::pair<int, int>(a->Position, -a->Over) <
             std::pair<int, int>(b->Position, -b->Over);
    });
  }

  void Book() {
    for (const Team& team : world_.Teams())
      if (IsFree(team.Worker1) && IsFree(team.Worker2))
        teams_.push_back({world_.FindWorker(team.Worker1), world_.FindWorker(team.Worker2)});
    BookTitles();
    BookGrudges();
    BookTeams();
    BookSingles();
    std::ranges::stable_sort(bouts_, {}, &CardBout::Weight);
  }

  void Hold() {
    for (int row = 1; const CardBout& bout : bouts_) HoldBout(bout, row++);
    if (!IsEvent()) return;
    for (Title& title : world_.Titles())
      if (const Worker* holder = world_.FindWorker(title.Holder);
          holder && title.Owner == rival_.Uid && !title.Suspended)
        title.Image += holder->Over > title.Image ? 1 : holder->Over < title.Image ? -1 : 0;
  }

 private:
  bool IsEvent() const { return show_ == kUnseenEvent; }
  bool OneIn(int n) { return world_.Life().Draw(n) == 1; }
  bool HasRoom() const { return static_cast<int>(bouts_.size()) < room_; }

  char& FreeAt(const Worker& worker) {
    return isFree_[static_cast<std::size_t>(world_.Workers().NumberOf(worker))];
  }
  bool FreeAt(const Worker& worker) const { return const_cast<CardMaker&>(*this).FreeAt(worker); }
  void NoLongerFree(const Worker* worker) {
    if (worker && std::exchange(FreeAt(*worker), false)) std::erase(free_, worker);
  }
  bool IsFree(int uid) const {
    const Worker* worker = world_.FindWorker(uid);
    return worker && FreeAt(*worker);
  }
  bool IsFree(const Corner& corner) const {
    return IsFree(corner.First->Uid) && (!corner.Second || IsFree(corner.Second->Uid));
  }
  /// Of somebody who is free; nullptr where their partner is not.
  const Corner* TeamOf(const Worker& worker) const {
    for (const Corner& team : teams_)
      if ((team.First == &worker || team.Second == &worker) && IsFree(team)) return &team;
    return nullptr;
  }

  void Add(const CardBout& bout) {
    for (const Corner& corner : {bout.Red, bout.Blue})
      for (const Worker* worker : {corner.First, corner.Second}) NoLongerFree(worker);
    bouts_.push_back(bout);
  }

  // Titles.

  void BookTitles() {
    std::vector<Title*> titles;
    for (Title& title : world_.Titles())
      if (title.Owner == rival_.Uid && !title.Suspended) titles.push_back(&title);
    std::ranges::stable_sort(titles, [](auto* a, auto* b) { return a->Image > b->Image; });
    for (Title* title : titles)
      if (HasRoom() && (IsEvent() || IsGivenUp(*title) ||
                        OneIn(title->Holder == 0 ? tuning::kVacancyIn : tuning::kDefenceIn)))
        BookTitle(*title);
  }

  /// Whoever leaves at the end of the month loses it before they go.
  bool IsGivenUp(const Title& title) const {
    const Worker *holder = world_.FindWorker(title.Holder),
                 *partner = world_.FindWorker(title.Partner);
    return (holder && IsLeaving(*holder)) || (partner && IsLeaving(*partner));
  }

  void BookTitle(Title& title) {
    const std::optional<Corner> champion = ChampionOf(title);
    if (title.Holder != 0 && !champion) return;
    const std::optional<Corner> first = champion ? champion : Contender(title, nullptr);
    if (!first) return;
    const std::optional<Corner> second = Contender(title, &*first);
    if (second) Add({*first, *second, &title, HeatBetween(*first, *second)});
  }

  /// Nothing while one of them cannot be there.
  std::optional<Corner> ChampionOf(const Title& title) const {
    if (!IsFree(title.Holder)) return std::nullopt;
    if (title.Partner != 0 && !IsFree(title.Partner)) return std::nullopt;
    return Corner{world_.FindWorker(title.Holder), world_.FindWorker(title.Partner)};
  }

  /// Whoever has a grudge against the other corner, else one of the best.
  std::optional<Corner> Contender(const Title& title, const Corner* against) {
    std::vector<Corner> found = title.Singles ? Singles(title) : Pairs(title);
    if (against) {
      std::erase_if(found, [&](const Corner& corner) { return !MayMeet(corner, *against); });
      for (const Corner& corner : found)
        if (HeatBetween(corner, *against) > 0) return corner;
    }
    if (found.empty()) return std::nullopt;
    std::ranges::stable_sort(found,
                             [](const Corner& a, const Corner& b) { return a.Over() > b.Over(); });
    const int among = std::min(tuning::kContenders, static_cast<int>(found.size()));
    return found[static_cast<std::size_t>(world_.Life().Draw(among) - 1)];
  }

  std::vector<Corner> Singles(const Title& title) const {
    std::vector<Corner> found;
    for (Worker* worker : free_)
      if (MayWin(title, *worker)) found.push_back({worker});
    return found;
  }

  /// Teams that stand; where no two may meet, neighbours on the card pair up for the night.
  std::vector<Corner> Pairs(const Title& title) const {
    std::vector<Corner> found;
    for (const Corner& team : teams_)
      if (IsFree(team) && MayWin(title, *team.First) && MayWin(title, *team.Second))
        found.push_back(team);
    for (const Corner& team : found)
      if (std::ranges::any_of(found, [&](const Corner& other) { return MayMeet(team, other); }))
        return found;
    const std::vector<Corner> alone = Singles(title);
    for (std::size_t i = 0; i + 1 < alone.size(); ++i) {
      if (bool(alone[i].First->Gender) != bool(alone[i + 1].First->Gender)) continue;
      found.push_back({alone[i].First, alone[i + 1].First});
      ++i;
    }
    return found;
  }

  int HeatBetween(const Corner& one, const Corner& two) const {
    const int uid = one.First->Uid;
    const auto grudge = std::ranges::find_if(
        grudges_, [=](const Grudge& each) { return each.One == uid || each.Two == uid; });
    return grudge != grudges_.end() && OpponentIn(*grudge, uid) == two.First->Uid
               ? int(grudge->Heat)
               : 0;
  }

  // The rest of the card.

  void BookGrudges() {
    for (const Grudge& grudge : grudges_) {
      if (!HasRoom() || !IsFree(grudge.One) || !IsFree(grudge.Two) ||
          !(IsEvent() || OneIn(tuning::kGrudgeMatchIn)))
        continue;
      Corner one{world_.FindWorker(grudge.One)}, two{world_.FindWorker(grudge.Two)};
      const Corner *mine = TeamOf(*one.First), *theirs = TeamOf(*two.First);
      if (!IsEvent() && mine && theirs && MayMeet(*mine, *theirs)) {
        one.Second = mine->First == one.First ? mine->Second : mine->First;
        two.Second = theirs->First == two.First ? theirs->Second : theirs->First;
      }
      Add({one, two, nullptr, grudge.Heat});
    }
  }

  /// One match of teams a show, two at an Event, where the teams are there.
  void BookTeams() {
    for (int wanted = IsEvent() ? 2 : 1; wanted > 0 && HasRoom(); --wanted) {
      std::vector<Corner> ready;
      for (const Corner& team : teams_)
        if (IsFree(team)) ready.push_back(team);
      if (ready.size() < 2) return;
      const int drawn = world_.Life().Draw(static_cast<int>(ready.size()));
      const Corner red = ready[static_cast<std::size_t>(drawn - 1)];
      std::erase_if(ready, [&](const Corner& team) { return !MayMeet(team, red); });
      if (!ready.empty()) Add({red, ready.front()});
    }
  }

  /// Neighbours on the card, from a place that a draw gives, so that all of them are seen.
  void BookSingles() {
    while (HasRoom() && free_.size() > 1) {
      const int drawn = world_.Life().Draw(static_cast<int>(free_.size()));
      Worker* red = free_[static_cast<std::size_t>(drawn - 1)];
      const auto blue = std::find_if(free_.begin(), free_.end(), [&](const Worker* worker) {
        return worker != red && bool(worker->Gender) == bool(red->Gender) &&
               worker->Position >= red->Position;
      });
      if (blue != free_.end())
        Add({{red}, {*blue}});
      else
        NoLongerFree(red);
    }
  }

  // The night.

  bool IsLost(const Title& title) {
    if (IsGivenUp(title)) return true;
    const int drawn = world_.Life().Draw(100);
    if (show_ == kUnseenTv) return drawn <= tuning::kTvUpset;
    if (show_ == kUnseenHouseShow) return false;
    const auto days = (world_.Today() - Day(title.Reigns[0].Won)).count();
    for (const tuning::LongReign& row : tuning::kLongReigns)
      if (days >= row.From) return drawn <= row.LosesIn100;
    return false;
  }

  CardOutcome Decide(const CardBout& bout) {
    CardOutcome out;
    if (bout.Belt && bout.Belt->Holder != 0) {
      out.RedWins = !IsLost(*bout.Belt);
    } else {
      const int favour = std::clamp(50 + bout.Red.Over() - bout.Blue.Over(), 15, 85);
      out.RedWins = world_.Life().Draw(100) <= favour;
    }
    out.Settles = IsEvent() && bout.Heat >= tuning::kGrudgeRipe;
    const Worker& winner = out.RedWins ? *bout.Red.First : *bout.Blue.First;
    out.IsDraw = !bout.Belt && !out.Settles && OneIn(tuning::kDrawIn);
    if (out.IsDraw)
      out.Finish = kDoubleCountOut;
    else if (winner.Disposition == "H" && !out.Settles && OneIn(tuning::kCheatsIn))
      out.Finish = kCheating;
    if (bout.Red.Size() == 2)
      out.Type = kPlainTag;
    else if (out.Settles && !bout.Belt)
      out.Type = SettlingType();
    return out;
  }

  int SettlingType() {
    std::vector<int> allowed;
    for (const int type : kSettlingTypes)
      if (const MatchTypeRow* row = FindMatchType(kSingles, type);
          row && rival_.Risk > row->RiskOver && rival_.Size < row->SizeUnder)
        allowed.push_back(type);
    if (allowed.empty()) return kPlainSingles;
    return allowed[static_cast<std::size_t>(world_.Life().Draw(static_cast<int>(allowed.size())) -
                                            1)];
  }

  int RatingOf(const CardBout& bout) {
    const int over = (bout.Red.Over() + bout.Blue.Over()) / 2;
    const int skill = (bout.Red.Skill() + bout.Blue.Skill()) / 2;
    return (over * 55 + skill * 45) / 100 + bout.Heat / 10 + world_.Life().Draw(13) - 7;
  }

  void HoldBout(const CardBout& bout, int row) {
    const CardOutcome out = Decide(bout);
    const Corner &winner = out.RedWins ? bout.Red : bout.Blue,
                 &loser = out.RedWins ? bout.Blue : bout.Red;
    CardMatch match{};
    match.On = world_.Today();
    match.Promotion = rival_.Uid;
    match.Show = show_;
    match.Row = row;
    match.Style = bout.Red.Size() == 2 ? kTag : kSingles;
    match.MatchType = out.Type;
    match.Finish = out.Finish;
    match.Winners = out.IsDraw ? 0 : winner.Size();
    std::size_t place = 0;
    for (const Corner& corner : {winner, loser})
      for (const Worker* worker : {corner.First, corner.Second})
        if (worker) match.Worker[place++] = worker->Uid;
    match.Rating = RatingOf(bout);
    if (bout.Belt) FightForTitle(bout, out.RedWins, winner, match);
    AppendRolling(world_.RivalCards(), match, kMatchesDropped);
    if (!out.IsDraw) CarryOn(bout, out, winner, loser, match.Changed);
    if (IsEvent() && bout.Red.Second) GainExperience(bout);
  }

  void FightForTitle(const CardBout& bout, bool redWins, const Corner& winner, CardMatch& match) {
    match.Title = bout.Belt->Name;
    match.Champion = bout.Belt->Holder;
    match.Changed = bout.Belt->Holder == 0 || !redWins;
    if (!match.Changed)
      CountDefence(world_, *bout.Belt);
    else
      Crown(world_, *bout.Belt, winner.First->Uid, winner.Second ? int(winner.Second->Uid) : 0);
  }

  void CarryOn(const CardBout& bout, const CardOutcome& out, const Corner& winner,
               const Corner& loser, bool titleChanged) {
    const int one = winner.First->Uid, two = loser.First->Uid;
    if (out.Settles) return SettleGrudge(world_, rival_, one, two);
    if (bout.Heat > 0) {
      Grudge* grudge = GrudgeOf(world_, rival_.Uid, one);
      ++(grudge->One == one ? grudge->WonOne : grudge->WonTwo);
      grudge->Heat += tuning::kGrudgeMatch;
    } else if (titleChanged && bout.Belt && OneIn(tuning::kGrudgeAfterTitleIn)) {
      BeginGrudge(world_, rival_, two, one, kGrudgeTitle);
    } else if (out.Finish == kCheating && show_ != kUnseenHouseShow &&
               OneIn(tuning::kGrudgeAfterCheatingIn)) {
      BeginGrudge(world_, rival_, two, one, kGrudgeCard);
    }
  }

  void GainExperience(const CardBout& bout) {
    for (const Corner& corner : {bout.Red, bout.Blue})
      for (Team& team : world_.Teams())
        if (IsTeamOf(team, corner.First->Uid, corner.Second->Uid)) ++team.Experience;
  }

  World& world_;
  const Promotion& rival_;
  UnseenShow show_;
  int room_;
  std::vector<Worker*> free_;  // the card from the top down
  std::vector<char> isFree_;   // by record number
  std::vector<Corner> teams_;
  std::vector<Grudge> grudges_;  // of the promotion, as the card was put together
  std::vector<CardBout> bouts_;
};

}  // namespace

bool IsFit(const Worker& worker) {
  return IsOnRoster(worker) && worker.Status == "Nor";
}

void HoldCard(World& world, const Promotion& rival, UnseenShow show) {
  CardMaker card(world, rival, show);
  card.Book();
  card.Hold();
}

}  // namespace grapplemont
