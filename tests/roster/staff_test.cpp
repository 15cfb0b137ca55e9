#include <gtest/gtest.h>
#include <algorithm>

#include "decisions.h"
#include "roster/staff.h"
#include "support/gameonworld.h"

// Talks with staff: what they want, what they refuse, hiring, firing, and how posts are filled.

namespace grapplemont::test {
namespace {

constexpr const char* kPen = "Penny Quill";
constexpr const char* kDoc = "Doc Marrow";
constexpr const char* kFree = "Free Frida";

SmallWorld Offices(int size = kCult) {
  SmallWorld small;
  small.Network("Nine")
      .Promotion("CWA", size)
      .Owner("Ruth Vane")
      .Staff(kPen, kWriter, 60)
      .Staff("Hal Horn", kAnnouncer, 55)
      .Show("Fire", "Friday", "Nine", [](Show& s) { s.Announcer = 3; })
      .Promotion("NEW", kBackyard, [](Promotion& p) { p.HeadTrainer = 5; })
      .Owner("Nils Boon")
      .Staff(kDoc, kTrainer, 70, [](Staff& s) { s.Gender = false; })
      .OnTheMarket()
      .Staff(kFree, kMedical, 80, [](Staff& s) { s.Gender = false; })
      .Game("CWA");
  return small;
}
Staff& Who(World& world, const char* name) {
  return Named(world.AllStaff(), name);
}

TEST(StaffDemands, GoByTheSizeOfThePromotion) {
  // Presently 10, 20 and 30 thousand a month.
  constexpr struct {
    int Size, Months;
    bool Written;
    int Free, Elsewhere, Own;  // wages wanted at talents of 80, 70 and 60
  } kCases[] = {{kGlobal, 24, true, 16, 26, 31}, {kNational, 24, true, 12, 25, 31},
                {kCult, 12, false, 10, 24, 31},  {kRegional, 12, false, 10, 24, 31},
                {kSmall, 6, false, 10, 22, 31},  {kBackyard, 6, false, 9, 21, 31}};
  for (const auto& c : kCases) {
    World world = Offices(c.Size);
    Who(world, kFree).Wage = 10;
    Who(world, kDoc).Wage = 20;
    Who(world, kPen).Wage = 30;
    SCOPED_TRACE(c.Size);
    const StaffDemands free = StaffDemandsOf(world, Who(world, kFree));
    EXPECT_EQ(free.Months, c.Months);
    EXPECT_EQ(free.Written, c.Written);
    EXPECT_EQ(free.Wage, c.Free);
    EXPECT_EQ(StaffDemandsOf(world, Who(world, kDoc)).Wage, c.Elsewhere);
    EXPECT_EQ(StaffDemandsOf(world, Who(world, kPen)).Wage, c.Own);
  }
}

TEST(StaffDemands, RaiseTheAbleMoreUpToAHundredThousand) {
  World world = Offices(kBackyard);
  Staff& pen = Who(world, kPen);
  pen.Wage = 60;
  for (const auto& [talent, wage] : {std::pair(80, 66), {79, 63}, {60, 63}, {59, 60}}) {
    pen.Talent = talent;
    EXPECT_EQ(StaffDemandsOf(world, pen).Wage, wage) << talent;
  }
  pen.Wage = 100;
  EXPECT_EQ(StaffDemandsOf(world, pen).Wage, 100);
}

TEST(WhyNoStaffOffer, ClosesTheTalksWithOnesOwn) {
  constexpr const char* kHappy = "He is happy with the contract as it is.";
  constexpr const char* kNever = "He will not even sit down with you.";
  constexpr const char* kUnwilling = "He does not want to talk about staying.";
  World world = Offices();
  Staff& pen = Who(world, kPen);
  for (const auto& [months, morale, loyalty, words] : {std::tuple(25, 40, 40, kHappy),
                                                       {24, 40, 40, ""},
                                                       {25, 39, 40, kUnwilling},
                                                       {12, 40, 39, kUnwilling},
                                                       {12, 19, 80, kNever},
                                                       {12, 80, 19, kNever},
                                                       {12, 20, 20, kUnwilling}}) {
    pen.ContractMonths = months;
    pen.Morale = morale;
    pen.Loyalty = loyalty;
    Decision why;
    EXPECT_EQ(WhyNoStaffOffer(world, pen, &why), words)
        << months << " " << morale << " " << loyalty;
    ExpectTells(why, std::string_view(words).empty());
  }
}

TEST(WhyNoStaffOffer, ClosesTheTalksWithOthers) {
  constexpr const char* kNothing = "She wants nothing to do with you.";
  constexpr const char* kWritten = "She is under a written contract and happy with it.";
  constexpr const char* kStays = "She is happy at NEW and sees no reason to leave for you.";
  constexpr const char* kSmall = "She does not think that your promotion is big enough.";
  constexpr struct {
    int Size, EmployerSize, Talent, Morale, Backstage, Loyalty;
    const char *Type, *Words;
  } kCases[] = {{3, 6, 80, 80, 80, 39, "Non", kNothing}, {3, 6, 80, 80, 80, 40, "Non", ""},
                {1, 6, 80, 61, 0, 80, "Wri", kWritten},  {1, 6, 80, 60, 0, 80, "Wri", ""},
                {3, 6, 80, 61, 91, 80, "Non", ""},       {3, 5, 80, 61, 91, 80, "Non", kStays},
                {3, 5, 80, 60, 91, 80, "Non", ""},       {3, 5, 80, 61, 90, 80, "Non", ""},
                {3, 4, 80, 61, 60, 80, "Non", kStays},   {3, 4, 80, 61, 59, 80, "Non", ""},
                {3, 3, 80, 61, 59, 80, "Non", kStays},   {3, 6, 81, 80, 80, 80, "Non", kSmall},
                {4, 6, 60, 60, 80, 80, "Non", ""},       {4, 6, 61, 60, 80, 80, "Non", kSmall},
                {5, 6, 41, 60, 80, 80, "Non", kSmall},   {6, 6, 20, 60, 80, 80, "Non", ""},
                {6, 6, 21, 60, 80, 80, "Non", kSmall},   {2, 6, 100, 60, 80, 80, "Non", ""}};
  World world = Offices();
  Staff& doc = Who(world, kDoc);
  for (const auto& c : kCases) {
    world.Player().Size = c.Size;
    Named(world.Promotions(), "NEW").Size = c.EmployerSize;
    doc.Talent = c.Talent;
    doc.Morale = c.Morale;
    doc.Backstage = c.Backstage;
    doc.Loyalty = c.Loyalty;
    doc.ContractType = c.Type;
    Decision why;
    EXPECT_EQ(WhyNoStaffOffer(world, doc, &why), c.Words)
        << c.Size << " " << c.EmployerSize << " " << c.Talent << " " << c.Morale << " "
        << c.Backstage << " " << c.Loyalty << c.Type;
    ExpectTells(why, std::string_view(c.Words).empty());
  }
  doc.Employer = 0;
  world.Player().Size = kGlobal;
  EXPECT_EQ(WhyNoStaffOffer(world, doc), "") << "nobody holds the free";
}

TEST(JudgeStaffOffer, HearsEachObjectionAtItsEdge) {
  constexpr const char* kBigger = "No thanks, it is time for me to move on to a bigger promotion.";
  constexpr const char* kInWriting = "I want that in writing.";
  constexpr const char* kUnbound = "I do not want to be bound by a written contract.";
  constexpr const char* kRaise = "After all that i have done here, i want a raise.";
  constexpr const char* kLess = "I am not going to work for less.";
  constexpr const char* kWorth = "I am worth more than that.";
  constexpr const char* kLong = "I do not want to bind myself for so long.";
  constexpr const char* kShort = "Half a year is no security. I want a longer contract.";
  constexpr const char* kFifth = "For so many years i want a fifth on top.";
  const struct {
    bool Own;
    int Talent, Loyalty, Wage;  // of the person
    StaffDemands Wants;
    ContractOffer Offer;
    const char* Words;
  } kCases[] = {
      {true, 60, 80, 20, {12, true, 20}, {20, 12, true}, ""},
      {true, 91, 69, 20, {12, true, 20}, {20, 12, true}, kBigger},
      {true, 90, 69, 20, {12, true, 20}, {20, 12, true}, ""},
      {true, 91, 70, 20, {12, true, 20}, {20, 12, true}, ""},
      {false, 91, 69, 20, {12, true, 20}, {20, 12, true}, ""},
      {true, 60, 80, 20, {12, true, 20}, {20, 12, false}, kInWriting},
      {true, 60, 80, 20, {12, false, 20}, {20, 12, true}, kUnbound},
      {true, 60, 80, 20, {12, false, 20}, {20, 12, false}, ""},
      {true, 60, 49, 20, {12, true, 21}, {20, 12, true}, kRaise},
      {true, 60, 50, 20, {12, true, 21}, {20, 12, true}, ""},
      {true, 60, 49, 20, {12, true, 21}, {21, 12, true}, ""},
      {true, 60, 80, 20, {12, true, 20}, {19, 12, true}, kLess},
      {false, 60, 80, 20, {12, true, 20}, {19, 12, true}, ""},
      {false, 60, 80, 20, {12, true, 29}, {26, 12, true}, kWorth},
      {false, 60, 80, 20, {12, true, 29}, {27, 12, true}, ""},
      {false, 60, 80, 20, {6, true, 20}, {20, 13, true}, kLong},
      {false, 60, 80, 20, {6, true, 20}, {20, 12, true}, ""},
      {false, 60, 80, 20, {24, true, 20}, {20, 11, true}, kShort},
      {false, 60, 80, 20, {24, true, 20}, {20, 12, true}, ""},
      {false, 60, 80, 20, {12, true, 20}, {20, 6, true}, ""},
      {false, 60, 80, 20, {12, true, 20}, {23, 37, true}, kFifth},
      {false, 60, 80, 20, {12, true, 20}, {24, 37, true}, ""},
      {false, 60, 80, 20, {12, true, 20}, {20, 36, true}, ""},
      {true, 91, 49, 20, {6, true, 30}, {10, 60, false}, kBigger},
      {true, 60, 49, 20, {6, true, 30}, {10, 60, false}, kInWriting},
      {true, 60, 49, 20, {6, true, 30}, {10, 60, true}, kRaise},
      {true, 60, 50, 20, {6, true, 30}, {10, 60, true}, kLess},
      {true, 60, 50, 20, {6, true, 30}, {20, 60, true}, kWorth},
      {true, 60, 50, 20, {6, true, 30}, {30, 60, true}, kLong},
      {true, 60, 50, 20, {24, true, 30}, {30, 60, true}, kFifth},
  };
  World world = Offices(kCult);
  int number = 0;
  for (const auto& c : kCases) {
    Staff& staff = Who(world, c.Own ? kPen : kDoc);
    staff.Talent = c.Talent;
    staff.Loyalty = c.Loyalty;
    staff.Wage = c.Wage;
    Decision why;
    EXPECT_EQ(JudgeStaffOffer(world, staff, c.Wants, c.Offer, &why), c.Words)
        << "case " << ++number;
    ExpectTells(why, std::string_view(c.Words).empty());
  }
}

TEST(HireStaff, TakesHimOutOfHisFormerDuties) {
  World world = Offices()
                    .Promotion("ACE")
                    .Show("Ace Hour", "Monday", "Nine", [](Show& s) { s.Announcer = 5; })
                    .Show("Ace Two", "Tuesday", "Nine", [](Show& s) { s.Colour = 5; });
  Staff& doc = Who(world, kDoc);
  ASSERT_EQ(doc.Uid, 5);
  HireStaff(world, doc, {12, 24, false, false});
  EXPECT_EQ(doc.Employer, world.PlayerUid());
  EXPECT_EQ(doc.ContractMonths, 24);
  EXPECT_EQ(doc.ContractType.View(), "Non");
  EXPECT_EQ(doc.Wage, 12);
  EXPECT_EQ(doc.Morale, 100);
  EXPECT_EQ(Named(world.Promotions(), "NEW").HeadTrainer, 0);
  EXPECT_EQ(Named(world.Shows(), "Ace Hour").Announcer, 0);
  EXPECT_EQ(Named(world.Shows(), "Ace Two").Colour, 0);
  ExpectSound(world);
}

TEST(FireStaff, CostsWhatAWorkersTerminationDoes) {
  constexpr const char* kFreely =
      "Nothing is in writing, and Hal Horn can be let go for free. Proceed?";
  constexpr const char* kGladly = "Hal Horn is glad to leave. Proceed?";
  constexpr struct {
    int Difficulty, Morale;
    const char* Type;
    int Cost, Loyalty;
    const char* Question;
  } kCases[] = {{kHard, 20, "Wri", 60000, 50,
                 "Buying out the contract of Hal Horn will cost $60000. Proceed?"},
                {kRockHard, 20, "Non", 0, 60, kFreely},
                {kRockHard, 19, "Wri", 0, 80, kGladly},
                {kRockHard, 19, "Non", 0, 80, kGladly}};
  for (const auto& c : kCases) {
    World world = Offices();
    Staff& hal = Who(world, "Hal Horn");
    world.Shows()[1].Colour = int(hal.Uid);
    const int money = world.Player().Money;
    world.Game().Difficulty = c.Difficulty;
    hal.Morale = c.Morale;
    hal.ContractType = c.Type;
    EXPECT_EQ(FiringQuestion(world, hal), c.Question);
    FireStaff(world, hal);
    EXPECT_EQ(world.Player().Money, money - c.Cost);
    EXPECT_EQ(hal.Loyalty, c.Loyalty);
    EXPECT_EQ(hal.Employer, 0);
    EXPECT_EQ(hal.ContractMonths, 0);
    EXPECT_EQ(hal.ContractType.View(), "Non");
    EXPECT_EQ(world.Shows()[1].Announcer, 0);
    EXPECT_EQ(world.Shows()[1].Colour, 0);
  }
}

TEST(PostAdvice, CountsWhatThePromotionNeeds) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA").Crew(31).Staff(kPen, kWriter);
  small.Show("Fire", "Friday", "Nine").Show("Ice", "Monday", "Nine").Staff(kDoc, kMedical);
  World world = small.Game("CWA");
  world.Player().CampName = "The Barn";
  EXPECT_EQ(PostLines(PostCounts(world)),
            "Announcers 0 (1 needed)\nReferees 0\nProduction 0\nMedical 1 (2 needed)\n"
            "Writers 1 (4 needed)\nRoad Agents 0 (2 needed)\nTrainers 0 (1 needed)");
  EXPECT_EQ(PostAdvice(PostCounts(world)),
            "Announcers: hire 1 more, or nobody calls the shows. Medical: hire 1 more, or the "
            "roster recovers slowly. Writers: hire 3 more, or angles have to wait. Road Agents: "
            "hire 2 more, or there will be more trouble behind the scenes. Trainers: hire 1 more, "
            "or nobody teaches in the training camp.");
}

TEST(PostCounts, StepWithTheCrowd) {
  constexpr struct {
    int Crew, Medics, Agents;
  } kCases[] = {{0, 0, 0},  {1, 0, 1},  {25, 0, 1}, {26, 0, 2}, {30, 0, 2}, {31, 2, 2}, {40, 2, 2},
                {41, 2, 3}, {55, 2, 3}, {56, 3, 3}, {60, 3, 3}, {61, 3, 4}, {80, 3, 4}, {81, 3, 5}};
  for (const auto& c : kCases) {
    World world = SmallWorld().Promotion("CWA").Crew(c.Crew).Game("CWA");
    EXPECT_EQ(PostCountOf(world, kMedical).Need, c.Medics) << c.Crew;
    EXPECT_EQ(PostCountOf(world, kRoadAgent).Need, c.Agents) << c.Crew;
  }
}

TEST(frmStaff, ListsTheOwnAndTellsOfTheChosen) {
  GameOnWorld play(Offices());
  play.Desk.Open("frmStaff");
  EXPECT_EQ(play.Desk.Rows("lststaff"),
            (std::vector<Names>{
                {"Ruth Vane", "Owner", "50", "", "-", "Owner", "80", "80", "40", "M"},
                {"Hal Horn", "Announcer", "55", "$5,000", "12", "Written", "80", "80", "40", "M"},
                {kPen, "Writer", "60", "$5,000", "12", "Written", "80", "80", "40", "M"}}));
  EXPECT_EQ(play.Desk.Text("lblfacts"), "3 on the staff, $10,000 a month.");
  EXPECT_EQ(play.Desk.Text("lbladvice"), "Writers: hire 1 more, or angles have to wait.");
  EXPECT_FALSE(play.Desk.Enabled("cmdfire"));
  EXPECT_FALSE(play.Desk.Enabled("cmdcontract"));
  EXPECT_EQ(play.Desk.Tip("cmdfire"), "Ruth Vane owns promotions, and is not for hire.");
  play.Desk.Pick("lststaff", "Hal Horn");
  EXPECT_TRUE(play.Desk.Enabled("cmdfire"));
  EXPECT_EQ(play.Desk.Text("txtpage"),
            "Hal Horn\nA man of 40, born in June.\nAnnouncer.\nTalent 55. Does a decent job.\n"
            "Contract\nWorks for CWA Wrestling.\nWritten contract for 12 months, at $5,000 per "
            "month.\nCharacter\nCould not be happier.\nWould go through fire for you.\n"
            "Everybody's friend behind the scenes.\nDuties\nCalls Fire.");
}

TEST(frmStaff, FiresAfterAsking) {
  GameOnWorld play(Offices());
  play.Desk.Open("frmStaff");
  play.Desk.Pick("lststaff", "Hal Horn");
  play.Desk.ExpectAsk("Terminate Contract", kAnyText, false, ui::Default::No);
  play.Desk.Click("cmdfire");
  EXPECT_EQ(Who(play.World(), "Hal Horn").Employer, 1);
  play.Desk.ExpectAsk("Terminate Contract", kAnyText, true);
  play.Desk.Click("cmdfire");
  EXPECT_EQ(play.Desk.FirstColumn("lststaff"), Names({"Ruth Vane", kPen}));
  EXPECT_EQ(play.Desk.Selected("lststaff"), std::vector{2}) << "the next one";
  EXPECT_TRUE(play.Desk.Text("lbladvice").starts_with("Announcers: hire 1 more"));
  play.Reopen();
  EXPECT_EQ(Who(play.World(), "Hal Horn").Employer, 0);
}

TEST(frmStaffContract, RenewsOnGoodTerms) {
  GameOnWorld play(Offices());
  play.Desk.Open("frmStaff");
  play.Desk.Pick("lststaff", kPen);
  play.Desk.Click("cmdcontract");
  ASSERT_EQ(play.Desk.TopName(), "frmStaffContract");
  EXPECT_EQ(play.Desk.Text("txtwage"), "$5,000 a month") << "what they earn, not what they want";
  EXPECT_EQ(play.Desk.Text("cmbnewtype"), "Verbal");
  play.Desk.Slide("hsnewwage", 3);
  play.Desk.ExpectSay("Rejected!", "I am not going to work for less.");
  play.Desk.Click("cmdoffer");
  play.Desk.Slide("hsnewwage", 7);
  play.Desk.Pick("cmbnewlength", "2 Years");
  play.Desk.ExpectSay("Accepted!", "Penny Quill agrees to the contract!");
  play.Desk.Click("cmdoffer");
  EXPECT_EQ(play.Desk.Rows("lststaff")[2],
            (Names{kPen, "Writer", "60", "$7,000", "24", "Verbal", "80", "80", "40", "M"}));
  play.Reopen();
  EXPECT_EQ(Who(play.World(), kPen).Wage, 7);
}

TEST(frmOtherStaff, FiltersAndHires) {
  GameOnWorld play(Offices());
  play.Desk.Open("frmOtherStaff");
  EXPECT_EQ(play.Desk.FirstColumn("lststaff"), Names({kFree, kDoc, "Nils Boon"}))
      << "nobody hires an Owner";
  EXPECT_EQ(play.Desk.Rows("lststaff")[1][2], "NEW");
  const std::pair<std::pair<const char*, const char*>, Names> kFilters[] = {
      {{"cmbbond", "Free agents"}, {kFree}},
      {{"cmbbond", "Written contracts"}, {kDoc}},
      {{"cmbbond", "Verbal contracts"}, {}},
      {{"cmbbond", "Expiring contracts"}, {}},
      {{"cmbpost", "Trainer"}, {kDoc}},
      {{"cmbpost", "Owner"}, {"Nils Boon"}},
      {{"cmbtalent", "80 up"}, {kFree}},
      {{"cmbtalent", "Not too good for us"}, {kFree, kDoc, "Nils Boon"}}};
  for (const auto& [filter, names] : kFilters) {
    play.Desk.Pick(filter.first, filter.second);
    EXPECT_EQ(play.Desk.FirstColumn("lststaff"), names) << filter.second;
    play.Desk.Pick(filter.first, "All");
  }
  play.Desk.Pick("lststaff", "Nils Boon");
  EXPECT_FALSE(play.Desk.Enabled("cmdcontract"));

  play.Desk.Pick("lststaff", kFree);
  play.Desk.Click("cmdcontract");
  ASSERT_EQ(play.Desk.TopName(), "frmOtherStaffContract");
  EXPECT_EQ(play.Desk.Text("txtwage"), "$7,000 a month");
  EXPECT_EQ(play.Desk.Text("txtlength"), "12 months");
  EXPECT_EQ(play.Desk.Text("txttype"), "Verbal");
  play.Desk.Pick("cmbnewtype", "Written");
  play.Desk.ExpectSay("Rejected!", "I do not want to be bound by a written contract.");
  play.Desk.Click("cmdoffer");
  play.Desk.Pick("cmbnewtype", "Verbal");
  play.Desk.ExpectSay("Accepted!", "Free Frida agrees to the contract!");
  play.Desk.Click("cmdoffer");
  EXPECT_EQ(play.Desk.FirstColumn("lststaff"), Names({kDoc, "Nils Boon"}));
  play.Reopen();
  EXPECT_EQ(Who(play.World(), kFree).Employer, 1);
}

TEST(StaffTalks, DoNotBeginWithOwnersAndTheUnsackable) {
  GameOnWorld play(Offices());
  Staff& pen = Who(play.World(), kPen);
  pen.Unsackable = true;
  pen.ContractMonths = kNoEnd;
  play.Desk.Open("frmStaff");
  play.Desk.Pick("lststaff", kPen);
  const char* words =
      "Penny Quill is unsackable: the agreement has no end, and nothing to talk about.";
  EXPECT_EQ(play.Desk.Tip("cmdcontract"), words);
  EXPECT_EQ(play.Desk.Tip("cmdfire"), words);
  play.Desk.OpenRow("lststaff", kPen);
  play.Desk.OpenRow("lststaff", "Ruth Vane");
  EXPECT_EQ(play.Desk.Tip("cmdcontract"), "Ruth Vane owns promotions, and is not for hire.");
  EXPECT_EQ(play.Desk.TopName(), "frmStaff");
}

}  // namespace
}  // namespace grapplemont::test
