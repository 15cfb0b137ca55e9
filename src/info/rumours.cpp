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
constexpr int kUnhappyBelow = 40;
constexpr int kNearTheTop = 90, kNearTheBottom = 10;
constexpr int kOld = 45;
constexpr int kLongReign = 90;
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

LineWords Of(const World& world, const Worker& worker) {
  return {{"who", worker.Name.Str()}, {"house", PromotionInitials(world, worker.Employer)}};
}

LineWords With(LineWords words, const char* name, std::string word) {
  words.emplace_back(name, std::move(word));
  return words;
}

void HearOfRivalsStar(Ear& ear, const World& world, const Worker& worker) {
  const std::string name = worker.Name.Str();
  if (worker.ContractMonths >= 1 && worker.ContractMonths <= kLastMonths)
    ear.push_back({Whisper::ContractEnds, name,
                   With(Of(world, worker), "n", Counted(worker.ContractMonths, "month"))});
  if (worker.ContractType == "Non" && !worker.Unsackable)
    ear.push_back({Whisper::Handshake, name, Of(world, worker)});
  const Promotion& house = *world.FindPromotion(worker.Employer);
  if (IsOnRoster(worker) && worker.Position - 1 > FittingPosition(house.Size, worker.Over))
    ear.push_back({Whisper::HeldDown, name,
                   With(Of(world, worker), "what", std::string(PositionText(worker.Position)))});
  if (worker.Morale < kUnhappyBelow) ear.push_back({Whisper::Unhappy, name, Of(world, worker)});
}

void HearOfAnybody(Ear& ear, const World& world, const Worker& worker) {
  const std::string name = worker.Name.Str();
  if (worker.Status == "Inj" && worker.StatusMonths == 1)
    ear.push_back({Whisper::Back, name, Of(world, worker)});
  if (worker.TurnPending) ear.push_back({Whisper::Turn, name, Of(world, worker)});
  if (IsOnRoster(worker) && worker.Age >= kOld && worker.BirthMonth == MonthOf(world.Today()) &&
      !worker.RetiringSoon)
    ear.push_back(
        {Whisper::OldBones, name, With(Of(world, worker), "n", std::to_string(worker.Age))});
}

void HearOfWorkers(Ear& ear, const World& world) {
  for (const Worker& worker : world.Workers()) {
    if (worker.Over < kKnown) continue;
    if (worker.Employer == 0 && IsOnRoster(worker))
      ear.push_back({Whisper::FreeStar,
                     worker.Name.Str(),
                     {{"who", worker.Name.Str()}, {"n", Dollars(worker.Wage * 1000LL)}}});
    const Promotion* house = world.FindPromotion(worker.Employer);
    if (!house || !IsAlive(*house)) continue;
    if (IsRival(world, *house)) HearOfRivalsStar(ear, world, worker);
    HearOfAnybody(ear, world, worker);
  }
}

/// The worst about a house's money; nothing where it has enough.
void HearOfMoney(Ear& ear, const Promotion& rival, const LineWords& words) {
  const std::string name = rival.Name.Str();
  const Purse purse = PurseOf(rival);
  if (rival.Money < BankruptcyLineOf(rival.Size).WarnedBelow)
    ear.push_back({Whisper::NearBankruptcy, name, words});
  else if (rival.Money < 0)
    ear.push_back({Whisper::InDebt, name, words});
  else if (purse == Purse::Saving)
    ear.push_back({Whisper::Saving, name, words});
  else if (purse == Purse::Spending)
    ear.push_back({Whisper::Spending, name, words});
}

void HearOfStanding(Ear& ear, const Promotion& rival, LineWords words) {
  words.emplace_back("n", std::to_string(rival.Image));
  const std::string name = rival.Name.Str();
  if (rival.Image >= kNearTheTop && rival.Size > kGlobal)
    ear.push_back(
        {Whisper::AboutToRise, name, With(words, "what", std::string(SizeText(rival.Size - 1)))});
  if (rival.Image <= kNearTheBottom && rival.Size < kBackyard)
    ear.push_back(
        {Whisper::AboutToFall, name, With(words, "what", std::string(SizeText(rival.Size + 1)))});
  if (FallsInARow(rival) >= kBadMonths) ear.push_back({Whisper::Slipping, name, words});
}

void HearOfPromotions(Ear& ear, const World& world) {
  for (const Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    const LineWords words = {{"house", rival.Initials.Str()}};
    HearOfMoney(ear, rival, words);
    HearOfStanding(ear, rival, words);
    if (!OwnerOf(world, rival.Uid)) ear.push_back({Whisper::NoOwner, rival.Name.Str(), words});
  }
}

void HearOfTitles(Ear& ear, const World& world) {
  for (const Title& title : world.Titles()) {
    const Promotion* house = world.FindPromotion(title.Owner);
    const Day won = title.Reigns[0].Won;
    if (!house || !IsRival(world, *house) || title.Suspended) continue;
    if (title.Holder == 0)
      ear.push_back({Whisper::NoChampion,
                     title.Name.Str(),
                     {{"what", WithArticle(title.Name.View())}, {"house", house->Initials.Str()}}});
    if (title.Holder == 0 || won == kNoTitleDate) continue;
    const auto days = static_cast<int>((world.Today() - won).count());
    // Counted to the month's first day, so that the words stay as they are.
    const auto told = static_cast<int>((MonthsBefore(world.Today(), 0) - won).count());
    if (days >= kLongReign && told >= kLongReign)
      ear.push_back({Whisper::LongReign,
                     title.Name.Str(),
                     {{"who", ChampionText(world, title)},
                      {"what", WithArticle(title.Name.View())},
                      {"house", house->Initials.Str()},
                      {"n", "more than " + std::to_string(told)}}});
  }
}

void HearOfShows(Ear& ear, const World& world) {
  for (const Show& show : world.Shows()) {
    const Promotion* owner = world.FindPromotion(show.Owner);
    const Network* network = world.FindNetwork(show.Network);
    if (!owner || !network || !IsRival(world, *owner)) continue;
    const LineWords words = {{"who", show.Name.Str()},
                             {"house", owner->Initials.Str()},
                             {"other", network->Name.Str()},
                             {"n", "a few weeks"}};
    const NetworkView view = ViewOf(show, *network);
    if (view == kTerrible || view == kLow)
      ear.push_back({Whisper::NetworkCold, show.Name.Str(), words});
    if (show.ContractWeeks >= 1 && show.ContractWeeks <= kShortDeal)
      ear.push_back({Whisper::ShortDeal, show.Name.Str(), words});
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
