#include "rivals/careers.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <memory>

#include "rivals/faults.h"
#include "rivals/newtalent.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "roster/invented.h"
#include "roster/postings.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

/// A rival's worker, and a world around them in which every other step is quiet.
struct Career {
  World Where;
  Worker& Who;

  explicit Career(const Change<Worker>& change, int size = kCult)
      : Where(SmallWorld()
                  .Promotion("CWA", kCult)
                  .Promotion("XWF", size)
                  .Worker("Bram Okafor", kMidcard, 50, change)
                  .Game("CWA")),
        Who(Where.Workers()[1]) {}
};

std::string SkillsOf(const Worker& worker) {
  return std::to_string(worker.Brawl) + " " + std::to_string(worker.Technical) + " " +
         std::to_string(worker.Speed);
}

Change<Worker> Skills(int brawl, int technical, int speed, int age) {
  return [=](Worker& worker) {
    worker.Brawl = brawl;
    worker.Technical = technical;
    worker.Speed = speed;
    worker.Age = age;
    worker.Charisma = 90;
  };
}

TEST(Gifts, AreTheSameAtEveryLookAndVaryByPerson) {
  World world = SmallWorld().Promotion("CWA").Crew(12).Game("CWA");
  int low = 100, high = 0, late = 0, lost = 0;
  Worker someone = world.Workers()[1];
  for (int uid = 1; uid <= 2000; ++uid) {
    someone.Uid = uid;
    const Gift gift = GiftOf(world, someone);
    EXPECT_EQ(gift.Ceiling, GiftOf(world, someone).Ceiling);
    low = std::min(low, gift.Ceiling);
    high = std::max(high, gift.Ceiling);
    late += gift.BloomsAt > 0;
    lost += gift.LearnsUntil < 27;
    EXPECT_TRUE(gift.BloomsAt == 0 || gift.LearnsUntil > 32);
  }
  EXPECT_LE(low, tuning::kLeastCeiling + 5);
  EXPECT_GE(high, tuning::kLeastCeiling + 2 * tuning::kCeilingDraw - 3);
  for (const int of : {late, lost}) EXPECT_NEAR(of, 2000 / tuning::kStoriesIn, 60);
}

TEST(Practice, BringsTheYoungToTheirCeilingAndNoFurther) {
  Career career(Skills(20, 38, 58, 25));
  const Gift gift{.Ceiling = 59, .LearnsUntil = 30};
  // Two points at most in each skill; speed is the style, and 38 is where the others end.
  ScriptLife(career.Where, {{3, 2}, {3, 2}});
  Practise(career.Where, career.Who, gift);
  EXPECT_EQ(SkillsOf(career.Who), "21 38 59");
  ScriptLife(career.Where, {{3, 1}});
  Practise(career.Where, career.Who, gift);
  EXPECT_EQ(SkillsOf(career.Who), "21 38 59");
  career.Who.Employer = 0;
  ScriptLife(career.Where, {{tuning::kFreeMissIn, 1}});
  Practise(career.Where, career.Who, gift);
  EXPECT_EQ(SkillsOf(career.Who), "21 38 59") << "nobody to practise with this time";
  career.Who.Age = 31;
  ScriptLife(career.Where, {});
  Practise(career.Where, career.Who, gift);
  EXPECT_EQ(SkillsOf(career.Who), "21 38 59") << "past learning, short of fading";
}

TEST(Practice, IsWorthMoreToTheGiftedOnceTheyBloom) {
  const Gift late{.Ceiling = 90, .BloomsAt = 27, .LearnsUntil = 36};
  for (const auto& [age, most] : {std::pair(26, 1), {27, 4}}) {
    Career career(Skills(40, 80, 80, age));
    career.Who.Brawl = 81;
    career.Who.Charisma = 50;
    ScriptLife(career.Where, {{most + 1, most + 1}, {tuning::kTalkLearnedIn, 1}});
    Practise(career.Where, career.Who, late);
    EXPECT_EQ(SkillsOf(career.Who), std::to_string(81 + most) + " 80 80");
    EXPECT_EQ(career.Who.Charisma, 51) << "and talking comes with it";
  }
}

