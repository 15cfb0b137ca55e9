#include "roster/screens/screentalks.h"

#include <gtest/gtest.h>

#include "roster/talks.h"
#include "support/gameonworld.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"

// The talks with workers, as a player leads them.

namespace grapplemont::test {
namespace {

constexpr const char* kBram = "Bram Okafor";
constexpr const char* kRay = "Rival Ray";
constexpr const char* kTalks = "Contract Negotiations";

SmallWorld Business() {
  SmallWorld small;
  small.Promotion("CWA", kCult)
      .Worker(kBram, kMainEvent, 60, [](Worker& w) { w.Wage = 40; })
      .Worker("Ilya Marsh", kMidcard, 50)
      .Worker("Low Down", kJobber, 20)
      .Promotion("NEW", kBackyard)
      .Worker(kRay, kMidcard, 50, [](Worker& w) { w.Gender = false, w.Morale = 60; })
      .OnTheMarket()
      .Worker("Free Fred", kOpener, 40, [](Worker& w) { w.Disposition = "T"; })
      .Game("CWA");
  return small;
}

Worker& Who(GameOnWorld& play, const char* name) {
  return Named(play.World().Workers(), name);
}

/// The contract of one on the roster.
void OnContract(GameOnWorld& play, const char* name) {
  play.Desk.Open("frmRoster");
  play.Desk.Pick("lstwres", name);
  play.Desk.Click("cmdcontract");
}
void OnTalks(GameOnWorld& play, const char* name) {
  play.Desk.Open("frmOtherWres");
  play.Desk.Pick("lstwres", name);
  play.Desk.Click("cmdcontract");
}

TEST(frmWresContract, ShowsTheContractAndBeginsWithWhatIsWanted) {
  GameOnWorld play(Business());
  OnContract(play, kBram);
  ASSERT_EQ(play.Desk.TopName(), "frmWresContract");
  EXPECT_EQ(play.Desk.Text("txtlength"), "12 months");
  EXPECT_EQ(play.Desk.Text("txttype"), "Written");
  EXPECT_EQ(play.Desk.Text("txtwage"), "$40,000 a month");
  EXPECT_FALSE(play.Desk.Visible("lblcreative"));
  EXPECT_EQ(play.Desk.Value("hsnewwage"), 44);
  EXPECT_EQ(play.Desk.Text("txtnewwage"), "$44,000");
  EXPECT_EQ(play.Desk.Text("cmbnewlength"), "2 Years");
  EXPECT_EQ(play.Desk.Text("cmbnewtype"), "Verbal") << "an Over of 60 at a Cult promotion";
  EXPECT_EQ(play.Desk.FirstColumn("cmbnewlength"),
            Names({"6 Months", "1 Year", "2 Years", "3 Years", "4 Years", "5 Years"}));
  play.Desk.Slide("hsnewwage", 0);
  EXPECT_EQ(play.Desk.Text("txtnewwage"), "$0");
  play.World().Player().Money = 299999;
  play.Desk.Slide("hsnewwage", 299);
  EXPECT_FALSE(play.Desk.Visible("lblafford"));
  play.Desk.Slide("hsnewwage", 300);
  EXPECT_EQ(play.Desk.Text("txtnewwage"), "$300,000");
  EXPECT_TRUE(play.Desk.Visible("lblafford"));
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmRoster");
}

TEST(frmWresContract, RejectsUntilTheOfferIsGood) {
  GameOnWorld play(Business());
  const World before = CopyOf(play.World());
  OnContract(play, kBram);
  play.Desk.Pick("cmbnewtype", "Written");
  play.Desk.Slide("hsnewwage", 4);
  play.Desk.ExpectSay("Rejected!", "I do not want a written contract.");
  play.Desk.ExpectSay("Rejected!", "I do not accept this pay reduction.");
  EXPECT_EQ(play.Desk.Tip("cmdwhynot"), "Nothing has been turned down yet.");
  play.Desk.Click("cmdoffer");
  ExpectSame(play.World(), before);
  EXPECT_EQ(play.Desk.TopName(), "frmWresContract");
  play.Desk.Click("cmdwhynot");
  EXPECT_EQ(play.Desk.Text("txtwhy"),
            "+ Popularity 60: our size will do\n"
            "- A written contract offered: of a promotion of our size they want a verbal one\n"
            "- $4,000 offered is too little for anybody who earns $40,000\n"
            "= I do not want a written contract.");
  play.Desk.Click("cmdwhy");
  EXPECT_TRUE(play.Desk.Text("txtwhy").ends_with("\n= $44,000 a month"));

  play.Desk.Pick("cmbnewtype", "Verbal");
  play.Desk.Slide("hsnewwage", 45);
  play.Desk.Pick("cmbnewlength", "3 Years");
  play.Desk.Check("chkcreative");
  play.Desk.ExpectSay("Accepted!", "Bram Okafor agrees to the contract!");
  play.Desk.Click("cmdoffer");
  EXPECT_EQ(play.Desk.TopName(), "frmRoster");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "3 workers, $65,000 a month.") << "the list is fresh";
  play.Reopen();
  const Worker& bram = Who(play, kBram);
  EXPECT_EQ(bram.ContractType.View(), "Non");
  EXPECT_EQ(bram.ContractMonths, 36);
  EXPECT_EQ(bram.Wage, 45);
  EXPECT_TRUE(bram.CreativeControl);
  EXPECT_EQ(play.World().Player().Money, before.Player().Money);
}

TEST(frmWresContract, ShutsTheOfferButNeitherReleaseNorTermination) {
  GameOnWorld play(Business());
  Who(play, kBram).Morale = 39;
  Who(play, kBram).CreativeControl = true;
  play.Desk.ExpectSay(kTalks, "Bram Okafor does not want to negotiate.");
  OnContract(play, kBram);
  EXPECT_TRUE(play.Desk.Visible("lblcreative"));
  for (const char* shut : {"cmdoffer", "hsnewwage", "cmbnewtype", "cmbnewlength", "chkcreative"}) {
    EXPECT_FALSE(play.Desk.Enabled(shut)) << shut;
    EXPECT_EQ(play.Desk.Tip(shut), "Bram Okafor does not want to negotiate.") << shut;
  }
  play.Desk.Click("cmdwhynot");
  EXPECT_NE(play.Desk.Text("txtwhy").find("\n- Morale 39: below 40 they do not talk\n"),
            std::string::npos);
  EXPECT_TRUE(play.Desk.Enabled("cmdrelease"));
  EXPECT_TRUE(play.Desk.Enabled("cmdterminate"));
}

TEST(frmWresContract, ReleasesWhoeverTakesTheOffer) {
  GameOnWorld play(Business());
  play.World().Game().Economy = 60;
  OnContract(play, "Ilya Marsh");
  play.Desk.ExpectSay("Rejected",
                      "Ilya Marsh: 'I don't think leaving is a good career move for me "
                      "at the moment.'");
  play.Desk.ExpectSay("Rejected", "Ilya Marsh formally rejects your offer of a release.");
  play.Desk.Click("cmdrelease");
  EXPECT_EQ(play.Desk.TopName(), "frmWresContract");

  play.World().Player().Money = -1;
  const Remark accepts{"Accepted",
                       "Ilya Marsh: 'With the financial situation of the company the "
                       "way it is, i accept!'"};
  play.Desk.ExpectSay(accepts.Title, accepts.Text);
  play.Desk.ExpectAsk("Release", "Ilya Marsh formally accepts your offer. Proceed?", false);
  play.Desk.Click("cmdrelease");
  EXPECT_EQ(Who(play, "Ilya Marsh").Employer, 1);

  ScriptDraws(play.World(), {{3, 2}});
  play.Desk.ExpectSay(accepts.Title, accepts.Text);
  play.Desk.ExpectAsk("Release", kAnyText, true);
  play.Desk.Click("cmdrelease");
  EXPECT_EQ(play.Desk.TopName(), "frmRoster");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({kBram, "Low Down"}));
  EXPECT_EQ(play.Desk.Selected("lstwres"), std::vector{2}) << "the next one";
  EXPECT_TRUE(play.Desk.Text("txtpage").starts_with("Low Down"));
  play.Reopen();
  EXPECT_EQ(Who(play, "Ilya Marsh").Employer, 0);
  EXPECT_EQ(play.World().Player().Money, -1);
}

