#include "storylines/titles.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/keepannals.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "records/severing.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

/// How the history calls the holders: a pair without a team by its short names.
std::string HolderText(const World& world, int holder, int partner) {
  if (partner == 0) return WorkerName(world, holder);
  const std::string team = TeamNameOf(world, holder, partner);
  if (team != "None") return team;
  return WorkerShortName(world, holder) + " \\ " + WorkerShortName(world, partner);
}

/// Several promotions may have Titles of one name; the sheet's are the player's.
bool IsBookedFor(const Segment& segment, const Title& title) {
  return segment.Kind != kEmptySegment && segment.TitleName == title.Name.View() &&
         segment.Rating == 0;
}

/// What keeps somebody from the ring, in a word or two.
constexpr std::pair<const char*, const char*> kAbsences[] = {
    {"Inj", "injured"}, {"Sus", "suspended"}, {"Reh", "in rehab"}, {"Hom", "sitting out"}};

/// What keeps a holder from defending it.
std::string WhyNotDefend(const Title& title, const Worker& worker) {
  if (IsInDevelopment(worker) || worker.Position == kTrainingCamp) return "sent away";
  if (!IsOnRoster(worker)) return "no wrestler";
  for (const auto& [status, words] : kAbsences)
    if (worker.Status == status) return words;
  if (worker.Status != "Nor") return "unfit";
  return FitsTitle(title, worker) ? "" : "not eligible";
}

bool MayHold(const World& world, const Title& title, const Worker& worker) {
  return WorksForPlayer(world, worker) && WhyNotDefend(title, worker).empty();
}

std::string WhyNotHold(const World& world, const Title& title, int uid) {
  const Worker* worker = world.FindWorker(uid);
  if (!worker) return title.Singles ? "Choose somebody first." : "Choose two workers first.";
  if (!FitsTitle(title, *worker)) return worker->Name + " is not eligible for this title!";
  return MayHold(world, title, *worker) ? ""
                                        : worker->Name + " is not a wrestler of yours who is fit.";
}

}  // namespace

bool IsPlayers(const World& world, const Title& title) {
  return title.Owner == world.PlayerUid();
}

std::string ChampionText(const World& world, const Title& title) {
  if (title.Holder == 0) return std::string(kVacantHolder);
  return title.Partner == 0 ? WorkerName(world, title.Holder)
                            : PairName(world, title.Holder, title.Partner);
}

std::string KindText(const Title& title) {
  return std::string(title.Woman ? "Women's " : "") + (title.Singles ? "Singles" : "Tag") +
         (title.Lightweight ? ", light" : "");
}

bool FitsTitle(const Title& title, const Worker& worker) {
  return !(title.Lightweight && worker.Weight != "L") && !(title.Woman && worker.Gender);
}

std::string WhyNoDefence(const World& world, const Title& title) {
  for (const int uid : {int(title.Holder), int(title.Partner)}) {
    const Worker* holder = world.FindWorker(uid);
    if (!holder) continue;
    if (std::string why = WhyNotDefend(title, *holder); !why.empty()) return why;
  }
  return {};
}

std::string WhyNotTitleName(const World& world, std::string_view name) {
  constexpr int kLetters = decltype(Title::Name)::kWidth;
  if (std::string why = WhyNoName(name, kLetters); !why.empty()) return why;
  name = TrimmedName(name);
  return FindTitle(world, name) ? "There is a Title called " + std::string(name) + " already." : "";
}

std::string WhyNotCreate(const World& world, const TitleTerms& terms) {
  if (world.Titles().Full()) return "No more Titles can be kept.";
  return WhyNotTitleName(world, terms.Name);
}

Title VacantTitle(const World& world, const TitleTerms& terms, int promotionUid, int image) {
  Title title;
  title.Name = TrimmedName(terms.Name);
  title.Singles = terms.Singles;
  title.Woman = terms.Woman;
  title.Lightweight = terms.Lightweight;
  title.Owner = promotionUid;
  title.Image = image;
  for (Reign& reign : title.Reigns) {
    reign.Won = kNoTitleDate;
    reign.Holder = "None";
    reign.Lost = kNoTitleDate;
  }
  title.Reigns[0].Won = world.Today();
  title.Reigns[0].Holder = kVacantHolder;
  return title;
}

int CreateTitle(World& world, const TitleTerms& terms) {
  world.Titles().Append(VacantTitle(world, terms, world.PlayerUid(), kNewTitleImage));
  KeepTitle(world, &world.Player(), terms.Name);
  return world.Titles().Count();
}

void RenameTitle(World& world, int number, std::string_view name) {
  Title& title = world.Titles()[number];
  for (Segment& segment : world.Segments())
    if (IsBookedFor(segment, title)) segment.TitleName = TrimmedName(name);
  title.Name = TrimmedName(name);
}

std::vector<const Worker*> Contenders(const World& world, const Title& title) {
  std::vector<const Worker*> contenders = SeenOnShows(world);
  std::erase_if(contenders, [&](const Worker* worker) { return !MayHold(world, title, *worker); });
  return contenders;
}

std::string WhyNotAward(const World& world, const Title& title, int holder, int partner) {
  if (!IsPlayers(world, title)) return "This Title is not yours to give.";
  if (title.Holder != 0) return "It has a holder. Vacate it first.";
  if (std::string why = WhyNotHold(world, title, holder); !why.empty()) return why;
  if (title.Singles) return partner == 0 ? "" : "A singles Title has one holder. Choose one.";
  if (holder == partner) return "You have selected the same worker twice!";
  return WhyNotHold(world, title, partner);
}

void Crown(World& world, Title& title, int holder, int partner) {
  title.Holder = holder;
  title.Partner = partner;
  BeginReign(title, world.Today(), HolderText(world, holder, partner));
}

std::string WhyNotVacate(const Title& title) {
  return title.Holder == 0 ? "It is vacant already." : "";
}

int BookedForTitle(const World& world, const Title& title) {
  return static_cast<int>(std::ranges::count_if(
      world.Segments(), [&](const Segment& segment) { return IsBookedFor(segment, title); }));
}

void DissolveTitle(World& world, int number) {
  const Title gone = world.Titles()[number];
  for (Segment& segment : world.Segments())
    if (IsBookedFor(segment, gone)) ClearSegment(segment);
  world.Titles().Erase(number);
}

}  // namespace grapplemont
