#include "tools/officework.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "booking/auto/autobooker.h"
#include "booking/sheet.h"
#include "calendar/advanceday.h"
#include "calendar/events.h"
#include "info/results.h"
#include "records/checks/checkworld.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "rivals/tuning.h"
#include "session/newgame.h"
#include "show/holdshow.h"
#include "show/recap.h"
#include "storylines/lineages.h"
#include "support/defaultworld.h"
#include "support/gameonworld.h"

// Careers that nobody watches, in the world that comes with the game.

namespace grapplemont::test {
namespace {

using std::chrono::year;
using tools::PlayDays;
using tools::Shows;

World Begun(int promotionUid, std::uint64_t seed, Day start = year{2026} / 3 / 1) {
  World world = CopyOf(DefaultWorld());
  world.SetChance(std::make_unique<SeededDraws>(seed));
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = promotionUid;
  choice.Difficulty = kEasy + static_cast<int>(seed % 4);
  choice.Start = start;
  choice.SaveName = "First";
  NewGame(world, choice);
  return world;
}

/// A career in the chair of a promotion. The world that is opened draws by the seed.
struct Career {
  Career(World world, std::uint64_t seed) : Play(std::move(world)) {
    Play.World().SetChance(std::make_unique<SeededDraws>(seed));
  }
  World& TheWorld() { return Play.World(); }
  GameOnWorld Play;
};

void ExpectSound(const World& world) {
  for (const Fault& fault : CheckWorld(world))
    ADD_FAILURE() << IsoDate(world.Today()) << ": " << ToUtf8(fault.Line());
}

/// Days of it, with a look at everything at every month's beginning.
void PlayYear(int uid, std::uint64_t seed, Shows shows) {
  Career career(Begun(uid, seed), seed);
  SCOPED_TRACE(career.TheWorld().Player().Initials + ", seed " + std::to_string(seed));
  int months = 0;
  const auto end = PlayDays(career.Play.Play, 365, shows, [&](int) {
    if (!IsFirstOfMonth(career.TheWorld().Today())) return;
    ++months;
    ExpectSound(career.TheWorld());
  });
  ExpectSound(career.TheWorld());
  EXPECT_EQ(months, end.EndCode == 0 ? 12 : months);
  EXPECT_EQ(end.Days, end.EndCode == 0 ? 365 : end.Days);
  EXPECT_EQ(end.EndCode, career.TheWorld().Game().EndCode);
}

// Twenty seeds from every chair where that takes half a minute; where it would take twenty, as with
// the sanitizers, two.
#if defined(__OPTIMIZE__) && !defined(__SANITIZE_ADDRESS__)
constexpr std::uint64_t kSeeds = 20;
#else
constexpr std::uint64_t kSeeds = 2;
#endif

void PlayYears(Shows shows) {
  for (std::uint64_t seed = 1; seed <= kSeeds; ++seed)
    for (const Promotion& promotion : DefaultWorld().Promotions())
      PlayYear(promotion.Uid, 100 * seed + static_cast<std::uint64_t>(promotion.Uid), shows);
}

TEST(Careers, KeepTheWorldSoundFromEveryChair) {
  PlayYears(Shows::Auto);
}

TEST(Careers, KeepTheWorldSoundWhenAllShowsAreCalledOff) {
  PlayYears(Shows::Cancel);
}

struct People {
  std::set<int> Uids;
  std::set<std::string> Names;
};
template <class T>
People PeopleIn(const Records<T>& records) {
  People people;
  for (const T& record : records) {
    people.Uids.insert(record.Uid);
    people.Names.insert(record.Name.Str());
  }
  EXPECT_EQ(people.Uids.size(), static_cast<std::size_t>(records.Count()));
  EXPECT_EQ(people.Names.size(), static_cast<std::size_t>(records.Count()));
  return people;
}

std::size_t NewIn(const People& now, const People& then) {
  return static_cast<std::size_t>(
      std::count_if(now.Names.begin(), now.Names.end(),
                    [&](const std::string& name) { return !then.Names.contains(name); }));
}

/// Sees that one step of the day alone makes the file of workers longer, and by nobody more than it
/// takes to have enough of them free.
class Newcomers {
 public:
  explicit Newcomers(const World& world) : world_(world), before_(world.Workers().Count()) {}

