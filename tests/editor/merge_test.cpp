#include "editor/merge.h"

#include <gtest/gtest.h>

#include "newrecords.h"
#include "support/randomworld.h"

namespace grapplemont::test {
namespace {

World Here() {
  return SmallWorld()
      .Network("Nine")
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Staff("Pen Loud", kAnnouncer)
      .Crew(3)
      .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
      .Show("Friday Fire", "Friday", "Nine");
}

/// Another promotion, whose records have the same uids as those of Here.
World There() {
  return SmallWorld()
      .Network("Ten")
      .Promotion("NEW", kSmall, [](Promotion& p) { p.Split[0] = "Red"; })
      .Owner("Ola Brandt")
      .Staff("Ed Call", kAnnouncer)
      .Staff("Sly Tutor", kTrainer)
      .Worker("Ann Ring", kManager, 30)
      .Worker("Bo Stone", [](Worker& w) { w.Split = "Red"; })
      .Worker("Cy Flint")
      .Worker("Com Ish", kNonWrestler, 40)
      .Team("Stone And Flint", "Bo Stone", "Cy Flint")
      .Show("Monday Mess", "Monday", "Ten");
}

World Linked() {
  World there = There();
  const int ann = Named(there.Workers(), "Ann Ring").Uid;
  Named(there.Workers(), "Bo Stone").Manager = ann;
  Promotion& promotion = Named(there.Promotions(), "NEW");
  promotion.Commissioner = Named(there.Workers(), "Com Ish").Uid;
  promotion.HeadTrainer = Named(there.AllStaff(), "Sly Tutor").Uid;
  Show& show = Named(there.Shows(), "Monday Mess");
  show.Announcer = Named(there.AllStaff(), "Ed Call").Uid;
  show.Colour = ann;
  show.ColourIsWorker = true;
  return there;
}

TEST(Merge, ClashingUidsGetFreeOnesAndEveryReferenceFollows) {
  World world = Here();
  const Arrivals preview = PreviewMerge(world, AsNew(Linked()));
  ExpectSame(world, Here());
  const Arrivals arrivals = MergeNewRecords(world, AsNew(Linked()));
  EXPECT_EQ(Lines(preview), Lines(arrivals));
  EXPECT_EQ(Lines(arrivals),
            (Texts{"Promotion NEW Wrestling 1>2: Its uid belongs to CWA Wrestling.",
                   "Network Ten 1>2: Its uid belongs to Nine.",
                   "Worker Ann Ring 1>5: Its uid belongs to CWA Hand 1.",
                   "Worker Bo Stone 2>6: Its uid belongs to CWA Hand 2.",
                   "Worker Cy Flint 3>7: Its uid belongs to CWA Hand 3.", "Worker Com Ish",
                   "Staff Ola Brandt 1>4: Its uid belongs to Ruth Vane.",
                   "Staff Ed Call 2>5: Its uid belongs to Pen Loud.", "Staff Sly Tutor",
                   "Team Stone And Flint", "Show Monday Mess"}));
  EXPECT_EQ(Lines(arrivals.Mended), Texts{});
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});

  const Promotion& promotion = Named(world.Promotions(), "NEW");
  const auto worker = [&](int uid) { return world.FindWorker(uid)->Name.Str(); };
  const auto staff = [&](int uid) { return world.FindStaff(uid)->Name.Str(); };
  EXPECT_EQ(worker(promotion.Commissioner), "Com Ish");
  EXPECT_EQ(staff(promotion.HeadTrainer), "Sly Tutor");
  EXPECT_EQ(worker(Named(world.Workers(), "Bo Stone").Manager), "Ann Ring");
  EXPECT_EQ(Named(world.Workers(), "Bo Stone").Split, "Red");
  for (const char* name : {"Ann Ring", "Bo Stone", "Cy Flint", "Com Ish"})
    EXPECT_EQ(Named(world.Workers(), name).Employer, promotion.Uid) << name;
  for (const char* name : {"Ola Brandt", "Ed Call", "Sly Tutor"})
    EXPECT_EQ(Named(world.AllStaff(), name).Employer, promotion.Uid) << name;
  const Team& team = Named(world.Teams(), "Stone And Flint");
  EXPECT_EQ(worker(team.Worker1) + worker(team.Worker2), "Bo StoneCy Flint");
  const Show& show = Named(world.Shows(), "Monday Mess");
  EXPECT_EQ(show.Owner, promotion.Uid);
  EXPECT_EQ(world.FindNetwork(show.Network)->Name, "Ten");
  EXPECT_EQ(staff(show.Announcer), "Ed Call");
  EXPECT_EQ(worker(show.Colour), "Ann Ring");
}

