#include <gtest/gtest.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "console/run.h"
#include "console/served.h"
#include "session/build.h"
#include "support/checkout.h"
#include "support/scratchfolder.h"

namespace grapplemont::test {
namespace {

Json ControlOf(const Json& answer, const std::string& name) {
  for (const Json& control : answer.at("controls"))
    if (control.at("name") == name) return control;
  ADD_FAILURE() << "no control " << name;
  return {};
}

TEST(JsonAnswer, SaysOfEachControlWhatItsKindHas) {
  const Json answer = LastAnswer("show\n");
  EXPECT_EQ(answer.size(), 3u) << answer;
  EXPECT_EQ(answer.at("screen"), "frmSample");
  EXPECT_EQ(answer.at("title"), "Sample");
  const char* const kExpected[] = {
      R"({"name":"txtname","kind":"TextBox","text":"Pat","enabled":true,"visible":true})",
      R"({"name":"cmddoit","kind":"Button","text":"Do It","enabled":true,"visible":true})",
      R"({"name":"cmdhidden","kind":"Button","text":"Hidden","enabled":true,"visible":false})",
      R"({"name":"lstpeople","kind":"ListBox","enabled":true,"visible":true,"selected":[],
          "rows":[["Bram Okafor","88"],["3","40"],["Ilya Marsh","$1,284,500"]]})",
      R"({"name":"lstnone","kind":"ListBox","enabled":true,"visible":true,"selected":[],
          "rows":[],"empty":"Nothing yet."})",
      R"({"name":"cmbkind","kind":"ComboBox","text":"Singles","enabled":true,"visible":true,
          "rows":[["Singles"],["Tag Team"]],"selected":[1]})",
      R"({"name":"chkday","kind":"CheckBox","text":"Every day","enabled":true,"visible":true,
          "checked":false})",
      R"({"name":"optface","kind":"OptionButton","text":"Face","enabled":true,"visible":true,
          "checked":true})",
      R"({"name":"hsprice","kind":"ScrollBar","enabled":true,"visible":true,
          "value":20,"min":5,"max":100})",
      R"({"name":"imgdoor","kind":"Picture","enabled":true,"visible":true})",
      R"({"name":"chtmoney","kind":"Chart","enabled":true,"visible":true,
          "text":"Jan: Money 1,200, Image 61\nFeb: Money -50.25"})",
      R"({"name":"rptshow","kind":"Report","text":"The bell rings.\nIt is over.",
          "enabled":true,"visible":true})",
  };
  for (const char* text : kExpected) {
    const Json expected = Json::parse(text);
    EXPECT_EQ(ControlOf(answer, expected.at("name")), expected);
  }
  EXPECT_EQ(answer.at("controls").size(), 24u);
  EXPECT_EQ(ControlOf(LastAnswer("pick lstmany 3\npick lstmany Red\n"), "lstmany").at("selected"),
            Json({1, 3}));
}

TEST(JsonAnswer, KeepsTheOrderOfItsFields) {
  const std::string line = Served("click cmdask\n", kJson).Out();
  std::size_t last = 0;
  for (const char* field : {"{\"screen\":", "\"title\":", "\"controls\":[{\"name\":", "\"kind\":",
                            "\"text\":", "\"enabled\":", "\"visible\":", "\"box\":{\"kind\":"}) {
    const auto at = line.find(field, last);
    ASSERT_NE(at, std::string::npos) << field;
    last = at;
  }
}

TEST(JsonAnswer, TellsOfAnOpenBox) {
  const std::pair<const char*, const char*> kRows[] = {
      {"click cmdsay\n", R"({"kind":"ok","title":"Told","text":"First."})"},
      {"click cmdsay\nok\n", R"({"kind":"ok","title":"Told","text":"Second."})"},
      {"click cmdthrow\n", R"({"kind":"ok","title":"Error!","text":"The disk is full."})"},
      {"click cmdask\n", R"({"kind":"yesno","title":"Sure?","text":"Really?","default":"no"})"},
      {"click cmdprompt\n",
       R"({"kind":"input","title":"Name?","text":"A new name:","default":"Pat"})"},
  };
  for (const auto& [lines, box] : kRows) {
    const Json answer = LastAnswer(lines);
    EXPECT_EQ(answer.at("box"), Json::parse(box)) << lines;
    EXPECT_EQ(answer.at("screen"), "frmSample");
    EXPECT_FALSE(answer.contains("error"));
  }
  EXPECT_FALSE(LastAnswer("click cmdsay\nok\nok\n").contains("box"));
}

TEST(JsonAnswer, IsOneLineForEachCommand) {
  const Served served("show\nclick cmdsay\nok\nnonsense\nok\n\nhelp\nclick cmddoit\nquit\nshow\n",
                      kJson);
  const auto answers = Answers(served);
  ASSERT_EQ(answers.size(), 8u) << "quit is not answered, and what follows it is not read";
  EXPECT_TRUE(answers[3].contains("error"));
  EXPECT_TRUE(answers[3].contains("box")) << "an error leaves the box open";
  EXPECT_TRUE(answers[6].contains("help"));
  EXPECT_EQ(served.Log, (std::vector<std::string>{"said", "cmddoit"}));
  EXPECT_EQ(Served("click cmdclose\nshow\n", kJson).Out(), "{}\n") << "nothing lies there";
}

