#include <gtest/gtest.h>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "roster/invented.h"
#include "session/newgame.h"
#include "support/checkout.h"
#include "support/defaultworld.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

/// Two promotions, forty workers, no game yet: what stands in a data folder.
SmallWorld DataSet() {
  SmallWorld small;
  small.Network("Nine")
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Staff("Sal Pine", kReferee)
      .Crew(18)
      .Worker("Dev One", kDevelopmentDeal, 20)
      .Worker("Camp One", kTrainingCamp, 5)
      .Title("CWA Crown", "CWA Hand 1")
      .Team("The Hands", "CWA Hand 2", "CWA Hand 3")
      .Title("CWA Tags", "CWA Hand 2", "CWA Hand 3")
      .Title("CWA Pairs", "CWA Hand 4", "CWA Hand 5")
      .Title("CWA Spare")
      .Show("Friday Fire", "Friday", "Nine")
      .Sponsor("Gulp")
      .Promotion("NEW", kSmall)
      .Owner("Dalton Reeve")
      .Crew(15)
      .Title("NEW Crown", "NEW Hand 1")
      .OnTheMarket();
  for (int i = 1; i <= 5; ++i) small.Worker("Free " + std::to_string(i));
  return small;
}

NewGameChoice ChoiceOf(const World& world, std::string_view initials) {
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  for (const Promotion& promotion : world.Promotions())
    if (promotion.Initials == initials) choice.PromotionUid = promotion.Uid;
  choice.Difficulty = kHard;
  choice.Start = year{2026} / 4 / 1;
  choice.SaveName = "First";
  return choice;
}

World Started(std::string_view initials, std::uint64_t seed = 7) {
  World world = DataSet();
  world.SetChance(std::make_unique<SeededDraws>(seed));
  NewGame(world, ChoiceOf(world, initials));
  return world;
}

TEST(NewGame, MakesAWorldWithoutFaultsFromEveryChair) {
  for (const char* initials : {"CWA", "NEW"}) {
    for (std::uint64_t seed = 1; seed <= 10; ++seed) {
      const World world = Started(initials, seed);
      for (const Fault& fault : CheckWorld(world))
        ADD_FAILURE() << initials << ": " << fault.Line();
    }
  }
}

TEST(NewGame, FillsTheWorldUpToItsTargets) {
  const World world = Started("CWA");
  EXPECT_EQ(world.Workers().Count(), 100);
  constexpr int kExpected[] = {45, 10, 10, 12, 8, 16, 8, 6};
  for (int position = kOwner; position <= kTrainer; ++position)
    EXPECT_EQ(std::count_if(world.AllStaff().begin(), world.AllStaff().end(),
                            [&](const Staff& s) { return s.Position == position; }),
              kExpected[position - 1])
        << position;
  std::set<std::string> names;
  for (const Worker& worker : world.Workers()) EXPECT_TRUE(names.insert(worker.Name.Str()).second);
}

TEST(NewGame, HoldsTargetsToTheirMost) {
  EXPECT_EQ(WorkerTarget(14), 700);
  EXPECT_EQ(WorkerTarget(16), 750);
  constexpr int kMost[] = {45, 150, 150, 100, 120, 150, 150, 120};
  for (int position = kOwner; position <= kTrainer; ++position)
    EXPECT_EQ(StaffTarget(position, 100), kMost[position - 1]);
}

TEST(NewGame, WritesTheGameInfo) {
  const World world = Started("CWA");
  const GameInfo& game = world.Game();
  EXPECT_EQ(game.Version.View(), "Version 2.0");
  EXPECT_EQ(game.PlayerName.View(), "Pat Lee");
  EXPECT_EQ(game.SaveName.View(), "First");
  EXPECT_EQ(game.Difficulty, 3);
  EXPECT_EQ(game.Reputation, 80);
  EXPECT_EQ(IsoDate(game.Today), "2026-04-01");
  EXPECT_EQ(IsoDate(game.StartDate), "2026-04-01");
  EXPECT_EQ(game.Jobs[0].Promotion.View(), Named(world.Promotions(), "CWA").Name.View());
  EXPECT_EQ(game.Jobs[0].StartSize, kCult);
  EXPECT_EQ(game.Jobs[1].Promotion.View(), "None");
  EXPECT_EQ(game.MailOwners, 1);
  EXPECT_EQ(game.MailStaffRetire, 1);
  EXPECT_EQ(game.MailDev, 0);
  EXPECT_EQ(game.MailTrain, 0);
  EXPECT_EQ(game.Reporter, 1);
  EXPECT_TRUE(game.Economy >= 51 && game.Economy <= 70);
  EXPECT_EQ(world.Feuds().Count(), 8);
  EXPECT_EQ(world.Notes().Text(), "Notepad");
  EXPECT_EQ(world.Game().EndCode, 0);
}