TEST(Merge, WhoRefersToATakenNameGetsTheOneWhoHasIt) {
  World world = Here();
  World there = SmallWorld()
                    .Network("Nine")
                    .Promotion("XYZ", kSmall)
                    .Promotion("CWA", kCult)
                    .Worker("Somebody Else")
                    .Worker("CWA Hand 3")
                    .Worker("Dee Nova")
                    .Staff("Ray Pen", kWriter)
                    .Team("Old And New", "CWA Hand 3", "Dee Nova")
                    .Show("Late Night", "Sunday", "Nine");
  there.Promotions().Erase(1);
  const Arrivals arrivals = MergeNewRecords(world, AsNew(there));
  EXPECT_EQ(Lines(arrivals)[0], "Promotion CWA Wrestling out: The name is taken.");
  EXPECT_EQ(Lines(arrivals)[1], "Network Nine out: The name is taken.");
  EXPECT_TRUE(arrivals.Rows[0].NameTaken);
  EXPECT_EQ(Named(world.Workers(), "Dee Nova").Employer, 1);
  EXPECT_EQ(Named(world.AllStaff(), "Ray Pen").Employer, 1);
  const Team& team = Named(world.Teams(), "Old And New");
  EXPECT_EQ(team.Worker1, Named(world.Workers(), "CWA Hand 3").Uid);
  EXPECT_EQ(team.Worker2, Named(world.Workers(), "Dee Nova").Uid);
  EXPECT_EQ(Named(world.Shows(), "Late Night").Network, 1);
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
}

// What clashes among the new records themselves.
TEST(Merge, TheFirstOfAUidIsMeantAndNobodyIsLedToAStranger) {
  World world = Here();
  NewRecords coming;
  const auto worker = [](int uid, std::string_view name, int manager = 0) {
    Worker w = World(SmallWorld().OnTheMarket().Worker("X")).Workers()[1];
    w.Name = name;
    w.Uid = uid;
    w.Manager = manager;
    return w;
  };
  coming.Workers.Records = {worker(40, "First"),      worker(40, "Second"), worker(41, "First"),
                            worker(0, "Zero"),        worker(-7, "Minus"),  worker(42, "Lost"),
                            worker(43, kToBeDeleted), worker(44, ""),       worker(44, "None")};
  coming.Teams.Records.resize(3);
  const std::array<std::array<int, 2>, 3> pairs = {{{40, 42}, {41, 42}, {42, 45}}};
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    coming.Teams.Records[i].Worker1 = pairs[i][0];
    coming.Teams.Records[i].Worker2 = pairs[i][1];
  }
  const Arrivals arrivals = MergeNewRecords(world, coming);
  // 45 is what Second gets, but not whom the third team means.
  EXPECT_EQ(Lines(arrivals),
            (Texts{"Worker First", "Worker Second 40>45: Its uid belongs to First.",
                   "Worker First out: The name is taken.", "Worker Zero 0>46: Its uid is invalid.",
                   "Worker Minus -7>47: Its uid is invalid.", "Worker Lost",
                   "Worker To Be Deleted out: It is marked as gone.",
                   "Worker  out: It has no name.", "Worker None out: It has no name.", "Team ",
                   "Team  out: The two are a team already.", "Team  out: It lacks a partner."}));
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
}

TEST(Merge, FreeUidsAreFoundInGapsWhereThereIsNothingBehindTheHighest) {
  World world = SmallWorld().OnTheMarket().Worker("One", [](Worker& w) { w.Uid = 32767; });
  World there = SmallWorld().OnTheMarket().Worker("Two", [](Worker& w) { w.Uid = 32767; });
  EXPECT_EQ(MergeNewRecords(world, AsNew(there)).Rows[0].Becomes, 1);
}

TEST(Merge, ShowsKeepToTheirSpots) {
  World world = Here();
  NewRecords coming;
  const auto add = [&](std::string_view name, const char* day, const char* slot, int network = 1) {
    Show& show = coming.Shows.Records.emplace_back(world.Shows()[1]);
    show.Name = name;
    show.Day = day;
    show.Slot = slot;
    show.Network = network;
  };
  add("Clash", "Friday", "P");
  add("Late", "Friday", "G");
  add("Friday Fire", "Monday", "P");
  add("", "Monday", "P");
  add(kToBeDeleted, "Monday", "P");
  add("Nowhere", "Friday", "P", 99);
  add("Fourth", "Sunday", "P");
  EXPECT_EQ(Lines(MergeNewRecords(world, coming)),
            (Texts{"Show Clash out: Its network has Friday Fire at that time.", "Show Late",
                   "Show Friday Fire out: The name is taken.", "Show  out: It has no name.",
                   "Show To Be Deleted out: It is marked as gone.", "Show Nowhere",
                   "Show Fourth out: Its promotion has three shows already."}));
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
}

