#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iostream>
#include <sstream>
#include <string_view>

#include "golden/changes.h"
#include "golden/month.h"
#include "support/checkout.h"

// Small worlds, each played through a script, must come to what is committed beside it. With
// --bless what they come to is committed in its place, and what moved is listed.

namespace grapplemont::test {

bool bless = false;

namespace {

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

class GoldenMonth : public testing::TestWithParam<std::string> {
 protected:
  void Compare(const std::string& ending, const std::string& is,
               const std::function<std::vector<std::string>(const std::string&)>& moved) {
    const std::string path = Checkout("/tests/golden/" + GetParam() + ending);
    const std::string committed = ReadFile(path);
    if (is == committed) return;
    const std::string list =
        GetParam() + ending + "\n" +
        (committed.empty() ? "Nothing is committed yet: ./test --bless does that.\n"
                           : Listing(moved(committed)));
    if (bless) {
      std::cout << list;
      std::ofstream(path, std::ios::binary) << is;
    } else {
      ADD_FAILURE() << list;
    }
  }
};

TEST_P(GoldenMonth, ComesToWhatIsCommitted) {
  const MonthOutcome outcome = PlayMonth(GetParam());
  if (HasFailure()) return;
  Compare(".csv", ChangesText(outcome.Changes),
          [&](const std::string& committed) { return Moved(outcome.Changes, committed); });
  Compare(".told", outcome.Told,
          [&](const std::string& committed) { return MovedLines(outcome.Told, committed); });
}

INSTANTIATE_TEST_SUITE_P(Golden, GoldenMonth, testing::ValuesIn(MonthNames()),
                         [](const auto& month) {
                           std::string name = month.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace grapplemont::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  for (int i = 1; i < argc; ++i) grapplemont::test::bless |= std::string_view(argv[i]) == "--bless";
  return RUN_ALL_TESTS();
}
