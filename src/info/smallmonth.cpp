#include "info/smallmonth.h"

#include <algorithm>

#include "business/beside.h"
#include "calendar/image.h"
#include "info/meeting.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/notes.h"
#include "roster/market.h"
#include "roster/moods.h"
#include "roster/postings.h"
#include "roster/signing.h"

namespace grapplemont {

namespace {

constexpr VentureRow kVentures[] = {
    {Venture::Tryout, "Monthly tryout", 1500, 300,
     "One of those who come signs at once, on the terms they ask for, less a tenth of the wage.",
     "Who comes to the tryout"},
    {Venture::Scouting, "Scouting trip", 800, 150,
     "Somebody who is content elsewhere hears of you: their morale falls by 11 to 20, and below 61 "
     "they listen to offers. They go on the shortlist.",
     "Whom to see"},
    {Venture::Tournament, "The town's tournament", 3000, 600,
     "A gate, the better the higher the image. The winner's morale rises by 10; the eight best and "
     "the winner lose 5 condition.",
     "Who is to win it"},
    {Venture::Posters, "Posters all over town", 2000, 300,
     "A point of image in two of three months, below an image of 60.", ""},
    {Venture::Outing, "A day out with everybody", 1500, 250,
     "Everybody's morale rises by 3 and their condition by 5.", ""},
    {Venture::Benefit, "A benefit for the town", 1000, 200, "Two points of your reputation.", ""}};

constexpr std::size_t kTryoutPeople = 4, kCourted = 12;
constexpr int kTryoutRebate = 10;  // percent; the most that anybody gives in a talk
constexpr int kSmallTryoutOver = 45, kBackyardTryoutOver = 25;
constexpr int kMoraleSure = 10, kMoraleDrawn = 10;
constexpr int kLeastLoyalty = 40;  // below it nobody talks with anybody
constexpr std::size_t kEntrants = 8, kFewestEntrants = 4;
constexpr int kWinnersMorale = 10, kTournamentWear = 5;
constexpr const char* kTheGate = "Gate of the tournament";
constexpr int kGateDraw = 60, kSmallGate = 60, kBackyardGate = 12;
constexpr int kKnownImage = 60, kPosterDraw = 3;
constexpr int kOutingMorale = 3, kOutingCondition = 5;
constexpr int kBenefitReputation = 2;

int ByClass(const World& world, int small, int backyard) {
  return world.Player().Size == kBackyard ? backyard : small;
}

Day FirstOfThisMonth(const World& world) {
  return world.Today() - std::chrono::days{DayOfMonth(world.Today()) - 1};
}
int MonthNumber(const World& world) {
  constexpr int kMonths = 12;
  return YearOf(world.Today()) * kMonths + MonthOf(world.Today());
}

void MarkDone(World& world, Venture venture) {
  const Day month = FirstOfThisMonth(world);
  if (world.MonthPlans().Count() == 0) world.MonthPlans().Rewrite({MonthPlan{}});
  MonthPlan& plan = world.MonthPlans()[1];
  if (Day(plan.Month) != month) plan = {};
  plan.Month = month;
  plan.Done[static_cast<std::size_t>(venture)] = true;
}

void SortByOver(std::vector<const Worker*>& people) {
  std::ranges::stable_sort(people, [](auto* a, auto* b) { return a->Over > b->Over; });
}

/// Some of them, by what this month has in store.
template <class T>
std::vector<T> SomeByFate(const World& world, std::string_view purpose, std::vector<T> all,
                          std::size_t most) {
  SeededDraws draws = world.Fate(purpose, {world.PlayerUid(), MonthNumber(world)});
  std::vector<T> some;
  while (!all.empty() && some.size() < most) {
    const auto at = all.begin() + (draws.Draw(static_cast<int>(all.size())) - 1);
    some.push_back(*at);
    all.erase(at);
  }
  return some;
}

bool IsFreeAgent(const World& world, const Worker& worker) {
  return worker.Employer == 0 && worker.Status == "Nor" && !worker.RetiringSoon &&
         worker.Position != kManager && worker.Position != kNonWrestler &&
         WhyNoSigning(world, worker).empty();
}

/// What they ask, less what anybody gives in.
SigningOffer TryoutOffer(const World& world, const Worker& worker) {
  const Demands wants = ContractDemands(world, worker);
  SigningOffer offer;
  offer.Wage = wants.Wage - PercentOf(wants.Wage, kTryoutRebate);
  offer.Months = wants.Months;
  offer.Written = wants.Written;
  offer.CreativeControl = wants.CreativeControl;
  offer.Name = worker.Name.Str();
  offer.ShortName = worker.ShortName.Str();
  offer.Disposition = worker.Disposition.Str();
  offer.Position = wants.Position;
  return offer;
}

/// Only whoever would say yes in a talk comes to a tryout.
bool WouldSign(const World& world, const Worker& worker) {
  const SigningOffer offer = TryoutOffer(world, worker);
  return WhyNotAsOffered(world, worker, offer).empty() &&
         JudgeSigning(worker, ContractDemands(world, worker), offer).empty();
}

std::vector<const Worker*> ForTryout(const World& world) {
  const int most = ByClass(world, kSmallTryoutOver, kBackyardTryoutOver);
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers())
    if (worker.Over <= most && IsFreeAgent(world, worker) && WouldSign(world, worker))
      people.push_back(&worker);
  people = SomeByFate(world, "tryout", std::move(people), kTryoutPeople);
  SortByOver(people);
  return people;
}

/// Rivals' people of this class and the one above who would listen if they were less content.
std::vector<const Worker*> ForScouting(const World& world) {
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers()) {
    const Promotion* employer = world.FindPromotion(worker.Employer);
    if (!employer || WorksForPlayer(world, worker) || employer->Size < world.Player().Size - 1 ||
        worker.Loyalty < kLeastLoyalty || worker.Status != "Nor" ||
        WhyNoSigning(world, worker).empty())
      continue;
    Worker discontent = worker;
    discontent.Morale = 0;
    if (WhyNoSigning(world, discontent).empty()) people.push_back(&worker);
  }
  SortByOver(people);
  if (people.size() > kCourted) people.resize(kCourted);
  return people;
}

