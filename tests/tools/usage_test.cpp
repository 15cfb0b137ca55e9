#include "toolhome.h"

namespace grapplemont::test {
namespace {

using ToolUsage = ToolHome;

std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

TEST_F(ToolUsage, RefusesWhatMakesNoSense) {
  const struct {
    std::vector<std::string> Arguments;
    std::string Expected;
  } rows[] = {
      {{}, "grapplemont-world: a command is missing"},
      {{"biuld"}, "grapplemont-world: there is no command \"biuld\"; did you mean build?"},
      {{"build", "a"}, "grapplemont-world build: something is missing"},
      {{"build", "a", "b", "c"}, "grapplemont-world build: \"c\" is one word too many"},
      {{"check"}, "grapplemont-world check: something is missing"},
      {{"check", "--fast", "a"}, "grapplemont-world check: there is no option \"--fast\""},
      {{"new", "--slot", "1", "--player", "Pat"}, "grapplemont-world new: --promotion is missing"},
      {{"new", "--slot", "1", "--promotion", "CWA", "--player", "  "},
       "grapplemont-world new: --player needs a name"},
      {{"new", "--slot", "1", "--promotion", "CWA", "--player", std::string(26, 'x')},
       "grapplemont-world new: --player has room for 25 letters"},
      {{"new", "--slot", "1", "--promotion", "CWA", "--player", "\xC5\x81"},
       "grapplemont-world new: --player has a letter that the game cannot hold"},
      {{"new", "--slot", "9", "--promotion", "CWA", "--player", "Pat"},
       "grapplemont-world new: --slot needs a whole number from 1 to 8, not \"9\""},
      {{"new", "--slot", "1", "--promotion", "CWA", "--player", "Pat", "--difficulty", "0"},
       "grapplemont-world new: --difficulty needs a whole number from 1 to 4, not \"0\""},
      {{"new", "--slot", "1", "--promotion", "CWA", "--player", "Pat", "--start", "1.3.2026"},
       "grapplemont-world new: --start needs a date such as 2026-03-01, not \"1.3.2026\""},
      {{"new", "--slot", "1", "--promotion", "CWA", "--player", "Pat", "--start", "9999-12-31"},
       "grapplemont-world new: --start needs a year from 1900 to 9000"},
      {{"run", "--slot", "1"}, "grapplemont-world run: --days is missing"},
      {{"run", "--slot", "1", "--days", "-3"},
       "grapplemont-world run: --days needs a whole number from 0 to 100000, not \"-3\""},
      {{"run", "--slot", "1", "--days", "1", "--days", "2"},
       "grapplemont-world run: --days stands there twice"},
      {{"run", "--slot", "1", "--days", "1", "--stats"},
       "grapplemont-world run: --stats needs a value, FILE"},
      {{"run", "--slot", "1", "--days", "1", "--shows", "all"},
       "grapplemont-world run: --shows is \"auto\" or \"cancel\", not \"all\""},
      {{"run", "--slot", "1", "--days", "1", "--sede", "1"},
       "grapplemont-world run: there is no option \"--sede\"; did you mean --seed?"},
  };
  for (const auto& row : rows) {
    const Ran ran = Run(row.Arguments);
    EXPECT_EQ(2, ran.Code) << row.Expected;
    EXPECT_EQ(row.Expected, FirstLine(ran.Errors));
    EXPECT_NE(std::string::npos, ran.Errors.find("usage: grapplemont-world")) << row.Expected;
    EXPECT_EQ("", ran.Out) << row.Expected;
  }
}

TEST_F(ToolUsage, HelpsOnEveryCommand) {
  const Ran all = Run({"--help"});
  EXPECT_EQ(0, all.Code);
  EXPECT_EQ("", all.Errors);
  for (const char* command :
       {"build", "export", "check", "new", "run", "soak", "formats", "columns"}) {
    EXPECT_NE(std::string::npos, all.Out.find("\n  " + std::string(command))) << command;
    const Ran one = Run({command, "--help"});
    EXPECT_EQ(0, one.Code);
    EXPECT_EQ("usage: grapplemont-world " + std::string(command),
              FirstLine(one.Out).substr(0, 25 + std::string(command).size()));
  }
}

}  // namespace
}  // namespace grapplemont::test
