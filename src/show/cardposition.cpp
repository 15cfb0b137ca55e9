#include "show/cardposition.h"

#include "records/modVar.h"
#include "roster/postings.h"
#include "show/legend.h"

namespace grapplemont {

namespace {

constexpr int kMoods = 6;
constexpr int kMoodToWrite = 2;
/// From this Attitude on somebody complains of being pushed, or asks politely to be.
constexpr int kModest = 81;
constexpr int kPolite = 61;

constexpr std::string_view kPushedTooHigh =
    "I think you might be pushing me too high up the card, the fans seem to be resenting me.";
constexpr Wording kHeldPolitely = {
    "I think i should be higher up the card.",
    "Brother, I think Maulamania should be running wild higher up the card!"};
constexpr Wording kHeldBluntly = {
    "I should be higher on the card, promote me up the roster.",
    "I should be higher on the card, promote me up the roster, brother!"};

void TellRoadAgent(World& world, const Worker& worker, const std::string& before,
                   const std::string& after) {
  AddNews(world, "Road Agent",
          worker.Name.Str() + before + (worker.Gender ? "him" : "her") + after);
}

CardPull PushedTooHigh(World& world, const Worker& worker, int fit, int mood) {
  CardPull pull;
  if (worker.Position < fit - 1) pull.Over -= 1;
  if (worker.Position < fit - 2) {
    pull.Over -= 2;
    TellRoadAgent(world, worker, " is losing heat because you are pushing ", " too much.");
  }
  if (worker.Attitude >= kModest && mood == kMoodToWrite && !IsLegend(worker))
    AddNews(world, worker.Name, kPushedTooHigh);
  return pull;
}

CardPull HeldTooLow(World& world, const Worker& worker, int fit, int mood) {
  CardPull pull;
  if (worker.Position - 1 > fit) pull.Morale -= 3;
  if (worker.Position - 2 > fit) {
    pull.Morale -= 5;
    TellRoadAgent(world, worker, " is losing morale because you are not pushing ", " enough.");
  }
  if (mood == kMoodToWrite)
    AddNews(world, worker.Name,
            (worker.Attitude >= kPolite ? kHeldPolitely : kHeldBluntly).By(worker));
  return pull;
}

}  // namespace

CardPull CheckCardPosition(World& world, const Worker& worker) {
  if (worker.Position == kNonWrestler || worker.Position == kManager) return {};
  const int fit = FittingPosition(world.Player().Size, worker.Over);
  const int mood = world.RandomDraw(kMoods);
  if (worker.Position < fit) return PushedTooHigh(world, worker, fit, mood);
  if (worker.Position > fit) return HeldTooLow(world, worker, fit, mood);
  return {};
}

}  // namespace grapplemont
