#include <gtest/gtest.h>

#include <set>

#include "program/richworld.h"
#include "support/gameonworld.h"
#include "support/homefolder.h"

namespace grapplemont::test {
namespace {

void Gather(const ui::Box& box, std::set<const ui::Control*>& shown) {
  if (box.Shown) shown.insert(box.Shown);
  for (const ui::Box& part : box.Parts) Gather(part, shown);
}

/// Every control that a screen's arrangement places somewhere.
std::set<const ui::Control*> Placed(ui::Screen& screen) {
  const ui::Page page = screen.Layout();
  std::set<const ui::Control*> placed{page.Facts, page.Face, page.Main, page.Cancel};
  placed.insert(page.More.begin(), page.More.end());
  placed.insert(page.Actions.begin(), page.Actions.end());
  placed.insert(page.Top.begin(), page.Top.end());
  placed.insert(page.TopActions.begin(), page.TopActions.end());
  for (const ui::SideGroup& group : page.Side)
    for (const auto& command : group.Commands) placed.insert(command.Press);
  Gather(page.Body, placed);
  return placed;
}

/// Opens the screen, looks whether all it has can be seen somewhere and can be left, and leaves it.
void Visit(ScriptDesk& desk, const std::string& name) {
  SCOPED_TRACE(name);
  desk.Open(name);
  ASSERT_EQ(desk.TopName(), name);
  ui::Screen& screen = *desk.Top();
  const auto placed = Placed(screen);
  std::set<std::string> names;
  for (const ui::Control* control : screen.Controls()) {
    EXPECT_TRUE(names.insert(control->Name()).second) << control->Name() << " twice";
    const bool isBackdrop = control->Name() == "imgback";
    EXPECT_TRUE(isBackdrop || placed.contains(control)) << control->Name() << " lies nowhere";
    EXPECT_TRUE(control->Enabled || !control->Visible || !control->Tip->empty())
        << control->Name() << " is disabled and does not say why";
  }
  if (screen.Is() != ui::Role::Wait && screen.Is() != ui::Role::Hub) {
    EXPECT_TRUE(screen.Layout().Cancel) << "Escape leads nowhere";
  }
  desk.Close(screen);
}

TEST(EveryScreen, OpensInARichWorldAndInOneOfThePlayersPromotionAlone) {
  const auto look = [](World world) {
    GameOnWorld play(std::move(world));
    for (const char* name : kInGame) Visit(play.Desk, name);
  };
  look(RichWorld()
           .Game("CWA")
           .Feud("CWA Hand 5", "CWA Hand 6")
           .TagFeud("CWA Hand 1", "CWA Hand 2", "CWA Hand 7", "CWA Hand 8")
           .Mail("Ruth Vane", "Hello."));
  look(SmallWorld().Promotion("CWA").Game("CWA"));
}

TEST(EveryScreen, OpensBeforeAGameOnRichAndOnEmptyData) {
  for (const World& data : {RichWorld().Build(), World()}) {
    HomeFolder home(data);
    for (const char* name : kBeforeGame) Visit(home.Desk, name);
  }
}

}  // namespace
}  // namespace grapplemont::test
