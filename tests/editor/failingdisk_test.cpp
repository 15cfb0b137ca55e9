#include <gtest/gtest.h>

#include "program/screens.h"
#include "editorhome.h"
#include "support/cutdisk.h"

// The editor's screens on a disk that fails: what was typed is not lost with it.

namespace grapplemont::test {
namespace {

TEST(AFailedSave, IsToldTakenBackAndCanBeTriedAgain) {
  const World before = EditorData();
  for (const int call : {3, 12, 25, 40, 60}) {
    SCOPED_TRACE(call);
    CutDisk disk;
    disk.MakeFolder("home");
    disk.MakeFolder("home/data");
    for (const auto& [name, bytes] : FilesOf(before)) WriteFile(disk, "home/data/" + name, bytes);
    ScriptDesk desk;
    Game game(desk, disk, {"home", [] { return kGameStart; }, 1});
    RegisterScreens(game);
    desk.Open("frmEditWres");
    desk.Click("cmdnew");
    desk.Type("txtname", "Bram Okafor");
    disk.FailCall(call, Fault::Broken, false);
    desk.ExpectSay("Error!", kAnyText);
    desk.Click("cmdsave");
    EXPECT_TRUE(disk.HasFailed());
    disk.Heal();
    const bool kept = desk.Boxes().back().Text.ends_with("Your change is kept.");
    EXPECT_EQ("Bram Okafor", desk.Text("txtname"));
    EXPECT_NE(kept, desk.Enabled("cmdsave"));
    if (!kept) {
      EXPECT_EQ(BytesOf(before), ReadWorldFiles(disk, "home/data"));
      desk.Click("cmdsave");
    }
    World found;
    found.Load(ReadWorldFiles(disk, "home/data"));
    EXPECT_EQ(before.Workers().Count() + 1, found.Workers().Count());
    EXPECT_EQ("Bram Okafor", found.Workers()[found.Workers().Count()].Name.Str());
  }
}

TEST(TheEditor, DoesNotOpenWhileAnotherProgramEdits) {
  EditorHome first;
  auto disk = RealDisk(Syncs::None);
  ScriptDesk desk;
  Game second(desk, *disk, {first.Play.Home(), [] { return kGameStart; }, 1});
  RegisterScreens(second);
  desk.ExpectSay("Error!",
                 "The default data are being edited in another program. Close the editor there "
                 "first; nothing was changed.");
  desk.Event([&] { desk.Open("frmEditor"); });
  EXPECT_EQ("", desk.TopName());
}

}  // namespace
}  // namespace grapplemont::test
