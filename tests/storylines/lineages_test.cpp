#include "storylines/lineages.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "records/fields/fields.h"
#include "records/severing.h"
#include "storylines/titles.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::days;

World Belts() {
  World world = SmallWorld()
                    .Promotion("NEW")
                    .Worker("Nat Other")
                    .Worker("Nan Other")
                    .Title("NEW Crown", "Nat Other")
                    .Promotion("CWA")
                    .Worker("Bram Okafor")
                    .Worker("Ilya Marsh")
                    .Worker("Cal Drift")
                    .Team("The Docks", "Ilya Marsh", "Cal Drift")
                    .Title("CWA Crown", "Bram Okafor")
                    .Title("CWA Ropes", "Ilya Marsh", "Cal Drift")
                    .Game("CWA");
  UpdateReigns(world);
  return world;
}

int UidOf(const World& world, std::string_view name) {
  return Named(world.Workers(), name).Uid;
}

void PassDays(World& world, int count) {
  world.Game().Today = world.Today() + days{count};
  UpdateReigns(world);
}

/// "Bram Okafor 10 lost, Ilya Marsh 3 lasts": the oldest first, with the days of those that have a
/// beginning.
std::string PastOf(const World& world, std::string_view title, std::string_view promotion = "CWA") {
  constexpr const char* kEnds[] = {"lasts", "lost", "vacated", "dissolved"};
  std::string text;
  const auto reigns = ReignsOf(
      world, Lineage{std::string(title), Named(world.Promotions(), promotion).Uid, "", true});
  for (auto reign = reigns.rbegin(); reign != reigns.rend(); ++reign) {
    const int length = DaysOf(**reign, world.Today());
    text += (text.empty() ? "" : ", ") + (*reign)->Holder.Str() + " " +
            (length < 0 ? std::string("?") : std::to_string(length)) + " " + kEnds[(*reign)->End];
  }
  return text;
}

TEST(Lineages, BeginWithTheFiveReignsOfTheRecord) {
  World world = Belts();
  EXPECT_EQ(PastOf(world, "CWA Crown"), "Bram Okafor ? lasts");
  const World before = CopyOf(world);
  UpdateReigns(world);
  ExpectSame(world, before);
  world.Reigns().Remove();
  Title& crown = Named(world.Titles(), "CWA Crown");
  for (const char* name : {"Ilya Marsh", "Cal Drift"}) {
    world.Game().Today = world.Today() + days{5};
    VacateTitle(world, crown);
    world.Game().Today = world.Today() + days{2};
    Crown(world, crown, UidOf(world, name), 0);
  }
  UpdateReigns(world);
  EXPECT_EQ(PastOf(world, "CWA Crown"),
            "Bram Okafor ? vacated, Vacant 2 lost, Ilya Marsh 5 vacated, Vacant 2 lost, Cal Drift "
            "0 lasts");
  EXPECT_EQ(ReignsOfWorker(world, UidOf(world, "Ilya Marsh")).size(), 2u) << "the Ropes as well";
  EXPECT_TRUE(ReignsOfWorker(world, 0).empty());
}

TEST(Lineages, SeeEveryWayInWhichATitleChanges) {
  const auto crown = [](World& world) -> Title& { return Named(world.Titles(), "CWA Crown"); };
  const struct {
    const char* What;
    std::function<void(World&)> Change;
    const char* Past;
  } rows[] = {
      {"won", [&](World& w) { Crown(w, crown(w), UidOf(w, "Cal Drift"), 0); },
       "Bram Okafor ? lost, Cal Drift 4 lasts"},
      {"vacated by the player", [&](World& w) { VacateTitle(w, crown(w)); },
       "Bram Okafor ? vacated, Vacant 4 lasts"},
      {"given up by a contract that ends",
       [&](World& w) { SeverWorker(w, Named(w.Workers(), "Bram Okafor")); },
       "Bram Okafor ? vacated, Vacant 4 lasts"},
      {"twice in an evening",
       [&](World& w) {
         Crown(w, crown(w), UidOf(w, "Cal Drift"), 0);
         Crown(w, crown(w), UidOf(w, "Ilya Marsh"), 0);
       },
       "Bram Okafor ? lost, Cal Drift 0 lost, Ilya Marsh 4 lasts"},
      {"dissolved", [&](World& w) { DissolveTitle(w, w.Titles().NumberOf(crown(w))); },
       "Bram Okafor ? dissolved"},
      {"its promotion closed", [&](World& w) { crown(w).Owner = kNoEnd; },
       "Bram Okafor ? dissolved"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.What);
    World world = Belts();
    PassDays(world, 10);
    row.Change(world);
    UpdateReigns(world);
    PassDays(world, 4);
    EXPECT_EQ(PastOf(world, "CWA Crown"), row.Past);
    EXPECT_EQ(PastOf(world, "NEW Crown", "NEW"), "Nat Other ? lasts") << "others stay";
  }
}

