#include "records/tables/worldtables.h"

#include <gtest/gtest.h>

#include "records/fields/charset.h"
#include "records/tables/worldreport.h"
#include "support/defaultworld.h"
#include "support/randomworld.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// A world of two promotions, as short as its author could write it.
Tables SmallTables() {
  return {
      {"promotions.csv",
       "Name,Initials,Size,MeetingDay,Split1,Sponsor1,HeadTrainer\n"
       "Coast Wrestling Alliance,CWA,Cult,Monday,Red,Gulp,Sal Pine\n"
       "New Era Wrestling,NEW,Small,Friday,,,\n"},
      {"workers.csv",
       "Name,ShortName,Gender,Age,Weight,Employer,ContractType,Position,Over,Disposition,Stable,"
       "Manager,Split,LastTurn,Note\n"
       "Bram Okafor,Bram,male,31,Heavyweight,CWA,Written,Main Event,88,Face,The Bench,Lou Fay,Red,"
       "2025-11-03,a star\n"
       "Ilya Marsh,Ilya,male,24,Lightweight,CWA,,Opener,40,Heel,None,,None,,\n"
       "Lou Fay,Lou,female,50,Heavyweight,CWA,,Manager,30,Tweener,,,,,\n"
       "Cal Drift,Cal,male,22,Heavyweight,,,Jobber,10,Face,,,,,\n"},
      {"staff.csv",
       "Name,Gender,BirthMonth,Employer,Wage,Position,Talent\n"
       "Ruth Vane,female,6,CWA,4,Owner,50\n"
       "Sal Pine,male,12,CWA,5,Trainer,60\n"},
      {"teams.csv", "Name,Worker1,Worker2\nThe Tide,Bram Okafor,Ilya Marsh\n"},
      {"stables.csv", "Name,Owner\nThe Bench,CWA\n"},
      {"titles.csv", "Name,Singles,Owner,Holder\nCWA Crown,yes,CWA,Bram Okafor\n"},
      {"shows.csv",
       "Name,Owner,Day,Slot,Network,Announcer,Colour,ColourIsWorker\n"
       "Friday Fire,CWA,Friday,Prime Time,Nine,Sal Pine,Lou Fay,yes\n"},
      {"networks.csv", "Name,PrimeAudience\nNine,400\n"},
      {"sponsors.csv", "Name,Slogan,Promotion,Pay\nGulp,Ask for it.,CWA,90\n"},
      {"events.csv", "Name,Owner,Month,Type\nHigh Water,CWA,3,Pay-Per-View\n"},
  };
}

void Replace(std::string& text, std::string_view from, std::string_view to) {
  const auto at = text.find(from);
  ASSERT_NE(at, std::string::npos) << from;
  text.replace(at, from.size(), to);
}

std::string AllMistakes(const Building& building) {
  std::string all;
  for (const Mistake& mistake : building.Mistakes)
    all += (all.empty() ? "" : "\n") + mistake.Text();
  return all;
}

TEST(Tables, BuildTheWorldTheyTell) {
  Building building = BuildWorld(SmallTables());
  ASSERT_TRUE(building.Made) << AllMistakes(building);
  World& world = *building.Made;
  const Promotion& cwa = Named(world.Promotions(), "CWA");
  EXPECT_EQ(1, cwa.Uid);
  EXPECT_TRUE(cwa.Active);
  EXPECT_EQ("None", cwa.Split[1].View());
  EXPECT_EQ(1, cwa.Sponsor[0]);
  EXPECT_EQ(2, cwa.HeadTrainer);
  const Worker& bram = Named(world.Workers(), "Bram Okafor");
  EXPECT_EQ("Wri", bram.ContractType.View());
  EXPECT_EQ("Nor", bram.Status.View());
  EXPECT_EQ(3, bram.Manager);
  EXPECT_EQ(Day(bram.LastTurn), Day(std::chrono::year{2025} / 11 / 3));
  EXPECT_EQ("Non", Named(world.Workers(), "Cal Drift").ContractType.View());
  EXPECT_TRUE(Named(world.Workers(), "Cal Drift").LastTurn.IsNone());
  EXPECT_EQ(bram.Uid, world.Titles()[1].Holder);
  EXPECT_EQ(kNoTitleDate, Day(world.Titles()[1].Reigns[4].Lost));
  EXPECT_EQ(2, world.Shows()[1].Announcer) << "a member of staff";
  EXPECT_EQ(3, world.Shows()[1].Colour) << "a worker";
  EXPECT_FALSE(world.HasGame());
  EXPECT_TRUE(world.Changes().empty());
}

