#include "wholeshow.h"

namespace grapplemont::test {
namespace {

// A Regional promotion wants talent 40 and production 40.
//
//   Name  skill that counts   work = skill*.75 + morale*.2 + stiff*.05    draws = over*.85 +
//   char*.1 Ash   Brawl 80 (a tie)    60+16+2 = 78                                81+9+5 looks = 95
//   Bea   Technical 70        52+16+1 = 69, at condition 89 62            73+8+8 diva = 89
//   Cal   Speed 65            48+16+2 = 66                                by then 36+7 = 43
//   Dot   Brawl 60            45+16+4 = 65, at condition 59 45            51+4 = 55
//   Eli   Brawl 50            37+4+2 = 43, at condition 29 21             17+3 = 20
//   Fay   Speed 70            52+16+2 = 70                                by then 26+5 = 31
//   Gus   Brawl 90            67+16+2 = 85                                8+2 = 10
World Television() {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", kRegional, [](Promotion& p) { p.Production = 34; });
  small.Staff("Gil Ames", kAnnouncer, 33).Staff("Pam Low", kAnnouncer, 29);
  Hire(small,
       {{"Ash", "F", kMainEvent, 96, 90, 80, 80, 60, 80, [](Worker& w) { w.SuperstarLook = true; }},
        {"Bea", "H", kMainEvent, 86, 80, 40, 70, 60, 30,
         [](Worker& w) {
           w.Gender = false;
           w.Diva = true;
           w.Condition = 89;
           w.Sell = 40;
           w.Stiff = 24;
           w.Debuted = false;
         }},
        {"Cal", "F", kMidcard, 40, 70, 30, 40, 65, 50},
        {"Dot", "H", 4, 60, 40, 60, 30, 30, 24,
         [](Worker& w) {
           w.Condition = 59;
           w.Stiff = 83;
         }},
        {"Eli", "T", 5, 20, 30, 50, 50, 50, 50,
         [](Worker& w) {
           w.Condition = 29;
           w.Morale = 20;
         }},
        {"Fay", "H", kMainEvent, 30, 50, 20, 20, 70, 81, [](Worker& w) { w.Gender = false; }},
        {"Gus", "F", kJobber, 10, 20, 90, 20, 20, 50},
        {"Hal", "F", kMainEvent, 70, 50, 50, 50, 50, 50,
         [](Worker& w) {
           w.Condition = 86;
           w.Debuted = false;
         }},
        {"Iva", "F", kUpperMidcard, 50, 50, 50, 50, 50, 50, [](Worker& w) { w.Condition = 85; }}});
  small.Title("Crown", "Ash", {}, [](Title& t) { t.Image = 60; }).Title("Spark", "Eli");
  small.Show("Sunday Slam", "Sunday", "Nine", [](Show& show) {
    show.Announcer = 1;
    show.Colour = 2;
  });
  small.Game("CWA");
  small.Feud("Cal", "Dot", [](Feud& feud) {
    feud.Heat = 70;
    feud.Clean1 = 9;
    feud.Clean2 = 1;
    feud.Dirty2 = 3;
  });
  small.Feud("Eli", "Cal").Feud("Fay", "Ash");
  return small;
}

void BookTelevision(World& world) {
  OpenRows(world, kTvRows);
  Sheet sheet{world};
  sheet
      .Match(1, kSingles, kCage, {"Ash", "Bea"}, "Ash", "Bea", kClean, after1::kNothing,
             purpose1::kPutWinnerOver)
      .TitleName = "Crown";
  sheet.Book(2, kInterview, kSingleTalk, 0, {"Cal", "Dot"}).Purpose = 1;
  sheet
      .Match(3, kSingles, kLastManStanding, {"Cal", "Dot"}, "", "", kNoContest,
             after1::kRunInDestroys, purpose1::kContinueFeud)
      .Other1 = sheet.Uid("Eli");
  sheet.Book(4, kAngle, 45, 0, {"Fay", "Ash"});
  sheet.Book(5, kAngle, 52, 0, {"Bea"}).Text = "The Exiles";
  sheet.Match(6, kThreeWay, kTriangle, {"Eli", "Fay", "Gus"}, "Gus", "Eli", 0, 0, 0);
  sheet
      .Match(8, kSingles, kPlainSingles, {"Gus", "Eli"}, "Gus", "Eli", kCountOut,
             after1::kLoserRuns, purpose1::kNone)
      .TitleName = "Spark";
}

TEST(AWholeTelevisionShow, ComesOutAsReckonedByHand) {
  World world = Television();
  BookTelevision(world);
  World expected = CopyOf(world);
  ScriptDraws(world,
              {
                  // The night is flat. Announcer 33: 38 < 40 costs 20. Colour 29: 34 and 39 < 40
                  // cost 5 and 10. The sum begins at -35.
                  {8, 1},
                  // 1. Quality (78+62)/2 = 70, cage -4 = 66; Crowd (95+89)/2 = 92, cage +3 = 95.
                  {10, 4},
                  {5, 3},
                  // Match level .7*95 + .3*66 = 86, +15 = 101.
                  // Ash: fits 1, wear 5+2; standing .7*96 + .3*80 = 91: morale +3.
                  {6, 1},
                  {5, 2},
                  // Bea: fits 1, wear 5+5; standing 81: morale +2 at Attitude 30.
                  {6, 3},
                  {5, 5},
                  // Ash's joy 3. Nobody gains by the result: Bea was not above him.
                  {3, 3},
                  {5, 2},
                  {5, 1},
                  // Bea sells 40: -13 = 53; she is soft: 47. .7*95 + .3*47 = 80, flat 72.
                  // The Crown: 60 is below 96-10, Ash loses 1. (72+96)/2 = 84 > 70: image +4.
                  // Sum -35+72 = 37.

                  // 2. Cal's talk 42+16 = 58; the feud's 70 lifts it 5+4 = 67.
                  {5, 4},
                  // Heat after 56+9+15 = 80: 70+1+4 = 75. One word; nine clean wins cool 2: 73.
                  {15, 9},
                  // 56.95+12 = 68. Cal at 40 gains 3. Sum 105.
                  {15, 12},
                  {3, 3},

                  // 3. Quality (66+45)/2 = 55; Crowd (43+55)/2 = 49, lifted 5+5 = 59.
                  // Heat after .7*59 + .3*55 = 57: 73-1-4-4 = 64. Level 57+15 = 72.
                  {5, 5},
                  // Cal: fits 3, wear 8+7; standing (43+65)/2 = 54: morale +3.
                  {6, 2},
                  {7, 7},
                  // Dot at 60 fits 1 and stands at 4: morale -3-5, two mails; wear 8+1; at
                  // Attitude 24 the match itself leaves him cold.
                  {6, 2},
                  {7, 1},
                  // Eli's attack on Cal is one in their feud. Nobody is hurt.
                  {400, 400},
                  {400, 7},
                  // Dot is stiff: Cal loses 10 and writes.
                  {10, 10},
                  // Burn-out after 95: 59 < 77, so 47. (47+55)/2 = 51, flat 45. Sum 150.

                  // 4. Fay's talk 30+12 = 42; the feud's 50 lifts it 5+5, but no higher than 50.
                  {5, 5},
                  // One word of hers. 42.5+1 = 43. Fay at 30 gains 1, Ash is only aped. Sum 193.
                  {15, 1},
                  {3, 1},

                  // 5. The Exiles are no stable of the promotion: passed over.

                  // 6. Quality (21+70+85)/3 = 58, Crowd (20+31+10)/3 = 20. Level 39+15 = 54.
                  // Eli: fits 5, wear 3+1; standing (20+50)/2 = 35: morale +3.
                  {6, 6},
                  {2, 1},
                  // Fay at 31 fits 4 and stands at 1: Over -1-2, two mails; wear 3+2; standing 50:
                  // morale +3.
                  {6, 2},
                  {2, 2},
                  // Gus: fits 6, wear 3+2; standing (10+90)/2 = 50: morale +3, joy 1.
                  {6, 1},
                  {2, 2},
                  {3, 1},
                  // 39, flat 35. Sum 228.

                  // 8. Quality (85+21)/2 = 53, Crowd (10+20)/2 = 15. Level 34+15 = 49.
                  // Gus: wear 3+1; standing 50: morale -5.
                  {6, 1},
                  {2, 1},
                  // Eli: wear 3+2; standing 35: morale +3. Gus' joy 2.
                  {6, 2},
                  {2, 2},
                  {3, 2},
                  // Eli at 20 is above 10+5: -1 by the draw. Gus: 20 > 17 and a crowd of 15 above
                  // his 10: +1, the draw would have needed 20 > 20.
                  {5, 2},
                  {5, 2},
                  // By count out the Spark stays. 34, flat 30. It stands at 50, above 19+10: Eli
                  // +1. (30+19)/2 = 24: image -2. Sum 258.

                  // Close. Production 34: 39 < 40 costs 10; 30 once more: 278/7 = 39.
                  // Eli was on three times, Hal not at all.
                  {2, 2},
                  {8, 5},
              });
  EXPECT_EQ(HoldShow(world, false, TvTeam(world), 0, nullptr), 39);
  EXPECT_EQ(world.Session.ShowRating, 39);
  EXPECT_EQ(world.Session.ShowFlag, 7);
  std::string recap;
  for (const RecapLine& line : RecapOf(world).Lines) recap += std::to_string(line.Number) + " ";
  EXPECT_EQ(recap, "1 2 3 4 6 8 ") << "what was passed over was not seen";

  Sheet after{expected};
  after.Becomes("Ash", 95, 93, 86);
  after.Becomes("Bea", 86, 79, 82);
  after.Becomes("Cal", 43, 75, 83);
  after.Becomes("Dot", 60, 50, 72);
  after.Becomes("Eli", 18, 20, 26);
  after.Becomes("Fay", 28, 95, 83);
  after.Becomes("Gus", 11, 91, 81);
  after["Hal"].Morale = 75;
  Named(expected.Titles(), "Crown").Image = 64;
  Named(expected.Titles(), "Spark").Image = 48;
  expected.Feuds()[1].Heat = 64;
  expected.Feuds()[1].Interference1 = 1;
  expected.Feuds()[2].Sneak1 = 1;
  expected.Feuds()[3].Interference1 = 1;
  after.Rate({{1, 72}, {2, 68}, {3, 45}, {4, 43}, {6, 35}, {8, 30}});
  after.Mails({{"Road Agent", "Dot is losing morale because you are not pushing him enough."},
               {"Dot", "I should be higher on the card, promote me up the roster."},
               {"Cal", "Dot was working too stiff, i could have been injured."},
               {"Road Agent", "Fay is losing heat because you are pushing her too much."},
               {"Fay",
                "I think you might be pushing me too high up the card, the fans seem to be "
                "resenting me."}});
  ShowRun run{};
  run.Stage = kShowClosed;
  run.Current = 8;
  run.PreviousCrowd = 15;
  run.LastOverall = 30;
  run.FlatNight = true;
  run.FeudTouched[0] = run.FeudTouched[1] = run.FeudTouched[2] = true;
  run.ShowSum = 39;
  run.ShowSegments = 7;
  run.Announcer = 1;
  run.Colour = 2;
  run.AnnouncerCharge = -20;
  run.ColourCharge = -15;
  run.ProductionCharge = -10;
  expected.ShowRuns().Rewrite({run});
  TakeThePast(expected, world);
  ExpectSame(world, expected);
}

}  // namespace
}  // namespace grapplemont::test