TEST(Lineages, FollowATitleUnderItsNewNameAndANewOne) {
  World world = Belts();
  PassDays(world, 3);
  Crown(world, Named(world.Titles(), "CWA Crown"), UidOf(world, "Cal Drift"), 0);
  PassDays(world, 6);
  RenameTitle(world, world.Titles().NumberOf(Named(world.Titles(), "CWA Crown")), "CWA Sceptre");
  const int medal = CreateTitle(world, {"CWA Medal", true, false, false});
  PassDays(world, 1);
  EXPECT_EQ(PastOf(world, "CWA Crown"), "");
  EXPECT_EQ(PastOf(world, "CWA Sceptre"), "Bram Okafor ? lost, Cal Drift 7 lasts");
  Crown(world, Named(world.Titles(), "CWA Sceptre"), UidOf(world, "Bram Okafor"), 0);
  Crown(world, world.Titles()[medal], UidOf(world, "Cal Drift"), 0);
  PassDays(world, 2);
  EXPECT_EQ(PastOf(world, "CWA Sceptre"),
            "Bram Okafor ? lost, Cal Drift 7 lost, Bram Okafor 2 lasts");
  EXPECT_EQ(PastOf(world, "CWA Medal"), "Vacant 1 lost, Cal Drift 2 lasts");
}

TEST(Lineages, AddUpForEachChampion) {
  World world = Belts();
  Title& crown = Named(world.Titles(), "CWA Crown");
  for (const auto& [name, length] :
       {std::pair{"Cal Drift", 30}, {"Ilya Marsh", 10}, {"Cal Drift", 5}}) {
    Crown(world, crown, UidOf(world, name), 0);
    CountDefence(world, crown);  // which brings the reigns up to it
    world.Game().Today = world.Today() + days{length};
  }
  UpdateReigns(world);
  std::string totals;
  for (const ChampionTotal& total : TotalsOf(world, {"CWA Crown", world.PlayerUid(), "CWA", true}))
    totals += total.Name + " " + std::to_string(total.Reigns) + " " + std::to_string(total.Days) +
              " " + std::to_string(total.Defences) + "; ";
  EXPECT_EQ(totals, "Cal Drift 2 35 2; Ilya Marsh 1 10 1; Bram Okafor 1 0 0; ");
  CountDefence(world, Named(world.Titles(), "NEW Crown"));
  const int rival = Named(world.Promotions(), "NEW").Uid;
  EXPECT_EQ(TotalsOf(world, {"NEW Crown", rival, "NEW", true}).at(0).Defences, 1) << "a rival's";
}

TEST(Lineages, DropTheOldestThatHaveEndedWhenTheFileIsFull) {
  World world = Belts();
  std::vector<TitleReign> reigns(world.Reigns().begin(), world.Reigns().end());
  TitleReign old = reigns[0];
  old.End = kReignLost;
  old.Title = "Old Crown";
  reigns.push_back(old);
  reigns.back().Title = "Great Crown";
  reigns.back().Defences = 30;
  reigns.resize(static_cast<std::size_t>(LayoutOf<TitleReign>().Limit), old);
  world.Reigns().Rewrite(reigns);
  Crown(world, Named(world.Titles(), "CWA Crown"), UidOf(world, "Cal Drift"), 0);
  PassDays(world, 1);
  EXPECT_EQ(world.Reigns().Count(), LayoutOf<TitleReign>().Limit - 1000 + 1);
  EXPECT_EQ(PastOf(world, "CWA Crown"), "Cal Drift 1 lasts");
  EXPECT_EQ(PastOf(world, "NEW Crown", "NEW"), "Nat Other ? lasts");
  EXPECT_NE(PastOf(world, "Great Crown", "NEW"), "") << "what records tell of stays";
}

