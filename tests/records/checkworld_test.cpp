#include "records/checks/checkworld.h"

#include <gtest/gtest.h>

#include <limits>
#include <variant>

#include "records/severing.h"
#include "soundworld.h"
#include "support/scripteddraws.h"

namespace grapplemont {
namespace {

using test::CopyOf;
using test::ExpectSame;
using test::Named;
using test::SoundData;
using test::SoundGame;

std::string Lines(const auto& faults) {
  std::string lines;
  for (const Fault& fault : faults) lines += fault.Line() + "\n";
  return lines;
}

/// A field that holds what it must not, as only its bytes can, what the check says of it, and how
/// the clean-up mends it; nothing for what is wrong in a game alone.
struct BadField {
  const char* File;
  int Record;
  const char* Field;
  std::variant<int, double, const char*> Value;
  std::string Found, How = {};
  bool OnlyInData = false;
  const char* Blamed = Field;  // "" for the record as a whole
};

template <class Visit>
void VisitRecord(World& world, const BadField& bad, Visit visit) {
  world.ForEachFile([&]<class T>(Records<T>& records) {
    if (records.File() == bad.File)
      visit(LayoutOf<T>(), reinterpret_cast<std::byte*>(&records.Change(bad.Record)));
  });
}

void Break(World& world, const BadField& bad) {
  bool isSet = false;
  VisitRecord(world, bad, [&](const RecordLayout& layout, std::byte* record) {
    for (const Field& field : layout.Fields)
      for (int i = 0; i < field.Count; ++i) {
        if (FieldName(field, i) != bad.Field) continue;
        isSet = true;
        if (const auto* text = std::get_if<const char*>(&bad.Value))
          SetFieldText(field, record, i, *text);
        else if (const auto* days = std::get_if<double>(&bad.Value))
          SetFieldDate(field, record, i, *days);
        else
          SetFieldNumber(field, record, i, std::get<int>(bad.Value));
      }
  });
  EXPECT_TRUE(isSet) << bad.File << " " << bad.Field;
}

/// "wrestler.dat, record 1 (Bram Okafor), Morale: is 140, outside 0 to 100"
std::string LineOf(World& world, const BadField& bad) {
  std::string who;
  VisitRecord(world, bad, [&](const RecordLayout& layout, const std::byte* record) {
    for (const Field& field : layout.Fields)
      if (field.Name == "Name" && !FieldText(field, record).empty())
        who = " (" + std::string(FieldText(field, record)) + ")";
  });
  const std::string blamed = bad.Blamed;
  return std::string(bad.File) + ", record " + std::to_string(bad.Record) + who +
         (blamed.empty() ? "" : ", " + blamed) + ": " + bad.Found;
}

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

const BadField kBadFields[] = {
    {"wrestler.dat", 1, "Morale", 140, "is 140, outside 0 to 100", "made 100"},
    {"wrestler.dat", 2, "Wage", -1, "is -1, outside 0 to 10000", "made 0"},
    {"promos.dat", 2, "Money", 2147483647, "is 2147483647, outside -1000000000 to 1000000000",
     "made 1000000000"},
    {"wrestler.dat", 2, "Speaks", 1, "is 1, neither 0 nor -1", "made -1"},
    {"wrestler.dat", 2, "Position", 8, "is 8, no known code", "made 5"},
    {"staff.dat", 2, "Position", 0, "is 0, no known code", "made 2"},
    {"promos.dat", 2, "Size", 9, "is 9, no known code", "made 6"},
    {"promos.dat", 2, "Rank4", 601, "is 601, outside 0 to 600", "made 600"},
    {"wrestler.dat", 2, "Status", "Sic", "is \"Sic\", no known code", "made \"Nor\""},
    {"tv.dat", 1, "Day", "Freitag", "is \"Freitag\", no known code", "made \"Monday\""},
    {"wrestler.dat", 2, "LastTurn", kNan, "is not a date of the calendar", "made 1899-12-30"},
    {"wrestler.dat", 2, "LastTurn", -0.0, "is not a date of the calendar", "made 1899-12-30"},
    {"belt.dat", 1, "Won3", 1e12, "is not a date of the calendar", "made 1980-01-01"},
    {"wrestler.dat", 2, "Finisher1", "Mud\tSlide", "has a control character in it", "made a blank"},
    {"sponsor.dat", 1, "Slogan", "Big\x9D", "has a control character in it", "made a blank"},
    {"teams.dat", 1, "Finisher", "  Quicksand", "begins with a blank", "moved to the front", true},

    // Keys.
    {"wrestler.dat", 6, "Uid", 2, "is 2, which record 2 has too", "made 8"},
    {"wrestler.dat", 6, "Name", "Bram Okafor", "is \"Bram Okafor\" as in record 1",
     "made \"Bram Okafor 2\""},
    {"wrestler.dat", 6, "Name", "", "is empty", "made \"Worker 6\""},
    {"promos.dat", 2, "Initials", "CWA", "is \"CWA\" as in record 1", "made \"CWA2\""},

    // References.
    {"wrestler.dat", 7, "Manager", 99, "is 99, but there is no such worker", "made 0"},
    {"belt.dat", 3, "Owner", 99, "is 99, but there is no such promotion", "made -1"},
    {"promos.dat", 1, "Sponsor3", 99, "is 99, but there is no such sponsor", "made 0"},
    {"promos.dat", 1, "Sponsor3", -9, "is -9, outside 0 to 32767", "made 0"},
    {"tv.dat", 1, "Network", 99, "is 99, but there is no such network", "made 0"},
    {"tv.dat", 1, "Announcer", 99, "is 99, but there is no such member of staff", "made 0"},
    {"belt.dat", 1, "Holder", 99, "is 99, but there is no such worker", "made 0"},

    // People.
    {"wrestler.dat", 7, "Unsackable", -1, "is set for a worker without an employer", "cleared"},
    {"wrestler.dat", 2, "Unsackable", -1, "runs out for an unsackable worker", "made -1", false,
     "ContractMonths"},
    {"wrestler.dat", 7, "ContractMonths", 3, "is not 0 for a worker without an employer", "made 0"},
    {"wrestler.dat", 7, "ContractType", "Wri", "is not \"Non\" for a worker without an employer",
     "made \"Non\""},
    {"wrestler.dat", 7, "Stable", "The Pack", "is not \"None\" for a worker without an employer",
     "made \"None\""},
    {"wrestler.dat", 6, "Stable", "The Bench", "is \"The Bench\", not a stable of their promotion",
     "made \"None\""},
    {"wrestler.dat", 6, "Split", "North", "is \"North\", not a part of their promotion's roster",
     "made \"None\""},
    {"wrestler.dat", 6, "Manager", 4, "is not a manager of the same promotion", "made 0"},
    {"wrestler.dat", 2, "Manager", 3, "is not a manager of the same promotion", "made 0", true},
    {"wrestler.dat", 7, "Manager", 4, "is not a manager of the same promotion", "made 0"},
    {"wrestler.dat", 2, "Diva", -1, "is set for a man", "cleared"},
    {"wrestler.dat", 2, "OverFloor", 51, "is above the worker's Over", "made the same", true},
    {"wrestler.dat", 2, "Potential", 29, "is under 30"},
    {"wrestler.dat", 2, "BirthMonth", 0, "is 0, which a game draws again when it begins"},
    {"promos.dat", 1, "Commissioner", 3, "is not a non-wrestler of the promotion", "made 0"},
    {"promos.dat", 2, "Commissioner", 5, "is not a non-wrestler of the promotion", "made 0"},
    {"promos.dat", 2, "HeadTrainer", 3, "works elsewhere", "made 0"},
    {"promos.dat", 2, "DevBooker", 3, "works elsewhere", "made 0"},

    // Companies.
    {"belt.dat", 1, "Partner", 2, "is set for a singles title", "made 0"},
    {"belt.dat", 2, "Holder", 0, "is set for a vacant Title", "made 0", true, "Partner"},
    {"belt.dat", 2, "Partner", 0, "has no partner", "vacated", false, "Holder"},
    {"belt.dat", 1, "Holder", 6, "does not work for the Title's promotion", "vacated"},
    {"belt.dat", 1, "Owner", -1, "does not work for the Title's promotion", "vacated", false,
     "Holder"},
    {"belt.dat", 2, "Partner", 6, "has a partner who does not work for the Title's promotion",
     "vacated", false, "Holder"},
    {"teams.dat", 1, "Worker2", 0, "lacks a partner", "removed", false, ""},
    {"tv.dat", 1, "Name", "To Be Deleted", "is marked as gone", "removed", false, ""},
    {"teams.dat", 1, "Worker2", 1, "is also the other partner", "removed"},
    {"promos.dat", 1, "Sponsor4", 1, "stands there twice", "made 0"},
    {"sponsor.dat", 2, "Promotion", 2, "NEW knows nothing of it", "made 0"},

    // The running game.
    {"belt.dat", 3, "Holder1", "None", "is not \"Vacant\" for a vacant Title"},
    {"gameinfo.dat", 1, "Version", "Version 1.9", "is not \"Version 2.0\""},
    {"gameinfo.dat", 1, "EndCode", 10, "is 10, neither 0 to 9 nor 100"},
    {"gameinfo.dat", 1, "MailTrain", 1, "is 1, no known code"},
    {"gameinfo.dat", 1, "PlayerPromotion", 0, "is 0, outside 1 to 32767"},
    {"gameinfo.dat", 1, "Shortlist15", 66, "is 66, but there is no such worker"},
    {"news.dat", 1, "Date", "31/02/26", "is not a date like 01/01/80"},
    {"news.dat", 1, "Date", "1/03/26", "is not a date like 01/01/80"},
    {"news.dat", 1, "Date", "01/03/2026", "is not a date like 01/01/80"},
    {"news.dat", 1, "Body", "Bell\a", "has a control character in it"},
};

/// What takes more than a field to break. The clean-up says the same line with How behind it, or
/// where one thing leads to another what Mended says.
struct Broken {
  void (*Break)(World&);
  std::string Found, How = {}, Mended = {};
};

const Broken kBroken[] = {
    {[](World& w) {
       auto files = test::BytesOf(w);
       files["teams.dat"].resize(60);
       w.Load(files);
     },
     "teams.dat: ends in 4 bytes that are not a whole record", "cut off"},
    {[](World& w) { w.Workers()[3].Uid = 0; },
     "wrestler.dat, record 3 (Cal Drift), Uid: is 0, no number from 1 up\ntv.dat, record 2 (Monday "
     "Mire), Colour: is 3, but there is no such worker",
     "",
     "wrestler.dat, record 3 (Cal Drift), Uid: is 0, no number from 1 up; made 8\ntv.dat, record 2 "
     "(Monday Mire), Colour: is 3, but there is no such worker; made 0"},
    {[](World& w) { w.Networks().Append(w.Networks()[1]); },
     "network.dat, record 3 (Channel Nine): is the double of record 1\nnetwork.dat, record 3 "
     "(Channel Nine), Name: is \"Channel Nine\" as in record 1",
     "", "network.dat, record 3 (Channel Nine): is the double of record 1; removed"},
    {[](World& w) {
       w.Workers()[5].Name = "Bram Okafor 2";
       w.Workers()[6].Name = "Bram Okafor";
     },
     "wrestler.dat, record 6 (Bram Okafor), Name: is \"Bram Okafor\" as in record 1",
     "made \"Bram Okafor 3\""},
    {[](World& w) { w.Workers()[1].Name = w.Workers()[6].Name = "Bartholomew Featherstones"; },
     "wrestler.dat, record 6 (Bartholomew Featherstones), Name: is \"Bartholomew Featherstones\" "
     "as in record 1",
     "made \"Bartholomew Featherston 2\""},
    {[](World& w) { w.Events().Append(w.Events()[1]); },
     "event.dat, record 2 (CWA in March): is the double of record 1\nevent.dat, record 2 (CWA in "
     "March), Month: has an Event of the promotion already",
     "", "event.dat, record 2 (CWA in March): is the double of record 1; removed"},
    {[](World& w) { w.Titles().Append(w.Titles()[3]).Image = 7; },
     "belt.dat, record 4 (CWA Cup), Name: stands twice in the same promotion",
     "made \"CWA Cup 2\""},
    {[](World& w) {
       w.Shows()[2].ColourIsWorker = false;
       w.AllStaff()[3].Uid = 30;
       w.Promotions()[1].HeadTrainer = 30;
     },
     "tv.dat, record 2 (Monday Mire), Colour: is 3, but there is no such member of staff",
     "made 0"},
    {[](World& w) { w.AllStaff()[3].Position = kOwner; },
     "staff.dat, record 3 (Sal Mender), Employer: has an Owner already, Ruth Vane",
     "made 0\npromos.dat, record 1 (CWA Wrestling), HeadTrainer: works elsewhere; made 0"},
    {[](World& w) {
       Team team = w.Teams()[1];
       std::swap(team.Worker1, team.Worker2);
       w.Teams().Append(team).Name = "Iron and Mud";
     },
     "teams.dat, record 2 (Iron and Mud): is a pair that is a team already", "removed"},
    {[](World& w) { w.Events().Append(w.Events()[1]).Name = "Encore"; },
     "event.dat, record 2 (Encore), Month: has an Event of the promotion already", "removed"},
    {[](World& w) {
       for (const char* day : {"Sunday", "Tuesday"}) {
         Show& show = w.Shows().Append(w.Shows()[2]);
         show.Name = day;
         show.Day = day;
       }
     },
     "tv.dat, record 4 (Tuesday), Owner: has three shows already", "removed"},
    {[](World& w) {
       Show& show = w.Shows().Append(w.Shows()[1]);
       show.Name = "Clash";
       show.Owner = 2;
     },
     "tv.dat, record 3 (Clash), Slot: is taken on that day by Friday Fire", "removed"},
    {[](World& w) { w.Sponsors()[1].Promotion = 0; },
     "promos.dat, record 1 (CWA Wrestling), Sponsor1: Colossal Cola knows nothing of it", "made 0"},
};

const Broken kBrokenGames[] = {
    {[](World& w) { w.GameInfos().Rewrite({}); }, "gameinfo.dat: holds no record"},
    {[](World& w) { w.Game().Today = w.Today() - std::chrono::days{1}; },
     "gameinfo.dat, record 1, Today: lies before the game's start"},
    {[](World& w) { w.Game().Shortlist[2] = w.Game().Shortlist[7] = 6; },
     "gameinfo.dat, record 1, Shortlist8: stands there twice"},
    {[](World& w) { w.Feuds().Erase(8); }, "feudinfo.dat: holds 7 records, not 8"},
    {[](World& w) { w.Feuds()[1].Worker2 = 0; }, "feudinfo.dat, record 1: lacks a party"},
    {[](World& w) { w.Feuds()[1].Worker2 = 1; }, "feudinfo.dat, record 1: names somebody twice"},
    {[](World& w) { w.Feuds()[1].Worker1 = 0; },
     "feudinfo.dat, record 1: has no first party, but others"},
    {[](World& w) { w.Feuds()[1].Worker3 = 5; },
     "feudinfo.dat, record 1: is a feud of two, but names more"},
    {[](World& w) { w.Feuds()[1].Singles = false; }, "feudinfo.dat, record 1: lacks a party"},
};

TEST(CheckWorld, FindsNothingInSoundWorlds) {
  EXPECT_EQ("", Lines(CheckWorld(SoundData())));
  EXPECT_EQ("", Lines(CheckWorld(SoundGame())));
  EXPECT_EQ("", Lines(CheckWorld(World())));
}

TEST(CheckWorld, LeavesTheWorldAsItIs) {
  World world = SoundGame();
  for (const BadField& bad : kBadFields) Break(world, bad);
  for (const Broken& row : kBroken) row.Break(world);
  const World before = CopyOf(world);
  EXPECT_FALSE(CheckWorld(world).empty());
  ExpectSame(world, before);
}

TEST(CheckWorld, FindsWhatIsBroken) {
  World data = SoundData(), game = SoundGame();
  for (const BadField& bad : kBadFields)
    for (World* world : {&data, &game}) {
      if (world == &data ? bad.How.empty() : bad.OnlyInData) continue;
      Break(*world, bad);
      EXPECT_EQ(LineOf(*world, bad) + "\n", Lines(CheckWorld(*world)));
      world->Rollback();
    }
  for (const Broken& row : kBroken) {
    World world = CopyOf(data);
    row.Break(world);
    EXPECT_EQ(row.Found + "\n", Lines(CheckWorld(world)));
  }
  for (const Broken& row : kBrokenGames) {
    row.Break(game);
    EXPECT_EQ(row.Found + "\n", Lines(CheckWorld(game)));
    game.Rollback();
  }
}

TEST(MendWorld, MendsWhatTheCheckFinds) {
  World world = SoundData();
  const World sound = CopyOf(world);
  const auto expect = [&](const std::string& mended) {
    EXPECT_EQ(mended + "\n", Lines(MendWorld(world)));
    EXPECT_EQ("", Lines(CheckWorld(world))) << mended;
    EXPECT_EQ("", Lines(MendWorld(world))) << mended;
    world.Load(test::BytesOf(sound));
  };
  for (const BadField& bad : kBadFields) {
    if (bad.How.empty()) continue;
    Break(world, bad);
    expect(LineOf(world, bad) + "; " + bad.How);
  }
  for (const Broken& row : kBroken) {
    row.Break(world);
    expect(row.Mended.empty() ? row.Found + "; " + row.How : row.Mended);
  }
}

TEST(MendWorld, EndsThePromotionsAndShowsThatAreMarked) {
  World world = SoundData();
  World expected = CopyOf(world);
  Named(expected.Promotions(), "CWA").Name = kToBeDeleted;
  SweepDeadPromotions(expected);
  SweepDeadShows(expected);
  EXPECT_EQ(Named(expected.Workers(), "Ilya Marsh").Split.Str(), "None");
  Named(world.Promotions(), "CWA").Name = kToBeDeleted;
  test::ScriptDraws(world, std::vector<int>());
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
  world.News().Change(1).Date = "yesterday";
  world.Workers()[2].OverFloor = 51;  // what a game may carry, data may not
  World expected = CopyOf(world);
  expected.Workers()[2].OverFloor = 50;
  EXPECT_EQ(
      "wrestler.dat, record 2 (Ilya Marsh), OverFloor: is above the worker's Over; made the "
      "same\n",
      Lines(MendWorld(world)));
  ExpectSame(world, expected);
}

// The rules of the game themselves bring these about in time.
TEST(CheckWorld, LetsAGameGoItsOwnWay) {
  World world = SoundGame();
  world.Workers()[1].Age = 131;    // some never retire
  world.Workers()[2].Manager = 3;  // an angle makes a manager of a wrestler
  world.Workers()[1].OverFloor = 90;
  world.Game().Economy = -700;
  world.Game().EndCode = 100;  // a challenge awaits
  world.News().Change(1).Body = " has left.";
  // Closed promotions leave Titles of one name behind.
  world.Titles().Append(world.Titles()[3]).Owner = kNoEnd;
  world.Titles().Append(world.Titles()[4]);
  Segment& old = world.Segments().Append({});
  old.Loser = 1;
  old.Worker[4] = 900;
  old.TitleName = "A Title That Was";
  EXPECT_EQ("", Lines(CheckWorld(world)));
}

TEST(MendWorld, HoldsInTheLargestWorld) {
  World world = SoundData();
  while (!world.Workers().Full()) {
    Worker worker = world.Workers()[7];
    worker.Uid = world.Workers().Count() + 1;
    worker.Name = "Worker " + std::to_string(worker.Uid);
    world.Workers().Append(worker);
  }
  for (Worker& worker : world.Workers()) {
    if (worker.Uid % 2 != 0)
      worker.Name = "Nobody";
    else
      worker.Uid = 2 + (worker.Uid - 2) % 500;
  }
  EXPECT_EQ(12250u + 12499u, CheckWorld(world).size());
  MendWorld(world);
  EXPECT_EQ("", Lines(CheckWorld(world)));
  EXPECT_EQ("Nobody 12500", world.Workers()[24999].Name.View());
}

}  // namespace
}  // namespace grapplemont