std::string Try(World& world, Worker& worker) {
  const std::string terms = TryoutTerms(world, worker);
  Sign(world, worker, TryoutOffer(world, worker));
  return worker.Name + " signed for " + terms + ", and waits for a debut.";
}

std::string Scout(World& world, Worker& worker) {
  const int loss = kMoraleSure + world.Life().Draw(kMoraleDrawn);
  worker.Morale -= loss;
  if (WhyNotShortlist(world, worker).empty()) AddToShortlist(world, worker.Uid);
  return worker.Name + " has heard of you: a morale of " + std::to_string(worker.Morale) +
         " where they are. " +
         (WhyNoSigning(world, worker).empty() ? "They would listen to an offer now."
                                              : "They would not talk yet.");
}

std::string HoldTournament(World& world, Worker& winner) {
  People entrants = FitWrestlers(world);
  if (entrants.size() > kEntrants) entrants.resize(kEntrants);
  if (std::ranges::find(entrants, &winner) == entrants.end()) entrants.push_back(&winner);
  for (const Worker* entrant : entrants)
    world.FindWorker(entrant->Uid)->Condition -= kTournamentWear;
  MoveMorale(world, winner, kWinnersMorale, kMoodTown);
  const int gate = (world.Player().Image + world.Life().Draw(kGateDraw)) *
                   ByClass(world, kSmallGate, kBackyardGate);
  MoveBeside(world, world.Player(), gate, kTheGate);
  return winner.Name + " won the town's tournament. The gate was " + Dollars(gate) + ".";
}

std::string HangPosters(World& world, Worker&) {
  if (world.Life().Draw(kPosterDraw) == kPosterDraw)
    return "It rained for a week, and the posters are pulp.";
  Promotion& player = world.Player();
  MoveImage(world, player, 1);
  NoteFact(world, {kNoteStanding, player.Name.Str()}, 1, player.Image, "posters all over town");
  return "The whole town talks of us. Our image is " + std::to_string(player.Image) + "%.";
}

