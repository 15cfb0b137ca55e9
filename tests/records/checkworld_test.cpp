#include "records/checks/checkworld.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "records/severing.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using namespace std::string_literals;
using test::CopyOf;
using test::ExpectSame;
using test::Named;
using test::SmallWorld;

/// Something of everything, all in order.
SmallWorld Sound() {
  SmallWorld told;
  told.Network("Channel Nine")
      .Network("Everywhere", [](Network& n) { n.Generic = true; })
      .Promotion("CWA", kCult,
                 [](Promotion& p) {
                   p.Split[0] = "North";
                   p.HeadTrainer = 3;
                   p.DevBooker = 2;
                   p.Commissioner = 5;
                 })
      .Owner("Ruth Vane")
      .Staff("Vic Tolliver", kAnnouncer)
      .Staff("Sal Mender", kTrainer)
      .Worker("Bram Okafor", [](Worker& w) { w.Manager = 4; })
      .Worker("Ilya Marsh", [](Worker& w) { w.Split = "North"; })
      .Worker("Cal Drift")
      .Worker("Mo Grace", kManager, 40)
      .Worker("Old Hand", kNonWrestler, 60)
      .Team("Mud and Iron", "Bram Okafor", "Ilya Marsh")
      .Stable("The Bench", {"Bram Okafor", "Cal Drift"})
      .Title("CWA Crown", "Bram Okafor")
      .Title("CWA Pairs", "Bram Okafor", "Ilya Marsh")
      .Title("CWA Cup")
      .Show("Friday Fire", "Friday", "Channel Nine", [](Show& s) { s.Announcer = 2; })
      .Show("Monday Mire", "Monday", "Everywhere",
            [](Show& s) {
              s.Colour = 3;
              s.ColourIsWorker = true;
            })
      .Sponsor("Colossal Cola")
      .Event(3)
      .Promotion("NEW", kSmall)
      .Owner("Tess Hale")
      .Worker("Eli Fenn")
      .Stable("The Pack", {"Eli Fenn"})
      .OnTheMarket()
      .Worker("Fay Loose", [](Worker& w) { w.Gender = false; })
      .Sponsor("Tough Trucks");
  return told;
}

World SoundData() {
  return Sound();
}
World SoundGame() {
  return Sound().Game("CWA").Feud("Bram Okafor", "Cal Drift").Mail("Maeve", "Good morning.");
}

std::string Lines(const auto& faults) {
  std::string lines;
  for (const Fault& fault : faults) lines += fault.Line() + "\n";
  return lines;
}

/// One thing that is broken, what the check says of it, and how the clean-up mends it: by the same
/// line with this behind it, or where one thing leads to another by these lines.
struct Broken {
  void (*Break)(World&);
  std::string Found;
  std::string How = {};
  std::string Mended = {};
};

/// As a file may hold it, whatever the field itself would store.
template <class T>
void SetRaw(T& field, int value) {
  if constexpr (sizeof(T) == 2)
    reinterpret_cast<Word&>(field) = value;
  else
    reinterpret_cast<Long&>(field) = value;
}

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

