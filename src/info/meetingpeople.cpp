#include "business/development.h"
#include "business/finance.h"
#include "info/meeting.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "roster/postings.h"
#include "storylines/storynames.h"

// The meeting on the roster: how many there are, where they stand on the card, and how they feel.

namespace grapplemont {

namespace {

constexpr int kAMatch = 2;  // people
constexpr int kFewSides = 6;
constexpr int kDisproportion = 3;
// As the day's own steps have them.
constexpr int kWalksOutBelow = 10, kWalkOutBehaviour = 80;
constexpr int kBoycottBehaviour = 75;
constexpr int kUnhappyBelow = 40;
constexpr int kRoomLowBelow = 50, kRoomHappyFrom = 80;
constexpr int kPoorForm = 2;

std::string Place(int position) {
  return std::string(PositionText(position));
}

void TalkOfCount(Meeting& meeting) {
  const World& world = meeting.Of();
  const tuning::RosterBand& band = BySize(tuning::kRosters, meeting.Player().Size);
  const int count = Rosters(world).Of(world.PlayerUid());
  const long long balance = Balance(meeting.Player().LastMonth);
  if (count < band.Least)
    meeting.Say(Point::RosterSmall, {{"n", Number(count)},
                                     {"people", Counted(count, "person", "people")},
                                     {"least", Number(band.Least)},
                                     {"most", Number(band.Most)},
                                     {"missing", Number(band.Least - count)}});
  if (count > band.Most && balance < 0)
    meeting.Say(Point::RosterLarge,
                {{"n", Number(count)}, {"most", Number(band.Most)}, {"loss", Dollars(-balance)}});
}

/// The least Over that a place on the card asks for.
int OverFor(int size, int position) {
  int over = 0;
  while (over < 100 && FittingPosition(size, over) > position) ++over;
  return over;
}

std::string RemedyForThin(const Meeting& meeting, const People& fit, int position) {
  const int size = meeting.Player().Size;
  for (const Worker* worker : fit)
    if (worker->Position != position && FittingPosition(size, worker->Over) == position)
      return "Move " + worker->Name.Str() + " there: an Over of " + Number(worker->Over) + " fits.";
  return "Sign somebody with an Over of " + Number(OverFor(size, position)) + " or more.";
}

void TalkOfPlaces(Meeting& meeting) {
  const People fit = FitWrestlers(meeting.Of());
  const int lowest = std::min<int>(kMidcard, FittingPosition(meeting.Player().Size, 0));
  for (int position = kMainEvent; position <= lowest; ++position) {
    const auto count = std::count_if(fit.begin(), fit.end(),
                                     [=](const Worker* w) { return w->Position == position; });
    if (count >= kAMatch) continue;
    meeting.Say(Point::PositionThin, {{"place", Place(position)},
                                      {"n", count == 0 ? "nobody" : "one"},
                                      {"remedy", RemedyForThin(meeting, fit, position)}});
  }
}

void TalkOfMisplaced(Meeting& meeting, Point point, const People& people) {
  if (people.empty()) return;
  const Worker& worst = *people.front();
  meeting.Say(point, {{"n", Number(people.size())},
                      {"who", worst.Name.Str()},
                      {"over", Number(worst.Over)},
                      {"place", Place(worst.Position)},
                      {"fit", Place(FittingPosition(meeting.Player().Size, worst.Over))}});
}

bool IsHeldLow(const World& world, const Worker& worker) {
  return IsOnRoster(worker) &&
         worker.Position - 1 > FittingPosition(world.Player().Size, worker.Over);
}

void TalkOfSides(Meeting& meeting, const People& fit) {
  const auto count = [&](const char* side) {
    return static_cast<int>(std::count_if(fit.begin(), fit.end(),
                                          [=](const Worker* w) { return w->Disposition == side; }));
  };
  const int faces = count("F"), heels = count("H");
  if (faces + heels >= kFewSides &&
      std::min(faces, heels) * kDisproportion < std::max(faces, heels))
    meeting.Say(Point::OneSided, {{"faces", Number(faces)}, {"heels", Number(heels)}});
}

/// What weighs on a worker of the player's; empty where the records do not tell.
std::string WhyUnhappy(const World& world, const Worker& worker) {
  if (IsHeldLow(world, worker)) return "stands too low on the card";
  if (HasSite(world.Player(), Site::Territory) && IsInDevelopment(worker) &&
      worker.Over >= worker.Potential)
    return "has nothing left to learn in the development territory";
  if (FallsInARow(world.Player()) >= kPoorForm)
    return "has seen our standing fall month after month";
  return {};
}

std::string BecauseOf(const World& world, const Worker& worker) {
  const std::string why = WhyUnhappy(world, worker);
  return why.empty() ? "" : " Why? " + worker.Name.Str() + " " + why + ".";
}

Meeting::Words MoodOf(const World& world, const Worker& worker) {
  return {{"who", worker.Name.Str()},
          {"them", std::string(HimOrHer(worker))},
          {"morale", Number(worker.Morale)},
          {"why", BecauseOf(world, worker)}};
}

bool MayRebel(const Worker& worker) {
  return worker.Status == "Nor" && !worker.Unsackable && worker.Morale < kWalksOutBelow;
}
bool WillWalkOut(const Worker& worker) {
  return MayRebel(worker) && worker.ContractType == "Non" && worker.Behaviour < kWalkOutBehaviour;
}
bool WillBoycott(const Worker& worker) {
  return MayRebel(worker) && worker.ContractType == "Wri" && worker.Behaviour < kBoycottBehaviour;
}

void TalkOfTheUnhappy(Meeting& meeting) {
  const World& world = meeting.Of();
  People unhappy = Ours(world, [](const Worker& w) {
    return w.Morale < kUnhappyBelow && !(w.Status == "Hom") && !WillWalkOut(w) && !WillBoycott(w);
  });
  if (unhappy.empty()) return;
  Meeting::Words words = MoodOf(world, LeastOf(unhappy, &Worker::Morale));
  words.emplace_back("n", Number(unhappy.size()));
  meeting.Say(Point::Unhappy, words);
}

void TalkOfTheRoom(Meeting& meeting) {
  const People all =
      Ours(meeting.Of(), [](const Worker& w) { return IsOnMainRoster(w) && !(w.Status == "Hom"); });
  if (all.empty()) return;
  int sum = 0;
  for (const Worker* worker : all) sum += worker->Morale;
  const int mean = sum / static_cast<int>(all.size());
  if (mean < kRoomLowBelow) meeting.Say(Point::RoomLow, {{"n", Number(mean)}});
  if (mean >= kRoomHappyFrom) meeting.Say(Point::RoomHappy, {{"n", Number(mean)}});
}

}  // namespace

void TalkOfRoster(Meeting& meeting) {
  const World& world = meeting.Of();
  const int size = meeting.Player().Size;
  TalkOfCount(meeting);
  TalkOfPlaces(meeting);
  TalkOfMisplaced(meeting, Point::HeldLow, Ours(world, [&](const Worker& w) {
                    return w.Status == "Nor" && IsHeldLow(world, w);
                  }));
  TalkOfMisplaced(meeting, Point::PushedHigh, Ours(world, [&](const Worker& w) {
                    return w.Status == "Nor" && IsOnRoster(w) &&
                           w.Position < FittingPosition(size, w.Over) - 1;
                  }));
  SayOf(meeting, Point::Undebuted, Ours(world, [](const Worker& w) {
          return !w.Debuted && IsOnMainRoster(w) && w.Status == "Nor";
        }));
  TalkOfSides(meeting, FitWrestlers(world));
}

void TalkOfMorale(Meeting& meeting) {
  const World& world = meeting.Of();
  for (const Worker* worker : Ours(world, WillWalkOut))
    meeting.Say(Point::WalkOut, MoodOf(world, *worker));
  for (const Worker* worker : Ours(world, WillBoycott))
    meeting.Say(Point::Boycott, MoodOf(world, *worker));
  SayOf(meeting, Point::SittingOut, Ours(world, [](const Worker& w) { return w.Status == "Hom"; }));
  TalkOfTheUnhappy(meeting);
  TalkOfTheRoom(meeting);
}

}  // namespace grapplemont