TEST(Merge, AFullFileRefusesInTheEditorsWords) {
  World world = SmallWorld().Network("N").Build();
  NewRecords coming;
  for (int i = 2; i <= 1001; ++i) {
    Network network = world.Networks()[1];
    network.Uid = i;
    network.Name = "N" + std::to_string(i);
    if (i < 1000)
      world.Networks().Append(network);
    else
      coming.Networks.Records.push_back(network);
    Show show;
    show.Name = "S" + std::to_string(i);
    world.Shows().Append(show);
  }
  coming.Shows.Records.resize(1);
  coming.Shows.Records[0].Name = "S1";
  EXPECT_EQ(Lines(PreviewMerge(world, coming)),
            (Texts{"Network N1000", "Network N1001 out: Maximum 1,000 networks per file!",
                   "Show S1 out: Maximum 1,000 shows per file!"}));
}

/// What was here stands first in every file, to the byte.
void ExpectBegins(const World& world, const World& before) {
  const auto tables = world.Tables(), old = before.Tables();
  for (std::size_t i = 0; i < tables.size(); ++i) {
    const ByteSpan now = tables[i]->RecordBytes(), was = old[i]->RecordBytes();
    EXPECT_TRUE(now.size() >= was.size() && std::equal(was.begin(), was.end(), now.begin()))
        << tables[i]->File();
  }
}

TEST(Merge, WhateverIsInTheFilesTheDataStayInOrder) {
  for (std::uint64_t seed = 1; seed <= 30; ++seed) {
    SCOPED_TRACE(seed);
    Dice dice(seed);
    World world = seed % 3 == 0 ? RandomData(seed) : Here();
    NewRecords coming = AsNew(seed % 2 == 0 ? RandomData(seed + 100) : Linked());
    const auto spoil = [&]<class T>(RecordFile<T>& file) {
      for (T& record : file.Records)
        for (const Field& field : LayoutOf<T>().Fields)
          if (dice.OneIn(8)) Scramble(dice, field, 0, reinterpret_cast<std::byte*>(&record));
      file.Records.resize(file.Records.size() + 3);
      for (std::size_t i = file.Records.size() - 3; i < file.Records.size(); ++i)
        for (std::size_t b = 0; b < sizeof(T); ++b)
          reinterpret_cast<std::byte*>(&file.Records[i])[b] = dice.Byte();
    };
    spoil(coming.Networks);
    spoil(coming.Promotions);
    spoil(coming.Workers);
    spoil(coming.AllStaff);
    spoil(coming.Teams);
    spoil(coming.Shows);
    ASSERT_EQ(Lines(CheckWorld(world)), Texts{});
    const World before = CopyOf(world);
    MergeNewRecords(world, coming);
    EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
    ExpectBegins(world, before);
  }
}

// Workers of another world, taken in as free agents.

/// People under contract, with all that ties them to their world.
std::vector<Worker> Foreign() {
  World world = SmallWorld()
                    .Promotion("FAR", kCult, [](Promotion& p) { p.Split[0] = "Blue"; })
                    .Worker("Mae Boss", kManager, 40)
                    .Worker("Gil Tied",
                            [](Worker& w) {
                              w.Split = "Blue";
                              w.Unsackable = true;
                              w.ContractMonths = kNoEnd;
                              w.ContractType = "Wri";
                              w.CreativeControl = true;
                              w.Debuted = true;
                              w.TurnPending = true;
                              w.Status = "Hom";
                              w.StatusMonths = 2;
                              w.Morale = 10;
                            })
                    .Worker("CWA Hand 2")
                    .Worker("Dev Young", kDevelopmentDeal, 35)
                    .Worker("Sent Away", kSentToDevelopment + kMidcard, 60)
                    .Stable("The Far Firm", {"Gil Tied"});
  Named(world.Workers(), "Gil Tied").Manager = Named(world.Workers(), "Mae Boss").Uid;
  return {world.Workers().begin(), world.Workers().end()};
}

TEST(Import, LeavesContractsAndTiesBehind) {
  World world = Here();
  const Arrivals arrivals = ImportWorkers(world, Foreign(), {2, 4, 5});
  EXPECT_EQ(Lines(arrivals), (Texts{"Worker Gil Tied 2>6: Its uid belongs to CWA Hand 2.",
                                    "Worker Dev Young", "Worker Sent Away"}));
  EXPECT_EQ(Lines(arrivals.Mended), Texts{});
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
  Worker wanted = Foreign()[1];
  wanted.Uid = 6;
  wanted.Employer = 0;
  wanted.ContractType = "Non";
  wanted.ContractMonths = 0;
  wanted.CreativeControl = false;
  wanted.Status = "Nor";
  wanted.Morale = 80;
  wanted.Stable = "None";
  wanted.Manager = 0;
  wanted.Split = "None";
  wanted.Unsackable = false;
  wanted.TurnPending = false;
  wanted.Debuted = false;
  EXPECT_EQ(Named(world.Workers(), "Dev Young").Position, kOpener);
  EXPECT_EQ(Named(world.Workers(), "Sent Away").Position, kMidcard);
  World expected = Here();
  expected.Workers().Append(wanted);
  world.Workers().Keep([](const Worker& w) { return !(w.Uid == 4 || w.Uid == 5); });
  ExpectSame(world, expected);
}

}  // namespace
}  // namespace grapplemont::test
