#include "roster/leaving.h"

#include <algorithm>
#include <array>

#include "records/arithmetic.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "roster/postings.h"

namespace grapplemont {

namespace {

/// What a promotion of a size pays at most, and whom it pays for.
struct WageCap {
  int WageLimit;  // thousands of dollars a month
  int OverMustExceed;
  int SignedWageCap;  // a thousand times the limit: it never bites, and wages stay as they were
};
// By size, Global to Backyard.
constexpr std::array<WageCap, 6> kWageCaps = {{
    {150, 80, 150000},
    {100, 65, 100000},
    {70, 50, 70000},
    {40, 40, 40000},
    {20, 20, 20000},
    {10, 10, 10000},
}};

bool CanPay(const Promotion& promotion, const Worker& worker) {
  const WageCap& market = BySize(kWageCaps, promotion.Size);
  const int asking = static_cast<int>(worker.Wage * 8LL / 10);
  return asking <= market.WageLimit && worker.Over > market.OverMustExceed;
}

/// The best bidder so far is beaten by a score above its plain image, if the new one is no smaller.
Promotion* BestBidder(World& world, const Worker& worker) {
  const int smallest = worker.Over > 20 ? kSmall : kBackyard;
  Promotion* best = nullptr;
  for (Promotion& promotion : world.Promotions()) {
    if (promotion.Uid == world.PlayerUid() || promotion.Name == kToBeDeleted ||
        promotion.Size > smallest || !CanPay(promotion, worker))
      continue;
    const int score = promotion.Image + world.RandomDraw(80);
    if (score > (best ? int(best->Image) : 0) && promotion.Size <= (best ? int(best->Size) : 7))
      best = &promotion;
  }
  return best;
}

void SignWith(World& world, Worker& worker, const Promotion& rival) {
  if (ShouldTell(world, world.Game().MailWorkerHire, rival.Size))
    AddNews(world, rival.Initials + " News",
            worker.Name + " has signed for " + rival.Initials.Str() + "!");
  NoteDeed(world, kDeedSigned, &rival, worker);
  worker.Over += world.RandomDraw(3);
  worker.Employer = rival.Uid;
  worker.Position = PlacementPosition(worker, rival.Size);
  worker.ContractMonths = ContractMonthsAt(rival.Size);
  worker.ContractType = rival.Size > kCult ? "Non" : "Wri";
  worker.Morale += 20;
  worker.Wage = std::min<int>(worker.Wage, BySize(kWageCaps, rival.Size).SignedWageCap);
}

constexpr int kPoorMarket = 40;  // of the economy

/// Whoever is so popular in a promotion of this size would try a bigger one.
struct Ambition {
  int Size, Over;
  const char* Words;
};
constexpr const char* kTryMyLuck = ": 'Thanks, i will accept so that i can try my luck elsewhere.'";
constexpr Ambition kAmbitions[] = {
    {kBackyard, 21, ": 'I accept, i'd like to try my luck in a bigger promotion.'"},
    {kSmall, 41, ": 'I was thinking of moving to another promotion anyway, so i accept!'"},
    {kRegional, 56, ": 'Thanks boss, i was hoping to try my luck elsewhere. I accept.'"},
    {kCult, 71, kTryMyLuck},
    {kNational, 83, kTryMyLuck},
};

constexpr const char* kPoorTimes =
    ": 'I do not feel it is wise for me to leave when the market is in such a poor state!'";
constexpr const char* kNowhere =
    ": 'I do not want to leave, there are few other promotions big enough for me to work for!'";
constexpr const char* kNoMove =
    ": 'I don't think leaving is a good career move for me at the moment.'";

/// The smallest promotion, by its size, that this Over would still go to.
int SmallestFor(int over) {
  if (over >= 86) return kNational;
  if (over >= 66) return kCult;
  if (over >= 41) return kRegional;
  return over >= 20 ? kSmall : kBackyard;
}

/// Whether any promotion there is, the player's included, is big enough for them.
bool HasMarket(const World& world, const Worker& worker) {
  const int smallest = SmallestFor(worker.Over);
  return std::ranges::any_of(
      world.Promotions(), [=](const Promotion& promotion) { return promotion.Size <= smallest; });
}

/// Why they would go; nullptr when they would rather stay.
const char* ReasonToGo(const World& world, const Worker& worker) {
  const Promotion& own = world.Player();
  if (own.Money < 0)
    return ": 'With the financial situation of the company the way it is, i accept!'";
  if (worker.Morale < 40) return ": 'I am unhappy here, so i accept!'";
  for (const Ambition& row : kAmbitions)
    if (own.Size == row.Size && worker.Over >= row.Over) return row.Words;
  return nullptr;
}

/// Half of the months, rounded down below 0 as well.
int HalfOf(int months) {
  return (months - (months < 0)) / 2;
}

/// A settled worker of good conduct, let down while they do not feel well, makes it known.
bool IsBetrayed(const Worker& worker) {
  return worker.Morale < 70 && worker.Behaviour >= 81 && worker.Age >= 36;
}

void BreakWord(World& world, Worker& worker) {
  if (!IsBetrayed(worker)) {
    worker.Loyalty -= kBrokenWordLoyalty;
    return;
  }
  GameInfo& game = world.Game();
  game.Reputation -= kBrokenWordReputation;
  worker.Loyalty = 0;
  AddNews(world, worker.Name,
          "I can't believe you broke my verbal contract! I'll never work for you again!");
}

}  // namespace

void PartWith(World& world, Worker& worker) {
  EndPosting(worker);
  EndContract(worker);
  worker.Split = "None";
  worker.Debuted = true;
  if (worker.Uid == 0) return;
  LeaveOffice(world, worker.Uid);
  LoseClients(world, {worker.Uid});
  LeaveFeuds(world, worker.Uid);
  VacateTitlesOf(world, worker.Uid, TitleLoss::ATenth);
  LeaveCommentary(world, worker.Uid);
}

void ReleaseWorker(World& world, Worker& worker) {
  NoteDeed(world, kDeedLeft, world.FindPromotion(worker.Employer), worker);
  PartWith(world, worker);
  if (world.RandomDraw(3) != 1) return;
  if (const Promotion* rival = BestBidder(world, worker)) SignWith(world, worker, *rival);
}

ReleaseAnswer AnswerToRelease(const World& world, const Worker& worker) {
  ReleaseAnswer answer;
  const auto say = [&](const char* title, const char* words) {
    answer.Remarks.push_back({title, worker.Name + words});
  };
  const bool poor = world.Game().Economy < kPoorMarket, market = HasMarket(world, worker);
  if (poor) say("Rejected", kPoorTimes);
  if (!market) say("Rejected", kNowhere);
  if (!poor && market) {
    const char* reason = ReasonToGo(world, worker);
    answer.Accepted = reason != nullptr;
    say(reason ? "Accepted" : "Rejected", reason ? reason : kNoMove);
  }
  if (!answer.Accepted) say("Rejected", " formally rejects your offer of a release.");
  return answer;
}

long long BuyOutCost(int difficulty, int wage, int months) {
  const long long month = 1000LL * wage;
  const long long cost = difficulty == kEasy     ? month
                         : difficulty == kMedium ? HalfOf(months) * month
                         : difficulty == kHard   ? months * month
                                                 : 2 * months * month;
  return cost < 0 ? 6 * month : cost;
}

Parting PartingOf(const Staff& staff) {
  if (staff.Morale < 20) return Parting::Gladly;
  return staff.ContractType == "Non" ? Parting::Verbal : Parting::BuyOut;
}

Parting PartingOf(const Worker& worker) {
  if (worker.Status == "Hom" || worker.Morale < 20) return Parting::Gladly;
  return worker.ContractType == "Non" ? Parting::Verbal : Parting::BuyOut;
}

std::string TerminationQuestion(const World& world, const Worker& worker) {
  switch (PartingOf(worker)) {
    case Parting::BuyOut:
      return "Terminating this contract will cost $" + std::to_string(BuyOutCost(world, worker)) +
             ". Proceed?";
    case Parting::Verbal:
      return "This worker is only under a verbal contract, and so can be released for free. "
             "Proceed?";
    case Parting::Gladly:
      break;
  }
  return "This wrestler is happy to leave. Proceed?";
}

void Terminate(World& world, Worker& worker) {
  const Parting parting = PartingOf(worker);
  if (parting == Parting::BuyOut) BuyOut(world, worker);
  if (parting == Parting::Verbal) BreakWord(world, worker);
  ReleaseWorker(world, worker);
}

}  // namespace grapplemont
