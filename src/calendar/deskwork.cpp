#include "calendar/deskwork.h"

#include <algorithm>

#include "booking/keptcards.h"
#include "booking/sheet.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "show/holdshow.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

constexpr std::size_t kListed = 20;
constexpr int kWorn = 75, kContent = 60, kSoon = 6;

bool IsEventAppointment(const Appointment& show) {
  return show.Kind == "Event";
}

/// Those of the player's people who are wanted, by `order`, the lowest first.
template <class Wanted, class Order>
std::vector<const Worker*> People(const World& world, Wanted wanted, Order order) {
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers())
    if (WorksForPlayer(world, worker) && wanted(worker)) people.push_back(&worker);
  std::ranges::stable_sort(people, {}, [&](const Worker* worker) { return order(*worker); });
  if (people.size() > kListed) people.resize(kListed);
  return people;
}

/// Against the least that the show needs, and the rows of its sheet.
std::string OfLeast(int booked, const SheetTerms& terms) {
  return std::to_string(booked) + " of " + std::to_string(terms.MinSegments) + ", " +
         Counted(terms.OpenRows, "row");
}

/// How much is drafted for a show to come: the next three of each can be drafted.
std::string DraftedText(const World& world, const Appointment& show) {
  for (const ComingShow& coming : ComingShows(world))
    if (coming.On == show.On && coming.Owner.Show == show.What)
      return OfLeast(coming.Drafted, coming.Owner.IsEvent ? kEventTerms : TermsOfSlot(coming.Slot));
  return {};
}

}  // namespace

bool IsAway(const Worker& worker) {
  return worker.StatusMonths > 0;
}

bool IsUnhappy(const Worker& worker) {
  return worker.Morale < kContent;
}

std::string BookedText(const World& world, const Appointment& show) {
  if (show.Kind == "No Event") return {};
  if (show.On != world.Today()) return DraftedText(world, show);
  const bool isEvent = IsEventAppointment(show);
  // Until today's sheet is opened, the last show's card lies there, and what is drafted waits.
  const bool isOurs = world.Segments().Count() > 0 && !WasHeld(world);
  const int booked = isOurs ? CountSheet(world, isEvent).Segments
                            : RowsBooked(FindCard(world, {show.What, isEvent, true}, show.On));
  return OfLeast(booked, TermsOf(world, isEvent));
}

std::string TonightText(const World& world) {
  for (const Appointment& show : ComingShows(world, 1)) {
    if (show.Kind == "No Event") return "No Event is planned for tonight.";
    return "Tonight: " + show.What + ", booked " + BookedText(world, show) + ".";
  }
  return {};
}

std::vector<const Title*> HeldTitles(const World& world) {
  std::vector<const Title*> titles;
  for (const Title& title : world.Titles())
    if (title.Owner == world.PlayerUid() && title.Holder != 0) titles.push_back(&title);
  std::ranges::stable_sort(titles, {}, [](const Title* title) { return -title->Image; });
  return titles;
}

std::vector<const Feud*> HottestFeuds(const World& world) {
  std::vector<const Feud*> feuds;
  for (const Feud& feud : world.Feuds())
    if (!IsFreeSlot(feud)) feuds.push_back(&feud);
  std::ranges::stable_sort(feuds, {}, [](const Feud* feud) { return -feud->Heat; });
  return feuds;
}

std::vector<const Worker*> HurtAndWorn(const World& world) {
  return People(
      world, [](const Worker& worker) { return IsAway(worker) || worker.Condition < kWorn; },
      [](const Worker& worker) {
        return IsAway(worker) ? -int(worker.StatusMonths) : int(worker.Condition);
      });
}

std::vector<const Worker*> Unhappy(const World& world) {
  return People(world, IsUnhappy, [](const Worker& worker) { return int(worker.Morale); });
}

std::vector<const Worker*> ContractsThatEnd(const World& world) {
  return People(
      world,
      [](const Worker& worker) {
        return worker.ContractMonths != kNoEnd && worker.ContractMonths <= kSoon;
      },
      [](const Worker& worker) { return int(worker.ContractMonths); });
}

std::string PeopleText(const World& world) {
  const auto number = [](const std::vector<const Worker*>& people, const std::string& none) {
    return people.empty() ? none : std::to_string(people.size());
  };
  const std::vector<const Worker*> ending = ContractsThatEnd(world);
  return number(HurtAndWorn(world), "Nobody") + " hurt or worn, " +
         number(Unhappy(world), "nobody") + " unhappy, " + number(ending, "no") +
         (ending.size() > 1 ? " contracts end soon." : " contract ends soon.");
}

}  // namespace grapplemont