TEST(Lineages, SpareTheBestOfEachPromotion) {
  World world = Belts();
  EXPECT_FALSE(HaveReignsGone(world));
  std::vector<TitleReign> reigns(world.Reigns().begin(), world.Reigns().end());
  TitleReign old = reigns[0];  // a rival's
  old.End = kReignLost;
  old.From = kGameStart;
  old.Until = kGameStart + days{30};
  const auto add = [&](int owner, const char* title, int length, int defences) {
    TitleReign& reign = reigns.emplace_back(old);
    reign.Owner = owner;
    reign.Title = title;
    reign.Until = kGameStart + days{length};
    reign.Defences = defences;
  };
  add(old.Owner, "Long Crown", 90, 0);
  add(old.Owner, "Kept Crown", 30, 9);
  add(old.Owner, "Brief Crown", 1, 0);
  for (int length = 40; length < 44; ++length)
    add(30000, ("Closed " + std::to_string(length)).c_str(), length, 0);
  reigns.resize(static_cast<std::size_t>(LayoutOf<TitleReign>().Limit), old);
  world.Reigns().Rewrite(reigns);
  Crown(world, Named(world.Titles(), "CWA Crown"), UidOf(world, "Cal Drift"), 0);
  PassDays(world, 1);
  for (const char* title : {"Long Crown", "Kept Crown", "Brief Crown"})
    EXPECT_NE(PastOf(world, title, "NEW"), "") << title;
  std::string closed;
  for (const TitleReign& reign : world.Reigns())
    if (reign.Owner == 30000) closed += reign.Title + ", ";
  EXPECT_EQ(closed, "Closed 40, Closed 41, Closed 42, Closed 43, ")
      << "the three longest, and the three shortest";
  EXPECT_TRUE(HaveReignsGone(world));
}

TEST(Lineages, MendThemselvesWhenTheirFileWasDamaged) {
  World world = Belts();
  world.Reigns().Change(1).Holder = "\x01 rubbish";
  world.Reigns().Change(1).Worker = -7;
  world.Reigns().Change(2).End = 99;
  world.Reigns().Change(3).From.SetRaw(-1e300);
  PassDays(world, 1);
  for (const Lineage& lineage : LineagesOf(world))
    EXPECT_EQ(std::ranges::count(ReignsOf(world, lineage), int(kReignLasts),
                                 [](const TitleReign* reign) { return int(reign->End); }),
              1)
        << lineage.Title;
}

using Row = std::vector<std::string>;

TEST(TheReignsScreen, ShowsTheChosenTitleAndThoseOfThePast) {
  World made = Belts();
  made.Reigns().Remove();  // a slot from before reigns were kept
  GameOnWorld play(std::move(made));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmBelts");
  desk.Pick("lsttitles", "CWA Ropes");
  desk.ExpectAsk("Vacate?", kAnyText, true);
  desk.Click("cmdvacate");
  desk.Click("cmdreigns");
  EXPECT_EQ(desk.Text("cmbtitle"), "CWA Ropes (CWA)");
  EXPECT_EQ(
      desk.Rows("lstreigns"),
      (std::vector<Row>{{"Vacant", "01 Mar 2026", "", "0", "-", "Vacant now"},
                        {"The Docks", "Before the game", "01 Mar 2026", "-", "0", "Vacated"}}));
  EXPECT_EQ(desk.Rows("lsttotals"), (std::vector<Row>{{"The Docks", "1", "-", "0"}}));
  desk.Click("cmdback");
  desk.Pick("lsttitles", "CWA Ropes");
  desk.ExpectAsk("Dissolve?", kAnyText, true);
  desk.Click("cmddissolve");
  desk.Click("cmdreigns");
  desk.Pick("cmbtitle", "CWA Ropes (CWA), of the past");
  EXPECT_EQ(desk.Rows("lstreigns")[0][5], "Dissolved");
}

}  // namespace
}  // namespace grapplemont::test