  void Hear(std::string_view step) {
    const int all = world_.Workers().Count();
    if (last_ != "DiscoverFreeAgents") {
      EXPECT_EQ(all, before_) << last_ << ", " << IsoDate(world_.Today());
    } else if (all != before_) {
      const auto free = std::count_if(world_.Workers().begin(), world_.Workers().end(),
                                      [](const Worker& worker) { return worker.Employer == 0; });
      EXPECT_GT(all, before_);
      EXPECT_LT((free - 1) * 100, tuning::kFreeWanted * (all - 1));
      came_ += all - before_;
    }
    last_ = step;
    before_ = all;
  }
  int Came() const { return came_; }

 private:
  const World& world_;
  std::string last_;
  int before_, came_ = 0;
};

/// CheckWorld, which knows every link to a worker or a member of staff, finds none to the gone. New
/// talent comes on top where the rivals leave too few free.
TEST(Careers, ReplaceWhoeverRetiresForTenYears) {
  for (const bool nearTheLastUid : {false, true}) {
    World world = Begun(5, 9);
    // Somebody whom no record knows: the last made up for the market.
    if (nearTheLastUid) {
      world.Workers()[world.Workers().Count()].Uid = 32760;
      world.YearEnds()[world.YearEnds().Count()].Worker = 32760;
    }
    const int workers = world.Workers().Count();
    const int staff = world.AllStaff().Count();
    const People workersThen = PeopleIn(world.Workers()), staffThen = PeopleIn(world.AllStaff());
    Newcomers newcomers(world);
    for (int day = 0; day < 3653; ++day) {
      tools::PlayDay(world, nearTheLastUid ? Shows::Cancel : Shows::Auto,
                     [&](std::string_view step) { newcomers.Hear(step); });
      if (IsFirstOfMonth(world.Today())) ExpectSound(world);
    }
    EXPECT_EQ(world.Workers().Count(), workers + newcomers.Came());
    EXPECT_EQ(world.AllStaff().Count(), staff);
    EXPECT_GT(NewIn(PeopleIn(world.Workers()), workersThen), 40u);
    EXPECT_GT(NewIn(PeopleIn(world.AllStaff()), staffThen), 40u);
  }
}

TEST(Careers, AreTheSameForASeed) {
  const auto after = [](std::uint64_t seed) {
    Career career(Begun(5, 9), seed);
    PlayDays(career.Play.Play, 100, Shows::Auto, [](int) {});
    return CopyOf(career.TheWorld());
  };
  const World first = after(21);
  ExpectSame(after(21), first);
  EXPECT_NE(FirstDifference(after(22), first), "");
}

TEST(Careers, HoldEveryShowThatIsDue) {
  Career career(Begun(5, 9), 9);
  int held = 0, due = 0;
  bool wasDue = false;
  std::string last;
  const auto look = [&] {
    const World& world = career.TheWorld();
    wasDue = !IsEventDay(world.Today()) && HasTvToday(world, world.PlayerUid());
  };
  look();
  PlayDays(career.Play.Play, 60, Shows::Auto, [&](int) {
    const World& world = career.TheWorld();
    due += wasDue;
    if (wasDue) {
      bool rated = false;
      for (const Segment& segment : world.Segments()) rated |= segment.Rating > 0;
      held += rated;
    }
    EXPECT_EQ(world.ShowRuns().Count(), 0) << "nothing is left under way";
    look();
  });
  EXPECT_GT(due, 4);
  EXPECT_EQ(held, due);
}

TEST(Careers, FinishAShowThatWasCutOff) {
  Career career(Begun(5, 9), 9);
  Game& game = career.Play.Play;
  while (DayKindToday(career.TheWorld(), [] { return true; }) != DayKind::Television)
    PlayDays(game, 1, Shows::Cancel, [](int) {});
  World& world = career.TheWorld();
  EmptySheet(world, false);
  TakeCard(world, AutoBook(world, false, TermsOf(world, false).OpenRows));
  StartShow(world, false, TvTeam(world));
  RunNextSegment(world, nullptr);
  RunNextSegment(world, nullptr);
  const int told = ShowUnderWay(world)->Current;
  ASSERT_GT(NextSegment(world), told);
  game.Commit();
  const std::vector<Segment> before(world.Segments().begin(), world.Segments().end());
  const Day today = world.Today();
  const std::string show = ShowName(world, false);
  const int last = Named(world.Shows(), show).Rating3;
  career.Play.Reopen();

  PlayDays(game, 1, Shows::Cancel, [](int) {});
  const World& after = career.TheWorld();
  EXPECT_EQ(after.ShowRuns().Count(), 0);
  EXPECT_EQ(after.Today(), today + std::chrono::days{1});
  EXPECT_NE(Named(after.Shows(), show).Rating3, last) << "it has been on air";
  for (int number = 1; number <= after.Segments().Count(); ++number) {
    const Segment& segment = after.Segments()[number];
    const Segment& then = before[static_cast<std::size_t>(number - 1)];
    EXPECT_EQ(segment.Style, then.Style) << "the card stays as it was booked";
    if (number <= told) {
      EXPECT_EQ(segment.Rating, then.Rating) << "what was told is not told again";
    } else if (segment.Kind != kEmptySegment) {
      EXPECT_GT(segment.Rating, 0) << number;
    }
  }
}

// Every dollar of every promotion, day by day: what the nine books took in and gave out, and the
// two things that pass them by, the price of an Event called off and the loan.

int Balance(const MonthBooks& books) {
  return books.TicketIncome + books.MerchIncome + books.PpvIncome + books.SponsorIncome -
         books.WrestlerWages - books.StaffWages - books.ProductionCost - books.AdvertisingCost -
         books.MerchCost;
}

struct Account {
  Promotion Then;
  int EventType;  // of this month's, which a rival plans on the day if need be; 0 for none
};

class Ledger {
 public:
  explicit Ledger(const World& world) { Open(world); }

