#include "show/aftermatch.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/segmentparts.h"
#include "roster/moods.h"
#include "roster/postings.h"
#include "show/legend.h"
#include "show/nightbook.h"
#include "show/overchange.h"
#include "show/ratings.h"

namespace grapplemont {

namespace {

/// Condition lost by Strain: so much and a draw.
struct Wear {
  int Sure;
  int Draw;
  const char* Match;
};
constexpr Wear kWear[] = {{3, 2, "a light match"},  // Strain 1 to 5
                          {5, 5, "an easy match"},
                          {8, 7, "a hard match"},
                          {12, 16, "a rough match"},
                          {20, 30, "a brutal match"}};

/// How a match moves morale, for those whose Attitude is at least From. The falls add up.
struct MoraleBand {
  int From;
  int Better;    // the match was above the worker's standing
  int Worse;     // below it
  int FarWorse;  // more than 5 below
  int Dreadful;  // more than 10 below
};
constexpr MoraleBand kMoraleBands[] = {
    {75, 3, -5, -5, -7}, {50, 3, -5, -5, -5}, {25, 2, -3, -3, -3}};
constexpr int kMatchAhead = 15;

void WearOut(SegmentRun& run, Worker& worker) {
  if (run.Strain < 1) return;
  const Wear& wear = kWear[std::min(run.Strain, static_cast<int>(std::size(kWear))) - 1];
  const int before = worker.Condition;
  worker.Condition -= wear.Sure + run.World.RandomDraw(wear.Draw);
  NoteStep(run, kNoteCondition, worker, worker.Condition - before, worker.Condition,
           "tired by " + std::string(wear.Match));
}

int MoraleFrom(int attitude, int matchLevel, int workerLevel) {
  for (const MoraleBand& band : kMoraleBands) {
    if (attitude < band.From) continue;
    int change = 0;
    if (matchLevel > workerLevel) change += band.Better;
    if (matchLevel < workerLevel) change += band.Worse;
    if (matchLevel + 5 < workerLevel) change += band.FarWorse;
    if (matchLevel + 10 < workerLevel) change += band.Dreadful;
    return change;
  }
  return 0;
}

/// What their place on the card does to a worker. The numbers may leave 0..100.
struct CardPull {
  int Over = 0;
  int Morale = 0;
};

constexpr int kMoods = 6;
constexpr int kMoodToWrite = 2;
/// From this Attitude on somebody complains of being pushed, or asks politely to be.
constexpr int kModest = 81;
constexpr int kPolite = 61;

constexpr std::string_view kPushedTooHigh =
    "I think you might be pushing me too high up the card, the fans seem to be resenting me.";
constexpr Wording kHeldPolitely = {
    "I think i should be higher up the card.",
    "Brother, I think Maulamania should be running wild higher up the card!"};
constexpr Wording kHeldBluntly = {
    "I should be higher on the card, promote me up the roster.",
    "I should be higher on the card, promote me up the roster, brother!"};

void TellRoadAgent(World& world, const Worker& worker, const std::string& before,
                   const std::string& after) {
  AddNews(world, "Road Agent",
          worker.Name.Str() + before + (worker.Gender ? "him" : "her") + after);
}

CardPull PushedTooHigh(World& world, const Worker& worker, int fit, int mood) {
  CardPull pull;
  if (worker.Position < fit - 1) pull.Over -= kOverOfPush;
  if (worker.Position < fit - 2) {
    pull.Over -= kOverOfFarPush;
    TellRoadAgent(world, worker, " is losing heat because you are pushing ", " too much.");
  }
  if (worker.Attitude >= kModest && mood == kMoodToWrite && !IsLegend(worker))
    AddNews(world, worker.Name, kPushedTooHigh);
  return pull;
}

CardPull HeldTooLow(World& world, const Worker& worker, int fit, int mood) {
  CardPull pull;
  if (worker.Position - 1 > fit) pull.Morale -= kMoraleOfHold;
  if (worker.Position - 2 > fit) {
    pull.Morale -= kMoraleOfFarHold;
    TellRoadAgent(world, worker, " is losing morale because you are not pushing ", " enough.");
  }
  if (mood == kMoodToWrite)
    AddNews(world, worker.Name,
            (worker.Attitude >= kPolite ? kHeldPolitely : kHeldBluntly).By(worker));
  return pull;
}

/// Compares the worker's place with the one that fits, tells the player by mail, and gives what
/// follows for the worker. Draws once; does nothing for a manager or non-wrestler.
CardPull CheckCardPosition(World& world, const Worker& worker) {
  if (worker.Position == kNonWrestler || worker.Position == kManager) return {};
  const int fit = FittingPosition(world.Player().Size, worker.Over);
  const int mood = world.RandomDraw(kMoods);
  if (worker.Position < fit) return PushedTooHigh(world, worker, fit, mood);
  if (worker.Position > fit) return HeldTooLow(world, worker, fit, mood);
  return {};
}

/// Why it was moved last; empty for a number that was not.
std::string LastWhy(const Score& score) {
  return score.Steps().empty() ? std::string() : score.Steps().back().Why;
}

struct Feeling {
  int Change = 0;
  MoodReason Why = kMoodWon;
};
using Feelings = std::vector<Feeling>;

/// Morale stops at its ends only once all have been added up, so the larger go last.
void Feel(SegmentRun& run, Worker& worker, Feelings feelings) {
  int left = 0;
  for (const Feeling& feeling : feelings) left += feeling.Change;
  const int end = std::clamp(worker.Morale + left, 0, 100);
  std::ranges::sort(feelings, {}, [](const Feeling& feeling) { return std::abs(feeling.Change); });
  for (std::size_t i = 0; i < feelings.size(); ++i) {
    const auto& [change, why] = feelings[i];
    const int before = worker.Morale;
    MoveMorale(run.World, worker, i + 1 == feelings.size() ? end - before : change, why);
    NoteStep(run, kNoteMorale, worker, worker.Morale - before, worker.Morale, MoodReasonText(why));
  }
}

}  // namespace

Span WearOf(int strain) {
  const Wear& wear = kWear[std::clamp(strain, 1, static_cast<int>(std::size(kWear))) - 1];
  return {wear.Sure + 1, wear.Sure + wear.Draw};
}

Span MoraleOfGoodMatch() {
  const auto [least, most] = std::ranges::minmax(kMoraleBands, {}, &MoraleBand::Better);
  return {least.Better, most.Better};
}

Span MoraleOfPoorMatch() {
  Span cost{-kMoraleBands[0].Worse, 0};
  for (const MoraleBand& band : kMoraleBands) {
    cost.Least = std::min(cost.Least, -band.Worse);
    cost.Most = std::max(cost.Most, -(band.Worse + band.FarWorse + band.Dreadful));
  }
  return cost;
}

void AfterMatch(SegmentRun& run, Worker& worker, bool isWinner) {
  const int matchLevel = WeighRating(run.Quality, run.Crowd) + kMatchAhead;
  const int workerLevel = WeighRating(BestSkill(worker), worker.Over);
  const int overBefore = worker.Over;
  Score over;
  over.Add(overBefore, "");
  Feelings feelings;
  if (isWinner) {
    feelings.push_back({run.World.RandomDraw(kWinnersJoy), kMoodWon});
  } else {
    const CardPull pull = CheckCardPosition(run.World, worker);
    over.Add(pull.Over, "pushed too high up the card");
    WearOut(run, worker);
    const int match = MoraleFrom(worker.Attitude, matchLevel, workerLevel);
    feelings = {{pull.Morale, kMoodHeldDown}, {match, match > 0 ? kMoodMatchGood : kMoodMatchBad}};
  }
  for (const Showcase& showcase : kShowcases)
    if (over < showcase.OverBelow && run.Quality >= showcase.QualityFrom)
      over.Add(showcase.Gain, "a match of quality " + std::to_string(run.Quality));
  ChangeOverAndTell(run, worker, over - overBefore, LastWhy(over));
  Feel(run, worker, std::move(feelings));
}

namespace {

constexpr std::array<std::string_view, kInjuryKinds> kInjuries = {
    "Broken Arm",  "Broken Leg", "Back Injury", "Tricep Tear",  "Neck Injury",  "Eye Injury",
    "Broken Nose", "Torn Calf",  "Knee Injury", "Ankle Injury", "Damaged Hand", "Ripped Bicep"};
constexpr int kLongestMonths = 6;

/// One in this many is hurt, by Strain.
constexpr int kOddsByStrain[] = {0, 0, 0, 400, 250, 150};
constexpr int kSickBumpOdds = 40;

bool TakesSickBump(const Segment& segment, int uid) {
  return (segment.Style == kSingles || segment.Style == kTag) && segment.Finish == kSickBump &&
         uid == FallenOf(segment);
}

/// 0 for a worker who runs no risk.
int OddsOf(const SegmentRun& run, const Worker& worker) {
  if (run.Strain < 0 || run.Strain >= static_cast<int>(std::size(kOddsByStrain))) return 0;
  const int odds = TakesSickBump(run.Segment, worker.Uid)
                       ? kSickBumpOdds
                       : kOddsByStrain[static_cast<std::size_t>(run.Strain)];
  return worker.Condition < kWornOut ? odds / 2 : odds;
}

}  // namespace

int HurtingStrain() {
  return static_cast<int>(std::ranges::find_if(kOddsByStrain, [](int odds) { return odds > 0; }) -
                          std::begin(kOddsByStrain));
}

void BreakSomething(World& world, Worker& worker) {
  const int kind = world.RandomDraw(kInjuryKinds);
  Injure(world, worker, kind, world.RandomDraw(kLongestMonths));
}

void Injure(World& world, Worker& worker, int kind, int months) {
  worker.Status = "Inj";
  worker.InjuryName = kInjuries[static_cast<std::size_t>(kind - 1)];
  worker.StatusMonths = months;
  NoteDeed(world, kDeedInjured, world.FindPromotion(worker.Employer), worker, worker.InjuryName,
           worker.StatusMonths);
}

void DrawInjuries(SegmentRun& run) {
  for (const int uid : PeopleOf(run.Segment)) {
    Worker* worker = run.World.FindWorker(uid);
    const int odds = worker ? OddsOf(run, *worker) : 0;
    if (odds == 0 || run.World.RandomDraw(odds) != 1 || worker->Status == "Inj") continue;
    BreakSomething(run.World, *worker);
    NoteFact(run, {kNoteInjury, worker->Name.Str(), worker->Uid}, worker->StatusMonths,
             worker->Condition, worker->InjuryName.Str());
    run.Notes += worker->Name.Str() + " has sustained an injury as a result of a bad bump! " +
                 StatusLine(*worker) + ". ";
  }
}

namespace {

constexpr int kHardestBlow = 10;

/// What the one who was hurt writes about the stiff one, whose name stands between the two.
struct Complaint {
  Wording Before;
  Wording After;
};
constexpr Complaint kComplaints[] = {
    // by the place of the one who was hurt
    {{"", ""},
     {" was working too stiff, i could have been injured.",
      " was working too stiff, brother, the Maulster could have been injured!"}},
    {{"I think ", "Brother, I think "},
     {" was too reckless in my match, i could have been seriously hurt.",
      " was too reckless in my match, the Maulster could have been seriously hurt!"}},
    {{"Can you talk to ", "Brother, can you talk to "},
     {"? There is a big difference between being enthusiastic and just being reckless.",
      "? There is a big difference between being enthusiastic and just being reckless, brother!"}},
    {{"", ""},
     {" was working too stiffly, i could have been badly hurt. ",
      " was working too stiffly, the Maulster could have been badly hurt, brother! "}},
};

}  // namespace

void HurtOthers(SegmentRun& run, const Worker& stiff) {
  const int partner = PartnerOf(run.Segment, stiff.Uid);
  for (std::size_t place = 0; place < std::size(kComplaints); ++place) {
    const int uid = run.Segment.Worker[place];
    Worker* hurt = run.World.FindWorker(uid);
    if (static_cast<int>(place) >= EntrantsOf(run.Segment) || !hurt || uid == stiff.Uid ||
        uid == partner)
      continue;
    const int blow = run.World.RandomDraw(kHardestBlow), before = hurt->Condition;
    hurt->Condition -= blow;
    NoteStep(run, kNoteCondition, *hurt, hurt->Condition - before, hurt->Condition,
             stiff.Name.Str() + " worked too stiffly");
    if (blow < kHardestBlow) continue;
    const Complaint& complaint = kComplaints[place];
    AddNews(run.World, hurt->Name,
            std::string(complaint.Before.By(*hurt)) + stiff.Name.Str() +
                std::string(complaint.After.By(*hurt)));
  }
}

}  // namespace grapplemont