TEST(Practice, LetsFlyersFadeFirstAndTechniciansLast) {
  const Gift gift{.LearnsUntil = 28};
  Worker worker;
  std::map<std::string, int> from;
  for (const auto& [style, skill] : {std::pair("brawler", &Worker::Brawl),
                                     {"technician", &Worker::Technical},
                                     {"flyer", &Worker::Speed}}) {
    Worker one = worker;
    one.*skill = 70;
    from[style] = FadesFrom(one, gift);
  }
  EXPECT_LT(from["flyer"], from["brawler"]);
  EXPECT_LT(from["brawler"], from["technician"]);
  Career career(Skills(70, 30, 20, from["brawler"] + 1));
  ScriptLife(career.Where, {{2, 2}, {2, 1}, {2, 2}});
  Practise(career.Where, career.Who, gift);
  EXPECT_EQ(SkillsOf(career.Who), "69 30 19");
  career.Who.Age = from["brawler"] + tuning::kHardYears + 1;
  ScriptLife(career.Where, {{2, 2}, {2, 2}, {2, 1}, {2, 2}, {2, 1}, {2, 1}});
  Practise(career.Where, career.Who, gift);
  EXPECT_EQ(SkillsOf(career.Who), "67 29 19") << "twice as fast in the hard years";
}

TEST(Popularity, IsDeservedByTalentClassPlaceAndHealth) {
  const Gift gift;
  int before = 101;
  for (int size = kGlobal; size <= kBackyard; ++size) {
    Career career(Skills(70, 20, 20, 30), size);
    career.Who.Charisma = 60;
    const int deserved = DeservedOver(career.Where, career.Who, gift);
    EXPECT_LT(deserved, before) << size;
    before = deserved;
    EXPECT_LT(DeservedOver(career.Where, career.Who, {.Star = -5}), deserved);
    career.Who.Position = kMainEvent;
    EXPECT_GE(DeservedOver(career.Where, career.Who, gift), deserved);
    career.Who.Status = "Inj";
    EXPECT_LT(DeservedOver(career.Where, career.Who, gift), deserved + tuning::kPlaceBonus[0]);
  }
  Career career(Skills(100, 20, 20, 30), kSmall);
  EXPECT_EQ(DeservedOver(career.Where, career.Who, gift), tuning::kFame[kSmall - kGlobal].Most);
}

TEST(Popularity, DriftsToWhatIsDeservedButNeverUnderItsFloor) {
  Career career([](Worker& w) { w.OverFloor = 49, w.Potential = 50; });
  const int rise = tuning::kMonthsToRise, fade = tuning::kMonthsToFade, fancy = tuning::kFancyIn;
  ScriptLife(career.Where, {{rise, 3}, {fancy, 3}, {rise, 2}, {fancy, 1}});
  DriftOver(career.Where, career.Who, 50 + rise + 2);
  EXPECT_EQ(career.Who.Over, 51) << "a point for the whole part, none for a rest of 2";
  DriftOver(career.Where, career.Who, 51 + rise + 2);
  EXPECT_EQ(career.Who.Over, 54) << "two, and the crowd's fancy";
  EXPECT_EQ(career.Who.Potential, 50) << "shows alone move it";
  ScriptLife(career.Where, {{fade, fade}, {fancy, 2}});
  DriftOver(career.Where, career.Who, 54 - 6 * fade);
  EXPECT_EQ(career.Who.Over, 49) << "seven down to 47";
}

TEST(Injuries, LastAndLongOnesLeaveAMark) {
  Career career(Skills(60, 50, 40, 30));
  ScriptLife(career.Where, {{tuning::kHurtIn, 2}});
  RiskInjury(career.Where, career.Who);
  EXPECT_EQ(career.Who.Status.View(), "Nor");
  ScriptLife(career.Where, {{tuning::kHurtIn, 1},
                            2,
                            {tuning::kLongestInjury, tuning::kLongInjury},
                            {tuning::kInjuryMark, 3},
                            {tuning::kInjuryMark, 1},
                            {tuning::kInjuryMark, 2}});
  RiskInjury(career.Where, career.Who);
  EXPECT_EQ(career.Who.Status.View(), "Inj");
  EXPECT_EQ(career.Who.InjuryName.View(), "Broken Leg");
  EXPECT_EQ(career.Who.StatusMonths, tuning::kLongInjury);
  EXPECT_EQ(SkillsOf(career.Who), "58 50 39");
  EXPECT_EQ(career.Where.Deeds().Count(), 1);
}

TEST(Injuries, EndInAComebackForBetterOrWorse) {
  Career career(Skills(60, 50, 40, 30));
  ScriptLife(career.Where, {{3, 1}, 4, {3, 2}, 3, {3, 3}});
  const int over = career.Who.Over;
  ComeBack(career.Where, career.Who);
  EXPECT_EQ(career.Who.Over, over + 4);
  ComeBack(career.Where, career.Who);
  EXPECT_EQ(SkillsOf(career.Who), "58 50 40");
  ComeBack(career.Where, career.Who);
  EXPECT_EQ(career.Who.Over, over + 4);
}