TEST(JsonAnswer, SpeaksUtf8) {
  const Json answer = LastAnswer("type txtname \xC3\x89lan \xE2\x82\xAC\"\\\n");
  EXPECT_EQ(ControlOf(answer, "txtname").at("text"), "\xC3\x89lan \xE2\x82\xAC\"\\");
  EXPECT_EQ(Served("type txtname \xC3\x89lan \xE2\x82\xAC\n", kJson).Name, "\xC9lan \x80")
      << "and Windows-1252 inside";
}

struct Outcome {
  int Code;
  std::string Out, Errors;
};

Outcome Played(const std::vector<std::string>& arguments, const std::string& lines = {}) {
  std::istringstream in(lines);
  std::ostringstream out, errors;
  const int code = console::RunConsole(arguments, {in, out, errors}, {}, {});
  return {code, out.str(), errors.str()};
}

TEST(RunConsole, RefusesWrongArguments) {
  const std::pair<std::vector<std::string>, std::string> kRows[] = {
      {{"--jsan"}, "there is no option \"--jsan\"; did you mean --json?"},
      {{"show"}, "\"show\" is one word too many"},
      {{"--json", "--seed"}, "--seed needs a value, N"},
      {{"--json=on"}, "--json takes no value"},
      {{"--seed", "-1"}, "--seed needs a whole number from 0 to 18446744073709551615, not \"-1\""},
      {{"--seed=18446744073709551616"},
       "--seed needs a whole number from 0 to 18446744073709551615, not "
       "\"18446744073709551616\""},
      {{"--today", "2026-02-30"}, "--today needs a date such as 2026-03-01, not \"2026-02-30\""},
  };
  const std::string usage =
      "usage: grapplemont-console [--home FOLDER] [--today YYYY-MM-DD] [--seed N] [--json]\n";
  for (const auto& [arguments, why] : kRows) {
    const Outcome outcome = Played(arguments, "show\n");
    EXPECT_EQ(outcome.Code, 2) << why;
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Errors, "grapplemont-console: " + why + "\n" + usage);
  }
  for (const char* help : {"--help", "-h"}) {
    const std::string told = Played({"--json", help}).Out;
    EXPECT_TRUE(told.starts_with(usage)) << told;
    EXPECT_NE(told.find("\n  --home FOLDER       the folder"), std::string::npos) << told;
  }
  for (const char* version : {"--version", "-v"})
    EXPECT_EQ(Played({version}).Out, std::string("grapplemont-console ") + kProgramVersion + "\n");
}

TEST(RunConsole, TellsInOneLineWhyItCannotStart) {
  const ScratchFolder scratch;
  std::ofstream(scratch / "file") << "no folder";
  for (const std::string& home : {scratch / "none", scratch / "file", std::string()}) {
    const Outcome outcome = Played({"--json", "--home", home}, "show\n");
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Out, "");
    const bool isNew = home == scratch / "none";
    EXPECT_EQ(outcome.Errors, "grapplemont-console: \"" + home +
                                  (isNew ? "\" is not there. Make that folder first"
                                         : "\" is not a folder. Name one with --home") +
                                  ", or leave --home out and play where your games are usually "
                                  "kept.\n");
  }
  const Outcome outcome = Played({"--json", "--home", scratch / "."}, "show\nok\n");
  EXPECT_EQ(outcome.Code, 1) << "there are no pictures";
  EXPECT_NE(outcome.Out.find("\"title\":\"Error Loading\""), std::string::npos) << outcome.Out;
  EXPECT_EQ(outcome.Errors, "grapplemont-console: The game could not start.\n");
}

TEST(RunConsole, ServesTheTitleScreenToTheEndOfInput) {
  const ScratchFolder scratch;
  const std::string path = scratch / "home", link = scratch / "link";
  std::filesystem::create_directories(path);
  std::filesystem::copy(Checkout("/gfx"), path + "/gfx", std::filesystem::copy_options::recursive);
  std::error_code noLinks;
  std::filesystem::create_directory_symlink(path, link, noLinks);
  for (const std::string& home : {path, noLinks ? path : link}) {
    for (const std::string lines : {"show\nclick cmdbegin\nquit\n", "show\nclick cmdbegin"}) {
      const Outcome outcome = Played({"--json", "--home", home, "--today", "2026-03-01"}, lines);
      EXPECT_EQ(outcome.Code, 0) << outcome.Errors;
      EXPECT_TRUE(outcome.Out.starts_with("{\"screen\":\"frmTitleScreen\"")) << outcome.Out;
      EXPECT_NE(outcome.Out.find("\n{\"screen\":\"frmDisclaimer\""), std::string::npos);
      EXPECT_EQ(std::count(outcome.Out.begin(), outcome.Out.end(), '\n'), 2);
    }
  }
}

}  // namespace
}  // namespace grapplemont::test
