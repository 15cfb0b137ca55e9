#include "calendar/screens/screenguide.h"

#include <algorithm>

#include "calendar/guide.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

GuideCard::GuideCard(ui::Screen& screen, Game& game)
    : game_(game),
      txtguide(screen, "txtguide"),
      cmdstep(screen, "cmdstep", "Show Me", [this] { game_.Desk().Open(page_); }),
      cmdguide(screen, "cmdguide", "Close The Guide", [this] { Close(); }) {
  txtguide.Brief = true;
  cmdguide.Tip = "The guide does not come back.";
}

ui::Box GuideCard::Layout() {
  return ui::Group("Your first show", {ui::Columns({ui::Grow(txtguide), cmdstep, cmdguide})});
}

/// The step that comes next alone: the desk has room for no more.
void GuideCard::Show() {
  using Style = ui::Report::Style;
  const std::vector<GuideLine> lines = GuideLines(game_.World());
  const auto next = std::ranges::find_if(lines, [](const GuideLine& line) { return !line.IsDone; });
  const bool hasNext = next != lines.end();
  page_ = hasNext ? next->Page : std::string_view();
  if (hasNext)
    txtguide.Write(
        {{Style::Strong, "Step " + std::to_string(next - lines.begin() + 1) + " of " +
                             std::to_string(lines.size()) + ": " + std::string(next->Title)},
         {Style::Body, std::string(next->Says)}});
  else
    txtguide.Write("All of it is done. The house is yours.");
  txtguide.Visible = cmdguide.Visible = !lines.empty();
  ShowWay();
}

/// A sheet comes with its day.
void GuideCard::ShowWay() {
  cmdstep.Visible = cmdguide.Visible && !page_.empty();
  EnableUnless(cmdstep,
               page_.ends_with("Booking") ? "Its sheet opens on the day of the show." : "");
}

void GuideCard::Close() {
  CloseGuide(game_.World());
  Show();
}

}  // namespace grapplemont
