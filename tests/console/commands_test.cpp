#include "console/command.h"

#include <random>

#include "console/served.h"

namespace grapplemont::test {
namespace {

using Log = std::vector<std::string>;

TEST(Commands, WorkTheControls) {
  struct Row {
    const char* Lines;
    Log Said;
  };
  const Row kRows[] = {
      {"click cmddoit\n", {"cmddoit"}},
      {"click imgdoor\n", {"imgdoor"}},
      {"click optheel\n", {"optheel"}},
      {"  click \t cmddoit  \n", {"cmddoit"}},
      {"click cmddoit\r\nclick cmddoit\r\n", {"cmddoit", "cmddoit"}},
      {"click cmddoit", {"cmddoit"}},  // the last line lacks its end
      {"type txtname Sam\n", {"txtname typed"}},
      {"pick lstpeople 1\n", {"lstpeople picked"}},
      {"pick lstpeople Bram Okafor\n", {"lstpeople picked"}},
      {"pick cmbkind Tag Team\n", {"cmbkind picked"}},
      {"open lstpeople 2\n", {"lstpeople picked", "lstpeople opened"}},
      {"check chkday on\ncheck chkday on\ncheck chkday off\n", {"chkday", "chkday"}},
      {"check optheel on\n", {"optheel"}},
      {"slide hsprice 55\n", {"hsprice"}},
      {"follow Bram Okafor\n", {"page of Bram"}},
      {"show\nshow lstpeople\nhelp\n\n", {}},
  };
  for (const Row& row : kRows) EXPECT_EQ(Served(row.Lines, kJson).Log, row.Said) << row.Lines;
}

TEST(Commands, TypeATextAsItStands) {
  struct Row {
    const char *Line, *Name;
  };
  constexpr Row kRows[] = {{"type txtname Sam Lee", "Sam Lee"},
                           {"type txtname", ""},
                           {"type txtname ", ""},
                           {"type txtname  Sam ", " Sam "},
                           {"type txtname a\\nb", "a\\nb"},  // a short box has one line
                           {"type txtname on the roof", "on the r"}};
  for (const Row& row : kRows) EXPECT_EQ(Served(row.Line, kJson).Name, row.Name) << row.Line;
}

TEST(Commands, TypeSeveralLinesIntoALongBox) {
  struct Row {
    const char *Typed, *Notes;
  };
  constexpr Row kRows[] = {{"one\\ntwo", "one\ntwo"},
                           {"one\\\\ntwo", "one\\ntwo"},
                           {"C:\\temp", "C:\\temp"},
                           {"end\\", "end\\"}};
  for (const Row& row : kRows)
    EXPECT_EQ(Served("type txtnotes " + std::string(row.Typed), kJson).Notes, row.Notes);
}

TEST(Commands, AnswerBoxes) {
  struct Row {
    const char* Lines;
    Log Said;
  };
  const Row kRows[] = {
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
  };
  for (const Row& row : kRows) EXPECT_EQ(Served(row.Lines, kJson).Log, row.Said) << row.Lines;
}

TEST(Commands, ThatCannotBeDoneSayWhyAndChangeNothing) {
  struct Row {
    std::string Line, Error;
  };
  const std::string nothingOpen = "No box is open.";
  const Row kRows[] = {
      {"fly", "There is no command \"fly\"; \"help\" lists them."},
      {"Show", "There is no command \"Show\"; \"help\" lists them."},
      {"click", "Write it as \"click NAME\"."},
      {"click cmddoit now", "Write it as \"click NAME\"."},
      {"type", "Write it as \"type NAME TEXT\"."},
      {"pick lstpeople", "Write it as \"pick NAME ROW-or-TEXT\"."},
      {"open lstpeople", "Write it as \"open NAME ROW-or-TEXT\"."},
      {"check chkday", "Write it as \"check NAME on|off\"."},
      {"check chkday maybe", "Write it as \"check NAME on|off\"."},
      {"slide hsprice", "Write it as \"slide NAME VALUE\"."},
      {"follow ", "Write it as \"follow NAME\"."},
      {"follow Ilya Marsh", "frmSample shows no link \"Ilya Marsh\"."},
      {"follow Bram", "frmSample shows no link \"Bram\"."},
      {"slide hsprice much", "\"much\" is no whole number that a scroll bar could go to."},
      {"slide hsprice 5000000000",
       "\"5000000000\" is no whole number that a scroll bar could go to."},
      {"slide hsprice 101", "\"hsprice\" goes from 5 to 100."},
      {"show lstpeople Bram", "Write it as \"show [NAME]\"."},
      {"show lstghost", "There is no \"lstghost\" to be seen."},
      {"show cmdhidden", "There is no \"cmdhidden\" to be seen."},
      {"quit now", "Write it as \"quit\"."},
      {"click cmdnone", "frmSample has no control \"cmdnone\"."},
      {"click cmdoff", "\"cmdoff\" is disabled."},
      {"click cmdhidden", "\"cmdhidden\" is not visible."},
      {"click lblfacts", "\"lblfacts\" is a Label and cannot be clicked."},
      {"pick lstpeople 4", "\"lstpeople\" has no row \"4\"."},
      {"open lstmany 1", "\"lstmany\" is a ListBox and cannot be opened."},
      {"ok", nothingOpen},
      {"yes", nothingOpen},
      {"no", nothingOpen},
      {"enter Sam", nothingOpen},
      {"cancel", nothingOpen},
      {std::string("show\0", 5), "The line holds a NUL byte."},
      {"click cmd\x1B[2Jdoit", "The line holds a control character."},
      {"click\rcmddoit", "The line holds a control character."},
      {"type txtname \xD0\x96",
       "The game writes Western European letters only; \"\xD0\x96\" is "
       "none of them."},
      {"type txtname \xF0\x9F\x98\x80",
       "The game writes Western European letters only; \"\xF0\x9F\x98\x80\" is none of them."},
      {"type txtname \xFF\xFE", "The line is not UTF-8."},
      {"type txtname \xC3", "The line is not UTF-8."},
      {"click cmdnone\xC3\x89", "frmSample has no control \"cmdnone\xC3\x89\"."},
  };
  const Json before = LastAnswer("show\n");
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.Line);
    const Served served(row.Line + "\nshow\n", kJson);
    const auto answers = Answers(served);
    ASSERT_EQ(answers.size(), 2u);
    EXPECT_EQ(answers[0].value("error", ""), row.Error);
    EXPECT_EQ(answers[1], before);
    EXPECT_EQ(served.Log, Log{});
  }
}

