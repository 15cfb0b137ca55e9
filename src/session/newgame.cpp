#include "session/newgame.h"

#include <algorithm>
#include <array>

#include "business/finance.h"
#include "calendar/awards.h"
#include "calendar/events.h"
#include "records/arithmetic.h"
#include "records/fields/fields.h"
#include "records/houserules.h"
#include "records/keepannals.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/readmail.h"
#include "rivals/founding.h"
#include "rivals/rivals.h"
#include "rivals/workermarket.h"
#include "roster/invented.h"
#include "roster/postings.h"
#include "session/randomworld.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

/// What a rival spends when a game begins, by size from Global to Backyard.
struct StartingSpend {
  int Production;
  int Advertising;
  int Merchandising;
};
constexpr std::array<StartingSpend, 6> kStartingSpend = {
    {{80, 4, 4}, {60, 3, 3}, {40, 2, 2}, {20, 1, 1}, {10, 0, 0}, {0, 0, 0}}};

struct PostTarget {
  int Base;
  int PerPromotion;
  int Most;
};
// By post from Owner to Trainer; the world has its Owners whatever its size.
constexpr std::array<PostTarget, 8> kPostTargets = {{{45, 0, 45},
                                                     {0, 5, 150},
                                                     {0, 5, 150},
                                                     {0, 6, 100},
                                                     {0, 4, 120},
                                                     {0, 8, 150},
                                                     {0, 4, 150},
                                                     {0, 3, 120}}};

constexpr int kMostKey = 2'000'000'000;

void NewGameInfo(World& world, const NewGameChoice& choice) {
  GameInfo game;
  game.Version = kVersion;
  game.PlayerName = choice.PlayerName;
  game.SaveName = choice.SaveName;
  game.PlayerPromotion = choice.PromotionUid;
  game.Difficulty = choice.Difficulty;
  game.Today = choice.Start;
  game.StartDate = choice.Start;
  game.Jobs[0].Started = choice.Start;
  game.Reputation = 80;
  for (Word GameInfo::*option :
       {&GameInfo::MailOwners, &GameInfo::MailWorkerHire, &GameInfo::MailWorkerFire,
        &GameInfo::MailStaffHire, &GameInfo::MailStaffFire, &GameInfo::MailTv,
        &GameInfo::MailRetirement, &GameInfo::MailOtherFed, &GameInfo::MailSponsor,
        &GameInfo::MailShows, &GameInfo::MailTvShow, &GameInfo::MailStaffRetire,
        &GameInfo::Reporter})
    game.*option = 1;
  game.Economy = world.RandomDraw(20) + 50;
  game.EconomyRising = world.RandomDraw(2) == 1;
  for (std::size_t i = 1; i < game.Jobs.size(); ++i) game.Jobs[i].Promotion = "None";
  world.GameInfos().Rewrite({game});
  WorldKey key{};
  key.Key = world.Life().Draw(kMostKey);
  world.Keys().Rewrite({key});
  if (!HouseRulesText(choice.House).empty()) world.Of<HouseRules>().Rewrite({choice.House});
}

void EmptyFiles(World& world, const NewGameChoice& choice) {
  for (Table* table : world.Tables())
    if (std::ranges::find(kDataSet, table->File()) == kDataSet.end()) table->Remove();
  world.Feuds().Rewrite(std::vector<Feud>(kFeuds));
  NewGameInfo(world, choice);
  world.Notes().Set("Notepad");
}

void RememberJob(World& world, const Promotion& promotion) {
  Job& job = world.Game().Jobs[0];
  job.Promotion = promotion.Name.View();
  job.StartImage = int(promotion.Image);
  job.StartSize = int(promotion.Size);
}

void StartPromotion(World& world, Promotion& promotion) {
  const bool isPlayer = promotion.Uid == world.PlayerUid();
  const StartingSpend& spend = BySize(kStartingSpend, promotion.Size);
  if (isPlayer) {
    RememberJob(world, promotion);
  } else {
    EnsureEvents(world, promotion);
    promotion.Production = spend.Production;
    promotion.Advertising = spend.Advertising;
    promotion.Merchandising = spend.Merchandising;
  }
  promotion.TicketPrice = FairTicketPrice(promotion.Size);
  promotion.Momentum = world.RandomDraw(4);
  promotion.LoanAmount = 0;
  promotion.LoanMonths = 0;
  promotion.LoanRepaid = 0;
  promotion.LoanMissed = 0;
  promotion.ThisMonth = {};
  promotion.LastMonth = {};
  promotion.Sponsor = {};
  for (auto& rank : promotion.Rank) rank = kNoEnd;
  for (Cash& money : promotion.MoneyBefore) money = kNoEnd;
  promotion.Rank[0] = StandingScore(promotion);
}

