#include "calendar/screens/screenguide.h"

#include <algorithm>
#include <utility>

#include "calendar/deskwork.h"
#include "calendar/guide.h"
#include "calendar/passing.h"
#include "records/fields/wording.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

GuideCard::GuideCard(ui::Screen& screen, Game& game, ui::Handler openSheet)
    : game_(game),
      openSheet_(std::move(openSheet)),
      txtguide(screen, "txtguide"),
      cmdstep(screen, "cmdstep", "Show Me", [this] { Lead(); }),
      cmdguide(screen, "cmdguide", "Close The Guide", [this] { Close(); }) {
  txtguide.Brief = true;
  cmdguide.Tip = "The guide does not come back.";
}

ui::Box GuideCard::Layout() {
  return ui::Group("Your first show", {ui::Columns({ui::Grow(txtguide), cmdstep, cmdguide})});
}

namespace {

/// "Left out so far: 1 See who draws, 4 Count your staff."
std::string LeftOutText(const std::vector<GuideLine>& lines, std::size_t before) {
  std::vector<std::string> titles;
  for (std::size_t place = 0; place < before; ++place)
    if (!lines[place].IsDone)
      titles.push_back(std::to_string(place + 1) + " " + std::string(lines[place].Title));
  return titles.empty() ? "" : "Left out so far: " + Joined(titles) + ".";
}

}  // namespace

/// The step that comes next alone: the desk has room for no more.
void GuideCard::Show() {
  using Style = ui::Report::Style;
  const std::vector<GuideLine> lines = GuideLines(game_.World());
  const std::size_t next = NextStep(lines);
  const bool hasNext = next < lines.size();
  page_ = hasNext ? lines[next].Page : std::string_view();
  // The last step of the show is to read what it did.
  comesToSheet_ = hasNext && lines[next].IsOfShow && next + 1 < lines.size();
  if (hasNext) {
    const bool isLate = !lines[next].IsOfShow && lines.back().IsDone;
    std::vector<ui::Report::Paragraph> told = {
        {Style::Strong, "Step " + std::to_string(next + 1) + " of " + std::to_string(lines.size()) +
                            (isLate ? ", left out so far: " : ": ") +
                            std::string(lines[next].Title)},
        {Style::Body, WithKeys(game_.Desk(), lines[next].Says)}};
    if (const std::string leftOut = LeftOutText(lines, next); !leftOut.empty())
      told.push_back({Style::Muted, leftOut});
    txtguide.Write(std::move(told));
  } else {
    txtguide.Write("All of it is done. The house is yours.");
  }
  txtguide.Visible = cmdguide.Visible = !lines.empty();
  ShowWay();
}

/// A sheet comes with its day; a small promotion has a month to use until then.
void GuideCard::ShowWay() {
  cmdstep.Visible = cmdguide.Visible && !page_.empty();
  const World& world = game_.World();
  const bool isUsed = page_ == "frmMonth" && HasSmallMonth(world.Player());
  const bool waits = comesToSheet_ && !isUsed && TonightText(world).empty();
  EnableUnless(cmdstep, waits ? "Its sheet opens on the day of the show." : "");
}

void GuideCard::Lead() {
  if (comesToSheet_ && !TonightText(game_.World()).empty()) return openSheet_();
  game_.Desk().Open(page_);
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
