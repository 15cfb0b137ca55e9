#include <gtest/gtest.h>

#include "rivals/faults.h"
#include "rivals/ownership.h"
#include "rivals/rivals.h"
#include "rivals/staffmarket.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

World WithOwners(int size, std::initializer_list<int> talents) {
  SmallWorld small;
  small.Promotion("CWA").Owner("Ruth Vane").Promotion("XWF", size).OnTheMarket();
  for (const int talent : talents) small.Staff("Rich " + std::to_string(talent), kOwner, talent);
  World world = small.Game("CWA");
  world.Game().MailOwners = 0;
  return world;
}

TEST(OwnerlessPromotions, LookOnOneDayInFourteen) {
  World world = WithOwners(kRegional, {50});
  ScriptDraws(world, {{14, 2}});
  OwnerlessPromotions(world);
  EXPECT_EQ(world.AllStaff()[2].Employer, 0);
  ScriptDraws(world, {{14, 1}, {2, 1}});
  OwnerlessPromotions(world);
  EXPECT_EQ(world.AllStaff()[2].Employer, 2);
  EXPECT_EQ(NewsOf(world), "News Desk: Rich 50 has taken over control of XWF Wrestling!\n");
  EXPECT_EQ(FaultsOf(world), "");
  ScriptDraws(world, std::vector<int>{});
  OwnerlessPromotions(world);
}

TEST(OwnerlessPromotions, TakeOwnersByTheBandsOfTheirSize) {
  // Of how many the draw is; 0 where there is none.
  struct Row {
    int Size, Talent, Of;
  };
  const Row kRows[] = {{1, 100, 2}, {1, 76, 2}, {1, 75, 0}, {1, 0, 0},  {2, 86, 3}, {2, 85, 2},
                       {2, 51, 2},  {2, 50, 0}, {3, 86, 4}, {3, 85, 2}, {3, 41, 2}, {3, 40, 0},
                       {4, 76, 0},  {4, 75, 2}, {4, 41, 2}, {4, 40, 3}, {4, 16, 3}, {4, 15, 0},
                       {5, 66, 0},  {5, 65, 3}, {5, 31, 3}, {5, 30, 2}, {5, 0, 2},  {6, 46, 0},
                       {6, 45, 3},  {6, 16, 3}, {6, 15, 2}, {6, 0, 2}};
  for (const Row& row : kRows)
    for (const bool takes : {true, false}) {
      SCOPED_TRACE(std::to_string(row.Size) + " and " + std::to_string(row.Talent));
      World world = WithOwners(row.Size, {row.Talent});
      std::vector<ScriptedDraw> draws{{14, 1}};
      if (row.Of != 0) draws.push_back({row.Of, takes ? 1 : 2});
      ScriptDraws(world, draws);
      OwnerlessPromotions(world);
      EXPECT_EQ(world.AllStaff()[2].Employer, row.Of != 0 && takes ? 2 : 0);
    }
}

TEST(OwnerlessPromotions, PassOnToTheNextWhoSuits) {
  World world = WithOwners(kRegional, {90, 50, 30, 60});
  ScriptDraws(world, {{14, 1}, {2, 2}, {3, 1}});
  OwnerlessPromotions(world);
  EXPECT_EQ(Named(world.AllStaff(), "Rich 30").Employer, 2);
  EXPECT_EQ(Named(world.AllStaff(), "Rich 60").Employer, 0);
}

TEST(OwnerlessPromotions, MakeARivalAsRiskyAsItsNewOwnersStyle) {
  const int kRisks[8] = {55, 70, 30, 10, 40, 85, 20, 55};
  for (int style = 0; style < 8; ++style)
    for (const bool own : {false, true}) {
      World world = WithOwners(kRegional, {50});
      world.AllStaff()[2].Wage = style < 7 ? style : 8;
      world.Promotions()[2].Risk = 55;
      if (own) world.Game().PlayerPromotion = 2;
      world.AllStaff()[2].Unsackable = true;
      ScriptDraws(world, {{14, 1}, {2, 1}});
      OwnerlessPromotions(world);
      EXPECT_EQ(world.Promotions()[2].Risk, own ? 55 : kRisks[style]) << style;
      EXPECT_FALSE(world.AllStaff()[2].Unsackable)
          << "what he was elsewhere does not come with him";
    }
}