TEST(Commands, AtAnOpenBoxWaitForItsAnswer) {
  const std::string ok = "A box is open; answer it with \"ok\".";
  const std::string yesNo = "A box is open; answer it with \"yes\" or \"no\".";
  const std::string input = "A box is open; answer it with \"enter TEXT\" or \"cancel\".";
  struct Row {
    std::string Opens, Line, Error;
  };
  const Row kRows[] = {{"cmdsay", "yes", ok},
                       {"cmdsay", "cancel", ok},
                       {"cmdsay", "click cmddoit", ok},
                       {"cmdask", "ok", yesNo},
                       {"cmdask", "cancel", yesNo},
                       {"cmdask", "enter yes", yesNo},
                       {"cmdprompt", "ok", input},
                       {"cmdprompt", "type txtname x", input},
                       {"cmdsay", "show", ""},
                       {"cmdask", "help", ""},
                       {"cmdsay", "follow Bram Okafor", ok}};
  for (const Row& row : kRows) {
    const Served served("click " + row.Opens + "\n" + row.Line + "\n", kJson);
    const auto answers = Answers(served);
    ASSERT_EQ(answers.size(), 2u);
    EXPECT_EQ(answers[1].value("error", ""), row.Error) << row.Opens << ", " << row.Line;
    EXPECT_EQ(answers[1].at("box"), answers[0].at("box"));
    EXPECT_EQ(served.Name, "Pat");
  }
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

TEST(Commands, OfAnyKindGetOneAnswerEach) {
  const std::vector<std::string> kWords = {"show",
                                           "click",
                                           "type",
                                           "pick",
                                           "open",
                                           "check",
                                           "slide",
                                           "follow",
                                           "ok",
                                           "yes",
                                           "no",
                                           "enter",
                                           "cancel",
                                           "help",
                                           "cmddoit",
                                           "cmdsay",
                                           "cmdask",
                                           "cmdoff",
                                           "cmdprompt",
                                           "cmdthrow",
                                           "cmdhidden",
                                           "txtname",
                                           "txtnotes",
                                           "lstpeople",
                                           "lstmany",
                                           "cmbkind",
                                           "chkday",
                                           "optheel",
                                           "hsprice",
                                           "imgdoor",
                                           "rptshow",
                                           "Bram Okafor",
                                           "on",
                                           "off",
                                           "1",
                                           "3",
                                           "-7",
                                           "99",
                                           "\xC3\x89",
                                           "\xE2\x82",
                                           "\t",
                                           "\r",
                                           std::string(1, '\0'),
                                           "\\n",
                                           "\x7F",
                                           "\xFF",
                                           "\""};
  std::mt19937 chance(7);
  std::string lines;
  constexpr int kLines = 1000;
  for (int line = 0; line < kLines; ++line) {
    // Mostly what could be meant: a verb, a name, an argument.
    for (auto words = chance() % 4; words > 0; --words)
      lines += kWords[chance() % kWords.size()] + (chance() % 8 == 0 ? "" : " ");
    lines += chance() % 9 == 0 ? "\r\n" : "\n";
  }
  EXPECT_EQ(Answers(Served(lines, kJson)).size(), static_cast<std::size_t>(kLines));
}

TEST(Commands, GoOnAfterAHandlerThrew) {
  const Served served("click cmdthrow\nok\nclick cmddoit\n", kJson);
  EXPECT_EQ(served.Log, (Log{"Load", "Return", "cmddoit"}));
  EXPECT_TRUE(served.Open);
}

TEST(Commands, HelpListsEveryOne) {
  const std::string help = console::HelpText();
  for (const console::VerbRow& row : console::Verbs())
    EXPECT_NE(help.find("  " + std::string(row.Form) + "  "), std::string::npos) << row.Word;
}

}  // namespace
}  // namespace grapplemont::test
