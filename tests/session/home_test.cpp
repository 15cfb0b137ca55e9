#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "records/world.h"
#include "session/home.h"
#include "support/scratchfolder.h"
#include "support/smallworld.h"
#include "support/thrown.h"

namespace grapplemont::test {
namespace {

namespace fs = std::filesystem;

/// A machine of its own: programs, what came with them, a user.
class AHome : public ::testing::Test {
 protected:
  void Touch(const std::string& name, const std::string& text = "") {
    fs::create_directories(fs::path(root_ / name).parent_path());
    std::ofstream(root_ / name) << text;
  }
  /// All files of a world and the pictures that the program looks for.
  void Fill(const std::string& folder) {
    for (const std::string_view file : kDataSet) Touch(folder + "/data/" + std::string(file));
    for (const char* picture : {"vxm_back.jpg", "vxm_title.jpg"}) Touch(folder + "/gfx/" + picture);
  }
  Surroundings In(const std::string& program, const std::string& working = "work") {
    return {root_ / program, root_ / "usr/share/games/grapplemont", root_ / working,
            root_ / "user/games"};
  }
  /// Where the game is kept and what came with it, without the root.
  std::string Found(const Surroundings& around) {
    const Home home = FindHome(*disk_, around);
    return home.Folder.substr(root_.Path().size() + 1) + " over " +
           (home.Share.empty() ? "" : home.Share.substr(root_.Path().size() + 1));
  }

  const ScratchFolder root_;
  const std::unique_ptr<Disk> disk_ = RealDisk(Syncs::None);
};

TEST_F(AHome, IsTheWorkingFolderOnlyOfABuildAndOnlyWithAWholeWorldInIt) {
  Touch("build/CMakeCache.txt");
  Fill("build/share/grapplemont");
  const std::string users = "user/games over build/share/grapplemont";
  EXPECT_EQ(Found(In("build/bin/grapplemont")), users);
  EXPECT_TRUE(fs::is_directory(root_ / "user/games")) << "is made for the slots";
  Touch("work/data/notes.txt");
  EXPECT_EQ(Found(In("build/bin/grapplemont")), users) << "any folder data is no world";
  Fill("work");
  EXPECT_EQ(Found(In("build/bin/grapplemont")), "work over build/share/grapplemont");
  for (const char* one : {"work/gfx/vxm_title.jpg", "work/data/wrestler.dat"}) {
    fs::remove(root_ / one);
    EXPECT_EQ(Found(In("build/bin/grapplemont")), users) << "without " << one;
    Touch(one);
  }
  fs::remove(root_ / "build/CMakeCache.txt");
  EXPECT_EQ(Found(In("build/bin/grapplemont")), users) << "an installed program";
}

TEST_F(AHome, LiesOverWhatCameWithTheProgram) {
  Fill("usr/share/games/grapplemont");
  EXPECT_EQ(Found(In("usr/games/grapplemont")), "user/games over usr/share/games/grapplemont");
  Fill("opt/game/share/grapplemont");
  EXPECT_EQ(Found(In("opt/game/bin/grapplemont")), "user/games over opt/game/share/grapplemont")
      << "beside the program first";
  fs::create_directories(root_ / "mine");
  const Home named = HomeAt(*disk_, root_ / "mine", In("usr/games/grapplemont"));
  EXPECT_EQ(named.Folder, root_ / "mine");
  EXPECT_EQ(named.Share, root_ / "usr/share/games/grapplemont");
}

TEST_F(AHome, IsRefusedInASentenceWhereThereIsNothingToPlayWith) {
  const Surroundings around = In("opt/game/bin/grapplemont");
  const auto why = [&](const Surroundings& at) {
    return ThrownBy<std::runtime_error>([&] { FindHome(*disk_, at); });
  };
  EXPECT_EQ(why(around), "The world and the pictures that come with the game are neither in " +
                             root_ / "opt/game/share/grapplemont" + " nor in " + around.Installed +
                             ". Install the game again, or name a folder that has data and gfx "
                             "with --home.");
  EXPECT_FALSE(fs::exists(around.UserData)) << "nothing is made for nothing";
  Fill("user/games");
  EXPECT_EQ(Found(around), "user/games over ") << "the user has a world and pictures";
  Surroundings nobody = around;
  nobody.UserData.clear();
  EXPECT_EQ(why(nobody),
            "Neither HOME nor XDG_DATA_HOME says where your games are kept. Name a folder with "
            "--home.");
}

TEST_F(AHome, ShowsTheOwnFilesFirstAndOfTheRestWhatAnUpdateBrings) {
  const Layers data{root_ / "own", root_ / "came"};
  Touch("came/belt.dat", "old");
  Touch("came/tv.dat", "old");
  Touch("own/tv.dat", "mine");
  const auto text = [&](const char* name) {
    const Bytes bytes = ReadDefaultData(*disk_, data).at(name);
    return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  };
  EXPECT_EQ(text("belt.dat") + text("tv.dat"), "oldmine");
  Touch("came/belt.dat", "new");
  Touch("came/tv.dat", "new");
  EXPECT_EQ(text("belt.dat") + text("tv.dat"), "newmine");
  EXPECT_EQ(MissingDataFiles(*disk_, data).size(), kDataSet.size() - 2);
  EXPECT_EQ(FileIn(*disk_, data, "tv.dat"), root_ / "own/tv.dat");
  EXPECT_EQ(FileIn(*disk_, data, "teams.dat"), "");
  Touch("came/VXM_Set2_01.jpg");
  Touch("own/VXM_Set2_03.jpg");
  EXPECT_EQ(WaitingPictures(*disk_, data, 2),
            (std::vector<std::string>{"VXM_Set2_01.jpg", "VXM_Set2_03.jpg"}));
}

TEST_F(AHome, KeepsNoCopiesOfWhatCameWithTheProgram) {
  const Surroundings around = In("usr/games/grapplemont");
  Fill("usr/share/games/grapplemont");
  Fill("user/games");
  Touch("user/games/gfx/VXM_Set2_01.jpg", "mine");
  Touch("user/games/gfx/vxm_title.jpg", "mine");
  Touch("user/games/data/tv.dat", "mine");
  const auto there = [&](const std::string& file) {
    return fs::exists(root_ / ("user/games/" + file));
  };
  Found(around);
  EXPECT_FALSE(there("gfx/vxm_back.jpg")) << "it says nothing of its own and hides an update";
  EXPECT_TRUE(there("gfx/vxm_title.jpg")) << "changed";
  EXPECT_TRUE(there("gfx/VXM_Set2_01.jpg"));
  EXPECT_TRUE(there("data/belt.dat")) << "the files of a world refer to each other: all or none";
  Touch("user/games/data/tv.dat");
  Touch("user/games/gfx/vxm_title.jpg");
  Found(around);
  EXPECT_FALSE(there("data"));
  EXPECT_FALSE(there("gfx/vxm_title.jpg"));
  EXPECT_TRUE(there("gfx/VXM_Set2_01.jpg"));
  fs::remove_all(root_ / "user/games");
  fs::create_symlink(root_ / "usr/share/games/grapplemont", root_ / "user/games");
  Found(around);
  EXPECT_TRUE(there("gfx/vxm_back.jpg")) << "installed where the games are kept";
}

}  // namespace
}  // namespace grapplemont::test
