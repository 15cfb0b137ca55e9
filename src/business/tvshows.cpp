#include "business/tvshows.h"

#include <algorithm>
#include <array>

#include "business/networks.h"
#include "records/arithmetic.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

constexpr int kShowNameLetters = 20;

/// Whether a network that cannot share its spots has a show in the slot that `counts`.
template <class Test>
bool HasInSlot(const World& world, const Network& network, std::string_view slot, Test counts) {
  return !network.Generic && std::ranges::any_of(world.Shows(), [&](const Show& show) {
    return show.Network == network.Uid && show.Slot == slot && counts(show);
  });
}

}  // namespace

std::vector<const Show*> ShowsOf(const World& world, int promotionUid) {
  std::vector<const Show*> shows;
  for (const Show& show : world.Shows())
    if (show.Owner == promotionUid) shows.push_back(&show);
  return shows;
}

std::string WhyNoMoreShows(const World& world) {
  return ShowsOf(world, world.PlayerUid()).size() < kMostShows
             ? ""
             : "You already have the maximum amount of TV shows allowed.";
}

std::string WhyNoShowName(const World& world, std::string_view name, const char* taken) {
  if (TrimmedName(name) == kToBeDeleted) return "No show can be called that.";
  if (std::string why = WhyNoName(name, kShowNameLetters); !why.empty()) return why;
  return ShowNameTaken(world, name) ? taken : "";
}

bool ShowNameTaken(const World& world, std::string_view name) {
  return std::ranges::any_of(world.Shows(),
                             [&](const Show& show) { return show.Name == TrimmedName(name); });
}

bool SlotTaken(const World& world, const Network& network, std::string_view slot) {
  return HasInSlot(world, network, slot, [](const Show&) { return true; });
}

std::vector<int> FreeDays(const World& world, int promotionUid, const Network& network,
                          std::string_view slot) {
  std::vector<int> free;
  const std::vector<const Show*> own = ShowsOf(world, promotionUid);
  for (const Term& day : kWeekDays) {
    const auto isThen = [&](const Show& show) { return show.Day == day.Says; };
    const bool busy = std::ranges::any_of(own, [&](const Show* show) { return isThen(*show); });
    if (!busy && !HasInSlot(world, network, slot, isThen)) free.push_back(day.Code);
  }
  return free;
}

void AddShow(World& world, std::string_view name, const TvDeal& deal) {
  Show show;
  show.Name = TrimmedName(name);
  show.Owner = deal.Owner;
  show.Day = Says(kWeekDays, deal.Day);
  show.Slot = deal.Slot;
  show.Network = deal.Network;
  show.ContractWeeks = deal.Weeks;
  world.Shows().Append(show);
  NoteDeed(world, kDeedOnAir, world.FindPromotion(deal.Owner), show.Name,
           NetworkName(world, deal.Network), deal.Weeks);
}

void EndShow(World& world, Show& show) {
  NoteDeed(world, kDeedOffAir, world.FindPromotion(show.Owner), show.Name,
           NetworkName(world, show.Network));
  // Marked first: in a world from elsewhere two shows may have one name.
  show.Name = kToBeDeleted;
  RemoveShow(world, kToBeDeleted);
}

void TellOfDeal(World& world, const Promotion& owner, std::string_view text) {
  const bool isPlayer = owner.Uid == world.PlayerUid();
  if (isPlayer || ShouldTell(world, world.Game().MailTv, owner.Size))
    AddNews(world, "TV News", text);
}

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

namespace {

/// Commentators get by who are this much below what the public expects.
constexpr int kTolerance = 10;

/// Speaks of an empty chair and of who does not fill it.
void JudgeChair(std::vector<TvRemark>& remarks, const std::optional<Commentator>& seated,
                int wanted, const std::string& title, const std::string& one,
                const std::string& better) {
  if (seated && seated->Skill + kTolerance >= wanted) return;
  remarks.push_back({(seated ? "Poor " : "No ") + title + "!",
                     "Maeve: 'You need to assign " + (seated ? better : one) + " to this show!'"});
}

/// Speaks of the risk alone between 70 and 80 per cent of what is wanted.
TvRemark JudgeAired(const Promotion& promotion, const Show& show, const Network& network) {
  // Tenths, since the limits are not rounded.
  const int rating = show.Rating3 * 10, tenth = SlotAudience(network, show.Slot);
  if (rating < tenth * 6)
    return {"Uh-oh!",
            "Maeve: 'Our ratings are well below what the network expects, something needs to "
            "change very soon!'"};
  if (rating < tenth * 7)
    return {"Uh-oh!",
            "Maeve: 'Our ratings are below what the network expects, something needs to change!'"};
  if (rating > tenth * 9)
    return {"Great!", "Maeve: 'Our ratings are superb, the network are very happy with us!'"};
  if (rating > tenth * 8)
    return {"OK!", "Maeve: 'Our ratings are good, the network appears to be happy with us.'"};
  if (promotion.Risk > SlotRisk(network, show.Slot))
    return {"Too Risky!",
            "Maeve: 'We need to tone down the riskiness of the show if we want to stay on the "
            "air!'"};
  return {"Nothing's Happening!", "Maeve: 'I have nothing to report.'"};
}

std::string StrikesText(const Show& show) {
  constexpr const char* kStrikes[] = {"No strikes.",
                                      "One strike. At three the network drops the show.",
                                      "Two strikes. One more, and the network drops the show.",
                                      "Three strikes: the network will drop the show on Monday."};
  const int strikes = show.Rating4;
  return strikes >= 0 && strikes < std::ssize(kStrikes)
             ? kStrikes[strikes]
             : std::to_string(strikes) + " strikes, and somehow nobody has noticed.";
}

}  // namespace

std::vector<TvRemark> TvAdvice(const World& world, const Show& show, const Network& network) {
  std::vector<TvRemark> remarks;
  const int wanted = WantedTalent(world.Player().Size);
  JudgeChair(remarks, AnnouncerOf(world, show), wanted, "Announcer", "an announcer",
             "a better announcer");
  JudgeChair(remarks, ColourManOf(world, show), wanted, "Colour Commentator",
             "a colour commentator", "a better colour commentator");
  if (show.Rating1 == 0)
    remarks.push_back({"Duh!",
                       "Maeve: 'What are you expecting me to say? We haven't even debuted this "
                       "show yet!'"});
  else
    remarks.push_back(JudgeAired(world.Player(), show, network));
  return remarks;
}

std::string NetworkWants(const Promotion& promotion, const Show& show, const Network& network) {
  return network.Name + " measures the show against a rating of " +
         RatingText(SlotAudience(network, show.Slot)) + " in " + std::string(SlotName(show.Slot)) +
         ".\nIt bears a risk of " + std::to_string(SlotRisk(network, show.Slot)) +
         " there. Ours is " + std::to_string(promotion.Risk) +
         ".\nIt asks for production values of " + std::to_string(network.Production) +
         ". Ours are " + std::to_string(promotion.Production) + ".\n" + StrikesText(show);
}

}  // namespace grapplemont
