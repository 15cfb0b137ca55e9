#include "rivals/staffmarket.h"

#include <gtest/gtest.h>

#include "rivals/faults.h"
#include "rivals/rivals.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

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

TEST(RivalStaff, ComesAsAnybodyWhoCanBeFired) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("XWF", kCult)
                    .OnTheMarket()
                    .Staff("Pen", kWriter)
                    .Game("CWA");
  world.AllStaff()[1].Unsackable = true;
  SignStaff(world, Rival(world), world.AllStaff()[1]);
  EXPECT_FALSE(world.AllStaff()[1].Unsackable);
  EXPECT_EQ(FaultsOf(world), "");
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

}  // namespace
}  // namespace grapplemont::test
