#pragma once

#include <map>
#include <string>
#include <vector>

#include "program/screens.h"
#include "records/store/playedslot.h"
#include "records/store/slotfolder.h"
#include "records/world.h"
#include "support/cutdisk.h"
#include "support/smallworld.h"
#include "ui/acts.h"
#include "ui/game.h"

// The whole program in a home "h" of a disk that can be cut and fail.

namespace grapplemont::test {

inline constexpr const char* kSlot = "h/s1";

/// A player who reads every message, says yes to every question and types what is offered.
class PatientDesk : public ui::Desk {
 public:
  void Say(const std::string& title, const std::string& text) override {
    if (title == "Error!") Errors.push_back(text);
  }
  bool Ask(const std::string&, const std::string&, ui::Default) override { return true; }
  std::string Prompt(const std::string& title, const std::string&,
                     const std::string& offered) override {
    const auto typed = Typed.find(title);
    return typed == Typed.end() ? offered : typed->second;
  }
  void Click(const char* name) { ui::Click(*this, *Top(), name); }
  std::vector<std::string> Errors;
  std::map<std::string, std::string> Typed;  // in place of what is offered, by a box's title
};

struct Running {
  explicit Running(CutDisk& disk, std::uint64_t seed = 5)
      : Play(Desk, disk, {"h", [] { return Day{std::chrono::year{2026} / 6 / 28}; }, seed}) {
    RegisterScreens(Play);
  }
  PatientDesk Desk;
  Game Play;

  void NewGame() {
    Desk.Open("frmGameMenu");
    Desk.Click("cmdnewgame");
    ui::Type(Desk, *Desk.Top(), "txtname", "Pat Lee");
    Desk.Click("cmdbegin");
    Desk.Click("cmdload1");
  }
  void Load() {
    Play.OpenSlot(1);
    Desk.Open("frmMainScreen");
  }
  /// From then on it counts as read, which the slot keeps.
  void ReadAMail() {
    Desk.Click("cmdnews");
    Desk.Click("cmdback");
  }
  void DeleteAMail() {
    Desk.Click("cmdnews");
    Desk.Click("cmddelete");
    Desk.Click("cmdback");
  }
  std::map<std::string, Bytes> Files() { return BytesOf(Play.World()); }
};

/// A disk with these default data and no slot.
inline CutDisk HomeWith(const World& data) {
  CutDisk disk;
  disk.MakeFolder("h");
  disk.MakeFolder("h/data");
  for (const auto& [name, bytes] : BytesOf(data)) WriteFile(disk, "h/data/" + name, bytes);
  for (const char* folder : {"h/data", "h", "."}) disk.SyncFolder(folder);
  return disk;
}

/// The world that stands in a slot, read by the real code; empty where there is no slot.
inline std::map<std::string, Bytes> Found(CutDisk& disk, const std::string& folder = kSlot) {
  if (StandingFolder(disk, folder).empty()) return {};
  const PlayedSlot slot(disk, folder);
  auto files = slot.Files();
  for (const std::string_view own : {kMorningsName, kBeginningName, kCommandsName})
    files.erase(std::string(own));
  return files;
}

}  // namespace grapplemont::test
