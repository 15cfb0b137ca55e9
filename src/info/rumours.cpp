#include "info/rumours.h"

#include <algorithm>

#include "business/networks.h"
#include "business/past.h"
#include "business/tvtalks.h"
#include "info/infowords.h"
#include "info/meeting.h"
#include "info/worldnews.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "roster/postings.h"
#include "storylines/feuds.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

constexpr int kKnown = 50;  // the Over from which on people talk about somebody
constexpr int kLastMonths = 2;
constexpr int kGrumblesBelow = 40;
constexpr int kAboutToRise = 90, kAboutToFall = 10;
constexpr int kOld = 45;
constexpr int kReignHeardOf = 90;
constexpr int kShortDeal = 4;  // weeks
constexpr int kBurning = 75;
constexpr int kBadMonths = 2;

/// What was heard, and by whose name its place in the list and its words are found.
struct Heard {
  Whisper Is;
  std::string About;
  LineWords Words;
};
using Ear = std::vector<Heard>;

/// What may be heard about one of them; all of it can say these words.
class Whispers {
 public:
  Whispers(Ear& ear, std::string about, LineWords words)
      : ear_(ear), about_(std::move(about)), words_(std::move(words)) {}
  void If(bool holds, Whisper whisper, const LineWords& more = {}) {
    if (!holds) return;
    ear_.push_back({whisper, about_, words_});
    ear_.back().Words.insert(ear_.back().Words.end(), more.begin(), more.end());
  }

 private:
  Ear& ear_;
  std::string about_;
  LineWords words_;
};

void HearOfRivalsStar(Whispers& heard, const Promotion& house, const Worker& worker) {
  heard.If(worker.ContractMonths >= 1 && worker.ContractMonths <= kLastMonths,
           Whisper::ContractEnds, {{"n", Counted(worker.ContractMonths, "month")}});
  heard.If(worker.ContractType == "Non" && !worker.Unsackable, Whisper::Handshake);
  heard.If(IsOnRoster(worker) && worker.Position - 1 > FittingPosition(house.Size, worker.Over),
           Whisper::HeldDown, {{"what", std::string(PositionText(worker.Position))}});
  heard.If(worker.Morale < kGrumblesBelow, Whisper::Unhappy);
}

void HearOfAnybody(Whispers& heard, const World& world, const Worker& worker) {
  heard.If(worker.Status == "Inj" && worker.StatusMonths == 1, Whisper::Back);
  heard.If(worker.TurnPending, Whisper::Turn);
  heard.If(IsOnRoster(worker) && worker.Age >= kOld &&
               worker.BirthMonth == MonthOf(world.Today()) && !worker.RetiringSoon,
           Whisper::OldBones, {{"n", std::to_string(worker.Age)}});
}

void HearOfWorkers(Ear& ear, const World& world) {
  for (const Worker& worker : world.Workers()) {
    if (worker.Over < kKnown) continue;
    Whispers heard(
        ear, worker.Name.Str(),
        {{"who", worker.Name.Str()}, {"house", PromotionInitials(world, worker.Employer)}});
    heard.If(worker.Employer == 0 && IsOnRoster(worker), Whisper::FreeStar,
             {{"n", Dollars(worker.Wage * 1000LL)}});
    const Promotion* house = world.FindPromotion(worker.Employer);
    if (!house || !IsAlive(*house)) continue;
    if (IsRival(world, *house)) HearOfRivalsStar(heard, *house, worker);
    HearOfAnybody(heard, world, worker);
  }
}

/// The worst about a house's money; nothing where it has enough.
void HearOfMoney(Whispers& heard, const Promotion& rival) {
  const Purse purse = PurseOf(rival);
  if (rival.Money < BankruptcyLineOf(rival.Size).WarnedBelow)
    return heard.If(true, Whisper::NearBankruptcy);
  if (rival.Money < 0) return heard.If(true, Whisper::InDebt);
  heard.If(purse == Purse::Saving, Whisper::Saving);
  heard.If(purse == Purse::Spending, Whisper::Spending);
}

void HearOfStanding(Whispers& heard, const Promotion& rival) {
  heard.If(rival.Image >= kAboutToRise && rival.Size > kGlobal, Whisper::AboutToRise,
           {{"what", std::string(SizeText(rival.Size - 1))}});
  heard.If(rival.Image <= kAboutToFall && rival.Size < kBackyard, Whisper::AboutToFall,
           {{"what", std::string(SizeText(rival.Size + 1))}});
  heard.If(FallsInARow(rival) >= kBadMonths, Whisper::Slipping);
}