const std::vector<Broken> kBroken = {
    // Files and fields.
    {[](World& w) { SetRaw(w.Workers()[1].Morale, 140); },
     "wrestler.dat, record 1 (Bram Okafor), Morale: is 140, outside 0 to 100", "made 100"},
    {[](World& w) { SetRaw(w.Workers()[1].Over, -3); },
     "wrestler.dat, record 1 (Bram Okafor), Over: is -3, outside 0 to 100\n"
     "wrestler.dat, record 1 (Bram Okafor), OverFloor: is above the worker's Over",
     "", "wrestler.dat, record 1 (Bram Okafor), Over: is -3, outside 0 to 100; made 0"},
    {[](World& w) { SetRaw(w.Workers()[2].ContractMonths, -2); },
     "wrestler.dat, record 2 (Ilya Marsh), ContractMonths: is -2, outside 0 to 120", "made 0"},
    {[](World& w) { SetRaw(w.Workers()[2].ContractMonths, 121); },
     "wrestler.dat, record 2 (Ilya Marsh), ContractMonths: is 121, outside 0 to 120", "made 120"},
    {[](World& w) { SetRaw(w.Workers()[2].Wage, -1); },
     "wrestler.dat, record 2 (Ilya Marsh), Wage: is -1, outside 0 to 10000", "made 0"},
    {[](World& w) { SetRaw(w.Promotions()[2].Money, 2147483647); },
     "promos.dat, record 2 (NEW Wrestling), Money: is 2147483647, outside -1000000000 to "
     "1000000000",
     "made 1000000000"},
    {[](World& w) { SetRaw(w.Workers()[2].Speaks, 1); },
     "wrestler.dat, record 2 (Ilya Marsh), Speaks: is 1, neither 0 nor -1", "made -1"},
    {[](World& w) { w.Workers()[2].Position = 8; },
     "wrestler.dat, record 2 (Ilya Marsh), Position: is 8, no known code", "made 5"},
    {[](World& w) { w.AllStaff()[2].Position = 0; },
     "staff.dat, record 2 (Vic Tolliver), Position: is 0, no known code", "made 2"},
    {[](World& w) { w.Promotions()[2].Size = 9; },
     "promos.dat, record 2 (NEW Wrestling), Size: is 9, no known code", "made 6"},
    {[](World& w) { SetRaw(w.Promotions()[2].Rank[3], 601); },
     "promos.dat, record 2 (NEW Wrestling), Rank4: is 601, outside 0 to 600", "made 600"},
    {[](World& w) { w.Workers()[2].Status = "Sic"; },
     "wrestler.dat, record 2 (Ilya Marsh), Status: is \"Sic\", no known code", "made \"Nor\""},
    {[](World& w) { w.Shows()[1].Day = "Freitag"; },
     "tv.dat, record 1 (Friday Fire), Day: is \"Freitag\", no known code", "made \"Monday\""},
    {[](World& w) { w.Workers()[2].LastTurn.SetRaw(kNan); },
     "wrestler.dat, record 2 (Ilya Marsh), LastTurn: is no date of the calendar",
     "made 1899-12-30"},
    {[](World& w) { w.Workers()[2].LastTurn.SetRaw(-0.0); },
     "wrestler.dat, record 2 (Ilya Marsh), LastTurn: is no date of the calendar",
     "made 1899-12-30"},
    {[](World& w) { w.Titles()[1].Reigns[2].Won.SetRaw(1e12); },
     "belt.dat, record 1 (CWA Crown), Won3: is no date of the calendar", "made 1980-01-01"},
    {[](World& w) { w.Workers()[2].Finisher1 = "Mud\tSlide"; },
     "wrestler.dat, record 2 (Ilya Marsh), Finisher1: has a control character in it",
     "made a blank"},
    {[](World& w) { w.Sponsors()[1].Slogan = "Big\x9D"; },
     "sponsor.dat, record 1 (Colossal Cola), Slogan: has a control character in it",
     "made a blank"},
    {[](World& w) { w.Teams()[1].Finisher = "  Quicksand"; },
     "teams.dat, record 1 (Mud and Iron), Finisher: begins with a blank", "moved to the front"},
    {[](World& w) { w.Events()[1].Month = 13; },
     "event.dat, record 1 (CWA in March), Month: is 13, outside 1 to 12", "made 12"},
    {[](World& w) {
       w.Load([&] {
         auto files = test::BytesOf(w);
         files["teams.dat"].resize(60);
         return files;
       }());
     },
     "teams.dat: ends in 4 bytes that are no whole record", "cut off"},

    // Keys.
    {[](World& w) { w.Workers()[3].Uid = 0; },
     "wrestler.dat, record 3 (Cal Drift), Uid: is 0, no number from 1 up\n"
     "tv.dat, record 2 (Monday Mire), Colour: is 3, but there is no such worker",
     "",
     "wrestler.dat, record 3 (Cal Drift), Uid: is 0, no number from 1 up; made 8\n"
     "tv.dat, record 2 (Monday Mire), Colour: is 3, but there is no such worker; made 0"},
    {[](World& w) { w.Workers()[6].Uid = 2; },
     "wrestler.dat, record 6 (Eli Fenn), Uid: is 2, which record 2 has too", "made 8"},
    {[](World& w) {
       w.Workers()[7].Uid = 32767;
       w.Workers()[6].Uid = 2;
     },
     "wrestler.dat, record 6 (Eli Fenn), Uid: is 2, which record 2 has too", "made 6"},
    {[](World& w) { w.Networks().Append(w.Networks()[1]); },
     "network.dat, record 3 (Channel Nine): is the double of record 1\n"
     "network.dat, record 3 (Channel Nine), Name: is \"Channel Nine\" as in record 1",
     "", "network.dat, record 3 (Channel Nine): is the double of record 1; removed"},
    {[](World& w) { w.Workers()[6].Name = "Bram Okafor"; },
     "wrestler.dat, record 6 (Bram Okafor), Name: is \"Bram Okafor\" as in record 1",
     "made \"Bram Okafor 2\""},
    {[](World& w) {
       w.Workers()[5].Name = "Bram Okafor 2";
       w.Workers()[6].Name = "Bram Okafor";
     },
     "wrestler.dat, record 6 (Bram Okafor), Name: is \"Bram Okafor\" as in record 1",
     "made \"Bram Okafor 3\""},
    {[](World& w) {
       w.Workers()[1].Name = "Bartholomew Featherstones";
       w.Workers()[6].Name = "Bartholomew Featherstones";
     },
     "wrestler.dat, record 6 (Bartholomew Featherstones), Name: is \"Bartholomew Featherstones\" "
     "as in record 1",
     "made \"Bartholomew Featherston 2\""},
    {[](World& w) { w.Workers()[6].Name = ""; }, "wrestler.dat, record 6, Name: is empty",
     "made \"Worker 6\""},
    {[](World& w) { w.Promotions()[2].Initials = "CWA"; },
     "promos.dat, record 2 (NEW Wrestling), Initials: is \"CWA\" as in record 1", "made \"CWA2\""},
    {[](World& w) { w.Events().Append(w.Events()[1]); },
     "event.dat, record 2 (CWA in March): is the double of record 1\n"
     "event.dat, record 2 (CWA in March), Month: has an Event of the promotion already",
     "", "event.dat, record 2 (CWA in March): is the double of record 1; removed"},
    {[](World& w) {
       w.Titles().Append(w.Titles()[3]);
       w.Titles()[4].Image = 7;
     },
     "belt.dat, record 4 (CWA Cup), Name: stands twice in the same promotion",
     "made \"CWA Cup 2\""},

    // References.
    {[](World& w) { w.Workers()[7].Manager = 99; },
     "wrestler.dat, record 7 (Fay Loose), Manager: is 99, but there is no such worker", "made 0"},
    {[](World& w) { w.Titles()[3].Owner = 99; },
     "belt.dat, record 3 (CWA Cup), Owner: is 99, but there is no such promotion", "made -1"},
    {[](World& w) { w.Promotions()[1].Sponsor[2] = 99; },
     "promos.dat, record 1 (CWA Wrestling), Sponsor3: is 99, but there is no such sponsor",
     "made 0"},
    {[](World& w) { w.Promotions()[1].Sponsor[2] = -9; },
     "promos.dat, record 1 (CWA Wrestling), Sponsor3: is -9, outside 0 to 32767", "made 0"},
    {[](World& w) { w.Shows()[1].Network = 99; },
     "tv.dat, record 1 (Friday Fire), Network: is 99, but there is no such network", "made 0"},
    {[](World& w) { w.Shows()[1].Announcer = 99; },
     "tv.dat, record 1 (Friday Fire), Announcer: is 99, but there is no such member of staff",
     "made 0"},
    {[](World& w) {
       w.Shows()[2].ColourIsWorker = false;
       w.AllStaff()[3].Uid = 30;
       w.Promotions()[1].HeadTrainer = 30;
     },
     "tv.dat, record 2 (Monday Mire), Colour: is 3, but there is no such member of staff",
     "made 0"},
    {[](World& w) {
       w.AllStaff()[3].Employer = 99;
       w.Promotions()[1].HeadTrainer = 0;
     },
     "staff.dat, record 3 (Sal Mender), Employer: is 99, but there is no such promotion", "made 0"},
    {[](World& w) { w.Events()[1].Owner = 99; },
     "event.dat, record 1 (CWA in March), Owner: is 99, but there is no such promotion", "made 0"},

    // People.
    {[](World& w) { w.Workers()[7].Unsackable = true; },
     "wrestler.dat, record 7 (Fay Loose), Unsackable: is set for a worker without an employer",
     "cleared"},
    {[](World& w) { w.Workers()[2].Unsackable = true; },
     "wrestler.dat, record 2 (Ilya Marsh), ContractMonths: runs out for an unsackable worker",
     "made -1"},
    {[](World& w) { w.Workers()[7].ContractMonths = 3; },
     "wrestler.dat, record 7 (Fay Loose), ContractMonths: is not 0 for a worker without an "
     "employer",
     "made 0"},
    {[](World& w) { w.Workers()[7].ContractType = "Wri"; },
     "wrestler.dat, record 7 (Fay Loose), ContractType: is not \"Non\" for a worker without an "
     "employer",
     "made \"Non\""},
    {[](World& w) { w.Workers()[7].Stable = "The Pack"; },
     "wrestler.dat, record 7 (Fay Loose), Stable: is not \"None\" for a worker without an employer",
     "made \"None\""},
    {[](World& w) { w.Workers()[6].Stable = "The Bench"; },
     "wrestler.dat, record 6 (Eli Fenn), Stable: is \"The Bench\", no stable of his promotion",
     "made \"None\""},
    {[](World& w) { w.Workers()[6].Split = "North"; },
     "wrestler.dat, record 6 (Eli Fenn), Split: is \"North\", no part of his promotion's roster",
     "made \"None\""},
    {[](World& w) { w.Workers()[6].Manager = 4; },
     "wrestler.dat, record 6 (Eli Fenn), Manager: is no manager of the same promotion", "made 0"},
    {[](World& w) { w.Workers()[2].Manager = 3; },
     "wrestler.dat, record 2 (Ilya Marsh), Manager: is no manager of the same promotion", "made 0"},
    {[](World& w) { w.Workers()[4].Manager = 4; },
     "wrestler.dat, record 4 (Mo Grace), Manager: is no manager of the same promotion", "made 0"},
    {[](World& w) { w.Workers()[7].Manager = 4; },
     "wrestler.dat, record 7 (Fay Loose), Manager: is no manager of the same promotion", "made 0"},
    {[](World& w) { w.Workers()[2].Diva = true; },
     "wrestler.dat, record 2 (Ilya Marsh), Diva: is set for a man", "cleared"},
    {[](World& w) { w.Workers()[2].OverFloor = 51; },
     "wrestler.dat, record 2 (Ilya Marsh), OverFloor: is above the worker's Over", "made the same"},
    {[](World& w) { w.AllStaff()[3].Position = kOwner; },
     "staff.dat, record 3 (Sal Mender), Employer: has an Owner already, Ruth Vane", "",
     "staff.dat, record 3 (Sal Mender), Employer: has an Owner already, Ruth Vane; made 0\n"
     "promos.dat, record 1 (CWA Wrestling), HeadTrainer: works elsewhere; made 0"},
    {[](World& w) { w.Promotions()[1].Commissioner = 3; },
     "promos.dat, record 1 (CWA Wrestling), Commissioner: is no non-wrestler of the promotion",
     "made 0"},
    {[](World& w) { w.Promotions()[2].Commissioner = 5; },
     "promos.dat, record 2 (NEW Wrestling), Commissioner: is no non-wrestler of the promotion",
     "made 0"},
    {[](World& w) { w.Promotions()[2].HeadTrainer = 3; },
     "promos.dat, record 2 (NEW Wrestling), HeadTrainer: works elsewhere", "made 0"},
    {[](World& w) { w.Promotions()[2].DevBooker = 3; },
     "promos.dat, record 2 (NEW Wrestling), DevBooker: works elsewhere", "made 0"},

    // Companies.
    {[](World& w) { w.Titles()[1].Partner = 2; },
     "belt.dat, record 1 (CWA Crown), Partner: is set for a singles title", "made 0"},
    {[](World& w) { w.Titles()[2].Holder = 0; },
     "belt.dat, record 2 (CWA Pairs), Partner: is set for a vacant Title", "made 0"},
    {[](World& w) { w.Titles()[2].Partner = 0; },
     "belt.dat, record 2 (CWA Pairs), Holder: has no partner", "vacated"},
    {[](World& w) { w.Titles()[1].Holder = 6; },
     "belt.dat, record 1 (CWA Crown), Holder: does not work for the Title's promotion", "vacated"},
    {[](World& w) { w.Titles()[1].Owner = kNoEnd; },
     "belt.dat, record 1 (CWA Crown), Holder: does not work for the Title's promotion", "vacated"},
    {[](World& w) { w.Titles()[2].Partner = 6; },
     "belt.dat, record 2 (CWA Pairs), Holder: has a partner who does not work for the Title's "
     "promotion",
     "vacated"},
    {[](World& w) { w.Teams()[1].Worker2 = 1; },
     "teams.dat, record 1 (Mud and Iron), Worker2: is the other partner himself", "removed"},
    {[](World& w) { w.Teams()[1].Worker2 = 0; },
     "teams.dat, record 1 (Mud and Iron): lacks a partner", "removed"},
    {[](World& w) {
       w.Teams().Append(w.Teams()[1]);
       w.Teams()[2].Name = "Iron and Mud";
       w.Teams()[2].Worker1 = 2;
       w.Teams()[2].Worker2 = 1;
     },
     "teams.dat, record 2 (Iron and Mud): is a pair that is a team already", "removed"},
    {[](World& w) {
       w.Events().Append(w.Events()[1]);
       w.Events()[2].Name = "Encore";
     },
     "event.dat, record 2 (Encore), Month: has an Event of the promotion already", "removed"},
    {[](World& w) {
       for (const char* day : {"Sunday", "Tuesday"}) {
         w.Shows().Append(w.Shows()[2]);
         w.Shows()[w.Shows().Count()].Name = day;
         w.Shows()[w.Shows().Count()].Day = day;
       }
     },
     "tv.dat, record 4 (Tuesday), Owner: has three shows already", "removed"},
    {[](World& w) {
       w.Shows().Append(w.Shows()[1]);
       w.Shows()[3].Name = "Clash";
       w.Shows()[3].Owner = 2;
     },
     "tv.dat, record 3 (Clash), Slot: is taken on that day by Friday Fire", "removed"},
    {[](World& w) { w.Sponsors()[1].Promotion = 0; },
     "promos.dat, record 1 (CWA Wrestling), Sponsor1: Colossal Cola knows nothing of it", "made 0"},
    {[](World& w) { w.Promotions()[1].Sponsor[3] = 1; },
     "promos.dat, record 1 (CWA Wrestling), Sponsor4: stands there twice", "made 0"},
    {[](World& w) { w.Sponsors()[2].Promotion = 2; },
     "sponsor.dat, record 2 (Tough Trucks), Promotion: NEW knows nothing of it", "made 0"},
    {[](World& w) { w.Shows()[1].Name = kToBeDeleted; },
     "tv.dat, record 1 (To Be Deleted): is marked as gone", "removed"},
};