struct Slip {
  std::string Table, From, To;
  std::string Expected;  // "TABLE, line " goes in front; empty for no mistake
};

void ExpectMistakes(const std::vector<Slip>& slips) {
  for (const Slip& slip : slips) {
    Tables tables = SmallTables();
    Replace(tables.at(slip.Table), slip.From, slip.To);
    const Building building = BuildWorld(tables);
    const bool isWrong = !slip.Expected.empty();
    EXPECT_EQ(isWrong ? slip.Table + ", line " + slip.Expected : "", AllMistakes(building))
        << slip.To;
    EXPECT_EQ(!isWrong, building.Made.has_value()) << slip.To;
  }
}

TEST(Tables, NameEveryWrongCell) {
  ExpectMistakes({
      {"workers.csv", "Heavyweight,CWA", "Heavyweight,CWAA",
       "2, column Employer: no promotion has the initials CWAA; did you mean CWA?"},
      {"workers.csv", "Lou Fay,Red", "lou fay,Red",
       "2, column Manager: no worker has the name lou fay; did you mean Lou Fay?"},
      {"workers.csv", "Lou Fay,Red", "#9,Red",
       "2, column Manager: there is no worker of the number 9"},
      {"workers.csv", "Lou Fay,Red", "#three,Red",
       "2, column Manager: \"#three\" is not the number of a record; one is written like #17"},
      {"workers.csv", ",Main Event", ",Main Evnt",
       "2, column Position: there is no \"Main Evnt\"; did you mean Main Event?"},
      {"workers.csv", "40,Heel", "40,",
       "3, column Disposition: is empty; it needs one of Face, Heel, Tweener"},
      {"workers.csv", "Opener,40", "Opener,140", "3, column Over: is 140, outside 0 to 100"},
      {"workers.csv", "2025-11-03", "2025-11-03+1.5",
       "2, column LastTurn: \"2025-11-03+1.5\" is not a date; a date is written like 2026-03-31"},
      {"workers.csv", "Ilya,male", "Ilya the Great,male",
       "3, column ShortName: \"Ilya the Great\" has 14 letters; there is room for 10"},
      {"workers.csv", "Ilya,male", "Il\xC5\x82,male",
       "3, column ShortName: has the letter \xC5\x82, which the game cannot hold: it knows those "
       "of Windows-1252"},
      {"workers.csv", "Ilya,male", "Il\xE9,male",
       "3, column ShortName: is not written in UTF-8; save the table as \"CSV UTF-8\""},
      {"workers.csv", "Ilya,male", "\"Il\nya\",male",
       "3, column ShortName: has a line break or another control character in it"},
      {"workers.csv", "The Bench", "The Benhc",
       "2, column Stable: CWA has no stable of the name The Benhc; did you mean The Bench?"},
      {"workers.csv", "Fay,Red", "Fay,Rde",
       "2, column Split: CWA has no part of its roster of the name Rde; did you mean Red?"},
      {"titles.csv", ",yes,CWA", ",yep,CWA",
       "2, column Singles: there is no \"yep\"; did you mean yes?"},
      {"titles.csv", "CWA,Bram Okafor", "none,", ""},
      {"shows.csv", "Lou Fay,yes", "Lou Fay,no",
       "2, column Colour: no member of staff has the name Lou Fay, but a worker has; "
       "ColourIsWorker tells which is meant"},
      {"events.csv", "CWA,3,", "CWA,,", "2, column Month: is empty"},
  });
}

