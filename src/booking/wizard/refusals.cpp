#include "booking/wizard/refusals.h"

#include <algorithm>
#include <initializer_list>

#include "booking/wizard/objections.h"

namespace grapplemont {

namespace {

using Refusals = std::vector<Refusal>;
using Uids = std::vector<int>;

std::string_view Pronoun(const Worker& worker) {
  return worker.Gender ? "he" : "she";
}

/// Who speaks decides how a veto is put.
enum class Voice { Alone, Pair, ForTeam };

std::string VetoOf(const Standing& speaker, Voice voice) {
  if (std::ranges::none_of(speaker.People,
                           [](auto* worker) { return bool(worker->CreativeControl); }))
    return {};
  switch (voice) {
    case Voice::Pair:
      return "Because they have creative control, you cannot challenge this.";
    case Voice::ForTeam:
      return "Because of creative control, you cannot challenge this.";
    default:
      return "Because " + std::string(Pronoun(*speaker.People.front())) +
             " has creative control, you cannot challenge this.";
  }
}

std::string NameOf(const World& world, const Standing& who) {
  std::vector<int> uids;
  for (const Worker* worker : who.People) uids.push_back(worker->Uid);
  return SideText(world, uids);
}

Refusal Says(const World& world, const Standing& speaker, Voice voice, const std::string& words) {
  return {NameOf(world, speaker) + words, VetoOf(speaker, voice), false};
}

Refusal Final(const Worker& speaker, std::string_view words) {
  return {speaker.Name + words, {}, true};
}

bool IsAmong(int code, std::initializer_list<int> codes) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

// --- Who takes part

constexpr int kPrudish = 30;      // an Attitude above it
constexpr int kWellBehaved = 31;  // a Behaviour from it on

bool IsStripped(const Segment& match) {
  return IsAmong(match.MatchType, {kBraAndPanties, kBuckNaked});
}

bool IsOffended(const Worker& worker) {
  return !worker.Gender && (worker.Attitude > kPrudish || worker.Behaviour >= kWellBehaved);
}

Refusals PeopleRefusals(const World& world, const Segment& match) {
  Refusals refusals;
  if (match.Style != kSingles || !IsStripped(match)) return refusals;
  const Worker* both[] = {WorkerAt(world, match, 1), WorkerAt(world, match, 2)};
  for (const Worker* worker : both)
    if (worker && worker->Gender) refusals.push_back(Final(*worker, ": You're joking, right???"));
  for (const Worker* worker : both)
    if (worker && match.MatchType == kBuckNaked && IsOffended(*worker))
      refusals.push_back(Final(*worker, ": You're a sick freak! Go to hell!"));
  return refusals;
}

// --- The result

/// What one side says to the result: of a woman, and for each gap.
struct ResultWords {
  std::string Woman;
  std::vector<std::string> Gap;  // the last one serves those behind it
  const std::string& ForGap(std::size_t i) const { return Gap[std::min(i, Gap.size() - 1)]; }
};

void AddResultRefusals(Refusals& into, const World& world, const Standing& loser,
                       const Standing& winner, int womanRule, Gaps gaps, Voice voice,
                       const ResultWords& words) {
  if (loser.People.empty() || winner.People.empty()) return;
  if (IsManAgainstWoman(loser, winner) && loser.Attitude < womanRule)
    into.push_back(Says(world, loser, voice, words.Woman));
  for (std::size_t i = 0; i < gaps.size(); ++i)
    if (IsAbove(loser, winner, gaps[i])) into.push_back(Says(world, loser, voice, words.ForGap(i)));
}

Refusals SinglesResult(const World& world, const Segment& match) {
  Refusals refusals;
  const auto league = [](const char* start, const Standing& other) {
    const std::string who(other.People.empty() ? "he" : Pronoun(*other.People.front()));
    return start + who + " is not in my league.";
  };
  if (IsDraw(match)) {
    const Standing first = StandingOf(world, {match.Worker[0]});
    const Standing second = StandingOf(world, {match.Worker[1]});
    for (const auto& [who, other] : {std::pair(first, second), std::pair(second, first)})
      AddResultRefusals(
          refusals, world, who, other, kWomanRule, kSinglesGaps, Voice::Alone,
          {": I am not drawing with a woman.", {league(": I should win this match, ", other)}});
    return refusals;
  }
  const Standing winner = StandingOf(world, {match.Winner});
  AddResultRefusals(
      refusals, world, StandingOf(world, {match.Loser}), winner, kWomanRule, kSinglesGaps,
      Voice::Alone,
      {": I am not losing to a woman.", {league(": I am not losing this match, ", winner)}});
  return refusals;
}

Refusals TagResult(const World& world, const Segment& match) {
  Refusals refusals;
  const auto sides = SidesOf(match);
  const Standing first = StandingOf(world, sides[0]), second = StandingOf(world, sides[1]);
  if (IsDraw(match)) {
    const ResultWords words = {": We are not drawing with a team that has a woman on it.",
                               {": We should win this match, they are not in our league."}};
    for (const auto& [who, other] : {std::pair(first, second), std::pair(second, first)})
      AddResultRefusals(refusals, world, who, other, kTagWomanRule, kTagDrawGaps, Voice::Pair,
                        words);
    return refusals;
  }
  const bool secondWins = SideOf(match, match.Winner) == 2;
  const std::string league = ": We are not losing this match, they are not in our league.";
  AddResultRefusals(refusals, world, secondWins ? first : second, secondWins ? second : first,
                    kTagWomanRule, TagGaps(match), Voice::Pair,
                    {": We are not losing to a team including a woman.",
                     {league, league, league, ": We are not losing this match."}});
  return refusals;
}

/// How the losers of the other styles speak, by style and type.
struct LoserVoice {
  Gaps Bounds;
  Voice How;
  const char* ToAWoman;  // empty: nobody minds
  std::string ToOthers;
};

LoserVoice VoiceOf(const World& world, const Segment& match) {
  if (match.Style == kSpecial)
    return {kSpecialGaps, Voice::Alone, "",
            ": I'm not being in a match where the winner is so much lower than me."};
  if (match.Style == kFourOnFour && match.MatchType == kSurvivor)
    return {kSurvivorGaps, Voice::Alone, "", ": I think my team should win this bout."};
  if (match.Style != kThreeWay && match.Style != kFourWay)
    return {kLoserGaps, Voice::ForTeam, ": We are not losing to a team containing a woman.",
            ": We are not losing this match to them."};
  if (match.MatchType == kElimination)
    return {kLoserGaps, Voice::Alone, ": I am not losing out to a woman.",
            ": I think i am a more worthy winner of this match."};
  return {kLoserGaps, Voice::Alone, ": I am not losing to a woman.",
          ": I am not losing this match to " + SideText(world, {match.Winner})};
}

Refusals OtherResult(const World& world, const Segment& match) {
  Refusals refusals;
  const LoserVoice voice = VoiceOf(world, match);
  const Standing winner = StandingOf(world, {match.Winner});
  for (const int loser : Objectors(match))
    AddResultRefusals(refusals, world, StandingOf(world, {loser}), winner,
                      *voice.ToAWoman ? kWomanRule : 0, voice.Bounds, voice.How,
                      {voice.ToAWoman, {voice.ToOthers}});
  return refusals;
}

Refusals ResultRefusals(const World& world, const Segment& match) {
  if (match.Style == kSingles) return SinglesResult(world, match);
  return match.Style == kTag ? TagResult(world, match) : OtherResult(world, match);
}

// --- The finish

Refusals FinishRefusals(const World& world, const Segment& match) {
  const bool alone = match.Style == kSingles;
  const Worker* loser = world.FindWorker(match.Loser);
  if ((!alone && match.Style != kTag) || IsDraw(match) || !loser) return {};
  if (match.Finish == kSickBump && !loser->HighSpots)
    return {Final(*loser, ": I'm not taking a sick bump, sorry.")};
  const Standing winners = StandingOf(world, alone ? Uids{match.Winner} : WinnersOf(match));
  const Standing losers = StandingOf(world, alone ? Uids{match.Loser} : LosersOf(match));
  if (!MindFinish(world, match, losers, winners)) return {};
  if (!alone) return {Says(world, losers, Voice::Pair, ": We are not losing this match cleanly.")};
  return {Says(world, losers, Voice::Alone,
               match.Finish == kClean
                   ? ": I am not losing this match cleanly."
                   : ": If i am to lose this match by interference, i want someone better to run "
                     "in.")};
}

// --- The aftermath of a singles match

bool GetsNoHeatBack(const Worker& loser, int aftermath) {
  using namespace after1;
  return loser.Attitude < kVengeful && !GivesHeatBack(aftermath) &&
         !IsAmong(aftermath,
                  {kHandshake, kCheapShot, kFirstRefusesHand, kSecondRefusesHand, kBrawlToTheBack});
}

/// A Face of whom nobody expects a turn.
bool IsStaunchFace(const Worker& worker) {
  return worker.Disposition == "F" && !worker.TurnPending;
}

Refusals AftermathRefusals(const World& world, const Segment& match) {
  Refusals refusals;
  if (match.Style != kSingles) return refusals;
  const auto add = [&](const Worker& worker, const char* words) {
    refusals.push_back(Says(world, StandingOf(world, {worker.Uid}), Voice::Alone, words));
  };
  const int code = match.Aftermath;
  const Worker* loser = IsDraw(match) ? nullptr : world.FindWorker(match.Loser);
  const Worker* refuser = code == after1::kFirstRefusesHand    ? WorkerAt(world, match, 1)
                          : code == after1::kSecondRefusesHand ? WorkerAt(world, match, 2)
                                                               : nullptr;
  if (loser && GetsNoHeatBack(*loser, code))
    add(*loser, ": If i am to lose, i want to do something after the match to get my heat back.");
  if (refuser && IsStaunchFace(*refuser))
    add(*refuser, ": I don't think refusing a handshake is good for my character.");
  if (loser && code == after1::kLoserRuns && loser->Disposition == "F")
    add(*loser, ": I don't think running away is good for my character.");
  if (loser && code == after1::kCheapShot && IsStaunchFace(*loser))
    add(*loser, ": I don't think cheap-shotting on a handshake is good for my character.");
  return refusals;
}

}  // namespace

std::vector<Refusal> RefusalsAt(const World& world, const Segment& match, MatchStep step) {
  switch (step) {
    case kPeopleStep:
      return PeopleRefusals(world, match);
    case kResultStep:
      return ResultRefusals(world, match);
    case kFinishStep:
      return FinishRefusals(world, match);
    case kAftermathStep:
      return AftermathRefusals(world, match);
    default:
      return {};
  }
}

std::vector<Refusal> RefusalsOf(const World& world, const Segment& segment) {
  Refusals all;
  if (segment.Kind != kMatch || !FindMatchType(segment.Style, segment.MatchType)) return all;
  for (const MatchStep step : {kPeopleStep, kResultStep, kFinishStep, kAftermathStep}) {
    const Refusals some = RefusalsAt(world, segment, step);
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

}  // namespace grapplemont