TEST(Sides, AreChangedNowAndThen) {
  Career career([](Worker& w) { w.Disposition = "F"; });
  const int in = tuning::kSidesChangedIn, tweener = tuning::kTweenerIn;
  ScriptLife(career.Where,
             {{in, 2}, {in, 1}, {tweener, 2}, {in, 1}, {tweener, 1}, {in, 1}, {2, 2}});
  std::string sides;
  for (int month = 0; month < 4; ++month) {
    ChangeSides(career.Where, career.Who);
    sides += career.Who.Disposition.Str();
  }
  EXPECT_EQ(sides, "FHTH");
  EXPECT_EQ(Day(career.Who.LastTurn), career.Where.Today());
}

/// Twelve months of everybody but the player's.
TEST(WorkersCareers, LeaveThePlayersPeopleAlone) {
  World world = SmallWorld()
                    .Promotion("CWA", kCult)
                    .Crew(12)
                    .Promotion("XWF", kCult)
                    .Crew(12)
                    .OnTheMarket()
                    .Worker("Cal Drift", kOpener, 20, Skills(30, 20, 20, 20))
                    .Game("CWA");
  const World before = CopyOf(world);
  for (int month = 0; month < 12; ++month) {
    world.Game().Today = Day{year{2027} / (month + 1) / 1};
    WorkersCareers(world);
  }
  int moved = 0;
  for (int number = 1; number <= world.Workers().Count(); ++number) {
    const Worker &now = world.Workers()[number], &then = before.Workers()[number];
    const bool isOurs = now.Employer == world.PlayerUid();
    EXPECT_TRUE(!isOurs || std::memcmp(&now, &then, sizeof now) == 0) << now.Name.View();
    moved += !isOurs && now.Over != then.Over;
  }
  EXPECT_GE(moved, 10) << "of twelve and one";
}

/// Half of the world is free, all of them past their youth and unknown.
World ManyFree() {
  SmallWorld small;
  small.Promotion("CWA").Crew(6).OnTheMarket();
  for (const char* name : {"Ann Reed", "Bo Stark", "Cy Marsh", "Di Holt", "Ed Vane", "Flo Kerr"})
    small.Worker(name, kJobber, 20, [](Worker& w) { w.Age = tuning::kGivesUpFrom; });
  return small.Game("CWA");
}

TEST(NewTalent, TakesThePlaceOfWhoHasTheLeastBeforeThem) {
  World world = ManyFree();
  world.SetLife(std::make_unique<SeededDraws>(5));
  Named(world.Workers(), "Cy Marsh").Over = 10;
  EXPECT_EQ(NextToGiveUp(world)->Name.View(), "Cy Marsh");
  Named(world.Workers(), "Cy Marsh").Age = tuning::kGivesUpFrom - 1;
  EXPECT_EQ(NextToGiveUp(world)->Name.View(), "Ann Reed") << "the young go on";
  Named(world.Workers(), "Ann Reed").Gender = false;
  EXPECT_EQ(NextToGiveUp(world)->Name.View(), "Bo Stark") << "and so do women while they are few";
  const int uid = Named(world.Workers(), "Bo Stark").Uid;
  FindNewTalent(world);
  EXPECT_EQ(world.FindWorker(uid), nullptr);
  EXPECT_EQ(world.Deeds()[1].Who.View(), "Bo Stark");
  const Worker& rookie = world.Workers()[8];  // where they stood, behind six hands and Ann
  EXPECT_LE(rookie.Age, 22);
  EXPECT_EQ(rookie.Employer, 0);
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(NewTalent, GoesByItsNameAndMenWaitWhileWomenAreFew) {
  World world = ManyFree();
  world.SetLife(std::make_unique<SeededDraws>(5));
  for (int month = 0; month < 6; ++month) FindNewTalent(world);
  int women = 0;
  for (const Worker& worker : world.Workers()) women += !worker.Gender;
  EXPECT_GE(women, 2) << "of the six in whose place rookies came";
  EXPECT_EQ(NextToGiveUp(world), nullptr) << "they are young";

  int drawn = 0;
  for (int n = 0; n < 300; ++n) drawn += !NewTalent(world).Gender;
  EXPECT_NEAR(drawn, 300 * 52 / 303, 20) << "as many as there are women's names";
}

TEST(NewTalent, IsToldApartByItsShortName) {
  World world = ManyFree();
  Worker& rookie = Named(world.Workers(), "Ann Reed");
  rookie.Name = "Basil Zigzag";
  std::string names;
  for (int other = 1; other <= 5; ++other) {
    rookie.ShortName = "Zigzag";
    TellApart(world, rookie);
    names += rookie.ShortName.Str() + ";";
    world.Workers()[other].ShortName = rookie.ShortName.Str();
  }
  EXPECT_EQ(names, "Zigzag;Basil;B. Zigzag;Basil Z.;Zigzag;");
}

}  // namespace
}  // namespace grapplemont::test
