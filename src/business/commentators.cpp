#include "business/commentators.h"

#include <algorithm>
#include <array>

#include "records/arithmetic.h"

namespace grapplemont {

namespace {

// By size, Global to Backyard.
constexpr std::array<int, 6> kWantedTalent = {80, 60, 50, 40, 20, 0};

Commentator Of(const Staff& staff) {
  return {staff.Name.Str(), staff.Uid, false, staff.Talent, true};
}

Commentator Of(const Worker& worker) {
  return {worker.Name.Str(), worker.Uid, true, worker.Charisma, worker.Speaks};
}

template <class R>
std::optional<Commentator> Seated(const R* person) {
  return person ? std::optional(Of(*person)) : std::nullopt;
}

}  // namespace

int WantedTalent(int size) {
  return BySize(kWantedTalent, size);
}

std::vector<const Staff*> CommentaryStaff(const World& world) {
  std::vector<const Staff*> announcers;
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == world.PlayerUid() && staff.Position == kAnnouncer)
      announcers.push_back(&staff);
  return announcers;
}

std::vector<const Worker*> CommentaryWorkers(const World& world) {
  std::vector<const Worker*> workers;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && worker.Announcer && worker.Status == "Nor")
      workers.push_back(&worker);
  return workers;
}

std::vector<Commentator> AnnouncersToChoose(const World& world) {
  std::vector<Commentator> all;
  for (const Staff* staff : CommentaryStaff(world)) all.push_back(Of(*staff));
  return all;
}

std::vector<Commentator> ColourMenToChoose(const World& world) {
  std::vector<Commentator> all = AnnouncersToChoose(world);
  for (const Worker* worker : CommentaryWorkers(world)) all.push_back(Of(*worker));
  return all;
}

std::optional<Commentator> AnnouncerOf(const World& world, const Show& show) {
  return Seated(world.FindStaff(show.Announcer));
}

std::optional<Commentator> ColourManOf(const World& world, const Show& show) {
  return show.ColourIsWorker ? Seated(world.FindWorker(show.Colour))
                             : Seated(world.FindStaff(show.Colour));
}

std::string NameOf(const std::optional<Commentator>& commentator) {
  return commentator ? commentator->Name : "None";
}

std::string WhyNoTable(int announcer, int colour, bool colourIsWorker) {
  if (colourIsWorker || announcer == 0 || announcer != colour) return {};
  return "The same person cannot be announcer and colour commentator";
}

}  // namespace grapplemont
