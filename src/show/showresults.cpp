#include "show/showresults.h"

#include <algorithm>

#include "business/networks.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "show/attendance.h"
#include "show/nightbook.h"

namespace grapplemont {

namespace {

constexpr int kPayPerView = 1;

bool IsPlayers(const World& world, const Promotion& promotion) {
  return promotion.Uid == world.PlayerUid();
}

/// Who tells it, and in which words: "We made $" or "They made $".
struct NewsVoice {
  std::string From;
  std::string Who;
};

/// Empty sender: nobody is to hear of it.
NewsVoice VoiceOf(const World& world, const Promotion& promotion, const char* ownSender,
                  int option) {
  if (IsPlayers(world, promotion)) return {ownSender, "We"};
  if (!ShouldTell(world, option, promotion.Size)) return {};
  return {promotion.Initials + " News", "They"};
}

void Tell(World& world, const NewsVoice& voice, const std::string& body) {
  if (!voice.From.empty()) AddNews(world, voice.From, body);
}

std::string Made(const NewsVoice& voice, int dollars, const char* from) {
  return voice.Who + " made $" + std::to_string(dollars) + " from " + from + ".";
}

std::string Got(const Promotion& promotion, const NewsVoice& voice) {
  return (voice.Who == "We" ? voice.Who : promotion.Initials.Str()) + " got a ";
}

/// Of the player's own shows alone.
void NoteOwn(World& world, const Promotion& promotion, NoteKind kind, const Score& number) {
  if (IsPlayers(world, promotion)) NoteSteps(world, {kind, promotion.Name.Str()}, number);
}

void NoteMoney(World& world, const Promotion& promotion, int dollars, const std::string& why) {
  if (IsPlayers(world, promotion))
    NoteStep(world, {kNoteMoney, promotion.Name.Str()}, dollars, promotion.Money, why);
}

/// Puts dollars that came in into a book of the month; gives them.
int TakeIn(World& world, Promotion& promotion, Cash MonthBooks::*book, int dollars,
           const std::string& why) {
  promotion.Money += dollars;
  promotion.ThisMonth.*book += dollars;
  NoteMoney(world, promotion, dollars, why);
  return dollars;
}

int SellTickets(World& world, Promotion& promotion, int people) {
  return TakeIn(world, promotion, &MonthBooks::TicketIncome, promotion.TicketPrice * people,
                "Tickets: " + std::to_string(people) + " at " + Dollars(promotion.TicketPrice));
}

int PayForProduction(World& world, Promotion& promotion, int type) {
  const int dollars = EventProductionCost(type);
  promotion.Money -= dollars;
  promotion.ThisMonth.ProductionCost += dollars;
  NoteMoney(world, promotion, -dollars, "Putting on the Event");
  return dollars;
}

std::string CrowdLine(const NewsVoice& voice, int people) {
  return (voice.Who == "We" ? "The attendance was " : "The event was attended by ") +
         std::to_string(people) + " people.";
}

/// "1.06": unlike a rating, a buy rate has its two digits behind the point without a blank.
std::string BuyRateText(int hundredths) {
  const std::string cents = std::to_string(hundredths % 100);
  return std::to_string(hundredths / 100) + (cents.size() == 1 ? ".0" : ".") + cents;
}

void TellOfPayPerView(World& world, const Promotion& promotion, const Event& event, int buyRate,
                      int people, int ppvDollars, int ticketDollars) {
  const NewsVoice voice = VoiceOf(world, promotion, "PPV report", world.Game().MailShows);
  Tell(world, voice,
       Got(promotion, voice) + BuyRateText(buyRate) + " buy rate for '" + event.Name.Str() +
           "'!\n" + CrowdLine(voice, people) + "\n" +
           Made(voice, ppvDollars, "pay-per-view revenue") + "\n" +
           Made(voice, ticketDollars, "ticket sales"));
}

void TellOfEvent(World& world, const Promotion& promotion, const Event& event, int people,
                 int ticketDollars) {
  const NewsVoice voice = VoiceOf(world, promotion, "Show report", world.Game().MailShows);
  Tell(world, voice,
       event.Name + " was attended by " + std::to_string(people) + " people!\n" +
           Made(voice, ticketDollars, "ticket sales"));
}

/// What a competitor's strength does to the rating; the limits are strict, and between the bands
/// nothing happens.
struct Contest {
  int Above;  // V lies above R by more than this
  int Below;  // and by less than this; in the last two rows R above V
  bool WeLead;
  int Change;
  const char* Before;  // around the competitor's name
  const char* Behind;
};
constexpr Contest kContests[] = {
    {-79, 79, false, 0, "Our ratings battle with ",
     " is so close that neither show is gaining a clear advantage!"},
    {80, 200, false, -40, "Going head-to-head with ",
     " cost us a lot of viewers, we came out worst!"},
    {200, 400, false, -80, "Competing with ",
     " is hurting us, they're taking most of our viewers!"},
    {80, 200, true, 20, "We won the head-to-head with ", " in the ratings!"},
    {200, 400, true, 40, "",
     " are trying to compete with us, but are being destroyed in the ratings."},
};

void Compete(World& world, const Show& rival, Score& rating, int strength, bool tells) {
  for (const Contest& contest : kContests) {
    const int lead = contest.WeLead ? rating - strength : strength - rating;
    if (lead <= contest.Above || lead >= contest.Below) continue;
    if (tells) AddNews(world, "Maeve", contest.Before + rival.Name.Str() + contest.Behind);
    return rating.Add(contest.Change, rival.Name + " at the same hour");
  }
}

/// What the competitor's show would get, cut to what its own network can reach in that slot.
int StrengthOf(World& world, const Show& rival, const Promotion& owner) {
  const int rating = TvBaseRating(world, owner.Size, owner.Image);
  const Network* network = world.FindNetwork(rival.Network);
  return network ? std::min(rating, SlotAudience(*network, rival.Slot)) : rating;
}

void KeepRating(Show& show, int rating) {
  if (rating > show.Rating1) show.Rating1 = rating;
  if (show.Rating2 == 0 || rating < show.Rating2) show.Rating2 = rating;
  show.Rating3 = rating;
}

Score RatingOf(World& world, const Promotion& promotion, const Show& show, const Network& network) {
  const int cap = SlotAudience(network, show.Slot);
  Score rating = TvBaseRating(world, promotion.Size, promotion.Image);
  const auto limit = [&] {
    rating.Become(std::min<int>(rating, cap), network.Name + " reaches no more at that hour");
  };
  limit();
  HeadToHead(world, show, rating);
  limit();
  if (rating < 0) rating.Become(1, "limit");
  return rating;
}

}  // namespace

Show* ShowOn(World& world, int promotionUid, Day day) {
  for (Show& show : world.Shows())
    if (show.Owner == promotionUid && show.Day == DayName(day)) return &show;
  return nullptr;
}

ShowTakings EventReport(World& world, Promotion& promotion, const Event& event, int type) {
  const bool isPayPerView = type == kPayPerView && promotion.Size <= kRegional;
  const Score buyRate = isPayPerView ? BuyRate(world, promotion) : Score();
  const Score people = EventAttendance(world, promotion, type);
  NoteOwn(world, promotion, kNoteViewers, buyRate);
  NoteOwn(world, promotion, kNoteCrowd, people);
  const int ppvDollars = isPayPerView
                             ? TakeIn(world, promotion, &MonthBooks::PpvIncome, PpvIncome(buyRate),
                                      "Pay-per-view, buy rate " + RatingText(buyRate))
                             : 0;
  const int ticketDollars = SellTickets(world, promotion, people);
  const int costs = PayForProduction(world, promotion, type);
  if (isPayPerView)
    TellOfPayPerView(world, promotion, event, buyRate, people, ppvDollars, ticketDollars);
  else
    TellOfEvent(world, promotion, event, people, ticketDollars);
  return {people, buyRate, static_cast<long long>(ticketDollars) + ppvDollars, costs};
}

void HeadToHead(World& world, const Show& show, Score& rating) {
  const bool tells = show.Owner == world.PlayerUid();
  for (const Show& rival : world.Shows()) {
    if (rival.Owner == show.Owner || !(rival.Day == show.Day) || !(rival.Slot == show.Slot))
      continue;
    const Promotion* owner = world.FindPromotion(rival.Owner);
    if (owner) Compete(world, rival, rating, StrengthOf(world, rival, *owner), tells);
  }
}

ShowTakings TvReport(World& world, Promotion& promotion) {
  Show* show = ShowOn(world, promotion.Uid, world.Today());
  const Network* network = show ? world.FindNetwork(show->Network) : nullptr;
  if (!network) return {};
  const Score rating = RatingOf(world, promotion, *show, *network);
  NoteOwn(world, promotion, kNoteViewers, rating);
  const int floor = SlotAudience(*network, show->Slot) * 6 / 10;
  if (rating < floor && IsPlayers(world, promotion))
    AddNews(world, network->Name, "The ratings for " + show->Name.Str() + " need to improve.");
  KeepRating(*show, rating);
  const Score people = TvAttendance(world, promotion);
  NoteOwn(world, promotion, kNoteCrowd, people);
  const int dollars = SellTickets(world, promotion, people);
  const NewsVoice voice = VoiceOf(world, promotion, "Television report", world.Game().MailTvShow);
  const bool own = voice.Who == "We";
  Tell(world, voice,
       Got(promotion, voice) + RatingText(rating) +
           (own ? " rating for '" : " television rating for '") + show->Name.Str() + "'!\n" +
           (own ? "The attendance level was " + std::to_string(people) + " people."
                : CrowdLine(voice, people)) +
           "\n" + Made(voice, dollars, "ticket sales"));
  return {people, rating, dollars, 0};
}

}  // namespace grapplemont
