#include "business/commentators.h"
#include "business/economyfactor.h"
#include "business/networks.h"
#include "business/production.h"
#include "business/promotapes.h"
#include "business/tvshows.h"
#include "business/tvtalks.h"
#include "info/meeting.h"
#include "info/meetingfacts.h"
#include "records/modVar.h"
#include "show/charges.h"

// The meeting on television: deals, ratings, risk, and who sits at the table.

namespace grapplemont {

namespace {

constexpr int kFewWeeks = 12, kVeryFewWeeks = 4;
constexpr int kTenPoints = 3;  // of kProductionRaises
constexpr int kHappyPercent = 70;

struct OnAir {
  const Show& Is;
  const Network& On;
  int Audience;
};

Meeting::Words WordsOf(const Meeting& meeting, const OnAir& air) {
  return {{"show", air.Is.Name.Str()},
          {"network", air.On.Name.Str()},
          {"weeks", Number(int(air.Is.ContractWeeks))},
          {"rating", RatingText(air.Is.Rating3)},
          {"audience", RatingText(air.Audience)},
          {"needed", RatingText(PercentOf(air.Audience, kHappyPercent))},
          {"risk", Number(int(meeting.Player().Risk))},
          {"limit", Number(SlotRisk(air.On, air.Is.Slot))},
          {"strikes", Counted(air.Is.Rating4, "strike")}};
}

void TalkOfDeal(Meeting& meeting, const OnAir& air) {
  if (air.Is.ContractWeeks > kFewWeeks) return;
  const ExtensionTalk talk = TalkOfExtension(meeting.Player(), air.Is, air.On);
  Meeting::Words words = WordsOf(meeting, air);
  words.emplace_back("talk", talk.Weeks > 0
                                 ? "Today they would give " + Number(talk.Weeks) + " more."
                                 : "Today they would say no.");
  words.emplace_back("remedy", talk.Weeks > 0
                                   ? "Ask for the extension now, while they are pleased."
                                   : "Better ratings and a risk they bear, and then ask; or a tape "
                                     "to somebody else.");
  meeting.Say(Point::TvWeeks, words,
              air.Is.ContractWeeks > kVeryFewWeeks ? Urgency::Soon : Urgency::Now);
}

void TalkOfRatings(Meeting& meeting, const OnAir& air) {
  const Meeting::Words words = WordsOf(meeting, air);
  const NetworkView view = ViewOf(air.Is, air.On);
  if (view == kTerrible) meeting.Say(Point::TvTerrible, words);
  if (view == kLow) meeting.Say(Point::TvLow, words);
  if (view == kGreat) meeting.Say(Point::TvGreat, words);
  if (air.Is.Rating4 > 0) meeting.Say(Point::TvStrikes, words);
  if (meeting.Player().Risk > SlotRisk(air.On, air.Is.Slot)) meeting.Say(Point::TvRisk, words);
}

void TalkOfBetterSlot(Meeting& meeting, const OnAir& air) {
  const MoveTalk talk = TalkOfMove(meeting.Of(), meeting.Player(), air.Is, air.On);
  if (talk.Slot.empty()) return;
  Meeting::Words words = {{"show", air.Is.Name.Str()},
                          {"network", air.On.Name.Str()},
                          {"slot", std::string(SlotName(talk.Slot))},
                          {"audience", RatingText(SlotAudience(air.On, talk.Slot))}};
  meeting.Say(Point::TvSlot, words);
}

/// A chair at the table of a show.
struct Chair {
  const char* Name;
  std::optional<Commentator> Seated;
  int Charge;  // 0 or below
  std::vector<Commentator> ToChoose;
};

std::string RemedyFor(const Chair& chair, int wanted) {
  const Commentator* best = nullptr;
  for (const Commentator& other : chair.ToChoose)
    if (other.Speaks && other.Skill > chair.Seated->Skill && (!best || other.Skill > best->Skill))
      best = &other;
  if (best) return "Put " + best->Name + " there, who has " + std::to_string(best->Skill) + ".";
  return "Hire somebody with " + std::to_string(wanted) +
         " or more. Until then an empty chair would cost less.";
}

void TalkOfChair(Meeting& meeting, const Show& show, const Chair& chair) {
  const int wanted = WantedTalent(meeting.Player().Size);
  Meeting::Words words = {
      {"show", show.Name.Str()}, {"chair", chair.Name}, {"wanted", Number(wanted)}};
  if (!chair.Seated) return meeting.Say(Point::TvEmptyChair, words);
  if (chair.Charge >= 0) return;
  words.insert(words.end(), {{"who", chair.Seated->Name},
                             {"have", Number(chair.Seated->Skill)},
                             {"charge", Number(-chair.Charge)},
                             {"remedy", RemedyFor(chair, wanted)}});
  meeting.Say(Point::TvWeakTable, words);
}

void TalkOfTable(Meeting& meeting, const Show& show) {
  const World& world = meeting.Of();
  TalkOfChair(meeting, show,
              {"announcer", AnnouncerOf(world, show), WithAnnouncer(world, show.Announcer, 0),
               AnnouncersToChoose(world)});
  TalkOfChair(meeting, show,
              {"colour commentator", ColourManOf(world, show),
               WithColour(world, show.Colour, show.ColourIsWorker, 0), ColourMenToChoose(world)});
}

void TalkOfProduction(Meeting& meeting) {
  const Promotion& player = meeting.Player();
  const int charge = ProductionCharge(player);
  if (charge < 0)
    meeting.Say(Point::TvProduction,
                {{"have", Number(int(player.Production))},
                 {"charge", Number(-charge)},
                 {"cost", Dollars(ProductionRaiseCost(player.Production, kTenPoints))}});
}

void TalkOfNoShow(Meeting& meeting) {
  const World& world = meeting.Of();
  if (!WhyNoTape(world).empty()) return;
  const Network* first = nullptr;
  int count = 0;
  for (const Network& network : world.Networks()) {
    if (!CouldUseTape(world, network)) continue;
    ++count;
    if (!first || network.GraveAudience > first->GraveAudience) first = &network;
  }
  if (first)
    meeting.Say(Point::TvNone, {{"n", Counted(count, "network")}, {"network", first->Name.Str()}});
}

}  // namespace

void TalkOfTelevision(Meeting& meeting) {
  const World& world = meeting.Of();
  const auto shows = ShowsOf(world, world.PlayerUid());
  for (const Show* show : shows) {
    if (const Network* network = world.FindNetwork(show->Network)) {
      const OnAir air{*show, *network, SlotAudience(*network, show->Slot)};
      TalkOfDeal(meeting, air);
      TalkOfRatings(meeting, air);
      TalkOfBetterSlot(meeting, air);
    }
    TalkOfTable(meeting, *show);
  }
  TalkOfProduction(meeting);
  if (const Network* network = world.FindNetwork(world.Game().TvOfferWait))
    meeting.Say(Point::TvOffer, {{"network", network->Name.Str()}});
  else if (shows.empty())
    TalkOfNoShow(meeting);
}

}  // namespace grapplemont