void HearOfPromotions(Ear& ear, const World& world) {
  for (const Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    Whispers heard(ear, rival.Name.Str(),
                   {{"house", rival.Initials.Str()}, {"n", std::to_string(rival.Image)}});
    HearOfMoney(heard, rival);
    HearOfStanding(heard, rival);
    heard.If(!OwnerOf(world, rival.Uid), Whisper::NoOwner);
  }
}

void HearOfTitles(Ear& ear, const World& world) {
  for (const Title& title : world.Titles()) {
    const Promotion* house = world.FindPromotion(title.Owner);
    const Day won = title.Reigns[0].Won;
    if (!house || !IsRival(world, *house) || title.Suspended) continue;
    Whispers heard(ear, title.Name.Str(),
                   {{"what", WithArticle(title.Name.View())}, {"house", house->Initials.Str()}});
    heard.If(title.Holder == 0, Whisper::NoChampion);
    if (title.Holder == 0 || won == kNoTitleDate) continue;
    // Counted to the month's first day, so that the words stay as they are.
    const auto days = static_cast<int>((MonthsBefore(world.Today(), 0) - won).count());
    heard.If(days >= kReignHeardOf, Whisper::LongReign,
             {{"who", ChampionText(world, title)}, {"n", "more than " + std::to_string(days)}});
  }
}

void HearOfShows(Ear& ear, const World& world) {
  for (const Show& show : world.Shows()) {
    const Promotion* owner = world.FindPromotion(show.Owner);
    const Network* network = world.FindNetwork(show.Network);
    if (!owner || !network || !IsRival(world, *owner)) continue;
    Whispers heard(ear, show.Name.Str(),
                   {{"who", show.Name.Str()},
                    {"house", owner->Initials.Str()},
                    {"other", network->Name.Str()},
                    {"n", "a few weeks"}});
    const NetworkView view = ViewOf(show, *network);
    heard.If(view == kTerrible || view == kLow, Whisper::NetworkCold);
    heard.If(show.ContractWeeks >= 1 && show.ContractWeeks <= kShortDeal, Whisper::ShortDeal);
  }
}

void HearOfFeuds(Ear& ear, const World& world) {
  for (const Feud& feud : world.Feuds()) {
    if (IsFreeSlot(feud) || feud.Heat < kBurning) continue;
    const FeudSides sides = SidesOf(feud);
    const std::string one = SideName(world, sides.One);
    ear.push_back({Whisper::Bonfire,
                   one,
                   {{"who", one},
                    {"other", SideName(world, sides.Two)},
                    {"house", world.Player().Initials.Str()}}});
  }
}

/// The order in which things are heard: by kind, then as the month has it.
void Shuffle(Ear& ear, Day month) {
  constexpr std::size_t kMany = 1U << 20;
  std::stable_sort(ear.begin(), ear.end(), [&](const Heard& a, const Heard& b) {
    if (a.Is != b.Is) return a.Is < b.Is;
    return ChoiceFor(a.About, month, kMany) < ChoiceFor(b.About, month, kMany);
  });
}

}  // namespace

std::vector<Rumour> RumoursOf(const World& world) {
  Ear ear;
  HearOfWorkers(ear, world);
  HearOfPromotions(ear, world);
  HearOfTitles(ear, world);
  HearOfShows(ear, world);
  HearOfFeuds(ear, world);
  const Day month = MonthsBefore(world.Today(), 0);
  Shuffle(ear, month);
  std::vector<Rumour> rumours;
  int ofAKind = 0;
  for (const Heard& heard : ear) {
    ofAKind = rumours.empty() || rumours.back().Is != heard.Is ? 1 : ofAKind + 1;
    if (ofAKind > kMostOfAKind) continue;
    const auto lines = LinesUnder(words::Rumours(), static_cast<int>(heard.Is));
    // Neighbours of a kind have different words.
    const std::size_t first = ChoiceFor("rumour", month, lines.size());
    const std::size_t line = (first + static_cast<std::size_t>(ofAKind)) % lines.size();
    rumours.push_back({heard.Is, FillLine(lines[line], heard.Words)});
  }
  return rumours;
}

}  // namespace grapplemont
