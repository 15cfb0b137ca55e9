#include "booking/screens/screenstep.h"

#include <gtest/gtest.h>

#include "booking/ring.h"
#include "talkcompany.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;
using Cells = std::vector<Names>;

/// The wizard without its screen: a step at a time over a buffer that a test can look into.
class Steps : public WizardHost {
 public:
  explicit Steps(World world, int kind, bool isEvent = false)
      : Play(std::move(world)), Desk(Play.Desk), wizard_(BeginBooking(1, isEvent)) {
    wizard_.Buffer.Kind = kind;
    StepStored(false);
  }
  ~Steps() override { Desk.CloseAll(); }

  Wizard& State() override { return wizard_; }
  void StepStored(bool) override { StepDone(wizard_); }
  Steps& Open() {
    Desk.Open(MakeStepScreen(Play.Play, *this));
    return *this;
  }
  /// Does the present step: picks, then Done.
  Steps& Do(const Picks& picks) {
    Open();
    PickAll(Desk, picks);
    Desk.Click("cmddone");
    EXPECT_TRUE(Desk.Empty());
    return *this;
  }
  Names Buffer() const {
    Names names;
    for (const int uid : PeopleOf(wizard_.Buffer)) names.push_back(std::to_string(uid));
    return names;
  }

  GameOnWorld Play;
  ScriptDesk& Desk;

 private:
  Wizard wizard_;
};

/// A Done that must not go through.
void Refused(ScriptDesk& desk, const std::string& message) {
  const std::string screen = desk.TopName();
  desk.ExpectSay("Error!", message);
  desk.Click("cmddone");
  EXPECT_EQ(desk.TopName(), screen);
}

TEST(frmIV2m, BringsPartnerAndManagerAlongUntilThePlayerChooses) {
  Steps steps(TalkCompany(), kInterview);
  ScriptDesk& desk = steps.Do({"lsttype: Tag Team With Manager"}).Open().Desk;
  EXPECT_EQ(desk.FirstColumn("lstwres1"), (Names{"Max Mouth", "Mo Fresh"}));
  Refused(desk, "You must select a valid manager!");
  desk.Pick("lstwres2", "Bob Bold");
  desk.Click("cmddone");
  EXPECT_EQ(steps.Buffer(), (Names{"1", "3", "4"})) << "Max Mouth, Bob Bold, Cal Cold";

  Steps chosen(TalkCompany(), kInterview);
  ScriptDesk& other = chosen.Do({"lsttype: Tag Team With Manager"}).Open().Desk;
  PickAll(other, {"lstwres3: Tide Two", "lstwres1: Max Mouth", "lstwres2: Bob Bold"});
  Refused(other, "The manager selected does not manage both the chosen workers!");
  EXPECT_EQ(chosen.Buffer(), Names()) << "nothing is stored";
}

TEST(frmIV1, CannotBePassedWithoutATalker) {
  World mute = TalkCompany();
  for (Worker& worker : mute.Workers()) worker.Speaks = false;
  Steps steps(std::move(mute), kInterview);
  ScriptDesk& desk = steps.Do({"lsttype: Single Worker"}).Open().Desk;
  EXPECT_EQ(desk.TopName(), "frmIV1");
  EXPECT_TRUE(desk.Rows("lstwres1").empty());
  Refused(desk, "Please select a worker!");
}

TEST(frmIV2opp, OffersNoneFirstAndNoSpeakers) {
  Steps steps(TalkCompany(), kInterview);
  ScriptDesk& desk =
      steps.Do({"lsttype: Tag Team"}).Do({"lstwres1: Bob Bold", "lstwres2: Dan Dark"}).Open().Desk;
  const Names offered = desk.FirstColumn("lstopp1");
  EXPECT_EQ(offered.front(), "None");
  EXPECT_EQ(offered, desk.FirstColumn("lstopp2"));
  for (const char* absent : {"Bob Bold", "Dan Dark", "Com Boss"})
    EXPECT_EQ(std::count(offered.begin(), offered.end(), absent), 0) << absent;
  EXPECT_EQ(desk.Selected("lstopp1"), std::vector{1});
  desk.Pick("lstopp2", "Eve East");
  Refused(desk, "If the first opponent is 'None', then the second must be too!");
  desk.Pick("lstopp1", "Eve East");
  Refused(desk, "Please select two different people!");
  desk.Pick("lstopp2", "None");
  desk.Click("cmddone");
  EXPECT_EQ(steps.Buffer(), (Names{"3", "5", "6"}));
}

