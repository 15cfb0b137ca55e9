#pragma once

#include <map>
#include <string>

#include "support/homefolder.h"
#include "support/smallworld.h"

namespace grapplemont::test {

/// Default data with something of everything: CWA with a roster, NEW with next to nothing.
inline World EditorData() {
  return SmallWorld()
      .Network("Nine")
      .Network("Local", [](Network& network) { network.Generic = true; })
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Staff("Ann Nounce", kAnnouncer)
      .Staff("Tray Nor", kTrainer)
      .Crew(6)
      .Worker("Dot Com", kNonWrestler, 50)
      .Worker("Max Agent", kManager, 40)
      .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
      .Stable("The Firm", {"CWA Hand 3", "CWA Hand 4"})
      .Title("CWA Crown", "CWA Hand 1")
      .Title("CWA Tag", "CWA Hand 1", "CWA Hand 2")
      .Show("Sunday Slam", "Sunday", "Nine")
      .Sponsor("Gulp")
      .Event(3)
      .Promotion("NEW", kSmall)
      .Owner("Nell Ewing")
      .OnTheMarket()
      .Worker("Cal Drift")
      .Build();
}

/// A home whose data folder is edited by screens, and seen as it stands on disk.
struct DataHome : HomeFolder {
  using HomeFolder::HomeFolder;
  std::map<std::string, Bytes> Files() { return ReadWorldFiles(Play.Disk(), Play.DataFolder()); }
  World OnDisk() {
    World world;
    world.Load(Files());
    return world;
  }
};

/// The same with the editor's hub on screen.
struct EditorHome : DataHome {
  explicit EditorHome(const World& data = EditorData()) : DataHome(data) {
    Desk.Open("frmGameMenu");
    Desk.Click("cmdeditor");
  }
  /// From the hub to the page of a kind, with a record in hand if one is named.
  void Page(const std::string& button, const std::string& record = {}) {
    Desk.Click(button);
    if (!record.empty()) Desk.Pick("lstrecords", record);
  }
};

}  // namespace grapplemont::test