  void Close(const World& world) {
    for (const auto& [uid, account] : accounts_) {
      const Promotion* now = world.FindPromotion(uid);
      if (!now) continue;
      if (now->Money == 90000000 || now->Money == -90000000) continue;
      const int booked = Booked(account.Then, *now, IsFirstOfMonth(world.Today()));
      const int outside = now->Money - account.Then.Money - booked;
      ASSERT_EQ(outside, Outside(world, account, *now, outside))
          << now->Initials.Str() << " on " << IsoDate(day_);
      calledOff_ += outside != 0 && IsEventDay(day_);
      repaid_ += outside != 0 && !IsEventDay(day_);
      moved_ += booked != 0;
    }
    Open(world);
  }
  int CalledOff() const { return calledOff_; }
  int Repaid() const { return repaid_; }
  int Moved() const { return moved_; }

 private:
  void Open(const World& world) {
    day_ = world.Today();
    accounts_.clear();
    for (const Promotion& promotion : world.Promotions()) {
      int type = promotion.Uid == world.PlayerUid() ? 0 : NewEventType(promotion);
      bool planned = false;
      for (const Event& event : world.Events())
        if (event.Owner == promotion.Uid && event.Month == MonthOf(day_) &&
            !std::exchange(planned, true))
          type = event.Type;
      accounts_[promotion.Uid] = {promotion, type};
    }
  }

  static int Booked(const Promotion& then, const Promotion& now, bool closed) {
    if (!closed) return Balance(now.ThisMonth) - Balance(then.ThisMonth);
    EXPECT_EQ(Balance(now.ThisMonth), 0);
    return Balance(now.LastMonth) - Balance(then.ThisMonth);
  }

  /// What may lie outside: the loan's payment, and a called-off Event's charge where more does.
  int Outside(const World& world, const Account& account, const Promotion& now, int found) const {
    constexpr int kCharges[] = {0, 2000000, 1000000, 100000, 5000};
    const int paid = -Repayment(world, account.Then, now);
    return IsEventDay(day_) && found != paid ? paid - kCharges[account.EventType] : paid;
  }

  static int Repayment(const World& world, const Promotion& then, const Promotion& now) {
    constexpr int kPercent[] = {0, 0, 2, 5, 8};
    const bool isDue = IsFirstOfMonth(world.Today()) && then.LoanAmount > 0;
    if (!isDue || now.LoanMissed > then.LoanMissed) return 0;
    const int base = then.LoanAmount / 100000 * 100000;
    return base * kPercent[world.Game().Difficulty] / 100 + base / then.LoanMonths;
  }