TEST(Tables, NameWhatIsWrongWithTheirShape) {
  ExpectMistakes({
      {"workers.csv", "Over,", "Ovre,",
       "1, column Ovre: there is no such column; did you mean Over?"},
      {"workers.csv", "Over,", "Age,", "1, column Age: stands there twice"},
      {"workers.csv", "Over,", ",", "1: column 9 has no name"},
      {"workers.csv", "Disposition,", "#mood,",
       "1, column Disposition: is missing; it has no default"},
      {"teams.csv", "The Tide,", "The Tide,,", "2: has 4 cells where the header has 3"},
      {"teams.csv", "The Tide", "\"The Tide", "2: has a quotation mark that is never closed"},
      {"teams.csv", "Name,Worker1,Worker2\nThe Tide,Bram Okafor,Ilya Marsh\n", "",
       "1: is missing; the first line of a table names its columns"},
      {"teams.csv", "Name,Worker1,Worker2", "Name;Worker1;Worker2",
       "1: has semicolons between its cells; save the table with commas"},
      {"workers.csv", "Cal Drift", "Bram Okafor",
       "5, column Name: \"Bram Okafor\" stands on line 2 already"},
      {"networks.csv", "Name,PrimeAudience\nNine,400",
       "Uid,Name,PrimeAudience\n4,Eight,9\n4,Nine,9",
       "3, column Uid: \"4\" stands on line 2 already"},
      {"networks.csv", "Nine,400", ",400\nNine,1", "2, column Name: is empty"},
  });
  Tables tables = SmallTables();
  tables["worker.csv"] = tables["workers.csv"];
  tables.erase("workers.csv");
  EXPECT_EQ(
      "worker.csv: is not a table of a world; did you mean workers.csv?\n"
      "workers.csv: is missing; a table without records has only its header",
      AllMistakes(BuildWorld(tables)));
}

TEST(Tables, AreHeldToTheRulesOfAWorld) {
  ExpectMistakes({
      {"titles.csv", "CWA,Bram Okafor", "CWA,Cal Drift",
       "2, column Holder: CWA Crown does not work for the Title's promotion"},
      {"events.csv", "High Water,CWA,3,Pay-Per-View\n", "\"High\nWater\",,3,Small\n",
       "2, column Name: has a line break or another control character in it"},
      {"events.csv", "High Water,CWA,3,Pay-Per-View\n",
       "High Water,,3,Small\n,,,\n\nHigh Water,,3,Small\n",
       "5: High Water is the double of line 2"},
      {"teams.csv", ",Ilya Marsh", ",Bram Okafor",
       "2, column Worker2: The Tide is also the other partner"},
  });
}

TEST(Tables, TellAllMistakesInTheirOrder) {
  Tables tables = SmallTables();
  Replace(tables["workers.csv"], "Lou Fay,Red", "Lou Hay,Red");
  Replace(tables["workers.csv"], "Bram,male", "Bram,mole");
  Replace(tables["workers.csv"], "Jobber,10", "Jobber,ten");
  Replace(tables["staff.csv"], "Owner", "Boss");
  EXPECT_EQ(
      "workers.csv, line 2, column Gender: there is no \"mole\"; did you mean male?\n"
      "workers.csv, line 2, column Manager: no worker has the name Lou Hay; did you mean Lou Fay?\n"
      "workers.csv, line 5, column Over: \"ten\" is not a whole number from 0 to 100\n"
      "staff.csv, line 2, column Position: there is no \"Boss\"; the nearest is Owner",
      AllMistakes(BuildWorld(tables)));
}

TEST(Tables, KeepNumbersAndGiveTheFreeOnesInTheirOrder) {
  Tables tables = SmallTables();
  tables["networks.csv"] = "Name,Uid\nNine,\nTen,1\nEleven,\nTwelve,3\nThirteen,\n";
  const Building building = BuildWorld(tables);
  ASSERT_TRUE(building.Made) << AllMistakes(building);
  std::string uids;
  for (const Network& network : building.Made->Networks())
    uids += network.Name + "=" + std::to_string(network.Uid) + " ";
  EXPECT_EQ("Nine=2 Ten=1 Eleven=4 Twelve=3 Thirteen=5 ", uids);
  EXPECT_EQ(2, building.Made->Shows()[1].Network);
}

