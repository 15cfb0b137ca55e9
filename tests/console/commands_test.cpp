#include "console/command.h"

#include <csignal>

#include "console/served.h"

namespace grapplemont::test {
namespace {

using Log = std::vector<std::string>;

TEST(Commands, WorkTheControls) {
  const std::pair<const char*, Log> kRows[] = {
      {"click cmddoit\n", {"cmddoit"}},
      {"click imgdoor\n", {"imgdoor"}},
      {"click Do It\nclick Every day\n", {"cmddoit", "chkday"}},
      {"  click \t cmddoit  \n", {"cmddoit"}},
      {"click cmddoit\r\nclick cmddoit\r\n", {"cmddoit", "cmddoit"}},
      {"click cmddoit", {"cmddoit"}},  // the last line lacks its end
      {"type txtname Sam\n", {"txtname typed"}},
      {"pick lstpeople Bram Okafor\n", {"lstpeople picked"}},
      {"pick cmbkind Tag Team\n", {"cmbkind picked"}},
      {"open lstpeople 2\n", {"lstpeople picked", "lstpeople opened"}},
      {"check chkday on\ncheck chkday on\ncheck chkday off\n", {"chkday", "chkday"}},
      {"slide hsprice 55\n", {"hsprice"}},
      {"follow Bram Okafor\n", {"page of Bram"}},
      {"show\nshow lstpeople\nhelp\n\n", {}},
      {"click cmdsay\nok\nok\n", {"said"}},
      {"click cmdask\nyes\n", {"yes"}},
      {"click cmdask\nno\n", {"no"}},
      {"click cmdprompt\nenter Sam Lee\n", {"\"Sam Lee\""}},
      {"click cmdprompt\nenter\n", {"\"\""}},
      {"click cmdprompt\ncancel\n", {"\"\""}},
      // Input that ends, or a player who leaves, gives no answer.
      {"click cmdsay\n", {"said"}},
      {"click cmdask\n", {"no"}},
      {"click cmdprompt\n", {"\"\""}},
      {"click cmdask\nquit\nyes\n", {"no"}},
      {"click cmdsay\nok\nquit\n", {"said"}},
      {"click cmdthrow\nok\nclick cmddoit\n", {"Load", "Return", "cmddoit"}},
  };
  for (const auto& [lines, said] : kRows) EXPECT_EQ(Served(lines, kJson).Log, said) << lines;
}

TEST(Commands, WaitUntilItIsOverOrThePlayerHasHadEnough) {
  std::istringstream in;
  std::ostringstream out;
  console::Console desk(in, out, {.Prompt = true});
  int asked = 0;
  EXPECT_TRUE(desk.WaitUntil([&] { return ++asked == 3; }));
  EXPECT_EQ(asked, 3);
  EXPECT_NE(out.str().find("Ctrl+C"), std::string::npos);
  const auto interrupt = [] {
    std::raise(SIGINT);
    return false;
  };
  for (int again = 0; again < 2; ++again) EXPECT_FALSE(desk.WaitUntil(interrupt));
  EXPECT_TRUE(desk.WaitUntil([] { return true; })) << "the last one is forgotten";
}

TEST(Commands, ShareWhatTheScreenTells) {
  EXPECT_TRUE(
      LastAnswer("share html").at("shared").get<std::string>().starts_with("<!DOCTYPE html>"));
  EXPECT_TRUE(Served("share markdown").Out().starts_with("# "));
}

TEST(Commands, TypeATextAsItStands) {
  constexpr std::pair<const char*, const char*> kNames[] = {
      {"type txtname Sam Lee", "Sam Lee"},
      {"type txtname", ""},
      {"type txtname  Sam ", " Sam "},
      {"type txtname a\\nb", "a\\nb"},  // a short box has one line
      {"type txtname on the roof", "on the r"}};
  for (const auto& [line, name] : kNames) EXPECT_EQ(Served(line, kJson).Name, name) << line;
  EXPECT_EQ(LastAnswer("type txtname on the roof").at("note").get<std::string>(),
            "There is room for 8 characters; the rest is left out.");
  EXPECT_FALSE(LastAnswer("type txtname on top").contains("note"));
  constexpr std::pair<const char*, const char*> kNotes[] = {{"one\\ntwo", "one\ntwo"},
                                                            {"one\\\\ntwo", "one\\ntwo"},
                                                            {"C:\\temp", "C:\\temp"},
                                                            {"end\\", "end\\"}};
  for (const auto& [typed, notes] : kNotes)
    EXPECT_EQ(Served("type txtnotes " + std::string(typed), kJson).Notes, notes);
}

TEST(Commands, ThatCannotBeDoneSayWhyAndChangeNothing) {
  const std::string nothingOpen = "No box is open.";
  const std::pair<std::string, std::string> kRows[] = {
      {"share word", "Write it as \"share markdown|html|bbcode\"."},
      {"fly", "There is no command \"fly\"; \"help\" lists them."},
      {"click", "Write it as \"click NAME\"."},
      {"click cmddoit now", "frmSample has no control \"cmddoit now\"."},
      {"click Off", "\"cmdoff\" is disabled. Not yet."},
      {"click Hidden", "frmSample has no control \"Hidden\"."},
      {"pick lstpeople", "Write it as \"pick NAME ROW-or-TEXT\"."},
      {"also lstpeople 1", "\"lstpeople\" takes one row at a time."},
      {"check chkday maybe", "Write it as \"check NAME on|off\"."},
      {"follow ", "Write it as \"follow NAME\"."},
      {"follow Ilya Marsh", "frmSample shows no link \"Ilya Marsh\"."},
      {"slide hsprice much", "\"much\" is not a whole number that a scroll bar could go to."},
      {"slide hsprice 5000000000",
       "\"5000000000\" is not a whole number that a scroll bar could go to."},
      {"show lstpeople Bram", "Write it as \"show [NAME]\"."},
      {"show lstghost", "There is no \"lstghost\" to be seen."},
      {"quit now", "Write it as \"quit\"."},
      {"click cmdnone", "frmSample has no control \"cmdnone\"."},
      {"ok", nothingOpen},
      {"cancel", nothingOpen},
      {std::string("show\0", 5), "The line holds a NUL byte."},
      {"click cmd\x1B[2Jdoit", "The line holds a control character."},
      {"type txtname \xD0\x96",
       "The game writes Western European letters only; \"\xD0\x96\" is "
       "not one of them."},
      {"type txtname \xF0\x9F\x98\x80",
       "The game writes Western European letters only; \"\xF0\x9F\x98\x80\" is not one of them."},
      {"type txtname \xFF\xFE", "The line is not UTF-8."},
      {"click cmdnone\xC3\x89", "frmSample has no control \"cmdnone\xC3\x89\"."},
  };
  const Json before = LastAnswer("show\n");
  for (const auto& [line, error] : kRows) {
    SCOPED_TRACE(line);
    const Served served(line + "\nshow\n", kJson);
    const auto answers = Answers(served);
    ASSERT_EQ(answers.size(), 2u);
    EXPECT_EQ(answers[0].value("error", ""), error);
    EXPECT_EQ(answers[1], before);
    EXPECT_EQ(served.Log, Log{});
  }
}

TEST(Commands, AtAnOpenBoxWaitForItsAnswer) {
  const struct {
    std::string Opens;
    std::vector<std::string> Refused;
    std::string Answers;
  } kRows[] = {{"cmdsay", {"yes", "cancel", "click cmddoit", "follow Bram Okafor"}, "\"ok\""},
               {"cmdask", {"ok", "cancel", "enter yes"}, "\"yes\" or \"no\""},
               {"cmdprompt", {"ok", "type txtname x"}, "\"enter TEXT\" or \"cancel\""}};
  for (const auto& row : kRows) {
    std::string lines = "click " + row.Opens + "\nshow\nhelp\n";
    for (const std::string& line : row.Refused) lines += line + "\n";
    const Served served(lines, kJson);
    const auto answers = Answers(served);
    ASSERT_EQ(answers.size(), 3 + row.Refused.size());
    for (std::size_t i = 0; i < answers.size(); ++i) {
      EXPECT_EQ(answers[i].value("error", ""),
                i < 3 ? "" : "A box is open; answer it with " + row.Answers + ".");
      EXPECT_EQ(answers[i].at("box"), answers[0].at("box"));
    }
    EXPECT_EQ(served.Name, "Pat");
  }
}

TEST(Commands, FindAnythingAndVisitIt) {
  const Served served("find bram\nvisit 2\nvisit 3\nfind nobody\nvisit 1\nexplain\n", kJson);
  const auto answers = Answers(served);
  ASSERT_EQ(answers.size(), 6u);
  EXPECT_EQ(answers[0].at("found"), Json::parse(R"([["Workers","Bram Okafor","Main Event, CWA"],
                            ["Titles","Bram's Crown",""]])"));
  EXPECT_EQ(served.Log, std::vector<std::string>{"found the Crown"});
  EXPECT_EQ(answers[2].at("error"), "Nothing was found under \"3\"; \"find TEXT\" looks.");
  EXPECT_EQ(answers[3].at("found"), Json::array());
  EXPECT_TRUE(answers[4].contains("error")) << "a new search forgets the last";
  EXPECT_EQ(answers[5].at("error"), "There is no help here.");
  const std::string text = Served("find bram\nfind nobody\n").Out();
  for (const char* part : {"Workers\n     1  Bram Okafor (Main Event, CWA)\n",
                           "\nTitles\n     2  Bram's Crown\n", "Nothing is called so.\n"})
    EXPECT_NE(text.find(part), std::string::npos) << part << " is missing in\n" << text;
}

TEST(Commands, SurviveALineOfAnyLength) {
  const std::string fits = "click " + std::string(console::kLongestLine - 6, 'x');
  EXPECT_EQ(LastAnswer(fits + "\n").at("error").get<std::string>().size(), 303u)
      << "what was typed is not sent back whole";
  const auto answers = Answers(Served(fits + "x\nclick cmddoit\n", kJson));
  ASSERT_EQ(answers.size(), 2u);
  EXPECT_EQ(answers[0].at("error"), "The line is longer than 2097152 bytes.");
  EXPECT_FALSE(answers[1].contains("error"));
}

TEST(Commands, HelpListsEveryOne) {
  const std::string help = console::HelpText();
  for (const console::VerbRow& row : console::Verbs())
    EXPECT_NE(help.find("  " + std::string(row.Form) + "  "), std::string::npos) << row.Word;
}

}  // namespace
}  // namespace grapplemont::test
