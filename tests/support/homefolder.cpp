#include "support/homefolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "program/screens.h"
#include "support/smallworld.h"

namespace grapplemont::test {

namespace fs = std::filesystem;

namespace {

Game::Options At(const std::string& home) {
  return {home, [] { return Day{std::chrono::year{2026} / 3 / 17}; }, 11};
}

}  // namespace

HomeFolder::HomeFolder(const World& data)
    : disk_(RealDisk(Syncs::None)), Play(Desk, *disk_, At(home_.Path())) {
  for (const auto& [name, bytes] : FilesOf(data))
    Write("data/" + name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  for (const std::string_view file : kDataSet)
    if (!fs::exists(Path("data/" + std::string(file)))) Write("data/" + std::string(file), "");
  for (const char* picture : {"vxm_back.jpg", "vxm_title.jpg", "VXM_load1.jpg"})
    Write("gfx/" + std::string(picture), "picture");
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
