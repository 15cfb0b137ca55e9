#include "session/screens/sessionscreens.h"

namespace grapplemont {

void RegisterSessionScreens(Game& game) {
  using Make = std::unique_ptr<ui::Screen> (*)(Game&);
  const std::pair<const char*, Make> screens[] = {{"frmTitleScreen", MakefrmTitleScreen},
                                                  {"frmDisclaimer", MakefrmDisclaimer},
                                                  {"frmGameMenu", MakefrmGameMenu},
                                                  {"frmCredits", MakefrmCredits},
                                                  {"frmCreditsXtra", MakefrmCreditsXtra},
                                                  {"frmNewGame", MakefrmNewGame},
                                                  {"frmLoadGame", MakefrmLoadGame},
                                                  {"frmWait", MakefrmWait},
                                                  {"frmLoadingScreens", MakefrmLoadingScreens}};
  for (const auto& [name, make] : screens)
    game.Desk().Register(name, [&game, make = make] { return make(game); });
}

}  // namespace grapplemont
