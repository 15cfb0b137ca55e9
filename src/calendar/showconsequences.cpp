#include <algorithm>
#include <array>
#include <optional>

#include "business/beside.h"
#include "business/networks.h"
#include "business/past.h"
#include "business/sponsors.h"
#include "calendar/advanceday.h"
#include "calendar/events.h"
#include "calendar/image.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "rivals/rivalcards.h"
#include "rivals/rivals.h"
#include "show/nightbook.h"
#include "show/showresults.h"

namespace grapplemont {

namespace {

constexpr int kEnoughPeople = 6;

// By Event type from 1 to 4, in dollars.
constexpr std::array<int, 4> kCancelCharges = {2000000, 1000000, 100000, 5000};

/// A loss of image beside any show; the player's is noted.
void LoseImage(World& world, Promotion& promotion, int loss, const char* why) {
  const int image = promotion.Image;
  ChangeImage(world, promotion, loss, false);
  if (IsPlayers(world, promotion))
    NoteFact(world, {kNoteStanding, promotion.Name.Str()}, promotion.Image - image, promotion.Image,
             why);
}

/// Money by its type, and image. Gives the dollars it cost.
int CallOffEvent(World& world, Promotion& promotion, int type) {
  const int dollars =
      type >= 1 && type <= 4 ? kCancelCharges[static_cast<std::size_t>(type - 1)] : 0;
  MoveBeside(world, promotion, -dollars, "Calling off an Event");
  LoseImage(world, promotion, kCancelledImage, "an Event called off");
  return dollars;
}

/// Image, and a strike with its network.
void CallOffTv(World& world, Promotion& promotion) {
  if (Show* show = ShowOn(world, promotion.Uid, world.Today())) ++show->Rating4;
  LoseImage(world, promotion, kCancelledImage, "a show called off");
}

/// A network looks at the promotion's show of today: too risky, too poorly produced. Each complaint
/// is a strike, and a mail where it is the player's show.
void CheckShow(World& world, const Promotion& promotion) {
  Show* show = ShowOn(world, promotion.Uid, world.Today());
  const Network* network = show ? world.FindNetwork(show->Network) : nullptr;
  if (!network) return;
  const auto complain = [&](std::string_view from, const std::string& words) {
    ++show->Rating4;
    if (promotion.Uid == world.PlayerUid()) AddNews(world, from, words);
  };
  if (promotion.Risk > SlotRisk(*network, show->Slot))
    complain("TV News",
             network->Name +
                 " are not happy with the risky nature of our last show. They are asking us to "
                 "tone it down.");
  if (promotion.Production < network->Production)
    complain(network->Name, "We are not happy with the production quality of " + show->Name.Str() +
                                ", please improve your productions values ASAP.");
}

/// Each sponsor pays in full for an Event, a quarter (the main one) or a tenth for a television
/// show. Gives the dollars they paid.
long long PaySponsors(World& world, Promotion& promotion, bool isEvent) {
  long long dollars = 0;
  for (const Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion != promotion.Uid) continue;
    const bool isMain = promotion.Sponsor[0] == sponsor.Uid;
    const long long pay = 1000LL * (isEvent ? int(sponsor.Pay) : SponsorPayForTv(sponsor, isMain));
    dollars += pay;
    if (promotion.Uid == world.PlayerUid())
      NoteStep(world, {kNoteMoney, promotion.Name.Str()}, static_cast<int>(pay),
               static_cast<int>(promotion.Money + dollars), "Sponsor " + sponsor.Name);
  }
  promotion.Money += dollars;
  promotion.ThisMonth.SponsorIncome += dollars;
  return dollars;
}

void MoveOwnImage(World& world, Promotion& player, int step, const std::string& why) {
  const int image = player.Image, size = player.Size;
  MoveImage(world, player, step);
  NoteFact(world, {kNoteImage, player.Name.Str()}, player.Image - image, player.Image,
           why + (player.Size == size ? "" : "; now " + std::string(SizeText(player.Size))));
}

/// What the public and the sponsors make of a show of the player's; gives what these paid.
long long Judge(World& world, Promotion& player, HeldShow kind) {
  static constexpr const char* kGoodwill[] = {"the difficulty of the game", "your poor reputation",
                                              "nobody knows you"};
  const Goodwill before = GoodwillBefore(world.Game(), kind);
  for (std::size_t i = 0; i < before.size(); ++i)
    if (before[i] != 0) MoveOwnImage(world, player, before[i], kGoodwill[i]);
  const int rating = world.Session.ShowRating;
  if (const ImageBand next = NextImageBand(kind, player.Size, rating); next.From > rating)
    NoteFact(world, {kNoteNextBand, player.Name.Str()}, next.Step, next.From,
             "A rating of " + std::to_string(next.From) + "% moves the image by " +
                 (next.Step > 0 ? "+" : "") + std::to_string(next.Step) + ".");
  MoveOwnImage(world, player, ImageStep(kind, player.Size, rating),
               "a show rated " + std::to_string(rating) + "%");
  return PaySponsors(world, player, kind == HeldShow::Event);
}

ShowTakings HoldEvent(World& world, Promotion& player, const Event& event, int type) {
  const long long sponsors = Judge(world, player, HeldShow::Event);
  ShowTakings takings = EventReport(world, player, event, type);
  takings.Income += sponsors;
  takings.Costs += world.Session.ExtraCost;
  return takings;
}

ShowTakings HoldTv(World& world, Promotion& player) {
  CheckShow(world, player);
  const long long sponsors = Judge(world, player, HeldShow::Television);
  ShowTakings takings = TvReport(world, player);
  takings.Income += sponsors;
  return takings;
}

/// The past keeps the show under its name, and the promotion as the show left it.
void RememberShow(World& world, const Promotion& player, HistoryKind kind, std::string_view name,
                  bool cancelled, const ShowTakings& takings) {
  HistoryEntry entry = EntryOf(world, player, kind);
  entry.Name = name;
  entry.CalledOff = cancelled;
  entry.Rating = cancelled ? 0 : std::clamp(world.Session.ShowRating, 0, 100);
  entry.Viewers = takings.Viewers;
  entry.Attendance = takings.People;
  entry.Income = takings.Income;
  entry.Costs = takings.Costs;
  Remember(world, entry);
}

void EventDay(World& world, Promotion& player, bool cancelled) {
  const Event* event = PlayerEvent(world, MonthOf(world.Today()));
  if (!event || event->Type == 0)
    return LoseImage(world, player, kNoEventImage, "a month without an Event");
  const int type = event->Type;  // the image sets it again
  ShowTakings takings;
  if (cancelled)
    takings.Costs = CallOffEvent(world, player, type);
  else
    takings = HoldEvent(world, player, *event, type);
  RememberShow(world, player, kPastEvent, event->Name, cancelled, takings);
}

void TvDay(World& world, Promotion& player, bool cancelled) {
  ShowTakings takings;
  if (cancelled)
    CallOffTv(world, player);
  else
    takings = HoldTv(world, player);
  if (const Show* show = ShowOn(world, player.Uid, world.Today()))
    RememberShow(world, player, kPastTv, show->Name, cancelled, takings);
}

/// How often a worker counts in a show's mean, by their position; 0 for who does not carry a show.
int EventWeight(int position) {
  if (position == kMainEvent) return 2;
  return position == kUpperMidcard || position == kMidcard || position == kNonWrestler ||
                 position == kManager
             ? 1
             : 0;
}

int TvWeight(int position) {
  if (position == kMainEvent) return 2;
  return position >= kUpperMidcard && position <= kLowerMidcard ? 1 : 0;
}

/// The weighed mean Over of a roster; nothing when too few are there to hold a show.
std::optional<int> QualityOf(const World& world, int promotionUid, int (*weight)(int)) {
  int count = 0, sum = 0;
  for (const Worker& worker : world.Workers()) {
    if (worker.Employer != promotionUid) continue;
    count += weight(worker.Position);
    sum += weight(worker.Position) * worker.Over;
  }
  if (count < kEnoughPeople) return std::nullopt;
  return sum / count;
}

void TellCancelled(World& world, const Promotion& rival, int option, const char* what) {
  NoteDeed(world, kDeedCalledOff, &rival, rival.Name);
  TellOf(world, option, rival, rival.Initials + what);
}

void RivalEvent(World& world, Promotion& rival) {
  const int type = EventThisMonth(world, rival);
  const std::optional<int> draw = QualityOf(world, rival.Uid, EventWeight);
  if (!draw) {
    TellCancelled(world, rival, world.Game().MailShows, " were forced to cancel their last show.");
    CallOffEvent(world, rival, type);
    return;
  }
  HoldCard(world, rival, kUnseenEvent);
  MoveImage(world, rival, ImageStep(HeldShow::RivalEvent, rival.Size, *draw));
  PaySponsors(world, rival, true);
  const Event* event = EventOf(world, rival.Uid, MonthOf(world.Today()));
  if (!event) return;
  const ShowTakings takings = EventReport(world, rival, *event, type);
  NoteShow(world, kDeedEventHeld, rival, event->Name, *draw, takings.Viewers, takings.People);
}

void RivalTv(World& world, Promotion& rival) {
  const std::optional<int> draw = QualityOf(world, rival.Uid, TvWeight);
  if (!draw) {
    TellCancelled(world, rival, world.Game().MailTvShow,
                  " were forced to cancel their last television show.");
    return CallOffTv(world, rival);
  }
  CheckShow(world, rival);
  HoldCard(world, rival, kUnseenTv);
  MoveImage(world, rival, ImageStep(HeldShow::RivalTelevision, rival.Size, *draw));
  PaySponsors(world, rival, false);
  const Show* show = ShowOn(world, rival.Uid, world.Today());
  const ShowTakings takings = TvReport(world, rival);
  if (show) NoteShow(world, kDeedTvHeld, rival, show->Name, *draw, takings.Viewers, takings.People);
}

}  // namespace

void PlayerShowConsequences(World& world, bool cancelled) {
  Promotion& player = world.Player();
  if (IsEventDay(world.Today()))
    EventDay(world, player, cancelled);
  else if (HasTvToday(world, player.Uid))
    TvDay(world, player, cancelled);
  world.Session.ExtraCost = 0;
}

void RivalShows(World& world) {
  for (Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    if (IsEventDay(world.Today()))
      RivalEvent(world, rival);
    else if (HasTvToday(world, rival.Uid))
      RivalTv(world, rival);
  }
}

}  // namespace grapplemont