TEST(CheckWorld, FindsNothingInSoundWorlds) {
  EXPECT_EQ("", Lines(CheckWorld(SoundData())));
  EXPECT_EQ("", Lines(CheckWorld(SoundGame())));
  EXPECT_EQ("", Lines(CheckWorld(World())));
}

TEST(CheckWorld, LeavesTheWorldAsItIs) {
  World world = SoundGame();
  for (const Broken& row : kBroken) row.Break(world);
  const World before = CopyOf(world);
  EXPECT_FALSE(CheckWorld(world).empty());
  ExpectSame(world, before);
}

TEST(CheckWorld, FindsWhatIsBrokenInDefaultData) {
  for (const Broken& row : kBroken) {
    World world = SoundData();
    row.Break(world);
    EXPECT_EQ(row.Found + "\n", Lines(CheckWorld(world)));
  }
}

TEST(MendWorld, MendsWhatTheCheckFinds) {
  for (const Broken& row : kBroken) {
    World world = SoundData();
    row.Break(world);
    const std::string mended = row.Mended.empty() ? row.Found + "; " + row.How : row.Mended;
    EXPECT_EQ(mended + "\n", Lines(MendWorld(world)));
    EXPECT_EQ("", Lines(CheckWorld(world))) << row.Found;
    EXPECT_EQ("", Lines(MendWorld(world))) << row.Found;
  }
}