TEST(frmWresContract, TerminatesDownToAnEmptyRoster) {
  GameOnWorld play(Business());
  play.World().Game().Difficulty = kHard;
  const int money = play.World().Player().Money;
  OnContract(play, "Low Down");
  const char* question = "Terminating this contract will cost $120000. Proceed?";
  play.Desk.ExpectAsk("Terminate Contract", question, false, ui::Default::No);
  play.Desk.Click("cmdterminate");
  EXPECT_EQ(play.World().Player().Money, money);
  ScriptDraws(play.World(), {{3, 3}, {3, 3}, {3, 3}});
  play.Desk.ExpectAsk("Terminate Contract", question, true);
  play.Desk.Click("cmdterminate");
  EXPECT_EQ(play.World().Player().Money, money - 120000);
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({kBram, "Ilya Marsh"}));
  EXPECT_EQ(play.Desk.Selected("lstwres"), std::vector{2}) << "the last takes their place";

  for (const char* name : {"Ilya Marsh", kBram}) {
    play.Desk.Click("cmdcontract");
    EXPECT_EQ(play.Desk.Title(), name);
    play.Desk.ExpectAsk("Terminate Contract", kAnyText, true);
    play.Desk.Click("cmdterminate");
  }
  EXPECT_TRUE(play.Desk.Rows("lstwres").empty());
  EXPECT_EQ(play.Desk.Text("txtpage"), "Choose somebody to read about.");
  EXPECT_FALSE(play.Desk.Enabled("cmdcontract"));
}