TEST(OwnerlessPromotions, BringThePlayerANewBoss) {
  for (const auto& [name, words] :
       {std::pair("Jo Bell",
                  "The company is mine as of today. I want holds, counter-holds and "
                  "people who know why."),
        {"Carl From The Bank",
         "For the avoidance of doubt: this is no longer a debt, it is an "
         "asset. Please keep all receipts. Carl."}}) {
    World world = SmallWorld()
                      .Promotion("CWA", kRegional)
                      .OnTheMarket()
                      .Staff(name, kOwner, 50, [](Staff& owner) { owner.Wage = 2; })
                      .Game("CWA");
    world.Game().MailOwners = 2;
    ScriptDraws(world, {{14, 1}, {2, 1}});
    OwnerlessPromotions(world);
    EXPECT_EQ(NewsOf(world), "News Desk: " + std::string(name) +
                                 " has taken over control of CWA Wrestling!\n" + name + ": " +
                                 words + "\n");
  }
}

TEST(Owners, DecideWhereThereAreAny) {
  World world = SmallWorld().Promotion("CWA").Owner("Ruth Vane").Promotion("XWF").Build();
  EXPECT_EQ(WhoDecides(world, world.Promotions()[1]), "CWA owner Ruth Vane");
  EXPECT_EQ(WhoDecides(world, world.Promotions()[2]), "The XWF board");
}

Worker Person(int brawl, int technical, int speed, int over) {
  Worker worker;
  worker.Gender = true;
  worker.Age = 30;
  worker.Position = kMidcard;
  worker.Brawl = brawl;
  worker.Technical = technical;
  worker.Speed = speed;
  worker.Over = over;
  worker.Charisma = 70;
  worker.Potential = 90;
  return worker;
}

TEST(Taste, ScoresByItsOwnSkillThreeTimesAndByPopularity) {
  const Worker worker = Person(80, 60, 41, 50);
  const std::pair<Taste, int> kScores[] = {{kBrawlers, 72},   {kTechnicians, 57}, {kAllRound, 72},
                                           {kHighFlyers, 43}, {kWomen, 25},       {kYouth, 36}};
  for (const auto& [taste, score] : kScores)
    EXPECT_EQ(WorkerScore(worker, taste), score) << TasteText(taste);
}

TEST(Taste, PutsWomenBeforeMenAndDivasBeforeAll) {
  Worker worker = Person(80, 80, 80, 50);
  worker.Gender = false;
  EXPECT_EQ(WorkerScore(worker, kWomen), 50);
  worker.Diva = true;
  EXPECT_EQ(WorkerScore(worker, kWomen), 87);
}

TEST(Taste, SeesInTheYoungWhatTheyMayBecome) {
  Worker worker = Person(40, 60, 50, 20);
  worker.Age = 27;
  EXPECT_EQ(WorkerScore(worker, kYouth), (90 * 3 + 20) / 4);
  worker.Potential = 55;
  EXPECT_EQ(WorkerScore(worker, kYouth), (60 * 3 + 20) / 4) << "a skill above the potential";
  worker.Age = 28;
  EXPECT_EQ(WorkerScore(worker, kYouth), (60 * 3 + 20) / 4 / 2);
}

TEST(Taste, LooksAtManagersAndTheUnsackableApart) {
  Worker worker = Person(10, 10, 10, 40);
  worker.Position = kManager;
  EXPECT_EQ(RosterScore(worker, kBrawlers), (70 * 2 + 40 * 3) / 5);
  worker.Unsackable = true;
  EXPECT_EQ(RosterScore(worker, kBrawlers), 101);
}

TEST(Taste, IsTheOwnersStyle) {
  for (int style = 0; style <= 7; ++style) {
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Owner("Ruth Vane", [&](Staff& owner) { owner.Wage = style; })
                      .BuildUnchecked();
    EXPECT_EQ(TasteOf(world, 1), style >= 1 && style <= 6 ? style : kAllRound);
  }
  EXPECT_EQ(TasteOf(SmallWorld().Promotion("CWA").Build(), 1), kAllRound);
}

Promotion& Rival(World& world) {
  return Named(world.Promotions(), "XWF");
}

TEST(RivalStaff, WantsPeopleInEachPostByItsSize) {
  const int kTargets[7][6] = {{5, 4, 3, 2, 1, 0}, {4, 3, 2, 1, 1, 1}, {4, 4, 3, 1, 0, 0},
                              {2, 2, 1, 1, 0, 0}, {3, 2, 1, 1, 0, 0}, {4, 3, 2, 1, 0, 0},
                              {2, 1, 1, 1, 0, 0}};
  for (int post = 0; post < 7; ++post)
    for (int size = 1; size <= 6; ++size)
      EXPECT_EQ(StaffWanted(kAnnouncer + post, size), kTargets[post][size - 1])
          << "post " << kAnnouncer + post << ", size " << size;
}