  Day day_;
  std::map<int, Account> accounts_;
  int calledOff_ = 0, repaid_ = 0, moved_ = 0;
};

TEST(Careers, AccountForEveryDollarOfAYear) {
  for (const Shows shows : {Shows::Auto, Shows::Cancel})
    for (const int uid : {4, 8, 12, 15}) {
      World world = Begun(uid, 30 + static_cast<std::uint64_t>(uid));
      for (Promotion& promotion : world.Promotions()) {
        promotion.LoanAmount = promotion.Size <= kRegional ? 250000 : 100000;
        promotion.LoanMonths = 8;
      }
      Career career(std::move(world), 5);
      SCOPED_TRACE(career.TheWorld().Player().Initials.Str());
      Ledger ledger(career.TheWorld());
      const auto end = PlayDays(career.Play.Play, 365, shows, [&](int) {
        if (!::testing::Test::HasFatalFailure()) ledger.Close(career.TheWorld());
      });
      EXPECT_GT(ledger.Moved(), end.Days / 2);
      EXPECT_GT(ledger.Repaid(), 0);
      if (shows == Shows::Cancel && end.Days > 40) {
        EXPECT_GT(ledger.CalledOff(), 0);
      }
    }
}

/// Every Title's last reign is the one that its record tells, and no other lasts.
void ExpectReignsOfToday(const World& world) {
  int lasting = 0, titles = 0;
  for (const TitleReign& reign : world.Reigns()) lasting += reign.End == kReignLasts;
  for (const Title& title : world.Titles()) {
    if (title.Owner <= 0) continue;
    ++titles;
    const auto reigns = ReignsOf(world, {title.Name.Str(), title.Owner, "", true});
    ASSERT_FALSE(reigns.empty()) << title.Name.View();
    EXPECT_EQ(reigns[0]->Worker, title.Holder) << title.Name.View();
    EXPECT_EQ(reigns[0]->Partner, title.Partner) << title.Name.View();
    EXPECT_EQ(Day(reigns[0]->From), Day(title.Reigns[0].Won)) << title.Name.View();
  }
  EXPECT_EQ(lasting, titles);
}

TEST(Careers, KeepWhatTheyHaveBeenForTwoYears) {
  World world = Begun(5, 9);
  for (int day = 0; day < 730; ++day) {
    tools::PlayDay(world, Shows::Auto);
    if (!IsFirstOfMonth(world.Today())) continue;
    ExpectSound(world);
    ExpectReignsOfToday(world);
  }
  std::set<Day> held, fought;
  for (const HistoryEntry* show : PastCards(world)) {
    EXPECT_TRUE(held.insert(Day(show->On)).second) << "one row a show";
    EXPECT_EQ(MatchesOf(world, *show).empty(), bool(show->CalledOff)) << IsoDate(show->On);
  }
  int parts = 0, counted = 0;
  for (const HeldMatch& match : world.Bouts()) {
    fought.insert(Day(match.On));
    for (const Word& uid : match.Worker) parts += uid != 0;
  }
  for (const MatchTally& tally : world.Tallies())
    if (tally.Worker != 0) counted += tally.Won + tally.Lost + tally.Drawn;
  EXPECT_EQ(parts, counted) << "everybody in a match has it in his record";
  EXPECT_TRUE(std::includes(held.begin(), held.end(), fought.begin(), fought.end()));
  const auto kept = ShowsInTheColumn(world);
  ASSERT_EQ(static_cast<int>(kept.size()), kKeptShows);
  for (const KeptShow& show : kept) EXPECT_TRUE(fought.contains(show.On)) << show.Name;
  EXPECT_EQ(YearsOfAwards(world), (std::vector<int>{2027, 2026}));
  for (const int kind :
       {kWrestlerOfTheYear, kWomanOfTheYear, kMatchOfTheYear, kShowOfTheYear, kMostImproved})
    EXPECT_EQ(AwardsOf(world, 2027, kind).size(), 1u) << AwardName(kind);
}

}  // namespace
}  // namespace grapplemont::test