TEST(Tables, TakeWhatSpreadsheetsMakeOfThem) {
  Tables tables = SmallTables();
  std::string& teams = tables["teams.csv"];
  teams =
      "\xEF\xBB\xBF\"Name\",\"Worker1\",\"Worker2\"\r\n\"The Tide\",Bram Okafor ,\"Ilya "
      "Marsh\"\r\n,,\r\n";
  Replace(tables["titles.csv"], ",yes,", ",YES,");
  Replace(tables["workers.csv"], "Main Event", "main event");
  const Building building = BuildWorld(tables);
  ASSERT_TRUE(building.Made) << AllMistakes(building);
  EXPECT_EQ("", FirstDifference(*building.Made, *BuildWorld(SmallTables()).Made));
}

TEST(Tables, HoldNoMoreThanTheRecordsOfAFile) {
  Tables tables = SmallTables();
  std::string& promotions = tables["promotions.csv"];
  for (int i = 3; i <= 36; ++i)
    promotions +=
        "Promotion " + std::to_string(i) + ",P" + std::to_string(i) + ",Small,Monday,,,\n";
  EXPECT_EQ("promotions.csv, line 37: is one too many; the table may have 35 records",
            AllMistakes(BuildWorld(tables)));
}

TEST(Tables, NameTheFirstOfManyMistakesAndCountTheRest) {
  Tables tables = SmallTables();
  for (int i = 0; i < 5000; ++i)
    tables["teams.csv"] += "Team " + std::to_string(i) + ",Nobody A,Nobody B\n";
  const auto lines = MistakeLines(BuildWorld(tables));
  ASSERT_EQ(201u, lines.size());
  EXPECT_EQ("and 9800 more", lines.back());
  for (const char* table : {"shows.csv", "staff.csv", "stables.csv", "titles.csv"})
    for (int i = 0; i < 5000; ++i) tables[table] += "short\n";
  const Building building = BuildWorld(tables);
  EXPECT_EQ(500u, building.Mistakes.size());
  EXPECT_EQ("20,000 mistakes; nothing was built.", NothingBuilt(building));
}

TEST(Tables, SpeakUtf8OfWhatIsNone) {
  Tables tables = SmallTables();
  tables["networks.csv"] = "Name,Caf\xE9\nNine,1\n";
  tables["teams.csv"] = "Name,Worker1,Worker2\nThe Tide,Ren\xE9,Ilya Marsh\n";
  tables["t\xE4g.csv"] = "";
  const std::string all = AllMistakes(BuildWorld(tables));
  EXPECT_EQ(ValidUtf8(all), all);
  for (const char* part : {"t\xC3\xA4g.csv: is not a table", "column Caf\xC3\xA9: there is no such",
                           "has the name Ren\xC3\xA9;"})
    EXPECT_NE(all.find(part), std::string::npos) << part << " in\n" << all;
}

/// Writes the world down and builds it again.
void ExpectToComeBack(const World& world) {
  ExpectSound(world);
  const Tables tables = ExportWorld(world);
  const Building again = BuildWorld(tables);
  ASSERT_TRUE(again.Made) << AllMistakes(again);
  EXPECT_EQ("", FirstDifference(*again.Made, world));
  EXPECT_EQ(BytesOf(world), BytesOf(*again.Made));
  EXPECT_EQ(tables, ExportWorld(*again.Made));
}

TEST(Tables, OfTheDefaultWorldComeBack) {
  ExpectToComeBack(DefaultWorld());
}

TEST(Tables, OfAnyValidWorldComeBack) {
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    ExpectToComeBack(RandomData(seed));
  }
}

