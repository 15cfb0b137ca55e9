#include <algorithm>

#include "console/columns.h"
#include "console/served.h"

namespace grapplemont::test {
namespace {

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::string Shown(const std::string& lines, int width = 80) {
  return Served(lines, {.Width = width}).Out();
}

TEST(TextAnswer, ShowsTheScreenAfterItsLayout) {
  const char* const kExpected =
      R"(== Sample ========================================================= frmSample ==

  lblfacts         Label        Two of everything.

Who
  txtname          TextBox      Name: "Pat"
  lstpeople        ListBox      Who: 3 rows
        Name               Over
     1  Bram Okafor          88
     2  3                    40
     3  Ilya Marsh   $1,284,500

How
  cmbkind          ComboBox     How: Singles (1 of 2)
    >1  Singles
     2  Tag Team
  chkday           CheckBox     [ ] Every day
  optface          OptionButton (o) Face
  optheel          OptionButton ( ) Heel

What
  hsprice          ScrollBar    What: 20, from 5 to 100
  chtmoney         Chart        What
    Jan: Money 1,200, Image 61
    Feb: Money -50.25
  rptshow          Report       What
    The bell rings.
    It is over.

  cmdsay           Button       Say
  cmdask           Button       Ask
  cmdprompt        Button       Prompt
  cmdthrow         Button       Throw
  cmddoit          Button       Do It
  cmdclose         Button       Close

  txtnotes         TextBox      ""
  cmdoff           Button       Off (disabled: Not yet.)
  lstmany          ListBox      3 rows (any number may be chosen)
     1  Red
     2  Green
     3  Blue
  lstnone          ListBox      Nothing yet.
  optother         OptionButton (o) Other
  imgdoor          Picture      door.jpg (can be clicked)
  imgback          Picture      back.jpg

Type: click NAME, type NAME TEXT, pick NAME ROW-or-TEXT, open NAME ROW-or-TEXT,
check NAME on|off, slide NAME VALUE, show [NAME], help, quit
)";
  const auto expected = LinesOf(kExpected), shown = LinesOf(Shown("show\n"));
  for (std::size_t i = 0; i < std::max(expected.size(), shown.size()); ++i)
    EXPECT_EQ(i < shown.size() ? shown[i] : "(no line)",
              i < expected.size() ? expected[i] : "(no line)");
}

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(TextAnswer, ShowsWhatACommandHasBrought) {
  constexpr std::pair<const char*, const char*> kAnswers[] = {
      {"click cmdsay\n", "-- Told -------------------------- ok --\n  First.\n"},
      {"click cmdask\n", "-- Sure? ---------------- yes or [no] --\n  Really?\n"},
      {"click cmdprompt\n",
       "-- Name? ------- enter TEXT or cancel --\n  A new name:\n  Offered: Pat\n"},
      {"click cmdoff\n", "Error: \"cmdoff\" is disabled. Not yet.\n"},
      {"click cmdclose\n", "The game has ended.\n"}};
  for (const auto& [lines, answer] : kAnswers) EXPECT_EQ(Shown(lines, 40), answer);
  EXPECT_EQ(Shown("show cmdoff\n"), "  cmdoff           Button       Off (disabled: Not yet.)\n");
  EXPECT_EQ(Shown("show txtname\n"), "  txtname          TextBox      Name: \"Pat\"\n");
}

TEST(TextAnswer, AsksForCommandsAtATerminal) {
  const std::string text = Served("click cmddoit\nquit\n", {.Prompt = true, .Width = 80}).Out();
  EXPECT_TRUE(text.starts_with("== Sample ==")) << "the screen is there before any command";
  EXPECT_EQ(LinesOf(text).back(), "> ");
  EXPECT_TRUE(Has(text, "> == Sample"));
}

/// A console over one long list.
class LongList : public ui::Screen {
 public:
  explicit LongList(ui::Desk& desk) : Screen(desk, "frmLong", "Long") {
    lstlong.Multi = true;
    for (int row = 1; row <= 40; ++row)
      lstlong.Add({"Row " + std::to_string(row), std::string(row == 2 ? 200 : 3, 'x'),
                   "one\ntwo\x1B[2J\x81"});
    for (int line = 1; line <= 70; ++line) prose_ += "Line " + std::to_string(line) + "\n";
    rptlong.Write(prose_);
  }
  ui::Page Layout() override { return {}; }

