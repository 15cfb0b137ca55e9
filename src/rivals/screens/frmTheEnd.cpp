#include "rivals/endstories.h"
#include "rivals/screens/rivalscreens.h"

namespace grapplemont {

namespace {

/// The news of the player's end, and the career behind it. The world can still be read afterwards.
class frmTheEnd : public ui::Screen {
 public:
  explicit frmTheEnd(Game& game)
      : Screen(game.Desk(), "frmTheEnd", "The End", ui::Role::Cover), game_(game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdlook, &cmdmenu};
    page.Main = &cmdmenu;
    page.Cancel = &cmdlook;
    page.Body = ui::Columns({ui::Group("The Turnbuckle Courier", {ui::Grow(txtstory)}).Grow(3),
                             ui::Group("Your career", {ui::Grow(txtcareer)}).Grow(2)});
    return page;
  }

  void Load() override {
    using Style = ui::Report::Style;
    const World& world = game_.World();
    const EndStory story = StoryOfTheEnd(world, world.Game().EndCode);
    txtstory.Write({{Style::Heading, story.Headline},
                    {Style::Body, story.Body},
                    {Style::Muted, story.SignedBy}});
    txtcareer.WriteLines(CareerInFigures(world));
  }

 private:
  void cmdlook_Click() { Close(); }
  void cmdmenu_Click() {
    game_.Commit();
    game_.CloseSlot();
    desk().CloseAll();
    desk().Open("frmGameMenu");
  }

  Game& game_;
  ui::Report txtstory{*this, "txtstory"};
  ui::Report txtcareer{*this, "txtcareer"};
  ui::Button cmdlook{*this, "cmdlook", "Look Around", &frmTheEnd::cmdlook_Click};
  ui::Button cmdmenu{*this, "cmdmenu", "Main Menu", &frmTheEnd::cmdmenu_Click};
};

}  // namespace

SCREEN(frmTheEnd)

}  // namespace grapplemont