std::string GoOut(World& world, Worker&) {
  int count = 0;
  for (Worker& worker : world.Workers()) {
    if (!WorksForPlayer(world, worker) || worker.Status == "Hom") continue;
    MoveMorale(world, worker, kOutingMorale, kMoodOuting);
    worker.Condition += kOutingCondition;
    ++count;
  }
  return Counted(count, "person", "people") + " by the lake, and nobody fell in on purpose.";
}

std::string GiveBenefit(World& world, Worker&) {
  world.Game().Reputation += kBenefitReputation;
  return "The town has a new roof for its school, and you a reputation of " +
         std::to_string(world.Game().Reputation) + "%.";
}

/// In the order of Venture.
struct VentureAct {
  std::vector<const Worker*> (*Whom)(const World& world);  // nullptr: about nobody
  std::string (*Do)(World& world, Worker& whom);
};
constexpr VentureAct kVentureActs[] = {
    {ForTryout, Try},       {ForScouting, Scout}, {FitWrestlers, HoldTournament},
    {nullptr, HangPosters}, {nullptr, GoOut},     {nullptr, GiveBenefit}};
static_assert(std::size(kVentureActs) == std::size(kVentures));
static_assert(std::size(kVentures) == std::size_t{kVentureKinds});

const VentureAct& ActOf(Venture venture) {
  return kVentureActs[static_cast<std::size_t>(venture)];
}

/// What stands against a venture whatever it is about.
std::string WhyNotNow(const World& world, Venture venture) {
  if (!HasSmallMonth(world.Player())) return "Only Small and Backyard promotions live like this.";
  if (IsDoneThisMonth(world, venture)) return "Once a month is enough.";
  if (world.Player().Money < PriceOf(world, kVentures[static_cast<std::size_t>(venture)]))
    return "You cannot afford this!";
  if (venture == Venture::Posters && world.Player().Image >= kKnownImage)
    return "Everybody in town knows us already.";
  if (venture == Venture::Tournament && FitWrestlers(world).size() < kFewestEntrants)
    return "A tournament needs four who can wrestle.";
  return {};
}

}  // namespace

std::span<const VentureRow> Ventures() {
  return kVentures;
}

int PriceOf(const World& world, const VentureRow& venture) {
  return ByClass(world, venture.SmallPrice, venture.BackyardPrice);
}

bool IsDoneThisMonth(const World& world, Venture venture) {
  const MonthPlan* plan = PlanOfTheMonth(world);
  return plan && plan->Done[static_cast<std::size_t>(venture)];
}

std::vector<const Worker*> WhomFor(const World& world, Venture venture) {
  const auto whom = ActOf(venture).Whom;
  return whom && HasSmallMonth(world.Player()) ? whom(world) : std::vector<const Worker*>();
}

std::string TryoutTerms(const World& world, const Worker& worker) {
  const SigningOffer offer = TryoutOffer(world, worker);
  return MonthsText(offer.Months) + ", at " + WageText(offer.Wage) + " a month" +
         (offer.CreativeControl ? " and with creative control" : "");
}

std::string WhyNotVenture(const World& world, Venture venture, int workerUid) {
  if (std::string why = WhyNotNow(world, venture); !why.empty()) return why;
  if (!ActOf(venture).Whom) return {};
  const auto whom = WhomFor(world, venture);
  if (whom.empty()) return "There is nobody for it this month.";
  const bool isOne = std::ranges::any_of(whom, [=](auto* w) { return w->Uid == workerUid; });
  return isOne ? "" : "Choose somebody first.";
}

std::string Undertake(World& world, Venture venture, int workerUid) {
  const VentureRow& row = kVentures[static_cast<std::size_t>(venture)];
  MoveBeside(world, world.Player(), -PriceOf(world, row), row.Name);
  MarkDone(world, venture);
  Worker nobody{};
  Worker* whom = world.FindWorker(workerUid);
  return ActOf(venture).Do(world, whom ? *whom : nobody);
}

}  // namespace grapplemont
