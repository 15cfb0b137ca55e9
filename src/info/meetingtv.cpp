#include "business/finance.h"
#include "business/networks.h"
#include "business/tvshows.h"
#include "business/tvtalks.h"
#include "info/meeting.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "show/holdshow.h"

// The meeting on television: deals, ratings, risk, and who sits at the table.

namespace grapplemont {

namespace {

constexpr int kFewWeeks = 12, kVeryFewWeeks = 4;
constexpr int kTenPoints = 3;  // of kProductionRaises
constexpr int kHappyPercent = 70;
constexpr int kMostSkill = 100;

struct OnAir {
  const Show& Is;
  const Network& On;
  int Audience;
};

Meeting::Words WordsOf(const Meeting& meeting, const OnAir& air) {
  return {{"show", air.Is.Name.Str()},
          {"network", air.On.Name.Str()},
          {"weeks", Counted(air.Is.ContractWeeks, "week")},
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

void TalkOfSlot(Meeting& meeting, const OnAir& air) {
  const MoveTalk talk = TalkOfMove(meeting.Of(), meeting.Player(), air.Is, air.On);
  if (talk.Slot.empty()) return;
  const int audience = SlotAudience(air.On, talk.Slot);
  if (audience == air.Audience) return;
  Meeting::Words words = {{"show", air.Is.Name.Str()},
                          {"network", air.On.Name.Str()},
                          {"slot", std::string(Says(kTimeSlots, talk.Slot))},
                          {"audience", RatingText(audience)},
                          {"now", RatingText(air.Audience)}};
  meeting.Say(audience > air.Audience ? Point::TvSlot : Point::TvSlotDown, words);
}

/// A chair at the table of a show.
struct Chair {
  const char* Name;
  std::optional<Commentator> Seated, Beside;  // in it, and in the other one
  std::vector<Commentator> ToChoose;
  int (*ChargeOf)(const World& world, const Commentator& who);  // 0 or below
};

int AnnouncerCharge(const World& world, const Commentator& who) {
  return WithAnnouncer(world, who.Uid, 0);
}
int ColourCharge(const World& world, const Commentator& who) {
  return WithColour(world, who.Uid, who.IsWorker, 0);
}

bool IsBeside(const Chair& chair, const Commentator& who) {
  return chair.Beside && chair.Beside->Uid == who.Uid && chair.Beside->IsWorker == who.IsWorker;
}

/// Who of those that are free for the chair would cost the show least, the most skilled of several;
/// nullptr where nobody costs less than who sits there.
const Commentator* BestFor(const World& world, const Chair& chair) {
  const Commentator* best = nullptr;
  std::pair least(chair.ChargeOf(world, *chair.Seated), kMostSkill);
  for (const Commentator& other : chair.ToChoose) {
    const std::pair his(chair.ChargeOf(world, other), other.Skill);
    if (!other.Speaks || IsBeside(chair, other) || his <= least) continue;
    best = &other;
    least = his;
  }
  return best;
}

std::string RemedyFor(const World& world, const Chair& chair, int wanted) {
  if (const Commentator* best = BestFor(world, chair))
    return "Put " + best->Name + " there, who " + (chair.Seated->Speaks ? "" : "can speak and ") +
           "has " + std::to_string(best->Skill) + ".";
  return "Hire somebody with " + std::to_string(wanted) +
         " or more. Until then an empty chair would cost less.";
}

void TalkOfChair(Meeting& meeting, const Show& show, const Chair& chair) {
  const int wanted = WantedTalent(meeting.Player().Size);
  Meeting::Words words = {
      {"show", show.Name.Str()}, {"chair", chair.Name}, {"wanted", Number(wanted)}};
  if (!chair.Seated) return meeting.Say(Point::TvEmptyChair, words);
  const int charge = chair.ChargeOf(meeting.Of(), *chair.Seated);
  if (charge >= 0) return;
  words.insert(words.end(), {{"who", chair.Seated->Name},
                             {"have", Number(chair.Seated->Skill)},
                             {"charge", Number(-charge)},
                             {"remedy", RemedyFor(meeting.Of(), chair, wanted)}});
  meeting.Say(chair.Seated->Speaks ? Point::TvWeakTable : Point::TvSpeechless, words);
}

void TalkOfTable(Meeting& meeting, const Show& show) {
  const World& world = meeting.Of();
  const auto announcer = AnnouncerOf(world, show), colour = ColourManOf(world, show);
  // An empty colour chair undoes what the announcer has cost.
  if (!announcer || colour)
    TalkOfChair(meeting, show,
                {"announcer", announcer, colour, AnnouncersToChoose(world), AnnouncerCharge});
  TalkOfChair(meeting, show,
              {"colour commentator", colour, announcer, ColourMenToChoose(world), ColourCharge});
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
      TalkOfSlot(meeting, air);
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
