#include "booking/screens/screenstep.h"

#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/earlier.h"
#include "talkcompany.h"

namespace grapplemont::test {
namespace {

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
  void Complete() override {}
  void StepLeft() override {}
  void GoTo(int step) override { JumpTo(wizard_, step); }
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
