#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "booking/wizard/roster.h"
#include "business/sponsors.h"
#include "calendar/events.h"
#include "records/checks/checkworld.h"
#include "records/fields/charset.h"
#include "records/modWresCheck.h"
#include "show/attendance.h"
#include "support/defaultworld.h"
#include "support/smallworld.h"

// Holds the tables of world/ to what makes a world worth playing: nothing here is a rule of the
// game, all of it is care for the people and companies in it.

namespace grapplemont::test {
namespace {

std::string Utf8(std::string_view text) {
  return ToUtf8(text);
}

bool Wrestles(const Worker& worker) {
  return worker.Position >= kMainEvent && worker.Position <= kJobber;
}

template <class Records, class Wanted>
int CountIf(const Records& records, Wanted wanted) {
  return static_cast<int>(std::count_if(records.begin(), records.end(), wanted));
}

/// The workers of a promotion that `wanted` takes.
template <class Wanted>
std::vector<const Worker*> WorkersOf(const Promotion& promotion, Wanted wanted) {
  std::vector<const Worker*> found;
  for (const Worker& worker : DefaultWorld().Workers())
    if (worker.Employer == promotion.Uid && wanted(worker)) found.push_back(&worker);
  return found;
}

int StaffIn(const Promotion& promotion, int post, int talent = 0) {
  return CountIf(DefaultWorld().AllStaff(), [&](const Staff& staff) {
    return staff.Employer == promotion.Uid && staff.Position == post && staff.Talent >= talent;
  });
}

int ShowsOf(const Promotion& promotion) {
  return CountIf(DefaultWorld().Shows(),
                 [&](const Show& show) { return show.Owner == promotion.Uid; });
}

int MostSkill(const Worker& worker) {
  return std::max<int>({worker.Brawl, worker.Technical, worker.Speed});
}

double Mean(const std::vector<const Worker*>& workers, int (*of)(const Worker&)) {
  double sum = 0;
  for (const Worker* worker : workers) sum += of(*worker);
  return workers.empty() ? 0 : sum / static_cast<double>(workers.size());
}

TEST(DefaultWorld, HasNoFaults) {
  for (const Fault& fault : CheckWorld(DefaultWorld())) ADD_FAILURE() << Utf8(fault.Line());
}

TEST(DefaultWorld, IsAsBigAsItShouldBe) {
  const World& world = DefaultWorld();
  const int employed = CountIf(world.Workers(), [](auto& worker) { return worker.Employer != 0; });
  const struct {
    const char* What;
    int Count, Least, Most;
  } rows[] = {
      {"promotions", world.Promotions().Count(), 16, 20},
      {"workers", world.Workers().Count(), 500, 650},
      {"percent employed", 100 * employed / world.Workers().Count(), 60, 73},
      {"networks", world.Networks().Count(), 10, 14},
      {"sponsors", world.Sponsors().Count(), 60, 1000},
      {"teams", world.Teams().Count(), 60, 1000},
      {"stables", world.Stables().Count(), 20, 1000},
  };
  for (const auto& row : rows)
    EXPECT_TRUE(row.Count >= row.Least && row.Count <= row.Most) << row.What << " " << row.Count;
  for (int size = kGlobal; size <= kBackyard; ++size) {
    const int count = CountIf(world.Promotions(), [=](auto& p) { return p.Size == size; });
    EXPECT_GE(count, size == kGlobal ? 1 : 2) << size;
    if (size == kGlobal) {
      EXPECT_LE(count, 2);
    }
  }
}

TEST(DefaultWorld, HasAllKindsOfWorkers) {
  const auto count = [](auto wanted) { return CountIf(DefaultWorld().Workers(), wanted); };
  using W = const Worker&;
  const struct {
    const char* What;
    int Count, Least;
  } rows[] = {
      {"stars", count([](W w) { return w.Over >= 85; }), 15},
      {"rising youngsters", count([](W w) { return w.Age <= 25 && w.Over >= 60; }), 12},
      {"fading veterans", count([](W w) { return w.Age >= 44 && w.Over >= 45 && Wrestles(w); }),
       10},
      {"technicians", count([](W w) { return w.Technical >= 85; }), 25},
      {"brawlers", count([](W w) { return w.Brawl >= 75 && w.Technical < 60; }), 25},
      {"high-flyers", count([](W w) { return w.Speed >= 80 && w.HighSpots; }), 15},
      {"managers", count([](W w) { return w.Position == kManager; }), 25},
      {"non-wrestlers", count([](W w) { return w.Position == kNonWrestler; }), 15},
      {"trainees", count([](W w) { return w.Position == kTrainingCamp; }), 15},
      {"hopefuls in development", count([](W w) { return w.Position == kDevelopmentDeal; }), 10},
      {"women", count([](W w) { return !w.Gender; }), 120},
      {"lightweights", count([](W w) { return w.Weight == "L"; }), 120},
      {"trouble makers", count([](W w) { return w.Behaviour < 45; }), 12},
      {"good souls", count([](W w) { return w.Behaviour >= 88; }), 60},
      {"who cannot be let go", count([](W w) { return w.Unsackable; }), 3},
      {"trainers", count([](W w) { return w.Trainer; }), 10},
      {"tweeners", count([](W w) { return w.Disposition == "T"; }), 15},
  };
  for (const auto& row : rows) EXPECT_GE(row.Count, row.Least) << row.What;
}

TEST(DefaultWorld, KnowsItsCelebrities) {
  const World& world = DefaultWorld();
  EXPECT_EQ(Named(world.Workers(), "Maul Gantry").Position, kMainEvent);
  EXPECT_NE(Named(world.Workers(), "Tobias Fenn").Employer, 0);
  EXPECT_EQ(Named(world.AllStaff(), "Dalton Reeve").Position, kOwner);
  EXPECT_NE(Named(world.AllStaff(), "Dalton Reeve").Employer, 0);
}

// The names that new promotions of a running game take.
TEST(DefaultWorld, LeavesTheNamesOfLaterPromotionsFree) {
  const std::set<std::string_view> kInitials = {
      "TCW", "RMW", "CCW",  "WLW",  "AGC",   "CZC",    "NCYW",   "OSD",  "ODW",  "CLF",
      "DVC", "MWC", "PDW",  "CWL",  "SWF",   "UCR",    "ROF",    "GCG",  "UWX",  "VZF",
      "AAA", "CCC", "BWF",  "ECA",  "NNW",   "21CW",   "NWA:EC", "5SSW", "3XW",  "PGHW",
      "HGC", "WIL", "NWCW", "NECW", "SMW:R", "NWA:CI", "NWAOSR", "ECW2", "DAVE", "LATPF"};
  const std::set<std::string_view> kNames = {"Total Championship Wrestling",
                                             "Rocky Mountain Wrestling",
                                             "Championship Contest Wrestling",
                                             "World Level Wrestling",
                                             "Atlanta Gold Combat",
                                             "Coastal Zone Combat",
                                             "New York City Wrestling",
                                             "Old School Dojo",
                                             "Overdose Wrestling",
                                             "City Limits Fighting",
                                             "Death Valley Combat",
                                             "Mystery Wrestling Club",
                                             "PileDriver Wrestling",
                                             "Charisma Wrestling League",
                                             "Supreme Wrestling Federation",
                                             "Ultimate Combat Ring",
                                             "Rings Of Fire",
                                             "Golden Canvas Grappling",
                                             "Unbeatable Wrestling Xtreme",
                                             "Vampire Zone Fighting",
                                             "Angel Athletic Association",
                                             "Crash Course Combat",
                                             "Brooklyn Wrestling Federation",
                                             "Empire Combat Academy",
                                             "No Name Wrestling",
                                             "21st Century Wrestling",
                                             "NWA: East Coast",
                                             "5 Star Supreme Wrestling",
                                             "XXX Wrestling",
                                             "Pride Glory Honor Wrestling",
                                             "Hollyweird Grappling Company",
                                             "Wrestling Is Life",
                                             "New World Championship Wrestling",
                                             "New Extreme Championship Wrestling",
                                             "Smokey Mountain Wrestling Rebirth",
                                             "NWA: Canadian Invasion",
                                             "NWA: Old School Rulz",
                                             "Extreme Championship Wrestling 2",
                                             "Danger And Violence Extreme",
                                             "League Against The Pemberly Family"};
  ASSERT_EQ(kInitials.size(), 40u);
  ASSERT_EQ(kNames.size(), 40u);
  for (const Promotion& promotion : DefaultWorld().Promotions()) {
    EXPECT_FALSE(kInitials.contains(promotion.Initials.View())) << promotion.Initials.Str();
    EXPECT_FALSE(kNames.contains(promotion.Name.View())) << promotion.Name.Str();
  }
}

/// The place that a popularity earns: from the lowest place up, the Over above which the next
/// begins.
int EarnedPlace(int size, int over) {
  struct Row {
    int Lowest;
    std::vector<int> Above;
  };
  static const Row kRows[] = {{6, {20, 40, 60, 80, 90}}, {6, {20, 40, 55, 70, 80}},
                              {6, {10, 20, 40, 50, 65}}, {6, {10, 20, 35, 45, 55}},
                              {5, {5, 10, 20, 35}},      {3, {10, 25}}};
  const Row& row = kRows[size - 1];
  return row.Lowest - static_cast<int>(std::count_if(row.Above.begin(), row.Above.end(),
                                                     [=](int limit) { return over > limit; }));
}

TEST(DefaultWorld, PutsEveryWrestlerWhereHisPopularityBelongs) {
  for (const Promotion& promotion : DefaultWorld().Promotions())
    for (const Worker* worker : WorkersOf(promotion, Wrestles))
      EXPECT_EQ(worker->Position, EarnedPlace(promotion.Size, worker->Over))
          << Utf8(worker->Name) << ", " << promotion.Initials.Str() << ", Over " << worker->Over;
}

TEST(DefaultWorld, PaysByPlaceAndSize) {
  constexpr int kMostOfSize[] = {300, 100, 80, 60, 30, 20};
  std::map<int, double> meanOfSize;
  for (const Promotion& promotion : DefaultWorld().Promotions()) {
    const auto wage = [](const Worker& w) { return int(w.Wage); };
    const auto roster = WorkersOf(promotion, Wrestles);
    for (const Worker* worker : roster)
      EXPECT_LE(worker->Wage, kMostOfSize[promotion.Size - 1]) << Utf8(worker->Name);
    // Who stands clearly below another does not earn clearly more.
    for (const Worker* one : roster)
      for (const Worker* other : roster)
        if (one->Position > other->Position && one->Over < other->Over - 10) {
          EXPECT_LE(one->Wage, other->Wage + other->Wage / 2 + 5)
              << Utf8(one->Name) << " against " << Utf8(other->Name);
        }
    double above = 1e9;
    for (int place = kMainEvent; place <= kJobber; ++place) {
      const auto here = WorkersOf(promotion, [=](const Worker& w) { return w.Position == place; });
      if (here.empty()) continue;
      EXPECT_LE(Mean(here, wage), above) << promotion.Initials.Str() << " place " << place;
      above = Mean(here, wage);
    }
    const double mean = Mean(roster, wage);
    for (const auto& [size, other] : meanOfSize)
      if (size < promotion.Size) {
        EXPECT_LT(mean, other) << promotion.Initials.Str();
      }
    const auto [known, isNew] = meanOfSize.emplace(promotion.Size, mean);
    if (!isNew) known->second = std::min(known->second, mean);
  }
}

TEST(DefaultWorld, LetsSkillAndPopularityGoTogether) {
  for (const Promotion& promotion : DefaultWorld().Promotions()) {
    auto roster = WorkersOf(promotion, Wrestles);
    std::sort(roster.begin(), roster.end(), [](auto* a, auto* b) { return a->Over > b->Over; });
    const auto half = static_cast<std::ptrdiff_t>(roster.size() / 2);
    EXPECT_GT(Mean({roster.begin(), roster.begin() + half}, MostSkill),
              Mean({roster.begin() + half, roster.end()}, MostSkill))
        << promotion.Initials.Str();
    if (promotion.Size <= kCult) {
      EXPECT_GT(MostSkill(*roster.front()), 65) << Utf8(roster.front()->Name);
    }
  }
}

// Four bouts with other people in each, and four Segments in which somebody talks.
TEST(DefaultWorld, CanFillAShowWithAnyRoster) {
  for (const Promotion& promotion : DefaultWorld().Promotions()) {
    const auto ready =
        WorkersOf(promotion, [](const Worker& w) { return Wrestles(w) && w.Status == "Nor"; });
    const auto counts = [&](auto wanted) { return CountIf(ready, wanted); };
    EXPECT_GE(ready.size(), 8u) << promotion.Initials.Str();
    EXPECT_GE(counts([](auto* w) { return w->Disposition == "F"; }), 3) << promotion.Initials.Str();
    EXPECT_GE(counts([](auto* w) { return w->Disposition == "H"; }), 3) << promotion.Initials.Str();
    EXPECT_NE(counts([](auto* w) { return !w->Gender; }), 1)
        << promotion.Initials.Str() << " has one woman and nobody for her to wrestle";
    const auto speakers = WorkersOf(promotion, [](const Worker& w) {
      return w.Speaks && (Wrestles(w) || w.Position == kManager || w.Position == kNonWrestler);
    });
    EXPECT_GE(CountIf(speakers, [](auto* w) { return w->Charisma >= 50; }), 4)
        << promotion.Initials.Str();
  }
}

TEST(DefaultWorld, HasAStaffForEveryPromotion) {
  constexpr int kAnnouncerFloor[] = {80, 60, 50, 40, 20, 0};
  // By post from Owner to Trainer: how many there must be from Global to Regional, and below.
  constexpr int kNeeded[][2] = {{1, 1}, {2, 0}, {1, 1}, {1, 0}, {1, 0}, {1, 0}, {1, 0}, {1, 0}};
  std::set<int> styles;
  for (const Promotion& promotion : DefaultWorld().Promotions()) {
    const std::string who = promotion.Initials.Str();
    for (int post = kOwner; post <= kTrainer; ++post)
      EXPECT_GE(StaffIn(promotion, post), kNeeded[post - 1][promotion.Size > kRegional])
          << who << " " << Says(kStaffPositions, post);
    const int good = StaffIn(promotion, kAnnouncer, kAnnouncerFloor[promotion.Size - 1]);
    EXPECT_GE(good, promotion.Size <= kRegional ? 2 : promotion.Size == kSmall ? 1 : 0) << who;
    if (promotion.Size <= kCult || ShowsOf(promotion) > 0) {
      EXPECT_GE(StaffIn(promotion, kWriter), WritersNeeded(ShowsOf(promotion))) << who;
    }
    const Staff* owner = OwnerOf(DefaultWorld(), promotion.Uid);
    ASSERT_TRUE(owner) << who;
    EXPECT_TRUE(owner->Wage >= 1 && owner->Wage <= 6) << who;
    styles.insert(owner->Wage);
  }
  EXPECT_EQ(styles.size(), 6u);
  for (int post = kOwner; post <= kTrainer; ++post)
    EXPECT_GE(CountIf(DefaultWorld().AllStaff(),
                      [=](auto& s) { return s.Position == post && s.Employer == 0; }),
              5)
        << "to be hired: " << Says(kStaffPositions, post);
}

TEST(DefaultWorld, GivesTitlesToThoseWhoCarryThem) {
  const World& world = DefaultWorld();
  std::map<int, std::vector<const Title*>> titles;
  for (const Title& title : world.Titles()) titles[title.Owner].push_back(&title);
  for (const Promotion& promotion : world.Promotions()) {
    auto& own = titles[promotion.Uid];
    EXPECT_TRUE(own.size() >= 2 && own.size() <= 5) << promotion.Initials.Str();
    const auto top = *std::max_element(own.begin(), own.end(),
                                       [](auto* a, auto* b) { return a->Image < b->Image; });
    for (const Title* title : own) {
      if (title->Holder == 0) continue;
      for (const int uid : {int(title->Holder), int(title->Partner)}) {
        const Worker* holder = world.FindWorker(uid);
        if (!holder) continue;
        EXPECT_TRUE(Wrestles(*holder)) << Utf8(title->Name);
        EXPECT_EQ(holder->Employer, promotion.Uid) << Utf8(title->Name);
        EXPECT_TRUE(!title->Woman || !holder->Gender) << Utf8(title->Name);
        EXPECT_TRUE(!title->Lightweight || holder->Weight == "L") << Utf8(title->Name);
        EXPECT_LE(std::abs(title->Image - holder->Over), 22) << Utf8(title->Name);
      }
      EXPECT_EQ(title->Partner == 0, bool(title->Singles)) << Utf8(title->Name);
      if (!title->Singles) {
        EXPECT_NE(TeamNameOf(world, title->Holder, title->Partner), "None") << Utf8(title->Name);
      }
    }
    ASSERT_TRUE(world.FindWorker(top->Holder)) << Utf8(top->Name);
    EXPECT_EQ(world.FindWorker(top->Holder)->Position, kMainEvent) << Utf8(top->Name);
  }
}

TEST(DefaultWorld, HasTeamsAndStablesEverywhere) {
  const World& world = DefaultWorld();
  std::map<int, int> teams, stables;
  for (const Team& team : world.Teams()) {
    const Worker *one = world.FindWorker(team.Worker1), *other = world.FindWorker(team.Worker2);
    EXPECT_FALSE(team.Finisher.View().empty()) << Utf8(team.Name);
    if (one->Employer == other->Employer) ++teams[one->Employer];
  }
  for (const Stable& stable : world.Stables()) {
    ++stables[stable.Owner];
    EXPECT_GE(CountIf(world.Workers(), [&](auto& w) { return w.Stable == stable.Name.View(); }), 2)
        << Utf8(stable.Name);
  }
  for (const Promotion& promotion : world.Promotions()) {
    EXPECT_GE(teams[promotion.Uid], 2) << promotion.Initials.Str();
    EXPECT_GE(stables[promotion.Uid], 1) << promotion.Initials.Str();
  }
}

int AudienceOf(const Network& network, std::string_view slot) {
  return slot == "E"   ? network.EarlyAudience
         : slot == "P" ? network.PrimeAudience
         : slot == "L" ? network.LateAudience
                       : network.GraveAudience;
}

int RiskOf(const Network& network, std::string_view slot) {
  return slot == "E"   ? network.EarlyRisk
         : slot == "P" ? network.PrimeRisk
         : slot == "L" ? network.LateRisk
                       : network.GraveRisk;
}

TEST(DefaultWorld, BroadcastsOnlyWhatNetworksWant) {
  const World& world = DefaultWorld();
  for (const Show& show : world.Shows()) {
    const Promotion& promotion = *world.FindPromotion(show.Owner);
    const Network& network = *world.FindNetwork(show.Network);
    const std::string who = Utf8(show.Name);
    EXPECT_LE(promotion.Risk, RiskOf(network, show.Slot)) << who;
    EXPECT_GE(promotion.Production, network.Production) << who;
    EXPECT_NE(world.FindStaff(show.Announcer), nullptr) << who;
    EXPECT_NE(show.Colour, 0) << who;
    // Seven tenths of what the network hopes for is enough to have the deal renewed.
    const int audience = AudienceOf(network, show.Slot);
    const int rating = std::min(Mean(TvRatingBase(promotion.Size, promotion.Image)), audience);
    EXPECT_GE(rating, audience * 7 / 10) << who;
    EXPECT_TRUE(show.Rating2 <= show.Rating3 && show.Rating3 <= show.Rating1) << who;
    EXPECT_LE(std::abs(show.Rating3 - rating), rating / 5 + 5) << who << " " << rating;
    EXPECT_LT(show.Rating4, 3) << who;
  }
}

// From the smallest Regional promotion to the greatest Global one there is always a next network
// that would listen and then be content, never more than twice as far up.
TEST(DefaultWorld, HasALadderOfNetworks) {
  // What a promotion can offer a network, by size and fifths of the image from the lowest.
  constexpr int kPotential[][5] = {{640, 680, 720, 760, 800},
                                   {440, 480, 520, 560, 600},
                                   {240, 280, 320, 360, 400},
                                   {40, 80, 120, 160, 200}};
  constexpr int kTame = 10, kUsual = 45, kWild = 75;
  for (const int risk : {kTame, kUsual, kWild}) {
    std::set<int> rungs;
    int reached = 0;
    for (int size = kRegional; size >= kGlobal; --size)
      for (int fifth = 0; fifth < 5; ++fifth) {
        const int rating = Mean(TvRatingBase(size, 20 * fifth + 20));
        int best = 0;
        for (const Network& network : DefaultWorld().Networks())
          if (!network.Generic && risk <= network.GraveRisk &&
              kPotential[size - 1][fifth] >= network.GraveAudience * 6 / 10 &&
              rating >= network.GraveAudience * 7 / 10)
            best = std::max<int>(best, network.GraveAudience);
        EXPECT_GT(best, 0) << risk << ": nobody wants size " << size << " at " << 20 * fifth;
        EXPECT_TRUE(reached == 0 || best <= 2 * reached)
            << risk << ": " << reached << " to " << best;
        reached = std::max(reached, best);
        rungs.insert(best);
      }
    EXPECT_GE(rungs.size(), risk == kWild ? 4u : risk == kUsual ? 5u : 7u) << risk;
  }
}

TEST(DefaultWorld, HasSponsorsForEverybody) {
  const World& world = DefaultWorld();
  const auto count = [&](auto wanted) { return CountIf(world.Sponsors(), wanted); };
  EXPECT_GE(count([](auto& s) { return s.Pay >= 900; }), 2);
  EXPECT_GE(count([](auto& s) { return s.Pay <= 5; }), 5);
  for (const auto& [low, high] : {std::pair{0, 29}, {30, 69}, {70, 100}})
    EXPECT_GE(count([=, low = low, high = high](auto& s) {
                return s.Morality >= low && s.Morality <= high;
              }),
              15)
        << "morality from " << low;
  for (int pay = 0; pay < 900; pay += 50)
    EXPECT_GE(count([=](auto& s) { return s.Pay > pay && s.Pay <= pay + 50; }), 2) << pay;
  std::set<std::string> slogans, names;
  for (const Sponsor& sponsor : world.Sponsors()) {
    EXPECT_FALSE(sponsor.Slogan.View().empty()) << Utf8(sponsor.Name);
    EXPECT_TRUE(slogans.insert(sponsor.Slogan.Str()).second) << Utf8(sponsor.Slogan);
    EXPECT_TRUE(names.insert(sponsor.Name.Str()).second) << Utf8(sponsor.Name);
  }
  for (const Promotion& promotion : world.Promotions()) {
    const int limit = SponsorPayLimit(promotion.Size, promotion.Image);
    EXPECT_GE(count([&](auto& s) { return BearsRisk(s, promotion.Risk) && s.Pay < limit; }), 4)
        << promotion.Initials.Str();
  }
}

TEST(DefaultWorld, HoldsAnEventOfItsOwnEveryMonth) {
  const World& world = DefaultWorld();
  std::map<std::pair<int, int>, int> held;
  std::set<std::string> names;
  for (const Event& event : world.Events()) {
    ++held[{event.Owner, event.Month}];
    EXPECT_TRUE(names.insert(event.Name.Str()).second) << Utf8(event.Name);
    EXPECT_EQ(event.Type, NewEventType(*world.FindPromotion(event.Owner))) << Utf8(event.Name);
  }
  for (const Promotion& promotion : world.Promotions())
    for (int month = 1; month <= 12; ++month)
      EXPECT_EQ((held[{promotion.Uid, month}]), 1) << promotion.Initials.Str() << " " << month;
}

TEST(DefaultWorld, CallsPeopleByNamesThatFitTheProse) {
  const World& world = DefaultWorld();
  std::map<int, std::set<std::string>> shortNames;
  std::map<std::string, int> finishers;
  for (const Worker& worker : world.Workers()) {
    const std::string who = Utf8(worker.Name);
    EXPECT_FALSE(worker.ShortName.View().empty()) << who;
    if (worker.Employer != 0) {
      EXPECT_TRUE(shortNames[worker.Employer].insert(worker.ShortName.Str()).second)
          << who << " shares a short name with a colleague";
    }
    for (const auto* finisher : {&worker.Finisher1, &worker.Finisher2}) {
      EXPECT_FALSE(finisher->View().empty()) << who;
      ++finishers[finisher->Str()];
    }
    EXPECT_FALSE(worker.Finisher1 == worker.Finisher2) << who;
  }
  for (const auto& [finisher, count] : finishers)
    EXPECT_LE(count, 2 + 5 * (finisher == "Macklebury Muffler")) << Utf8(finisher);
}

// A last word that says how a move is done must agree with its type.
TEST(DefaultWorld, DoesEveryFinisherAsItsNameSays) {
  const std::set<std::string_view> kHolds = {"Lock", "Clutch", "Stretch", "Hold",  "Choke",
                                             "Vise", "Crab",   "Armbar",  "Cradle"};
  const std::set<std::string_view> kThrows = {"Bomb",   "Driver", "Suplex",  "Slam", "DDT",
                                              "Lariat", "Kick",   "Breaker", "Chop", "Headbutt"};
  const std::set<std::string_view> kDives = {"Dive", "Plunge", "Leap"};
  for (const Worker& worker : DefaultWorld().Workers())
    for (const int slot : {1, 2}) {
      const std::string name = (slot == 1 ? worker.Finisher1 : worker.Finisher2).Str();
      const auto last = std::string_view(name).substr(name.rfind(' ') + 1);
      const FinisherType type = FinisherTypeOf(worker, slot);
      if (kHolds.contains(last) && last != "Cradle") {
        EXPECT_EQ(type, FinisherType::Submission) << Utf8(worker.Name) << ": " << Utf8(name);
      }
      if (kThrows.contains(last)) {
        EXPECT_TRUE(type == FinisherType::Impact || type == FinisherType::TopRope)
            << Utf8(worker.Name) << ": " << Utf8(name);
      }
      if (kDives.contains(last)) {
        EXPECT_EQ(type, FinisherType::TopRope) << Utf8(worker.Name) << ": " << Utf8(name);
      }
    }
}

/// How far a rival's image moves for a show of a quality.
struct Move {
  int From;
  int Change;
};
using Moves = std::vector<Move>;

int MoveFor(const Moves& moves, int quality) {
  int change = 0;
  for (const Move& move : moves)
    if (quality >= move.From) change = move.Change;
  return change;
}

/// Quality of a rival's show: the mean Over of those whom people come to see, Main Eventers twice.
int Quality(const Promotion& promotion, const std::set<int>& counted) {
  int count = 0, sum = 0;
  for (const Worker* worker : WorkersOf(promotion, [](auto&) { return true; })) {
    const int weight = worker->Position == kMainEvent ? 2 : int(counted.contains(worker->Position));
    count += weight;
    sum += weight * worker->Over;
  }
  EXPECT_GE(count, 6) << promotion.Initials.Str() << " would have to cancel its shows";
  return count == 0 ? 0 : sum / count;
}

// Left alone, nobody rises or falls a class in the first year. A Global promotion has nowhere to
// rise to.
TEST(DefaultWorld, StaysAsItIsForAYear) {
  const std::array<Moves, 6> kEvents = {{
      {{0, -15}, {20, -7}, {50, -3}, {68, 2}, {80, 4}, {90, 5}},
      {{0, -12}, {20, -5}, {40, -3}, {60, 1}, {75, 3}, {85, 6}},
      {{0, -5}, {20, -2}, {30, -1}, {48, 2}, {60, 4}, {75, 10}},
      {{0, -5}, {20, -2}, {30, -1}, {35, 1}, {45, 2}, {55, 3}, {65, 6}, {75, 10}},
      {{0, -5}, {20, -2}, {30, 1}, {35, 2}, {45, 3}, {60, 4}, {80, 6}, {90, 10}},
      {{0, -2}, {10, 1}, {30, 2}, {60, 3}, {80, 6}, {90, 10}},
  }};
  const std::array<Moves, 6> kShows = {{
      {{0, -5}, {20, -3}, {50, -2}, {68, 1}, {80, 2}, {90, 3}},
      {{0, -5}, {20, -3}, {40, -2}, {60, 1}, {75, 2}, {85, 3}},
      {{0, -5}, {20, -2}, {30, -1}, {48, 1}, {60, 2}, {75, 3}},
      {{0, -3}, {20, -2}, {30, -1}, {38, 1}, {45, 2}, {55, 3}, {65, 4}, {75, 5}},
      {{0, -5}, {20, -3}, {30, 1}, {35, 2}, {45, 3}, {60, 4}, {80, 5}, {90, 6}},
      {{0, -5}, {10, 1}, {30, 2}, {60, 3}, {90, 4}},
  }};
  for (const Promotion& promotion : DefaultWorld().Promotions()) {
    const auto row = static_cast<std::size_t>(promotion.Size - 1);
    const int event = MoveFor(kEvents[row], Quality(promotion, {2, 3, kNonWrestler, kManager}));
    const int show = MoveFor(kShows[row], Quality(promotion, {2, 3, 4}));
    const int after = promotion.Image + 12 * event + 52 * ShowsOf(promotion) * show;
    EXPECT_GT(after, 0) << promotion.Initials.Str() << " would fall";
    if (promotion.Size > kGlobal) {
      EXPECT_LT(after, 100) << promotion.Initials.Str() << " would rise";
    }
  }
}

}  // namespace
}  // namespace grapplemont::test
