#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "records/store/slot.h"
#include "records/tables/worldtables.h"
#include "support/scratchfolder.h"
#include "support/smallworld.h"
#include "tools/tool.h"

namespace grapplemont::test {

/// A home folder for one test, and the tool to work in it.
class ToolHome : public ::testing::Test {
 protected:
  /// What the tool answers to words between single blanks, of which H is the home: all that it
  /// prints, first what goes to the errors in square brackets, and last "=1" for the code 1.
  std::string Say(const std::string& typed, bool terminal = false) {
    std::istringstream all(typed);
    std::vector<std::string> words;
    for (std::string word; std::getline(all, word, ' ');)
      words.push_back(word == "H" || word.starts_with("H/") ? Home + word.substr(1) : word);
    std::ostringstream out, errors;
    const auto today = [] { return Day(std::chrono::year{2026} / 3 / 20); };
    const int code = tools::RunWorldTool(words, {out, errors, terminal, today, {}});
    return (errors.str().empty() ? "" : "[" + Homeless(errors.str()) + "]") + Homeless(out.str()) +
           (code == 0 ? "" : "=" + std::to_string(code));
  }

  std::string In(const std::string& name) const { return Home + "/" + name; }

  std::string Read(const std::string& name) const {
    std::ifstream file(In(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void Write(const std::string& name, const std::string& text) const {
    std::filesystem::create_directories(std::filesystem::path(In(name)).parent_path());
    std::ofstream(In(name), std::ios::binary) << text;
  }
  /// The record files of a folder, by name.
  std::map<std::string, std::string> RecordFiles(const std::string& folder) const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(In(folder)))
      if (entry.path().extension() == ".dat") {
        const std::string name = entry.path().filename().string();
        files[name] = Read(folder + "/" + name);
      }
    return files;
  }

  /// Two promotions with all ten files, as default data.
  static SmallWorld Small() {
    SmallWorld small;
    small.Network("Nine")
        .Promotion("CWA", kCult)
        .Owner("Ruth Vane")
        .Crew(8)
        .Team("The Hands", "CWA Hand 2", "CWA Hand 3")
        .Stable("The Bench", {"CWA Hand 1"})
        .Title("CWA Crown", "CWA Hand 1")
        .Show("Friday Fire", "Friday", "Nine")
        .Event(3)
        .Promotion("NEW", kSmall)
        .Crew(6)
        .OnTheMarket()
        .Sponsor("Gulp");
    return small;
  }
  void BuildSmallData() {
    WriteTables(*Machine, In("world"), ExportWorld(Small()));
    ASSERT_EQ("Built H/data: 2 promotions, 14 workers, 1 staff.\n", Say("build H/world H/data"));
  }

  /// A saved game.
  void MakeSlot(const std::string& slot, const World& world) {
    Slot::Create(*Machine, In("s" + slot), FilesOf(world), 1);
  }
  static World WorldOf(const Slot& slot) {
    World world;
    world.Load(slot.Files());
    return world;
  }

  const ScratchFolder Scratch;
  const std::string Home = Scratch / ".";
  const std::unique_ptr<Disk> Machine = RealDisk();

 private:
  /// What a test expects does not depend on where its home is.
  std::string Homeless(std::string text) const {
    for (auto at = text.find(Home); at != std::string::npos; at = text.find(Home))
      text.replace(at, Home.size(), "H");
    return text;
  }
};

}  // namespace grapplemont::test
