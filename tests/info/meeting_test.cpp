#include "info/meeting.h"

#include <gtest/gtest.h>

#include "business/finance.h"
#include "calendar/advanceday.h"
#include "info/calmworld.h"
#include "info/infowords.h"
#include "roster/talks.h"
#include "show/attendance.h"

namespace grapplemont::test {
namespace {

using Change = void (*)(World& world);

const Advice* Find(const std::vector<Advice>& all, Point point) {
  for (const Advice& advice : all)
    if (advice.Is == point) return &advice;
  return nullptr;
}

Worker& One(World& world, const char* name = "CWA 1") {
  return Named(world.Workers(), name);
}
Show& Fire(World& world) {
  return Named(world.Shows(), "Friday Fire");
}
Title& Crown(World& world) {
  return Named(world.Titles(), "CWA Crown");
}
HistoryEntry& Held(World& world, int kind, int rating) {
  HistoryEntry entry;
  entry.On = kMeeting;
  entry.Kind = kind;
  entry.Promotion = 1;
  entry.Name = "Friday Fire";
  entry.Rating = rating;
  entry.Size = world.Player().Size;
  return world.History().Append(entry);
}
int WagesDue(const World& world) {
  const WageBill bill = WagesOf(world, world.PlayerUid());
  return static_cast<int>(bill.Workers + bill.Staff);
}
void Books(World& world, int income, int wages) {
  world.Player().LastMonth.TicketIncome = income;
  world.Player().LastMonth.WrestlerWages = wages;
}

/// A change that brings the point up with these words in it, and one just short of it.
struct Case {
  Point Is;
  Change Inside;
  std::vector<std::string> Has;
  Change Outside;
};

std::string TextOf(Point point) {
  const int number = static_cast<int>(point);
  return "point " + std::to_string(number) + ", " +
         std::string(LinesUnder(words::Meeting(), number)[0]);
}

void Check(const std::vector<Case>& cases) {
  for (const Case& row : cases) {
    SCOPED_TRACE(TextOf(row.Is));
    World inside = CalmWorld();
    row.Inside(inside);
    const auto said = HoldMeeting(inside);
    const Advice* advice = Find(said, row.Is);
    EXPECT_TRUE(advice) << "nobody says it";
    if (!advice) continue;
    for (const std::string& word : row.Has)
      EXPECT_NE((advice->Says + " / " + advice->Do).find(word), std::string::npos)
          << word << " is not in: " << advice->Says << " / " << advice->Do;
    // A week later it is the other line's turn.
    inside.Game().Today = kMeeting + std::chrono::days{7};
    const auto later = HoldMeeting(inside);
    for (const auto* all : {&said, &later})
      for (const Advice& one : *all)
        EXPECT_EQ((one.Says + one.Do).find('{'), std::string::npos) << one.Says << one.Do;
    World outside = CalmWorld();
    row.Outside(outside);
    EXPECT_FALSE(Find(HoldMeeting(outside), row.Is)) << "said though there is no reason";
  }
}

TEST(Meeting, IsQuietWhereAllIsWell) {
  World world = CalmWorld();
  for (const Advice& advice : HoldMeeting(world)) ADD_FAILURE() << advice.Says;
}

TEST(Meeting, TalksOfTheRoster) {
  Check({
      {Point::RosterSmall,
       [](World& w) { One(w, "CWA 17").Employer = One(w, "CWA 18").Employer = 2; },
       {"16", "17", "Sign 1 more"},
       [](World& w) { One(w, "CWA 18").Employer = 2; }},
      {Point::RosterLarge,
       [](World& w) {
         for (const char* name : {"NEW 1", "NEW 2", "NEW 3"}) One(w, name).Employer = 1;
         Books(w, 100000, 100001);
       },
       {"21", "$1"},
       [](World& w) {
         for (const char* name : {"NEW 1", "NEW 2", "NEW 3"}) One(w, name).Employer = 1;
         Books(w, 100000, 100000);
       }},
      {Point::PositionThin,
       [](World& w) { One(w, "CWA 2").Status = One(w, "CWA 3").Status = "Sus"; },
       {"Main Event", "one", "Sign somebody with an Over of 56"},
       [](World& w) { One(w, "CWA 2").Status = "Sus"; }},
      {Point::PositionThin,
       [](World& w) {
         One(w, "CWA 2").Status = One(w, "CWA 3").Status = "Sus";
         One(w, "CWA 4").Over = 56;
       },
       {"Move CWA 4 there", "56"},
       [](World&) {}},
      {Point::HeldLow,
       [](World& w) { One(w, "CWA 7").Over = 56; },
       {"CWA 7", "56", "Midcard", "Move CWA 7 up to Main Event"},
       [](World& w) { One(w, "CWA 7").Over = 55; }},
      {Point::PushedHigh,
       [](World& w) { One(w).Over = 45; },
       {"CWA 1", "45", "down to Midcard"},
       [](World& w) { One(w).Over = 46; }},
      {Point::Undebuted,
       [](World& w) { One(w, "CWA 5").Debuted = false; },
       {"CWA 5", "1"},
       [](World& w) {
         One(w, "CWA 5").Debuted = false;
         One(w, "CWA 5").Position = kTrainingCamp;
       }},
      {Point::OneSided,
       [](World& w) {
         for (int i = 2; i <= 18; i += 2)
           if (i > 8) One(w, ("CWA " + std::to_string(i)).c_str()).Disposition = "F";
       },
       {"14", "4"},
       [](World& w) {
         for (int i = 2; i <= 18; i += 2)
           if (i > 10) One(w, ("CWA " + std::to_string(i)).c_str()).Disposition = "F";
       }},
  });
}

TEST(Meeting, TalksOfMoraleAndSaysWhyWhereTheRecordsDo) {
  Check({
      {Point::WalkOut,
       [](World& w) {
         One(w).ContractType = "Non";
         One(w).Morale = 9;
       },
       {"CWA 1", "9"},
       [](World& w) {
         One(w).ContractType = "Non";
         One(w).Morale = 10;
       }},
      {Point::Boycott,
       [](World& w) {
         One(w).Morale = 9;
         One(w).Behaviour = 74;
       },
       {"CWA 1", "9"},
       [](World& w) {
         One(w).Morale = 9;
         One(w).Behaviour = 75;
       }},
      {Point::Unhappy,
       [](World& w) {
         One(w, "CWA 7").Morale = 39;
         One(w, "CWA 7").Over = 56;
       },
       {"CWA 7", "39", "stands too low on the card"},
       [](World& w) { One(w, "CWA 7").Morale = 40; }},
      {Point::Unhappy,
       [](World& w) {
         One(w).Morale = 20;
         w.Player().Rank = {};
         w.Player().Rank[0] = 240;
         w.Player().Rank[1] = 245;
         w.Player().Rank[2] = 250;
       },
       {"seen our standing fall"},
       [](World&) {}},
      {Point::SittingOut,
       [](World& w) { One(w).Status = "Hom"; },
       {"CWA 1"},
       [](World& w) { One(w).Status = "Inj"; }},
      {Point::RoomLow,
       [](World& w) {
         for (Worker& worker : w.Workers()) worker.Morale = 49;
       },
       {"49"},
       [](World& w) {
         for (Worker& worker : w.Workers()) worker.Morale = 50;
       }},
      {Point::RoomHappy,
       [](World& w) {
         for (Worker& worker : w.Workers()) worker.Morale = 80;
       },
       {"80"},
       [](World& w) {
         for (Worker& worker : w.Workers()) worker.Morale = 79;
       }},
  });
}

TEST(Meeting, TalksOfContracts) {
  Check({
      {Point::ContractsEnd,
       [](World& w) { One(w, "CWA 4").ContractMonths = 1; },
       {"CWA 4", "$11,000", "For 6 months and not a day more: CWA 4."},
       [](World& w) { One(w, "CWA 4").ContractMonths = 2; }},
      {Point::ContractsSoon,
       [](World& w) { One(w, "CWA 4").ContractMonths = 3; },
       {"CWA 4", "$11,000"},
       [](World& w) { One(w, "CWA 4").ContractMonths = 4; }},
      {Point::MovingOn,
       [](World& w) {
         One(w).ContractMonths = 3;
         One(w).Over = 56;
       },
       {"CWA 1"},
       [](World& w) {
         One(w).ContractMonths = 3;
         One(w).Over = 55;
       }},
      {Point::MovingOn,
       [](World& w) {
         w.Player().Size = kSmall;
         One(w, "CWA 7").ContractMonths = 1;
         One(w, "CWA 7").Over = 41;
       },
       {"CWA 7"},
       [](World& w) {
         w.Player().Size = kSmall;
         One(w, "CWA 7").ContractMonths = 1;
         One(w, "CWA 7").Over = 40;
       }},
      {Point::WillNotSign,
       [](World& w) {
         One(w).ContractMonths = 3;
         One(w).Loyalty = 39;
       },
       {"CWA 1", "70", "39"},
       [](World& w) {
         One(w).ContractMonths = 3;
         One(w).Loyalty = 40;
       }},
      {Point::StaffContracts,
       [](World& w) { Named(w.AllStaff(), "Eve Pen").ContractMonths = 3; },
       {"Eve Pen"},
       [](World& w) { Named(w.AllStaff(), "Eve Pen").ContractMonths = 4; }},
      {Point::Retiring,
       [](World& w) { One(w).RetiringSoon = true; },
       {"CWA 1"},
       [](World& w) { One(w, "NEW 1").RetiringSoon = true; }},
  });
}

/// Nobody is promised what he would refuse, and nobody is sent where he is turned away.
TEST(Meeting, PromisesNothingThatCannotBe) {
  World world = CalmWorld();
  const auto lineOf = [&](Point point) {
    const auto all = HoldMeeting(world);
    const Advice* advice = Find(all, point);
    return advice ? advice->Says + " " + advice->Do : std::string();
  };
  One(world).ContractMonths = 1;
  EXPECT_EQ(lineOf(Point::ContractsEnd), "") << "goes whatever the wage";
  One(world, "CWA 7").ContractMonths = 1;
  EXPECT_NE(lineOf(Point::ContractsEnd).find("CWA 7"), std::string::npos);
  EXPECT_EQ(lineOf(Point::ContractsEnd).find("6 months"), std::string::npos) << "signs for longer";
  world.Player().LoanAmount = 120000;
  world.Player().LoanMonths = 12;
  world.Game().Difficulty = kEasy;
  EXPECT_NE(lineOf(Point::LoanRuns), "");
  EXPECT_EQ(lineOf(Point::LoanRuns).find("fee"), std::string::npos) << "it costs none";
  world.Player().Money = -2400000;
  EXPECT_EQ(lineOf(Point::NearBankruptcy).find("loan"), std::string::npos) << "no bank answers";
}

TEST(Meeting, KnowsWhatWeighsOnSomebodyInTheTerritory) {
  World world = CalmWorld();
  world.Player().DevName = "The Swamp";
  Worker& pupil = One(world, "CWA 7");
  pupil.Position = 86;
  pupil.Age = 30;
  pupil.Over = 29;
  pupil.Potential = 30;
  EXPECT_EQ(WhyUnhappy(world, pupil), "") << "at 30 the mood goes either way";
  pupil.Over = 30;
  EXPECT_EQ(WhyUnhappy(world, pupil), "has nothing left to learn in the development territory");
}

TEST(Meeting, TalksOfHealthAndTheYoung) {
  Check({
      {Point::Injured,
       [](World& w) {
         One(w, "CWA 5").Status = "Inj";
         One(w, "CWA 5").StatusMonths = 2;
       },
       {"CWA 5", "2 months"},
       [](World& w) { One(w, "CWA 5").Status = "Reh"; }},
      {Point::Suspended,
       [](World& w) {
         One(w, "CWA 5").Status = "Reh";
         One(w, "CWA 5").StatusMonths = 1;
       },
       {"CWA 5", "1 month"},
       [](World& w) { One(w, "CWA 5").Status = "Inj"; }},
      {Point::WornOut,
       [](World& w) { One(w).Condition = 39; },
       {"CWA 1", "39"},
       [](World& w) { One(w).Condition = 40; }},
      {Point::Tired,
       [](World& w) { One(w).Condition = 59; },
       {"CWA 1"},
       [](World& w) { One(w).Condition = 60; }},
      {Point::TerritoryIdle,
       [](World& w) {
         w.Player().DevName = "The Swamp";
         w.Player().DevBooker = Named(w.AllStaff(), "Eve Pen").Uid;
         Named(w.AllStaff(), "Eve Pen").Talent = 40;
         One(w, "CWA 18").Position = 86;
       },
       {"The Swamp", "Eve Pen", "40"},
       [](World& w) {
         w.Player().DevName = "The Swamp";
         w.Player().DevBooker = Named(w.AllStaff(), "Eve Pen").Uid;
         Named(w.AllStaff(), "Eve Pen").Talent = 41;
         One(w, "CWA 18").Position = 86;
       }},
      {Point::TerritoryOutgrown,
       [](World& w) {
         w.Player().DevName = "The Swamp";
         One(w, "CWA 18").Position = 86;
         One(w, "CWA 18").Over = One(w, "CWA 18").Potential = 30;
       },
       {"CWA 18"},
       [](World& w) {
         w.Player().DevName = "The Swamp";
         One(w, "CWA 18").Position = 86;
         One(w, "CWA 18").Over = 29;
         One(w, "CWA 18").Potential = 30;
       }},
      {Point::CampEmpty,
       [](World& w) { w.Player().CampName = "The Barn"; },
       {"The Barn"},
       [](World& w) {
         w.Player().CampName = "The Barn";
         One(w, "CWA 18").Position = kTrainingCamp;
       }},
      {Point::CampIdle,
       [](World& w) {
         w.Player().CampName = "The Barn";
         One(w, "CWA 18").Position = kTrainingCamp;
       },
       {"nobody is the head of it"},
       [](World& w) {
         w.Player().CampName = "The Barn";
         w.Player().HeadTrainer = Named(w.AllStaff(), "Gil Drill").Uid;
         One(w, "CWA 18").Position = kTrainingCamp;
       }},
      {Point::CampLearned,
       [](World& w) {
         w.Player().CampName = "The Barn";
         One(w, "CWA 18").Position = kTrainingCamp;
         One(w, "CWA 18").Speed = 61;
       },
       {"CWA 18", "61"},
       [](World& w) {
         w.Player().CampName = "The Barn";
         One(w, "CWA 18").Position = kTrainingCamp;
         One(w, "CWA 18").Speed = 60;
       }},
  });
}

TEST(Meeting, TalksOfMoney) {
  Check({
      {Point::NearBankruptcy,
       [](World& w) { w.Player().Money = -2300001; },
       {"$2,300,001", "$2,500,000", "$199,999"},
       [](World& w) { w.Player().Money = -2300000; }},
      {Point::Debt,
       [](World& w) { w.Player().Money = -1; },
       {"$1", "$2,500,000"},
       [](World& w) { w.Player().Money = 0; }},
      {Point::Runway,
       [](World& w) {
         w.Player().Money = 1299999;
         Books(w, 0, 100000);
       },
       {"$100,000", "$1,299,999", "12 months"},
       [](World& w) {
         w.Player().Money = 1300000;
         Books(w, 0, 100000);
       }},
      {Point::Profit,
       [](World& w) { Books(w, 100001, 50000); },
       {"$50,001"},
       [](World& w) { Books(w, 50000, 50000); }},
      {Point::WageShare,
       [](World& w) { Books(w, 100000, 61000); },
       {"61"},
       [](World& w) { Books(w, 100000, 60999); }},
      {Point::NoIncome,
       [](World& w) { Books(w, 0, 5000); },
       {"$5,000"},
       [](World& w) { Books(w, 1, 5000); }},
      {Point::Advertising,
       [](World& w) { w.Player().Advertising = 7; },
       {"$70,000"},
       [](World&) {}},
      {Point::LoanShort,
       [](World& w) {
         w.Player().LoanAmount = 120000;
         w.Player().LoanMonths = 12;
         w.Player().LoanMissed = 2;
         w.Player().Money = WagesDue(w) + 10332;
       },
       {"$10,333", "2", "Find $1 before"},
       [](World& w) {
         w.Player().LoanAmount = 120000;
         w.Player().LoanMonths = 12;
         w.Player().Money = WagesDue(w) + 10333;
       }},
      {Point::LoanMissed,
       [](World& w) {
         w.Player().LoanAmount = 120000;
         w.Player().LoanMonths = 12;
         w.Player().LoanMissed = 1;
       },
       {"1"},
       [](World& w) {
         w.Player().LoanAmount = 120000;
         w.Player().LoanMonths = 12;
       }},
      {Point::LoanRuns,
       [](World& w) {
         w.Player().LoanAmount = 120000;
         w.Player().LoanRepaid = 20000;
         w.Player().LoanMonths = 12;
       },
       {"$100,000", "Paying early costs a fee."},
       [](World&) {}},
  });
}

TEST(Meeting, TalksOfPricesAndSponsors) {
  Check({
      {Point::TicketFree,
       [](World& w) { w.Player().TicketPrice = 0; },
       {"Set the price to $30", "$20"},
       [](World& w) { w.Player().TicketPrice = 1; }},
      {Point::TicketNobody,
       [](World& w) { w.Player().TicketPrice = 51; },
       {"$51", "Set the price to $30"},
       [](World& w) { w.Player().TicketPrice = 50; }},
      {Point::TicketWrong,
       [](World& w) { w.Player().TicketPrice = 24; },
       {"$24", "$20", "$30", "12"},
       [](World& w) { w.Player().TicketPrice = 25; }},
      {Point::Merchandise,
       [](World& w) { w.Player().Merchandising = 0; },
       {"Set merchandising to 25", "$0", "$100,000"},
       [](World&) {}},
      {Point::SponsorsFree,
       [](World& w) {
         w.Player().Sponsor[3] = 0;
         w.Sponsors()[4].Promotion = 0;
       },
       {"Sponsor 4", "1", "$10,000"},
       [](World& w) {
         w.Player().Sponsor[3] = 0;
         w.Sponsors()[4].Promotion = 0;
         w.Sponsors()[4].Pay = 301;
       }},
      {Point::SponsorsRisk,
       [](World& w) {
         w.Player().Sponsor[3] = 0;
         w.Sponsors()[4].Promotion = 0;
         w.Sponsors()[4].Morality = 71;
       },
       {"Sponsor 4", "30", "down to 29"},
       [](World& w) {
         w.Player().Sponsor[3] = 0;
         w.Sponsors()[4].Promotion = 0;
         w.Sponsors()[4].Morality = 70;
       }},
      {Point::SponsorsEnd,
       [](World& w) { w.Sponsors()[2].ContractMonths = 2; },
       {"Sponsor 2"},
       [](World& w) { w.Sponsors()[2].ContractMonths = 3; }},
      {Point::SponsorsOrder,
       [](World& w) { w.Sponsors()[3].Pay = 200; },
       {"Make Sponsor 3 the main", "$15,000"},
       [](World& w) { w.Sponsors()[1].Pay = 200; }},
  });
}

TEST(Meeting, TalksOfTheImage) {
  Check({
      {Point::ImageFalling,
       [](World& w) {
         w.Player().Rank[0] = 240;
         w.Player().Rank[1] = 245;
         w.Player().Rank[2] = 250;
       },
       {"2 month ends", "50%"},
       [](World& w) {
         w.Player().Rank[0] = 240;
         w.Player().Rank[1] = 245;
         w.Player().Rank[2] = 245;
       }},
      {Point::ImageSlips,
       [](World& w) {
         w.Player().Rank[0] = 240;
         w.Player().Rank[1] = 241;
       },
       {"50%"},
       [](World& w) {
         w.Player().Rank[0] = 240;
         w.Player().Rank[1] = 240;
       }},
      {Point::ImageDanger,
       [](World& w) { w.Player().Image = 15; },
       {"15%", "Small"},
       [](World& w) { w.Player().Image = 16; }},
      {Point::ImageNext,
       [](World& w) { w.Player().Image = 85; },
       {"15", "Cult", "+4"},
       [](World& w) { w.Player().Image = 84; }},
      {Point::LastShow,
       [](World& w) { Held(w, kPastTv, 39); },
       {"Friday Fire", "39%", "-1", "50%"},
       [](World& w) { Held(w, kPastTv, 50); }},
      {Point::LastShow,
       [](World& w) { Held(w, kPastTv, 39).On = kMeeting - std::chrono::days{28}; },
       {"39%"},
       [](World& w) { Held(w, kPastTv, 39).On = kMeeting - std::chrono::days{29}; }},
      {Point::LastShow,
       [](World& w) {
         Held(w, kPastTv, 70);
         Held(w, kPastTv, 39);
       },
       {"39%"},
       [](World& w) {
         Held(w, kPastTv, 39);
         w.Player().Size = kCult;
       }},
      {Point::LastShow,
       [](World& w) {
         Held(w, kPastTv, 39);
         Held(w, kPastMonth, 0);
       },
       {"39%"},
       [](World& w) {
         Held(w, kPastTv, 70).Size = kCult;
         Held(w, kPastTv, 39);
       }},
  });
}

/// What the public thinks beforehand is part of the step, and of what it would have taken.
TEST(Meeting, CountsTheGoodwillOfThePublic) {
  const struct {
    int Difficulty, Reputation, Size, Kind, Rating;
    std::vector<std::string> Has;  // nothing: it is not said
  } rows[] = {
      {kEasy, 80, kRegional, kPastTv, 40, {}},
      {kEasy, 80, kRegional, kPastTv, 30, {"our image by 0.", "From 40% on"}},
      {kMedium, 25, kRegional, kPastTv, 50, {}},
      {kMedium, 24, kRegional, kPastTv, 50, {"our image by 0.", "From 80% on"}},
      {kRockHard, 80, kRegional, kPastTv, 60, {"our image by -1.", "From 90% on"}},
      {kRockHard, 0, kGlobal, kPastTv, 90, {"our image by 0.", "No rating would"}},
      {kRockHard, 0, kRegional, kPastEvent, 60, {"our image by -2.", "From 80% on"}},
      {kHard, 0, kRegional, kPastEvent, 60, {"our image by -1.", "From 80% on"}},
      {kHard, 1, kRegional, kPastEvent, 60, {"our image by 0.", "From 80% on"}},
  };
  for (const auto& row : rows) {
    World world = CalmWorld();
    world.Player().Size = row.Size;
    world.Game().Difficulty = row.Difficulty;
    world.Game().Reputation = row.Reputation;
    Held(world, row.Kind, row.Rating);
    // The week decides between two lines that have the same end.
    std::string said;
    for (const int week : {0, 1}) {
      world.Game().Today = kMeeting + std::chrono::days{7 * week};
      const auto all = HoldMeeting(world);
      if (const Advice* advice = Find(all, Point::LastShow)) said += advice->Says + " ";
    }
    EXPECT_EQ(said.empty(), row.Has.empty()) << said;
    for (const std::string& word : row.Has)
      EXPECT_NE(said.find(word), std::string::npos) << word << " is not in: " << said;
  }
}

TEST(Meeting, KnowsWhenNothingOnTelevisionLiftsTheImage) {
  World world = CalmWorld();
  world.Player().Size = kGlobal;
  world.Player().Image = 15;
  const auto lifts = [&] { return Find(HoldMeeting(world), Point::ImageDanger)->Do; };
  EXPECT_NE(lifts().find("60% on television lifts our image."), std::string::npos) << lifts();
  world.Game().Difficulty = kRockHard;
  EXPECT_NE(lifts().find("90% on television lifts our image."), std::string::npos) << lifts();
  world.Game().Reputation = 24;
  EXPECT_NE(lifts().find("Nothing on television"), std::string::npos) << lifts();
}

TEST(Meeting, TalksOfFeuds) {
  Check({
      {Point::FeudsFew,
       [](World& w) { w.Feuds()[2] = Feud{}; },
       {"1 feud", "CWA 3 against CWA 4"},
       [](World&) {}},
      {Point::FeudHurt,
       [](World& w) { One(w, "CWA 2").Status = "Inj"; },
       {"CWA 1 against CWA 2", "CWA 2", "50"},
       [](World& w) { One(w, "CWA 5").Status = "Inj"; }},
      {Point::FeudCold,
       [](World& w) { w.Feuds()[1].Heat = 29; },
       {"29", "build this rivalry up"},
       [](World& w) { w.Feuds()[1].Heat = 30; }},
      {Point::FeudRipe,
       [](World& w) {
         w.Feuds()[1].Clean1 = 7;
         w.Feuds()[1].Dirty2 = 7;
       },
       {"14", "big gimmick bout"},
       [](World& w) {
         w.Feuds()[1].Clean1 = 7;
         w.Feuds()[1].Dirty2 = 6;
       }},
      {Point::FeudRipe,
       [](World& w) { w.Feuds()[1].Dirty2 = 6; },
       {"6 wins", "climatic clean victory"},
       [](World& w) {
         w.Feuds()[1].Dirty2 = 5;
         w.Feuds()[1].Started = kMeeting - std::chrono::days{200};
       }},
      {Point::FeudHot,
       [](World& w) { w.Feuds()[1].Heat = 80; },
       {"80"},
       [](World& w) { w.Feuds()[1].Heat = 79; }},
  });
}

TEST(Meeting, TalksOfTitles) {
  Check({
      {Point::TitleVacant,
       [](World& w) { Crown(w).Holder = 0; },
       {"CWA Crown"},
       [](World& w) {
         Crown(w).Holder = 0;
         Crown(w).Suspended = true;
       }},
      {Point::TitleAway,
       [](World& w) {
         One(w).Status = "Inj";
         One(w).InjuryName = "Broken Arm";
         One(w).StatusMonths = 2;
       },
       {"CWA Crown", "CWA 1", "Broken Arm, out for 2 months"},
       [](World& w) { One(w, "CWA 2").Status = "Inj"; }},
      {Point::TitleLeaving,
       [](World& w) { One(w).ContractMonths = 2; },
       {"CWA Crown", "2 months"},
       [](World& w) { One(w).ContractMonths = 3; }},
      {Point::TitleOutshines,
       [](World& w) { Crown(w).Image = 68; },
       {"CWA Crown", "68", "60", "may drag it down", "Over of 61"},
       [](World& w) { Crown(w).Image = 67; }},
      {Point::TitleLong,
       [](World& w) { Crown(w).Reigns[0].Won = kMeeting - std::chrono::days{181}; },
       {"181 days", "CWA 1"},
       [](World& w) { Crown(w).Reigns[0].Won = kMeeting - std::chrono::days{180}; }},
      {Point::TitlesNone, [](World& w) { Crown(w).Owner = 2; }, {}, [](World&) {}},
  });
}

TEST(Meeting, TalksOfTelevision) {
  Check({
      {Point::TvWeeks,
       [](World& w) { Fire(w).ContractWeeks = 12; },
       {"Friday Fire", "12 weeks", "Nine", "24 more"},
       [](World& w) { Fire(w).ContractWeeks = 13; }},
      {Point::TvTerrible,
       [](World& w) { Fire(w).Rating3 = 250; },
       {"2.50", "5.00", "3.50"},
       [](World& w) { Fire(w).Rating3 = 251; }},
      {Point::TvLow,
       [](World& w) { Fire(w).Rating3 = 350; },
       {"3.50"},
       [](World& w) { Fire(w).Rating3 = 351; }},
      {Point::TvGreat,
       [](World& w) { Fire(w).Rating3 = 451; },
       {"4.51", "5.00"},
       [](World& w) { Fire(w).Rating3 = 450; }},
      {Point::TvStrikes, [](World& w) { Fire(w).Rating4 = 2; }, {"2 strikes"}, [](World&) {}},
      {Point::TvRisk,
       [](World& w) { w.Player().Risk = 61; },
       {"61", "Lower the risk to 60"},
       [](World& w) { w.Player().Risk = 60; }},
      {Point::TvProduction, [](World& w) { w.Player().Production = 20; }, {"20"}, [](World&) {}},
      {Point::TvEmptyChair,
       [](World& w) { Fire(w).Announcer = 0; },
       {"announcer", "40 or more"},
       [](World&) {}},
      {Point::TvWeakTable,
       [](World& w) { Named(w.AllStaff(), "Abel Mike").Talent = 34; },
       {"Abel Mike", "34", "40", "20", "Hire somebody with 40"},
       [](World& w) { Named(w.AllStaff(), "Abel Mike").Talent = 35; }},
      {Point::TvWeakTable,
       [](World& w) {
         Named(w.AllStaff(), "Abel Mike").Talent = 34;
         Named(w.AllStaff(), "Bea Count").Position = kAnnouncer;  // has the other chair
       },
       {"Hire somebody with 40"},
       [](World& w) {
         Named(w.AllStaff(), "Abel Mike").Talent = 34;
         Fire(w).Colour = 0;
       }},
      {Point::TvWeakTable,
       [](World& w) {
         Named(w.AllStaff(), "Abel Mike").Talent = 34;
         Named(w.AllStaff(), "Cy Lamp").Position = kAnnouncer;
       },
       {"Put Cy Lamp there, who has 60."},
       [](World& w) {
         Fire(w).ColourIsWorker = true;
         Fire(w).Colour = One(w, "CWA 5").Uid;
         One(w, "CWA 5").Speaks = false;
       }},
      {Point::TvSpeechless,
       [](World& w) {
         Fire(w).ColourIsWorker = true;
         Fire(w).Colour = One(w, "CWA 5").Uid;
         One(w, "CWA 5").Charisma = 90;
         One(w, "CWA 5").Speaks = false;
         One(w, "CWA 6").Announcer = true;
         One(w, "CWA 6").Charisma = 45;
       },
       {"CWA 5", "100", "Put CWA 6 there, who can speak and has 45."},
       [](World& w) {
         Fire(w).ColourIsWorker = true;
         Fire(w).Colour = One(w, "CWA 5").Uid;
       }},
      {Point::TvSlot,
       [](World& w) { Fire(w).Slot = "L"; },
       {"Friday Fire", "Nine", "5.00"},
       [](World& w) { Fire(w).Rating3 = 350; }},
      {Point::TvSlotDown,
       [](World& w) { Fire(w).Rating3 = 350; },
       {"Friday Fire", "Nine", "3.00 there instead of 5.00"},
       [](World& w) { Fire(w).Slot = "L"; }},
      {Point::TvOffer, [](World& w) { w.Game().TvOfferWait = 1; }, {"Nine"}, [](World&) {}},
      {Point::TvNone,
       [](World& w) {
         Fire(w).Owner = 2;
         w.Networks()[1].GraveAudience = 200;
       },
       {"1 network", "Nine"},
       [](World& w) {
         Fire(w).Owner = 2;
         w.Networks()[1].GraveAudience = 205;
       }},
  });
}

TEST(Meeting, TalksOfEventsAndStaff) {
  Check({
      {Point::EventNone,
       [](World& w) { w.Events()[1].Owner = 2; },
       {"Sunday, 29 March 2026"},
       [](World&) {}},
      {Point::EventCost,
       [](World& w) { w.Player().Money = 24999; },
       {"CWA in March", "$25,000", "$24,999"},
       [](World& w) { w.Player().Money = 25000; }},
      {Point::EventNear,
       [](World& w) {
         w.Game().Today = kMeeting + std::chrono::days{14};
         w.Feuds()[1].Heat = 60;
       },
       {"13 days", "1 of our feuds", "18"},
       [](World& w) { w.Game().Today = kMeeting + std::chrono::days{7}; }},
      {Point::PostShort,
       [](World& w) { Named(w.AllStaff(), "Eva Ink").Employer = 0; },
       {"Writer", "1", "2", "hire 1 more"},
       [](World&) {}},
      {Point::PostEmpty,
       [](World& w) { Named(w.AllStaff(), "Cy Lamp").Employer = 0; },
       {"Production"},
       [](World&) {}},
  });
}

TEST(Meeting, SpeaksThroughTheBestOfAPostOrAStandIn) {
  World world = CalmWorld();
  One(world).Condition = 30;
  EXPECT_EQ(Find(HoldMeeting(world), Point::WornOut)->Speaker, "Dot Plaster");
  Staff better = Named(world.AllStaff(), "Dot Plaster");
  better.Uid = 90;
  better.Name = "Doc Best";
  better.Talent = 61;
  world.AllStaff().Append(better);
  EXPECT_EQ(Find(HoldMeeting(world), Point::WornOut)->Speaker, "Doc Best");
  for (Staff& staff : world.AllStaff())
    if (staff.Position == kMedical) staff.Employer = 0;
  const auto said = HoldMeeting(world);
  EXPECT_EQ(Find(said, Point::WornOut)->Speaker, StandInFor(kMedical));
  EXPECT_NE(Find(said, Point::PostEmpty)->Says.find("Medical"), std::string::npos);
}

TEST(Meeting, PutsTheUrgentFirstAndSaysTheSameAllDay) {
  World world = CalmWorld();
  world.Player().Money = -2400000;
  One(world).Condition = 30;
  One(world, "CWA 5").Morale = 30;
  world.Player().Image = 90;
  const auto said = HoldMeeting(world), again = HoldMeeting(world);
  ASSERT_GE(said.size(), 4U);
  for (std::size_t i = 0; i < said.size(); ++i) {
    EXPECT_EQ(said[i].Says, again[i].Says);
    if (i > 0) {
      EXPECT_LE(said[i - 1].How, said[i].How);
    }
  }
  EXPECT_EQ(said.front().How, Urgency::Now);
  EXPECT_EQ(said.back().How, Urgency::Good);
}

/// What the meeting advises is what pays most.
TEST(Meeting, KnowsTheBestPrices) {
  for (int size = kGlobal; size <= kBackyard; ++size) {
    const int best = BestTicketPrice(size, 50);
    const auto gate = [&](int price) { return price * int(TvGate(10000, {size, price, 50})); };
    for (int price = 0; price <= 200; ++price) EXPECT_LE(gate(price), gate(best)) << size;
    Promotion promotion;
    promotion.Size = size;
    promotion.Image = 50;
    const auto left = [&](int level) {
      Promotion other = promotion;
      other.Merchandising = level;
      return MerchandiseSales(other, 50) - MerchandisingCost(level);
    };
    const int level = BestMerchandising(promotion, 50);
    for (int other = 0; other <= 100; ++other) EXPECT_LE(left(other), left(level)) << size;
  }
}

TEST(Meeting, IsOnItsDay) {
  World world = CalmWorld();
  EXPECT_TRUE(IsMeetingDay(world));
  EXPECT_EQ(WhyNoMeeting(world), "");
  world.Player().MeetingDay = "Sunday";
  EXPECT_EQ(NextMeeting(world), kMeeting + std::chrono::days{6});
  EXPECT_EQ(WhyNoMeeting(world), "The staff meet on Sunday, 08 March 2026.");
  world.Player().MeetingDay = "Someday";
  EXPECT_FALSE(NextMeeting(world));
  EXPECT_NE(WhyNoMeeting(world), "");
}

}  // namespace
}  // namespace grapplemont::test