TEST(frmIVPurpose, StartsFromNone) {
  for (const auto& [target, purposes] :
       {std::pair<std::string, Names>{"None", {"None", "Self Promotion"}},
        {"Bob Bold", {"None", "Verbal Attack", "Hype Upcoming Match", "Turn"}}}) {
    Steps steps(TalkCompany(), kInterview);
    ScriptDesk& desk = steps.Do({"lsttype: Single Worker"})
                           .Do({"lstwres1: Dan Dark"})
                           .Do({"lstopp1: " + target})
                           .Open()
                           .Desk;
    EXPECT_EQ(desk.FirstColumn("cmbwinner"), purposes);
    desk.Click("cmddone");
    EXPECT_EQ(steps.State().Buffer.Purpose, kTalkNone);
    EXPECT_TRUE(steps.State().SegmentComplete);
  }
}

/// All of them are waiting to; beside a single worker it is the manager who does.
TEST(frmIVPurpose, SaysWhoWillTurn) {
  const auto company = [] {
    World world = TalkCompany();
    for (const char* name : {"Bob Bold", "Cal Cold", "Max Mouth"})
      Named(world.Workers(), name).TurnPending = true;
    return world;
  };
  struct Row {
    const char* Style;
    const char* Speaker;
    const char* Target;
    const char* Says;
  };
  const Row kRows[] = {
      {"Single Worker", "lstwres1: Bob Bold", "Eve East", "Bob Bold on Eve East."},
      {"Single Worker", "lstwres1: Eve East", "Bob Bold", ""},
      {"Tag Team", "lstwres1: Bob Bold", "Eve East", "Bob Bold on Eve East, Cal Cold on Eve East."},
      {"Single Worker With Manager", "lstwres1: Bob Bold", "Eve East", "Max Mouth on Eve East."},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.Says);
    Steps steps(company(), kInterview);
    ScriptDesk& desk = steps.Do({std::string("lsttype: ") + row.Style})
                           .Do({row.Speaker})
                           .Do({std::string("lstopp1: ") + row.Target})
                           .Open()
                           .Desk;
    const std::string says = row.Says;
    EXPECT_EQ(desk.Text("lblturn"), says.empty() ? "" : "Who turns with \"Turn\": " + says);
    EXPECT_EQ(desk.Visible("lblturn"), *row.Says != 0);
  }
}

TEST(frmAngleType, StartsFromWalkingAndTellsEachAngle) {
  Steps steps(TalkCompany(), kAngle);
  ScriptDesk& desk = steps.Open().Desk;
  const Names angles = desk.FirstColumn("lstangle");
  EXPECT_EQ(angles.front(), "Challenge");
  EXPECT_EQ(angles.back(), "Blood Bath");
  EXPECT_EQ(angles.at(static_cast<std::size_t>(desk.Selected("lstangle").at(0) - 1)), "Walking");
  EXPECT_EQ(desk.Text("lbldesc"), "A worker walks down a corridor.");
  desk.Pick("lstangle", "Ambush");
  EXPECT_EQ(desk.Text("lbldesc"),
            "An ambush happens backstage. (This angle causes the saver to turn, if set.)");
  EXPECT_EQ(desk.Rows("lstangle")[2],
            (Names{"Ambush", "Ambush", "Ambushee, Ambusher #1, (Ambusher #2), (Saver)"}));
  desk.OpenRow("lstangle", "Ambush");
  EXPECT_EQ(steps.State().Buffer.Style, 3);
}

TEST(frmAngleType, NeedsWritersOnTelevisionMoreThanAtAnEvent) {
  const auto company = [] {
    World world = TalkCompany();
    Named(world.AllStaff(), "Writer Two").Employer = 0;
    return world;
  };
  Steps show(company(), kAngle);
  ScriptDesk& desk = show.Open().Desk;
  EXPECT_EQ(desk.FirstColumn("lstangle"), Names{"Not Enough Writers!"});
  EXPECT_EQ(desk.Text("lbldesc"), "You do not have enough writers to use angles.");
  EXPECT_FALSE(desk.Enabled("cmddone"));
  EXPECT_EQ(desk.Tip("cmddone"), "You have 1 of the 2 writers that angles need.");
  desk.OpenRow("lstangle", 1);
  EXPECT_EQ(desk.TopName(), "frmAngleType");
  Steps event(company(), kAngle, true);
  EXPECT_TRUE(event.Open().Desk.Enabled("cmddone"));
}

