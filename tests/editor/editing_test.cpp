#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <set>
#include <sstream>

#include "editor/keeping.h"
#include "editor/screens/screenpages.h"
#include "editorhome.h"
#include "records/modWresCheck.h"
#include "support/randomworld.h"

// An author at work, by the names of the controls.

namespace grapplemont::test {
namespace {

/// "txtname=Bram; cmbsex=male; chkdiva=on": types into boxes, picks rows, turns marks on and off.
void Fill(ScriptDesk& desk, const std::string& steps) {
  std::istringstream all(steps);
  for (std::string step; std::getline(all >> std::ws, step, ';');) {
    const std::string control = step.substr(0, step.find('=')),
                      value = step.substr(step.find('=') + 1);
    if (control.starts_with("txt"))
      desk.Type(control, value);
    else if (control.starts_with("cmb"))
      desk.Pick(control, value);
    else
      desk.Check(control, value == "on");
  }
}

struct NewRecordCase {
  std::string Button, Typed;
  std::string Shown;  // the first cell of its row
};
const NewRecordCase kNewRecords[] = {
    {"cmdwres", "txtname=Bram Okafor; txtshortname=Bram", "Bram Okafor"},
    {"cmdpromo", "txtname=Far Out; txtinitials=FAR", "FAR"},
    {"cmdowners", "txtname=Deep Pockets; cmbstyle=6, youth (risk 20)", "Deep Pockets"},
    {"cmdstaff", "txtname=Doc Tor; cmbposition=Medical", "Doc Tor"},
    {"cmdteams", "txtname=Odd Pair; cmbworker1=Cal Drift; cmbworker2=CWA Hand 6", "Odd Pair"},
    {"cmdstables", "txtname=The Club; cmbowner=NEW", "The Club"},
    {"cmdbelts", "txtname=NEW Cup; cmbowner=NEW", "NEW Cup"},
    {"cmdtv", "txtname=New Dawn; cmbowner=NEW; cmbnetwork=Local; cmbday=Friday", "New Dawn"},
    {"cmdevents", "txtname=Big Bang; cmbowner=CWA; cmbmonth=April", "Big Bang"},
    {"cmdnetworks", "txtname=Ten; txtprime=750", "Ten"},
    {"cmdsponsors", "txtname=Fizz; cmbpromotion=NEW", "Fizz"}};

void Add(ScriptDesk& desk, const NewRecordCase& made) {
  desk.Click(made.Button);
  desk.Click("cmdnew");
  Fill(desk, made.Typed);
  desk.Click("cmdsave");
}

TEST(AnAuthor, AddsAndDeletesOneOfEverythingWithoutATrace) {
  for (const NewRecordCase& made : kNewRecords) {
    SCOPED_TRACE(made.Button);
    EditorHome home;
    const auto before = home.Files();
    Add(home.Desk, made);
    EXPECT_NE(before, home.Files());
    EXPECT_TRUE(CheckWorld(home.OnDisk()).empty());
    home.Desk.Pick("lstrecords", made.Shown);
    home.Desk.ExpectAsk("Delete", kAnyText, true, ui::Default::No);
    home.Desk.Click("cmddelete");
    EXPECT_EQ(before, home.Files());
  }
}

TEST(AnAuthor, GetsTheDataBackFromTheBackup) {
  EditorHome home;
  const auto before = home.Files();
  EXPECT_FALSE(home.Desk.Enabled("cmdrestore"));
  Add(home.Desk, kNewRecords[0]);
  home.Desk.Click("cmdback");
  const auto after = home.Files();
  for (const auto& then : {before, after}) {
    home.Desk.ExpectAsk("Restore Backup", kAnyText, true, ui::Default::No);
    home.Desk.Click("cmdrestore");
    EXPECT_EQ(then, home.Files());
    EXPECT_EQ(then == before ? "9 of 25,000" : "10 of 25,000", home.Desk.Text("lblwres"));
  }
}

TEST(AnAuthor, ChangesEveryKindOfField) {
  EditorHome home;
  World expected = home.OnDisk();
  home.Page("cmdwres", "Cal Drift");
  Fill(home.Desk,
       "txtname= Cass Drift ; cmbgender=female; chkdiva=on; cmbbirthmonth=May; chkspeaks=off; "
       "cmbfinisher1=Submission; txtbrawl=0; cmbemployer=CWA; txtmonths=24; txtwage=1,250; "
       "cmbstable=The Firm; cmbmanager=Max Agent; txtlastturn=2025-12-24");
  home.Desk.Click("cmdsave");
  Worker& cass = Named(expected.Workers(), "Cal Drift");
  cass.Name = "Cass Drift";
  cass.Gender = false;
  cass.Diva = true;
  cass.BirthMonth = 5;
  cass.Speaks = false;
  FinisherFlags(cass, 1, FinisherType::Submission);
  cass.Brawl = 0;
  cass.Employer = Named(expected.Promotions(), "CWA").Uid;
  cass.ContractMonths = 24;
  cass.Wage = 1250;
  cass.Stable = "The Firm";
  cass.Manager = Named(expected.Workers(), "Max Agent").Uid;
  cass.LastTurn = Day{std::chrono::year{2025} / 12 / 24};
  ExpectSame(home.OnDisk(), expected);
}

/// What is done to a record, and what the data hold then.
struct ChangeCase {
  std::string Button, Record, Changes;
  std::function<void(World&)> Then;
};
const std::vector<ChangeCase> kChanges = {
    {"cmdpromo", "CWA", "txtcamp=The Yard; cmbtrain=Superb; cmbheadtrainer=Tray Nor",
     [](World& world) {
       Promotion& cwa = world.Promotions()[1];
       cwa.CampName = "The Yard";
       cwa.CampFacilities = 4;
       cwa.HeadTrainer = Named(world.AllStaff(), "Tray Nor").Uid;
     }},
    {"cmdstables", "The Firm", "txtname=The Board",
     [](World& world) {
       world.Stables()[1].Name = "The Board";
       Named(world.Workers(), "CWA Hand 3").Stable = "The Board";
       Named(world.Workers(), "CWA Hand 4").Stable = "The Board";
     }},
    {"cmdtv", "Sunday Slam", "cmbannouncer=Ann Nounce; cmbslot=Late Night",
     [](World& world) {
       world.Shows()[1].Announcer = Named(world.AllStaff(), "Ann Nounce").Uid;
       world.Shows()[1].Slot = "L";
     }},
    {"cmdsponsors", "Gulp", "cmbpromotion=NEW",
     [](World& world) {
       Promotion &cwa = world.Promotions()[1], &rival = world.Promotions()[2];
       cwa.Sponsor[0] = 0;
       rival.Sponsor[0] = world.Sponsors()[1].Uid;
       world.Sponsors()[1].Promotion = rival.Uid;
     }},
    {"cmdpromo", "CWA", "cmbsponsor1=None; txtsplit1=Red",
     [](World& world) {
       world.Promotions()[1].Sponsor[0] = 0;
       world.Promotions()[1].Split[0] = "Red";
       world.Sponsors()[1].Promotion = 0;
       world.Sponsors()[1].ContractMonths = 0;
     }},
};

TEST(AnAuthor, SeesWhatHangsOnARecordFollow) {
  for (const ChangeCase& change : kChanges) {
    SCOPED_TRACE(change.Record + ", " + change.Changes);
    EditorHome home;
    World expected = home.OnDisk();
    home.Page(change.Button, change.Record);
    Fill(home.Desk, change.Changes);
    home.Desk.Click("cmdsave");
    change.Then(expected);
    ExpectSame(home.OnDisk(), expected);
    EXPECT_TRUE(CheckWorld(home.OnDisk()).empty());
  }
}

TEST(AChampionWhoMovesOn, LeavesHisTitlesAndIsToldOf) {
  EditorHome home;
  home.Page("cmdwres", "CWA Hand 1");
  home.Desk.Pick("cmbemployer", "NEW");
  home.Desk.ExpectSay("Saved",
                      "This has also happened:\n"
                      "CWA Crown: Holder does not work for the Title's promotion; vacated.\n"
                      "CWA Tag: Holder does not work for the Title's promotion; vacated.");
  home.Desk.Click("cmdsave");
  const World world = home.OnDisk();
  EXPECT_EQ(0, world.Titles()[1].Holder);
  EXPECT_EQ(0, world.Titles()[2].Partner);
}

TEST(AMember, WhoChangesEmployerLosesTheStableInTheForm) {
  EditorHome home;
  home.Page("cmdwres", "CWA Hand 3");
  home.Desk.Pick("cmbemployer", "None");
  EXPECT_EQ("None", home.Desk.Text("cmbstable"));
  home.Desk.Click("cmdrevert");
  EXPECT_EQ("The Firm", home.Desk.Text("cmbstable"));
  EXPECT_FALSE(home.Desk.Enabled("cmdsave"));
}

const struct {
  std::string Button, Record;  // "" for a new one
  std::string Typed, Says;
} kRefusals[] = {
    {"cmdwres", "", "", "It needs a name."},
    {"cmdwres", "Cal Drift", "txtname=CWA Hand 1", "This name already exists!"},
    {"cmdwres", "Cal Drift", "txtname=None", "Nobody can be called \"None\"."},
    {"cmdwres", "Cal Drift", "txtbrawl=101", "Brawling: 0 to 100 percent."},
    {"cmdwres", "Cal Drift", "txtage=old; txtwage=-1",
     "Age: needs a number, 0 to 250 years.\nWage ($1000 a month): 0 to 10000 thousand dollars a "
     "month."},
    {"cmdwres", "Cal Drift", "txtlastturn=yesterday",
     "Last turn: needs a day as yyyy-mm-dd, or nothing."},
    {"cmdpromo", "NEW", "txtinitials=CWA", "These initials already exist!"},
    {"cmdteams", "", "txtname=One; cmbworker1=Cal Drift", "It lacks a partner."},
    {"cmdtv", "", "txtname=Copycat; cmbnetwork=Nine; cmbday=Sunday; cmbslot=Prime Time",
     "Slot is taken on that day by Sunday Slam."},
    {"cmdevents", "", "txtname=Again; cmbowner=CWA; cmbmonth=March",
     "Month has an Event of the promotion already."},
};

/// What no page shows: the editor's own, what one pick list says, and what a game writes again.
const std::regex kLeftOut(
    "^(Uid|Active|Finisher.(TopRope|Ground)|ColourIsWorker|Momentum|Rank|Money|TicketIncome|"
    "MerchIncome|PpvIncome|SponsorIncome|WrestlerWages|StaffWages|ProductionCost|AdvertisingCost|"
    "MerchCost|Last|Won|Lost|Holder)");

TEST(ThePages, ShowEveryFieldThatAnAuthorCanMean) {
  std::set<std::pair<RecordKind, std::string_view>> shown;
  for (const RecordPage& page : RecordPages())
    for (const FormGroup& group : page.Groups)
      for (const FormEntry& entry : group.Entries) shown.insert({page.Kind, entry.Field});
  for (const RecordPage& page : RecordPages())
    for (const Field& field : LayoutOf(page.Kind).Fields)
      for (int i = 0; i < field.Count; ++i) {
        const std::string name = FieldName(field, i);
        EXPECT_TRUE(shown.contains({page.Kind, name}) || std::regex_search(name, kLeftOut))
            << LayoutOf(page.Kind).Name << " " << name;
      }
}

TEST(AnAuthor, IsToldWhyARecordCannotBe) {
  for (const auto& refusal : kRefusals) {
    SCOPED_TRACE(refusal.Button + " " + refusal.Says);
    EditorHome home;
    const auto before = home.Files();
    home.Page(refusal.Button, refusal.Record);
    if (refusal.Record.empty()) home.Desk.Click("cmdnew");
    Fill(home.Desk, refusal.Typed);
    home.Desk.ExpectSay("Error!", refusal.Says);
    home.Desk.Click("cmdsave");
    EXPECT_EQ(before, home.Files());
    EXPECT_TRUE(home.Desk.Enabled("cmdsave")) << "what was typed is still there";
    home.Desk.Click("cmdrevert");
  }
}

TEST(FullFiles, TakeNoMore) {
  World data;
  for (int uid = 1; uid <= 35; ++uid) {
    Promotion promotion = As<Promotion>(NewRecord(RecordKind::Promotion).data());
    promotion.Uid = uid;
    promotion.Name = "Promotion " + std::to_string(uid);
    promotion.Initials = "P" + std::to_string(uid);
    data.Promotions().Append(promotion);
  }
  EditorHome home(data);
  home.Page("cmdpromo");
  for (const char* button : {"cmdnew", "cmdcopy"}) {
    home.Desk.ExpectSay("Error!", "Maximum 35 promotions per file!");
    home.Desk.Click(button);
  }
  home.Desk.Type("txtsearch", "promotion 2");
  EXPECT_EQ(11u, home.Desk.Rows("lstrecords").size());
  EXPECT_EQ(R"(For a promotion to go to the "next size", they have to reach 100% image during the )"
            "game. 0 to 100 percent.",
            home.Desk.Tip("txtimage"));
}

TEST(ACopy, HasAFreeNameAndGoesWhenItIsNotSaved) {
  EditorHome home;
  const auto before = home.Files();
  home.Page("cmdpromo", "CWA");
  home.Desk.Click("cmdcopy");
  EXPECT_EQ("CWA2", home.Desk.Text("txtinitials"));
  EXPECT_EQ("None", home.Desk.Text("cmbsponsor1"));
  for (const char* office : {"cmbcommissioner", "cmbheadtrainer", "cmbdevbooker"})
    EXPECT_EQ(1u, home.Desk.Rows(office).size()) << office << ": nobody works there yet";
  home.Desk.ExpectAsk("Unsaved Changes", kAnyText, false, ui::Default::No);
  home.Desk.Click("cmdback");
  EXPECT_EQ("frmEditPromo", home.Desk.TopName());
  home.Desk.Click("cmdsave");
  EXPECT_EQ(3, home.OnDisk().Promotions()[3].Uid);
  home.Desk.ExpectAsk("Delete",
                      "Are you sure you want to delete " + home.Desk.Text("lblrecord") + "?", true);
  home.Desk.Click("cmddelete");
  EXPECT_EQ(before, home.Files());
}

TEST(UnsavedChanges, AreAskedAboutBeforeTheyGo) {
  EditorHome home;
  home.Page("cmdwres", "Cal Drift");
  home.Desk.Type("txtage", "60");
  for (const bool throwAway : {false, true}) {
    home.Desk.ExpectAsk("Unsaved Changes",
                        "Cal Drift has changes that are not saved. Throw them away?", throwAway,
                        ui::Default::No);
    home.Desk.Pick("lstrecords", "CWA Hand 2");
    EXPECT_EQ(throwAway ? "CWA Hand 2" : "Cal Drift", home.Desk.Text("lblrecord"));
    EXPECT_EQ(throwAway, home.Desk.Text("txtage") != "60");
  }
  home.Desk.Click("cmdback");
  home.Desk.Click("cmdback");
  EXPECT_EQ("frmGameMenu", home.Desk.TopName());
  EXPECT_EQ(nullptr, home.Play.Joined());
}

const struct {
  std::string Button, Record;
  std::function<void(const World&)> Then;
} kDeletions[] = {
    {"cmdwres", "CWA Hand 1",
     [](const World& world) {
       EXPECT_EQ(0, world.Teams().Count());
       EXPECT_EQ(0, world.Titles()[1].Holder);
       EXPECT_EQ(0, world.Titles()[2].Holder);
     }},
    {"cmdpromo", "CWA",
     [](const World& world) {
       EXPECT_EQ(1, world.Promotions().Count());
       EXPECT_EQ(0, world.Shows().Count());
       EXPECT_EQ(0, world.Sponsors()[1].Promotion);
       EXPECT_EQ(0, world.Events()[1].Owner);
       EXPECT_EQ(kNoEnd, world.Titles()[1].Owner);
       for (const Worker& worker : world.Workers()) EXPECT_EQ(0, worker.Employer);
     }},
    {"cmdstaff", "Ann Nounce", [](const World& world) { EXPECT_EQ(3, world.AllStaff().Count()); }},
    {"cmdstables", "The Firm",
     [](const World& world) {
       for (const Worker& worker : world.Workers()) EXPECT_EQ("None", worker.Stable.Str());
     }},
    {"cmdnetworks", "Nine", [](const World& world) { EXPECT_EQ(0, world.Shows()[1].Network); }},
    {"cmdsponsors", "Gulp",
     [](const World& world) { EXPECT_EQ(0, world.Promotions()[1].Sponsor[0]); }},
};

TEST(ADeletion, IsForgottenByAllThatKnewTheRecord) {
  for (const auto& deletion : kDeletions) {
    SCOPED_TRACE(deletion.Record);
    EditorHome home;
    const auto before = home.Files();
    home.Page(deletion.Button, deletion.Record);
    ScriptDesk::Words question = kAnyText;
    if (deletion.Record == "CWA")
      question =
          "Are you sure you want to delete CWA Wrestling (CWA)?\n\nThis also happens:\n8 "
          "workers go free.\n3 members of staff go free.\n1 television show ends.\n2 Titles "
          "are nobody's.\n1 Event is nobody's.\n1 stable ends.";
    home.Desk.ExpectAsk("Delete", question, false, ui::Default::No);
    home.Desk.Click("cmddelete");
    EXPECT_EQ(before, home.Files());
    EXPECT_NE("", home.Desk.Text("lblrecord"));
    home.Desk.ExpectAsk("Delete", kAnyText, true);
    home.Desk.Click("cmddelete");
    const World world = home.OnDisk();
    deletion.Then(world);
    EXPECT_TRUE(CheckWorld(world).empty());
  }
}

TEST(DamagedData, AreShownWithTheirFaultsAndKeptWhereNobodyTouchesThem) {
  for (std::uint64_t seed = 1; seed <= 4; ++seed) {
    SCOPED_TRACE(seed);
    World data = EditorData();
    Dice dice(seed);
    const auto scramble = [&]<class T>(Records<T>& records) {
      for (T& record : records.Any())
        for (const Field& field : LayoutOf<T>().Fields)
          if (dice.OneIn(3)) Scramble(dice, field, 0, reinterpret_cast<std::byte*>(&record));
    };
    scramble(data.Workers());
    scramble(data.Promotions());
    EditorHome home(data);
    const auto before = home.Files();
    EXPECT_FALSE(home.Desk.Rows("lstfaults").empty());
    for (const RecordPage& page : RecordPages()) {
      home.Desk.Click(std::string(page.Button));
      const int rows = static_cast<int>(home.Desk.Rows("lstrecords").size());
      for (int row = 1; row <= rows; ++row) home.Desk.Pick("lstrecords", row);
      EXPECT_FALSE(home.Desk.Enabled("cmdsave")) << page.Screen;
      home.Desk.Click("cmdback");
    }
    EXPECT_EQ(before, home.Files());
    // One field is changed, the others keep their bytes.
    home.Desk.Click("cmdnetworks");
    home.Desk.Type("txtprime", "321");
    home.Desk.Click("cmdsave");
    Named(data.Networks(), "Nine").PrimeAudience = 321;
    ExpectSame(home.OnDisk(), data);
  }
}

}  // namespace
}  // namespace grapplemont::test
