#include "calendar/screens/screenguide.h"

#include <algorithm>

#include "calendar/guide.h"
#include "records/fields/wording.h"
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
         {Style::Body, WithKeys(game_.Desk(), next->Says)}});
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

std::string WithKeys(const ui::Desk& desk, std::string_view text) {
  const auto hub = std::ranges::find(desk.Screens(), ui::Role::Hub, &ui::Screen::Is);
  std::vector<std::string> lines;
  if (desk.Help.Keys && hub != desk.Screens().end()) lines = desk.Help.Keys(**hub);
  return FillHoles(text, [&](std::string_view command) {
    const auto* button = hub == desk.Screens().end()
                             ? nullptr
                             : dynamic_cast<const ui::Button*>((*hub)->Find(command));
    const std::string told = ": " + (button ? button->Text.Get() : std::string(command));
    const auto line = std::ranges::find_if(
        lines, [&](const std::string& keyed) { return keyed.ends_with(told); });
    return line == lines.end() ? std::string()
                               : " (" + line->substr(0, line->size() - told.size()) + ")";
  });
}

}  // namespace grapplemont
