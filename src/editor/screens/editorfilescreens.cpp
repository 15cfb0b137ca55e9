#include "editor/screens/editorfilescreens.h"

namespace grapplemont {

void RegisterEditorFileScreens(Game& game) {
  const auto offer = [&game](const char* name, std::unique_ptr<ui::Screen> (*make)(Game&)) {
    game.Desk().Register(name, [&game, make] { return make(game); });
  };
  offer("frmEditMaintain", MakefrmEditMaintain);
  offer("frmEditMerge", MakefrmEditMerge);
  offer("frmEditImport", MakefrmEditImport);
  offer("frmEditTables", MakefrmEditTables);
}

}  // namespace grapplemont