TEST(frmOtherContract, ShowsDemandsAndBeginsWithThem) {
  GameOnWorld play(Business());
  OnTalks(play, "Free Fred");
  ASSERT_EQ(play.Desk.TopName(), "frmOtherContract");
  const std::pair<const char*, const char*> kShown[] = {
      {"txtposition", "Lower Midcard"},    {"txtlength", "24 months"},  {"txttype", "Written"},
      {"txtwage", "$10,000 a month"},      {"txtcreative", "No"},       {"txtnewwage", "$10,000"},
      {"cmbnewposition", "Lower Midcard"}, {"cmbnewlength", "2 Years"}, {"cmbnewtype", "Written"},
      {"cmbnewdispo", "Tweener"},          {"txtnewname", "Free Fred"}, {"txtnewname2", "Fred"}};
  for (const auto& [control, text] : kShown) EXPECT_EQ(play.Desk.Text(control), text) << control;
  EXPECT_EQ(play.Desk.FirstColumn("cmbnewposition"),
            Names({"Main Event", "Upper Midcard", "Midcard", "Lower Midcard", "Opener", "Jobber",
                   "Manager", "Non-wrestler", "Training Camp", "Development Deal"}));
  EXPECT_EQ(play.Desk.FirstColumn("cmbnewdispo"), Names({"Face", "Tweener", "Heel"}));
  play.Desk.Click("cmdwhy");
  EXPECT_NE(play.Desk.Text("txtwhy").find("the last wage"), std::string::npos);
}

TEST(frmOtherContract, SignsUnderANewName) {
  GameOnWorld play(Business());
  const World before = CopyOf(play.World());
  OnTalks(play, "Free Fred");
  play.Desk.Type("txtnewname", kBram);
  play.Desk.Slide("hsnewwage", 0);
  play.Desk.ExpectSay("Error!", "This name already exists!");
  play.Desk.Click("cmdoffer");
  play.Desk.Type("txtnewname", "A Name Much Longer Than Anybody Could Remember");
  EXPECT_EQ(play.Desk.Text("txtnewname"), "A Name Much Longer Than A") << "25 letters";
  play.Desk.Type("txtnewname2", "Longer Than Ten");
  EXPECT_EQ(play.Desk.Text("txtnewname2"), "Longer Tha");
  play.Desk.ExpectSay("Rejection!", "You are not offering me enough money!");
  play.Desk.Click("cmdoffer");
  ExpectSame(play.World(), before);

  play.Desk.Type("txtnewname", "Lord Fredo");
  play.Desk.Type("txtnewname2", "Fredo");
  play.Desk.Slide("hsnewwage", 9);
  play.Desk.Pick("cmbnewposition", "Main Event");
  play.Desk.Pick("cmbnewdispo", "Heel");
  play.Desk.Pick("cmbnewlength", "1 Year");
  play.Desk.Check("chkcreative");
  play.Desk.ExpectSay("Accepted!", "Lord Fredo signs the contract!");
  play.Desk.Click("cmdoffer");
  EXPECT_EQ(play.Desk.TopName(), "frmOtherWres");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({kRay}));
  play.Reopen();
  const Worker& lord = Who(play, "Lord Fredo");
  EXPECT_EQ(lord.Employer, 1);
  EXPECT_EQ(lord.ShortName.View(), "Fredo");
  EXPECT_EQ(lord.Position, kMainEvent);
  EXPECT_EQ(lord.Disposition.View(), "H");
  EXPECT_EQ(lord.ContractMonths, 12);
  EXPECT_EQ(lord.ContractType.View(), "Wri");
  EXPECT_EQ(lord.Wage, 9);
  EXPECT_TRUE(lord.CreativeControl);
  EXPECT_FALSE(lord.Debuted);
}

