#include "words/embedding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "support/checkout.h"
#include "support/scratchfolder.h"
#include "words/tables/embedtables.h"

namespace grapplemont {
namespace {

namespace fs = std::filesystem;

/// A copy of words/ to make mistakes in.
class EmbeddingTest : public testing::Test {
 protected:
  EmbeddingTest() {
    fs::copy(test::Checkout("/words"), root_ / "words", fs::copy_options::recursive);
  }

  std::vector<std::string> Embed() { return EmbedWords(root_ / "words", Out()); }
  fs::path Out() const { return root_ / "out"; }
  fs::path PathOf(const std::string& file) const { return root_ / ("words/" + file); }
  std::string Read(const std::string& file) const {
    std::ifstream in(PathOf(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  void Write(const std::string& file, const std::string& text) const {
    std::ofstream(PathOf(file), std::ios::binary) << text;
  }
  static std::string At(const std::string& file, int line) {
    return "words/" + file + ":" + std::to_string(line) + ": ";
  }
  /// Puts one text for another; gives the line where it stood.
  int Replace(const std::string& file, const std::string& what, const std::string& with) {
    std::string text = Read(file);
    const auto at = text.find(what);
    if (at == std::string::npos) throw std::runtime_error(file + " has no " + what);
    const auto line = 1 + std::count(text.begin(), text.begin() + std::ptrdiff_t(at), '\n');
    Write(file, text.replace(at, what.size(), with));
    return static_cast<int>(line);
  }

 private:
  const test::ScratchFolder root_;
};

TEST_F(EmbeddingTest, RefusesALineThatCannotBeSaid) {
  const struct {
    const char *Line, *Why;
  } rows[] = {
      {"{T:hee} is here.", "there is no slot {T:hee}"},
      {"{T} wants the {titel}.", "there is no slot {titel}"},
      {"{T} meets {a}.", "{a} is nobody here; lines may name {T} and {m}"},
      {"Camera on.", "every line here names {T}"},
      {"{T} is in. {Camera on.", "a brace is not closed"},
      {"{T} is in. Camera} on.", "a brace closes nothing"},
      {"{T} here. {?m}{m} too.", "a condition is not closed: {.} is missing"},
      {"{T}. {?m}{m}. {!feud}Hm. {.}{.}", "a condition stands inside another"},
      {"{T} is here. {.}", "{.} ends no condition"},
      {"<dwon> {T} is here, too.",
       "there is no such tag; there are down, hold, floor, held, anyway, trouble, worn, pin, low, "
       "mid, high, leg, arm, back, up, clean, cold, warm, hot, mat, long, great, tired"},
      {"{T} is in.  Camera on.", "two blanks in a row"},
      {"{T} talks to himself.",
       "write {a:himself}, with the letter of whoever it is: it goes by sex and number"},
      {"{T} nod{T:s}, smile{T:s} and goes.",
       "\"goes\" goes by number as the verb before it does: end it in braces"},
      {"{T} \xE2\x98\x85.", "the program has no such letter: \xE2\x98\x85"},
  };
  const std::string heading = "== TalkOpening, SingleTalk\n", same = "{T} backstage. Mic on.";
  std::string lines = heading;
  for (const auto& row : rows) lines += std::string(row.Line) + "\n";
  const int first = Replace("qvd/talk.txt", heading, lines + same + "\n" + same + "\n") + 1;
  std::vector<std::string> expected = {
      At("qvd/bouts.txt", Replace("qvd/bouts.txt", "{w} gets", "{l} wins, {w} gets")) +
      "{l} or {L} has lost, and wins here"};
  expected.push_back(
      At("qvd/finishes.txt",
         Replace("qvd/finishes.txt", "<mid high> [{F} and {S} came", "[{F} and {S} came")) +
      "a line that judges says for which ratings: <low>, <mid high>, or all three");
  // What the program cannot read is reported before what it may not say.
  expected.push_back(At("qvd/talk.txt", first + int(std::size(rows)) - 1) +
                     rows[std::size(rows) - 1].Why);
  for (int row = 0; row + 1 < int(std::size(rows)); ++row)
    expected.push_back(At("qvd/talk.txt", first + row) + rows[row].Why);
  const int said = first + int(std::size(rows));
  expected.push_back(At("qvd/talk.txt", said + 1) +
                     "the same line stands in qvd/talk.txt:" + std::to_string(said));
  expected.push_back(
      At("meeting.txt", Replace("meeting.txt", "{n:is|are} unhappy", "{n} are unhappy")) +
      "one or many: write {n:one form|are}");
  const char* signing = "{who} has signed for {house}.";
  expected.push_back(At("news.txt", Replace("news.txt", signing, "{who} signed for {home}.")) +
                     "there is no slot {home} here; there is {who} and {house}");
  EXPECT_EQ(Embed(), expected);
  EXPECT_FALSE(fs::exists(Out())) << "nothing is made of words with mistakes";
}

TEST_F(EmbeddingTest, RefusesHeadingsAndNumbersOfLinesThatAreOff) {
  const struct {
    const char *File, *Text, *Instead, *Why;
  } rows[] = {
      {"lamplighter/bouts.txt", "== TwoCount\n", "== TwoCount\nOne more.\n",
       "4 lines under this heading; needed are 3"},
      {"lamplighter/finishes.txt", "== SideShow\n", "== SideShow\n\n== CheapFinish, Odd\n",
       "0 lines under this heading; needed are at least 2"},
      {"tolland/finishes.txt", "== SideShow\n", "== DoubleDq\n",
       "this heading stands already in line 5"},
      {"tolland/talk.txt", "# Rafe", "Too early.\n# Rafe",
       "a line before the first heading (\"== ...\")"},
      {"qvd/talk.txt", "TalkClosing, VerbalAttack", "TalkClosing, VerbalAtack",
       "there is no heading \"TalkClosing, VerbalAtack\" in this file; did you mean TalkClosing, "
       "VerbalAttack?"},
      {"meeting.txt", "== RosterSmall\n", "== RosterSmall\nWe are few.\n",
       "4 lines under this heading; needed are at most 3"},
  };
  std::vector<std::string> expected;
  for (const auto& row : rows)
    expected.push_back(At(row.File, Replace(row.File, row.Text, row.Instead)) + row.Why);
  const auto mistakes = Embed();
  for (const std::string& each : expected)
    EXPECT_NE(std::find(mistakes.begin(), mistakes.end(), each), mistakes.end()) << each;
  const auto missing = [&](const char* file, const char* heading) {
    const std::string text = Read(file);
    return At(file, int(std::count(text.begin(), text.end(), '\n'))) + "the heading \"" + heading +
           "\" is missing";
  };
  for (const std::string& each : {missing("tolland/finishes.txt", "SideShow"),
                                  missing("qvd/talk.txt", "TalkClosing, VerbalAttack")})
    EXPECT_NE(std::find(mistakes.begin(), mistakes.end(), each), mistakes.end()) << each;
  EXPECT_EQ(mistakes.size(), expected.size() + 3) << "and one heading \"Odd\"";
}

TEST_F(EmbeddingTest, RefusesAVoiceWithoutAFileAndAFileOfNoVoice) {
  fs::rename(PathOf("qvd/talk.txt"), PathOf("qvd/tlak.txt"));
  EXPECT_EQ(Embed(), (std::vector<std::string>{
                         "words/qvd/talk.txt:1: this file is missing",
                         "words/qvd/tlak.txt:1: the program reads no such file; did you mean "
                         "qvd/talk.txt?"}));
}

TEST_F(EmbeddingTest, MakesOnlyTheUnitOfAnEditedFileAgain) {
  ASSERT_EQ(Embed(), std::vector<std::string>());
  const auto long_ago = std::chrono::floor<std::chrono::seconds>(fs::file_time_type::clock::now() -
                                                                 std::chrono::hours(1));
  for (const auto& unit : fs::directory_iterator(Out())) fs::last_write_time(unit, long_ago);
  Replace("fans.txt", "{show}: I have no notes.", "{show}: my \"caf\xC3\xA9\" is empty.");
  ASSERT_EQ(Embed(), std::vector<std::string>());
  for (const auto& unit : fs::directory_iterator(Out()))
    EXPECT_EQ(fs::last_write_time(unit) != long_ago, unit.path().filename() == "fans.cpp")
        << unit.path();
  std::ifstream in(Out() / "fans.cpp");
  const std::string code{std::istreambuf_iterator<char>(in), {}};
  EXPECT_NE(code.find(R"(    "{show}: my \"caf\351\" is empty.)"), std::string::npos);
}

TEST_F(EmbeddingTest, RefusesTablesThatDoNotSayWhatTheyMust) {
  const struct {
    const char *File, *Text, *Instead, *Why;
  } rows[] = {
      {"angles.txt", "1 Turner (Turners), 2 Talking To", "1 Turner (Turnors), 2 Talking To",
       "Cast: there is no casting \"Turnors\"; did you mean Turners?"},
      {"angles.txt", "1 Victim, 2 Attacker #1, 3 Attacker #2, 4", "1 Victim, Attacker #1, 3 x, 4",
       "Cast: the box \"Attacker #1\" needs a place from 1 to 4 before its caption"},
      {"angles.txt", "1 The Girl (Women), 2 Meets", "1 The Girl (Women), 1 Meets",
       "Cast: two boxes have the place 1"},
      {"angles.txt", "1 Joining, Stable (Stables)", "1 Joining, 2 Stable (Stables)",
       "Cast: no worker stands in the box \"Stable\", and so it has no place"},
      {"angles.txt", "1 Challenger, 2 Challengee |", "- |", "Cast: may not be empty"},
      {"angles.txt", "1>3 2>4", "1>3 2", "Scores: \"2\" is not a pair like 2>1"},
      {"angles.txt", "| 1 Leader ", "| 1 Leaser ",
       "Talk: there is no such thing as \"Leaser\"; did you mean Leader?"},
      {"angles.txt", "29 | ", "28 | ",
       "the rows are numbered one after the other, and this is number 29"},
      {"promotions.txt", "Initials\n", "Initial\n",
       "the first line of this table must be \"Name | Initials\""},
      {"promotions.txt", "| TCW", "| TCW | x", "3 cells; this table has 2"},
      {"segments.txt", "{W} cleanly", "{Q} cleanly", "Says of 1 vs 1: there is no slot {Q}"},
      {"segments.txt", "Tantrum ", "AttacksReferee ",
       "the rule name AttacksReferee has another number in line "},
      {"segments.txt", "Singles      | 4 ", "Single       | 4 ",
       "Style: there is no such thing as \"Single\"; did you mean Singles?"},
      {"segments.txt", "Singles      | 9    | Ladder", "Singles      | 2    | Ladder",
       "the same Style | Code stands in line "},
      {"names.txt", "Abernathy, ", "Alabaster, ", "Alabaster stands in line "},
      {"names.txt", "Zigzag", "Zigzaggings", "Zigzaggings is longer than 10 letters"},
      {"names.txt", "Wanda", "Wanda, Zoe",
       "32 names under \"First names of women on the staff\"; needed are 31"},
  };
  for (const auto& row : rows) {
    const std::string whole = Read(row.File);
    const int line = Replace(row.File, row.Text, row.Instead);
    const auto mistakes = EmbedTables(PathOf(""), Out());
    ASSERT_FALSE(mistakes.empty()) << row.Why;
    EXPECT_TRUE(mistakes[0].starts_with(At(row.File, line) + row.Why)) << mistakes[0];
    Write(row.File, whole);
  }
  EXPECT_FALSE(fs::exists(Out())) << "nothing is made of tables with mistakes";
  EXPECT_EQ(EmbedTables(PathOf(""), Out()), std::vector<std::string>());
}

}  // namespace
}  // namespace grapplemont
