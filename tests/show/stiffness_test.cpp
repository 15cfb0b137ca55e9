#include <gtest/gtest.h>

#include "show/aftermatch.h"
#include "stage.h"

namespace grapplemont::test {
namespace {

TEST(HurtOthers, SparesThePartnerAndBringsMailsByPlace) {
  struct Case {
    std::string_view Stiff;
    std::string_view Mails;
    std::array<int, 4> Condition;
  };
  const Case kCases[] = {
      {"Cal",
       "Ash: Cal was working too stiff, i could have been injured.\n"
       "Bea: I think Cal was too reckless in my match, i could have been seriously hurt.\n",
       {90, 90, 100, 100}},
      {"Ash",
       "Cal: Can you talk to Ash? There is a big difference between being enthusiastic and just "
       "being reckless.\n"
       "Dot: Ash was working too stiffly, i could have been badly hurt.\n",
       {100, 100, 90, 90}},
  };
  for (const Case& c : kCases) {
    Stage stage;
    stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
    ScriptDraws(stage.W, {{10, 10}, {10, 10}});
    HurtOthers(stage.Run, stage[c.Stiff]);
    EXPECT_EQ(stage.Mails(), c.Mails);
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(stage.W.Workers()[i + 1].Condition, c.Condition[static_cast<std::size_t>(i)]);
  }
}

TEST(HurtOthers, IsNoCaseForAMailBelowTheHardestBlow) {
  Stage stage;
  stage.Match(kSingles, {"Ash", "Bea"});
  stage["Ash"].Condition = 4;
  ScriptDraws(stage.W, {{10, 9}, {10, 1}});
  HurtOthers(stage.Run, stage["Bea"]);
  HurtOthers(stage.Run, stage["Ash"]);
  EXPECT_EQ(stage["Ash"].Condition, 0);
  EXPECT_EQ(stage["Bea"].Condition, 99);
  EXPECT_EQ(stage.Mails(), "");
}

TEST(HurtOthers, LetsTheLegendSpeakHisWay) {
  for (const char* legend : {"Ash", "Bea", "Cal", "Dot"}) {
    Stage stage;
    stage.Match(kTag, {"Ash", "Bea", "Cal", "Dot"});
    const std::string stiff = legend < std::string("C") ? "Cal" : "Ash";
    stage[legend].Name = "Maul Gantry";
    ScriptDraws(stage.W, {10, 10});
    HurtOthers(stage.Run, stage[stiff]);
    const std::string mails = stage.Mails();
    const std::string his = mails.substr(mails.find("Maul Gantry: "));
    EXPECT_NE(his.substr(0, his.find('\n')).find("rother"), std::string::npos) << mails;
    EXPECT_NE(his.find(stiff), std::string::npos) << mails;
  }
}

}  // namespace
}  // namespace grapplemont::test
