#include "info/meeting.h"

#include <gtest/gtest.h>

#include "business/monthlymoney.h"
#include "calendar/meetingday.h"
#include "info/calmworld.h"
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
  return "point " + std::to_string(static_cast<int>(point)) + ", " + RowOf(point).Says[0];
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
         w.Player().Rank = {Word(), Word(), Word(), Word(), Word()};
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
       [](World& w) { One(w).ContractMonths = 1; },
       {"CWA 1", "$11,000"},
       [](World& w) { One(w).ContractMonths = 2; }},
      {Point::ContractsSoon,
       [](World& w) { One(w).ContractMonths = 3; },
       {"CWA 1", "$11,000"},
       [](World& w) { One(w).ContractMonths = 4; }},
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
         w.Player().Money = 9999;
       },
       {"$9,999", "2"},
       [](World& w) {
         w.Player().LoanAmount = 120000;
         w.Player().LoanMonths = 12;
         w.Player().Money = 60000;
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
       {"$100,000"},
       [](World&) {}},
  });
}

TEST(Meeting, TalksOfPricesAndSponsors) {
  Check({
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
       [](World& w) {
         HistoryEntry show;
         show.On = kMeeting;
         show.Kind = kPastTv;
         show.Promotion = 1;
         show.Name = "Friday Fire";
         show.Rating = 39;
         w.History().Append(show);
       },
       {"Friday Fire", "39%", "-1", "50%"},
       [](World& w) {
         HistoryEntry show;
         show.On = kMeeting;
         show.Kind = kPastTv;
         show.Promotion = 1;
         show.Rating = 50;
         w.History().Append(show);
       }},
  });
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
       {"CWA Crown", "68", "60", "Over of 61"},
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