TEST(Tables, OfEmptyFilesComeBack) {
  World world;
  world.Load({});
  for (Table* table : world.Tables())
    if (std::find(kDataSet.begin(), kDataSet.end(), table->File()) != kDataSet.end())
      table->Load({});
  ExpectToComeBack(world);
  EXPECT_EQ("Name,Owner\n", ExportWorld(world).at("stables.csv"));
}

/// A plain world, to be made odd.
SmallWorld Plain() {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA").Owner("Ruth Vane").Worker("Bram Okafor").Worker("Lou Fay");
  return small;
}

TEST(Tables, TellWhatNoNameCanTell) {
  World world = Plain();
  Promotion& cwa = Named(world.Promotions(), "CWA");
  cwa.Initials = "none";  // what a Title without a promotion says
  Title title;
  title.Name = "Crown";
  title.Singles = true;
  title.Owner = cwa.Uid;
  title.Holder = Named(world.Workers(), "Bram Okafor").Uid;
  Named(world.Workers(), "Bram Okafor").Name = "#2";
  Named(world.Workers(), "Lou Fay").Name = "\\Lou, \"the\" Fay";
  for (Reign& reign : title.Reigns) reign.Lost = kNoTitleDate;
  title.Reigns[0].Won.SetRaw(0);
  title.Reigns[1].Won.SetRaw(45000.25);
  title.Reigns[2].Won.SetRaw(45000.1);
  title.Reigns[3].Won.SetRaw(-1e-20);
  title.Reigns[4].Won.SetRaw(-657434);
  world.Titles().Append(title);
  for (Worker& worker : world.Workers()) worker.Stable = "";
  world.Stables().Append(Stable());
  world.Events().Load({});
  world.Shows().Load({});
  world.Sponsors().Load({});
  world.Teams().Load({});
  world.MarkCommitted();
  ExpectToComeBack(world);
  const Tables tables = ExportWorld(world);
  EXPECT_EQ("Name\n\\\n", tables.at("stables.csv"));
  const std::string& titles = tables.at("titles.csv");
  for (const char* told :
       {",#1,#1,", ",1899-12-30,", ",2023-03-15+0.25,", ",@-1e-20,", ",0100-01-01,"})
    EXPECT_NE(titles.find(told), std::string::npos) << told << " in " << titles;
}

// A running game may hold what no author could write: people who are gone, numbers out of range.
TEST(Tables, OfARunningGameComeBack) {
  SmallWorld small = Plain();
  small.Show("Friday Fire", "Friday", "Nine")
      .Sponsor("Gulp")
      .Team("Two", "Bram Okafor", "Lou Fay")
      .Stable("The Bench", {"Lou Fay"})
      .Title("Crown", "Bram Okafor")
      .Event(3)
      .Game("CWA", kGameStart, [](GameInfo& game) { game.Jobs[3].Promotion = " Old Job"; })
      .Feud("Bram Okafor", "Lou Fay")
      .Mail("Maeve", "  Two blanks, a \"quote\" and \xE9.");
  World world = small;
  Named(world.Workers(), "Bram Okafor").OverFloor = 100;
  Segment segment;
  segment.Worker[29] = 4711;
  world.Segments().Append(segment);
  world.Incidents().Rewrite(std::vector<Incident>(10));
  world.Notes().Set("A note\r\nof two lines, \xFC.\n");
  ExpectToComeBack(world);
}

TEST(Tables, OfAnyMailComeBack) {
  Dice dice(1);
  World world = Plain().Game("CWA");
  for (int i = 0; i < 400; ++i) {
    Mail& mail = world.News().Append({});
    mail.Date = ShortDate(world.Today());
    std::string body;
    for (int letter = dice.From(0, 250); letter > 0; --letter)
      body += static_cast<char>(dice.OneIn(9) ? '\n' : dice.OneIn(4) ? ' ' : dice.From(0xA0, 0xFF));
    mail.Body = body;
  }
  ExpectToComeBack(world);
}

}  // namespace
}  // namespace grapplemont::test