/// Chance that must not be asked.
class NoDraws : public Draws {
 public:
  int Draw(int) override {
    ADD_FAILURE() << "a draw";
    return 1;
  }
};

TEST(MendWorld, EndsThePromotionsAndShowsThatAreMarked) {
  World world = SoundData();
  World expected = CopyOf(world);
  Named(expected.Promotions(), "CWA").Name = kToBeDeleted;
  SweepDeadPromotions(expected);
  SweepDeadShows(expected);
  EXPECT_EQ(Named(expected.Workers(), "Ilya Marsh").Split.Str(), "None");
  Named(world.Promotions(), "CWA").Name = kToBeDeleted;
  world.SetChance(std::make_unique<NoDraws>());
  EXPECT_EQ(
      "promos.dat, record 1 (To Be Deleted): is marked as gone; removed\n"
      "tv.dat, record 1 (To Be Deleted): is marked as gone; removed\n"
      "tv.dat, record 2 (To Be Deleted): is marked as gone; removed\n",
      Lines(MendWorld(world)));
  ExpectSame(world, expected);
}

TEST(MendWorld, AMarkThatSharesItsUidCostsNobodyHisJob) {
  World world = SoundData();
  const World expected = CopyOf(world);
  world.Promotions().Append(world.Promotions()[1]);
  world.Promotions()[3].Name = kToBeDeleted;
  EXPECT_EQ("promos.dat, record 3 (To Be Deleted): is marked as gone; removed\n",
            Lines(MendWorld(world)));
  ExpectSame(world, expected);
}