TEST(NewGame, SetsUpPromotions) {
  const World world = Started("CWA");
  const Promotion& own = Named(world.Promotions(), "CWA");
  const Promotion& rival = Named(world.Promotions(), "NEW");
  EXPECT_EQ(own.TicketPrice, 30);
  EXPECT_EQ(own.Production, 40) << "the player's own spending is left alone";
  EXPECT_EQ(rival.TicketPrice, 10);
  EXPECT_EQ(rival.Production, 10);
  EXPECT_EQ(rival.Advertising, 0);
  EXPECT_EQ(own.Rank[0], 300 + own.Image);
  EXPECT_EQ(own.Rank[1], kNoEnd);
  EXPECT_EQ(own.MoneyBefore[0], kNoEnd);
  EXPECT_TRUE(own.Momentum >= 1 && own.Momentum <= 4);
  EXPECT_EQ(own.Sponsor[0], 0);
  EXPECT_EQ(world.Sponsors()[1].Promotion, 0);
  int events = 0;
  for (const Event& event : world.Events()) events += event.Owner == rival.Uid;
  EXPECT_EQ(events, 12);
  EXPECT_TRUE(world.Shows()[1].ContractWeeks >= 13 && world.Shows()[1].ContractWeeks <= 48);
}

TEST(NewGame, StartsWorkersFreshAndTheNovicesUndebuted) {
  World data = DataSet();
  Worker& veteran = Named(data.Workers(), "CWA Hand 2");
  veteran.BirthMonth = 0;
  veteran.Unsackable = true;
  veteran.ContractMonths = kNoEnd;
  veteran.Status = "Inj";
  veteran.StatusMonths = 3;
  veteran.Over = 100;
  NewGame(data, ChoiceOf(data, "CWA"));
  EXPECT_EQ(veteran.ContractMonths, kNoEnd);
  EXPECT_EQ(veteran.Status.View(), "Nor");
  EXPECT_EQ(veteran.OverFloor, 80);
  EXPECT_EQ(veteran.Potential, 100);
  for (const Worker& worker : data.Workers()) {
    EXPECT_TRUE(worker.BirthMonth >= 1 && worker.BirthMonth <= 12) << worker.Name.Str();
    EXPECT_GE(worker.Potential, 30) << worker.Name.Str();
    const bool novice = worker.Name == "Dev One" || worker.Name == "Camp One";
    EXPECT_EQ(worker.Debuted, !novice) << worker.Name.Str();
    if (worker.Employer != 0 && !worker.Unsackable) {
      EXPECT_TRUE(worker.ContractMonths >= 9 && worker.ContractMonths <= 38);
    }
  }
}

TEST(NewGame, TellsTitlesByTheirHolders) {
  const World world = Started("CWA");
  const auto holder = [&](std::string_view title) {
    return Named(world.Titles(), title).Reigns[0].Holder.Str();
  };
  EXPECT_EQ(holder("CWA Crown"), "CWA Hand 1");
  EXPECT_EQ(holder("CWA Tags"), "The Hands");
  EXPECT_EQ(holder("CWA Pairs"),
            WorkerShortName(world, Named(world.Workers(), "CWA Hand 4").Uid) + " \\ " +
                WorkerShortName(world, Named(world.Workers(), "CWA Hand 5").Uid));
  EXPECT_EQ(holder("CWA Spare"), "Vacant");
  EXPECT_EQ(holder("NEW Crown"), "Vacant");
  EXPECT_EQ(Named(world.Titles(), "NEW Crown").Holder, 0);
  EXPECT_EQ(Named(world.Titles(), "CWA Crown").Reigns[1].Holder.View(), "None");
  EXPECT_EQ(IsoDate(Named(world.Titles(), "CWA Crown").Reigns[0].Won), "1980-01-01");
}

