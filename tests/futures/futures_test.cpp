#include "futures/futures.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <stdexcept>

#include "futures/habits.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

World Morning() {
  return SmallWorld()
      .Network("Nine")
      .Promotion("CWA", kCult, [](Promotion& p) { p.Money = 9000000; })
      .Owner("Ruth Vane")
      .Crew(14)
      .Title("CWA Crown", "CWA Hand 1")
      .Show("Sunday Slam", "Sunday", "Nine")
      .Promotion("XWF", kRegional)
      .Crew(10)
      .OnTheMarket()
      .Crew(8)
      .Game("CWA");
}

std::vector<std::vector<WorldLife>> Played(const World& world, std::vector<Answer> answers,
                                           int threads, const FuturePlan& plan = {6, 40}) {
  Futures futures(world, std::move(answers), plan, threads);
  EXPECT_TRUE(futures.Work().WaitFor(std::chrono::minutes(5)));
  EXPECT_EQ(futures.Faults(), std::vector<std::string>());
  return futures.Lives();
}

void ExpectSameLives(const std::vector<WorldLife>& lives, const std::vector<WorldLife>& expected) {
  ASSERT_EQ(lives.size(), expected.size());
  for (std::size_t world = 0; world < lives.size(); ++world) {
    EXPECT_EQ(lives[world].Champions, expected[world].Champions);
    EXPECT_EQ(lives[world].Sizes, expected[world].Sizes);
    ASSERT_EQ(lives[world].Seen.size(), expected[world].Seen.size());
    for (std::size_t day = 0; day < lives[world].Seen.size(); ++day) {
      EXPECT_EQ(lives[world].Seen[day].Money, expected[world].Seen[day].Money);
      EXPECT_EQ(lives[world].Seen[day].Image, expected[world].Seen[day].Image);
      EXPECT_EQ(lives[world].Seen[day].Rating, expected[world].Seen[day].Rating);
    }
  }
}

TEST(Futures, AreTheSameInAnyNumberOfThreadsAndChangeNothing) {
  const World world = CopyOf(Morning());
  const World before = CopyOf(world);
  const auto alone = Played(world, {}, 1);
  ASSERT_EQ(alone.size(), 1u);
  ASSERT_EQ(alone[0].size(), 6u);
  EXPECT_EQ(alone[0][0].Seen.size(), DaysLookedAt(world.Today(), 40).size());
  ExpectSameLives(Played(world, {}, 4)[0], alone[0]);
  ExpectSame(world, before);
  EXPECT_TRUE(world.Changes().empty());
  std::set<int> moneys;
  for (const WorldLife& life : alone[0]) moneys.insert(life.Seen.back().Money);
  EXPECT_GT(moneys.size(), 1u) << "each world has chance of its own";
}

/// What is counted of the past for those who read it, and the mails that tell of it.
bool IsOfTheHalls(std::string_view file) {
  const std::set<std::string_view> halls{LayoutOf<TotalsState>().File, LayoutOf<Career>().File,
                                         LayoutOf<Tenure>().File,      LayoutOf<Partnership>().File,
                                         LayoutOf<Feat>().File,        LayoutOf<YearLine>().File,
                                         LayoutOf<HallMember>().File,  LayoutOf<Mail>().File};
  return halls.contains(file);
}

TEST(Futures, ComeToTheSameThoughNobodyCountsTheirPast) {
  const World morning = Morning();
  World counted = CopyOf(morning), uncounted = CopyOf(morning);
  uncounted.Session.CountsNoPast = true;
  for (World* world : {&counted, &uncounted})
    LiveOn(*world, 400, {.Then = AfterTheEnd::AnotherJob, .Words = Prose::Skipped},
           [](int) { return true; });
  EXPECT_GT(counted.Of<Career>().Count(), 0);
  EXPECT_EQ(uncounted.Of<Career>().Count(), 0);
  for (std::size_t i = 0; i < World::kTables; ++i) {
    const Table &one = *std::as_const(counted).Tables()[i], &other = *uncounted.Tables()[i];
    if (IsOfTheHalls(one.File())) continue;
    EXPECT_TRUE(std::ranges::equal(one.Contents(), other.Contents())) << one.File();
  }
}

