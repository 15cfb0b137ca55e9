#include "support/smallworld.h"

#include <gtest/gtest.h>

#include <array>

#include "records/checks/checkworld.h"
#include "records/modWresCheck.h"

namespace grapplemont::test {

namespace {

/// What a promotion of a size starts with.
struct Standing {
  int TicketPrice;
  int Money;
  int Production;
};
constexpr std::array<Standing, 7> kStandings = {{{20, 1000000, 20},
                                                 {60, 20000000, 80},
                                                 {40, 10000000, 60},
                                                 {30, 5000000, 40},
                                                 {20, 2000000, 20},
                                                 {10, 500000, 10},
                                                 {5, 100000, 5}}};

template <class T>
int NextUid(const Records<T>& records) {
  int highest = 0;
  for (const T& record : records) highest = std::max<int>(highest, record.Uid);
  return highest + 1;
}

std::string_view LastWord(std::string_view name) {
  const auto blank = name.rfind(' ');
  return blank == std::string_view::npos ? name : name.substr(blank + 1);
}

/// How a Title's history calls its holders.
std::string HolderText(const World& world, const Title& title) {
  if (title.Holder == 0) return "Vacant";
  if (title.Partner == 0) return WorkerName(world, title.Holder);
  const std::string team = TeamNameOf(world, title.Holder, title.Partner);
  if (team != "None") return team;
  return WorkerShortName(world, title.Holder) + " \\ " + WorkerShortName(world, title.Partner);
}

}  // namespace

template <class T>
SmallWorld& SmallWorld::Add(Records<T>& to, T record, const Change<T>& change) {
  if (change) change(record);
  to.Append(record);
  return *this;
}

SmallWorld& SmallWorld::Promotion(std::string_view initials, int size,
                                  const Change<grapplemont::Promotion>& change) {
  const Standing& standing =
      kStandings[size >= 1 && size <= 6 ? static_cast<std::size_t>(size) : 0];
  grapplemont::Promotion promotion;
  promotion.Uid = NextPromotionUid(world_);
  promotion.Active = true;
  promotion.Name = std::string(initials) + " Wrestling";
  promotion.Initials = initials;
  promotion.Size = size;
  promotion.Money = standing.Money;
  promotion.TicketPrice = standing.TicketPrice;
  promotion.Production = standing.Production;
  promotion.Image = 50;
  promotion.Risk = 30;
  promotion.MeetingDay = "Monday";
  for (auto& rank : promotion.Rank) rank = kNoEnd;
  for (Cash& money : promotion.MoneyBefore) money = kNoEnd;
  for (auto& split : promotion.Split) split = "None";
  promotion.CampName = "None";
  promotion.DevName = "None";
  Add(world_.Promotions(), promotion, change);
  employer_ = world_.Promotions()[world_.Promotions().Count()].Uid;
  return *this;
}

SmallWorld& SmallWorld::OnTheMarket() {
  employer_ = 0;
  return *this;
}

grapplemont::Worker SmallWorld::NewWorker(std::string_view name) const {
  grapplemont::Worker worker;
  worker.Uid = NextWorkerUid(world_);
  worker.Name = name;
  worker.ShortName = LastWord(name);
  worker.Gender = true;
  worker.BirthMonth = 6;
  worker.Age = 28;
  worker.Weight = "H";
  worker.Employer = employer_;
  worker.ContractType = employer_ == 0 ? "Non" : "Wri";
  worker.ContractMonths = employer_ == 0 ? 0 : 12;
  worker.Wage = 10;
  worker.Position = kMidcard;
  worker.Status = "Nor";
  for (Percent* skill : {&worker.Brawl, &worker.Technical, &worker.Speed, &worker.Stiff,
                         &worker.Sell, &worker.Over, &worker.Charisma, &worker.Attitude})
    *skill = 50;
  worker.Speaks = true;
  worker.Disposition = "F";
  worker.Finisher1 = "Backbreaker";
  worker.Finisher2 = "Clothesline";
  worker.Stable = "None";
  worker.Split = "None";
  worker.Condition = 100;
  for (Percent* mood : {&worker.Morale, &worker.Behaviour, &worker.Loyalty}) *mood = 80;
  worker.LastTurn = kDayZero;
  worker.Potential = 70;
  worker.Debuted = true;
  return worker;
}

SmallWorld& SmallWorld::Worker(std::string_view name, const Change<grapplemont::Worker>& change) {
  grapplemont::Worker worker = NewWorker(name);
  return Add(world_.Workers(), worker, change);
}

SmallWorld& SmallWorld::Worker(std::string_view name, int position, int over,
                               const Change<grapplemont::Worker>& change) {
  return Worker(name, [&](grapplemont::Worker& worker) {
    worker.Position = position;
    worker.Over = over;
    worker.Potential = std::max(70, over);
    if (change) change(worker);
  });
}

SmallWorld& SmallWorld::Crew(int count) {
  const grapplemont::Promotion* employer = Employer();
  const std::string prefix = employer ? employer->Initials.Str() : "Free";
  for (int i = 0; i < count; ++i) {
    const int position = kMainEvent + i % 6;
    Worker(prefix + " Hand " + std::to_string(i + 1), position, 90 - 10 * position);
  }
  return *this;
}

grapplemont::Staff SmallWorld::NewStaff(std::string_view name, int position) const {
  const bool boss = position == kOwner;
  grapplemont::Staff staff;
  staff.Uid = NextStaffUid(world_);
  staff.Name = name;
  staff.Gender = true;
  staff.BirthMonth = 6;
  staff.Age = 40;
  staff.Employer = employer_;
  staff.ContractMonths = boss ? kNoEnd : employer_ == 0 ? 0 : 12;
  staff.ContractType = employer_ == 0 || boss ? "Non" : "Wri";
  staff.Wage = boss ? 4 : 5;
  staff.Position = position;
  staff.Talent = 50;
  for (Percent* mood : {&staff.Morale, &staff.Backstage, &staff.Loyalty}) *mood = 80;
  return staff;
}

SmallWorld& SmallWorld::Owner(std::string_view name, const Change<grapplemont::Staff>& change) {
  return Staff(name, kOwner, 50, change);
}

SmallWorld& SmallWorld::Staff(std::string_view name, int position, int talent,
                              const Change<grapplemont::Staff>& change) {
  grapplemont::Staff staff = NewStaff(name, position);
  staff.Talent = talent;
  return Add(world_.AllStaff(), staff, change);
}

SmallWorld& SmallWorld::Team(std::string_view name, std::string_view workerA,
                             std::string_view workerB, const Change<grapplemont::Team>& change) {
  grapplemont::Team team;
  team.Name = name;
  team.Worker1 = WorkerUid(workerA);
  team.Worker2 = WorkerUid(workerB);
  team.Finisher = "Double Suplex";
  team.Experience = 50;
  return Add(world_.Teams(), team, change);
}

SmallWorld& SmallWorld::Stable(std::string_view name,
                               const std::vector<std::string_view>& members) {
  grapplemont::Stable stable;
  stable.Name = name;
  stable.Owner = employer_;
  world_.Stables().Append(stable);
  for (const std::string_view member : members) Named(world_.Workers(), member).Stable = name;
  return *this;
}

SmallWorld& SmallWorld::Title(std::string_view name, std::string_view holder,
                              std::string_view partner, const Change<grapplemont::Title>& change) {
  grapplemont::Title title;
  title.Name = name;
  title.Singles = partner.empty();
  title.Owner = employer_;
  title.Holder = holder.empty() ? 0 : WorkerUid(holder);
  title.Partner = partner.empty() ? 0 : WorkerUid(partner);
  title.Image = 50;
  for (Reign& reign : title.Reigns) {
    reign.Won = kNoTitleDate;
    reign.Holder = "None";
    reign.Lost = kNoTitleDate;
  }
  title.Reigns[0].Holder = HolderText(world_, title);
  return Add(world_.Titles(), title, change);
}

SmallWorld& SmallWorld::Network(std::string_view name, const Change<grapplemont::Network>& change) {
  grapplemont::Network network;
  network.Uid = NextUid(world_.Networks());
  network.Name = name;
  network.EarlyAudience = 400;
  network.PrimeAudience = 500;
  network.LateAudience = 300;
  network.GraveAudience = 100;
  for (Percent* risk :
       {&network.EarlyRisk, &network.PrimeRisk, &network.LateRisk, &network.GraveRisk})
    *risk = 60;
  network.Production = 10;
  return Add(world_.Networks(), network, change);
}

SmallWorld& SmallWorld::Show(std::string_view name, std::string_view day, std::string_view network,
                             const Change<grapplemont::Show>& change) {
  grapplemont::Show show;
  show.Name = name;
  show.Owner = employer_;
  show.Day = day;
  show.Slot = "P";
  show.Network = Named(world_.Networks(), network).Uid;
  show.ContractWeeks = 24;
  return Add(world_.Shows(), show, change);
}

SmallWorld& SmallWorld::Sponsor(std::string_view name, const Change<grapplemont::Sponsor>& change) {
  grapplemont::Sponsor sponsor;
  sponsor.Uid = NextUid(world_.Sponsors());
  sponsor.Name = name;
  sponsor.Slogan = "Ask for it by name.";
  sponsor.Promotion = employer_;
  sponsor.ContractMonths = employer_ == 0 ? 0 : 12;
  sponsor.Morality = 50;
  sponsor.Pay = 100;
  Add(world_.Sponsors(), sponsor, change);
  if (grapplemont::Promotion* promotion = Employer()) {
    const auto free = std::find(promotion->Sponsor.begin(), promotion->Sponsor.end(), Word());
    if (free != promotion->Sponsor.end()) *free = world_.Sponsors()[world_.Sponsors().Count()].Uid;
  }
  return *this;
}

SmallWorld& SmallWorld::Event(int month, int type, std::string_view name) {
  grapplemont::Event event;
  event.Name = name.empty()
                   ? PromotionInitials(world_, employer_) + " in " + std::string(MonthName(month))
                   : std::string(name);
  event.Owner = employer_;
  event.Month = month;
  event.Type = type;
  return Add(world_.Events(), event, {});
}

SmallWorld& SmallWorld::Game(std::string_view player, Day today, const Change<GameInfo>& change) {
  player_ = player;
  today_ = today;
  gameChange_ = change;
  return *this;
}

SmallWorld& SmallWorld::Feud(std::string_view workerA, std::string_view workerB,
                             const Change<grapplemont::Feud>& change) {
  grapplemont::Feud feud;
  feud.Singles = true;
  feud.Worker1 = WorkerUid(workerA);
  feud.Worker2 = WorkerUid(workerB);
  feud.Heat = 50;
  feud.Started = kGameStart;
  return Add(world_.Feuds(), feud, change);
}

SmallWorld& SmallWorld::TagFeud(std::string_view workerA, std::string_view partnerA,
                                std::string_view workerB, std::string_view partnerB,
                                const Change<grapplemont::Feud>& change) {
  return Feud(workerA, partnerA, [&](grapplemont::Feud& feud) {
    feud.Singles = false;
    feud.Worker3 = WorkerUid(workerB);
    feud.Worker4 = WorkerUid(partnerB);
    if (change) change(feud);
  });
}

SmallWorld& SmallWorld::Mail(std::string_view from, std::string_view body) {
  grapplemont::Mail mail;
  mail.From = from;
  mail.Date = ShortDate(today_);
  mail.Body = body;
  return Add(world_.News(), mail, {});
}

World SmallWorld::Build() {
  World world = BuildUnchecked();
  for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << "A small world: " << fault.Line();
  return world;
}

World SmallWorld::BuildUnchecked() {
  if (!player_.empty()) BeginGame();
  world_.MarkCommitted();
  return std::move(world_);
}

void SmallWorld::BeginGame() {
  grapplemont::Promotion& player = Named(world_.Promotions(), player_);
  GameInfo game;
  game.PlayerName = "Sam Archer";
  game.Reputation = 80;
  game.StartDate = kGameStart < today_ ? kGameStart : today_;
  for (Job& job : game.Jobs) job.Promotion = "None";
  game.Jobs[0].Promotion = player.Name.View();
  game.Jobs[0].Started = game.StartDate;
  game.Jobs[0].StartImage = player.Image;
  game.Jobs[0].StartSize = player.Size;
  game.SaveName = "Save Game 1";
  game.PlayerPromotion = player.Uid;
  game.Difficulty = kMedium;
  game.Today = today_;
  for (Word* option :
       {&game.MailOwners, &game.MailWorkerHire, &game.MailWorkerFire, &game.MailStaffHire,
        &game.MailStaffFire, &game.MailTv, &game.MailRetirement, &game.MailOtherFed,
        &game.MailSponsor, &game.MailShows, &game.MailTvShow, &game.MailStaffRetire})
    *option = 1;
  game.Reporter = 1;
  game.Economy = 60;
  game.EconomyRising = true;
  game.Version = kVersion;
  Add(world_.GameInfos(), game, gameChange_);
  world_.Session.StartSize = player.Size;
  for (grapplemont::Promotion& promotion : world_.Promotions())
    if (promotion.Rank[0] == kNoEnd) promotion.Rank[0] = StandingScore(promotion);
  while (world_.Feuds().Count() < kFeuds) world_.Feuds().Append({});
  if (!world_.Notes().Exists()) world_.Notes().Set("Notepad");
}

grapplemont::Promotion* SmallWorld::Employer() {
  return world_.FindPromotion(employer_);
}

int SmallWorld::WorkerUid(std::string_view name) const {
  return Named(world_.Workers(), name).Uid;
}

std::map<std::string, Bytes> BytesOf(const World& world) {
  std::map<std::string, Bytes> files;
  for (const Table* table : world.Tables())
    if (table->Exists())
      files.emplace(table->File(), Bytes(table->Contents().begin(), table->Contents().end()));
  return files;
}

World CopyOf(const World& world) {
  World copy;
  copy.Load(BytesOf(world));
  copy.Session = world.Session;
  copy.MarkCommitted();
  return copy;
}

void ExpectSound(const World& world) {
  for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
}

void ExpectSame(const World& world, const World& expected) {
  EXPECT_EQ("", FirstDifference(world, expected));
}

}  // namespace grapplemont::test