void StartPromotions(World& world) {
  for (Promotion& promotion : world.Promotions()) StartPromotion(world, promotion);
}

/// A player alone at the top may be challenged.
void MaybeChallenge(World& world) {
  if (IsAloneAtTheTop(world) && world.RandomDraw(5) == 1 && world.Promotions().Count() < 20)
    world.Game().EndCode = kStrangerWaits;
}

bool WaitsForDebut(const World& world, const Worker& worker) {
  return worker.Employer == world.PlayerUid() &&
         (worker.Position == kDevelopmentDeal || worker.Position == kTrainingCamp ||
          worker.Position >= kSentToDevelopment);
}

void StartWorker(World& world, Worker& worker) {
  if (worker.BirthMonth == 0) worker.BirthMonth = world.RandomDraw(12);
  if (worker.Employer != 0) {
    worker.ContractMonths = world.RandomDraw(30) + 8;
    if (worker.Unsackable) worker.ContractMonths = kNoEnd;
  } else {
    worker.Unsackable = false;
  }
  worker.Condition = world.RandomDraw(14) + 75;
  worker.Morale = world.RandomDraw(14) + 75;
  // Nobody carries an old injury into a new world: without months it would never end.
  worker.Status = "Nor";
  worker.StatusMonths = 0;
  worker.InjuryName = "";
  worker.TurnPending = false;
  worker.RetiringSoon = false;
  worker.Debuted = !WaitsForDebut(world, worker);
  worker.Loyalty = world.RandomDraw(30) + 70;
  worker.LastTurn.SetRaw(0);
  worker.OverFloor = std::max<int>(worker.OverFloor, OverFloorFor(worker.Over));
  worker.Potential = StartingPotential(world, worker.Over);
}

void StartWorkers(World& world) {
  for (Worker& worker : world.Workers()) StartWorker(world, worker);
}

void FillWorkers(World& world) {
  const int target = std::min(world.Promotions().Count() * 50, 750);
  while (world.Workers().Count() < target) NewFillerWorker(world);
}

void StartStaff(World& world) {
  for (Staff& staff : world.AllStaff()) {
    if (staff.Employer != 0) staff.ContractMonths = world.RandomDraw(30) + 8;
    if (staff.Unsackable || staff.Position == kOwner) staff.ContractMonths = kNoEnd;
    staff.Morale = world.RandomDraw(40) + 60;
    staff.Loyalty = world.RandomDraw(30) + 70;
  }
}

void FillStaff(World& world) {
  for (int position = kOwner; position <= kTrainer; ++position) {
    auto count = std::count_if(world.AllStaff().begin(), world.AllStaff().end(),
                               [&](const Staff& staff) { return staff.Position == position; });
    const PostTarget& post = kPostTargets[static_cast<std::size_t>(position - 1)];
    const int target =
        std::min(post.Base + world.Promotions().Count() * post.PerPromotion, post.Most);
    for (; count < target && !world.AllStaff().Full(); ++count) NewFillerStaff(world, position);
  }
}

void StartSponsors(World& world) {
  for (Sponsor& sponsor : world.Sponsors()) {
    sponsor.Promotion = 0;
    sponsor.ContractMonths = 0;
  }
}

void StartShows(World& world) {
  for (Show& show : world.Shows())
    if (show.Owner != 0) show.ContractWeeks = world.RandomDraw(36) + 12;
}

std::string HolderText(const World& world, const Title& title) {
  if (title.Holder == 0) return std::string(kVacantHolder);
  if (title.Singles) return WorkerName(world, title.Holder);
  const std::string team = TeamNameOf(world, title.Holder, title.Partner);
  if (team != "None") return team;
  return WorkerShortName(world, title.Holder) + " \\ " + WorkerShortName(world, title.Partner);
}