TEST(Futures, PlayEachAnswerInTheSameWorlds) {
  const World world = Morning();
  const auto pay = [](World& copy) { copy.Player().Money -= 500000; };
  const auto same = Played(world, {{"Yes", {}}, {"No", {}}}, 2);
  ExpectSameLives(same[0], same[1]);
  const auto paid = Played(world, {{"Yes", pay}, {"No", {}}}, 2);
  for (std::size_t number = 0; number < paid[0].size(); ++number)
    EXPECT_EQ(paid[0][number].Seen.front().Money, paid[1][number].Seen.front().Money - 500000);
}

TEST(Futures, KeepToAnAnswerAgainstTheHabits) {
  const World world = Morning();
  // By habit the price would be the usual one on the first of the next month.
  std::atomic<int> asked = 0, kept = 0;
  const auto keep = [&](World& copy) {
    ++asked;
    kept += copy.Player().TicketPrice == 99;
    copy.Player().TicketPrice = 99;
  };
  Played(world, {{"Dear", {}, keep}}, 2, {2, 40});
  EXPECT_EQ(asked, 2 * 41);
  EXPECT_LT(kept, asked - 2) << "it was set back, and kept to";
  EXPECT_GT(kept, 0);
}

TEST(Futures, NameTheFaultOfAWorldAndLeaveItOut) {
  const World world = Morning();
  std::atomic<int> begun = 0;
  Futures futures(world,
                  {{"Fails",
                    [&](World& copy) {
                      if (++begun == 2) copy.Game().TapeWait = 1 << 20;
                    }}},
                  {3, 10}, 1);
  EXPECT_TRUE(futures.Work().WaitFor(std::chrono::minutes(5)));
  EXPECT_EQ(futures.Lives()[0].size(), 2u);
  ASSERT_EQ(futures.Faults().size(), 1u);
  EXPECT_NE(futures.Faults()[0].find("gameinfo.dat, record 1, TapeWait"), std::string::npos)
      << futures.Faults()[0];
}

TEST(Futures, LookWeeklyAtMonthsAndMonthlyAtYears) {
  const Day first = kGameStart;
  const auto weeks = DaysLookedAt(first, 91);
  EXPECT_EQ(weeks.size(), 14u);
  EXPECT_EQ(weeks[1], first + std::chrono::days{7});
  EXPECT_EQ(weeks.back(), first + std::chrono::days{91});
  const auto months = DaysLookedAt(first, 365);
  EXPECT_EQ(months.size(), 13u);
  EXPECT_EQ(months[1], Day(std::chrono::year{2026} / 4 / 1));
  EXPECT_EQ(months.back(), Day(std::chrono::year{2027} / 3 / 1));
}

TEST(Jobs, DoEachNumberOnceInOneWorldAThread) {
  std::mutex lock;
  std::multiset<int> numbers;
  int made = 0;
  RunJobs(50, 4, [&]() -> Jobs::Work {
    const std::lock_guard hold(lock);
    ++made;
    return [&](int number, const std::stop_token&) {
      const std::lock_guard holdHere(lock);
      numbers.insert(number);
    };
  });
  EXPECT_EQ(made, 4);
  EXPECT_EQ(numbers.size(), 50u);
  EXPECT_EQ(std::set<int>(numbers.begin(), numbers.end()).size(), 50u);
}

TEST(Jobs, ThrowWhatTheWorkThrewAndStop) {
  std::atomic<int> begun = 0;
  const auto make = [&]() -> Jobs::Work {
    return [&](int number, const std::stop_token&) {
      ++begun;
      if (number == 3) throw std::runtime_error("number 3");
    };
  };
  EXPECT_THROW(RunJobs(1000, 1, make), std::runtime_error);
  EXPECT_EQ(begun, 3);
}

TEST(Jobs, GiveUpWhatIsBeingDoneWhenTheyAreStopped) {
  Jobs jobs(1000, 2, []() -> Jobs::Work {
    return [](int, const std::stop_token& stop) {
      while (!stop.stop_requested()) std::this_thread::yield();
    };
  });
  EXPECT_FALSE(jobs.Over());
  jobs.Stop();
  EXPECT_TRUE(jobs.WaitFor(std::chrono::minutes(5)));
  EXPECT_EQ(jobs.Now().Done, 0);
  EXPECT_EQ(ProgressText({64, 100, 3.2}, "worlds"), "64 of 100 worlds, about 3 seconds left");
  EXPECT_EQ(ProgressText({1, 100, 600}, "worlds"), "1 of 100 worlds, about 10 minutes left");
  EXPECT_EQ(ProgressText({100, 100, 0}, "worlds"), "100 of 100 worlds");
}

}  // namespace
}  // namespace grapplemont::test