TEST(MendWorld, TouchesTheDataSetAlone) {
  World world = SoundGame();
  world.Game().EndCode = 77;
  world.Feuds().Rewrite({});
  world.News()[1].Date = "yesterday";
  world.Workers()[2].OverFloor = 51;  // what a game may carry, data may not
  World expected = CopyOf(world);
  expected.Workers()[2].OverFloor = 50;
  EXPECT_EQ(
      "wrestler.dat, record 2 (Ilya Marsh), OverFloor: is above the worker's Over; made the "
      "same\n",
      Lines(MendWorld(world)));
  ExpectSame(world, expected);
}

const std::vector<Broken> kBrokenGames = {
    {[](World& w) { w.Workers()[3].Stable = "The Bunch"; },
     "wrestler.dat, record 3 (Cal Drift), Stable: is \"The Bunch\", no stable of his promotion"},
    {[](World& w) { w.Workers()[6].Split = "North"; },
     "wrestler.dat, record 6 (Eli Fenn), Split: is \"North\", no part of his promotion's roster"},
    {[](World& w) { w.Workers()[7].Manager = 4; },
     "wrestler.dat, record 7 (Fay Loose), Manager: is no manager of the same promotion"},
    {[](World& w) { w.Workers()[2].Diva = true; },
     "wrestler.dat, record 2 (Ilya Marsh), Diva: is set for a man"},
    {[](World& w) { w.Promotions()[2].DevBooker = 3; },
     "promos.dat, record 2 (NEW Wrestling), DevBooker: works elsewhere"},
    {[](World& w) { w.Titles()[1].Holder = 6; },
     "belt.dat, record 1 (CWA Crown), Holder: does not work for the Title's promotion"},
    {[](World& w) { w.Teams()[1].Worker2 = 0; },
     "teams.dat, record 1 (Mud and Iron): lacks a partner"},
    {[](World& w) { SetRaw(w.Workers()[1].StatusMonths, -9); },
     "wrestler.dat, record 1 (Bram Okafor), StatusMonths: is -9, outside 0 to 120"},
    {[](World& w) { w.Workers()[2].Potential = 29; },
     "wrestler.dat, record 2 (Ilya Marsh), Potential: is under 30"},
    {[](World& w) { w.Workers()[2].BirthMonth = 0; },
     "wrestler.dat, record 2 (Ilya Marsh), BirthMonth: is 0, which a game draws anew when it "
     "begins"},
    {[](World& w) { w.Titles()[3].Reigns[0].Holder = "None"; },
     "belt.dat, record 3 (CWA Cup), Holder1: is not \"Vacant\" for a vacant Title"},
    {[](World& w) { w.GameInfos().Rewrite({}); }, "gameinfo.dat: holds no record"},
    {[](World& w) { w.Game().Version = "Version 1.9"; },
     "gameinfo.dat, record 1, Version: is not \"Version 2.0\""},
    {[](World& w) { w.Game().EndCode = 10; },
     "gameinfo.dat, record 1, EndCode: is 10, neither 0 to 9 nor 100"},
    {[](World& w) { w.Game().EndCode = 101; },
     "gameinfo.dat, record 1, EndCode: is 101, outside 0 to 100\n"
     "gameinfo.dat, record 1, EndCode: is 101, neither 0 to 9 nor 100"},
    {[](World& w) { w.Game().MailTrain = 1; },
     "gameinfo.dat, record 1, MailTrain: is 1, no known code"},
    {[](World& w) { w.Game().MailTv = 3; }, "gameinfo.dat, record 1, MailTv: is 3, no known code"},
    {[](World& w) { w.Game().Today = w.Today() - std::chrono::days{1}; },
     "gameinfo.dat, record 1, Today: lies before the game's start"},
    {[](World& w) { w.Game().PlayerPromotion = 9; },
     "gameinfo.dat, record 1, PlayerPromotion: is 9, but there is no such promotion"},
    {[](World& w) { w.Game().PlayerPromotion = 0; },
     "gameinfo.dat, record 1, PlayerPromotion: is 0, outside 1 to 32767"},
    {[](World& w) { w.Game().Shortlist[2] = w.Game().Shortlist[7] = 6; },
     "gameinfo.dat, record 1, Shortlist8: stands there twice"},
    {[](World& w) { w.Game().Shortlist[14] = 66; },
     "gameinfo.dat, record 1, Shortlist15: is 66, but there is no such worker"},
    {[](World& w) { w.Game().TapeWait = 3; },
     "gameinfo.dat, record 1, TapeWait: is 3, but there is no such network"},
    {[](World& w) { w.Feuds().Erase(8); }, "feudinfo.dat: holds 7 records, not 8"},
    {[](World& w) { w.Feuds()[1].Worker2 = 0; }, "feudinfo.dat, record 1: lacks a party"},
    {[](World& w) { w.Feuds()[1].Worker2 = 1; }, "feudinfo.dat, record 1: names somebody twice"},
    {[](World& w) { w.Feuds()[1].Worker1 = 0; },
     "feudinfo.dat, record 1: has no first party, but others"},
    {[](World& w) { w.Feuds()[1].Worker3 = 5; },
     "feudinfo.dat, record 1: is a feud of two, but names more"},
    {[](World& w) {
       w.Feuds()[1].Singles = false;
       w.Feuds()[1].Worker3 = 5;
     },
     "feudinfo.dat, record 1: lacks a party"},
    {[](World& w) {
       w.Feuds()[2].Heat = 0;
       w.Feuds()[1].Worker2 = 77;
     },
     "feudinfo.dat, record 1, Worker2: is 77, but there is no such worker"},
    {[](World& w) { w.News()[1].Date = "31/02/26"; },
     "news.dat, record 1, Date: is no date like 01/01/80"},
    {[](World& w) { w.News()[1].Date = "1/03/26"; },
     "news.dat, record 1, Date: is no date like 01/01/80"},
    {[](World& w) { w.News()[1].Date = "01/03/2026"; },
     "news.dat, record 1, Date: is no date like 01/01/80"},
    {[](World& w) { w.News()[1].Date = ""; }, "news.dat, record 1, Date: is no date like 01/01/80"},
    {[](World& w) { w.News()[1].Body = "Bell\a"; },
     "news.dat, record 1, Body: has a control character in it"},
    {[](World& w) { w.Titles()[1].Holder = 99; },
     "belt.dat, record 1 (CWA Crown), Holder: is 99, but there is no such worker"},
    {[](World& w) { w.Promotions()[2].Name = kToBeDeleted; },
     "promos.dat, record 2 (To Be Deleted): is marked as gone"},
    {[](World& w) {
       w.Segments().Append({});
       w.Segments()[1].Style = 80;
     },
     "match.dat, record 1, Style: is 80, outside 0 to 79"},
};