TEST(frmOtherContract, WarnsThatTheEmployedAreDear) {
  GameOnWorld play(Business());
  play.Desk.ExpectSay("More Money.",
                      "She agrees to negotiate, but will need a higher wage to justify leaving her "
                      "current employer.");
  OnTalks(play, kRay);
  EXPECT_EQ(play.Desk.Text("txtwage"), "$12,000 a month");
  play.Desk.ExpectSay("Accepted!", kAnyText);
  play.Desk.Click("cmdoffer");
  EXPECT_EQ(Who(play, kRay).Employer, 1);
}

TEST(frmOtherContract, ClosesWithTheReason) {
  GameOnWorld play(Business());
  play.World().Player().Size = kSmall;
  Who(play, kRay).Morale = 61;
  const char* words =
      "She apologises, but she does not want to leave her current employers to join you.";
  play.Desk.ExpectSay("Refusal!", words);
  OnTalks(play, kRay);
  EXPECT_FALSE(play.Desk.Enabled("cmdoffer"));
  EXPECT_EQ(play.Desk.Text("lblfacts"), words);
}

struct Turn {
  const char* Of;
  void (*Happens)(GameOnWorld& play);
  const char* Words;
};

TEST(ContractTalks, EndWhenTheOtherSideIsNotThereAnyMore) {
  const Turn kTurns[] = {
      {kBram, [](GameOnWorld& p) { Who(p, kBram).Name = "Newcomer"; },
       "Bram Okafor is not in the business any more."},
      {kBram, [](GameOnWorld& p) { Who(p, kBram).Employer = 2; },
       "Bram Okafor does not work for you any more."},
      {kBram, [](GameOnWorld& p) { Who(p, kBram).Unsackable = true; },
       "Bram Okafor is unsackable now: there is nothing to talk about."},
      {"Free Fred", [](GameOnWorld& p) { Who(p, "Free Fred").Name = "Newcomer"; },
       "Free Fred is not in the business any more."},
      {"Free Fred", [](GameOnWorld& p) { Who(p, "Free Fred").Employer = 2; },
       "Free Fred has changed sides in the meantime."}};
  for (const Turn& turn : kTurns) {
    const bool own = turn.Of == kBram;
    Names buttons{"cmdoffer"};
    if (own) buttons = {"cmdoffer", "cmdrelease", "cmdterminate"};
    for (const std::string& button : buttons) {
      GameOnWorld play(Business());
      own ? OnContract(play, turn.Of) : OnTalks(play, turn.Of);
      turn.Happens(play);
      const World before = CopyOf(play.World());
      play.Desk.ExpectSay(kTalks, turn.Words);
      play.Desk.Click(button);
      EXPECT_EQ(play.Desk.TopName(), own ? "frmRoster" : "frmOtherWres");
      ExpectSame(play.World(), before);
    }
  }
}

TEST(ContractTalks, DoNotBeginWithTheUnsackable) {
  GameOnWorld play(Business());
  for (const auto& [list, name] : {std::pair("frmRoster", kBram), {"frmOtherWres", kRay}}) {
    play.Desk.Open(list);
    play.Desk.Pick("lstwres", name);
    Who(play, name).Unsackable = true;
    play.Desk.ExpectSay(kTalks,
                        std::string(name) + " is unsackable now: there is nothing to talk about.");
    play.Desk.Click("cmdcontract");
    play.Desk.Pick("lstwres", name);
    EXPECT_FALSE(play.Desk.Enabled("cmdcontract")) << list;
    play.Desk.OpenRow("lstwres", name);
    EXPECT_EQ(play.Desk.TopName(), "frmWorker") << "a row opens their page";
    play.Desk.Click("cmdback");
    play.Desk.Click("cmdback");
  }
}

}  // namespace
}  // namespace grapplemont::test
