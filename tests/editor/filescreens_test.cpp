#include <gtest/gtest.h>

#include <filesystem>

#include "editor/screens/screenfiles.h"
#include "editorhome.h"
#include "newrecords.h"
#include "records/fields/grouping.h"
#include "support/randomworld.h"

namespace grapplemont::test {
namespace {

World Here() {
  return SmallWorld().Promotion("CWA", kCult).Owner("Ruth Vane").Crew(3).Build();
}

World There() {
  return SmallWorld()
      .Promotion("NEW", kSmall)
      .Owner("Ola Brandt")
      .Worker("Bo Stone", [](Worker& w) { w.BirthMonth = 300; })
      .Worker("Cy Flint")
      .Team("Stone And Flint", "Bo Stone", "Cy Flint")
      .BuildUnchecked();
}

class EditedHome : public DataHome {
 public:
  explicit EditedHome(const World& data = Here()) : DataHome(data) {}

  void Put(const std::string& name, const Table& table) {
    const ByteSpan bytes = table.Contents();
    Write("data/" + name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  }
  void PutNew(const World& there) {
    Put("newpromos.dat", there.Promotions());
    Put("newwrestler.dat", there.Workers());
    Put("newstaff.dat", there.AllStaff());
    Put("newteams.dat", there.Teams());
  }
};

std::string Cell(ScriptDesk& desk, const char* list, int row, int column) {
  return desk.Rows(list)
      .at(static_cast<std::size_t>(row - 1))
      .at(static_cast<std::size_t>(column - 1));
}

/// Damaged from end to end: nearly every field of 300 workers is wrong.
World Rubbish() {
  World world = Here();
  Dice dice(5);
  std::vector<Worker> workers(300);
  for (Worker& worker : workers)
    for (std::byte& byte : std::as_writable_bytes(std::span(&worker, 1))) byte = dice.Byte();
  world.Workers().Rewrite(std::move(workers));
  return world;
}

TEST(FrmEditor, ShowsTheFirstOfVeryManyFaultsAndCountsTheRest) {
  EditedHome home(Rubbish());
  const std::size_t count = CheckWorld(Rubbish()).size();
  ASSERT_GT(count, 5000u);
  for (const char* screen : {"frmEditMaintain", "frmEditor"}) {
    home.Desk.Open(screen);
    EXPECT_EQ(home.Desk.Rows("lstfaults").size(), 1000u);
    EXPECT_NE(home.Desk.Text("lblfacts").find(", of which the first 1,000 are shown."),
              std::string::npos);
  }
  const std::string told =
      Grouped(static_cast<long long>(count)) + " faults, of which the first 1,000 are shown.";
  EXPECT_TRUE(home.Desk.Text("lblfacts").ends_with(told)) << home.Desk.Text("lblfacts");
  home.Desk.Open("frmEditWres");
  EXPECT_LT(home.Desk.Text("lblfault").size(), 600u);
  World fresh = Rubbish();
  EXPECT_LE(MendWorld(fresh).First.size(), 1000u);
  EXPECT_TRUE(CheckWorld(fresh).empty());
}

TEST(FrmEditMaintain, ReportsBeforeItMendsAndThenFindsNothing) {
  World damaged = Here();
  damaged.Workers()[2].BirthMonth = 999;
  damaged.Workers()[3].Employer = 77;
  EditedHome home(damaged);
  home.Remove("data/event.dat");
  home.Write("data/teams.dat", "xyz");
  home.Desk.Open("frmEditMaintain");
  const auto faults = home.Desk.Rows("lstfaults");
  ASSERT_EQ(faults.size(), 4u);
  EXPECT_EQ(faults[0], (Texts{"event.dat", "", "", "", "is missing"}));
  EXPECT_EQ(faults[1],
            (Texts{"teams.dat", "", "", "", "ends in 3 bytes that are not a whole record"}));
  EXPECT_EQ(faults[2],
            (Texts{"wrestler.dat", "2", "CWA Hand 2", "BirthMonth", "is 999, outside 0 to 12"}));
  EXPECT_EQ(Cell(home.Desk, "lstdoings", 1, 5), "is missing; made without a record");
  EXPECT_TRUE(home.Desk.Rows("lstleft").empty());
  const std::string words = home.Desk.Text("lblfacts");
  EXPECT_EQ(words.find("4 faults. The clean-up takes "), 0u) << words;
  const auto before = home.Files();
  home.Desk.ExpectAsk("Clean Up?", kAnyText, false);
  home.Desk.Click("cmdclean");
  EXPECT_EQ(home.Files(), before);

  home.Desk.ExpectAsk("Clean Up?", kAnyText, true);
  home.Desk.Click("cmdclean");
  EXPECT_EQ(Lines(CheckWorld(home.OnDisk())), Texts{});
  EXPECT_TRUE(home.Desk.Rows("lstfaults").empty());
  EXPECT_FALSE(home.Desk.Enabled("cmdclean"));
  EXPECT_TRUE(home.Desk.Text("lblfacts").ends_with("No faults: 1 promotion, 3 workers, 1 staff."));
}

TEST(FrmEditMaintain, TellsAFileThatCannotBeReadAndLeavesIt) {
  EditedHome home;
  home.Write("data/promos.dat", std::string(309 * 40, 'x'));
  home.Desk.Open("frmEditor");
  EXPECT_EQ(home.Desk.Text("lblpromo"), "cannot be read");
  home.Desk.Click("cmdpromo");
  EXPECT_EQ(home.Desk.Tip("cmdnew"), "The file cannot be read.");
  home.Desk.Open("frmEditMaintain");
  for (const char* list : {"lstfaults", "lstleft"})
    EXPECT_EQ(home.Desk.Rows(list)[0],
              (Texts{"promos.dat", "", "", "",
                     "cannot be read: promos.dat is longer than its most of 11123 bytes."}));
  home.Desk.ExpectAsk("Clean Up?", kAnyText, true);
  home.Desk.Click("cmdclean");
  EXPECT_EQ(std::filesystem::file_size(home.Path("data/promos.dat")), 309u * 40);
}

TEST(FrmEditMerge, PreviewsMergesAndKeepsTheNewFiles) {
  EditedHome home;
  home.PutNew(There());
  home.Desk.Open("frmEditMerge");
  EXPECT_EQ(home.Desk.Text("lblfolder"),
            "They are looked for in " + home.Path("data") + " and stay there.");
  EXPECT_EQ(home.Desk.FirstColumn("lstrows"),
            (Texts{"NEW Wrestling", "Bo Stone", "Cy Flint", "Ola Brandt", "Stone And Flint"}));
  EXPECT_EQ(home.Desk.Rows("lstrows")[1], (Texts{"Bo Stone", "Worker", "1", "1", "New uid", "4",
                                                 "Its uid belongs to CWA Hand 1."}));
  EXPECT_EQ(Cell(home.Desk, "lstmended", 1, 5), "is 300, outside 0 to 12; made 12");
  EXPECT_EQ(home.Desk.Text("lblfacts"), "5 records come in, 4 under another uid.");

  home.Desk.ExpectAsk("Merge?", kAnyText, true);
  home.Desk.Click("cmdmerge");
  EXPECT_EQ(home.Desk.Text("lblfacts"), "Merged. 5 records come in, 4 under another uid.");
  EXPECT_FALSE(home.Desk.Enabled("cmdmerge"));
  const World data = home.OnDisk();
  EXPECT_EQ(Lines(CheckWorld(data)), Texts{});
  EXPECT_EQ(Named(data.Workers(), "Bo Stone").Employer, 2);
  EXPECT_TRUE(std::filesystem::exists(home.Path("data/newwrestler.dat")));

  home.Desk.Click("cmdlook");
  EXPECT_EQ(home.Desk.Text("lblfacts"), "0 records come in; 5 stay out.");
  EXPECT_EQ(home.Desk.Tip("cmdmerge"), "No new record can come in.");
}

TEST(FrmEditMerge, AnotherNameLetsARecordIn) {
  EditedHome home;
  World there = There();
  there.Promotions()[1].Initials = "CWA";
  Named(there.Workers(), "Bo Stone").Name = "CWA Hand 2";
  home.PutNew(there);
  home.Desk.Open("frmEditMerge");
  home.Desk.Pick("lstrows", "Cy Flint");
  EXPECT_FALSE(home.Desk.Enabled("cmdrename"));
  home.Desk.Pick("lstrows", "NEW Wrestling");
  home.Desk.ExpectPrompt("Another Name", "NEW Wrestling by other initials:", "NWC", "");
  home.Desk.Click("cmdrename");
  home.Desk.Pick("lstrows", "CWA Hand 2");
  home.Desk.ExpectPrompt("Another Name", "CWA Hand 2 by another name:", "Hal Twin", "CWA Hand 2");
  home.Desk.Click("cmdrename");
  EXPECT_EQ(home.Desk.Text("lblfacts"), "5 records come in, 4 under another uid.");
  home.Desk.ExpectAsk("Merge?", kAnyText, true);
  home.Desk.Click("cmdmerge");
  const World data = home.OnDisk();
  EXPECT_EQ(Named(data.Promotions(), "NWC").Name, "NEW Wrestling");
  EXPECT_EQ(Named(data.Workers(), "Hal Twin").Employer, Named(data.Promotions(), "NWC").Uid);
}

TEST(FrmEditMerge, TellsDamagedFilesAndDoesNotMind) {
  EditedHome home;
  home.Write("data/newwrestler.dat", std::string(500, '\xFF'));
  home.Write("data/newtv.dat", "");
  home.Write("data/newstaff.dat", std::string(58 * 10001, 'x'));
  std::filesystem::create_directory(home.Path("data/newteams.dat"));
  home.Desk.Open("frmEditMerge");
  EXPECT_EQ(home.Desk.Rows("lstfiles"), (std::vector<Texts>{{"newnetwork.dat", "not there"},
                                                            {"newpromos.dat", "not there"},
                                                            {"newwrestler.dat", "2"},
                                                            {"newstaff.dat", "0"},
                                                            {"newteams.dat", "0"},
                                                            {"newtv.dat", "0"}}));
  EXPECT_EQ(home.Desk.Text("lblremarks"),
            "newwrestler.dat ends in 26 bytes that are not a whole record; they are left aside.\n"
            "newstaff.dat has room for 10,001 records and is left aside. Maximum 10,000 staff "
            "members per file!\n"
            "newteams.dat is not a plain file and is left aside.\n"
            "newtv.dat is empty.");
  home.Desk.ExpectAsk("Merge?", kAnyText, true);
  home.Desk.Click("cmdmerge");
  EXPECT_EQ(Lines(CheckWorld(home.OnDisk())), Texts{});
}

TEST(FrmEditMerge, SendsDataWithFaultsToTheCleanUpFirst) {
  World damaged = Here();
  damaged.Workers()[2].BirthMonth = 999;
  EditedHome home(damaged);
  home.PutNew(There());
  home.Desk.Open("frmEditMerge");
  EXPECT_EQ(home.Desk.Text("lblfacts"), "The data have 1 fault. Clean them up first.");
  EXPECT_EQ(home.Desk.Tip("cmdmerge"), "The data have 1 fault. Clean them up first.");
  home.Desk.Click("cmdclean");
  home.Desk.ExpectAsk("Clean Up?", kAnyText, true);
  home.Desk.Click("cmdclean");
  home.Desk.Click("cmdback");
  EXPECT_TRUE(home.Desk.Enabled("cmdmerge"));
  EXPECT_FALSE(home.Desk.Visible("cmdclean"));
}

TEST(FrmEditImport, TakesTheChosenInAsFreeAgents) {
  EditedHome home;
  World there = SmallWorld()
                    .Promotion("FAR")
                    .Worker("Gil Tied")
                    .Worker("CWA Hand 2")
                    .Worker("Mae Boss", kManager, 40)
                    .Worker("Lon Wolf", [](Worker& w) { w.Uid = 50; });
  home.Put("wrestler2.dat", there.Workers());
  home.Desk.Open("frmEditImport");
  std::vector<std::string> here;
  for (const auto& row : home.Desk.Rows("lstworkers")) here.push_back(row[1]);
  EXPECT_EQ(here, (Texts{"Number", "Name", "Number", ""}));
  EXPECT_FALSE(home.Desk.Enabled("cmdimport"));
  EXPECT_EQ(home.Desk.Tip("cmdimport"), "Choose workers first.");

  home.Desk.Pick("lstworkers", "CWA Hand 2");
  EXPECT_EQ(home.Desk.Tip("cmdimport"), "None of the chosen can come in.");
  home.Desk.Click("cmdall");
  EXPECT_EQ(home.Desk.Text("lblfacts"), "3 records come in, 2 under another uid; 1 stays out.");
  home.Desk.Click("cmdnone");
  home.Desk.Pick("cmbshow", "Wrestlers not here yet");
  EXPECT_EQ(home.Desk.FirstColumn("lstworkers"), (Texts{"Gil Tied", "Lon Wolf"}));
  home.Desk.Pick("cmbshow", "Others not here yet");
  EXPECT_EQ(home.Desk.FirstColumn("lstworkers"), Texts{"Mae Boss"});
  home.Desk.Pick("cmbshow", "Who is not here yet");
  home.Desk.Pick("lstworkers", "Gil Tied");
  home.Desk.Pick("lstworkers", "Lon Wolf");
  EXPECT_EQ(home.Desk.Rows("lstrows"),
            (std::vector<Texts>{{"Gil Tied", "New uid", "Its uid belongs to CWA Hand 1."},
                                {"Lon Wolf", "Added", ""}}));
  home.Desk.ExpectAsk("Import?", kAnyText, true);
  home.Desk.Click("cmdimport");
  EXPECT_EQ(home.Desk.Text("lblfacts"), "Imported. 2 records come in, 1 under another uid.");
  EXPECT_EQ(home.Desk.FirstColumn("lstworkers"), Texts{"Mae Boss"});
  const World data = home.OnDisk();
  EXPECT_EQ(Named(data.Workers(), "Gil Tied").Employer, 0);
  EXPECT_EQ(Named(data.Workers(), "Lon Wolf").Uid, 50);
  EXPECT_EQ(Lines(CheckWorld(data)), Texts{});
}

TEST(FrmEditImport, SaysWhereTheFileIsLookedForAndWhatIsWrongWithIt) {
  EditedHome home;
  home.Desk.Open("frmEditImport");
  EXPECT_EQ(home.Desk.Text("lblfolder"), "There is no wrestler2.dat in " + home.Path("data") + ".");
  home.Write("data/wrestler2.dat", std::string(240, '\0'));
  home.Desk.Click("cmdlook");
  EXPECT_EQ(home.Desk.Text("lblfolder"),
            "wrestler2.dat ends in 3 bytes that are not a whole record; they are left aside.");
  home.Desk.Click("cmdall");
  EXPECT_EQ(home.Desk.Tip("cmdimport"), "None of the chosen can come in.");
  EXPECT_EQ(Cell(home.Desk, "lstrows", 1, 3), "It has no name.");
}

TEST(FrmEditTables, OutAndInGiveTheSameBytes) {
  EditedHome home;
  home.Desk.Open("frmEditTables");
  home.Desk.Type("txtfolder", "mine");
  EXPECT_EQ(home.Desk.Text("lblplace"), "It lies at " + home.Path("mine") + ".");
  home.Desk.Click("cmdexport");
  EXPECT_EQ(home.Desk.Text("lblfacts"),
            "Wrote the tables of 1 promotion, 3 workers, 1 staff to " + home.Path("mine") + ".");
  World changed = Here();
  changed.Workers().Erase(2);
  EXPECT_FALSE(home.Desk.Enabled("cmdimport"));
  EditedData(home.Play).World().Workers().Erase(2);
  home.Desk.Click("cmdlook");
  ExpectSame(home.OnDisk(), Complete(std::move(changed)));
  EXPECT_EQ(home.Desk.Text("lblfacts"), "No mistakes: 1 promotion, 3 workers, 1 staff.");
  EXPECT_EQ(home.Desk.Rows("lstcounts")[1], (Texts{"workers.csv", "wrestler.dat", "2", "3"}));
  home.Desk.ExpectAsk("Replace the data?",
                      "The data hold 1 promotion, 2 workers, 1 staff. Put 1 promotion, 3 workers, "
                      "1 staff in their place? What they are now is kept as a backup.",
                      true, ui::Default::No);
  home.Desk.Click("cmdimport");
  EXPECT_EQ(home.Desk.Text("lblfacts"), "Built the data again: 1 promotion, 3 workers, 1 staff.");
  ExpectSame(home.OnDisk(), Complete(Here()));
}

TEST(FrmEditTables, ListsEveryMistakeAndReplacesNothing) {
  EditedHome home;
  home.Desk.Open("frmEditTables");
  home.Desk.Click("cmdexport");
  home.Remove("world-tables/events.csv");
  home.Write("world-tables/teems.csv", "");
  home.Desk.Click("cmdlook");
  EXPECT_EQ(home.Desk.FirstColumn("lstmistakes"),
            (Texts{"teems.csv: is not a table of a world; did you mean teams.csv?",
                   "events.csv: is missing; a table without records has only its header"}));
  EXPECT_EQ(home.Desk.Text("lblfacts"), "2 mistakes to mend before these tables can be taken in.");
  EXPECT_EQ(home.Desk.Tip("cmdimport"), "2 mistakes to mend before these tables can be taken in.");
  home.Desk.ExpectSay("Error!", home.Path("world-tables") +
                                    " holds other things, such as teems.csv. Name a new folder.");
  home.Desk.Click("cmdexport");
}

TEST(FrmEditTables, AsksBeforeItReplacesTablesAndTellsOfFaults) {
  World damaged = Here();
  damaged.Workers()[2].BirthMonth = 999;
  EditedHome home(damaged);
  home.Desk.Open("frmEditTables");
  const char* told =
      "The data folder has 1 fault, which Check And Clean-Up lists; the tables will not build "
      "until "
      "they are mended.";
  home.Desk.ExpectSay("Faults", told);
  home.Desk.Click("cmdexport");
  home.Desk.ExpectAsk("Replace?",
                      home.Path("world-tables") +
                          " holds events.csv, networks.csv, promotions.csv, shows.csv and 6 more. "
                          "Put the tables of the data in their place?",
                      false, ui::Default::No);
  home.Desk.Click("cmdexport");
  home.Desk.Type("txtfolder", "");
  EXPECT_EQ(home.Desk.Tip("cmdexport"), "Name a folder first.");
  home.Desk.Type("txtfolder", "nowhere/tables");
  home.Desk.ExpectSay("Error!", "There is no folder " + home.Path("nowhere") + " to put it in.");
  home.Desk.Click("cmdexport");
}

}  // namespace
}  // namespace grapplemont::test