TEST(NewGame, BringsTheOwnersWelcome) {
  const World plain = Started("CWA");
  ASSERT_EQ(plain.News().Count(), 1);
  EXPECT_EQ(plain.News()[1].From.View(), "Ruth Vane");
  EXPECT_EQ(plain.News()[1].Date.View(), "01/04/26");
  EXPECT_EQ(plain.News()[1].Body.View(),
            "Pat Lee, i wish you the best of luck with your new job. You have my full support.");
  const World merry = Started("NEW");
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
    challenged += world.Game().EndCode == 100;
  }
  EXPECT_GT(challenged, 2);
  EXPECT_LT(challenged, 25);
}

// The pictures of gfx/ are what the waiting and title screens expect.

namespace fs = std::filesystem;

struct Pixels {
  int Width, Height;
};

/// The size that a JPEG file's frame header tells; nothing for another file, or a progressive one.
std::optional<Pixels> JpegSize(const std::string& bytes) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes.at(i)); };
  if (bytes.size() < 4 || at(0) != 0xFF || at(1) != 0xD8) return std::nullopt;
  for (std::size_t i = 2; i + 9 < bytes.size();) {
    const int marker = at(i + 1);
    if (at(i) != 0xFF || marker == 0xC2) return std::nullopt;
    if (marker == 0xC0) return Pixels{at(i + 7) * 256 + at(i + 8), at(i + 5) * 256 + at(i + 6)};
    i += 2 + static_cast<std::size_t>(at(i + 2) * 256 + at(i + 3));
  }
  return std::nullopt;
}

std::string Bytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Gallery, IsWholeAndFitsTheWindow) {
  std::vector<std::string> names = {"vxm_back", "vxm_title"};
  for (int i = 1; i <= 4; ++i) names.push_back("VXM_load" + std::to_string(i));
  for (int i = 1; i <= 6; ++i) names.push_back("VXM_Set1_0" + std::to_string(i));
  const fs::path gfx = Checkout("/gfx");
  for (const std::string& name : names) {
    const std::string bytes = Bytes(gfx / (name + ".jpg"));
    const auto size = JpegSize(bytes);
    ASSERT_TRUE(size) << name;
    EXPECT_GE(size->Width, 1280) << name;
    EXPECT_GE(size->Height, 800) << name;
    EXPECT_LT(bytes.size(), 300'000u) << name;
    EXPECT_TRUE(fs::exists(gfx / "source" / (name + ".svg"))) << name << " has no drawing";
  }
  EXPECT_EQ(Bytes(gfx / "icon.png").substr(1, 3), "PNG");
}

TEST(Gallery, ShowsNoPictureWithoutADrawing) {
  for (const auto& entry : fs::directory_iterator(Checkout("/gfx")))
    if (entry.path().extension() == ".jpg") {
      EXPECT_TRUE(
          fs::exists(fs::path(Checkout("/gfx/source")) / (entry.path().stem().string() + ".svg")))
          << entry.path();
    }
}

// Every promotion of the default world may be chosen, at every difficulty.
TEST(DefaultGames, BeginWithoutFaultsInEveryChair) {
  std::uint64_t seed = 0;
  for (const Promotion& promotion : DefaultWorld().Promotions())
    for (int difficulty = kEasy; difficulty <= kRockHard; ++difficulty) {
      SCOPED_TRACE(promotion.Initials + " " + std::to_string(difficulty));
      World world = CopyOf(DefaultWorld());
      world.SetChance(std::make_unique<SeededDraws>(++seed));
      NewGameChoice choice;
      choice.PlayerName = "Pat Lee";
      choice.PromotionUid = promotion.Uid;
      choice.Difficulty = difficulty;
      choice.Start = std::chrono::year{2026} / 4 / 1;
      choice.SaveName = "First";
      for (const Fault& mended : NewGame(world, choice)) ADD_FAILURE() << ToUtf8(mended.Line());
      for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << ToUtf8(fault.Line());
      EXPECT_EQ(world.Player().Initials.View(), promotion.Initials.View());
      EXPECT_EQ(world.Game().Difficulty, difficulty);
      EXPECT_EQ(world.Workers().Count(), 750);
      EXPECT_EQ(world.News().Count(), 1) << "the Owner's welcome";
    }
}

}  // namespace
}  // namespace grapplemont::test