TEST(frmAnglePeople, ShowsTheBoxesOfTheAngle) {
  Steps steps(TalkCompany(), kAngle);
  ScriptDesk& desk = steps.Do({"lstangle: Diva Fever"}).Open().Desk;
  EXPECT_EQ(desk.Text("lbl1"), "Contestent #1");
  EXPECT_EQ(desk.Text("lbl3"), "Spoils It");
  EXPECT_EQ(desk.Rows("cmb1"), (Cells{{"Eve East"}, {"Fay Fair"}, {"New Nora"}}));
  EXPECT_EQ(desk.Text("cmb3"), "None (optional)");
  EXPECT_EQ(desk.Rows("cmb4"), (Cells{{"N\\A"}}));
  EXPECT_TRUE(desk.Visible("cmb3"));
  EXPECT_FALSE(desk.Visible("cmb4"));
  EXPECT_FALSE(desk.Visible("lbl4"));
  EXPECT_EQ(desk.Text("lblabout1"), "Midcard, Face, Over 60, Condition 100, Morale 80");
  desk.Pick("cmb1", "Fay Fair");
  EXPECT_EQ(desk.Text("lblabout1"),
            "Midcard, Heel, Over 60, Condition 100, Morale 80, waiting to turn");
  desk.Pick("cmb2", "Fay Fair");
  Refused(desk, "Please select unique workers!");
  EXPECT_EQ(steps.Buffer(), Names());
}

TEST(frmAnglePeople, TellsOfStablesTitlesAndManagers) {
  Steps steps(TalkCompany(), kAngle);
  ScriptDesk& desk = steps.Do({"lstangle: Stable Kick-Out"}).Open().Desk;
  EXPECT_EQ(desk.Text("lblabout2"), "2 of 10 members, 2 of them active, led by Tide One");
  desk.Pick("cmb1", "Tide Two");
  EXPECT_EQ(desk.Text("lblabout1"),
            "Midcard, Face, Over 60, Condition 100, Morale 80, managed by Mo Fresh, in The Tide");
  Steps award(TalkCompany(), kAngle);
  EXPECT_EQ(award.Do({"lstangle: Award Singles Title"}).Open().Desk.Text("lblabout2"),
            "Vacant, image 50%");
}

TEST(frmAnglePeople, SaysWhoIsMissing) {
  const auto nobody = [] {
    SmallWorld small;
    small.Promotion("CWA", kGlobal, [](Promotion& p) { p.Risk = 100; })
        .Worker("Boss Gone", kNonWrestler, 50)
        .Staff("Writer", kWriter)
        .Game("CWA");
    World world = small;
    world.Player().Commissioner = 1;
    world.Workers()[1].Status = "Sus";
    world.Workers()[1].StatusMonths = 1;
    return world;
  };
  const std::tuple<const char*, int, const char*> kEmpty[] = {
      {"Walking", 1, "No workers available"},
      {"Arrest", 1, "No Commissioner available"},
      {"Face Turn", 1, "Nobody waiting to turn"},
      {"Catfight!", 2, "No women available"},
      {"Getting Groinal", 1, "No men available"},
      {"Debut Video For Worker", 1, "No debuts available"},
      {"Hype Video For Stable", 1, "No stables available"},
      {"Award Singles Title", 2, "No vacant titles available"},
  };
  for (const auto& [angle, box, message] : kEmpty) {
    Steps steps(nobody(), kAngle);
    ScriptDesk& desk = steps.Do({std::string("lstangle: ") + angle}).Open().Desk;
    EXPECT_EQ(desk.Rows("cmb" + std::to_string(box)), (Cells{{message}})) << angle;
    desk.ExpectSay("Error!", kAnyText);
    desk.Click("cmddone");
    EXPECT_EQ(desk.TopName(), "frmAnglePeople");
    EXPECT_EQ(steps.Buffer(), Names());
  }
}

}  // namespace
}  // namespace grapplemont::test