 private:
  std::string prose_;
  ui::ListBox lstlong{*this, "lstlong", {{"First"}, {"Second"}, {"Third"}}};
  ui::Report rptlong{*this, "rptlong"};
};

std::string ShownLong(const std::string& lines) {
  std::istringstream in(lines);
  std::ostringstream out;
  console::Console desk(in, out, {.Width = 80});
  desk.Open(std::make_unique<LongList>(desk));
  desk.Run();
  return out.str();
}

TEST(TextAnswer, ShortensWhatIsLongAndShowsItWholeOnDemand) {
  const std::string text = ShownLong("show\n");
  EXPECT_TRUE(Has(text, "     12  Row 12")) << text;
  EXPECT_FALSE(Has(text, "Row 13"));
  EXPECT_TRUE(Has(text, "    ... 28 more rows: show lstlong\n"));
  EXPECT_TRUE(Has(text, "    Line 60\n    ... 10 more lines: show rptlong\n"));
  for (const std::string& line : LinesOf(text)) EXPECT_LE(line.size(), 80u) << line;

  const std::string list = ShownLong("show lstlong\n");
  EXPECT_TRUE(Has(list, "     40  Row 40"));
  EXPECT_TRUE(Has(list, std::string(200, 'x')));
  EXPECT_TRUE(Has(list, "one two?[2J?\n")) << "a terminal gets nothing but letters";
  EXPECT_TRUE(Has(ShownLong("show rptlong\n"), "    Line 70\n"));
}

TEST(TextAnswer, ShowsChosenRowsAmongTheHidden) {
  const std::string text = ShownLong("pick lstlong 25\npick lstlong Row 40\n");
  for (const char* part :
       {"40 rows, chosen 25, 40 ", "    >25  Row 25", "    >40  Row 40", "... 26 more rows"})
    EXPECT_TRUE(Has(text, part)) << part;
}

TEST(Wrapped, BreaksAtBlanksWhereThereAreAny) {
  using Lines = std::vector<std::string>;
  const std::pair<const char*, Lines> kRows[] = {{"", {""}},
                                                 {"ten chars!", {"ten chars!"}},
                                                 {"ten chars! and", {"ten chars!", "and"}},
                                                 {"one two three four", {"one two", "three four"}},
                                                 {"unbreakableword", {"unbreakabl", "eword"}},
                                                 {"a\n\nb\n", {"a", "", "b", ""}}};
  for (const auto& [text, lines] : kRows) EXPECT_EQ(console::Wrapped(text, 10), lines) << text;
}

TEST(Shortened, EndsInDotsWhereItIsCut) {
  EXPECT_EQ(console::Shortened("Bram Okafor", 11), "Bram Okafor");
  EXPECT_EQ(console::Shortened("Bram Okafor", 10), "Bram Ok...");
  EXPECT_EQ(console::Shortened("Bram Okafor", 2), "Br");
  EXPECT_EQ(console::Shortened("one\ntwo", 9), "one two");
}

TEST(Completion, KnowsTheCommandsAndTheControlsThatEachCanWork) {
  std::istringstream in;
  std::ostringstream out;
  console::Console desk(in, out, {});
  std::vector<std::string> clicks;
  SampleScreen::On(desk, clicks);
  using Words = std::vector<std::string>;
  const std::pair<const char*, Words> kRows[] = {
      {"cl", {"click"}},
      {"s", {"share", "show", "slide"}},
      {"click cmds", {"cmdsay"}},
      {"click cmdo", {}},  // it is disabled
      {"show cmdo", {"cmdoff"}},
      {"show cmdh", {}},  // it is hidden
      {"type ", {"txtname", "txtnotes"}},
      {"pick ", {"cmbkind", "lstmany", "lstnone", "lstpeople"}},
      {"open cmb", {}},
      {"slide h", {"hsprice"}},
      {"type txtname tx", {}},  // that is a text
      {"nonsense c", {}}};
  for (const auto& [before, words] : kRows) EXPECT_EQ(desk.CompletionsOf(before), words) << before;
}

TEST(Typing, TakesLinesFromThePersonOnlyBehindAPrompt) {
  for (const bool prompt : {true, false}) {
    std::vector<std::string> typed{"click cmddoit", "quit"}, clicks;
    std::istringstream in("click cmdask\nyes\n");
    std::ostringstream out;
    console::Settings settings{.Prompt = prompt};
    settings.Ask = [&](const std::string& asked, const console::Completions& completions) {
      EXPECT_EQ(asked, "> ");
      EXPECT_EQ(completions("qu"), std::vector<std::string>{"quit"});
      console::Line line{typed.front()};
      typed.erase(typed.begin());
      return std::optional(line);
    };
    console::Console desk(in, out, settings);
    SampleScreen::On(desk, clicks);
    clicks.clear();
    desk.Run();
    EXPECT_EQ(clicks.front(), prompt ? "cmddoit" : "yes");
  }
}

}  // namespace
}  // namespace grapplemont::test
