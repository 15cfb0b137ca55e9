#include "calendar/guide.h"

#include <algorithm>

#include "business/tvshows.h"
#include "words/guide.h"

namespace grapplemont {

namespace {

/// The guide while it is open; nullptr for none.
template <class AnyWorld>
auto* OpenGuide(AnyWorld& world) {
  auto& guides = world.Guides();
  const bool isOpen = guides.Count() > 0 && !guides[1].Closed;
  return isOpen ? &guides[1] : nullptr;
}

bool HasCome(const World& world, GuideDone what) {
  const int player = world.PlayerUid();
  switch (what) {
    case GuideDone::Signed:
      return std::ranges::any_of(world.Deeds(), [&](const Deed& deed) {
        return deed.Promotion == player && (deed.Kind == kDeedSigned || deed.Kind == kDeedStolen);
      });
    case GuideDone::Feud:
      return std::ranges::any_of(world.Feuds(), [](const Feud& feud) { return feud.Worker1 != 0; });
    case GuideDone::Show:
      return std::ranges::any_of(world.History(), [&](const HistoryEntry& past) {
        return past.Promotion == player && !past.CalledOff &&
               (past.Kind == kPastTv || past.Kind == kPastEvent);
      });
    case GuideDone::Seen:
      break;
  }
  return false;
}

std::vector<const GuideStep*> StepsOf(const GuideState& guide) {
  std::vector<const GuideStep*> steps;
  for (const GuideStep& step : kGuideSteps)
    if (static_cast<int>(step.Of) == guide.Tour && steps.size() < guide.Done.size())
      steps.push_back(&step);
  return steps;
}

/// The place of the step that its sheet makes done, from 0: from there on steps come with the show,
/// what comes before may be left out.
std::size_t ShowFrom(const std::vector<const GuideStep*>& steps) {
  const auto show = std::ranges::find(steps, GuideDone::Show, &GuideStep::Done);
  const std::string_view page = show == steps.end() ? std::string_view() : (*show)->Page;
  const auto first = std::ranges::find_if(
      steps, [&](const GuideStep* step) { return step->Screen.find(page) != step->Screen.npos; });
  return static_cast<std::size_t>(first - steps.begin());
}

}  // namespace

void BeginGuide(World& world) {
  GuideState guide{};
  const bool isOnAir = !ShowsOf(world, world.PlayerUid()).empty();
  guide.Tour = static_cast<int>(isOnAir ? Tour::Television : Tour::Backyard);
  world.Guides().Rewrite({guide});
}

std::vector<GuideLine> GuideLines(const World& world) {
  const GuideState* const guide = OpenGuide(world);
  if (!guide) return {};
  std::vector<GuideLine> lines;
  const std::vector<const GuideStep*> steps = StepsOf(*guide);
  const std::size_t showFrom = ShowFrom(steps);
  for (std::size_t place = 0; place < steps.size(); ++place)
    lines.push_back({steps[place]->Page, steps[place]->Title, steps[place]->Says,
                     guide->Done[place], place >= showFrom});
  return lines;
}

std::size_t NextStep(const std::vector<GuideLine>& lines) {
  const auto left = [&](auto from) {
    return std::ranges::find(from, lines.end(), false, &GuideLine::IsDone);
  };
  const auto show = std::ranges::find(lines, true, &GuideLine::IsOfShow);
  const bool hasBegun = std::any_of(show, lines.end(), [](auto& line) { return line.IsDone; });
  const auto next = hasBegun ? left(show) : lines.end();
  return static_cast<std::size_t>((next != lines.end() ? next : left(lines.begin())) -
                                  lines.begin());
}

std::string GuideOnPage(const World& world, std::string_view screen, int justDone) {
  const std::vector<GuideLine> lines = GuideLines(world);
  const auto isOfPage = [&](const GuideLine& line) { return line.Page == screen && !line.IsDone; };
  auto step = std::ranges::find_if(lines, isOfPage);
  if (step == lines.end() && justDone > 0 && justDone <= std::ssize(lines))
    step = lines.begin() + justDone - 1;
  if (step == lines.end() || step->Page != screen) return {};
  return "Your first show, step " + std::to_string(step - lines.begin() + 1) + ": " +
         std::string(step->Says);
}

int WatchGuide(World& world, const std::vector<std::string_view>& screens) {
  GuideState* guide = OpenGuide(world);
  if (!guide) return 0;
  const std::vector<const GuideStep*> steps = StepsOf(*guide);
  const std::size_t showFrom = ShowFrom(steps);
  int justDone = 0;
  for (std::size_t place = 0; place < steps.size(); ++place) {
    const GuideStep& step = *steps[place];
    const bool isSeen = std::ranges::any_of(screens, [&](std::string_view screen) {
      return step.Screen.find(screen) != step.Screen.npos;
    });
    // What a show has done is there to be read once one has been held.
    if (place > showFrom && step.Done == GuideDone::Seen && !HasCome(world, GuideDone::Show)) break;
    if (guide->Done[place] || !(isSeen || HasCome(world, step.Done))) continue;
    guide->Done[place] = true;
    justDone = static_cast<int>(place) + 1;
    if (step.Done == GuideDone::Show)
      for (std::size_t before = showFrom; before < place; ++before) guide->Done[before] = true;
  }
  return justDone;
}

void CloseGuide(World& world) {
  if (GuideState* guide = OpenGuide(world)) guide->Closed = true;
}

}  // namespace grapplemont
