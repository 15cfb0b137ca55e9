#include "session/newgame.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "support/checkout.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

/// What stands in a data folder: two promotions, and no game yet.
World DataSet() {
  return SmallWorld()
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Crew(8)
      .Worker("Dev One", kDevelopmentDeal, 20)
      .Worker("Camp One", kTrainingCamp, 5)
      .Title("CWA Crown", "CWA Hand 1")
      .Team("The Hands", "CWA Hand 2", "CWA Hand 3")
      .Title("CWA Tags", "CWA Hand 2", "CWA Hand 3")
      .Title("CWA Pairs", "CWA Hand 4", "CWA Hand 5")
      .Title("CWA Spare")
      .Promotion("NEW", kSmall)
      .Owner("Dalton Reeve")
      .Crew(7)
      .Title("NEW Crown", "NEW Hand 1");
}

NewGameChoice ChoiceOf(const World& world, std::string_view initials) {
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = Named(world.Promotions(), initials).Uid;
  choice.Difficulty = kHard;
  choice.Start = year{2026} / 4 / 1;
  choice.SaveName = "First";
  return choice;
}

World Started(std::string_view initials) {
  World world = DataSet();
  NewGame(world, ChoiceOf(world, initials));
  return world;
}

TEST(NewGame, StartsWorkersFreshAndTheNovicesUndebuted) {
  World data = DataSet();
  Worker& veteran = Named(data.Workers(), "CWA Hand 2");
  veteran.BirthMonth = 0;
  veteran.Unsackable = true;
  veteran.ContractMonths = kNoEnd;
  veteran.Status = "Inj";
  veteran.StatusMonths = 3;
  NewGame(data, ChoiceOf(data, "CWA"));
  EXPECT_NE(veteran.BirthMonth, 0);
  EXPECT_EQ(veteran.ContractMonths, kNoEnd);
  EXPECT_EQ(veteran.Status.View(), "Nor");
  for (const Worker& worker : data.Workers())
    EXPECT_EQ(worker.Debuted, worker.Name != "Dev One" && worker.Name != "Camp One");
}

TEST(NewGame, TellsTitlesByTheirHolders) {
  const World world = Started("CWA");
  const std::string pair = WorkerShortName(world, Named(world.Workers(), "CWA Hand 4").Uid) +
                           " \\ " +
                           WorkerShortName(world, Named(world.Workers(), "CWA Hand 5").Uid);
  const std::pair<const char*, std::string> kHolders[] = {{"CWA Crown", "CWA Hand 1"},
                                                          {"CWA Tags", "The Hands"},
                                                          {"CWA Pairs", pair},
                                                          {"CWA Spare", "Vacant"},
                                                          {"NEW Crown", "Vacant"}};
  for (const auto& [title, holder] : kHolders)
    EXPECT_EQ(Named(world.Titles(), title).Reigns[0].Holder.Str(), holder) << title;
  EXPECT_EQ(Named(world.Titles(), "NEW Crown").Holder, 0);
}

TEST(NewGame, BringsTheOwnersWelcome) {
  const World plain = Started("CWA"), merry = Started("NEW");
  EXPECT_EQ(plain.News()[1].From.View(), "Ruth Vane");
  EXPECT_EQ(plain.News()[1].Body.View(),
            "Pat Lee, i wish you the best of luck with your new job. You have my full support.");
  EXPECT_EQ(merry.News()[1].Body.View(),
            "Good golly Miss Molly, it's Pat Lee if you weeeel. I've hired you to keep my company "
            "running funky like a monkey, so don't mess up or we'll be clubberin' outside boy!");
}

TEST(NewGame, MayChallengeALonelyGlobalPromotion) {
  int challenged = 0;
  for (std::uint64_t seed = 1; seed <= 50; ++seed) {
    World world = SmallWorld().Promotion("TOP", kGlobal).Promotion("LOW", kSmall);
    world.SetChance(std::make_unique<SeededDraws>(seed));
    NewGame(world, ChoiceOf(world, "TOP"));
    challenged += world.Game().EndCode == kStrangerWaits;
  }
  EXPECT_GT(challenged, 2);
  EXPECT_LT(challenged, 25);
}

// The pictures of gfx/ are what the waiting and title screens expect.

namespace fs = std::filesystem;

std::string Bytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Gallery, IsWholeAndHasADrawingOfEachPicture) {
  const fs::path gfx = Checkout("/gfx");
  int pictures = 0;
  for (const auto& entry : fs::directory_iterator(gfx)) {
    if (entry.path().extension() != ".jpg") continue;
    ++pictures;
    const std::string name = entry.path().stem().string(), bytes = Bytes(entry.path());
    EXPECT_EQ(bytes.substr(0, 2), "\xFF\xD8") << name;
    EXPECT_LT(bytes.size(), 300'000u) << name;
    EXPECT_TRUE(fs::exists(gfx / "source" / (name + ".svg"))) << name << " has no drawing";
  }
  EXPECT_EQ(pictures, 12) << "back and title, four of the game's own, a set of six";
  EXPECT_EQ(Bytes(gfx / "icon.png").substr(1, 3), "PNG");
}

}  // namespace
}  // namespace grapplemont::test
