#include <gtest/gtest.h>

#include "business/networks.h"
#include "business/tvshows.h"
#include "calendar/advanceday.h"
#include "calendar/image.h"
#include "info/calmworld.h"
#include "rivals/founding.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "roster/leaving.h"
#include "roster/signing.h"
#include "show/aftermatch.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

Worker& One(World& world, const char* name) {
  return Named(world.Workers(), name);
}
Promotion& Rival(World& world) {
  return Named(world.Promotions(), "NEW");
}

/// Whatever in the world does something leaves a deed of it.
struct Case {
  int Kind;
  const char *House, *Who, *Other;
  int Number;
  void (*Do)(World& world);
};

constexpr Case kCases[] = {
    {kDeedStolen, "CWA", "Newcomer", "NEW", 0,
     [](World& w) {
       SigningOffer offer;
       offer.Name = offer.ShortName = "Newcomer";
       offer.Disposition = "F";
       offer.Position = kOpener;
       Sign(w, One(w, "NEW 6"), offer);
     }},
    {kDeedSigned, "CWA", "Newcomer", "", 0,
     [](World& w) {
       SigningOffer offer;
       offer.Name = offer.ShortName = "Newcomer";
       offer.Disposition = "F";
       offer.Position = kOpener;
       One(w, "NEW 6").Employer = 0;
       Sign(w, One(w, "NEW 6"), offer);
     }},
    {kDeedLeft, "CWA", "CWA 18", "", 0,
     [](World& w) {
       ScriptDraws(w, {{3, 2}});
       ReleaseWorker(w, One(w, "CWA 18"));
     }},
    {kDeedLeft, "NEW", "NEW 6", "", 0,
     [](World& w) {
       One(w, "NEW 6").ContractMonths = 1;
       PayWagesAndContracts(w);
     }},
    {kDeedInjured, "CWA", "CWA 5", "Broken Leg", 4,
     [](World& w) {
       ScriptDraws(w, {{12, 2}, {6, 4}});
       BreakSomething(w, One(w, "CWA 5"));
     }},
    {kDeedRenewed, "NEW", "Friday Fire", "Nine", 18,
     [](World& w) {
       w.Shows()[1].Owner = 2;
       w.Shows()[1].ContractWeeks = 3;
       TvContractReview(w);
     }},
    {kDeedOffAir, "CWA", "Friday Fire", "Nine", 0,
     [](World& w) {
       w.Shows()[1].ContractWeeks = 1;
       TvContractReview(w);
     }},
    {kDeedOffAir, "CWA", "Friday Fire", "Nine", 0, [](World& w) { EndShow(w, w.Shows()[1]); }},
    {kDeedOnAir, "NEW", "NEW Hour", "Nine", 12,
     [](World& w) {
       AddShow(w, "NEW Hour", {2, 1, "G", 3, 12});
     }},
    {kDeedRisen, "NEW", "NEW Wrestling", "", kRegional,
     [](World& w) {
       Rival(w).Image = 99;
       ChangeImage(w, Rival(w), 1, true);
     }},
    {kDeedFallen, "NEW", "NEW Wrestling", "", kBackyard,
     [](World& w) {
       Rival(w).Image = 1;
       Named(w.AllStaff(), "Tom Rival").Unsackable = true;
       ChangeImage(w, Rival(w), 1, false);
     }},
    {kDeedOwnerQuit, "NEW", "Tom Rival", "", 0,
     [](World& w) {
       Rival(w).Image = 1;
       ChangeImage(w, Rival(w), 1, false);
     }},
    {kDeedOwner, "NEW", "Tom Rival", "", 0,
     [](World& w) {
       Named(w.AllStaff(), "Tom Rival").Employer = 0;
       Named(w.AllStaff(), "Tom Rival").Talent = 20;
       ScriptDraws(w, {{14, 1}, {2, 1}});
       OwnerlessPromotions(w);
     }},
    {kDeedMissed, "NEW", "NEW Wrestling", "", 0,
     [](World& w) {
       Rival(w).LoanAmount = 100000;
       Rival(w).LoanMonths = 12;
       Rival(w).Money = 0;
       LoanRepayments(w);
     }},
    {kDeedClosed, "NEW", "NEW Wrestling", "", 0,
     [](World& w) {
       Rival(w).LoanAmount = 100000;
       Rival(w).LoanMonths = 12;
       Rival(w).LoanMissed = 2;
       Rival(w).Money = 0;
       LoanRepayments(w);
     }},
    {kDeedWarned, "NEW", "NEW Wrestling", "", 0,
     [](World& w) {
       Rival(w).Money = -900000;
       BankruptcyCheck(w);
     }},
    {kDeedBought, "NEW", "NEW Wrestling", "CWA", 0,
     [](World& w) { TakeOverRival(w, Rival(w), Takeover::Destruction); }},
    {kDeedFounded, "PPW", "Pinkney Presents Wrestling", "", kNational,
     [](World& w) {
       w.Game().EndCode = 100;
       MeetStranger(w);
     }},
    {kDeedRetired, "CWA", "CWA 4", "", 0,
     [](World& w) {
       One(w, "CWA 4").RetiringSoon = true;
       AgeAndRetire(w);
     }},
    {kDeedRetiring, "CWA", "CWA 4", "", 0,
     [](World& w) {
       One(w, "CWA 4").Age = 65;
       One(w, "CWA 4").BirthMonth = 2;
       AgeAndRetire(w);
     }},
    {kDeedCalledOff, "NEW", "NEW Wrestling", "", 0,
     [](World& w) {
       One(w, "NEW 1").Employer = 0;
       for (Worker& worker : w.Workers())
         if (worker.Employer == 2) worker.Position = kJobber;
       w.Shows()[1].Owner = 2;
       w.Shows()[1].Day = "Monday";
       RivalShows(w);
     }},
};

TEST(Deeds, AreNotedWhereTheyAreDone) {
  for (const Case& row : kCases) {
    SCOPED_TRACE("kind " + std::to_string(row.Kind) + ", " + row.Who);
    World world = CalmWorld();
    row.Do(world);
    const Deed* found = nullptr;
    for (const Deed& deed : world.Deeds())
      if (deed.Kind == row.Kind && deed.Who == row.Who) found = &deed;
    EXPECT_TRUE(found);
    if (!found) continue;
    EXPECT_EQ(found->House, row.House);
    EXPECT_EQ(found->Other, row.Other);
    EXPECT_EQ(found->Number, row.Number);
    EXPECT_EQ(Day(found->On), kMeeting);
  }
}

TEST(Deeds, TellHowARivalsShowWent) {
  World world = CalmWorld();
  world.Shows()[1].Owner = 2;
  world.Shows()[1].Day = "Monday";
  One(world, "NEW 5").Position = kLowerMidcard;
  RivalShows(world);
  ASSERT_EQ(world.Deeds().Count(), 1);
  const Deed& deed = world.Deeds()[1];
  EXPECT_EQ(deed.Kind, kDeedTvHeld);
  EXPECT_EQ(deed.Who, "Friday Fire");
  // The Main Event counts twice: 60 x 2, 50, 40, 30, 15.
  EXPECT_EQ(deed.Number, 42);
  EXPECT_EQ(deed.Viewers, world.Shows()[1].Rating3);
}

}  // namespace
}  // namespace grapplemont::test