TEST(RivalStaff, HoldsToTheTalentOfItsSize) {
  const int kLimits[6][2] = {{100, 70}, {100, 40}, {80, 30}, {60, 15}, {40, 0}, {20, 0}};
  for (int size = 1; size <= 6; ++size) {
    const int most = kLimits[size - 1][0], above = kLimits[size - 1][1];
    for (const int talent : {above, above + 1, most, std::min(most + 1, 100)}) {
      World world = SmallWorld()
                        .Promotion("CWA")
                        .Promotion("XWF", size)
                        .OnTheMarket()
                        .Staff("Pen", kWriter, talent)
                        .Game("CWA");
      ScriptDraws(world, {{5, 1}});
      EXPECT_EQ(FindStaffFor(world, kWriter, size) != nullptr, talent > above && talent <= most)
          << "size " << size << ", talent " << talent;
    }
  }
}

TEST(RivalStaff, TakesTheMostTalentedOfThoseItLooksAt) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Staff("Taken", kMedical, 79)
                    .OnTheMarket()
                    .Staff("Unseen", kMedical, 78)
                    .Staff("Good", kMedical, 60)
                    .Staff("Wrong Post", kReferee, 77)
                    .Staff("Better", kMedical, 70)
                    .Staff("As Good", kMedical, 70)
                    .Game("CWA");
  ScriptDraws(world, {{5, 5}, {5, 1}, {5, 1}, {5, 1}});
  EXPECT_EQ(FindStaffFor(world, kMedical, kCult)->Name.Str(), "Better");
}

TEST(RivalStaff, SignsByItsSize) {
  struct Row {
    int Size, Months;
    const char* Type;
    int Rise;
  };
  const Row kRows[] = {{1, 24, "Wri", 5}, {2, 24, "Wri", 4}, {3, 12, "Non", 2},
                       {4, 12, "Non", 1}, {5, 6, "Non", 0},  {6, 6, "Non", 0}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.Size);
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Promotion("XWF", row.Size)
                      .OnTheMarket()
                      .Staff("Pen", kWriter)
                      .Game("CWA");
    world.Game().MailStaffHire = 0;
    Staff& pen = world.AllStaff()[1];
    pen.Wage = 97;
    SignStaff(world, Rival(world), pen);
    EXPECT_EQ(pen.Employer, Rival(world).Uid);
    EXPECT_EQ(pen.ContractMonths, row.Months);
    EXPECT_EQ(pen.ContractType.Str(), row.Type);
    EXPECT_EQ(pen.Wage, std::min(97 + row.Rise, 100));
    EXPECT_EQ(pen.Morale, 100);
    EXPECT_EQ(NewsOf(world), "XWF News: XWF have signed staff member Pen!\n");
  }
}

TEST(RivalStaffHiring, TriesOncePerMissingPostUntilOneFails) {
  // A Regional promotion wants 2, 1, 1, 1, 1, 1 and 1.
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("XWF", kRegional)
                    .OnTheMarket()
                    .Staff("Voice 1", kAnnouncer)
                    .Staff("Voice 2", kAnnouncer)
                    .Staff("Voice 3", kAnnouncer)
                    .Staff("Stripes", kReferee)
                    .Staff("Pen", kWriter)
                    .Game("CWA");
  // The second announcer is not found, the referee is, the writer is not.
  ScriptDraws(world, {{5, 2}, {5, 1}, {5, 2}, {5, 2}, {5, 2}, {5, 1}, {5, 3}});
  RivalStaffHiring(world);
  for (const Staff& staff : world.AllStaff())
    EXPECT_EQ(staff.Employer != 0, staff.Name == "Voice 2" || staff.Name == "Stripes")
        << staff.Name.Str();
}

