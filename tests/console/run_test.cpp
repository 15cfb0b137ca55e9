#include "console/run.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "records/fields/fields.h"
#include "support/checkout.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

TEST(ConsoleOptions, AreRead) {
  std::string why;
  const auto none = console::ReadOptions({}, why);
  ASSERT_TRUE(none);
  EXPECT_FALSE(none->Home || none->Today || none->Seed || none->Json || none->Help);
  const std::vector<std::string> all = {
      "--json", "--seed", "18446744073709551615", "--home", "a home", "--today", "2026-03-01"};
  const auto some = console::ReadOptions(all, why);
  ASSERT_TRUE(some) << why;
  EXPECT_TRUE(some->Json);
  EXPECT_EQ(some->Seed, 18446744073709551615u);
  EXPECT_EQ(some->Home, "a home");
  EXPECT_EQ(some->Today, Day(year{2026} / 3 / 1));
}

struct Outcome {
  int Code;
  std::string Out, Errors;
};

Outcome Played(const std::vector<std::string>& arguments, const std::string& lines = {}) {
  std::istringstream in(lines);
  std::ostringstream out, errors;
  const int code = console::RunConsole(arguments, {in, out, errors}, {});
  return {code, out.str(), errors.str()};
}

TEST(RunConsole, RefusesWrongArguments) {
  struct Row {
    std::vector<std::string> Arguments;
    std::string Why;
  };
  const Row kRows[] = {
      {{"--fast"}, "There is no option \"--fast\"."},
      {{"-h"}, "There is no option \"-h\"."},
      {{"home"}, "There is no option \"home\"."},
      {{""}, "There is no option \"\"."},
      {{"--home"}, "--home needs a value."},
      {{"--json", "--seed"}, "--seed needs a value."},
      {{"--home", ""}, "--home needs a folder."},
      {{"--seed", "-1"}, "--seed needs a whole number from 0 up, not \"-1\"."},
      {{"--seed", "7x"}, "--seed needs a whole number from 0 up, not \"7x\"."},
      {{"--seed", ""}, "--seed needs a whole number from 0 up, not \"\"."},
      {{"--seed", "18446744073709551616"},
       "--seed needs a whole number from 0 up, not \"18446744073709551616\"."},
      {{"--today", "2026-02-30"}, "--today needs a date such as 2026-03-01, not \"2026-02-30\"."},
      {{"--today", "01/03/2026"}, "--today needs a date such as 2026-03-01, not \"01/03/2026\"."},
  };
  for (const Row& row : kRows) {
    const Outcome outcome = Played(row.Arguments, "show\n");
    EXPECT_EQ(outcome.Code, 2) << row.Why;
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Errors, "grapplemont-console: " + row.Why + "\n" + console::kUsage);
  }
}

TEST(RunConsole, ExplainsItself) {
  const Outcome outcome = Played({"--help"});
  EXPECT_EQ(outcome.Code, 0);
  EXPECT_EQ(outcome.Out, console::kUsage);
  EXPECT_EQ(outcome.Errors, "");
}

/// An empty folder of the test's own.
class Home : public testing::Test {
 protected:
  Home() {
    std::string name = testing::TempDir() + "consoleXXXXXX";
    Path = mkdtemp(name.data());
  }
  ~Home() override { std::filesystem::remove_all(Path); }
  std::string Path;
};

TEST_F(Home, ThatIsNoFolderIsToldInOneLine) {
  for (const std::string& home : {Path + "/none", std::string("/dev/null")}) {
    const Outcome outcome = Played({"--json", "--home", home}, "show\n");
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Errors, "grapplemont-console: \"" + home + "\" is no folder.\n");
  }
}

TEST_F(Home, WithoutPicturesEndsAtTheBoxThatSaysSo) {
  const Outcome outcome = Played({"--json", "--home", Path}, "show\nok\n");
  EXPECT_EQ(outcome.Code, 1);
  EXPECT_NE(outcome.Out.find("\"title\":\"Error Loading\""), std::string::npos) << outcome.Out;
  EXPECT_EQ(outcome.Errors, "grapplemont-console: The game could not start.\n");
}

TEST_F(Home, ServesTheTitleScreenToTheEndOfInput) {
  std::filesystem::copy(Checkout("/gfx"), Path + "/gfx");
  const std::string link = Path + "/link";
  std::filesystem::create_directory_symlink(Path, link);
  for (const std::string& home : {Path, link, Path + "/"}) {
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
