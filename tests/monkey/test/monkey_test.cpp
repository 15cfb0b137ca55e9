#include <gtest/gtest.h>

#include <cstdlib>

#include "monkey/hand.h"
#include "monkey/run.h"
#include "monkey/worlds.h"
#include "records/world.h"

// The monkey notices what is broken, whatever way, and cuts the way there down.

namespace grapplemont::test {
namespace {

const CutDisk& SmallHome() {
  static const CutDisk home = HomeOf(Data::Small, 0);
  return home;
}

/// What a run of a process of its own has written.
Record Clicked(int clicks, const Limits& limits, std::uint64_t seed = 2) {
  Record record;
  RunApart(
      1, 1,
      [&](int, Paper& paper) {
        Play({seed, clicks, limits}, SmallHome(), paper);
      },
      [&](const Ran& ran) {
        record = ReadRecord(ran.Written, ran.Died);
        return true;
      });
  return record;
}

/// Does it once, when the game has gone on for some days.
Limits OnTheThirdDay(const std::function<void(Sitting&)>& breaks) {
  return {.Breaks = [breaks](Sitting& sitting) {
    if (sitting.Playing().HasWorld() && sitting.Days() >= 2) breaks(sitting);
  }};
}

void EmployNobodyKnowsWho(Sitting& sitting) {
  World& world = sitting.Playing().World();
  sitting.Desk().Event([&] { world.Workers()[1].Employer = 9999; });
}

TEST(AMonkey, FindsABrokenWorldAndTheShortWayThere) {
  const Limits limits = OnTheThirdDay(EmployNobodyKnowsWho);
  const Record record = Clicked(2000, limits);
  ASSERT_NE(record.Fault.find("wrestler.dat, record 1"), std::string::npos) << record.Fault;
  const auto fewest = CutDown(record, SmallHome(), limits, 250);
  // Seven clicks begin a game, and a day takes one or two.
  EXPECT_GE(fewest.size(), 9u);
  EXPECT_LE(fewest.size(), 14u);
  const std::string test = AsTest(fewest, "Seed2", ExpressionOf(Data::Small, 2), kGameSeed);
  EXPECT_NE(test.find("  desk.Click(\"cmdload1\");\n"), std::string::npos) << test;
  EXPECT_NE(test.find("HomeFolder home(RichWorld().Build(), 11);"), std::string::npos) << test;
}

TEST(AMonkey, FindsWhatIsThrownADeathAndTooMuchMemory) {
  const Record thrown = Clicked(2000, OnTheThirdDay([](Sitting& sitting) {
                                  sitting.Desk().Event([] { throw std::out_of_range("at 7"); });
                                }));
  EXPECT_EQ("std::out_of_range: at ", thrown.Kind);
  const Record died = Clicked(2000, OnTheThirdDay([](Sitting&) { std::abort(); }));
  EXPECT_EQ("died of signal Aborted", died.Kind);
  EXPECT_FALSE(died.Steps.empty());
  EXPECT_EQ("memory", Clicked(200, {.Megabytes = 1}).Kind);
}

class frmTrap : public ui::Screen {
 public:
  explicit frmTrap(ui::Desk& desk) : Screen(desk, "frmTrap", "Trap") {}
  ui::Page Layout() override {
    ui::Page page;
    page.Cancel = &cmdback;
    return page;
  }

 private:
  ui::Button cmdback{*this, "cmdback", "Back", [] {}};
};

TEST(AMonkey, FindsScreensThatNobodyLeaves) {
  Paper paper;
  Hand hand(1);
  Sitting sitting(SmallHome(), kGameSeed, {}, paper,
                  [](const Question& box) { return box.Is == Question::Ask ? "yes" : "ok"; });
  sitting.Desk().Open(std::make_unique<frmTrap>(sitting.Desk()));
  EXPECT_THROW(hand.GoHome(sitting), FoundFault);
}

}  // namespace
}  // namespace grapplemont::test
