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
        return deed.Promotion == player && deed.Kind == kDeedSigned;
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

/// Calls `visit` with each step of the guide and its place, from 0.
template <class Visit>
void ForEachStep(const GuideState& guide, Visit visit) {
  std::size_t place = 0;
  for (const GuideStep& step : kGuideSteps)
    if (static_cast<int>(step.Of) == guide.Tour && place < guide.Done.size()) visit(step, place++);
}

}  // namespace

void BeginGuide(World& world) {
  GuideState guide{};
  const bool isOnAir = !ShowsOf(world, world.PlayerUid()).empty();
  guide.Tour = static_cast<int>(isOnAir ? Tour::Television : Tour::Backyard);
  world.Guides().Rewrite({guide});
}

std::vector<GuideLine> GuideLines(const World& world) {
  std::vector<GuideLine> lines;
  if (const GuideState* guide = OpenGuide(world))
    ForEachStep(*guide, [&](const GuideStep& step, std::size_t place) {
      lines.push_back({step.Page, step.Title, step.Says, guide->Done[place]});
    });
  return lines;
}

std::string GuideOnPage(const World& world, std::string_view screen) {
  const std::vector<GuideLine> lines = GuideLines(world);
  std::size_t step = 0;
  while (step < lines.size() && lines[step].IsDone) ++step;
  if (step == lines.size() || lines[step].Page != screen) {
    if (step == 0 || lines[step - 1].Page != screen) return {};
    --step;
  }
  return "Your first show, step " + std::to_string(step + 1) + ": " + std::string(lines[step].Says);
}

void WatchGuide(World& world, const std::vector<std::string_view>& screens) {
  GuideState* guide = OpenGuide(world);
  if (!guide) return;
  std::size_t upTo = 0;  // the steps that the first show makes idle
  ForEachStep(*guide, [&](const GuideStep& step, std::size_t place) {
    const bool isSeen = std::ranges::any_of(screens, [&](std::string_view screen) {
      return step.Screen.find(screen) != step.Screen.npos;
    });
    if (!guide->Done[place] && (isSeen || HasCome(world, step.Done))) guide->Done[place] = true;
    if (step.Done == GuideDone::Show && guide->Done[place]) upTo = place;
  });
  for (std::size_t place = 0; place < upTo; ++place) guide->Done[place] = true;
}

void CloseGuide(World& world) {
  if (GuideState* guide = OpenGuide(world)) guide->Closed = true;
}

}  // namespace grapplemont
