#include "support/homefolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "program/screens.h"
#include "support/smallworld.h"

namespace grapplemont::test {

namespace fs = std::filesystem;

std::vector<NewFile> HomeFiles(const World& data) {
  std::vector<NewFile> files;
  for (NewFile& file : FilesOf(data))
    files.push_back({"data/" + file.Name, std::move(file.Contents)});
  for (const std::string_view name : kDataSet) {
    const std::string path = "data/" + std::string(name);
    if (std::ranges::find(files, path, &NewFile::Name) == files.end()) files.push_back({path, {}});
  }
  for (const char* picture : {"vxm_back.jpg", "vxm_title.jpg", "VXM_load1.jpg"})
    files.push_back({"gfx/" + std::string(picture), Bytes(7, std::byte{'p'})});
  return files;
}

Game::Options PlayedIn(const std::string& home, std::uint64_t seed) {
  return {home, [] { return Day{std::chrono::year{2026} / 3 / 17}; }, seed};
}

HomeFolder::HomeFolder(const World& data, std::uint64_t seed)
    : disk_(RealDisk(Syncs::None)), Play(Desk, *disk_, PlayedIn(home_.Path(), seed)) {
  for (const auto& [name, bytes] : HomeFiles(data))
    Write(name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  RegisterScreens(Play);
}

HomeFolder::~HomeFolder() {
  Play.CloseSlot();
}

void HomeFolder::Write(const std::string& name, std::string_view text) {
  fs::create_directories(fs::path(Path(name)).parent_path());
  std::ofstream(Path(name), std::ios::binary) << text;
}

void HomeFolder::Remove(const std::string& name) {
  fs::remove_all(Path(name));
}

void HomeFolder::StartNewGame(const std::string& player) {
  Desk.Open("frmGameMenu");
  Desk.Click("cmdnewgame");
  Desk.Type("txtname", player);
  Desk.Click("cmdbegin");
  Desk.ExpectPrompt("User Entry", "Save Game Name:", "First", "Save Game 1");
  Desk.ExpectSay("Database creation", kAnyText);
  Desk.Click("cmdload1");
  ASSERT_EQ(Desk.TopName(), "frmMainScreen");
}

}  // namespace grapplemont::test