TEST(CheckWorld, FindsWhatIsBrokenInAGame) {
  for (const Broken& row : kBrokenGames) {
    World world = SoundGame();
    row.Break(world);
    EXPECT_EQ(row.Found + "\n", Lines(CheckWorld(world)));
  }
}

// The rules of the game themselves bring these about in time.
TEST(CheckWorld, LetsAGameGoItsOwnWay) {
  const struct {
    const char* What;
    void (*Happen)(World&);
  } rows[] = {
      {"somebody never retires", [](World& w) { w.Workers()[1].Age = 131; }},
      {"an angle makes a manager of a wrestler", [](World& w) { w.Workers()[2].Manager = 3; }},
      {"closed promotions leave Titles of one name behind",
       [](World& w) {
         Title old = w.Titles()[3];
         old.Owner = kNoEnd;
         w.Titles().Append(old);
         w.Titles().Append(old);
       }},
      {"Over falls below its floor", [](World& w) { w.Workers()[1].OverFloor = 90; }},
      {"the economy runs away", [](World& w) { w.Game().Economy = -700; }},
      {"an old sheet lies about",
       [](World& w) {
         w.Segments().Append({});
         w.Segments()[1].Loser = 1;
         w.Segments()[1].Worker[4] = 900;
         w.Segments()[1].TitleName = "A Title That Was";
       }},
      {"the first word of a mail is empty", [](World& w) { w.News()[1].Body = " has left."; }},
      {"a challenge awaits", [](World& w) { w.Game().EndCode = 100; }},
  };
  for (const auto& row : rows) {
    World world = SoundGame();
    row.Happen(world);
    EXPECT_EQ("", Lines(CheckWorld(world))) << row.What;
  }
}

TEST(CheckWorld, HoldsInTheLargestWorld) {
  World world = SoundData();
  while (!world.Workers().Full()) {
    Worker worker = world.Workers()[7];
    worker.Uid = world.Workers().Count() + 1;
    worker.Name = "Worker " + std::to_string(world.Workers().Count());
    world.Workers().Append(worker);
  }
  EXPECT_EQ("", Lines(CheckWorld(world)));
  for (Worker& worker : world.Workers()) worker.Uid = 1 + (worker.Uid - 1) % 500;
  EXPECT_EQ(24500u, CheckWorld(world).size());
  MendWorld(world);
  EXPECT_EQ("", Lines(CheckWorld(world)));
  for (Worker& worker : world.Workers()) worker.Name = "Nobody";
  EXPECT_EQ(24999u, CheckWorld(world).size());
  MendWorld(world);
  EXPECT_EQ("", Lines(CheckWorld(world)));
  EXPECT_EQ("Nobody 25000", world.Workers()[25000].Name.View());
}

}  // namespace
}  // namespace grapplemont
