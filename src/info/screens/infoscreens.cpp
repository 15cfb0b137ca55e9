#include "info/screens/infoscreens.h"

namespace grapplemont {

void RegisterInfoScreens(Game& game) {
  using Make = std::unique_ptr<ui::Screen> (*)(Game&);
  const std::pair<const char*, Make> screens[] = {
      {"frmNews", MakefrmNews}, {"frmNotepad", MakefrmNotepad}, {"frmOptions", MakefrmOptions},
      {"frmUser", MakefrmUser}, {"frmTalk", MakefrmTalk},       {"frmInternet", MakefrmInternet}};
  for (const auto& [name, make] : screens)
    game.Desk().Register(name, [&game, make = make] { return make(game); });
}

}  // namespace grapplemont
