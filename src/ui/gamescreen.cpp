#include "ui/gamescreen.h"

namespace grapplemont {

GameScreen::GameScreen(Game& game, std::string name, std::string title, const Frame& frame)
    : Screen(game.Desk(), std::move(name), std::move(title), frame.Is),
      game_(game),
      cmdback(*this, frame.BackName, frame.Back, [this] { cmdback_Click(); }),
      manages_(frame.Manages) {
  KeepLast(cmdback);
}

ui::Page GameScreen::PageOf(ui::Box body, ui::Label* facts, std::vector<ui::Button*> actions,
                            ui::Button* main) {
  ui::Page page;
  page.Facts = facts;
  page.Actions = std::move(actions);
  page.Actions.push_back(&cmdback);
  if (main) page.Actions.push_back(main);
  page.Main = main ? main : &cmdback;
  page.Cancel = &cmdback;
  page.Body = std::move(body);
  return page;
}

void GameScreen::cmdback_Click() {
  Close();
  if (manages_ && game_.RefreshMainScreen) game_.RefreshMainScreen();
}

}  // namespace grapplemont