void StartTitles(World& world) {
  for (Title& title : world.Titles()) {
    if (title.Owner != world.PlayerUid()) title.Holder = 0;
    if (title.Holder == 0) title.Partner = 0;
    for (Reign& reign : title.Reigns) {
      reign.Won = kNoTitleDate;
      reign.Lost = kNoTitleDate;
      reign.Holder = "None";
    }
    title.Reigns[0].Holder = HolderText(world, title);
  }
}

/// The men of the player's who wrestle.
std::vector<Worker*> MenToGo(World& world) {
  std::vector<Worker*> men;
  for (Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && worker.Gender && !worker.Unsackable &&
        worker.Position != kManager && worker.Position != kNonWrestler)
      men.push_back(&worker);
  return men;
}

/// Women who work for nobody and suit a promotion of this size, the most popular first.
std::vector<Worker*> WomenToCome(World& world, int size) {
  std::vector<Worker*> women;
  for (Worker& worker : world.Workers())
    if (worker.Employer == 0 && !worker.Gender && worker.Position != kManager &&
        worker.Position != kNonWrestler && IsWithinLimits(worker, size))
      women.push_back(&worker);
  std::ranges::stable_sort(women, [](auto* a, auto* b) { return a->Over > b->Over; });
  return women;
}

/// Where the house wants women only, they take the places of the men.
void SetTheHouse(World& world) {
  if (!Holds(world, HouseRule::WomenOnly)) return;
  const int size = world.Player().Size;
  const std::vector<Worker*> men = MenToGo(world);
  std::vector<Worker*> women = WomenToCome(world, size);
  if (women.size() > men.size()) women.resize(men.size());
  PartWays(world, men);
  for (Worker* woman : women) {
    woman->Employer = world.PlayerUid();
    woman->Position = PlacementPosition(*woman, size);
    woman->ContractType = size < kRegional ? "Wri" : "Non";
    woman->ContractMonths = world.Life().Draw(30) + 8;
    woman->Debuted = true;
  }
}

/// The game's first year is compared with this day, its Titles' reigns begin here, and what was
/// news before it is no unread mail.
void BeginPast(World& world) {
  world.Annals().Rewrite({});
  BeginAnnals(world);
  UpdateReigns(world);
  NoteYearEnd(world);
  world.ReadMails().Rewrite({});
  MarkAllRead(world);
}

void WelcomeMail(World& world) {
  const Staff* owner = OwnerOf(world, world.PlayerUid());
  if (!owner) return;
  const std::string player = world.Game().PlayerName.Str();
  if (owner->Name == "Dalton Reeve") {
    AddNews(world, owner->Name,
            "Good golly Miss Molly, it's " + player +
                " if you weeeel. I've hired you to keep my company running funky like a monkey, "
                "so don't mess up or we'll be clubberin' outside boy!");
  } else {
    AddNews(world, owner->Name,
            player + ", i wish you the best of luck with your new job. You have my full support.");
  }
}

struct Preparation {
  std::string_view Name;
  void (*Run)(World&);
};

// In this order: contracts are drawn before fillers are made, so that fillers have none, and titles
// are known by the names of teams that stand.
constexpr Preparation kPreparations[] = {
    {"Promotions", StartPromotions}, {"Challenge", MaybeChallenge}, {"Workers", StartWorkers},
    {"New workers", FillWorkers},    {"House rules", SetTheHouse},  {"Staff", StartStaff},
    {"New staff", FillStaff},        {"Sponsors", StartSponsors},   {"Television", StartShows},
    {"Titles", StartTitles},         {"The past", BeginPast},       {"Welcome", WelcomeMail},
};

}  // namespace

FaultList NewGame(World& world, const NewGameChoice& choice,
                  const std::function<void(std::string_view)>& watcher) {
  EmptyFiles(world, choice);
  if (Holds(choice.House, HouseRule::RandomWorld)) InventWorld(world);
  if (watcher) watcher("Clean-up");
  FaultList mended = MendWorld(world);
  for (const Preparation& step : kPreparations) {
    if (watcher) watcher(step.Name);
    step.Run(world);
  }
  return mended;
}

}  // namespace grapplemont