TEST(RivalStaffHiring, KeepsOneRefereeAndNoAnnouncerInABackyard) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("XWF", kBackyard)
                    .Staff("Voice 1", kAnnouncer, 10)
                    .Staff("Voice 2", kAnnouncer, 20, [](Staff& s) { s.Unsackable = true; })
                    .Staff("Stripes", kReferee, 30)
                    .Staff("More Stripes", kReferee, 29)
                    .Staff("Coach", kTrainer, 90)
                    .Game("CWA");
  world.Game().MailStaffFire = 0;
  Rival(world).HeadTrainer = Named(world.AllStaff(), "Coach").Uid;
  Named(world.AllStaff(), "Voice 1").Morale = 15;
  ScriptDraws(world, std::vector<int>{});
  RivalStaffHiring(world);
  for (const Staff& staff : world.AllStaff())
    EXPECT_EQ(staff.Employer != 0, staff.Name == "Stripes") << staff.Name.Str();
  EXPECT_EQ(NewsOf(world),
            "XWF News: XWF have fired staff member Voice 1!\n"
            "XWF News: XWF have fired staff member Voice 2!\n"
            "XWF News: XWF have fired staff member More Stripes!\n"
            "XWF News: XWF have fired staff member Coach!\n");
  const Staff& voice = Named(world.AllStaff(), "Voice 1");
  EXPECT_EQ(voice.Morale, 0);
  EXPECT_EQ(voice.ContractMonths, 0);
  EXPECT_FALSE(Named(world.AllStaff(), "Voice 2").Unsackable);
  EXPECT_EQ(Rival(world).HeadTrainer, 0);
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(RivalSponsors, FillThePlaceOfASponsorWhoIsGone) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("XWF", kCult)
                    .OnTheMarket()
                    .Sponsor("Gulp")
                    .Game("CWA");
  world.Promotions()[2].Sponsor[0] = 99;
  ScriptDraws(world, {{18, 1}});
  RivalSponsorSigning(world);
  EXPECT_EQ(world.Promotions()[2].Sponsor[0], world.Sponsors()[1].Uid);
}

TEST(RivalSponsors, SignBelowTheLimitOfSizeAndImage) {
  const int kLimits[6][2] = {{1001, 1001}, {921, 861}, {821, 701},
                             {601, 531},   {451, 321}, {251, 101}};
  for (int size = 1; size <= 6; ++size)
    for (const int image : {50, 51})
      for (const int less : {0, 1}) {
        const int pay = kLimits[size - 1][image == 51 ? 0 : 1] - less;
        World world = SmallWorld()
                          .Promotion("CWA")
                          .Promotion("XWF", size, [&](Promotion& p) { p.Image = image; })
                          .OnTheMarket()
                          .Sponsor("Gulp", [&](Sponsor& sponsor) { sponsor.Pay = pay; })
                          .Game("CWA");
        world.Game().MailSponsor = 0;
        ScriptDraws(world, less == 0 ? std::vector<int>{} : std::vector<int>{7});
        RivalSponsorSigning(world);
        EXPECT_EQ(world.Promotions()[2].Sponsor[0], less == 0 ? 0 : 1) << size << " " << image;
        EXPECT_EQ(NewsOf(world), less == 0 ? ""
                                           : "XWF News: XWF have signed a sponsorship deal with "
                                             "Gulp!\n");
        EXPECT_EQ(FaultsOf(world), "");
      }
}

TEST(RivalSponsors, BearTheRiskAndFillOnePlaceAfterTheOther) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("XWF", kCult, [](Promotion& p) { p.Risk = 50; });
  small.Sponsor("Second Main");
  small.OnTheMarket().Sponsor("Prim", [](Sponsor& s) { s.Morality = 51; });
  for (const char* name : {"One", "Two", "Three", "Four"}) small.Sponsor(name);
  World world = small.Game("CWA");
  world.Promotions()[2].Sponsor = {};
  world.Promotions()[2].Sponsor[1] = world.Sponsors()[1].Uid;
  ScriptDraws(world, {{18, 1}, {18, 2}, {18, 3}});
  RivalSponsorSigning(world);
  const auto uid = [&](const char* name) { return int(Named(world.Sponsors(), name).Uid); };
  EXPECT_EQ(world.Promotions()[2].Sponsor[0], uid("One"));
  EXPECT_EQ(world.Promotions()[2].Sponsor[1], uid("Second Main"));
  EXPECT_EQ(world.Promotions()[2].Sponsor[2], uid("Two"));
  EXPECT_EQ(world.Promotions()[2].Sponsor[3], uid("Three"));
  EXPECT_EQ(world.Promotions()[1].Sponsor[0], 0) << "the player signs his own";
  EXPECT_EQ(Named(world.Sponsors(), "Prim").Promotion, 0);
}

}  // namespace
}  // namespace grapplemont::test
