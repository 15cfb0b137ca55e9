#include <gtest/gtest.h>

#include "booking/debuts.h"
#include "booking/onsheet.h"

namespace grapplemont::test {
namespace {

Change<Worker> Unseen() {
  return [](Worker& worker) { worker.Debuted = false; };
}

/// What a way to a debut says, by what the wizard calls it; "-" for a way that there is not.
std::string WhyNot(const World& world, const char* worker, std::string_view how,
                   bool isEvent = false) {
  for (const DebutWay& way : WaysToDebut(world, Named(world.Workers(), worker), isEvent))
    if (way.How == how) return way.WhyNot;
  return "-";
}

TEST(WaysToDebut, FitThePersonAndTheDay) {
  World world = SmallWorld()
                    .Promotion("CWA", kRegional, [](Promotion& p) { p.Risk = 50; })
                    .Staff("Ida Quill", kWriter)
                    .Worker("Fresh", kMidcard, 40, Unseen())
                    .Worker("Suit", kNonWrestler, 40, Unseen())
                    .Worker("Mouth", kManager, 40, Unseen())
                    .Worker("Hurt", kMidcard, 40,
                            [](Worker& worker) {
                              worker.Debuted = false;
                              worker.Status = "Inj";
                              worker.StatusMonths = 3;
                              worker.InjuryName = "Broken Leg";
                            })
                    .Game("CWA");
  constexpr const char* kTwo = "1 vs 1: one of the two, purpose \"Debut\"";
  const struct {
    const char *Who, *How;
    const char* WhyNot;
  } kCases[] = {
      {"Fresh", kTwo, ""},
      {"Mouth", kTwo, ""},
      {"Suit", kTwo, "-"},
      {"Suit", "Debut Call Out", ""},
      {"Fresh", "Managerial Debut", "-"},
      {"Mouth", "Managerial Debut", ""},
      {"Fresh", "Debut With Power", "There is no Commissioner."},
      {"Fresh", "Challenge", "-"},
      {"Hurt", "Debut Attack", "Hurt: Broken Leg, out for 3 months."},
  };
  for (const auto& c : kCases) EXPECT_EQ(WhyNot(world, c.Who, c.How), c.WhyNot) << c.Who << c.How;
}

TEST(frmDebut, KnowsWhichSheetItStandsBeside) {
  for (const bool isEvent : {false, true}) {
    SmallWorld small;
    small.Network("Harbor 9")
        .Promotion("CWA")
        .Staff("Ida Quill", kWriter)
        .Worker("Fresh", kMidcard, 40, Unseen())
        .Show("Tidal Force", "Sunday", "Harbor 9")
        .Event(3);
    OnSheet play(small.Game("CWA", isEvent ? Day(std::chrono::year{2026} / 3 / 29) : kGameStart));
    play.Desk.Click("cmddebut");
    std::string told;
    for (const Names& way : play.Desk.Rows("lstways"))
      if (way[1] == "Debut Attack") told = way[2];
    EXPECT_EQ(play.Desk.Text("txtworker").substr(0, 5), "Fresh");
    EXPECT_EQ(play.Desk.Rows("lststats")[0], (Names{"Over", "40"}));
    EXPECT_EQ(told, isEvent ? "Today" : "There are not enough writers for angles.");
  }
}

}  // namespace
}  // namespace grapplemont::test
